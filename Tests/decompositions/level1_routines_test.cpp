// The level-1 kernels against plain loops over checked linear positions.
#include "decompositions/level1_routines.h"

#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// A vector inside a table: element k, from 1, at a linear position that may lie outside.
class Walk
{
public:
    Walk(matrix* x, int count, int inc, int row, int col) : x_(x), inc_(inc)
    {
        first_ = row - 1LL + (col - 1LL) * x->nRows;
        if (inc < 0)
            first_ += (1LL - count) * inc;
    }
    double get(int k) const { return inside(k) ? x_->X[position(k)] : -1.0; }
    void set(int k, double value) const
    {
        if (inside(k))
            x_->X[position(k)] = value;
    }

private:
    long long position(int k) const { return first_ + (k - 1LL) * inc_; }
    bool inside(int k) const { return position(k) >= 0 && position(k) < static_cast<long long>(x_->nElems); }

    matrix* x_;
    long long first_;
    int inc_;
};

double normOf(int count, const Walk& x)
{
    if (count < 1)
        return 0.0;
    if (count == 1)
        return std::fabs(x.get(1));
    double scale = 0.0;
    double ssq = 1.0;
    for (int k = 1; k <= count; ++k) {
        if (x.get(k) == 0.0)
            continue;
        const double size = std::fabs(x.get(k));
        if (size > scale) {
            ssq = 1.0 + ssq * ((scale / size) * (scale / size));
            scale = size;
        } else {
            ssq = ssq + (size / scale) * (size / scale);
        }
    }
    return scale * std::sqrt(ssq);
}

double dotOf(int count, const Walk& x, const Walk& y)
{
    double sum = 0.0;
    for (int k = 1; k <= count; ++k)
        sum += x.get(k) * y.get(k);
    return sum;
}

/// Two vectors of a call.
struct Places
{
    int count;
    int incx;
    int incy;
    int rowx;
    int colx;
    int rowy;
    int coly;
};

Places drawnPlaces(RandomData& data)
{
    return {data.integer(-1, 9), data.integer(-3, 3), data.integer(-3, 3), data.integer(-1, 6),
            data.integer(-1, 5), data.integer(-1, 6), data.integer(-1, 5)};
}

constexpr int rounds = 1500;

TEST(Dnrm2, HasTheBitsOfScaleAndSumOfSquares)
{
    RandomData data(8141);
    SCOPED_TRACE(data);
    for (int round = 0; round < rounds; ++round) {
        const Places at = drawnPlaces(data);
        const Owned<matrix> x = table(5, 4, data.withSpecials(data.wholes(20, -2, 2), round % 2 == 0 ? 0.0 : 0.1));
        const double expected = at.incx < 1 ? 0.0 : normOf(at.count, Walk(x, at.count, at.incx, at.rowx, at.colx));
        EXPECT_THAT(DNRM2(at.count, x, at.incx, at.rowx, at.colx), SameBits(expected)) << round;
    }
}

TEST(Dnrm2, NeitherOverflowsNorUnderflowsOnTheWay)
{
    EXPECT_THAT(DNRM2(2, column({3e300, 4e300}), 1, 1, 1), SameBits(4e300 * std::sqrt(1.0 + 0.75 * 0.75)));
    EXPECT_NEAR(DNRM2(2, column({3e-300, 4e-300}), 1, 1, 1) / 5e-300, 1.0, 1e-15);
    EXPECT_THAT(DNRM2(3, column({0, 0, 0}), 1, 1, 1), SameBits(0.0));
    EXPECT_THAT(DNRM2(1, column({-0.0}), 1, 1, 1), SameBits(0.0));
}

TEST(Dnrm2, AloneRefusesAnIncrementBelowOne)
{
    const Owned<matrix> x = column({3, 4});
    EXPECT_THAT(DNRM2(2, x, 0, 1, 1), SameBits(0.0));
    EXPECT_THAT(DNRM2(2, x, -1, 1, 1), SameBits(0.0));
    EXPECT_THAT(DNRM2(1, x, 0, 1, 1), SameBits(0.0));
    EXPECT_THAT(DNRM2(0, x, 1, 1, 1), SameBits(0.0));
    EXPECT_THAT(DNRM2(-1, x, 1, 1, 1), SameBits(0.0));
    EXPECT_THAT(ddot(2, x, -1, x, -1, 1, 1, 1, 1), SameBits(25.0));
}

TEST(Dnrm2, OfOneElementOutsideTheTableIsOne)
{
    const Owned<matrix> x = column({3, 4});
    EXPECT_THAT(DNRM2(1, x, 1, 3, 1), SameBits(1.0));
    EXPECT_THAT(DNRM2(1, x, 1, 1, 2), SameBits(1.0));
    EXPECT_THAT(DNRM2(1, x, 1, 0, 1), SameBits(1.0));
    EXPECT_THAT(DNRM2(4, column({1, 1}), 1, 1, 1), SameBits(2.0)) << "two elements of -1.0 beyond the end";
}

TEST(Dscal, HasTheBitsOfThePlainLoop)
{
    RandomData data(8142);
    SCOPED_TRACE(data);
    for (int round = 0; round < rounds; ++round) {
        const Places at = drawnPlaces(data);
        const double factor = round % 3 == 0 ? data.integer(-1, 1) : data.uniform(-2, 2);
        const Owned<matrix> x = table(5, 4, data.withSpecials(data.normals(20), round % 2 == 0 ? 0.0 : 0.1));
        matrix expected(*x);
        const Walk walk(&expected, at.count, at.incx, at.rowx, at.colx);
        for (int k = 1; k <= at.count; ++k)
            walk.set(k, factor * walk.get(k));
        dscal(at.count, factor, x, at.incx, at.rowx, at.colx);
        EXPECT_THAT(cellsOf(x), SameBits(cellsOf<matrix>(&expected))) << round;
    }
}

TEST(Dscal, MultipliesByZeroAndOneLikeByAnyOther)
{
    const Owned<matrix> x = column({-3, notANumber, 5});
    dscal(2, 0.0, x, 1, 1, 1);
    EXPECT_THAT(cellsOf(x), SameBits({-0.0, notANumber, 5}));
}

TEST(Ddot, AddsInElementOrder)
{
    RandomData data(8143);
    SCOPED_TRACE(data);
    for (int round = 0; round < rounds; ++round) {
        const Places at = drawnPlaces(data);
        const Owned<matrix> x = table(5, 4, data.normals(20));
        const Owned<matrix> y = table(3, 6, data.withSpecials(data.normals(18), round % 2 == 0 ? 0.0 : 0.1));
        const double expected =
            dotOf(at.count, Walk(x, at.count, at.incx, at.rowx, at.colx), Walk(y, at.count, at.incy, at.rowy, at.coly));
        EXPECT_THAT(ddot(at.count, x, at.incx, y, at.incy, at.rowx, at.colx, at.rowy, at.coly), SameBits(expected))
            << round;
    }
    // Groups of five added first would give another sum.
    const Owned<matrix> x = column({1e16, 1, 1, 1, 1, -1e16, 3});
    const Owned<matrix> ones = filled(7, 1, 1.0);
    EXPECT_THAT(ddot(7, x, 1, ones, 1, 1, 1, 1, 1), SameBits(3.0));
}

TEST(Ddot, OfNothingIsZero)
{
    const Owned<matrix> x = column({-0.0, 2});
    EXPECT_THAT(ddot(0, x, 1, x, 1, 1, 1, 1, 1), SameBits(0.0));
    EXPECT_THAT(ddot(-3, x, 1, x, 1, 1, 1, 1, 1), SameBits(0.0));
    EXPECT_THAT(ddot(1, column({-0.0}), 1, column({1.0}), 1, 1, 1, 1, 1), SameBits(0.0)) << "from +0.0";
}

TEST(Daxpy, HasTheBitsOfThePlainLoop)
{
    RandomData data(8144);
    SCOPED_TRACE(data);
    for (int round = 0; round < rounds; ++round) {
        const Places at = drawnPlaces(data);
        const double factor = data.uniform(-2, 2);
        const Owned<matrix> x = table(5, 4, data.normals(20));
        const Owned<matrix> y = table(3, 6, data.normals(18));
        // In some rounds both vectors lie in one table, and may overlap.
        matrix* const target = round % 3 == 0 ? x.get() : y.get();
        matrix expected(*target);
        matrix source(*x);
        matrix* const from = round % 3 == 0 ? &expected : &source;
        const Walk read(from, at.count, at.incx, at.rowx, at.colx);
        const Walk write(&expected, at.count, at.incy, at.rowy, at.coly);
        for (int k = 1; k <= at.count; ++k)
            write.set(k, write.get(k) + factor * read.get(k));
        daxpy(at.count, factor, x, at.incx, target, at.incy, at.rowx, at.colx, at.rowy, at.coly);
        EXPECT_THAT(cellsOf<matrix>(target), SameBits(cellsOf<matrix>(&expected))) << round;
    }
}

TEST(Daxpy, TouchesNothingForAFactorOfExactlyZero)
{
    const Owned<matrix> x = column({notANumber, 1, positiveTwin});
    const Owned<matrix> y = column({1, -0.0, M});
    for (const double zero : {0.0, -0.0}) {
        daxpy(3, zero, x, 1, y, 1, 1, 1, 1, 1);
        EXPECT_THAT(cellsOf(y), SameBits({1, -0.0, M}));
    }
    daxpy(0, 1.0, x, 1, y, 1, 1, 1, 1, 1);
    EXPECT_THAT(cellsOf(y), SameBits({1, -0.0, M}));
    daxpy(3, 5e-324, x, 1, y, 1, 1, 1, 1, 1);
    EXPECT_THAT(cellsOf(y), SameBits({notANumber, 5e-324, M}));
}

/// Each round draws a kernel on two columns, in some rounds of one table, and what it does to two elements.
template <class Draw>
void comparedOnTwoColumns(RandomData& data, Draw drawKernel)
{
    SCOPED_TRACE(data);
    for (int round = 0; round < rounds; ++round) {
        const Places at = drawnPlaces(data);
        const auto [onColumns, onElements] = drawKernel(data);
        const bool oneTable = round % 3 == 0;
        const Owned<matrix> x = table(5, 4, data.normals(20));
        const Owned<matrix> y = table(3, 6, data.normals(18));
        matrix expectedX(*x);
        matrix expectedY(*y);
        const Walk first(&expectedX, at.count, at.incx, 1, at.colx);
        const Walk second(oneTable ? &expectedX : &expectedY, at.count, at.incy, 1, at.coly);
        for (int k = 1; k <= at.count; ++k) {
            const auto [newFirst, newSecond] = onElements(first.get(k), second.get(k));
            second.set(k, newSecond);
            first.set(k, newFirst);
        }
        onColumns(at, x.get(), oneTable ? x.get() : y.get());
        EXPECT_THAT(cellsOf(x), SameBits(cellsOf<matrix>(&expectedX))) << round;
        EXPECT_THAT(cellsOf(y), SameBits(cellsOf<matrix>(&expectedY))) << round;
    }
}

TEST(Drot, HasTheBitsOfThePlainLoop)
{
    RandomData seeded(8145);
    comparedOnTwoColumns(seeded, [](RandomData& data) {
        const double c = data.uniform(-1, 1);
        const double s = data.uniform(-1, 1);
        return std::pair([=](const Places& at, matrix* x,
                             matrix* y) { drot(at.count, x, at.incx, y, at.incy, c, s, at.colx, at.coly); },
                         [=](double a, double b) { return std::pair(c * a + s * b, c * b - s * a); });
    });
}

TEST(Drot, TurnsTheColumnsOfOneTable)
{
    const Owned<matrix> x = byRows({{1, 3}, {2, 4}});
    drot(2, x, 1, x, 1, 0.0, 1.0, 1, 2);
    EXPECT_THAT(cellsOf(x), SameBits({3, 4, -1, -2}));
    drot(0, x, 1, x, 1, 0.0, 1.0, 1, 2);
    EXPECT_THAT(cellsOf(x), SameBits({3, 4, -1, -2}));
}

TEST(SwapVectors, HasTheBitsOfThePlainLoop)
{
    RandomData seeded(8146);
    comparedOnTwoColumns(seeded, [](RandomData&) {
        return std::pair([](const Places& at, matrix* x,
                            matrix* y) { M_SwapVectors(at.count, x, at.incx, y, at.incy, at.colx, at.coly); },
                         [](double a, double b) { return std::pair(b, a); });
    });
}

TEST(Kernels, WalkOnIntoTheNextColumn)
{
    const Owned<matrix> x = byColumns({{1, 2}, {3, 4}, {5, 6}});
    dscal(3, 10, x, 1, 2, 1);
    EXPECT_THAT(cellsOf(x), SameBits({1, 20, 30, 40, 5, 6}));
    dscal(3, 10, x, 2, 2, 1);
    EXPECT_THAT(cellsOf(x), SameBits({1, 200, 30, 400, 5, 60}));
}

TEST(Kernels, BeginANegativeWalkAtItsFarEnd)
{
    // Element 1 of the walk by -1 is the third cell.
    const Owned<matrix> x = column({1, 2, 3});
    const Owned<matrix> y = column({0, 0, 0});
    daxpy(3, 1.0, x, -1, y, 1, 1, 1, 1, 1);
    EXPECT_THAT(cellsOf(y), SameBits({3, 2, 1}));
    const Owned<matrix> wide = column({1, 2, 3, 4, 5});
    daxpy(3, 1.0, wide, -2, y, 1, 1, 1, 1, 1);
    EXPECT_THAT(cellsOf(y), SameBits({8, 5, 2}));
    // An increment of 0 stays where it is.
    daxpy(3, 1.0, wide, 1, y, 0, 1, 1, 2, 1);
    EXPECT_THAT(cellsOf(y), SameBits({8, 11, 2}));
}

TEST(Kernels, ReadMinusOneAndWriteNothingOutside)
{
    const Owned<matrix> x = column({5, 6});
    const Owned<matrix> y = column({1, 2, 3, 4});
    daxpy(4, 1.0, x, 1, y, 1, 1, 1, 1, 1);
    EXPECT_THAT(cellsOf(y), SameBits({6, 8, 2, 3}));
    daxpy(4, 1.0, y, 1, x, 1, 1, 1, 2, 1);
    EXPECT_THAT(cellsOf(x), SameBits({5, 12}));
    M_SwapVectors(3, x, 1, y, 1, 1, 1);
    EXPECT_THAT(cellsOf(x), SameBits({6, 8}));
    EXPECT_THAT(cellsOf(y), SameBits({5, 12, -1, 3})) << "the third cell takes the -1.0 of a read outside";
}

TEST(Kernels, SurviveExtremePlaces)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    const Owned<matrix> x = column({5, 6});
    for (const int extreme : {lowest, lowest + 1, highest}) {
        dscal(2, 3.0, x, 1, extreme, 1);
        dscal(2, 3.0, x, 1, 1, extreme);
        ddot(3, x, extreme, x, 1, 1, 1, 1, 1);
    }
    EXPECT_EQ(x->nElems, 2u);
}

// ---- rotations ----

TEST(Drotg, BuildsTheRotationOfTheLevelOneRoutines)
{
    struct Case
    {
        double a, b, r, z, c, s;
    };
    for (const Case& one : {Case{3, 4, 5, 1 / 0.6, 0.6, 0.8}, Case{4, 3, 5, 0.6, 0.8, 0.6},
                            Case{-4, 3, -5, -0.6, 0.8, -0.6}, Case{3, -4, -5, 1 / -0.6, -0.6, 0.8}})
    {
        double a = one.a;
        double b = one.b;
        double c = 7;
        double s = 7;
        drotg(&a, &b, &c, &s);
        EXPECT_DOUBLE_EQ(a, one.r);
        EXPECT_DOUBLE_EQ(b, one.z);
        EXPECT_DOUBLE_EQ(c, one.c);
        EXPECT_DOUBLE_EQ(s, one.s);
    }
}

TEST(Drotg, HasTheBitsOfTheSteps)
{
    RandomData data(8147);
    SCOPED_TRACE(data);
    for (int round = 0; round < rounds; ++round) {
        std::vector<double> pair = data.wholes(2, -3, 3);
        if (round % 2 == 0)
            pair = data.withSpecials(data.normals(2), 0.2);
        double a = pair[0];
        double b = pair[1];
        double c = 7;
        double s = 7;
        drotg(&a, &b, &c, &s);

        const double sizeA = std::fabs(pair[0]);
        const double sizeB = std::fabs(pair[1]);
        const double roe = sizeA > sizeB ? pair[0] : pair[1];
        const double scale = sizeA + sizeB;
        if (scale == 0.0) {
            EXPECT_THAT((std::vector<double>{a, b, c, s}), SameBits({0, 0, 1, 0}));
            continue;
        }
        const double root = std::sqrt((pair[0] / scale) * (pair[0] / scale) + (pair[1] / scale) * (pair[1] / scale));
        const double r = scale * root * (roe >= 0.0 ? 1.0 : -1.0);
        const double cosine = pair[0] / r;
        const double sine = pair[1] / r;
        double z = sizeA > sizeB ? sine : 1.0;
        if (sizeB >= sizeA && cosine != 0.0)
            z = 1.0 / cosine;
        EXPECT_THAT((std::vector<double>{a, b, c, s}), SameBits({r, z, cosine, sine})) << shown(pair);
    }
}

TEST(Drotg, HasItsSpecialCases)
{
    const auto rotated = [](double a, double b) {
        double c = 7;
        double s = 7;
        drotg(&a, &b, &c, &s);
        return std::vector<double>{a, b, c, s};
    };
    EXPECT_THAT(rotated(0, 0), SameBits({0, 0, 1, 0}));
    EXPECT_THAT(rotated(-0.0, -0.0), SameBits({0, 0, 1, 0}));
    EXPECT_THAT(rotated(0, 2), SameBits({2, 1, 0, 1}));
    EXPECT_THAT(rotated(0, -2), SameBits({-2, 1, -0.0, 1}));
    EXPECT_THAT(rotated(-2, 0), SameBits({-2, -0.0, 1, -0.0}));
    // Of equal sizes the second decides the sign.
    EXPECT_LT(rotated(1, -1)[0], 0.0);
    EXPECT_GT(rotated(-1, 1)[0], 0.0);
}

// ---- arrays of columns ----

TEST(ColumnKernels, HaveTheBitsOfThePlainKernelsOnOneColumn)
{
    RandomData data(8148);
    SCOPED_TRACE(data);
    for (int round = 0; round < rounds; ++round) {
        const int rows = data.integer(1, 6);
        Places at = drawnPlaces(data);
        at.colx = data.integer(1, 3);
        at.coly = data.integer(1, 3);
        const double a = data.uniform(-2, 2);
        const double c = data.uniform(-1, 1);
        const std::vector<double> cells = data.normals(static_cast<std::size_t>(3 * rows));
        const auto part = [&](int col) {
            return std::vector<double>(cells.begin() + (col - 1) * rows, cells.begin() + col * rows);
        };
        const std::vector<std::function<double(TableColumns&, matrix*, matrix*)>> calls = {
            [&](TableColumns& all, matrix* x, matrix*) {
                return DNRM2SPV(at.count, all, at.incx, at.rowx, at.colx) - DNRM2(at.count, x, at.incx, at.rowx, 1);
            },
            [&](TableColumns& all, matrix* x, matrix*) {
                dscalSPV(at.count, a, all, at.incx, at.rowx, at.colx);
                dscal(at.count, a, x, at.incx, at.rowx, 1);
                return 0.0;
            },
            [&](TableColumns& all, matrix* x, matrix* y) {
                return ddotSPV(at.count, all, at.incx, all, at.incy, at.rowx, at.colx, at.rowy, at.coly) -
                       ddot(at.count, x, at.incx, y, at.incy, at.rowx, 1, at.rowy, 1);
            },
            [&](TableColumns& all, matrix* x, matrix* y) {
                daxpySPV(at.count, a, all, at.incx, all, at.incy, at.rowx, at.colx, at.rowy, at.coly);
                daxpy(at.count, a, x, at.incx, y, at.incy, at.rowx, 1, at.rowy, 1);
                return 0.0;
            },
            [&](TableColumns& all, matrix* x, matrix* y) {
                drotSPV(at.count, all, at.incx, all, at.incy, c, a, at.colx, at.coly);
                drot(at.count, x, at.incx, y, at.incy, c, a, 1, 1);
                return 0.0;
            },
            [&](TableColumns& all, matrix* x, matrix* y) {
                M_SwapVectorsSPV(at.count, all, at.incx, all, at.incy, at.colx, at.coly);
                M_SwapVectors(at.count, x, at.incx, y, at.incy, 1, 1);
                return 0.0;
            }};
        for (std::size_t k = 0; k < calls.size(); ++k) {
            TableColumns all(rows, 3, cells);
            const Owned<matrix> x = column(part(at.colx));
            const Owned<matrix> other = column(part(at.coly));
            matrix* const y = at.colx == at.coly ? x.get() : other.get();
            EXPECT_THAT(calls[k](all, x, y), SameBits(0.0)) << round << " " << k;
            EXPECT_THAT(all.column(at.colx - 1), SameBits(cellsOf(x))) << round << " " << k;
            EXPECT_THAT(all.column(at.coly - 1), SameBits(cellsOf<matrix>(y))) << round << " " << k;
        }
    }
}

TEST(ColumnKernels, StayInsideTheirTable)
{
    TableColumns x(2, 2, {1, 2, 3, 4});
    dscalSPV(3, 10, x, 1, 2, 1);
    EXPECT_THAT(x.cells(), SameBits({1, 20, 3, 4}));
    EXPECT_THAT(DNRM2SPV(1, x, 1, 3, 1), SameBits(1.0));
    EXPECT_THAT(ddotSPV(3, x, 1, x, 1, 1, 1, 1, 2), SameBits(1 * 3 + 20 * 4 + 1.0));
}

TEST(ColumnKernels, HaveNoColumnBeforeTheFirst)
{
    TableColumns x(2, 2, {1, 2, 3, 4});
    dscalSPV(2, 10, x, 1, 1, 0);
    M_SwapVectorsSPV(2, x, 1, x, 1, 0, 1);
    EXPECT_THAT(x.cells(), SameBits({-1, -1, 3, 4}));
    EXPECT_THAT(ddotSPV(2, x, 1, x, 1, 1, -1, 1, 2), SameBits(-7.0));
}

} // namespace
} // namespace vecmat::test
