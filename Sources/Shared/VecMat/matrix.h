// The table of doubles on which the whole library works.
#pragma once

#include "frame/api.h"

class matrixInt;

/// Dense table of doubles, column-major, with optional weights and per-column caches. A vector is a table of one
/// column.
///
/// The fields are public and are read directly by the computing functions. Cell (i, j), from 0, is `X[i + nRows*j]`.
/// A cell without a value holds the missing value of `frame/missing_value.h`; no member replaces it by anything else.
/// Numbers of rows and columns in the members are 0-based, but for `vbget` and `vbset`. Nothing here reports an error
/// by throwing on purpose: a bad index reads -1.0, a bad write is dropped. Allocation failure is the exception of
/// `new`.
class VECMAT_API matrix
{
public:
    double* X = nullptr;          ///< the cells
    double* norMu = nullptr;      ///< per column: mean saved by `Normalize()` and `Center()`
    double* norSigma = nullptr;   ///< per column: divisor saved by `Normalize()`; 1.0 after `Center()`
    double* descMu = nullptr;     ///< per column: mean of `calcDescStat`
    double* descSigma = nullptr;  ///< per column: standard deviation of `calcDescStat`
    double* weights = nullptr;    ///< per row; null until `InitWeights` or `weighting`
    double* weightcorr = nullptr; ///< per column: corrected sum of weights
    int* nCol = nullptr;          ///< per column: count of cells
    int nRows = 0;
    int nCols = 0;
    int normalized = 0;      ///< 1 once `Normalize()` or `Center()` has run
    int descDone = 0;        ///< 1 once `calcDescStat` has run
    unsigned nElems = 0;     ///< nRows * nCols as a 32-bit product; every bound check compares against it
    short descMode = 0;      ///< the option of the last `calcDescStat`
    unsigned char ownsX = 1; ///< 1: the destructor frees X; 0: X is the caller's (a view)

    /// A new block in which every cell is `value`.
    matrix(int rows, int cols, int value);
    matrix(int rows, int cols, double value);

    /// With `view` the caller's array is used in place and left alive; without, its first rows*cols doubles are copied.
    matrix(int rows, int cols, double* src, bool view);

    /// Opens a table at its final size over a source of `srcRows` by `srcCols` (0: the table's own count): the source
    /// is copied in linear order, not re-strided, and the other cells are 0.0. `nCol` and `weightcorr` are allocated,
    /// cleared.
    matrix(int rows, int cols, double* src, int srcRows, int srcCols);

    /// A Boolean array: true becomes -1.0, false 0.0. `nCol` and `weightcorr` as above.
    matrix(int rows, int cols, short* src);

    /// `rows` rows and the columns of `src`, copied in linear order; what lies beyond the source is -1.0. Weights,
    /// caches of counts and, from a normalized table, `norMu` and `norSigma` come along; `descMu`, `descSigma` never
    /// do.
    matrix(int rows, matrix* src);
    matrix(matrix& src);

    /// Frees what the table owns; never the caller's array of a view.
    ~matrix();

    matrix& operator=(const matrix&) = delete;

    /// Checked access, 1-based. Only the linear index is checked, as an unsigned number against `nElems`: a row number
    /// above `nRows` slides into the next column. Out of range a read gives -1.0 and a write is dropped.
    VECMAT_API double vbget(int i, int j)
    {
        const unsigned k = position(i, j);
        return k < nElems ? X[k] : -1.0;
    }
    VECMAT_API void vbset(int i, int j, double v)
    {
        const unsigned k = position(i, j);
        if (k < nElems)
            X[k] = v;
    }

    double* GetX();

    /// All cells in linear order. The Boolean form writes 0 for 0.0 of either sign and -1 for anything else, also a NaN
    /// and the missing value. The forms towards a table set its dimensions and need its block to be large enough; the
    /// cells of a `matrixInt` are truncated, those outside the range of int become the lowest int.
    void copyMatTo(double* dst);
    void copyMatTo(double* dst, int* rows, int* cols);
    void copyMatTo(short* dst);
    void copyMatTo(matrix* dst);
    void copyMatTo(matrixInt* dst);

    /// `dst` becomes one column with the cells in linear order.
    void vectorizeTo(matrix* dst);

    /// Fills `dst`, with its own dimensions, from this block in linear order; -1.0 where this block ends.
    void condenseTo(matrix* dst);

    /// Cell (i, j) goes to (j, i) of `dst`, whose dimensions are set and whose block must be large enough.
    void transposeTo(matrix* dst);

    /// Copies a column over the source's row count: in a table with fewer rows the tail runs into the next column.
    /// Nothing happens for a number out of range or a source without rows.
    void copyCol(matrix* src, int srcCol, int dstCol);
    void copyCol(matrixInt* src, int srcCol, int dstCol);

    /// Copies, or exchanges, a row over the source's column count, each table with its own stride. Checks as for a
    /// column.
    void copyLine(matrix* src, int srcRow, int dstRow);
    void transferLineFrom(matrix* src, int srcRow, int dstRow);

    /// Prepares a result. A table with at least `rows` rows and `cols` columns is kept as large as it is, and the first
    /// rows*cols doubles of its block, in linear order, are set to `value`; any other is deleted and replaced.
    static void matCheck(matrix*& ref, int rows, int cols, double value);

    /// Allocate `weights` (all 1.0), `weightcorr` (nRows - 1), `nCol` (nRows); nothing happens where they exist.
    void InitWeights();
    void InitWeightcorr();
    void InitnCol();

    /// Sets the row weights from `nRows` cells; a cell beyond the table `w` gives weight -1.0.
    void weighting(double* w);
    void weighting(matrix* w);

    // The members below compute. A `double` member returns -1.0 for a shape or column it cannot work with, else 0.0 or
    // its value. Cells are read and written with the checks above. "Missing" is the equality test.

    /// Weighted mean and standard deviation of each column into `descMu`, `descSigma`; missing cells are left out.
    /// `mode` -1 corrects the sum of weights W to W - W/c, c counting the rows present, those of weight 0 too. Both
    /// results are missing where no row counts, and sigma where the divisor is not above 0. Runs again only for another
    /// `mode`.
    void calcDescStat(short mode);
    double getDescMu(int col, short mode);
    double getDescSigma(int col, short mode);

    /// Centres and reduces in place by the corrected deviation (0.0 divides as 1.0); missing cells stay. A column
    /// without rows has mean and sigma 0.0. Returns 0, or -1 with nothing changed on a normalized table.
    int Normalize();

    /// Subtracts the weighted mean of each column in place. Returns as `Normalize()`.
    int Center();

    /// The saved mean and divisor of a column; -1.0 unless `normalized` is 1 and `col` is in range.
    double getNorMu(int col);
    double getNorSigma(int col);

    /// Sum of the present cells divided by `nCol[col]`, which is not their count unless the caller set it so; 0.0 on a
    /// normalized table.
    double calcMu(int col);

    /// Divides the column by the root of its sum of squares, untested against 0.0; missing cells stay. Returns 0.0.
    double Normalize(int col);

    /// Sum of squares of the present cells of a column; with `m` over rows i whose cell (other, i) of `m` (`flag`) or
    /// (i, other) is present too; the weighted form multiplies each square by `weights[i]`.
    double VInnerProd(int col);
    double VInnerProd(int col, bool flag, int other, matrix* m);
    double VInnerProdWeighted(int col, bool flag, int other, matrix* m);

    /// Weighted sum of products of two columns, where both cells are present and the weight is above 0; -1.0 for other
    /// rows.
    double VSProd(int col, matrix* m, int mCol);

    /// Sum of products of two rows, where both cells are present; -1.0 for another column count.
    double transVSProd(int row, matrix* m, int mRow);

    /// Sum of squares of the present cells of a row.
    double lineSqrSum(int row);

    /// Sum of squared differences of two columns over this table's rows; no missing test.
    double VDiff(matrix* m, int col, int mCol);

    /// Multiplies a row by `f`, missing cells too.
    void SProd(int row, double f);

    /// Multiplies row r by `w[r]` for r below `n`, missing cells too. Does not touch `weights`.
    void weighting(double* w, int n);

    /// Subtracts `m`, which must be at least as large; no missing test.
    double MDiff(matrix* m);

    /// This table becomes a b, or a' b; the shapes must agree exactly.
    double matProd(matrix* a, matrix* b);
    double transMatProd(matrix* a, matrix* b);

    /// Cell (i, j) becomes a(i, col) b(j, bCol).
    double vecProd(matrix* a, int col, matrix* b, int bCol);

    /// Adds one weighted term of a scatter table: f (a(row, i) - b(bRow, i)) (a(row, j) - b(bRow, j)), f the cell `row`
    /// of v.
    double trans1vecProd(matrix* a, int row, matrix* v, matrix* b, int bRow);

    /// Column `dst` becomes a times column `col` of b; the sums run over this table's column count.
    double matVecProd(matrix* a, matrix* b, int col, int dst);

    /// The identity minus this table.
    void oneMinus();

    /// Each cell (i, j) loses t(i, k) p(j, k); nothing happens where one of the three is missing.
    void subtractResidual(matrix* t, int k, matrix* p);

    /// Sum over k below n and all columns j of t(tRow, k) p(j, k) this(row, j), without terms that have a missing
    /// factor.
    double predictLine(matrix* t, matrix* p, int row, int n, int tRow);

    /// Projection steps: column `col` of `out` takes, for each row (`trans`: column) i of this table, the ratio of the
    /// sum of products with column `col` of `x` to the sum of squares of `x` over the cells present here; a zero
    /// divisor is 1.0.
    void GaussProd(matrix* x, int col, matrix* out);
    void transGaussProd(matrix* x, int col, matrix* out);
    void GaussProdWeighted(matrix* x, int col, matrix* out);
    void transGaussProdWeighted(matrix* x, int col, matrix* out);

    /// Which columns and rows of the block at (row0, col0) are all zero, and in a square block which are zero off the
    /// diagonal. A NaN is not zero. `diag` is false throughout where `rows` differs from `cols`. Reads are not checked.
    void calcStrucInfo(int rows, int cols, bool* colZero, bool* rowZero, bool* diag, int row0, int col0);

    /// Inverse of the leading square block of order `nRows` into `out`, by LU with implicit pivoting on a private copy.
    /// Returns 0, or -1 with `status` -1 for a singular table; `status` is not cleared on success.
    int inverse1(matrix* out, short& status, double tol);

private:
    struct Shape
    {
        int rows;
        int cols;
    };
    VECMAT_LOCAL explicit matrix(Shape shape);
    VECMAT_LOCAL void allocateClearedCounts();

    VECMAT_LOCAL unsigned position(int i, int j) const
    {
        return static_cast<unsigned>(i) - 1u + (static_cast<unsigned>(j) - 1u) * static_cast<unsigned>(nRows);
    }
};

/// Square root, or the missing value below 0.0.
extern "C" VECMAT_API double sqr2(double x);
