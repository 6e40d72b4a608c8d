// Squared cosines, their marks, and the point farthest from the origin.
#include "fitting/biplots.h"

#include "elementary/product_cases.h"

#include <cmath>
#include <limits>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 600;
constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// ---- squared cosines ------------------------------------------------------------------------------------------------

template <class Storage>
void referenceCosines(Storage a, int n, int k, matrix* out)
{
    std::vector<double> squares;
    for (int i = 1; i <= n; ++i) {
        bool missing = false;
        for (int j = 1; j <= k; ++j)
            missing = missing || at(a, i, j) == M;
        squares.push_back(missing ? M : sumOf(k, [&](int j) { return at(a, i, j) * at(a, i, j); }));
    }
    for (int i = 1; i <= n; ++i)
        for (int j = 1; j <= k; ++j) {
            const double square = squares[static_cast<std::size_t>(i) - 1];
            if (square == M)
                out->vbset(i, j, M);
            if (square > 1e-12)
                out->vbset(i, j, at(a, i, j) * at(a, i, j) / square);
        }
}

TEST(ComputeCosines, FollowThePlainLoopOnTablesAndColumns)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count(), k = c.count();
        const auto a = c.operand(n, k);
        auto columns = c.columnOperand(n, k);
        auto out = c.existing(n, k), expected = copyOf(out);
        cComputeCosines(a, n, k, out);
        referenceCosines(a.get(), n, k, expected);
        expectSame(out, expected);

        auto ofColumns = c.existing(n, k), expectedOfColumns = copyOf(ofColumns);
        cComputeCosinesSPV(columns, n, k, ofColumns);
        referenceCosines(columns.get(), n, k, expectedOfColumns);
        expectSame(ofColumns, expectedOfColumns);
    });
}

TEST(ComputeCosines, AreTheSharesOfTheAxes)
{
    auto out = filled(2, 3, 7.0);
    cComputeCosines(byRows({{1, -2, 2}, {0, 0, -5}}), 2, 3, out);
    expectSame(out, byRows({{1.0 / 9.0, 4.0 / 9.0, 4.0 / 9.0}, {0, 0, 1}}));
}

TEST(ComputeCosines, SumToOneOverTheAxes)
{
    RandomData data(11);
    const auto a = table(40, 5, data.normals(200));
    auto out = filled(40, 5, 7.0);
    cComputeCosines(a, 40, 5, out);
    for (int i = 1; i <= 40; ++i)
        EXPECT_NEAR(sumOf(5, [&](int j) { return out->vbget(i, j); }), 1.0, 1e-15) << "point " << i;
}

TEST(ComputeCosines, APointAtTheOriginKeepsWhatTheTableHeld)
{
    auto out = filled(3, 2, 7.0);
    cComputeCosines(byRows({{0, 0}, {1e-7, 0}, {3, 4}}), 3, 2, out); // 1e-14 is not above 1e-12
    expectSame(out, byRows({{7, 7}, {7, 7}, {9.0 / 25.0, 16.0 / 25.0}}));
}

TEST(ComputeCosines, TheSumOfSquaresMustBeAboveItsLimit)
{
    // The root of 1e-12 whose square, rounded, is the limit itself, and the next number.
    double atLimit = 1e-6;
    while (atLimit * atLimit > 1e-12)
        atLimit = std::nextafter(atLimit, 0.0);
    const double above = std::nextafter(atLimit, 1.0);
    ASSERT_GT(above * above, 1e-12);
    auto out = filled(2, 1, 7.0);
    cComputeCosines(column({atLimit, above}), 2, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({7.0, 1.0}));
}

TEST(ComputeCosines, AMissingCellMakesItsRowMissingAndANaNLeavesItUnwritten)
{
    auto out = filled(4, 2, 7.0);
    cComputeCosines(byRows({{M, 1}, {2, M}, {notANumber, 1}, {inf, 1}}), 4, 2, out);
    expectSame(out, byRows({{M, M}, {M, M}, {7, 7}, {notANumber, 0}}));
    auto below = filled(1, 2, 7.0);
    cComputeCosines(byRows({{std::nextafter(M, -inf), 1}}), 1, 2, below); // a number: its square is infinite
    expectSame(below, byRows({{notANumber, 0}}));
}

TEST(ComputeCosines, DoNotPrepareTheirResult)
{
    auto larger = filled(3, 2, 7.0);
    cComputeCosines(byRows({{3, 4}}), 1, 2, larger);
    expectSame(larger, byRows({{9.0 / 25.0, 16.0 / 25.0}, {7, 7}, {7, 7}}));
    auto smaller = filled(1, 1, 7.0);
    matrix* const before = smaller.get();
    cComputeCosines(byRows({{3, 4}, {0, 2}}), 2, 2, smaller);
    EXPECT_EQ(smaller.get(), before);
    EXPECT_THAT(cellsOf(smaller), SameBits({9.0 / 25.0}));
}

TEST(ComputeCosines, InAResultWithFewerRowsTheLastPointWrittenRemains)
{
    auto out = filled(2, 2, 7.0); // cell (3, 1) is cell (1, 2), cell (3, 2) lies outside
    cComputeCosines(byRows({{3, 4}, {5, 12}, {1, 0}}), 3, 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({9.0 / 25.0, 25.0 / 169.0, 1.0, 144.0 / 169.0}));
}

TEST(ComputeCosines, MayReplaceTheCoordinates)
{
    auto a = byRows({{3, 4}, {M, 2}, {0, 0}});
    cComputeCosines(a, 3, 2, a);
    expectSame(a, byRows({{9.0 / 25.0, 16.0 / 25.0}, {M, M}, {0, 0}}));
}

TEST(ComputeCosines, TheFlatFormKeepsUnwrittenElements)
{
    forCases(200, [](Cases& c) {
        const int n = std::max(c.count(), 0), k = std::max(c.count(), 0);
        const auto a = c.exact(n, k);
        auto out = c.exactResult(n, k);
        auto flatA = flat(a), flatOut = flat(out);
        ComputeCosines(flatA, n, k, flatOut);
        cComputeCosines(a, n, k, out);
        expectFlat(flatOut, out);
        expectUntouched(flatA);
    });
    Guarded<double> a{0.0, 3.0, 0.0, 4.0}, out{7.0, 7.0, 7.0, 7.0};
    ComputeCosines(a, 2, 2, out);
    EXPECT_THAT(out.values(), SameBits({7.0, 9.0 / 25.0, 7.0, 16.0 / 25.0}));
    ComputeCosines(a, 2, 2, a);
    EXPECT_THAT(a.values(), SameBits({0.0, 9.0 / 25.0, 0.0, 16.0 / 25.0}));
}

// ---- the best axis of each point ------------------------------------------------------------------------------------

TEST(BoldCosines, MarkOneCellOfEachPointAndLeaveTheOthers)
{
    auto flags = intTable(3, 2, {0, 5, 0, 7, 0, 9});
    M_BoldCosines(intColumn({2, 1, 2}), 3, flags);
    EXPECT_EQ(cellsOf(flags), (std::vector<int>{0, -1, 0, -1, 0, -1}));
}

TEST(BoldCosines, AddressTheCellLinearlyByTheRowsOfTheFlags)
{
    auto flags = intTable(4, 2, {0, 0, 0, 0, 0, 0, 0, 0}); // more rows than points
    M_BoldCosines(intColumn({2, 1}), 2, flags);
    EXPECT_EQ(cellsOf(flags), (std::vector<int>{0, -1, 0, 0, -1, 0, 0, 0}));
    auto fewer = intTable(2, 2, {0, 0, 0, 0}); // the third point runs over into the next column
    M_BoldCosines(intColumn({1, 2, 1}), 3, fewer);
    EXPECT_EQ(cellsOf(fewer), (std::vector<int>{-1, 0, -1, -1}));
}

TEST(BoldCosines, DropColumnNumbersOutOfRange)
{
    auto flags = intTable(2, 2, {0, 0, 0, 0});
    M_BoldCosines(intColumn({3, 0}), 2, flags);
    EXPECT_EQ(cellsOf(flags), (std::vector<int>{0, 0, 0, 0}));
    M_BoldCosines(intColumn({std::numeric_limits<int>::max(), -7}), 2, flags);
    EXPECT_EQ(cellsOf(flags), (std::vector<int>{0, 0, 0, 0}));
}

TEST(BoldCosines, BeyondTheListTheColumnNumberIsMinusOne)
{
    auto flags = intTable(2, 2, {0, 0, 0, 0});
    // Point 5 in column -1 lies two columns to the left of cell (5, 1): at the first one.
    M_BoldCosines(intColumn({9, 9, 9, 9}), 5, flags);
    EXPECT_EQ(cellsOf(flags), (std::vector<int>{-1, 0, 0, 0}));
}

TEST(BoldCosines, TheFlatFormWritesInPlace)
{
    Guarded<int> best{2, 1, 3}, flags{0, 1, 2, 3, 4, 5};
    Cpp_M_BoldCosines(best, 3, flags, 2);
    EXPECT_EQ(flags.values(), (std::vector<int>{0, -1, 2, -1, 4, 5})); // there is no column 3
    EXPECT_TRUE(best.untouched());
    Cpp_M_BoldCosines(best, 0, flags, 2);
    EXPECT_EQ(flags.values(), (std::vector<int>{0, -1, 2, -1, 4, 5}));
}

// ---- the farthest point ---------------------------------------------------------------------------------------------

struct Farthest
{
    double distance = 7.0;
    int row = 7;
};

Farthest farthest(const Owned<matrix>& a, int n, int k)
{
    Farthest result;
    M_GetMaxDistToOrigin(a, n, k, &result.distance, &result.row);
    return result;
}

TEST(MaxDistToOrigin, FollowsThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count(), k = c.count();
        const auto a = c.operand(n, k);
        Farthest expected{0.0, 0};
        for (int i = 1; i <= n; ++i) {
            const double d = std::sqrt(sumOf(k, [&](int j) { return a->vbget(i, j) * a->vbget(i, j); }));
            if (d > expected.distance)
                expected = {d, i};
        }
        const Farthest actual = farthest(a, n, k);
        EXPECT_THAT(actual.distance, SameBits(expected.distance));
        EXPECT_EQ(actual.row, expected.row);
    });
}

TEST(MaxDistToOrigin, IsTheFirstOfEqualRows)
{
    const Farthest result = farthest(byRows({{1, 0}, {3, 4}, {-5, 0}, {0, 5}}), 4, 2);
    EXPECT_EQ(result.distance, 5.0);
    EXPECT_EQ(result.row, 2);
}

TEST(MaxDistToOrigin, HasNoRowWhereAllDistancesAreZero)
{
    for (const auto& [n, k] : {std::pair(2, 2), std::pair(0, 2), std::pair(2, 0), std::pair(-1, -1)}) {
        const Farthest result = farthest(byRows({{0, -0.0}, {0, 0}}), n, k);
        EXPECT_THAT(result.distance, SameBits(0.0));
        EXPECT_EQ(result.row, 0);
    }
}

TEST(MaxDistToOrigin, ARowWithAMissingValueWinsAndOneWithANaNDoesNot)
{
    const Farthest missing = farthest(byRows({{1e300, 1e300}, {M, 1}, {inf, 1}}), 3, 2);
    EXPECT_EQ(missing.distance, inf);
    EXPECT_EQ(missing.row, 1); // its own square overflows as well
    const Farthest second = farthest(byRows({{1e100, 1}, {M, 1}, {inf, 1}}), 3, 2);
    EXPECT_EQ(second.distance, inf);
    EXPECT_EQ(second.row, 2);
    const Farthest number = farthest(byRows({{notANumber, 1}, {1, 0}}), 2, 2);
    EXPECT_EQ(number.distance, 1.0);
    EXPECT_EQ(number.row, 2);
}

TEST(MaxDistToOrigin, TheFlatFormReadsTheArray)
{
    Guarded<double> a{0.0, 3.0, 1.0, 0.0, -4.0, 1.0}, distance{7.0};
    Guarded<int> row{7};
    Cpp_M_GetMaxDistToOrigin(a, 3, 2, distance, row);
    EXPECT_EQ(distance.values(), std::vector<double>{5.0});
    EXPECT_EQ(row.values(), std::vector<int>{2});
    EXPECT_TRUE(a.untouched());
}

} // namespace
