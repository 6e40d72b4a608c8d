#include "recoding.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/missing_value.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/text_table.h"
#include "detail/category_lists.h"
#include "detail/text_calls.h"

#include <cmath>

using namespace vecmat;

namespace {

/// Calls `visit(i, j, place)` for each cell with the place, from 0, of its first match among the categories of its
/// column, or `TextPlaces::none`.
template <class Texts, class Visit>
void forEachPlace(const Texts& table, int nRows, int nCols, const int* nCats, const Texts& categories, Visit visit)
{
    using Text = typename Texts::Text;
    for (int j = 0; j < nCols; ++j) {
        const TextPlaces<Text> places = placesOf(categories, j, nCats[j], Repeated::firstCounts);
        forEachText(0, nRows, places.table(), columnOf(table, j),
                    [&](int i, const Text& text) { visit(i, j, places.find(text)); });
    }
}

double binary(double x)
{
    return std::fabs(x) < negligible ? 0.0 : 1.0;
}

template <class Vector>
void indicate(Vector x, int n, const std::wstring& value, matrix* out)
{
    onBlocks(
        [&value, n](auto text, auto indicator) {
            for (int i = 0; i < n; ++i)
                indicator.set(i, text.get(i) == value ? 1.0 : 0.0);
        },
        block(x, n), block(linear(out), n));
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

template <class Texts>
void vecmat::replaceCatByCodes(const Texts& table, int nRows, int nCols, int* nCats, const Texts& categories,
                               matrix*& out)
{
    forEachPlace(table, nRows, nCols, nCats, categories, [codes = cells(out)](int i, int j, int place) {
        if (place != TextPlaces<typename Texts::Text>::none)
            codes.set(i, j, place + 1.0);
    });
}

template <class Texts>
void vecmat::replaceStrByCodes(const Texts& table, int nRows, int nCols, int* nCats, const Texts& categories,
                               short* mask, int firstCode, matrix*& out)
{
    forEachPlace(table, nRows, nCols, nCats, categories, [=, codes = cells(out)](int i, int j, int place) {
        const bool hasCode = Mask(mask).keeps(i) && place != TextPlaces<typename Texts::Text>::none;
        codes.set(i, j, hasCode ? static_cast<double>(place) + firstCode : missingValue);
    });
}

template void vecmat::replaceCatByCodes(const CallerTexts&, int, int, int*, const CallerTexts&, matrix*&);
template void vecmat::replaceStrByCodes(const CallerTexts&, int, int, int*, const CallerTexts&, short*, int, matrix*&);

void M_ReplaceCatByCodes(Smatrix* table, int nRows, int nCols, int* nCats, Smatrix* categories, matrix*& out)
{
    replaceCatByCodes(TableTexts(table), nRows, nCols, nCats, TableTexts(categories), out);
}

void M_ReplaceStrByCodes(Smatrix* table, int nRows, int nCols, int* nCats, Smatrix* categories, short* mask,
                         int firstCode, matrix*& out)
{
    replaceStrByCodes(TableTexts(table), nRows, nCols, nCats, TableTexts(categories), mask, firstCode, out);
}

void vecmat::recodeToBinary(const CallerTexts& x, int n, const std::wstring& value, matrix* out)
{
    indicate(x, n, value, out);
}

void V_RecodeToBinary(Smatrix* x, int n, std::wstring value, matrix* out)
{
    indicate(linear(x), n, value, out);
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
