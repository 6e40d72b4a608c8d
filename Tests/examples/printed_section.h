// What the terminal shows of a section.
#pragma once

#include "terminal.h"

#include <sstream>
#include <string>

namespace survey::test {

/// `add` is the function that adds the section, `described` what it takes beside the document. Empty where it adds none.
template <class Add, class... Described>
std::string printed(const Add& add, const Described&... described)
{
    Document document;
    add(document, described...);
    std::ostringstream out;
    for (const Section& section : document.sections)
        print(out, section);
    return out.str();
}

} // namespace survey::test
