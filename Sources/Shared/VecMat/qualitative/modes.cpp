#include "modes.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../elementary/detail/text_table.h"
#include "detail/category_lists.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

using namespace vecmat;

std::wstring V_Mode(Smatrix* x, int n, matrix* weights)
{
    WeightedCategories list(WeightedCategories::unlimited);
    const auto textAt = [x](int i) -> std::wstring_view { return linear(x).get(i); };
    forEachText(0, n, list.table(), textAt, [&](int i, const HashedText& text) {
        if (!text.text().empty())
            list.add(text, linear(weights).get(i));
    });
    if (list.size() == 0)
        return {};
    return std::wstring(list.text(heaviest(list.size(), [&list](int place) { return list.weight(place); })));
}

double V_ModeCat(matrix* x, int n)
{
    if (n < 2)
        return 0.0;
    std::vector<int> counts(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        const double cell = linear(x).get(i);
        if (isMissing(cell))
            continue;
        // The 1 is added before the truncation, so that -0.5 is not code 0. A negative code wraps out of range.
        const unsigned code = static_cast<unsigned>(truncated(cell + 1.0)) - 1u;
        if (code < counts.size())
            ++counts[code];
    }
    return static_cast<double>(std::max_element(counts.begin(), counts.end()) - counts.begin());
}
