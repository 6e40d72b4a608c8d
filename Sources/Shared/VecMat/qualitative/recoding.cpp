#include "recoding.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/missing_value.h"
#include "../elementary/detail/text_table.h"
#include "detail/category_lists.h"

#include <cmath>
#include <string_view>

using namespace vecmat;

namespace {

/// Calls `visit(i, j, place)` for each cell with the place, from 0, of its first match among the categories of its
/// column, or `TextPlaces::none`.
template <class Visit>
void forEachPlace(Smatrix* table, int nRows, int nCols, const int* nCats, Smatrix* categories, Visit visit)
{
    for (int j = 0; j < nCols; ++j) {
        const TextPlaces places = placesOf(categories, j, nCats[j], Repeated::firstCounts);
        forEachText(
            0, nRows, places.table(), [=](int i) -> std::wstring_view { return cells(table).get(i, j); },
            [&](int i, const HashedText& text) { visit(i, j, places.find(text)); });
    }
}

double binary(double x)
{
    return std::fabs(x) < negligible ? 0.0 : 1.0;
}

template <class Storage>
void binarizeInPlace(Storage table, int nRows, int nCols)
{
    onBlocks(
        [=](auto x) {
            for (int j = 0; j < nCols; ++j)
                for (int i = 0; i < nRows; ++i)
                    x.set(i, j, binary(x.get(i, j)));
        },
        block(table, nRows, nCols));
}

} // namespace

void M_ReplaceCatByCodes(Smatrix* table, int nRows, int nCols, int* nCats, Smatrix* categories, matrix*& out)
{
    forEachPlace(table, nRows, nCols, nCats, categories, [codes = cells(out)](int i, int j, int place) {
        if (place != TextPlaces::none)
            codes.set(i, j, place + 1.0);
    });
}

void M_ReplaceStrByCodes(Smatrix* table, int nRows, int nCols, int* nCats, Smatrix* categories, short* mask,
                         int firstCode, matrix*& out)
{
    forEachPlace(table, nRows, nCols, nCats, categories, [=, codes = cells(out)](int i, int j, int place) {
        const bool hasCode = Mask(mask).keeps(i) && place != TextPlaces::none;
        codes.set(i, j, hasCode ? static_cast<double>(place) + firstCode : missingValue);
    });
}

void V_RecodeToBinary(Smatrix* x, int n, std::wstring value, matrix* out)
{
    onBlocks(
        [&value, n](auto text, auto indicator) {
            for (int i = 0; i < n; ++i)
                indicator.set(i, text.get(i) == value ? 1.0 : 0.0);
        },
        block(linear(x), n), block(linear(out), n));
}

void M_Binarize(matrix* table, int nRows, int nCols, matrix* out)
{
    onBlocks(
        [=](auto x, auto result) {
            for (int j = 0; j < nCols; ++j)
                for (int i = 0; i < nRows; ++i) {
                    const double cell = x.get(i, j);
                    result.set(i, j, isMissing(cell) ? cell : binary(cell));
                }
        },
        block(cells(table), nRows, nCols), block(cells(out), nRows, nCols));
}

void M_Binarize2(matrix* table, int nRows, int nCols)
{
    binarizeInPlace(cells(table), nRows, nCols);
}

void M_Binarize2SPV(matrix** table, int nRows, int nCols)
{
    binarizeInPlace(cells(table), nRows, nCols);
}
