#include "least_squares_blocks.h"

#include "../access/packed_cells.h"
#include "../base/detail/numbers.h"
#include "../descriptive/covariance_with_moments.h"
#include "../descriptive/cross_correlation.h"
#include "../descriptive/moments.h"
#include "../elementary/horizontal_merges.h"
#include "../elementary/vector_sums.h"
#include "../frame/detail/handles.h"
#include "detail/model_columns.h"
#include "detail/regression.h"

#include <cstddef>
#include <vector>

using namespace vecmat;

namespace {

/// One of the caller's tables. The last one is a private copy with the response after its columns.
struct ModelBlock
{
    matrix* table;
    int width;
    int first; ///< number, among all variables, of its first column
};

/// How the rows of all blocks are read.
struct Rows
{
    int n;
    short* mask;
    matrix* w;
};

void placeMoments(const ModelMoments& moments, const ModelBlock& block, const matrix* mean, const matrix* deviation)
{
    for (int j = 0; j < block.width; ++j) {
        moments.mean->X[block.first + j] = mean->X[j];
        moments.deviation->X[block.first + j] = deviation->X[j];
    }
}

void correlateWithin(const ModelMoments& moments, const ModelBlock& block, const Rows& rows)
{
    matrix* table = block.table; // neither centred nor reduced
    TableHandle packed, mean, deviation, variance;
    M_CovCorrVAndMeanStDevVar(table, rows.n, block.width, packed.reference(), mean.reference(), deviation.reference(),
                              variance.reference(), -1, rows.mask, rows.w, -1, -1, 0, 0, -1);
    placeMoments(moments, block, mean, deviation);
    for (int j = 0; j < block.width; ++j)
        for (int k = 0; k <= j; ++k)
            moments.at(block.first + j, block.first + k) = packed->X[packedPosition(j, k)];
}

void correlateAcross(const ModelMoments& moments, const ModelBlock& left, const ModelBlock& right, const Rows& rows)
{
    TableHandle correlations;
    M_CorrMatMat(left.table, rows.n, left.width, right.table, right.width, correlations.reference(), rows.mask, rows.w,
                 -1, 0, -1, -1, 0);
    for (int j = 0; j < left.width; ++j)
        for (int k = 0; k < right.width; ++k)
            moments.at(right.first + k, left.first + j) = correlations->vbget(j + 1, k + 1);
}

void correlateAboutMeans(const ModelMoments& moments, const std::vector<ModelBlock>& blocks, const Rows& rows)
{
    for (const ModelBlock& block : blocks)
        correlateWithin(moments, block, rows);
    for (std::size_t right = 1; right < blocks.size(); ++right)
        for (std::size_t left = 0; left < right; ++left)
            correlateAcross(moments, blocks[left], blocks[right], rows);
}

void measureColumns(const ModelMoments& moments, const ModelBlock& block, const Rows& rows)
{
    TableHandle mean, variance;
    TableHandle deviation = fresh(block.width, 1);
    M_MeanStDevVar(block.table, rows.n, block.width, mean.reference(), deviation.reference(), variance.reference(),
                   rows.mask, rows.w, -1, -1);
    placeMoments(moments, block, mean, deviation);
}

} // namespace

void OLSBasic2Lg(int n, int p1, matrix* X1, int p2, matrix* X2, int p3, matrix* X3, int p4, matrix* X4, int p5,
                 matrix* X5, matrix* y, matrix* w, int degree, short noIntercept, double tol, matrix*& beta,
                 matrix*& se, matrix*& fitted)
{
    std::vector<ModelBlock> blocks;
    int m = 0;
    const auto append = [&](matrix* table, int width) {
        if (width < 1)
            return;
        blocks.push_back({table, width, m});
        m += width;
    };
    append(X1, p1);
    append(X2, p2);
    append(X3, p3);
    append(X4, p4);
    append(X5, p5);
    if (degree != 1 || m == 0)
        return;

    const FitResults results = prepared(beta, se, fitted, m, n);
    const double W = V_Sum2(w, n);
    TableHandle lastAndResponse;
    ModelBlock& last = blocks.back();
    HMergeTables(last.table, n, last.width, y, n, 1, lastAndResponse.reference());
    last.table = lastAndResponse;
    ++last.width;

    ModelColumns variables;
    for (const ModelBlock& block : blocks)
        for (const ModelColumn& column : columnsOf(block.table, block.width))
            variables.push_back(column);
    std::vector<short> everyRow(countOf(n), 0);
    const Rows rows{n, everyRow.data(), w};
    const ModelMoments moments(m);
    if (interceptOf(noIntercept) == Intercept::fitted) {
        correlateAboutMeans(moments, blocks, rows);
    } else {
        for (const ModelBlock& block : blocks)
            measureColumns(moments, block, rows);
        // Unlike the fit from one table, which sets the correlations to 0.0 for a missing deviation.
        correlateAboutOrigin(moments, variables, n, w, W, MissingDeviation::notTested);
    }

    enterColumns(moments, tol);
    variables.pop_back(); // the response
    estimate(moments, variables, n, W, interceptOf(noIntercept), results);
}
