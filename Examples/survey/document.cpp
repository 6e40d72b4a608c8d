#include "document.h"

#include "input_error.h"

#include <utility>

namespace survey {

Section& Document::add(std::string name, std::string sectionTitle, std::string lead)
{
    sections.push_back({std::move(name), onOneLine(sectionTitle), std::move(lead), {}, {}, ""});
    return sections.back();
}

std::string counted(std::size_t count, const std::string& thing)
{
    return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

std::string listed(const std::string& name)
{
    return name.find(',') == std::string::npos ? onOneLine(name) : quoted(name);
}

} // namespace survey
