// The weighted scatter about group centres.
#include "descriptive/scatter.h"

#include "descriptive/pair_reference.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

struct Data
{
    Observations x;
    std::vector<int> groups;
    std::vector<double> centres; // `groupCount` by p
    int groupCount;
};

std::vector<double> expected(const Data& d, int group)
{
    const int p = d.x.p;
    std::vector<double> T(at(0, p, p), 0.0);
    for (int i = 0; i < d.x.n; ++i) {
        const int own = d.groups[static_cast<std::size_t>(i)];
        if (group != -1 && own != group)
            continue;
        for (int a = 0; a < p; ++a)
            for (int b = 0; b < p; ++b) {
                const double da = d.x.cells[at(i, a, d.x.n)] - d.centres[at(own, a, d.groupCount)];
                const double db = d.x.cells[at(i, b, d.x.n)] - d.centres[at(own, b, d.groupCount)];
                T[at(a, b, p)] += (da * d.x.w[static_cast<std::size_t>(i)]) * db;
            }
    }
    return T;
}

/// The three forms.
std::vector<std::vector<double>> scatters(const Data& d, int group)
{
    const auto& x = d.x;
    Owned<matrix> fromInts, fromDoubles, fromColumns;
    Owned<matrix> X = table(x.n, x.p, x.cells), w = column(x.w), centres = table(d.groupCount, x.p, d.centres);
    TableColumns columns(x.n, x.p, x.cells);
    EXPECT_EQ(M_Inertie_W(X, x.n, x.p, w, group, intColumn(d.groups), centres, fromInts), 0);
    EXPECT_EQ(M_Inertie_W(X, x.n, x.p, w, group, column({d.groups.begin(), d.groups.end()}), centres, fromDoubles), 0);
    EXPECT_EQ(M_Inertie_WSPV(columns, x.n, x.p, w, group, intColumn(d.groups), centres, fromColumns), 0);
    return {cellsOf(fromInts), cellsOf(fromDoubles), cellsOf(fromColumns)};
}

TEST(MInertieW, AddsTheWeightedProductsOfTheDeviations)
{
    RandomData random(691);
    SCOPED_TRACE(random);
    for (const int p : {1, 2, 5})
        for (const int n : {0, 1, 13}) {
            const auto rows = static_cast<std::size_t>(n), cols = static_cast<std::size_t>(p);
            const Data data{{n, p, random.normals(rows * cols), {}, random.weights(rows, 0.2)},
                            random.integers(rows, 0, 2),
                            random.normals(3 * cols),
                            3};
            for (const int group : {-1, 0, 1, 2, 3})
                for (const auto& T : scatters(data, group))
                    EXPECT_THAT(T, SameBits(expected(data, group)));
        }
}

TEST(MInertieW, GroupsCountFromZero)
{
    const Data data{{3, 1, {5, 7, 100}, {}, {1, 2, 1}}, {1, 1, 0}, {99, 4}, 2};
    for (const auto& T : scatters(data, 1))
        EXPECT_THAT(T, SameBits({1.0 + 18.0}));
    for (const auto& T : scatters(data, 0))
        EXPECT_THAT(T, SameBits({1.0}));
    for (const auto& T : scatters(data, -1))
        EXPECT_THAT(T, SameBits({20.0}));
    for (const auto& T : scatters(data, 7))
        EXPECT_THAT(T, SameBits({0.0}));
}

TEST(MInertieW, AGroupWithoutACentreReadsMinusOne)
{
    Owned<matrix> T, S;
    M_Inertie_W(column({5}), 1, 1, column({1}), 4, intColumn({4}), column({99, 4}), T);
    EXPECT_THAT(cellsOf(T), SameBits({36.0}));
    TableColumns X(1, 1, {5});
    M_Inertie_WSPV(X, 1, 1, column({1}), 4, intColumn({4}), column({99, 4}), S);
    EXPECT_THAT(cellsOf(S), SameBits({36.0}));
}

TEST(MInertieW, TestsNoCellForTheMissingValue)
{
    const Data data{{2, 1, {M, 1}, {}, {1, 1}}, {0, 0}, {0}, 1};
    for (const auto& T : scatters(data, -1))
        EXPECT_THAT(T, SameBits({inf}));
}

TEST(MInertieW, ADoubleGroupIsComparedAsItIsAndTruncatedForItsCentre)
{
    Owned<matrix> T;
    const auto run = [&](int group) {
        M_Inertie_W(column({5, 9}), 2, 1, column({1, 1}), group, column({1.9, 0}), column({7, 3}), T);
        return T->X[0];
    };
    EXPECT_THAT(run(1), SameBits(0.0));        // 1.9 is not 1
    EXPECT_THAT(run(-1), SameBits(4.0 + 4.0)); // but its centre is the second row
}

TEST(MInertieW, AddsNothingWhereTheShapesDiffer)
{
    // A T kept larger than p, and an X of more columns than p.
    Owned<matrix> large = filled(3, 3, 9.0), T;
    Owned<matrix> X = byColumns({{1, 3}, {2, 6}}), w = column({1, 1}), centres = byColumns({{0}, {0}});
    EXPECT_EQ(M_Inertie_W(X, 2, 2, w, -1, intColumn({0, 0}), centres, large), 0);
    EXPECT_THAT(cellsOf(large), SameBits({0, 0, 0, 0, 9, 9, 9, 9, 9}));
    M_Inertie_W(X, 2, 1, w, -1, intColumn({0, 0}), centres, T);
    EXPECT_THAT(cellsOf(T), SameBits({0.0}));
    // An array of columns has no count of its own: the first p are used, and a larger T keeps its stride.
    TableColumns columns(2, 2, {1, 3, 2, 6});
    M_Inertie_WSPV(columns, 2, 1, w, -1, intColumn({0, 0}), centres, T);
    EXPECT_THAT(cellsOf(T), SameBits({10.0}));
    Owned<matrix> kept = filled(3, 3, 9.0);
    M_Inertie_WSPV(columns, 2, 2, w, -1, intColumn({0, 0}), centres, kept);
    EXPECT_THAT(cellsOf(kept), SameBits({10, 20, 0, 20, 49, 9, 9, 9, 9}));
}

TEST(MInertieW, PreparesItsResult)
{
    Owned<matrix> T = filled(1, 1, 9.0);
    M_Inertie_W(column({5}), 1, 1, column({2}), -1, intColumn({0}), column({4}), T);
    EXPECT_THAT(cellsOf(T), SameBits({2.0}));
    Owned<matrix> none;
    M_Inertie_W(column({5}), 0, 1, column({2}), -1, intColumn({0}), column({4}), none);
    EXPECT_THAT(cellsOf(none), SameBits({0.0}));
}

} // namespace
} // namespace vecmat::test
