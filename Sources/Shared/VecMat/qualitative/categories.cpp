#include "categories.h"

#include "../access/cells.h"
#include "../elementary/detail/text_table.h"
#include "detail/category_lists.h"
#include "detail/category_order.h"

#include <algorithm>
#include <string>
#include <string_view>

using namespace vecmat;

namespace {

/// The results that both summaries share.
struct Summary
{
    Smatrix*& modes;
    matrix*& modeWeights;
    Smatrix*& categories;
    matrix*& catWeights;

    void prepare(int nCols, int places) const
    {
        Smatrix::matCheck(modes, nCols, 1);
        matrix::matCheck(modeWeights, nCols, 1, 0.0);
        Smatrix::matCheck(categories, nCols, places);
        matrix::matCheck(catWeights, nCols, places, 0.0);
    }

    void storeList(int variable, const WeightedCategories& list) const
    {
        for (int place = 0; place < list.size(); ++place) {
            cells(categories).set(variable, place, list.text(place));
            cells(catWeights).set(variable, place, list.weight(place));
        }
    }

    void storeMode(int variable, int count) const
    {
        const auto weight = [&](int place) { return cells(catWeights).get(variable, place); };
        const int mode = heaviest(placesToVisit(catWeights, count), weight);
        linear(modes).set(variable, cells(categories).get(variable, mode));
        linear(modeWeights).set(variable, weight(mode));
    }
};

void collect(Smatrix* table, int nRows, int variable, matrix* weights, WeightedCategories& list)
{
    const auto text = cells(table);
    const auto weight = linear(weights);
    int i = 0;
    while (i < nRows && text.get(i, variable).empty())
        ++i;
    // Without data the search has run one place past the column, and the cell there is its category.
    if (i >= nRows) {
        list.add(text.get(i, variable), weight.get(i));
        return;
    }
    const auto textAt = [=](int row) -> std::wstring_view { return text.get(row, variable); };
    forEachText(i, nRows, list.table(), textAt, [&](int row, const HashedText& category) {
        if (!category.text().empty())
            list.add(category, weight.get(row));
    });
}

/// Lists at most `places` categories of each variable. `countOf(variable, found)` gives the count used for the mode and
/// the total.
template <class CountOf>
void summarize(Smatrix* table, int nRows, int nCols, int places, matrix* weights, const Summary& result, int* total,
               CountOf countOf)
{
    result.prepare(nCols, places);
    WeightedCategories list(places);
    unsigned sum = 0;
    for (int j = 0; j < nCols; ++j) {
        list.clear();
        collect(table, nRows, j, weights, list);
        result.storeList(j, list);
        const int count = countOf(j, list.size());
        result.storeMode(j, count);
        sum += static_cast<unsigned>(count);
    }
    *total = static_cast<int>(sum);
}

void sortLists(const Summary& result, int nCols, matrixInt* nCats)
{
    for (int j = 0; j < nCols; ++j)
        sortCategories(result.categories, result.catWeights, j, linear(nCats).get(j));
}

} // namespace

void M_InfoQuali(Smatrix* table, int nRows, int nCols, Smatrix*& modes, matrix*& modeWeights, matrixInt*& nCats,
                 Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total, short sortCats)
{
    matrixInt::matCheck(nCats, nCols, 1, 0);
    const Summary result{modes, modeWeights, categories, catWeights};
    summarize(table, nRows, nCols, nRows, weights, result, total, [&](int variable, int found) {
        linear(nCats).set(variable, found);
        return found;
    });
    if (sortCats != 0)
        sortLists(result, nCols, nCats);
}

void M_InfoQuali2(Smatrix* table, int nRows, int nCols, int maxCats, matrixInt* nCats, Smatrix*& modes,
                  matrix*& modeWeights, Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total,
                  short sortCats)
{
    const Summary result{modes, modeWeights, categories, catWeights};
    summarize(table, nRows, nCols, maxCats, weights, result, total,
              [&](int variable, int /*found*/) { return linear(nCats).get(variable); });
    if (sortCats != 0)
        sortLists(result, nCols, nCats);
}

void M_InfoQualiValid(Smatrix* table, int nRows, int nCols, int maxCats, matrixInt* nCats, Smatrix* categories,
                      matrix*& catWeights, short* invalid, matrix* weights)
{
    matrix::matCheck(catWeights, nCols, maxCats, 0.0);
    *invalid = 0;
    const auto sums = cells(catWeights);
    for (int j = 0; j < nCols; ++j) {
        const TextPlaces known = placesOf(categories, j, linear(nCats).get(j), Repeated::lastCounts);
        for (int i = 0; i < nRows; ++i) {
            const std::wstring& text = cells(table).get(i, j);
            if (text.empty())
                continue;
            const int place = known.find(text);
            if (place == TextPlaces::none) {
                *invalid = -1;
                return;
            }
            sums.set(j, place, sums.get(j, place) + linear(weights).get(i));
        }
    }
}

int GetMaxCat(Smatrix* table, int nRows, int nCols, matrixInt* counts)
{
    int largest = 0;
    for (int j = 0; j < nCols; ++j) {
        const int count = countDistinct(nRows, [=](int i) -> std::wstring_view { return cells(table).get(i, j); });
        linear(counts).set(j, count);
        largest = std::max(largest, count);
    }
    return largest;
}

bool vecmat::labelsRepeat(Smatrix* labels, int nRows, int nCols, const int* counts)
{
    const int longest = nRows < 1 ? 0 : *std::max_element(counts, counts + nRows);
    // The places beyond the table are empty, so the second already repeats the first.
    const int visited = longest < 1 ? 0 : std::min(longest, std::max(nCols, 0) + 2);

    // Place by place, so that a repeated label is found after its first place, or in another row at the same place.
    TextPlaces places;
    for (int place = 0; place < visited; ++place) {
        for (int i = 0; i < nRows; ++i) {
            if (place >= counts[i])
                continue;
            const std::wstring& label = cells(labels).get(i, place);
            places.add(label, place, Repeated::firstCounts);
            if (places.find(label) < place)
                return true;
        }
    }
    return false;
}
