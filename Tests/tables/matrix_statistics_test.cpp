#include "matrix.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/special_values.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using namespace vecmat::test;

struct Reference
{
    double weight = 0.0;
    double mean = 0.0;
    double sigma = M;
    int rows = 0;
};

/// The weighted moments as a plain loop over one column.
Reference reference(const std::vector<double>& x, const std::vector<double>& w, bool corrected)
{
    Reference r;
    double q = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (x[i] == M)
            continue;
        r.weight = r.weight + w[i];
        r.rows = r.rows + 1;
        if (w[i] != 0.0) {
            const double d = x[i] - r.mean;
            q = q + (d * d) * (w[i] - (w[i] * w[i]) / r.weight);
            r.mean = r.mean + (d * w[i]) / r.weight;
        }
    }
    if (corrected)
        r.weight = r.weight - r.weight / static_cast<double>(r.rows);
    if (r.weight > 0.0 && q / r.weight >= 0.0)
        r.sigma = std::sqrt(q / r.weight);
    return r;
}

// ---- calcDescStat ---------------------------------------------------------------------------------------------------

TEST(CalcDescStat, UnitWeightsBothModes)
{
    auto t = table(3, 1, {1, 2, 3});
    t->calcDescStat(-1);
    EXPECT_THAT(t->descMu[0], SameBits(2.0));
    EXPECT_THAT(t->weightcorr[0], SameBits(2.0));
    EXPECT_THAT(t->descSigma[0], SameBits(1.0));
    EXPECT_EQ(t->descDone, 1);
    EXPECT_EQ(t->descMode, -1);
    t->calcDescStat(0);
    EXPECT_THAT(t->weightcorr[0], SameBits(3.0));
    EXPECT_THAT(t->descSigma[0], SameBits(std::sqrt(2.0 / 3.0)));
    EXPECT_EQ(t->descMode, 0);
    EXPECT_THAT(cellsOf(t), SameBits({1, 2, 3}));
}

TEST(CalcDescStat, OnlyMinusOneCorrects)
{
    for (const short mode : {short{1}, short{2}, short{-2}}) {
        auto t = table(3, 1, {1, 2, 3});
        t->calcDescStat(mode);
        EXPECT_THAT(t->weightcorr[0], SameBits(3.0)) << mode;
    }
}

TEST(CalcDescStat, ZeroWeightCountsInTheCorrectionOnly)
{
    auto t = table(4, 1, {1, 2, 3, 1000});
    double w[] = {1, 1, 1, 0};
    t->weighting(w);
    t->calcDescStat(-1);
    EXPECT_THAT(t->descMu[0], SameBits(2.0));
    EXPECT_THAT(t->weightcorr[0], SameBits(3.0 - 3.0 / 4.0));
    EXPECT_THAT(t->descSigma[0], SameBits(std::sqrt(2.0 / 2.25)));
}

TEST(CalcDescStat, MissingCellsCountNowhere)
{
    auto t = table(4, 1, {1, M, 2, 3});
    t->calcDescStat(-1);
    EXPECT_THAT(t->weightcorr[0], SameBits(2.0));
    EXPECT_THAT(t->descMu[0], SameBits(2.0));
    EXPECT_THAT(t->descSigma[0], SameBits(1.0));
}

TEST(CalcDescStat, MissingIsTheEqualityTest)
{
    auto t = table(2, 2, {1, -infinity, 1, std::nan("")});
    t->calcDescStat(0);
    EXPECT_THAT(t->weightcorr[0], SameBits(2.0));
    EXPECT_THAT(t->descMu[0], SameBits(-infinity)) << "minus infinity is a cell like any other";
    EXPECT_THAT(t->descSigma[0], SameBits(infinity));
    EXPECT_THAT(t->weightcorr[1], SameBits(2.0));
    EXPECT_TRUE(std::isnan(t->descMu[1]));
}

TEST(CalcDescStat, OneCellHasNoCorrectedDeviation)
{
    auto t = table(1, 1, {7});
    t->calcDescStat(-1);
    EXPECT_THAT(t->descMu[0], SameBits(7.0));
    EXPECT_THAT(t->weightcorr[0], SameBits(0.0));
    EXPECT_THAT(t->descSigma[0], SameBits(M));
    t->calcDescStat(0);
    EXPECT_THAT(t->descSigma[0], SameBits(0.0));
}

TEST(CalcDescStat, NothingPresentIsMissing)
{
    auto t = table(2, 2, {M, M, 1, 3});
    t->calcDescStat(-1);
    EXPECT_THAT(t->descMu[0], SameBits(M));
    EXPECT_THAT(t->descSigma[0], SameBits(M));
    EXPECT_THAT(t->weightcorr[0], SameBits(1.0)) << "InitWeightcorr's entry stays where no row counts";
    EXPECT_THAT(t->descMu[1], SameBits(2.0));

    auto empty = table(0, 2, {});
    empty->calcDescStat(0);
    EXPECT_THAT(empty->descMu[0], SameBits(M));
    EXPECT_THAT(empty->descSigma[1], SameBits(M));
    EXPECT_EQ(empty->descDone, 1);
}

TEST(CalcDescStat, NegativeQuotientIsMissing)
{
    // Weights 3 and -1: W is 2, Q is 1 * (-1 - 1/2), below 0.
    auto t = table(2, 1, {0, 1});
    double w[] = {3, -1};
    t->weighting(w);
    t->calcDescStat(0);
    EXPECT_THAT(t->weightcorr[0], SameBits(2.0));
    EXPECT_THAT(t->descMu[0], SameBits(-0.5));
    EXPECT_THAT(t->descSigma[0], SameBits(M));
}

TEST(CalcDescStat, RunsAgainOnlyForAnotherMode)
{
    auto t = table(3, 1, {1, 2, 3});
    t->calcDescStat(0);
    t->vbset(1, 1, 100.0);
    t->calcDescStat(0);
    EXPECT_THAT(t->descMu[0], SameBits(2.0)) << "a change of the cells is not detected";
    t->calcDescStat(-1);
    EXPECT_THAT(t->descMu[0], SameBits(reference({100, 2, 3}, {1, 1, 1}, true).mean));
}

TEST(CalcDescStat, FreshTableWithModeZeroComputes)
{
    auto t = table(1, 1, {4});
    EXPECT_EQ(t->descMode, 0);
    t->calcDescStat(0);
    ASSERT_NE(t->descMu, nullptr);
    EXPECT_THAT(t->descMu[0], SameBits(4.0));
}

TEST(CalcDescStat, EqualsThePlainLoopBitForBit)
{
    RandomData data(20240607);
    SCOPED_TRACE(data);
    const int rows = 37;
    const int cols = 4;
    const std::vector<double> x = data.withMissing(data.uniforms(rows * cols, -10.0, 10.0), 0.1);
    std::vector<double> w = data.weights(rows, 0.15);
    auto t = table(rows, cols, x);
    t->weighting(w.data());
    for (const short mode : {short{0}, short{-1}})
        for (int j = 0; j < cols; ++j) {
            const std::vector<double> column(x.begin() + j * rows, x.begin() + (j + 1) * rows);
            const Reference expected = reference(column, w, mode == -1);
            EXPECT_THAT(t->getDescMu(j, mode), SameBits(expected.mean)) << j;
            EXPECT_THAT(t->getDescSigma(j, mode), SameBits(expected.sigma)) << j;
            EXPECT_THAT(t->weightcorr[j], SameBits(expected.weight)) << j;
        }
}

TEST(CalcDescStat, CellsOutOfRangeTakePartAsMinusOne)
{
    auto t = table(2, 2, {1, 2, 3, 4});
    t->nElems = 3; // the last cell of column 1 is out of range
    t->calcDescStat(0);
    EXPECT_THAT(t->descMu[1], SameBits(1.0));
    EXPECT_THAT(t->weightcorr[1], SameBits(2.0));
    EXPECT_THAT(t->descSigma[1], SameBits(reference({3, -1}, {1, 1}, false).sigma));
    EXPECT_THAT(t->X[3], SameBits(4.0));
}

TEST(GetDesc, ComputesForTheGivenMode)
{
    auto t = table(3, 2, {1, 2, 3, 2, 4, 6});
    EXPECT_THAT(t->getDescSigma(1, -1), SameBits(2.0));
    EXPECT_THAT(t->getDescMu(1, -1), SameBits(4.0));
    EXPECT_THAT(t->getDescSigma(0, 0), SameBits(std::sqrt(2.0 / 3.0)));
    EXPECT_EQ(t->descMode, 0);
}

TEST(GetDesc, ColumnOutOfRangeComputesAllTheSame)
{
    auto t = table(2, 1, {1, 3});
    EXPECT_THAT(t->getDescMu(1, 0), SameBits(-1.0));
    EXPECT_EQ(t->descDone, 1);
    EXPECT_THAT(t->getDescSigma(-1, -1), SameBits(-1.0));
    EXPECT_EQ(t->descMode, -1);
    EXPECT_THAT(t->getDescMu(-1, -1), SameBits(-1.0));
    EXPECT_THAT(t->getDescSigma(1, -1), SameBits(-1.0));
}

// ---- Normalize ------------------------------------------------------------------------------------------------------

TEST(NormalizeTable, CentresAndReducesByTheCorrectedDeviation)
{
    auto t = table(3, 1, {2, 4, 6});
    EXPECT_EQ(t->Normalize(), 0);
    EXPECT_THAT(cellsOf(t), SameBits({-1, 0, 1}));
    EXPECT_THAT(t->norMu[0], SameBits(4.0));
    EXPECT_THAT(t->norSigma[0], SameBits(2.0));
    EXPECT_THAT(t->weightcorr[0], SameBits(2.0));
    EXPECT_EQ(t->normalized, 1);
    EXPECT_EQ(t->descDone, 0);
}

TEST(NormalizeTable, SecondTimeRefuses)
{
    auto t = table(3, 1, {2, 4, 6});
    t->Normalize();
    t->X[0] = 5.0;
    EXPECT_EQ(t->Normalize(), -1);
    EXPECT_THAT(cellsOf(t), SameBits({5, 0, 1}));
    EXPECT_THAT(t->norMu[0], SameBits(4.0));
}

TEST(NormalizeTable, MissingCellsStay)
{
    auto t = table(4, 1, {2, M, 4, 6});
    t->Normalize();
    EXPECT_THAT(t->X[1], SameBits(M));
    EXPECT_THAT(t->X[0], SameBits(-1.0));
}

TEST(NormalizeTable, OneCellIsDividedByTheMissingValue)
{
    auto t = table(1, 1, {7});
    EXPECT_EQ(t->Normalize(), 0);
    EXPECT_THAT(t->norSigma[0], SameBits(M));
    EXPECT_THAT(t->X[0], SameBits(0.0 / M));
    EXPECT_TRUE(std::signbit(t->X[0]));
}

TEST(NormalizeTable, ZeroDeviationDividesByOne)
{
    auto t = table(2, 1, {5, 5});
    t->Normalize();
    EXPECT_THAT(t->norSigma[0], SameBits(0.0));
    EXPECT_THAT(cellsOf(t), SameBits({0, 0}));
}

TEST(NormalizeTable, NothingPresentGivesZerosUnlikeCalcDescStat)
{
    auto t = table(2, 1, {M, M});
    t->Normalize();
    EXPECT_THAT(t->norMu[0], SameBits(0.0));
    EXPECT_THAT(t->norSigma[0], SameBits(0.0));
    t->calcDescStat(-1);
    EXPECT_THAT(t->descMu[0], SameBits(M));
    EXPECT_THAT(t->descSigma[0], SameBits(M));

    auto empty = table(0, 1, {});
    EXPECT_EQ(empty->Normalize(), 0);
    EXPECT_THAT(empty->norMu[0], SameBits(0.0));
    EXPECT_THAT(empty->norSigma[0], SameBits(0.0));
}

TEST(NormalizeTable, WeightsEnterTheMoments)
{
    auto t = table(3, 1, {1, 4, 9});
    double w[] = {2, 1, 0};
    t->weighting(w);
    const Reference expected = reference({1, 4, 9}, {2, 1, 0}, true);
    t->Normalize();
    EXPECT_THAT(t->norMu[0], SameBits(expected.mean));
    EXPECT_THAT(t->norSigma[0], SameBits(expected.sigma));
    EXPECT_THAT(t->weightcorr[0], SameBits(3.0 - 3.0 / 3.0));
    EXPECT_THAT(t->X[2], SameBits((9.0 - expected.mean) / expected.sigma))
        << "a row of weight 0 is reduced with the others";
}

TEST(NormalizeTable, CellsOutOfRangeCountButAreNotWritten)
{
    auto t = table(2, 1, {3, 77});
    t->nElems = 1;
    t->Normalize();
    EXPECT_THAT(t->norMu[0], SameBits(1.0));
    EXPECT_THAT(t->X[0], SameBits((3.0 - 1.0) / reference({3, -1}, {1, 1}, true).sigma));
    EXPECT_THAT(t->X[1], SameBits(77.0));
}

// ---- Center ---------------------------------------------------------------------------------------------------------

TEST(Center, SubtractsTheWeightedMean)
{
    auto t = table(3, 1, {1, M, 4});
    double w[] = {2, 5, 1};
    t->weighting(w);
    EXPECT_THAT(t->getNorMu(0), SameBits(-1.0));
    EXPECT_THAT(t->getNorSigma(0), SameBits(-1.0));
    EXPECT_EQ(t->Center(), 0);
    EXPECT_THAT(t->getNorMu(0), SameBits(2.0));
    EXPECT_THAT(t->getNorSigma(0), SameBits(1.0));
    EXPECT_THAT(cellsOf(t), SameBits({-1, M, 2}));
    EXPECT_EQ(t->weightcorr, nullptr) << "unlike Normalize(), no divisor is kept";
}

TEST(Center, ZeroWeightsAndNoRowsHaveMeanZeroAndDivisorOne)
{
    auto t = table(2, 2, {M, M, 5, 6});
    double w[] = {0, 0};
    t->weighting(w);
    t->Center();
    EXPECT_THAT(t->norMu[0], SameBits(0.0));
    EXPECT_THAT(t->norSigma[0], SameBits(1.0));
    EXPECT_THAT(t->norMu[1], SameBits(0.0));
    EXPECT_THAT(cellsOf(t), SameBits({M, M, 5, 6}));

    auto empty = table(0, 1, {});
    EXPECT_EQ(empty->Center(), 0);
    EXPECT_THAT(empty->getNorMu(0), SameBits(0.0));
    EXPECT_THAT(empty->getNorSigma(0), SameBits(1.0));
}

TEST(Center, RefusesAfterNormalizeAndTheOtherWayRound)
{
    auto t = table(2, 1, {1, 2});
    t->Normalize();
    EXPECT_EQ(t->Center(), -1);
    auto u = table(2, 1, {1, 2});
    u->Center();
    EXPECT_EQ(u->Normalize(), -1);
    EXPECT_THAT(cellsOf(u), SameBits({-0.5, 0.5}));
}

TEST(GetNor, ColumnOutOfRange)
{
    auto t = table(2, 1, {1, 2});
    t->Center();
    EXPECT_THAT(t->getNorMu(1), SameBits(-1.0));
    EXPECT_THAT(t->getNorMu(-1), SameBits(-1.0));
    EXPECT_THAT(t->getNorSigma(1), SameBits(-1.0));
    EXPECT_THAT(t->getNorSigma(-1), SameBits(-1.0));
}

// ---- calcMu ---------------------------------------------------------------------------------------------------------

TEST(CalcMu, DividesByTheStoredCountNotThePresentCells)
{
    auto t = table(4, 2, {1, M, 3, 5, 2, 2, 2, 2});
    EXPECT_THAT(t->calcMu(0), SameBits(9.0 / 4.0));
    ASSERT_NE(t->nCol, nullptr);
    EXPECT_EQ(t->nCol[0], 4);
    t->nCol[0] = 3;
    EXPECT_THAT(t->calcMu(0), SameBits(3.0));
    EXPECT_THAT(t->calcMu(1), SameBits(2.0));
}

TEST(CalcMu, NormalizedTableGivesZeroAndColumnOutOfRangeMinusOne)
{
    auto t = table(2, 1, {1, 2});
    EXPECT_THAT(t->calcMu(1), SameBits(-1.0));
    EXPECT_THAT(t->calcMu(-1), SameBits(-1.0));
    t->Center();
    EXPECT_THAT(t->calcMu(0), SameBits(0.0));
    EXPECT_THAT(t->calcMu(7), SameBits(0.0));
}

TEST(CalcMu, CellOutOfRangeAddsMinusOne)
{
    auto t = table(3, 1, {4, 6, 8});
    t->nElems = 2;
    EXPECT_THAT(t->calcMu(0), SameBits(3.0));
}

} // namespace
