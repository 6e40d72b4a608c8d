#include "elementary/distances.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <cmath>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 500;

template <class Coordinate>
void referenceDistances(matrix* out, matrix* w, int coordinates, int points, Coordinate coordinate)
{
    for (int j = 1; j <= points; ++j) {
        out->vbset(j, j, 0.0);
        for (int k = j + 1; k <= points; ++k) {
            const double squared = sumOf(coordinates, [&](int i) {
                const double d = coordinate(i, j) - coordinate(i, k);
                return w->vbget(i, 1) * (d * d);
            });
            out->vbset(j, k, std::sqrt(squared));
            out->vbset(k, j, std::sqrt(squared));
        }
    }
}

TEST(EuclidDist2, FollowsThePlainLoopBetweenColumns)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), w = c.operand(rows, 1);
        auto out = c.existing(cols, cols), expected = copyOf(out);
        const short option = c.data.chance(0.5) ? 0 : 1; // anything but -1
        M_EuclidDist2(a.get(), rows, cols, out.get(), w.get(), option, -99);
        referenceDistances(expected.get(), w.get(), rows, cols, [&](int i, int j) { return at(a.get(), i, j); });
        expectSame(out, expected);
    });
}

TEST(EuclidDist2, FollowsThePlainLoopBetweenAsManyRowsAsTheLastArgument)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), w = c.operand(cols, 1);
        auto out = c.existing(rows, rows), expected = copyOf(out);
        M_EuclidDist2(a.get(), -99, cols, out.get(), w.get(), -1, rows);
        referenceDistances(expected.get(), w.get(), cols, rows, [&](int i, int j) { return at(a.get(), j, i); });
        expectSame(out, expected);
    });
}

TEST(EuclidDist2, WeightsCoordinates)
{
    const auto a = byColumns({{0, 0, 5}, {3, 4, 6}});
    auto out = filled(2, 2, 7.0);
    M_EuclidDist2(a.get(), 3, 2, out.get(), column({1, 1, 0}), 0, 3);
    EXPECT_THAT(cellsOf(out), SameBits({0.0, 5.0, 5.0, 0.0}));
    auto rows = filled(3, 3, 7.0);
    M_EuclidDist2(a.get(), 3, 2, rows.get(), column({1, 4}), -1, 2);
    EXPECT_THAT(cellsOf(rows), SameBits({0.0, 2.0, 7.0, 2.0, 0.0, 7.0, 7.0, 7.0, 7.0}));
}

TEST(EuclidDist2, MissingCellsAreNumbers)
{
    auto out = filled(3, 3, 7.0);
    M_EuclidDist2(byRows({{M, M, 0}}), 1, 3, out.get(), column({1}), 0, 1);
    EXPECT_THAT(cellsOf(out), SameBits({0.0, 0.0, infinity, 0.0, 0.0, infinity, infinity, infinity, 0.0}));
}

template <class Coordinate>
void referenceToVector(matrix* out, matrix* v, int coordinates, int points, Coordinate coordinate)
{
    for (int j = 1; j <= points; ++j) {
        double sum = 0.0;
        int count = 0;
        for (int i = 1; i <= coordinates; ++i) {
            const double x = coordinate(i, j), y = v->vbget(i, 1);
            if (x > M && y > M) {
                sum += (x - y) * (x - y);
                ++count;
            }
        }
        out->vbset(j, 1, count > 0 ? std::sqrt(sum / count) : M);
    }
}

TEST(EuclidDistToVector, FollowsThePlainLoopEitherWay)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), ofRows = c.operand(rows, 1), ofCols = c.operand(cols, 1);
        auto columns = c.existing(cols, 1), expectedColumns = copyOf(columns);
        auto byRow = c.existing(rows, 1), expectedRows = copyOf(byRow);
        const short option = c.data.chance(0.5) ? 0 : 1; // anything but -1
        M_EuclidDistToVector(a.get(), rows, cols, ofRows.get(), option, columns.get());
        M_EuclidDistToVector(a.get(), rows, cols, ofCols.get(), -1, byRow.get());
        referenceToVector(expectedColumns.get(), ofRows.get(), rows, cols,
                          [&](int i, int j) { return at(a.get(), i, j); });
        referenceToVector(expectedRows.get(), ofCols.get(), cols, rows,
                          [&](int i, int j) { return at(a.get(), j, i); });
        expectSame(columns, expectedColumns);
        expectSame(byRow, expectedRows);
    });
}

TEST(EuclidDistToVector, CountsTheCoordinatesAboveTheMissingValue)
{
    auto out = filled(1, 1, 7.0);
    M_EuclidDistToVector(byColumns({{1, M, belowMissing, -infinity, notANumber, 5}}), 6, 1, column({4, 0, 0, 0, 0, 1}),
                         0, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({std::sqrt(25.0 / 2.0)}));
    M_EuclidDistToVector(byColumns({{1, 2, 3}}), 3, 1, column({M, notANumber, 1}), 0, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({2.0}));
}

TEST(EuclidDistToVector, WithoutACoordinateTheDistanceIsMissing)
{
    auto out = filled(2, 1, 7.0);
    M_EuclidDistToVector(byColumns({{M, M}, {1, 1}}), 2, 2, column({1, 1}), 0, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({M, 0.0}));
    M_EuclidDistToVector(byColumns({{1}, {2}}), 0, 2, column({1}), 0, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({M, M}));
}

TEST(DistanceExports, OpenTheirArraysByTheOption)
{
    forCases(150, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.exact(rows, cols), ofRows = c.exact(rows, 1), ofCols = c.exact(cols, 1);
        auto flatA = flat(a), flatOfRows = flat(ofRows), flatOfCols = flat(ofCols);
        auto columns = c.exactResult(cols, cols), byRow = c.exactResult(rows, rows);
        auto columnsToV = c.exactResult(cols, 1), rowsToV = c.exactResult(rows, 1);
        auto flatColumns = flat(columns), flatByRow = flat(byRow), flatColumnsToV = flat(columnsToV),
             flatRowsToV = flat(rowsToV);
        M_EuclidDist2(a.get(), rows, cols, columns.get(), ofRows.get(), 0, rows);
        VB_M_EuclidDist2(flatA, rows, cols, flatColumns, flatOfRows, 0);
        expectFlat(flatColumns, columns);
        M_EuclidDist2(a.get(), rows, cols, byRow.get(), ofCols.get(), -1, rows);
        VB_M_EuclidDist2(flatA, rows, cols, flatByRow, flatOfCols, -1);
        expectFlat(flatByRow, byRow);
        M_EuclidDistToVector(a.get(), rows, cols, ofRows.get(), 1, columnsToV.get());
        Cpp_M_EuclidDistToVector(flatA, rows, cols, flatOfRows, 1, flatColumnsToV);
        expectFlat(flatColumnsToV, columnsToV);
        M_EuclidDistToVector(a.get(), rows, cols, ofCols.get(), -1, rowsToV.get());
        Cpp_M_EuclidDistToVector(flatA, rows, cols, flatOfCols, -1, flatRowsToV);
        expectFlat(flatRowsToV, rowsToV);
        expectUntouched(flatA, flatOfRows, flatOfCols);
    });
}

} // namespace
