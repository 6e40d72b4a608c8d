// Rows enough for the distances to be bounded side by side before rows are compared one by one: what comes out is that
// of the plain form, which compares them all.
#include "missing/neighbour_reference.h"

#include "descriptive/moments.h"
#include "support/failing_new.h"

#include <algorithm>
#include <cmath>

namespace vecmat::test {
namespace {

/// Around the number of rows from which bounds are taken, and around the widths in which they are.
int manyRows(RandomData& data)
{
    return data.chance(0.5) ? data.integer(46, 70) : data.integer(90, 135);
}

/// Few missing cells in rows that are not flagged, so that there are neighbours to be found.
NeighbourCase manyRowsCase(RandomData& data, bool stringPrimary)
{
    NeighbourCase c = randomCase(data, manyRows(data), stringPrimary);
    c.weights = data.weights(c.mask.size(), 0.1);
    const bool fewMissing = data.chance(0.8);
    const auto mend = [&](auto& cells, const auto& present) {
        for (std::size_t k = 0; k < cells.size(); ++k)
            if (c.mask[k % c.mask.size()] == 0 && fewMissing && !data.chance(0.02))
                present(cells[k]);
    };
    const auto number = [&](double& cell) { cell = absent(cell) ? data.integer(0, 3) : cell; };
    const auto text = [&](std::wstring& cell) { cell = cell.empty() ? L"c" : cell; };
    mend(c.target.x, number);
    mend(c.target.p, text);
    mend(c.target.y, number);
    mend(c.target.s, text);
    return c;
}

/// Columns of any size, down to squares that vanish and up to squares that overflow.
void scaleColumns(RandomData& data, Numbers& cells, int rows)
{
    double factor = 1.0;
    for (std::size_t k = 0; k < cells.size(); ++k) {
        if (k % static_cast<std::size_t>(rows) == 0)
            factor = std::pow(10.0, data.integer(-170, 150));
        if (!absent(cells[k]))
            cells[k] *= factor;
    }
}

constexpr int trials = 120;

template <class Check>
void inTrials(std::uint64_t seed, Check check)
{
    RandomData data(seed);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < trials && !testing::Test::HasFailure(); ++trial) {
        SCOPED_TRACE(trial);
        check(data);
    }
}

TEST(NearestNeighbourManyRows, NumericPrimaryBlock)
{
    inTrials(4311, [](RandomData& data) {
        const NeighbourCase c = manyRowsCase(data, false);
        expectSame(filledNumbers(c), PlainImputation(c, c.target, false).run(), "numeric primary block");
    });
}

TEST(NearestNeighbourManyRows, StringPrimaryBlock)
{
    inTrials(4312, [](RandomData& data) {
        const NeighbourCase c = manyRowsCase(data, true);
        expectSame(filledTexts(c), PlainImputation(c, c.target, true).run(), "string primary block");
    });
}

TEST(NearestNeighbourManyRows, NumbersThatRound)
{
    inTrials(4313, [](RandomData& data) {
        NeighbourCase c = manyRowsCase(data, false);
        c.colsX = 9;
        c.target.x = data.withMissing(data.normals(9 * c.mask.size()), 0.02);
        if (data.chance(0.5)) // in pairs of equal rows: the first of them counts
            for (std::size_t k = 1; k < c.target.x.size(); k += 2)
                c.target.x[k] = c.target.x[k - 1];
        expectSame(filledNumbers(c), PlainImputation(c, c.target, false).run(), "numbers that round");
    });
}

TEST(NearestNeighbourManyRows, NumbersOfAnySize)
{
    inTrials(4314, [](RandomData& data) {
        NeighbourCase c = manyRowsCase(data, false);
        scaleColumns(data, c.target.x, c.target.rows);
        scaleColumns(data, c.target.y, c.target.rows);
        expectSame(filledNumbers(c), PlainImputation(c, c.target, false).run(), "numbers of any size");
    });
}

TEST(NearestNeighbourManyRows, StatisticsOfAnotherSample)
{
    inTrials(4315, [](RandomData& data) {
        NeighbourCase c = manyRowsCase(data, false);
        NeighbourTable sample = randomTable(data, data.integer(2, 9), c, false);
        if (data.chance(0.5)) { // variances that fit the data badly, or not at all
            scaleColumns(data, sample.x, sample.rows);
            scaleColumns(data, sample.y, sample.rows);
        }
        c.weights = data.weights(static_cast<std::size_t>(sample.rows), 0.2);
        const NeighbourTable expected = PlainImputation(c, sample, false).run();
        expectSame(filledByTables(c, sample), expected, "EstimateRowsWithMissingNN");
        expectPrediction(c, sample, expected, false);
    });
}

TEST(NearestNeighbourManyRows, ColumnsThatShareMemoryAreComparedInTheirOrder)
{
    // Row i of the second column is row i + 1 of the first: filling one row changes the row below.
    inTrials(4316, [](RandomData& data) {
        constexpr int n = 60;
        const Numbers start = data.withMissing(data.wholes(n + 1, 0, 9), 0.2);
        const Numbers other = data.normals(n);
        std::vector<short> mask = data.mask(n, 0.4);
        Numbers shared = start;
        matrix first(n, 1, shared.data(), true);
        matrix second(n, 1, shared.data() + 1, true);
        matrix third(n, 1, const_cast<double*>(other.data()), true);
        matrix* columns[] = {&first, &second, &third};
        const auto weights = filled(n, 1, 1.0);
        matrix* noTable = nullptr;
        Smatrix* noTexts = nullptr;
        Owned<matrix> mean, deviation, variance;
        M_MeanStDevVarSPV(columns, n, 3, mean, deviation, variance, nullptr, weights, -1, -1);

        Numbers cells = start;
        const auto cell = [&](int i, int k) { return k == 2 ? other[std::size_t(i)] : cells[std::size_t(i + k)]; };
        for (int t = 0; t < n; ++t)
            for (int j = 0; j < 2 && mask[std::size_t(t)] != 0; ++j) {
                if (!absent(cell(t, j)))
                    continue;
                int best = -1;
                double least = positiveTwin;
                for (int c = 0; c < n; ++c) {
                    double distance = 0.0;
                    bool usable = mask[std::size_t(c)] == 0;
                    bool anyTerm = false;
                    for (int k = 0; k < 3 && usable; ++k) {
                        usable = k == j || !absent(cell(c, k));
                        if (!usable || absent(cell(t, k)) || !(variance->X[k] > 0.0))
                            continue;
                        const double d = cell(t, k) - cell(c, k);
                        distance += d * d / variance->X[k];
                        anyTerm = true;
                    }
                    if (usable && anyTerm && distance < least) {
                        best = c;
                        least = distance;
                    }
                }
                cells[std::size_t(t + j)] = best >= 0 ? cell(best, j) : mean->X[j];
            }
        EstimateRowsWithMissingNNSPV(columns, n, 3, mask.data(), noTable, noTable, 0, noTexts, noTexts, 0, weights);
        EXPECT_THAT(shared, SameBits(cells));
    });
}

TEST(NearestNeighbourManyRows, DoWithoutBoundsWhereMemoryIsShort)
{
    RandomData data(4317);
    SCOPED_TRACE(data);
    NeighbourCase c = neighbourCase(data.mask(70, 0.4));
    c.colsX = 3;
    c.target.x = data.withMissing(data.normals(210), 0.1);
    const Numbers expected = PlainImputation(c, c.target, false).run().x;
    Numbers x = c.target.x;
    expectFallbackAtEachFailure(
        [&] {
            std::copy(c.target.x.begin(), c.target.x.end(), x.begin());
            VB_EstimateRowsWithMissingNN(x.data(), 70, 3, c.mask.data(), nullptr, 0, nullptr, 0, c.weights.data());
        },
        [&] { EXPECT_THAT(x, SameBits(expected)); });
}

} // namespace
} // namespace vecmat::test
