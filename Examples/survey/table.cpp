#include "table.h"

#include <algorithm>

namespace survey {

std::vector<const Column*> Table::ofKind(Kind kind) const
{
    std::vector<const Column*> chosen;
    for (const Column& column : columns)
        if (column.kind == kind)
            chosen.push_back(&column);
    return chosen;
}

const Column* Table::named(const std::string& name) const
{
    const auto column = std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return c.name == name; });
    return column == columns.end() ? nullptr : &*column;
}

} // namespace survey
