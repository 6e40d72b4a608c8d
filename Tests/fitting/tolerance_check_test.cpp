// Tolerances and variance inflation factors, and which variables the check rejects.
#include "fitting/tolerance_check.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

/// A check of all variables, in one group that is selected; what differs is set by name.
struct Question
{
    int p;
    std::vector<double> corr; ///< p by p
    std::vector<int> selected = {1};
    std::vector<int> group = std::vector<int>(static_cast<std::size_t>(p), 1);
    double tol = 1e-4;
    short pairCheck = 0;
    short keepGoing = 0;
    short fromLast = 0;
    short otherGroupsOnly = 0;
};

struct Answer
{
    std::vector<int> status;
    std::vector<double> tolerance, vif;
};

/// Through both forms, which must agree, over results that hold 77, and through the flat form, over ones
/// that it clears.
Answer check(const Question& q)
{
    const auto p = static_cast<std::size_t>(q.p);
    const int groups = static_cast<int>(q.selected.size());
    const Owned<matrix> corr = table(q.p, q.p, q.corr), tolerance = filled(q.p, 1, 77.0), vif = filled(q.p, 1, 77.0),
                        otherTolerance = filled(q.p, 1, 77.0), otherVif = filled(q.p, 1, 77.0),
                        otherStatus = filled(q.p, 1, 55.0);
    const Owned<matrixInt> status = intColumn(std::vector<int>(p, 55));
    CheckTolerance(corr, q.p, groups, intColumn(q.selected), intColumn(q.group), q.tol, q.pairCheck, q.keepGoing,
                   q.fromLast, q.otherGroupsOnly, status, tolerance, vif);
    CheckTolerance(corr, q.p, groups, column({q.selected.begin(), q.selected.end()}),
                   column({q.group.begin(), q.group.end()}), q.tol, q.pairCheck, q.keepGoing, q.fromLast,
                   q.otherGroupsOnly, otherStatus, otherTolerance, otherVif);
    const std::vector<int> states = cellsOf(status);
    EXPECT_THAT(cellsOf(otherStatus), SameBits(std::vector<double>(states.begin(), states.end())));
    EXPECT_THAT(cellsOf(otherTolerance), SameBits(cellsOf(tolerance)));
    EXPECT_THAT(cellsOf(otherVif), SameBits(cellsOf(vif)));
    EXPECT_THAT(cellsOf(corr), SameBits(q.corr));

    Guarded<double> array(q.corr), flatTolerance(p, 77.0), flatVif(p, 77.0);
    Guarded<int> selected(q.selected), group(q.group), flatStatus(p, 55);
    VB_CheckTolerance(array, q.p, groups, selected, -1, group, q.tol, q.pairCheck, q.keepGoing, q.fromLast,
                      q.otherGroupsOnly, flatStatus, flatTolerance, flatVif);
    const auto cleared = [](std::vector<double> cells) {
        std::replace(cells.begin(), cells.end(), 77.0, 0.0);
        return cells;
    };
    EXPECT_EQ(flatStatus.values(), states);
    EXPECT_THAT(flatTolerance.values(), SameBits(cleared(cellsOf(tolerance))));
    EXPECT_THAT(flatVif.values(), SameBits(cleared(cellsOf(vif))));
    EXPECT_TRUE(array.untouched() && selected.untouched() && group.untouched());
    return {states, cellsOf(tolerance), cellsOf(vif)};
}

/// The correlation table whose cells above the diagonal are given row by row.
std::vector<double> correlations(int p, const std::vector<double>& upper)
{
    std::vector<double> cells(static_cast<std::size_t>(p * p), 1.0);
    auto next = upper.begin();
    for (int i = 0; i < p; ++i)
        for (int j = i + 1; j < p; ++j)
            cells[static_cast<std::size_t>(i + p * j)] = cells[static_cast<std::size_t>(j + p * i)] = *next++;
    return cells;
}

// ---- numbers --------------------------------------------------------------------------------------------------------

// The six columns of Longley's data; their correlations and the diagonal of the inverse come from R 4.2.2:
//     cor(longley[, 1:6]), diag(solve(cor(longley[, 1:6])))
// printed with 17 digits. The factors are published widely: 135.53, 1788.51, 33.62, 3.59, 399.15, 758.98.
TEST(CheckTolerance, GivesTheVarianceInflationOfLongleysColumns)
{
    const Question question{
        .p = 6,
        .corr = correlations(6, {0.99158917802478197, 0.62063339255909666, 0.46474418760067465, 0.97916343297749808,
                                 0.99114919006720525, 0.60426093988955787, 0.44643679189262653, 0.99109006945847744,
                                 0.99527348376478475, -0.17742062950187834, 0.6865515163653122, 0.66825660456217462,
                                 0.36441626718903181, 0.41724514983494548, 0.99395284623292557}),
        .tol = 1e-8};
    const Answer answer = check(question);
    const double expected[] = {135.5324382799808234, 1788.5134827176057115, 33.6188905960407354,
                               3.5889301934454179,   399.1510223125167727,  758.9805974068220848};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_NEAR(answer.vif[i], expected[i], 1e-11 * expected[i] * expected[i]);
        EXPECT_NEAR(answer.tolerance[i], 1 / expected[i], 1e-13);
    }
    EXPECT_EQ(answer.status, std::vector<int>(6, -1));
}

TEST(CheckTolerance, MarksAMemberWhoseToleranceFallsBelow)
{
    // 1 - 0.8^2 = 0.36: the first to be visited is the first that fails, and the other is then alone.
    Question question{.p = 2, .corr = correlations(2, {0.8}), .tol = 0.5};
    const Answer first = check(question);
    EXPECT_EQ(first.status, (std::vector<int>{60000, -1}));
    EXPECT_NEAR(first.tolerance[0], 0.36, 1e-15);
    EXPECT_THAT(first.vif[0], SameBits(1.0 / first.tolerance[0]));
    // Nothing was left to be swept for it: the values passed in remain.
    EXPECT_THAT(first.tolerance[1], SameBits(77.0));
    EXPECT_THAT(first.vif[1], SameBits(77.0));

    question.fromLast = -1;
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, 60000}));
    question.fromLast = 1; // only -1 turns the order round
    EXPECT_EQ(check(question).status, (std::vector<int>{60000, -1}));
    question.tol = 0.3;
    const Answer both = check(question);
    EXPECT_EQ(both.status, (std::vector<int>{-1, -1}));
    EXPECT_THAT(both.tolerance, SameBits({first.tolerance[0], first.tolerance[0]}));
}

TEST(CheckTolerance, KeepsWhatIsExactlyAtTheTolerance)
{
    // 1 - 0.5^2 is exact.
    Question question{.p = 2, .corr = correlations(2, {0.5}), .tol = 0.75};
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, -1}));
    EXPECT_THAT(check(question).tolerance, SameBits({0.75, 0.75}));
    question.tol = std::nextafter(0.75, 1.0);
    EXPECT_EQ(check(question).status[0], 60000);
}

TEST(CheckTolerance, RoundsTheToleranceByItsComplement)
{
    // The complement of what is left has no digits below 2^-54, and so the tolerance has none either.
    const Answer answer = check({.p = 3, .corr = correlations(3, {0.3, 0.99, 0.2}), .tol = 1e-8});
    for (const double tolerance : answer.tolerance) {
        const double steps = tolerance / std::ldexp(1.0, -54);
        EXPECT_EQ(steps, std::floor(steps));
    }
    EXPECT_LT(answer.tolerance[0], 0.02); // a double of this size has digits far below
}

TEST(CheckTolerance, StopsAtTheFirstVariableThatExplainsTooMuch)
{
    // Swept from the last: variable 3 alone leaves 1 - 0.81 of the first; the second is not swept any more.
    const Answer answer = check({.p = 3, .corr = correlations(3, {0.5, 0.9, 0.0}), .selected = {1}, .tol = 0.2});
    EXPECT_EQ(answer.status[0], 60000);
    EXPECT_NEAR(answer.tolerance[0], 1 - 0.81, 1e-15);
}

TEST(CheckTolerance, HasNoInflationWhereNothingIsLeft)
{
    // The correlations contradict each other: the tolerance of the first falls below 0.
    const Answer answer = check({.p = 3, .corr = correlations(3, {0.9, -0.9, 0.9}), .tol = 1e-4});
    EXPECT_EQ(answer.status[0], 60000);
    EXPECT_LT(answer.tolerance[0], 0.0);
    EXPECT_THAT(answer.vif[0], SameBits(M));
}

TEST(CheckTolerance, TakesTheReciprocalOfAnythingThatIsNotBelowTheTolerance)
{
    // With a tolerance below any number a zero passes the test, and its reciprocal with it.
    const Answer answer = check({.p = 2, .corr = correlations(2, {1.0}), .tol = -1.0});
    EXPECT_EQ(answer.status, (std::vector<int>{-1, -1}));
    EXPECT_THAT(answer.tolerance, SameBits({0.0, 0.0}));
    EXPECT_THAT(answer.vif, SameBits(std::vector<double>(2, std::numeric_limits<double>::infinity())));
}

// ---- constants and pairs --------------------------------------------------------------------------------------------

TEST(CheckTolerance, MarksConstants)
{
    std::vector<double> corr = correlations(3, {0.0, 0.6, 0.0});
    corr[4] = 9e-13;
    Question question{.p = 3, .corr = corr};
    const Answer answer = check(question);
    EXPECT_EQ(answer.status, (std::vector<int>{-1, 50000, -1}));
    EXPECT_THAT(answer.tolerance[1], SameBits(0.0));
    EXPECT_THAT(answer.vif[1], SameBits(M));
    EXPECT_NEAR(answer.tolerance[0], 0.64, 1e-15);
    question.corr[4] = -9e-13;
    EXPECT_EQ(check(question).status[1], 50000);
    question.corr[4] = 1e-12; // not below
    EXPECT_EQ(check(question).status[1], -1);
    // It is looked for in groups that aren't selected, too.
    question.corr[4] = 0.0;
    question.selected = {0};
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, 50000, -1}));
}

TEST(CheckTolerance, MarksTheSecondOfAPairForAnyPairCheckButZero)
{
    Question question{.p = 3, .corr = correlations(3, {0.1, -0.9999999999995, 0.1}), .selected = {0}};
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, -1, -1}));
    for (const short pairCheck : {-1, 1, 2}) {
        question.pairCheck = pairCheck;
        const Answer answer = check(question);
        EXPECT_EQ(answer.status, (std::vector<int>{-1, -1, 60000}));
        EXPECT_THAT(answer.tolerance, SameBits({77.0, 77.0, 0.0}));
        EXPECT_THAT(answer.vif, SameBits({77.0, 77.0, M}));
    }
    question.corr = correlations(3, {0.1, 0.999999999999, 0.1}); // not above
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, -1, -1}));
}

TEST(CheckTolerance, ReadsPairsFromTheRowAndSweepsTheLowerTriangle)
{
    std::vector<double> corr = correlations(2, {0.0});
    corr[2] = 1.0; // cell (1, 2)
    Question question{.p = 2, .corr = corr, .pairCheck = 1};
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, 60000}));
    corr[1] = 1.0; // cell (2, 1)
    corr[2] = 0.0;
    question.corr = corr;
    question.tol = 0.5;
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, 60000})); // for the second its row has the 1.0
}

TEST(CheckTolerance, LooksForNoPairsOfAConstant)
{
    // The constant's own row holds 1.0, but a constant has no pairs; the mark of a constant replaces that of a pair.
    std::vector<double> corr = correlations(2, {1.0});
    corr[0] = 0.0;
    EXPECT_EQ(check({.p = 2, .corr = corr, .selected = {0}, .pairCheck = -1}).status, (std::vector<int>{50000, -1}));
    corr[0] = 1.0;
    corr[3] = 0.0;
    EXPECT_EQ(check({.p = 2, .corr = corr, .selected = {0}, .pairCheck = -1}).status, (std::vector<int>{-1, 50000}));
}

TEST(CheckTolerance, ComparesWithMarkedVariablesToo)
{
    // 2 repeats 1, and 3 repeats 2 but hardly 1.
    const Answer answer = check({.p = 3, .corr = correlations(3, {1.0, 0.5, 1.0}), .selected = {0}, .pairCheck = -1});
    EXPECT_EQ(answer.status, (std::vector<int>{-1, 60000, 60000}));
}

// ---- predictors that can't be swept ---------------------------------------------------------------------------------

TEST(CheckTolerance, MarksPredictorsWithoutRoomOnlyForPairCheckMinusOne)
{
    // Variables 2 and 3 repeat each other, 1 is apart: while 1 is tested, 3 is swept and 2 is left without a diagonal.
    Question question{
        .p = 3, .corr = correlations(3, {0.5, 0.5, 0.9999999999985}), .selected = {1, 0}, .group = {1, 2, 2}};
    for (const short pairCheck : {0, 1}) {
        question.pairCheck = pairCheck;
        EXPECT_EQ(check(question).status, (std::vector<int>{-1, -1, -1}));
    }
    question.pairCheck = -1;
    const Answer answer = check(question);
    EXPECT_EQ(answer.status, (std::vector<int>{-1, 60000, -1}));
    EXPECT_GT(answer.tolerance[1], 0.0);
    EXPECT_LT(answer.tolerance[1], 1e-11);
    EXPECT_THAT(answer.vif[1], SameBits(1.0 / answer.tolerance[1]));
    EXPECT_NEAR(answer.tolerance[0], 0.75, 1e-11);
    // Of exactly 0 there is no reciprocal.
    question.corr = correlations(3, {0.5, 0.5, 1.0});
    question.corr[7] = 0.0; // cell (2, 3), where pairs are looked for
    const Answer zero = check(question);
    EXPECT_EQ(zero.status, (std::vector<int>{-1, 60000, -1}));
    EXPECT_THAT(zero.tolerance[1], SameBits(0.0));
    EXPECT_THAT(zero.vif[1], SameBits(M));
}

TEST(CheckTolerance, MarksNoPredictorWithANegativeDiagonalFarFromZero)
{
    // What 3 leaves of 2 is 1 - 1.21: not above the tolerance, and not near 0 either.
    Question question{
        .p = 3, .corr = correlations(3, {0.1, 0.1, 1.1}), .selected = {1, 0}, .group = {1, 2, 2}, .tol = 0.1};
    question.corr[7] = 0.0; // cell (2, 3), where pairs are looked for
    question.pairCheck = -1;
    EXPECT_EQ(check(question).status[1], -1);
    question.tol = 0.3;
    EXPECT_EQ(check(question).status[1], 60000);
    EXPECT_THAT(check(question).vif[1], SameBits(M));
}

// ---- keepGoing ------------------------------------------------------------------------------------------------------

TEST(CheckTolerance, MarksNoMembersWhereItKeepsGoing)
{
    Question question{.p = 2, .corr = correlations(2, {0.8}), .tol = 0.5};
    for (const short keepGoing : {-1, 1}) {
        question.keepGoing = keepGoing;
        const Answer answer = check(question);
        EXPECT_EQ(answer.status, (std::vector<int>{-1, -1}));
        EXPECT_NEAR(answer.tolerance[0], 0.36, 1e-15);
        EXPECT_NEAR(answer.tolerance[1], 0.36, 1e-15); // the first is still there to be swept
    }
}

TEST(CheckTolerance, SweepsMarkedVariablesOnlyForKeepGoingMinusOne)
{
    // The second repeats the first by its row alone; as a predictor of the third it would leave 1 - 0.49.
    Question question{
        .p = 3, .corr = correlations(3, {0.2, 0.1, 0.7}), .selected = {0, 1}, .group = {1, 1, 2}, .pairCheck = 1};
    question.corr[3] = 1.0; // cell (1, 2)
    for (const short keepGoing : {0, 1}) {
        question.keepGoing = keepGoing;
        const Answer answer = check(question);
        EXPECT_EQ(answer.status, (std::vector<int>{-1, 60000, -1}));
        EXPECT_NEAR(answer.tolerance[2], 1 - 0.01, 1e-15);
    }
    question.keepGoing = -1;
    const Answer answer = check(question);
    EXPECT_EQ(answer.status, (std::vector<int>{-1, 60000, -1}));
    EXPECT_LT(answer.tolerance[2], 0.51);
    // Constants are never swept: their row would make a difference.
    question.corr[4] = 0.0;
    EXPECT_NEAR(check(question).tolerance[2], 1 - 0.01, 1e-15);
}

TEST(CheckTolerance, VisitsNoMarkedMembers)
{
    Question question{.p = 2, .corr = correlations(2, {1.0}), .pairCheck = -1, .keepGoing = -1};
    const Answer answer = check(question);
    EXPECT_EQ(answer.status, (std::vector<int>{-1, 60000}));
    EXPECT_THAT(answer.tolerance, SameBits({0.0, 0.0}));
    EXPECT_THAT(answer.vif, SameBits({M, M}));
}

// ---- groups ---------------------------------------------------------------------------------------------------------

TEST(CheckTolerance, VisitsSelectedGroupsFromTheLast)
{
    Question question{.p = 2, .corr = correlations(2, {0.8}), .selected = {1, 1}, .group = {1, 2}, .tol = 0.5};
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, 60000}));
    question.selected = {1, 0};
    EXPECT_EQ(check(question).status, (std::vector<int>{60000, -1}));
    for (const int notOne : {-1, 2}) {
        question.selected = {notOne, notOne};
        EXPECT_EQ(check(question).status, (std::vector<int>{-1, -1}));
    }
    question.selected = {};
    EXPECT_EQ(check(question).status, (std::vector<int>{-1, -1}));
}

TEST(CheckTolerance, TakesTheFirstRunOfAGroup)
{
    // Group 1 has a second run at the end, which is not visited.
    Question question{
        .p = 4, .corr = correlations(4, {0.1, 0.2, 0.3, 0.1, 0.2, 0.1}), .selected = {1, 0}, .group = {1, 1, 2, 1}};
    const Answer answer = check(question);
    EXPECT_NE(answer.tolerance[0], 77.0);
    EXPECT_NE(answer.tolerance[1], 77.0);
    EXPECT_THAT(answer.tolerance[2], SameBits(77.0));
    EXPECT_THAT(answer.tolerance[3], SameBits(77.0));
}

TEST(CheckTolerance, TakesTheLastVariableForAGroupThatIsNowhere)
{
    Question question{.p = 3, .corr = correlations(3, {0.1, 0.2, 0.3}), .selected = {0, 0, 0, 1}, .group = {1, 2, 2}};
    const Answer answer = check(question);
    EXPECT_THAT(answer.tolerance[0], SameBits(77.0));
    EXPECT_THAT(answer.tolerance[1], SameBits(77.0)); // not the run of the last entry, which began earlier
    EXPECT_NE(answer.tolerance[2], 77.0);
}

TEST(CheckTolerance, SweepsOtherGroupsOnlyForMinusOne)
{
    Question question{.p = 3, .corr = correlations(3, {0.8, 0.1, 0.0}), .selected = {1, 0}, .group = {1, 1, 2}};
    const Answer all = check(question);
    EXPECT_NEAR(all.tolerance[0], 1 - 0.64 - 0.01, 1e-15);
    question.otherGroupsOnly = 1;
    EXPECT_THAT(check(question).tolerance, SameBits(all.tolerance));
    question.otherGroupsOnly = -1;
    const Answer others = check(question);
    EXPECT_NEAR(others.tolerance[0], 1 - 0.01, 1e-15);
    EXPECT_THAT(others.tolerance[1], SameBits(1.0)); // the third says nothing of it
    // In one group nothing is left to be swept.
    question.group = {1, 1, 1};
    EXPECT_THAT(check(question).tolerance, SameBits({77.0, 77.0, 77.0}));
    EXPECT_THAT(check(question).vif, SameBits({77.0, 77.0, 77.0}));
}

TEST(CheckTolerance, SearchesTheGroupTableWhateverTheCountOfVariables)
{
    // Six entries, of which only the first two are of variables: the group that is found after them has no members.
    const Owned<matrix> corr = table(2, 2, correlations(2, {0.5})), tolerance = filled(2, 1, 77.0),
                        vif = filled(2, 1, 77.0);
    const Owned<matrixInt> status = intColumn({55, 55});
    CheckTolerance(corr, 2, 3, intColumn({0, 0, 1}), intColumn({1, 1, 2, 2, 3, 3}), 1e-4, 0, 0, 0, 0, status, tolerance,
                   vif);
    EXPECT_THAT(cellsOf(tolerance), SameBits({77.0, 77.0}));
    // And the members of a run end with the variables.
    CheckTolerance(corr, 2, 1, intColumn({1}), intColumn({0, 1, 1, 1}), 1e-4, 0, 0, 0, 0, status, tolerance, vif);
    EXPECT_THAT(cellsOf(tolerance), SameBits({77.0, 0.75}));
}

TEST(CheckTolerance, DoesNothingWithoutVariables)
{
    EXPECT_TRUE(check({.p = 0, .corr = {}, .selected = {1}}).status.empty());
}

TEST(OLSCheckIfIn, ReadsTheDiagonal)
{
    const Owned<matrix> a = column({10, 20, 30, 40, 50, 60});
    EXPECT_EQ(OLSCheckIfIn(a, 2, 1, 0.5), 10.0);
    EXPECT_EQ(OLSCheckIfIn(a, 2, 2, 0.5), 30.0);
    EXPECT_EQ(OLSCheckIfIn(a, -7, 3, 1e9), 60.0); // neither the order nor the tolerance matters
    EXPECT_EQ(OLSCheckIfIn(a, 2, 4, 0.5), -1.0);
    EXPECT_EQ(OLSCheckIfIn(a, 2, 0, 0.5), -1.0);
    EXPECT_EQ(OLSCheckIfIn(a, 2, std::numeric_limits<int>::max(), 0.5), -1.0);
}

} // namespace
} // namespace vecmat::test
