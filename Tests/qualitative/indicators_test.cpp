#include "qualitative/indicators.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/safearrays.h"
#include "support/tables.h"

#include <limits>

namespace vecmat::test {

namespace {

using Doubles = std::vector<double>;

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

/// The answers to the four questions, where the functions and the flat forms agree.
struct Answers
{
    short is01;
    short isWeights;
    short isCounts;
    short isIndicator;
    bool operator==(const Answers&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Answers& answers)
{
    return stream << answers.is01 << ' ' << answers.isWeights << ' ' << answers.isCounts << ' ' << answers.isIndicator;
}

Answers answersOn(const Doubles& cells)
{
    const int n = static_cast<int>(cells.size());
    auto x = column(cells);
    const Answers answers{V_Is01(x, n), V_IsWeights(x, n), V_IsCWeights(x, n), V_IsIndicator(x, n)};
    Guarded<double> flat(cells);
    const Answers flatAnswers{VB_V_Is01(flat, n), VB_V_IsWeights(flat, n), VB_V_IsCWeights(flat, n),
                              VB_V_IsIndicator(flat, n)};
    EXPECT_EQ(flatAnswers, answers);
    EXPECT_TRUE(flat.untouched());
    return answers;
}

TEST(Indicators, ZerosAndOnes)
{
    EXPECT_EQ(answersOn({0, 1, 1}), (Answers{-1, -1, -1, -1}));
    EXPECT_EQ(answersOn({0, 0, 0}), (Answers{-1, 0, 0, 0})) << "no 1, no weight";
    EXPECT_EQ(answersOn({-0.0, 1}), (Answers{-1, -1, -1, -1}));
}

TEST(Indicators, OtherNumbers)
{
    EXPECT_EQ(answersOn({0, 2, 1}), (Answers{0, -1, -1, 0}));
    EXPECT_EQ(answersOn({0.5, 1}), (Answers{0, -1, 0, 0})) << "weights, but no counts";
    EXPECT_EQ(answersOn({-1, 5}), (Answers{0, 0, 0, 0}));
    EXPECT_EQ(answersOn({-1, 1}), (Answers{0, 0, 0, 0}));
    EXPECT_EQ(answersOn({1, 1 + 1e-15}), (Answers{0, -1, 0, 0})) << "exactly 1";
}

TEST(Indicators, MissingCells)
{
    EXPECT_EQ(answersOn({M, 1}), (Answers{0, -1, -1, 0})) << "pass among weights and are whole numbers";
    EXPECT_EQ(answersOn({M, 0}), (Answers{0, 0, 0, 0})) << "and are left out of the sum";
    EXPECT_EQ(answersOn({M, 0.5}), (Answers{0, -1, 0, 0}));
}

TEST(Indicators, NaNAndInfinity)
{
    EXPECT_EQ(answersOn({NaN, 1}), (Answers{0, 0, 0, 0})) << "the sum is not above 0";
    EXPECT_EQ(answersOn({infinity, 1}), (Answers{0, -1, 0, 0}));
}

TEST(Indicators, NoCells)
{
    EXPECT_EQ(answersOn({}), (Answers{-1, 0, 0, 0}));
    auto x = column({1});
    for (int n : {0, -1}) {
        EXPECT_EQ(V_Is01(x, n), -1);
        EXPECT_EQ(V_IsIndicator(x, n), 0);
        EXPECT_EQ(V_IsWeights(x, n), 0);
        EXPECT_EQ(V_IsCWeights(x, n), 0);
    }
}

TEST(Indicators, CellsBeyondTheTableFail)
{
    auto x = column({1, 1});
    EXPECT_EQ(V_Is01(x, 3), 0);
    EXPECT_EQ(V_IsIndicator(x, 3), 0);
    EXPECT_EQ(V_IsWeights(x, 3), 0);
    EXPECT_EQ(V_IsCWeights(x, 3), 0);
}

TEST(Indicators, LinearOrderOfATable)
{
    auto x = byColumns({{0, 1}, {1, 5}});
    EXPECT_EQ(V_Is01(x, 3), -1);
    EXPECT_EQ(V_Is01(x, 4), 0);
    EXPECT_EQ(V_IsCWeights(x, 4), -1);
}

short ofColumns(int rows, int cols, const Doubles& cells)
{
    TableColumns x(rows, cols, cells);
    ArrayOfColumns flat = numberColumns(rows, cols, cells);
    const short answer = M_IsIndicatorSPV(x, rows, cols);
    EXPECT_EQ(VB_V_IsIndicatorSPV(flat, rows, cols), answer);
    EXPECT_TRUE(flat.untouched());
    return answer;
}

TEST(IndicatorsSPV, AllColumnsTogether)
{
    EXPECT_EQ(ofColumns(2, 2, {0, 1, 1, 0}), -1);
    EXPECT_EQ(ofColumns(2, 2, {0, 0, 1, 0}), -1) << "a column may be without a 1";
    EXPECT_EQ(ofColumns(2, 2, {0, 1, 0, 0}), -1);
    EXPECT_EQ(ofColumns(2, 2, {0, 0, 0, 0}), 0);
    EXPECT_EQ(ofColumns(2, 2, {0, 2, 1, 0}), 0);
    EXPECT_EQ(ofColumns(2, 2, {0, 1, 2, 0}), 0);
    EXPECT_EQ(ofColumns(2, 2, {0, 1, M, 0}), 0);
    EXPECT_EQ(ofColumns(2, 2, {0, 1, NaN, 0}), 0);
}

TEST(IndicatorsSPV, NoColumnsAndNoRows)
{
    TableColumns x(2, 1, {1, 1});
    EXPECT_EQ(M_IsIndicatorSPV(x, 2, 0), 0);
    EXPECT_EQ(M_IsIndicatorSPV(x, 2, -1), 0);
    EXPECT_EQ(M_IsIndicatorSPV(x, 0, 1), 0);
    EXPECT_EQ(M_IsIndicatorSPV(x, 3, 1), 0) << "a row beyond the column";
    EXPECT_EQ(VB_V_IsIndicatorSPV(nullptr, 2, 0), 0);
}

} // namespace

} // namespace vecmat::test
