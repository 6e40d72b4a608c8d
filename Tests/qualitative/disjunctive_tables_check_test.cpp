// What a disjunctive table may look like, and pairs of columns from binary ones.
#include "qualitative/disjunctive_tables.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <cmath>
#include <limits>

namespace vecmat::test {

namespace {

using Doubles = std::vector<double>;
using Shorts = std::vector<short>;

const double NaN = std::numeric_limits<double>::quiet_NaN();

struct Verdict
{
    short answer;
    int rowSum;
    bool operator==(const Verdict&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Verdict& verdict)
{
    return stream << verdict.answer << " with row sum " << verdict.rowSum;
}

/// The verdict on a table given by columns, where the function and the flat form agree.
Verdict verdict(int rows, int cols, const Doubles& cells, const Shorts& mask)
{
    Guarded<double> flat(cells);
    Guarded<short> flags(mask);
    Verdict flatVerdict{77, 77};
    flatVerdict.answer = VB_M_IsDisjTable(flat, rows, cols, flags, &flatVerdict.rowSum);
    Verdict result{88, 88};
    result.answer = M_IsDisjTable(table(rows, cols, cells), rows, cols, flags, &result.rowSum);
    EXPECT_EQ(flatVerdict, result);
    EXPECT_TRUE(flat.untouched() && flags.untouched());
    return result;
}

TEST(IsDisjTable, RowsOfOneSum)
{
    EXPECT_EQ(verdict(3, 2, {1, 0, 1, 0, 1, 0}, {0, 0, 0}), (Verdict{-1, 1}));
    EXPECT_EQ(verdict(3, 4, {1, 0, 1, 0, 1, 0, 1, 1, 0, 0, 0, 1}, {0, 0, 0}), (Verdict{-1, 2}));
    EXPECT_EQ(verdict(3, 2, {1, 0, 1, 0, 1, 1}, {0, 0, 0}), (Verdict{0, 1})) << "the third row has 2";
}

TEST(IsDisjTable, RowOneIsTheReferenceWhereNothingIsFlagged)
{
    EXPECT_EQ(verdict(2, 2, {1, 1, 1, 0}, {0, 0}), (Verdict{0, 2}));
    EXPECT_EQ(verdict(2, 2, {1, 1, 0, 1}, {0, 0}), (Verdict{0, 1}));
}

TEST(IsDisjTable, RowsAreAddedFromTheLeft)
{
    const double large = 0x1p53; // to which 1 can't be added, but to its opposite
    EXPECT_EQ(verdict(1, 3, {large, 1, -large}, {0}), (Verdict{0, 0}));
    EXPECT_EQ(verdict(1, 3, {-large, 1, large}, {0}), (Verdict{0, 1}));
    EXPECT_EQ(verdict(2, 3, {large, 0, 1, 0, -large, 0}, {0, 0}), (Verdict{-1, 0}));
}

TEST(IsDisjTable, ConstantLastColumn)
{
    EXPECT_EQ(verdict(3, 3, {1, 0, 1, 0, 1, 0, 1, 1, 1}, {0, 0, 0}), (Verdict{0, 2})) << "all row sums agree";
    EXPECT_EQ(verdict(3, 3, {1, 1, 1, 1, 0, 1, 0, 1, 0}, {0, 0, 0}), (Verdict{-1, 2})) << "earlier columns don't count";
}

TEST(IsDisjTable, FlagOfTheFirstRowIsNotExamined)
{
    // Row 1 is the reference whether it is excluded or not.
    for (short flag : Shorts{0, -1, 1})
        EXPECT_EQ(verdict(3, 2, {2, 0, 1, 0, 1, 0}, {flag, 0, 0}), (Verdict{0, 2})) << flag;
}

TEST(IsDisjTable, ReferenceIsTheRowBeforeTheFirstNotFlagged)
{
    // Rows 2 and 3 are excluded: row 3 is the reference all the same, row 4 the first compared.
    EXPECT_EQ(verdict(4, 2, {9, 9, 0, 1, 9, 9, 1, 0}, {0, -1, -1, 0}), (Verdict{-1, 1}));
    EXPECT_EQ(verdict(4, 2, {9, 9, 0, 1, 9, 9, 2, 0}, {0, -1, -1, 0}), (Verdict{0, 2}));
}

TEST(IsDisjTable, FlagThatIsNeitherZeroNorMinusOne)
{
    // A 1 ends the search for the reference (it is not -1), and yet excludes its row (it is not 0).
    EXPECT_EQ(verdict(3, 2, {1, 9, 0, 0, 9, 1}, {0, 1, 0}), (Verdict{-1, 1}));
    EXPECT_EQ(verdict(3, 2, {9, 1, 0, 9, 0, 1}, {0, 1, 0}), (Verdict{0, 18})) << "a -1 would make row 2 the reference";
    EXPECT_EQ(verdict(3, 2, {9, 1, 0, 9, 0, 1}, {0, -1, 0}), (Verdict{-1, 1}));
}

TEST(IsDisjTable, ExcludedRowsAreNeitherSummedNorCompared)
{
    EXPECT_EQ(verdict(4, 2, {1, 0, 9, 1, 0, 1, 9, 0}, {0, 0, -1, 0}), (Verdict{-1, 1}));
    EXPECT_EQ(verdict(4, 2, {1, 1, 0, 1, 0, 0, 1, 0}, {0, 0, -1, 0}), (Verdict{0, 1}))
        << "without row 3 the last column is constant";
}

TEST(IsDisjTable, WithoutARowToCompareTheLastRowIsTheReference)
{
    EXPECT_EQ(verdict(3, 2, {9, 9, 1, 9, 9, 2}, {0, -1, -1}), (Verdict{0, 3}));
    EXPECT_EQ(verdict(1, 2, {1, 2}, {0}), (Verdict{0, 3})) << "a column of one row is constant";
    EXPECT_EQ(verdict(1, 2, {NaN, NaN}, {0}).answer, 0) << "and nothing is compared with itself";
}

TEST(IsDisjTable, SumsAreComparedWithTheTruncatedSum)
{
    EXPECT_EQ(verdict(2, 2, {0.5, 0.75, 1, 0.75}, {0, 0}), (Verdict{0, 1})) << "both sums are 1.5 where 1 is required";
    EXPECT_EQ(verdict(2, 2, {0.5, 0.75, 1, 0.25}, {0, 0}), (Verdict{-1, 1}));
    EXPECT_EQ(verdict(2, 2, {-0.5, -0.75, -1, -0.25}, {0, 0}), (Verdict{-1, -1})) << "towards zero";
    EXPECT_EQ(verdict(2, 1, {1, 1 + 5e-13}, {0, 0}), (Verdict{-1, 1}));
    EXPECT_EQ(verdict(2, 1, {1, 1 + 2e-12}, {0, 0}), (Verdict{0, 1}));
}

TEST(IsDisjTable, NaNPassesTheSumsAndIsDifferent)
{
    EXPECT_EQ(verdict(2, 2, {1, NaN, 0, 0}, {0, 0}), (Verdict{0, 1})) << "the last column is constant";
    EXPECT_EQ(verdict(2, 2, {1, 0, 0, NaN}, {0, 0}), (Verdict{-1, 1}));
    const int lowest = std::numeric_limits<int>::min();
    EXPECT_EQ(verdict(2, 1, {NaN, NaN}, {0, 0}), (Verdict{-1, lowest}));
}

TEST(IsDisjTable, MissingCellsAreNumbers)
{
    EXPECT_EQ(verdict(2, 2, {M, 1, 0, 0}, {0, 0}), (Verdict{0, std::numeric_limits<int>::min()}));
}

TEST(IsDisjTable, NoColumns)
{
    Guarded<short> mask({0, 0});
    int rowSum = 77;
    EXPECT_EQ(M_IsDisjTable(column({1, 2}), 2, 0, mask, &rowSum), -1);
    EXPECT_EQ(rowSum, 0);
}

TEST(IsDisjTable, NoRowsReadNothingOfTheMask)
{
    Guarded<short> none(Shorts{});
    int rowSum = 77;
    EXPECT_EQ(VB_M_IsDisjTable(nullptr, 0, 0, none, &rowSum), -1);
    EXPECT_EQ(rowSum, 0);
    Guarded<double> empty(Doubles{});
    EXPECT_EQ(VB_M_IsDisjTable(empty, 0, 3, none, &rowSum), 0);
    EXPECT_EQ(rowSum, -3) << "cells beyond the table";
}

TEST(IsDisjTable, NullMaskExcludesNothing)
{
    int rowSum = 77;
    EXPECT_EQ(M_IsDisjTable(byRows({{1, 0}, {0, 1}}), 2, 2, nullptr, &rowSum), -1);
    EXPECT_EQ(rowSum, 1);
}

TEST(IsDisjTable, RowsBeyondTheTableAreMinusOne)
{
    Guarded<short> mask({0, 0, 0});
    int rowSum = 77;
    EXPECT_EQ(M_IsDisjTable(column({-1, -1}), 3, 1, mask, &rowSum), 0) << "constant";
    EXPECT_EQ(M_IsDisjTable(column({1, 1}), 3, 1, mask, &rowSum), 0) << "another sum";
    EXPECT_EQ(M_IsDisjTable(column({1, 1}), 2, 1, mask, &rowSum), 0);
    // Rows slide on into the next column, also beyond the first.
    EXPECT_EQ(M_IsDisjTable(byColumns({{1, 0}, {0, 1}}), 3, 1, mask, &rowSum), 0);
    EXPECT_EQ(rowSum, 1);
}

TEST(IsDisjTable, StepsOverRandomTables)
{
    int yes = 0;
    for (std::uint64_t seed = 1; seed <= 500; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int rows = data.integer(1, 6);
        const int cols = data.integer(1, 3);
        const auto n = static_cast<std::size_t>(rows);
        Doubles cells = data.wholes(n * static_cast<std::size_t>(cols), 0, 1);
        // Often with rows of one sum.
        if (data.chance(0.7))
            for (std::size_t i = 0; i < n; ++i)
                for (int j = 0; j < cols; ++j)
                    cells[i + n * static_cast<std::size_t>(j)] = static_cast<int>(i + seed) % cols == j ? 1 : 0;
        if (data.chance(0.1))
            cells = data.withSpecials(cells, 0.1);
        Shorts mask = data.mask(n, 0.4);
        if (data.chance(0.3))
            mask[static_cast<std::size_t>(data.integer(0, rows - 1))] = 1;

        auto x = table(rows, cols, cells);
        const auto flag = [&](int i) { return mask[static_cast<std::size_t>(i - 1)]; };
        int k = 2;
        while (k <= rows && flag(k) == -1)
            ++k;
        const auto sum = [&](int i) {
            double total = 0.0;
            for (int j = 1; j <= cols; ++j)
                total = total + x->vbget(i, j);
            return total;
        };
        const double reference = sum(k - 1);
        Verdict expected{-1,
                         std::fabs(reference) < 2e9 ? static_cast<int>(reference) : std::numeric_limits<int>::min()};
        bool constant = true;
        for (int i = k; i <= rows; ++i) {
            if (flag(i) != 0)
                continue;
            if (std::fabs(sum(i) - expected.rowSum) > 1e-12)
                expected.answer = 0;
            if (!(x->vbget(i, cols) == x->vbget(k - 1, cols)))
                constant = false;
        }
        if (constant)
            expected.answer = 0;
        yes += expected.answer != 0;
        EXPECT_EQ(verdict(rows, cols, cells, mask), expected);
    }
    EXPECT_GT(yes, 50);
    EXPECT_LT(yes, 450);
}

// ---- pairs of columns -----------------------------------------------------------------------------------------------

TEST(ConvertBinarytoDisjTable, EachColumnGivesAPair)
{
    auto out = filled(2, 4, 77);
    M_ConvertBinarytoDisjTable(byColumns({{1, 0}, {0, 0}}), 2, 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 0, 1, 0, 0, 1, 1}));
    Guarded<double> flat({1, 0, 0, 0});
    Guarded<double> flatOut(8, 77.0);
    Cpp_M_ConvertBinarytoDisjTable(flat, 2, 2, flatOut);
    EXPECT_THAT(flatOut.values(), SameBits({1, 0, 0, 1, 0, 0, 1, 1}));
    EXPECT_TRUE(flat.untouched());
}

TEST(ConvertBinarytoDisjTable, NoTestOfAnyKind)
{
    auto out = filled(3, 2, 77);
    M_ConvertBinarytoDisjTable(column({M, 0.25, NaN}), 3, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({M, 0.25, NaN, 1.0 - M, 0.75, NaN}));
}

TEST(ConvertBinarytoDisjTable, LeavesTheRestOfALargerTable)
{
    auto out = filled(3, 3, 77);
    M_ConvertBinarytoDisjTable(byColumns({{1, 0}, {1, 0}}), 2, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 77, 0, 1, 77, 77, 77, 77}));
    M_ConvertBinarytoDisjTable(column({1}), 0, 1, out);
    M_ConvertBinarytoDisjTable(column({1}), 1, 0, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 77, 0, 1, 77, 77, 77, 77}));
}

TEST(ConvertBinarytoDisjTable, CellsBeyondTheTables)
{
    auto out = filled(2, 2, 77);
    M_ConvertBinarytoDisjTable(column({1}), 2, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, -1, 0, 2})) << "a cell beyond the table is -1";
    auto small = filled(1, 1, 77);
    M_ConvertBinarytoDisjTable(column({1}), 1, 1, small);
    EXPECT_THAT(cellsOf(small), SameBits({1})) << "writes beyond it are dropped";
}

} // namespace

} // namespace vecmat::test
