// The members of `matrix` that keep column statistics in the table, or centre and reduce it by them.
#include "access/cells.h"
#include "base/detail/numbers.h"
#include "base/detail/running_moments.h"
#include "base/missing_value.h"
#include "matrix.h"

using vecmat::block;
using vecmat::cells;
using vecmat::countOf;
using vecmat::isMissing;
using vecmat::missingValue;
using vecmat::onBlocks;
using vecmat::RunningVariance;
using vecmat::ZeroWeight;

namespace update = vecmat::update;

namespace {

/// What the getters return for a column that does not exist.
constexpr double noSuchColumn = -1.0;

/// Rows of weight 0 lower the corrected weight, and nothing else.
/// Source: West, D. H. D. (1979), Updating mean and variance estimates: an improved method, Comm. ACM 22 (9), 532-535.
using WeightedMoments = RunningVariance<update::Weighted, ZeroWeight::counted>;

double correctedWeight(const WeightedMoments& moments)
{
    return moments.weights - moments.weights / moments.rows;
}

double deviation(const WeightedMoments& moments, double divisor)
{
    return divisor > 0.0 ? sqr2(moments.squares / divisor) : missingValue;
}

template <class Cells>
WeightedMoments momentsOf(Cells x, int col, int rows, const double* weights)
{
    WeightedMoments moments;
    for (int i = 0; i < rows; ++i)
        if (const double cell = x.get(i, col); !isMissing(cell))
            moments.add(cell, weights[i]);
    return moments;
}

void allocateIfNull(double*& perColumn, int nCols)
{
    if (perColumn == nullptr)
        perColumn = new double[countOf(nCols)];
}

} // namespace

void matrix::calcDescStat(short mode)
{
    if (descDone == 1 && descMode == mode)
        return;
    allocateIfNull(descMu, nCols);
    allocateIfNull(descSigma, nCols);
    InitWeightcorr();
    InitWeights();
    descMode = mode;
    onBlocks(
        [this, mode](auto x) {
            for (int j = 0; j < nCols; ++j) {
                const WeightedMoments moments = momentsOf(x, j, nRows, weights);
                // A column without rows has no statistics here; Normalize() gives it 0.0 instead.
                descMu[j] = missingValue;
                descSigma[j] = missingValue;
                if (moments.rows > 0) {
                    weightcorr[j] = mode == -1 ? correctedWeight(moments) : moments.weights;
                    descMu[j] = moments.mean;
                    descSigma[j] = deviation(moments, weightcorr[j]);
                }
            }
        },
        block(cells(this), nRows, nCols));
    descDone = 1;
}

double matrix::getDescMu(int col, short mode)
{
    calcDescStat(mode);
    return col >= 0 && col < nCols ? descMu[col] : noSuchColumn;
}

double matrix::getDescSigma(int col, short mode)
{
    calcDescStat(mode);
    return col >= 0 && col < nCols ? descSigma[col] : noSuchColumn;
}

int matrix::Normalize()
{
    if (normalized == 1)
        return -1;
    allocateIfNull(norSigma, nCols);
    allocateIfNull(norMu, nCols);
    InitWeightcorr();
    InitWeights();
    normalized = 1;
    onBlocks(
        [this](auto x) {
            for (int j = 0; j < nCols; ++j) {
                const WeightedMoments moments = momentsOf(x, j, nRows, weights);
                norMu[j] = 0.0;
                norSigma[j] = 0.0;
                if (moments.rows > 0) {
                    weightcorr[j] = correctedWeight(moments);
                    norMu[j] = moments.mean;
                    norSigma[j] = deviation(moments, weightcorr[j]);
                }
                const double divisor = norSigma[j] == 0.0 ? 1.0 : norSigma[j];
                for (int i = 0; i < nRows; ++i)
                    if (const double cell = x.get(i, j); !isMissing(cell))
                        x.set(i, j, (cell - norMu[j]) / divisor);
            }
        },
        block(cells(this), nRows, nCols));
    return 0;
}

int matrix::Center()
{
    if (normalized == 1)
        return -1;
    allocateIfNull(norMu, nCols);
    allocateIfNull(norSigma, nCols);
    InitWeights();
    normalized = 1;
    onBlocks(
        [this](auto x) {
            for (int j = 0; j < nCols; ++j) {
                norMu[j] = momentsOf(x, j, nRows, weights).mean;
                norSigma[j] = 1.0;
                for (int i = 0; i < nRows; ++i)
                    if (const double cell = x.get(i, j); !isMissing(cell))
                        x.set(i, j, cell - norMu[j]);
            }
        },
        block(cells(this), nRows, nCols));
    return 0;
}

double matrix::getNorMu(int col)
{
    return normalized == 1 && col >= 0 && col < nCols ? norMu[col] : noSuchColumn;
}

double matrix::getNorSigma(int col)
{
    return normalized == 1 && col >= 0 && col < nCols ? norSigma[col] : noSuchColumn;
}

double matrix::calcMu(int col)
{
    if (normalized == 1)
        return 0.0;
    InitnCol();
    if (col < 0 || col >= nCols)
        return noSuchColumn;
    const auto x = cells(this);
    double sum = 0.0;
    for (int i = 0; i < nRows; ++i)
        if (const double cell = x.get(i, col); !isMissing(cell))
            sum += cell;
    return sum / nCol[col];
}
