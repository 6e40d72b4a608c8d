#include "category_order.h"

#include "../../access/cells.h"
#include "../../base/detail/companions.h"
#include "../../elementary/detail/texts.h"
#include "category_lists.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace vecmat {

namespace {

float singlePrecisionValue(const std::wstring& text)
{
    return static_cast<float>(_wtof(text.c_str()));
}

/// A value for each text, or nothing if one of them is not a number.
std::optional<std::vector<float>> numericKeys(const std::vector<std::wstring>& texts)
{
    std::vector<float> values;
    values.reserve(texts.size());
    for (const std::wstring& text : texts) {
        values.push_back(singlePrecisionValue(text));
        // 0 becomes 01, while a word still starts with no digit.
        if (values.back() == 0.0f && singlePrecisionValue(text + L"1") == 0.0f)
            return std::nullopt;
    }
    return values;
}

/// A NaN, should the companion ever parse one, is never the smaller of two: it is not chosen and stays in place.
bool isOrdered(float key)
{
    return key == key;
}
bool isOrdered(const std::wstring&)
{
    return true;
}

/// The exchanges of a selection sort over places of which the first `held` lie inside the table. The remaining ones are
/// kept in order, so that the smallest is found without the scan of a plain selection sort.
template <class Key, class Exchange>
void sortBySelection(std::vector<Key> keys, int held, Exchange exchange)
{
    const auto keyOf = [&keys](int place) -> Key& { return keys[static_cast<std::size_t>(place)]; };
    const int count = static_cast<int>(keys.size());

    std::set<std::pair<Key, int>> rest;
    for (int place = 0; place < count; ++place)
        if (isOrdered(keyOf(place)))
            rest.emplace(keyOf(place), place);

    for (int place = 0; place < held && place < count; ++place) {
        if (!isOrdered(keyOf(place)))
            continue;
        const int smallest = rest.begin()->second;
        rest.erase({keyOf(place), place});
        if (smallest == place)
            continue;
        exchange(place, smallest);
        if (smallest < held) { // a place beyond the table is not written and reads as before
            rest.erase(rest.begin());
            keyOf(smallest) = keyOf(place);
            rest.emplace(keyOf(smallest), smallest);
        }
    }
}

} // namespace

void sortCategories(Smatrix* categories, matrix* catWeights, int variable, int count)
{
    const auto text = cells(categories);
    const auto weight = cells(catWeights);
    const int visited = placesToVisit(TableTexts(categories), count);

    std::vector<std::wstring> texts;
    texts.reserve(static_cast<std::size_t>(visited));
    for (int place = 0; place < visited; ++place)
        texts.push_back(text.get(variable, place));

    const auto exchange = [&](int left, int right) {
        std::wstring leftText = text.get(variable, left);
        text.set(variable, left, text.get(variable, right));
        text.set(variable, right, std::move(leftText));
        const double leftWeight = weight.get(variable, left);
        weight.set(variable, left, weight.get(variable, right));
        weight.set(variable, right, leftWeight);
    };
    if (auto values = numericKeys(texts))
        sortBySelection(std::move(*values), categories->nCols, exchange);
    else
        sortBySelection(std::move(texts), categories->nCols, exchange);
}

} // namespace vecmat
