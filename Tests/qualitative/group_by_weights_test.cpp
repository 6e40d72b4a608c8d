// Groups with weights, and both functions where memory runs out.
#include "qualitative/group_by.h"

#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "support/tables.h"

#include <vector>

namespace vecmat::test {
namespace {

using Doubles = std::vector<double>;
using Ints = std::vector<int>;

struct Groups
{
    int count = -7;
    Doubles cells;
    Doubles weights;
};

Groups grouped(const Owned<matrix>& data, int keyCol, int aggregate, const Doubles& weights, Ints colTypes = {})
{
    colTypes.resize(static_cast<std::size_t>(data->nCols), 0);
    auto out = filled(data->nRows, data->nCols, 99.0);
    const auto rowWeights = column(weights);
    Groups result;
    M_GroupByW(data, data->nRows, data->nCols, intColumn(colTypes), keyCol, aggregate, &result.count, out, rowWeights);
    result.cells = cellsOf(out);
    result.weights = cellsOf(rowWeights);

    Guarded<double> flatData(cellsOf(data));
    Guarded<int> flatTypes(colTypes);
    Guarded<double> flat(result.cells.size(), 99.0);
    Guarded<double> flatWeights(weights);
    int count = -7;
    VB_M_GroupByW(flatData, data->nRows, data->nCols, flatTypes, keyCol, aggregate, &count, flat, flatWeights);
    EXPECT_EQ(count, result.count);
    EXPECT_THAT(flat.values(), SameBits(result.cells));
    EXPECT_THAT(flatWeights.values(), SameBits(result.weights)) << "copied back";
    EXPECT_TRUE(flatData.untouched() && flatTypes.untouched());
    return result;
}

double aggregateOf(const Doubles& cells, const Doubles& weights, int aggregate)
{
    Doubles both(cells.size(), 1.0);
    both.insert(both.end(), cells.begin(), cells.end());
    const Groups groups = grouped(table(static_cast<int>(cells.size()), 2, both), 1, aggregate, weights);
    EXPECT_EQ(groups.count, 1);
    EXPECT_THAT(groups.weights, SameBits(weights)) << "equal keys keep their order";
    return groups.cells.at(cells.size());
}

TEST(GroupByW, WeightsComeBackInTheOrderOfTheRows)
{
    const Groups groups = grouped(byRows({{2, 1}, {1, 1}, {M, 1}, {1, 1}}), 1, 8, {10, 20, 30, 40});
    EXPECT_EQ(groups.count, 3);
    EXPECT_THAT(groups.weights, SameBits({30, 20, 40, 10}));
}

TEST(GroupByW, EveryGroupTakesTheFirstWeights)
{
    const auto data = byRows({{2, 5}, {1, 3}, {1, 4}, {2, 6}});
    const Doubles weights = {10, 20, 30, 40}; // sorted with the rows: 20, 30, 10, 40
    EXPECT_THAT(grouped(data, 1, 0, weights).cells,
                SameBits({1, 2, 2, 2, 20.0 * 3 + 30.0 * 4, 20.0 * 5 + 30.0 * 6, 5, 6}));
    EXPECT_THAT(grouped(data, 1, 1, weights).cells,
                SameBits({1, 2, 2, 2, (20.0 * 3 + 30.0 * 4) / 50, (20.0 * 5 + 30.0 * 6) / 50, 5, 6}));
    // By the first weights the heavier row is the second of either group; by its own the median of key 2 would differ.
    const auto halves = byRows({{1, 3}, {1, 4}, {2, 5}, {2, 6}});
    EXPECT_THAT(grouped(halves, 1, 2, {1, 3, 9, 1}).cells, SameBits({1, 2, 2, 2, 4, 6, 5, 6}));
}

TEST(GroupByW, EqualFirstWeightsInterpolateWhateverTheLaterOnes)
{
    const auto data = byRows({{1, 3}, {1, 4}, {2, 5}, {2, 7}});
    EXPECT_THAT(grouped(data, 1, 2, {2, 2, 1, 9}).cells, SameBits({1, 2, 2, 2, 3.5, 6, 5, 7}));
    EXPECT_THAT(aggregateOf({1, 2, 3, 4}, {1, 1, 1, 2}, 2), SameBits(3)) << "a step, where the weights differ";
    EXPECT_THAT(aggregateOf({1, 2, 3, 4}, {1, 1, 1, 1}, 2), SameBits(2.5));
}

TEST(GroupByW, MissingCellsAndWeights)
{
    EXPECT_THAT(aggregateOf({3, M, 5}, {2, 100, 10}, 0), SameBits(56));
    EXPECT_THAT(aggregateOf({3, 4, 5}, {2, M, 10}, 0), SameBits(56)) << "a sum leaves out a missing weight";
    EXPECT_THAT(aggregateOf({3, M, 5}, {2, 100, 10}, 1), SameBits(56.0 / 12));
    EXPECT_THAT(aggregateOf({M, M}, {1, 2}, 0), SameBits(0.0));
    EXPECT_THAT(aggregateOf({M, M}, {1, 2}, 1), SameBits(M));
    EXPECT_THAT(aggregateOf({M, M}, {1, 2}, 2), SameBits(M));
    EXPECT_THAT(aggregateOf({3, 4}, {0, 0}, 0), SameBits(0.0));
    EXPECT_THAT(aggregateOf({3, 4}, {0, 0}, 1), SameBits(M));
    EXPECT_THAT(aggregateOf({3, 4}, {0, 0}, 2), SameBits(M)) << "the plain median would be 3.5";
    EXPECT_THAT(aggregateOf({3, 4}, {-1, 2}, 0), SameBits(5)) << "a negative weight counts";
}

TEST(GroupByW, TheOtherAggregatesHaveNoWeights)
{
    const Doubles cells = {3, 8, M, 1};
    const Doubles weights = {0, 0, 0, 0};
    EXPECT_THAT(aggregateOf(cells, weights, 3), SameBits(3));
    EXPECT_THAT(aggregateOf(cells, weights, 4), SameBits(-1.0));
    EXPECT_THAT(aggregateOf(cells, weights, 5), SameBits(1));
    EXPECT_THAT(aggregateOf(cells, weights, 6), SameBits(8));
    EXPECT_THAT(aggregateOf(cells, weights, 7), SameBits(7));
    for (int aggregate = 0; aggregate < 9; ++aggregate)
        EXPECT_THAT(grouped(byRows({{1, 2}, {1, 0}, {1, 2}}), 1, aggregate, {1, 50, 1}, {0, 1}).cells[3], SameBits(2))
            << "a mode counts rows";
}

TEST(GroupByW, NoRowsAndOne)
{
    const Groups one = grouped(byRows({{3, 5}}), 1, 0, {4});
    EXPECT_EQ(one.count, 1);
    EXPECT_THAT(one.cells, SameBits({3, 20}));
    auto out = byRows({{8, 9}});
    const auto weights = column({4});
    int count = -7;
    M_GroupByW(byRows({{1, 2}}), 0, 2, intColumn({0, 0}), 1, 0, &count, out, weights);
    EXPECT_EQ(count, 0);
    EXPECT_THAT(cellsOf(out), SameBits({8, 9}));
    EXPECT_THAT(cellsOf(weights), SameBits({4}));
}

TEST(GroupByW, WeightsBeyondTheirTableAreMinusOne)
{
    auto out = filled(3, 2, 0.0);
    const auto weights = column({5, 7}); // of three rows
    int count = -7;
    M_GroupByW(byRows({{1, 1}, {2, 2}, {0, 4}}), 3, 2, intColumn({0, 0}), 1, 0, &count, out, weights);
    EXPECT_EQ(count, 3);
    EXPECT_THAT(cellsOf(weights), SameBits({-1, 5})) << "in the order of the rows, as far as there is room";
    EXPECT_THAT(cellsOf(out), SameBits({0, 1, 2, -4, -1, -2}));
}

TEST(GroupByFailure, PassesOutAndNothingIsHandedBack)
{
    Guarded<double> data = {2, 1, 2, 10, 20, 30, 1, 0, 1};
    Guarded<int> types = {0, 0, 1};
    for (int aggregate : {0, 2}) {
        Guarded<double> out(9, 99.0);
        Guarded<double> weights = {1, 2, 3};
        int count = -7;
        bool early = false;
        const int failures = forEachFailingAllocation([&] {
            out.data()[0] = weights.data()[0] = 99.0;
            count = -7;
            try {
                VB_M_GroupBy(data, 3, 3, types, 1, aggregate, &count, out);
                out.data()[0] = 99.0;
                count = -7;
                VB_M_GroupByW(data, 3, 3, types, 1, aggregate, &count, out, weights);
            } catch (...) {
                early = early || count != -7 || out.data()[0] != 99.0 || weights.data()[0] != 99.0;
                throw;
            }
        });
        EXPECT_GT(failures, 0);
        EXPECT_FALSE(early) << "results are written by a call that ends, as a whole";
    }
    EXPECT_TRUE(data.untouched() && types.untouched());
}

} // namespace
} // namespace vecmat::test
