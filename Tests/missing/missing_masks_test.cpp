#include "missing/missing_masks.h"

#include "missing/special_numbers.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <cmath>

namespace vecmat::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

// ---- rows summed up -------------------------------------------------------------------------------------------------

TEST(SummarizeMissing, FlagsAndCountsRowsThatAnyMaskNames)
{
    Flags a = {-1, 0, 0, 0, 1};
    Flags b = {0, -1, 0, 0, 0};
    Flags c = {0, 0, -1, 0, 2};
    Flags out = {9, 9, 9, 9, -1}; // flags of rows that are not counted stay
    int total = 123;
    VB_SummarizeMissing(5, &total, out, a, b, c);
    EXPECT_THAT(out.values(), ElementsAre(-1, -1, -1, 9, -1));
    EXPECT_EQ(total, 3);
    EXPECT_TRUE(a.untouched() && b.untouched() && c.untouched());
}

TEST(SummarizeMissing, ThirdMaskMayBeNull)
{
    Flags a = {-1, 0, 0};
    Flags b = {-1, 0, -1};
    Flags out = {0, 0, 0};
    int total = -5;
    int* totalPointer = &total;
    short* outPointer = out;
    short* aPointer = a;
    short* bPointer = b;
    short* none = nullptr;
    SummarizeMissing(3, totalPointer, outPointer, aPointer, bPointer, none);
    EXPECT_THAT(out.values(), ElementsAre(-1, 0, -1));
    EXPECT_EQ(total, 2);
}

TEST(SummarizeMissing, CountsARowWhoseFlagWasSetBefore)
{
    Flags a = {-1, 0};
    Flags b = {0, 0};
    Flags out = {-1, -1};
    int total = 7;
    VB_SummarizeMissing(2, &total, out, a, b, nullptr);
    EXPECT_THAT(out.values(), ElementsAre(-1, -1));
    EXPECT_EQ(total, 1);
}

TEST(SummarizeMissing, NoRowsClearTheTotal)
{
    int total = 7;
    VB_SummarizeMissing(0, &total, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(total, 0);
    total = 7;
    VB_SummarizeAllMissing(-1, nullptr, nullptr, &total, nullptr);
    EXPECT_EQ(total, 0);
}

TEST(SummarizeAllMissing, AsksForBothFlags)
{
    Flags a = {-1, -1, 0, 1, -1};
    Flags b = {-1, 0, -1, 1, 1};
    Flags out = {8, 8, -1, 8, 8};
    int total = 123;
    VB_SummarizeAllMissing(5, a, b, &total, out);
    EXPECT_THAT(out.values(), ElementsAre(-1, 8, -1, 8, 8));
    EXPECT_EQ(total, 1);
    EXPECT_TRUE(a.untouched() && b.untouched());
}

// ---- rows that are missing throughout -------------------------------------------------------------------------------

TEST(AllMissingRows, FlagsFilteredRowsThatAreMissingThroughout)
{
    Guarded<double> x({M, M, M, 1, M, -inf, M, /**/ M, 2, M, M, M, M, notANumber}); // 7 by 2
    Flags filter = {-1, -1, 0, -1, 1, -1, -1};
    Flags out = {5, 5, 5, -1, 5, 5, 5};
    VB_M_AllMissingRows(x, 7, 2, filter, out);
    EXPECT_THAT(out.values(), ElementsAre(-1, 5, 5, -1, 5, 5, 5));
    EXPECT_TRUE(x.untouched() && filter.untouched());
}

TEST(AllMissingRows, WithoutColumnsNoRowQualifies)
{
    Flags filter = {-1, -1};
    Flags out = {5, 6};
    Guarded<double> x = {M, M};
    BstrArray texts({L"", L""});
    for (const int cols : {0, -1}) {
        VB_M_AllMissingRows(x, 2, cols, filter, out);
        VB_M_AllMissingRowsStr(texts, 2, cols, filter, out);
    }
    EXPECT_TRUE(out.untouched());
    VB_M_AllMissingRows(x, 0, 2, filter, out);
    EXPECT_TRUE(out.untouched());
}

TEST(AllMissingRows, OfStrings)
{
    BstrArray x({L"", L"", L"a", L"", /**/ L"", L"b", L"", L"z"});
    x.setNull(7);
    Flags filter = {-1, -1, -1, 1};
    Flags out = {5, 5, 5, 5};
    VB_M_AllMissingRowsStr(x, 4, 2, filter, out);
    EXPECT_THAT(out.values(), ElementsAre(-1, 5, 5, 5));
    Flags all = {-1, -1, -1, -1};
    VB_M_AllMissingRowsStr(x, 4, 2, all, out);
    EXPECT_THAT(out.values(), ElementsAre(-1, 5, 5, -1)); // a null pointer is an empty string
    EXPECT_EQ(x.countNew(), 0u);
}

// ---- missing elements of a vector -----------------------------------------------------------------------------------

TEST(GetMissing, VectorOfDoublesWritesEveryFlag)
{
    Guarded<double> x({1, M, -inf, belowMissing, notANumber, 3, 4});
    Flags a = {0, 0, 0, 0, 0, -1, 1};
    Flags out(RandomData(421).shortLeftovers(7));
    VB_V_GetMissingDbl(x, 7, a, out);
    EXPECT_THAT(out.values(), ElementsAre(0, -1, -1, -1, 0, -1, 0));
    EXPECT_TRUE(x.untouched() && a.untouched());
}

TEST(GetMissing, VectorOfStringsLooksAtFlaggedRowsAndClearsNothing)
{
    auto x = stringColumn({L"", L"", L"a", L"a", L""});
    Flags a = {-1, 0, -1, 0, 1};
    Flags out = {5, 5, 5, -1, 5};
    V_GetMissingStr(x, 5, a, out);
    EXPECT_THAT(out.values(), ElementsAre(-1, 5, 5, -1, 5));

    BstrArray texts({L"", L"", L"a", L"a", L""});
    Flags flat = {5, 5, 5, -1, 5};
    VB_V_GetMissingStr(texts, 5, a, flat);
    EXPECT_EQ(flat.values(), out.values());
    EXPECT_EQ(texts.countNew(), 0u);
}

TEST(GetMissing, StringBeyondTheTableReadsEmpty)
{
    Flags a = {-1, -1, 0};
    Flags out = {5, 5, 5};
    V_GetMissingStr(stringColumn({L"a"}), 3, a, out);
    EXPECT_THAT(out.values(), ElementsAre(5, -1, 5));
}

TEST(GetMissing, VectorsWithoutElements)
{
    VB_V_GetMissingDbl(nullptr, 0, nullptr, nullptr);
    VB_V_GetMissingStr(nullptr, 0, nullptr, nullptr);
    Flags out = {5};
    V_GetMissingStr(stringColumn({L""}), -1, out, out);
    EXPECT_TRUE(out.untouched());
}

// ---- missing cells of a table ---------------------------------------------------------------------------------------

/// Runs one case over the table, the columns and both flat forms.
void expectFlags(int rows, int cols, const std::vector<double>& cells, std::vector<short> filter,
                 const std::vector<short>& expected)
{
    RandomData data(422);
    const auto leftovers = data.shortLeftovers(filter.size());
    Flags a(filter);
    Flags ofTable(leftovers);
    M_GetMissing(table(rows, cols, cells), rows, cols, a, ofTable);
    EXPECT_THAT(ofTable.values(), ElementsAreArray(expected));
    Flags ofColumns(leftovers);
    M_GetMissingSPV(TableColumns(rows, cols, cells), rows, cols, a, ofColumns);
    EXPECT_THAT(ofColumns.values(), ElementsAreArray(expected));
    Guarded<double> flat(cells);
    Flags ofFlat(leftovers);
    Cpp_M_GetMissingDbl(flat, rows, cols, a, ofFlat);
    EXPECT_THAT(ofFlat.values(), ElementsAreArray(expected));
    ArrayOfColumns arrays = numberColumns(rows, cols, cells);
    Flags ofArrays(leftovers);
    Cpp_M_GetMissingDblSPV(arrays, rows, cols, a, ofArrays);
    EXPECT_THAT(ofArrays.values(), ElementsAreArray(expected));
    EXPECT_TRUE(a.untouched() && flat.untouched() && arrays.untouched());
}

TEST(GetMissing, LastColumnAloneDecides)
{
    expectFlags(3, 2, {M, M, 1, /**/ 1, M, M}, {0, 0, 0}, {0, -1, -1});
    expectFlags(2, 3, {M, 1, M, 1, 1, 1}, {0, -1}, {0, -1});
    expectFlags(3, 1, {M, 1, 2}, {0, 0, 1}, {-1, 0, 0}); // a flag of 1 is not set
}

TEST(GetMissing, TableUsesTheOrderTest)
{
    expectFlags(5, 1, {-inf, belowMissing, M, notANumber, positiveTwin}, {0, 0, 0, 0, 0}, {-1, -1, -1, 0, 0});
}

TEST(GetMissing, WithoutColumnsNothingIsWritten)
{
    Flags a = {-1, -1};
    Flags out = {5, 6};
    matrix* none[] = {nullptr};
    for (const int cols : {0, -1}) {
        M_GetMissing(column({M, M}), 2, cols, a, out);
        M_GetMissingSPV(none, 2, cols, a, out);
        Cpp_M_GetMissingDbl(nullptr, 2, cols, a, out);
    }
    M_GetMissing(column({M, M}), 0, 1, a, out);
    EXPECT_TRUE(out.untouched());
}

TEST(GetMissing, CellBeyondTheTableIsPresent)
{
    Flags a = {0, 0, 0};
    Flags out = {5, 6, 7};
    M_GetMissing(column({M, M}), 3, 1, a, out);
    EXPECT_THAT(out.values(), ElementsAre(-1, -1, 0));
    M_GetMissing(column({M, M, M}), 3, 2, a, out);
    EXPECT_THAT(out.values(), ElementsAre(0, 0, 0));
    TableColumns columns({{M, M}});
    M_GetMissingSPV(columns, 3, 1, a, out);
    EXPECT_THAT(out.values(), ElementsAre(-1, -1, 0));
}

TEST(GetMissing, KeepsTheStrideOfALargerTable)
{
    Flags a = {0, 0};
    Flags out = {5, 6};
    M_GetMissing(byRows({{1, M, 1}, {1, 1, 1}, {1, M, 1}}), 2, 2, a, out);
    EXPECT_THAT(out.values(), ElementsAre(-1, 0));
}

TEST(GetMissing, FilterAndResultMayBeOneArray)
{
    Flags flags = {0, -1, 0};
    M_GetMissing(byRows({{M, 1}, {1, 1}, {1, M}}), 3, 2, flags, flags);
    EXPECT_THAT(flags.values(), ElementsAre(0, -1, -1));
}

// ---- indicators -----------------------------------------------------------------------------------------------------

TEST(IdentifyMissing, MarksMissingCellsOnly)
{
    RandomData data(423);
    SCOPED_TRACE(data);
    const auto cells = data.withSpecials(data.normals(24), 0.6);
    const auto leftovers = data.intLeftovers(24);
    std::vector<int> expected = leftovers;
    for (std::size_t k = 0; k < 24; ++k)
        if (cells[k] == M)
            expected[k] = 1;
    ASSERT_NE(expected, leftovers);

    auto ofTable = intTable(6, 4, leftovers);
    M_IdentifyMissingInMat(table(6, 4, cells), 6, 4, ofTable);
    EXPECT_EQ(cellsOf(ofTable), expected);
    auto ofColumns = intTable(6, 4, leftovers);
    M_IdentifyMissingInMatSPV(TableColumns(6, 4, cells), 6, 4, ofColumns);
    EXPECT_EQ(cellsOf(ofColumns), expected);
    Guarded<double> flat(cells);
    Guarded<int> ofFlat(leftovers);
    Cpp_M_IdentifyMissingInMat(flat, 6, 4, ofFlat);
    EXPECT_EQ(ofFlat.values(), expected);
    ArrayOfColumns arrays = numberColumns(6, 4, cells);
    Guarded<int> ofArrays(leftovers);
    Cpp_M_IdentifyMissingInMatSPV(arrays, 6, 4, ofArrays);
    EXPECT_EQ(ofArrays.values(), expected);
    EXPECT_TRUE(flat.untouched() && arrays.untouched());
}

TEST(IdentifyMissing, EachTableHasItsOwnStride)
{
    auto out = intTable(3, 2, {7, 7, 7, 7, 7, 7});
    M_IdentifyMissingInMat(byRows({{M, 1}, {M, M}}), 2, 2, out);
    EXPECT_THAT(cellsOf(out), ElementsAre(1, 1, 7, 7, 1, 7));
    // A mark that does not fit is dropped, and a cell outside the table is present.
    auto small = intTable(1, 1, {7});
    M_IdentifyMissingInMat(byRows({{1, M}, {1, M}}), 3, 3, small);
    EXPECT_THAT(cellsOf(small), ElementsAre(7));
    auto untouched = intTable(1, 1, {7});
    M_IdentifyMissingInMat(column({M}), 0, 1, untouched);
    M_IdentifyMissingInMat(column({M}), 1, 0, untouched);
    EXPECT_THAT(cellsOf(untouched), ElementsAre(7));
}

// ---- missing off the diagonal ---------------------------------------------------------------------------------------

/// The answer of all four forms; `cells` is a full square table, column after column, and symmetric unless `upperOnly`.
short missingOffDiagonal(int n, const std::vector<double>& cells)
{
    Guarded<double> flat(cells);
    const short answer = M_IsMissingOutOfDiagonalAndNotOnDiags(table(n, n, cells), n);
    EXPECT_EQ(Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(flat, n), answer);
    EXPECT_TRUE(flat.untouched());
    return answer;
}

short missingOffDiagonalOfTriangle(int n, const std::vector<double>& cells)
{
    TableColumns columns = triangle(n, cells);
    ArrayOfColumns arrays = numberTriangle(n, cells);
    const short answer = M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(columns, n);
    EXPECT_EQ(Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(arrays, n), answer);
    EXPECT_TRUE(arrays.untouched());
    return answer;
}

/// The last column lies beyond the table: its cells are present.
TEST(MissingOffDiagonal, ReadsMinusOneBeyondTheTable)
{
    constexpr int n = 4;
    int found = 0;
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        std::vector<double> cells = data.withMissing(data.normals(n * (n - 1)), 0.4);
        const short narrow = M_IsMissingOutOfDiagonalAndNotOnDiags(table(n, n - 1, cells), n);
        cells.insert(cells.end(), n, -1.0);
        EXPECT_EQ(narrow, missingOffDiagonal(n, cells));
        found += narrow != 0 ? 1 : 0;
    }
    EXPECT_GT(found, 10);
    EXPECT_LT(found, 90);
}

TEST(MissingOffDiagonal, NeedsBothDiagonalCells)
{
    // By columns: (1,1), (2,1), (1,2), (2,2).
    EXPECT_EQ(missingOffDiagonal(2, {1, 1, M, 1}), -1);
    EXPECT_EQ(missingOffDiagonal(2, {M, 1, M, 1}), 0);
    EXPECT_EQ(missingOffDiagonal(2, {1, 1, M, M}), 0);
    EXPECT_EQ(missingOffDiagonal(2, {1, 1, 1, 1}), 0);
    EXPECT_EQ(missingOffDiagonalOfTriangle(2, {1, M, M, 1}), -1);
    EXPECT_EQ(missingOffDiagonalOfTriangle(2, {M, M, M, 1}), 0);
    EXPECT_EQ(missingOffDiagonalOfTriangle(2, {1, M, M, M}), 0);
    EXPECT_EQ(missingOffDiagonalOfTriangle(2, {1, 1, 1, 1}), 0);
}

TEST(MissingOffDiagonal, LowerTriangleIsNotRead)
{
    EXPECT_EQ(missingOffDiagonal(2, {1, M, 1, 1}), 0);
}

TEST(MissingOffDiagonal, OneCellIsTestedByEqualityTheOthersByOrder)
{
    EXPECT_EQ(missingOffDiagonal(2, {1, 1, -inf, 1}), 0);
    EXPECT_EQ(missingOffDiagonal(2, {1, 1, belowMissing, 1}), 0);
    EXPECT_EQ(missingOffDiagonal(2, {1, 1, notANumber, 1}), 0);
    for (const double absent : {-inf, belowMissing, M, notANumber}) {
        EXPECT_EQ(missingOffDiagonal(2, {absent, 1, M, 1}), 0) << shown(absent);
        EXPECT_EQ(missingOffDiagonal(2, {1, 1, M, absent}), 0) << shown(absent);
        EXPECT_EQ(missingOffDiagonalOfTriangle(2, {1, M, M, absent}), 0) << shown(absent);
    }
    EXPECT_EQ(missingOffDiagonal(2, {std::nextafter(M, inf), 1, M, inf}), -1);
}

TEST(MissingOffDiagonal, AnyPairOfALargerTable)
{
    for (int i = 0; i < 4; ++i)
        for (int j = i + 1; j < 4; ++j) {
            std::vector<double> cells(16, 1.0);
            cells[static_cast<std::size_t>(i + 4 * j)] = cells[static_cast<std::size_t>(j + 4 * i)] = M;
            EXPECT_EQ(missingOffDiagonal(4, cells), -1);
            EXPECT_EQ(missingOffDiagonalOfTriangle(4, cells), -1);
            cells[static_cast<std::size_t>(5 * i)] = M;
            EXPECT_EQ(missingOffDiagonal(4, cells), 0);
            EXPECT_EQ(missingOffDiagonalOfTriangle(4, cells), 0);
        }
}

TEST(MissingOffDiagonal, BelowOrderTwoNothingIsRead)
{
    for (const int n : {1, 0, -3}) {
        EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiags(nullptr, n), 0);
        EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(nullptr, n), 0);
    }
    EXPECT_EQ(missingOffDiagonal(1, {M}), 0);
    EXPECT_EQ(missingOffDiagonalOfTriangle(1, {M}), 0);
}

TEST(MissingOffDiagonal, DiagonalBeyondTheTableIsPresent)
{
    // Rows 1 and 2 of three columns: (3, 3) lies outside, (1, 3) is missing.
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiags(byRows({{1, 1, M}, {1, 1, 1}}), 3), -1);
    // The triangle's third column is empty: its diagonal cell lies outside.
    TableColumns columns({{1, 1, M}, {1, 1}, {}});
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(columns, 3), -1);
}

TEST(MissingOffDiagonal, AgreesWithTheDefinition)
{
    RandomData data(424);
    SCOPED_TRACE(data);
    int found = 0;
    for (int trial = 0; trial < 200; ++trial) {
        const int n = data.integer(2, 5);
        auto cells = data.withSpecials(data.normals(static_cast<std::size_t>(n * n)), 0.3);
        bool expected = false;
        for (int i = 0; i < n; ++i)
            for (int j = i + 1; j < n; ++j) {
                const auto at = [&](int r, int c) { return cells[static_cast<std::size_t>(r + n * c)]; };
                expected = expected || (at(i, j) == M && at(i, i) > M && at(j, j) > M);
            }
        found += expected ? 1 : 0;
        EXPECT_EQ(missingOffDiagonal(n, cells), expected ? -1 : 0);
        // The triangle's cell below the diagonal represents the one above it.
        for (int i = 0; i < n; ++i)
            for (int j = i + 1; j < n; ++j)
                cells[static_cast<std::size_t>(j + n * i)] = cells[static_cast<std::size_t>(i + n * j)];
        EXPECT_EQ(missingOffDiagonalOfTriangle(n, cells), expected ? -1 : 0);
    }
    EXPECT_GT(found, 10);
    EXPECT_LT(found, 190);
}

} // namespace
} // namespace vecmat::test
