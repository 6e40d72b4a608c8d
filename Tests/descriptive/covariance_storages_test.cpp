// Covariances and correlations from an array of rows or of columns, and into a triangle of columns.
#include "descriptive/covariance.h"

#include "descriptive/pair_reference.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <vector>

namespace vecmat::test {
namespace {

struct Options
{
    short corr = 0;
    Divisor divisor = {};
    short zeroForMissing = 0;
};

std::vector<double> plain(Observations d, Options o)
{
    Owned<matrix> X = table(d.n, d.p, d.cells), C;
    M_CovCorr(X, d.n, d.p, C, o.corr, d.mask.data(), column(d.w), o.divisor.sample, o.divisor.freqWeights,
              o.zeroForMissing);
    return cellsOf(C);
}

std::vector<double> fromTables(decltype(M_CovCorr3) function, const std::vector<std::vector<double>>& tables,
                               Observations d, Options o)
{
    TableColumns X(tables);
    Owned<matrix> C = filled(d.p, d.p, 9.0);
    EXPECT_EQ(function(X, d.n, d.p, C, o.corr, d.mask.data(), column(d.w), o.divisor.sample, o.divisor.freqWeights,
                       o.zeroForMissing),
              0);
    return cellsOf(C);
}

std::vector<double> fromRows(const Observations& d, Options o)
{
    return fromTables(M_CovCorr3, d.rows(), d, o);
}

std::vector<double> fromColumns(const Observations& d, Options o)
{
    return fromTables(M_CovCorr3SPV, d.columns(), d, o);
}

void triangleFromTable(Observations d, Options o, matrix** C)
{
    Owned<matrix> X = table(d.n, d.p, d.cells);
    EXPECT_EQ(M_CovCorrSPV(X, d.n, d.p, C, o.corr, d.mask.data(), column(d.w), o.divisor.sample, o.divisor.freqWeights,
                           o.zeroForMissing),
              0);
}

void triangleFromRows(Observations d, Options o, matrix** C)
{
    TableColumns X(d.rows());
    EXPECT_EQ(M_CovCorrSPV_T(X, d.n, d.p, C, o.corr, d.mask.data(), column(d.w), o.divisor.sample,
                             o.divisor.freqWeights, o.zeroForMissing),
              0);
}

/// A triangle, or with `extra` columns of that many cells more than it needs, of cells that nothing computes.
std::vector<std::vector<double>> emptyTriangle(int p, int extra = 0)
{
    std::vector<std::vector<double>> columns;
    for (int j = 0; j < p; ++j) {
        columns.emplace_back();
        for (int k = 0; k < p - j + extra; ++k)
            columns.back().push_back(100.0 * j + k + 0.5);
    }
    return columns;
}

std::vector<double> joined(const std::vector<std::vector<double>>& columns)
{
    std::vector<double> all;
    for (const auto& column : columns)
        all.insert(all.end(), column.begin(), column.end());
    return all;
}

/// What the triangular forms leave in `columns`: written to cell k - j of column j, read from cell j of column k.
std::vector<double> expectedTriangle(const Observations& d, Options o, std::vector<std::vector<double>> columns)
{
    const double fallback = o.zeroForMissing != 0 ? 0.0 : M;
    const std::vector<double> covariances = plainCovariances(d, o.divisor, fallback);
    const std::vector<double> v = plainVariances(d, o.divisor);
    const auto cell = [&](int j, int k) -> double& {
        return columns[static_cast<std::size_t>(j)][static_cast<std::size_t>(k - j)];
    };
    for (int j = 0; j < d.p; ++j)
        for (int k = j; k < d.p; ++k)
            cell(j, k) = covariances[at(j, k, d.p)];
    if (o.corr == 0)
        return joined(columns);
    for (int j = 0; j < d.p; ++j)
        for (int k = j; k < d.p; ++k) {
            const double product = v[static_cast<std::size_t>(j)] * v[static_cast<std::size_t>(k)];
            const auto& column = columns[static_cast<std::size_t>(k)];
            const auto place = static_cast<std::size_t>(j);
            const double numerator = place < column.size() ? column[place] : -1.0;
            double r = j == k ? 1.0 : numerator / std::sqrt(product);
            if (product == 0.0 || std::isnan(product))
                r = fallback;
            cell(j, k) = r;
        }
    return joined(columns);
}

TEST(MCovCorr3, GivesTheBitsOfThePlainFormFromRowsAndFromColumns)
{
    RandomData random(641);
    SCOPED_TRACE(random);
    for (const int n : {0, 1, 4, 17})
        for (const int p : {1, 3, 6}) {
            const Observations data = randomObservations(random, n, p);
            for (const Divisor divisor : allDivisors)
                for (const short corr : {0, 1, -1})
                    for (const short zeroForMissing : {0, 1}) {
                        const Options options{corr, divisor, zeroForMissing};
                        const std::vector<double> expected = plain(data, options);
                        EXPECT_THAT(fromRows(data, options), SameBits(expected));
                        EXPECT_THAT(fromColumns(data, options), SameBits(expected));
                    }
        }
}

TEST(MCovCorr3, ReadsMinusOnePastARowOrColumn)
{
    const Observations data = observations({{1, 3, -1}, {2, 6, -1}});
    const std::vector<double> expected = plain(data, {});
    TableColumns rows(std::vector<std::vector<double>>{{1, 2}, {3, 6}, {}});
    TableColumns columns(std::vector<std::vector<double>>{{1, 3}, {2, 6}});
    Owned<matrix> C = filled(2, 2, 9.0), D = filled(2, 2, 9.0);
    M_CovCorr3(rows, 3, 2, C, 0, nullptr, column(data.w), -1, 0, 0);
    M_CovCorr3SPV(columns, 3, 2, D, 0, nullptr, column(data.w), -1, 0, 0);
    EXPECT_THAT(cellsOf(C), SameBits(expected));
    EXPECT_THAT(cellsOf(D), SameBits(expected));
}

TEST(MCovCorr3, AResultThatIsTooSmallIsLost)
{
    const Observations data = observations({{1, 3}, {2, 6}});
    TableColumns rows(data.rows()), columns(data.columns());
    Owned<matrix> small = filled(1, 4, 9.0);
    EXPECT_EQ(M_CovCorr3(rows, 2, 2, small, 0, nullptr, column(data.w), -1, 0, 0), 0);
    EXPECT_EQ(M_CovCorr3SPV(columns, 2, 2, small, 1, nullptr, column(data.w), -1, 0, 0), 0);
    EXPECT_THAT(cellsOf(small), SameBits({9, 9, 9, 9}));
    Owned<matrix> narrow = filled(4, 1, 9.0);
    EXPECT_EQ(M_CovCorr3(rows, 2, 2, narrow, 0, nullptr, column(data.w), -1, 0, 0), 0);
    EXPECT_THAT(cellsOf(narrow), SameBits({9, 9, 9, 9}));
    EXPECT_EQ(M_CovCorr3(rows, 2, 2, nullptr, 0, nullptr, column(data.w), -1, 0, 0), 0);
    // A larger one is kept with its stride.
    Owned<matrix> large = filled(3, 2, 9.0);
    M_CovCorr3(rows, 2, 2, large, 0, nullptr, column(data.w), 0, 0, 0);
    EXPECT_THAT(cellsOf(large), SameBits({1, 2, 0, 2, 4, 9}));
}

TEST(MCovCorrSPV, WritesTheTriangleAndReadsTheNumeratorElsewhere)
{
    RandomData random(642);
    SCOPED_TRACE(random);
    for (const int n : {0, 1, 4, 17})
        for (const int p : {1, 2, 5, 8}) {
            const Observations data = randomObservations(random, n, p);
            for (const Divisor divisor : allDivisors)
                for (const short corr : {0, 1, -1})
                    for (const short zeroForMissing : {0, 1})
                        for (const int extra : {0, 1, p}) {
                            const Options options{corr, divisor, zeroForMissing};
                            const auto leftovers = emptyTriangle(p, extra);
                            const auto expected = expectedTriangle(data, options, leftovers);
                            TableColumns table(leftovers), rows(leftovers);
                            triangleFromTable(data, options, table);
                            triangleFromRows(data, options, rows);
                            EXPECT_THAT(table.cells(), SameBits(expected));
                            EXPECT_THAT(rows.cells(), SameBits(expected));
                        }
        }
}

TEST(MCovCorrSPV, TheNumeratorIsThatOfAnotherPairOrMinusOne)
{
    // Covariances by 0-based pairs: (0,0) 1, (0,1) 2, (0,2) 3, (1,1) 4, (1,2) 6, (2,2) 9.
    const Observations data = observations({{1, 3}, {1, 5}, {1, 7}});
    TableColumns C(emptyTriangle(3));
    triangleFromTable(data, {0, {0, 0}, 0}, C);
    EXPECT_THAT(C.cells(), SameBits({1, 2, 3, 4, 6, 9}));
    // (0, 1) reads cell 0 of column 1, 4; (0, 2) cell 0 of column 2, 9; (1, 2) cell 1 of column 2, outside.
    triangleFromTable(data, {1, {0, 0}, 0}, C);
    EXPECT_THAT(C.cells(), SameBits({1, 4.0 / 2, 9.0 / 3, 1, -1.0 / 6, 1}));
    // In columns of full length nothing is cleared first: what stood in that cell is read.
    TableColumns full({{7, 7, 7}, {7, 7, 7}, {7, 30, 7}});
    triangleFromTable(data, {1, {0, 0}, 0}, full);
    EXPECT_THAT(full.cells(), SameBits({1, 2, 3, 1, 5, 7, 1, 30, 7}));
}

TEST(MCovCorrSPV, AProductThatIsNotANumberHasNoCorrelation)
{
    // 0/0 in every cell: the square forms compute on and give 1.0 on the diagonal.
    const Observations one = observations({{5}, {6}});
    TableColumns C(emptyTriangle(2)), D(emptyTriangle(2));
    triangleFromTable(one, {1, {-1, 0}, 0}, C);
    triangleFromRows(one, {1, {-1, 0}, 1}, D);
    EXPECT_THAT(C.cells(), SameBits({M, M, M}));
    EXPECT_THAT(D.cells(), SameBits({0, 0, 0}));
    EXPECT_THAT(plain(one, {1, {-1, 0}, 0}), SameBits({1, notANumber, notANumber, 1}));
    // A negative product is computed here, too.
    Observations light = observations({{1, 3, M}, {1, 3, 5}});
    light.w = {0.25, 0.25, 2};
    triangleFromTable(light, {1, {-1, -1}, 0}, C);
    EXPECT_THAT(C.cells(), SameBits({1, notANumber, 1}));
}

} // namespace
} // namespace vecmat::test
