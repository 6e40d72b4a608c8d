// The core of the least squares fits: from the correlations of a model's columns and its response to coefficients,
// standard errors and fitted values. Internal to the library.
//
// Variables are numbered from 0 here: the columns of the model, then the response.
#pragma once

#include "../../access/packed_cells.h"
#include "../../frame/detail/handles.h"
#include "model_columns.h"

namespace vecmat {

/// Does the line have an intercept, or pass through the origin?
enum class Intercept { fitted, none };

constexpr Intercept interceptOf(short noIntercept)
{
    return noIntercept != 0 ? Intercept::none : Intercept::fitted;
}

/// Correlations, means and standard deviations of the m columns of a model and of its response.
class ModelMoments
{
public:
    TableHandle packed;    ///< correlations, of order m + 1; swept as the columns enter
    TableHandle mean;      ///< m + 1 cells
    TableHandle deviation; ///< m + 1 cells; 0.0 for a column that was left out

    /// Tables of 0.0.
    explicit ModelMoments(int columns);

    int columns() const { return columns_; }
    double& at(int i, int j) const { return packed->X[packedPosition(i, j)]; }

private:
    int columns_;
};

/// Correlations about the means over the rows of each pair, with weights treated as frequencies; 0.0 if undefined.
/// Returns false, having done nothing, if a column or the weights do not have n rows.
bool correlateAboutMeans(const ModelMoments& moments, const ModelColumns& variables, int n, matrix* w);

/// How the coefficients of a line through the origin treat a standard deviation that could not be computed.
enum class MissingDeviation {
    uncorrelated, ///< its variable is uncorrelated with all others
    notTested     ///< the missing value is used as a number
};

/// Raw cross-products of the variables over the rows of non-zero weight, not centred, divided by W - 1 and by both
/// standard deviations, which the moments already hold; 0.0 if the product of the deviations is 0. A missing cell is
/// multiplied like any number.
void correlateAboutOrigin(const ModelMoments& moments, const ModelColumns& variables, int n, matrix* w, double W,
                          MissingDeviation rule);

/// Where the results of a fit are written: tables of m + 1, m + 1 and n cells, cleared.
struct FitResults
{
    matrix* beta;
    matrix* se;
    matrix* fitted;
};

/// Clears the tables that receive the results, and replaces those that are too small.
FitResults prepared(matrix*& beta, matrix*& se, matrix*& fitted, int columns, int n);

/// Enters each column in turn by a sweep, provided that what the earlier columns leave of its diagonal is above `tol`.
/// Any other gets a standard deviation of 0.0.
void enterColumns(const ModelMoments& moments, double tol);

/// Coefficients, standard errors and fitted values of a model whose columns have entered. W is the sum of the weights.
void estimate(const ModelMoments& moments, const ModelColumns& columns, int n, double W, Intercept intercept,
              const FitResults& results);

} // namespace vecmat
