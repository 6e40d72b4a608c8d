#include "missing/missing_counts.h"

#include "missing/special_numbers.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

const double aboveMissing = std::nextafter(M, inf);

// ---- single values --------------------------------------------------------------------------------------------------

TEST(IsMissingValue, DoubleByTheOrderTest)
{
    for (const double missing : {M, belowMissing, -std::numeric_limits<double>::max(), -inf}) {
        EXPECT_EQ(IsMissingValueDbl(missing), -1) << shown(missing);
        EXPECT_EQ(VB_IsMissingValueDbl(missing), -1) << shown(missing);
    }
    for (const double present : {aboveMissing, -1.0, 0.0, 1e300, positiveTwin, inf, notANumber}) {
        EXPECT_EQ(IsMissingValueDbl(present), 0) << shown(present);
        EXPECT_EQ(VB_IsMissingValueDbl(present), 0) << shown(present);
    }
}

TEST(IsMissingValue, StringByItsLength)
{
    EXPECT_EQ(IsMissingValueStr(L""), -1);
    EXPECT_EQ(IsMissingValueStr(L" "), 0);
    EXPECT_EQ(IsMissingValueStr(L"x"), 0);
    EXPECT_EQ(IsMissingValueStr(std::wstring(1, L'\0')), 0);
    EXPECT_EQ(VB_IsMissingValueStr(L""), -1);
    EXPECT_EQ(VB_IsMissingValueStr(L"\0x"), -1); // the text ends at the NUL
    EXPECT_EQ(VB_IsMissingValueStr(L" "), 0);
    EXPECT_EQ(VB_IsMissingValueStr(L"text"), 0);
}

// ---- vectors --------------------------------------------------------------------------------------------------------

TEST(NbMissing, VectorOfMissingValuesOnly)
{
    EXPECT_EQ(V_NbMissing(column({M, M, M}), 3), 3);
    EXPECT_EQ(V_NbNonMissing(column({M, M, M}), 3), 0);
    Guarded<double> x = {M, M, M};
    EXPECT_EQ(VB_V_NbMissing(x, 3), 3);
    EXPECT_EQ(VB_V_NbNonMissing(x, 3), 0);
}

TEST(NbMissing, VectorByTheEqualityTest)
{
    const std::vector<double> cells = {M, -inf, belowMissing, notANumber, aboveMissing, 0.0, M};
    EXPECT_EQ(V_NbMissing(column(cells), 7), 2);
    EXPECT_EQ(V_NbNonMissing(column(cells), 7), 5);
    Guarded<double> x(cells);
    EXPECT_EQ(VB_V_NbMissing(x, 7), 2);
    EXPECT_EQ(VB_V_NbNonMissing(x, 7), 5);
    EXPECT_TRUE(x.untouched());
}

TEST(NbMissing, VectorOfStrings)
{
    EXPECT_EQ(V_NbMissing(stringColumn({L"a", L"", L" ", L""}), 4), 2);
    EXPECT_EQ(V_NbMissing(stringColumn({L"a", L"", L" ", L""}), 3), 1);
    BstrArray x({L"a", L"", L"b", L"c"});
    x.setNull(2);
    EXPECT_EQ(VB_V_NbMissingStr(x, 4), 2);
    EXPECT_EQ(VB_V_NbMissingStr(x, 0), 0);
    EXPECT_EQ(x.countNew(), 0u);
}

TEST(NbMissing, NoElements)
{
    for (const int n : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(V_NbMissing(column({M}), n), 0);
        EXPECT_EQ(V_NbMissing(stringColumn({L""}), n), 0);
        EXPECT_EQ(V_NbNonMissing(column({M}), n), n);
        EXPECT_EQ(VB_V_NbMissing(nullptr, n), 0);
        EXPECT_EQ(VB_V_NbMissingStr(nullptr, n), 0);
        EXPECT_EQ(VB_V_NbNonMissing(nullptr, n), n);
    }
}

TEST(NbMissing, ElementBeyondTheTableIsPresent)
{
    EXPECT_EQ(V_NbMissing(column({M, 1}), 5), 1);
    EXPECT_EQ(V_NbNonMissing(column({M, 1}), 5), 4);
    // It reads as an empty string, and still is not counted.
    EXPECT_EQ(V_NbMissing(stringColumn({L"", L"a"}), 5), 1);
    EXPECT_EQ(M_NbMissing2(stringColumn({L"", L"a"}), 2, 3), 1);
    Guarded<int> counts(3, 77);
    M_NbMissing(stringColumn({L"", L"a"}), 2, 3, counts);
    EXPECT_THAT(counts.values(), ElementsAre(1, 0, 0));
}

TEST(NbMissing, VectorWalksATableInLinearOrder)
{
    EXPECT_EQ(V_NbMissing(byColumns({{1, M}, {M, 1}}), 3), 2);
    EXPECT_EQ(V_NbMissing(stringsByColumns({{L"a", L""}, {L"", L"a"}}), 3), 2);
}

// ---- tables ---------------------------------------------------------------------------------------------------------

// The counts by their definition, cell by cell through the checked read.
int countOfMissing(matrix* a, int i, int rows, int j, int cols)
{
    int count = 0;
    for (int col = j; col < cols; ++col)
        for (int row = i; row < rows; ++row)
            count += a->vbget(row + 1, col + 1) == M ? 1 : 0;
    return count;
}

struct BlockSize
{
    int rows;
    int cols;
};

TEST(NbMissing, TableAgreesWithTheWalk)
{
    RandomData data(411);
    SCOPED_TRACE(data);
    auto a = table(7, 5, data.withSpecials(data.normals(35), 0.6));
    // The table itself, a corner of it, and blocks that run over into the next column or beyond the end.
    for (const auto [rows, cols] : {BlockSize{7, 5}, {4, 3}, {7, 2}, {9, 3}, {3, 8}, {40, 2}, {0, 4}, {-2, 4}}) {
        SCOPED_TRACE(testing::Message() << rows << " by " << cols);
        const auto m = static_cast<std::size_t>(std::max(rows, 0));
        Guarded<int> counts(data.intLeftovers(static_cast<std::size_t>(cols)));
        Guarded<int> present(data.intLeftovers(static_cast<std::size_t>(cols)));
        Guarded<int> byRow(data.intLeftovers(m));
        M_NbMissing(a, rows, cols, counts);
        M_NbNonMissing(a, rows, cols, present);
        M_NbMissingPerRow(a, rows, cols, byRow);
        for (int j = 0; j < cols; ++j) {
            const int missing = countOfMissing(a, 0, rows, j, j + 1);
            EXPECT_EQ(counts.data()[j], missing);
            EXPECT_EQ(present.data()[j], std::max(rows, 0) - missing);
        }
        for (int i = 0; i < rows; ++i)
            EXPECT_EQ(byRow.data()[i], countOfMissing(a, i, i + 1, 0, cols));
        EXPECT_EQ(M_NbMissing2(a, rows, cols), countOfMissing(a, 0, rows, 0, cols));
    }
}

TEST(NbMissing, ColumnsOfEveryLengthAgreeWithTheWalk)
{
    RandomData data(412);
    SCOPED_TRACE(data);
    for (int rows = 0; rows <= 70; ++rows) {
        SCOPED_TRACE(rows);
        // Columns that begin at any address of a double, and NaN, infinities and the neighbours of the missing value.
        const auto cells = data.withSpecials(data.normals(3 * static_cast<std::size_t>(rows)), 0.7);
        auto a = table(rows, 3, cells);
        Guarded<int> counts(3, 77);
        Guarded<int> byRow(data.intLeftovers(static_cast<std::size_t>(rows)));
        M_NbMissing(a, rows, 3, counts);
        M_NbMissingPerRow(a, rows, 3, byRow);
        for (int j = 0; j < 3; ++j)
            EXPECT_EQ(counts.data()[j], countOfMissing(a, 0, rows, j, j + 1));
        for (int i = 0; i < rows; ++i)
            EXPECT_EQ(byRow.data()[i], countOfMissing(a, i, i + 1, 0, 3));
        EXPECT_EQ(M_NbMissing2(a, rows, 3), countOfMissing(a, 0, rows, 0, 3));
        Guarded<double> flat(cells);
        EXPECT_EQ(VB_V_NbMissing(flat, 3 * rows), countOfMissing(a, 0, rows, 0, 3));
        int missingOrBelow = 0;
        for (const double cell : cells)
            missingOrBelow += cell <= M ? 1 : 0;
        EXPECT_EQ(M_NbMissing(TableColumns(rows, 3, cells), rows, 3), missingOrBelow);
    }
}

TEST(NbMissing, NoColumnsWriteNoCountByColumnAndZeroByRow)
{
    Guarded<int> counts = {5, 6};
    M_NbMissing(byRows({{M}, {M}}), 2, 0, counts);
    M_NbMissing(stringsByRows({{L""}, {L""}}), 2, 0, counts);
    M_NbNonMissing(byRows({{M}, {M}}), 2, -1, counts);
    EXPECT_TRUE(counts.untouched());
    M_NbMissingPerRow(byRows({{M}, {M}}), 2, 0, counts);
    EXPECT_THAT(counts.values(), ElementsAre(0, 0));
    EXPECT_EQ(M_NbMissing2(byRows({{M}, {M}}), 2, 0), 0);
}

TEST(NbMissing, TableOfStrings)
{
    auto a = stringsByRows({{L"", L"x", L""}, {L"y", L" ", L""}});
    Guarded<int> counts(3, 77);
    M_NbMissing(a, 2, 3, counts);
    EXPECT_THAT(counts.values(), ElementsAre(1, 0, 2));
    EXPECT_EQ(M_NbMissing2(a, 2, 3), 3);
    EXPECT_EQ(M_NbMissing2(a, 1, 3), 2);
    EXPECT_EQ(M_NbMissing2(a, 0, 3), 0);
    M_NbMissing(a, 0, 3, counts);
    EXPECT_THAT(counts.values(), ElementsAre(0, 0, 0));
    // A row below the table is one of the next column, and after the last there is none.
    M_NbMissing(a, 3, 3, counts);
    EXPECT_THAT(counts.values(), ElementsAre(1, 1, 2));
}

TEST(NbMissing, MinusInfinityIsMissingInColumnsOfTheOneFormOnly)
{
    const std::vector<double> cells = {M, -inf, belowMissing, notANumber, 3.0, M};
    TableColumns columns(3, 2, cells);
    EXPECT_EQ(M_NbMissing(columns, 3, 2), 4);
    EXPECT_EQ(M_NbMissing2(columns, 3, 2), 2);
    EXPECT_EQ(M_NbMissing2(table(3, 2, cells), 3, 2), 2);
    Guarded<int> counts(2, 77);
    M_NbMissing(table(3, 2, cells), 3, 2, counts);
    EXPECT_THAT(counts.values(), ElementsAre(1, 1));
    ArrayOfColumns flat = numberColumns(3, 2, cells);
    EXPECT_EQ(Cpp_M_NbMissingSPV(flat, 3, 2), 4);
    EXPECT_TRUE(flat.untouched());
}

TEST(NbMissing, ColumnsWithoutRowsHaveNone)
{
    matrix* none[] = {nullptr, nullptr};
    for (const int rows : {0, -4}) {
        EXPECT_EQ(M_NbMissing(none, rows, 2), 0);
        EXPECT_EQ(M_NbMissing2(none, rows, 2), 0);
    }
    TableColumns columns(1, 2, {M, M});
    EXPECT_EQ(M_NbMissing(columns, 1, 0), 0);
    EXPECT_EQ(M_NbMissing2(columns, 1, -1), 0);
}

TEST(NbMissing, CellBeyondAColumnIsPresent)
{
    TableColumns columns({{M, 1}, {M}});
    EXPECT_EQ(M_NbMissing(columns, 4, 2), 2);
    EXPECT_EQ(M_NbMissing2(columns, 4, 2), 2);
}

// ---- triangle -------------------------------------------------------------------------------------------------------

TEST(NbMissingSPVT, CountsEachCellBelowTheDiagonalTwice)
{
    // Column 0 has a missing diagonal cell and two missing cells below it; minus infinity is present.
    TableColumns a({{M, M, 1, M}, {2, -inf, 4}, {M, M}, {M}});
    EXPECT_EQ(M_NbMissingSPV_T(a, 4, 0), 6);
    EXPECT_EQ(M_NbMissingSPV_T(a, 4, -1), 6);
    EXPECT_EQ(M_NbMissingSPV_T(a, 2, 0), 2);
    EXPECT_EQ(M_NbMissingSPV_T(a, 1, 0), 0);
    EXPECT_EQ(M_NbMissingSPV_T(a, 0, 0), 0);
    EXPECT_EQ(M_NbMissingSPV_T(a, std::numeric_limits<int>::min(), 0), 0);
}

TEST(NbMissingSPVT, IsTheCountOfTheFullTableOffItsDiagonal)
{
    RandomData data(412);
    SCOPED_TRACE(data);
    for (int n = 1; n < 7; ++n) {
        auto full = table(n, n, data.withSpecials(data.normals(static_cast<std::size_t>(n * n)), 0.5));
        int expected = 0;
        for (int j = 0; j < n; ++j)
            for (int i = j + 1; i < n; ++i) {
                full->X[j + n * i] = full->X[i + n * j];
                expected += full->X[i + n * j] == M ? 2 : 0;
            }
        TableColumns a = triangle(n, cellsOf(full));
        EXPECT_EQ(M_NbMissingSPV_T(a, n, 0), expected);
        ArrayOfColumns flat = numberTriangle(n, cellsOf(full));
        EXPECT_EQ(VB_M_NbMissingSPV_T(flat, n, 0), expected);
        EXPECT_TRUE(flat.untouched());
    }
}

TEST(NbMissingSPVT, LooksAtNoDiagonal)
{
    matrix below(2, 1, M);
    matrix* columns[] = {&below, nullptr}; // the last column is nothing but a diagonal cell
    EXPECT_EQ(M_NbMissingSPV_T(columns, 2, 0), 2);
}

TEST(NbMissingSPVT, CellBeyondAColumnIsPresent)
{
    TableColumns a({{1, M}, {1}, {1}});
    EXPECT_EQ(M_NbMissingSPV_T(a, 3, 0), 2);
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(NbMissing, FlatFormsOfDoubles)
{
    RandomData data(413);
    SCOPED_TRACE(data);
    Guarded<double> a({M, 1, -inf, M, M, notANumber});
    Guarded<int> counts(data.intLeftovers(2));
    VB_M_NbMissing(a, 3, 2, counts);
    EXPECT_THAT(counts.values(), ElementsAre(1, 2));
    Guarded<int> present(data.intLeftovers(2));
    VB_M_NbNonMissing(a, 3, 2, present);
    EXPECT_THAT(present.values(), ElementsAre(2, 1));
    EXPECT_EQ(VB_M_NbMissing2(a, 3, 2), 3);
    EXPECT_EQ(VB_M_NbMissing2(a, 0, 2), 0);
    EXPECT_TRUE(a.untouched());
}

TEST(NbMissing, FlatFormsOfStrings)
{
    RandomData data(414);
    SCOPED_TRACE(data);
    BstrArray a({L"", L"x", L"", L"y", L"z", L"u"});
    a.setNull(5);
    Guarded<int> counts(data.intLeftovers(3));
    VB_M_NbMissingStr(a, 2, 3, counts);
    EXPECT_THAT(counts.values(), ElementsAre(1, 1, 1));
    EXPECT_EQ(VB_M_NbMissing2Str(a, 2, 3), 3);
    EXPECT_EQ(VB_M_NbMissing2Str(a, 3, 1), 2);
    EXPECT_EQ(a.countNew(), 0u);
}

} // namespace
} // namespace vecmat::test
