#include "permutations.h"

#include "../access/cells.h"
#include "../base/detail/checked_cells.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "../sorting/copy_block.h"
#include "../sorting/detail/borrowed_rows.h"
#include "../sorting/sort.h"
#include "detail/borrowed_shuffles.h"
#include "detail/random_series.h"

#include <algorithm>
#include <type_traits>
#include <utility>

using vecmat::cells;
using vecmat::fresh;
using vecmat::linear;
using vecmat::SeedFrame;
using vecmat::TableHandle;
using vecmat::truncated;
using vecmat::zeroBased;

namespace {

constexpr short ascending = 0;

template <class Table>
void fillWithDraws(Table*& t, int rows, int cols, int* seed, short seedFlag, int* seedOut)
{
    using Value = typename vecmat::CellOf<Table>::Value;
    Table::matCheck(t, rows, cols, 0.0);
    const auto cell = cells(t);
    const auto asCell = [](double draw) {
        if constexpr (std::is_same_v<Value, int>)
            return truncated(draw);
        else
            return draw;
    };
    SeedFrame series(seed, seedFlag, seedOut);
    for (int i = 0; i < rows; ++i)
        for (int j = 0; j < cols; ++j)
            cell.set(i, j, asCell(series.draw()));
}

/// One uniform key for each of n items.
TableHandle drawnKeys(int n, int& seed, short seedFlag, int& seedOut)
{
    TableHandle keys;
    M_GenerateRandom01(keys.reference(), n, 1, &seed, seedFlag, &seedOut);
    return keys;
}

/// Every permutation: the sort of whole rows by their keys. The keys are then no longer needed, so no caller uses them
/// in sorted order.
template <class Table>
void sortByDraws(Table* data, int n, int p, TableHandle keys)
{
    constexpr short keysStay = 0;
    matrix* noCompanion = nullptr;
    SortQ(data, n, p, 1, n, keys.reference(), noCompanion, 0, ascending, keysStay);
}

template <class Table>
void shuffleRows(Table* data, int n, int p, int& seed, short seedFlag, int& seedOut)
{
    sortByDraws(data, n, p, drawnKeys(n, seed, seedFlag, seedOut));
}

template <class Table>
void dealNumbers(int n, Table* out, int& seed, short seedFlag, int& seedOut)
{
    using Value = typename vecmat::CellOf<Table>::Value;
    TableHandle keys = drawnKeys(n, seed, seedFlag, seedOut);
    const auto number = linear(out);
    for (int i = 0; i < n; ++i)
        number.set(i, static_cast<Value>(i) + 1);
    sortByDraws(out, n, 1, std::move(keys));
}

} // namespace

double GenerateRandom01(int* seed, short seedFlag, int* seedOut)
{
    SeedFrame series(seed, seedFlag, seedOut);
    return series.draw();
}

void M_GenerateRandom01(matrix*& t, int rows, int cols, int* seed, short seedFlag, int* seedOut)
{
    fillWithDraws(t, rows, cols, seed, seedFlag, seedOut);
}

void M_GenerateRandom01(matrixInt*& t, int rows, int cols, int* seed, short seedFlag, int* seedOut)
{
    fillWithDraws(t, rows, cols, seed, seedFlag, seedOut);
}

void Random1toN(int n, matrixInt* out, int& seed, short seedFlag, int& seedOut)
{
    dealNumbers(n, out, seed, seedFlag, seedOut);
}

void Random1toN(int n, matrix* out, int& seed, short seedFlag, int& seedOut)
{
    dealNumbers(n, out, seed, seedFlag, seedOut);
}

void V_Shuffle(matrix* v, int n, int& seed, short seedFlag, int& seedOut)
{
    shuffleRows(v, n, 1, seed, seedFlag, seedOut);
}

void V_Shuffle(matrixInt* v, int n, int& seed, short seedFlag, int& seedOut)
{
    shuffleRows(v, n, 1, seed, seedFlag, seedOut);
}

void M_Shuffle(matrix* X, int n, int p, matrix* Z, int& seed, short seedFlag, int& seedOut)
{
    X->copyMatTo(Z);
    shuffleRows(Z, n, p, seed, seedFlag, seedOut);
}

void M_Shuffle(Smatrix* X, int n, int p, Smatrix* Z, int& seed, short seedFlag, int& seedOut)
{
    M_CopyBlock(X, 1, n, 1, p, Z);
    shuffleRows(Z, n, p, seed, seedFlag, seedOut);
}

void M_Shuffle2(matrix* X, int n, int p, int& seed, short seedFlag, int& seedOut)
{
    shuffleRows(X, n, p, seed, seedFlag, seedOut);
}

void M_Shuffle2(Smatrix* X, int n, int p, int& seed, short seedFlag, int& seedOut)
{
    shuffleRows(X, n, p, seed, seedFlag, seedOut);
}

void GenerateRandomIndicator(matrix*& out, int n, int k, int* seed, short seedFlag, int* seedOut)
{
    constexpr short keysWritten = -1;
    TableHandle order = fresh(n, 1);
    matrix* noCompanion = nullptr;
    const auto item = linear<matrix>(order);
    const auto mark = linear(out);

    SeedFrame series(seed, seedFlag, seedOut);
    for (int i = 0; i < n; ++i) {
        item.set(i, i + 1.0);
        mark.set(i, series.draw());
    }
    SortQ(order.reference(), n, 1, 1, n, out, noCompanion, 0, ascending, keysWritten);
    for (int i = 0; i < n; ++i)
        mark.set(zeroBased(truncated(item.get(i))), i < k ? 1.0 : 0.0);
}

void GenerateIndicator(matrix*& out, int n, int first, int last)
{
    matrix::matCheck(out, n, 1, 0.0);
    const long long end = std::min<long long>(last, out->nElems);
    for (long long i = std::max(first, 1); i <= end; ++i)
        out->X[i - 1] = 1.0;
}

void vecmat::M_Shuffle(BorrowedTexts* X, int n, int p, BorrowedTexts* Z, int& seed, short seedFlag, int& seedOut)
{
    M_CopyBlock(X, 1, n, 1, p, Z);
    shuffleRows(Z, n, p, seed, seedFlag, seedOut);
}

void vecmat::M_Shuffle2(BorrowedTexts* X, int n, int p, int& seed, short seedFlag, int& seedOut)
{
    shuffleRows(X, n, p, seed, seedFlag, seedOut);
}
