// The core of the least squares fits: from the correlations of a model's columns and its response to coefficients,
// standard errors and fitted values. Internal to the library.
//
// Variables are numbered from 0 here: the columns of the model, then the response.
#pragma once

#include "../../access/operands.h"
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

/// Correlations about the means over the rows of each pair, with weights that are frequencies; 0.0 where there is none.
/// False, with nothing done, where a column or the weights do not have n rows.
bool correlateAboutMeans(const ModelMoments& moments, const ModelColumns& variables, int n, matrix* w);

/// What the coefficients of a line through the origin do about a standard deviation that could not be computed.
enum class MissingDeviation {
    uncorrelated, ///< its variable correlates with none
    notTested     ///< it is the number that it is
};

/// Raw cross-products of the variables over the rows of weight other than 0, not centred, divided by W - 1 and by both
/// standard deviations, which the moments have already; 0.0 where the deviations multiply to nothing. A missing cell is
/// multiplied like any number.
void correlateAboutOrigin(const ModelMoments& moments, const ModelColumns& variables, int n, matrix* w, double W,
                          MissingDeviation rule);

/// Where the results of a fit go: tables of m + 1, m + 1 and n cells, cleared.
struct FitResults
{
    matrix* beta;
    matrix* se;
    matrix* fitted;
};

/// Clears and, where they are too small, replaces the tables that receive the results.
FitResults prepared(matrix*& beta, matrix*& se, matrix*& fitted, int columns, int n);

/// Lets each column in turn enter by a sweep where what the columns before it leave of its diagonal is above `tol`.
/// Any other gets a standard deviation of 0.0.
void enterColumns(const ModelMoments& moments, double tol);

/// Coefficients, standard errors and fitted values of a model whose columns have entered. W is the sum of the weights.
void estimate(const ModelMoments& moments, const ModelColumns& columns, int n, double W, Intercept intercept,
              const FitResults& results);

} // namespace vecmat
