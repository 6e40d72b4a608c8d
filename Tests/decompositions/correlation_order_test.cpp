// The variables of a correlation table in the order of a score.
#include "decompositions/correlation_order.h"

#include "decompositions/eigen.h"
#include "descriptive/moments.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

using Texts = std::vector<std::wstring>;
using Order = std::vector<std::size_t>; // 0-based source numbers

Texts names(std::size_t n)
{
    Texts all;
    for (std::size_t i = 0; i < n; ++i)
        all.push_back(std::wstring(1, static_cast<wchar_t>(L'a' + i)));
    return all;
}

template <class T>
std::vector<T> reordered(const std::vector<T>& cells, const Order& order)
{
    const std::size_t n = order.size();
    std::vector<T> result(n * n);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            result[i + n * j] = cells[order[j] + n * order[i]];
    return result;
}

/// What the order by a score must do to the tables: R with a diagonal of 1.0.
void expectOrder(const std::vector<double>& R, int mode, const Order& order)
{
    const std::size_t n = order.size();
    const int size = static_cast<int>(n);
    std::vector<double> second(n * n);
    std::vector<int> third(n * n);
    std::iota(second.begin(), second.end(), 10.5);
    std::iota(third.begin(), third.end(), -3);
    std::vector<double> withDiagonal = R;
    Texts labels;
    for (std::size_t i = 0; i < n; ++i) {
        withDiagonal[i + n * i] = 1.0;
        labels.push_back(names(n)[order[i]]);
    }

    Owned<matrix> table1 = table(size, size, R), table2 = table(size, size, second);
    Owned<matrixInt> table3 = intTable(size, size, third);
    Owned<Smatrix> texts = stringColumn(names(n));
    EXPECT_EQ(ReOrderCorrelations(table1, size, mode, texts, table2, table3), 0);
    EXPECT_EQ(cellsOf(texts), labels);
    EXPECT_THAT(cellsOf(table1), SameBits(reordered(withDiagonal, order)));
    EXPECT_THAT(cellsOf(table2), SameBits(reordered(second, order)));
    EXPECT_EQ(cellsOf(table3), reordered(third, order));

    Guarded<double> flat1(R), flat2(second);
    Guarded<int> flat3(third);
    BstrArray flatTexts(names(n));
    EXPECT_EQ(Cpp_ReOrderCorrelations(flat1, size, mode, flatTexts, flat2, flat3), 0);
    EXPECT_EQ(flatTexts.countNew(), n);
    EXPECT_EQ(flatTexts.texts(), labels);
    EXPECT_THAT(flat1.values(), SameBits(cellsOf(table1)));
    EXPECT_THAT(flat2.values(), SameBits(cellsOf(table2)));
    EXPECT_EQ(flat3.values(), cellsOf(table3));
}

/// Descending, ties in their original order.
Order orderBy(const std::vector<double>& score)
{
    Order order(score.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return score[a] > score[b]; });
    return order;
}

std::vector<double> symmetricTable(RandomData& random, std::size_t n)
{
    std::vector<double> R(n * n, 1.0);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < i; ++j)
            R[i + n * j] = R[j + n * i] = random.uniform(-1.0, 1.0);
    return R;
}

TEST(ReOrderCorrelations, ByTheLargestCellOfTheFirstRowPutsTheFirstVariableLast)
{
    // Every score but the first sees the diagonal cell of row 1, which is 1.0: they tie.
    RandomData random(681);
    SCOPED_TRACE(random);
    expectOrder(symmetricTable(random, 4), 1, {1, 2, 3, 0});
    // Another row that is larger changes nothing, a cell of 1.0 or more in the first makes all of them tie.
    // The rows of variables 3 and 4 hold .9, that of variable 2 nothing above .3.
    const std::vector<double> otherRows{1, .1, .2, .1, .1, 1, .3, .3, .2, .3, 1, .9, .1, .3, .9, 1};
    expectOrder(otherRows, 1, {1, 2, 3, 0});
    expectOrder(otherRows, 2, {1, 2, 3, 0});
    expectOrder({1, .1, 1.5, .1, 1, .9, 1.5, .9, 1}, 1, {0, 1, 2});
    // Whatever the diagonal held: it is missing, then 1.0.
    expectOrder({5, .1, .2, .1, 5, .9, .2, .9, 5}, 1, {1, 2, 0});
    // Missing cells of the row are left out: nothing but missing ones score below everything.
    expectOrder({1, M, M, M, 1, .9, M, .9, 1}, 1, {1, 2, 0});
}

TEST(ReOrderCorrelations, ByTheVarianceOfTheFirstRowSetsTheFirstVariableApart)
{
    // The first row without its diagonal cell varies by 0.72, with the 1.0 by less: the first variable leads.
    const std::vector<double> spread{1, .9, -.3, .9, 1, .2, -.3, .2, 1};
    std::vector<short> mask(3, 0);
    const double without = V_Var(column({M, .9, -.3}), 3, mask.data(), column({1, 1, 1}), -1, -1);
    const double with = V_Var(column({1, .9, -.3}), 3, mask.data(), column({1, 1, 1}), -1, -1);
    ASSERT_GT(without, with);
    expectOrder(spread, 2, {0, 1, 2});
    // The off-diagonal cells alike, and the first comes last.
    expectOrder({1, .1, .2, .1, 1, .9, .2, .9, 1}, 2, {1, 2, 0});
}

TEST(ReOrderCorrelations, ByTheFirstEigenvectorWithItsSign)
{
    RandomData random(682);
    SCOPED_TRACE(random);
    for (const std::size_t n : {1u, 2u, 5u, 8u}) {
        const std::vector<double> R = symmetricTable(random, n);
        const int size = static_cast<int>(n);
        Owned<matrix> values, vectors;
        ASSERT_EQ(M_Eigen(table(size, size, R), values, vectors, size, -1), 0);
        const std::vector<double> all = cellsOf(vectors);
        expectOrder(R, 3, orderBy({all.begin(), all.begin() + size}));
    }
}

TEST(ReOrderCorrelations, TheEigenvectorIsThatOfTheTableAsItCame)
{
    // The diagonal is replaced only afterwards: the large cell of variable 2 puts it first or, by the sign, last.
    const std::vector<double> R{1, 0, 0, 0, 1, 0, 0, 0, 9};
    Owned<matrix> values, vectors;
    ASSERT_EQ(M_Eigen(table(3, 3, R), values, vectors, 3, -1), 0);
    const double sign = vectors->X[2];
    ASSERT_NE(sign, 0.0);
    expectOrder(R, 3, sign > 0.0 ? Order{2, 0, 1} : Order{0, 1, 2});
}

TEST(ReOrderCorrelations, WithAMissingCellTheEigenvectorGivesNoOrder)
{
    RandomData random(683);
    SCOPED_TRACE(random);
    std::vector<double> R = symmetricTable(random, 4);
    R[1] = R[4] = M;
    expectOrder(R, 3, {0, 1, 2, 3});
    // A missing diagonal cell counts, too, although it is replaced.
    R = symmetricTable(random, 4);
    R[15] = M;
    expectOrder(R, 3, {0, 1, 2, 3});
}

TEST(ReOrderCorrelations, AnyOtherModeKeepsTheOrderAndSetsTheDiagonal)
{
    for (const int mode : {0, 4, -1})
        expectOrder({7, .1, .2, .1, 7, .9, .2, .9, M}, mode, {0, 1, 2});
}

TEST(ReOrderCorrelations, ATableThatIsNotSymmetricComesOutTransposed)
{
    Owned<matrix> R = byRows({{1, .2, .3}, {.4, 1, .5}, {.6, .7, 1}}),
                  second = byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    Owned<matrixInt> third = intsByRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    Owned<Smatrix> labels = stringColumn({L"a", L"b", L"c"});
    ReOrderCorrelations(R, 3, 0, labels, second, third); // the order stays
    EXPECT_THAT(cellsOf(R), SameBits(cellsOf(byRows({{1, .4, .6}, {.2, 1, .7}, {.3, .5, 1}}))));
    EXPECT_THAT(cellsOf(second), SameBits({1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(cellsOf(third), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    ReOrderCorrelations(R, 3, 1, labels, second, third); // 2, 3, 1
    EXPECT_THAT(cellsOf(second), SameBits(cellsOf(byRows({{5, 6, 4}, {8, 9, 7}, {2, 3, 1}}))));
    EXPECT_EQ(cellsOf(labels), (Texts{L"b", L"c", L"a"}));
}

TEST(ReOrderCorrelations, TouchesNothingOutsideTheCorner)
{
    Owned<matrix> R = filled(4, 3, 8.0), second = filled(3, 4, 8.0);
    Owned<matrixInt> third = intTable(3, 3, std::vector<int>(9, 8));
    Owned<Smatrix> labels = stringColumn({L"a", L"b", L"c"});
    R->vbset(1, 2, 0.5);
    R->vbset(2, 1, 0.5);
    ReOrderCorrelations(R, 2, 1, labels, second, third);
    EXPECT_THAT(cellsOf(R), SameBits({1, 0.5, 8, 8, 0.5, 1, 8, 8, 8, 8, 8, 8}));
    EXPECT_EQ(cellsOf(labels), (Texts{L"b", L"a", L"c"}));
    // A table that is too small reads -1.0 and drops what does not fit.
    Owned<matrix> small = filled(1, 1, 8.0);
    ReOrderCorrelations(R, 2, 0, labels, small, third);
    EXPECT_THAT(cellsOf(small), SameBits({8}));
    ReOrderCorrelations(R, 0, 3, labels, second, third);
    EXPECT_THAT(R->X[1], SameBits(0.5));
}

} // namespace
} // namespace vecmat::test
