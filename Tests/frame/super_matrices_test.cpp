// Arrays of columns as they come from a caller, and stacks of equal tables.
#include "frame/super_matrices.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsNull;
using testing::NotNull;

constexpr int lowestInt = std::numeric_limits<int>::min();

/// The row counts of an array of tables; -1 for a null.
template <class Table>
std::vector<int> rowCounts(Table** tables, int nCols)
{
    std::vector<int> counts;
    for (int j = 0; j < nCols; ++j)
        counts.push_back(tables[j] != nullptr ? tables[j]->nRows : -1);
    return counts;
}

// ---- layout ---------------------------------------------------------------------------------------------------------

TEST(ArrayLayout, IsThatOfTheAutomationArrayOnThisWordSize)
{
    static_assert(offsetof(SAFEARRAY, pvData) == (sizeof(void*) == 8 ? 16 : 12));
    static_assert(offsetof(SAFEARRAYColumn, numbers) == 0);
    static_assert(offsetof(SAFEARRAYColumn, strings) == sizeof(void*));
    static_assert(sizeof(SAFEARRAYColumn) == 2 * sizeof(void*));
}

// ---- loading numbers ------------------------------------------------------------------------------------------------

TEST(LoadColumns, AreViewsOfTheCallersNumbers)
{
    ArrayOfColumns a = numberColumns(2, 2, {1, 2, M, 4});
    matrix** const tables = LoadSAFEARRAY(a, 2, 2, 1);
    EXPECT_THAT(rowCounts(tables, 2), ElementsAre(2, 2));
    EXPECT_EQ(tables[1]->nCols, 1);
    EXPECT_EQ(tables[1]->ownsX, 0);
    EXPECT_THAT(cellsOf(tables[1]), SameBits({M, 4}));
    tables[1]->vbset(1, 1, 9); // seen with no further call
    EXPECT_THAT(a.numbers(), SameBits({1, 2, 9, 4}));
    DeleteSAFEARRAY(tables, 2);
    EXPECT_THAT(a.numbers(), SameBits({1, 2, 9, 4}));
}

TEST(LoadColumns, TheLowestRowCountStaysWhereItIs)
{
    ArrayOfColumns a = numberColumns(1, 3, {1, 2, 3});
    matrix** const tables = LoadSAFEARRAY(a, 3, lowestInt, 0);
    for (int j = 0; j < 3; ++j)
        EXPECT_EQ(tables[j]->nElems, 0u) << j;
    DeleteSAFEARRAY(tables, 3);
}

TEST(LoadColumns, WidthZeroLowersTheRows)
{
    ArrayOfColumns a(std::vector<std::vector<double>>{{1, 2, 3}, {4, 5}, {6}});
    matrix** const tables = LoadSAFEARRAY(a, 3, 3, 0);
    EXPECT_THAT(rowCounts(tables, 3), ElementsAre(3, 2, 1));
    EXPECT_EQ(tables[2]->nCols, 1);
    DeleteSAFEARRAY(tables, 3);
}

TEST(LoadColumns, NullColumnKeepsTheRowsOfThoseAfterIt)
{
    ArrayOfColumns a(3);
    a.setNumbers(0, {1, 2, 3});
    a.setNumbers(2, {4, 5});
    matrix** tables = LoadSAFEARRAY(a, 3, 3, 0);
    EXPECT_THAT(rowCounts(tables, 3), ElementsAre(3, -1, 2));
    DeleteSAFEARRAY(tables, 3);
    tables = LoadSAFEARRAY(a, 3, 2, 1);
    EXPECT_THAT(rowCounts(tables, 3), ElementsAre(2, -1, 2));
    DeleteSAFEARRAY(tables, 3);
}

TEST(LoadColumns, GreaterWidthMakesWiderTables)
{
    ArrayOfColumns a(std::vector<std::vector<double>>{{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}});
    matrix** const tables = LoadSAFEARRAY(a, 2, 2, 3);
    EXPECT_THAT(rowCounts(tables, 2), ElementsAre(2, 2));
    EXPECT_EQ(tables[0]->nCols, 3);
    EXPECT_THAT(tables[1]->vbget(2, 3), SameBits(12));
    DeleteSAFEARRAY(tables, 2);
}

TEST(LoadColumns, RowsBelowZeroLoadEmptyColumns)
{
    ArrayOfColumns a(std::vector<std::vector<double>>{{1}, {2}, {3}});
    matrix** const tables = LoadSAFEARRAY(a, 3, 1, 0); // 1, 0, -1 rows
    EXPECT_EQ(tables[0]->nElems, 1u);
    EXPECT_EQ(tables[1]->nElems, 0u);
    EXPECT_EQ(tables[2]->nElems, 0u);
    tables[2]->vbset(1, 1, 9);
    DeleteSAFEARRAY(tables, 3);
    EXPECT_TRUE(a.untouched());
}

TEST(LoadColumns, NullArrayGivesNullPointers)
{
    SAFEARRAY* none = nullptr;
    matrix** const tables = LoadSAFEARRAY(&none, 3, 3, 1);
    ASSERT_THAT(tables, NotNull());
    EXPECT_THAT(std::vector<matrix*>(tables, tables + 3), Each(IsNull()));
    DeleteSAFEARRAY(tables, 3);
    Smatrix** const strings = LoadSAFEARRAYStr(&none, 2, 3, 1);
    ASSERT_THAT(strings, NotNull());
    EXPECT_THAT(std::vector<Smatrix*>(strings, strings + 2), Each(IsNull()));
    DeleteSAFEARRAYStr(strings, 2);
}

TEST(LoadColumns, NoColumnsGiveAnArrayAllTheSame)
{
    ArrayOfColumns a = numberColumns(1, 1, {1});
    for (const int nCols : {0, -1, lowestInt}) {
        matrix** const tables = LoadSAFEARRAY(a, nCols, 1, 1);
        EXPECT_THAT(tables, NotNull());
        DeleteSAFEARRAY(tables, nCols);
        Smatrix** const strings = LoadSAFEARRAYStr(a, nCols, 1, 1);
        EXPECT_THAT(strings, NotNull());
        DeleteSAFEARRAYStr(strings, nCols);
    }
}

TEST(LoadColumns, NumbersAndStringsAreReadFromTheirOwnPointer)
{
    ArrayOfColumns a(2);
    a.setNumbers(0, {1, 2});
    a.setStrings(1, {L"a", L"b"});
    matrix** const tables = LoadSAFEARRAY(a, 2, 2, 1);
    EXPECT_THAT(rowCounts(tables, 2), ElementsAre(2, -1));
    DeleteSAFEARRAY(tables, 2);
    Smatrix** const strings = LoadSAFEARRAYStr(a, 2, 2, 1);
    EXPECT_THAT(rowCounts(strings, 2), ElementsAre(-1, 2));
    DeleteSAFEARRAYStr(strings, 2);
}

// ---- loading and saving strings -------------------------------------------------------------------------------------

TEST(LoadStringColumns, AreCopiesThatMustBeSaved)
{
    ArrayOfColumns a = stringColumns(2, 2, {L"a", L"b", L"c", L""});
    Smatrix** const tables = LoadSAFEARRAYStr(a, 2, 2, 1);
    EXPECT_THAT(rowCounts(tables, 2), ElementsAre(2, 2));
    EXPECT_EQ(tables[0]->nCols, 1);
    tables[1]->vbset(1, 1, L"changed");
    EXPECT_THAT(a.strings(1), ElementsAre(L"c", L""));
    SaveSAFEARRAY(tables, 2, 12345, a);
    EXPECT_THAT(a.strings(0), ElementsAre(L"a", L"b"));
    EXPECT_THAT(a.strings(1), ElementsAre(L"changed", L""));
    EXPECT_EQ(a.stringArray(0).countNew(), 2u) << "every cell is a new string, changed or not";
    EXPECT_EQ(a.stringArray(1).countNew(), 2u);
    DeleteSAFEARRAYStr(tables, 2);
    EXPECT_THAT(a.strings(1), ElementsAre(L"changed", L""));
}

TEST(LoadStringColumns, WidthOnlyDecidesTheLowering)
{
    ArrayOfColumns a(3);
    a.setStrings(0, {L"a", L"b", L"c"});
    a.setStrings(2, {L"d", L"e"});
    Smatrix** tables = LoadSAFEARRAYStr(a, 3, 3, 0);
    EXPECT_THAT(rowCounts(tables, 3), ElementsAre(3, -1, 2));
    DeleteSAFEARRAYStr(tables, 3);
    tables = LoadSAFEARRAYStr(a, 3, 2, 7);
    EXPECT_THAT(rowCounts(tables, 3), ElementsAre(2, -1, 2));
    EXPECT_EQ(tables[0]->nCols, 1) << "unlike a table of numbers, it has no width";
    DeleteSAFEARRAYStr(tables, 3);
    ArrayOfColumns falling(std::vector<std::vector<std::wstring>>{{L"a"}, {L"b"}, {L"c"}});
    tables = LoadSAFEARRAYStr(falling, 3, 1, 0);
    EXPECT_THAT(cellsOf(tables[0]), ElementsAre(L"a"));
    EXPECT_EQ(tables[1]->nElems, 0u);
    EXPECT_EQ(tables[2]->nElems, 0u);
    DeleteSAFEARRAYStr(tables, 3);
}

TEST(SaveStringColumns, PassesOverNullColumnsAndANullArray)
{
    ArrayOfColumns a(2);
    a.setStrings(1, {L"a"});
    Smatrix** const tables = LoadSAFEARRAYStr(a, 2, 1, 1);
    SaveSAFEARRAY(tables, 2, 0, a);
    EXPECT_EQ(a.stringArray(1).countNew(), 1u);
    SAFEARRAY* none = nullptr;
    SaveSAFEARRAY(tables, 2, 0, &none);
    DeleteSAFEARRAYStr(tables, 2);
}

TEST(DeleteColumns, ReleaseAllButTheCallersNumbers)
{
    ArrayOfColumns a(3);
    a.setNumbers(0, {1, 2});
    a.setStrings(0, {L"a long enough text", L"b"});
    const long before = allocationState().live;
    DeleteSAFEARRAY(LoadSAFEARRAY(a, 3, 2, 1), 3);
    DeleteSAFEARRAYStr(LoadSAFEARRAYStr(a, 3, 2, 1), 3);
    // What remains is at most the buffer that the conversion of strings keeps for the next call.
    const long kept = allocationState().live;
    EXPECT_LE(kept - before, 1);
    DeleteSAFEARRAYStr(LoadSAFEARRAYStr(a, 3, 2, 1), 3);
    EXPECT_EQ(allocationState().live, kept);
    EXPECT_TRUE(a.untouched());
}

// ---- access for native callers --------------------------------------------------------------------------------------

TEST(ArrayAccess, GivesTheDataPointer)
{
    double cells[] = {1};
    SAFEARRAY array{};
    array.cLocks = 3;
    array.pvData = cells;
    void* data = nullptr;
    EXPECT_EQ(MySafeArrayAccessData(&array, &data), 1);
    EXPECT_EQ(data, cells);
    EXPECT_EQ(array.cLocks, 3u) << "no lock is taken";
    data = &array;
    EXPECT_EQ(MySafeArrayAccessData(nullptr, &data), 0);
    EXPECT_EQ(data, &array);
    EXPECT_EQ(MySafeArrayAccessData(&array, nullptr), 0);
    SAFEARRAY* address = &array;
    EXPECT_EQ(ExtractBSTR(&address), cells);
    address = nullptr;
    EXPECT_THAT(ExtractBSTR(&address), IsNull());
}

// ---- stacks ---------------------------------------------------------------------------------------------------------

/// A stack that is deleted at the end.
template <class Table>
struct Stack
{
    explicit Stack(int n) : tables(static_cast<std::size_t>(n), nullptr) {}
    ~Stack() { deletecascade(tables.data(), static_cast<int>(tables.size())); }

    operator Table**() { return tables.data(); }

    std::vector<Table*> tables;
};

TEST(SuperMat, StartsAsZeros)
{
    Stack<matrix> stack(2);
    iniSuperMat(stack, 2, 2, 3);
    for (const matrix* t : stack.tables) {
        EXPECT_EQ(t->nRows, 2);
        EXPECT_EQ(t->nCols, 3);
        EXPECT_THAT(cellsOf(t), SameBits({0, 0, 0, 0, 0, 0}));
    }
}

TEST(SuperMat, NothingIsStoredForNoTables)
{
    matrix* untouched = reinterpret_cast<matrix*>(&untouched);
    for (const int n : {0, -1}) {
        iniSuperMat(&untouched, n, 1, 1);
        SuperMatSetToValue(&untouched, n, 1, 1, 0.0);
        double cell = 5;
        loadSuperMat(&untouched, &cell, n, 1, 1);
        unloadSuperMat(&untouched, &cell, n, 1, 1);
        deletecascade(&untouched, n);
        EXPECT_EQ(cell, 5);
    }
    EXPECT_EQ(untouched, reinterpret_cast<matrix*>(&untouched));
}

TEST(SuperMat, SetToValuePreparesEachTable)
{
    Stack<matrix> stack(3);
    stack.tables[0] = new matrix(3, 2, 7.0); // larger: kept, its head is filled
    stack.tables[1] = new matrix(1, 1, 7.0); // smaller: replaced
    SuperMatSetToValue(stack, 3, 2, 2, M);
    EXPECT_THAT(cellsOf(stack.tables[0]), SameBits({M, M, M, M, 7, 7}));
    EXPECT_THAT(cellsOf(stack.tables[1]), SameBits({M, M, M, M}));
    EXPECT_THAT(cellsOf(stack.tables[2]), SameBits({M, M, M, M}));
}

TEST(SuperMat, LoadsTheInterleavedOrder)
{
    Guarded<double> flat = {1, 2, M, 4};
    Stack<matrix> stack(2);
    loadSuperMat(stack, flat, 2, 2, 1);
    EXPECT_THAT(cellsOf(stack.tables[0]), SameBits({1, M}));
    EXPECT_THAT(cellsOf(stack.tables[1]), SameBits({2, 4}));
    EXPECT_EQ(stack.tables[0]->nCols, 1);
    EXPECT_TRUE(flat.untouched());
}

TEST(SuperMat, TableRunsFastestThenRowThenColumn)
{
    constexpr int n = 2;
    constexpr int rows = 3;
    constexpr int cols = 2;
    std::vector<double> flat(n * rows * cols);
    for (int k = 0; k < n; ++k)
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < cols; ++j)
                flat[static_cast<std::size_t>(k + n * (i + rows * j))] = 100 * k + 10 * i + j;
    Stack<matrix> stack(n);
    loadSuperMat(stack, flat.data(), n, rows, cols);
    for (int k = 0; k < n; ++k)
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < cols; ++j)
                EXPECT_THAT(stack[k]->vbget(i + 1, j + 1), SameBits(100 * k + 10 * i + j));
    Guarded<double> back(flat.size(), 9.0);
    unloadSuperMat(stack, back, n, rows, cols);
    EXPECT_THAT(back.values(), SameBits(flat));
}

TEST(SuperMat, IntsAreWidened)
{
    Guarded<int> flat = {1, lowestInt, 3, -4};
    Stack<matrix> stack(2);
    loadSuperMatLng(stack, flat, 2, 1, 2);
    EXPECT_THAT(cellsOf(stack.tables[0]), SameBits({1, 3}));
    EXPECT_THAT(cellsOf(stack.tables[1]), SameBits({-2147483648.0, -4}));
}

TEST(SuperMat, CellOutsideUnloadsAsMinusOne)
{
    Stack<matrix> stack(2);
    stack.tables[0] = new matrix(2, 1, 5.0);
    stack.tables[1] = new matrix(1, 1, M);
    Guarded<double> flat(4, 9.0);
    unloadSuperMat(stack, flat, 2, 2, 1);
    EXPECT_THAT(flat.values(), SameBits({5, M, 5, -1}));
    Guarded<int> ints(4, 9);
    unloadSuperMatLng(stack, ints, 2, 2, 1);
    EXPECT_THAT(ints.values(), ElementsAre(5, 0, 5, -1));
}

TEST(SuperMat, UnloadsIntsTruncatedAndTheMissingAsZero)
{
    Stack<matrix> stack(1);
    const double below = std::nextafter(M, -std::numeric_limits<double>::infinity());
    stack.tables[0] = new matrix(6, 1, 0.0);
    std::copy_n(std::vector<double>{2.9, -2.9, M, below, 3e9, std::nan("")}.data(), 6, stack.tables[0]->X);
    Guarded<int> flat(6, 9);
    unloadSuperMatLng(stack, flat, 1, 6, 1);
    // Only the exact pattern is missing.
    EXPECT_THAT(flat.values(), ElementsAre(2, -2, 0, lowestInt, lowestInt, lowestInt));
}

TEST(SuperMat, StringsComeAndGoInTheInterleavedOrder)
{
    BstrArray flat({L"a", L"b", L"\u00e9", L"", L"e", L"f"});
    flat.setNull(4);
    Stack<Smatrix> stack(2);
    loadSuperMat(stack, flat.get(), 2, 3, 1);
    EXPECT_EQ(stack.tables[0]->nRows, 3);
    EXPECT_THAT(cellsOf(stack.tables[0]), ElementsAre(L"a", L"\u00e9", L""));
    EXPECT_THAT(cellsOf(stack.tables[1]), ElementsAre(L"b", L"", L"f"));
    BstrArray out(std::size_t{6});
    unloadSuperMat(stack, out.get(), 2, 3, 1);
    EXPECT_EQ(out.countNew(), 6u);
    EXPECT_THAT(out.takeTexts(), ElementsAre(L"a", L"b", L"\u00e9", L"", L"", L"f"));
    EXPECT_EQ(flat.countNew(), 0u);
}

TEST(SuperMat, StringOutsideUnloadsAsEmpty)
{
    Stack<Smatrix> stack(1);
    stack.tables[0] = new Smatrix(1, 1);
    stack.tables[0]->vbset(1, 1, L"a");
    BstrArray out({L"own", L"own"});
    unloadSuperMat(stack, out.get(), 1, 2, 1);
    EXPECT_THAT(out.takeTexts(), ElementsAre(L"a", L""));
}

TEST(SuperMat, CascadePassesOverNulls)
{
    const long before = allocationState().live;
    matrix* numbers[] = {new matrix(1, 1, 0), nullptr, new matrix(2, 2, 0)};
    deletecascade(numbers, 3);
    Smatrix* strings[] = {nullptr, new Smatrix(1, 1)};
    deletecascade(strings, 2);
    EXPECT_EQ(allocationState().live, before);
}

// ---- one column of a flat table -------------------------------------------------------------------------------------

TEST(ProjVecToMat, CopiesAColumnCountedFromOne)
{
    Guarded<double> src = {1, 2, 3, M};
    Guarded<double> dst(2, 9.0);
    ProjVecToMat(src, 2, 2, 2, dst);
    EXPECT_THAT(dst.values(), SameBits({3, M}));
    ProjVecToMat(src, 2, 2, 1, dst);
    EXPECT_THAT(dst.values(), SameBits({1, 2}));
    EXPECT_TRUE(src.untouched());
}

TEST(ProjVecToMat, DoesNothingOutsideTheColumns)
{
    Guarded<double> src = {1, 2, 3, 4};
    Guarded<double> dst(2, 9.0);
    ProjVecToMat(src, 2, 2, 0, dst);
    ProjVecToMat(src, 2, 2, 3, dst);
    ProjVecToMat(src, 2, 2, -1, dst);
    ProjVecToMat(src, 0, 2, 1, dst);
    ProjVecToMat(src, -1, 2, 1, dst);
    ProjVecToMat(src, 2, 0, 1, dst);
    EXPECT_TRUE(dst.untouched());
}

} // namespace
} // namespace vecmat::test
