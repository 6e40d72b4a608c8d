/* The functions of VecMat that take plain arrays, for C and languages that read C headers. C++ includes VecMat.h.
   Written by tools/bindings from exports.tsv: change those, not this file.

   What each function does, and how it treats missing cells, masks, weights and empty inputs, is documented below
   Docs/contracts; how arguments are passed in Docs/border.md. */
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
void Cpp_V_CopyDoubleToLong(double* src, int n, int* dst);
void Cpp_V_CopyLongToDouble(int* src, int n, double* dst);
void Cpp_WriteMatrixDbl(void);
void Cpp_WriteMatrixLng(void);
int TestMemory(void);
short Cpp_TestMemory(void);
int TestAllocMatrix(int a1, int a2, int a3, int a4, int a5, int a6, int a7, int a8, int a9, int a10, int a11, int a12,
                    int a13, int a14, int a15, int a16, int a17, int a18, int a19, int a20);
int GetStatusMemory(int bytes);
short Cpp_GetStatusMemory(int bytes);
void dprint(double value, const char* label);

/* ---- frame/super_matrices ---- */
int MySafeArrayAccessData(SAFEARRAY* sa, void** data);
void* ExtractBSTR(SAFEARRAY** sa);
void ProjVecToMat(double* src, int rows, int cols, int col, double* dst);

/* ---- elementary/column_extremes ---- */
void VB_M_MinMaxSPV(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode);
void VB_M_MinMaxSPV_T(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode);
double Cpp_M_MinAll(double* a, int rows, int cols);
void VB_M_MinMax(double* a, int rows, int cols, double* min, double* max, short* mask, short mode);
void Cpp_M_MaxPosByRow(double* a, int rows, int cols, int* out);
void VB_M_Max(double* a, int rows, int cols, double* out);
void VB_M_Min(double* a, int rows, int cols, double* out);

/* ---- elementary/predicates ---- */
short VB_V_IsConstant(double* x, int n, short mode);
short VB_V_IsConstantLng(int* x, int n, short mode);
short V_IsConstantBool(short* x, int n);
short VB_V_IsConstantBool(short* x, int n);
int VB_M_IsColConstant(double* a, int rows, int cols);
int VB_M_IsColConstantSPV(SAFEARRAY** a, int rows, int cols);
short VB_V_IsPositive(double* x, int n, short strict);
short VB_M_IsPositive(double* a, int rows, int cols, short* mask, short strict);
short VB_M_IsLong(double* a, int rows, int cols);
short VB_M_IsDiagConstant(double* a, int n);
short VB_M_IsIn01(double* a, int rows, int cols);
short VB_M_IsInIntervalSPV(SAFEARRAY** a, int rows, int cols, double lo, double hi, short open, short skipMissing);
short VB_V_IsInInterval(double* x, int n, double lo, double hi, short open, short skipMissing);

/* ---- elementary/packed_storage ---- */
void V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j);
void VB_V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j);
void VB_V_GetPositionInMatNN(int k, int n, int* i, int* j);

/* ---- elementary/symmetry ---- */
short VB_M_IsSymmetric(double* a, int n);
short VB_M_IsSymmetricSPV(SAFEARRAY** a, int n);
void VB_M_Symmetrize(double* a, int n, int mode);
void VB_M_SymmetrizeSPV(SAFEARRAY** a, int n, int mode);
int VB_M_IsTriangular(double* a, int n, short fill);
int VB_M_IsTriangularSPV(SAFEARRAY** a, int n, short fill);
int VB_M_CheckIfSimOrDissim(double* a, int n, int kind);
int VB_M_CheckIfSimOrDissimSPV(SAFEARRAY** a, int rows, int cols, int kind);
void VB_M_TransformSimToDissim(double* a, int n);

/* ---- elementary/sums_and_norms ---- */
double VB_M_SumOfElem(double* a, int rows, int cols);
double VB_M_Trace(double* a, int n);
double VB_M_FrobeniusNorm(double* a, int rows, int cols, double* b);
void VB_M_SumByCols(double* a, int rows, int cols, double* out);
void VB_M_SumByRows(double* a, int rows, int cols, double* out);
void VB_M_SquaredRows(double* a, int rows, int cols, double* out);
void VB_M_SquaredColumns(double* a, int rows, int cols, double* out);

/* ---- elementary/matrix_products ---- */
int VB_M_ProductAB(double* a, int r, int c, double* b, int c2, double* out);
int VB_M_ProductBV(double* b, int rows, int cols, double* v, double* out);
void VB_M_ProductVB(double* v, int rows, double* b, int cols, double* out);
void VB_M_ProductTrAB(double* a, int rows, int cols, double* b, int colsB, double* out);
void VB_M_ProductATrB(double* a, int rows, int cols, double* b, int rowsB, double* out);
void VB_M_ProductTrAA(double* a, int rows, int cols, double* out);
void Cpp_M_ProductTrAALng(int* a, int rows, int cols, int* out);
void VB_M_ProductATrA(double* a, int rows, int cols, double* out);
void VB_M_ProductABTrA(double* a, int rows, int cols, double* b, double* out);
void VB_M_ProductTrABA(double* a, int rows, int cols, double* b, double* out);
double VB_M_ProductTrVBV(double* v, int n, double* b);
double VB_M_ProductTrV1BV2(double* va, int n, double* b, double* vb);
void VB_M_ProductTrABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC, double* out);
void VB_M_ProductTrBV(double* b, int rows, int cols, double* v, double* out);
void VB_M_ProductVTrB(double* v, int n, double* b, int m, double* out);
void VB_M_ProductABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC, double* out);
void VB_M_ProductATrBC(double* a, int rows, int cols, double* b, int rowsB, double* c, int colsC, double* out);
void Cpp_M_ProductTrABV(double* a, int rows, int cols, double* b, int colsB, double* v, double* out);

/* ---- elementary/diagonal_products ---- */
void VB_M_ProductADTrA(double* a, int rows, int cols, double* d, double* out);
void VB_M_ProductTrADA(double* a, int rows, int cols, double* d, double* out);
void VB_M_ProductADiag(double* a, int rows, int cols, double* d, double* out);
void VB_M_ProductTrADiag(double* a, int rows, int cols, double* d, double* out);
void VB_M_ProductDiagVA(double* v, int rows, double* a, int cols, double* out);
void VB_M_ProductDiagV1ADiagV2(double* va, int rows, double* a, int cols, double* vb, double* out);
void VB_M_ProductADiagV(double* a, int rows, int cols, double* v, double* out);
void VB_M_ProductADiagVTrA(double* a, int rows, int cols, double* v, double* out);
void VB_M_ProductTrADiagVA(double* a, int rows, int cols, double* v, double* out);
void VB_M_ProductADiagVTrB(double* a, int rows, int cols, double* v, double* b, int rowsB, double* out);
void VB_M_ProductADiagVB(double* a, int rows, int cols, double* v, double* b, int colsB, double* out);
void VB_M_ProductTrADiagV(double* a, int rows, int cols, double* v, double* out);

/* ---- elementary/column_products ---- */
void VB_M_ProductByElement(double* a, int rows, int cols, double* b, double* out);
void VB_M_ProductHorizAB(double* a, int rows, int cols, double* b, int colsB, double* out);
void VB_M_ProductHorizAB2(double* a, int rows, int* cols, double* b, int colsB);
void VB_M_ProductDesignAB2(double* a, int rows, int* cols, double* b, int colsB, int mode, double* w, double* out);

/* ---- elementary/packed_products ---- */
void VB_M_ProductASymV(double* s, int n, double* v, double* out);
void VB_M_ProductVASym(double* v, int n, double* s, double* out);
void Cpp_MV_ProductAsymBsym(double* a, int len, int ignored, double* out);

/* ---- elementary/vector_products ---- */
double VB_V_ProductTrV1V2(double* a, int n, double* b);
void VB_V_ProductV1V2(double* a, int n, double* b, double* out);
void VB_V_ProductV1V22(double* a, int n, double* b);
void VB_V_ProductV1TrV2(double* a, int n, double* b, double* out);
void VB_V_ProductHorizV1V2(double* a, int n, double* b, int m, double* out);
void VB_V_ProductHorizV1V22(double* a, int* n, double* b, int m);
double VB_V_Product1toNDbl(double* x, int n);
int VB_V_Product1toNLng(int* x, int n);
short VB_V_V1GreaterThanMatCols(double* v, int n, double* a, int cols);
short VB_V_V1inferiorV2(double* a, int n, double* b);

/* ---- elementary/scalar_arithmetic ---- */
void VB_M_ScalarsA(double* a, int rows, int cols, double s, double* out);
void VB_M_ScalarsA2(double* a, int rows, int cols, double s);
void VB_M_ScalarsTrA(double* a, int rows, int cols, double s, double* out);
void VB_M_Sums1As2B(double* a, int rows, int cols, double* b, double s1, double s2, double* out);
void VB_M_APlusVal(double* a, int rows, int cols, double v, double* out);
void VB_M_APlusVal2(double* a, int rows, int cols, double v);
void Cpp_SumMat(double* a, double* b, int rows, int cols, double* out);

/* ---- elementary/cell_functions ---- */
void VB_M_Square(double* a, int rows, int cols);
double Cpp_M_SquareRootAij(double* a, int rows, int cols, double* out);
double Cpp_M_SquareRootAij2(double* a, int rows, int cols);
void VB_M_LogMatrix(double* a, int rows, int cols, short* mask);
void VB_M_Log10Matrix(double* a, int rows, int cols);

/* ---- elementary/distances ---- */
void VB_M_EuclidDist2(double* a, int rows, int cols, double* out, double* w, short betweenRows);
void Cpp_M_EuclidDistToVector(double* a, int rows, int cols, double* v, short byRow, double* out);

/* ---- elementary/gauss ---- */
int VB_V_Gauss(double* a, int n, double* b);
int VB_M_Gauss(double* a, int n, int m, double* b);

/* ---- elementary/filling ---- */
void VB_InitVectorToFalse(short* v, int n);
void VB_InitVectorToTrue(short* v, int n);
void VB_V_SetToValue(double* v, int n, double value);
void VB_V_SetToValueLng(int* v, int n, int value);
void VB_V_SetToValueStr(wchar_t** v, int n, const wchar_t* value);
void VB_V_Set1toNDbl(double* v, int n);
void VB_V_Set1toNLng(int* v, int n);

/* ---- elementary/array_copies ---- */
void VB_V_DuplicateDbl(double* src, int n, double* dst);
void VB_V_DuplicateLng(int* src, int n, int* dst);
void Cpp_V_DuplicateBool(short* src, int n, short* dst);
void VB_V_DuplicateDblToLng(double* src, int n, int* dst);
void VB_V_DuplicateLngToDbl(int* src, int n, double* dst);
void VB_V_DuplicateStr(wchar_t** src, int n, wchar_t** dst);
void VB_M_DuplicateStr(wchar_t** src, int r, int c, wchar_t** dst);
void VB_M_DuplicateDbl(double* src, int r, int c, double* dst);
void VB_M_DuplicateLng(int* src, int r, int c, int* dst);
void VB_M_CopyResize(double* src, int r, int c, double* dst, int newR, int newC);
void VB_M_CopyResizeStr(wchar_t** src, int r, int c, wchar_t** dst, int newR, int newC);
void VB_V_ReverseDbl(double* x, int n, double* out);
void V_ReverseBool(short* x, int n, short* out);
void VB_V_ReverseBool(short* x, int n, short* out);

/* ---- elementary/transposition ---- */
void VB_M_Transpose(double* a, int r, int c, double* out);
void VB_M_TransposeLng(int* a, int r, int c, int* out);
void VB_M_TransposeStr(wchar_t** a, int r, int c, wchar_t** out);
void VB_M_Transpose2(double* a, int r, int c);
void VB_M_Transpose2Lng(int* a, int r, int c);
void VB_M_Transpose2Str(wchar_t** a, int r, int c);
void VB_M_TransposeSPV(SAFEARRAY** a, int r, int c, SAFEARRAY** out);

/* ---- elementary/horizontal_merges ---- */
void VB_HMergeVectors(double* a, int nA, double* b, int nB, double* out);
void VB_HMergeTableVect(double* t, int r, int c, double* v, int n, double* out);
void VB_HMergeTableVect2(double* t, int r, int c, double* v, int n);
void VB_HMergeVectTable(double* v, int n, double* t, int r, int c, double* out);
void VB_HMergeVectColDbl(double* v, int n, double* t, int r, int col, double* out);
void VB_HMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out);
void VB_HMergeTablesDbl2(double* a, int r1, int c1, double* b, int r2, int c2);
void VB_HMergeTablesDbl2SPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2);
void VB_HMergeTablesDbl2SPV2(SAFEARRAY** a, int r1, int c1, SAFEARRAY** b, int r2, int c2);
void VB_HMergeTablesLng2(int* a, int r1, int c1, int* b, int r2, int c2);
void VB_HMergeTablesBool(short* a, int r1, int c1, short* b, int r2, int c2, short* out);
void VB_HMergeTablesBool2(short* a, int r1, int c1, short* b, int r2, int c2);
void VB_HMergeTablesStr(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2, wchar_t** out);
void VB_HMergeTablesStr2(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2);

/* ---- elementary/vertical_merges ---- */
void VB_VMergeVectorsDbl(double* a, int nA, double* b, int nB, double* out);
void VB_VMergeVectorsDbl2(double* a, int nA, double* b, int nB);
void VB_VMergeVectorsStr(wchar_t** a, int nA, wchar_t** b, int nB, wchar_t** out);
void VB_VMergeVectorsStr2(wchar_t** a, int nA, wchar_t** b, int nB);
void VB_VMergeVectorsBool2(short* a, int nA, short* b, int nB);
void VB_VMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out);
void Cpp_VMergeTablesDblSPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2, double* out);

/* ---- elementary/columns_and_rows ---- */
void VB_CopyMatrixColToMatrixCol(double* src, int n, int col, double* dst, int dstCol, short prepare);
void VB_CopyMatrixColToVector(double* src, int n, int col, double* v);
void VB_CopyMatrixRowToMatrixRow(double* src, int rows, int cols, int row, double* dst, int dstRows, int dstRow,
                                 short prepare);
void VB_CopyMatrixColToOneColMatStr(wchar_t** src, int n, int col, wchar_t** out);
void Cpp_Extractij(double* a, int n, int i, int j, double* out);

/* ---- elementary/blocks ---- */
void VB_M_CopyBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst);
void VB_M_CopyBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst);
void VB_M_CopyBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2, wchar_t** dst);
void Cpp_M_CopyBlockSPV2(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst);
void Cpp_M_CopyBlockSPV2_T(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst);
void Cpp_M_DuplicateDblSPV(SAFEARRAY** src, int rows, int cols, double* dst);
void Cpp_M_DuplicateDblSPV2(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);
void Cpp_M_DuplicateDblSPV2_T(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);
void Cpp_M_DuplicateDblSPV3(double* src, int rows, int cols, SAFEARRAY** dst);
void VB_M_DuplicateStrSPV(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);
void Cpp_M_CopyPasteBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst, int dstRows,
                          int dstCols, int row, int col);
void Cpp_M_CopyPasteBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst, int dstRows, int dstCols,
                             int row, int col);
void Cpp_M_CopyPasteBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2, wchar_t** dst,
                             int dstRows, int dstCols, int row, int col);
void VB_M_PasteBlock(double* src, int rows, int cols, double* dst, int dstRows, int dstCols, int row, int col);
void VB_M_PasteBlockLng(int* src, int rows, int cols, int* dst, int dstRows, int dstCols, int row, int col);
void VB_M_CopyToBigger(double* src, int rows, int cols, double* dst, int dstRows, int dstCols);

/* ---- elementary/extraction ---- */
void VB_M_ExtractMatToMatDbl(double* src, int rows, int cols, int from, int to, double* out);
void VB_M_ExtractMatToMatDblSPV(SAFEARRAY** src, int cols, int from, int to, double* out);
void VB_M_ExtractMatToMatStr(wchar_t** src, int rows, int cols, int from, int to, wchar_t** out);
void VB_M_ExtractMatToMatStrSPV(SAFEARRAY** src, int cols, int from, int to, wchar_t** out);
void VB_M_ExtractMatToMatByColDbl(double* src, int rows, int from, int to, double* out);
void Cpp_M_ExtractMatNeverySKSPV(SAFEARRAY** src, int n, int cols, int nOut, int keep, int skip, int start,
                                 SAFEARRAY** dst, double* positions);

/* ---- elementary/packing ---- */
void Cpp_MatToVect(double* a, int rows, int cols, double* v);
void Cpp_VectToMat(double* v, double* counts, int rows, int cols, double* out);
void Cpp_M_CopySymMatToVector(double* a, int n, double* v);
void Cpp_M_CopyVectorToSymMat(double* v, int n, double* a);

/* ---- elementary/removal ---- */
void VB_M_RemoveCol(double* a, int rows, int cols, int col, double* out);
void VB_M_RemoveRow(double* a, int rows, int cols, int row, double* out);
void VB_M_MoveRow(double* a, int rows, int cols, int r1, int r2);
void VB_M_RemoveCols2(double* a, int rows, int cols, int from, int to);
void VB_M_RemoveRows2(double* a, int rows, int cols, int from, int to);
void Cpp_M_RemoveRowsStr2(wchar_t** a, int rows, int cols, int from, int to);
int VB_M_RemoveRowsInList(double* a, int rows, int cols, int* flags, int nOut, double* out);
int VB_M_RemoveColsInList(double* a, int rows, int cols, int* flags, int nOut, double* out);

/* ---- matrix ---- */
double sqr2(double x);

/* ---- elementary/vector_sums ---- */
double VB_V_Sum2Dbl(double* x, int n);
int VB_V_Sum2Lng(int* x, int n);
double VB_V_SumFromTo(double* x, int n, int from, int to);
int VB_V_SumFromToLng(int* x, int n, int from, int to);
double VB_V_Sum(double* x, int n, short* mask, double* w);
double VB_V_SumSq(double* x, int n);
double VB_V_SumSqW(double* x, int n, double* w);
double VB_V_DiffSq(double* a, int n, double* b);
double VB_V_DiffSqW(double* a, int n, double* b, double* w);
double Cpp_V_DiffSqStart(double* a, int n, double* b, int start);

/* ---- elementary/vector_counts ---- */
int VB_V_NbTrue(short* x, int n);
int V_NbTrue(short* x, int n);
int VB_V_NbTrueFromTo(short* x, int n, int from, int to);
int V_NbTrueFromTo(short* x, int from, int to);
short Cpp_V_FindLng(int* x, int n, int val);

/* ---- elementary/vector_updates ---- */
void VB_V_RemoveVal(double* x, int n, int pos, double* out);
void VB_V_PlusVal(double* x, int n, double val, short* mask);
void VB_V_PlusVal2(double* x, int n, double val);
void VB_V_Norm(double* x, int n);
void VB_V_NormToVal(double* x, int n, double val);
void VB_V_NormW(double* x, int n, double* w);
void VB_V_NormToValW(double* x, int n, double val, double* w);
void VB_V_ReplaceVal(double* x, int n, double from, double to, double* out);
void VB_V_ReplaceVal2(double* x, int n, double from, double to);

/* ---- elementary/extremes ---- */
double VB_V_Min(double* x, int n, short* mask);
double VB_V_Max(double* x, int n, short* mask);
double VB_V_Min2(double* x, int n);
double VB_V_Max2(double* x, int n);
int VB_V_Min2Lng(int* x, int n);
int VB_V_Max2Lng(int* x, int n);
int VB_V_MaxInt(int* x, int n, short* mask);
double VB_V_MinAndMinPos(double* x, int n, int* pos);
double VB_V_MaxAndMaxPos(double* x, int n, int* pos);
void VB_V_MinMax(double* x, int n, double* min, double* max, short* mask);
void VB_V_MinMaxLng(int* x, int n, double* min, double* max, short* mask);

/* ---- elementary/conditional_aggregates ---- */
double VB_V_SumIf(double* x, int n, double* key, double val);
double VB_V_SumIfW(double* x, int n, double* key, double* w, double val);
double VB_V_MaxIf(double* x, int n, double* key, double val);
double VB_V_MinIf(double* x, int n, double* key, double val);
double VB_V_NbIf(double* x, int n, double val);
int VB_V_NbIfLng(int* x, int n, int val);
double VB_V_NbIfW(double* x, int n, double* w, double val);

/* ---- sorting/sort_apply ---- */
void VB_SortApply(double* source, int nRows, int nCols, double* order, double* out);
void VB_SortApply2(double* table, int nRows, int nCols, double* order);
void VB_SortApplyLng(int* source, int nRows, int nCols, double* order, int* out);
void VB_SortApply2Lng(int* table, int nRows, int nCols, double* order);
void VB_SortApplyStr(wchar_t** source, int nRows, int nCols, double* order, wchar_t** out);
void VB_SortApply2Str(wchar_t** table, int nRows, int nCols, double* order);

/* ---- sorting/ranks ---- */
void VB_V_GetRanksDbl(double* x, int n, double* ranks);
void VB_V_GetRanksLng(double* x, int n, int* ranks);
void VB_V_GetRanksTiesDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes);
void VB_V_GetRanksTiesIntDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes);
short VB_V_IsSorted(double* x, int n, short strict);
double VB_V_TimeIntervalSize(double* t, int n, short sorted);

/* ---- sorting/sort ---- */
int VB_SortQVectorDbl(double* x, int n, int first, int last, short descending);
int VB_SortQVectorLng(int* x, int n, int first, int last, short descending);
int VB_SortQVectorStr(wchar_t** x, int n, int first, int last, short descending);
int VB_SortQMatrixCol(double* table, int nRows, int nCols, int col, int first, int last, short descending);
int VB_SortQMatrixColStr(wchar_t** table, int nRows, int nCols, int col, int first, int last, short descending);
int VB_SortMatrixSeqQDbl(double* table, int nRows, int nCols, short lastToFirst);
int VB_SortMatrixSeqQLng(int* table, int nRows, int nCols, short lastToFirst);
int VB_SortMatrixSeqQP1toP2Dbl(double* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst);
int VB_SortMatrixSeqQP1toP2Lng(int* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst);
int VB_SortQDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                int nCompanionCols, short descending, short writeKeys);
int VB_SortQDbl2(double* data, int nRows, int nCols, int first, int last, int* key, double* companion,
                 int nCompanionCols, short descending, short writeKeys);
int VB_SortQLng(int* data, int nRows, int nCols, int first, int last, int* key, int* companion, int nCompanionCols,
                short descending, short writeKeys);
int VB_SortQBool(short* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                 int nCompanionCols, short descending, short writeKeys);
int VB_SortQStr(wchar_t** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                int nCompanionCols, short descending, short writeKeys);
int VB_SortQByColDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                     int nCompanionRows, short descending, short writeKeys);
int VB_SortQDblSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                   int nCompanionCols, short descending, short writeKeys);
int VB_SortQStrSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                   int nCompanionCols, short descending, short writeKeys);
int VB_SortDataBy01(double* data, int n, int nCols, double* key);
int VB_SortDataBy01Bool(short* data, int n, int nCols, double* key);
int VB_SortDataBy01SPV(SAFEARRAY** data, int n, int nCols, double* key);
int VB_SortDataBy01Str(wchar_t** data, int n, int nCols, double* key);

/* ---- missing/missing_counts ---- */
short IsMissingValueDbl(double x);
short VB_IsMissingValueDbl(double x);
short VB_IsMissingValueStr(const wchar_t* s);
int VB_V_NbMissing(double* x, int n);
int VB_V_NbNonMissing(double* x, int n);
int VB_V_NbMissingStr(wchar_t** x, int n);
void VB_M_NbMissing(double* a, int nRows, int nCols, int* counts);
void VB_M_NbMissingStr(wchar_t** a, int nRows, int nCols, int* counts);
int VB_M_NbMissing2(double* a, int nRows, int nCols);
int VB_M_NbMissing2Str(wchar_t** a, int nRows, int nCols);
void VB_M_NbNonMissing(double* a, int nRows, int nCols, int* counts);
int Cpp_M_NbMissingSPV(SAFEARRAY** a, int nRows, int nCols);
int VB_M_NbMissingSPV_T(SAFEARRAY** a, int n, int unused);

/* ---- missing/missing_masks ---- */
void VB_SummarizeMissing(int n, int* total, short* out, short* a, short* b, short* c);
void VB_SummarizeAllMissing(int n, short* a, short* b, int* total, short* out);
void VB_M_AllMissingRows(double* x, int nRows, int nCols, short* filter, short* out);
void VB_M_AllMissingRowsStr(wchar_t** x, int nRows, int nCols, short* filter, short* out);
void VB_V_GetMissingDbl(double* x, int n, short* a, short* out);
void VB_V_GetMissingStr(wchar_t** x, int n, short* a, short* out);
void Cpp_M_GetMissingDbl(double* a, int nRows, int nCols, short* filter, short* out);
void Cpp_M_GetMissingDblSPV(SAFEARRAY** a, int nRows, int nCols, short* filter, short* out);
void Cpp_M_IdentifyMissingInMat(double* a, int nRows, int nCols, int* out);
void Cpp_M_IdentifyMissingInMatSPV(SAFEARRAY** a, int nRows, int nCols, int* out);
short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(double* a, int n);
short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(SAFEARRAY** a, int n);

/* ---- missing/replacement ---- */
void VB_M_ReplaceMissingByVal(double* a, int nRows, int nCols, double value);
void VB_M_ReplaceMissingByValSPV(SAFEARRAY** a, int nRows, int nCols, double value);
void VB_M_ReplaceMissingByStr(wchar_t** a, int nRows, int nCols, const wchar_t* value);
void Cpp_M_ReplaceByMissing(double* a, int nRows, int nCols, int* mask, int nMaskCols, short wholeRow);
void VB_M_SetWeightsToZeroForMissing(double* data, int nRows, int nCols, double* weights, int nWeightCols);

/* ---- missing/observation_labels ---- */
void VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask, const wchar_t* prefix);

/* ---- missing/complete_rows ---- */
void VB_RemoveRowsWithMissing(double* data, int nRows, int nCols, int nRemoved, short* mask, double* out);
void VB_RemoveRowsWithMissingStr(wchar_t** data, int nRows, int nCols, int nRemoved, short* mask, wchar_t** out);
void Cpp_M_InsertMissingDbl(double* data, int nRows, int nCols, short* mask, int nInsert, double* out);
void Cpp_M_InsertMissingLng(int* data, int nRows, int nCols, short* mask, int nInsert, int* out);
void Cpp_MatToVect_NoMissing(double* data, int nRows, int nCols, double* counts, double* emptyCols, double* out);

/* ---- missing/missing_arithmetic ---- */
double Cpp_V_MinIgnoreMissing(double* x, int n);
double VB_V_SumIfNotMissing(double* x, int n, double* y);
int VB_M_ProductABMissing(double* a, int nRows, int nInner, double* b, int nCols, double* c);

/* ---- missing/mean_imputation ---- */
void VB_EstimateRowsWithMissingMean(double* X, int n, int nCols, short* mask, double* weights);
void VB_EstimateRowsWithMissingMeanPred(double* statX, int nStat, double* X, int nRows, int nCols, short* mask,
                                        double* weights);
void VB_EstimateRowsWithMissingMeanSPV(SAFEARRAY** X, int n, int nCols, short* mask, double* weights);

/* ---- missing/mode_imputation ---- */
void VB_EstimateRowsWithMissingMode(wchar_t** S, int n, int nCols, short* mask, double* weights);
void VB_EstimateRowsWithMissingModePred(wchar_t** statS, int nStat, wchar_t** S, int nRows, int nCols, short* mask,
                                        double* weights);

/* ---- missing/new_variables ---- */
void VB_ComputeNewVar(double* Q, int nRows, int nCols, double* C, double* variances, double* covariances);

/* ---- missing/nearest_neighbour ---- */
void VB_EstimateRowsWithMissingNN(double* X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                  int nColsS, double* weights);
void VB_EstimateRowsWithMissingNNStr(wchar_t** P, int n, int nColsP, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights);
void VB_EstimateRowsWithMissingNNSPV(SAFEARRAY** X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights);
void VB_EstimateRowsWithMissingNNSPV2(SAFEARRAY** X, int n, int nColsX, short* mask, SAFEARRAY** Y, int nColsY,
                                      wchar_t** S, int nColsS, double* weights);
void VB_EstimateRowsWithMissingNNPred(double* statX, int nStat, double* X, int nRows, int nColsX, short* mask,
                                      double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS,
                                      double* weights);
void VB_EstimateRowsWithMissingNNStrPred(wchar_t** statX, int nStat, wchar_t** X, int nRows, int nColsX, short* mask,
                                         double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS,
                                         double* weights);

/* ---- qualitative/categories ---- */
void VB_M_InfoQuali(wchar_t** table, int nRows, int nCols, wchar_t** modes, double* modeWeights, int* total, int* nCats,
                    wchar_t** categories, double* catWeights, int ignored, double* weights, short sortCats);
void VB_M_InfoQuali2(wchar_t** table, int nRows, int nCols, int maxCats, int* nCats, wchar_t** modes,
                     double* modeWeights, int* total, wchar_t** categories, double* catWeights, int ignored,
                     double* weights, short sortCats);
void VB_M_InfoQualiValid(wchar_t** table, int nRows, int nCols, int maxCats, int ignored1, int* nCats,
                         wchar_t** categories, double* catWeights, short* invalid, int ignored2, double* weights);
int Cpp_GetMaxCat(wchar_t** table, int nRows, int nCols, int* counts);
int Cpp_CheckUniqueCatByVar(wchar_t** table, int nRows, int nCols, int* counts);

/* ---- qualitative/moments_of_one_column ---- */
void VB_M_MeanStDevVarOneInMat(double* table, int nRows, int col, double* mean, double* stdDev, double* variance,
                               int ignored, double* weights, short sampleVariance, short countDivisor);

/* ---- qualitative/frequencies ---- */
double VB_V_Freq(double* x, int n, double* weights, double value, double tolerance);
int VB_V_FreqLng(int* x, int n, double* weights, int value);
double VB_V_FreqStr(wchar_t** x, int n, double* weights, const wchar_t* value);

/* ---- qualitative/modes ---- */
wchar_t* VB_V_Mode(wchar_t** x, int n, int ignored, double* weights);
double VB_V_ModeCatDbl(double* x, int n);

/* ---- qualitative/disjunctive_tables ---- */
void VB_BuildDisjunctiveTable(wchar_t** table, int nRows, int nCols, int totalCats, int* nCats, wchar_t** categories,
                              double* freq, int maxCats, double* out, int coding, int keepBaseline);
short VB_M_IsDisjTable(double* table, int nRows, int nCols, short* mask, int* rowSum);
void Cpp_M_ConvertBinarytoDisjTable(double* table, int nRows, int nCols, double* out);

/* ---- qualitative/recoding ---- */
void VB_M_ReplaceCatByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories, double* out);
void VB_M_ReplaceStrByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories, short* mask,
                            int firstCode, double* out);
void VB_M_Binarize(double* table, int nRows, int nCols, double* out);
void VB_M_Binarize2(double* table, int nRows, int nCols);
void VB_M_Binarize2SPV(SAFEARRAY** table, int nRows, int nCols);
void Cpp_V_RecodeToBinary(wchar_t** x, int n, const wchar_t* value, int ignored, double* out);

/* ---- qualitative/indicators ---- */
short VB_V_Is01(double* x, int n);
short VB_V_IsWeights(double* x, int n);
short VB_V_IsCWeights(double* x, int n);
short VB_V_IsIndicator(double* x, int n);
short VB_V_IsIndicatorSPV(SAFEARRAY** x, int nRows, int nCols);

/* ---- qualitative/group_by ---- */
void VB_M_GroupBy(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate, int* nGroups,
                  double* out);
void VB_M_GroupByW(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate, int* nGroups,
                   double* out, double* weights);

/* ---- qualitative/distinct ---- */
void VB_M_Dedupe(double* data, int nRows, int nCols, int* nKept, double* out);
void VB_V_ExtractDistinct(double* x, int n, double* distinct, int* count);
int VB_V_NbDistinct(double* x, int n);
int VB_V_NbDistinctLng(int* x, int n);
int Cpp_V_NbDistinctStr(wchar_t** x, int n);

/* ---- qualitative/labels ---- */
void VB_V_ReplaceDoubles(wchar_t** x, int n);
void Cpp_M_MergeStringsByRow(wchar_t** table, int nRows, int nCols, const void* separator, wchar_t** out);

/* ---- descriptive/covariance_with_moments ---- */
int INDEX3(int i, int j);
int VB_M_CovCorrAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev, double* var,
                                short corr, short* mask, double* w, short sample, short freqWeights, short center,
                                short reduce);
int VB_M_CovCorrVAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev, double* var,
                                 short corr, short* mask, double* w, short sample, short freqWeights, short center,
                                 short reduce);

/* ---- descriptive/covariance ---- */
int VB_M_CovCorr(double* X, int n, int p, double* C, short corr, short* mask, double* w, short sample,
                 short freqWeights);

/* ---- descriptive/cross_correlation ---- */
int VB_M_CorrMatMat(double* X, int n, int p, double* Y, int q, double* C, short* mask, double* w, short corr,
                    short square, short sample, short freqWeights);
int VB_M_CorrMatMatSPV(SAFEARRAY** X, int n, int p, double* Y, int q, double* C, short* mask, double* w, short corr,
                       short square, short sample, short freqWeights);
double VB_CorrelPearson(double* x, double* y, int n, short* mask, double* w, short sample, short freqWeights);

/* ---- descriptive/correlation_of_covariance ---- */
int VB_M_CorrMatFromCovMat(double* S, int p, double* R);
int Cpp_M_CorrMatFromCovMatSPV2_T(SAFEARRAY** C, int p);

/* ---- descriptive/triangular_fit ---- */
void TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b);
double TriangularFunc(double b, double x1, double m, double x2, double prob1, double prob2);
double TriangularFuncDeriv(double b, double x1, double m, double x2, double prob1, double prob2);
double TriangularFunc2(double a, double x1, double m, double x2, double prob1, double prob2);
void Cpp_TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b);

/* ---- descriptive/forecast_errors ---- */
double VB_MAPE(double* y, double* f, int n, double* w, int first);
double VB_MPE(double* y, double* f, int n, double* w, int first);
double VB_MAE(double* y, double* f, int n, double* w, int first);
double VB_RMSE(double* Y, int n, int p, double* F, int divisor);

/* ---- descriptive/means ---- */
double VB_V_Mean(double* v, int n, short* mask, double* w);
double VB_V_Mean2(double* v, int n);
double VB_V_MeanAbs(double* v, int n, short* mask, double* w);
int VB_M_Mean(double* X, int n, int p, double* mean, int ignored, double* w);
void Cpp_V_GMeanGSD(double* v, int n, short* mask, double* w, double* gmean, double* gsd);
double Cpp_V_HarmonicMean(double* v, int n, short* mask, double* w);
int Cpp_M_Mean2(double* X, int n, int p, double* w, double* mean);
int Cpp_M_Mean3(double* X, int n, int p, double* mean);

/* ---- descriptive/moments ---- */
double VB_V_Var(double* v, int n, short* mask, double* w, short sample, short freqWeights);
double VB_V_Stdev(double* v, int n, short* mask, double* w, short sample, short freqWeights);
void VB_V_MeanVar(double* v, int n, double* mean, double* var, short* mask, double* w, short sample, short freqWeights);
void VB_V_MeanStdev(double* v, int n, double* mean, double* stdev, short* mask, double* w, short sample,
                    short freqWeights);
int VB_M_MeanStDev(double* X, int n, int p, double* mean, double* stdev, short* mask, double* w, short sample,
                   short freqWeights, short ignoreMask);
int VB_M_MeanStDevByRow(double* X, int n, int p, double* mean, double* stdev, double* w, short sample,
                        short freqWeights);
int VB_M_MeanStDevVar(double* X, int n, int p, double* mean, double* stdev, double* var, short* mask, double* w,
                      short sample, short freqWeights);
double Cpp_V_Var2(double* v, int n, short sample, short freqWeights);

/* ---- descriptive/shape_moments ---- */
void VB_V_MeanVarSkewPKurtP(double* v, int n, double* mean, double* var, double* skewP, double* kurtP, double* skewS,
                            double* kurtS, double* seSkew, double* seKurt, short* mask, double* w, short sample,
                            short freqWeights);

/* ---- descriptive/conditional_moments ---- */
double VB_V_MeanIf(double* v, int n, double* g, double value);
double VB_V_MeanIfW(double* v, int n, double* g, double* w, double value);
double VB_V_VarIf(double* v, int n, double* g, double value, short sample);
double VB_V_VarIfW(double* v, int n, double* g, double* w, double value, short sample);

/* ---- descriptive/quantiles ---- */
double VB_V_Quantile(double* x, int n, double p);
double VB_V_QuantileW(double* v, int n, double* w, double p);
double VB_V_QuantileM(double* v, int n, short* mask, double p);
double VB_V_QuantileMW(double* v, int n, short* mask, double* w, double p);
void Cpp_V_Quantiles13(double* x, int n, double* out);

/* ---- descriptive/robust_statistics ---- */
double Cpp_V_MedianAbsDev(double* v, int n, double centre, short* mask, double* w);
double Cpp_V_MeanAbsDev(double* v, int n, double centre, short* mask, double* w);
double Cpp_V_MedianAbsDev2(double* v, int n, double* centre);
void Cpp_V_MeanStdev2(double* v, int n, short sample, double* mean, double* stdev);
void Cpp_V_Winsorize2(double* v, int n, double pLow, double pHigh);
void Cpp_V_ZScores(double* v, int n, int kind, double* mean, double* stdev, double* out);

/* ---- descriptive/column_scaling ---- */
void VB_M_Center(double* X, int n, int p, double* Z);
void VB_M_CenterW(double* X, int n, int p, double* w, double* Z);
void VB_M_Center2(double* X, int n, int p);
void VB_M_Center2SPV(SAFEARRAY** X, int n, int p);
void VB_M_CenterW2(double* X, int n, int p, double* w);
void VB_M_Reduce(double* X, int n, int p, double* Z, short sample, short freqWeights);
void VB_M_ReduceW(double* X, int n, int p, double* w, double* Z, short sample, short freqWeights);
void VB_M_Reduce2(double* X, int n, int p, short sample);
void VB_M_ReduceW2(double* X, int n, int p, double* w, short sample, short freqWeights);
void VB_M_Standardize2(double* X, int n, int p, short sample);
void VB_M_Standardize2SPV(SAFEARRAY** X, int n, int p, short sample);
void VB_M_Standardize3(double* X, int n, int p, double* mean, double* stdev, short sample, short freqWeights);
void VB_M_StandardizeW2(double* X, int n, int p, double* w, short sample, short freqWeights);
void VB_M_StandardizeW3(double* X, int n, int p, double* w, double* mean, double* stdev, short sample,
                        short freqWeights);
void Cpp_M_StandardizeApply2(double* X, int n, int p, double* mean, double* stdev);
void Cpp_M_StandardizeByGroup(double* X, int n, int p, double* g, int nGroups, short reduce, short sample);

/* ---- descriptive/standardisation ---- */
void VB_M_Standardize(double* X, int n, int p, double* Z, double* mean, double* stdev, double* var, short* mask,
                      double* w, short sample, short freqWeights);
void VB_M_StandardizeW(double* X, int n, int p, double* w, short sample, short freqWeights, double* Z);
void VB_M_StandardizeKnownMeansStDev(double* X, int n, int p, double* mean, double* Z, double* stdev, double* var,
                                     short* mask);
void VB_M_StandardizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV);
void Cpp_M_SubstractFirstCol2(double* X, int n, int p);
void VB_V_Standardize(double* x, int n, short* mask, double* w, short sample, double* z);
void VB_V_Standardize2(double* x, int n, short* mask, double* w, short sample);
void VB_M_StandardizeByVect(double* X, int n, int p, short* a, double* w, short sample, double* Z);
void VB_M_StandardizeByVect2(double* X, int n, int p, short* a, double* w, short sample);

/* ---- descriptive/rescaling ---- */
void VB_M_Normalize(double* X, int n, int p, double* norms, short* mask, double* w);
void VB_M_NormalizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV);
void VB_V_Rescale(double* v, int n, double low, double high, short* mask, double* out);
void VB_V_Rescale2(double* x, int n, double low, double high, short* mask);
void VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a, double* Z);
void VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a);

/* ---- randomisation/kronecker_product ---- */
void Cpp_KroneckerTensorProduct(double* A, int m, int n, double* B, int p, int q, double* C, int rowsC, int colsC);

/* ---- randomisation/contingency_tables ---- */
void Cpp_CheckForMarginalSums(double* T, int n, int p, double* R, int* rowsLeft, int* colsLeft, int* zeroRows,
                              int* zeroCols);

/* ---- randomisation/letter_groups ---- */
void Cpp_GetCompMatrices(double* X, int n, int col, int* comp, short keepOrder, int* order, wchar_t** labels,
                         int* nGroups);

/* ---- randomisation/permutations ---- */
double GenerateRandom01(int* seed, short seedFlag, int* seedOut);
void Cpp_V_Shuffle(double* v, int n, int* seed, short seedFlag, int* seedOut);
void Cpp_V_ShuffleLng(int* v, int n, int* seed, short seedFlag, int* seedOut);
void Cpp_M_ShuffleDbl(double* X, int n, int p, double* Z, int* seed, short seedFlag, int* seedOut);
void Cpp_M_ShuffleDbl2(double* X, int n, int p, int* seed, short seedFlag, int* seedOut);
void Cpp_M_ShuffleStr(wchar_t** X, int n, int p, wchar_t** Z, int* seed, short seedFlag, int* seedOut);
void Cpp_M_ShuffleStr2(wchar_t** X, int n, int p, int* seed, short seedFlag, int* seedOut);
void Cpp_Random1toNLng(int n, int* out, int* seed, short seedFlag, int* seedOut);
void Cpp_Random1toNDbl(int n, double* out, int* seed, short seedFlag, int* seedOut);
void VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short seedFlag, int* seedOut);
void VB_GenerateIndicator(double* out, int n, int first, int last);

/* ---- randomisation/column_addresses ---- */
wchar_t* SimplifyRange(const void* input);
wchar_t* Increase1Col(const void* letters);

/* ---- randomisation/sampling_with_repeats ---- */
void VB_M_SamplingWithReplacement(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed, short seedFlag,
                                  int* seedOut);
void VB_M_SamplingWithReplacementSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                     short seedFlag, int* seedOut);
void VB_M_SampleUserDefined(wchar_t** S, int N, int p, wchar_t** Z, double* freq, double* ids);
void VB_M_SampleUserDefinedSPV(SAFEARRAY** S, int N, int p, SAFEARRAY** Z, double* freq, double* ids);

/* ---- randomisation/interval_sampling ---- */
void VB_M_SamplingSystematicRdStart(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                    short seedFlag, int* seedOut);
void VB_M_SamplingSystematicRdStartSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                       short seedFlag, int* seedOut);
void VB_M_SamplingSystematicCentered(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids);
void VB_M_SamplingSystematicCenteredSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids);
void VB_M_SamplingRandomStratified(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                   short seedFlag, int* seedOut);
void VB_M_SamplingRandomStratifiedSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                      short seedFlag, int* seedOut);

/* ---- randomisation/stratified_sampling ---- */
void Cpp_M_SamplingRandomStratifiedByStr(wchar_t** S, int N, int p, int n, wchar_t** Z, double* rowIds, double* outIds,
                                         double* strata, double* quota, double* sizes, int nStrata, int* seed,
                                         short seedFlag, int* seedOut);
void VB_M_SamplingRandomStratifiedByStrSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* rowIds,
                                           double* outIds, double* strata, double* quota, double* sizes, int nStrata,
                                           int* seed, short seedFlag, int* seedOut);

/* ---- decompositions/eigen ---- */
int VB_M_Eigen(double* a, double* values, double* vectors, int n, short sort);
double Cpp_M_Norm2(double* a, int rows, int cols);

/* ---- decompositions/axis_selection ---- */
void VB_FilterEigen(double* eig, int n, short drop, double floor, double cumPercent, int maxCount, double minValue,
                    int* kept, int* selected, double* percent);
void Cpp_FilterOnSumOfSquares(double* data, int rows, int cols, int colA, int colB, double threshold, double* flags);

/* ---- decompositions/lu ---- */
int VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status);

/* ---- decompositions/determinants ---- */
double VB_M_Determinant(double* a, int n, short* status);
double Cpp_M_LogDeterminant(double* a, int n);
double VB_M_DeterminantTriang(double* a, int n, short* status);

/* ---- decompositions/cholesky ---- */
int VB_M_CholDecomp(double* a, int n, double* l);
int VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short keep);
int VB_M_CholDecompCleaned(double* a, int n, int* mask, double* l);

/* ---- decompositions/echelon_forms ---- */
void Cpp_M_ForwardDoolittle(double* a, int n, double* out);
void Cpp_M_HermiteCanonical(double* a, int n, double* h);

/* ---- decompositions/square_root ---- */
int Cpp_M_SquareRoot(double* a, int n, double* out);

/* ---- decompositions/generalised_inverses ---- */
int VB_M_InvGeneralized(double* a, int n, double* out, double tol, int* rank);
int VB_M_InvGeneralizedSym(double* a, int n, double* out, double tol, int* rank);

/* ---- decompositions/g2_inverse ---- */
void Cpp_M_InverseG2(double* a, int n, double tol, double* out);
void Cpp_M_InverseG2Selective(double* a, int n, int* select, double tol, double* out, short zeroOthers);

/* ---- decompositions/constrained_inverses ---- */
int CleanConstraintsAndInvert(int n, int* constraints, double* a, double* out);
int CleanConstraintsAndInvertTriang(int n, int* constraints, double* a, short lower, double* out);
double VB_M_DeterminantCleaned(double* a, int n, int* constraints, short* status);

/* ---- decompositions/inversion ---- */
int VB_M_Inverse1(double* a, int n, double* out, double tol);
int VB_M_InverseTriang(double* a, int n, short lower, double* out, double tol);

/* ---- decompositions/sweep ---- */
int VB_M_Sweep(double* a, int n, int k);

/* ---- decompositions/inverse_products ---- */
void VB_M_ProductTrAinvBA(double* a, int rows, int cols, double* b, double* out);
double VB_M_ProductTrVinvBV(double* v, int n, double* b);
void VB_M_ProductAinvBTrA(double* a, int rows, int cols, double* b, double* out);

/* ---- decompositions/nearest_correlation ---- */
int Cpp_M_CorrMatFromSymMat(double* a, int n);
int Cpp_M_CorrMatFromSymMatSPV(SAFEARRAY** a, int n);
int Cpp_M_CorrMatFromSymMatSPV_T(SAFEARRAY** a, int n);
double Cpp_M_RowSumNorm(double* a, int rows, int cols);

/* ---- decompositions/correlation_order ---- */
int Cpp_ReOrderCorrelations(double* R, int n, int mode, wchar_t** labels, double* second, int* third);

/* ---- decompositions/singular_values ---- */
int VB_M_SVDecomp(double* x, int n, int p, double* s, double* u, int ldu, double* v, int ldv, int job, int* info);
int VB_M_SVDecompSPV(SAFEARRAY** x, int n, int p, double* s, SAFEARRAY** u, int ldu, SAFEARRAY** v, int ldv, int job,
                     int* info);
int VB_M_Rank(double* a, int n, int p);

/* ---- decompositions/level1_routines ---- */
void drotg(double* a, double* b, double* c, double* s);

/* ---- fitting/biplots ---- */
void VB_BiplotTransData(double* rows, double* sup, double* cols, int nA, int nB, int m, int k, double* eigen,
                        double factor, double alpha, double* obs, double* var);
void VB_BiplotTransDataSPV(SAFEARRAY** rows, double* sup, SAFEARRAY** cols, int nA, int nB, int m, int storedAxes,
                           int k, double* eigen, double factor, double alpha, double* obs, double* var);
void ComputeCosines(double* a, int n, int k, double* out);
void Cpp_M_BoldCosines(int* best, int n, int* flags, int cols);
void Cpp_M_GetMaxDistToOrigin(double* a, int n, int k, double* maxDistance, int* row);

/* ---- fitting/least_squares ---- */
int RunOLSBasic(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                double tol, double* beta, double* fitted);
int RunOLSBasic2(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                 double tol, double* beta, double* se, double* fitted);
int RunOLSBasic3(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                 double tol, double* beta, double* se, double* fitted, double* swept, double* mean, double* sd);

/* ---- fitting/least_squares_blocks ---- */
int RunOLSBasic2Lg(int n, int p1, double* X1, int p2, double* X2, int p3, double* X3, int p4, double* X4, int p5,
                   double* X5, double* y, double* w, int degree, short interactions, short noIntercept, double tol,
                   double* beta, double* se, double* fitted);

/* ---- fitting/tolerance_check ---- */
void VB_CheckTolerance(double* corr, int p, int groupCount, int* selected, int ignored, int* group, double tol,
                       short pairCheck, short keepGoing, short fromLast, short otherGroupsOnly, int* status,
                       double* tolerance, double* vif);

/* ---- fitting/newton_raphson ---- */
int NewtonRaphson(double* x, int n, int* constraints, double* g, double* H, double tol, double* se, double* Hinv,
                  short limitStep, double maxStep);

/* ---- fitting/nipals ---- */
int Cpp_NIPALS(int n, int p, double* X, double* w, double tol, int components, double maxColumnShare,
               double maxTotalShare);

#ifdef __cplusplus
}
#endif

#endif
