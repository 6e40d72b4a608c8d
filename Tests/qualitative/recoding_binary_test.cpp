// Strings and numbers into 0 and 1.
#include "qualitative/recoding.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <cmath>
#include <limits>

namespace vecmat::test {

namespace {

using Doubles = std::vector<double>;
using Texts = std::vector<std::wstring>;

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

// ---- V_RecodeToBinary -----------------------------------------------------------------------------------------------

TEST(RecodeToBinary, OneWhereTheStringsAreEqual)
{
    auto out = filled(5, 1, 77);
    V_RecodeToBinary(stringColumn({L"a", L"A", L"", L"a"}), 4, L"a", out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 0, 1, 77}));
    V_RecodeToBinary(stringColumn({L"a", L"A", L"", L"a"}), 4, L"", out);
    EXPECT_THAT(cellsOf(out), SameBits({0, 0, 1, 0, 77})) << "the empty string is a value";
    V_RecodeToBinary(stringColumn({L"a"}), 2, L"", out);
    EXPECT_THAT(cellsOf(out), SameBits({0, 1, 1, 0, 77})) << "and so is a cell beyond the table";
    V_RecodeToBinary(stringColumn({L"a"}), 0, L"a", out);
    V_RecodeToBinary(stringColumn({L"a"}), -1, L"a", out);
    EXPECT_THAT(cellsOf(out), SameBits({0, 1, 1, 0, 77}));
}

TEST(RecodeToBinary, WritesBeyondTheResultAreDropped)
{
    auto out = filled(1, 1, 77);
    V_RecodeToBinary(stringColumn({L"a", L"a"}), 2, L"a", out);
    EXPECT_THAT(cellsOf(out), SameBits({1}));
}

TEST(RecodeToBinary, FlatFormTakesTheValueInWideCharacters)
{
    BstrArray x({L"é", L"a", L"\U0001F427", L"é"});
    Guarded<double> out(4, 77.0);
    Cpp_V_RecodeToBinary(x, 4, L"é", 99, out);
    EXPECT_THAT(out.values(), SameBits({1, 0, 0, 1}));
    Cpp_V_RecodeToBinary(x, 4, L"\U0001F427", 99, out);
    EXPECT_THAT(out.values(), SameBits({0, 0, 1, 0}));
    EXPECT_EQ(x.countNew(), 0u);
}

// ---- M_Binarize and its relatives -----------------------------------------------------------------------------------

const double epsilon = 2.220446049250313e-16;

TEST(Binarize, ZeroBelowTheTolerance)
{
    const Doubles x{0, -0.0, 1e-17, -1e-17, epsilon, -epsilon, std::nextafter(epsilon, 0.0), 1, -3, 0.5};
    const Doubles expected{0, 0, 0, 0, 1, 1, 0, 1, 1, 1};
    auto out = filled(10, 1, 77);
    M_Binarize(column(x), 10, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits(expected));
    auto inPlace = column(x);
    M_Binarize2(inPlace, 10, 1);
    EXPECT_THAT(cellsOf(inPlace), SameBits(expected));
}

TEST(Binarize, MissingCellsStayInTheCopyAndBecomeOneInPlace)
{
    const double below = std::nextafter(M, -infinity);
    const Doubles x{M, 0, below, NaN, infinity, -infinity};
    auto out = filled(6, 1, 77);
    M_Binarize(column(x), 6, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({M, 0, 1, 1, 1, 1})) << "only the exact pattern is missing";
    auto inPlace = column(x);
    M_Binarize2(inPlace, 6, 1);
    EXPECT_THAT(cellsOf(inPlace), SameBits({1, 0, 1, 1, 1, 1}));
    TableColumns columns(6, 1, x);
    M_Binarize2SPV(columns, 6, 1);
    EXPECT_THAT(columns.cells(), SameBits({1, 0, 1, 1, 1, 1}));
}

TEST(Binarize, TheDimensionsPassedAndNoMore)
{
    const auto x = byColumns({{5, 5, 5}, {0, 5, 5}, {5, 5, 5}});
    auto out = filled(2, 3, 77);
    M_Binarize(x, 1, 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 77, 0, 77, 77, 77}));
    auto inPlace = byColumns({{5, 5}, {0, 5}, {5, 5}});
    M_Binarize2(inPlace, 1, 2);
    EXPECT_THAT(cellsOf(inPlace), SameBits({1, 5, 0, 5, 5, 5}));
    TableColumns columns(2, 3, {5, 5, 0, 5, 5, 5});
    M_Binarize2SPV(columns, 1, 2);
    EXPECT_THAT(columns.cells(), SameBits({1, 5, 0, 5, 5, 5}));
    M_Binarize2(inPlace, 0, 3);
    M_Binarize2(inPlace, 2, 0);
    EXPECT_THAT(cellsOf(inPlace), SameBits({1, 5, 0, 5, 5, 5}));
}

TEST(Binarize, CellsBeyondTheTables)
{
    auto out = filled(3, 1, 77);
    M_Binarize(column({0}), 2, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({0, 1, 77})) << "a cell beyond the table is -1";
    auto inPlace = column({0, 5});
    M_Binarize2(inPlace, 5, 3);
    EXPECT_THAT(cellsOf(inPlace), SameBits({0, 1}));
    TableColumns columns(2, 2, {0, 5, 5, 0});
    M_Binarize2SPV(columns, 3, 2);
    EXPECT_THAT(columns.cells(), SameBits({0, 1, 1, 0}));
}

TEST(Binarize, FlatFormsOverRandomTables)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int rows = data.integer(1, 8);
        const int cols = data.integer(1, 4);
        const auto count = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
        const Doubles x = data.withSpecials(data.wholes(count, -1, 1), 0.2);
        Doubles copied;
        Doubles inPlace;
        for (const double cell : x) {
            inPlace.push_back(std::fabs(cell) < epsilon ? 0.0 : 1.0);
            copied.push_back(sameBits(cell, M) ? M : inPlace.back());
        }
        Guarded<double> table(x);
        Guarded<double> out(data.leftovers(count));
        VB_M_Binarize(table, rows, cols, out);
        EXPECT_THAT(out.values(), SameBits(copied));
        EXPECT_TRUE(table.untouched());
        VB_M_Binarize2(table, rows, cols);
        EXPECT_THAT(table.values(), SameBits(inPlace));
        ArrayOfColumns columns = numberColumns(rows, cols, x);
        VB_M_Binarize2SPV(columns, rows, cols);
        EXPECT_THAT(columns.numbers(), SameBits(inPlace));
    }
}

} // namespace

} // namespace vecmat::test
