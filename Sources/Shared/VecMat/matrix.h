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
/// The fields are public and are read directly by the computing functions. Cell (i, j), from 0, is `X[i + nRows*j]`.
/// A cell without a value holds the missing value of `base/missing_value.h`; no member replaces it by anything else.
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
    int normalized = 0;        ///< 1 once `Normalize()` or `Center()` has run
    int descDone = 0;          ///< 1 once `calcDescStat` has run
    unsigned nElems = 0;       ///< nRows * nCols as a 32-bit product; every bound check compares against it
    short descMode = 0;        ///< the option of the last `calcDescStat`
    unsigned char ownsX = 1;   ///< 1: the destructor frees X; 0: X is the caller's (a view)
    unsigned char inFrame = 0; ///< 1: it lies in the frame of a call and ends with it; `matCheck` does not delete it

    /// A new block in which every cell is `value`.
    /// @missing copied unchanged; -1.0 beyond a table that is copied
    /// @weights copied along from a table that has them, else none
    matrix(int rows, int cols, int value);
    matrix(int rows, int cols, double value);

    /// With `view` the caller's array is used in place and left alive; without, its first rows*cols doubles are copied.
    /// @missing copied unchanged; -1.0 beyond a table that is copied
    /// @weights copied along from a table that has them, else none
    matrix(int rows, int cols, double* src, bool view);

    /// Opens a table at its final size over a source of `srcRows` by `srcCols` (0: the table's own count): the source
    /// is copied in linear order, not re-strided, and the other cells are 0.0. `nCol` and `weightcorr` are allocated,
    /// cleared.
    /// @missing copied unchanged; -1.0 beyond a table that is copied
    /// @weights copied along from a table that has them, else none
    matrix(int rows, int cols, double* src, int srcRows, int srcCols);

    /// A Boolean array: true becomes -1.0, false 0.0. `nCol` and `weightcorr` as above.
    /// @missing copied unchanged; -1.0 beyond a table that is copied
    /// @weights copied along from a table that has them, else none
    matrix(int rows, int cols, short* src);

    /// `rows` rows and the columns of `src`, copied in linear order; what lies beyond the source is -1.0. Weights,
    /// caches of counts and, from a normalized table, `norMu` and `norSigma` come along; `descMu`, `descSigma` never
    /// do.
    /// @missing copied unchanged; -1.0 beyond a table that is copied
    /// @weights copied along from a table that has them, else none
    matrix(int rows, matrix* src);
    matrix(matrix& src);

    /// Frees what the table owns; never the caller's array of a view.
    /// @missing freed with the table; the array of a view is not
    /// @weights freed with the table
    /// @empty nothing is special
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
    /// @missing copied unchanged; -1.0 where this block ends
    /// @empty no cell is copied
    void transposeTo(matrix* dst);

    /// Copies a column over the source's row count: in a table with fewer rows the tail runs into the next column.
    /// Nothing happens for a number out of range or a source without rows.
    /// @missing copied unchanged
    /// @empty nothing happens
    void copyCol(matrix* src, int srcCol, int dstCol);
    void copyCol(matrixInt* src, int srcCol, int dstCol);

    /// Copies, or exchanges, a row over the source's column count, each table with its own stride. Checks as for a
    /// column.
    /// @missing copied unchanged
    /// @empty nothing happens
    void copyLine(matrix* src, int srcRow, int dstRow);
    void transferLineFrom(matrix* src, int srcRow, int dstRow);

    /// Prepares a result. A table with at least `rows` rows and `cols` columns is kept as large as it is, and the first
    /// rows*cols doubles of its block, in linear order, are set to `value`; any other is deleted and replaced.
    /// @missing overwritten by the value
    /// @weights stay in a table that is kept
    /// @empty a table of no cells is made where there is none large enough
    static void matCheck(matrix*& ref, int rows, int cols, double value);

    /// Allocate `weights` (all 1.0), `weightcorr` (nRows - 1), `nCol` (nRows); nothing happens where they exist.
    /// @missing not read
    /// @weights made where there are none: 1.0 each
    /// @empty an array without entries
    void InitWeights();
    void InitWeightcorr();
    void InitnCol();

    /// Sets the row weights from `nRows` cells; a cell beyond the table `w` gives weight -1.0.
    /// @missing copied like an ordinary number
    /// @weights set, whatever they are; -1.0 beyond the table given
    /// @empty an array without entries
    void weighting(double* w);
    void weighting(matrix* w);

    // The members below compute. A `double` member returns -1.0 for a shape or column it cannot work with, and changes
    // nothing then; otherwise it returns 0.0 or its value. Cells are read and written with the checks above, so that a
    // number out of range takes part as -1.0. "Missing" is the equality test: an infinity or a NaN is a cell like any
    // other. Where weights are read and there are none, `InitWeights` makes them. No member may be given this very
    // table as a factor of the result that it writes here.

    /// Weighted mean and standard deviation of each column into `descMu`, `descSigma`, and the divisor into
    /// `weightcorr`; the cells stay. Missing cells are left out. `mode` exactly -1 corrects the sum of weights W to
    /// W - W/c, c counting the rows present, those of weight 0 too, which add nothing else; any other `mode` divides by
    /// W. Sigma is missing where the divisor is not above 0.0, both results where no row is present or the table has no
    /// rows. Runs again only for another `mode`, whatever has happened to the cells.
    ///
    /// The moments come from running updates in the manner of West, D. H. D. (1979), Updating mean and variance
    /// estimates: an improved method, Comm. ACM 22 (9), 532-535.
    /// @missing left out (equality)
    /// @weights the table's own; a row of weight 0 counts in c and adds nothing else
    /// @divisor W; for `mode` exactly -1 W - W/c; not above 0.0: sigma missing
    /// @empty both missing
    void calcDescStat(short mode);

    /// The mean and deviation of a column, computed first where they stand for another `mode` or not at all; -1.0 for a
    /// column out of range.
    /// @missing as `calcDescStat`
    /// @weights as `calcDescStat`
    /// @divisor as `calcDescStat`
    /// @empty -1.0 for a column out of range
    double getDescMu(int col, short mode);
    double getDescSigma(int col, short mode);

    /// Centres and reduces each column in place by the moments of `calcDescStat(-1)`, kept in `norMu` and `norSigma`; a
    /// sigma of 0.0 divides as 1.0, a missing one divides as the number it is. Missing cells stay. A column without a
    /// present row has mean and sigma 0.0, not the missing value. Returns 0, or -1 with nothing changed on a normalized
    /// table.
    /// @missing stays missing (equality)
    /// @weights the table's own
    /// @divisor sigma of `calcDescStat(-1)`; 0.0 divides as 1.0, a missing one as an ordinary number
    /// @empty a column without a present row has mean and sigma 0.0
    int Normalize();

    /// Subtracts the weighted mean of each column in place, kept in `norMu` (0.0 without a present row), with
    /// `norSigma` 1.0. Missing cells stay. Returns as `Normalize()`.
    /// @missing stays missing (equality)
    /// @weights the table's own
    /// @divisor the sum of weights
    /// @empty a column without a present row has mean 0.0
    int Center();

    /// The saved mean and divisor of a column; -1.0 unless `normalized` is 1 and `col` is in range.
    /// @missing no cell is read
    /// @empty -1.0 unless normalized and in range
    double getNorMu(int col);
    double getNorSigma(int col);

    /// Sum of the present cells divided by `nCol[col]`, which is not their count unless the caller set it so; 0.0 on a
    /// normalized table, -1.0 for a column out of range.
    /// @missing left out (equality)
    /// @divisor `nCol[col]`, which is not the count of present cells unless the caller set it so
    /// @empty -1.0 for a column out of range
    double calcMu(int col);

    /// Divides the column by the root of its sum of squares, untested against 0.0; missing cells stay. Has nothing to
    /// do with `normalized`. Returns 0.0.
    /// @missing stays missing, and is left out of the sum of squares (equality)
    /// @divisor the root of the sum of squares, untested against 0.0
    /// @empty 0.0
    double Normalize(int col);

    /// Sum of squares of the present cells of a column, 0.0 without rows. With `m`, over the rows i whose cell
    /// (other, i) of `m` (`flag` true) or (i, other) (false) is present too; the weighted form multiplies each square
    /// by `weights[i]`, whatever its sign.
    /// @missing left out, of this table and where given of the partner (equality)
    /// @empty 0.0
    double VInnerProd(int col);
    double VInnerProd(int col, bool flag, int other, matrix* m);
    /// @missing left out, of this table and of the partner (equality)
    /// @weights multiply each square, whatever their sign
    double VInnerProdWeighted(int col, bool flag, int other, matrix* m);

    /// Sum of x y w over the rows of two columns where both cells are present and the weight of this table is above
    /// 0.0; -1.0 where the row counts differ.
    /// @missing left out, in either column (equality)
    /// @weights a row enters where its weight is above 0.0
    /// @empty -1.0 where the row counts differ
    double VSProd(int col, matrix* m, int mCol);

    /// Sum of products of two rows, where both cells are present, without weights; -1.0 where the column counts differ.
    /// @missing left out, in either row (equality)
    /// @empty -1.0 where the column counts differ
    double transVSProd(int row, matrix* m, int mRow);

    /// Sum of squares of the present cells of a row; -1.0 for a row out of range.
    /// @missing left out (equality)
    /// @empty -1.0 for a row out of range
    double lineSqrSum(int row);

    /// Sum of squared differences of two columns over this table's rows; no missing test.
    /// @empty -1.0 for a column or shape it cannot work with, else 0.0 without rows
    double VDiff(matrix* m, int col, int mCol);

    /// Multiplies a row by `f`, missing cells too: they stop being missing unless `f` is 1.0.
    /// @missing multiplied like an ordinary number: it stops being missing unless `f` is 1.0
    /// @empty nothing happens without columns
    void SProd(int row, double f);

    /// `SProd(r, w[r])` for each row r below `n`. Despite its name it does not touch `weights`.
    /// @missing multiplied like an ordinary number
    /// @weights multiply rows; the table's own weights stay
    /// @empty nothing happens
    void weighting(double* w, int n);

    /// Subtracts `m`, each table with its own stride, no missing test; -1.0 where this table has more rows or columns.
    /// @empty -1.0 for shapes that do not fit, nothing changed
    double MDiff(matrix* m);

    /// This table becomes a b, or a' b, without a missing test; -1.0 unless all three shapes agree exactly.
    /// @empty -1.0 for shapes that do not fit, nothing changed
    double matProd(matrix* a, matrix* b);
    double transMatProd(matrix* a, matrix* b);

    /// Cell (i, j) becomes a(i, col) b(j, bCol) over all of this table; -1.0 unless `a` has as many rows. Neither the
    /// rows of `b` nor the missing value are tested.
    /// @empty -1.0 for shapes that do not fit, nothing changed
    double vecProd(matrix* a, int col, matrix* b, int bCol);

    /// Adds one weighted term of a scatter table: cell (i, j) grows by
    /// f (a(row, i) - b(bRow, i)) (a(row, j) - b(bRow, j)), f the cell `row` of `v`; -1.0 unless this table has as many
    /// rows as `a` has columns. No missing test.
    /// @empty -1.0 for shapes that do not fit, nothing changed
    double trans1vecProd(matrix* a, int row, matrix* v, matrix* b, int bRow);

    /// Column `dst` becomes `a` times column `col` of `b`; -1.0 unless the columns of `a` match the rows of `b`, and
    /// its rows this table's. The sums run to this table's column count, which must be that of `a` for the full product
    /// and is not tested.
    /// @empty -1.0 for shapes that do not fit, nothing changed
    double matVecProd(matrix* a, matrix* b, int col, int dst);

    /// The identity minus this table; no missing test.
    /// @empty nothing happens
    void oneMinus();

    /// Deflation: each cell (i, j) loses t(i, k) p(j, k); it stays where one of the three is missing.
    /// @missing a cell stays where one of the three is missing (equality)
    /// @empty nothing happens
    void subtractResidual(matrix* t, int k, matrix* p);

    /// Sum over k below n and all columns j of t(tRow, k) p(j, k) this(row, j), without the terms that have a missing
    /// factor; 0.0 for `n` below 1.
    /// @missing a term with a missing factor is left out (equality)
    /// @empty 0.0 for `n` below 1
    double predictLine(matrix* t, matrix* p, int row, int n, int tRow);

    /// Projection steps of an iteration in the presence of missing cells. Each cell i of column `col` of `out`, over
    /// the rows of `out`, takes the ratio of a sum of products with column `col` of `x` to a sum of squares of that
    /// column; a zero divisor is 1.0. Row i of this table goes into the sums, in the `trans` forms column i; where its
    /// cell is missing the term is left out of both. The forms differ on purpose:
    ///
    /// - A missing cell of `x` is left out of the divisor by all, of the products by `transGaussProdWeighted` only.
    /// - `GaussProdWeighted` multiplies each product by the one weight of target row i, and adds nothing unless it is
    ///   above 0.0 (as for a row beyond this table); its divisor has no weights.
    /// - `transGaussProdWeighted` multiplies each product by the weight of its row where that is above 0.0, and each
    ///   square of the divisor by the weights of `x`, not of this table.
    /// @missing in this table leaves its term out of both sums; in `x` out of the divisor only (equality)
    /// @divisor the sum of squares; 0 divides as 1.0
    /// @empty a sum without terms over 1.0
    void GaussProd(matrix* x, int col, matrix* out);
    void transGaussProd(matrix* x, int col, matrix* out);
    /// @weights the one weight of the target row, which adds nothing unless above 0.0; none in the divisor
    void GaussProdWeighted(matrix* x, int col, matrix* out);
    /// @missing leaves its term out of both sums, in this table and in `x` (equality)
    /// @weights of each row where above 0.0; in the divisor those of `x`
    /// @divisor the weighted sum of squares; 0 divides as 1.0
    void transGaussProdWeighted(matrix* x, int col, matrix* out);

    /// Which of the `cols` columns and `rows` rows of the block at (row0, col0) are zero throughout, and for which i of
    /// a square block row i and column i are zero off the diagonal, whatever stands on it. A NaN is not zero. `diag`
    /// has max(rows, cols) entries and is false throughout where `rows` differs from `cols`. Reads are not checked: the
    /// block must lie inside the table.
    /// @missing an ordinary number; a NaN is not zero
    /// @empty nothing is read
    void calcStrucInfo(int rows, int cols, bool* colZero, bool* rowZero, bool* diag, int row0, int col0);

    /// Inverse of the leading square block of order `nRows` into `out`, which must be large enough, from a private
    /// copy: Crout's LU with implicit scaled pivoting, then forward and back substitution for each unit vector (ludcmp
    /// and lubksb of Press, Flannery, Teukolsky, Vetterling: Numerical Recipes, 1st edition), except that it ends at a
    /// pivot of 1e-8 or less in absolute terms; of 2.220446049250313e-16 or less where `tol` is 0 or below, of which
    /// nothing but the sign counts (a NaN is positive). Of equal candidates for a pivot the last wins. No missing test.
    ///
    /// Returns 0, or -1 with `status` -1 and `out` untouched, for such a pivot or a row of zeros; `status` is not
    /// cleared on success.
    /// @divisor a pivot up to 1e-8, or 2.220446049250313e-16 for `tol` at or below 0, or a row of zeros: -1, `out`
    ///     untouched
    /// @empty 0
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

/// Square root, or the missing value for `x` below 0.0. A NaN stays one.
/// @missing below 0.0, so it gives itself
/// @empty takes no array
extern "C" VECMAT_API double sqr2(double x);
