#include "sort.h"

#include "../access/cells.h"
#include "../base/detail/outgoing_texts.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "../frame/detail/in_place.h"
#include "../frame/detail/outgoing_columns.h"
#include "detail/borrowed_rows.h"
#include "detail/column_moves.h"
#include "detail/digit_passes.h"
#include "detail/sort_by_key.h"
#include "detail/stable_order.h"

#include <cstddef>
#include <type_traits>

namespace {

using namespace vecmat;

/// Macro callers may leave a count of columns (of rows, when sorting columns) at 0 to mean one.
constexpr int atLeastOne(int count)
{
    return count == 0 ? 1 : count;
}

/// A caller's array of string references, n by any number of columns: the references move, never the text.
class References
{
public:
    using Value = wchar_t*;

    References(wchar_t** slots, int n) : slots_(slots), n_(n) {}

    wchar_t* get(int i, int j) const { return slots_[position(i, j)]; }
    void set(int i, int j, wchar_t* reference) const { slots_[position(i, j)] = reference; }

private:
    std::ptrdiff_t position(int i, int j) const { return static_cast<std::ptrdiff_t>(n_) * j + i; }

    wchar_t** slots_;
    int n_;
};

/// Writes the contents of a table to the caller's array.
template <class Element>
constexpr bool isNumber = std::is_same_v<Element, double> || std::is_same_v<Element, int>;

/// The numbers of one row sort that every flat form passes on, with the counts that macro callers omit.
struct RowSort
{
    int nRows;
    int nCols;
    int first;
    int last;
    int nCompanionCols;
    short descending;
    short writeKeys;

    RowSort(int rows, int cols, int from, int to, int companionCols, short isDescending, short keysWritten)
        : nRows(rows), nCols(atLeastOne(cols)), first(from), last(to), nCompanionCols(atLeastOne(companionCols)),
          descending(isDescending), writeKeys(keysWritten)
    {
    }

    /// Sorts data already in its table; the key and the companion are copied in and written back once `beforeWriting`,
    /// which may fail, has run.
    template <class Data, class Key, class Companion, class BeforeWriting>
    int run(Data&& data, Key* key, Companion* companion, BeforeWriting beforeWriting) const
    {
        auto keys = copied(key, nRows, 1);
        auto companions = copied(companion, nRows, nCompanionCols);
        SortQ(data, nRows, nCols, first, last, keys.reference(), companions.reference(), nCompanionCols, descending,
              writeKeys);
        beforeWriting();
        handBack(keys, key);
        handBack(companions, companion);
        return 0;
    }

    /// The same for data in one flat array. Number arrays that don't overlap are sorted in place; others, and any that
    /// need conversion, are copied in and written back too.
    template <class Element, class Key, class Companion>
    int runFlat(Element* data, Key* key, Companion* companion) const
    {
        if constexpr (isNumber<Element>) {
            const CallerArray keys{key, nRows, 1};
            const CallerArray companions{companion, nRows, nCompanionCols};
            const CallerArray table{data, nRows, nCols};
            return onViewsOrCopies<Copies::handedBack>(
                areApart(keys, companions, table),
                [this](auto*& k, auto*& c, auto*& x) {
                    return SortQ(x, nRows, nCols, first, last, k, c, nCompanionCols, descending, writeKeys);
                },
                keys, companions, table);
        } else {
            if constexpr (std::is_same_v<Element, wchar_t*>) {
                auto table = borrowedCopy(data, nRows, nCols);
                OutgoingTexts texts;
                run(table.reference(), key, companion, [&] { addTexts(texts, table, data); });
                texts.store();
            } else {
                auto table = copied(data, nRows, nCols);
                run(table.reference(), key, companion, [] {});
                handBack(table, data);
            }
            return 0;
        }
    }
};

/// The keys are sorted in a private copy. Numbers are exchanged in place.
int sortByIndicator(double* data, int n, int nCols, double* key)
{
    return SortDataBy01(View(data, n, atLeastOne(nCols)).reference(), n, atLeastOne(nCols),
                        copied(key, n, 1).reference());
}

int sortByIndicator(short* data, int n, int nCols, double* key)
{
    auto table = copied(data, n, atLeastOne(nCols));
    SortDataBy01(table.reference(), n, atLeastOne(nCols), copied(key, n, 1).reference());
    handBack(table, data);
    return 0;
}

} // namespace

int VB_SortQVectorDbl(double* x, int n, int first, int last, short descending)
{
    return SortQVector(x, n, first, last, descending);
}

int VB_SortQVectorLng(int* x, int n, int first, int last, short descending)
{
    return SortQVector(x, n, first, last, descending);
}

int VB_SortQVectorStr(wchar_t** x, int n, int first, int last, short descending)
{
    const auto vector = borrowedCopy(x, n, 1);
    SortQVector(static_cast<BorrowedTexts*>(vector), first, last, descending);
    handBack(vector, x);
    return 0;
}

int VB_SortQMatrixCol(double* table, int nRows, int nCols, int col, int first, int last, short descending)
{
    return SortQMatrixCol(View(table, nRows, nCols).reference(), nRows, nCols, col, first, last, descending);
}

int VB_SortQMatrixColStr(wchar_t** table, int nRows, int nCols, int col, int first, int last, short descending)
{
    auto copy = borrowedCopy(table, nRows, nCols);
    SortQMatrixCol(copy.reference(), nRows, nCols, col, first, last, descending);
    handBack(copy, table);
    return 0;
}

int VB_SortMatrixSeqQDbl(double* table, int nRows, int nCols, short lastToFirst)
{
    auto copy = copied(table, nRows, nCols);
    SortMatrixSeqQ(copy.reference(), nRows, nCols, lastToFirst);
    handBack(copy, table);
    return 0;
}

int VB_SortMatrixSeqQLng(int* table, int nRows, int nCols, short lastToFirst)
{
    auto copy = copied(table, nRows, nCols);
    SortMatrixSeqQ(copy.reference(), nRows, nCols, lastToFirst);
    handBack(copy, table);
    return 0;
}

int VB_SortMatrixSeqQP1toP2Dbl(double* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst)
{
    return SortMatrixSeqQP1toP2(View(table, nRows, nCols), nRows, nCols, firstCol, lastCol, lastToFirst);
}

int VB_SortMatrixSeqQP1toP2Lng(int* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst)
{
    return SortMatrixSeqQP1toP2(View(table, nRows, nCols), nRows, nCols, firstCol, lastCol, lastToFirst);
}

int VB_SortQDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                int nCompanionCols, short descending, short writeKeys)
{
    return RowSort(nRows, nCols, first, last, nCompanionCols, descending, writeKeys).runFlat(data, key, companion);
}

int VB_SortQDbl2(double* data, int nRows, int nCols, int first, int last, int* key, double* companion,
                 int nCompanionCols, short descending, short writeKeys)
{
    return RowSort(nRows, nCols, first, last, nCompanionCols, descending, writeKeys).runFlat(data, key, companion);
}

int VB_SortQLng(int* data, int nRows, int nCols, int first, int last, int* key, int* companion, int nCompanionCols,
                short descending, short writeKeys)
{
    return RowSort(nRows, nCols, first, last, nCompanionCols, descending, writeKeys).runFlat(data, key, companion);
}

int VB_SortQBool(short* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                 int nCompanionCols, short descending, short writeKeys)
{
    return RowSort(nRows, nCols, first, last, nCompanionCols, descending, writeKeys).runFlat(data, key, companion);
}

int VB_SortQStr(wchar_t** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                int nCompanionCols, short descending, short writeKeys)
{
    return RowSort(nRows, nCols, first, last, nCompanionCols, descending, writeKeys).runFlat(data, key, companion);
}

int VB_SortQDblSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                   int nCompanionCols, short descending, short writeKeys)
{
    const RowSort sort(nRows, nCols, first, last, nCompanionCols, descending, writeKeys);
    const auto tables = columns(data, sort.nCols, nRows);
    return sort.run(static_cast<matrix**>(tables), key, companion, [] {});
}

int VB_SortQStrSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                   int nCompanionCols, short descending, short writeKeys)
{
    const RowSort sort(nRows, nCols, first, last, nCompanionCols, descending, writeKeys);
    const auto tables = borrowedColumns(data, sort.nCols, nRows);
    OutgoingTexts texts;
    sort.run(static_cast<BorrowedTexts**>(tables), key, companion, [&] { addTexts(texts, tables, sort.nCols, data); });
    texts.store();
    return 0;
}

int VB_SortQByColDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                     int nCompanionRows, short descending, short writeKeys)
{
    const int height = atLeastOne(nRows);
    const int companionHeight = atLeastOne(nCompanionRows);
    auto table = copied(data, height, nCols);
    auto keys = copied(key, nCols, 1);
    auto companions = copied(companion, companionHeight, nCols);
    SortQByCol(table.reference(), height, nCols, first, last, keys.reference(), companions.reference(), companionHeight,
               descending, writeKeys);
    handBack(table, data);
    handBack(keys, key);
    handBack(companions, companion);
    return 0;
}

int VB_SortDataBy01(double* data, int n, int nCols, double* key)
{
    return sortByIndicator(data, n, nCols, key);
}

int VB_SortDataBy01Bool(short* data, int n, int nCols, double* key)
{
    return sortByIndicator(data, n, nCols, key);
}

int VB_SortDataBy01SPV(SAFEARRAY** data, int n, int nCols, double* key)
{
    const auto tables = columns(data, atLeastOne(nCols), n);
    return SortDataBy01(static_cast<matrix**>(tables), n, atLeastOne(nCols), copied(key, n, 1).reference());
}

int VB_SortDataBy01Str(wchar_t** data, int n, int nCols, double* key)
{
    sortByKey({1, n}, Direction::ascending, PlainVector<matrix>(key), SortedKeys::discarded,
              Following{References(data, n), atLeastOne(nCols)});
    return 0;
}
