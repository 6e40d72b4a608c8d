// The plain loops, over plain arrays: one cell after the other, one result after the other. The library is compared
// with them, in time and bit by bit.
//
// They form a separate shared library, compiled with common settings: -O2 for the platform's baseline. Tables are
// column-major; there are no masks, and cases that don't occur in the workloads are not handled. If the tests have
// such a loop, that one is used.
#pragma once

#include <string>
#include <vector>

#define PLAIN_API __attribute__((visibility("default")))

namespace vecmat::bench::plain {

using Cells = std::vector<double>;
using Texts = std::vector<std::wstring>;

// ---- sorting --------------------------------------------------------------------------------------------------------

PLAIN_API void sortVector(double* x, int n);
PLAIN_API void sortRows(double* data, int n, int cols, double* key, double* companion);
PLAIN_API void sortApply(const double* source, int n, int cols, const double* order, double* out);
/// Returns the number of ties.
PLAIN_API int ranksWithTies(const double* x, int n, const double* weights, double* ranks, double* tieSizes);

// ---- products -------------------------------------------------------------------------------------------------------

PLAIN_API void product(const double* a, int rows, int inner, const double* b, int cols, double* out);
PLAIN_API void crossProduct(const double* a, int rows, int cols, double* out);

// ---- moments --------------------------------------------------------------------------------------------------------

PLAIN_API double mean(const double* x, int n);
PLAIN_API double variance(const double* x, int n, const double* w);
PLAIN_API void columnMeans(const double* x, int n, int p, double* mean, const double* w);
PLAIN_API void columnDeviations(const double* x, int n, int p, double* mean, double* deviation, const double* w);
PLAIN_API void columnVariances(const double* x, int n, int p, double* mean, double* deviation, double* variance,
                               const double* w);
/// Mean, variance, skewness and kurtosis in the population form.
/// The geometric mean and the geometric standard deviation.
PLAIN_API void geometricMean(const double* x, int n, const double* w, double* results);
PLAIN_API void logarithms(double* cells, int rows, int cols);
PLAIN_API void fourMoments(const double* x, int n, const double* w, double* moments);

// ---- quantiles ------------------------------------------------------------------------------------------------------

PLAIN_API double quantile(const double* x, int n, double p);
PLAIN_API double weightedQuantile(const double* x, int n, const double* w, double p);

// ---- covariance -----------------------------------------------------------------------------------------------------

PLAIN_API void covariance(const double* x, int n, int p, double* c, const double* w);
PLAIN_API void correlation(const double* x, int n, int p, double* c, const double* w);

// ---- decompositions -------------------------------------------------------------------------------------------------

PLAIN_API void eigen(const double* a, double* values, double* vectors, int n);
/// u has n rows and min(n, p) columns.
PLAIN_API void singularValues(const double* x, int n, int p, double* s, double* u, double* v);
PLAIN_API double determinant(const double* a, int n);
PLAIN_API void inverse(const double* a, int n, double* out);
PLAIN_API void cholesky(const double* a, int n, double* l);
PLAIN_API void generalisedInverse(const double* a, int n, double* out, double tol);
PLAIN_API void nearestCorrelation(double* a, int n);

// ---- fitting --------------------------------------------------------------------------------------------------------

/// p + 1 coefficients and standard errors, the intercept last.
PLAIN_API void leastSquares(int n, int p, const double* x, const double* y, const double* w, double tol, double* beta,
                            double* se, double* fitted);
PLAIN_API void nipals(int n, int p, double* x, const double* w, double tol, int components);

// ---- groups and categories ------------------------------------------------------------------------------------------

/// The means of groups by column 1. Returns the number of groups.
PLAIN_API int groupMeans(const double* data, int n, int cols, double* out);
/// The categories of one column with their weights.
PLAIN_API void categories(const std::wstring* column, int n, const double* weights, Texts& texts, Cells& sums);
/// All columns of a table, in which each variable has the same number of categories.
PLAIN_API void disjunctiveTable(const std::wstring* table, int n, int cols, const Texts& categories, double* out);

// ---- missing cells --------------------------------------------------------------------------------------------------

PLAIN_API void census(const double* x, int n, int p, int* counts);
PLAIN_API void nearestNeighbour(double* x, int n, int p, const short* mask, const double* w);

// ---- sampling -------------------------------------------------------------------------------------------------------

PLAIN_API void shuffle(double* x, int n, int seed);
PLAIN_API void sample(const std::wstring* population, int n, int cols, int draws, std::wstring* out, double* ids,
                      int seed);

} // namespace vecmat::bench::plain
