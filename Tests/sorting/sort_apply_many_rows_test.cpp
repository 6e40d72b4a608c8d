// Orders applied to few and many rows against the loop over rows and columns, with the checks of the tables.
#include "sorting/sort_apply.h"

#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vecmat::test;

namespace {

int truncatedToInt(double x)
{
    return x > -2147483649.0 && x < 2147483648.0 ? static_cast<int>(x) : std::numeric_limits<int>::min();
}

/// The cell at a linear position, which is all that is checked.
template <class Number>
Number checked(const Number* cells, std::size_t count, int row, int col, int height)
{
    const unsigned position = static_cast<unsigned>(row) + static_cast<unsigned>(col) * static_cast<unsigned>(height);
    return position < count ? cells[position] : Number{-1};
}

/// Row by row, in whatever memory: the order is read as the rows are written.
template <class Source, class Out, class Convert>
void applyRowByRow(const Source* source, std::size_t sourceCount, int height, int nRows, int nCols, const double* order,
                   Out* out, int outHeight, Convert convert)
{
    std::fill_n(out, static_cast<std::size_t>(nRows) * static_cast<std::size_t>(nCols), Out{0});
    for (int i = 0; i < nRows; ++i) {
        const int row = truncatedToInt(order[i] - 1.0);
        for (int j = 0; j < nCols; ++j)
            out[i + std::ptrdiff_t{j} * outHeight] = convert(checked(source, sourceCount, row, j, height));
    }
}

constexpr auto unchanged = [](auto cell) { return cell; };
constexpr int cols = 3;

class SortApplyToManyRows : public testing::TestWithParam<int>
{
protected:
    const int n = GetParam();
    const std::size_t rows = static_cast<std::size_t>(n);
    RandomData random{static_cast<std::uint64_t>(55 + n)};
    testing::ScopedTrace trace{__FILE__, __LINE__, random.seed()};
    const std::vector<double> cells = random.withSpecials(random.normals(rows * cols), 0.1);

    /// Orders that stay inside their columns, and orders that do not.
    std::vector<std::vector<double>> orders()
    {
        std::vector<double> inside = random.uniforms(rows, 0.01, n + 0.99);
        std::vector<double> whole = random.wholes(rows, 1, n);
        std::vector<double> sliding = random.wholes(rows, -n, 2 * n);
        std::vector<double> one = whole;
        one[rows / 2] = n + 1;
        std::vector<double> before = whole;
        before[rows / 2] = 0.0;
        return {inside, whole, sliding, one, before, random.withSpecials(whole, 0.2)};
    }
};

TEST_P(SortApplyToManyRows, ofDoubles)
{
    for (std::vector<double>& order : orders()) {
        std::vector<double> expected(cells.size());
        applyRowByRow(cells.data(), cells.size(), n, n, cols, order.data(), expected.data(), n, unchanged);
        std::vector<double> source = cells;
        std::vector<double> out(cells.size(), 0.5);
        VB_SortApply(source.data(), n, cols, order.data(), out.data());
        EXPECT_THAT(out, SameBits(expected));
        EXPECT_THAT(source, SameBits(cells));
        VB_SortApply2(source.data(), n, cols, order.data());
        EXPECT_THAT(source, SameBits(expected));
    }
}

TEST_P(SortApplyToManyRows, ofInts)
{
    const std::vector<int> ints = random.integers(rows * cols, -100, 100);
    for (std::vector<double>& order : orders()) {
        std::vector<int> expected(ints.size());
        applyRowByRow(ints.data(), ints.size(), n, n, cols, order.data(), expected.data(), n, unchanged);
        std::vector<int> source = ints;
        std::vector<int> out(ints.size(), 7);
        VB_SortApplyLng(source.data(), n, cols, order.data(), out.data());
        EXPECT_EQ(out, expected);
        VB_SortApply2Lng(source.data(), n, cols, order.data());
        EXPECT_EQ(source, expected);
    }
}

TEST_P(SortApplyToManyRows, ofAColumnThatTheSourceLacks)
{
    for (std::vector<double>& order : orders()) {
        std::vector<double> expected(rows * (cols + 1));
        applyRowByRow(cells.data(), cells.size(), n, n, cols + 1, order.data(), expected.data(), n, unchanged);
        Owned<matrix> made, prepared = filled(n, cols + 1, 0.5);
        SortApply(table(n, cols, cells), n, cols + 1, column(order), made.reference());
        EXPECT_THAT(cellsOf(made), SameBits(expected));
        SortApply(table(n, cols, cells), n, cols + 1, column(order), prepared.reference());
        EXPECT_THAT(cellsOf(prepared), SameBits(expected));
        const auto inPlace = table(n, cols, cells);
        SortApply2(inPlace, n, cols + 1, column(order));
        expected.resize(cells.size());
        EXPECT_THAT(cellsOf(inPlace), SameBits(expected));
    }
}

TEST_P(SortApplyToManyRows, ofOtherHeightsAndTypes)
{
    // Half of the rows, into a larger table, from ints to doubles and back.
    const int half = n / 2;
    const std::vector<int> ints = random.integers(rows * cols, -100, 100);
    for (const std::vector<double>& order : orders()) {
        auto larger = filled(n, cols, 0.5);
        std::vector<double> expected(rows * cols, 0.5);
        applyRowByRow(cells.data(), cells.size(), n, half, cols, order.data(), expected.data(), n, unchanged);
        SortApply(table(n, cols, cells), half, cols, column(order), larger.reference());
        EXPECT_THAT(cellsOf(larger), SameBits(expected));

        Owned<matrix> widened;
        expected.assign(static_cast<std::size_t>(half) * cols, 0.5);
        applyRowByRow(ints.data(), ints.size(), n, half, cols, order.data(), expected.data(), half, unchanged);
        SortApply(intTable(n, cols, ints), half, cols, column(order), widened.reference());
        EXPECT_THAT(cellsOf(widened), SameBits(expected));

        Owned<matrixInt> narrowed;
        std::vector<int> expectedInts(static_cast<std::size_t>(half) * cols);
        applyRowByRow(cells.data(), cells.size(), n, half, cols, order.data(), expectedInts.data(), half,
                      truncatedToInt);
        SortApply(table(n, cols, cells), half, cols, column(order), narrowed.reference());
        EXPECT_EQ(cellsOf(narrowed), expectedInts);

        auto inPlace = table(n, cols, cells);
        std::vector<double> corner(static_cast<std::size_t>(half) * cols);
        applyRowByRow(cells.data(), cells.size(), n, half, cols, order.data(), corner.data(), half, unchanged);
        expected = cells;
        for (int j = 0; j < cols; ++j)
            std::copy_n(corner.begin() + std::ptrdiff_t{j} * half, half, expected.begin() + std::ptrdiff_t{j} * n);
        SortApply2(inPlace.get(), half, cols, column(order));
        EXPECT_THAT(cellsOf(inPlace), SameBits(expected));
    }
}

TEST_P(SortApplyToManyRows, ofSharedMemory)
{
    // The order and the source lie somewhere in the result: the flat form copies both; tables are read cell by cell.
    const std::vector<double> shared = random.wholes(rows * (2 * cols + 1), 1, n);
    const auto total = static_cast<std::ptrdiff_t>(shared.size());
    for (const std::ptrdiff_t at : {std::ptrdiff_t{0}, std::ptrdiff_t{1}, std::ptrdiff_t{n / 2},
                                    std::ptrdiff_t{n} * cols, std::ptrdiff_t{n} * (cols + 1)})
    {
        std::vector<double> actual = shared;
        std::vector<double> expected = shared;
        const std::vector<double> copy(shared.begin() + at, shared.begin() + at + std::ptrdiff_t{n} * cols);
        VB_SortApply(actual.data() + at, n, cols, actual.data() + (total - n), actual.data());
        applyRowByRow(copy.data(), copy.size(), n, n, cols, expected.data() + (total - n), expected.data(), n,
                      unchanged);
        EXPECT_THAT(actual, SameBits(expected)) << at;

        actual = expected = shared;
        VB_SortApply(actual.data() + std::ptrdiff_t{n} * (cols + 1), n, cols, actual.data() + at, actual.data());
        const std::vector<double> behind(shared.begin() + std::ptrdiff_t{n} * (cols + 1), shared.end());
        applyRowByRow(behind.data(), behind.size(), n, n, cols, shared.data() + at, expected.data(), n, unchanged);
        EXPECT_THAT(actual, SameBits(expected)) << at;

        actual = expected = shared;
        matrix source(n, cols, actual.data() + at, true);
        matrix order(n, 1, actual.data() + (total - n), true);
        matrix result(n, cols, actual.data(), true);
        matrix* out = &result;
        SortApply(&source, n, cols, &order, out);
        applyRowByRow(expected.data() + at, rows * cols, n, n, cols, expected.data() + (total - n), expected.data(), n,
                      unchanged);
        EXPECT_THAT(actual, SameBits(expected)) << at;

        // In place, everything is read first.
        actual = expected = shared;
        VB_SortApply2(actual.data(), n, cols, actual.data() + at);
        std::vector<double> working(rows * cols);
        applyRowByRow(shared.data(), rows * cols, n, n, cols, shared.data() + at, working.data(), n, unchanged);
        std::copy(working.begin(), working.end(), expected.begin());
        EXPECT_THAT(actual, SameBits(expected)) << at;
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, SortApplyToManyRows, testing::Values(1, 2, 31, 32, 33, 64, 65, 500));

} // namespace
