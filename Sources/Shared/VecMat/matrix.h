// The table of doubles on which the whole library works.
//
// @missing an ordinary number
// @empty a table without rows or columns has a block and no cells
#pragma once

#include "base/api.h"

class matrixInt;

namespace vecmat {
template <class Table>
union TableInPlace; // where the call frame makes tables
}

/// Dense table of doubles, column-major, with optional weights and per-column caches. A vector is a table of one
/// column.
///
/// The fields are public and are read directly by the computing functions. Cell (i, j), from 0, is `X[i + nRows*j]`. A
/// missing cell holds the missing value of `base/missing_value.h`. Row and column numbers in the members are 0-based,
/// except in `vbget` and `vbset`. No member throws on purpose: a bad index reads -1.0, a bad write is dropped.
/// Allocation failure is the exception of `new`.
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
    int normalized = 0;        ///< 1 once `Normalize()` or `Center()` has run
    int descDone = 0;          ///< 1 once `calcDescStat` has run
    unsigned nElems = 0;       ///< nRows * nCols as a 32-bit product; every bound check compares against it
    short descMode = 0;        ///< the option of the last `calcDescStat`
    unsigned char ownsX = 1;   ///< 1: the destructor frees X; 0: X is the caller's (a view)
    unsigned char inFrame = 0; ///< 1: it lies in the frame of a call and ends with it; `matCheck` does not delete it

    /// A new block in which every cell is `value`.
    /// @missing overwritten
    matrix(int rows, int cols, int value);
    matrix(int rows, int cols, double value);

    /// With `view` the caller's array is used in place and left alive; without, its first rows*cols doubles are copied.
    /// @missing copied unchanged
    matrix(int rows, int cols, double* src, bool view);

    /// Opens a table at its final size over a source of `srcRows` by `srcCols` (0: the table's own count): the source
    /// is copied in linear order, not re-strided, and the other cells are 0.0. `nCol` and `weightcorr` are allocated,
    /// cleared.
    /// @missing copied unchanged
    matrix(int rows, int cols, double* src, int srcRows, int srcCols);

    /// A Boolean array: true becomes -1.0, false 0.0. `nCol` and `weightcorr` as above.
    /// @missing Booleans are never missing
    matrix(int rows, int cols, short* src);

    /// `rows` rows and the columns of `src`, copied in linear order; what lies beyond the source is -1.0. Caches of
    /// counts and, from a normalized table, `norMu` and `norSigma` are copied too; `descMu`, `descSigma` never are.
    /// @missing copied unchanged
    /// @weights copied too
    matrix(int rows, matrix* src);
    matrix(matrix& src);

    /// Frees what the table owns; never the caller's array of a view.
    /// @missing freed with the table
    /// @weights freed with the table
    /// @empty nothing special
    ~matrix();

    matrix& operator=(const matrix&) = delete;

    /// Checked access, 1-based. Only the linear index is checked, as an unsigned number against `nElems`: a row number
    /// above `nRows` slides into the next column. Out of range a read gives -1.0 and a write is dropped.
    /// @missing returned unchanged; -1.0 out of range
    /// @empty -1.0
    VECMAT_API double vbget(int i, int j)
    {
        const unsigned k = position(i, j);
        return k < nElems ? X[k] : -1.0;
    }
    /// @missing overwritten
    /// @empty a write out of range is dropped
    VECMAT_API void vbset(int i, int j, double v)
    {
        const unsigned k = position(i, j);
        if (k < nElems)
            X[k] = v;
    }

    /// @missing not read
    /// @empty the block
    double* GetX();

    /// All cells in linear order. The Boolean form writes 0 for 0.0 of either sign and -1 for anything else, also a NaN
    /// and the missing value. The forms towards a table set its dimensions and need its block to be large enough; the
    /// cells of a `matrixInt` are truncated, those outside the range of int become the lowest int.
    /// @missing copied unchanged; -1 in Booleans, the lowest int in ints
    /// @weights not copied
    /// @empty no cell is copied; dimensions are
    void copyMatTo(double* dst);
    void copyMatTo(double* dst, int* rows, int* cols);
    void copyMatTo(short* dst);
    void copyMatTo(matrix* dst);
    void copyMatTo(matrixInt* dst);

    /// `dst` becomes one column with the cells in linear order.
    /// @missing copied unchanged; -1.0 where this block ends
    /// @empty no cell is copied
    void vectorizeTo(matrix* dst);

    /// Fills `dst`, with its own dimensions, from this block in linear order; -1.0 where this block ends.
    /// @missing copied unchanged; -1.0 where this block ends
    /// @empty no cell is copied
    void condenseTo(matrix* dst);

    /// Cell (i, j) goes to (j, i) of `dst`, whose dimensions are set and whose block must be large enough.
    /// @missing copied unchanged
    /// @empty no cell is copied
    void transposeTo(matrix* dst);

    /// Copies a column over the source's row count: in a table with fewer rows the tail runs into the next column.
    /// @missing copied unchanged
    /// @empty nothing happens, also for a number out of range
    void copyCol(matrix* src, int srcCol, int dstCol);
    void copyCol(matrixInt* src, int srcCol, int dstCol);

    /// Copies, or exchanges, a row over the source's column count, each table with its own stride.
    /// @missing copied unchanged
    /// @empty nothing happens, also for a number out of range
    void copyLine(matrix* src, int srcRow, int dstRow);
    void transferLineFrom(matrix* src, int srcRow, int dstRow);

    /// Prepares a result. A table with at least `rows` rows and `cols` columns is kept as large as it is, and the first
    /// rows*cols doubles of its block, in linear order, are set to `value`; any other is deleted and replaced.
    /// @missing overwritten by the value
    /// @weights kept in a table that is kept
    /// @empty without a table that is large enough one of no cells is made
    static void matCheck(matrix*& ref, int rows, int cols, double value);

    /// Allocate `weights`, `weightcorr` (nRows - 1), `nCol` (nRows), unless they exist.
    /// @missing not read
    /// @weights `InitWeights` makes 1.0 each
    /// @empty an array without entries
    void InitWeights();
    void InitWeightcorr();
    void InitnCol();

    /// Sets the row weights from `nRows` cells.
    /// @missing copied like an ordinary number
    /// @weights not tested; a cell beyond the given table is -1.0
    /// @empty an array without entries
    void weighting(double* w);
    void weighting(matrix* w);

    // The members below compute. A `double` member returns -1.0 for a shape or column it cannot work with, and changes
    // nothing then; otherwise it returns 0.0 or its value. Cells are read and written with the checks above, so a number
    // out of range takes part as -1.0. An infinity or a NaN is a cell like any other. Where weights are read and there
    // are none, `InitWeights` makes them. No member may be given this very table as a factor of the result that it
    // writes here.
    // @empty nothing happens

    /// Weighted mean and standard deviation of each column into `descMu`, `descSigma`, and the divisor into
    /// `weightcorr`; the cells are left unchanged. W is the sum of the weights of the present rows, c their number.
    /// Runs again only for another `mode`, even if the cells have changed.
    /// @missing left out (equality)
    /// @weights the table's own; a row of weight 0 counts in c, else changes nothing
    /// @divisor W; for `mode` exactly -1 W - W/c; not above 0.0: sigma missing
    /// @empty both missing, also where no row is present
    /// @source running updates: West, D. H. D. (1979), Updating mean and variance estimates: an improved method, Comm.
    ///     ACM 22 (9), 532-535
    void calcDescStat(short mode);

    /// The mean and deviation of a column, computed first unless they are there for this `mode`.
    /// @missing as `calcDescStat`
    /// @weights as `calcDescStat`
    /// @divisor as `calcDescStat`
    /// @empty -1.0 for a column out of range
    double getDescMu(int col, short mode);
    double getDescSigma(int col, short mode);

    /// Centres and reduces each column in place by the moments of `calcDescStat(-1)`, kept in `norMu` and `norSigma`.
    /// @missing stays missing (equality)
    /// @weights the table's own
    /// @divisor sigma of `calcDescStat(-1)`; 0.0 divides as 1.0, a missing one as an ordinary number
    /// @empty a column without a present row has mean and sigma 0.0, not the missing value
    /// @failure -1 on a normalized table, with nothing changed. Otherwise 0
    int Normalize();

    /// Subtracts the weighted mean of each column in place, kept in `norMu`, with `norSigma` 1.0.
    /// @missing stays missing (equality)
    /// @weights the table's own
    /// @divisor the sum of weights
    /// @empty a column without a present row has mean 0.0
    /// @failure -1 on a normalized table, with nothing changed. Otherwise 0
    int Center();

    /// The saved mean and divisor of a column.
    /// @missing no cell is read
    /// @empty -1.0 unless `normalized` is 1 and `col` is in range
    double getNorMu(int col);
    double getNorSigma(int col);

    /// Mean of a column; 0.0 on a normalized table.
    /// @missing left out of the sum (equality)
    /// @divisor `nCol[col]`, which is not the count of present cells unless the caller set it so
    /// @empty -1.0 for a column out of range
    double calcMu(int col);

    /// Divides the column by the root of its sum of squares. Has nothing to do with `normalized`. Returns 0.0.
    /// @missing stays missing, and is left out of the sum of squares (equality)
    /// @divisor the root of the sum of squares, not tested against 0.0
    /// @empty 0.0
    double Normalize(int col);

    /// Sum of squares of the cells of a column. With `m`, the partner, over the rows i whose cell (other, i) of `m`
    /// (`flag` true) or (i, other) (false) is present; the weighted form multiplies each square by `weights[i]`.
    /// @missing left out, of this table and of a partner (equality)
    /// @empty 0.0
    double VInnerProd(int col);
    double VInnerProd(int col, bool flag, int other, matrix* m);
    /// @weights multiply each square, whatever their sign
    double VInnerProdWeighted(int col, bool flag, int other, matrix* m);

    /// Sum of x y w over the rows of two columns.
    /// @missing left out, in either column (equality)
    /// @weights this table's own; a row enters where its weight is above 0.0
    /// @empty -1.0 where the row counts differ
    double VSProd(int col, matrix* m, int mCol);

    /// Sum of products of two rows, without weights.
    /// @missing left out, in either row (equality)
    /// @empty -1.0 where the column counts differ
    double transVSProd(int row, matrix* m, int mRow);

    /// Sum of squares of the cells of a row.
    /// @missing left out (equality)
    /// @empty -1.0 for a row out of range
    double lineSqrSum(int row);

    /// Sum of squared differences of two columns over this table's rows.
    /// @empty 0.0 without rows; -1.0 for a column or shape it cannot work with
    double VDiff(matrix* m, int col, int mCol);

    /// Multiplies a row by `f`.
    /// @missing multiplied like an ordinary number: it stops being missing unless `f` is 1.0
    void SProd(int row, double f);

    /// `SProd(r, w[r])` for each row r below `n`.
    /// @missing multiplied like an ordinary number
    /// @weights multiply rows; the table's own weights are not touched
    void weighting(double* w, int n);

    /// Subtracts `m`, each table with its own stride.
    /// @failure -1.0 where this table has more rows or columns than `m`, with nothing changed. Otherwise 0.0
    double MDiff(matrix* m);

    /// This table becomes a b, or a' b.
    /// @failure -1.0 unless all three shapes agree exactly, with nothing changed. Otherwise 0.0
    double matProd(matrix* a, matrix* b);
    double transMatProd(matrix* a, matrix* b);

    /// Cell (i, j) becomes a(i, col) b(j, bCol) over all of this table. The rows of `b` are not tested.
    /// @failure -1.0 unless `a` has as many rows, with nothing changed. Otherwise 0.0
    double vecProd(matrix* a, int col, matrix* b, int bCol);

    /// Adds one weighted term of a scatter table: cell (i, j) grows by f (a(row, i) - b(bRow, i)) (a(row, j) - b(bRow,
    /// j)), f the cell `row` of `v`.
    /// @failure -1.0 unless this table has as many rows as `a` has columns, with nothing changed. Otherwise 0.0
    double trans1vecProd(matrix* a, int row, matrix* v, matrix* b, int bRow);

    /// Column `dst` becomes `a` times column `col` of `b`. The sums run to this table's column count, which must be
    /// that of `a` for the full product and is not tested.
    /// @failure -1.0 unless the columns of `a` match the rows of `b`, and its rows this table's, with nothing changed.
    ///     Otherwise 0.0
    double matVecProd(matrix* a, matrix* b, int col, int dst);

    /// The identity minus this table.
    void oneMinus();

    /// Deflation: each cell (i, j) loses t(i, k) p(j, k).
    /// @missing in any of the three leaves the cell unchanged (equality)
    void subtractResidual(matrix* t, int k, matrix* p);

    /// Sum over k below n and all columns j of t(tRow, k) p(j, k) this(row, j).
    /// @missing a term with a missing factor is left out (equality)
    /// @empty 0.0 for `n` below 1
    double predictLine(matrix* t, matrix* p, int row, int n, int tRow);

    /// Projection steps of an iteration in the presence of missing cells. Each cell i of column `col` of `out`, over
    /// the rows of `out`, receives the ratio of a sum of products with column `col` of `x` to a sum of squares of that
    /// column. Row i of this table enters the sums, in the `trans` forms column i. The forms differ on purpose.
    /// @missing in this table leaves its term out of both sums; in `x` out of the divisor only (equality)
    /// @divisor the sum of squares, without weights; 0 divides as 1.0
    /// @empty a sum without terms over 1.0
    void GaussProd(matrix* x, int col, matrix* out);
    void transGaussProd(matrix* x, int col, matrix* out);
    /// @weights each product takes the one weight of target row i, and adds nothing unless that is above 0.0 (as for a
    ///     row beyond this table)
    void GaussProdWeighted(matrix* x, int col, matrix* out);
    /// @missing leaves its term out of both sums, in this table and in `x` (equality)
    /// @weights each product takes the weight of its row where that is above 0.0, each square of the divisor the
    ///     weights of `x`, not of this table
    /// @divisor the weighted sum of squares; 0 divides as 1.0
    void transGaussProdWeighted(matrix* x, int col, matrix* out);

    /// Which of the `cols` columns and `rows` rows of the block at (row0, col0) are zero throughout, and for which i of
    /// a square block row i and column i are zero off the diagonal, whatever the diagonal cell. A NaN is not zero.
    /// `diag` has max(rows, cols) entries and is false throughout where `rows` differs from `cols`. Reads are not
    /// checked: the block must lie inside the table.
    /// @empty nothing is read
    void calcStrucInfo(int rows, int cols, bool* colZero, bool* rowZero, bool* diag, int row0, int col0);

    /// Inverse of the leading square block of order `nRows` into `out`, which must be large enough, from a private
    /// copy: Crout's LU with implicit scaled pivoting, then forward and back substitution for each unit vector. Of
    /// `tol` only the sign counts (a NaN is positive). Of equal candidates for a pivot the last wins.
    /// @divisor a pivot up to 1e-8 in absolute terms, or 2.220446049250313e-16 for `tol` at or below 0, or a row of
    ///     zeros fails
    /// @empty 0
    /// @failure -1 with `status` -1 and `out` untouched. Otherwise 0; `status` is not cleared
    /// @source ludcmp and lubksb of Press, Flannery, Teukolsky and Vetterling, Numerical Recipes, 1st edition
    /// @weak the pivot is tested in absolute terms: a regular table of small scale fails
    int inverse1(matrix* out, short& status, double tol);

private:
    struct Shape
    {
        int rows;
        int cols;
        unsigned cells;
    };
    // Every public constructor delegates to this one, so that the destructor releases what was allocated before a
    // failure; the call frame makes its tables by it.
    VECMAT_LOCAL explicit matrix(Shape shape) : nRows(shape.rows), nCols(shape.cols), nElems(shape.cells) {}
    template <class Table>
    friend union vecmat::TableInPlace;

    VECMAT_LOCAL void allocateClearedCounts();

    VECMAT_LOCAL unsigned position(int i, int j) const
    {
        return static_cast<unsigned>(i) - 1u + (static_cast<unsigned>(j) - 1u) * static_cast<unsigned>(nRows);
    }
};

/// Square root. A NaN stays one.
/// @missing the result for any `x` below 0.0, so the missing value gives itself
extern "C" VECMAT_API double sqr2(double x);
