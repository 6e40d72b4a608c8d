// Centring, reduction and standardisation of columns: every member against the rules of the family, written out.
#include "descriptive/column_scaling.h"

#include "descriptive/moments.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

using namespace vecmat::test;

namespace {

using Cells = std::vector<double>;
using CellRule = std::function<double(double x, double m, double s)>;

// The cell rules of the family, each for the whole of its column.
const CellRule centre = [](double x, double m, double) { return x - m; };
const CellRule reduce = [](double x, double, double s) { return s > 0.0 ? x / s : 0.0; };
const CellRule standardise = [](double x, double m, double s) {
    if (!(s > 0.0))
        return 0.0;
    return x == M ? M : (x - m) / s;
};
const CellRule apply = [](double x, double m, double s) { return s > 0.0 ? (x - m) / s : M; };

struct Statistics
{
    Cells mean;
    Cells stdev;
};

Statistics statisticsOf(const Cells& x, int n, int p, const Cells& w, short sample, short freqWeights)
{
    const auto mean = filled(p, 1, 0.0);
    const auto stdev = filled(p, 1, 0.0);
    std::vector<short> mask(static_cast<std::size_t>(n));
    matrix* means = mean.get();
    matrix* stdevs = stdev.get();
    M_MeanStDev(table(n, p, x), n, p, means, stdevs, mask.data(), column(w), sample, freqWeights, 0);
    return {cellsOf(mean), cellsOf(stdev)};
}

Cells expected(const Cells& x, int n, const Statistics& statistics, const CellRule& rule)
{
    Cells z;
    for (std::size_t k = 0; k < x.size(); ++k) {
        const std::size_t j = k / static_cast<std::size_t>(n);
        z.push_back(rule(x[k], statistics.mean[j], statistics.stdev[j]));
    }
    return z;
}

constexpr int n = 9;
constexpr int p = 5;

/// Five columns: plain, with missing cells, constant, without any cell, with one cell only.
Cells mixedTable(RandomData& data)
{
    Cells x = data.normals(n);
    const Cells gaps = data.withMissing(data.normals(n), 0.3);
    x.insert(x.end(), gaps.begin(), gaps.end());
    x.insert(x.end(), n, 4.0);
    x.insert(x.end(), n, M);
    Cells lone(n, M);
    lone[3] = 2.5;
    x.insert(x.end(), lone.begin(), lone.end());
    return x;
}

const Cells units(n, 1.0);

/// One member of the family over a table: returns the transformed cells.
struct Member
{
    std::string name;
    CellRule rule;
    bool weighted;
    short freqWeightsUsed; ///< 77: those given
    bool onlyCentres;
    std::function<Cells(const Cells& x, const Cells& w, short sample, short freqWeights)> run;
};

Cells fresh(const Cells& x, const std::function<void(matrix*, matrix*&)>& call)
{
    Owned<matrix> z;
    const auto X = table(n, p, x);
    call(X.get(), z.reference());
    EXPECT_THAT(cellsOf(X), SameBits(x)); // the operand stays
    EXPECT_EQ(z->nRows, n);
    EXPECT_EQ(z->nCols, p);
    return cellsOf(z);
}

Cells inPlace(const Cells& x, const std::function<void(matrix*&)>& call)
{
    auto X = table(n, p, x);
    call(X.reference());
    return cellsOf(X);
}

Cells inColumns(const Cells& x, const std::function<void(matrix**)>& call)
{
    TableColumns X(n, p, x);
    call(X);
    return X.cells();
}

Cells flatInPlace(const Cells& x, const std::function<void(double*)>& call)
{
    Guarded<double> X(x);
    call(X);
    return X.values();
}

Cells flatInto(const Cells& x, const std::function<void(double*, double*)>& call)
{
    Guarded<double> X(x);
    Guarded<double> Z(x.size(), 77.0);
    call(X, Z);
    EXPECT_TRUE(X.untouched());
    return Z.values();
}

Cells flatColumns(const Cells& x, const std::function<void(SAFEARRAY**)>& call)
{
    ArrayOfColumns X(p);
    for (std::size_t j = 0; j < p; ++j)
        X.setNumbers(j, Cells(x.begin() + static_cast<long>(j * n), x.begin() + static_cast<long>(j * n + n)));
    call(X);
    Cells all;
    for (std::size_t j = 0; j < p; ++j) {
        const Cells one = X.numbers(j);
        all.insert(all.end(), one.begin(), one.end());
    }
    return all;
}

const std::vector<Member> members{
    {"M_Center", centre, false, 0, true,
     [](auto& x, auto&, short, short) { return fresh(x, [](matrix* X, matrix*& Z) { M_Center(X, n, p, Z); }); }},
    {"M_CenterW", centre, true, 0, true,
     [](auto& x, auto& w, short, short) {
         return fresh(x, [&](matrix* X, matrix*& Z) { M_CenterW(X, n, p, column(w), Z); });
     }},
    {"M_Center2", centre, false, 0, true,
     [](auto& x, auto&, short, short) { return inPlace(x, [](matrix*& X) { M_Center2(X, n, p); }); }},
    {"M_Center2SPV", centre, false, 0, true,
     [](auto& x, auto&, short, short) { return inColumns(x, [](matrix** X) { M_Center2SPV(X, n, p); }); }},
    {"M_CenterW2", centre, true, 0, true,
     [](auto& x, auto& w, short, short) { return inPlace(x, [&](matrix*& X) { M_CenterW2(X, n, p, column(w)); }); }},
    {"M_CenterW2SPV", centre, true, 0, true,
     [](auto& x, auto& w, short, short) {
         return inColumns(x, [&](matrix** X) { M_CenterW2SPV(X, n, p, column(w)); });
     }},
    {"M_Reduce", reduce, false, 77, false,
     [](auto& x, auto&, short sample, short freq) {
         return fresh(x, [=](matrix* X, matrix*& Z) { M_Reduce(X, n, p, Z, sample, freq); });
     }},
    {"M_ReduceW", reduce, true, 77, false,
     [](auto& x, auto& w, short sample, short freq) {
         return fresh(x, [&](matrix* X, matrix*& Z) { M_ReduceW(X, n, p, column(w), Z, sample, freq); });
     }},
    {"M_Reduce2", reduce, false, -1, false,
     [](auto& x, auto&, short sample, short) { return inPlace(x, [=](matrix*& X) { M_Reduce2(X, n, p, sample); }); }},
    {"M_ReduceW2", reduce, true, 77, false,
     [](auto& x, auto& w, short sample, short freq) {
         return inPlace(x, [&](matrix*& X) { M_ReduceW2(X, n, p, column(w), sample, freq); });
     }},
    {"M_Standardize2", standardise, false, -1, false,
     [](auto& x, auto&, short sample, short) {
         return inPlace(x, [=](matrix*& X) { M_Standardize2(X, n, p, sample); });
     }},
    {"M_Standardize2SPV", standardise, false, -1, false,
     [](auto& x, auto&, short sample, short) {
         return inColumns(x, [=](matrix** X) { M_Standardize2SPV(X, n, p, sample); });
     }},
    {"M_StandardizeW2", standardise, true, 77, false,
     [](auto& x, auto& w, short sample, short freq) {
         return inPlace(x, [&](matrix*& X) { M_StandardizeW2(X, n, p, column(w), sample, freq); });
     }},
    {"VB_M_Center", centre, false, 0, true,
     [](auto& x, auto&, short, short) { return flatInto(x, [](double* X, double* Z) { VB_M_Center(X, n, p, Z); }); }},
    {"VB_M_CenterW", centre, true, 0, true,
     [](auto& x, auto& w, short, short) {
         Guarded<double> weights(w);
         return flatInto(x, [&](double* X, double* Z) { VB_M_CenterW(X, n, p, weights, Z); });
     }},
    {"VB_M_Center2", centre, false, 0, true,
     [](auto& x, auto&, short, short) { return flatInPlace(x, [](double* X) { VB_M_Center2(X, n, p); }); }},
    {"VB_M_Center2SPV", centre, false, 0, true,
     [](auto& x, auto&, short, short) { return flatColumns(x, [](SAFEARRAY** X) { VB_M_Center2SPV(X, n, p); }); }},
    {"VB_M_CenterW2", centre, true, 0, true,
     [](auto& x, auto& w, short, short) {
         Guarded<double> weights(w);
         return flatInPlace(x, [&](double* X) { VB_M_CenterW2(X, n, p, weights); });
     }},
    {"VB_M_Reduce", reduce, false, 77, false,
     [](auto& x, auto&, short sample, short freq) {
         return flatInto(x, [=](double* X, double* Z) { VB_M_Reduce(X, n, p, Z, sample, freq); });
     }},
    {"VB_M_ReduceW", reduce, true, 77, false,
     [](auto& x, auto& w, short sample, short freq) {
         Guarded<double> weights(w);
         return flatInto(x, [&](double* X, double* Z) { VB_M_ReduceW(X, n, p, weights, Z, sample, freq); });
     }},
    {"VB_M_Reduce2", reduce, false, -1, false,
     [](auto& x, auto&, short sample, short) {
         return flatInPlace(x, [=](double* X) { VB_M_Reduce2(X, n, p, sample); });
     }},
    {"VB_M_ReduceW2", reduce, true, 77, false,
     [](auto& x, auto& w, short sample, short freq) {
         Guarded<double> weights(w);
         return flatInPlace(x, [&](double* X) { VB_M_ReduceW2(X, n, p, weights, sample, freq); });
     }},
    {"VB_M_Standardize2", standardise, false, -1, false,
     [](auto& x, auto&, short sample, short) {
         return flatInPlace(x, [=](double* X) { VB_M_Standardize2(X, n, p, sample); });
     }},
    {"VB_M_Standardize2SPV", standardise, false, -1, false,
     [](auto& x, auto&, short sample, short) {
         return flatColumns(x, [=](SAFEARRAY** X) { VB_M_Standardize2SPV(X, n, p, sample); });
     }},
    {"VB_M_StandardizeW2", standardise, true, 77, false,
     [](auto& x, auto& w, short sample, short freq) {
         Guarded<double> weights(w);
         return flatInPlace(x, [&](double* X) { VB_M_StandardizeW2(X, n, p, weights, sample, freq); });
     }},
};

class Family : public testing::TestWithParam<Member>
{
};

TEST_P(Family, FollowsItsRowOfTheTable)
{
    RandomData data(20261);
    SCOPED_TRACE(data);
    const Member& member = GetParam();
    for (int turn = 0; turn < 4; ++turn) {
        const Cells x = mixedTable(data);
        const Cells w = data.weights(n, 0.2);
        for (short sample : {-1, 0, 1})
            for (short freqWeights : {-1, 0}) {
                const short used = member.freqWeightsUsed == 77 ? freqWeights : member.freqWeightsUsed;
                const auto statistics =
                    statisticsOf(x, n, p, member.weighted ? w : units, member.onlyCentres ? short{0} : sample, used);
                EXPECT_THAT(member.run(x, w, sample, freqWeights), SameBits(expected(x, n, statistics, member.rule)))
                    << "sample " << sample << ", freqWeights " << freqWeights;
            }
    }
}

INSTANTIATE_TEST_SUITE_P(AllMembers, Family, testing::ValuesIn(members),
                         [](const auto& tested) { return tested.param.name; });

TEST(StandardizeWithStatistics, HandsTheStatisticsBack)
{
    RandomData data(20262);
    SCOPED_TRACE(data);
    const Cells x = mixedTable(data);
    const Cells w = data.weights(n, 0.2);
    for (short sample : {-1, 0})
        for (short freq : {-1, 0}) {
            const auto plain = statisticsOf(x, n, p, units, sample, freq);
            const auto weighted = statisticsOf(x, n, p, w, sample, freq);

            auto X = table(n, p, x);
            Owned<matrix> mean, stdev;
            M_Standardize3(X.reference(), n, p, mean.reference(), stdev.reference(), sample, freq);
            EXPECT_THAT(cellsOf(X), SameBits(expected(x, n, plain, standardise)));
            EXPECT_THAT(cellsOf(mean), SameBits(plain.mean));
            EXPECT_THAT(cellsOf(stdev), SameBits(plain.stdev));

            auto XW = table(n, p, x);
            auto meanW = filled(p, 1, 9.0);
            auto stdevW = filled(p, 1, 9.0);
            M_StandardizeW3(XW.reference(), n, p, column(w), meanW.reference(), stdevW.reference(), sample, freq);
            EXPECT_THAT(cellsOf(XW), SameBits(expected(x, n, weighted, standardise)));
            EXPECT_THAT(cellsOf(meanW), SameBits(weighted.mean));
            EXPECT_THAT(cellsOf(stdevW), SameBits(weighted.stdev));

            TableColumns XS(n, p, x);
            Owned<matrix> meanS, stdevS;
            M_StandardizeW3SPV(XS, n, p, column(w), meanS.reference(), stdevS.reference(), sample, freq);
            EXPECT_THAT(XS.cells(), SameBits(cellsOf(XW)));
            EXPECT_THAT(cellsOf(meanS), SameBits(weighted.mean));
            EXPECT_THAT(cellsOf(stdevS), SameBits(weighted.stdev));

            Guarded<double> flat(x), flatMean(p, 7.0), flatStdev(p, 7.0), weights(w);
            VB_M_Standardize3(flat, n, p, flatMean, flatStdev, sample, freq);
            EXPECT_THAT(flat.values(), SameBits(cellsOf(X)));
            EXPECT_THAT(flatMean.values(), SameBits(plain.mean));
            EXPECT_THAT(flatStdev.values(), SameBits(plain.stdev));

            Guarded<double> flatW(x);
            VB_M_StandardizeW3(flatW, n, p, weights, flatMean, flatStdev, sample, freq);
            EXPECT_THAT(flatW.values(), SameBits(cellsOf(XW)));
            EXPECT_THAT(flatMean.values(), SameBits(weighted.mean));
            EXPECT_THAT(flatStdev.values(), SameBits(weighted.stdev));
            EXPECT_TRUE(weights.untouched());
        }
}

TEST(ColumnScaling, AMissingCellIsCentredButNotStandardised)
{
    auto centred = column({1, M, 3});
    M_Center2(centred.reference(), 3, 1);
    EXPECT_THAT(cellsOf(centred), SameBits({-1, M - 2, 1}));
    // A mean of a size that counts moves the cell away from the missing value.
    auto far = column({1e300, M, 3e300});
    M_Center2(far.reference(), 3, 1);
    EXPECT_THAT(far->X[1], testing::Not(SameBits(M)));

    auto standardised = column({1, M, 3});
    M_Standardize2(standardised.reference(), 3, 1, -1);
    EXPECT_THAT(standardised->X[1], SameBits(M));
}

TEST(ColumnScaling, AConstantColumnBecomesZeroThroughout)
{
    for (short sample : {-1, 0, 1}) {
        auto x = column({4, 4, M, 4});
        M_Standardize2(x.reference(), 4, 1, sample);
        EXPECT_THAT(cellsOf(x), SameBits({0, 0, 0, 0}));
    }
}

TEST(MStandardizeApply2, UsesWhatItIsGivenAndMakesAFlatColumnMissing)
{
    const auto x = table(2, 3, {1, M, 5, 6, 7, 8});
    M_StandardizeApply2(x.get(), 2, 3, column({1, 5, 7}), column({2, 0, -1}));
    EXPECT_THAT(cellsOf(x), SameBits({0, (M - 1) / 2, M, M, M, M}));

    RandomData data(20263);
    const Cells cells = mixedTable(data);
    const Statistics given{data.normals(p), data.uniforms(p, -0.2, 1)};
    Guarded<double> flat(cells), mean(given.mean), stdev(given.stdev);
    Cpp_M_StandardizeApply2(flat, n, p, mean, stdev);
    EXPECT_THAT(flat.values(), SameBits(expected(cells, n, given, apply)));
    EXPECT_TRUE(mean.untouched() && stdev.untouched());
}

TEST(MStandardizeByGroup, TransformsEachGroupByItself)
{
    const Cells g{2, 1, 2, 3, 1, 2, 1.5, 0, M};
    RandomData data(20264);
    const Cells x = mixedTable(data);
    for (short option : {-1, 0, 1}) {
        // Each group as a table of its own.
        Cells wanted = x;
        for (double group : {1.0, 2.0}) {
            std::vector<std::size_t> rows;
            for (std::size_t i = 0; i < g.size(); ++i)
                if (g[i] == group)
                    rows.push_back(i);
            Cells part;
            for (std::size_t j = 0; j < p; ++j)
                for (std::size_t i : rows)
                    part.push_back(x[i + n * j]);
            const int count = static_cast<int>(rows.size());
            auto own = table(count, p, part);
            if (option == -1)
                M_Standardize2(own.reference(), count, p, -1);
            else
                M_Center2(own.reference(), count, p);
            for (std::size_t j = 0; j < p; ++j)
                for (std::size_t i = 0; i < rows.size(); ++i)
                    wanted[rows[i] + n * j] = own->X[i + rows.size() * j];
        }
        const auto X = table(n, p, x);
        M_StandardizeByGroup(X.get(), n, p, column(g), 2, option, -1); // group 3 is not asked for
        EXPECT_THAT(cellsOf(X), SameBits(wanted)) << option;

        Guarded<double> flat(x), codes(g);
        Cpp_M_StandardizeByGroup(flat, n, p, codes, 2, option, -1);
        EXPECT_THAT(flat.values(), SameBits(wanted)) << option;
        EXPECT_TRUE(codes.untouched());
    }
    const auto X = table(n, p, x);
    M_StandardizeByGroup(X.get(), n, p, column(g), 0, -1, -1);
    EXPECT_THAT(cellsOf(X), SameBits(x));
}

TEST(ColumnScaling, WorksOnACornerOfALargerTableAndReadsOutsideASmallerOne)
{
    const auto x = table(3, 2, {1, 3, 100, 5, 9, 200});
    matrix* larger = x.get();
    M_Center2(larger, 2, 2);
    EXPECT_THAT(cellsOf(x), SameBits({-1, 1, 100, -2, 2, 200}));

    Owned<matrix> z;
    M_Center(column({1, 3}), 3, 1, z.reference()); // the third cell reads -1.0
    EXPECT_THAT(cellsOf(z), SameBits({0, 2, -2}));

    Owned<matrix> nothing;
    M_Center(filled(0, 2, 0.0), 0, 2, nothing.reference());
    EXPECT_EQ(nothing->nElems, 0u);
}

} // namespace
