#include "modes.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/caller_text.h"
#include "../frame/detail/text_table.h"
#include "detail/category_lists.h"
#include "detail/text_calls.h"

#include <algorithm>
#include <cstddef>
#include <vector>

using namespace vecmat;

template <class Texts>
std::wstring vecmat::mode(const Texts& x, int n, matrix* weights)
{
    using Text = typename Texts::Text;
    WeightedCategories<Text> list(WeightedCategories<Text>::unlimited);
    forEachText(0, n, list.table(), columnOf(x, 0), [&](int i, const Text& text) {
        if (!text.text().empty())
            list.add(text, linear(weights).get(i));
    });
    if (list.size() == 0)
        return {};
    return std::wstring(wideText(list.text(heaviest(list.size(), [&list](int place) { return list.weight(place); }))));
}

template std::wstring vecmat::mode(const CallerTexts&, int, matrix*);

std::wstring V_Mode(Smatrix* x, int n, matrix* weights)
{
    return mode(TableTexts(x), n, weights);
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
