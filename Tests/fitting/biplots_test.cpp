// Biplot coordinates: a plain second form, the rules one by one, the identities of a biplot, R.
#include "base/detail/mathematics/mathematics.h"
#include "fitting/biplots.h"

#include "elementary/product_cases.h"
#include "elementary/scalar_arithmetic.h"
#include "support/safearrays.h"

#include <array>
#include <cmath>
#include <limits>

using namespace vecmat::test;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Observations, variables and eigenvalues, and the results of a call on them.
struct Map
{
    Owned<matrix> obs;
    Owned<matrix> var;
};

Map mapOf(const Owned<matrix>& rows, const Owned<matrix>& cols, const Owned<matrix>& eigen, double factor, double alpha)
{
    Map map;
    BiplotTransData(rows, static_cast<matrix*>(nullptr), cols, rows->nRows, 0, cols->nRows, cols->nCols, eigen, factor,
                    alpha, map.obs, map.var);
    return map;
}

// ---- a plain second form --------------------------------------------------------------------------------------------

template <class Storage>
void referenceBiplot(Storage rows, matrix* sup, Storage cols, int nA, int nB, int m, int k, matrix* eigen,
                     double factor, double alpha, matrix*& obs, matrix*& var)
{
    nA = std::max(nA, 0);
    nB = std::max(nB, 0);
    matrix::matCheck(obs, nA + nB, k, 0.0);
    matrix::matCheck(var, m, k, 0.0);
    for (int j = 1; j <= k; ++j) {
        const double f = vecmat::pow(eigen->vbget(j, 1), alpha * 0.5 - 0.5);
        for (int i = 1; i <= nA; ++i)
            obs->vbset(i, j, at(rows, i, j) == M ? M : at(rows, i, j) * f);
        for (int i = 1; i <= nB; ++i)
            obs->vbset(nA + i, j, sup->vbget(i, j) == M ? M : sup->vbget(i, j) * f);
    }
    for (int j = 1; j <= k; ++j) {
        const double value = eigen->vbget(j, 1);
        const double f = value == 0.0 ? 0.0 : vecmat::pow(value, alpha * -0.5);
        for (int i = 1; i <= m; ++i)
            if (at(cols, i, j) == M)
                var->vbset(i, j, M);
            else if (alpha == 0.0)
                var->vbset(i, j, at(cols, i, j));
            else
                var->vbset(i, j, at(cols, i, j) * f);
    }
    if (factor != 1.0)
        M_ScalarsA2(var, m, k, std::sqrt(factor));
}

struct Options
{
    explicit Options(Cases& c)
        : factor(std::array{1.0, 1.0, 4.0, 2.5, 0.0}[static_cast<std::size_t>(c.data.integer(0, 4))]),
          alpha(std::array{0.0, 1.0, 0.5, 0.3, -0.7, 2.0}[static_cast<std::size_t>(c.data.integer(0, 5))])
    {
    }

    double factor;
    double alpha;
};

Owned<matrix> eigenvalues(Cases& c, int k)
{
    std::vector<double> values = c.data.uniforms(static_cast<std::size_t>(std::max(k, 0)), 0.0, 5.0);
    for (double& value : values)
        if (c.data.chance(0.1))
            value = 0.0;
    return column(c.data.withSpecials(values, c.data.integer(0, 1) * 0.1));
}

/// `operand(c, rows, cols)` draws what holds the observations or the variables.
template <class Operand>
void followThePlainLoop(Operand operand)
{
    forCases(600, [operand](Cases& c) {
        const int nA = c.count(), nB = c.count(), m = c.count(), k = c.count();
        const Options options(c);
        auto rows = operand(c, nA, k), cols = operand(c, m, k);
        const auto sup = c.operand(nB, k), eigen = eigenvalues(c, k);
        auto obs = c.toPrepare(nA + nB, k), expectedObs = copyOf(obs);
        auto var = c.toPrepare(m, k), expectedVar = copyOf(var);
        BiplotTransData(rows, sup, cols, nA, nB, m, k, eigen, options.factor, options.alpha, obs, var);
        referenceBiplot(rows.get(), sup, cols.get(), nA, nB, m, k, eigen, options.factor, options.alpha, expectedObs,
                        expectedVar);
        expectSame(obs, expectedObs);
        expectSame(var, expectedVar);
    });
}

TEST(BiplotTransData, FollowsThePlainLoopOnTables)
{
    followThePlainLoop([](Cases& c, int rows, int cols) { return c.operand(rows, cols); });
}

TEST(BiplotTransData, FollowsThePlainLoopOnColumns)
{
    followThePlainLoop([](Cases& c, int rows, int cols) { return c.columnOperand(rows, cols); });
}

// ---- the rules ------------------------------------------------------------------------------------------------------

TEST(BiplotTransData, MovesTheWeightOfTheEigenvaluesByTheExponent)
{
    const auto rows = byRows({{2, 3}, {-4, 5}});
    const auto cols = byRows({{2, 27}, {6, 9}, {4, 0}});
    const auto eigen = column({16, 81});
    const Map half = mapOf(rows, cols, eigen, 1.0, 0.5); // the fourth root, from either side
    EXPECT_THAT(cellsOf(half.obs), SameBits({1.0, -2.0, 3 * vecmat::pow(81.0, -0.25), 5 * vecmat::pow(81.0, -0.25)}));
    EXPECT_THAT(cellsOf(half.var),
                SameBits({1.0, 3.0, 2.0, 27 * vecmat::pow(81.0, -0.25), 9 * vecmat::pow(81.0, -0.25), 0.0}));
}

TEST(BiplotTransData, AlphaOneLeavesTheObservations)
{
    const auto rows = byRows({{0.1, 3}, {-4, -0.0}});
    const Map map = mapOf(rows, byRows({{2, 27}}), column({16, 81}), 1.0, 1.0);
    EXPECT_THAT(cellsOf(map.obs), SameBits(cellsOf(rows)));
    EXPECT_THAT(cellsOf(map.var), SameBits({0.5, 27 * vecmat::pow(81.0, -0.5)}));
}

TEST(BiplotTransData, AlphaZeroLeavesTheVariablesHoweverSmallTheEigenvalue)
{
    const auto cols = byRows({{0.1, 3, -0.0, M}, {-4, inf, 5, 1e300}});
    const auto eigen = column({16, 0, 1e-300, -1});
    for (const double alpha : {0.0, -0.0}) {
        const Map map = mapOf(byRows({{8, 0, 0, 0}}), cols, eigen, 1.0, alpha);
        EXPECT_THAT(cellsOf(map.var), SameBits(cellsOf(cols)));
        EXPECT_EQ(map.obs->vbget(1, 1), 2.0);
    }
}

TEST(BiplotTransData, AnEigenvalueOfZeroTakesTheVariablesToZero)
{
    for (const double zero : {0.0, -0.0}) {
        const Map map = mapOf(byRows({{1}}), byRows({{3}, {-3}, {M}}), column({zero}), 1.0, 0.5);
        EXPECT_THAT(cellsOf(map.var), SameBits({0.0, -0.0, M}));
    }
    const Map below = mapOf(byRows({{1}}), byRows({{3}}), column({0}), 1.0, -2.0); // pow alone would be 0 here, too
    EXPECT_THAT(cellsOf(below.var), SameBits({0.0}));
}

TEST(BiplotTransData, AnEigenvalueOfZeroHasAnInfiniteFactorForObservationsBelowAlphaOne)
{
    const auto rows = byRows({{2}, {-2}, {0}, {M}});
    const auto zero = column({0});
    EXPECT_THAT(cellsOf(mapOf(rows, byRows({{1}}), zero, 1.0, 0.9).obs), SameBits({inf, -inf, notANumber, M}));
    EXPECT_THAT(cellsOf(mapOf(rows, byRows({{1}}), zero, 1.0, 1.0).obs), SameBits({2.0, -2.0, 0.0, M}));
    EXPECT_THAT(cellsOf(mapOf(rows, byRows({{1}}), zero, 1.0, 1.5).obs), SameBits({0.0, -0.0, 0.0, M}));
}

TEST(BiplotTransData, AMissingEigenvalueIsANumber)
{
    const Map map = mapOf(byRows({{2}}), byRows({{3}}), column({M}), 1.0, -1.0);
    EXPECT_THAT(cellsOf(map.obs), SameBits({2 * vecmat::pow(M, -1.0)}));
    EXPECT_THAT(cellsOf(map.var), SameBits({notANumber})); // the root of a negative number
}

TEST(BiplotTransData, OnlyTheMissingValueItselfIsMissing)
{
    const double below = std::nextafter(M, -inf);
    const auto table = byRows({{M}, {below}, {-inf}, {notANumber}});
    const Map map = mapOf(table, table, column({16}), 1.0, 0.5);
    EXPECT_THAT(cellsOf(map.obs), SameBits({M, below * 0.5, -inf, notANumber}));
    EXPECT_THAT(cellsOf(map.var), SameBits({M, below * 0.5, -inf, notANumber}));
}

TEST(BiplotTransData, ScalesTheVariablesByTheRootOfTheFactor)
{
    const auto rows = byRows({{2, 3}});
    const auto cols = byRows({{2, M}, {6, 9}});
    const Map map = mapOf(rows, cols, column({16, 1}), 4.0, 0.5);
    EXPECT_THAT(cellsOf(map.obs), SameBits({1.0, 3.0}));
    EXPECT_THAT(cellsOf(map.var), SameBits({2.0, 6.0, M, 18.0}));
    EXPECT_THAT(cellsOf(mapOf(rows, cols, column({16, 1}), 4.0, 0.0).var), SameBits({4.0, 12.0, M, 18.0}));
    EXPECT_THAT(cellsOf(mapOf(rows, cols, column({16, 1}), 0.0, 0.0).var), SameBits({0.0, 0.0, M, 0.0}));
}

TEST(BiplotTransData, WithFactorOneNoScalingReshapesALargerResult)
{
    const auto rows = byRows({{2}}), cols = byRows({{3}, {5}}), eigen = column({1});
    Owned<matrix> obs;
    auto kept = filled(3, 2, 7.0), reshaped = filled(3, 2, 7.0);
    BiplotTransData(rows, static_cast<matrix*>(nullptr), cols, 1, 0, 2, 1, eigen, 1.0, 1.0, obs, kept);
    expectSame(kept, byColumns({{3, 5, 7}, {7, 7, 7}}));
    BiplotTransData(rows, static_cast<matrix*>(nullptr), cols, 1, 0, 2, 1, eigen, 4.0, 1.0, obs, reshaped);
    expectSame(reshaped, byColumns({{6, 10}}));
}

TEST(BiplotTransData, SupplementaryRowsFollowTheActiveOnes)
{
    const auto rows = byRows({{2, 4}, {M, 8}}), sup = byRows({{6, M}}), cols = byRows({{1, 1}});
    Map map;
    BiplotTransData(rows, sup, cols, 2, 1, 1, 2, column({16, 16}), 1.0, 0.5, map.obs, map.var);
    expectSame(map.obs, byRows({{1, 2}, {M, 4}, {3, M}}));
    BiplotTransData(rows, sup, cols, 0, 1, 1, 2, column({16, 16}), 1.0, 0.5, map.obs, map.var); // none active
    EXPECT_THAT(cornerOf(map.obs, 1, 2), SameBits({3.0, M}));
}

TEST(BiplotTransData, WithoutSupplementaryRowsTheirTableIsNotRead)
{
    for (const int nB : {0, -1, -5}) {
        Map map;
        BiplotTransData(byRows({{2}, {4}}), static_cast<matrix*>(nullptr), byRows({{1}}), 2, nB, 1, 1, column({16}),
                        1.0, 0.5, map.obs, map.var);
        expectSame(map.obs, byRows({{1}, {2}}));
    }
}

TEST(BiplotTransData, ReadsAnOperandThatTheResultReplaces)
{
    Owned<matrix> table(byRows({{2}, {4}}));
    matrix* const operand = table.get();
    Owned<matrix> var;
    BiplotTransData(operand, byRows({{8}}).get(), byRows({{1}}).get(), 2, 1, 1, 1, column({16}), 1.0, 0.5, table, var);
    expectSame(table, byRows({{1}, {2}, {4}}));
}

// ---- the identities of a biplot -------------------------------------------------------------------------------------

/// a b', by rows.
std::vector<double> productWithTransposed(const Owned<matrix>& a, const Owned<matrix>& b)
{
    std::vector<double> product;
    for (int i = 1; i <= a->nRows; ++i)
        for (int j = 1; j <= b->nRows; ++j)
            product.push_back(sumOf(a->nCols, [&](int k) { return a->vbget(i, k) * b->vbget(j, k); }));
    return product;
}

void expectNear(const std::vector<double>& actual, const std::vector<double>& expected, double tolerance)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k)
        EXPECT_NEAR(actual[k], expected[k], tolerance) << "cell " << k;
}

/// A 4 by 3 table U D V' with singular values 6, 3 and 1.5: U from a Hadamard matrix, V a rotation.
class Decomposed : public testing::Test
{
protected:
    const Owned<matrix> left = byRows({{0.5, 0.5, 0.5}, {0.5, -0.5, 0.5}, {0.5, 0.5, -0.5}, {0.5, -0.5, -0.5}});
    const Owned<matrix> right =
        byRows({{2 / 3.0, -1 / 3.0, 2 / 3.0}, {2 / 3.0, 2 / 3.0, -1 / 3.0}, {-1 / 3.0, 2 / 3.0, 2 / 3.0}});
    const Owned<matrix> eigen = column({36, 9, 2.25});
    const Owned<matrix> scores = timesSingularValues(left);       // principal coordinates of the observations
    const Owned<matrix> coordinates = timesSingularValues(right); // of the variables

    static Owned<matrix> timesSingularValues(const Owned<matrix>& a)
    {
        Owned<matrix> product = copyOf(a);
        fillByRows(product.get(), a->nRows, 3, [&](int i, int j) {
            return a->vbget(i, j) * std::array{6.0, 3.0, 1.5}[static_cast<std::size_t>(j) - 1];
        });
        return product;
    }
};

TEST_F(Decomposed, ObservationsTimesVariablesRebuildTheTableForEveryExponent)
{
    const std::vector<double> table = productWithTransposed(scores, right);
    for (const double alpha : {0.0, 0.25, 0.5, 0.75, 1.0, 1.5, -0.5}) {
        SCOPED_TRACE(alpha);
        const Map map = mapOf(scores, coordinates, eigen, 1.0, alpha);
        expectNear(productWithTransposed(map.obs, map.var), table, 4e-15);
    }
}

TEST_F(Decomposed, TheFactorStretchesTheRebuiltTableByItsRoot)
{
    std::vector<double> doubled = productWithTransposed(scores, right);
    for (double& cell : doubled)
        cell *= 2.0;
    const Map map = mapOf(scores, coordinates, eigen, 4.0, 0.3);
    expectNear(productWithTransposed(map.obs, map.var), doubled, 8e-15);
}

TEST_F(Decomposed, AlphaZeroKeepsTheProductsOfTheVariables)
{
    // Observations become the left singular vectors, variables keep the inner products of the table's columns.
    const Map map = mapOf(scores, coordinates, eigen, 1.0, 0.0);
    expectNear(cellsOf(map.obs), cellsOf(left), 1e-15);
    EXPECT_THAT(cellsOf(map.var), SameBits(cellsOf(coordinates)));
}

TEST_F(Decomposed, AlphaOneKeepsTheDistancesOfTheObservations)
{
    const Map map = mapOf(scores, coordinates, eigen, 1.0, 1.0);
    EXPECT_THAT(cellsOf(map.obs), SameBits(cellsOf(scores)));
    expectNear(cellsOf(map.var), cellsOf(right), 1e-15);
}

TEST_F(Decomposed, AlphaHalfGivesBothTheSameWeight)
{
    const Map map = mapOf(scores, coordinates, eigen, 1.0, 0.5);
    for (int j = 1; j <= 3; ++j) {
        const double length = std::sqrt(std::array{6.0, 3.0, 1.5}[static_cast<std::size_t>(j) - 1]);
        EXPECT_NEAR(sumOf(4, [&](int i) { return map.obs->vbget(i, j) * map.obs->vbget(i, j); }), length * length,
                    4e-15);
        EXPECT_NEAR(sumOf(3, [&](int i) { return map.var->vbget(i, j) * map.var->vbget(i, j); }), length * length,
                    4e-15);
    }
}

/// R 4.2.2: x <- stackloss[c(1, 4, 8, 12, 17, 21), 1:3]; r <- prcomp(x); lam <- r$sdev * sqrt(6). Rows are r$x, columns
/// t(t(r$rotation) * lam), eigenvalues lam^2. Expected is what biplot(r, scale = s) draws, t(t(r$x) / lam^s) and
/// t(t(r$rotation) * lam^s), for alpha 1 - s.
TEST(BiplotReference, AgreesWithTheBiplotOfPrincipalComponentsInR)
{
    const auto rows = byRows({{-15.94385396614337580, -6.68144461297531667, 0.26169687943133796},
                              {0.76388362377296559, 0.56086528733832819, 2.58558412590341069},
                              {-2.2636585548103803, 5.7116670968560710, 3.1362465233553944},
                              {5.0989937755514809, 4.8478411961755281, -2.7836483638474605},
                              {19.438453693753181994, -5.662357759719180095, 0.029820520252165084},
                              {-7.0938185721238716, 1.2234287923245355, -3.2296996850948481}});
    const auto cols = byRows({{-24.4893661317715861, -5.8458271581067534, -1.9228237832886359},
                              {-6.2450011589353487, -2.8851816550799207, 6.1380524062675148},
                              {-14.77086530259193964, 10.91192432506714383, 0.59282858963926066}});
    const auto eigen = column({856.907554798379351, 161.568060821260133, 41.724384380360519});

    const Map standard = mapOf(rows, cols, eigen, 1.0, 0.0);
    expectNear(cellsOf(standard.obs),
               cellsOf(byRows({{-0.544661053847243393, -0.525645095180375499, 0.040513855537076635},
                               {0.026095175007518831, 0.044124602451061777, 0.400279827499025964},
                               {-0.07732927412854243, 0.44935039780694502, 0.48552905503489857},
                               {0.17418770450669027, 0.38139116532289435, -0.43094257724431578},
                               {0.6640407455112563584, -0.4454711152993466872, 0.0046165787385847225},
                               {-0.24233329704967962, 0.09625004489881836, -0.49999673956527013}})),
               1e-15);

    const Map between = mapOf(rows, cols, eigen, 1.0, 0.75);
    expectNear(cellsOf(between.obs),
               cellsOf(byRows({{-6.85451232127217391, -3.53855486370568961, 0.16415336952412668},
                               {0.32840552367630388, 0.29703944361681145, 1.62184718204290990},
                               {-0.97318223611741417, 3.02495172169774484, 1.96725859164167693},
                               {2.1921372169380198, 2.5674615351725127, -1.7460860041159667},
                               {8.356895430254569490, -2.998837040688041800, 0.018705377347228581},
                               {-3.04974361347930545, 0.64793920390664417, -2.02587851643997574}})),
               1e-14);
    expectNear(cellsOf(between.var),
               cellsOf(byRows({{-1.9459304090806770, -0.8683856803941371, -0.4745623267145993},
                               {-0.49622916307949588, -0.42858783998305588, 1.51490139488107323},
                               {-1.17369619965206540, 1.62094406371426381, 0.14631299929157926}})),
               1e-14);

    const Map principal = mapOf(rows, cols, eigen, 1.0, 1.0);
    expectNear(cellsOf(principal.var),
               cellsOf(byRows({{-0.83658593422303529, -0.45990508803494895, -0.29767647649711476},
                               {-0.21333668256908545, -0.22698408406349246, 0.95024506599733261},
                               {-0.504590363097224381, 0.858466968252957208, 0.091777066241997329}})),
               1e-15);
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(BiplotExports, WorkOnTheCallersArrays)
{
    forCases(300, [](Cases& c) {
        const int nA = std::max(c.count(), 0), nB = c.count(), m = std::max(c.count(), 0), k = std::max(c.count(), 0);
        const Options options(c);
        const auto rows = c.exact(nA, k), sup = c.exact(nB, k), cols = c.exact(m, k), eigen = eigenvalues(c, k);
        auto obs = c.exactResult(nA + std::max(nB, 0), k), var = c.exactResult(m, k);
        auto flatRows = flat(rows), flatSup = flat(sup), flatCols = flat(cols), flatEigen = flat(eigen),
             flatObs = flat(obs), flatVar = flat(var);
        VB_BiplotTransData(flatRows, nB > 0 ? flatSup.data() : nullptr, flatCols, nA, nB, m, k, flatEigen,
                           options.factor, options.alpha, flatObs, flatVar);
        BiplotTransData(rows, sup, cols, nA, nB, m, k, eigen, options.factor, options.alpha, obs, var);
        expectFlat(flatObs, obs);
        expectFlat(flatVar, var);
        expectUntouched(flatRows, flatSup, flatCols, flatEigen);
    });
}

TEST(BiplotExports, UseTheFirstOfTheStoredAxes)
{
    forCases(300, [](Cases& c) {
        const int nA = std::max(c.count(), 0), nB = c.count(), m = std::max(c.count(), 0), k = std::max(c.count(), 0);
        const int stored = k + c.data.integer(0, 2);
        const Options options(c);
        const auto rows = c.exact(nA, stored), sup = c.exact(nB, stored), cols = c.exact(m, stored);
        const auto eigen = eigenvalues(c, k);
        auto obs = c.exactResult(nA + std::max(nB, 0), k), var = c.exactResult(m, k);
        auto flatSup = flat(sup), flatEigen = flat(eigen), flatObs = flat(obs), flatVar = flat(var);
        ArrayOfColumns rowColumns = numberColumns(nA, stored, cellsOf(rows));
        ArrayOfColumns colColumns = numberColumns(m, stored, cellsOf(cols));
        VB_BiplotTransDataSPV(rowColumns, nB > 0 ? flatSup.data() : nullptr, colColumns, nA, nB, m, stored, k,
                              flatEigen, options.factor, options.alpha, flatObs, flatVar);
        BiplotTransData(rows, sup, cols, nA, nB, m, k, eigen, options.factor, options.alpha, obs, var);
        expectFlat(flatObs, obs);
        expectFlat(flatVar, var);
        expectUntouched(rowColumns, flatSup, colColumns, flatEigen);
    });
}

} // namespace
