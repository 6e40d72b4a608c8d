// Covariances and correlations against R, to 1e-12 of the deviations of the two variables.
//
// R 4.2.2. The penguins: x is the table of the four measurements, cc <- x[complete.cases(x), ]; h is x with more cells
// missing, those of `withHoles` below. Longley's table: Longley, J. W. (1967), An appraisal of least squares programs
// for the electronic computer from the viewpoint of the user, J. Amer. Statist. Assoc. 62, 819-841, the response first,
// as given with the Statistical Reference Datasets of NIST.
#include "descriptive/correlation_of_covariance.h"
#include "descriptive/covariance.h"
#include "descriptive/covariance_with_moments.h"
#include "descriptive/cross_correlation.h"

#include "descriptive/pair_reference.h"
#include "descriptive/penguin_measurements.h"
#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double tolerance = 1e-12;

using Cells = std::vector<double>;

/// A table given by rows; these are symmetric.
Cells joined(const std::vector<Cells>& rows)
{
    Cells cells;
    for (const Cells& row : rows)
        cells.insert(cells.end(), row.begin(), row.end());
    return cells;
}

void expectCovariances(const Cells& actual, const Cells& expected, int p)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (int j = 0; j < p; ++j)
        for (int k = 0; k < p; ++k)
            EXPECT_NEAR(actual[at(j, k, p)], expected[at(j, k, p)],
                        tolerance * std::sqrt(expected[at(j, j, p)] * expected[at(k, k, p)]))
                << "columns " << j << " and " << k;
}

void expectCorrelations(const Cells& actual, const Cells& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k)
        EXPECT_NEAR(actual[k], expected[k], tolerance) << "cell " << k;
}

Cells covCorr(Observations d, short corr, Divisor divisor)
{
    Owned<matrix> X = table(d.n, d.p, d.cells), C;
    M_CovCorr(X, d.n, d.p, C, corr, d.mask.data(), column(d.w), divisor.sample, divisor.freqWeights, 0);
    return cellsOf(C);
}

struct WithMoments
{
    Cells C, mean, X;
};

WithMoments withMoments(Observations d, short corr, Divisor divisor, short standardise = 0)
{
    Owned<matrix> X = table(d.n, d.p, d.cells), C, mean, stdev, var;
    M_CovCorrAndMeanStDevVar(X, d.n, d.p, C, mean, stdev, var, corr, d.mask.data(), column(d.w), divisor.sample,
                             divisor.freqWeights, standardise, standardise, 0);
    return {cellsOf(C), cellsOf(mean), cellsOf(X)};
}

Observations withHoles()
{
    auto h = penguins;
    for (std::size_t i = 0; i < h[0].size(); ++i) {
        if (i % 7 == 2)
            h[0][i] = M;
        if (i % 11 == 5)
            h[1][i] = M;
        if (i % 5 == 1)
            h[3][i] = M;
    }
    return observations(h);
}

/// w <- 1 + (0:341) %% 4 over the birds that were measured.
Observations weightedPenguins()
{
    Observations data = observations(penguins);
    int measured = 0;
    for (std::size_t i = 0; i < data.w.size(); ++i)
        data.w[i] = penguins[0][i] == M ? 1.0 : 1.0 + measured++ % 4;
    return data;
}

const std::vector<Cells> longley{
    {60323, 61122, 60171, 61187, 63221, 63639, 64989, 63761, 66019, 67857, 68169, 66513, 68655, 69564, 69331, 70551},
    {83, 88.5, 88.2, 89.5, 96.2, 98.1, 99, 100, 101.2, 104.6, 108.4, 110.8, 112.6, 114.2, 115.7, 116.9},
    {234289, 259426, 258054, 284599, 328975, 346999, 365385, 363112, 397469, 419180, 442769, 444546, 482704, 502601,
     518173, 554894},
    {2356, 2325, 3682, 3351, 2099, 1932, 1870, 3578, 2904, 2822, 2936, 4681, 3813, 3931, 4806, 4007},
    {1590, 1456, 1616, 1650, 3099, 3594, 3547, 3350, 3048, 2857, 2798, 2637, 2552, 2514, 2572, 2827},
    {107608, 108632, 109773, 110929, 112075, 113270, 115094, 116219, 117388, 118734, 120445, 121950, 123366, 125368,
     127852, 130081},
    {1947, 1948, 1949, 1950, 1951, 1952, 1953, 1954, 1955, 1956, 1957, 1958, 1959, 1960, 1961, 1962}};

TEST(CovarianceReference, PenguinsMeasuredInFull)
{
    // cov.wt(cc)$cov; cor(cc); cov.wt(cc)$center. The two birds without measurements drop out of every pair.
    const Cells covariances =
        joined({{29.807054329371788, -2.5342339352780772, 50.375765292997869, 2605.5919123321505},
                {-2.5342339352780772, 3.8998080122103898, -16.212950386719484, -747.37009312136638},
                {50.375765292997869, -16.212950386719484, 197.73179160021255, 9824.4160621495066},
                {2605.5919123321505, -747.37009312136638, 9824.4160621495066, 643131.07732674805}});
    const Cells correlations = joined({{1, -0.23505287035553271, 0.65618134074642809, 0.59510982443763016},
                                       {-0.23505287035553271, 1, -0.5838512164654126, -0.47191562118606661},
                                       {0.65618134074642809, -0.5838512164654126, 1, 0.87120176730601151},
                                       {0.59510982443763016, -0.47191562118606661, 0.87120176730601151, 1}});
    const Cells means{43.921929824561403, 17.151169590643274, 200.91520467836256, 4201.7543859649122};
    const Observations data = observations(penguins);
    for (const Divisor divisor : {Divisor{-1, -1}, Divisor{-1, 0}}) { // W - W/m is W - 1 with unit weights
        expectCovariances(covCorr(data, 0, divisor), covariances, 4);
        expectCorrelations(covCorr(data, 1, divisor), correlations);
        const WithMoments moments = withMoments(data, 0, divisor);
        expectCovariances(moments.C, covariances, 4);
        for (std::size_t j = 0; j < 4; ++j)
            EXPECT_NEAR(moments.mean[j], means[j], tolerance * means[j]);
        expectCorrelations(withMoments(data, -1, divisor).C, correlations);
    }
    Owned<matrix> R = filled(4, 4, 0.0), C;
    M_CorrMatFromCovMat(table(4, 4, covCorr(data, 0, {-1, -1})), 4, R, 0);
    expectCorrelations(cellsOf(R), correlations);
    // The table with itself as the second one.
    M_CorrMatMat(table(data.n, 4, data.cells), data.n, 4, table(data.n, 4, data.cells), 4, C, nullptr, column(data.w),
                 1, 0, -1, -1, 0);
    expectCorrelations(cellsOf(C), correlations);
}

TEST(CovarianceReference, StandardisedPenguinsCovaryAsTheyCorrelate)
{
    const Observations data = observations(penguins);
    Observations standardised = data;
    standardised.cells = withMoments(data, -1, {-1, -1}, -1).X;
    expectCorrelations(covCorr(standardised, 0, {-1, -1}), covCorr(data, 1, {-1, -1}));
}

TEST(CovarianceReference, PenguinsWithWeights)
{
    // cov.wt(cc, wt = w / sum(w), cor = TRUE, method = "ML")$cov: the divisor is the sum of weights.
    const Cells weighted = joined({{29.388274801438708, -2.3811892651135427, 49.689255355554984, 2615.0947040237247},
                                   {-2.3811892651135427, 3.8409113686059362, -16.195740844327108, -771.94431349804631},
                                   {49.689255355554984, -16.195740844327108, 191.17431202747613, 9598.5470905390157},
                                   {2615.0947040237247, -771.94431349804631, 9598.5470905390157, 632887.1361541705}});
    // cov(cc[rep(seq_len(nrow(cc)), w), ]): weights that are frequencies.
    const Cells repeated = joined({{29.422768081722062, -2.3839840881946626, 49.747576077803274, 2618.1640640049754},
                                   {-2.3839840881946626, 3.8454194805409245, -16.214749929825143, -772.85035142468735},
                                   {49.747576077803274, -16.214749929825143, 191.39869502281371, 9609.8129908800202},
                                   {2618.1640640049754, -772.85035142468735, 9609.8129908800202, 633629.96143134695}});
    const Observations data = weightedPenguins();
    expectCovariances(covCorr(data, 0, {0, 0}), weighted, 4);
    expectCovariances(withMoments(data, 0, {0, 0}).C, weighted, 4);
    expectCovariances(covCorr(data, 0, {-1, -1}), repeated, 4);
}

TEST(CovarianceReference, PenguinsPairByPair)
{
    // cov(h, use = "pairwise"), of which R takes the variances of a correlation from the rows of the pair;
    // v <- apply(h, 2, var, na.rm = TRUE); cov(h, use = "pairwise") / sqrt(outer(v, v)), from each column's own rows.
    const Cells covariances =
        joined({{29.650712048249098, -2.6296947424741632, 50.617455233998783, 2720.7513480796742},
                {-2.6296947424741632, 3.7906520070532101, -16.108796805310654, -752.79433851377826},
                {50.617455233998783, -16.108796805310654, 197.73179160021266, 10082.14790723982},
                {2720.7513480796742, -752.79433851377826, 10082.14790723982, 662965.21493212669}});
    const double ownRows[4][4] = {{1, -0.24804519361659624, 0.66106550083124538, 0.61365731907538767},
                                  {-0.24804519361659624, 1, -0.58839353780110026, -0.47486921388378817},
                                  {0.66106550083124538, -0.58839353780110026, 1, 0.88058126767302858},
                                  {0.61365731907538767, -0.47486921388378817, 0.88058126767302858, 1}};
    // cor(h, use = "pairwise")
    const double rowsOfThePair[4][4] = {{1, -0.25175048115144605, 0.65938342356092394, 0.5982299078177501},
                                        {-0.25175048115144605, 1, -0.58265272931459466, -0.47248262506225103},
                                        {0.65938342356092394, -0.58265272931459466, 1, 0.87691227820818596},
                                        {0.5982299078177501, -0.47248262506225103, 0.87691227820818596, 1}};
    const Observations data = withHoles();
    expectCovariances(covCorr(data, 0, {-1, -1}), covariances, 4);
    expectCovariances(withMoments(data, 0, {-1, -1}).C, covariances, 4);
    const Cells correlations = covCorr(data, 1, {-1, -1}), again = withMoments(data, -1, {-1, -1}).C;
    for (int j = 0; j < 4; ++j)
        for (int k = 0; k < 4; ++k) {
            EXPECT_NEAR(correlations[at(j, k, 4)], ownRows[j][k], tolerance);
            EXPECT_NEAR(again[at(j, k, 4)], ownRows[j][k], tolerance);
            Owned<matrix> x = column(data.column(j)), y = column(data.column(k)), w = column(data.w), C;
            EXPECT_NEAR(CorrelPearson(x, y, data.n, nullptr, w, -1, -1, 0), rowsOfThePair[j][k], tolerance);
            M_CorrMatMat(x, data.n, 1, y, 1, C, nullptr, w, 1, 0, -1, -1, 0);
            EXPECT_NEAR(C->X[0], rowsOfThePair[j][k], tolerance);
        }
}

TEST(CovarianceReference, LongleysTable)
{
    // cov.wt(l)$cov and cor(l)
    const Cells covariances = joined({{12333921.733333332, 36796.660000000003, 343330206.33333331, 1649102.6666666667,
                                       1117681.0666666667, 23461965.733333334, 16240.933333333332},
                                      {36796.660000000003, 116.45762499999999, 1063604.115416667, 6258.6662499999993,
                                       3490.2537499999989, 73502.999999999985, 50.923333333333339},
                                      {343330206.33333331, 1063604.115416667, 9879353659.3291664, 56124369.854166664,
                                       30880428.345833335, 685240944.60000002, 470977.90000000002},
                                      {1649102.6666666667, 6258.6662499999993, 56124369.854166664, 873223.4291666667,
                                       -115378.7625, 4462741.5333333332, 2973.0333333333333},
                                      {1117681.0666666667, 3490.2537499999989, 30880428.345833335, -115378.7625,
                                       484304.09583333333, 1764098.1333333333, 1382.4333333333334},
                                      {23461965.733333334, 73502.999999999985, 685240944.60000002, 4462741.5333333332,
                                       1764098.1333333333, 48387348.93333333, 32917.400000000001},
                                      {16240.933333333332, 50.923333333333339, 470977.90000000002, 2973.0333333333333,
                                       1382.4333333333334, 32917.400000000001, 22.666666666666668}});
    const Cells correlations = joined({{1, 0.97089852506105601, 0.98355161117966927, 0.50249808387599415,
                                        0.45730739997648173, 0.96039057159437557, 0.97132945919211877},
                                       {0.97089852506105601, 1, 0.99158917802478219, 0.62063339255909655,
                                        0.46474418760067465, 0.97916343297749808, 0.99114919006720525},
                                       {0.98355161117966927, 0.99158917802478219, 1, 0.60426093988955798,
                                        0.44643679189262653, 0.99109006945847766, 0.99527348376478486},
                                       {0.50249808387599415, 0.62063339255909655, 0.60426093988955798, 1,
                                        -0.17742062950187831, 0.68655151636531198, 0.66825660456217462},
                                       {0.45730739997648173, 0.46474418760067465, 0.44643679189262653,
                                        -0.17742062950187831, 1, 0.36441626718903197, 0.41724514983494543},
                                       {0.96039057159437557, 0.97916343297749808, 0.99109006945847766,
                                        0.68655151636531198, 0.36441626718903197, 1, 0.99395284623292568},
                                       {0.97132945919211877, 0.99114919006720525, 0.99527348376478486,
                                        0.66825660456217462, 0.41724514983494543, 0.99395284623292568, 1}});
    const Observations data = observations(longley);
    expectCovariances(covCorr(data, 0, {-1, -1}), covariances, 7);
    expectCorrelations(covCorr(data, 1, {-1, -1}), correlations);
    expectCovariances(withMoments(data, 0, {-1, 0}).C, covariances, 7);
    expectCorrelations(withMoments(data, -1, {-1, 0}).C, correlations);
}

TEST(CovarianceReference, LongleysTableWithWeights)
{
    // wl <- 1:16; m <- cov.wt(l, wt = wl / sum(wl), cor = TRUE, method = "ML"); m$cov and m$cor
    const Cells covariances = joined({{7965917.3336937716, 22904.42929282007, 224203062.55795845, 1337239.1295415226,
                                       45840.337153979257, 16123109.002703287, 10480.735294117645},
                                      {22904.42929282007, 72.238009839965414, 683881.25631487882, 5338.6629865916957,
                                       17.531974480969126, 50228.299107915234, 32.597058823529416},
                                      {224203062.55795845, 683881.25631487882, 6658915229.1020756, 48099384.934688576,
                                       250944.98788927449, 490184877.68468857, 314194.42647058825},
                                      {1337239.1295415226, 5338.6629865916957, 48099384.934688576, 801552.8483996538,
                                       -176777.74891868513, 3965235.4862673003, 2515.2352941176468},
                                      {45840.337153979257, 17.531974480969126, 250944.98788927449, -176777.74891868513,
                                       209869.31206747406, -161453.93458044968, -51.235294117646987},
                                      {16123109.002703287, 50228.299107915234, 490184877.68468857, 3965235.4862673003,
                                       -161453.93458044968, 36758004.314392298, 23304.338235294115},
                                      {10480.735294117645, 32.597058823529416, 314194.42647058825, 2515.2352941176468,
                                       -51.235294117646987, 23304.338235294115, 15}});
    const Cells correlations =
        joined({{0.99999999999999978, 0.95481380831630791, 0.97346849329700424, 0.52920641216206443,
                 0.035453199630956674, 0.94222566635458493, 0.95880044133404085},
                {0.9548138083163078, 0.99999999999999978, 0.98604349287773774, 0.70159024003929849,
                 0.0045027047870593402, 0.97474187383509481, 0.99026151307997756},
                {0.97346849329700424, 0.98604349287773763, 0.99999999999999989, 0.65837252532415647,
                 0.0067127784428256815, 0.99079134403551272, 0.99414813966724935},
                {0.52920641216206443, 0.70159024003929849, 0.65837252532415647, 0.99999999999999978,
                 -0.43100970472271993, 0.73051130476918846, 0.72538222297508637},
                {0.035453199630956674, 0.0045027047870593402, 0.0067127784428256823, -0.43100970472271993, 1,
                 -0.058129716035438893, -0.028876804632476088},
                {0.94222566635458482, 0.9747418738350947, 0.99079134403551272, 0.73051130476918857,
                 -0.058129716035438893, 0.99999999999999989, 0.99246496165452269},
                {0.95880044133404085, 0.99026151307997745, 0.99414813966724946, 0.72538222297508637,
                 -0.028876804632476088, 0.99246496165452258, 0.99999999999999978}});
    Observations data = observations(longley);
    for (std::size_t i = 0; i < 16; ++i)
        data.w[i] = static_cast<double>(i) + 1.0;
    expectCovariances(covCorr(data, 0, {0, 0}), covariances, 7);
    expectCorrelations(covCorr(data, 1, {0, 0}), correlations);
}

} // namespace
} // namespace vecmat::test
