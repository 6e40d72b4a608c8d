/* Guarded calls of the functions of VecMat that take plain arrays, for C and languages that call C.
   Written by tools/bindings from exports.tsv: change those, not this file.

   An exception must not pass through the frames of another language: R, Python, macro hosts and C itself cannot catch
   it, and the process ends. The functions here catch it. Each wraps the function of VecMatFlat.h after which it is
   named, takes the same arguments and returns one of the statuses below. The function's own result is stored in
   *returned, unless that is null. After a failure *returned is unchanged, and so are the caller's arrays where
   Docs/border.md says so.

   They form a separate library, VecMatGuarded. */
#ifndef VECMAT_GUARDED_H
#define VECMAT_GUARDED_H

#include "VecMatFlat.h"

#if !defined(_WIN32)
#define VECMAT_GUARDED_API __attribute__((visibility("default")))
#elif defined(VecMatGuarded_EXPORTS)
#define VECMAT_GUARDED_API __declspec(dllexport)
#else
#define VECMAT_GUARDED_API __declspec(dllimport)
#endif

enum {
    VECMAT_CALL_DONE = 0,
    VECMAT_CALL_OUT_OF_MEMORY = 1, /* an allocation failed, or a size exceeds any memory */
    VECMAT_CALL_FAILED = 2         /* any other failure */
};

#ifdef __cplusplus
extern "C" {
#endif

/* Why the last guarded call of this thread failed: the function's name and the reason. Empty if it succeeded, or if
   there was none. Valid until the thread's next guarded call. */
VECMAT_GUARDED_API const char* vecmat_guarded_error(void);

/* ---- frame/services ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_CopyDoubleToLong(double* src, int n, int* dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_CopyLongToDouble(int* src, int n, double* dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_WriteMatrixDbl(void);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_WriteMatrixLng(void);
VECMAT_GUARDED_API int vecmat_guarded_TestMemory(int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_TestMemory(short* returned);
VECMAT_GUARDED_API int vecmat_guarded_TestAllocMatrix(int a1, int a2, int a3, int a4, int a5, int a6, int a7, int a8,
                                                      int a9, int a10, int a11, int a12, int a13, int a14, int a15,
                                                      int a16, int a17, int a18, int a19, int a20, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_GetStatusMemory(int bytes, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_GetStatusMemory(int bytes, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_dprint(double value, const char* label);

/* ---- frame/super_matrices ---- */
VECMAT_GUARDED_API int vecmat_guarded_MySafeArrayAccessData(SAFEARRAY* sa, void** data, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_ExtractBSTR(SAFEARRAY** sa, void** returned);
VECMAT_GUARDED_API int vecmat_guarded_ProjVecToMat(double* src, int rows, int cols, int col, double* dst);

/* ---- elementary/column_extremes ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_MinMaxSPV(SAFEARRAY** a, int rows, int cols, double* min, double* max,
                                                     short* mask, short mode);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_MinMaxSPV_T(SAFEARRAY** a, int rows, int cols, double* min, double* max,
                                                       short* mask, short mode);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_MinAll(double* a, int rows, int cols, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_MinMax(double* a, int rows, int cols, double* min, double* max, short* mask,
                                                  short mode);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_MaxPosByRow(double* a, int rows, int cols, int* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Max(double* a, int rows, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Min(double* a, int rows, int cols, double* out);

/* ---- elementary/predicates ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsConstant(double* x, int n, short mode, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsConstantLng(int* x, int n, short mode, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_V_IsConstantBool(short* x, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsConstantBool(short* x, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsColConstant(double* a, int rows, int cols, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsColConstantSPV(SAFEARRAY** a, int rows, int cols, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsPositive(double* x, int n, short strict, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsPositive(double* a, int rows, int cols, short* mask, short strict,
                                                      short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsLong(double* a, int rows, int cols, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsDiagConstant(double* a, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsIn01(double* a, int rows, int cols, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsInIntervalSPV(SAFEARRAY** a, int rows, int cols, double lo, double hi,
                                                           short open, short skipMissing, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsInInterval(double* x, int n, double lo, double hi, short open,
                                                        short skipMissing, short* returned);

/* ---- elementary/packed_storage ---- */
VECMAT_GUARDED_API int vecmat_guarded_V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_GetPositionInMatNN(int k, int n, int* i, int* j);

/* ---- elementary/symmetry ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsSymmetric(double* a, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsSymmetricSPV(SAFEARRAY** a, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Symmetrize(double* a, int n, int mode);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SymmetrizeSPV(SAFEARRAY** a, int n, int mode);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsTriangular(double* a, int n, short fill, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsTriangularSPV(SAFEARRAY** a, int n, short fill, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CheckIfSimOrDissim(double* a, int n, int kind, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CheckIfSimOrDissimSPV(SAFEARRAY** a, int rows, int cols, int kind,
                                                                 int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_TransformSimToDissim(double* a, int n);

/* ---- elementary/sums_and_norms ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SumOfElem(double* a, int rows, int cols, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Trace(double* a, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_FrobeniusNorm(double* a, int rows, int cols, double* b, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SumByCols(double* a, int rows, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SumByRows(double* a, int rows, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SquaredRows(double* a, int rows, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SquaredColumns(double* a, int rows, int cols, double* out);

/* ---- elementary/matrix_products ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductAB(double* a, int r, int c, double* b, int c2, double* out,
                                                     int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductBV(double* b, int rows, int cols, double* v, double* out,
                                                     int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductVB(double* v, int rows, double* b, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrAB(double* a, int rows, int cols, double* b, int colsB,
                                                       double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductATrB(double* a, int rows, int cols, double* b, int rowsB,
                                                       double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrAA(double* a, int rows, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ProductTrAALng(int* a, int rows, int cols, int* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductATrA(double* a, int rows, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductABTrA(double* a, int rows, int cols, double* b, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrABA(double* a, int rows, int cols, double* b, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrVBV(double* v, int n, double* b, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrV1BV2(double* va, int n, double* b, double* vb, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrABC(double* a, int rows, int cols, double* b, int colsB, double* c,
                                                        int colsC, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrBV(double* b, int rows, int cols, double* v, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductVTrB(double* v, int n, double* b, int m, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductABC(double* a, int rows, int cols, double* b, int colsB, double* c,
                                                      int colsC, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductATrBC(double* a, int rows, int cols, double* b, int rowsB, double* c,
                                                        int colsC, double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ProductTrABV(double* a, int rows, int cols, double* b, int colsB, double* v,
                                                         double* out);

/* ---- elementary/diagonal_products ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductADTrA(double* a, int rows, int cols, double* d, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrADA(double* a, int rows, int cols, double* d, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductADiag(double* a, int rows, int cols, double* d, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrADiag(double* a, int rows, int cols, double* d, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductDiagVA(double* v, int rows, double* a, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductDiagV1ADiagV2(double* va, int rows, double* a, int cols, double* vb,
                                                                double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductADiagV(double* a, int rows, int cols, double* v, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductADiagVTrA(double* a, int rows, int cols, double* v, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrADiagVA(double* a, int rows, int cols, double* v, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductADiagVTrB(double* a, int rows, int cols, double* v, double* b,
                                                            int rowsB, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductADiagVB(double* a, int rows, int cols, double* v, double* b,
                                                          int colsB, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrADiagV(double* a, int rows, int cols, double* v, double* out);

/* ---- elementary/column_products ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductByElement(double* a, int rows, int cols, double* b, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductHorizAB(double* a, int rows, int cols, double* b, int colsB,
                                                          double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductHorizAB2(double* a, int rows, int* cols, double* b, int colsB);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductDesignAB2(double* a, int rows, int* cols, double* b, int colsB,
                                                            int mode, double* w, double* out);

/* ---- elementary/packed_products ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductASymV(double* s, int n, double* v, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductVASym(double* v, int n, double* s, double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_MV_ProductAsymBsym(double* a, int len, int ignored, double* out);

/* ---- elementary/vector_products ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ProductTrV1V2(double* a, int n, double* b, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ProductV1V2(double* a, int n, double* b, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ProductV1V22(double* a, int n, double* b);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ProductV1TrV2(double* a, int n, double* b, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ProductHorizV1V2(double* a, int n, double* b, int m, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ProductHorizV1V22(double* a, int* n, double* b, int m);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Product1toNDbl(double* x, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Product1toNLng(int* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_V1GreaterThanMatCols(double* v, int n, double* a, int cols, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_V1inferiorV2(double* a, int n, double* b, short* returned);

/* ---- elementary/scalar_arithmetic ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ScalarsA(double* a, int rows, int cols, double s, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ScalarsA2(double* a, int rows, int cols, double s);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ScalarsTrA(double* a, int rows, int cols, double s, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Sums1As2B(double* a, int rows, int cols, double* b, double s1, double s2,
                                                     double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_APlusVal(double* a, int rows, int cols, double v, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_APlusVal2(double* a, int rows, int cols, double v);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_SumMat(double* a, double* b, int rows, int cols, double* out);

/* ---- elementary/cell_functions ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Square(double* a, int rows, int cols);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_SquareRootAij(double* a, int rows, int cols, double* out, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_SquareRootAij2(double* a, int rows, int cols, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_LogMatrix(double* a, int rows, int cols, short* mask);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Log10Matrix(double* a, int rows, int cols);

/* ---- elementary/distances ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_EuclidDist2(double* a, int rows, int cols, double* out, double* w,
                                                       short betweenRows);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_EuclidDistToVector(double* a, int rows, int cols, double* v, short byRow,
                                                               double* out);

/* ---- elementary/gauss ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Gauss(double* a, int n, double* b, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Gauss(double* a, int n, int m, double* b, int* returned);

/* ---- elementary/filling ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_InitVectorToFalse(short* v, int n);
VECMAT_GUARDED_API int vecmat_guarded_VB_InitVectorToTrue(short* v, int n);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SetToValue(double* v, int n, double value);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SetToValueLng(int* v, int n, int value);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SetToValueStr(wchar_t** v, int n, const wchar_t* value);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Set1toNDbl(double* v, int n);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Set1toNLng(int* v, int n);

/* ---- elementary/array_copies ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_DuplicateDbl(double* src, int n, double* dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_DuplicateLng(int* src, int n, int* dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_DuplicateBool(short* src, int n, short* dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_DuplicateDblToLng(double* src, int n, int* dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_DuplicateLngToDbl(int* src, int n, double* dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_DuplicateStr(wchar_t** src, int n, wchar_t** dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_DuplicateStr(wchar_t** src, int r, int c, wchar_t** dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_DuplicateDbl(double* src, int r, int c, double* dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_DuplicateLng(int* src, int r, int c, int* dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CopyResize(double* src, int r, int c, double* dst, int newR, int newC);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CopyResizeStr(wchar_t** src, int r, int c, wchar_t** dst, int newR,
                                                         int newC);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ReverseDbl(double* x, int n, double* out);
VECMAT_GUARDED_API int vecmat_guarded_V_ReverseBool(short* x, int n, short* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ReverseBool(short* x, int n, short* out);

/* ---- elementary/transposition ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Transpose(double* a, int r, int c, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_TransposeLng(int* a, int r, int c, int* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_TransposeStr(wchar_t** a, int r, int c, wchar_t** out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Transpose2(double* a, int r, int c);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Transpose2Lng(int* a, int r, int c);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Transpose2Str(wchar_t** a, int r, int c);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_TransposeSPV(SAFEARRAY** a, int r, int c, SAFEARRAY** out);

/* ---- elementary/horizontal_merges ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeVectors(double* a, int nA, double* b, int nB, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTableVect(double* t, int r, int c, double* v, int n, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTableVect2(double* t, int r, int c, double* v, int n);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeVectTable(double* v, int n, double* t, int r, int c, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeVectColDbl(double* v, int n, double* t, int r, int col, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2,
                                                         double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesDbl2(double* a, int r1, int c1, double* b, int r2, int c2);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesDbl2SPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesDbl2SPV2(SAFEARRAY** a, int r1, int c1, SAFEARRAY** b, int r2,
                                                              int c2);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesLng2(int* a, int r1, int c1, int* b, int r2, int c2);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesBool(short* a, int r1, int c1, short* b, int r2, int c2,
                                                          short* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesBool2(short* a, int r1, int c1, short* b, int r2, int c2);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesStr(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2,
                                                         wchar_t** out);
VECMAT_GUARDED_API int vecmat_guarded_VB_HMergeTablesStr2(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2);

/* ---- elementary/vertical_merges ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_VMergeVectorsDbl(double* a, int nA, double* b, int nB, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_VMergeVectorsDbl2(double* a, int nA, double* b, int nB);
VECMAT_GUARDED_API int vecmat_guarded_VB_VMergeVectorsStr(wchar_t** a, int nA, wchar_t** b, int nB, wchar_t** out);
VECMAT_GUARDED_API int vecmat_guarded_VB_VMergeVectorsStr2(wchar_t** a, int nA, wchar_t** b, int nB);
VECMAT_GUARDED_API int vecmat_guarded_VB_VMergeVectorsBool2(short* a, int nA, short* b, int nB);
VECMAT_GUARDED_API int vecmat_guarded_VB_VMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2,
                                                         double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_VMergeTablesDblSPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2,
                                                             double* out);

/* ---- elementary/columns_and_rows ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_CopyMatrixColToMatrixCol(double* src, int n, int col, double* dst, int dstCol,
                                                                  short prepare);
VECMAT_GUARDED_API int vecmat_guarded_VB_CopyMatrixColToVector(double* src, int n, int col, double* v);
VECMAT_GUARDED_API int vecmat_guarded_VB_CopyMatrixRowToMatrixRow(double* src, int rows, int cols, int row, double* dst,
                                                                  int dstRows, int dstRow, short prepare);
VECMAT_GUARDED_API int vecmat_guarded_VB_CopyMatrixColToOneColMatStr(wchar_t** src, int n, int col, wchar_t** out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_Extractij(double* a, int n, int i, int j, double* out);

/* ---- elementary/blocks ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CopyBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2,
                                                     double* dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CopyBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CopyBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1,
                                                        int c2, wchar_t** dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CopyBlockSPV2(SAFEARRAY** src, int r1, int r2, int c1, int c2,
                                                          SAFEARRAY** dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CopyBlockSPV2_T(SAFEARRAY** src, int r1, int r2, int c1, int c2,
                                                            SAFEARRAY** dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_DuplicateDblSPV(SAFEARRAY** src, int rows, int cols, double* dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_DuplicateDblSPV2(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_DuplicateDblSPV2_T(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_DuplicateDblSPV3(double* src, int rows, int cols, SAFEARRAY** dst);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_DuplicateStrSPV(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CopyPasteBlock(double* src, int rows, int cols, int r1, int r2, int c1,
                                                           int c2, double* dst, int dstRows, int dstCols, int row,
                                                           int col);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CopyPasteBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2,
                                                              double* dst, int dstRows, int dstCols, int row, int col);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CopyPasteBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1,
                                                              int c2, wchar_t** dst, int dstRows, int dstCols, int row,
                                                              int col);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_PasteBlock(double* src, int rows, int cols, double* dst, int dstRows,
                                                      int dstCols, int row, int col);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_PasteBlockLng(int* src, int rows, int cols, int* dst, int dstRows,
                                                         int dstCols, int row, int col);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CopyToBigger(double* src, int rows, int cols, double* dst, int dstRows,
                                                        int dstCols);

/* ---- elementary/extraction ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ExtractMatToMatDbl(double* src, int rows, int cols, int from, int to,
                                                              double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ExtractMatToMatDblSPV(SAFEARRAY** src, int cols, int from, int to,
                                                                 double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ExtractMatToMatStr(wchar_t** src, int rows, int cols, int from, int to,
                                                              wchar_t** out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ExtractMatToMatStrSPV(SAFEARRAY** src, int cols, int from, int to,
                                                                 wchar_t** out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ExtractMatToMatByColDbl(double* src, int rows, int from, int to,
                                                                   double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ExtractMatNeverySKSPV(SAFEARRAY** src, int n, int cols, int nOut, int keep,
                                                                  int skip, int start, SAFEARRAY** dst,
                                                                  double* positions);

/* ---- elementary/packing ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_MatToVect(double* a, int rows, int cols, double* v);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_VectToMat(double* v, double* counts, int rows, int cols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CopySymMatToVector(double* a, int n, double* v);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CopyVectorToSymMat(double* v, int n, double* a);

/* ---- elementary/removal ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_RemoveCol(double* a, int rows, int cols, int col, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_RemoveRow(double* a, int rows, int cols, int row, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_MoveRow(double* a, int rows, int cols, int r1, int r2);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_RemoveCols2(double* a, int rows, int cols, int from, int to);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_RemoveRows2(double* a, int rows, int cols, int from, int to);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_RemoveRowsStr2(wchar_t** a, int rows, int cols, int from, int to);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_RemoveRowsInList(double* a, int rows, int cols, int* flags, int nOut,
                                                            double* out, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_RemoveColsInList(double* a, int rows, int cols, int* flags, int nOut,
                                                            double* out, int* returned);

/* ---- matrix ---- */
VECMAT_GUARDED_API int vecmat_guarded_sqr2(double x, double* returned);

/* ---- elementary/vector_sums ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Sum2Dbl(double* x, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Sum2Lng(int* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SumFromTo(double* x, int n, int from, int to, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SumFromToLng(int* x, int n, int from, int to, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Sum(double* x, int n, short* mask, double* w, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SumSq(double* x, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SumSqW(double* x, int n, double* w, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_DiffSq(double* a, int n, double* b, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_DiffSqW(double* a, int n, double* b, double* w, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_DiffSqStart(double* a, int n, double* b, int start, double* returned);

/* ---- elementary/vector_counts ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbTrue(short* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_V_NbTrue(short* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbTrueFromTo(short* x, int n, int from, int to, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_V_NbTrueFromTo(short* x, int from, int to, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_FindLng(int* x, int n, int val, short* returned);

/* ---- elementary/vector_updates ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_RemoveVal(double* x, int n, int pos, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_PlusVal(double* x, int n, double val, short* mask);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_PlusVal2(double* x, int n, double val);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Norm(double* x, int n);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NormToVal(double* x, int n, double val);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NormW(double* x, int n, double* w);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NormToValW(double* x, int n, double val, double* w);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ReplaceVal(double* x, int n, double from, double to, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ReplaceVal2(double* x, int n, double from, double to);

/* ---- elementary/extremes ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Min(double* x, int n, short* mask, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Max(double* x, int n, short* mask, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Min2(double* x, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Max2(double* x, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Min2Lng(int* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Max2Lng(int* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MaxInt(int* x, int n, short* mask, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MinAndMinPos(double* x, int n, int* pos, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MaxAndMaxPos(double* x, int n, int* pos, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MinMax(double* x, int n, double* min, double* max, short* mask);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MinMaxLng(int* x, int n, double* min, double* max, short* mask);

/* ---- elementary/conditional_aggregates ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SumIf(double* x, int n, double* key, double val, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SumIfW(double* x, int n, double* key, double* w, double val,
                                                  double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MaxIf(double* x, int n, double* key, double val, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MinIf(double* x, int n, double* key, double val, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbIf(double* x, int n, double val, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbIfLng(int* x, int n, int val, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbIfW(double* x, int n, double* w, double val, double* returned);

/* ---- sorting/sort_apply ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_SortApply(double* source, int nRows, int nCols, double* order, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortApply2(double* table, int nRows, int nCols, double* order);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortApplyLng(int* source, int nRows, int nCols, double* order, int* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortApply2Lng(int* table, int nRows, int nCols, double* order);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortApplyStr(wchar_t** source, int nRows, int nCols, double* order,
                                                      wchar_t** out);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortApply2Str(wchar_t** table, int nRows, int nCols, double* order);

/* ---- sorting/ranks ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_GetRanksDbl(double* x, int n, double* ranks);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_GetRanksLng(double* x, int n, int* ranks);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_GetRanksTiesDbl(double* x, int n, double* weights, double* ranks, int* nTies,
                                                           double* tieSizes);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_GetRanksTiesIntDbl(double* x, int n, double* weights, double* ranks,
                                                              int* nTies, double* tieSizes);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsSorted(double* x, int n, short strict, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_TimeIntervalSize(double* t, int n, short sorted, double* returned);

/* ---- sorting/sort ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQVectorDbl(double* x, int n, int first, int last, short descending,
                                                        int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQVectorLng(int* x, int n, int first, int last, short descending,
                                                        int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQVectorStr(wchar_t** x, int n, int first, int last, short descending,
                                                        int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQMatrixCol(double* table, int nRows, int nCols, int col, int first,
                                                        int last, short descending, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQMatrixColStr(wchar_t** table, int nRows, int nCols, int col, int first,
                                                           int last, short descending, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortMatrixSeqQDbl(double* table, int nRows, int nCols, short lastToFirst,
                                                           int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortMatrixSeqQLng(int* table, int nRows, int nCols, short lastToFirst,
                                                           int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortMatrixSeqQP1toP2Dbl(double* table, int nRows, int nCols, int firstCol,
                                                                 int lastCol, short lastToFirst, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortMatrixSeqQP1toP2Lng(int* table, int nRows, int nCols, int firstCol,
                                                                 int lastCol, short lastToFirst, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQDbl(double* data, int nRows, int nCols, int first, int last, double* key,
                                                  double* companion, int nCompanionCols, short descending,
                                                  short writeKeys, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQDbl2(double* data, int nRows, int nCols, int first, int last, int* key,
                                                   double* companion, int nCompanionCols, short descending,
                                                   short writeKeys, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQLng(int* data, int nRows, int nCols, int first, int last, int* key,
                                                  int* companion, int nCompanionCols, short descending, short writeKeys,
                                                  int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQBool(short* data, int nRows, int nCols, int first, int last, double* key,
                                                   double* companion, int nCompanionCols, short descending,
                                                   short writeKeys, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQStr(wchar_t** data, int nRows, int nCols, int first, int last,
                                                  double* key, double* companion, int nCompanionCols, short descending,
                                                  short writeKeys, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQByColDbl(double* data, int nRows, int nCols, int first, int last,
                                                       double* key, double* companion, int nCompanionRows,
                                                       short descending, short writeKeys, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQDblSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last,
                                                     double* key, double* companion, int nCompanionCols,
                                                     short descending, short writeKeys, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortQStrSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last,
                                                     double* key, double* companion, int nCompanionCols,
                                                     short descending, short writeKeys, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortDataBy01(double* data, int n, int nCols, double* key, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortDataBy01Bool(short* data, int n, int nCols, double* key, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortDataBy01SPV(SAFEARRAY** data, int n, int nCols, double* key,
                                                         int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_SortDataBy01Str(wchar_t** data, int n, int nCols, double* key, int* returned);

/* ---- missing/missing_counts ---- */
VECMAT_GUARDED_API int vecmat_guarded_IsMissingValueDbl(double x, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_IsMissingValueDbl(double x, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_IsMissingValueStr(const wchar_t* s, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbMissing(double* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbNonMissing(double* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbMissingStr(wchar_t** x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_NbMissing(double* a, int nRows, int nCols, int* counts);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_NbMissingStr(wchar_t** a, int nRows, int nCols, int* counts);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_NbMissing2(double* a, int nRows, int nCols, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_NbMissing2Str(wchar_t** a, int nRows, int nCols, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_NbNonMissing(double* a, int nRows, int nCols, int* counts);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_NbMissingSPV(SAFEARRAY** a, int nRows, int nCols, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_NbMissingSPV_T(SAFEARRAY** a, int n, int unused, int* returned);

/* ---- missing/missing_masks ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_SummarizeMissing(int n, int* total, short* out, short* a, short* b, short* c);
VECMAT_GUARDED_API int vecmat_guarded_VB_SummarizeAllMissing(int n, short* a, short* b, int* total, short* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_AllMissingRows(double* x, int nRows, int nCols, short* filter, short* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_AllMissingRowsStr(wchar_t** x, int nRows, int nCols, short* filter,
                                                             short* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_GetMissingDbl(double* x, int n, short* a, short* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_GetMissingStr(wchar_t** x, int n, short* a, short* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_GetMissingDbl(double* a, int nRows, int nCols, short* filter, short* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_GetMissingDblSPV(SAFEARRAY** a, int nRows, int nCols, short* filter,
                                                             short* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_IdentifyMissingInMat(double* a, int nRows, int nCols, int* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_IdentifyMissingInMatSPV(SAFEARRAY** a, int nRows, int nCols, int* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(double* a, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(SAFEARRAY** a, int n,
                                                                                     short* returned);

/* ---- missing/replacement ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ReplaceMissingByVal(double* a, int nRows, int nCols, double value);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ReplaceMissingByValSPV(SAFEARRAY** a, int nRows, int nCols, double value);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ReplaceMissingByStr(wchar_t** a, int nRows, int nCols, const wchar_t* value);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ReplaceByMissing(double* a, int nRows, int nCols, int* mask, int nMaskCols,
                                                             short wholeRow);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SetWeightsToZeroForMissing(double* data, int nRows, int nCols,
                                                                      double* weights, int nWeightCols);

/* ---- missing/observation_labels ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask,
                                                                 const wchar_t* prefix);

/* ---- missing/complete_rows ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_RemoveRowsWithMissing(double* data, int nRows, int nCols, int nRemoved,
                                                               short* mask, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_RemoveRowsWithMissingStr(wchar_t** data, int nRows, int nCols, int nRemoved,
                                                                  short* mask, wchar_t** out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_InsertMissingDbl(double* data, int nRows, int nCols, short* mask,
                                                             int nInsert, double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_InsertMissingLng(int* data, int nRows, int nCols, short* mask, int nInsert,
                                                             int* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_MatToVect_NoMissing(double* data, int nRows, int nCols, double* counts,
                                                              double* emptyCols, double* out);

/* ---- missing/missing_arithmetic ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_MinIgnoreMissing(double* x, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_SumIfNotMissing(double* x, int n, double* y, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductABMissing(double* a, int nRows, int nInner, double* b, int nCols,
                                                            double* c, int* returned);

/* ---- missing/mean_imputation ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingMean(double* X, int n, int nCols, short* mask,
                                                                     double* weights);
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingMeanPred(double* statX, int nStat, double* X, int nRows,
                                                                         int nCols, short* mask, double* weights);
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingMeanSPV(SAFEARRAY** X, int n, int nCols, short* mask,
                                                                        double* weights);

/* ---- missing/mode_imputation ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingMode(wchar_t** S, int n, int nCols, short* mask,
                                                                     double* weights);
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingModePred(wchar_t** statS, int nStat, wchar_t** S,
                                                                         int nRows, int nCols, short* mask,
                                                                         double* weights);

/* ---- missing/new_variables ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_ComputeNewVar(double* Q, int nRows, int nCols, double* C, double* variances,
                                                       double* covariances);

/* ---- missing/nearest_neighbour ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingNN(double* X, int n, int nColsX, short* mask, double* Y,
                                                                   int nColsY, wchar_t** S, int nColsS,
                                                                   double* weights);
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingNNStr(wchar_t** P, int n, int nColsP, short* mask,
                                                                      double* Y, int nColsY, wchar_t** S, int nColsS,
                                                                      double* weights);
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingNNSPV(SAFEARRAY** X, int n, int nColsX, short* mask,
                                                                      double* Y, int nColsY, wchar_t** S, int nColsS,
                                                                      double* weights);
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingNNSPV2(SAFEARRAY** X, int n, int nColsX, short* mask,
                                                                       SAFEARRAY** Y, int nColsY, wchar_t** S,
                                                                       int nColsS, double* weights);
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingNNPred(double* statX, int nStat, double* X, int nRows,
                                                                       int nColsX, short* mask, double* statY,
                                                                       double* Y, int nColsY, wchar_t** statS,
                                                                       wchar_t** S, int nColsS, double* weights);
VECMAT_GUARDED_API int vecmat_guarded_VB_EstimateRowsWithMissingNNStrPred(wchar_t** statX, int nStat, wchar_t** X,
                                                                          int nRows, int nColsX, short* mask,
                                                                          double* statY, double* Y, int nColsY,
                                                                          wchar_t** statS, wchar_t** S, int nColsS,
                                                                          double* weights);

/* ---- qualitative/categories ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_InfoQuali(wchar_t** table, int nRows, int nCols, wchar_t** modes,
                                                     double* modeWeights, int* total, int* nCats, wchar_t** categories,
                                                     double* catWeights, int ignored, double* weights, short sortCats);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_InfoQuali2(wchar_t** table, int nRows, int nCols, int maxCats, int* nCats,
                                                      wchar_t** modes, double* modeWeights, int* total,
                                                      wchar_t** categories, double* catWeights, int ignored,
                                                      double* weights, short sortCats);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_InfoQualiValid(wchar_t** table, int nRows, int nCols, int maxCats,
                                                          int ignored1, int* nCats, wchar_t** categories,
                                                          double* catWeights, short* invalid, int ignored2,
                                                          double* weights);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_GetMaxCat(wchar_t** table, int nRows, int nCols, int* counts, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_CheckUniqueCatByVar(wchar_t** table, int nRows, int nCols, int* counts,
                                                              int* returned);

/* ---- qualitative/moments_of_one_column ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_MeanStDevVarOneInMat(double* table, int nRows, int col, double* mean,
                                                                double* stdDev, double* variance, int ignored,
                                                                double* weights, short sampleVariance,
                                                                short countDivisor);

/* ---- qualitative/frequencies ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Freq(double* x, int n, double* weights, double value, double tolerance,
                                                double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_FreqLng(int* x, int n, double* weights, int value, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_FreqStr(wchar_t** x, int n, double* weights, const wchar_t* value,
                                                   double* returned);

/* ---- qualitative/modes ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Mode(wchar_t** x, int n, int ignored, double* weights, wchar_t** returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ModeCatDbl(double* x, int n, double* returned);

/* ---- qualitative/disjunctive_tables ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_BuildDisjunctiveTable(wchar_t** table, int nRows, int nCols, int totalCats,
                                                               int* nCats, wchar_t** categories, double* freq,
                                                               int maxCats, double* out, int coding, int keepBaseline);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_IsDisjTable(double* table, int nRows, int nCols, short* mask, int* rowSum,
                                                       short* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ConvertBinarytoDisjTable(double* table, int nRows, int nCols, double* out);

/* ---- qualitative/recoding ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ReplaceCatByCodes(wchar_t** table, int nRows, int nCols, int* nCats,
                                                             wchar_t** categories, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ReplaceStrByCodes(wchar_t** table, int nRows, int nCols, int* nCats,
                                                             wchar_t** categories, short* mask, int firstCode,
                                                             double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Binarize(double* table, int nRows, int nCols, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Binarize2(double* table, int nRows, int nCols);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Binarize2SPV(SAFEARRAY** table, int nRows, int nCols);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_RecodeToBinary(wchar_t** x, int n, const wchar_t* value, int ignored,
                                                           double* out);

/* ---- qualitative/indicators ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Is01(double* x, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsWeights(double* x, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsCWeights(double* x, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsIndicator(double* x, int n, short* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_IsIndicatorSPV(SAFEARRAY** x, int nRows, int nCols, short* returned);

/* ---- qualitative/group_by ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_GroupBy(double* data, int nRows, int nCols, int* colTypes, int keyCol,
                                                   int aggregate, int* nGroups, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_GroupByW(double* data, int nRows, int nCols, int* colTypes, int keyCol,
                                                    int aggregate, int* nGroups, double* out, double* weights);

/* ---- qualitative/distinct ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Dedupe(double* data, int nRows, int nCols, int* nKept, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ExtractDistinct(double* x, int n, double* distinct, int* count);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbDistinct(double* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_NbDistinctLng(int* x, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_NbDistinctStr(wchar_t** x, int n, int* returned);

/* ---- qualitative/labels ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_ReplaceDoubles(wchar_t** x, int n);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_MergeStringsByRow(wchar_t** table, int nRows, int nCols,
                                                              const void* separator, wchar_t** out);

/* ---- descriptive/covariance_with_moments ---- */
VECMAT_GUARDED_API int vecmat_guarded_INDEX3(int i, int j, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CovCorrAndMeanStDevVar(double* X, int n, int p, double* C, double* mean,
                                                                  double* stdev, double* var, short corr, short* mask,
                                                                  double* w, short sample, short freqWeights,
                                                                  short center, short reduce, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CovCorrVAndMeanStDevVar(double* X, int n, int p, double* C, double* mean,
                                                                   double* stdev, double* var, short corr, short* mask,
                                                                   double* w, short sample, short freqWeights,
                                                                   short center, short reduce, int* returned);

/* ---- descriptive/covariance ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CovCorr(double* X, int n, int p, double* C, short corr, short* mask,
                                                   double* w, short sample, short freqWeights, int* returned);

/* ---- descriptive/cross_correlation ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CorrMatMat(double* X, int n, int p, double* Y, int q, double* C, short* mask,
                                                      double* w, short corr, short square, short sample,
                                                      short freqWeights, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CorrMatMatSPV(SAFEARRAY** X, int n, int p, double* Y, int q, double* C,
                                                         short* mask, double* w, short corr, short square, short sample,
                                                         short freqWeights, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_CorrelPearson(double* x, double* y, int n, short* mask, double* w,
                                                       short sample, short freqWeights, double* returned);

/* ---- descriptive/correlation_of_covariance ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CorrMatFromCovMat(double* S, int p, double* R, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CorrMatFromCovMatSPV2_T(SAFEARRAY** C, int p, int* returned);

/* ---- descriptive/triangular_fit ---- */
VECMAT_GUARDED_API int vecmat_guarded_TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2,
                                                        double* a, double* b);
VECMAT_GUARDED_API int vecmat_guarded_TriangularFunc(double b, double x1, double m, double x2, double prob1,
                                                     double prob2, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_TriangularFuncDeriv(double b, double x1, double m, double x2, double prob1,
                                                          double prob2, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_TriangularFunc2(double a, double x1, double m, double x2, double prob1,
                                                      double prob2, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2,
                                                            double* a, double* b);

/* ---- descriptive/forecast_errors ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_MAPE(double* y, double* f, int n, double* w, int first, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_MPE(double* y, double* f, int n, double* w, int first, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_MAE(double* y, double* f, int n, double* w, int first, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_RMSE(double* Y, int n, int p, double* F, int divisor, double* returned);

/* ---- descriptive/means ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Mean(double* v, int n, short* mask, double* w, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Mean2(double* v, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MeanAbs(double* v, int n, short* mask, double* w, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Mean(double* X, int n, int p, double* mean, int ignored, double* w,
                                                int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_GMeanGSD(double* v, int n, short* mask, double* w, double* gmean,
                                                     double* gsd);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_HarmonicMean(double* v, int n, short* mask, double* w, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_Mean2(double* X, int n, int p, double* w, double* mean, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_Mean3(double* X, int n, int p, double* mean, int* returned);

/* ---- descriptive/moments ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Var(double* v, int n, short* mask, double* w, short sample,
                                               short freqWeights, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Stdev(double* v, int n, short* mask, double* w, short sample,
                                                 short freqWeights, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MeanVar(double* v, int n, double* mean, double* var, short* mask, double* w,
                                                   short sample, short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MeanStdev(double* v, int n, double* mean, double* stdev, short* mask,
                                                     double* w, short sample, short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_MeanStDev(double* X, int n, int p, double* mean, double* stdev, short* mask,
                                                     double* w, short sample, short freqWeights, short ignoreMask,
                                                     int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_MeanStDevByRow(double* X, int n, int p, double* mean, double* stdev,
                                                          double* w, short sample, short freqWeights, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_MeanStDevVar(double* X, int n, int p, double* mean, double* stdev,
                                                        double* var, short* mask, double* w, short sample,
                                                        short freqWeights, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_Var2(double* v, int n, short sample, short freqWeights, double* returned);

/* ---- descriptive/shape_moments ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MeanVarSkewPKurtP(double* v, int n, double* mean, double* var, double* skewP,
                                                             double* kurtP, double* skewS, double* kurtS,
                                                             double* seSkew, double* seKurt, short* mask, double* w,
                                                             short sample, short freqWeights);

/* ---- descriptive/conditional_moments ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MeanIf(double* v, int n, double* g, double value, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_MeanIfW(double* v, int n, double* g, double* w, double value,
                                                   double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_VarIf(double* v, int n, double* g, double value, short sample,
                                                 double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_VarIfW(double* v, int n, double* g, double* w, double value, short sample,
                                                  double* returned);

/* ---- descriptive/quantiles ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Quantile(double* x, int n, double p, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_QuantileW(double* v, int n, double* w, double p, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_QuantileM(double* v, int n, short* mask, double p, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_QuantileMW(double* v, int n, short* mask, double* w, double p,
                                                      double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_Quantiles13(double* x, int n, double* out);

/* ---- descriptive/robust_statistics ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_MedianAbsDev(double* v, int n, double centre, short* mask, double* w,
                                                         double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_MeanAbsDev(double* v, int n, double centre, short* mask, double* w,
                                                       double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_MedianAbsDev2(double* v, int n, double* centre, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_MeanStdev2(double* v, int n, short sample, double* mean, double* stdev);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_Winsorize2(double* v, int n, double pLow, double pHigh);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_ZScores(double* v, int n, int kind, double* mean, double* stdev,
                                                    double* out);

/* ---- descriptive/column_scaling ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Center(double* X, int n, int p, double* Z);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CenterW(double* X, int n, int p, double* w, double* Z);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Center2(double* X, int n, int p);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Center2SPV(SAFEARRAY** X, int n, int p);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CenterW2(double* X, int n, int p, double* w);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Reduce(double* X, int n, int p, double* Z, short sample, short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ReduceW(double* X, int n, int p, double* w, double* Z, short sample,
                                                   short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Reduce2(double* X, int n, int p, short sample);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ReduceW2(double* X, int n, int p, double* w, short sample,
                                                    short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Standardize2(double* X, int n, int p, short sample);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Standardize2SPV(SAFEARRAY** X, int n, int p, short sample);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Standardize3(double* X, int n, int p, double* mean, double* stdev,
                                                        short sample, short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_StandardizeW2(double* X, int n, int p, double* w, short sample,
                                                         short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_StandardizeW3(double* X, int n, int p, double* w, double* mean,
                                                         double* stdev, short sample, short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_StandardizeApply2(double* X, int n, int p, double* mean, double* stdev);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_StandardizeByGroup(double* X, int n, int p, double* g, int nGroups,
                                                               short reduce, short sample);

/* ---- descriptive/standardisation ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Standardize(double* X, int n, int p, double* Z, double* mean, double* stdev,
                                                       double* var, short* mask, double* w, short sample,
                                                       short freqWeights);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_StandardizeW(double* X, int n, int p, double* w, short sample,
                                                        short freqWeights, double* Z);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_StandardizeKnownMeansStDev(double* X, int n, int p, double* mean, double* Z,
                                                                      double* stdev, double* var, short* mask);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_StandardizeMatrix(double* X, int n, int p, double* Y, int nY, double* V,
                                                             int nV);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_SubstractFirstCol2(double* X, int n, int p);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Standardize(double* x, int n, short* mask, double* w, short sample,
                                                       double* z);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Standardize2(double* x, int n, short* mask, double* w, short sample);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_StandardizeByVect(double* X, int n, int p, short* a, double* w, short sample,
                                                             double* Z);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_StandardizeByVect2(double* X, int n, int p, short* a, double* w,
                                                              short sample);

/* ---- descriptive/rescaling ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Normalize(double* X, int n, int p, double* norms, short* mask, double* w);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_NormalizeMatrix(double* X, int n, int p, double* Y, int nY, double* V,
                                                           int nV);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Rescale(double* v, int n, double low, double high, short* mask, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Rescale2(double* x, int n, double low, double high, short* mask);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a,
                                                         double* Z);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a);

/* ---- randomisation/kronecker_product ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_KroneckerTensorProduct(double* A, int m, int n, double* B, int p, int q,
                                                                 double* C, int rowsC, int colsC);

/* ---- randomisation/contingency_tables ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_CheckForMarginalSums(double* T, int n, int p, double* R, int* rowsLeft,
                                                               int* colsLeft, int* zeroRows, int* zeroCols);

/* ---- randomisation/letter_groups ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_GetCompMatrices(double* X, int n, int col, int* comp, short keepOrder,
                                                          int* order, wchar_t** labels, int* nGroups);

/* ---- randomisation/permutations ---- */
VECMAT_GUARDED_API int vecmat_guarded_GenerateRandom01(int* seed, short seedFlag, int* seedOut, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_Shuffle(double* v, int n, int* seed, short seedFlag, int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_V_ShuffleLng(int* v, int n, int* seed, short seedFlag, int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ShuffleDbl(double* X, int n, int p, double* Z, int* seed, short seedFlag,
                                                       int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ShuffleDbl2(double* X, int n, int p, int* seed, short seedFlag,
                                                        int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ShuffleStr(wchar_t** X, int n, int p, wchar_t** Z, int* seed,
                                                       short seedFlag, int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ShuffleStr2(wchar_t** X, int n, int p, int* seed, short seedFlag,
                                                        int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_Random1toNLng(int n, int* out, int* seed, short seedFlag, int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_Random1toNDbl(int n, double* out, int* seed, short seedFlag, int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short seedFlag,
                                                                 int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_VB_GenerateIndicator(double* out, int n, int first, int last);

/* ---- randomisation/column_addresses ---- */
VECMAT_GUARDED_API int vecmat_guarded_SimplifyRange(const void* input, wchar_t** returned);
VECMAT_GUARDED_API int vecmat_guarded_Increase1Col(const void* letters, wchar_t** returned);

/* ---- randomisation/sampling_with_repeats ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingWithReplacement(wchar_t** S, int N, int p, int n, wchar_t** Z,
                                                                   double* ids, int* seed, short seedFlag,
                                                                   int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingWithReplacementSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z,
                                                                      double* ids, int* seed, short seedFlag,
                                                                      int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SampleUserDefined(wchar_t** S, int N, int p, wchar_t** Z, double* freq,
                                                             double* ids);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SampleUserDefinedSPV(SAFEARRAY** S, int N, int p, SAFEARRAY** Z,
                                                                double* freq, double* ids);

/* ---- randomisation/interval_sampling ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingSystematicRdStart(wchar_t** S, int N, int p, int n, wchar_t** Z,
                                                                     double* ids, int* seed, short seedFlag,
                                                                     int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingSystematicRdStartSPV(SAFEARRAY** S, int N, int p, int n,
                                                                        SAFEARRAY** Z, double* ids, int* seed,
                                                                        short seedFlag, int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingSystematicCentered(wchar_t** S, int N, int p, int n, wchar_t** Z,
                                                                      double* ids);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingSystematicCenteredSPV(SAFEARRAY** S, int N, int p, int n,
                                                                         SAFEARRAY** Z, double* ids);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingRandomStratified(wchar_t** S, int N, int p, int n, wchar_t** Z,
                                                                    double* ids, int* seed, short seedFlag,
                                                                    int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingRandomStratifiedSPV(SAFEARRAY** S, int N, int p, int n,
                                                                       SAFEARRAY** Z, double* ids, int* seed,
                                                                       short seedFlag, int* seedOut);

/* ---- randomisation/stratified_sampling ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_SamplingRandomStratifiedByStr(wchar_t** S, int N, int p, int n, wchar_t** Z,
                                                                          double* rowIds, double* outIds,
                                                                          double* strata, double* quota, double* sizes,
                                                                          int nStrata, int* seed, short seedFlag,
                                                                          int* seedOut);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SamplingRandomStratifiedByStrSPV(SAFEARRAY** S, int N, int p, int n,
                                                                            SAFEARRAY** Z, double* rowIds,
                                                                            double* outIds, double* strata,
                                                                            double* quota, double* sizes, int nStrata,
                                                                            int* seed, short seedFlag, int* seedOut);

/* ---- decompositions/eigen ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Eigen(double* a, double* values, double* vectors, int n, short sort,
                                                 int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_Norm2(double* a, int rows, int cols, double* returned);

/* ---- decompositions/axis_selection ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_FilterEigen(double* eig, int n, short drop, double floor, double cumPercent,
                                                     int maxCount, double minValue, int* kept, int* selected,
                                                     double* percent);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_FilterOnSumOfSquares(double* data, int rows, int cols, int colA, int colB,
                                                               double threshold, double* flags);

/* ---- decompositions/lu ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status,
                                                    int* returned);

/* ---- decompositions/determinants ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Determinant(double* a, int n, short* status, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_LogDeterminant(double* a, int n, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_DeterminantTriang(double* a, int n, short* status, double* returned);

/* ---- decompositions/cholesky ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CholDecomp(double* a, int n, double* l, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short keep,
                                                           int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_CholDecompCleaned(double* a, int n, int* mask, double* l, int* returned);

/* ---- decompositions/echelon_forms ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_ForwardDoolittle(double* a, int n, double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_HermiteCanonical(double* a, int n, double* h);

/* ---- decompositions/square_root ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_SquareRoot(double* a, int n, double* out, int* returned);

/* ---- decompositions/generalised_inverses ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_InvGeneralized(double* a, int n, double* out, double tol, int* rank,
                                                          int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_InvGeneralizedSym(double* a, int n, double* out, double tol, int* rank,
                                                             int* returned);

/* ---- decompositions/g2_inverse ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_InverseG2(double* a, int n, double tol, double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_InverseG2Selective(double* a, int n, int* select, double tol, double* out,
                                                               short zeroOthers);

/* ---- decompositions/constrained_inverses ---- */
VECMAT_GUARDED_API int vecmat_guarded_CleanConstraintsAndInvert(int n, int* constraints, double* a, double* out,
                                                                int* returned);
VECMAT_GUARDED_API int vecmat_guarded_CleanConstraintsAndInvertTriang(int n, int* constraints, double* a, short lower,
                                                                      double* out, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_DeterminantCleaned(double* a, int n, int* constraints, short* status,
                                                              double* returned);

/* ---- decompositions/inversion ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Inverse1(double* a, int n, double* out, double tol, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_InverseTriang(double* a, int n, short lower, double* out, double tol,
                                                         int* returned);

/* ---- decompositions/sweep ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Sweep(double* a, int n, int k, int* returned);

/* ---- decompositions/inverse_products ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrAinvBA(double* a, int rows, int cols, double* b, double* out);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductTrVinvBV(double* v, int n, double* b, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_ProductAinvBTrA(double* a, int rows, int cols, double* b, double* out);

/* ---- decompositions/nearest_correlation ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CorrMatFromSymMat(double* a, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CorrMatFromSymMatSPV(SAFEARRAY** a, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_CorrMatFromSymMatSPV_T(SAFEARRAY** a, int n, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_RowSumNorm(double* a, int rows, int cols, double* returned);

/* ---- decompositions/correlation_order ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_ReOrderCorrelations(double* R, int n, int mode, wchar_t** labels,
                                                              double* second, int* third, int* returned);

/* ---- decompositions/singular_values ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SVDecomp(double* x, int n, int p, double* s, double* u, int ldu, double* v,
                                                    int ldv, int job, int* info, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_SVDecompSPV(SAFEARRAY** x, int n, int p, double* s, SAFEARRAY** u, int ldu,
                                                       SAFEARRAY** v, int ldv, int job, int* info, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_M_Rank(double* a, int n, int p, int* returned);

/* ---- decompositions/level1_routines ---- */
VECMAT_GUARDED_API int vecmat_guarded_drotg(double* a, double* b, double* c, double* s);

/* ---- fitting/biplots ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_BiplotTransData(double* rows, double* sup, double* cols, int nA, int nB, int m,
                                                         int k, double* eigen, double factor, double alpha, double* obs,
                                                         double* var);
VECMAT_GUARDED_API int vecmat_guarded_VB_BiplotTransDataSPV(SAFEARRAY** rows, double* sup, SAFEARRAY** cols, int nA,
                                                            int nB, int m, int storedAxes, int k, double* eigen,
                                                            double factor, double alpha, double* obs, double* var);
VECMAT_GUARDED_API int vecmat_guarded_ComputeCosines(double* a, int n, int k, double* out);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_BoldCosines(int* best, int n, int* flags, int cols);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_M_GetMaxDistToOrigin(double* a, int n, int k, double* maxDistance, int* row);

/* ---- fitting/least_squares ---- */
VECMAT_GUARDED_API int vecmat_guarded_RunOLSBasic(int n, int p, double* X, double* y, double* w, int degree,
                                                  short interactions, short noIntercept, double tol, double* beta,
                                                  double* fitted, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_RunOLSBasic2(int n, int p, double* X, double* y, double* w, int degree,
                                                   short interactions, short noIntercept, double tol, double* beta,
                                                   double* se, double* fitted, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_RunOLSBasic3(int n, int p, double* X, double* y, double* w, int degree,
                                                   short interactions, short noIntercept, double tol, double* beta,
                                                   double* se, double* fitted, double* swept, double* mean, double* sd,
                                                   int* returned);

/* ---- fitting/least_squares_blocks ---- */
VECMAT_GUARDED_API int vecmat_guarded_RunOLSBasic2Lg(int n, int p1, double* X1, int p2, double* X2, int p3, double* X3,
                                                     int p4, double* X4, int p5, double* X5, double* y, double* w,
                                                     int degree, short interactions, short noIntercept, double tol,
                                                     double* beta, double* se, double* fitted, int* returned);

/* ---- fitting/tolerance_check ---- */
VECMAT_GUARDED_API int vecmat_guarded_VB_CheckTolerance(double* corr, int p, int groupCount, int* selected, int ignored,
                                                        int* group, double tol, short pairCheck, short keepGoing,
                                                        short fromLast, short otherGroupsOnly, int* status,
                                                        double* tolerance, double* vif);

/* ---- fitting/newton_raphson ---- */
VECMAT_GUARDED_API int vecmat_guarded_NewtonRaphson(double* x, int n, int* constraints, double* g, double* H,
                                                    double tol, double* se, double* Hinv, short limitStep,
                                                    double maxStep, int* returned);

/* ---- fitting/nipals ---- */
VECMAT_GUARDED_API int vecmat_guarded_Cpp_NIPALS(int n, int p, double* X, double* w, double tol, int components,
                                                 double maxColumnShare, double maxTotalShare, int* returned);

#ifdef __cplusplus
}
#endif

#endif
