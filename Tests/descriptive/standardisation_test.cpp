// Standardisation with its own statistics, with known ones, of companion tables, and column by column.
#include "descriptive/standardisation.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

using Cells = std::vector<double>;

struct Standardised
{
    Cells z;
    Cells mean;
    Cells stdev;
    Cells var;
};

Standardised standardised(const Cells& x, int n, int p, std::vector<short> mask, const Cells& w, short sample,
                          short freq)
{
    Owned<matrix> z, mean, stdev, var;
    M_Standardize(table(n, p, x), n, p, z.reference(), mean.reference(), stdev.reference(), var.reference(),
                  mask.empty() ? nullptr : mask.data(), column(w), sample, freq);
    return {cellsOf(z), cellsOf(mean), cellsOf(stdev), cellsOf(var)};
}

/// The steps written out for one column after the other.
Standardised plainly(const Cells& x, std::size_t n, std::size_t p, const std::vector<short>& mask, const Cells& w,
                     short sample, short freq)
{
    Standardised result{Cells(n * p, 0.0), Cells(p, 0.0), Cells(p, 0.0), Cells(p, 0.0)};
    for (std::size_t j = 0; j < p; ++j) {
        const auto enters = [&](std::size_t i) { return (mask.empty() || mask[i] == 0) && x[i + n * j] != M; };
        double W = 0, mean = 0, Q = 0;
        int m = 0;
        for (std::size_t i = 0; i < n; ++i) {
            if (!enters(i))
                continue;
            W += w[i];
            ++m;
            if (w[i] == 0.0)
                continue;
            const double d = x[i + n * j] - mean;
            Q += d * d * (w[i] - w[i] * w[i] / W);
            mean += d * w[i] / W;
        }
        double D = W;
        if (sample == -1)
            D = W - (freq == -1 ? 1.0 : W / m);
        if (D == 0.0) {
            result.mean[j] = result.stdev[j] = result.var[j] = M;
            break;
        }
        const double s = std::sqrt(Q / D);
        for (std::size_t i = 0; i < n; ++i)
            result.z[i + n * j] = enters(i) ? (x[i + n * j] - mean) / (s == 0.0 ? 1.0 : s) : M;
        result.mean[j] = mean;
        result.stdev[j] = s;
        result.var[j] = Q / D;
    }
    return result;
}

void expectSame(const Standardised& actual, const Standardised& wanted)
{
    EXPECT_THAT(actual.z, SameBits(wanted.z));
    EXPECT_THAT(actual.mean, SameBits(wanted.mean));
    EXPECT_THAT(actual.stdev, SameBits(wanted.stdev));
    EXPECT_THAT(actual.var, SameBits(wanted.var));
}

TEST(MStandardize, FollowsTheStepsWrittenOut)
{
    RandomData data(20271);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < 30; ++turn) {
        const int n = data.integer(1, 12);
        const int p = data.integer(1, 5);
        const Cells x = data.withMissing(data.normals(static_cast<std::size_t>(n * p)), 0.2);
        const Cells w = data.weights(static_cast<std::size_t>(n), 0.3);
        std::vector<short> mask = data.mask(static_cast<std::size_t>(n), 0.2);
        mask[0] = static_cast<short>(data.integer(0, 3)); // any value but 0 drops
        for (short sample : {-1, 0, 1})
            for (short freq : {-1, 0}) {
                const auto wanted =
                    plainly(x, static_cast<std::size_t>(n), static_cast<std::size_t>(p), mask, w, sample, freq);
                expectSame(standardised(x, n, p, mask, w, sample, freq), wanted);

                Guarded<double> X(x), Z(x.size(), 7.0), mean(static_cast<std::size_t>(p), 7.0),
                    stdev(static_cast<std::size_t>(p), 7.0), var(static_cast<std::size_t>(p), 7.0), weights(w);
                VB_M_Standardize(X, n, p, Z, mean, stdev, var, mask.data(), weights, sample, freq);
                expectSame({Z.values(), mean.values(), stdev.values(), var.values()}, wanted);
                EXPECT_TRUE(X.untouched() && weights.untouched());

                expectSame(standardised(x, n, p, {}, w, sample, freq),
                           plainly(x, static_cast<std::size_t>(n), static_cast<std::size_t>(p), {}, w, sample, freq));
            }
    }
}

TEST(MStandardize, EndsAtADivisorOfZero)
{
    const auto result = standardised({5, 1, 2}, 1, 3, {}, {1}, -1, -1);
    expectSame(result, {{0, 0, 0}, {M, 0, 0}, {M, 0, 0}, {M, 0, 0}});

    // Not at a NaN: without a row that counts W/m is 0/0, and the next column has its turn.
    const auto later = standardised({M, M, 1, 3}, 2, 2, {}, {1, 1}, -1, 0);
    EXPECT_THAT(later.z, SameBits({M, M, -1 / std::sqrt(2.0), 1 / std::sqrt(2.0)}));
    EXPECT_TRUE(std::isnan(later.var[0]));
    EXPECT_THAT(later.var[1], SameBits(2.0));
}

TEST(MStandardize, DividesAConstantColumnByOne)
{
    const auto result = standardised({4, 4, 4}, 3, 1, {}, {1, 1, 1}, 0, 0);
    expectSame(result, {{0, 0, 0}, {4}, {0}, {0}});
}

TEST(MStandardizeW, HasNoMissingTestAndCorrectsByTheArgumentN)
{
    RandomData data(20272);
    SCOPED_TRACE(data);
    const std::size_t n = 40, p = 20;
    // The first columns are complete, so that every digit counts; the last has missing cells, which are huge numbers.
    Cells x = data.normals(n * p);
    x[(p - 1) * n + 3] = x[(p - 1) * n + 5] = M;
    const Cells w = data.weights(n, 0.3);
    for (short sample : {-1, 0})
        for (short freq : {-1, 0}) {
            Cells wanted;
            for (std::size_t j = 0; j < p; ++j) {
                double W = 0, mean = 0, Q = 0;
                for (std::size_t i = 0; i < n; ++i) {
                    W += w[i];
                    if (w[i] == 0.0)
                        continue;
                    const double d = x[i + n * j] - mean;
                    Q += d * d * w[i] * (1.0 - w[i] / W);
                    mean += d * w[i] / W;
                }
                if (sample == -1)
                    W -= freq == -1 ? 1.0 : W / static_cast<double>(n);
                const double s = std::sqrt(Q / W);
                for (std::size_t i = 0; i < n; ++i)
                    wanted.push_back((x[i + n * j] - mean) / (s == 0.0 ? 1.0 : s));
            }
            const auto z = filled(40, 20, 77.0);
            M_StandardizeW(table(40, 20, x), 40, 20, column(w), sample, freq, z.get());
            EXPECT_THAT(cellsOf(z), SameBits(wanted));
            Guarded<double> X(x), Z(x.size(), 7.0), weights(w);
            VB_M_StandardizeW(X, 40, 20, weights, sample, freq, Z);
            EXPECT_THAT(Z.values(), SameBits(wanted));
            EXPECT_TRUE(X.untouched());
        }
    const auto z = filled(2, 1, 77.0);
    M_StandardizeW(column({4, 4}), 2, 1, column({1, 1}), 0, 0, z.get());
    EXPECT_THAT(cellsOf(z), SameBits({0, 0}));
}

TEST(MStandardizeKnownMeansStDev, IsListwiseWithoutAMask)
{
    auto x = table(3, 2, {1, 2, 3, 10, M, 30});
    Owned<matrix> z;
    M_StandardizeKnownMeansStDev(x.reference(), 3, 2, column({1, 10}), z.reference(), column({2, 0}), nullptr, nullptr);
    EXPECT_THAT(cellsOf(z), SameBits({0, M, 1, 0, M, 20})); // a deviation of 0 divides as 1
}

TEST(MStandardizeKnownMeansStDev, DoesNotTestACellOfAKeptRow)
{
    auto x = table(2, 1, {M, 8});
    std::vector<short> mask{0, 5};
    Owned<matrix> z;
    M_StandardizeKnownMeansStDev(x.reference(), 2, 1, column({1}), z.reference(), nullptr, column({4}), mask.data());
    EXPECT_THAT(cellsOf(z), SameBits({(M - 1) / 2, M}));

    Guarded<double> X({M, 8}), mean({1.0}), Z(2, 7.0), var({4.0});
    VB_M_StandardizeKnownMeansStDev(X, 2, 1, mean, Z, nullptr, var, mask.data());
    EXPECT_THAT(Z.values(), SameBits({(M - 1) / 2, M}));
    VB_M_StandardizeKnownMeansStDev(X, 2, 1, mean, Z, nullptr, var, nullptr);
    EXPECT_THAT(Z.values(), SameBits({M, 3.5}));
    EXPECT_TRUE(X.untouched() && mean.untouched() && var.untouched());
}

TEST(MStandardizeMatrix, CentresXAndOnlyDividesTheOthers)
{
    // Plain divisor: the deviations are 1 and 2.
    auto X = table(2, 2, {1, 3, 10, 14});
    auto Y = table(1, 2, {5, 6});
    auto V = table(3, 2, {1, 2, M, 4, 5, 6});
    M_StandardizeMatrix(X.reference(), 2, 2, Y.reference(), 1, V.reference(), 2);
    EXPECT_THAT(cellsOf(X), SameBits({-1, 1, -1, 1}));
    EXPECT_THAT(cellsOf(Y), SameBits({5, 3}));
    EXPECT_THAT(cellsOf(V), SameBits({1, 2, M, 2, 2.5, 6}));

    Guarded<double> x({1, 3, 10, 14}), y({M, 6}), v(0, 0.0);
    VB_M_StandardizeMatrix(x, 2, 2, y, 1, v, 0);
    EXPECT_THAT(x.values(), SameBits({-1, 1, -1, 1}));
    EXPECT_THAT(y.values(), SameBits({M, 3}));
}

TEST(MStandardizeMatrix, DividesTheOthersByTheDeviationAsItIs)
{
    const double inf = std::numeric_limits<double>::infinity();
    // Without spread X is divided by 1.0, the others by 0.
    auto X = table(2, 2, {4, 4, 10, 14});
    auto Y = table(2, 2, {5, -5, 6, M});
    auto V = filled(0, 2, 0.0);
    M_StandardizeMatrix(X.reference(), 2, 2, Y.reference(), 2, V.reference(), 0);
    EXPECT_THAT(cellsOf(X), SameBits({0, 0, -1, 1}));
    EXPECT_THAT(cellsOf(Y), SameBits({inf, -inf, 3, M / 2}));

    // A column without a cell ends the standardisation: it and the later ones take the zeros that are there, their
    // deviations are the missing value and 0.
    auto ended = table(2, 3, {1, 3, M, M, 10, 14});
    auto others = table(1, 3, {7, 8, 9});
    M_StandardizeMatrix(ended.reference(), 2, 3, others.reference(), 1, V.reference(), 0);
    EXPECT_THAT(cellsOf(ended), SameBits({-1, 1, 0, 0, 0, 0}));
    EXPECT_THAT(cellsOf(others), SameBits({7, 8 / M, inf}));
}

TEST(MSubstractFirstCol2, ClearsTheFirstColumnOnly)
{
    const auto x = table(2, 3, {3, M, 4, 7, 5, 8});
    M_SubstractFirstCol2(x.get(), 2, 3);
    EXPECT_THAT(cellsOf(x), SameBits({0, 0, 4, 7, 5, 8}));
    Guarded<double> flat({3, 4, 5});
    Cpp_M_SubstractFirstCol2(flat, 1, 3);
    EXPECT_THAT(flat.values(), SameBits({0, 4, 5}));
}

TEST(VBVStandardize, IsTheTableFormOfOneColumn)
{
    const Cells x{1, 2, M, 4, 8};
    std::vector<short> mask{0, 1, 0, 0, 0};
    Guarded<double> source(x), w({1, 2, 1, 0.5, 3}), z(5, 7.0);
    for (short sample : {-1, 0}) {
        const auto wanted = plainly(x, 5, 1, mask, w.values(), sample, 0).z;
        VB_V_Standardize(source, 5, mask.data(), w, sample, z);
        EXPECT_THAT(z.values(), SameBits(wanted));
        EXPECT_TRUE(source.untouched());
        Guarded<double> inPlace(x);
        VB_V_Standardize2(inPlace, 5, mask.data(), w, sample);
        EXPECT_THAT(inPlace.values(), SameBits(wanted));
    }
}

TEST(VBMStandardizeByVect, MasksEachColumnByItself)
{
    // The second cell of the second column is missing by the order test alone: it is dropped there, not in the first.
    const double below = -std::numeric_limits<double>::infinity();
    const Cells x{1, 2, 3, 4, 5, below, 7, 9};
    std::vector<short> dropped{0, 0, 0, -1}; // only -1 drops
    std::vector<short> ignored{0, 0, 0, 1};
    const Cells w{1, 1, 1, 1};
    const auto first = plainly({1, 2, 3, 4}, 4, 1, {0, 0, 0, -1}, w, -1, 0).z;
    const auto second = plainly({5, below, 7, 9}, 4, 1, {0, -1, 0, -1}, w, -1, 0).z;
    Cells wanted = first;
    wanted.insert(wanted.end(), second.begin(), second.end());

    Guarded<double> X(x), Z(8, 7.0), weights(w);
    VB_M_StandardizeByVect(X, 4, 2, dropped.data(), weights, -1, Z);
    EXPECT_THAT(Z.values(), SameBits(wanted));
    EXPECT_TRUE(X.untouched());
    VB_M_StandardizeByVect2(X, 4, 2, dropped.data(), weights, -1);
    EXPECT_THAT(X.values(), SameBits(wanted));

    Guarded<double> again(x);
    VB_M_StandardizeByVect(again, 4, 2, ignored.data(), weights, -1, Z);
    EXPECT_THAT(Z.values()[3], SameBits(plainly({1, 2, 3, 4}, 4, 1, {}, w, -1, 0).z[3]));
}

} // namespace
