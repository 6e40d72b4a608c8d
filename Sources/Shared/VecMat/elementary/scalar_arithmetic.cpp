#include "scalar_arithmetic.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../access/cellwise.h"
#include "../access/prepared_result.h"
#include "../base/detail/numbers.h"
#include "../base/detail/table_arrays.h"
#include "../base/missing_value.h"

#include <functional>
#include <memory>

using namespace vecmat;

namespace {

/// s x for a cell x that is not missing. The scalar itself may be the missing value: it multiplies like any number.
struct ScaledUnlessMissing
{
    double s;
    double operator()(double x) const { return isMissing(x) ? missingValue : s * x; }
};

template <class Left>
void weightedSum(Left a, matrix* b, int rows, int cols, double s1, double s2, matrix*& out)
{
    const auto replaced = prepare(out, rows, cols);
    mapCells(
        rows, cols, cells(out),
        [s1, s2](double x, double y) { return isMissing(x) || isMissing(y) ? missingValue : x * s1 + y * s2; }, a,
        cells(b));
}

template <class Table, class Result>
void addValue(Table* a, int rows, int cols, double v, Result* out)
{
    mapCells(
        rows, cols, cells(out), [v](double x) { return x + v; }, cells(a));
}

template <class Table, class Result>
void preparedSum(Table* a, int rows, int cols, double v, Result*& out)
{
    const auto replaced = prepare(out, rows, cols);
    addValue(a, rows, cols, v, out);
}

} // namespace

void M_ScalarsA(matrix* a, int rows, int cols, double s, matrix*& out)
{
    mapCells(rows, cols, cells(out), ScaledUnlessMissing{s}, cells(a));
}

void M_ScalarsA2(matrix*& a, int rows, int cols, double s)
{
    auto scaled = std::make_unique<matrix>(rows, cols, 0.0);
    mapCells(rows, cols, cells(scaled.get()), ScaledUnlessMissing{s}, cells(a));
    if (scaled->nElems <= a->nElems) {
        scaled->copyMatTo(a);
    } else {
        release(a);
        a = scaled.release();
    }
}

void M_ScalarsTrA(matrix* a, int rows, int cols, double s, matrix*& out)
{
    const auto replaced = prepare(out, cols, rows);
    mapCells(cols, rows, cells(out), ScaledUnlessMissing{s}, transposed(cells(a)));
}

void M_Sums1As2B(matrix* a, int rows, int cols, matrix* b, double s1, double s2, matrix*& out)
{
    weightedSum(cells(a), b, rows, cols, s1, s2, out);
}

void M_Sums1As2BSPV(matrix** a, int rows, int cols, matrix* b, double s1, double s2, matrix*& out)
{
    weightedSum(cells(a), b, rows, cols, s1, s2, out);
}

void M_Sums1As2BSPV_T(matrix** a, int rows, int cols, matrix* b, double s1, double s2, matrix*& out)
{
    weightedSum(triangle(a), b, rows, cols, s1, s2, out);
}

void SumMat(matrix* a, matrix* b, int rows, int cols, matrix* out)
{
    mapCells(rows, cols, cells(out), std::plus<double>(), cells(a), cells(b));
}

void M_APlusVal(matrix* a, int rows, int cols, double v, matrix*& out)
{
    preparedSum(a, rows, cols, v, out);
}

void M_APlusVal(matrix* a, int rows, int cols, double v, matrixInt*& out)
{
    preparedSum(a, rows, cols, v, out);
}

void M_APlusVal(matrixInt* a, int rows, int cols, double v, matrix*& out)
{
    preparedSum(a, rows, cols, v, out);
}

void M_APlusVal(matrixInt* a, int rows, int cols, double v, matrixInt*& out)
{
    preparedSum(a, rows, cols, v, out);
}

void M_APlusVal2(matrix* a, int rows, int cols, double v)
{
    addValue(a, rows, cols, v, a);
}

void M_APlusVal2(matrixInt* a, int rows, int cols, double v)
{
    addValue(a, rows, cols, v, a);
}
