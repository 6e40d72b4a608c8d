// The same inputs give the same bits in every build: with each compiler and optimisation, in 32 and 64 bits, with each
// instruction set. What is right about the results is told by the tests of the units; here stand their digests, taken
// once. Left out is what calls the mathematical library of the machine, whose last bit is not settled: powers,
// logarithms, exponentials.
#include "support/constants.h"
#include "support/random_data.h"

#include "VecMat.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using vecmat::test::RandomData;

using Cells = std::vector<double>;

/// The 64-bit FNV-1a hash of the bits of all numbers that it was given, one byte after the other from the lowest. One
/// NaN is as good as another.
class Digest
{
public:
    Digest& operator<<(double x) { return add(std::isnan(x) ? nan : std::bit_cast<std::uint64_t>(x), 8); }
    Digest& operator<<(int x) { return add(static_cast<std::uint32_t>(x), 4); }
    template <class T>
    Digest& operator<<(const std::vector<T>& numbers)
    {
        for (const T& x : numbers)
            *this << x;
        return *this;
    }

    std::string text() const
    {
        std::string digits(16, '0');
        std::uint64_t rest = hash_;
        for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, rest /= 16)
            *digit = "0123456789abcdef"[rest % 16];
        return digits;
    }

private:
    static constexpr std::uint64_t nan = 0x7ff8000000000000;

    Digest& add(std::uint64_t bits, int bytes)
    {
        for (int i = 0; i < bytes; ++i, bits /= 256)
            hash_ = (hash_ ^ bits % 256) * 0x100000001b3;
        return *this;
    }

    std::uint64_t hash_ = 0xcbf29ce484222325;
};

std::size_t count(int rows, int cols = 1)
{
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
}

/// Sizes that leave a remainder after the blocks of every instruction set.
constexpr int rows = 517;
constexpr int cols = 37;

struct Sample
{
    RandomData data{20'077};
    Cells complete = data.normals(count(rows, cols));
    Cells gappy = data.withMissing(complete, 0.05);
    Cells ties = data.withMissing(data.wholes(count(rows, cols), -9, 9), 0.05);
    Cells weights = data.weights(count(rows), 0.1);
    std::vector<short> mask = data.mask(count(rows), 0.1);
    std::vector<short> noMask = std::vector<short>(count(rows), 0);

    /// Symmetric and positive definite.
    Cells scatter()
    {
        Cells result(count(cols, cols));
        VB_M_ProductTrAA(complete.data(), rows, cols, result.data());
        return result;
    }
};

TEST(SameBits, Products)
{
    Sample s;
    Cells product(count(rows, rows));
    Cells b(count(cols, rows));
    VB_M_Transpose(s.complete.data(), rows, cols, b.data());
    VB_M_ProductAB(s.complete.data(), rows, cols, b.data(), rows, product.data());
    EXPECT_EQ((Digest() << product << s.scatter()).text(), "5ee1282a7a1aed5b");
}

TEST(SameBits, Moments)
{
    Sample s;
    Cells mean(count(cols)), deviation(mean), variance(mean);
    Digest digest;
    VB_M_MeanStDevVar(s.gappy.data(), rows, cols, mean.data(), deviation.data(), variance.data(), s.mask.data(),
                      s.weights.data(), -1, 0);
    digest << mean << deviation << variance;
    VB_M_MeanStDevVar(s.complete.data(), rows, cols, mean.data(), deviation.data(), variance.data(), s.noMask.data(),
                      s.weights.data(), 0, -1);
    digest << mean << deviation << variance;
    EXPECT_EQ(digest.text(), "ef9b9c4a1a2136d6");
}

TEST(SameBits, Covariances)
{
    Sample s;
    Digest digest;
    for (const Cells& cells : {s.complete, s.gappy})
        for (const short correlations : {0, -1}) {
            Cells x = cells;
            Cells result(count(cols, cols));
            digest << VB_M_CovCorr(x.data(), rows, cols, result.data(), correlations, s.mask.data(), s.weights.data(),
                                   -1, 0);
            digest << result;
        }
    EXPECT_EQ(digest.text(), "378dafe82130af14");
}

TEST(SameBits, Quantiles)
{
    Sample s;
    Digest digest;
    for (const double p : {0.0, 0.1, 0.25, 0.5, 0.9, 1.0})
        digest << VB_V_Quantile(s.complete.data(), rows, p)
               << VB_V_QuantileMW(s.ties.data(), rows, s.mask.data(), s.weights.data(), p);
    Cells thirteen(13);
    Cpp_V_Quantiles13(s.complete.data(), rows, thirteen.data());
    EXPECT_EQ((digest << thirteen).text(), "38e5a1c388499f00");
}

TEST(SameBits, SortsAndRanks)
{
    Sample s;
    Cells ranks(count(rows)), tieSizes(count(rows)), companion = s.complete, key = s.ties;
    int ties = 0;
    VB_V_GetRanksTiesDbl(s.ties.data(), rows, s.weights.data(), ranks.data(), &ties, tieSizes.data());
    Digest digest;
    digest << ranks << ties;
    VB_SortQDbl(s.gappy.data(), rows, cols, 1, rows, key.data(), companion.data(), cols, -1, -1);
    EXPECT_EQ((digest << s.gappy << key << companion).text(), "bd804bed6da88a07");
}

TEST(SameBits, Eigenvalues)
{
    Sample s;
    Cells a = s.scatter(), values(count(cols)), vectors(count(cols, cols));
    Digest digest;
    digest << VB_M_Eigen(a.data(), values.data(), vectors.data(), cols, -1);
    EXPECT_EQ((digest << values << vectors).text(), "685f12af0b019cd7");
}

TEST(SameBits, SingularValues)
{
    Sample s;
    Cells values(count(cols)), u(count(rows, cols)), v(count(cols, cols));
    int info = -1;
    VB_M_SVDecomp(s.complete.data(), rows, cols, values.data(), u.data(), rows, v.data(), cols, 21, &info);
    EXPECT_EQ((Digest() << info << values << u << v).text(), "e79b805d2bcff3ed");
}

TEST(SameBits, FactorsAndInverses)
{
    Sample s;
    Cells a = s.scatter(), out(count(cols, cols));
    Digest digest;
    short status = 0;
    int rank = 0;
    digest << VB_M_Determinant(a.data(), cols, &status);
    digest << VB_M_CholDecomp(a.data(), cols, out.data()) << out;
    digest << VB_M_Inverse1(a.data(), cols, out.data(), 0.0) << out;
    digest << VB_M_InvGeneralized(a.data(), cols, out.data(), 1e-10, &rank) << rank << out;
    VB_M_ProductAinvBTrA(a.data(), cols, cols, s.scatter().data(), out.data());
    EXPECT_EQ((digest << out).text(), "a67fd1e7bf2f3a35");
}

TEST(SameBits, NearestCorrelation)
{
    constexpr int n = 23;
    RandomData data(3);
    Cells a = data.uniforms(count(n, n), -1.0, 1.0);
    for (int j = 0; j < n; ++j)
        for (int i = 0; i <= j; ++i)
            a[count(i, n) + count(j)] = i == j ? 1.0 : a[count(j, n) + count(i)];
    Digest digest;
    digest << Cpp_M_CorrMatFromSymMat(a.data(), n);
    EXPECT_EQ((digest << a).text(), "f89110a2a1de62b4");
}

TEST(SameBits, LeastSquares)
{
    Sample s;
    RandomData data(4);
    Cells y = data.normals(count(rows)), beta(count(cols + 1)), errors(beta), fitted(count(rows));
    Digest digest;
    RunOLSBasic2(rows, cols, s.complete.data(), y.data(), s.weights.data(), 1, 0, 0, 1e-10, beta.data(), errors.data(),
                 fitted.data());
    EXPECT_EQ((digest << beta << errors << fitted).text(), "82e6f0a00c1581d2");
}

TEST(SameBits, NearestNeighbours)
{
    Sample s;
    VB_EstimateRowsWithMissingNN(s.gappy.data(), rows, cols, s.noMask.data(), nullptr, 0, nullptr, 0, s.weights.data());
    EXPECT_EQ((Digest() << s.gappy).text(), "91ef42aa09e995b2");
}

TEST(SameBits, ComponentsPastGaps)
{
    Sample s;
    Digest digest;
    digest << Cpp_NIPALS(rows, cols, s.gappy.data(), s.weights.data(), 1e-10, 3, 1.0, 1.0);
    EXPECT_EQ((digest << s.gappy).text(), "60e8e8568e3e7a1c");
}

TEST(SameBits, RandomOrders)
{
    Cells v(1'000);
    for (std::size_t i = 0; i < v.size(); ++i)
        v[i] = static_cast<double>(i);
    int seed = 77;
    int next = 0;
    Cpp_V_Shuffle(v.data(), static_cast<int>(v.size()), &seed, -1, &next);
    EXPECT_EQ((Digest() << v << seed << next).text(), "bc8abfb1a04d8b56");
}

} // namespace
