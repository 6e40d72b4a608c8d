#include "categories.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/caller_text.h"
#include "../frame/detail/text_table.h"
#include "detail/category_lists.h"
#include "detail/category_order.h"
#include "detail/text_calls.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

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

    template <class List>
    void storeList(int variable, const List& list) const
    {
        for (int place = 0; place < list.size(); ++place) {
            cells(categories).set(variable, place, wideText(list.text(place)));
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

template <class Texts, class List>
void collect(const Texts& table, int nRows, int variable, matrix* weights, List& list)
{
    const auto weight = linear(weights);
    int i = 0;
    while (i < nRows && table.at(i, variable).empty())
        ++i;
    // Without data the search has run one place past the column, and the cell there is its category.
    if (i >= nRows) {
        list.add(table.at(i, variable), weight.get(i));
        return;
    }
    forEachText(i, nRows, list.table(), columnOf(table, variable), [&](int row, const typename Texts::Text& category) {
        if (!category.text().empty())
            list.add(category, weight.get(row));
    });
}

/// Lists at most `places` categories of each variable. `countOf(variable, found)` gives the count used for the mode and
/// the total.
template <class Texts, class CountOf>
void summarize(const Texts& table, int nRows, int nCols, int places, matrix* weights, const Summary& result, int* total,
               CountOf countOf)
{
    result.prepare(nCols, places);
    WeightedCategories<typename Texts::Text> list(places);
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

std::wstring ownText(std::wstring_view text)
{
    return std::wstring(text);
}
wchar_t* ownText(const CallerText::Characters& text)
{
    return text.bstr().cell();
}

/// `Own` is what a mode is kept as: its column may change before it is used.
template <class Own, class Texts>
std::vector<Own> modes(const Texts& table, int nRows, int nCols, matrix* weights)
{
    std::vector<Own> found(countOf(nCols));
    if (nRows < 1) // a list without places
        return found;
    WeightedCategories<typename Texts::Text> list(nRows);
    for (int j = 0; j < nCols; ++j) {
        list.clear();
        collect(table, nRows, j, weights, list);
        const int mode = heaviest(list.size(), [&list](int place) { return list.weight(place); });
        found[static_cast<std::size_t>(j)] = ownText(list.text(mode));
    }
    return found;
}

void sortLists(const Summary& result, int nCols, matrixInt* nCats)
{
    for (int j = 0; j < nCols; ++j)
        sortCategories(result.categories, result.catWeights, j, linear(nCats).get(j));
}

} // namespace

template <class Texts>
void vecmat::infoQuali(const Texts& table, int nRows, int nCols, Smatrix*& modes, matrix*& modeWeights,
                       matrixInt*& nCats, Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total,
                       short sortCats)
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

std::vector<std::wstring> vecmat::modesOfColumns(const TableTexts& table, int nRows, int nCols, matrix* weights)
{
    return modes<std::wstring>(table, nRows, nCols, weights);
}

std::vector<wchar_t*> vecmat::modesOfColumns(const CallerTexts& table, int nRows, int nCols, matrix* weights)
{
    return modes<wchar_t*>(table, nRows, nCols, weights);
}

template <class Texts>
void vecmat::infoQuali2(const Texts& table, int nRows, int nCols, int maxCats, matrixInt* nCats, Smatrix*& modes,
                        matrix*& modeWeights, Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total,
                        short sortCats)
{
    const Summary result{modes, modeWeights, categories, catWeights};
    summarize(table, nRows, nCols, maxCats, weights, result, total,
              [&](int variable, int /*found*/) { return linear(nCats).get(variable); });
    if (sortCats != 0)
        sortLists(result, nCols, nCats);
}

template <class Texts>
void vecmat::infoQualiValid(const Texts& table, int nRows, int nCols, int maxCats, matrixInt* nCats,
                            const Texts& categories, matrix*& catWeights, short* invalid, matrix* weights)
{
    using Text = typename Texts::Text;
    matrix::matCheck(catWeights, nCols, maxCats, 0.0);
    *invalid = 0;
    const auto sums = cells(catWeights);
    for (int j = 0; j < nCols; ++j) {
        const TextPlaces<Text> known = placesOf(categories, j, linear(nCats).get(j), Repeated::lastCounts);
        forEachText(0, nRows, known.table(), columnOf(table, j), [&](int i, const Text& text) {
            if (text.text().empty())
                return true;
            const int place = known.find(text);
            if (place == TextPlaces<Text>::none)
                *invalid = -1;
            else
                sums.set(j, place, sums.get(j, place) + linear(weights).get(i));
            return *invalid == 0;
        });
        if (*invalid != 0)
            return;
    }
}

template <class Texts>
int vecmat::getMaxCat(const Texts& table, int nRows, int nCols, matrixInt* counts)
{
    int largest = 0;
    for (int j = 0; j < nCols; ++j) {
        const int count = countDistinct<typename Texts::Text>(nRows, columnOf(table, j));
        linear(counts).set(j, count);
        largest = std::max(largest, count);
    }
    return largest;
}

template <class Texts>
bool vecmat::labelsRepeat(const Texts& labels, int nRows, int nCols, const int* counts)
{
    const int longest = nRows < 1 ? 0 : *std::max_element(counts, counts + nRows);
    // The places beyond the table are empty, so the second already repeats the first.
    const int visited = longest < 1 ? 0 : std::min(longest, std::max(nCols, 0) + 2);

    // Place by place, so that a repeated label is found after its first place, or in another row at the same place.
    TextPlaces<typename Texts::Text> places;
    for (int place = 0; place < visited; ++place) {
        for (int i = 0; i < nRows; ++i) {
            if (place >= counts[i])
                continue;
            const typename Texts::Text label = labels.at(i, place);
            places.add(label, place, Repeated::firstCounts);
            if (places.find(label) < place)
                return true;
        }
    }
    return false;
}

template void vecmat::infoQuali(const CallerTexts&, int, int, Smatrix*&, matrix*&, matrixInt*&, Smatrix*&, matrix*&,
                                matrix*, int*, short);
template void vecmat::infoQuali2(const CallerTexts&, int, int, int, matrixInt*, Smatrix*&, matrix*&, Smatrix*&,
                                 matrix*&, matrix*, int*, short);
template void vecmat::infoQualiValid(const CallerTexts&, int, int, int, matrixInt*, const CallerTexts&, matrix*&,
                                     short*, matrix*);
template int vecmat::getMaxCat(const CallerTexts&, int, int, matrixInt*);
template bool vecmat::labelsRepeat(const CallerTexts&, int, int, const int*);

void M_InfoQuali(Smatrix* table, int nRows, int nCols, Smatrix*& modes, matrix*& modeWeights, matrixInt*& nCats,
                 Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total, short sortCats)
{
    infoQuali(TableTexts(table), nRows, nCols, modes, modeWeights, nCats, categories, catWeights, weights, total,
              sortCats);
}

void M_InfoQuali2(Smatrix* table, int nRows, int nCols, int maxCats, matrixInt* nCats, Smatrix*& modes,
                  matrix*& modeWeights, Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total,
                  short sortCats)
{
    infoQuali2(TableTexts(table), nRows, nCols, maxCats, nCats, modes, modeWeights, categories, catWeights, weights,
               total, sortCats);
}

void M_InfoQualiValid(Smatrix* table, int nRows, int nCols, int maxCats, matrixInt* nCats, Smatrix* categories,
                      matrix*& catWeights, short* invalid, matrix* weights)
{
    infoQualiValid(TableTexts(table), nRows, nCols, maxCats, nCats, TableTexts(categories), catWeights, invalid,
                   weights);
}

int GetMaxCat(Smatrix* table, int nRows, int nCols, matrixInt* counts)
{
    return getMaxCat(TableTexts(table), nRows, nCols, counts);
}
