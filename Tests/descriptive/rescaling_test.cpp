// Normalisation to a norm and rescaling to a range.
#include "descriptive/rescaling.h"

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

struct Normalised
{
    Cells x;
    Cells norms;
};

Normalised plainly(Cells x, std::size_t n, std::size_t p, const std::vector<short>& mask, const Cells& w)
{
    const double c = static_cast<double>(n) / (-1.0 + static_cast<double>(n));
    Cells norms;
    for (std::size_t j = 0; j < p; ++j) {
        const auto enters = [&](std::size_t i) { return (mask.empty() || mask[i] == 0) && x[i + n * j] != M; };
        double sum = 0;
        for (std::size_t i = 0; i < n; ++i)
            if (enters(i))
                sum += x[i + n * j] * x[i + n * j] * (w.empty() ? 1.0 : w[i]);
        const double length = n < 1 ? 0.0 : std::sqrt(sum);
        for (std::size_t i = 0; i < n; ++i)
            if (enters(i))
                x[i + n * j] = x[i + n * j] / length * std::sqrt(c);
        norms.push_back(length);
    }
    return {x, norms};
}

TEST(MNormalize, FollowsTheStepsWrittenOut)
{
    RandomData data(20281);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < 20; ++turn) {
        const int n = data.integer(2, 9);
        const int p = data.integer(1, 4);
        const auto cells = static_cast<std::size_t>(n * p);
        const Cells x = data.withMissing(data.normals(cells), 0.2);
        const Cells w = data.weights(static_cast<std::size_t>(n), 0.2);
        std::vector<short> mask = data.mask(static_cast<std::size_t>(n), 0.2);
        mask[0] = 3;
        const auto wanted = plainly(x, static_cast<std::size_t>(n), static_cast<std::size_t>(p), mask, w);
        auto X = table(n, p, x);
        Owned<matrix> norms;
        M_Normalize(X.reference(), n, p, norms.reference(), mask.data(), column(w));
        EXPECT_THAT(cellsOf(X), SameBits(wanted.x));
        EXPECT_THAT(cellsOf(norms), SameBits(wanted.norms));

        Guarded<double> flat(x), lengths(static_cast<std::size_t>(p), 7.0), weights(w);
        VB_M_Normalize(flat, n, p, lengths, mask.data(), weights);
        EXPECT_THAT(flat.values(), SameBits(wanted.x));
        EXPECT_THAT(lengths.values(), SameBits(wanted.norms));
        EXPECT_TRUE(weights.untouched());

        const auto unmasked = plainly(x, static_cast<std::size_t>(n), static_cast<std::size_t>(p), {}, {});
        Guarded<double> plain(x);
        VB_M_Normalize(plain, n, p, lengths, nullptr, nullptr);
        EXPECT_THAT(plain.values(), SameBits(unmasked.x));
    }
}

TEST(MNormalize, HasNoGuard)
{
    auto zeros = column({0, 0});
    Owned<matrix> norms;
    M_Normalize(zeros.reference(), 2, 1, norms.reference(), nullptr, nullptr);
    EXPECT_TRUE(std::isnan(zeros->X[0]) && std::isnan(zeros->X[1]));
    EXPECT_THAT(norms->X[0], SameBits(0.0));

    auto one = column({-3}); // n / (n - 1) divides by zero
    M_Normalize(one.reference(), 1, 1, norms.reference(), nullptr, nullptr);
    EXPECT_THAT(one->X[0], SameBits(-std::numeric_limits<double>::infinity()));
    EXPECT_THAT(norms->X[0], SameBits(3.0));

    auto none = filled(0, 1, 0.0);
    M_Normalize(none.reference(), 0, 1, norms.reference(), nullptr, nullptr);
    EXPECT_THAT(norms->X[0], SameBits(0.0));
}

TEST(MNormalizeMatrix, DividesTheCompanionsUntested)
{
    const Cells x{3, 4, 6, 8};
    const double c = std::sqrt(2.0 / (-1.0 + 2.0));
    const auto wanted = plainly(x, 2, 2, {}, {});
    auto X = table(2, 2, x);
    auto Y = table(1, 2, {M, 20});
    auto V = table(2, 2, {5, 6, 7, 8});
    M_NormalizeMatrix(X.reference(), 2, 2, Y.reference(), 1, V.reference(), 1);
    EXPECT_THAT(cellsOf(X), SameBits(wanted.x));
    EXPECT_THAT(cellsOf(Y), SameBits({c * (M / 5), c * (20.0 / 10)}));
    EXPECT_THAT(cellsOf(V), SameBits({c * (5.0 / 5), 6, c * (7.0 / 10), 8}));

    auto wider = byRows({{5, 20, 30}}); // a column that has no norm stays
    auto again = table(2, 2, x);
    M_NormalizeMatrix(again.reference(), 2, 2, wider.reference(), 1, V.reference(), 0);
    EXPECT_THAT(cellsOf(wider), SameBits({c * (5.0 / 5), c * (20.0 / 10), 30}));

    Guarded<double> fx(x), fy({M, 20}), fv(0, 0.0);
    VB_M_NormalizeMatrix(fx, 2, 2, fy, 1, fv, 0);
    EXPECT_THAT(fx.values(), SameBits(wanted.x));
    EXPECT_THAT(fy.values(), SameBits({c * (M / 5), c * (20.0 / 10)}));
}

Cells rescaled(const Cells& x, double low, double high, std::vector<short> mask)
{
    Guarded<double> source(x), out(x.size(), 7.0);
    VB_V_Rescale(source, static_cast<int>(x.size()), low, high, mask.data(), out);
    EXPECT_TRUE(source.untouched());
    Guarded<double> inPlace(x);
    VB_V_Rescale2(inPlace, static_cast<int>(x.size()), low, high, mask.data());
    EXPECT_THAT(inPlace.values(), SameBits(out.values()));
    const auto table = filled(static_cast<int>(x.size()), 1, 77.0);
    V_Rescale(column(x), static_cast<int>(x.size()), low, high, mask.data(), table.get());
    EXPECT_THAT(cellsOf(table), SameBits(out.values()));
    return out.values();
}

TEST(VRescale, BringsTheCellsToTheRange)
{
    EXPECT_THAT(rescaled({2, 4, 3}, 0, 10, {0, 0, 0}), SameBits({0, 10, 5}));
    EXPECT_THAT(rescaled({2, 4, 99, 3}, 1, 2, {0, 0, 4, 0}), SameBits({1, 2, M, 1.5}));
    EXPECT_THAT(rescaled({1, 4, 2}, 0.1, 0.7, {0, 0, 0})[2], SameBits((2.0 - 1.0) * (0.7 - 0.1) / 3.0 + 0.1));
}

TEST(VRescale, MultipliesBeforeItDivides)
{
    RandomData data(20282);
    SCOPED_TRACE(data);
    Cells x = data.normals(200);
    x[7] = -20.0;
    x[11] = 17.0;
    const double low = 0.1;
    const double high = 0.83;
    Cells wanted;
    for (const double cell : x)
        wanted.push_back((cell - -20.0) * (high - low) / (17.0 - -20.0) + low);
    EXPECT_THAT(rescaled(x, low, high, std::vector<short>(x.size(), 0)), SameBits(wanted));
}

TEST(VRescale, TakesTheMiddleWithoutSpread)
{
    EXPECT_THAT(rescaled({4, 4, 4}, 0, 10, {0, 0, -1}), SameBits({5, 5, M}));
    EXPECT_THAT(rescaled({0, 1e-16}, 0, 10, {0, 0}), SameBits({5, 5}));
    EXPECT_THAT(rescaled({0, 2.220446049250313e-16}, 0, 10, {0, 0}), SameBits({0, 10})); // not below
}

TEST(VRescale, ComputesAMissingCellLikeAnyOther)
{
    EXPECT_THAT(rescaled({2, M, 4}, 0, 1, {0, 0, 0}), SameBits({0, (M - 2) * 1 / 2 + 0, 1}));
}

TEST(VBMRescaleByVect, MasksEachColumnByItself)
{
    const Cells x{1, 3, M, 10, 30, 20};
    std::vector<short> none{0, 0, 1};
    Guarded<double> X(x), Z(6, 7.0);
    VB_M_RescaleByVect(X, 3, 2, 0, 1, none.data(), Z);
    EXPECT_THAT(Z.values(), SameBits({0, 1, M, 0, 1, 0.5})); // 1 is not -1: the third row counts
    EXPECT_TRUE(X.untouched());
    std::vector<short> last{0, 0, -1};
    VB_M_RescaleByVect2(X, 3, 2, 0, 1, last.data());
    EXPECT_THAT(X.values(), SameBits({0, 1, M, 0, 1, M}));
}

} // namespace
