// Every form against the plain form over small tables of all kinds.
#include "missing/neighbour_reference.h"

namespace vecmat::test {
namespace {

constexpr int trials = 1000;

TEST(NearestNeighbourRandom, NumericPrimaryBlock)
{
    RandomData data(4301);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < trials && !testing::Test::HasFailure(); ++trial) {
        SCOPED_TRACE(trial);
        NeighbourCase c = randomCase(data, data.integer(1, 14), false);
        c.weights = data.weights(c.mask.size(), 0.2);
        const NeighbourTable expected = PlainImputation(c, c.target, false).run();
        expectSame(filledNumbers(c), expected, "numeric primary block");
    }
}

TEST(NearestNeighbourRandom, StringPrimaryBlock)
{
    RandomData data(4302);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < trials && !testing::Test::HasFailure(); ++trial) {
        SCOPED_TRACE(trial);
        NeighbourCase c = randomCase(data, data.integer(1, 14), true);
        c.weights = data.weights(c.mask.size(), 0.2);
        const NeighbourTable expected = PlainImputation(c, c.target, true).run();
        expectSame(filledTexts(c), expected, "string primary block");
    }
}

TEST(NearestNeighbourRandom, StatisticsOfAnotherSample)
{
    RandomData data(4303);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < trials && !testing::Test::HasFailure(); ++trial) {
        SCOPED_TRACE(trial);
        const bool stringPrimary = trial % 2 == 1;
        NeighbourCase c = randomCase(data, data.integer(1, 14), stringPrimary);
        const NeighbourTable sample = randomTable(data, data.integer(1, 9), c, stringPrimary);
        c.weights = data.weights(static_cast<std::size_t>(sample.rows), 0.2);
        const NeighbourTable expected = PlainImputation(c, sample, stringPrimary).run();
        if (stringPrimary)
            expectSame(filledByStrings(c, sample), expected, "EstimateRowsWithMissingNNStr");
        else
            expectSame(filledByTables(c, sample), expected, "EstimateRowsWithMissingNN");
        expectPrediction(c, sample, expected, stringPrimary);
    }
}

/// The forms over columns take the statistics of Y and S, but not of X, from tables of their own.
TEST(NearestNeighbourRandom, ColumnsWithStatisticsOfAnotherSample)
{
    RandomData data(4304);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < trials && !testing::Test::HasFailure(); ++trial) {
        SCOPED_TRACE(trial);
        NeighbourCase c = randomCase(data, data.integer(1, 14), false);
        NeighbourTable sample = randomTable(data, c.target.rows, c, false);
        sample.x = c.target.x;
        c.weights = data.weights(c.mask.size(), 0.2);
        const NeighbourTable expected = PlainImputation(c, sample, false).run();
        expectSame(filledByColumns(c, sample), expected, "EstimateRowsWithMissingNNSPV");
        expectSame(filledByColumns2(c, sample), expected, "EstimateRowsWithMissingNNSPV2");
    }
}

} // namespace
} // namespace vecmat::test
