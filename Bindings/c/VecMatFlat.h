/* The functions of VecMat that take plain arrays, for C and languages that read C headers. C++ includes VecMat.h.
   Written by tools/bindings from exports.tsv: change those, not this file.

   Above each function stands its contract, as in the library's own headers. How arguments are passed is told in
   Docs/border.md; the functions are compared with each other below Docs/contracts. */
#ifndef VECMAT_FLAT_H
#define VECMAT_FLAT_H

#include <stddef.h>

/* A cell without a value holds exactly this double. */
#define VECMAT_MISSING (-0x1.fffffffffffe2p+1023)

#ifdef __cplusplus
#ifndef __oaidl_h__
struct SAFEARRAY;
#endif
extern "C" {
#else
#include <stdint.h>

/* Array descriptor of OLE Automation, used for tables of columns. Only pvData is ever read. A program that includes the
   system's own, <oleauto.h>, must do so first. */
#ifndef __oaidl_h__
typedef struct SAFEARRAYBOUND
{
    uint32_t cElements;
    int32_t lLbound;
} SAFEARRAYBOUND;

typedef struct SAFEARRAY
{
    uint16_t cDims;
    uint16_t fFeatures;
    uint32_t cbElements;
    uint32_t cLocks;
    void* pvData;
    SAFEARRAYBOUND rgsabound[1];
} SAFEARRAY;
#endif

/* One element of the outer array: a column of numbers and a column of strings, either of which may be null. */
typedef struct SAFEARRAYColumn
{
    SAFEARRAY* numbers;
    SAFEARRAY* strings;
} SAFEARRAYColumn;
#endif

/* ---- frame/services ---- */

/* Truncates each of `n` doubles towards zero; numbers outside the range become the lowest int.
   - Missing cells: becomes the lowest int
   - Empty input: nothing is copied */
void Cpp_V_CopyDoubleToLong(double* src, int n, int* dst);

/* Widens each of `n` ints.
   - Missing cells: ints are never missing
   - Empty input: nothing is copied */
void Cpp_V_CopyLongToDouble(int* src, int n, double* dst);

/* Kept names that do nothing. */
void Cpp_WriteMatrixDbl(void);

/* Kept names that do nothing. */
void Cpp_WriteMatrixLng(void);

/* Does nothing; returns 0. */
int TestMemory(void);

/* Does nothing; returns 0. Does nothing; returns -1. */
short Cpp_TestMemory(void);

/* Returns 1. */
int TestAllocMatrix(int a1, int a2, int a3, int a4, int a5, int a6, int a7, int a8, int a9, int a10, int a11, int a12,
                    int a13, int a14, int a15, int a16, int a17, int a18, int a19, int a20);

/* 1 when 1.2 times `bytes` is not above the resident size of the process, otherwise 0; also 0 where the operating
   system does not provide it. This compares with what the process holds, not with what is free. */
int GetStatusMemory(int bytes);

/* 1 when 1.2 times `bytes` is not above the resident size of the process, otherwise 0; also 0 where the operating
   system does not provide it. This compares with what the process holds, not with what is free. The same as a Boolean:
   -1 or 0. */
short Cpp_GetStatusMemory(int bytes);

/* Debug print of a labelled value.
   - Missing cells: printed like an ordinary number
   - Empty input: an empty label is printed
   - Known weakness: the finished line is itself the format string of `printf`, so a per cent sign in the label is
     interpreted */
void dprint(double value, const char* label);

/* ---- frame/super_matrices ---- */

/* Stores `pvData` in `*data` and returns 1. Takes no lock.
   - Missing cells: not read
   - Empty input: 0 where either pointer is null */
int MySafeArrayAccessData(SAFEARRAY* sa, void** data);

/* `pvData` of `*sa`.
   - Missing cells: not read
   - Empty input: null where `*sa` is null */
void* ExtractBSTR(SAFEARRAY** sa);

/* Copies the `rows` doubles of the 1-based column `col` of a flat table to `dst`.
   - Missing cells: copied unchanged
   - Empty input: nothing happens, also for a column outside 1 to `cols` */
void ProjVecToMat(double* src, int rows, int cols, int col, double* dst);

/* ---- elementary/column_extremes ---- */

/* The same over an array of columns.
   - Missing cells: with `mode` -1 left out (equality); with 0 an ordinary number, which wins the minimum only until the
     next cell replaces it
   - Mask: one entry for each row. With `mode` 0 a nonzero entry excludes the row; with -1 it is not read; with any
     other `mode` every row is excluded
   - Empty input: the missing value in both */
void VB_M_MinMaxSPV(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode);

/* The same over a triangle of columns: column j, from 0, has rows - j cells, and only those are read. Cell i of each
   column goes with entry i of `mask`.
   - Missing cells: with `mode` -1 left out (equality); with 0 an ordinary number, which wins the minimum only until the
     next cell replaces it
   - Mask: one entry for each row. With `mode` 0 a nonzero entry excludes the row; with -1 it is not read; with any
     other `mode` every row is excluded
   - Empty input: the missing value in both */
void VB_M_MinMaxSPV_T(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode);

/* Smallest of all cells.
   - Missing cells: an ordinary number: it wins
   - Empty input: the positive twin of the missing value */
double Cpp_M_MinAll(double* a, int rows, int cols);

/* Minimum and maximum of each column over the cells that `mode` and `mask` admit. Both results start as the missing
   value. A cell replaces the minimum where it is smaller or where the minimum is still the missing value; it replaces
   the maximum where it is larger.
   - Missing cells: with `mode` -1 left out (equality); with 0 an ordinary number, which wins the minimum only until the
     next cell replaces it
   - Mask: one entry for each row. With `mode` 0 a nonzero entry excludes the row; with -1 it is not read; with any
     other `mode` every row is excluded
   - Empty input: the missing value in both */
void VB_M_MinMax(double* a, int rows, int cols, double* min, double* max, short* mask, short mode);

/* For each row the 1-based number of the column with the largest value, the first of equals.
   - Missing cells: an ordinary number
   - Empty input: 1 where there are no columns */
void Cpp_M_MaxPosByRow(double* a, int rows, int cols, int* out);

/* Largest, or smallest, value of each column. The search starts at the first cell above the missing value, which a NaN
   is not.
   - Missing cells: skipped until the search starts (order); after that compared untested, so it cannot win the maximum
     but does win the minimum. Without any cell above it the result is missing
   - Empty input: the missing value */
void VB_M_Max(double* a, int rows, int cols, double* out);

/* Largest, or smallest, value of each column. The search starts at the first cell above the missing value, which a NaN
   is not.
   - Missing cells: skipped until the search starts (order); after that compared untested, so it cannot win the maximum
     but does win the minimum. Without any cell above it the result is missing
   - Empty input: the missing value */
void VB_M_Min(double* a, int rows, int cols, double* out);

/* ---- elementary/predicates ---- */

/* Are the first `n` cells equal? With `mode` exactly -1 the present cells are compared with the first of them, from the
   second cell on; no present cell, and an `n` below 2, is true. With any other `mode` all cells are compared with the
   first. The same on a flat array, except that with another `mode` than -1 the first element is not compared with
   itself: one NaN is constant here.
   - Missing cells: with `mode` exactly -1 left out (equality), otherwise compared like a number
   - Empty input: -1 (true) */
short VB_V_IsConstant(double* x, int n, short mode);

/* Are the first `n` cells equal? With `mode` exactly -1 the present cells are compared with the first of them, from the
   second cell on; no present cell, and an `n` below 2, is true. With any other `mode` all cells are compared with the
   first. Do all elements equal the first? `mode` has no effect.
   - Missing cells: ints and Booleans are never missing
   - Empty input: -1 (true) */
short VB_V_IsConstantLng(int* x, int n, short mode);

/* Do all elements equal the first? `mode` has no effect.
   - Missing cells: ints and Booleans are never missing
   - Empty input: -1 (true) */
short V_IsConstantBool(short* x, int n);

/* Do all elements equal the first? `mode` has no effect. Do all elements equal the first? `mode` has no effect.
   - Missing cells: ints and Booleans are never missing
   - Empty input: -1 (true) */
short VB_V_IsConstantBool(short* x, int n);

/* The 1-based number of the first constant column, 0 if there is none. A column with at most one present cell is
   constant, unless that cell is in the last row. The form over columns does not compare the last row: a column that
   differs only there is constant.
   - Missing cells: left out (equality)
   - Empty input: a column without rows is constant: 1; without columns 0 */
int VB_M_IsColConstant(double* a, int rows, int cols);

/* The 1-based number of the first constant column, 0 if there is none. A column with at most one present cell is
   constant, unless that cell is in the last row. The form over columns does not compare the last row: a column that
   differs only there is constant.
   - Missing cells: left out (equality)
   - Empty input: a column without rows is constant: 1; without columns 0 */
int VB_M_IsColConstantSPV(SAFEARRAY** a, int rows, int cols);

/* Is no cell below 0.0 (`strict` 0), or none at or below 0.0 (any other `strict`)? False for an `n` beyond the table.
   Is no cell below 0.0 (`strict` 0), or none at or below 0.0 (any other `strict`)? False for an `n` beyond the table.
   - Missing cells: left out (equality)
   - Empty input: -1 (true) */
short VB_V_IsPositive(double* x, int n, short strict);

/* The same for a table, with other rules: only a `strict` of exactly -1 is strict, and a cell beyond the table fails.
   The same for a table, with other rules: only a `strict` of exactly -1 is strict, and a cell beyond the table fails.
   - Missing cells: fails the test
   - Mask: a row with a nonzero entry passes, whatever it holds; null: every row is tested
   - Empty input: -1 (true) */
short VB_M_IsPositive(double* a, int rows, int cols, short* mask, short strict);

/* Are all cells whole numbers, by the test of `IsLong`? Are all cells whole numbers, by the test of `IsLong`?
   - Missing cells: tested like an ordinary number
   - Empty input: -1 (true) */
short VB_M_IsLong(double* a, int rows, int cols);

/* Do the diagonal cells from the second on equal the block's first cell? Do the diagonal cells from the second on equal
   the block's first cell?
   - Missing cells: compared like a number
   - Empty input: -1 (true) for `n` below 2 */
short VB_M_IsDiagConstant(double* a, int n);

/* Do all cells lie from 0.0 to 1.0, ends included? One beyond the table and a NaN do not. Do all cells lie from 0.0 to
   1.0, ends included? One beyond the table and a NaN do not.
   - Missing cells: fails the test
   - Empty input: -1 (true) */
short VB_M_IsIn01(double* a, int rows, int cols);

/* Do all cells lie between `lo` and `hi`, the ends excluded if `open` is exactly -1? A NaN never does. Do all cells lie
   between `lo` and `hi`, the ends excluded if `open` is exactly -1? A NaN never does.
   - Missing cells: with `skipMissing` exactly -1 left out (equality), otherwise an ordinary number
   - Empty input: -1 (true) */
short VB_M_IsInIntervalSPV(SAFEARRAY** a, int rows, int cols, double lo, double hi, short open, short skipMissing);

/* Do all cells lie between `lo` and `hi`, the ends excluded if `open` is exactly -1? A NaN never does. Do all cells lie
   between `lo` and `hi`, the ends excluded if `open` is exactly -1? A NaN never does.
   - Missing cells: with `skipMissing` exactly -1 left out (equality), otherwise an ordinary number
   - Empty input: -1 (true) */
short VB_V_IsInInterval(double* x, int n, double lo, double hi, short open, short skipMissing);

/* ---- elementary/packed_storage ---- */

/* Row and column of position `k` in the strict upper triangle of order `n`. Neither is written where `k` is beyond its
   last cell; a `k` below 1 counts back from (1, 2).
   - Empty input: nothing is written */
void V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j);

/* Row and column of position `k` in the strict upper triangle of order `n`. Neither is written where `k` is beyond its
   last cell; a `k` below 1 counts back from (1, 2). Row and column of position `k` in the strict upper triangle of
   order `n`. Neither is written where `k` is beyond its last cell; a `k` below 1 counts back from (1, 2).
   - Empty input: nothing is written */
void VB_V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j);

/* Row and column of position `k` in a table with `n` columns laid out by rows.
   - Empty input: nothing is written */
void VB_V_GetPositionInMatNN(int k, int n, int* i, int* j);

/* ---- elementary/symmetry ---- */

/* -1 if a(i, j) equals a(j, i) for all pairs, otherwise 0. -1 if a(i, j) equals a(j, i) for all pairs, otherwise 0.
   - Missing cells: equals itself
   - Empty input: -1 (true), also for an `n` of 1 */
short VB_M_IsSymmetric(double* a, int n);

/* -1 if a(i, j) equals a(j, i) for all pairs, otherwise 0. -1 if a(i, j) equals a(j, i) for all pairs, otherwise 0.
   - Missing cells: equals itself
   - Empty input: -1 (true), also for an `n` of 1 */
short VB_M_IsSymmetricSPV(SAFEARRAY** a, int n);

/* Makes the table symmetric: where the two cells of a pair differ, one value is written to both.  mode 0   the smaller
   that is not missing mode 1   the larger mode 2   half of what mode 0 writes where the smaller is not missing, else
   the larger: not the mean of the two  Any other `mode` does nothing. A pair with a NaN always differs; its cell above
   the diagonal is taken for the smaller and the larger. Makes the table symmetric: where the two cells of a pair
   differ, one value is written to both.  mode 0   the smaller that is not missing mode 1   the larger mode 2   half of
   what mode 0 writes where the smaller is not missing, else the larger: not the mean of the two  Any other `mode` does
   nothing. A pair with a NaN always differs; its cell above the diagonal is taken for the smaller and the larger.
   - Missing cells: a cell not above it is missing here (order), and is not written as the smaller
   - Empty input: nothing happens */
void VB_M_Symmetrize(double* a, int n, int mode);

/* Makes the table symmetric: where the two cells of a pair differ, one value is written to both.  mode 0   the smaller
   that is not missing mode 1   the larger mode 2   half of what mode 0 writes where the smaller is not missing, else
   the larger: not the mean of the two  Any other `mode` does nothing. A pair with a NaN always differs; its cell above
   the diagonal is taken for the smaller and the larger. Makes the table symmetric: where the two cells of a pair
   differ, one value is written to both.  mode 0   the smaller that is not missing mode 1   the larger mode 2   half of
   what mode 0 writes where the smaller is not missing, else the larger: not the mean of the two  Any other `mode` does
   nothing. A pair with a NaN always differs; its cell above the diagonal is taken for the smaller and the larger.
   - Missing cells: a cell not above it is missing here (order), and is not written as the smaller
   - Empty input: nothing happens */
void VB_M_SymmetrizeSPV(SAFEARRAY** a, int n, int mode);

/* 2 if the strict lower part is empty, which includes a diagonal table; otherwise 1 if the strict upper part is;
   otherwise 0. A cell is empty if it is exactly 0.0 or missing. With `fill` exactly -1 the other part of a triangular
   table is copied onto the empty one. 2 if the strict lower part is empty, which includes a diagonal table; otherwise 1
   if the strict upper part is; otherwise 0. A cell is empty if it is exactly 0.0 or missing. With `fill` exactly -1 the
   other part of a triangular table is copied onto the empty one.
   - Missing cells: counts as empty, like 0.0
   - Empty input: 2, also for an `n` of 1 */
int VB_M_IsTriangular(double* a, int n, short fill);

/* 2 if the strict lower part is empty, which includes a diagonal table; otherwise 1 if the strict upper part is;
   otherwise 0. A cell is empty if it is exactly 0.0 or missing. With `fill` exactly -1 the other part of a triangular
   table is copied onto the empty one. 2 if the strict lower part is empty, which includes a diagonal table; otherwise 1
   if the strict upper part is; otherwise 0. A cell is empty if it is exactly 0.0 or missing. With `fill` exactly -1 the
   other part of a triangular table is copied onto the empty one.
   - Missing cells: counts as empty, like 0.0
   - Empty input: 2, also for an `n` of 1 */
int VB_M_IsTriangularSPV(SAFEARRAY** a, int n, short fill);

/* What a table of proximities holds: 1 similarities, 2 dissimilarities, 0 neither. In similarities no cell is above the
   diagonal cell of its row; in dissimilarities none below it, and the diagonal is constant. `kind` says what to try: 0
   both, similarities first; 1 similarities; 2 dissimilarities; any other answers 2 without the second test, and above 2
   without the first. What a table of proximities holds: 1 similarities, 2 dissimilarities, 0 neither. In similarities
   no cell is above the diagonal cell of its row; in dissimilarities none below it, and the diagonal is constant. `kind`
   says what to try: 0 both, similarities first; 1 similarities; 2 dissimilarities; any other answers 2 without the
   second test, and above 2 without the first.
   - Missing cells: a cell not above it is left out of the comparisons (order)
   - Empty input: passes every test: 1 for `kind` 0 */
int VB_M_CheckIfSimOrDissim(double* a, int n, int kind);

/* The same over columns, except that each cell is compared with the diagonal cell of its column, and the constant
   diagonal has a cell for each column. The same over columns, except that each cell is compared with the diagonal cell
   of its column, and the constant diagonal has a cell for each column.
   - Missing cells: a cell not above it is left out of the comparisons (order)
   - Empty input: passes every test: 1 for `kind` 0 */
int VB_M_CheckIfSimOrDissimSPV(SAFEARRAY** a, int rows, int cols, int kind);

/* Turns similarities into dissimilarities: each pair i < j becomes a(i, i) - a(i, j), from the cell above the diagonal
   and the diagonal cell of its row alone. The diagonal becomes 0.0. Turns similarities into dissimilarities: each pair
   i < j becomes a(i, i) - a(i, j), from the cell above the diagonal and the diagonal cell of its row alone. The
   diagonal becomes 0.0.
   - Missing cells: in that cell leaves both cells of the pair unchanged (equality)
   - Empty input: nothing happens */
void VB_M_TransformSimToDissim(double* a, int n);

/* ---- elementary/sums_and_norms ---- */

/* Sum of the first `rows` column sums. So it covers all columns of a table with no more columns than rows, and the
   first `rows` columns of a wider one. A place beyond the last column adds 0.0.
   - Missing cells: left out (equality); a column without a present cell makes the result missing
   - Empty input: 0.0 */
double VB_M_SumOfElem(double* a, int rows, int cols);

/* Sum of the first `n` diagonal cells.
   - Missing cells: an ordinary number
   - Empty input: 0.0 */
double VB_M_Trace(double* a, int n);

/* The trace of a' b: the sum over the columns of their inner products, of two `rows` by `cols` tables. With b equal to
   a it is the square of the Frobenius norm: no root is taken.
   - Missing cells: an ordinary number
   - Empty input: 0.0 */
double VB_M_FrobeniusNorm(double* a, int rows, int cols, double* b);

/* Sum per column and per row.
   - Missing cells: left out (equality)
   - Empty input: the missing value, not 0.0, for a line without a present cell */
void VB_M_SumByCols(double* a, int rows, int cols, double* out);

/* Sum per column and per row.
   - Missing cells: left out (equality)
   - Empty input: the missing value, not 0.0, for a line without a present cell */
void VB_M_SumByRows(double* a, int rows, int cols, double* out);

/* Sum of squares per row.
   - Missing cells: makes the sum of its row missing (equality)
   - Empty input: 0.0 for a row without columns */
void VB_M_SquaredRows(double* a, int rows, int cols, double* out);

/* Sum of squares per column.
   - Missing cells: an ordinary number: its square is infinite
   - Empty input: 0.0 for a column without rows */
void VB_M_SquaredColumns(double* a, int rows, int cols, double* out);

/* ---- elementary/matrix_products ---- */

/* a b; b has `cols` rows and `colsB` columns. Prepared `rows` by `colsB`, in place in an array of columns. Return 0.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
int VB_M_ProductAB(double* a, int r, int c, double* b, int c2, double* out);

/* b v, v of `cols` cells, in `rows` cells in place. Returns 0.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
int VB_M_ProductBV(double* b, int rows, int cols, double* v, double* out);

/* v' b as a column, v of `rows` cells. Prepared `cols` by 1.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductVB(double* v, int rows, double* b, int cols, double* out);

/* a' b; b has `rows` rows. Prepared `cols` by `colsB`.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductTrAB(double* a, int rows, int cols, double* b, int colsB, double* out);

/* a b'; b has `rowsB` rows and `cols` columns. Prepared `rows` by `rowsB`, or in place in an array of columns.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductATrB(double* a, int rows, int cols, double* b, int rowsB, double* out);

/* a' a and a a'. The lower triangle is computed and mirrored. Prepared, `cols` by `cols` and `rows` by `rows`. Sums are
   doubles for ints too; a result in ints is truncated, and a sum outside their range becomes the lowest int.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductTrAA(double* a, int rows, int cols, double* out);

/* a' a and a a'. The lower triangle is computed and mirrored. Prepared, `cols` by `cols` and `rows` by `rows`. Sums are
   doubles for ints too; a result in ints is truncated, and a sum outside their range becomes the lowest int.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void Cpp_M_ProductTrAALng(int* a, int rows, int cols, int* out);

/* a' a and a a'. The lower triangle is computed and mirrored. Prepared, `cols` by `cols` and `rows` by `rows`. Sums are
   doubles for ints too; a result in ints is truncated, and a sum outside their range becomes the lowest int.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductATrA(double* a, int rows, int cols, double* out);

/* Chains go from left to right through a temporary. (a b) a' with b of order `cols`; (a' b) a with b of order `rows`.
   In place.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductABTrA(double* a, int rows, int cols, double* b, double* out);

/* Chains go from left to right through a temporary. (a b) a' with b of order `cols`; (a' b) a with b of order `rows`.
   In place.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductTrABA(double* a, int rows, int cols, double* b, double* out);

/* (v' b) v and (va' b) vb with b of order `n`, returned.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
double VB_M_ProductTrVBV(double* v, int n, double* b);

/* (v' b) v and (va' b) vb with b of order `n`, returned.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
double VB_M_ProductTrV1BV2(double* va, int n, double* b, double* vb);

/* (a' b) c: b is `rows` by `colsB`, c `colsB` by `colsC`; the result, `cols` by `colsC`, in place.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductTrABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC, double* out);

/* b' v, v of `rows` cells, in `cols` cells in place.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductTrBV(double* b, int rows, int cols, double* v, double* out);

/* v' b' as a column, v of `n` cells and b `m` by `n`, in `m` cells in place.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductVTrB(double* v, int n, double* b, int m, double* out);

/* (a b) c: b is `cols` by `colsB`, c `colsB` by `colsC`; the result, `rows` by `colsC`, in place. Each of the two
   products looks for structure. Where a row of the left or a column of the right operand is all zero the cell is +0.0;
   in a row of a square left operand that is zero off the diagonal (its column too) the cell is one product, and
   likewise in such a column of a square right operand. A cell that is skipped in this way has no effect, even if it is
   infinite or a NaN, and a product of zeros keeps its sign: the bits differ from those of two plain products.
   - Missing cells: an ordinary number, unless structure skips its term
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC, double* out);

/* (a b') c: b is `rowsB` by `cols`, c `rowsB` by `colsC`; the result, `rows` by `colsC`, in place.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void VB_M_ProductATrBC(double* a, int rows, int cols, double* b, int rowsB, double* c, int colsC, double* out);

/* (a' b) v: b is `rows` by `colsB`, v has `colsB` cells; the result, `cols` cells, in place.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0
   - Memory: larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers
     of the inner index, and a copy of the results where there is more than one block. Where memory is short, and where
     a result is an operand, they do without, slower and with the same results */
void Cpp_M_ProductTrABV(double* a, int rows, int cols, double* b, int colsB, double* v, double* out);

/* ---- elementary/diagonal_products ---- */

/* a diag(d) a', d of order `cols`, and a' diag(d) a, d of order `rows`. The lower triangle is computed and mirrored.
   Prepared, `rows` by `rows` and `cols` by `cols`.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0 */
void VB_M_ProductADTrA(double* a, int rows, int cols, double* d, double* out);

/* a diag(d) a', d of order `cols`, and a' diag(d) a, d of order `rows`. The lower triangle is computed and mirrored.
   Prepared, `rows` by `rows` and `cols` by `cols`.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0 */
void VB_M_ProductTrADA(double* a, int rows, int cols, double* d, double* out);

/* a diag(d), d of order `cols`, prepared `rows` by `cols`; a' diag(d), d of order `rows`, prepared `cols` by `rows`.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0 */
void VB_M_ProductADiag(double* a, int rows, int cols, double* d, double* out);

/* a diag(d), d of order `cols`, prepared `rows` by `cols`; a' diag(d), d of order `rows`, prepared `cols` by `rows`.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0 */
void VB_M_ProductTrADiag(double* a, int rows, int cols, double* d, double* out);

/* diag(v) a in place, v of `rows` cells.
   - Missing cells: in v makes its whole row missing, in a its cell (equality)
   - Empty input: nothing is written */
void VB_M_ProductDiagVA(double* v, int rows, double* a, int cols, double* out);

/* (diag(va) a) diag(vb) in place, through a temporary: `M_ProductDiagVA`, then `M_ProductADiagV`.
   - Missing cells: the first product makes the cell missing (equality), the second multiplies it like an ordinary
     number
   - Empty input: nothing is written */
void VB_M_ProductDiagV1ADiagV2(double* va, int rows, double* a, int cols, double* vb, double* out);

/* a diag(v) in place, v of `cols` cells.
   - Missing cells: an ordinary number, unlike in `M_ProductDiagVA`
   - Empty input: nothing is written */
void VB_M_ProductADiagV(double* a, int rows, int cols, double* v, double* out);

/* a diag(v) a', v of `cols` cells, and a' diag(v) a, v of `rows` cells, in place. The lower triangle is computed and
   mirrored.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0 */
void VB_M_ProductADiagVTrA(double* a, int rows, int cols, double* v, double* out);

/* a diag(v) a', v of `cols` cells, and a' diag(v) a, v of `rows` cells, in place. The lower triangle is computed and
   mirrored.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0 */
void VB_M_ProductTrADiagVA(double* a, int rows, int cols, double* v, double* out);

/* a diag(v) b' in place, v of `cols` cells and b `rowsB` by `cols`.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0 */
void VB_M_ProductADiagVTrB(double* a, int rows, int cols, double* v, double* b, int rowsB, double* out);

/* a diag(v) b in place, v of `cols` cells and b `cols` by `colsB`. The strides of b and out are those of the tables.
   - Missing cells: an ordinary number
   - Empty input: an empty sum is 0.0 */
void VB_M_ProductADiagVB(double* a, int rows, int cols, double* v, double* b, int colsB, double* out);

/* The upper triangle of a' diag(v) in place, v of `rows` cells: row c of out takes a(k, c) v(k) for k from c on. The
   cells below the diagonal stay as they are.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_M_ProductTrADiagV(double* a, int rows, int cols, double* v, double* out);

/* ---- elementary/column_products ---- */

/* out(i, j) = a(i, j) b(i, j).
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_M_ProductByElement(double* a, int rows, int cols, double* b, double* out);

/* The products of all pairs of columns.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_M_ProductHorizAB(double* a, int rows, int cols, double* b, int colsB, double* out);

/* The same over a itself, through a temporary. `*cols` becomes `*cols` times `colsB`; a must have room for that many
   columns.
   - Missing cells: in either factor makes the cell missing (equality)
   - Empty input: no cell is written; `*cols` is multiplied all the same */
void VB_M_ProductHorizAB2(double* a, int rows, int* cols, double* b, int colsB);

/* The columns of a design for the interaction of two coded tables, whose cells are near 1, -1 or 0, over a itself.  The
   first new column is the plain product of the first columns. In every other the product p decides the cell: above
   2.2e-16 it is 1.0 or -1.0, with the sign of the factor from a; below -2.2e-16 it is -1.0 where the column comes from
   the first column of a or of b; otherwise it is 0.0. `*cols` becomes `*cols` times `colsB`; a must have room for that
   many columns. Cell c of out receives P of column c. With `mode` 3 the cells with -1 become -P/Q, which balances the
   column.
   - Missing cells: an ordinary number
   - Weights: summed over the rows with 1 (P) and with -1 (Q) in each new column; a zero weight adds nothing
   - Divisor: Q, with `mode` 3 only; where Q is at most 2.2e-16 the cells stay -1.0
   - Empty input: no cell of `a` is written, P is 0.0; `*cols` is multiplied all the same */
void VB_M_ProductDesignAB2(double* a, int rows, int* cols, double* b, int colsB, int mode, double* w, double* out);

/* ---- elementary/packed_products ---- */

/* s v and v' s, s of order `n`: `n` cells, each a sum from +0.0 over the inner index in order.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_M_ProductASymV(double* s, int n, double* v, double* out);

/* s v and v' s, s of order `n`: `n` cells, each a sum from +0.0 over the inner index in order.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_M_ProductVASym(double* v, int n, double* s, double* out);

/* The lower triangle of a b, packed, for two packed tables of `len` cells. The sums run over the order floor(sqrt(2
   len)), which is what the formula gives and not always the inverse of n(n+1)/2.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void Cpp_MV_ProductAsymBsym(double* a, int len, int ignored, double* out);

/* ---- elementary/vector_products ---- */

/* The sum of a(i) b(i).
   - Missing cells: an ordinary number
   - Empty input: 0.0 */
double VB_V_ProductTrV1V2(double* a, int n, double* b);

/* out(i) = a(i) b(i); the second form puts the product in a.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_V_ProductV1V2(double* a, int n, double* b, double* out);

/* out(i) = a(i) b(i); the second form puts the product in a.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_V_ProductV1V22(double* a, int n, double* b);

/* Outer product: out(i, j) = a(i) b(j), `n` by `n`.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_V_ProductV1TrV2(double* a, int n, double* b, double* out);

/* out[i*m + j] = a[i] b[j].
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_V_ProductHorizV1V2(double* a, int n, double* b, int m, double* out);

/* Every cell of a with every cell of b: cell i*m + j of a, from 0, becomes a(i) b(j), and `*n` becomes `*n` times m.
   The table a must have room for that many.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void VB_V_ProductHorizV1V22(double* a, int* n, double* b, int m);

/* The product of the first `n` cells, starting from 1.0, as a double.
   - Missing cells: an ordinary number
   - Empty input: 1.0 (1) */
double VB_V_Product1toNDbl(double* x, int n);

/* The product of the first `n` cells, starting from 1.0, as a double. The product in doubles, truncated; outside the
   range of int it is the lowest int.
   - Missing cells: an ordinary number
   - Empty input: 1.0 (1) */
int VB_V_Product1toNLng(int* x, int n);

/* -1 unless some a(i, j) of the `n` by `cols` table is above v(i), then 0.
   - Missing cells: compared like a number; a NaN is not above anything
   - Empty input: -1 */
short VB_V_V1GreaterThanMatCols(double* v, int n, double* a, int cols);

/* -1 unless some a(i) is above b(i), then 0.
   - Missing cells: compared like a number; a NaN is not above anything
   - Empty input: -1 */
short VB_V_V1inferiorV2(double* a, int n, double* b);

/* ---- elementary/scalar_arithmetic ---- */

/* s a(i, j). In place; over a itself through a temporary, which then gives a its shape of `rows` by `cols` (a table
   without room for that is replaced); and as s a', prepared `cols` by `rows`.
   - Missing cells: stays missing (equality), unlike in the sums with a scalar
   - Empty input: nothing is written */
void VB_M_ScalarsA(double* a, int rows, int cols, double s, double* out);

/* s a(i, j). In place; over a itself through a temporary, which then gives a its shape of `rows` by `cols` (a table
   without room for that is replaced); and as s a', prepared `cols` by `rows`.
   - Missing cells: stays missing (equality), unlike in the sums with a scalar
   - Empty input: nothing is written */
void VB_M_ScalarsA2(double* a, int rows, int cols, double s);

/* s a(i, j). In place; over a itself through a temporary, which then gives a its shape of `rows` by `cols` (a table
   without room for that is replaced); and as s a', prepared `cols` by `rows`.
   - Missing cells: stays missing (equality), unlike in the sums with a scalar
   - Empty input: nothing is written */
void VB_M_ScalarsTrA(double* a, int rows, int cols, double s, double* out);

/* a s1 + (b s2). Prepared `rows` by `cols`. In the SPV forms a is an array of columns, in the last one a triangle of
   columns, whose cell (i, j) is cell |i - j| of column min(i, j): the whole result is written.
   - Missing cells: in either table makes the cell missing (equality)
   - Empty input: nothing is written */
void VB_M_Sums1As2B(double* a, int rows, int cols, double* b, double s1, double s2, double* out);

/* a + v, prepared `rows` by `cols`, and in place. A result in ints is the sum in doubles, truncated.
   - Missing cells: an ordinary number: it changes
   - Empty input: nothing is written */
void VB_M_APlusVal(double* a, int rows, int cols, double v, double* out);

/* - Missing cells: an ordinary number: it changes
   - Empty input: nothing is written */
void VB_M_APlusVal2(double* a, int rows, int cols, double v);

/* a + b in place.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void Cpp_SumMat(double* a, double* b, int rows, int cols, double* out);

/* ---- elementary/cell_functions ---- */

/* Squares the first `rows` times `cols` cells in linear order, whatever the stride.
   - Missing cells: stays missing (equality)
   - Empty input: nothing happens */
void VB_M_Square(double* a, int rows, int cols);

/* The square root of each cell, row by row, into out, which must exist, or in place. The first cell that is negative, a
   NaN or out of range ends the call.
   - Missing cells: negative, so it ends the call
   - Empty input: 0.0
   - Failure: returns -1.0; that cell and those after it are not written. Otherwise 0.0 */
double Cpp_M_SquareRootAij(double* a, int rows, int cols, double* out);

/* The square root of each cell, row by row, into out, which must exist, or in place. The first cell that is negative, a
   NaN or out of range ends the call.
   - Missing cells: negative, so it ends the call
   - Empty input: 0.0
   - Failure: returns -1.0; that cell and those after it are not written. Otherwise 0.0 */
double Cpp_M_SquareRootAij2(double* a, int rows, int cols);

/* The natural logarithm in place. There is no guard against zero (minus infinity) or negative cells (NaN).
   - Missing cells: stays missing (equality)
   - Mask: a row with a nonzero entry is left unchanged
   - Empty input: nothing happens */
void VB_M_LogMatrix(double* a, int rows, int cols, short* mask);

/* The base-10 logarithm in place, as the companion library computes it. Zero and negative cells are left to the
   companion, which is called for cells outside the table too.
   - Missing cells: stays missing (equality)
   - Empty input: nothing happens */
void VB_M_Log10Matrix(double* a, int rows, int cols);

/* ---- elementary/distances ---- */

/* Weighted distances of all pairs of columns, the root of the sum over the rows of w (a difference squared), `cols` by
   `cols`, w having `rows` cells; with `betweenRows` exactly -1, of all pairs among the first `nRowsAgain` rows, over
   the `cols` columns, `nRowsAgain` by `nRowsAgain`, w having `cols` cells. Both triangles are written, 0.0 on the
   diagonal.
   - Missing cells: an ordinary number
   - Weights: a zero weight takes its coordinate out, unless the difference is infinite or a NaN
   - Empty input: without coordinates 0.0 */
void VB_M_EuclidDist2(double* a, int rows, int cols, double* out, double* w, short betweenRows);

/* Distance of each column to the vector v of `rows` cells, as a root mean square over the coordinates: the root of the
   sum of squared differences divided by their count. With `byRow` exactly -1, of each row to v of `cols` cells.
   - Missing cells: a coordinate enters only where both cells are above the missing value (order), which a NaN is not
   - Divisor: the count of the coordinates that enter
   - Empty input: the missing value, also where no coordinate enters */
void Cpp_M_EuclidDistToVector(double* a, int rows, int cols, double* v, short byRow, double* out);

/* ---- elementary/gauss ---- */

/* Gauss-Jordan elimination with full pivoting: a, `n` by `n`, becomes its inverse and b, `n` by `m`, the solutions. The
   pivot of a step is the cell of largest magnitude among the rows and columns not yet used; a cell replaces the largest
   so far only where it exceeds it by more than 1e-12, so the first of nearly equal cells stays, and a table whose cells
   are all within 1e-12 of 0 has no pivot. A NaN is never found as a pivot. With `noPivot` the pivots are the diagonal
   cells in order; with `noSwap` they are searched, but the diagonal cell of the column found takes the pivot's place,
   and no rows and columns are exchanged. Cells outside a table read as -1.0, also as a pivot. Returns 0, or -2.
   - Missing cells: an ordinary number, a large one
   - Divisor: the pivot; singular where it is exactly 0.0 or none is found
   - Empty input: 0, nothing changed
   - Failure: -2 for a singular table; a and b are then left as the steps so far have made them
   - Source: full pivoting: Golub and Van Loan, Matrix Computations, section 3.4
   - Known weakness: a pivot is searched in absolute terms: a regular table whose cells are all within 1e-12 of 0 is
     singular */
int VB_V_Gauss(double* a, int n, double* b);

/* Gauss-Jordan elimination with full pivoting: a, `n` by `n`, becomes its inverse and b, `n` by `m`, the solutions. The
   pivot of a step is the cell of largest magnitude among the rows and columns not yet used; a cell replaces the largest
   so far only where it exceeds it by more than 1e-12, so the first of nearly equal cells stays, and a table whose cells
   are all within 1e-12 of 0 has no pivot. A NaN is never found as a pivot. With `noPivot` the pivots are the diagonal
   cells in order; with `noSwap` they are searched, but the diagonal cell of the column found takes the pivot's place,
   and no rows and columns are exchanged. Cells outside a table read as -1.0, also as a pivot. Returns 0, or -2.
   - Missing cells: an ordinary number, a large one
   - Divisor: the pivot; singular where it is exactly 0.0 or none is found
   - Empty input: 0, nothing changed
   - Failure: -2 for a singular table; a and b are then left as the steps so far have made them
   - Source: full pivoting: Golub and Van Loan, Matrix Computations, section 3.4
   - Known weakness: a pivot is searched in absolute terms: a regular table whose cells are all within 1e-12 of 0 is
     singular */
int VB_M_Gauss(double* a, int n, int m, double* b);

/* ---- elementary/filling ---- */

/* False is 0.0 in a table and 0 in an array of Booleans.
   - Missing cells: overwritten
   - Empty input: nothing is filled */
void VB_InitVectorToFalse(short* v, int n);

/* True is -1.
   - Missing cells: overwritten
   - Empty input: nothing is filled */
void VB_InitVectorToTrue(short* v, int n);

/* - Missing cells: overwritten
   - Empty input: nothing is filled */
void VB_V_SetToValue(double* v, int n, double value);

/* - Missing cells: overwritten
   - Empty input: nothing is filled */
void VB_V_SetToValueLng(int* v, int n, int value);

/* Sets the first `n` cells of the table as it is. `value` is one string of 32-bit characters, used as given; each
   element of `v` becomes a new BSTR.
   - Missing cells: overwritten
   - Empty input: nothing is filled */
void VB_V_SetToValueStr(wchar_t** v, int n, const wchar_t* value);

/* Cell i, from 0, becomes i + 1.
   - Missing cells: overwritten
   - Empty input: nothing is filled */
void VB_V_Set1toNDbl(double* v, int n);

/* Cell i, from 0, becomes i + 1.
   - Missing cells: overwritten
   - Empty input: nothing is filled */
void VB_V_Set1toNLng(int* v, int n);

/* ---- elementary/array_copies ---- */

/* - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void VB_V_DuplicateDbl(double* src, int n, double* dst);

/* - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void VB_V_DuplicateLng(int* src, int n, int* dst);

/* - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void Cpp_V_DuplicateBool(short* src, int n, short* dst);

/* Truncates towards zero. Numbers outside the range of int become the lowest int.
   - Missing cells: becomes the lowest int
   - Empty input: nothing is copied */
void VB_V_DuplicateDblToLng(double* src, int n, int* dst);

/* - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void VB_V_DuplicateLngToDbl(int* src, int n, double* dst);

/* - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void VB_V_DuplicateStr(wchar_t** src, int n, wchar_t** dst);

/* - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void VB_M_DuplicateStr(wchar_t** src, int r, int c, wchar_t** dst);

/* - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void VB_M_DuplicateDbl(double* src, int r, int c, double* dst);

/* - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void VB_M_DuplicateLng(int* src, int r, int c, int* dst);

/* Reads `src` as `r` by `c` and writes newR by newC cells: cell (i, j), from 0, is element i + j*r of `src`. Rows
   beyond `r` therefore run into the next column, and past the end of `src` -1.0 (an empty string) is stored.
   - Missing cells: copied unchanged
   - Empty input: a `c` of 0 means one column on both sides, whatever newC is */
void VB_M_CopyResize(double* src, int r, int c, double* dst, int newR, int newC);

/* Reads `src` as `r` by `c` and writes newR by newC cells: cell (i, j), from 0, is element i + j*r of `src`. Rows
   beyond `r` therefore run into the next column, and past the end of `src` -1.0 (an empty string) is stored.
   - Missing cells: copied unchanged
   - Empty input: a `c` of 0 means one column on both sides, whatever newC is */
void VB_M_CopyResizeStr(wchar_t** src, int r, int c, wchar_t** dst, int newR, int newC);

/* Cell k, from 0, of `out` becomes cell n-1-k of `x`, each table in linear order: a read outside `x` stores -1.0, a
   write outside `out` is dropped. `out` is not prepared. Cell k, from 0, of `out` becomes cell n-1-k of `x`, each table
   in linear order: a read outside `x` stores -1.0, a write outside `out` is dropped. `out` is not prepared.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied */
void VB_V_ReverseDbl(double* x, int n, double* out);

/* out[k] = x[n + 1 - k] for k from 0 to n-1. This reverses not `x` but its elements 2 to n + 1, counted from 0: `x`
   must have n + 2 elements.
   - Missing cells: Booleans are never missing
   - Empty input: nothing is copied */
void V_ReverseBool(short* x, int n, short* out);

/* out[k] = x[n + 1 - k] for k from 0 to n-1. This reverses not `x` but its elements 2 to n + 1, counted from 0: `x`
   must have n + 2 elements. out[k] = x[n + 1 - k] for k from 0 to n-1. This reverses not `x` but its elements 2 to n +
   1, counted from 0: `x` must have n + 2 elements.
   - Missing cells: Booleans are never missing
   - Empty input: nothing is copied */
void VB_V_ReverseBool(short* x, int n, short* out);

/* ---- elementary/transposition ---- */

/* A target that is a plain table is prepared as `cols` by `rows`: a larger numeric table is kept with its own stride
   and its head cleared, a string table only in the exact shape. Ints are widened where the target is a `matrix`. The
   array of columns in the last form must exist: its i-th table takes row i of the source. `a` is `r` by `c`, the result
   `c` by `r`. The forms ending in 2 write it over `a`.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; a target that is a plain table is prepared all the same */
void VB_M_Transpose(double* a, int r, int c, double* out);

/* A target that is a plain table is prepared as `cols` by `rows`: a larger numeric table is kept with its own stride
   and its head cleared, a string table only in the exact shape. Ints are widened where the target is a `matrix`. The
   array of columns in the last form must exist: its i-th table takes row i of the source. `a` is `r` by `c`, the result
   `c` by `r`. The forms ending in 2 write it over `a`.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; a target that is a plain table is prepared all the same */
void VB_M_TransposeLng(int* a, int r, int c, int* out);

/* A target that is a plain table is prepared as `cols` by `rows`: a larger numeric table is kept with its own stride
   and its head cleared, a string table only in the exact shape. Ints are widened where the target is a `matrix`. The
   array of columns in the last form must exist: its i-th table takes row i of the source. `a` is `r` by `c`, the result
   `c` by `r`. The forms ending in 2 write it over `a`.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; a target that is a plain table is prepared all the same */
void VB_M_TransposeStr(wchar_t** a, int r, int c, wchar_t** out);

/* Transposes in place: `a` becomes `cols` by `rows` in the block it has, which must hold that many cells. `a` is `r` by
   `c`, the result `c` by `r`. The forms ending in 2 write it over `a`.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; a target that is a plain table is prepared all the same */
void VB_M_Transpose2(double* a, int r, int c);

/* Transposes in place: `a` becomes `cols` by `rows` in the block it has, which must hold that many cells. `a` is `r` by
   `c`, the result `c` by `r`. The forms ending in 2 write it over `a`.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; a target that is a plain table is prepared all the same */
void VB_M_Transpose2Lng(int* a, int r, int c);

/* Transposes in place: `a` becomes `cols` by `rows` in the block it has, which must hold that many cells. `a` is `r` by
   `c`, the result `c` by `r`. The forms ending in 2 write it over `a`.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; a target that is a plain table is prepared all the same */
void VB_M_Transpose2Str(wchar_t** a, int r, int c);

/* From an array of columns to an array of columns, which must exist. `a` is `r` by `c`, the result `c` by `r`. The
   forms ending in 2 write it over `a`.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; a target that is a plain table is prepared all the same */
void VB_M_TransposeSPV(SAFEARRAY** a, int r, int c, SAFEARRAY** out);

/* ---- elementary/horizontal_merges ---- */

/* max(nA, nB) by 2. `out` has the size of the result, as given above, and may be one of the sources.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeVectors(double* a, int nA, double* b, int nB, double* out);

/* max(n, r) by c + 1, with `v` in the last column. `out` has the size of the result, as given above, and may be one of
   the sources.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTableVect(double* t, int r, int c, double* v, int n, double* out);

/* Writes `v` into column `c`, counted from 0, of the table as it is. A vector longer than the table runs into the next
   column. Opens `t` at max(r, n) by c + 1 over its r by c cells and writes `v` into the last column. The cells of `t`
   are taken in linear order, not moved to the new stride: with n above r and more than one column, the columns of `t`
   come back shifted. Cells beyond those of `t` become 0.0.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTableVect2(double* t, int r, int c, double* v, int n);

/* max(n, r) by c + 1, with `v` in the first column. `out` has the size of the result, as given above, and may be one of
   the sources.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeVectTable(double* v, int n, double* t, int r, int c, double* out);

/* max(n, r) by 2: `v` and one column of `t`. The two forms count `col` differently: from 1 where the vector is an
   array, from 0 where it is a table. `col` counts from 1.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeVectColDbl(double* v, int n, double* t, int r, int col, double* out);

/* max(r1, r2) by c1 + c2. Towards a `matrixInt` each double is truncated. `col` counts from 1.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out);

/* These write the result over the first array, which must be large enough for it.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesDbl2(double* a, int r1, int c1, double* b, int r2, int c2);

/* Columns c1 + 1 to c1 + c2 of `a`, of `r1` rows each, take the columns of `b`, as far as they have rows.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesDbl2SPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2);

/* Columns c1 + 1 to c1 + c2 of `a`, of `r1` rows each, take the columns of `b`, as far as they have rows.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesDbl2SPV2(SAFEARRAY** a, int r1, int c1, SAFEARRAY** b, int r2, int c2);

/* These write the result over the first array, which must be large enough for it.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesLng2(int* a, int r1, int c1, int* b, int r2, int c2);

/* max(r1, r2) by c1 + c2. Towards a `matrixInt` each double is truncated. Every entry of the result is -1 or 0.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesBool(short* a, int r1, int c1, short* b, int r2, int c2, short* out);

/* These write the result over the first array, which must be large enough for it.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesBool2(short* a, int r1, int c1, short* b, int r2, int c2);

/* max(r1, r2) by c1 + c2. Towards a `matrixInt` each double is truncated. Every entry of the result is -1 or 0.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesStr(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2, wchar_t** out);

/* These write the result over the first array, which must be large enough for it.
   - Missing cells: copied unchanged; towards ints it becomes the lowest int
   - Empty input: an empty side adds no column or leaves 0.0 (0, an empty string) in a new result */
void VB_HMergeTablesStr2(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2);

/* ---- elementary/vertical_merges ---- */

/* nA + nB by 1. `out` has the size of the result, as given above, and may be one of the sources.
   - Missing cells: copied unchanged
   - Empty input: an empty side adds nothing */
void VB_VMergeVectorsDbl(double* a, int nA, double* b, int nB, double* out);

/* Appends `b` to `a` from position nA, counted from 0, as far as the table `a` goes. These write the result over the
   first array, which must have nA + nB elements. The whole result goes back: every Boolean becomes -1 or 0, every
   string a new BSTR.
   - Missing cells: copied unchanged
   - Empty input: an empty side adds nothing */
void VB_VMergeVectorsDbl2(double* a, int nA, double* b, int nB);

/* nA + nB by 1. `out` has the size of the result, as given above, and may be one of the sources.
   - Missing cells: copied unchanged
   - Empty input: an empty side adds nothing */
void VB_VMergeVectorsStr(wchar_t** a, int nA, wchar_t** b, int nB, wchar_t** out);

/* Appends `b` to `a` from position nA, counted from 0, as far as the table `a` goes. These write the result over the
   first array, which must have nA + nB elements. The whole result goes back: every Boolean becomes -1 or 0, every
   string a new BSTR.
   - Missing cells: copied unchanged
   - Empty input: an empty side adds nothing */
void VB_VMergeVectorsStr2(wchar_t** a, int nA, wchar_t** b, int nB);

/* The same for tables that hold Booleans. These write the result over the first array, which must have nA + nB
   elements. The whole result goes back: every Boolean becomes -1 or 0, every string a new BSTR.
   - Missing cells: Booleans are never missing
   - Empty input: an empty side adds nothing */
void VB_VMergeVectorsBool2(short* a, int nA, short* b, int nB);

/* r1 + r2 by max(c1, c2). `out` has the size of the result, as given above, and may be one of the sources.
   - Missing cells: copied unchanged
   - Empty input: an empty side adds nothing */
void VB_VMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out);

/* r1 + r2 by max(c1, c2). `out` has the size of the result, as given above, and may be one of the sources.
   - Missing cells: copied unchanged
   - Empty input: an empty side adds nothing */
void Cpp_VMergeTablesDblSPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2, double* out);

/* ---- elementary/columns_and_rows ---- */

/* Copies `n` cells of column `col` into column `dstCol` of `dst`. With a nonzero `prepare`, `dst` is first prepared as
   `n` by `dstCol`: a table at least that large is kept, and its first n*dstCol cells are cleared. `src` has `n` rows
   and at least `col` columns; `dst` is `n` by `dstCol` and keeps its other columns unless `prepare` is nonzero, which
   clears them.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; `prepare` still applies */
void VB_CopyMatrixColToMatrixCol(double* src, int n, int col, double* dst, int dstCol, short prepare);

/* Prepares `v` as `n` by 1 and copies column `col` (of an array of columns: table `col`) into it. `src` has `n` rows
   and at least `col` columns; `dst` is `n` by `dstCol` and keeps its other columns unless `prepare` is nonzero, which
   clears them.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; `prepare` still applies */
void VB_CopyMatrixColToVector(double* src, int n, int col, double* v);

/* Copies `cols` cells of row `row` to row `dstRow`, each table with its own stride. Both numbers count from 0. With a
   nonzero `prepare`, `dst` is first prepared as `dstRows` by `cols`. `src` is `rows` by `cols`, `dst` `dstRows` by
   `cols`. Unlike in the function it calls, both numbers count from 1.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; `prepare` still applies */
void VB_CopyMatrixRowToMatrixRow(double* src, int rows, int cols, int row, double* dst, int dstRows, int dstRow,
                                 short prepare);

/* Copies column `col` into the first `n` cells of `out`, which is not prepared. `src` is `rows` by `cols`, `dst`
   `dstRows` by `cols`. Unlike in the function it calls, both numbers count from 1.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; `prepare` still applies */
void VB_CopyMatrixColToOneColMatStr(wchar_t** src, int n, int col, wchar_t** out);

/* Copies `n` cells of the columns `i` and `j` into columns 1 and 2 of `out`, which is not prepared. `a` is `n` by
   max(i, j), `out` `n` by 2.
   - Missing cells: copied unchanged
   - Empty input: nothing is copied; `prepare` still applies */
void Cpp_Extractij(double* a, int n, int i, int j, double* out);

/* ---- elementary/blocks ---- */

/* Copies rows r1 to r2 and columns c1 to c2 to the top left of `dst`; table 0 of an array of columns receives column
   c1. The form between two plain tables is in `sorting/copy_block.h`. `src` is `rows` by `cols`, in an array of columns
   of r2 rows; `dst` receives r2 - r1 + 1 rows and c2 - c1 + 1 columns. SPV2 writes an array of columns, SPV2_T a
   triangle of c2 - c1 + 1 columns.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void VB_M_CopyBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst);

/* Copies rows r1 to r2 and columns c1 to c2 to the top left of `dst`; table 0 of an array of columns receives column
   c1. The form between two plain tables is in `sorting/copy_block.h`. `src` is `rows` by `cols`, in an array of columns
   of r2 rows; `dst` receives r2 - r1 + 1 rows and c2 - c1 + 1 columns. SPV2 writes an array of columns, SPV2_T a
   triangle of c2 - c1 + 1 columns.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void VB_M_CopyBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst);

/* Copies rows r1 to r2 and columns c1 to c2 to the top left of `dst`; table 0 of an array of columns receives column
   c1. The form between two plain tables is in `sorting/copy_block.h`. `src` is `rows` by `cols`, in an array of columns
   of r2 rows; `dst` receives r2 - r1 + 1 rows and c2 - c1 + 1 columns. SPV2 writes an array of columns, SPV2_T a
   triangle of c2 - c1 + 1 columns.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void VB_M_CopyBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2, wchar_t** dst);

/* `src` is `rows` by `cols`, in an array of columns of r2 rows; `dst` receives r2 - r1 + 1 rows and c2 - c1 + 1
   columns. SPV2 writes an array of columns, SPV2_T a triangle of c2 - c1 + 1 columns.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_CopyBlockSPV2(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst);

/* The same from full columns to a triangle: the two triangles of the block fold onto each other. `src` is `rows` by
   `cols`, in an array of columns of r2 rows; `dst` receives r2 - r1 + 1 rows and c2 - c1 + 1 columns. SPV2 writes an
   array of columns, SPV2_T a triangle of c2 - c1 + 1 columns.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_CopyBlockSPV2_T(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst);

/* Copies `rows` by `cols` cells from (srcRow, srcCol) to (dstRow, dstCol). The forms differ in storage: SPV reads an
   array of columns, SPV2 writes one, SPV3 does both; SPV2_T and SPV3_T write a triangle. Whole tables of `rows` by
   `cols`. The numbers in these names are not those of the functions they call: SPV is `M_DuplicateSPV`, SPV2 is
   `M_DuplicateSPV3`, SPV2_T is `M_DuplicateSPV3_T` towards a triangle of `cols` columns, SPV3 is `M_DuplicateSPV2`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_DuplicateDblSPV(SAFEARRAY** src, int rows, int cols, double* dst);

/* Copies `rows` by `cols` cells from (srcRow, srcCol) to (dstRow, dstCol). The forms differ in storage: SPV reads an
   array of columns, SPV2 writes one, SPV3 does both; SPV2_T and SPV3_T write a triangle. Whole tables of `rows` by
   `cols`. The numbers in these names are not those of the functions they call: SPV is `M_DuplicateSPV`, SPV2 is
   `M_DuplicateSPV3`, SPV2_T is `M_DuplicateSPV3_T` towards a triangle of `cols` columns, SPV3 is `M_DuplicateSPV2`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_DuplicateDblSPV2(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);

/* Copies `rows` by `cols` cells from (srcRow, srcCol) to (dstRow, dstCol). The forms differ in storage: SPV reads an
   array of columns, SPV2 writes one, SPV3 does both; SPV2_T and SPV3_T write a triangle. Whole tables of `rows` by
   `cols`. The numbers in these names are not those of the functions they call: SPV is `M_DuplicateSPV`, SPV2 is
   `M_DuplicateSPV3`, SPV2_T is `M_DuplicateSPV3_T` towards a triangle of `cols` columns, SPV3 is `M_DuplicateSPV2`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_DuplicateDblSPV2_T(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);

/* Copies `rows` by `cols` cells from (srcRow, srcCol) to (dstRow, dstCol). The forms differ in storage: SPV reads an
   array of columns, SPV2 writes one, SPV3 does both; SPV2_T and SPV3_T write a triangle. Whole tables of `rows` by
   `cols`. The numbers in these names are not those of the functions they call: SPV is `M_DuplicateSPV`, SPV2 is
   `M_DuplicateSPV3`, SPV2_T is `M_DuplicateSPV3_T` towards a triangle of `cols` columns, SPV3 is `M_DuplicateSPV2`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_DuplicateDblSPV3(double* src, int rows, int cols, SAFEARRAY** dst);

/* Copies whole columns of strings. Whole tables of `rows` by `cols`. The numbers in these names are not those of the
   functions they call: SPV is `M_DuplicateSPV`, SPV2 is `M_DuplicateSPV3`, SPV2_T is `M_DuplicateSPV3_T` towards a
   triangle of `cols` columns, SPV3 is `M_DuplicateSPV2`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void VB_M_DuplicateStrSPV(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);

/* The same, to (row, col) of `dst`. `src` is `rows` by `cols` (r2 rows in c2 columns), `dst` is dstRows by dstCols and
   keeps its cells outside the block. The source is read before anything is written, so that both may be one array. The
   string form stores new BSTRs in every element of `dst`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_CopyPasteBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst, int dstRows,
                          int dstCols, int row, int col);

/* The same, to (row, col) of `dst`. `src` is `rows` by `cols` (r2 rows in c2 columns), `dst` is dstRows by dstCols and
   keeps its cells outside the block. The source is read before anything is written, so that both may be one array. The
   string form stores new BSTRs in every element of `dst`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_CopyPasteBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst, int dstRows, int dstCols,
                             int row, int col);

/* The same, to (row, col) of `dst`. `src` is `rows` by `cols` (r2 rows in c2 columns), `dst` is dstRows by dstCols and
   keeps its cells outside the block. The source is read before anything is written, so that both may be one array. The
   string form stores new BSTRs in every element of `dst`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void Cpp_M_CopyPasteBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2, wchar_t** dst,
                             int dstRows, int dstCols, int row, int col);

/* Cell (i, j) goes to (row + i - 1, col + j - 1). `src` is `rows` by `cols` (r2 rows in c2 columns), `dst` is dstRows
   by dstCols and keeps its cells outside the block. The source is read before anything is written, so that both may be
   one array. The string form stores new BSTRs in every element of `dst`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void VB_M_PasteBlock(double* src, int rows, int cols, double* dst, int dstRows, int dstCols, int row, int col);

/* Cell (i, j) goes to (row + i - 1, col + j - 1). `src` is `rows` by `cols` (r2 rows in c2 columns), `dst` is dstRows
   by dstCols and keeps its cells outside the block. The source is read before anything is written, so that both may be
   one array. The string form stores new BSTRs in every element of `dst`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void VB_M_PasteBlockLng(int* src, int rows, int cols, int* dst, int dstRows, int dstCols, int row, int col);

/* Cell (i, j) goes to (i, j), each table with its own stride. `src` is `rows` by `cols` (r2 rows in c2 columns), `dst`
   is dstRows by dstCols and keeps its cells outside the block. The source is read before anything is written, so that
   both may be one array. The string form stores new BSTRs in every element of `dst`.
   - Missing cells: copied unchanged
   - Empty input: an empty block or range copies nothing */
void VB_M_CopyToBigger(double* src, int rows, int cols, double* dst, int dstRows, int dstCols);

/* ---- elementary/extraction ---- */

/* Rows `from` to `to` go to the top of `out`, over `cols` columns. `out` is not prepared. `out` has to - from + 1 rows
   (columns in the last form). `src` is `rows` by `cols`; in an array of columns, of which there are `cols`, each has at
   least `to` rows.
   - Missing cells: copied unchanged
   - Empty input: an empty range takes nothing; a `cols` of 0 is taken as 1 */
void VB_M_ExtractMatToMatDbl(double* src, int rows, int cols, int from, int to, double* out);

/* Rows `from` to `to` go to the top of `out`, over `cols` columns. `out` is not prepared. `out` has to - from + 1 rows
   (columns in the last form). `src` is `rows` by `cols`; in an array of columns, of which there are `cols`, each has at
   least `to` rows.
   - Missing cells: copied unchanged
   - Empty input: an empty range takes nothing; a `cols` of 0 is taken as 1 */
void VB_M_ExtractMatToMatDblSPV(SAFEARRAY** src, int cols, int from, int to, double* out);

/* Rows `from` to `to` go to the top of `out`, over `cols` columns. `out` is not prepared. `out` has to - from + 1 rows
   (columns in the last form). `src` is `rows` by `cols`; in an array of columns, of which there are `cols`, each has at
   least `to` rows.
   - Missing cells: copied unchanged
   - Empty input: an empty range takes nothing; a `cols` of 0 is taken as 1 */
void VB_M_ExtractMatToMatStr(wchar_t** src, int rows, int cols, int from, int to, wchar_t** out);

/* Rows `from` to `to` go to the top of `out`, over `cols` columns. `out` is not prepared. `out` has to - from + 1 rows
   (columns in the last form). `src` is `rows` by `cols`; in an array of columns, of which there are `cols`, each has at
   least `to` rows.
   - Missing cells: copied unchanged
   - Empty input: an empty range takes nothing; a `cols` of 0 is taken as 1 */
void VB_M_ExtractMatToMatStrSPV(SAFEARRAY** src, int cols, int from, int to, wchar_t** out);

/* Prepares `out` as `rows` by to - from + 1; columns `from` to `to` go to its left. `out` has to - from + 1 rows
   (columns in the last form). `src` is `rows` by `cols`; in an array of columns, of which there are `cols`, each has at
   least `to` rows.
   - Missing cells: copied unchanged
   - Empty input: an empty range takes nothing; a `cols` of 0 is taken as 1 */
void VB_M_ExtractMatToMatByColDbl(double* src, int rows, int from, int to, double* out);

/* Takes, from each of the `cols` string columns, `keep` cells from position `start` on, then skips `skip`, takes `keep`
   again, and so on. The strings go to the same column of `dst`, their positions in the source, as doubles, to
   `positions`, both from the first cell on. `nOut` is not used.  A run of cells also ends at cell `n`, and a column
   ends once `skip` cells after a run lie beyond `n`. So a column that ends on a run with `skip` 0 has one more run, of
   empty strings. With `keep` below 1 only cell `n` ends a run. Where the pattern would never end (`skip` below 0, or
   `keep` below 1 without a `skip`) it ends with the first run that leads no further than the one before. The columns of
   `src` have `n` cells, those of `dst` and the array `positions` nOut.
   - Missing cells: copied unchanged
   - Empty input: a `start` above `n` gives one run, of empty strings */
void Cpp_M_ExtractMatNeverySKSPV(SAFEARRAY** src, int n, int cols, int nOut, int keep, int skip, int start,
                                 SAFEARRAY** dst, double* positions);

/* ---- elementary/packing ---- */

/* Stacks the columns: cell (i, j), from 0, goes to position j*rows + i, with `rows` as given and not that of the table.
   - Missing cells: copied unchanged
   - Empty input: nothing is written */
void Cpp_MatToVect(double* a, int rows, int cols, double* v);

/* Unpacks columns of unequal length. Cell (i, j), from 0, takes the next cell of `v` while counts[j] is at least i + 1;
   otherwise it becomes missing, and `v` does not advance. `v` has the cells that the counts ask for, no more of them
   for a column than `rows`.
   - Missing cells: copied unchanged; a missing or NaN count makes its column missing
   - Empty input: nothing is written */
void Cpp_VectToMat(double* v, double* counts, int rows, int cols, double* out);

/* Packs the lower triangle by rows: row i gives cells (i, 1) to (i, i) in turn, n(n+1)/2 cells in all.
   - Missing cells: copied unchanged
   - Empty input: nothing is written */
void Cpp_M_CopySymMatToVector(double* a, int n, double* v);

/* The reverse: each cell of `v` goes to (i, j) and to (j, i).
   - Missing cells: copied unchanged
   - Empty input: nothing is written */
void Cpp_M_CopyVectorToSymMat(double* v, int n, double* a);

/* ---- elementary/removal ---- */

/* `out` receives the `rows` by `cols` cells of `a` without one column (row); all of them where there is no column (row)
   of that number. `a` is `rows` by `cols`; `out` has one column (row) less.
   - Missing cells: copied unchanged
   - Empty input: nothing happens */
void VB_M_RemoveCol(double* a, int rows, int cols, int col, double* out);

/* `out` receives the `rows` by `cols` cells of `a` without one column (row); all of them where there is no column (row)
   of that number. `a` is `rows` by `cols`; `out` has one column (row) less.
   - Missing cells: copied unchanged
   - Empty input: nothing happens */
void VB_M_RemoveRow(double* a, int rows, int cols, int row, double* out);

/* Exchanges two rows over `cols` columns. `a` is `rows` by `cols`; `out` has one column (row) less.
   - Missing cells: copied unchanged
   - Empty input: nothing happens */
void VB_M_MoveRow(double* a, int rows, int cols, int r1, int r2);

/* In place: the columns to + 1 to `cols` move left to start at `from`. The table keeps its shape, and the columns at
   its end keep their cells. `a` is `rows` by `cols`; `out` has one column (row) less.
   - Missing cells: copied unchanged
   - Empty input: nothing happens */
void VB_M_RemoveCols2(double* a, int rows, int cols, int from, int to);

/* In place: the rows to + 1 to `rows` move up to start at `from`. The table keeps its shape, and the rows at its end
   keep their cells. `a` is `rows` by `cols`; `out` has one column (row) less.
   - Missing cells: copied unchanged
   - Empty input: nothing happens */
void VB_M_RemoveRows2(double* a, int rows, int cols, int from, int to);

/* In place: the rows to + 1 to `rows` move up to start at `from`. The table keeps its shape, and the rows at its end
   keep their cells. `a` is `rows` by `cols`; `out` has one column (row) less.
   - Missing cells: copied unchanged
   - Empty input: nothing happens */
void Cpp_M_RemoveRowsStr2(wchar_t** a, int rows, int cols, int from, int to);

/* Remove the rows (columns) flagged 1: those flagged 0 go to the head of `out` in their order. Returns how many are
   removed.  `flags` is expected to hold 0 and 1: as many rows are removed as the flags sum to (the sum truncated), from
   the end of the rows sorted by their flags. A flag outside the table is -1.0. Where every row is to go, `out` is left
   unchanged. `flags` has an entry for each row (column); `out` is nOut by `cols` (`rows` by nOut) and takes what fits.
   Returns how many are removed.
   - Missing cells: copied unchanged; a missing flag of a `matrix` is left out of the sum of the flags
   - Empty input: 0 removed; `out` is left unchanged */
int VB_M_RemoveRowsInList(double* a, int rows, int cols, int* flags, int nOut, double* out);

/* Remove the rows (columns) flagged 1: those flagged 0 go to the head of `out` in their order. Returns how many are
   removed.  `flags` is expected to hold 0 and 1: as many rows are removed as the flags sum to (the sum truncated), from
   the end of the rows sorted by their flags. A flag outside the table is -1.0. Where every row is to go, `out` is left
   unchanged. `flags` has an entry for each row (column); `out` is nOut by `cols` (`rows` by nOut) and takes what fits.
   Returns how many are removed.
   - Missing cells: copied unchanged; a missing flag of a `matrix` is left out of the sum of the flags
   - Empty input: 0 removed; `out` is left unchanged */
int VB_M_RemoveColsInList(double* a, int rows, int cols, int* flags, int nOut, double* out);

/* ---- matrix ---- */

/* Square root. A NaN stays one.
   - Missing cells: the result for any `x` below 0.0, so the missing value gives itself */
double sqr2(double x);

/* ---- elementary/vector_sums ---- */

/* Sum of the cells. `V_Sum2` over an array.
   - Missing cells: left out (equality)
   - Empty input: 0.0 */
double VB_V_Sum2Dbl(double* x, int n);

/* Sum of the cells. Sum from the first element on, in 32 bits: it wraps on overflow.
   - Missing cells: ints are never missing
   - Empty input: 0 */
int VB_V_Sum2Lng(int* x, int n);

/* Sum of the 1-based elements `from` to `to`. `n` is not used: the caller provides `to` elements. A `from` below 1
   starts at the first element. The integer form wraps.
   - Missing cells: an ordinary number
   - Empty input: 0.0 (0) where `from` is above `to` */
double VB_V_SumFromTo(double* x, int n, int from, int to);

/* Sum of the 1-based elements `from` to `to`. `n` is not used: the caller provides `to` elements. A `from` below 1
   starts at the first element. The integer form wraps.
   - Missing cells: an ordinary number
   - Empty input: 0.0 (0) where `from` is above `to` */
int VB_V_SumFromToLng(int* x, int n, int from, int to);

/* Sum of w[i] x[i]. The functions of the same names.
   - Missing cells: left out, in the cell or in the weight (equality)
   - Mask: a nonzero entry excludes its cell; may be null
   - Weights: a zero or negative one counts like any other; null means 1.0 each
   - Empty input: 0.0 */
double VB_V_Sum(double* x, int n, short* mask, double* w);

/* Sum of squares: `V_Sq` of all cells, `V_SumSq` of the present ones. The functions of the same names.
   - Missing cells: left out (equality)
   - Empty input: 0.0 */
double VB_V_SumSq(double* x, int n);

/* Sum of w[i-1] x[i]^2. The weight is the one before the cell, on purpose: the first cell has none and counts with
   -1.0, and the last weight is not used. The functions of the same names.
   - Missing cells: left out (equality)
   - Weights: not tested; the weight of a cell is the one before its place, -1.0 for the first cell
   - Empty input: 0.0 */
double VB_V_SumSqW(double* x, int n, double* w);

/* Sum of (a[i] - b[i])^2, plain and with weights w[i], aligned with the cells. The functions of the same names.
   - Missing cells: an ordinary number
   - Empty input: 0.0 */
double VB_V_DiffSq(double* a, int n, double* b);

/* Sum of (a[i] - b[i])^2, plain and with weights w[i], aligned with the cells. The functions of the same names.
   - Missing cells: an ordinary number
   - Weights: not tested
   - Empty input: 0.0 */
double VB_V_DiffSqW(double* a, int n, double* b, double* w);

/* `V_DiffSq` over the 1-based cells `start` to `n`; a `start` below 1 starts at the first cell. The functions of the
   same names.
   - Missing cells: an ordinary number
   - Empty input: 0.0, also where `start` is above `n` */
double Cpp_V_DiffSqStart(double* a, int n, double* b, int start);

/* ---- elementary/vector_counts ---- */

/* Number of elements that are exactly -1. The two names are one function. Number of elements that are exactly -1. The
   two names are one function.
   - Missing cells: Booleans are never missing; only exactly -1 counts as true
   - Empty input: 0 */
int VB_V_NbTrue(short* x, int n);

/* Number of elements that are exactly -1. The two names are one function.
   - Missing cells: Booleans are never missing; only exactly -1 counts as true
   - Empty input: 0 */
int V_NbTrue(short* x, int n);

/* The same over the 1-based elements `from` to `to`. A `from` below 1 starts at the first element. `n` is not used: the
   caller provides `to` elements. The same over the 1-based elements `from` to `to`. A `from` below 1 starts at the
   first element. `n` is not used: the caller provides `to` elements.
   - Missing cells: Booleans are never missing; only exactly -1 counts as true
   - Empty input: 0, also where `from` is above `to` */
int VB_V_NbTrueFromTo(short* x, int n, int from, int to);

/* The same over the 1-based elements `from` to `to`. A `from` below 1 starts at the first element. `n` is not used: the
   caller provides `to` elements.
   - Missing cells: Booleans are never missing; only exactly -1 counts as true
   - Empty input: 0, also where `from` is above `to` */
int V_NbTrueFromTo(short* x, int from, int to);

/* -1 where one of the first `n` cells, in linear order, equals `val`, else 0. A cell beyond the table reads as -1, so
   -1 is found there. The same over an array of n elements.
   - Missing cells: ints are never missing
   - Empty input: 0 (not found) */
short Cpp_V_FindLng(int* x, int n, int val);

/* ---- elementary/vector_updates ---- */

/* Copies the n elements of `x` to `out` without the one at the 1-based `pos`, closing the gap: n - 1 elements are
   written, whatever `pos` is. Beyond the end it removes the last element, before the start the first. `out` may be `x`.
   - Missing cells: copied unchanged
   - Empty input: nothing happens */
void VB_V_RemoveVal(double* x, int n, int pos, double* out);

/* Adds `val` to each cell. The functions of the same names, over the caller's array.
   - Missing cells: stays missing (equality)
   - Mask: a nonzero entry does not protect its cell: it makes it missing
   - Empty input: nothing happens */
void VB_V_PlusVal(double* x, int n, double val, short* mask);

/* Adds `val` to each cell. The functions of the same names, over the caller's array.
   - Missing cells: stays missing (equality)
   - Empty input: nothing happens */
void VB_V_PlusVal2(double* x, int n, double val);

/* Scale in place. `V_Norm` divides each cell by the root of the sum of squares S; `V_NormToVal` multiplies each by the
   root of val/S, which makes `val` the sum of squares. S is that of `V_SumSq`, in the `W` forms that of `V_SumSqW`. The
   functions of the same names, over the caller's array.
   - Missing cells: left out of the sum of squares (equality), but scaled like the others: it is no longer missing
   - Divisor: S (its root), not guarded against 0
   - Empty input: nothing happens */
void VB_V_Norm(double* x, int n);

/* Scale in place. `V_Norm` divides each cell by the root of the sum of squares S; `V_NormToVal` multiplies each by the
   root of val/S, which makes `val` the sum of squares. S is that of `V_SumSq`, in the `W` forms that of `V_SumSqW`. The
   functions of the same names, over the caller's array.
   - Missing cells: left out of the sum of squares (equality), but scaled like the others: it is no longer missing
   - Divisor: S (its root), not guarded against 0
   - Empty input: nothing happens */
void VB_V_NormToVal(double* x, int n, double val);

/* Scale in place. `V_Norm` divides each cell by the root of the sum of squares S; `V_NormToVal` multiplies each by the
   root of val/S, which makes `val` the sum of squares. S is that of `V_SumSq`, in the `W` forms that of `V_SumSqW`. The
   functions of the same names, over the caller's array.
   - Missing cells: left out of the sum of squares (equality), but scaled like the others: it is no longer missing
   - Weights: not tested; the weight of a cell is the one before its place, -1.0 for the first cell
   - Divisor: S (its root), not guarded against 0 or below
   - Empty input: nothing happens */
void VB_V_NormW(double* x, int n, double* w);

/* Scale in place. `V_Norm` divides each cell by the root of the sum of squares S; `V_NormToVal` multiplies each by the
   root of val/S, which makes `val` the sum of squares. S is that of `V_SumSq`, in the `W` forms that of `V_SumSqW`. The
   functions of the same names, over the caller's array.
   - Missing cells: left out of the sum of squares (equality), but scaled like the others: it is no longer missing
   - Weights: not tested; the weight of a cell is the one before its place, -1.0 for the first cell
   - Divisor: S (its root), not guarded against 0 or below
   - Empty input: nothing happens */
void VB_V_NormToValW(double* x, int n, double val, double* w);

/* Copies `x` to `out`, which may be `x`, with `to` in place of each cell that equals `from` exactly. `V_ReplaceVal` to
   an array of its own, and over the source.
   - Missing cells: replaced where it equals `from`, like any value
   - Empty input: nothing happens */
void VB_V_ReplaceVal(double* x, int n, double from, double to, double* out);

/* `V_ReplaceVal` to an array of its own, and over the source.
   - Missing cells: replaced where it equals `from`, like any value
   - Empty input: nothing happens */
void VB_V_ReplaceVal2(double* x, int n, double from, double to);

/* ---- elementary/extremes ---- */

/* The extreme of the cells that qualify. The functions of the same names.
   - Missing cells: left out (equality); ints are never missing
   - Mask: a nonzero entry excludes its cell; required
   - Empty input: -1.0; where no cell qualifies the missing value */
double VB_V_Min(double* x, int n, short* mask);

/* The extreme of the cells that qualify. The functions of the same names.
   - Missing cells: left out (equality); ints are never missing
   - Mask: a nonzero entry excludes its cell; may be null, unlike in `V_Min`
   - Empty input: -1.0; where no cell qualifies the missing value */
double VB_V_Max(double* x, int n, short* mask);

/* The same without a mask. The maximum of ints is an int, unlike its twins. `V_Min` and `V_Max` with a mask that keeps
   everything; the forms over ints truncate the result.
   - Missing cells: left out (equality); ints are never missing
   - Empty input: -1.0 (-1); where no cell qualifies the missing value */
double VB_V_Min2(double* x, int n);

/* The same without a mask. The maximum of ints is an int, unlike its twins. `V_Min` and `V_Max` with a mask that keeps
   everything; the forms over ints truncate the result.
   - Missing cells: left out (equality); ints are never missing
   - Empty input: -1.0 (-1); where no cell qualifies the missing value */
double VB_V_Max2(double* x, int n);

/* The same without a mask. The maximum of ints is an int, unlike its twins. `V_Min` and `V_Max` with a mask that keeps
   everything; the forms over ints truncate the result.
   - Missing cells: ints are never missing
   - Empty input: -1 */
int VB_V_Min2Lng(int* x, int n);

/* The same without a mask. The maximum of ints is an int, unlike its twins. `V_Min` and `V_Max` with a mask that keeps
   everything; the forms over ints truncate the result.
   - Missing cells: ints are never missing
   - Empty input: -1 */
int VB_V_Max2Lng(int* x, int n);

/* `V_Max` over ints, truncated.
   - Missing cells: ints are never missing
   - Mask: a nonzero entry excludes its cell
   - Empty input: -1; where every cell is excluded the lowest int */
int VB_V_MaxInt(int* x, int n, short* mask);

/* Extreme with its 1-based position, the first of equal cells. The functions of the same names.
   - Missing cells: an ordinary number: it wins the minimum
   - Empty input: -1.0, position 1 */
double VB_V_MinAndMinPos(double* x, int n, int* pos);

/* Extreme with its 1-based position, the first of equal cells. The functions of the same names.
   - Missing cells: an ordinary number: it wins the minimum
   - Empty input: -1.0, position 1 */
double VB_V_MaxAndMaxPos(double* x, int n, int* pos);

/* Both extremes of the same cells in one call. The functions of the same names.
   - Missing cells: left out (equality); ints are never missing
   - Mask: a nonzero entry excludes its cell; required
   - Empty input: the missing value in both, not -1.0; also where no cell qualifies */
void VB_V_MinMax(double* x, int n, double* min, double* max, short* mask);

/* Both extremes of the same cells in one call. The functions of the same names.
   - Missing cells: left out (equality); ints are never missing
   - Mask: a nonzero entry excludes its cell; required
   - Empty input: the missing value in both, not -1.0; also where no cell qualifies */
void VB_V_MinMaxLng(int* x, int n, double* min, double* max, short* mask);

/* ---- elementary/conditional_aggregates ---- */

/* Sum, largest and smallest of the selected cells. The searches for an extreme skip NaNs and start at the missing value
   and its positive twin: a cell at or beyond these is not found. The functions of the same names; the count over ints
   is an int.
   - Missing cells: left out, in the cell or in the key (equality); ints are never missing
   - Empty input: the missing value, not 0.0; also where no cell is selected */
double VB_V_SumIf(double* x, int n, double* key, double val);

/* Sum of w[i] x[i] over the cells that `V_SumIf` takes. The functions of the same names; the count over ints is an int.
   - Missing cells: left out, in the cell or in the key (equality)
   - Weights: a row whose weight is not above 0, or is beyond its table, is left out
   - Empty input: the missing value, not 0.0; also where no cell is selected */
double VB_V_SumIfW(double* x, int n, double* key, double* w, double val);

/* Sum, largest and smallest of the selected cells. The searches for an extreme skip NaNs and start at the missing value
   and its positive twin: a cell at or beyond these is not found. The functions of the same names; the count over ints
   is an int.
   - Missing cells: left out, in the cell or in the key (equality); ints are never missing
   - Empty input: the missing value, not 0.0; also where no cell is selected */
double VB_V_MaxIf(double* x, int n, double* key, double val);

/* Sum, largest and smallest of the selected cells. The searches for an extreme skip NaNs and start at the missing value
   and its positive twin: a cell at or beyond these is not found. The functions of the same names; the count over ints
   is an int.
   - Missing cells: left out, in the cell or in the key (equality); ints are never missing
   - Empty input: the missing value, not 0.0; also where no cell is selected */
double VB_V_MinIf(double* x, int n, double* key, double val);

/* Number of cells equal to `val`. The functions of the same names; the count over ints is an int.
   - Missing cells: matched and counted like any value
   - Empty input: 0 */
double VB_V_NbIf(double* x, int n, double val);

/* Number of cells equal to `val`. The functions of the same names; the count over ints is an int.
   - Missing cells: matched and counted like any value
   - Empty input: 0 */
int VB_V_NbIfLng(int* x, int n, int val);

/* Sum of the weights at the cells equal to `val`. The functions of the same names; the count over ints is an int.
   - Missing cells: matched like any value
   - Weights: one that is not above 0, or is beyond its table, adds nothing
   - Empty input: 0.0, also where nothing is added */
double VB_V_NbIfW(double* x, int n, double* w, double val);

/* ---- sorting/sort_apply ---- */

/* Cell (i, j) of `out` takes cell (order[i], j) of `source`, for `nRows` rows and `nCols` columns. `out` is prepared
   with `matCheck` and must be another table than `source`. Ints are widened; doubles are truncated towards zero, those
   outside the range of int to the lowest int. Flat forms over column-major arrays of `nRows` by `nCols` and an order of
   `nRows`. The forms with a 2 work in place. The result may share memory with the source and the order, which are then
   copied first. Strings are stored as new BSTRs in every cell; the old ones are not released.
   - Missing cells: moved like any other; where doubles become ints it becomes the lowest int; a missing order is a row
     out of range
   - Empty input: nothing is written */
void VB_SortApply(double* source, int nRows, int nCols, double* order, double* out);

/* The same in place: all rows are read before the first is written. Flat forms over column-major arrays of `nRows` by
   `nCols` and an order of `nRows`. The forms with a 2 work in place. The result may share memory with the source and
   the order, which are then copied first. Strings are stored as new BSTRs in every cell; the old ones are not released.
   - Missing cells: moved like any other; where doubles become ints it becomes the lowest int; a missing order is a row
     out of range
   - Empty input: nothing is written */
void VB_SortApply2(double* table, int nRows, int nCols, double* order);

/* Cell (i, j) of `out` takes cell (order[i], j) of `source`, for `nRows` rows and `nCols` columns. `out` is prepared
   with `matCheck` and must be another table than `source`. Ints are widened; doubles are truncated towards zero, those
   outside the range of int to the lowest int. Flat forms over column-major arrays of `nRows` by `nCols` and an order of
   `nRows`. The forms with a 2 work in place. The result may share memory with the source and the order, which are then
   copied first. Strings are stored as new BSTRs in every cell; the old ones are not released.
   - Missing cells: moved like any other; where doubles become ints it becomes the lowest int; a missing order is a row
     out of range
   - Empty input: nothing is written */
void VB_SortApplyLng(int* source, int nRows, int nCols, double* order, int* out);

/* The same in place: all rows are read before the first is written. Flat forms over column-major arrays of `nRows` by
   `nCols` and an order of `nRows`. The forms with a 2 work in place. The result may share memory with the source and
   the order, which are then copied first. Strings are stored as new BSTRs in every cell; the old ones are not released.
   - Missing cells: moved like any other; where doubles become ints it becomes the lowest int; a missing order is a row
     out of range
   - Empty input: nothing is written */
void VB_SortApply2Lng(int* table, int nRows, int nCols, double* order);

/* The same for strings; `out` must exist, is not prepared and is another table than `source`. Flat forms over
   column-major arrays of `nRows` by `nCols` and an order of `nRows`. The forms with a 2 work in place. The result may
   share memory with the source and the order, which are then copied first. Strings are stored as new BSTRs in every
   cell; the old ones are not released.
   - Missing cells: moved like any other; where doubles become ints it becomes the lowest int; a missing order is a row
     out of range
   - Empty input: nothing is written */
void VB_SortApplyStr(wchar_t** source, int nRows, int nCols, double* order, wchar_t** out);

/* The same in place: all rows are read before the first is written. Flat forms over column-major arrays of `nRows` by
   `nCols` and an order of `nRows`. The forms with a 2 work in place. The result may share memory with the source and
   the order, which are then copied first. Strings are stored as new BSTRs in every cell; the old ones are not released.
   - Missing cells: moved like any other; where doubles become ints it becomes the lowest int; a missing order is a row
     out of range
   - Empty input: nothing is written */
void VB_SortApply2Str(wchar_t** table, int nRows, int nCols, double* order);

/* ---- sorting/ranks ---- */

/* The rank of each of the `n` elements of `x`, in the order of `x`. `ranks` is prepared with `matCheck`. Flat forms
   over vectors of `n`. The results are in `ranks` and `tieSizes`; all other arrays are left unchanged.
   - Missing cells: an ordinary value, the smallest: missing elements share rank 1
   - Empty input: no rank is written
   - Memory: at most four vectors of scratch; nothing is written before everything is read */
void VB_V_GetRanksDbl(double* x, int n, double* ranks);

/* The rank of each of the `n` elements of `x`, in the order of `x`. `ranks` is prepared with `matCheck`. Flat forms
   over vectors of `n`. The results are in `ranks` and `tieSizes`; all other arrays are left unchanged.
   - Missing cells: an ordinary value, the smallest: missing elements share rank 1
   - Empty input: no rank is written
   - Memory: at most four vectors of scratch; nothing is written before everything is read */
void VB_V_GetRanksLng(double* x, int n, int* ranks);

/* Ranks with tied values at a weighted mean of their places.  A run of ties begins where an element differs from its
   sorted predecessor by less than 1e-15, and goes on while the next differs from the run's first by less than that. Its
   rank is the sum of place times weight over the sum of weights. The element after a run is compared with the run's
   last; where the two differ by less than 1e-15 they begin a run of their own, which starts from the rank that the last
   has by then.  `ranks` must hold `n` rows and is not prepared. `*nTies` is the number of runs and `tieSizes`, prepared
   with `matCheck` to `n` rows, holds their lengths from the lowest value up, then 0.0. Flat forms over vectors of `n`.
   The results are in `ranks` and `tieSizes`; all other arrays are left unchanged.
   - Missing cells: its rank is missing, and it takes up no place (equality); recognised only at the head of the sorted
     values, so not after a value below the missing one
   - Weights: weight the places of a run, but its first element takes the weight of the smallest element of all (in
     input order the first of its ties, missing ones included) and not its own; 0 is a weight like any other. Equal
     weights give the mean of the places
   - Divisor: the sum of the weights of a run, not guarded against 0
   - Empty input: 0 ties
   - Memory: at most four vectors of scratch; nothing is written before everything is read */
void VB_V_GetRanksTiesDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes);

/* Ranks with tied values at the lowest of their places. A run is one of equal values, without a tolerance. `ranks` and
   `tieSizes` must exist and are not prepared: what `tieSizes` holds after the `*nTies` lengths stays. Flat forms over
   vectors of `n`. The results are in `ranks` and `tieSizes`; all other arrays are left unchanged.
   - Missing cells: its rank is missing, and it takes up no place (equality)
   - Weights: have no effect
   - Empty input: 0 ties
   - Memory: at most four vectors of scratch; nothing is written before everything is read */
void VB_V_GetRanksTiesIntDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes);

/* -1 if the `n` elements ascend, otherwise 0. `strict` exactly -1 forbids equal neighbours; any other value allows
   them. A NaN passes either test. Flat forms over vectors of `n`. The results are in `ranks` and `tieSizes`; all other
   arrays are left unchanged.
   - Missing cells: compared like a number
   - Empty input: -1 (true), also for a single element
   - Memory: at most four vectors of scratch; nothing is written before everything is read */
short VB_V_IsSorted(double* x, int n, short strict);

/* The step of an evenly spaced series of `n` times: the second minus the first, or the missing value if any later step
   differs from that one by more than 1e-6. `sorted` exactly -1 sorts a private copy first; any other value takes the
   order given. Flat forms over vectors of `n`. The results are in `ranks` and `tieSizes`; all other arrays are left
   unchanged.
   - Missing cells: an ordinary number
   - Empty input: cells that are not there read -1.0, also the second of a single one
   - Memory: at most four vectors of scratch; nothing is written before everything is read */
double VB_V_TimeIntervalSize(double* t, int n, short sorted);

/* ---- sorting/sort ---- */

/* Sort elements `first` to `last` of a vector of `n` in place. A table is taken in linear order. Vectors of `n`; in the
   string form any `descending` but 0 is descending.
   - Missing cells: the smallest, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first` changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQVectorDbl(double* x, int n, int first, int last, short descending);

/* Sort elements `first` to `last` of a vector of `n` in place. A table is taken in linear order. Vectors of `n`; in the
   string form any `descending` but 0 is descending.
   - Missing cells: the smallest, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first` changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQVectorLng(int* x, int n, int first, int last, short descending);

/* Sort elements `first` to `last` of a vector of `n` in place. A table is taken in linear order. Vectors of `n`; in the
   string form any `descending` but 0 is descending.
   - Missing cells: the smallest, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first` changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQVectorStr(wchar_t** x, int n, int first, int last, short descending);

/* Sort rows `first` to `last` by column `col`, 1-based; the first `nCols` columns move. Tables of `nRows` by `nCols`,
   by one column of their own.
   - Missing cells: the smallest of a key column, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first`, or no rows, changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQMatrixCol(double* table, int nRows, int nCols, int col, int first, int last, short descending);

/* Sort rows `first` to `last` by column `col`, 1-based; the first `nCols` columns move. Tables of `nRows` by `nCols`,
   by one column of their own.
   - Missing cells: the smallest of a key column, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first`, or no rows, changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQMatrixColStr(wchar_t** table, int nRows, int nCols, int col, int first, int last, short descending);

/* Sort rows 1 to `nRows` ascending by every column in turn, each sort keeping the order of the one before where it
   ties. `lastToFirst` exactly -1 goes from the last column to the first, so that the first is the major key and the
   order lexicographic; any other value goes from the first to the last, which then is the major key. By all columns in
   turn; by columns `firstCol` to `lastCol`, in the caller's array itself.
   - Missing cells: the smallest of a key column, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first`, or no rows, changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortMatrixSeqQDbl(double* table, int nRows, int nCols, short lastToFirst);

/* Sort rows 1 to `nRows` ascending by every column in turn, each sort keeping the order of the one before where it
   ties. `lastToFirst` exactly -1 goes from the last column to the first, so that the first is the major key and the
   order lexicographic; any other value goes from the first to the last, which then is the major key. By all columns in
   turn; by columns `firstCol` to `lastCol`, in the caller's array itself.
   - Missing cells: the smallest of a key column, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first`, or no rows, changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortMatrixSeqQLng(int* table, int nRows, int nCols, short lastToFirst);

/* The same by columns `firstCol` to `lastCol` only, 1-based; all `nCols` columns move. By all columns in turn; by
   columns `firstCol` to `lastCol`, in the caller's array itself.
   - Missing cells: the smallest of a key column, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first`, or no rows, changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortMatrixSeqQP1toP2Dbl(double* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst);

/* The same by columns `firstCol` to `lastCol` only, 1-based; all `nCols` columns move. By all columns in turn; by
   columns `firstCol` to `lastCol`, in the caller's array itself.
   - Missing cells: the smallest of a key column, as the empty string is: first ascending, last descending
   - Empty input: a `last` below `first`, or no rows, changes nothing
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortMatrixSeqQP1toP2Lng(int* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst);

/* Rearrange the rows of `data` (over its `nCols` columns) and of `companion` (over `nCompanionCols`) in the order of
   `key`, element i of which belongs to row i. `writeKeys` exactly -1 writes the sorted keys back into elements `first`
   to `last`; any other value leaves `key` unchanged, out of step with the rows. `nRows` is not used: the stride of a
   table is its own. `matrix**` and `Smatrix**` are arrays of column tables.  Integer keys are compared as doubles and
   come back unchanged. `SortQ`: data `nRows` by `nCols`, `nRows` keys, companion `nRows` by `nCompanionCols`. As 0
   counts as 1 in both column counts, there is always a companion and it is always rearranged. In order: doubles by
   doubles, doubles by ints, ints by ints, Booleans by doubles (every true cell comes back as -1), strings by doubles.
   - Missing cells: the smallest key, as the empty string is: first ascending, last descending; data moves like any
     other
   - Empty input: a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                int nCompanionCols, short descending, short writeKeys);

/* `SortQ`: data `nRows` by `nCols`, `nRows` keys, companion `nRows` by `nCompanionCols`. As 0 counts as 1 in both
   column counts, there is always a companion and it is always rearranged. In order: doubles by doubles, doubles by
   ints, ints by ints, Booleans by doubles (every true cell comes back as -1), strings by doubles.
   - Missing cells: the smallest key, as the empty string is: first ascending, last descending; data moves like any
     other
   - Empty input: a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQDbl2(double* data, int nRows, int nCols, int first, int last, int* key, double* companion,
                 int nCompanionCols, short descending, short writeKeys);

/* Rearrange the rows of `data` (over its `nCols` columns) and of `companion` (over `nCompanionCols`) in the order of
   `key`, element i of which belongs to row i. `writeKeys` exactly -1 writes the sorted keys back into elements `first`
   to `last`; any other value leaves `key` unchanged, out of step with the rows. `nRows` is not used: the stride of a
   table is its own. `matrix**` and `Smatrix**` are arrays of column tables.  Integer keys are compared as doubles and
   come back unchanged. `SortQ`: data `nRows` by `nCols`, `nRows` keys, companion `nRows` by `nCompanionCols`. As 0
   counts as 1 in both column counts, there is always a companion and it is always rearranged. In order: doubles by
   doubles, doubles by ints, ints by ints, Booleans by doubles (every true cell comes back as -1), strings by doubles.
   - Missing cells: the smallest key, as the empty string is: first ascending, last descending; data moves like any
     other
   - Empty input: a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQLng(int* data, int nRows, int nCols, int first, int last, int* key, int* companion, int nCompanionCols,
                short descending, short writeKeys);

/* Rearrange the rows of `data` (over its `nCols` columns) and of `companion` (over `nCompanionCols`) in the order of
   `key`, element i of which belongs to row i. `writeKeys` exactly -1 writes the sorted keys back into elements `first`
   to `last`; any other value leaves `key` unchanged, out of step with the rows. `nRows` is not used: the stride of a
   table is its own. `matrix**` and `Smatrix**` are arrays of column tables.  Integer keys are compared as doubles and
   come back unchanged. `SortQ`: data `nRows` by `nCols`, `nRows` keys, companion `nRows` by `nCompanionCols`. As 0
   counts as 1 in both column counts, there is always a companion and it is always rearranged. In order: doubles by
   doubles, doubles by ints, ints by ints, Booleans by doubles (every true cell comes back as -1), strings by doubles.
   - Missing cells: the smallest key, as the empty string is: first ascending, last descending; data moves like any
     other
   - Empty input: a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQBool(short* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                 int nCompanionCols, short descending, short writeKeys);

/* Rearrange the rows of `data` (over its `nCols` columns) and of `companion` (over `nCompanionCols`) in the order of
   `key`, element i of which belongs to row i. `writeKeys` exactly -1 writes the sorted keys back into elements `first`
   to `last`; any other value leaves `key` unchanged, out of step with the rows. `nRows` is not used: the stride of a
   table is its own. `matrix**` and `Smatrix**` are arrays of column tables.  Integer keys are compared as doubles and
   come back unchanged. `SortQ`: data `nRows` by `nCols`, `nRows` keys, companion `nRows` by `nCompanionCols`. As 0
   counts as 1 in both column counts, there is always a companion and it is always rearranged. In order: doubles by
   doubles, doubles by ints, ints by ints, Booleans by doubles (every true cell comes back as -1), strings by doubles.
   - Missing cells: the smallest key, as the empty string is: first ascending, last descending; data moves like any
     other
   - Empty input: a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQStr(wchar_t** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                int nCompanionCols, short descending, short writeKeys);

/* Rearranges whole columns `first` to `last` of `data` (`nRows` high) and `companion` (`nCompanionRows` high) in the
   order of `key`, element j of which belongs to column j. `writeKeys` as in `SortQ`; `nCols` is not used. `SortQByCol`:
   data `nRows` by `nCols`, `nCols` keys, companion `nCompanionRows` by `nCols`; 0 counts as 1 in both row counts.
   - Missing cells: the smallest key, as the empty string is: first ascending, last descending; data moves like any
     other
   - Empty input: a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQByColDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                     int nCompanionRows, short descending, short writeKeys);

/* Rearrange the rows of `data` (over its `nCols` columns) and of `companion` (over `nCompanionCols`) in the order of
   `key`, element i of which belongs to row i. `writeKeys` exactly -1 writes the sorted keys back into elements `first`
   to `last`; any other value leaves `key` unchanged, out of step with the rows. `nRows` is not used: the stride of a
   table is its own. `matrix**` and `Smatrix**` are arrays of column tables.  Integer keys are compared as doubles and
   come back unchanged. The same with the data an array of `nCols` columns of `nRows`: numbers are rearranged in place,
   strings saved back.
   - Missing cells: the smallest key, as the empty string is: first ascending, last descending; data moves like any
     other
   - Empty input: a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQDblSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                   int nCompanionCols, short descending, short writeKeys);

/* Rearrange the rows of `data` (over its `nCols` columns) and of `companion` (over `nCompanionCols`) in the order of
   `key`, element i of which belongs to row i. `writeKeys` exactly -1 writes the sorted keys back into elements `first`
   to `last`; any other value leaves `key` unchanged, out of step with the rows. `nRows` is not used: the stride of a
   table is its own. `matrix**` and `Smatrix**` are arrays of column tables.  Integer keys are compared as doubles and
   come back unchanged. The same with the data an array of `nCols` columns of `nRows`: numbers are rearranged in place,
   strings saved back.
   - Missing cells: the smallest key, as the empty string is: first ascending, last descending; data moves like any
     other
   - Empty input: a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortQStrSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                   int nCompanionCols, short descending, short writeKeys);

/* Sort all `n` rows ascending by `key`, normally an indicator of 0 and 1, so that the rows with 0 come first, each
   group in the order of the input. The sorted keys are written back into `key`. `SortDataBy01`: data `n` by `nCols` (0
   counts as 1), `n` keys. The caller's keys stay as they were: they are sorted in a private copy. Booleans come back as
   -1 and 0.
   - Missing cells: the smallest key: first; data moves like any other
   - Empty input: nothing changes; `nCols` of 0 is one column of strings, and of any type in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortDataBy01(double* data, int n, int nCols, double* key);

/* Sort all `n` rows ascending by `key`, normally an indicator of 0 and 1, so that the rows with 0 come first, each
   group in the order of the input. The sorted keys are written back into `key`. `SortDataBy01`: data `n` by `nCols` (0
   counts as 1), `n` keys. The caller's keys stay as they were: they are sorted in a private copy. Booleans come back as
   -1 and 0.
   - Missing cells: the smallest key: first; data moves like any other
   - Empty input: nothing changes; `nCols` of 0 is one column of strings, and of any type in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortDataBy01Bool(short* data, int n, int nCols, double* key);

/* Sort all `n` rows ascending by `key`, normally an indicator of 0 and 1, so that the rows with 0 come first, each
   group in the order of the input. The sorted keys are written back into `key`. `SortDataBy01`: data `n` by `nCols` (0
   counts as 1), `n` keys. The caller's keys stay as they were: they are sorted in a private copy. Booleans come back as
   -1 and 0.
   - Missing cells: the smallest key: first; data moves like any other
   - Empty input: nothing changes; `nCols` of 0 is one column of strings, and of any type in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortDataBy01SPV(SAFEARRAY** data, int n, int nCols, double* key);

/* Sort all `n` rows ascending by `key`, normally an indicator of 0 and 1, so that the rows with 0 come first, each
   group in the order of the input. The sorted keys are written back into `key`. The same for strings, but no string is
   copied: the caller's references change places.
   - Missing cells: the smallest key: first; data moves like any other
   - Empty input: nothing changes; `nCols` of 0 is one column of strings, and of any type in the flat forms
   - Memory: a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised before
     a sort writes anything (a sort by several columns in turn may have finished some of them) */
int VB_SortDataBy01Str(wchar_t** data, int n, int nCols, double* key);

/* ---- missing/missing_counts ---- */

/* -1 where the value is missing, otherwise 0. The two names are one function.
   - Missing cells: the order test: -1
   - Empty input: takes no array */
short IsMissingValueDbl(double x);

/* -1 where the value is missing, otherwise 0. The two names are one function. -1 where the value is missing, otherwise
   0. The two names are one function.
   - Missing cells: the order test: -1
   - Empty input: takes no array */
short VB_IsMissingValueDbl(double x);

/* -1 where the string has no characters, otherwise 0. The flat form reads 32-bit characters up to a NUL. -1 where the
   string has no characters, otherwise 0. The flat form reads 32-bit characters up to a NUL.
   - Missing cells: the empty string: -1
   - Empty input: the empty string is the missing one */
short VB_IsMissingValueStr(const wchar_t* s);

/* The missing cells of a vector. The functions of the same names.
   - Missing cells: counted (equality, or empty strings)
   - Empty input: 0 */
int VB_V_NbMissing(double* x, int n);

/* `n` less the missing cells of a vector. The functions of the same names.
   - Missing cells: not counted (equality)
   - Empty input: `n` itself, even a negative one */
int VB_V_NbNonMissing(double* x, int n);

/* The missing cells of a vector. The functions of the same names.
   - Missing cells: counted (equality, or empty strings)
   - Empty input: 0 */
int VB_V_NbMissingStr(wchar_t** x, int n);

/* The missing cells of each column, in `nCols` counts. `M_NbMissing` of one table.
   - Missing cells: counted (equality, or empty strings)
   - Empty input: 0 */
void VB_M_NbMissing(double* a, int nRows, int nCols, int* counts);

/* The missing cells of each column, in `nCols` counts. `M_NbMissing` of one table.
   - Missing cells: counted (equality, or empty strings)
   - Empty input: 0 */
void VB_M_NbMissingStr(wchar_t** a, int nRows, int nCols, int* counts);

/* All missing cells of a table or an array of columns. The functions of the same names.
   - Missing cells: counted (equality, or empty strings)
   - Empty input: 0 */
int VB_M_NbMissing2(double* a, int nRows, int nCols);

/* All missing cells of a table or an array of columns. The functions of the same names.
   - Missing cells: counted (equality, or empty strings)
   - Empty input: 0 */
int VB_M_NbMissing2Str(wchar_t** a, int nRows, int nCols);

/* The present cells of each column, in `nCols` counts. The functions of the same names.
   - Missing cells: not counted (equality)
   - Empty input: 0 for a column without rows */
void VB_M_NbNonMissing(double* a, int nRows, int nCols, int* counts);

/* The missing cells of each column, in `nCols` counts. `M_NbMissing` of an array of columns.
   - Missing cells: counted by the order test, unlike all others here
   - Empty input: 0 */
int Cpp_M_NbMissingSPV(SAFEARRAY** a, int nRows, int nCols);

/* The missing cells off the diagonal of a symmetric table of order `n`, held as a triangle of columns. The diagonal is
   not read. The functions of the same names.
   - Missing cells: counted (equality), twice for each cell below the diagonal, which represents two
   - Empty input: 0 */
int VB_M_NbMissingSPV_T(SAFEARRAY** a, int n, int unused);

/* ---- missing/missing_masks ---- */

/* out[i] becomes -1 where a[i] or b[i] is -1, or c[i] where `c` is not null. `total` becomes the number of those rows,
   whatever `out` held before. out[i] becomes -1 where a[i] or b[i] is -1, or c[i] where `c` is not null. `total`
   becomes the number of those rows, whatever `out` held before.
   - Missing cells: no cell is read
   - Mask: `a`, `b`, `c`: exactly -1 in any of them sets the flag of the row; no flag is cleared
   - Empty input: total 0 */
void VB_SummarizeMissing(int n, int* total, short* out, short* a, short* b, short* c);

/* The same where a[i] and b[i] both are -1. The order of the arguments is different.
   - Missing cells: no cell is read
   - Mask: `a`, `b`: exactly -1 in both sets the flag of the row; no flag is cleared
   - Empty input: total 0 */
void VB_SummarizeAllMissing(int n, short* a, short* b, int* total, short* out);

/* out[i] becomes -1 for a row that the filter selects and whose cells are all missing.
   - Missing cells: a row with nothing else sets its flag (equality, or empty strings)
   - Mask: a row is selected where its filter is exactly -1; no flag is cleared
   - Empty input: without columns no flag is written */
void VB_M_AllMissingRows(double* x, int nRows, int nCols, short* filter, short* out);

/* out[i] becomes -1 for a row that the filter selects and whose cells are all missing.
   - Missing cells: a row with nothing else sets its flag (equality, or empty strings)
   - Mask: a row is selected where its filter is exactly -1; no flag is cleared
   - Empty input: without columns no flag is written */
void VB_M_AllMissingRowsStr(wchar_t** x, int nRows, int nCols, short* filter, short* out);

/* out[i] becomes -1 where a[i] is -1 or the element is missing, and 0 everywhere else.
   - Missing cells: sets the flag (order)
   - Mask: exactly -1 in `a` sets the flag; the others become 0
   - Empty input: nothing is written */
void VB_V_GetMissingDbl(double* x, int n, short* a, short* out);

/* out[i] becomes -1 where a[i] is -1 and the string is empty: unlike in the form for doubles, and on purpose. out[i]
   becomes -1 where a[i] is -1 and the string is empty: unlike in the form for doubles, and on purpose.
   - Missing cells: an empty string sets the flag, but only where `a` is set
   - Mask: exactly -1 in `a` is needed for the flag; no flag is cleared
   - Empty input: nothing is written */
void VB_V_GetMissingStr(wchar_t** x, int n, short* a, short* out);

/* out[i] becomes -1 where filter[i] is -1 or the cell of row i in the last of the `nCols` columns is missing, otherwise
   0. `filter` and `out` may be one array. The other form reads an array of columns. out[i] becomes -1 where filter[i]
   is -1 or the cell of row i in the last of the `nCols` columns is missing, otherwise 0. `filter` and `out` may be one
   array. The other form reads an array of columns.
   - Missing cells: in the last column sets the flag of its row (order); the other columns are not read
   - Mask: exactly -1 sets the flag; the others become 0
   - Empty input: without columns nothing is written */
void Cpp_M_GetMissingDbl(double* a, int nRows, int nCols, short* filter, short* out);

/* out[i] becomes -1 where filter[i] is -1 or the cell of row i in the last of the `nCols` columns is missing, otherwise
   0. `filter` and `out` may be one array. The other form reads an array of columns. out[i] becomes -1 where filter[i]
   is -1 or the cell of row i in the last of the `nCols` columns is missing, otherwise 0. `filter` and `out` may be one
   array. The other form reads an array of columns.
   - Missing cells: in the last column sets the flag of its row (order); the other columns are not read
   - Mask: exactly -1 sets the flag; the others become 0
   - Empty input: without columns nothing is written */
void Cpp_M_GetMissingDblSPV(SAFEARRAY** a, int nRows, int nCols, short* filter, short* out);

/* Writes 1 into `out` at each missing cell of the block. In a flat form `out` is `nRows` by `nCols`. Writes 1 into
   `out` at each missing cell of the block. In a flat form `out` is `nRows` by `nCols`.
   - Missing cells: writes 1 at its place (equality), nothing elsewhere
   - Empty input: nothing is written */
void Cpp_M_IdentifyMissingInMat(double* a, int nRows, int nCols, int* out);

/* Writes 1 into `out` at each missing cell of the block. In a flat form `out` is `nRows` by `nCols`. Writes 1 into
   `out` at each missing cell of the block. In a flat form `out` is `nRows` by `nCols`.
   - Missing cells: writes 1 at its place (equality), nothing elsewhere
   - Empty input: nothing is written */
void Cpp_M_IdentifyMissingInMatSPV(SAFEARRAY** a, int nRows, int nCols, int* out);

/* Is a cell of a symmetric table of order `n` missing although both its diagonal cells are present? -1 where that holds
   for some cell (i, j) above the diagonal, otherwise 0. A diagonal cell outside the table counts as present, a NaN on
   the diagonal does not. The cells below the diagonal are not read. The other form reads a triangle of columns. Is a
   cell of a symmetric table of order `n` missing although both its diagonal cells are present? -1 where that holds for
   some cell (i, j) above the diagonal, otherwise 0. A diagonal cell outside the table counts as present, a NaN on the
   diagonal does not. The cells below the diagonal are not read. The other form reads a triangle of columns.
   - Missing cells: looked for above the diagonal (equality), where both diagonal cells are above the missing value
     (order)
   - Empty input: 0, also for an `n` of 1 */
short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(double* a, int n);

/* Is a cell of a symmetric table of order `n` missing although both its diagonal cells are present? -1 where that holds
   for some cell (i, j) above the diagonal, otherwise 0. A diagonal cell outside the table counts as present, a NaN on
   the diagonal does not. The cells below the diagonal are not read. The other form reads a triangle of columns. Is a
   cell of a symmetric table of order `n` missing although both its diagonal cells are present? -1 where that holds for
   some cell (i, j) above the diagonal, otherwise 0. A diagonal cell outside the table counts as present, a NaN on the
   diagonal does not. The cells below the diagonal are not read. The other form reads a triangle of columns.
   - Missing cells: looked for above the diagonal (equality), where both diagonal cells are above the missing value
     (order)
   - Empty input: 0, also for an `n` of 1 */
short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(SAFEARRAY** a, int n);

/* ---- missing/replacement ---- */

/* Every missing cell becomes `value`: of a table, of an array of columns, and of a symmetric table held as a triangle
   of columns, where (i, j) and (j, i) are one cell.
   - Missing cells: replaced (order)
   - Empty input: nothing happens */
void VB_M_ReplaceMissingByVal(double* a, int nRows, int nCols, double value);

/* Every missing cell becomes `value`: of a table, of an array of columns, and of a symmetric table held as a triangle
   of columns, where (i, j) and (j, i) are one cell.
   - Missing cells: replaced (order)
   - Empty input: nothing happens */
void VB_M_ReplaceMissingByValSPV(SAFEARRAY** a, int nRows, int nCols, double value);

/* Every empty string becomes `value`. `value` is one string of 32-bit characters, used as given. Each element of `a`,
   even one that keeps its text, becomes a new BSTR.
   - Missing cells: the empty string is replaced
   - Empty input: nothing happens */
void VB_M_ReplaceMissingByStr(wchar_t** a, int nRows, int nCols, const wchar_t* value);

/* The mask has `nRows` by `nMaskCols` cells; one outside its table reads as -1.
   - Missing cells: overwritten like any other
   - Mask: exactly 1 makes the cell at its place missing, or, with `wholeRow` exactly -1, all `nCols` cells of its row
   - Empty input: nothing happens */
void Cpp_M_ReplaceByMissing(double* a, int nRows, int nCols, int* mask, int nMaskCols, short wholeRow);

/* With `nWeightCols` 1 each row has a weight, with any other number each cell. Other weights keep their values.
   `weights` is `nRows` by `nWeightCols`.
   - Missing cells: sets the weight of its row, or of its cell, to 0 (equality)
   - Weights: written, not read
   - Empty input: nothing happens */
void VB_M_SetWeightsToZeroForMissing(double* data, int nRows, int nCols, double* weights, int nWeightCols);

/* ---- missing/observation_labels ---- */

/* Gives each marked row a label that no other row has: the prefix followed by a number. The numbers count from 1
   through the whole call, and one that would repeat a label of any of the `n` rows is skipped; a row's own old label
   does not count, nor does one that was replaced earlier in the call. `labels` is walked in linear order; a row outside
   the table uses up a number. Each row is read once. `prefix` is one string of 32-bit characters, used as given. Each
   element of `labels`, even one that keeps its text, becomes a new BSTR.
   - Missing cells: the empty label is a label like any other: the mask decides
   - Mask: exactly -1 asks for a new label; every flag is 0 at the end
   - Empty input: nothing happens */
void VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask, const wchar_t* prefix);

/* ---- missing/complete_rows ---- */

/* Moves the rows that are kept up to the top, in their order; below them the cells keep their values. The same over
   `data`, which changes in place (each string becomes a new BSTR); then its top `nRows` - `nRemoved` rows go to `out`.
   An `nCols` of 0 means 1.
   - Missing cells: with two or more columns the mask alone decides; with one column (`nCols` below 2) a missing cell
     (order), or an empty string, excludes its row as well, whatever its mask entry
   - Mask: a nonzero entry excludes the row
   - Empty input: no row moves */
void VB_RemoveRowsWithMissing(double* data, int nRows, int nCols, int nRemoved, short* mask, double* out);

/* Moves the rows that are kept up to the top, in their order; below them the cells keep their values. The same over
   `data`, which changes in place (each string becomes a new BSTR); then its top `nRows` - `nRemoved` rows go to `out`.
   An `nCols` of 0 means 1.
   - Missing cells: with two or more columns the mask alone decides; with one column (`nCols` below 2) a missing cell
     (order), or an empty string, excludes its row as well, whatever its mask entry
   - Mask: a nonzero entry excludes the row
   - Empty input: no row moves */
void VB_RemoveRowsWithMissingStr(wchar_t** data, int nRows, int nCols, int nRemoved, short* mask, wchar_t** out);

/* The reverse: fills the `nRows` + `nInsert` rows of `out`, for each of which the mask has an entry. A row that is not
   marked takes the next row of `data`. The reverse: fills the `nRows` + `nInsert` rows of `out`, for each of which the
   mask has an entry. A row that is not marked takes the next row of `data`.
   - Missing cells: copied unchanged; a marked row becomes missing in every column, in ints -2147483648, which no
     function looks for
   - Mask: a nonzero entry marks a row to be inserted
   - Empty input: nothing is written */
void Cpp_M_InsertMissingDbl(double* data, int nRows, int nCols, short* mask, int nInsert, double* out);

/* The reverse: fills the `nRows` + `nInsert` rows of `out`, for each of which the mask has an entry. A row that is not
   marked takes the next row of `data`. The reverse: fills the `nRows` + `nInsert` rows of `out`, for each of which the
   mask has an entry. A row that is not marked takes the next row of `data`.
   - Missing cells: copied unchanged; a marked row becomes missing in every column, in ints -2147483648, which no
     function looks for
   - Mask: a nonzero entry marks a row to be inserted
   - Empty input: nothing is written */
void Cpp_M_InsertMissingLng(int* data, int nRows, int nCols, short* mask, int nInsert, int* out);

/* Stacks the present cells, column by column, into `out`, which keeps its values beyond them. Cell j of `counts` grows
   by 1 for each present cell of column j; if it is 0 after the column, `*emptyCols` grows by 1. Both are added to and
   must be initialised. `counts` has `nCols` elements, which are the start of a private count: the caller's array is not
   written. `out` has an element for each present cell.
   - Missing cells: left out (equality)
   - Empty input: a column whose count is 0 adds 1 to `*emptyCols` */
void Cpp_MatToVect_NoMissing(double* data, int nRows, int nCols, double* counts, double* emptyCols, double* out);

/* ---- missing/missing_arithmetic ---- */

/* The smallest of the first `n` cells. The search starts at the first present one; a NaN is never smaller, nor is
   anything smaller than a NaN.
   - Missing cells: left out (equality)
   - Empty input: the missing value, also where no cell is present */
double Cpp_V_MinIgnoreMissing(double* x, int n);

/* Sum of x(i), in order.
   - Missing cells: left out, in either vector, x or y (equality)
   - Empty input: the missing value, not 0.0; also where no row is left */
double VB_V_SumIfNotMissing(double* x, int n, double* y);

/* a b; b has `nInner` rows and `nCols` columns. c is prepared with `matCheck`, `nRows` by `nCols`. Each result is one
   sum over the inner index in order. Returns 0.
   - Missing cells: the first one, in either factor, ends the sum and makes the result missing, even where the other
     factor is 0 (equality)
   - Empty input: an empty sum is 0.0 */
int VB_M_ProductABMissing(double* a, int nRows, int nInner, double* b, int nCols, double* c);

/* ---- missing/mean_imputation ---- */

/* Fills `X`, `nRows` by `nCols`, with the means of the columns of `statX`, which has `nStat` rows and may be `X`
   itself. With `nCols` below 1 both are vectors of `nStat` and `nRows` cells.
   - Missing cells: filled with the mean of its column in a marked row (order; not a NaN); the means leave out the
     missing value alone (equality)
   - Mask: a nonzero entry marks a row to be filled
   - Weights: one for each row of the statistics; they count in the means alone: a row of weight 0 is filled like any
     other
   - Divisor: the sum of the weights of the column's mean; a column without data has mean 0.0, which fills its cells
   - Empty input: `nCols` below 1 is a vector, whose mean without data is missing, so that its cells stay missing */
void VB_EstimateRowsWithMissingMean(double* X, int n, int nCols, short* mask, double* weights);

/* - Missing cells: filled with the mean of its column in a marked row (order; not a NaN); the means leave out the
     missing value alone (equality)
   - Mask: a nonzero entry marks a row to be filled
   - Weights: one for each row of the statistics; they count in the means alone: a row of weight 0 is filled like any
     other
   - Divisor: the sum of the weights of the column's mean; a column without data has mean 0.0, which fills its cells
   - Empty input: `nCols` below 1 is a vector, whose mean without data is missing, so that its cells stay missing */
void VB_EstimateRowsWithMissingMeanPred(double* statX, int nStat, double* X, int nRows, int nCols, short* mask,
                                        double* weights);

/* The same over an array of columns, with statistics from the same data. A vector is no special case.
   - Missing cells: filled with the mean of its column in a marked row (order; not a NaN); the means leave out the
     missing value alone (equality)
   - Mask: a nonzero entry marks a row to be filled
   - Weights: one for each row of the statistics; they count in the means alone: a row of weight 0 is filled like any
     other
   - Divisor: the sum of the weights of the column's mean; a column without data has mean 0.0, which fills its cells
   - Empty input: without columns nothing happens */
void VB_EstimateRowsWithMissingMeanSPV(SAFEARRAY** X, int n, int nCols, short* mask, double* weights);

/* ---- missing/mode_imputation ---- */

/* Every empty cell of `S`, `nRows` by `nCols`, becomes the modal category of its column in `statS`, which has `nStat`
   rows and may be `S` itself. There is no row mask. The modes are those of `M_InfoQuali` with `weights` (`nStat`
   cells), all found before the first cell is filled; so a column without any category takes the first cell of the next
   column of `statS`, and the last column stays empty.
   - Missing cells: an empty string becomes the mode of its column; in a column without any category, what follows the
     column in storage
   - Mask: not read: may be null
   - Weights: summed to find the modes, as in `M_InfoQuali`
   - Empty input: nothing happens */
void VB_EstimateRowsWithMissingMode(wchar_t** S, int n, int nCols, short* mask, double* weights);

/* - Missing cells: an empty string becomes the mode of its column; in a column without any category, what follows the
     column in storage
   - Mask: not read: may be null
   - Weights: summed to find the modes, as in `M_InfoQuali`
   - Empty input: nothing happens */
void VB_EstimateRowsWithMissingModePred(wchar_t** statS, int nStat, wchar_t** S, int nRows, int nCols, short* mask,
                                        double* weights);

/* ---- missing/new_variables ---- */

/* The covariance table Q C Q' of the `nRows` linear combinations in the rows of Q (`nRows` by `nCols`) of variables
   with the covariance table C, of which only the lower triangle is read. A cell outside Q or C reads as -1.0.  Cell i
   of `variances`, which must exist, becomes the sum, for each variable j in turn, of Q(i,j)^2 C(j,j) and, for each k
   before j, of 2 Q(i,j) Q(i,k) C(j,k). `covariances` is prepared with `matCheck`, `nRows` by `nRows`. Its diagonal are
   the variances; off it a cell comes by polarisation,  cov(i, m) = var(i + m)/2 - (var(i) + var(m))/2,  with the
   coefficients t = Q(i,.) + Q(m,.), in the order of the sum above. A variable whose |t| is not above
   2.220446049250313e-16 is skipped with its cross terms; as the k of a later j it counts. So the last bits differ from
   those of a product of tables. C is `nCols` by `nCols`; `variances` has `nRows` elements and `covariances` `nRows` by
   `nRows`.
   - Missing cells: an ordinary number
   - Empty input: without rows of Q only `covariances` is prepared */
void VB_ComputeNewVar(double* Q, int nRows, int nCols, double* C, double* variances, double* covariances);

/* ---- missing/nearest_neighbour ---- */

/* All blocks are tables. X, Y and S are changed in place.
   - Missing cells: in a flagged row filled from the nearest row (a number at or below the missing value, not a NaN; an
     empty string); in a candidate row it rejects the row at once, whatever its distance so far
   - Mask: a nonzero entry flags a row: to be filled, and never a neighbour
   - Weights: required; they count in means, variances and modes alone: frequencies in the primary block, the other
     corrected divisor in Y
   - Divisor: each squared difference by its column's variance, where that is above 0
   - Empty input: without rows nothing happens; a block without columns, or a null Y or S, takes no part
   - Memory: with 50 rows or more a copy of the numbers of the unflagged rows, to skip those that are too far away;
     where that is short the search does without, with the same result */
void VB_EstimateRowsWithMissingNN(double* X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                  int nColsS, double* weights);

/* The same with a primary block of strings.
   - Missing cells: in a flagged row filled from the nearest row (a number at or below the missing value, not a NaN; an
     empty string); in a candidate row it rejects the row at once, whatever its distance so far
   - Mask: a nonzero entry flags a row: to be filled, and never a neighbour
   - Weights: required; they count in means, variances and modes alone: frequencies in the primary block, the other
     corrected divisor in Y
   - Divisor: each squared difference by its column's variance, where that is above 0
   - Empty input: without rows nothing happens; a block without columns, or a null Y or S, takes no part
   - Memory: with 50 rows or more a copy of the numbers of the unflagged rows, to skip those that are too far away;
     where that is short the search does without, with the same result */
void VB_EstimateRowsWithMissingNNStr(wchar_t** P, int n, int nColsP, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights);

/* The same with X an array of column tables, which are their own statistics: all tables and the weights have `nRows`
   rows. A cell beyond the length of a column is present and counts as -1.0.
   - Missing cells: in a flagged row filled from the nearest row (a number at or below the missing value, not a NaN; an
     empty string); in a candidate row it rejects the row at once, whatever its distance so far
   - Mask: a nonzero entry flags a row: to be filled, and never a neighbour
   - Weights: required; they count in means, variances and modes alone: frequencies in the primary block, the other
     corrected divisor in Y
   - Divisor: each squared difference by its column's variance, where that is above 0
   - Empty input: without rows nothing happens; a block without columns, or a null Y or S, takes no part
   - Memory: with 50 rows or more a copy of the numbers of the unflagged rows, to skip those that are too far away;
     where that is short the search does without, with the same result */
void VB_EstimateRowsWithMissingNNSPV(SAFEARRAY** X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights);

/* The same with X and Y arrays of column tables.
   - Missing cells: in a flagged row filled from the nearest row (a number at or below the missing value, not a NaN; an
     empty string); in a candidate row it rejects the row at once, whatever its distance so far
   - Mask: a nonzero entry flags a row: to be filled, and never a neighbour
   - Weights: required; they count in means, variances and modes alone: frequencies in the primary block, the other
     corrected divisor in Y
   - Divisor: each squared difference by its column's variance, where that is above 0
   - Empty input: without rows nothing happens; a block without columns, or a null Y or S, takes no part
   - Memory: with 50 rows or more a copy of the numbers of the unflagged rows, to skip those that are too far away;
     where that is short the search does without, with the same result */
void VB_EstimateRowsWithMissingNNSPV2(SAFEARRAY** X, int n, int nColsX, short* mask, SAFEARRAY** Y, int nColsY,
                                      wchar_t** S, int nColsS, double* weights);

/* - Missing cells: in a flagged row filled from the nearest row (a number at or below the missing value, not a NaN; an
     empty string); in a candidate row it rejects the row at once, whatever its distance so far
   - Mask: a nonzero entry flags a row: to be filled, and never a neighbour
   - Weights: required; they count in means, variances and modes alone: frequencies in the primary block, the other
     corrected divisor in Y
   - Divisor: each squared difference by its column's variance, where that is above 0
   - Empty input: without rows nothing happens; a block without columns, or a null Y or S, takes no part
   - Memory: with 50 rows or more a copy of the numbers of the unflagged rows, to skip those that are too far away;
     where that is short the search does without, with the same result */
void VB_EstimateRowsWithMissingNNPred(double* statX, int nStat, double* X, int nRows, int nColsX, short* mask,
                                      double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS,
                                      double* weights);

/* - Missing cells: in a flagged row filled from the nearest row (a number at or below the missing value, not a NaN; an
     empty string); in a candidate row it rejects the row at once, whatever its distance so far
   - Mask: a nonzero entry flags a row: to be filled, and never a neighbour
   - Weights: required; they count in means, variances and modes alone: frequencies in the primary block, the other
     corrected divisor in Y
   - Divisor: each squared difference by its column's variance, where that is above 0
   - Empty input: without rows nothing happens; a block without columns, or a null Y or S, takes no part
   - Memory: with 50 rows or more a copy of the numbers of the unflagged rows, to skip those that are too far away;
     where that is short the search does without, with the same result */
void VB_EstimateRowsWithMissingNNStrPred(wchar_t** statX, int nStat, wchar_t** X, int nRows, int nColsX, short* mask,
                                         double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS,
                                         double* weights);

/* ---- qualitative/categories ---- */

/* Lists the categories of each column in the order of their first appearance. The mode is the category of the largest
   weight; the first of equals. With a nonzero `sortCats` each list and its weights are then sorted, the modes staying
   as found: by ascending value in single precision where every category begins with a number, otherwise as strings.
   Equal values keep no particular order beyond that of a selection sort by exchanges.
   - Missing cells: the empty string is no category, except in a column without data
   - Weights: required; one of zero or below still opens a category and adds to it
   - Empty input: a column without data has one category all the same: the cell after its last row in storage, which is
     the first cell of the next column and empty after the last, with the weight after the last row: -1.0 */
void VB_M_InfoQuali(wchar_t** table, int nRows, int nCols, wchar_t** modes, double* modeWeights, int* total, int* nCats,
                    wchar_t** categories, double* catWeights, int ignored, double* weights, short sortCats);

/* The same with the counts known beforehand: `nCats` is read, not written, and at most `maxCats` categories of a column
   are kept; the others, and their weights, are dropped. The mode, the total and the sort use the given count and not
   the number found. Where it is higher, as `GetMaxCat` counts the empty string too, the places beyond take part in the
   search for the mode, and sort as empty texts (among numbers as 0).
   - Missing cells: the empty string is no category, except in a column without data
   - Weights: required; one of zero or below still opens a category and adds to it
   - Empty input: places beyond those found are empty with weight 0 in fresh tables; a count below 1 gives the category
     of place 1 as the mode */
void VB_M_InfoQuali2(wchar_t** table, int nRows, int nCols, int maxCats, int* nCats, wchar_t** modes,
                     double* modeWeights, int* total, wchar_t** categories, double* catWeights, int ignored,
                     double* weights, short sortCats);

/* Weights of a table's rows by known categories: `catWeights`, nCols by maxCats, receives the sum of the weights of
   each of the first nCats[j] categories. A text that is listed twice adds to its last place. `*invalid` is 0, or -1 at
   the first text, column by column, that is not among them: the call ends there and leaves the sums so far.
   - Missing cells: the empty string is no category and is skipped
   - Weights: required; one of zero or below adds like any other
   - Empty input: `*invalid` 0 */
void VB_M_InfoQualiValid(wchar_t** table, int nRows, int nCols, int maxCats, int ignored1, int* nCats,
                         wchar_t** categories, double* catWeights, short* invalid, int ignored2, double* weights);

/* Counts the different texts of each column into `counts` (nCols cells, which must exist). Returns the largest count.
   - Missing cells: the empty string counts as a text
   - Empty input: 0 without columns */
int Cpp_GetMaxCat(wchar_t** table, int nRows, int nCols, int* counts);

/* Is a label used twice? Row i of the table, nRows by nCols, holds the counts[i] labels of variable i. Returns 1 where
   a label is at one place of a row and at a later place of any row, the same one included, otherwise 0. Two rows that
   hold it at the same place are not enough. A place beyond the table is empty.
   - Missing cells: an empty label counts like any other
   - Empty input: 0 */
int Cpp_CheckUniqueCatByVar(wchar_t** table, int nRows, int nCols, int* counts);

/* ---- qualitative/moments_of_one_column ---- */

/* The moments of column `col`, 1-based, over its first nRows cells, by the running updates W += w, d = x - mean, Q += d
   d (w - w w / W), mean += d w / W. The variance is Q over the divisor, m being the count of the rows that enter. A
   cell beyond either table is -1.0. The same over an array of nRows by `col`: the column is the last.
   - Missing cells: a cell enters where it is above the missing value (order), which a NaN is not
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sampleVariance` -1 W - 1 for `countDivisor` -1, else W - W/m; not tested
   - Empty input: mean 0.0, the other two NaN
   - Source: Welford (1962) and West (1979), as in `descriptive/moments.h` */
void VB_M_MeanStDevVarOneInMat(double* table, int nRows, int col, double* mean, double* stdDev, double* variance,
                               int ignored, double* weights, short sampleVariance, short countDivisor);

/* ---- qualitative/frequencies ---- */

/* A cell matches where |x[i] - value| is strictly below `tolerance`, so never for a tolerance of 0, nor for a NaN. Ints
   are widened.
   - Missing cells: a value like any other; so is the empty string
   - Weights: required, not tested
   - Empty input: 0.0 (0) */
double VB_V_Freq(double* x, int n, double* weights, double value, double tolerance);

/* A cell matches where |x[i] - value| is strictly below `tolerance`, so never for a tolerance of 0, nor for a NaN. Ints
   are widened. With a tolerance of 0.01, and the sum truncated towards zero.
   - Missing cells: a value like any other; so is the empty string
   - Weights: required, not tested
   - Empty input: 0.0 (0) */
int VB_V_FreqLng(int* x, int n, double* weights, int value);

/* A cell matches where it is the same string. `value` is read as 32-bit characters up to a NUL, unlike the strings of
   the array.
   - Missing cells: a value like any other; so is the empty string
   - Weights: required, not tested
   - Empty input: 0.0 (0) */
double VB_V_FreqStr(wchar_t** x, int n, double* weights, const wchar_t* value);

/* ---- qualitative/modes ---- */

/* The string with the largest sum of weights among the first n cells, in linear order; the first met of equals. A
   weight beyond its table is -1.0. The same as a new BSTR, which the caller owns. x and weights have n elements and are
   never written.
   - Missing cells: an empty string is left out
   - Weights: required; one of zero or below is added like any other
   - Empty input: the empty string, also where all strings are empty */
wchar_t* VB_V_Mode(wchar_t** x, int n, int ignored, double* weights);

/* The most frequent of the codes 0 to n - 1 among n cells, the lowest of equals. A cell counts for the code x truncated
   towards zero, so 2.7 is code 2. Codes outside 0 to n - 1 are left out: where nothing is left every count is 0 and the
   result 0.0. The same over an array of n elements, which is never written.
   - Missing cells: left out (equality)
   - Empty input: 0.0, also for an `n` of 1 */
double VB_V_ModeCatDbl(double* x, int n);

/* ---- qualitative/disjunctive_tables ---- */

/* Codes a table of strings, nRows by nCols, into `out`, which `matCheck` brings to nRows by totalCats and fills with 0.
   `nCats` holds the number of categories of each variable, row j of `categories` their texts.  In the columns of its
   variable a cell that is not empty gives: - 1 in the column of each category it equals; in the baseline's column only
   with `coding` 0, or with `keepBaseline` 2, or with `keepBaseline` 1 in the first variable; - where it is the
   baseline, in the other columns 0 (`coding` 0 and 1), -1 (2), or minus freq(j, place) divided by freq(j, 1) (3), which
   gives each column a sum of 0 where `freq` holds the frequencies; with another `coding` nothing is written there; -
   nothing else: a text that is no category leaves 0 in every column.  `freq` has the shape of `categories` and is read
   with `coding` 3 alone; it may otherwise be null. Columns beyond those of `out` are dropped. The same over arrays:
   `categories` and `freq` are nCols by maxCats, `out` nRows by totalCats; every element of `out` is written.
   - Missing cells: an empty string makes all columns of its variable missing, in every coding
   - Divisor: with `coding` 3 the frequency of the baseline, not tested
   - Empty input: `out` has no row */
void VB_BuildDisjunctiveTable(wchar_t** table, int nRows, int nCols, int totalCats, int* nCats, wchar_t** categories,
                              double* freq, int maxCats, double* out, int coding, int keepBaseline);

/* Can the table be a disjunctive one? -1 if so, otherwise 0. The reference row is the row before the first, from the
   second on, that the mask keeps; the last row where there is none.  `*rowSum` is the sum of the reference row,
   truncated towards zero. The answer is 0 where a row's sum differs from that integer by more than 1e-12; a NaN does
   not. Then the last column alone decides: 0 where it is constant, all its cells equal to that of the reference row (a
   NaN is different, even from itself), otherwise -1. Cells beyond the table are -1.0. Can the table be a disjunctive
   one? -1 if so, otherwise 0. The reference row is the row before the first, from the second on, that the mask keeps;
   the last row where there is none.  `*rowSum` is the sum of the reference row, truncated towards zero. The answer is 0
   where a row's sum differs from that integer by more than 1e-12; a NaN does not. Then the last column alone decides: 0
   where it is constant, all its cells equal to that of the reference row (a NaN is different, even from itself),
   otherwise -1. Cells beyond the table are -1.0.
   - Missing cells: an ordinary number
   - Mask: read in two ways: for the reference row only exactly -1 excludes, and that row's own flag does not matter;
     after it a nonzero entry excludes its row. May be null
   - Empty input: without columns -1 (true) */
short VB_M_IsDisjTable(double* table, int nRows, int nCols, short* mask, int* rowSum);

/* Column j gives the pair of columns 2j - 1 and 2j (1-based) of `out`: the values, and 1 minus the values. `out`, nRows
   by 2 nCols, must exist. Column j gives the pair of columns 2j - 1 and 2j (1-based) of `out`: the values, and 1 minus
   the values. `out`, nRows by 2 nCols, must exist.
   - Missing cells: an ordinary number: it stays, and its partner is 1 minus it
   - Empty input: nothing is written */
void Cpp_M_ConvertBinarytoDisjTable(double* table, int nRows, int nCols, double* out);

/* ---- qualitative/recoding ---- */

/* The code is the 1-based place. A cell that matches nothing leaves `out` unchanged. `categories` is nCols by the
   largest of nCats.
   - Missing cells: an empty string matches an empty category
   - Empty input: nothing is written */
void VB_M_ReplaceCatByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories, double* out);

/* The code is the 0-based place plus `firstCode`. A cell that matches nothing becomes missing, unlike above.
   `categories` is nCols by the largest of nCats.
   - Missing cells: an empty string matches an empty category
   - Mask: a row with a nonzero entry becomes missing; may be null
   - Empty input: nothing is written */
void VB_M_ReplaceStrByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories, short* mask,
                            int firstCode, double* out);

/* 0 where the absolute value is below 2.220446049250313e-16, otherwise 1, also for a NaN. `value` is read as 32-bit
   characters up to a NUL, unlike the strings of the array.
   - Missing cells: stays missing (equality)
   - Empty input: nothing is written */
void VB_M_Binarize(double* table, int nRows, int nCols, double* out);

/* 0 where the absolute value is below 2.220446049250313e-16, otherwise 1, also for a NaN. `value` is read as 32-bit
   characters up to a NUL, unlike the strings of the array.
   - Missing cells: not tested: it becomes 1, unlike in the copy
   - Empty input: nothing happens */
void VB_M_Binarize2(double* table, int nRows, int nCols);

/* 0 where the absolute value is below 2.220446049250313e-16, otherwise 1, also for a NaN. `value` is read as 32-bit
   characters up to a NUL, unlike the strings of the array.
   - Missing cells: not tested: it becomes 1, unlike in the copy
   - Empty input: nothing happens */
void VB_M_Binarize2SPV(SAFEARRAY** table, int nRows, int nCols);

/* 1.0 where a cell equals `value`, otherwise 0.0, for the first n cells in linear order. `out` must exist. `value` is
   read as 32-bit characters up to a NUL, unlike the strings of the array.
   - Missing cells: an empty string is compared like any other
   - Empty input: nothing is written */
void Cpp_V_RecodeToBinary(wchar_t** x, int n, const wchar_t* value, int ignored, double* out);

/* ---- qualitative/indicators ---- */

/* Is every cell exactly 0 or exactly 1? A NaN is neither. Is every cell exactly 0 or exactly 1? A NaN is neither.
   - Missing cells: fails the test
   - Empty input: -1 (true) */
short VB_V_Is01(double* x, int n);

/* Weights: the sum of the cells is above 0, and none of them is negative. Weights: the sum of the cells is above 0, and
   none of them is negative.
   - Missing cells: left out (equality)
   - Empty input: 0 (false) */
short VB_V_IsWeights(double* x, int n);

/* Weights that are counts: all cells are whole numbers as well, by the test of `IsLong`. Weights that are counts: all
   cells are whole numbers as well, by the test of `IsLong`.
   - Missing cells: left out (equality), and counts as a whole number
   - Empty input: 0 (false) */
short VB_V_IsCWeights(double* x, int n);

/* Every cell is 0 or 1, and one of them is 1. Every cell is 0 or 1, and one of them is 1.
   - Missing cells: fails the test
   - Empty input: 0 (false) */
short VB_V_IsIndicator(double* x, int n);

/* The same of all columns together: a column may be without a 1 where another has one. The same of all columns
   together: a column may be without a 1 where another has one.
   - Missing cells: fails the test
   - Empty input: 0 (false), also without columns */
short VB_V_IsIndicatorSPV(SAFEARRAY** x, int nRows, int nCols);

/* ---- qualitative/group_by ---- */

/* - Missing cells: a missing key makes a group like any other, the first; in the other columns as in the function named
   - Divisor: of the mean: the count of present cells
   - Empty input: no groups */
void VB_M_GroupBy(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate, int* nGroups,
                  double* out);

/* `weights` (nRows cells) comes back in the order of the sorted rows.
   - Missing cells: a missing key makes a group like any other, the first; in the other columns as in the function named
   - Weights: required; a zero counts as in the function named
   - Divisor: of the mean: the sum of weights
   - Empty input: no groups
   - Known weakness: the sum, mean and median of every group, not of the first alone, take the first entries of the
     sorted weights: row k of any group has the weight of row k of the sorted table, not its own */
void VB_M_GroupByW(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate, int* nGroups,
                   double* out, double* weights);

/* ---- qualitative/distinct ---- */

/* Separates the rows that repeat another from the first of their kind. `data` has nCols key columns and an identifier
   in column nCols + 1; `out`, nRows by nCols + 3, must exist and is filled with columns 1 to nCols   the keys nCols + 1
   the number of input rows with these keys, 0 in a repeated row nCols + 2            the identifier nCols + 3
   1 in a kept row, 0 in a repeated one First come the `*nKept` kept rows, by ascending identifier, then the repeated
   ones likewise; where identifiers are equal, by ascending keys from the first column on, then in the order of the
   input. Of equal rows the first of the input is kept.
   - Missing cells: a key like any other, the smallest, equal to itself
   - Empty input: no row is kept */
void VB_M_Dedupe(double* data, int nRows, int nCols, int* nKept, double* out);

/* The values in ascending order, without those that lie above the one before by no more than the tolerance: the smaller
   of 2.220446049250313e-16 and the range of the values. So the last of a chain of close values may be far from the one
   that represents it. `distinct` has room for n cells; those beyond `*count` are left unchanged.
   - Missing cells: a value like any other, the smallest
   - Empty input: one value, -1.0 */
void VB_V_ExtractDistinct(double* x, int n, double* distinct, int* count);

/* The number of distinct values, without a tolerance, so it can be higher than the count above.
   - Missing cells: a value like any other, the smallest number, equal to itself; so is the empty string
   - Empty input: 1 for `n` below 2 */
int VB_V_NbDistinct(double* x, int n);

/* The number of distinct values, without a tolerance, so it can be higher than the count above.
   - Missing cells: a value like any other, the smallest number, equal to itself; so is the empty string
   - Empty input: 1 for `n` below 2 */
int VB_V_NbDistinctLng(int* x, int n);

/* The number of distinct values, without a tolerance, so it can be higher than the count above.
   - Missing cells: a value like any other, the smallest number, equal to itself; so is the empty string
   - Empty input: 1 for `n` below 2 */
int Cpp_V_NbDistinctStr(wchar_t** x, int n);

/* ---- qualitative/labels ---- */

/* Rewrites the repeats of a label among the first n cells, in linear order: the first keeps its text, the second gets
   the suffix 2, the third 3, and so on ("a", "a" become "a", "a2"). A number that would repeat a label further down is
   skipped for good; labels further up are not read, so a new label can repeat one of those.
   - Missing cells: an empty label is one like any other
   - Empty input: nothing happens */
void VB_V_ReplaceDoubles(wchar_t** x, int n);

/* Cell `row` of `out`, in linear order, becomes the strings of columns 1 to nCols of that row with the separator
   between each two. `out` must exist.
   - Missing cells: an empty string is joined like any other, with its separators
   - Empty input: without columns the result is empty */
void Cpp_M_MergeStringsByRow(wchar_t** table, int nRows, int nCols, const void* separator, wchar_t** out);

/* ---- descriptive/covariance_with_moments ---- */

/* The position, from 1, of element (i, j) in a packed symmetric table, in either order: with a the larger and b the
   smaller number, both from 1, (a - 1) a / 2 + b. The numbers are not tested. */
int INDEX3(int i, int j);

/* C is p by p. Flat forms: X n by p, the results as above, `zeroForMissing` 0. X is written only where `center` or
   `reduce` is -1.
   - Missing cells: excludes its row of the pair (equality); where X is centred or reduced it stays missing, except in a
     column of variance 0, which both together make 0.0
   - Mask: a nonzero entry excludes the row; may be null
   - Weights: required; a row of weight 0 counts in m, else changes nothing
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested. Correlations (`corr` exactly
     -1): none where the product of variances is 0 or below: missing, or 0.0 for a nonzero `zeroForMissing`
   - Empty input: not detected: mean 0.0, and the quotient 0/0 where that is the divisor */
int VB_M_CovCorrAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev, double* var,
                                short corr, short* mask, double* w, short sample, short freqWeights, short center,
                                short reduce);

/* C is packed, p(p+1)/2 by 1: the lower triangle by rows, pair (j, k) at position `INDEX3(j, k)`. Flat forms: X n by p,
   the results as above, `zeroForMissing` 0. X is written only where `center` or `reduce` is -1.
   - Missing cells: excludes its row of the pair (equality); where X is centred or reduced it stays missing, except in a
     column of variance 0, which both together make 0.0
   - Mask: a nonzero entry excludes the row; may be null
   - Weights: required; a row of weight 0 counts in m, else changes nothing
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested. Correlations (`corr` exactly
     -1): none where the product of variances is 0 or below: missing, or 0.0 for a nonzero `zeroForMissing`
   - Empty input: not detected: mean 0.0, and the quotient 0/0 where that is the divisor */
int VB_M_CovCorrVAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev, double* var,
                                 short corr, short* mask, double* w, short sample, short freqWeights, short center,
                                 short reduce);

/* ---- descriptive/covariance ---- */

/* From one table. Flat form: X n by p, never changed, C p by p, `zeroForMissing` 0.
   - Missing cells: excludes its row of the pair (equality): pairwise, never listwise
   - Mask: a nonzero entry excludes the row; may be null
   - Weights: required; a row of weight 0 counts in m, else changes nothing
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested: one row with a corrected divisor
     gives 0/0, a NaN. Correlations: the root of the product of the two variances
   - Empty input: a pair without rows, or for correlations a product of variances of 0: missing, or 0.0 for a nonzero
     `zeroForMissing`
   - Memory: a copy of the rows that the mask keeps and a square of p by p; where that is short the functions do
     without, slower and with the same results */
int VB_M_CovCorr(double* X, int n, int p, double* C, short corr, short* mask, double* w, short sample,
                 short freqWeights);

/* ---- descriptive/cross_correlation ---- */

/* Covariances, or for any `corr` but 0 correlations, of the p columns of X with the q columns of Y. C is p by q,
   prepared with `matCheck`; X is one table, or an array of columns.  A correlation divides by the root of a variance of
   the column of X times one of the column of Y. With missing cells a column has another variance in each pair; the one
   used is that of its last pair: of each column of X with the last column of Y, and of each column of Y with the last
   column of X. With a nonzero `square` a correlation that is computed is squared. Returns 0. Flat forms: X n by p (or
   an array of p columns of n), Y n by q, C p by q, vectors of n; `zeroForMissing` 0.
   - Missing cells: excludes its row of the pair (equality)
   - Mask: a nonzero entry excludes the row; may be null
   - Weights: required; a row of weight 0 counts in m, else changes nothing
   - Divisor: as in `covariance.h`, not tested. Correlations: the root of the product of two variances; where |product|
     - 1e-12 is not above 0 (a NaN is not) missing, or 0.0 for a nonzero `zeroForMissing`
   - Empty input: a pair without rows gives 0/0, or 0/-1 for frequencies
   - Known weakness: the product of the variances is tested in absolute terms: the correlation of two columns whose
     deviations are below 1e-3 is missing. With missing cells it takes the variances of other pairs, and can exceed 1;
     `CorrelPearson` does neither */
int VB_M_CorrMatMat(double* X, int n, int p, double* Y, int q, double* C, short* mask, double* w, short corr,
                    short square, short sample, short freqWeights);

/* Covariances, or for any `corr` but 0 correlations, of the p columns of X with the q columns of Y. C is p by q,
   prepared with `matCheck`; X is one table, or an array of columns.  A correlation divides by the root of a variance of
   the column of X times one of the column of Y. With missing cells a column has another variance in each pair; the one
   used is that of its last pair: of each column of X with the last column of Y, and of each column of Y with the last
   column of X. With a nonzero `square` a correlation that is computed is squared. Returns 0. Flat forms: X n by p (or
   an array of p columns of n), Y n by q, C p by q, vectors of n; `zeroForMissing` 0.
   - Missing cells: excludes its row of the pair (equality)
   - Mask: a nonzero entry excludes the row; may be null
   - Weights: required; a row of weight 0 counts in m, else changes nothing
   - Divisor: as in `covariance.h`, not tested. Correlations: the root of the product of two variances; where |product|
     - 1e-12 is not above 0 (a NaN is not) missing, or 0.0 for a nonzero `zeroForMissing`
   - Empty input: a pair without rows gives 0/0, or 0/-1 for frequencies
   - Known weakness: the product of the variances is tested in absolute terms: the correlation of two columns whose
     deviations are below 1e-3 is missing. With missing cells it takes the variances of other pairs, and can exceed 1;
     `CorrelPearson` does neither */
int VB_M_CorrMatMatSPV(SAFEARRAY** X, int n, int p, double* Y, int q, double* C, short* mask, double* w, short corr,
                       short square, short sample, short freqWeights);

/* Pearson's correlation of two vectors. Where neither varies, which includes a single row and rows of weight 0 alone,
   it is 1.0; where the cross products sum to 0, 0.0. Flat forms: X n by p (or an array of p columns of n), Y n by q, C
   p by q, vectors of n; `zeroForMissing` 0.
   - Missing cells: excludes its row (equality)
   - Mask: a nonzero entry excludes the row; may be null
   - Weights: required; a row of weight 0 counts in m, else changes nothing
   - Divisor: cancels: `sample` and `freqWeights` have no effect. Where just one of the vectors varies: missing, or 0.0
     for `zeroForMissing` exactly -1
   - Empty input: 0.0 */
double VB_CorrelPearson(double* x, double* y, int n, short* mask, double* w, short sample, short freqWeights);

/* ---- descriptive/correlation_of_covariance ---- */

/* From S into R, both of order p; R must exist, is not prepared, and may be S. Only the upper triangle and the diagonal
   of S are read; R is symmetric. Flat forms; S and R are p by p and may be the same array, `zeroForMissing` is 0.
   - Missing cells: an ordinary number
   - Divisor: the root of the product of the two variances, where that is above 0; 1.0 on the diagonal where the
     variance is above 1e-12; elsewhere, a NaN included, the fallback: missing, or 0.0 for `zeroForMissing` exactly -1
   - Empty input: nothing is written */
int VB_M_CorrMatFromCovMat(double* S, int p, double* R);

/* In place in a triangle of p columns, column j holding pair (j, k) in cell k - j. Flat forms; S and R are p by p and
   may be the same array, `zeroForMissing` is 0.
   - Missing cells: an ordinary number
   - Divisor: the root of the product of the two variances, where that is above 0; 1.0 on the diagonal where the
     variance is above 1e-12; elsewhere missing
   - Empty input: nothing is written */
int Cpp_M_CorrMatFromCovMatSPV2_T(SAFEARRAY** C, int p);

/* ---- descriptive/triangular_fit ---- */

/* Finds the ends `*a` and `*b` of the triangular distribution with mode m, F(x1) = prob1 and F(x2) = prob2, x1 below
   x2.  With both quantiles on one side of the mode the solution is in closed form. With m from x1 to x2 (ends included)
   a Newton search over b starts at 5 x2, and at the next multiple of x2 each time it ends at or below m, which is no
   upper end; a step below 1e-12 ends it, and so do 500 steps, shared by all starts, after which the last value is
   returned.
   - Missing cells: an ordinary number
   - Divisor: x2 of 0 with the mode between, and prob1 equal to prob2 with the mode outside, are outside the contract
   - Empty input: takes no array
   - Failure: a search that failed is not reported */
void TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b);

/* The function of b whose zero the search looks for, with a chosen so that F(x2) = prob2, and its derivative. */
double TriangularFunc(double b, double x1, double m, double x2, double prob1, double prob2);

/* The function of b whose zero the search looks for, with a chosen so that F(x2) = prob2, and its derivative. */
double TriangularFuncDeriv(double b, double x1, double m, double x2, double prob1, double prob2);

/* The mirror of `TriangularFunc`, a function of a with b chosen so that F(x1) = prob1. The search does not use it.
   - Known weakness: at the lower end it is not 0 */
double TriangularFunc2(double a, double x1, double m, double x2, double prob1, double prob2);

/* Finds the ends `*a` and `*b` of the triangular distribution with mode m, F(x1) = prob1 and F(x2) = prob2, x1 below
   x2.  With both quantiles on one side of the mode the solution is in closed form. With m from x1 to x2 (ends included)
   a Newton search over b starts at 5 x2, and at the next multiple of x2 each time it ends at or below m, which is no
   upper end; a step below 1e-12 ends it, and so do 500 steps, shared by all starts, after which the last value is
   returned. Finds the ends `*a` and `*b` of the triangular distribution with mode m, F(x1) = prob1 and F(x2) = prob2,
   x1 below x2.  With both quantiles on one side of the mode the solution is in closed form. With m from x1 to x2 (ends
   included) a Newton search over b starts at 5 x2, and at the next multiple of x2 each time it ends at or below m,
   which is no upper end; a step below 1e-12 ends it, and so do 500 steps, shared by all starts, after which the last
   value is returned.
   - Missing cells: an ordinary number
   - Divisor: x2 of 0 with the mode between, and prob1 equal to prob2 with the mode outside, are outside the contract
   - Empty input: takes no array
   - Failure: a search that failed is not reported */
void Cpp_TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b);

/* ---- descriptive/forecast_errors ---- */

/* Mean absolute percentage error: 100 times the weighted mean of |1 - f/y|. A `first` of 0 counts as 1.
   - Missing cells: excludes its row, in either vector (equality); so does a y of 0
   - Weights: not tested; null means 1 each
   - Divisor: the sum of the weights; where it is 0 the result is the sum so far, unlike in the two below
   - Empty input: 0.0 */
double VB_MAPE(double* y, double* f, int n, double* w, int first);

/* Mean percentage error: 100 times the weighted mean of (y - f) / y. `first` is used as given: a position before the
   table reads -1.0 in all three vectors.
   - Missing cells: excludes its row, in either vector (equality); so does a y of 0
   - Weights: not tested
   - Divisor: the sum of the weights; missing where it is 0
   - Empty input: the missing value, also for `first` above `n` */
double VB_MPE(double* y, double* f, int n, double* w, int first);

/* Mean absolute error: the weighted mean of |y - f|. `first` as in `MPE`.
   - Missing cells: excludes its row, in either vector (equality); a y of 0 counts
   - Weights: not tested
   - Divisor: the sum of the weights; missing where it is 0
   - Empty input: the missing value, also for `first` above `n` */
double VB_MAE(double* y, double* f, int n, double* w, int first);

/* Root of the sum of (Y - F)^2 over `divisor`, in the 1-based column `col` of both tables. 0.0 for `col` below 1.
   Scores the last column of two n by p tables.
   - Missing cells: a row whose Y is not above the missing value is left out (order), but counts in the caller's
     divisor; F is not tested
   - Divisor: `divisor`, the caller's, not tested
   - Empty input: 0.0 over the divisor */
double VB_RMSE(double* Y, int n, int p, double* F, int divisor);

/* ---- descriptive/means ---- */

/* Sum of w x over the sum of w, each summed in row order. Sum of w x over the sum of w, each summed in row order.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 is left out
   - Divisor: the sum of the weights; missing where it is 0
   - Empty input: the missing value, also where no row enters */
double VB_V_Mean(double* v, int n, short* mask, double* w);

/* Sum of the present cells over their count. Sum of the present cells over their count.
   - Missing cells: left out (equality)
   - Divisor: the count of the present cells
   - Empty input: the missing value, also where no row enters */
double VB_V_Mean2(double* v, int n);

/* `V_Mean` of the absolute values. `V_Mean` of the absolute values.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 is left out
   - Divisor: the sum of the weights; missing where it is 0
   - Empty input: the missing value, also where no row enters */
double VB_V_MeanAbs(double* v, int n, short* mask, double* w);

/* Weighted mean of each column, by the running update mean += d w / W, into p cells. `mean` is prepared with `matCheck`
   (p by 1). `M_MeanSPV` reads an array of column tables. Returns 0. `mean` has p cells; `ignored` is not read.
   - Missing cells: left out (equality)
   - Weights: required; a weight of 0 changes nothing
   - Divisor: the running sum of weights
   - Empty input: a column without rows has mean 0.0, not the missing value */
int VB_M_Mean(double* X, int n, int p, double* mean, int ignored, double* w);

/* Geometric mean and geometric standard deviation: the exponentials of the mean and of the standard deviation of the
   logarithms. Geometric mean and geometric standard deviation: the exponentials of the mean and of the standard
   deviation of the logarithms.
   - Missing cells: left out (equality); a cell at or below 0 that enters makes both results missing, even after good
     rows
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W - W/m; `gsd` is missing where it is 0
   - Empty input: both missing, also where no row enters */
void Cpp_V_GMeanGSD(double* v, int n, short* mask, double* w, double* gmean, double* gsd);

/* Sum of w over the sum of w / x. Sum of w over the sum of w / x.
   - Missing cells: left out (equality); a cell of exactly 0 that enters makes the result missing, even with weight 0
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required, not tested
   - Divisor: the sum of w / x; missing where it is 0
   - Empty input: the missing value, also where no row enters */
double Cpp_V_HarmonicMean(double* v, int n, short* mask, double* w);

/* As `M_Mean`, into a `mean` that must exist; it is not cleared. Returns 0. As `M_Mean`, into a `mean` that must exist;
   it is not cleared. Returns 0.
   - Missing cells: a cell enters only where it is above the missing value (order), which a NaN is not
   - Weights: required, not tested: a weight of 0 ahead of all others divides 0 by 0, and the mean stays NaN
   - Divisor: the running sum of weights
   - Empty input: a column without rows has a missing mean */
int Cpp_M_Mean2(double* X, int n, int p, double* w, double* mean);

/* The plain mean of each column, by the running update mean += d / m. `mean` must exist; it is not cleared. Returns 0.
   The plain mean of each column, by the running update mean += d / m. `mean` must exist; it is not cleared. Returns 0.
   - Missing cells: a cell enters only where it is above the missing value (order), which a NaN is not
   - Divisor: the count of the cells that enter
   - Empty input: a column without rows has a missing mean */
int Cpp_M_Mean3(double* X, int n, int p, double* mean);

/* ---- descriptive/moments ---- */

/* Variance. Variance.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested
   - Empty input: 0/0, a NaN
   - Source: Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
     Updating mean and variance estimates: an improved method */
double VB_V_Var(double* v, int n, short* mask, double* w, short sample, short freqWeights);

/* The square root of `V_Var`; 0.0 for a variance of 0 of either sign. The square root of `V_Var`; 0.0 for a variance of
   0 of either sign.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested
   - Empty input: 0/0, a NaN
   - Source: Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
     Updating mean and variance estimates: an improved method */
double VB_V_Stdev(double* v, int n, short* mask, double* w, short sample, short freqWeights);

/* Mean and variance as in `V_Var`, with two guards. A single row has variance 0.0. Mean and variance as in `V_Var`,
   with two guards. A single row has variance 0.0.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; where Q is 0 the variance is 0.0 whatever
     the divisor
   - Empty input: both 0.0
   - Source: Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
     Updating mean and variance estimates: an improved method */
void VB_V_MeanVar(double* v, int n, double* mean, double* var, short* mask, double* w, short sample, short freqWeights);

/* `V_MeanVar` with the square root of the variance in its place. `V_MeanVar` with the square root of the variance in
   its place.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; where Q is 0 the variance is 0.0 whatever
     the divisor
   - Empty input: both 0.0
   - Source: Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
     Updating mean and variance estimates: an improved method */
void VB_V_MeanStdev(double* v, int n, double* mean, double* stdev, short* mask, double* w, short sample,
                    short freqWeights);

/* Mean and standard deviation of each column. Mean and standard deviation of each column.
   - Missing cells: left out (equality)
   - Mask: `ignoreMask` 0: a nonzero entry excludes its row; -1: not read; any other: every row is excluded; may be null
   - Weights: a row of weight 0 does not enter and does not count in m; null means 1 each
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not above 0 (a NaN is not): missing
   - Empty input: a column without rows has a missing mean and standard deviation
   - Source: Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
     Updating mean and variance estimates: an improved method */
int VB_M_MeanStDev(double* X, int n, int p, double* mean, double* stdev, short* mask, double* w, short sample,
                   short freqWeights, short ignoreMask);

/* Mean and standard deviation of each row over its p columns, which are weighted by the p cells of w.  `mean` is
   prepared with n rows, `stdev` with p rows, and n results are written to each: with n above p those that do not fit
   into `stdev` are dropped; with p above n a table of n rows is replaced. In the flat form, where both arrays have n
   cells, the caller's `stdev` is then left unchanged. Mean and standard deviation of each row over its p columns, which
   are weighted by the p cells of w.  `mean` is prepared with n rows, `stdev` with p rows, and n results are written to
   each: with n above p those that do not fit into `stdev` are dropped; with p above n a table of n rows is replaced. In
   the flat form, where both arrays have n cells, the caller's `stdev` is then left unchanged.
   - Missing cells: left out (equality)
   - Weights: of the columns; null means 1 each. The test for 0 reads the cell of the row's own number: row i loses all
     its columns where cell i of w is 0, and none where i is beyond w. Cell j, the weight of column j, is not tested:
     while the weights still sum to 0 it divides 0 by 0
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not above 0 (a NaN is not): missing
   - Empty input: a row without columns has a missing mean and standard deviation
   - Source: Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
     Updating mean and variance estimates: an improved method */
int VB_M_MeanStDevByRow(double* X, int n, int p, double* mean, double* stdev, double* w, short sample,
                        short freqWeights);

/* Mean, standard deviation and variance of each column. Rows of weight 0 count in m, unlike above. Mean, standard
   deviation and variance of each column. Rows of weight 0 count in m, unlike above.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not above 0 (a NaN is not): missing
   - Empty input: a column without rows has mean 0.0 and a missing variance
   - Source: Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
     Updating mean and variance estimates: an improved method */
int VB_M_MeanStDevVar(double* X, int n, int p, double* mean, double* stdev, double* var, short* mask, double* w,
                      short sample, short freqWeights);

/* The same without mask and weights: Q += d d (1 - 1/m), mean += d / m. The flat form is `V_Var` with unit weights and
   a mask that keeps every row. The same without mask and weights: Q += d d (1 - 1/m), mean += d / m. The flat form is
   `V_Var` with unit weights and a mask that keeps every row.
   - Missing cells: left out (equality)
   - Divisor: m - 1 for `sample` -1, else m; not tested
   - Empty input: 0/0, a NaN
   - Source: Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
     Updating mean and variance estimates: an improved method */
double Cpp_V_Var2(double* v, int n, short sample, short freqWeights);

/* ---- descriptive/shape_moments ---- */

/* Mean, variance, skewness and excess kurtosis of the first n cells of v, in the population form (P) and the sample
   form (S), with the standard errors of the sample forms. m is the number of rows that enter and W the sum of their
   weights.  With `wbar` = W/m (0 without rows), c = 1 for `freqWeights` -1 and wbar otherwise, and D = W - c, the
   variance is divided by D for `sample` -1 and by W otherwise, and both population forms are divided by powers of that
   variance. They are skewP = (M3 / W) / var^1.5             kurtP = (M4 / W) / var^2 - 3 and the sample forms skewS =
   sqrt(W D) skewP / (W - 2c)     kurtS = D ((W + c)(kurtP + 3) - 3 D) / ((W - 2c)(W - 3c)) which for unit weights and a
   variance divided by W are G1 and G2. For `sample` -1 the powers of the other variance stay in them: skewS is then G1
   ((n - 1)/n)^1.5.  The mean is always written. The missing value is the result for the five others
   where D is 0 with `sample` -1, or W is 0 with `sample` 0 the four shape results            where the variance is 0
   `skewS` and `seSkew`              unless W - 2 wbar is above 0 (wbar also where c is 1) `kurtS` and `seKurt`
   unless W - 2c and W - 3c are above 0 In the first two cases `seSkew` and `seKurt` are not written. Mean, variance,
   skewness and excess kurtosis of the first n cells of v, in the population form (P) and the sample form (S), with the
   standard errors of the sample forms. m is the number of rows that enter and W the sum of their weights.  With `wbar`
   = W/m (0 without rows), c = 1 for `freqWeights` -1 and wbar otherwise, and D = W - c, the variance is divided by D
   for `sample` -1 and by W otherwise, and both population forms are divided by powers of that variance. They are skewP
   = (M3 / W) / var^1.5             kurtP = (M4 / W) / var^2 - 3 and the sample forms skewS = sqrt(W D) skewP / (W - 2c)
   kurtS = D ((W + c)(kurtP + 3) - 3 D) / ((W - 2c)(W - 3c)) which for unit weights and a variance divided by W are G1
   and G2. For `sample` -1 the powers of the other variance stay in them: skewS is then G1 ((n - 1)/n)^1.5.  The mean is
   always written. The missing value is the result for the five others                   where D is 0 with `sample` -1,
   or W is 0 with `sample` 0 the four shape results            where the variance is 0 `skewS` and `seSkew`
   unless W - 2 wbar is above 0 (wbar also where c is 1) `kurtS` and `seKurt`              unless W - 2c and W - 3c are
   above 0 In the first two cases `seSkew` and `seKurt` are not written.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: required; a row of weight 0 counts in m, else changes nothing
   - Divisor: D = W - c for `sample` -1, else W, c being 1 for `freqWeights` -1 and W/m otherwise; where it is 0 the
     five results but the mean are missing, where the variance is 0 the four shapes
   - Empty input: mean 0.0, the others as the divisor has it
   - Source: the one-pass updates: Terriberry (2007) and Pebay (2008), here weighted; G1 and G2: Joanes and Gill (1998) */
void VB_V_MeanVarSkewPKurtP(double* v, int n, double* mean, double* var, double* skewP, double* kurtP, double* skewS,
                            double* kurtS, double* seSkew, double* seKurt, short* mask, double* w, short sample,
                            short freqWeights);

/* ---- descriptive/conditional_moments ---- */

/* The sum of the selected cells over their count. The sum of the selected cells over their count.
   - Missing cells: left out, in the cell or in the code (equality): selecting for the missing value selects nothing
   - Divisor: the count of the selected cells
   - Empty input: the missing value, also where no row is selected */
double VB_V_MeanIf(double* v, int n, double* g, double value);

/* The sum of w x over the sum of w. The sum of w x over the sum of w.
   - Missing cells: left out, in the cell or in the code (equality): selecting for the missing value selects nothing
   - Weights: a row whose weight is not above 0 is left out
   - Divisor: the sum of the weights
   - Empty input: the missing value, also where no row is selected */
double VB_V_MeanIfW(double* v, int n, double* g, double* w, double value);

/* Variance by the running update Q += d d (1 - 1/m), mean += d / m. Variance by the running update Q += d d (1 - 1/m),
   mean += d / m.
   - Missing cells: left out, in the cell or in the code (equality): selecting for the missing value selects nothing
   - Divisor: m - 1 for `sample` -1, else m; missing where that is not above 0
   - Empty input: the missing value, also where no row is selected */
double VB_V_VarIf(double* v, int n, double* g, double value, short sample);

/* The weighted variance by Q += d d w (1 - w/W), mean += d w / W. The weighted variance by Q += d d w (1 - w/W), mean
   += d w / W.
   - Missing cells: left out, in the cell or in the code (equality): selecting for the missing value selects nothing
   - Weights: one of 0 enters, unlike in `V_MeanIfW`, and in the first selected row divides 0 by 0: the result is NaN;
     one below 0 does not enter
   - Divisor: W - 1 for `sample` -1, else W; missing where that is not above 0
   - Empty input: the missing value, also where no row is selected */
double VB_V_VarIfW(double* v, int n, double* g, double* w, double value, short sample);

/* ---- descriptive/quantiles ---- */

/* The element at position (n-1)p of the sorted values, or between its neighbours a and b the value (1-g) a + g b, g
   being the fraction of the position; neighbours that are equal give themselves. Exactly 0 and 1 give the smallest and
   the largest element. The element at position (n-1)p of the sorted values, or between its neighbours a and b the value
   (1-g) a + g b, g being the fraction of the position; neighbours that are equal give themselves. Exactly 0 and 1 give
   the smallest and the largest element.
   - Missing cells: counted: it sorts to the front
   - Divisor: position (n - 1) p
   - Empty input: -1.0
   - Source: rule 7 of Hyndman and Fan (1996), Sample quantiles in statistical packages */
double VB_V_Quantile(double* x, int n, double p);

/* With weights: a step rule. With T the sum of the weights that are not missing, and C the sum of the weights of the
   elements before the i-th in sorted order, the first i where C equals p T gives the mean of elements i-1 and i, or
   where C is above p T element i-1; the last element if there is none. Ties keep the order of the input. p of exactly 0
   gives the smallest element, p of 1 the largest. With weights: a step rule. With T the sum of the weights that are not
   missing, and C the sum of the weights of the elements before the i-th in sorted order, the first i where C equals p T
   gives the mean of elements i-1 and i, or where C is above p T element i-1; the last element if there is none. Ties
   keep the order of the input. p of exactly 0 gives the smallest element, p of 1 the largest.
   - Missing cells: counted: it sorts to the front
   - Weights: T leaves out missing ones, C does not. Weights that are all equal (missing ones left out) give
     `V_Quantile`, not the step rule; an element of weight 0 can still be the smallest or largest
   - Empty input: the missing value, also where no present value has a weight above 0 */
double VB_V_QuantileW(double* v, int n, double* w, double p);

/* `V_Quantile` and `V_QuantileW` of the rows that the mask keeps and whose value is present. `V_Quantile` and
   `V_QuantileW` of the rows that the mask keeps and whose value is present.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Divisor: position (n - 1) p among those left
   - Empty input: the missing value, also where no row is left */
double VB_V_QuantileM(double* v, int n, short* mask, double p);

/* `V_Quantile` and `V_QuantileW` of the rows that the mask keeps and whose value is present. `V_Quantile` and
   `V_QuantileW` of the rows that the mask keeps and whose value is present.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: as in `V_QuantileW`, on the rows left; a missing weight stays
   - Empty input: the missing value, also where no row is left */
double VB_V_QuantileMW(double* v, int n, short* mask, double* w, double p);

/* The quantiles 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95, in that order, into the first 13
   cells of `out`, which must exist. Between neighbours a and b the result is a + g (b-a), and before the first element
   that element. The vector is left sorted; in the flat form the caller's array is not. The quantiles 0.05, 0.1, 0.2,
   0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95, in that order, into the first 13 cells of `out`, which must
   exist. Between neighbours a and b the result is a + g (b-a), and before the first element that element. The vector is
   left sorted; in the flat form the caller's array is not.
   - Missing cells: counted: it sorts to the front
   - Divisor: position, counted from 1, (n - 1) p + 0.5, or + 1 above p = 0.5
   - Empty input: reads -1.0 throughout
   - Known weakness: the 0.5 quantile is at position n/2 and is not the median, which is at (n + 1)/2 */
void Cpp_V_Quantiles13(double* x, int n, double* out);

/* ---- descriptive/robust_statistics ---- */

/* Median of |v - centre|. Median of |v - centre|.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: all equal: the median by interpolation, else the step rule of `V_QuantileMW`
   - Empty input: the missing value, also where nothing is left */
double Cpp_V_MedianAbsDev(double* v, int n, double centre, short* mask, double* w);

/* Sum of w |v - centre| over the sum of w, over the same rows. Sum of w |v - centre| over the sum of w, over the same
   rows.
   - Missing cells: left out (equality)
   - Mask: a nonzero entry excludes its row; may be null
   - Weights: not tested
   - Divisor: the sum of the weights; missing where it is 0
   - Empty input: the missing value */
double Cpp_V_MeanAbsDev(double* v, int n, double centre, short* mask, double* w);

/* Median of |v - centre|, without mask and weights. Median of |v - centre|, without mask and weights.
   - Missing cells: counted, unlike above, as the lowest value and the lowest deviation: it draws both medians down. A
     missing centre is first set to the median of v
   - Empty input: -1.0 */
double Cpp_V_MedianAbsDev2(double* v, int n, double* centre);

/* Mean and standard deviation by the running update mean += d / m, Q += d d (1 - 1/m). Mean and standard deviation by
   the running update mean += d / m, Q += d d (1 - 1/m).
   - Missing cells: a cell enters where it is above the missing value (order), which a NaN is not
   - Divisor: m - 1 for `sample` exactly -1, else m; not tested: a single cell with `sample` -1 has a NaN deviation
   - Empty input: mean 0.0, also without cells that enter; the deviation is a NaN, or -0.0 for `sample` -1 */
void Cpp_V_MeanStdev2(double* v, int n, short sample, double* mean, double* stdev);

/* Clips the vector in place to its own quantiles at `pLow` and `pHigh`. Clips the vector in place to its own quantiles
   at `pLow` and `pHigh`.
   - Missing cells: left unchanged, but counts in both quantiles
   - Empty input: nothing happens */
void Cpp_V_Winsorize2(double* v, int n, double pLow, double pHigh);

/* z-scores into the first n cells of `out`, which must exist.  `kind` 0: (v - mean) / stdev. Where `*mean` is the
   missing value, both are first computed by `V_MeanStdev2` with the divisor m - 1, and returned. Any other `kind`: (v -
   median) 0.6745 / D, D the median absolute deviation by `V_MedianAbsDev2`; `mean` and `stdev` are neither read nor
   written. z-scores into the first n cells of `out`, which must exist.  `kind` 0: (v - mean) / stdev. Where `*mean` is
   the missing value, both are first computed by `V_MeanStdev2` with the divisor m - 1, and returned. Any other `kind`:
   (v - median) 0.6745 / D, D the median absolute deviation by `V_MedianAbsDev2`; `mean` and `stdev` are neither read
   nor written.
   - Missing cells: computed like an ordinary number
   - Divisor: stdev or D; where it is not above 2.220446049250313e-16 every score is missing
   - Empty input: nothing is written
   - Source: the scores by D: Iglewicz and Hoaglin (1993), How to Detect and Handle Outliers */
void Cpp_V_ZScores(double* v, int n, int kind, double* mean, double* stdev, double* out);

/* ---- descriptive/column_scaling ---- */

/* Each column less its mean.
   - Missing cells: left out of the mean (equality); then shifted like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter the mean
   - Divisor: the sum of weights (`sample` 0)
   - Empty input: a column without rows has a missing mean, which is subtracted like an ordinary number */
void VB_M_Center(double* X, int n, int p, double* Z);

/* Each column less its mean.
   - Missing cells: left out of the mean (equality); then shifted like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter the mean
   - Divisor: the sum of weights (`sample` 0)
   - Empty input: a column without rows has a missing mean, which is subtracted like an ordinary number */
void VB_M_CenterW(double* X, int n, int p, double* w, double* Z);

/* Each column less its mean.
   - Missing cells: left out of the mean (equality); then shifted like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter the mean
   - Divisor: the sum of weights (`sample` 0)
   - Empty input: a column without rows has a missing mean, which is subtracted like an ordinary number */
void VB_M_Center2(double* X, int n, int p);

/* Each column less its mean.
   - Missing cells: left out of the mean (equality); then shifted like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter the mean
   - Divisor: the sum of weights (`sample` 0)
   - Empty input: a column without rows has a missing mean, which is subtracted like an ordinary number */
void VB_M_Center2SPV(SAFEARRAY** X, int n, int p);

/* Each column less its mean.
   - Missing cells: left out of the mean (equality); then shifted like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter the mean
   - Divisor: the sum of weights (`sample` 0)
   - Empty input: a column without rows has a missing mean, which is subtracted like an ordinary number */
void VB_M_CenterW2(double* X, int n, int p, double* w);

/* Each column over its standard deviation.
   - Missing cells: left out of the statistics (equality); then divided like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout
   - Empty input: a column without rows has no spread */
void VB_M_Reduce(double* X, int n, int p, double* Z, short sample, short freqWeights);

/* Each column over its standard deviation.
   - Missing cells: left out of the statistics (equality); then divided like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout
   - Empty input: a column without rows has no spread */
void VB_M_ReduceW(double* X, int n, int p, double* w, double* Z, short sample, short freqWeights);

/* Each column over its standard deviation.
   - Missing cells: left out of the statistics (equality); then divided like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout
   - Empty input: a column without rows has no spread */
void VB_M_Reduce2(double* X, int n, int p, short sample);

/* Each column over its standard deviation.
   - Missing cells: left out of the statistics (equality); then divided like an ordinary number
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout
   - Empty input: a column without rows has no spread */
void VB_M_ReduceW2(double* X, int n, int p, double* w, short sample, short freqWeights);

/* Each column less its mean, over its standard deviation.
   - Missing cells: left out of the statistics (equality) and stays missing
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout, missing cells too
   - Empty input: a column without rows has no spread and missing statistics */
void VB_M_Standardize2(double* X, int n, int p, short sample);

/* Each column less its mean, over its standard deviation.
   - Missing cells: left out of the statistics (equality) and stays missing
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout, missing cells too
   - Empty input: a column without rows has no spread and missing statistics */
void VB_M_Standardize2SPV(SAFEARRAY** X, int n, int p, short sample);

/* Each column less its mean, over its standard deviation.
   - Missing cells: left out of the statistics (equality) and stays missing
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout, missing cells too
   - Empty input: a column without rows has no spread and missing statistics */
void VB_M_Standardize3(double* X, int n, int p, double* mean, double* stdev, short sample, short freqWeights);

/* Each column less its mean, over its standard deviation.
   - Missing cells: left out of the statistics (equality) and stays missing
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout, missing cells too
   - Empty input: a column without rows has no spread and missing statistics */
void VB_M_StandardizeW2(double* X, int n, int p, double* w, short sample, short freqWeights);

/* Each column less its mean, over its standard deviation.
   - Missing cells: left out of the statistics (equality) and stays missing
   - Weights: in the W forms a row of weight 0 does not enter
   - Divisor: s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
     throughout, missing cells too
   - Empty input: a column without rows has no spread and missing statistics */
void VB_M_StandardizeW3(double* X, int n, int p, double* w, double* mean, double* stdev, short sample,
                        short freqWeights);

/* Applies the given means and deviations, p cells each, in place.
   - Missing cells: computed like an ordinary number
   - Divisor: the given deviation; where that is not above 0 the whole column becomes missing
   - Empty input: nothing is written */
void Cpp_M_StandardizeApply2(double* X, int n, int p, double* mean, double* stdev);

/* Centres (`M_Center2`) or, with `reduce` exactly -1, standardises (`M_Standardize2`) the rows of each group
   separately, in place. A row belongs to group k, from 1 to `nGroups`, where its cell of `g` equals k exactly; other
   rows are left unchanged.
   - Missing cells: left out of the statistics (equality); shifted when centring, stays missing when standardising
   - Divisor: s of the group, by `sample`, with `freqWeights` -1; without spread 0.0 throughout
   - Empty input: a group without rows changes nothing */
void Cpp_M_StandardizeByGroup(double* X, int n, int p, double* g, int nGroups, short reduce, short sample);

/* ---- descriptive/standardisation ---- */

/* Standardises the columns of X into Z, and returns their means, standard deviations and variances (all `matCheck`: n
   by p, and p by 1). The statistics are the running update of `M_MeanStDevVar`. A divisor of 0 makes the three
   statistics of its column missing; the cells of that column and all later columns are left as `matCheck` made them.
   The functions of the same names.
   - Missing cells: left out of the statistics (equality) and comes out missing
   - Mask: a nonzero entry excludes its row: the cells come out missing; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 (not NaN) ends the call. A
     deviation of 0 divides as 1.0
   - Empty input: the divisor is 0, which ends the call, except for frequencies */
void VB_M_Standardize(double* X, int n, int p, double* Z, double* mean, double* stdev, double* var, short* mask,
                      double* w, short sample, short freqWeights);

/* The same idea without a mask, into the existing Z: Q += d d w (1 - w/W). The functions of the same names.
   - Missing cells: an ordinary number: no test
   - Weights: required, not tested
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/n, n being the argument; not tested. A
     deviation of 0 divides as 1.0
   - Empty input: nothing is written */
void VB_M_StandardizeW(double* X, int n, int p, double* w, short sample, short freqWeights, double* Z);

/* (x - mean) / divisor into Z (`matCheck`, n by p). `stdev`, `var` and `mask` may be null, but not both `stdev` and
   `var`.
   - Missing cells: in a kept row not tested; with a null mask excludes its whole row: this form is listwise
   - Mask: a nonzero entry excludes its row: the cells come out missing; null excludes the rows with a missing cell
   - Divisor: `stdev`, or the root of `var` where that is null; 0 divides as 1.0
   - Empty input: nothing is written */
void VB_M_StandardizeKnownMeansStDev(double* X, int n, int p, double* mean, double* Z, double* stdev, double* var,
                                     short* mask);

/* Standardises X in place (`M_Standardize` with unit weights, no mask, divisor W), and divides the first `nY` cells of
   each column of Y and `nV` of V by that column's deviation: they are not centred. The functions of the same names.
   - Missing cells: of X stays missing (equality); of Y and V it is divided like an ordinary number
   - Divisor: W; Y and V are divided by the deviations of X
   - Empty input: nothing is written */
void VB_M_StandardizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV);

/* Subtracts from every cell of a row the row's first cell, read again each time: the first column becomes 0.0 (a NaN or
   an infinity in it spreads), the others are left unchanged. The functions of the same names.
   - Missing cells: an ordinary number
   - Empty input: nothing happens */
void Cpp_M_SubstractFirstCol2(double* X, int n, int p);

/* Standardises the columns of X into Z, and returns their means, standard deviations and variances (all `matCheck`: n
   by p, and p by 1). The statistics are the running update of `M_MeanStDevVar`. A divisor of 0 makes the three
   statistics of its column missing; the cells of that column and all later columns are left as `matCheck` made them.
   `VB_M_Standardize` of one column, with `freqWeights` 0; the form with a 2 writes over x.
   - Missing cells: left out of the statistics (equality) and comes out missing
   - Mask: a nonzero entry excludes its row: the cells come out missing; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 (not NaN) ends the call. A
     deviation of 0 divides as 1.0
   - Empty input: the divisor is 0, which ends the call */
void VB_V_Standardize(double* x, int n, short* mask, double* w, short sample, double* z);

/* `VB_M_Standardize` of one column, with `freqWeights` 0; the form with a 2 writes over x.
   - Missing cells: left out of the statistics (equality) and comes out missing
   - Mask: a nonzero entry excludes its row: the cells come out missing; may be null
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 (not NaN) ends the call. A
     deviation of 0 divides as 1.0
   - Empty input: the divisor is 0, which ends the call */
void VB_V_Standardize2(double* x, int n, short* mask, double* w, short sample);

/* Each column by itself, with a mask of its own and `freqWeights` 0. The form with a 2 writes over X.
   - Missing cells: excludes its cell (order), which comes out missing
   - Mask: exactly -1 in `a` excludes the row: its cells come out missing
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 (not NaN) ends the call. A
     deviation of 0 divides as 1.0
   - Empty input: a divisor of 0 ends the column */
void VB_M_StandardizeByVect(double* X, int n, int p, short* a, double* w, short sample, double* Z);

/* Each column by itself, with a mask of its own and `freqWeights` 0. The form with a 2 writes over X.
   - Missing cells: excludes its cell (order), which comes out missing
   - Mask: exactly -1 in `a` excludes the row: its cells come out missing
   - Weights: required; a row of weight 0 changes no sum but counts in m
   - Divisor: W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 (not NaN) ends the call. A
     deviation of 0 divides as 1.0
   - Empty input: a divisor of 0 ends the column */
void VB_M_StandardizeByVect2(double* X, int n, int p, short* a, double* w, short sample);

/* ---- descriptive/rescaling ---- */

/* Divides the cells of each column, in place, by the column's norm L and multiplies them by the root of n / (n - 1), n
   being the argument. L, into norms (`matCheck`, p by 1), is the root of the sum of x x w. The functions of the same
   names.
   - Missing cells: left unchanged, and left out of the norm (equality)
   - Mask: a nonzero entry: the row is left unchanged and out of the norm; may be null
   - Weights: multiply the squares in the norm, where a weight of 0 adds nothing; null means 1 each
   - Divisor: L and the root of n / (n - 1), without a guard: a column of zeros becomes NaN
   - Empty input: norm 0 */
void VB_M_Normalize(double* X, int n, int p, double* norms, short* mask, double* w);

/* `M_Normalize` of X with unit weights and no mask; then the first `nY` cells of each column of Y and `nV` of V are
   divided by that column's norm and multiplied by the same root. The functions of the same names.
   - Missing cells: of X is left unchanged (equality); of Y and V it is divided like an ordinary number
   - Divisor: the norm of the column of X and the root of n / (n - 1), without a guard
   - Empty input: norm 0 */
void VB_M_NormalizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV);

/* Brings the vector to the range from `low` to `high`, into the existing out: (x - min) (high - low) / (max - min) +
   low, with the minimum and maximum of the present cells that the mask keeps. The functions of the same names.
   - Missing cells: left out of minimum and maximum (equality); computed like an ordinary number all the same
   - Mask: a nonzero entry excludes its row: the cell comes out missing
   - Divisor: maximum less minimum; where it is below 2.220446049250313e-16 every kept cell becomes the middle of the
     range
   - Empty input: nothing is written */
void VB_V_Rescale(double* v, int n, double low, double high, short* mask, double* out);

/* `VB_V_Rescale` over its own array.
   - Missing cells: left out of minimum and maximum (equality); computed like an ordinary number all the same
   - Mask: a nonzero entry excludes its row: the cell comes out missing
   - Divisor: maximum less minimum; where it is below 2.220446049250313e-16 every kept cell becomes the middle of the
     range
   - Empty input: nothing is written */
void VB_V_Rescale2(double* x, int n, double low, double high, short* mask);

/* Each column by itself, with a mask of its own. The form with a 2 writes over X.
   - Missing cells: excludes its cell (order), which comes out missing
   - Mask: exactly -1 in `a` excludes the row: its cells come out missing
   - Divisor: maximum less minimum of the column; where it is below 2.220446049250313e-16 every kept cell becomes the
     middle of the range
   - Empty input: nothing is written */
void VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a, double* Z);

/* Each column by itself, with a mask of its own. The form with a 2 writes over X.
   - Missing cells: excludes its cell (order), which comes out missing
   - Mask: exactly -1 in `a` excludes the row: its cells come out missing
   - Divisor: maximum less minimum of the column; where it is below 2.220446049250313e-16 every kept cell becomes the
     middle of the range
   - Empty input: nothing is written */
void VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a);

/* ---- randomisation/kronecker_product ---- */

/* The Kronecker product of A (m by n) and B (p by q): cell (k, l) of block (i, j) of C is A(i, j) B(k, l). C must exist
   with exactly p m rows and q n columns. A cell beyond A or B reads -1.0 and takes part. C must be another table than A
   and B. The same over column-major arrays: A of m by n, B of p by q, C of `rowsC` by `colsC`, written in place.
   - Missing cells: an ordinary number
   - Empty input: nothing happens
   - Failure: with any other shape of C nothing happens, and nothing is reported */
void Cpp_KroneckerTensorProduct(double* A, int m, int n, double* B, int p, int q, double* C, int rowsC, int colsC);

/* ---- randomisation/contingency_tables ---- */

/* Copies T (n by p) to R without the rows and columns whose sums are at or below 1e-12, so without lines of negative
   sum too. The rows and columns that are kept move up and to the left in R; R keeps its values after them, except for
   cells that they moved over. A sum that is NaN is kept.  Both margins are taken once, from the whole of T: a dropped
   column still counts in the sums of the rows.  Entry j of `zeroCols` and entry i of `zeroRows` become 1 for a dropped
   line. Those of kept lines are not written, so the caller clears both before. `colsLeft` and `rowsLeft` are the
   numbers of lines kept. R may be T itself. The same over column-major arrays: T and R of n by p, n flags of rows, p
   flags of columns. R is written in place.
   - Missing cells: left out of the sums (equality); a line that is missing throughout is dropped
   - Empty input: a line without cells is dropped */
void Cpp_CheckForMarginalSums(double* T, int n, int p, double* R, int* rowsLeft, int* colsLeft, int* zeroRows,
                              int* zeroCols);

/* ---- randomisation/letter_groups ---- */

/* Groups `n` items in the ascending order of column `col` of X, 1-based; 0 is the first column. Cell (i, j) of `comp`,
   n by n, is 0 where items i and j do not differ, any other number where they do; only the cells below the diagonal are
   read.  `labels`: the n by n cells at its top left are cleared, then receive the letters. `keepOrder` 0 sorts the rows
   of X (the first column if `col` is 0, otherwise columns 1 to `col`), and `order` becomes the item numbers in the
   sorted order, like the rows of `labels`. With any other value X is left unchanged, `order` is 1 to n, and the rows of
   `labels`, all its columns, are put back into the order of the items. The same over column-major arrays: X of n by
   `col` (one column if `col` is 0), `comp` of n by n, `order` of n, `labels` of n by 256. All labels come back as new
   BSTRs that the caller owns, the old ones are not released; cells after the n-th column come back with the caller's
   text.
   - Missing cells: a mean is missing by the order test, a NaN too except in the first place: it opens no group
   - Empty input: nothing is changed */
void Cpp_GetCompMatrices(double* X, int n, int col, int* comp, short keepOrder, int* order, wchar_t** labels,
                         int* nGroups);

/* ---- randomisation/permutations ---- */

/* One draw in a frame of its own.
   - Missing cells: not read: moves like any other cell
   - Empty input: takes no array
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
double GenerateRandom01(int* seed, short seedFlag, int* seedOut);

/* Permute the first `n` elements of `v` in place.
   - Missing cells: not read: moves like any other cell
   - Empty input: nothing is drawn and nothing moves; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void Cpp_V_Shuffle(double* v, int n, int* seed, short seedFlag, int* seedOut);

/* Permute the first `n` elements of `v` in place.
   - Missing cells: not read: moves like any other cell
   - Empty input: nothing is drawn and nothing moves; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void Cpp_V_ShuffleLng(int* v, int n, int* seed, short seedFlag, int* seedOut);

/* Permute the first `n` rows over the first `p` columns of `X` into `Z`, each row staying whole; `X` is not written.
   The form for numbers first makes `Z` a copy of all of `X`, dimensions included: its block must be large enough, and
   what lies outside the given rows and columns comes along unchanged. The form for strings copies the `n` by `p` block
   to the top left corner of `Z` and leaves the rest of it; there a `p` of 0 counts as 1 for the sort.
   - Missing cells: not read: moves like any other cell
   - Empty input: nothing is drawn and nothing moves; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void Cpp_M_ShuffleDbl(double* X, int n, int p, double* Z, int* seed, short seedFlag, int* seedOut);

/* The same in place. A `p` of 0 moves the first column of strings, but no numbers.
   - Missing cells: not read: moves like any other cell
   - Empty input: nothing is drawn and nothing moves; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void Cpp_M_ShuffleDbl2(double* X, int n, int p, int* seed, short seedFlag, int* seedOut);

/* Permute the first `n` rows over the first `p` columns of `X` into `Z`, each row staying whole; `X` is not written.
   The form for numbers first makes `Z` a copy of all of `X`, dimensions included: its block must be large enough, and
   what lies outside the given rows and columns comes along unchanged. The form for strings copies the `n` by `p` block
   to the top left corner of `Z` and leaves the rest of it; there a `p` of 0 counts as 1 for the sort. Each element of
   the result, `Z` or in the second form `X`, becomes a new BSTR that the caller owns.
   - Missing cells: not read: moves like any other cell
   - Empty input: nothing is drawn and nothing moves; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void Cpp_M_ShuffleStr(wchar_t** X, int n, int p, wchar_t** Z, int* seed, short seedFlag, int* seedOut);

/* The same in place. A `p` of 0 moves the first column of strings, but no numbers.
   - Missing cells: not read: moves like any other cell
   - Empty input: nothing is drawn and nothing moves; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void Cpp_M_ShuffleStr2(wchar_t** X, int n, int p, int* seed, short seedFlag, int* seedOut);

/* The numbers 1 to `n` in random order into the first `n` cells of `out`, which must exist: item i, which is number i,
   goes to the place that key i takes among the keys. Keys 0.4, 0.1, 0.9, 0.2, 0.6 give 2, 4, 1, 5, 3.
   - Missing cells: overwritten
   - Empty input: nothing is drawn; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void Cpp_Random1toNLng(int n, int* out, int* seed, short seedFlag, int* seedOut);

/* The numbers 1 to `n` in random order into the first `n` cells of `out`, which must exist: item i, which is number i,
   goes to the place that key i takes among the keys. Keys 0.4, 0.1, 0.9, 0.2, 0.6 give 2, 4, 1, 5, 3.
   - Missing cells: overwritten
   - Empty input: nothing is drawn; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void Cpp_Random1toNDbl(int n, double* out, int* seed, short seedFlag, int* seedOut);

/* Marks a random subset: of the first `n` cells of `out`, which must exist, the `k` with the smallest of `n` draws
   become 1.0 and the others 0.0. All are 1.0 with `k` above `n`, all 0.0 with `k` of 0 or below; the draws are the same
   `n`. The series stays open until the last cell is written.
   - Missing cells: overwritten
   - Empty input: nothing is drawn; the frame of the series is opened and closed
   - Random numbers: `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The
     generator may change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new
     seed there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass
     it as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
     generator with one series for the process allows one such call at a time */
void VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short seedFlag, int* seedOut);

/* Prepares `out` as a column of `n` cells at 0.0, then sets cells `first` to `last`, 1-based and both included, to 1.0.
   Numbers outside the table are dropped; in a larger table, which is kept, those above `n` are not.
   - Missing cells: overwritten
   - Empty input: nothing is set
   - Random numbers: none: it draws nothing */
void VB_GenerateIndicator(double* out, int n, int first, int last);

/* ---- randomisation/column_addresses ---- */

/* Puts the pieces of an address list in the order of their last columns (pieces with the same last column keep the
   order of the input), and merges runs of neighbours: pieces whose first column follows the last column of the piece
   before. Pieces that overlap or repeat are not merged, and of a piece of several columns only the two ends count.
   'S'!$D:$D,'S'!$A:$A,'S'!$B:$B    becomes    'S'!$A:$B,'S'!$D:$D 'S'!$A:$A,'S'!$C:$C,'S'!$D:$D    becomes
   'S'!$A:A,'S'!$C:$D  The second shows a settled part of the format: the last column of a piece has no "$" where the
   next piece is found not to follow it when the two are compared as a pair. Where a run has been closed, the pair of
   the run and the piece after it has already been compared, so a run always ends with "$"; so does the last piece of
   all.  A text without "," is returned unchanged, whatever it holds; every other is taken for a list: - All pieces come
   out under the sheet of the first one: the names of other sheets are lost. - A column that begins with a digit ends
   the reading. This piece and those after it have no columns, except for a first column already read, and come to the
   front: 'S'!$A:$A,'S'!$1:$5 becomes 'S'!$:,'S'!$A:$A. - Two empty columns follow each other, as the successor of no
   letters is no letters. - Where a delimiter is missing, the rest of the text is not shortened, and the next column is
   searched for in the same place. An empty last column counts as column -64. The input is never changed. The same for a
   BSTR, which is only read. The result is a new BSTR that the caller owns, also where it is empty. */
wchar_t* SimplifyRange(const void* input);

/* The next column name, letter by letter from the last: Z becomes A and carries into the letter before, any other
   letter becomes its successor by character number. No letter is added when the carry runs off the front: AZ gives BA,
   but Z gives A and ZZ gives AA. An empty text stays empty. The argument is never changed. The same for a BSTR, which
   is only read. The result is a new BSTR that the caller owns, also where it is empty. */
wchar_t* Increase1Col(const void* letters);

/* ---- randomisation/sampling_with_repeats ---- */

/* Draw `n` rows with replacement: draw u, of `n` in one series, takes row floor(u N) + 1. The sample comes out in the
   order of the population, repeats next to each other, and `ids`, of `n` cells, receives the rows taken in that order.
   A `p` of 0 copies nothing; the sort then moves the first column of a plain `Z`, but no column of an array.
   - Missing cells: copied unchanged; so is the empty string
   - Empty input: with `n` below 1 the series is opened and closed, and nothing else happens
   - Random numbers: one series for the call, shared as permutations.h tells */
void VB_M_SamplingWithReplacement(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed, short seedFlag,
                                  int* seedOut);

/* Draw `n` rows with replacement: draw u, of `n` in one series, takes row floor(u N) + 1. The sample comes out in the
   order of the population, repeats next to each other, and `ids`, of `n` cells, receives the rows taken in that order.
   A `p` of 0 copies nothing; the sort then moves the first column of a plain `Z`, but no column of an array.
   - Missing cells: copied unchanged; so is the empty string
   - Empty input: with `n` below 1 the series is opened and closed, and nothing else happens
   - Random numbers: one series for the call, shared as permutations.h tells */
void VB_M_SamplingWithReplacementSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                     short seedFlag, int* seedOut);

/* Copy row i of the population f times, f being cell i of `freq` truncated to an integer, and not at all where that is
   not above 0. `Z` and `ids`, which receives the number of the row copied, have a row for each copy; rows beyond the
   copies are left unchanged. Nothing is drawn. The size of the sample is the sum of `freq`, missing cells left out,
   truncated: with fractions it can be larger than the number of copies, whose counts are truncated one by one; with
   negative counts smaller.
   - Missing cells: copied unchanged; a missing count, like an infinite or NaN one, copies no row
   - Empty input: with `N` below 1 nothing happens */
void VB_M_SampleUserDefined(wchar_t** S, int N, int p, wchar_t** Z, double* freq, double* ids);

/* Copy row i of the population f times, f being cell i of `freq` truncated to an integer, and not at all where that is
   not above 0. `Z` and `ids`, which receives the number of the row copied, have a row for each copy; rows beyond the
   copies are left unchanged. Nothing is drawn.
   - Missing cells: copied unchanged; a missing count, like an infinite or NaN one, copies no row
   - Empty input: with `N` below 1 nothing happens */
void VB_M_SampleUserDefinedSPV(SAFEARRAY** S, int N, int p, SAFEARRAY** Z, double* freq, double* ids);

/* ---- randomisation/interval_sampling ---- */

/* Take rows s, s + t, s + 2 t, ... of `S`, `n` at most, s being floor(M u) + 1 for one draw u, whose series is closed
   before any row is copied. `ids`, of `N` cells, becomes N + 1 for each row not taken; for a row taken it stays as the
   caller set it. With `n` of 1, or above `N`, row s alone is taken.
   - Missing cells: copied unchanged; so is the empty string
   - Divisor: the step floor((N - 1) / (n - 1)); 0 with `n` above `N`
   - Empty input: with `n` below 1 one number is drawn, and no row taken
   - Random numbers: one series for the call, shared as permutations.h tells
   - Source: W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 8
   - Known weakness: a start beyond M is never drawn, so some rows are never in a sample: 72 of 100 for 7 of 100 */
void VB_M_SamplingSystematicRdStart(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                    short seedFlag, int* seedOut);

/* Take rows s, s + t, s + 2 t, ... of `S`, `n` at most, s being floor(M u) + 1 for one draw u, whose series is closed
   before any row is copied. `ids`, of `N` cells, becomes N + 1 for each row not taken; for a row taken it stays as the
   caller set it. With `n` of 1, or above `N`, row s alone is taken.
   - Missing cells: copied unchanged; so is the empty string
   - Divisor: the step floor((N - 1) / (n - 1)); 0 with `n` above `N`
   - Empty input: with `n` below 1 one number is drawn, and no row taken
   - Random numbers: one series for the call, shared as permutations.h tells
   - Source: W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 8
   - Known weakness: a start beyond M is never drawn, so some rows are never in a sample: 72 of 100 for 7 of 100 */
void VB_M_SamplingSystematicRdStartSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                       short seedFlag, int* seedOut);

/* The same from the middle of the first M rows, floor((M + 1) / 2), without a draw.
   - Missing cells: copied unchanged; so is the empty string
   - Divisor: the step floor((N - 1) / (n - 1)); 0 with `n` above `N`
   - Empty input: with `n` below 1 no row is taken
   - Source: W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 8
   - Known weakness: every call takes the same rows */
void VB_M_SamplingSystematicCentered(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids);

/* The same from the middle of the first M rows, floor((M + 1) / 2), without a draw.
   - Missing cells: copied unchanged; so is the empty string
   - Divisor: the step floor((N - 1) / (n - 1)); 0 with `n` above `N`
   - Empty input: with `n` below 1 no row is taken
   - Source: W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 8
   - Known weakness: every call takes the same rows */
void VB_M_SamplingSystematicCenteredSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids);

/* Draw one row from each of the spans of M rows that open at rows 1, 1 + t, 1 + 2 t, ...: row offset + floor(u M) + 1.
   `ids`, of `N` cells, holds the labels of the rows on entry; on return the labels of the rows taken, in the order of
   the spans, and after them N + 1.  There is a span for every row from the centred start, floor((M + 1) / 2), to `N` by
   steps of t, which can be more than `n`: rows beyond the sample are treated as any beyond their table, but their
   labels are kept. Where t is below M the spans overlap, a row can be taken twice, and the last spans can reach beyond
   the population, where a label is -1.0.
   - Missing cells: copied unchanged; so is the empty string
   - Divisor: the step floor((N - 1) / (n - 1)); where it is below 1 (`n` of 1, or above `N`) `n` rows are drawn, each
     from all `N`
   - Empty input: with the start above `N` the series is opened and closed, and `ids` becomes N + 1
   - Random numbers: one series for the call, shared as permutations.h tells
   - Source: W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 8 */
void VB_M_SamplingRandomStratified(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                   short seedFlag, int* seedOut);

/* Draw one row from each of the spans of M rows that open at rows 1, 1 + t, 1 + 2 t, ...: row offset + floor(u M) + 1.
   `ids`, of `N` cells, holds the labels of the rows on entry; on return the labels of the rows taken, in the order of
   the spans, and after them N + 1.  There is a span for every row from the centred start, floor((M + 1) / 2), to `N` by
   steps of t, which can be more than `n`: rows beyond the sample are treated as any beyond their table, but their
   labels are kept. Where t is below M the spans overlap, a row can be taken twice, and the last spans can reach beyond
   the population, where a label is -1.0.
   - Missing cells: copied unchanged; so is the empty string
   - Divisor: the step floor((N - 1) / (n - 1)); where it is below 1 (`n` of 1, or above `N`) `n` rows are drawn, each
     from all `N`
   - Empty input: with the start above `N` the series is opened and closed, and `ids` becomes N + 1
   - Random numbers: one series for the call, shared as permutations.h tells
   - Source: W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 8 */
void VB_M_SamplingRandomStratifiedSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                      short seedFlag, int* seedOut);

/* ---- randomisation/stratified_sampling ---- */

/* Draw a sample of `n` of the `N` rows of `S` by strata. Row i has the label `rowIds`[i] and belongs to the stratum
   whose label is `strata`[i]; stratum k, of `nStrata`, has `sizes`[k] rows (truncated), and `quota`[k] of them are
   wanted, which may be a fraction. `sizes` and `quota` are in the order of the stratum labels, smallest first. `n` rows
   of `Z` and cells of `outIds` receive the sample and the labels of its rows, stratum after stratum.  First the
   population is put in order: the rows of `S` and `rowIds` are sorted by `strata`, ascending and stably, and so is
   `strata` itself; all three stay so. Then each stratum is one block of rows, of which a number w is drawn: the quota
   rounded half up, but in the last stratum the remainder of `n`, whatever its quota. - Without replacement, normally:
   each of the m rows of the block takes one key, in order, and the w rows with the smallest keys, of equal keys the
   first, are the sample of the stratum, sorted by their labels. - With replacement, where the quota is above the size
   as given, or m is below w: as `M_SamplingWithReplacement` of the block, w draws, in the order of the block. A stratum
   without rows gives empty rows with the label 0.0.  If the strata before the last already give `n` rows or more, none
   is taken of the last, and the rows beyond the sample are treated as any beyond their table. Flat forms: `rowIds` and
   `strata` of `N` cells, `outIds` of `n`, `quota` and `sizes` of `nStrata`. `Z` (every element a new BSTR that the
   caller owns), `outIds` and `rowIds`, the latter in sorted order, come back; the caller's `S` and `strata` are left
   unchanged.
   - Missing cells: copied unchanged; so is the empty string
   - Empty input: with `nStrata` below 1 the population is sorted, nothing is drawn, and `seedOut` receives `seed`
   - Random numbers: each stratum has a series of its own, also where it draws nothing: the first with the caller's
     `seed` and `seedFlag`, and what the generator makes of this `seed` is returned to the caller; each later one with
     what the series before stored, and the flag -1. `seedOut` receives what the last one stored. The generator's series
     is shared as permutations.h tells
   - Source: W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 5 */
void Cpp_M_SamplingRandomStratifiedByStr(wchar_t** S, int N, int p, int n, wchar_t** Z, double* rowIds, double* outIds,
                                         double* strata, double* quota, double* sizes, int nStrata, int* seed,
                                         short seedFlag, int* seedOut);

/* Draw a sample of `n` of the `N` rows of `S` by strata. Row i has the label `rowIds`[i] and belongs to the stratum
   whose label is `strata`[i]; stratum k, of `nStrata`, has `sizes`[k] rows (truncated), and `quota`[k] of them are
   wanted, which may be a fraction. `sizes` and `quota` are in the order of the stratum labels, smallest first. `n` rows
   of `Z` and cells of `outIds` receive the sample and the labels of its rows, stratum after stratum.  First the
   population is put in order: the rows of `S` and `rowIds` are sorted by `strata`, ascending and stably, and so is
   `strata` itself; all three stay so. Then each stratum is one block of rows, of which a number w is drawn: the quota
   rounded half up, but in the last stratum the remainder of `n`, whatever its quota. - Without replacement, normally:
   each of the m rows of the block takes one key, in order, and the w rows with the smallest keys, of equal keys the
   first, are the sample of the stratum, sorted by their labels. - With replacement, where the quota is above the size
   as given, or m is below w: as `M_SamplingWithReplacement` of the block, w draws, in the order of the block. A stratum
   without rows gives empty rows with the label 0.0.  If the strata before the last already give `n` rows or more, none
   is taken of the last, and the rows beyond the sample are treated as any beyond their table. Flat forms: `rowIds` and
   `strata` of `N` cells, `outIds` of `n`, `quota` and `sizes` of `nStrata`. `Z` (every element a new BSTR that the
   caller owns), `outIds` and `rowIds`, the latter in sorted order, come back; the caller's `S` and `strata` are left
   unchanged.
   - Missing cells: copied unchanged; so is the empty string
   - Empty input: with `nStrata` below 1 the population is sorted, nothing is drawn, and `seedOut` receives `seed`
   - Random numbers: each stratum has a series of its own, also where it draws nothing: the first with the caller's
     `seed` and `seedFlag`, and what the generator makes of this `seed` is returned to the caller; each later one with
     what the series before stored, and the flag -1. `seedOut` receives what the last one stored. The generator's series
     is shared as permutations.h tells
   - Source: W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 5 */
void VB_M_SamplingRandomStratifiedByStrSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* rowIds,
                                           double* outIds, double* strata, double* quota, double* sizes, int nStrata,
                                           int* seed, short seedFlag, int* seedOut);

/* ---- decompositions/eigen ---- */

/* Eigenvalues and eigenvectors of the symmetric table `a` of order `n`, by Householder reduction and QL iteration with
   implicit shifts.  Only the lower triangle enters the computation; symmetry is neither tested nor enforced. `values`
   receives n eigenvalues, `vectors` n columns of unit length, column j belonging to value j, with the sign that the
   iteration leaves. With `sort` exactly -1 the values come in descending order (by signed value; equal ones in the
   order found), otherwise in the order in which the iteration leaves them. Both results go through `matCheck`; in a
   kept larger table the top left corner is used. The input is left unchanged. Flat form: `a` and `vectors` n by n,
   `values` n. Where `M_Eigen` made no result, the arrays are left unchanged.
   - Missing cells: any in the square: -1 with nothing changed (equality)
   - Empty input: 0
   - Failure: -1: where a cell of the square is missing; where an eigenvalue needs more than 28 passes, with the results
     in the state of the interruption; after an exception such as exhausted memory, which is caught. Otherwise 0
   - Memory: n doubles, a table of n by n while sorting, and from order 20 on two such tables and about 50 n doubles;
     where that is short it does without, more slowly and with the same result
   - Source: tred2 and tqli of Press, Flannery, Teukolsky and Vetterling, Numerical Recipes, 1st edition
   - Known weakness: an off-diagonal element is negligible below 2.220446049250313e-16 in absolute terms. So accuracy is
     lost with code 0 where the cells are below about 1e-12, and at 1e-16 the diagonal itself comes back: of the
     covariances of the irises, times 1e-16, the largest value is 13 % too small. For huge cells the passes may run out:
     the Hilbert table of order 20, times 1e40, ends in -1. Scale the table to the order of 1 */
int VB_M_Eigen(double* a, double* values, double* vectors, int n, short sort);

/* `getNorm2` of a square flat table; 0.0 unless `rows` equals `cols`.
   - Missing cells: an ordinary number: with several columns mostly NaN or infinite, as a a' overflows, and missing
     where a cell of a a' is
   - Empty input: 0.0
   - Failure: NaN where the eigenvalues are NaN; missing only where there are none
   - Known weakness: wrong below about 1e-8, where the eigenvalues of a a' come down to the absolute tolerance of
     `M_Eigen`; NaN from about 1e154 on, where a a' overflows */
double Cpp_M_Norm2(double* a, int rows, int cols);

/* ---- decompositions/axis_selection ---- */

/* Decides from `n` eigenvalues in descending order how many axes to keep.  From the end, as long as more than one is
   left: an eigenvalue below `floor` is taken off the list (`drop` nonzero); with `drop` 0 the last one is set to 0.0 in
   `eig` if it is below `floor`, and no other. `kept` is the length of what remains. `percent` (`matCheck`, n by 1)
   receives the percentage of each kept eigenvalue in the sum of them all. `selected` is the least of: `kept`; the first
   count whose running percentage reaches `cumPercent`, if that is above 0; `maxCount`, if at least 1; and, if
   `minValue` is above 0, the count less one for each kept eigenvalue below `minValue` + 1e-12. Returns 0. Flat form:
   `eig` comes back as `FilterEigen` changed it, `percent` has n elements.
   - Missing cells: left out of the sum for the percentages (equality)
   - Divisor: the sum of the present eigenvalues; where it is 0 every percentage is 0.0
   - Empty input: none kept, none selected */
void VB_FilterEigen(double* eig, int n, short drop, double floor, double cumPercent, int maxCount, double minValue,
                    int* kept, int* selected, double* percent);

/* For each of `n` rows: flags 1.0 where cell `colA` is above 0 and its sum with cell `colB` (both 1-based) is above
   `threshold`, otherwise 0.0. A cell of colA outside the table gives 0.0, one of colB enters as -1.0. Flat form over a
   `rows` by `cols` table; `flags` has `rows` elements.
   - Missing cells: an ordinary number
   - Empty input: nothing is written */
void Cpp_FilterOnSumOfSquares(double* data, int rows, int cols, int colA, int colB, double threshold, double* flags);

/* ---- decompositions/lu ---- */

/* P a = L U of order `n` in place: L below the diagonal, its unit diagonal implied, U on and above it, of the rows as
   permuted. `index` goes through `matCheck`, n by 1: index(j) is the row, from 1, that was exchanged with row j at step
   j; `*d` is the parity of the exchanges, 1.0 or -1.0.  Crout's method with implicit scaled pivoting. Of equal
   candidates for a pivot the last wins. All access is checked: outside the table a read gives -1.0, which takes part,
   and a write is dropped. Flat form: `a` n by n and `index` n, both in place. Returns 0.
   - Missing cells: an ordinary number
   - Divisor: a pivot of exactly 0 becomes 1e-20, also the last one, so that a singular table is factored too
   - Empty input: status 0, parity 1.0
   - Failure: `*status`: -1 where a row is all zeros (NaN counts as zero), with `a` untouched, `index` 0 and `*d` 1.0; 1
     where no candidate of the first column compares, all being NaN, with the same. Otherwise 0
   - Memory: a table of the order and up to 16 columns, for large tables
   - Source: ludcmp of Press, Flannery, Teukolsky and Vetterling, Numerical Recipes, 1st edition */
int VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status);

/* ---- decompositions/determinants ---- */

/* Determinant of order `n` from the factors of `M_LUDecomp`.  With S the sum of logarithms: 0.0 for S below -708; the
   determinant for S up to 709; beyond, `*status` is -1 and the result the positive twin of the missing value, but with
   `logOnOverflow` exactly -1 it is S with the sign of the determinant and `*status` stays 0. A NaN passes through. With
   `logOnOverflow` 0.
   - Missing cells: an ordinary number
   - Divisor: a pivot of 0 counts as 1e-20: a singular table without a row of zeros has status 0 and a tiny determinant
     or 0.0
   - Empty input: 1.0
   - Failure: 0.0 with the `*status` of the factorisation where that is not 0, so -1 for a row of zeros. An exception,
     such as exhausted memory, ends here: `*status` is -1 and the result the positive twin
   - Memory: a copy of the table, and what the factorisation takes; none for a triangular table */
double VB_M_Determinant(double* a, int n, short* status);

/* Logarithm of a positive determinant. Unlike `M_Determinant` it continues where no pivot could be chosen, with
   whatever the table holds, and it has no limits. A pivot of exactly 0, which no finished factorisation has, gives 0.0.
   An exception is not caught. With `logOnOverflow` 0.
   - Missing cells: an ordinary number
   - Divisor: the missing value for a negative determinant and for a row of zeros
   - Empty input: 0.0
   - Memory: a copy of the table, and what the factorisation takes; none for a triangular table */
double Cpp_M_LogDeterminant(double* a, int n);

/* Determinant of a triangular table: the product of its diagonal. There are no limits: it overflows to infinity. With
   `logOnOverflow` 0.
   - Missing cells: an ordinary number
   - Divisor: a diagonal cell of exactly 0 gives 0.0
   - Empty input: 1.0
   - Failure: `*status` is -1, with the positive twin as the result, only where the companion that finds the parity
     fails with an exception. Otherwise 0
   - Memory: a copy of the table, and what the factorisation takes; none for a triangular table */
double VB_M_DeterminantTriang(double* a, int n, short* status);

/* ---- decompositions/cholesky ---- */

/* L of order `n` into `l`, which goes through `matCheck` with 0.0. The terms of a cell are subtracted from the last
   column done back to the first.
   - Missing cells: an ordinary number
   - Divisor: a pivot below 1e-12, in absolute terms, fails
   - Empty input: 0
   - Failure: -1; the columns before that pivot are done, the rest is 0.0. Otherwise 0
   - Memory: a table of the order and up to 32 columns, for large tables
   - Source: Golub and Van Loan, Matrix Computations
   - Known weakness: the pivot is tested in absolute terms: a positive definite table fails where its cells are below
     about 1e-12 */
int VB_M_CholDecomp(double* a, int n, double* l);

/* The same with a search for the pivot on the diagonal before each column but the last: L L' is `a` with rows and
   columns in the order of `perm`, whose n cells, from 1, are written. `l` is cleared with 0.0 (`matCheck`); one that is
   too small is left unchanged, and the result is lost.  The first pivot is the largest of the diagonal. Later ones are
   the largest of an estimate: the diagonal cell less the square of the cell in the row of the pivot before over L's
   diagonal there, not over its square, and without the rows before that one. Of equal candidates the first wins.  A
   `keep` of exactly -1 replaces `a` by the permuted table, as far as the permutation has gone; any other leaves it.
   `a`, `l` and `perm` are changed in place.
   - Missing cells: an ordinary number
   - Divisor: a pivot below 1e-12, in absolute terms, fails
   - Empty input: 0
   - Failure: -1, with the columns before that pivot done. Otherwise 0
   - Memory: a copy of `a` and a column
   - Source: Golub and Van Loan, Matrix Computations
   - Known weakness: this is not the complete pivoting of the literature (Higham, Accuracy and Stability of Numerical
     Algorithms): a table that it would factor may end in -1 here. The pivot is tested in absolute terms, as in
     `M_CholDecomp` */
int VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short keep);

/* L of the rows and columns that `mask` retains. `l` exists and is not prepared: rows that were dropped keep their
   values, in the others the columns that were dropped become 0.0.
   - Missing cells: an ordinary number
   - Mask: above 0 drops row and column, exactly 0 keeps them; there are no other entries
   - Divisor: a pivot below 0 fails; one of exactly 0 is accepted, fails as the divisor of the next row, and passes at
     the last one
   - Empty input: 0
   - Failure: -1 with `l` untouched. Otherwise 0
   - Memory: three tables of the order of the block and up to 32 columns
   - Source: Golub and Van Loan, Matrix Computations */
int VB_M_CholDecompCleaned(double* a, int n, int* mask, double* l);

/* ---- decompositions/echelon_forms ---- */

/* Forward Doolittle reduction: the upper triangle of `a` becomes an upper echelon form in `out`, with pivots of 1. `a`
   is read on and above the diagonal.  It departs from the publication: when a pivot is eliminated, the row right below
   it is divided at once by what its own diagonal becomes (or zeroed where that is up to 1e-12), while the rows beyond
   it are reduced without a division. Flat forms: n by n arrays; the second one is the result, in place.
   - Missing cells: an ordinary number
   - Divisor: a pivot up to 1e-12 gives a row of zeros
   - Empty input: nothing is written
   - Source: Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
   - Known weakness: the limit of 1e-12 is absolute: a regular table of small scale becomes rows of zeros */
void Cpp_M_ForwardDoolittle(double* a, int n, double* out);

/* Hermite canonical form: the reduction above, with the cells above each pivot of 1, within 1e-12, brought to 0. Flat
   forms: n by n arrays; the second one is the result, in place.
   - Missing cells: an ordinary number
   - Divisor: a pivot up to 1e-12 gives a row of zeros
   - Empty input: nothing is written
   - Source: Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
   - Known weakness: the limit of 1e-12 is absolute: a regular table of small scale becomes rows of zeros */
void Cpp_M_HermiteCanonical(double* a, int n, double* h);

/* ---- decompositions/square_root ---- */

/* With a = V D V' from `M_Eigen`, the eigenvalues in descending order: the table sqrt(D) V' of order `n` into `out`
   (`matCheck`). It is not the symmetric root: out' out gives `a` back. V enters through V'V, so its columns are brought
   to unit length once more and what is left off the diagonal of V'V stays in. The input is left unchanged. Flat form: n
   by n arrays, the result in place.
   - Missing cells: -1 with `out` untouched (equality): there are no eigenvalues
   - Divisor: an eigenvalue above -1e-12 and up to 0 counts as 0; one not above -1e-12 fails
   - Empty input: 0
   - Failure: -1 for such an eigenvalue, -2 for a column of V whose length is not above 0, both with `out` untouched;
     that the eigenvalues did not converge is not tested. Otherwise 0
   - Known weakness: the limit is absolute: a table of small scale passes although it has negative eigenvalues, and out'
     out is then not `a`. Accuracy is that of `M_Eigen` */
int Cpp_M_SquareRoot(double* a, int n, double* out);

/* ---- decompositions/generalised_inverses ---- */

/* V inv(S) U', of a plain table and of `n` columns. The input is left unchanged. Flat forms: n by n arrays, the result
   in place.
   - Missing cells: an ordinary number
   - Divisor: a singular value below `tol` counts as 0
   - Empty input: 0, rank 0
   - Failure: -1 where the decomposition did not converge: then each value is tested by itself, since they are not
     sorted, a NaN is kept, and rank and result are written all the same. Otherwise 0
   - Memory: four tables of n by n
   - Source: Golub and Kahan (1965), Calculating the singular values and pseudo-inverse of a matrix, SIAM Journal on
     Numerical Analysis 2
   - Known weakness: `tol` is absolute: rank and inverse change with the scale of the table */
int VB_M_InvGeneralized(double* a, int n, double* out, double tol, int* rank);

/* U inv(S) U', for symmetric tables without negative eigenvalues. Where there is one, the columns of U and V have
   opposite signs, and this is not the inverse. Works on `a` itself, which is restored. Flat forms: n by n arrays, the
   result in place.
   - Missing cells: an ordinary number
   - Divisor: a singular value below `tol` counts as 0
   - Empty input: 0, rank 0
   - Failure: -1 where the decomposition did not converge: then each value is tested by itself, since they are not
     sorted, a NaN is kept, and rank and result are written all the same. Otherwise 0
   - Memory: four tables of n by n
   - Source: Golub and Kahan (1965), Calculating the singular values and pseudo-inverse of a matrix, SIAM Journal on
     Numerical Analysis 2
   - Known weakness: `tol` is absolute: rank and inverse change with the scale of the table */
int VB_M_InvGeneralizedSym(double* a, int n, double* out, double tol, int* rank);

/* ---- decompositions/g2_inverse ---- */

/* The sweeps of a copy of `a` on all pivots in order, each seeing what the ones before have left. Flat forms: n by n
   arrays, n entries of `select`, the result in place.
   - Missing cells: an ordinary number
   - Divisor: a pivot below `tol` (one equal to it is not) zeroes its row and column; with a `tol` of 0 none does, and 0
     divides
   - Empty input: nothing is written
   - Source: Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
   - Known weakness: `tol` is absolute: what counts as dependent changes with the scale of the table */
void Cpp_M_InverseG2(double* a, int n, double tol, double* out);

/* The same on selected pivots. Flat forms: n by n arrays, n entries of `select`, the result in place.
   - Missing cells: an ordinary number
   - Mask: `select`: exactly 1 sweeps; for the others row and column become 0.0 in their turn where `zeroOthers` is
     exactly -1; with any other value they stay, and hold the mixed cells of a partial sweep
   - Divisor: a pivot below `tol` (one equal to it is not) zeroes its row and column; with a `tol` of 0 none does, and 0
     divides
   - Empty input: nothing is written
   - Source: Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
   - Known weakness: `tol` is absolute: what counts as dependent changes with the scale of the table */
void Cpp_M_InverseG2Selective(double* a, int n, int* select, double tol, double* out, short zeroOthers);

/* ---- decompositions/constrained_inverses ---- */

/* Inverse of the block by `matrix::inverse1` with its larger threshold.
   - Missing cells: an ordinary number
   - Mask: `constraints`, n entries: above 0 removes row and column, exactly 0 keeps them; there are no other entries
   - Divisor: a pivot up to 1e-8 is singular; a single kept cell of exactly 0 counts as 1e-12
   - Empty input: nothing kept is a success: 0
   - Failure: none: returns 0, or 1 where the block is singular and `out` has its g2 inverse instead, with a tolerance
     of 1e-12
   - Known weakness: pivots are tested in absolute terms: a regular block of small scale counts as singular, one of
     large scale that is singular may pass */
int CleanConstraintsAndInvert(int n, int* constraints, double* a, double* out);

/* Inverse of a triangular block by `M_InverseTriang` with a tolerance of 1e-12.
   - Missing cells: an ordinary number
   - Mask: `constraints`, n entries: above 0 removes row and column, exactly 0 keeps them; there are no other entries
   - Divisor: a diagonal cell below 1e-12 in absolute terms fails; a single kept cell of exactly 0 counts as 1e-12
   - Empty input: nothing kept is a success: 0
   - Failure: -1 with `out` untouched: there is no generalised inverse to fall back on. Otherwise 0
   - Known weakness: pivots are tested in absolute terms: a regular block of small scale counts as singular, one of
     large scale that is singular may pass */
int CleanConstraintsAndInvertTriang(int n, int* constraints, double* a, short lower, double* out);

/* `M_Determinant` of the block without the logarithm on overflow. With one kept row it is the cell itself, without
   logarithms, and `*status` is not written.
   - Missing cells: an ordinary number
   - Mask: `constraints`, n entries: above 0 removes row and column, exactly 0 keeps them; there are no other entries
   - Divisor: as `M_Determinant`
   - Empty input: 1.0 */
double VB_M_DeterminantCleaned(double* a, int n, int* constraints, short* status);

/* ---- decompositions/inversion ---- */

/* Returns the status: 0, or -1 with `out` untouched. The two arrays may be one.
   - Missing cells: an ordinary number
   - Divisor: a pivot up to 1e-8, or 2.220446049250313e-16 for `tol` at or below 0, or a row of zeros fails
   - Empty input: 0
   - Known weakness: pivots are tested in absolute terms: a regular table of small scale fails, a singular one of large
     scale may pass */
int VB_M_Inverse1(double* a, int n, double* out, double tol);

/* Inverse of a triangular table by substitution: lower triangular for any `lower` but 0, otherwise upper. The other
   triangle of `a` is not read, that of `out` keeps its values: `out` exists and is not prepared. Here the other
   triangle of `out` becomes 0.0, and after -1 everything but the part of the diagonal that was done.
   - Missing cells: an ordinary number
   - Divisor: a diagonal cell below `tol` in absolute terms (one equal to it passes) fails
   - Empty input: 0
   - Failure: -1; the diagonal of `out` is done up to that cell. Otherwise 0
   - Memory: up to 32 columns, for large tables
   - Known weakness: pivots are tested in absolute terms: a regular table of small scale fails, a singular one of large
     scale may pass */
int VB_M_InverseTriang(double* a, int n, short lower, double* out, double tol);

/* ---- decompositions/sweep ---- */

/* Sweeps the packed symmetric table `a` of order `n` on pivot `k`, 1-based, in place: element (i, j), j at most i, is
   the cell at position i(i-1)/2 + j. Always returns 0.  This is the reversible form of the operator with the sign kept
   in the diagonal: a pivot d becomes -1/d, so a positive one turns negative, and a negative one is taken as already
   swept: a second sweep undoes the first. The row of the pivot is scaled by the magnitude of 1/d. All access is
   checked: outside the table a read gives -1.0, which takes part, and a write is dropped; a pivot outside counts as not
   yet swept. Flat form: `a` has n(n+1)/2 cells.
   - Missing cells: an ordinary number
   - Divisor: the pivot, not tested: 0 gives infinities
   - Empty input: 0
   - Memory: n doubles from an order of 33 on
   - Source: Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
   - Known weakness: every other element that is below 1e-12 in absolute terms after its update becomes exactly 0,
     whatever the size of the others; a second sweep does not bring it back */
int VB_M_Sweep(double* a, int n, int k);

/* ---- decompositions/inverse_products ---- */

/* (a' inv(b)) a, `b` of order `rows`; out goes through `matCheck`, `cols` by `cols`. Flat forms: arrays with just the
   dimensions of their role, the result in place.
   - Missing cells: an ordinary number
   - Divisor: a pivot of `b` up to 1e-8 makes it singular: its inverse then counts as 0.0 throughout
   - Empty input: an empty sum is 0.0
   - Failure: a singular `b` is not reported
   - Known weakness: pivots are tested in absolute terms: a regular `b` of small scale counts as singular, and the
     result is 0.0 throughout. Scale `b` to the order of 1 */
void VB_M_ProductTrAinvBA(double* a, int rows, int cols, double* b, double* out);

/* (v' inv(b)) v. Flat forms: arrays with just the dimensions of their role, the result in place.
   - Missing cells: an ordinary number
   - Divisor: a pivot of `b` up to 1e-8 makes it singular: its inverse then counts as 0.0 throughout
   - Empty input: an empty sum is 0.0
   - Failure: a singular `b` is not reported
   - Known weakness: pivots are tested in absolute terms: a regular `b` of small scale counts as singular, and the
     result is 0.0 throughout. Scale `b` to the order of 1 */
double VB_M_ProductTrVinvBV(double* v, int n, double* b);

/* (a inv(b)) a', `b` of order `cols`; out goes through `matCheck`, `rows` by `rows`. The second form writes to columns
   that exist. Flat forms: arrays with just the dimensions of their role, the result in place.
   - Missing cells: an ordinary number
   - Divisor: a pivot of `b` up to 1e-8 makes it singular: its inverse then counts as 0.0 throughout
   - Empty input: an empty sum is 0.0
   - Failure: a singular `b` is not reported
   - Known weakness: pivots are tested in absolute terms: a regular `b` of small scale counts as singular, and the
     result is 0.0 throughout. Scale `b` to the order of 1 */
void VB_M_ProductAinvBTrA(double* a, int rows, int cols, double* b, double* out);

/* ---- decompositions/nearest_correlation ---- */

/* Replaces the symmetric table `a` of order `n` by the nearest correlation matrix: alternating projections on the
   positive semi-definite tables and on those with unit diagonal, with Dykstra's correction. It ends when the infinity
   norm of the difference of the two projections is at most 1e-6 of that of `a`, or not a number. The result has a unit
   diagonal and is within the tolerance of the semi-definite tables, not exactly one of them. The triangular form holds
   column k from its diagonal cell down. Returns 0. Flat forms: the caller's arrays are worked on in place; a triangular
   one has column k of n - k cells.
   - Missing cells: any: -1 with the table unchanged (equality)
   - Empty input: 0
   - Failure: -1 where a cell is missing. The eigenvalues catch a failed allocation and the pass continues with what
     they left, 0.0 throughout if it struck early; any other exception is passed on, with `a` as the passes so far left
     it
   - Memory: nine tables of n by n
   - Source: Higham (2002), Computing the nearest correlation matrix, IMA Journal of Numerical Analysis 22
   - Known weakness: after 100000 passes it gives up and returns 0 all the same, with the table as it is then */
int Cpp_M_CorrMatFromSymMat(double* a, int n);

/* Replaces the symmetric table `a` of order `n` by the nearest correlation matrix: alternating projections on the
   positive semi-definite tables and on those with unit diagonal, with Dykstra's correction. It ends when the infinity
   norm of the difference of the two projections is at most 1e-6 of that of `a`, or not a number. The result has a unit
   diagonal and is within the tolerance of the semi-definite tables, not exactly one of them. The triangular form holds
   column k from its diagonal cell down. Returns 0. Flat forms: the caller's arrays are worked on in place; a triangular
   one has column k of n - k cells.
   - Missing cells: any: -1 with the table unchanged (equality)
   - Empty input: 0
   - Failure: -1 where a cell is missing. The eigenvalues catch a failed allocation and the pass continues with what
     they left, 0.0 throughout if it struck early; any other exception is passed on, with `a` as the passes so far left
     it
   - Memory: nine tables of n by n
   - Source: Higham (2002), Computing the nearest correlation matrix, IMA Journal of Numerical Analysis 22
   - Known weakness: after 100000 passes it gives up and returns 0 all the same, with the table as it is then */
int Cpp_M_CorrMatFromSymMatSPV(SAFEARRAY** a, int n);

/* Replaces the symmetric table `a` of order `n` by the nearest correlation matrix: alternating projections on the
   positive semi-definite tables and on those with unit diagonal, with Dykstra's correction. It ends when the infinity
   norm of the difference of the two projections is at most 1e-6 of that of `a`, or not a number. The result has a unit
   diagonal and is within the tolerance of the semi-definite tables, not exactly one of them. The triangular form holds
   column k from its diagonal cell down. Returns 0. Flat forms: the caller's arrays are worked on in place; a triangular
   one has column k of n - k cells.
   - Missing cells: any: -1 with the table unchanged (equality)
   - Empty input: 0
   - Failure: -1 where a cell is missing. The eigenvalues catch a failed allocation and the pass continues with what
     they left, 0.0 throughout if it struck early; any other exception is passed on, with `a` as the passes so far left
     it
   - Memory: nine tables of n by n
   - Source: Higham (2002), Computing the nearest correlation matrix, IMA Journal of Numerical Analysis 22
   - Known weakness: after 100000 passes it gives up and returns 0 all the same, with the table as it is then */
int Cpp_M_CorrMatFromSymMatSPV_T(SAFEARRAY** a, int n);

/* Infinity norm: the largest row sum of absolute values. A cell outside the table counts as 1.0. In the triangular form
   a row runs over the whole symmetric row. Infinity norm: the largest row sum of absolute values. A cell outside the
   table counts as 1.0. In the triangular form a row runs over the whole symmetric row.
   - Missing cells: a cell not above it is left out (order); so are NaN and minus infinity
   - Empty input: 0.0 */
double Cpp_M_RowSumNorm(double* a, int rows, int cols);

/* ---- decompositions/correlation_order ---- */

/* Sorts the n variables of R by a score, descending, equal scores in the order they had, and applies that order to the
   `labels` (n) and to both axes of R and of the companion tables `second` and `third` (each n by n), all in place. Only
   these cells are changed. The diagonal of R is 1.0 afterwards, whatever it was.  The score of variable i is for `mode`
   1      the largest cell of the first row of R 2      the variance of the first row, W - 1 being the divisor 3
   cell i of the first eigenvector, with its sign; 0 for every i where a cell of R is missing other  0 In modes 1 and 2
   it is the first row for every i. For i = 1 its diagonal cell is left out, for the others it counts as 1.0, so the
   first variable is set apart and the rest tie.  Cell (i, j) of a result is cell (order[j], order[i]) of the table: one
   that is not symmetric comes out transposed. Returns 0. Flat form: the labels come back as new BSTRs in all n places;
   the old ones are not released.
   - Missing cells: left out of the first row for `mode` 1 and 2 (equality); with `mode` 3 any one makes every score 0
   - Divisor: with `mode` 2 W - 1; where that is 0 (n = 2) the variance is a NaN and the order is undetermined
   - Empty input: nothing moves */
int Cpp_ReOrderCorrelations(double* R, int n, int mode, wchar_t** labels, double* second, int* third);

/* ---- decompositions/singular_values ---- */

/* Singular value decomposition x = U diag(s) V' of an `n` by `p` table: the LINPACK routine DSVDC, by Householder
   reduction to bidiagonal form and implicit-shift QR with deflation.  `s` has min(n + 1, p) cells and receives the
   singular values, non-negative and descending. `job` has the decimal digits ab: a nonzero b asks for `v` (p columns);
   a = 1 asks for `u` with n columns, a of 2 or more for `u` with min(n, p), each of n rows. The tables exist and are
   large enough; those not asked for are not touched and may be null. All access is checked. `x` is left unchanged; a
   table too small for the scratch is worked on in place and restored.  It departs from DSVDC in the number of passes,
   60 for a singular value, and in what is zero or negligible. Flat forms: `s` has min(n + 1, p) elements, `u` `ldu`
   rows and 1, n or min(n, p) columns as `job` asks, `v` `ldv` rows and p columns, or 1 where it is not asked for.
   Return 0.
   - Missing cells: an ordinary number
   - Divisor: a norm up to 1e-31 counts as zero
   - Empty input: `*info` 0
   - Failure: `*info` is -m where the passes do not suffice, and after 10000 turns for one value: the values from m + 1
     on are final, and the rest is in the state of the interruption. Otherwise 0
   - Memory: a copy of x, p and n doubles, and from 12 rows and 8 columns on two copies of each of the tables of vectors
     asked for and about 50 doubles for each of their columns; where that is short it does without, more slowly and with
     the same result
   - Source: Dongarra, Moler, Bunch and Stewart, LINPACK Users' Guide, 1979
   - Known weakness: an entry is negligible where adding it changes a sum of its neighbours by less than
     2.220446049250313e-16 in absolute terms. So accuracy is lost with `*info` 0 where the cells are below about 1e-12;
     for huge cells the passes may run out. Scale the table to the order of 1 */
int VB_M_SVDecomp(double* x, int n, int p, double* s, double* u, int ldu, double* v, int ldv, int job, int* info);

/* The same over arrays of columns. Flat forms: `s` has min(n + 1, p) elements, `u` `ldu` rows and 1, n or min(n, p)
   columns as `job` asks, `v` `ldv` rows and p columns, or 1 where it is not asked for. Return 0.
   - Missing cells: an ordinary number
   - Divisor: a norm up to 1e-31 counts as zero
   - Empty input: `*info` 0
   - Failure: `*info` is -m where the passes do not suffice, and after 10000 turns for one value: the values from m + 1
     on are final, and the rest is in the state of the interruption. Otherwise 0
   - Memory: a copy of x, p and n doubles, and from 12 rows and 8 columns on two copies of each of the tables of vectors
     asked for and about 50 doubles for each of their columns; where that is short it does without, more slowly and with
     the same result
   - Source: Dongarra, Moler, Bunch and Stewart, LINPACK Users' Guide, 1979
   - Known weakness: an entry is negligible where adding it changes a sum of its neighbours by less than
     2.220446049250313e-16 in absolute terms. So accuracy is lost with `*info` 0 where the cells are below about 1e-12;
     for huge cells the passes may run out. Scale the table to the order of 1 */
int VB_M_SVDecompSPV(SAFEARRAY** x, int n, int p, double* s, SAFEARRAY** u, int ldu, SAFEARRAY** v, int ldv, int job,
                     int* info);

/* Number of singular values above 1e-12, up to the first that is not. For p above n the last value is out of range of
   the private s, and reads -1.0. Number of singular values above 1e-12, up to the first that is not. For p above n the
   last value is out of range of the private s, and reads -1.0.
   - Missing cells: an ordinary number
   - Divisor: a singular value up to 1e-12 ends the count
   - Empty input: 0
   - Failure: -1 where the singular values cannot be computed
   - Known weakness: the limit of 1e-12 is absolute: the rank changes with the scale of the table */
int VB_M_Rank(double* a, int n, int p);

/* ---- decompositions/level1_routines ---- */

/* Builds the rotation that brings (a, b) to (r, 0): stores r in `*a`, the reconstruction number z in `*b`, the cosine
   and sine.
   - Missing cells: an ordinary number
   - Divisor: with a and b both 0 the rotation is the identity, and r and z are 0
   - Empty input: takes no array */
void drotg(double* a, double* b, double* c, double* s);

/* ---- fitting/biplots ---- */

/* Moves the weight of the k eigenvalues between the observations and the variables of an analysis by the exponent
   `alpha`: 1 leaves the observations and shrinks the variables, 0 leaves the variables and shrinks the observations.
   obs    nA + nB by k (`matCheck`): each row of `rows` (nA by k), then each of `sup` (nB by k), times pow(eigen,
   alpha/2 - 1/2) of its axis. var    m by k (`matCheck`): each row of `cols` (m by k) times pow(eigen, -alpha/2) of its
   axis. With `alpha` exactly 0 they are the cells themselves. Then, unless `factor` is exactly 1.0, `M_ScalarsA2` by
   the root of `factor`, which leaves a larger var as m by k.  In the second form `rows` and `cols` are arrays of k
   columns. `obs` has nA + nB by k elements, without nB where it is below 1: then `sup` is not read. The second form
   takes arrays of `storedAxes` columns and `sup` as nB by `storedAxes`; the first k of these axes are used, and k must
   not be above `storedAxes`.
   - Missing cells: stays missing (equality)
   - Divisor: powers of the eigenvalue; for an eigenvalue of 0 the factor of the observations is infinite with `alpha`
     below 1, and 1.0 with 1; that of the variables is 0.0
   - Empty input: nothing is done; with nB below 1 there are no supplementary observations, and `sup` is not read and
     may be null
   - Source: Gabriel, K. R. (1971), The biplot graphic display of matrices with application to principal component
     analysis, Biometrika 58, 453-467 */
void VB_BiplotTransData(double* rows, double* sup, double* cols, int nA, int nB, int m, int k, double* eigen,
                        double factor, double alpha, double* obs, double* var);

/* Moves the weight of the k eigenvalues between the observations and the variables of an analysis by the exponent
   `alpha`: 1 leaves the observations and shrinks the variables, 0 leaves the variables and shrinks the observations.
   obs    nA + nB by k (`matCheck`): each row of `rows` (nA by k), then each of `sup` (nB by k), times pow(eigen,
   alpha/2 - 1/2) of its axis. var    m by k (`matCheck`): each row of `cols` (m by k) times pow(eigen, -alpha/2) of its
   axis. With `alpha` exactly 0 they are the cells themselves. Then, unless `factor` is exactly 1.0, `M_ScalarsA2` by
   the root of `factor`, which leaves a larger var as m by k.  In the second form `rows` and `cols` are arrays of k
   columns. `obs` has nA + nB by k elements, without nB where it is below 1: then `sup` is not read. The second form
   takes arrays of `storedAxes` columns and `sup` as nB by `storedAxes`; the first k of these axes are used, and k must
   not be above `storedAxes`.
   - Missing cells: stays missing (equality)
   - Divisor: powers of the eigenvalue; for an eigenvalue of 0 the factor of the observations is infinite with `alpha`
     below 1, and 1.0 with 1; that of the variables is 0.0
   - Empty input: nothing is done; with nB below 1 there are no supplementary observations, and `sup` is not read and
     may be null
   - Source: Gabriel, K. R. (1971), The biplot graphic display of matrices with application to principal component
     analysis, Biometrika 58, 453-467 */
void VB_BiplotTransDataSPV(SAFEARRAY** rows, double* sup, SAFEARRAY** cols, int nA, int nB, int m, int storedAxes,
                           int k, double* eigen, double factor, double alpha, double* obs, double* var);

/* Squared cosines of n points on k axes, a(i, j)^2 over the sum of squares r of the point's row. `out` exists and is
   not prepared; it may be a. In the SPV form a is an array of columns. `a` and `out` n by k; they may be one.
   - Missing cells: makes its whole row missing (equality)
   - Divisor: r; where it is not above 1e-12 the row of `out` keeps its cells
   - Empty input: nothing is written */
void ComputeCosines(double* a, int n, int k, double* out);

/* Sets cell (i, best(i)) of `flags` to -1 for each of the n points; column numbers are 1-based. Other cells are left
   unchanged. The check is on the linear position: a column number out of range is dropped unless it falls on another
   cell. `best` n elements, `flags` n by `cols`.
   - Missing cells: no cell is tested
   - Empty input: nothing is written */
void Cpp_M_BoldCosines(int* best, int n, int* flags, int cols);

/* The largest distance to the origin among the n rows of a in k dimensions, and its 1-based row: the first of equal
   ones. `best` n elements, `flags` n by `cols`.
   - Missing cells: an ordinary number: its distance is infinite and wins
   - Empty input: 0.0 and row 0, also where no distance is above 0.0 */
void Cpp_M_GetMaxDistToOrigin(double* a, int n, int k, double* maxDistance, int* row);

/* ---- fitting/least_squares ---- */

/* The coefficients and the fitted values; `OLSBasic2` gives standard errors, too.
   - Missing cells: left out of the correlations pair by pair (equality); multiplied like an ordinary number where
     columns are widened and in the raw cross products; a term with a missing cell is left out of a fitted value
   - Weights: not normalised; a row of weight 0 changes no coefficient but counts in n
   - Divisor: degrees of freedom n - m - 1 for the slopes, whatever the weights (0.0 where that is 0), W - m - 1 for the
     intercept; not guarded: where W is at most m + 1 they are 0 or negative
   - Empty input: without columns the fit is the weighted mean of y
   - Failure: not reported
   - Source: Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
   - Known weakness: the sweeps set what is below 1e-12 to 0: where 1 - R2 is below that the standard errors are 0, and
     a column with a standard deviation below that is dropped without notice. Through the origin the degrees of freedom
     still count an intercept */
int RunOLSBasic(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                double tol, double* beta, double* fitted);

/* The coefficients and the fitted values; `OLSBasic2` gives standard errors, too.
   - Missing cells: left out of the correlations pair by pair (equality); multiplied like an ordinary number where
     columns are widened and in the raw cross products; a term with a missing cell is left out of a fitted value
   - Weights: not normalised; a row of weight 0 changes no coefficient but counts in n
   - Divisor: degrees of freedom n - m - 1 for the slopes, whatever the weights (0.0 where that is 0), W - m - 1 for the
     intercept; not guarded: where W is at most m + 1 they are 0 or negative
   - Empty input: without columns the fit is the weighted mean of y
   - Failure: not reported
   - Source: Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
   - Known weakness: the sweeps set what is below 1e-12 to 0: where 1 - R2 is below that the standard errors are 0, and
     a column with a standard deviation below that is dropped without notice. Through the origin the degrees of freedom
     still count an intercept */
int RunOLSBasic2(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                 double tol, double* beta, double* se, double* fitted);

/* Also gives, into tables that exist and keep their strides, `swept`, the table of order m + 1 with the response last
   after the sweeps, and `mean` and `sd` of its m + 1 variables. An sd of 0.0 marks a column that stayed out.
   - Missing cells: left out of the correlations pair by pair (equality); multiplied like an ordinary number where
     columns are widened and in the raw cross products; a term with a missing cell is left out of a fitted value
   - Weights: not normalised; a row of weight 0 changes no coefficient but counts in n
   - Divisor: degrees of freedom n - m - 1 for the slopes, whatever the weights (0.0 where that is 0), W - m - 1 for the
     intercept; not guarded: where W is at most m + 1 they are 0 or negative
   - Empty input: without columns the fit is the weighted mean of y
   - Failure: not reported
   - Source: Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
   - Known weakness: the sweeps set what is below 1e-12 to 0: where 1 - R2 is below that the standard errors are 0, and
     a column with a standard deviation below that is dropped without notice. Through the origin the degrees of freedom
     still count an intercept */
int RunOLSBasic3(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                 double tol, double* beta, double* se, double* fitted, double* swept, double* mean, double* sd);

/* ---- fitting/least_squares_blocks ---- */

/* The columns of the model are the `p1` columns of X1, then those of X2, and so on; a block of width 0 (or below) is
   skipped. For any `degree` but 1 nothing is written.  Everything else is as in `least_squares.h`, with m the sum of
   the widths, except where cells are missing or a column does not vary. Correlations within a block, the response being
   in the last, are those of `M_CovCorrVAndMeanStDevVar`: each variance over all rows of its column, and 0.0 without
   variance. Across blocks they are those of `M_CorrMatMat`. With columns outside the last block a response that does
   not vary therefore leaves no numbers for the standard errors, and may leave none for coefficients and fitted values.
   Through the origin a missing standard deviation is multiplied like an ordinary number. Flat form: each block n by its
   width. beta and se have the size reserved in `least_squares.h`, with p the sum of the widths; `interactions` has no
   other effect. They and fitted, n cells, are written whole: with 0.0 for a `degree` other than 1. Returns 0.
   - Missing cells: as in `least_squares.h`, but across blocks the correlations take the variances of the pair's own
     rows, and are missing without variance
   - Weights: not normalised; a row of weight 0 changes no coefficient but counts in n
   - Divisor: degrees of freedom n - m - 1 for the slopes, whatever the weights (0.0 where that is 0), W - m - 1 for the
     intercept; not guarded
   - Empty input: a block without columns is not read; without any nothing is written
   - Known weakness: as in `least_squares.h` */
int RunOLSBasic2Lg(int n, int p1, double* X1, int p2, double* X2, int p3, double* X3, int p4, double* X4, int p5,
                   double* X5, double* y, double* w, int degree, short interactions, short noIntercept, double tol,
                   double* beta, double* se, double* fitted);

/* ---- fitting/tolerance_check ---- */

/* Screens the p variables of `corr`, p by p, of which the lower triangle is swept; pairs and the correlations of a
   variable that is being tested are read from its row. Results have p cells, exist, and are not prepared: `tolerance`
   and `vif` of a variable that no other could be swept for are not written.  `status` becomes -1       kept 50000
   constant: the diagonal element is below 1e-12 in absolute terms 60000    collinear with others The first pass marks
   the constant ones and, for a nonzero `pairCheck`, each variable that correlates by more than 0.999999999999 in
   absolute terms with one before it that isn't constant. Both get tolerance 0.0 and a missing vif.  Then the selected
   groups from `groupCount` down to 1 are visited. `group` has the group of each variable; the members are the run of
   equal entries from the first one that is g, and where there is none from the last entry, whatever group that is;
   without entries there are no members. They are taken in order, from the last for `fromLast` -1, those marked already
   left out. For each member the table is swept again on the other variables, from the last to the first, as far as
   their diagonal element is above `tol`, until the member's own tolerance falls below `tol`: then it is marked
   collinear, unless `keepGoing` is nonzero. Its tolerance and vif are those reached. Left out of the sweeps are -
   marked variables; with `keepGoing` exactly -1 only the constant ones - for `otherGroupsOnly` -1 the variables of the
   member's own group A variable that isn't swept and has a diagonal element below `tol` in absolute terms is marked
   collinear itself for `pairCheck` -1 (here no other value will do), with that element as its tolerance.  A NaN is
   neither above nor below `tol`: it is not swept, and as a member's tolerance it does not end the sweeps. The forms
   differ in the type of `selected`, `group` and `status`. Flat form: `corr` p by p, `selected` of `groupCount` cells,
   the others of p. The results are written whole: tolerance and vif of a variable that was not reached are 0.0.
   - Missing cells: an ordinary number
   - Mask: `selected`, `groupCount` cells: exactly 1 visits a group
   - Divisor: an element below 1e-12 in absolute terms is constant, a tolerance below `tol` collinear; a vif is missing
     where the tolerance is not above 0
   - Empty input: no status is written
   - Source: Marquardt, D. W. (1970), Generalized inverses, ridge regression, biased linear estimation, and nonlinear
     estimation, Technometrics 12 (3), 591-612 */
void VB_CheckTolerance(double* corr, int p, int groupCount, int* selected, int ignored, int* group, double tol,
                       short pairCheck, short keepGoing, short fromLast, short otherGroupsOnly, int* status,
                       double* tolerance, double* vif);

/* ---- fitting/newton_raphson ---- */

/* Moves the n parameters x by -H^-1 g, in place. A fixed parameter keeps its x and its se, and takes no part in the
   test for convergence. `Hinv`, n by n, receives the inverse of H without the rows and columns of the fixed parameters,
   by `cCleanConstraintsAndInvert`; `se`, n cells, the roots of the absolute values of its diagonal. x, se and Hinv
   exist and are not prepared; rows of Hinv that belong to a fixed parameter keep their values.  With `limitStep`
   exactly -1 a step whose largest change is above `maxStep` is shortened to it without a change of direction. The
   changes are those of all parameters, also what the rows of fixed ones in Hinv make of the gradient.  Returns 1 where
   no free parameter changed by more than `tol`, after the shortening: converged; 0 where one did. A NaN step is not
   above `tol`. The forms differ in the type of `constraints`. Flat form: `H` and `Hinv` n by n, the others n cells.
   `se` and `Hinv` are written whole, with 0.0 for fixed parameters.
   - Missing cells: an ordinary number
   - Mask: `constraints`, n entries: above 0 fixes a parameter, exactly 0 frees it
   - Divisor: the inverse of the Hessian, a g2 inverse where that is singular
   - Empty input: converged: 1
   - Failure: -1, with x and se untouched, where the inversion fails, which it never does at present */
int NewtonRaphson(double* x, int n, int* constraints, double* g, double* H, double tol, double* se, double* Hinv,
                  short limitStep, double maxStep);

/* ---- fitting/nipals ---- */

/* Extracts `components` principal components of X (n by p) past its missing cells, each by alternating regressions of
   the columns on the scores and of the rows on the loadings, and replaces each missing cell by what they rebuild. The
   other cells are left unchanged; scores and loadings are not returned.  0    done; or no cell was missing, and no
   component is extracted 1    a column is constant, its standard deviation with the divisor W - 1 being at most 1e-6
   (W: the sum of the weights of its present cells), or a column meets scores whose sum of squares, over the rows where
   both are present, is below 1e-6. More components than the table carries end so: what is left of it has no length -6
   a column has more than n `maxColumnShare` missing cells, or the table more than n `maxTotalShare` p  X is written
   only where 0 is returned. Columns are examined in order, before the shares: a constant column gives 1 also in a
   complete table and in one with too many missing cells. A spread that is not a number, as that of a column without any
   cell, is not constant.  The components are those of w x - m, m being the weighted mean of the column; the columns are
   not divided by their standard deviations. A missing cell becomes (rebuilt + m) / w. A row of weight 0 takes part with
   -m in its present cells. A row without a present cell has no scores and gets m / w, as does every missing cell for
   `components` below 1.  The scores start from the first column of what is left of the table; rows where that cell is
   missing do not enter the first loadings. Loadings are scaled to length 1. From the second pass on a component is
   settled when the variance, with the divisor p - 1, of the change in its loadings is not above `tol`: 1e-6 is usual.
   With one column that variance is not a number, and the second pass is the last.  The dimensions bound the loops; the
   table's own row count is its stride. A read outside a table yields -1.0, which takes part. Flat form: `X` n by p,
   filled in place; `w` n elements.
   - Missing cells: filled with what the components rebuild (equality)
   - Weights: multiply the cells before the mean is taken off; a row of weight exactly 0 takes part with the mean, and
     its missing cells become 0.0
   - Divisor: W - 1 in the test for a constant column: a deviation up to 1e-6 ends it with 1
   - Empty input: 0
   - Memory: two tables of the size of X
   - Source: Wold, H. (1966), Estimation of principal components and related models by iterative least squares, in
     Krishnaiah, P. R. (ed.), Multivariate Analysis, Academic Press, 391-420
   - Known weakness: the limits for a constant column and for scores without length are absolute: a table in units so
     large that a deviation is 1e-6 or less ends with 1. A component that does not settle, as with a negative `tol` or
     one below what the arithmetic can reach, is used as it is after 100000 passes, without notice */
int Cpp_NIPALS(int n, int p, double* X, double* w, double tol, int components, double maxColumnShare,
               double maxTotalShare);

#ifdef __cplusplus
}
#endif

#endif
