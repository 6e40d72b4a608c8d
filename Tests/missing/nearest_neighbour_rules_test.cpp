// What sets the three searches of nearest-neighbour imputation apart. Each test names the row that a rule made like the
// others would choose.
#include "missing/neighbour_cases.h"

namespace vecmat::test {
namespace {

using testing::ElementsAre;

struct Parts
{
    std::vector<short> mask = {};
    int colsX = 0;
    Numbers x = {};
    int colsY = 0;
    Numbers y = {};
    int colsS = 0;
    Texts s = {};
};

NeighbourTable filled(const Parts& parts)
{
    NeighbourCase c = neighbourCase(parts.mask);
    c.colsX = parts.colsX;
    c.colsY = parts.colsY;
    c.colsS = parts.colsS;
    c.target.x = parts.x;
    c.target.y = parts.y;
    c.target.s = parts.s;
    return filledNumbers(c);
}

/// With strings in the primary block.
NeighbourTable filled(Texts p, const Parts& parts)
{
    NeighbourCase c = neighbourCase(parts.mask);
    c.colsX = parts.colsX;
    c.colsY = parts.colsY;
    c.colsS = parts.colsS;
    c.target.p = std::move(p);
    c.target.y = parts.y;
    c.target.s = parts.s;
    return filledTexts(c);
}

// ---- the row that is skipped ----------------------------------------------------------------------------------------

TEST(NearestNeighbourRules, RowNumberedAsTheColumnIsPassedOverInTheSecondBlock)
{
    const Numbers cells = {10, 20, M, /**/ 5, 9, 5}; // row 1 is the nearest to row 3
    EXPECT_THAT(filled({.mask = {0, 0, -1}, .colsY = 2, .y = cells}).y, SameBits({10, 20, 20, 5, 9, 5}));
    EXPECT_THAT(filled({.mask = {0, 0, -1}, .colsX = 2, .x = cells}).x, SameBits({10, 20, 10, 5, 9, 5}));
    // In column 2 it is row 2 that is skipped.
    EXPECT_THAT(filled({.mask = {0, 0, -1}, .colsY = 2, .y = {9, 5, 5, /**/ 10, 20, M}}).y,
                SameBits({9, 5, 5, 10, 20, 10}));
    EXPECT_THAT(filled({.mask = {0, 0, -1}, .colsY = 2, .y = {5, 9, 5, /**/ 10, 20, M}}).y,
                SameBits({5, 9, 5, 10, 20, 10}));
}

TEST(NearestNeighbourRules, RowNumberedAsTheColumnIsPassedOverInTheStringBlock)
{
    // Two of three columns to compare: row 1 differs in one of them, row 2 in both.
    EXPECT_THAT(
        filled({.mask = {0, 0, -1}, .colsS = 3, .s = {L"p", L"q", L"", /**/ L"a", L"b", L"a", /**/ L"c", L"c", L"d"}})
            .s[2],
        L"q");
    EXPECT_EQ(
        filled({L"p", L"q", L"", /**/ L"a", L"b", L"a", /**/ L"c", L"c", L"d"}, {.mask = {0, 0, -1}, .colsX = 3}).p[2],
        L"p");
}

TEST(NearestNeighbourRules, OnlyThatRowLeftMeansNoNeighbour)
{
    EXPECT_THAT(filled({.mask = {0, -1, -1}, .colsY = 2, .y = {10, 40, M, /**/ 5, 9, 5}}).y,
                SameBits({10, 40, 25, 5, 9, 5}));
}

// ---- the own cell ---------------------------------------------------------------------------------------------------

TEST(NearestNeighbourRules, WithPrimaryColumnsAloneARowWithoutTheValueCanWin)
{
    const Numbers x = {M, M, 1, /**/ 5, 5, 9};
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 2, .x = x}).x, SameBits({M, M, 1, 5, 5, 9}));
    // With columns in a block that follows it is rejected.
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 2, .x = x, .colsY = 1, .y = {2, 2, 2}}).x,
                SameBits({1, M, 1, 5, 5, 9}));
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 2, .x = x, .colsS = 1, .s = {L"a", L"a", L"a"}}).x,
                SameBits({1, M, 1, 5, 5, 9}));
}

TEST(NearestNeighbourRules, SoItCanWithStringsAlone)
{
    const Texts p = {L"", L"", L"far", /**/ L"k", L"k", L"z", /**/ L"m", L"n", L"n"};
    const Parts alone = {.mask = {-1, 0, 0}, .colsX = 3};
    EXPECT_EQ(filled(p, alone).p[0], L"");
    Parts withNumbers = alone;
    withNumbers.colsY = 1;
    withNumbers.y = {2, 2, 2};
    EXPECT_EQ(filled(p, withNumbers).p[0], L"far");
    Parts withStrings = alone;
    withStrings.colsS = 1;
    withStrings.s = {L"a", L"a", L"a"};
    EXPECT_EQ(filled(p, withStrings).p[0], L"far");
}

TEST(NearestNeighbourRules, AndInTheSecondBlockWithoutStrings)
{
    const Numbers y = {9, M, 1, M, /**/ 9, 5, 7, 5};
    EXPECT_THAT(filled({.mask = {0, 0, 0, -1}, .colsY = 2, .y = y}).y, SameBits(y));
    // Primary columns are not a block that follows.
    EXPECT_THAT(filled({.mask = {0, 0, 0, -1}, .colsX = 1, .x = {1, 2, 3, 4}, .colsY = 2, .y = y}).y, SameBits(y));
    EXPECT_THAT(filled({.mask = {0, 0, 0, -1}, .colsY = 2, .y = y, .colsS = 1, .s = {L"a", L"a", L"a", L"a"}}).y,
                SameBits({9, M, 1, 1, 9, 5, 7, 5}));
}

TEST(NearestNeighbourRules, NeverInTheStringBlock)
{
    EXPECT_EQ(filled({.mask = {0, 0, 0, -1},
                      .colsS = 3,
                      .s = {L"w", L"", L"far", L"", /**/ L"x", L"k", L"z", L"k", /**/ L"n", L"n", L"n", L"m"}})
                  .s[3],
              L"far");
}

// ---- missing cells of a candidate -----------------------------------------------------------------------------------

TEST(NearestNeighbourRules, MissingCellOfAnyOtherColumnRejects)
{
    // Column 3 of the target is missing too: it gives no term, yet its missing cell in row 2 rejects that row.
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 3, .x = {M, 20, 30, /**/ 5, 5, 9, /**/ M, M, 3}}).x[0],
                SameBits(30));
    EXPECT_THAT(
        filled({.mask = {-1, 0, 0}, .colsX = 1, .x = {M, 20, 30}, .colsY = 2, .y = {5, 5, 9, /**/ M, M, 3}}).x[0],
        SameBits(30));
    EXPECT_THAT(filled({.mask = {-1, 0, 0},
                        .colsX = 1,
                        .x = {M, 20, 30},
                        .colsS = 2,
                        .s = {L"a", L"b", L"z", /**/ L"", L"", L"c"}})
                    .x[0],
                SameBits(30));
    EXPECT_THAT(filled({.mask = {-1, 0, 0, 0},
                        .colsY = 2,
                        .y = {M, 20, 30, 40, /**/ 5, 5, 9, 9},
                        .colsS = 1,
                        .s = {L"", L"", L"c", L"d"}})
                    .y[0],
                SameBits(30));
}

TEST(NearestNeighbourRules, RejectsAllTheSameWhereTheColumnHasNoVariance)
{
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 3, .x = {M, 20, 30, /**/ 5, 5, 9, /**/ 3, M, 3}}).x[0],
                SameBits(30));
}

TEST(NearestNeighbourRules, StringSearchExemptsTheColumnOfTheSecondBlockWithItsNumber)
{
    // Row 2 agrees in one string of two, row 4 in none. Row 1 is skipped for column 1.
    const Texts s = {L"x", L"near", L"", L"far", /**/ L"k", L"k", L"k", L"z", /**/ L"k", L"m", L"k", L"m"};
    Parts parts = {.mask = {0, 0, -1, 0}, .colsY = 2, .y = {7, M, 7, 7, /**/ 8, 8, 8, 8}, .colsS = 3, .s = s};
    EXPECT_EQ(filled(parts).s[2], L"near");
    parts.y = {7, 7, 7, 7, /**/ 8, M, 8, 8}; // a column of another number rejects
    EXPECT_EQ(filled(parts).s[2], L"far");
}

TEST(NearestNeighbourRules, ExemptColumnStillGivesItsTerm)
{
    // As above, but the column has a variance: the missing value of row 2 is infinitely far away.
    const Texts s = {L"x", L"near", L"", L"far", /**/ L"k", L"k", L"k", L"z", /**/ L"k", L"m", L"k", L"m"};
    EXPECT_EQ(filled({.mask = {0, 0, -1, 0}, .colsY = 1, .y = {3, M, 7, 7}, .colsS = 3, .s = s}).s[2], L"far");
}

TEST(NearestNeighbourRules, PrimaryBlockTakesNoPartInTheOtherSearches)
{
    // By Y and S row 2 is the nearest to row 3 (row 1 is skipped); by X it is far away, or would be rejected.
    for (const double x : {1000.0, M}) {
        const NeighbourTable numbers = filled(
            {.mask = {0, 0, -1, 0}, .colsX = 1, .x = {0, x, 1, 1}, .colsY = 2, .y = {9, 20, M, 40, /**/ 1, 5, 5, 6}});
        EXPECT_THAT(numbers.y[2], SameBits(20)) << x;
        const NeighbourTable strings =
            filled({.mask = {0, 0, -1, 0},
                    .colsX = 1,
                    .x = {0, x, 1, 1},
                    .colsS = 3,
                    .s = {L"w", L"near", L"", L"far", /**/ L"k", L"k", L"k", L"z", /**/ L"k", L"m", L"k", L"m"}});
        EXPECT_EQ(strings.s[2], L"near") << x;
    }
}

// ---- a term is needed -----------------------------------------------------------------------------------------------

TEST(NearestNeighbourRules, PrimaryCandidateWithNothingToCompareCannotWin)
{
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 1, .x = {M, 2, 4}}).x, SameBits({3, 2, 4}));
    EXPECT_EQ(filled({L"", L"a", L"b", L"b"}, {.mask = {-1, 0, 0, 0}, .colsX = 1}).p[0], L"b");
    // A term of another candidate is of no help: row 3 gives one, row 2 does not.
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 1, .x = {M, 2, 4}, .colsS = 1, .s = {L"a", L"a", L"z"}}).x,
                SameBits({4, 2, 4}));
}

TEST(NearestNeighbourRules, EqualStringsAreNoTermButEqualNumbersAre)
{
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 1, .x = {M, 2, 4}, .colsS = 1, .s = {L"a", L"a", L"a"}}).x[0],
                SameBits(3));
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 1, .x = {M, 2, 4}, .colsY = 1, .y = {1, 1, 5}}).x[0], SameBits(2));
    // In a column without variance even equal numbers give no distance.
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsX = 1, .x = {M, 2, 4}, .colsY = 1, .y = {1, 1, 1}}).x[0], SameBits(3));
}

TEST(NearestNeighbourRules, OtherBlocksAloneNeedATermToo)
{
    EXPECT_THAT(filled({.mask = {-1, 0, 0}, .colsY = 1, .y = {M, 2, 4}}).y, SameBits({3, 2, 4}));
    EXPECT_EQ(filled({.mask = {-1, 0, 0, 0}, .colsS = 1, .s = {L"", L"a", L"b", L"b"}}).s[0], L"b");
}

/// One missing cell in X and one in Y, of a single column: nothing to compare in the search for the latter.
Parts termBefore(std::vector<short> mask, Numbers x)
{
    const std::size_t rows = mask.size();
    Parts parts = {.mask = std::move(mask), .colsX = 2, .x = std::move(x), .colsY = 1, .y = Numbers(rows, 60)};
    parts.y[0] = M;
    parts.y[1] = 20;
    parts.y[2] = 40;
    return parts;
}

TEST(NearestNeighbourRules, TermOfTheLastPrimaryCandidateServesTheOtherSearches)
{
    const NeighbourTable result = filled(termBefore({-1, 0, 0}, {M, 1, 2, /**/ 5, 4, 9}));
    EXPECT_THAT(result.x[0], SameBits(1));
    EXPECT_THAT(result.y[0], SameBits(20)); // the first row, at distance 0.0; not the mean
    // Without a search in X there has been no term.
    EXPECT_THAT(filled(termBefore({-1, 0, 0}, {0, 1, 2, /**/ 5, 4, 9})).y[0], SameBits(30));
}

TEST(NearestNeighbourRules, PrimarySearchForgetsTermsAtEveryRowAlsoAtOnesItPassesOver)
{
    // The last row is flagged.
    EXPECT_THAT(filled(termBefore({-1, 0, 0, -1}, {M, 1, 2, 3, /**/ 5, 4, 9, 7})).y[0], SameBits(40));
    // The last row is the target itself.
    Parts parts = {.mask = {0, 0, -1}, .colsX = 2, .x = {1, 2, M, /**/ 4, 9, 5}, .colsY = 1, .y = {10, 30, M}};
    EXPECT_THAT(filled(parts).y[2], SameBits(20));
}

TEST(NearestNeighbourRules, TermOfARejectedCandidateCounts)
{
    // The last row is rejected by its missing cell in Y, after its term in X.
    Parts parts = termBefore({-1, 0, 0, 0}, {M, 1, 2, 3, /**/ 5, 4, 9, 7});
    parts.y[3] = M;
    EXPECT_THAT(filled(parts).y[0], SameBits(20));
    // Here it is rejected by a missing cell in X, before any term.
    parts = termBefore({-1, 0, 0, 0}, {M, 1, 2, 3, /**/ 5, 4, 9, M});
    EXPECT_THAT(filled(parts).y[0], SameBits(40));
}

TEST(NearestNeighbourRules, OtherSearchesNeverForget)
{
    // Row 4 has nothing to compare. A term in row 1 lets row 2 win for column 1, and row 3 for column 2.
    const Numbers y = {M, 20, 31, M, /**/ 5, 6, 9, M};
    EXPECT_THAT(filled({.mask = {-1, 0, 0, -1}, .colsY = 2, .y = y}).y, SameBits({20, 20, 31, 20, 5, 6, 9, 9}));
    Numbers complete = y;
    complete[0] = 24;
    EXPECT_THAT(filled({.mask = {-1, 0, 0, -1}, .colsY = 2, .y = complete}).y, SameBits({24, 20, 31, 25, 5, 6, 9, 9}));
}

// ---- statistics -----------------------------------------------------------------------------------------------------

TEST(NearestNeighbourRules, DivisorsOfThePrimaryAndTheSecondBlockDiffer)
{
    // With weights that sum to 1 the divisor of frequencies is 0: columns of X have no variance, those of Y have.
    NeighbourCase c = neighbourCase({0, 0, 0, -1});
    c.weights = {0.25, 0.25, 0.25, 0.25};
    c.colsX = 2;
    c.target.x = {1, 2, 6, M, /**/ 9, 5, 7, 5};
    EXPECT_THAT(filledNumbers(c).x[3], SameBits(3.0));
    std::swap(c.colsX, c.colsY);
    std::swap(c.target.x, c.target.y);
    EXPECT_THAT(filledNumbers(c).y[3], SameBits(2.0));
}

TEST(NearestNeighbourRules, StatisticsAreThoseBeforeTheFirstCellIsFilled)
{
    // All rows are flagged, so that cells take the mode of column 1; filled cells do not make it another one.
    NeighbourCase c = neighbourCase({-1, -1, -1, -1, -1});
    c.weights = {1, 5, 5, 1, 1};
    c.colsX = 1;
    c.target.p = {L"a", L"", L"", L"b", L"b"};
    EXPECT_THAT(filledTexts(c).p, ElementsAre(L"a", L"b", L"b", L"b", L"b"));

    // Row 2 takes 10. Row 3 has nothing to compare and takes the mean of 10 and 20.
    EXPECT_THAT(filled({.mask = {0, -1, -1, 0}, .colsX = 2, .x = {10, M, M, 20, /**/ 5, 5, M, 9}}).x,
                SameBits({10, 10, 15, 20, 5, 5, 5, 9}));
}

} // namespace
} // namespace vecmat::test
