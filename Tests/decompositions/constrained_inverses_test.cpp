// Inverses and determinants under constraints.
#include "decompositions/constrained_inverses.h"

#include "decompositions/determinants.h"
#include "decompositions/g2_inverse.h"
#include "decompositions/inversion.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace vecmat::test {
namespace {

struct Cleaned
{
    int code;
    std::vector<double> out;
};

Owned<matrix> doublesOf(const std::vector<int>& mask)
{
    return column(std::vector<double>(mask.begin(), mask.end()));
}

/// Both forms of the mask, which must agree.
Cleaned inverted(matrix* a, int n, const std::vector<int>& mask)
{
    const std::vector<double> before = cellsOf(a);
    Owned<matrix> out = filled(n, n, 77.0);
    Owned<matrix> other = filled(n, n, 77.0);
    const int code = cCleanConstraintsAndInvert(n, intColumn(mask), a, out);
    EXPECT_EQ(cCleanConstraintsAndInvert(n, doublesOf(mask), a, other), code);
    EXPECT_THAT(cellsOf(other), SameBits(cellsOf(out)));
    EXPECT_THAT(cellsOf(a), SameBits(before));
    return {code, cellsOf(out)};
}

Cleaned invertedTriangle(matrix* a, int n, const std::vector<int>& mask, short lower)
{
    Owned<matrix> out = filled(n, n, 77.0);
    Owned<matrix> other = filled(n, n, 77.0);
    const int code = cCleanConstraintsAndInvertTriang(n, intColumn(mask), a, lower, out);
    EXPECT_EQ(cCleanConstraintsAndInvertTriang(n, doublesOf(mask), a, lower, other), code);
    EXPECT_THAT(cellsOf(other), SameBits(cellsOf(out)));
    return {code, cellsOf(out)};
}

double determinant(matrix* a, int n, const std::vector<int>& mask, short& status)
{
    short other = status;
    const double value = M_DeterminantCleaned(a, n, intColumn(mask), &status);
    EXPECT_THAT(M_DeterminantCleaned(a, n, doublesOf(mask), &other), SameBits(value));
    EXPECT_EQ(other, status);
    return value;
}

TEST(CleanConstraintsAndInvert, IsThePlainInverseWithoutConstraints)
{
    RandomData data(821);
    SCOPED_TRACE(data);
    for (const int n : {2, 3, 6}) {
        const Owned<matrix> a = table(n, n, data.normals(static_cast<std::size_t>(n) * static_cast<std::size_t>(n)));
        const Owned<matrix> expected = filled(n, n, 0.0);
        short status = 0;
        ASSERT_EQ(a->inverse1(expected, status, 1e-12), 0);
        const Cleaned cleaned = inverted(a, n, std::vector<int>(static_cast<std::size_t>(n), 0));
        EXPECT_EQ(cleaned.code, 0);
        EXPECT_THAT(cleaned.out, SameBits(cellsOf(expected)));
    }
}

TEST(CleanConstraintsAndInvert, PutsTheInverseBackInItsOwnPlaces)
{
    const Owned<matrix> a = byRows({{2, 9, 0}, {9, 9, 9}, {0, 9, 4}});
    // Row 2 keeps what it held; in the others column 2 is 0.0.
    EXPECT_THAT(inverted(a, 3, {0, 3, 0}).out, SameBits({0.5, 77, 0, 0, 77, 0, 0, 77, 0.25}));
    EXPECT_EQ(inverted(a, 3, {0, 3, 0}).code, 0);
    EXPECT_THAT(inverted(a, 3, {1, 0, 1}).out, SameBits({77, 0, 77, 77, 1.0 / 9, 77, 77, 0, 77}));
}

TEST(CleanConstraintsAndInvert, LeavesWhatAResultHasBeyond)
{
    const Owned<matrix> a = byRows({{2, 0}, {0, 4}});
    Owned<matrix> out = filled(2, 3, 77.0);
    EXPECT_EQ(cCleanConstraintsAndInvert(2, intColumn({0, 0}), a, out), 0);
    EXPECT_THAT(cellsOf(out), SameBits({0.5, 0, 0, 0.25, 77, 77}));
}

TEST(CleanConstraintsAndInvert, FallsBackOnTheG2InverseOfASingularBlock)
{
    const Owned<matrix> a = byRows({{4, 9, 4}, {9, 9, 9}, {4, 9, 4}});
    const Cleaned cleaned = inverted(a, 3, {0, 1, 0});
    EXPECT_EQ(cleaned.code, 1);
    // Not that of Moore and Penrose, which has 1/16 throughout.
    EXPECT_THAT(cleaned.out, SameBits({0.25, 77, 0, 0, 77, 0, 0, 77, 0}));
    // A pivot up to 1e-8 is singular here, and the g2 inverse takes it.
    const Cleaned small = inverted(byRows({{1, 0}, {0, 1e-8}}), 2, {0, 0});
    EXPECT_EQ(small.code, 1);
    EXPECT_THAT(small.out, SameBits({1, -0.0, -0.0, 1.0 / 1e-8}));
    EXPECT_EQ(inverted(byRows({{1, 0}, {0, 1.1e-8}}), 2, {0, 0}).code, 0);
}

TEST(CleanConstraintsAndInvert, OfOneRowIsTheReciprocal)
{
    EXPECT_THAT(inverted(column({4.0}), 1, {0}).out, SameBits({0.25}));
    // Without the thresholds of the others.
    EXPECT_THAT(inverted(column({1e-20}), 1, {0}).out, SameBits({1.0 / 1e-20}));
    EXPECT_EQ(inverted(column({1e-20}), 1, {0}).code, 0);
    EXPECT_THAT(inverted(column({0.0}), 1, {0}).out, SameBits({1e12}));
    EXPECT_THAT(inverted(column({-0.0}), 1, {0}).out, SameBits({1e12}));
    EXPECT_EQ(inverted(column({0.0}), 1, {0}).code, 0);
    EXPECT_THAT(inverted(byRows({{0, 5}, {5, 7}}), 2, {0, 1}).out, SameBits({1e12, 77, 0, 77}));
}

TEST(CleanConstraintsAndInvert, OfNothingWritesNothing)
{
    const Cleaned cleaned = inverted(byRows({{0, 5}, {5, 7}}), 2, {1, 1});
    EXPECT_EQ(cleaned.code, 0);
    EXPECT_THAT(cleaned.out, SameBits({77, 77, 77, 77}));
    EXPECT_EQ(inverted(filled(0, 0, 0.0), 0, {}).code, 0);
}

TEST(CleanConstraintsAndInvert, MayWriteToItsInput)
{
    Owned<matrix> a = byRows({{2, 9, 0}, {9, 9, 9}, {0, 9, 4}});
    EXPECT_EQ(cCleanConstraintsAndInvert(3, intColumn({0, 1, 0}), a, a), 0);
    EXPECT_THAT(cellsOf(a), SameBits({0.5, 9, 0, 0, 9, 0, 0, 9, 0.25}));
}

TEST(CleanConstraintsAndInvert, TakesAnyNumberAboveZeroForAConstraint)
{
    const Owned<matrix> a = byRows({{2, 1}, {1, 4}});
    for (const double above : {5e-324, 0.5, 1e300}) {
        const Owned<matrix> mask = column({above, -0.0});
        Owned<matrix> out = filled(2, 2, 77.0);
        EXPECT_EQ(cCleanConstraintsAndInvert(2, mask, a, out), 0);
        EXPECT_THAT(cellsOf(out), SameBits({77, 0, 77, 0.25})) << above;
        EXPECT_EQ(cCleanConstraintsAndInvertTriang(2, mask, a, -1, out), 0);
        EXPECT_THAT(cellsOf(out), SameBits({77, 0, 77, 0.25})) << above;
        short status = 7;
        EXPECT_THAT(M_DeterminantCleaned(a, 2, mask, &status), SameBits(4.0)) << above;
    }
}

TEST(CleanConstraintsAndInvert, IsSafeForAMaskThatIsNotOne)
{
    // An entry below 0 counts in the order of the block, whose row stays 0.0: singular.
    const Cleaned cleaned = inverted(byRows({{2, 0}, {0, 4}}), 2, {0, -1});
    EXPECT_EQ(cleaned.code, 1);
    EXPECT_THAT(cleaned.out, SameBits({0.5, 77, 0, 77}));
    Owned<matrix> out = filled(2, 2, 77.0);
    EXPECT_EQ(cCleanConstraintsAndInvert(2, intColumn({0}), byRows({{2, 0}, {0, 4}}), out), 1);
}

TEST(CleanConstraintsAndInvertTriang, InvertsWhatIsKept)
{
    const Owned<matrix> a = byRows({{2, 0, 0}, {9, 9, 0}, {1, 9, 4}});
    EXPECT_THAT(invertedTriangle(a, 3, {0, 1, 0}, -1).out, SameBits({0.5, 77, -0.125, 0, 77, 0, 0, 77, 0.25}));
    // As an upper triangle the 1 is not read.
    EXPECT_THAT(invertedTriangle(a, 3, {0, 1, 0}, 0).out, SameBits({0.5, 77, 0, 0, 77, 0, -0.0, 77, 0.25}));
    EXPECT_EQ(invertedTriangle(a, 3, {0, 1, 0}, 1).code, 0);
    EXPECT_EQ(invertedTriangle(a, 3, {1, 1, 1}, 1).code, 0);
}

TEST(CleanConstraintsAndInvertTriang, FailsWithTheResultAsItWas)
{
    const Cleaned cleaned = invertedTriangle(byRows({{2, 0}, {1, 0}}), 2, {0, 0}, -1);
    EXPECT_EQ(cleaned.code, -1);
    EXPECT_THAT(cleaned.out, SameBits({77, 77, 77, 77}));
    EXPECT_EQ(invertedTriangle(byRows({{2, 0}, {1, 1e-13}}), 2, {0, 0}, -1).code, -1);
    EXPECT_EQ(invertedTriangle(byRows({{2, 0}, {1, 1e-12}}), 2, {0, 0}, -1).code, 0);
}

TEST(CleanConstraintsAndInvertTriang, OfOneRowIsTheReciprocalAndNeverFails)
{
    EXPECT_EQ(invertedTriangle(column({0.0}), 1, {0}, -1).code, 0);
    EXPECT_THAT(invertedTriangle(column({0.0}), 1, {0}, -1).out, SameBits({1e12}));
    EXPECT_THAT(invertedTriangle(column({1e-13}), 1, {0}, -1).out, SameBits({1.0 / 1e-13}));
}

TEST(MDeterminantCleaned, IsTheDeterminantOfTheBlock)
{
    const Owned<matrix> a = byRows({{2, 9, 3}, {9, 9, 9}, {4, 9, 4}});
    short status = 7;
    short expectedStatus = 7;
    const double expected = M_Determinant(byRows({{2, 3}, {4, 4}}), 2, &expectedStatus, 0);
    EXPECT_THAT(determinant(a, 3, {0, 1, 0}, status), SameBits(expected));
    EXPECT_EQ(status, 0);
    EXPECT_THAT(determinant(a, 3, {1, 1, 1}, status), SameBits(1.0));
    // The limit of the full determinant, without the logarithm.
    EXPECT_THAT(determinant(byRows({{1e300, 0}, {0, 1e300}}), 2, {0, 0}, status), SameBits(positiveTwin));
    EXPECT_EQ(status, -1);
}

TEST(MDeterminantCleaned, OfOneRowIsTheCellWithoutAStatus)
{
    const Owned<matrix> a = byRows({{-2, 9}, {9, 0.1}});
    short status = 7;
    EXPECT_THAT(determinant(a, 2, {0, 1}, status), SameBits(-2.0));
    EXPECT_THAT(determinant(a, 2, {1, 0}, status), SameBits(0.1)); // a logarithm would round it
    EXPECT_THAT(determinant(column({0.0}), 1, {0}, status), SameBits(0.0));
    EXPECT_THAT(determinant(column({1e-320}), 1, {0}, status), SameBits(1e-320));
    EXPECT_THAT(determinant(column({5.0}), 2, {1, 0}, status), SameBits(-1.0)); // outside the table
    EXPECT_EQ(status, 7);
}

TEST(ConstrainedInverses, HaveFlatForms)
{
    Guarded<double> a{2, 9, 0, 9, 9, 9, 0, 9, 4};
    Guarded<int> constraints{0, 1, 0};
    Guarded<double> out(9, 77.0);
    EXPECT_EQ(CleanConstraintsAndInvert(3, constraints, a, out), 0);
    EXPECT_THAT(out.values(), SameBits({0.5, 77, 0, 0, 77, 0, 0, 77, 0.25}));
    EXPECT_EQ(CleanConstraintsAndInvertTriang(3, constraints, a, -1, out), 0);
    EXPECT_THAT(out.values(), SameBits({0.5, 77, -0.0, 0, 77, 0, 0, 77, 0.25}));
    short status = 7;
    EXPECT_NEAR(VB_M_DeterminantCleaned(a, 3, constraints, &status), 8.0, 1e-14);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(a.untouched());
    Guarded<double> singular{1, 1, 1, 1};
    Guarded<int> none(2, 0);
    Guarded<double> small(4, 77.0);
    EXPECT_EQ(CleanConstraintsAndInvert(2, none, singular, small), 1);
    EXPECT_THAT(small.values(), SameBits({1, 0, 0, 0}));
    Guarded<double> zero(4, 0.0);
    Guarded<double> kept(4, 77.0);
    EXPECT_EQ(CleanConstraintsAndInvertTriang(2, none, zero, -1, kept), -1);
    EXPECT_TRUE(kept.untouched());
}

} // namespace
} // namespace vecmat::test
