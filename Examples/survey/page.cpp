#include "page.h"

#include "input_error.h"
#include "text_table.h"

#include <ostream>

namespace survey {

void printTitle(std::ostream& out, const std::string& title)
{
    out << title << "\n\n";
}

void printNote(std::ostream& out, const std::string& note)
{
    out << wrapped(words(note), lineWidth, 0) << "\n\n\n";
}

std::string counted(std::size_t count, const std::string& thing)
{
    return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

std::string listed(const std::string& name)
{
    return name.find(',') == std::string::npos ? onOneLine(name) : quoted(name);
}

void printList(std::ostream& out, const std::string& label, std::vector<std::string> items)
{
    if (items.empty())
        return;
    for (std::size_t i = 0; i + 1 < items.size(); ++i)
        items[i] += ',';
    out << label << wrapped(items, lineWidth, widthOf(label)) << '\n';
}

} // namespace survey
