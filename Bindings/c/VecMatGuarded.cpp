// Written by tools/bindings from exports.tsv: change those, not this file.
// clang-format off
#include "VecMatGuarded.h"

#include "guard.h"

using vecmat::guarded;

// ---- frame/services

int vecmat_guarded_Cpp_V_CopyDoubleToLong(double* src, int n, int* dst)
{
    return guarded("Cpp_V_CopyDoubleToLong", [&] { Cpp_V_CopyDoubleToLong(src, n, dst); });
}

int vecmat_guarded_Cpp_V_CopyLongToDouble(int* src, int n, double* dst)
{
    return guarded("Cpp_V_CopyLongToDouble", [&] { Cpp_V_CopyLongToDouble(src, n, dst); });
}

int vecmat_guarded_Cpp_WriteMatrixDbl(void)
{
    return guarded("Cpp_WriteMatrixDbl", [&] { Cpp_WriteMatrixDbl(); });
}

int vecmat_guarded_Cpp_WriteMatrixLng(void)
{
    return guarded("Cpp_WriteMatrixLng", [&] { Cpp_WriteMatrixLng(); });
}

int vecmat_guarded_TestMemory(int* returned)
{
    return guarded("TestMemory", returned, [&] { return TestMemory(); });
}

int vecmat_guarded_Cpp_TestMemory(short* returned)
{
    return guarded("Cpp_TestMemory", returned, [&] { return Cpp_TestMemory(); });
}

int vecmat_guarded_TestAllocMatrix(int a1, int a2, int a3, int a4, int a5, int a6, int a7, int a8, int a9, int a10,
                                   int a11, int a12, int a13, int a14, int a15, int a16, int a17, int a18, int a19,
                                   int a20, int* returned)
{
    return guarded("TestAllocMatrix", returned, [&] { return TestAllocMatrix(a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12, a13, a14, a15, a16, a17, a18, a19, a20); });
}

int vecmat_guarded_GetStatusMemory(int bytes, int* returned)
{
    return guarded("GetStatusMemory", returned, [&] { return GetStatusMemory(bytes); });
}

int vecmat_guarded_Cpp_GetStatusMemory(int bytes, short* returned)
{
    return guarded("Cpp_GetStatusMemory", returned, [&] { return Cpp_GetStatusMemory(bytes); });
}

int vecmat_guarded_dprint(double value, const char* label)
{
    return guarded("dprint", [&] { dprint(value, label); });
}

// ---- frame/super_matrices

int vecmat_guarded_MySafeArrayAccessData(SAFEARRAY* sa, void** data, int* returned)
{
    return guarded("MySafeArrayAccessData", returned, [&] { return MySafeArrayAccessData(sa, data); });
}

int vecmat_guarded_ExtractBSTR(SAFEARRAY** sa, void** returned)
{
    return guarded("ExtractBSTR", returned, [&] { return ExtractBSTR(sa); });
}

int vecmat_guarded_ProjVecToMat(double* src, int rows, int cols, int col, double* dst)
{
    return guarded("ProjVecToMat", [&] { ProjVecToMat(src, rows, cols, col, dst); });
}

// ---- elementary/column_extremes

int vecmat_guarded_VB_M_MinMaxSPV(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode)
{
    return guarded("VB_M_MinMaxSPV", [&] { VB_M_MinMaxSPV(a, rows, cols, min, max, mask, mode); });
}

int vecmat_guarded_VB_M_MinMaxSPV_T(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask,
                                    short mode)
{
    return guarded("VB_M_MinMaxSPV_T", [&] { VB_M_MinMaxSPV_T(a, rows, cols, min, max, mask, mode); });
}

int vecmat_guarded_Cpp_M_MinAll(double* a, int rows, int cols, double* returned)
{
    return guarded("Cpp_M_MinAll", returned, [&] { return Cpp_M_MinAll(a, rows, cols); });
}

int vecmat_guarded_VB_M_MinMax(double* a, int rows, int cols, double* min, double* max, short* mask, short mode)
{
    return guarded("VB_M_MinMax", [&] { VB_M_MinMax(a, rows, cols, min, max, mask, mode); });
}

int vecmat_guarded_Cpp_M_MaxPosByRow(double* a, int rows, int cols, int* out)
{
    return guarded("Cpp_M_MaxPosByRow", [&] { Cpp_M_MaxPosByRow(a, rows, cols, out); });
}

int vecmat_guarded_VB_M_Max(double* a, int rows, int cols, double* out)
{
    return guarded("VB_M_Max", [&] { VB_M_Max(a, rows, cols, out); });
}

int vecmat_guarded_VB_M_Min(double* a, int rows, int cols, double* out)
{
    return guarded("VB_M_Min", [&] { VB_M_Min(a, rows, cols, out); });
}

// ---- elementary/predicates

int vecmat_guarded_VB_V_IsConstant(double* x, int n, short mode, short* returned)
{
    return guarded("VB_V_IsConstant", returned, [&] { return VB_V_IsConstant(x, n, mode); });
}

int vecmat_guarded_VB_V_IsConstantLng(int* x, int n, short mode, short* returned)
{
    return guarded("VB_V_IsConstantLng", returned, [&] { return VB_V_IsConstantLng(x, n, mode); });
}

int vecmat_guarded_V_IsConstantBool(short* x, int n, short* returned)
{
    return guarded("V_IsConstantBool", returned, [&] { return V_IsConstantBool(x, n); });
}

int vecmat_guarded_VB_V_IsConstantBool(short* x, int n, short* returned)
{
    return guarded("VB_V_IsConstantBool", returned, [&] { return VB_V_IsConstantBool(x, n); });
}

int vecmat_guarded_VB_M_IsColConstant(double* a, int rows, int cols, int* returned)
{
    return guarded("VB_M_IsColConstant", returned, [&] { return VB_M_IsColConstant(a, rows, cols); });
}

int vecmat_guarded_VB_M_IsColConstantSPV(SAFEARRAY** a, int rows, int cols, int* returned)
{
    return guarded("VB_M_IsColConstantSPV", returned, [&] { return VB_M_IsColConstantSPV(a, rows, cols); });
}

int vecmat_guarded_VB_V_IsPositive(double* x, int n, short strict, short* returned)
{
    return guarded("VB_V_IsPositive", returned, [&] { return VB_V_IsPositive(x, n, strict); });
}

int vecmat_guarded_VB_M_IsPositive(double* a, int rows, int cols, short* mask, short strict, short* returned)
{
    return guarded("VB_M_IsPositive", returned, [&] { return VB_M_IsPositive(a, rows, cols, mask, strict); });
}

int vecmat_guarded_VB_M_IsLong(double* a, int rows, int cols, short* returned)
{
    return guarded("VB_M_IsLong", returned, [&] { return VB_M_IsLong(a, rows, cols); });
}

int vecmat_guarded_VB_M_IsDiagConstant(double* a, int n, short* returned)
{
    return guarded("VB_M_IsDiagConstant", returned, [&] { return VB_M_IsDiagConstant(a, n); });
}

int vecmat_guarded_VB_M_IsIn01(double* a, int rows, int cols, short* returned)
{
    return guarded("VB_M_IsIn01", returned, [&] { return VB_M_IsIn01(a, rows, cols); });
}

int vecmat_guarded_VB_M_IsInIntervalSPV(SAFEARRAY** a, int rows, int cols, double lo, double hi, short open,
                                        short skipMissing, short* returned)
{
    return guarded("VB_M_IsInIntervalSPV", returned, [&] { return VB_M_IsInIntervalSPV(a, rows, cols, lo, hi, open, skipMissing); });
}

int vecmat_guarded_VB_V_IsInInterval(double* x, int n, double lo, double hi, short open, short skipMissing,
                                     short* returned)
{
    return guarded("VB_V_IsInInterval", returned, [&] { return VB_V_IsInInterval(x, n, lo, hi, open, skipMissing); });
}

// ---- elementary/packed_storage

int vecmat_guarded_V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j)
{
    return guarded("V_GetPositionInMatNNm1o2", [&] { V_GetPositionInMatNNm1o2(k, n, i, j); });
}

int vecmat_guarded_VB_V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j)
{
    return guarded("VB_V_GetPositionInMatNNm1o2", [&] { VB_V_GetPositionInMatNNm1o2(k, n, i, j); });
}

int vecmat_guarded_VB_V_GetPositionInMatNN(int k, int n, int* i, int* j)
{
    return guarded("VB_V_GetPositionInMatNN", [&] { VB_V_GetPositionInMatNN(k, n, i, j); });
}

// ---- elementary/symmetry

int vecmat_guarded_VB_M_IsSymmetric(double* a, int n, short* returned)
{
    return guarded("VB_M_IsSymmetric", returned, [&] { return VB_M_IsSymmetric(a, n); });
}

int vecmat_guarded_VB_M_IsSymmetricSPV(SAFEARRAY** a, int n, short* returned)
{
    return guarded("VB_M_IsSymmetricSPV", returned, [&] { return VB_M_IsSymmetricSPV(a, n); });
}

int vecmat_guarded_VB_M_Symmetrize(double* a, int n, int mode)
{
    return guarded("VB_M_Symmetrize", [&] { VB_M_Symmetrize(a, n, mode); });
}

int vecmat_guarded_VB_M_SymmetrizeSPV(SAFEARRAY** a, int n, int mode)
{
    return guarded("VB_M_SymmetrizeSPV", [&] { VB_M_SymmetrizeSPV(a, n, mode); });
}

int vecmat_guarded_VB_M_IsTriangular(double* a, int n, short fill, int* returned)
{
    return guarded("VB_M_IsTriangular", returned, [&] { return VB_M_IsTriangular(a, n, fill); });
}

int vecmat_guarded_VB_M_IsTriangularSPV(SAFEARRAY** a, int n, short fill, int* returned)
{
    return guarded("VB_M_IsTriangularSPV", returned, [&] { return VB_M_IsTriangularSPV(a, n, fill); });
}

int vecmat_guarded_VB_M_CheckIfSimOrDissim(double* a, int n, int kind, int* returned)
{
    return guarded("VB_M_CheckIfSimOrDissim", returned, [&] { return VB_M_CheckIfSimOrDissim(a, n, kind); });
}

int vecmat_guarded_VB_M_CheckIfSimOrDissimSPV(SAFEARRAY** a, int rows, int cols, int kind, int* returned)
{
    return guarded("VB_M_CheckIfSimOrDissimSPV", returned, [&] { return VB_M_CheckIfSimOrDissimSPV(a, rows, cols, kind); });
}

int vecmat_guarded_VB_M_TransformSimToDissim(double* a, int n)
{
    return guarded("VB_M_TransformSimToDissim", [&] { VB_M_TransformSimToDissim(a, n); });
}

// ---- elementary/sums_and_norms

int vecmat_guarded_VB_M_SumOfElem(double* a, int rows, int cols, double* returned)
{
    return guarded("VB_M_SumOfElem", returned, [&] { return VB_M_SumOfElem(a, rows, cols); });
}

int vecmat_guarded_VB_M_Trace(double* a, int n, double* returned)
{
    return guarded("VB_M_Trace", returned, [&] { return VB_M_Trace(a, n); });
}

int vecmat_guarded_VB_M_FrobeniusNorm(double* a, int rows, int cols, double* b, double* returned)
{
    return guarded("VB_M_FrobeniusNorm", returned, [&] { return VB_M_FrobeniusNorm(a, rows, cols, b); });
}

int vecmat_guarded_VB_M_SumByCols(double* a, int rows, int cols, double* out)
{
    return guarded("VB_M_SumByCols", [&] { VB_M_SumByCols(a, rows, cols, out); });
}

int vecmat_guarded_VB_M_SumByRows(double* a, int rows, int cols, double* out)
{
    return guarded("VB_M_SumByRows", [&] { VB_M_SumByRows(a, rows, cols, out); });
}

int vecmat_guarded_VB_M_SquaredRows(double* a, int rows, int cols, double* out)
{
    return guarded("VB_M_SquaredRows", [&] { VB_M_SquaredRows(a, rows, cols, out); });
}

int vecmat_guarded_VB_M_SquaredColumns(double* a, int rows, int cols, double* out)
{
    return guarded("VB_M_SquaredColumns", [&] { VB_M_SquaredColumns(a, rows, cols, out); });
}

// ---- elementary/matrix_products

int vecmat_guarded_VB_M_ProductAB(double* a, int r, int c, double* b, int c2, double* out, int* returned)
{
    return guarded("VB_M_ProductAB", returned, [&] { return VB_M_ProductAB(a, r, c, b, c2, out); });
}

int vecmat_guarded_VB_M_ProductBV(double* b, int rows, int cols, double* v, double* out, int* returned)
{
    return guarded("VB_M_ProductBV", returned, [&] { return VB_M_ProductBV(b, rows, cols, v, out); });
}

int vecmat_guarded_VB_M_ProductVB(double* v, int rows, double* b, int cols, double* out)
{
    return guarded("VB_M_ProductVB", [&] { VB_M_ProductVB(v, rows, b, cols, out); });
}

int vecmat_guarded_VB_M_ProductTrAB(double* a, int rows, int cols, double* b, int colsB, double* out)
{
    return guarded("VB_M_ProductTrAB", [&] { VB_M_ProductTrAB(a, rows, cols, b, colsB, out); });
}

int vecmat_guarded_VB_M_ProductATrB(double* a, int rows, int cols, double* b, int rowsB, double* out)
{
    return guarded("VB_M_ProductATrB", [&] { VB_M_ProductATrB(a, rows, cols, b, rowsB, out); });
}

int vecmat_guarded_VB_M_ProductTrAA(double* a, int rows, int cols, double* out)
{
    return guarded("VB_M_ProductTrAA", [&] { VB_M_ProductTrAA(a, rows, cols, out); });
}

int vecmat_guarded_Cpp_M_ProductTrAALng(int* a, int rows, int cols, int* out)
{
    return guarded("Cpp_M_ProductTrAALng", [&] { Cpp_M_ProductTrAALng(a, rows, cols, out); });
}

int vecmat_guarded_VB_M_ProductATrA(double* a, int rows, int cols, double* out)
{
    return guarded("VB_M_ProductATrA", [&] { VB_M_ProductATrA(a, rows, cols, out); });
}

int vecmat_guarded_VB_M_ProductABTrA(double* a, int rows, int cols, double* b, double* out)
{
    return guarded("VB_M_ProductABTrA", [&] { VB_M_ProductABTrA(a, rows, cols, b, out); });
}

int vecmat_guarded_VB_M_ProductTrABA(double* a, int rows, int cols, double* b, double* out)
{
    return guarded("VB_M_ProductTrABA", [&] { VB_M_ProductTrABA(a, rows, cols, b, out); });
}

int vecmat_guarded_VB_M_ProductTrVBV(double* v, int n, double* b, double* returned)
{
    return guarded("VB_M_ProductTrVBV", returned, [&] { return VB_M_ProductTrVBV(v, n, b); });
}

int vecmat_guarded_VB_M_ProductTrV1BV2(double* va, int n, double* b, double* vb, double* returned)
{
    return guarded("VB_M_ProductTrV1BV2", returned, [&] { return VB_M_ProductTrV1BV2(va, n, b, vb); });
}

int vecmat_guarded_VB_M_ProductTrABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC,
                                     double* out)
{
    return guarded("VB_M_ProductTrABC", [&] { VB_M_ProductTrABC(a, rows, cols, b, colsB, c, colsC, out); });
}

int vecmat_guarded_VB_M_ProductTrBV(double* b, int rows, int cols, double* v, double* out)
{
    return guarded("VB_M_ProductTrBV", [&] { VB_M_ProductTrBV(b, rows, cols, v, out); });
}

int vecmat_guarded_VB_M_ProductVTrB(double* v, int n, double* b, int m, double* out)
{
    return guarded("VB_M_ProductVTrB", [&] { VB_M_ProductVTrB(v, n, b, m, out); });
}

int vecmat_guarded_VB_M_ProductABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC,
                                   double* out)
{
    return guarded("VB_M_ProductABC", [&] { VB_M_ProductABC(a, rows, cols, b, colsB, c, colsC, out); });
}

int vecmat_guarded_VB_M_ProductATrBC(double* a, int rows, int cols, double* b, int rowsB, double* c, int colsC,
                                     double* out)
{
    return guarded("VB_M_ProductATrBC", [&] { VB_M_ProductATrBC(a, rows, cols, b, rowsB, c, colsC, out); });
}

int vecmat_guarded_Cpp_M_ProductTrABV(double* a, int rows, int cols, double* b, int colsB, double* v, double* out)
{
    return guarded("Cpp_M_ProductTrABV", [&] { Cpp_M_ProductTrABV(a, rows, cols, b, colsB, v, out); });
}

// ---- elementary/diagonal_products

int vecmat_guarded_VB_M_ProductADTrA(double* a, int rows, int cols, double* d, double* out)
{
    return guarded("VB_M_ProductADTrA", [&] { VB_M_ProductADTrA(a, rows, cols, d, out); });
}

int vecmat_guarded_VB_M_ProductTrADA(double* a, int rows, int cols, double* d, double* out)
{
    return guarded("VB_M_ProductTrADA", [&] { VB_M_ProductTrADA(a, rows, cols, d, out); });
}

int vecmat_guarded_VB_M_ProductADiag(double* a, int rows, int cols, double* d, double* out)
{
    return guarded("VB_M_ProductADiag", [&] { VB_M_ProductADiag(a, rows, cols, d, out); });
}

int vecmat_guarded_VB_M_ProductTrADiag(double* a, int rows, int cols, double* d, double* out)
{
    return guarded("VB_M_ProductTrADiag", [&] { VB_M_ProductTrADiag(a, rows, cols, d, out); });
}

int vecmat_guarded_VB_M_ProductDiagVA(double* v, int rows, double* a, int cols, double* out)
{
    return guarded("VB_M_ProductDiagVA", [&] { VB_M_ProductDiagVA(v, rows, a, cols, out); });
}

int vecmat_guarded_VB_M_ProductDiagV1ADiagV2(double* va, int rows, double* a, int cols, double* vb, double* out)
{
    return guarded("VB_M_ProductDiagV1ADiagV2", [&] { VB_M_ProductDiagV1ADiagV2(va, rows, a, cols, vb, out); });
}

int vecmat_guarded_VB_M_ProductADiagV(double* a, int rows, int cols, double* v, double* out)
{
    return guarded("VB_M_ProductADiagV", [&] { VB_M_ProductADiagV(a, rows, cols, v, out); });
}

int vecmat_guarded_VB_M_ProductADiagVTrA(double* a, int rows, int cols, double* v, double* out)
{
    return guarded("VB_M_ProductADiagVTrA", [&] { VB_M_ProductADiagVTrA(a, rows, cols, v, out); });
}

int vecmat_guarded_VB_M_ProductTrADiagVA(double* a, int rows, int cols, double* v, double* out)
{
    return guarded("VB_M_ProductTrADiagVA", [&] { VB_M_ProductTrADiagVA(a, rows, cols, v, out); });
}

int vecmat_guarded_VB_M_ProductADiagVTrB(double* a, int rows, int cols, double* v, double* b, int rowsB, double* out)
{
    return guarded("VB_M_ProductADiagVTrB", [&] { VB_M_ProductADiagVTrB(a, rows, cols, v, b, rowsB, out); });
}

int vecmat_guarded_VB_M_ProductADiagVB(double* a, int rows, int cols, double* v, double* b, int colsB, double* out)
{
    return guarded("VB_M_ProductADiagVB", [&] { VB_M_ProductADiagVB(a, rows, cols, v, b, colsB, out); });
}

int vecmat_guarded_VB_M_ProductTrADiagV(double* a, int rows, int cols, double* v, double* out)
{
    return guarded("VB_M_ProductTrADiagV", [&] { VB_M_ProductTrADiagV(a, rows, cols, v, out); });
}

// ---- elementary/column_products

int vecmat_guarded_VB_M_ProductByElement(double* a, int rows, int cols, double* b, double* out)
{
    return guarded("VB_M_ProductByElement", [&] { VB_M_ProductByElement(a, rows, cols, b, out); });
}

int vecmat_guarded_VB_M_ProductHorizAB(double* a, int rows, int cols, double* b, int colsB, double* out)
{
    return guarded("VB_M_ProductHorizAB", [&] { VB_M_ProductHorizAB(a, rows, cols, b, colsB, out); });
}

int vecmat_guarded_VB_M_ProductHorizAB2(double* a, int rows, int* cols, double* b, int colsB)
{
    return guarded("VB_M_ProductHorizAB2", [&] { VB_M_ProductHorizAB2(a, rows, cols, b, colsB); });
}

int vecmat_guarded_VB_M_ProductDesignAB2(double* a, int rows, int* cols, double* b, int colsB, int mode, double* w,
                                         double* out)
{
    return guarded("VB_M_ProductDesignAB2", [&] { VB_M_ProductDesignAB2(a, rows, cols, b, colsB, mode, w, out); });
}

// ---- elementary/packed_products

int vecmat_guarded_VB_M_ProductASymV(double* s, int n, double* v, double* out)
{
    return guarded("VB_M_ProductASymV", [&] { VB_M_ProductASymV(s, n, v, out); });
}

int vecmat_guarded_VB_M_ProductVASym(double* v, int n, double* s, double* out)
{
    return guarded("VB_M_ProductVASym", [&] { VB_M_ProductVASym(v, n, s, out); });
}

int vecmat_guarded_Cpp_MV_ProductAsymBsym(double* a, int len, int ignored, double* out)
{
    return guarded("Cpp_MV_ProductAsymBsym", [&] { Cpp_MV_ProductAsymBsym(a, len, ignored, out); });
}

// ---- elementary/vector_products

int vecmat_guarded_VB_V_ProductTrV1V2(double* a, int n, double* b, double* returned)
{
    return guarded("VB_V_ProductTrV1V2", returned, [&] { return VB_V_ProductTrV1V2(a, n, b); });
}

int vecmat_guarded_VB_V_ProductV1V2(double* a, int n, double* b, double* out)
{
    return guarded("VB_V_ProductV1V2", [&] { VB_V_ProductV1V2(a, n, b, out); });
}

int vecmat_guarded_VB_V_ProductV1V22(double* a, int n, double* b)
{
    return guarded("VB_V_ProductV1V22", [&] { VB_V_ProductV1V22(a, n, b); });
}

int vecmat_guarded_VB_V_ProductV1TrV2(double* a, int n, double* b, double* out)
{
    return guarded("VB_V_ProductV1TrV2", [&] { VB_V_ProductV1TrV2(a, n, b, out); });
}

int vecmat_guarded_VB_V_ProductHorizV1V2(double* a, int n, double* b, int m, double* out)
{
    return guarded("VB_V_ProductHorizV1V2", [&] { VB_V_ProductHorizV1V2(a, n, b, m, out); });
}

int vecmat_guarded_VB_V_ProductHorizV1V22(double* a, int* n, double* b, int m)
{
    return guarded("VB_V_ProductHorizV1V22", [&] { VB_V_ProductHorizV1V22(a, n, b, m); });
}

int vecmat_guarded_VB_V_Product1toNDbl(double* x, int n, double* returned)
{
    return guarded("VB_V_Product1toNDbl", returned, [&] { return VB_V_Product1toNDbl(x, n); });
}

int vecmat_guarded_VB_V_Product1toNLng(int* x, int n, int* returned)
{
    return guarded("VB_V_Product1toNLng", returned, [&] { return VB_V_Product1toNLng(x, n); });
}

int vecmat_guarded_VB_V_V1GreaterThanMatCols(double* v, int n, double* a, int cols, short* returned)
{
    return guarded("VB_V_V1GreaterThanMatCols", returned, [&] { return VB_V_V1GreaterThanMatCols(v, n, a, cols); });
}

int vecmat_guarded_VB_V_V1inferiorV2(double* a, int n, double* b, short* returned)
{
    return guarded("VB_V_V1inferiorV2", returned, [&] { return VB_V_V1inferiorV2(a, n, b); });
}

// ---- elementary/scalar_arithmetic

int vecmat_guarded_VB_M_ScalarsA(double* a, int rows, int cols, double s, double* out)
{
    return guarded("VB_M_ScalarsA", [&] { VB_M_ScalarsA(a, rows, cols, s, out); });
}

int vecmat_guarded_VB_M_ScalarsA2(double* a, int rows, int cols, double s)
{
    return guarded("VB_M_ScalarsA2", [&] { VB_M_ScalarsA2(a, rows, cols, s); });
}

int vecmat_guarded_VB_M_ScalarsTrA(double* a, int rows, int cols, double s, double* out)
{
    return guarded("VB_M_ScalarsTrA", [&] { VB_M_ScalarsTrA(a, rows, cols, s, out); });
}

int vecmat_guarded_VB_M_Sums1As2B(double* a, int rows, int cols, double* b, double s1, double s2, double* out)
{
    return guarded("VB_M_Sums1As2B", [&] { VB_M_Sums1As2B(a, rows, cols, b, s1, s2, out); });
}

int vecmat_guarded_VB_M_APlusVal(double* a, int rows, int cols, double v, double* out)
{
    return guarded("VB_M_APlusVal", [&] { VB_M_APlusVal(a, rows, cols, v, out); });
}

int vecmat_guarded_VB_M_APlusVal2(double* a, int rows, int cols, double v)
{
    return guarded("VB_M_APlusVal2", [&] { VB_M_APlusVal2(a, rows, cols, v); });
}

int vecmat_guarded_Cpp_SumMat(double* a, double* b, int rows, int cols, double* out)
{
    return guarded("Cpp_SumMat", [&] { Cpp_SumMat(a, b, rows, cols, out); });
}

// ---- elementary/cell_functions

int vecmat_guarded_VB_M_Square(double* a, int rows, int cols)
{
    return guarded("VB_M_Square", [&] { VB_M_Square(a, rows, cols); });
}

int vecmat_guarded_Cpp_M_SquareRootAij(double* a, int rows, int cols, double* out, double* returned)
{
    return guarded("Cpp_M_SquareRootAij", returned, [&] { return Cpp_M_SquareRootAij(a, rows, cols, out); });
}

int vecmat_guarded_Cpp_M_SquareRootAij2(double* a, int rows, int cols, double* returned)
{
    return guarded("Cpp_M_SquareRootAij2", returned, [&] { return Cpp_M_SquareRootAij2(a, rows, cols); });
}

int vecmat_guarded_VB_M_LogMatrix(double* a, int rows, int cols, short* mask)
{
    return guarded("VB_M_LogMatrix", [&] { VB_M_LogMatrix(a, rows, cols, mask); });
}

int vecmat_guarded_VB_M_Log10Matrix(double* a, int rows, int cols)
{
    return guarded("VB_M_Log10Matrix", [&] { VB_M_Log10Matrix(a, rows, cols); });
}

// ---- elementary/distances

int vecmat_guarded_VB_M_EuclidDist2(double* a, int rows, int cols, double* out, double* w, short betweenRows)
{
    return guarded("VB_M_EuclidDist2", [&] { VB_M_EuclidDist2(a, rows, cols, out, w, betweenRows); });
}

int vecmat_guarded_Cpp_M_EuclidDistToVector(double* a, int rows, int cols, double* v, short byRow, double* out)
{
    return guarded("Cpp_M_EuclidDistToVector", [&] { Cpp_M_EuclidDistToVector(a, rows, cols, v, byRow, out); });
}

// ---- elementary/gauss

int vecmat_guarded_VB_V_Gauss(double* a, int n, double* b, int* returned)
{
    return guarded("VB_V_Gauss", returned, [&] { return VB_V_Gauss(a, n, b); });
}

int vecmat_guarded_VB_M_Gauss(double* a, int n, int m, double* b, int* returned)
{
    return guarded("VB_M_Gauss", returned, [&] { return VB_M_Gauss(a, n, m, b); });
}

// ---- elementary/filling

int vecmat_guarded_VB_InitVectorToFalse(short* v, int n)
{
    return guarded("VB_InitVectorToFalse", [&] { VB_InitVectorToFalse(v, n); });
}

int vecmat_guarded_VB_InitVectorToTrue(short* v, int n)
{
    return guarded("VB_InitVectorToTrue", [&] { VB_InitVectorToTrue(v, n); });
}

int vecmat_guarded_VB_V_SetToValue(double* v, int n, double value)
{
    return guarded("VB_V_SetToValue", [&] { VB_V_SetToValue(v, n, value); });
}

int vecmat_guarded_VB_V_SetToValueLng(int* v, int n, int value)
{
    return guarded("VB_V_SetToValueLng", [&] { VB_V_SetToValueLng(v, n, value); });
}

int vecmat_guarded_VB_V_SetToValueStr(wchar_t** v, int n, const wchar_t* value)
{
    return guarded("VB_V_SetToValueStr", [&] { VB_V_SetToValueStr(v, n, value); });
}

int vecmat_guarded_VB_V_Set1toNDbl(double* v, int n)
{
    return guarded("VB_V_Set1toNDbl", [&] { VB_V_Set1toNDbl(v, n); });
}

int vecmat_guarded_VB_V_Set1toNLng(int* v, int n)
{
    return guarded("VB_V_Set1toNLng", [&] { VB_V_Set1toNLng(v, n); });
}

// ---- elementary/array_copies

int vecmat_guarded_VB_V_DuplicateDbl(double* src, int n, double* dst)
{
    return guarded("VB_V_DuplicateDbl", [&] { VB_V_DuplicateDbl(src, n, dst); });
}

int vecmat_guarded_VB_V_DuplicateLng(int* src, int n, int* dst)
{
    return guarded("VB_V_DuplicateLng", [&] { VB_V_DuplicateLng(src, n, dst); });
}

int vecmat_guarded_Cpp_V_DuplicateBool(short* src, int n, short* dst)
{
    return guarded("Cpp_V_DuplicateBool", [&] { Cpp_V_DuplicateBool(src, n, dst); });
}

int vecmat_guarded_VB_V_DuplicateDblToLng(double* src, int n, int* dst)
{
    return guarded("VB_V_DuplicateDblToLng", [&] { VB_V_DuplicateDblToLng(src, n, dst); });
}

int vecmat_guarded_VB_V_DuplicateLngToDbl(int* src, int n, double* dst)
{
    return guarded("VB_V_DuplicateLngToDbl", [&] { VB_V_DuplicateLngToDbl(src, n, dst); });
}

int vecmat_guarded_VB_V_DuplicateStr(wchar_t** src, int n, wchar_t** dst)
{
    return guarded("VB_V_DuplicateStr", [&] { VB_V_DuplicateStr(src, n, dst); });
}

int vecmat_guarded_VB_M_DuplicateStr(wchar_t** src, int r, int c, wchar_t** dst)
{
    return guarded("VB_M_DuplicateStr", [&] { VB_M_DuplicateStr(src, r, c, dst); });
}

int vecmat_guarded_VB_M_DuplicateDbl(double* src, int r, int c, double* dst)
{
    return guarded("VB_M_DuplicateDbl", [&] { VB_M_DuplicateDbl(src, r, c, dst); });
}

int vecmat_guarded_VB_M_DuplicateLng(int* src, int r, int c, int* dst)
{
    return guarded("VB_M_DuplicateLng", [&] { VB_M_DuplicateLng(src, r, c, dst); });
}

int vecmat_guarded_VB_M_CopyResize(double* src, int r, int c, double* dst, int newR, int newC)
{
    return guarded("VB_M_CopyResize", [&] { VB_M_CopyResize(src, r, c, dst, newR, newC); });
}

int vecmat_guarded_VB_M_CopyResizeStr(wchar_t** src, int r, int c, wchar_t** dst, int newR, int newC)
{
    return guarded("VB_M_CopyResizeStr", [&] { VB_M_CopyResizeStr(src, r, c, dst, newR, newC); });
}

int vecmat_guarded_VB_V_ReverseDbl(double* x, int n, double* out)
{
    return guarded("VB_V_ReverseDbl", [&] { VB_V_ReverseDbl(x, n, out); });
}

int vecmat_guarded_V_ReverseBool(short* x, int n, short* out)
{
    return guarded("V_ReverseBool", [&] { V_ReverseBool(x, n, out); });
}

int vecmat_guarded_VB_V_ReverseBool(short* x, int n, short* out)
{
    return guarded("VB_V_ReverseBool", [&] { VB_V_ReverseBool(x, n, out); });
}

// ---- elementary/transposition

int vecmat_guarded_VB_M_Transpose(double* a, int r, int c, double* out)
{
    return guarded("VB_M_Transpose", [&] { VB_M_Transpose(a, r, c, out); });
}

int vecmat_guarded_VB_M_TransposeLng(int* a, int r, int c, int* out)
{
    return guarded("VB_M_TransposeLng", [&] { VB_M_TransposeLng(a, r, c, out); });
}

int vecmat_guarded_VB_M_TransposeStr(wchar_t** a, int r, int c, wchar_t** out)
{
    return guarded("VB_M_TransposeStr", [&] { VB_M_TransposeStr(a, r, c, out); });
}

int vecmat_guarded_VB_M_Transpose2(double* a, int r, int c)
{
    return guarded("VB_M_Transpose2", [&] { VB_M_Transpose2(a, r, c); });
}

int vecmat_guarded_VB_M_Transpose2Lng(int* a, int r, int c)
{
    return guarded("VB_M_Transpose2Lng", [&] { VB_M_Transpose2Lng(a, r, c); });
}

int vecmat_guarded_VB_M_Transpose2Str(wchar_t** a, int r, int c)
{
    return guarded("VB_M_Transpose2Str", [&] { VB_M_Transpose2Str(a, r, c); });
}

int vecmat_guarded_VB_M_TransposeSPV(SAFEARRAY** a, int r, int c, SAFEARRAY** out)
{
    return guarded("VB_M_TransposeSPV", [&] { VB_M_TransposeSPV(a, r, c, out); });
}

// ---- elementary/horizontal_merges

int vecmat_guarded_VB_HMergeVectors(double* a, int nA, double* b, int nB, double* out)
{
    return guarded("VB_HMergeVectors", [&] { VB_HMergeVectors(a, nA, b, nB, out); });
}

int vecmat_guarded_VB_HMergeTableVect(double* t, int r, int c, double* v, int n, double* out)
{
    return guarded("VB_HMergeTableVect", [&] { VB_HMergeTableVect(t, r, c, v, n, out); });
}

int vecmat_guarded_VB_HMergeTableVect2(double* t, int r, int c, double* v, int n)
{
    return guarded("VB_HMergeTableVect2", [&] { VB_HMergeTableVect2(t, r, c, v, n); });
}

int vecmat_guarded_VB_HMergeVectTable(double* v, int n, double* t, int r, int c, double* out)
{
    return guarded("VB_HMergeVectTable", [&] { VB_HMergeVectTable(v, n, t, r, c, out); });
}

int vecmat_guarded_VB_HMergeVectColDbl(double* v, int n, double* t, int r, int col, double* out)
{
    return guarded("VB_HMergeVectColDbl", [&] { VB_HMergeVectColDbl(v, n, t, r, col, out); });
}

int vecmat_guarded_VB_HMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out)
{
    return guarded("VB_HMergeTablesDbl", [&] { VB_HMergeTablesDbl(a, r1, c1, b, r2, c2, out); });
}

int vecmat_guarded_VB_HMergeTablesDbl2(double* a, int r1, int c1, double* b, int r2, int c2)
{
    return guarded("VB_HMergeTablesDbl2", [&] { VB_HMergeTablesDbl2(a, r1, c1, b, r2, c2); });
}

int vecmat_guarded_VB_HMergeTablesDbl2SPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2)
{
    return guarded("VB_HMergeTablesDbl2SPV", [&] { VB_HMergeTablesDbl2SPV(a, r1, c1, b, r2, c2); });
}

int vecmat_guarded_VB_HMergeTablesDbl2SPV2(SAFEARRAY** a, int r1, int c1, SAFEARRAY** b, int r2, int c2)
{
    return guarded("VB_HMergeTablesDbl2SPV2", [&] { VB_HMergeTablesDbl2SPV2(a, r1, c1, b, r2, c2); });
}

int vecmat_guarded_VB_HMergeTablesLng2(int* a, int r1, int c1, int* b, int r2, int c2)
{
    return guarded("VB_HMergeTablesLng2", [&] { VB_HMergeTablesLng2(a, r1, c1, b, r2, c2); });
}

int vecmat_guarded_VB_HMergeTablesBool(short* a, int r1, int c1, short* b, int r2, int c2, short* out)
{
    return guarded("VB_HMergeTablesBool", [&] { VB_HMergeTablesBool(a, r1, c1, b, r2, c2, out); });
}

int vecmat_guarded_VB_HMergeTablesBool2(short* a, int r1, int c1, short* b, int r2, int c2)
{
    return guarded("VB_HMergeTablesBool2", [&] { VB_HMergeTablesBool2(a, r1, c1, b, r2, c2); });
}

int vecmat_guarded_VB_HMergeTablesStr(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2, wchar_t** out)
{
    return guarded("VB_HMergeTablesStr", [&] { VB_HMergeTablesStr(a, r1, c1, b, r2, c2, out); });
}

int vecmat_guarded_VB_HMergeTablesStr2(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2)
{
    return guarded("VB_HMergeTablesStr2", [&] { VB_HMergeTablesStr2(a, r1, c1, b, r2, c2); });
}

// ---- elementary/vertical_merges

int vecmat_guarded_VB_VMergeVectorsDbl(double* a, int nA, double* b, int nB, double* out)
{
    return guarded("VB_VMergeVectorsDbl", [&] { VB_VMergeVectorsDbl(a, nA, b, nB, out); });
}

int vecmat_guarded_VB_VMergeVectorsDbl2(double* a, int nA, double* b, int nB)
{
    return guarded("VB_VMergeVectorsDbl2", [&] { VB_VMergeVectorsDbl2(a, nA, b, nB); });
}

int vecmat_guarded_VB_VMergeVectorsStr(wchar_t** a, int nA, wchar_t** b, int nB, wchar_t** out)
{
    return guarded("VB_VMergeVectorsStr", [&] { VB_VMergeVectorsStr(a, nA, b, nB, out); });
}

int vecmat_guarded_VB_VMergeVectorsStr2(wchar_t** a, int nA, wchar_t** b, int nB)
{
    return guarded("VB_VMergeVectorsStr2", [&] { VB_VMergeVectorsStr2(a, nA, b, nB); });
}

int vecmat_guarded_VB_VMergeVectorsBool2(short* a, int nA, short* b, int nB)
{
    return guarded("VB_VMergeVectorsBool2", [&] { VB_VMergeVectorsBool2(a, nA, b, nB); });
}

int vecmat_guarded_VB_VMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out)
{
    return guarded("VB_VMergeTablesDbl", [&] { VB_VMergeTablesDbl(a, r1, c1, b, r2, c2, out); });
}

int vecmat_guarded_Cpp_VMergeTablesDblSPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2, double* out)
{
    return guarded("Cpp_VMergeTablesDblSPV", [&] { Cpp_VMergeTablesDblSPV(a, r1, c1, b, r2, c2, out); });
}

// ---- elementary/columns_and_rows

int vecmat_guarded_VB_CopyMatrixColToMatrixCol(double* src, int n, int col, double* dst, int dstCol, short prepare)
{
    return guarded("VB_CopyMatrixColToMatrixCol", [&] { VB_CopyMatrixColToMatrixCol(src, n, col, dst, dstCol, prepare); });
}

int vecmat_guarded_VB_CopyMatrixColToVector(double* src, int n, int col, double* v)
{
    return guarded("VB_CopyMatrixColToVector", [&] { VB_CopyMatrixColToVector(src, n, col, v); });
}

int vecmat_guarded_VB_CopyMatrixRowToMatrixRow(double* src, int rows, int cols, int row, double* dst, int dstRows,
                                               int dstRow, short prepare)
{
    return guarded("VB_CopyMatrixRowToMatrixRow", [&] { VB_CopyMatrixRowToMatrixRow(src, rows, cols, row, dst, dstRows, dstRow, prepare); });
}

int vecmat_guarded_VB_CopyMatrixColToOneColMatStr(wchar_t** src, int n, int col, wchar_t** out)
{
    return guarded("VB_CopyMatrixColToOneColMatStr", [&] { VB_CopyMatrixColToOneColMatStr(src, n, col, out); });
}

int vecmat_guarded_Cpp_Extractij(double* a, int n, int i, int j, double* out)
{
    return guarded("Cpp_Extractij", [&] { Cpp_Extractij(a, n, i, j, out); });
}

// ---- elementary/blocks

int vecmat_guarded_VB_M_CopyBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst)
{
    return guarded("VB_M_CopyBlock", [&] { VB_M_CopyBlock(src, rows, cols, r1, r2, c1, c2, dst); });
}

int vecmat_guarded_VB_M_CopyBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst)
{
    return guarded("VB_M_CopyBlockSPV", [&] { VB_M_CopyBlockSPV(src, r1, r2, c1, c2, dst); });
}

int vecmat_guarded_VB_M_CopyBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2, wchar_t** dst)
{
    return guarded("VB_M_CopyBlockStr", [&] { VB_M_CopyBlockStr(src, rows, cols, r1, r2, c1, c2, dst); });
}

int vecmat_guarded_Cpp_M_CopyBlockSPV2(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst)
{
    return guarded("Cpp_M_CopyBlockSPV2", [&] { Cpp_M_CopyBlockSPV2(src, r1, r2, c1, c2, dst); });
}

int vecmat_guarded_Cpp_M_CopyBlockSPV2_T(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst)
{
    return guarded("Cpp_M_CopyBlockSPV2_T", [&] { Cpp_M_CopyBlockSPV2_T(src, r1, r2, c1, c2, dst); });
}

int vecmat_guarded_Cpp_M_DuplicateDblSPV(SAFEARRAY** src, int rows, int cols, double* dst)
{
    return guarded("Cpp_M_DuplicateDblSPV", [&] { Cpp_M_DuplicateDblSPV(src, rows, cols, dst); });
}

int vecmat_guarded_Cpp_M_DuplicateDblSPV2(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst)
{
    return guarded("Cpp_M_DuplicateDblSPV2", [&] { Cpp_M_DuplicateDblSPV2(src, rows, cols, dst); });
}

int vecmat_guarded_Cpp_M_DuplicateDblSPV2_T(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst)
{
    return guarded("Cpp_M_DuplicateDblSPV2_T", [&] { Cpp_M_DuplicateDblSPV2_T(src, rows, cols, dst); });
}

int vecmat_guarded_Cpp_M_DuplicateDblSPV3(double* src, int rows, int cols, SAFEARRAY** dst)
{
    return guarded("Cpp_M_DuplicateDblSPV3", [&] { Cpp_M_DuplicateDblSPV3(src, rows, cols, dst); });
}

int vecmat_guarded_VB_M_DuplicateStrSPV(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst)
{
    return guarded("VB_M_DuplicateStrSPV", [&] { VB_M_DuplicateStrSPV(src, rows, cols, dst); });
}

int vecmat_guarded_Cpp_M_CopyPasteBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst,
                                        int dstRows, int dstCols, int row, int col)
{
    return guarded("Cpp_M_CopyPasteBlock", [&] { Cpp_M_CopyPasteBlock(src, rows, cols, r1, r2, c1, c2, dst, dstRows, dstCols, row, col); });
}

int vecmat_guarded_Cpp_M_CopyPasteBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst, int dstRows,
                                           int dstCols, int row, int col)
{
    return guarded("Cpp_M_CopyPasteBlockSPV", [&] { Cpp_M_CopyPasteBlockSPV(src, r1, r2, c1, c2, dst, dstRows, dstCols, row, col); });
}

int vecmat_guarded_Cpp_M_CopyPasteBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2,
                                           wchar_t** dst, int dstRows, int dstCols, int row, int col)
{
    return guarded("Cpp_M_CopyPasteBlockStr", [&] { Cpp_M_CopyPasteBlockStr(src, rows, cols, r1, r2, c1, c2, dst, dstRows, dstCols, row, col); });
}

int vecmat_guarded_VB_M_PasteBlock(double* src, int rows, int cols, double* dst, int dstRows, int dstCols, int row,
                                   int col)
{
    return guarded("VB_M_PasteBlock", [&] { VB_M_PasteBlock(src, rows, cols, dst, dstRows, dstCols, row, col); });
}

int vecmat_guarded_VB_M_PasteBlockLng(int* src, int rows, int cols, int* dst, int dstRows, int dstCols, int row,
                                      int col)
{
    return guarded("VB_M_PasteBlockLng", [&] { VB_M_PasteBlockLng(src, rows, cols, dst, dstRows, dstCols, row, col); });
}

int vecmat_guarded_VB_M_CopyToBigger(double* src, int rows, int cols, double* dst, int dstRows, int dstCols)
{
    return guarded("VB_M_CopyToBigger", [&] { VB_M_CopyToBigger(src, rows, cols, dst, dstRows, dstCols); });
}

// ---- elementary/extraction

int vecmat_guarded_VB_M_ExtractMatToMatDbl(double* src, int rows, int cols, int from, int to, double* out)
{
    return guarded("VB_M_ExtractMatToMatDbl", [&] { VB_M_ExtractMatToMatDbl(src, rows, cols, from, to, out); });
}

int vecmat_guarded_VB_M_ExtractMatToMatDblSPV(SAFEARRAY** src, int cols, int from, int to, double* out)
{
    return guarded("VB_M_ExtractMatToMatDblSPV", [&] { VB_M_ExtractMatToMatDblSPV(src, cols, from, to, out); });
}

int vecmat_guarded_VB_M_ExtractMatToMatStr(wchar_t** src, int rows, int cols, int from, int to, wchar_t** out)
{
    return guarded("VB_M_ExtractMatToMatStr", [&] { VB_M_ExtractMatToMatStr(src, rows, cols, from, to, out); });
}

int vecmat_guarded_VB_M_ExtractMatToMatStrSPV(SAFEARRAY** src, int cols, int from, int to, wchar_t** out)
{
    return guarded("VB_M_ExtractMatToMatStrSPV", [&] { VB_M_ExtractMatToMatStrSPV(src, cols, from, to, out); });
}

int vecmat_guarded_VB_M_ExtractMatToMatByColDbl(double* src, int rows, int from, int to, double* out)
{
    return guarded("VB_M_ExtractMatToMatByColDbl", [&] { VB_M_ExtractMatToMatByColDbl(src, rows, from, to, out); });
}

int vecmat_guarded_Cpp_M_ExtractMatNeverySKSPV(SAFEARRAY** src, int n, int cols, int nOut, int keep, int skip,
                                               int start, SAFEARRAY** dst, double* positions)
{
    return guarded("Cpp_M_ExtractMatNeverySKSPV", [&] { Cpp_M_ExtractMatNeverySKSPV(src, n, cols, nOut, keep, skip, start, dst, positions); });
}

// ---- elementary/packing

int vecmat_guarded_Cpp_MatToVect(double* a, int rows, int cols, double* v)
{
    return guarded("Cpp_MatToVect", [&] { Cpp_MatToVect(a, rows, cols, v); });
}

int vecmat_guarded_Cpp_VectToMat(double* v, double* counts, int rows, int cols, double* out)
{
    return guarded("Cpp_VectToMat", [&] { Cpp_VectToMat(v, counts, rows, cols, out); });
}

int vecmat_guarded_Cpp_M_CopySymMatToVector(double* a, int n, double* v)
{
    return guarded("Cpp_M_CopySymMatToVector", [&] { Cpp_M_CopySymMatToVector(a, n, v); });
}

int vecmat_guarded_Cpp_M_CopyVectorToSymMat(double* v, int n, double* a)
{
    return guarded("Cpp_M_CopyVectorToSymMat", [&] { Cpp_M_CopyVectorToSymMat(v, n, a); });
}

// ---- elementary/removal

int vecmat_guarded_VB_M_RemoveCol(double* a, int rows, int cols, int col, double* out)
{
    return guarded("VB_M_RemoveCol", [&] { VB_M_RemoveCol(a, rows, cols, col, out); });
}

int vecmat_guarded_VB_M_RemoveRow(double* a, int rows, int cols, int row, double* out)
{
    return guarded("VB_M_RemoveRow", [&] { VB_M_RemoveRow(a, rows, cols, row, out); });
}

int vecmat_guarded_VB_M_MoveRow(double* a, int rows, int cols, int r1, int r2)
{
    return guarded("VB_M_MoveRow", [&] { VB_M_MoveRow(a, rows, cols, r1, r2); });
}

int vecmat_guarded_VB_M_RemoveCols2(double* a, int rows, int cols, int from, int to)
{
    return guarded("VB_M_RemoveCols2", [&] { VB_M_RemoveCols2(a, rows, cols, from, to); });
}

int vecmat_guarded_VB_M_RemoveRows2(double* a, int rows, int cols, int from, int to)
{
    return guarded("VB_M_RemoveRows2", [&] { VB_M_RemoveRows2(a, rows, cols, from, to); });
}

int vecmat_guarded_Cpp_M_RemoveRowsStr2(wchar_t** a, int rows, int cols, int from, int to)
{
    return guarded("Cpp_M_RemoveRowsStr2", [&] { Cpp_M_RemoveRowsStr2(a, rows, cols, from, to); });
}

int vecmat_guarded_VB_M_RemoveRowsInList(double* a, int rows, int cols, int* flags, int nOut, double* out,
                                         int* returned)
{
    return guarded("VB_M_RemoveRowsInList", returned, [&] { return VB_M_RemoveRowsInList(a, rows, cols, flags, nOut, out); });
}

int vecmat_guarded_VB_M_RemoveColsInList(double* a, int rows, int cols, int* flags, int nOut, double* out,
                                         int* returned)
{
    return guarded("VB_M_RemoveColsInList", returned, [&] { return VB_M_RemoveColsInList(a, rows, cols, flags, nOut, out); });
}

// ---- matrix

int vecmat_guarded_sqr2(double x, double* returned)
{
    return guarded("sqr2", returned, [&] { return sqr2(x); });
}

// ---- elementary/vector_sums

int vecmat_guarded_VB_V_Sum2Dbl(double* x, int n, double* returned)
{
    return guarded("VB_V_Sum2Dbl", returned, [&] { return VB_V_Sum2Dbl(x, n); });
}

int vecmat_guarded_VB_V_Sum2Lng(int* x, int n, int* returned)
{
    return guarded("VB_V_Sum2Lng", returned, [&] { return VB_V_Sum2Lng(x, n); });
}

int vecmat_guarded_VB_V_SumFromTo(double* x, int n, int from, int to, double* returned)
{
    return guarded("VB_V_SumFromTo", returned, [&] { return VB_V_SumFromTo(x, n, from, to); });
}

int vecmat_guarded_VB_V_SumFromToLng(int* x, int n, int from, int to, int* returned)
{
    return guarded("VB_V_SumFromToLng", returned, [&] { return VB_V_SumFromToLng(x, n, from, to); });
}

int vecmat_guarded_VB_V_Sum(double* x, int n, short* mask, double* w, double* returned)
{
    return guarded("VB_V_Sum", returned, [&] { return VB_V_Sum(x, n, mask, w); });
}

int vecmat_guarded_VB_V_SumSq(double* x, int n, double* returned)
{
    return guarded("VB_V_SumSq", returned, [&] { return VB_V_SumSq(x, n); });
}

int vecmat_guarded_VB_V_SumSqW(double* x, int n, double* w, double* returned)
{
    return guarded("VB_V_SumSqW", returned, [&] { return VB_V_SumSqW(x, n, w); });
}

int vecmat_guarded_VB_V_DiffSq(double* a, int n, double* b, double* returned)
{
    return guarded("VB_V_DiffSq", returned, [&] { return VB_V_DiffSq(a, n, b); });
}

int vecmat_guarded_VB_V_DiffSqW(double* a, int n, double* b, double* w, double* returned)
{
    return guarded("VB_V_DiffSqW", returned, [&] { return VB_V_DiffSqW(a, n, b, w); });
}

int vecmat_guarded_Cpp_V_DiffSqStart(double* a, int n, double* b, int start, double* returned)
{
    return guarded("Cpp_V_DiffSqStart", returned, [&] { return Cpp_V_DiffSqStart(a, n, b, start); });
}

// ---- elementary/vector_counts

int vecmat_guarded_VB_V_NbTrue(short* x, int n, int* returned)
{
    return guarded("VB_V_NbTrue", returned, [&] { return VB_V_NbTrue(x, n); });
}

int vecmat_guarded_V_NbTrue(short* x, int n, int* returned)
{
    return guarded("V_NbTrue", returned, [&] { return V_NbTrue(x, n); });
}

int vecmat_guarded_VB_V_NbTrueFromTo(short* x, int n, int from, int to, int* returned)
{
    return guarded("VB_V_NbTrueFromTo", returned, [&] { return VB_V_NbTrueFromTo(x, n, from, to); });
}

int vecmat_guarded_V_NbTrueFromTo(short* x, int from, int to, int* returned)
{
    return guarded("V_NbTrueFromTo", returned, [&] { return V_NbTrueFromTo(x, from, to); });
}

int vecmat_guarded_Cpp_V_FindLng(int* x, int n, int val, short* returned)
{
    return guarded("Cpp_V_FindLng", returned, [&] { return Cpp_V_FindLng(x, n, val); });
}

// ---- elementary/vector_updates

int vecmat_guarded_VB_V_RemoveVal(double* x, int n, int pos, double* out)
{
    return guarded("VB_V_RemoveVal", [&] { VB_V_RemoveVal(x, n, pos, out); });
}

int vecmat_guarded_VB_V_PlusVal(double* x, int n, double val, short* mask)
{
    return guarded("VB_V_PlusVal", [&] { VB_V_PlusVal(x, n, val, mask); });
}

int vecmat_guarded_VB_V_PlusVal2(double* x, int n, double val)
{
    return guarded("VB_V_PlusVal2", [&] { VB_V_PlusVal2(x, n, val); });
}

int vecmat_guarded_VB_V_Norm(double* x, int n)
{
    return guarded("VB_V_Norm", [&] { VB_V_Norm(x, n); });
}

int vecmat_guarded_VB_V_NormToVal(double* x, int n, double val)
{
    return guarded("VB_V_NormToVal", [&] { VB_V_NormToVal(x, n, val); });
}

int vecmat_guarded_VB_V_NormW(double* x, int n, double* w)
{
    return guarded("VB_V_NormW", [&] { VB_V_NormW(x, n, w); });
}

int vecmat_guarded_VB_V_NormToValW(double* x, int n, double val, double* w)
{
    return guarded("VB_V_NormToValW", [&] { VB_V_NormToValW(x, n, val, w); });
}

int vecmat_guarded_VB_V_ReplaceVal(double* x, int n, double from, double to, double* out)
{
    return guarded("VB_V_ReplaceVal", [&] { VB_V_ReplaceVal(x, n, from, to, out); });
}

int vecmat_guarded_VB_V_ReplaceVal2(double* x, int n, double from, double to)
{
    return guarded("VB_V_ReplaceVal2", [&] { VB_V_ReplaceVal2(x, n, from, to); });
}

// ---- elementary/extremes

int vecmat_guarded_VB_V_Min(double* x, int n, short* mask, double* returned)
{
    return guarded("VB_V_Min", returned, [&] { return VB_V_Min(x, n, mask); });
}

int vecmat_guarded_VB_V_Max(double* x, int n, short* mask, double* returned)
{
    return guarded("VB_V_Max", returned, [&] { return VB_V_Max(x, n, mask); });
}

int vecmat_guarded_VB_V_Min2(double* x, int n, double* returned)
{
    return guarded("VB_V_Min2", returned, [&] { return VB_V_Min2(x, n); });
}

int vecmat_guarded_VB_V_Max2(double* x, int n, double* returned)
{
    return guarded("VB_V_Max2", returned, [&] { return VB_V_Max2(x, n); });
}

int vecmat_guarded_VB_V_Min2Lng(int* x, int n, int* returned)
{
    return guarded("VB_V_Min2Lng", returned, [&] { return VB_V_Min2Lng(x, n); });
}

int vecmat_guarded_VB_V_Max2Lng(int* x, int n, int* returned)
{
    return guarded("VB_V_Max2Lng", returned, [&] { return VB_V_Max2Lng(x, n); });
}

int vecmat_guarded_VB_V_MaxInt(int* x, int n, short* mask, int* returned)
{
    return guarded("VB_V_MaxInt", returned, [&] { return VB_V_MaxInt(x, n, mask); });
}

int vecmat_guarded_VB_V_MinAndMinPos(double* x, int n, int* pos, double* returned)
{
    return guarded("VB_V_MinAndMinPos", returned, [&] { return VB_V_MinAndMinPos(x, n, pos); });
}

int vecmat_guarded_VB_V_MaxAndMaxPos(double* x, int n, int* pos, double* returned)
{
    return guarded("VB_V_MaxAndMaxPos", returned, [&] { return VB_V_MaxAndMaxPos(x, n, pos); });
}

int vecmat_guarded_VB_V_MinMax(double* x, int n, double* min, double* max, short* mask)
{
    return guarded("VB_V_MinMax", [&] { VB_V_MinMax(x, n, min, max, mask); });
}

int vecmat_guarded_VB_V_MinMaxLng(int* x, int n, double* min, double* max, short* mask)
{
    return guarded("VB_V_MinMaxLng", [&] { VB_V_MinMaxLng(x, n, min, max, mask); });
}

// ---- elementary/conditional_aggregates

int vecmat_guarded_VB_V_SumIf(double* x, int n, double* key, double val, double* returned)
{
    return guarded("VB_V_SumIf", returned, [&] { return VB_V_SumIf(x, n, key, val); });
}

int vecmat_guarded_VB_V_SumIfW(double* x, int n, double* key, double* w, double val, double* returned)
{
    return guarded("VB_V_SumIfW", returned, [&] { return VB_V_SumIfW(x, n, key, w, val); });
}

int vecmat_guarded_VB_V_MaxIf(double* x, int n, double* key, double val, double* returned)
{
    return guarded("VB_V_MaxIf", returned, [&] { return VB_V_MaxIf(x, n, key, val); });
}

int vecmat_guarded_VB_V_MinIf(double* x, int n, double* key, double val, double* returned)
{
    return guarded("VB_V_MinIf", returned, [&] { return VB_V_MinIf(x, n, key, val); });
}

int vecmat_guarded_VB_V_NbIf(double* x, int n, double val, double* returned)
{
    return guarded("VB_V_NbIf", returned, [&] { return VB_V_NbIf(x, n, val); });
}

int vecmat_guarded_VB_V_NbIfLng(int* x, int n, int val, int* returned)
{
    return guarded("VB_V_NbIfLng", returned, [&] { return VB_V_NbIfLng(x, n, val); });
}

int vecmat_guarded_VB_V_NbIfW(double* x, int n, double* w, double val, double* returned)
{
    return guarded("VB_V_NbIfW", returned, [&] { return VB_V_NbIfW(x, n, w, val); });
}

// ---- sorting/sort_apply

int vecmat_guarded_VB_SortApply(double* source, int nRows, int nCols, double* order, double* out)
{
    return guarded("VB_SortApply", [&] { VB_SortApply(source, nRows, nCols, order, out); });
}

int vecmat_guarded_VB_SortApply2(double* table, int nRows, int nCols, double* order)
{
    return guarded("VB_SortApply2", [&] { VB_SortApply2(table, nRows, nCols, order); });
}

int vecmat_guarded_VB_SortApplyLng(int* source, int nRows, int nCols, double* order, int* out)
{
    return guarded("VB_SortApplyLng", [&] { VB_SortApplyLng(source, nRows, nCols, order, out); });
}

int vecmat_guarded_VB_SortApply2Lng(int* table, int nRows, int nCols, double* order)
{
    return guarded("VB_SortApply2Lng", [&] { VB_SortApply2Lng(table, nRows, nCols, order); });
}

int vecmat_guarded_VB_SortApplyStr(wchar_t** source, int nRows, int nCols, double* order, wchar_t** out)
{
    return guarded("VB_SortApplyStr", [&] { VB_SortApplyStr(source, nRows, nCols, order, out); });
}

int vecmat_guarded_VB_SortApply2Str(wchar_t** table, int nRows, int nCols, double* order)
{
    return guarded("VB_SortApply2Str", [&] { VB_SortApply2Str(table, nRows, nCols, order); });
}

// ---- sorting/ranks

int vecmat_guarded_VB_V_GetRanksDbl(double* x, int n, double* ranks)
{
    return guarded("VB_V_GetRanksDbl", [&] { VB_V_GetRanksDbl(x, n, ranks); });
}

int vecmat_guarded_VB_V_GetRanksLng(double* x, int n, int* ranks)
{
    return guarded("VB_V_GetRanksLng", [&] { VB_V_GetRanksLng(x, n, ranks); });
}

int vecmat_guarded_VB_V_GetRanksTiesDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes)
{
    return guarded("VB_V_GetRanksTiesDbl", [&] { VB_V_GetRanksTiesDbl(x, n, weights, ranks, nTies, tieSizes); });
}

int vecmat_guarded_VB_V_GetRanksTiesIntDbl(double* x, int n, double* weights, double* ranks, int* nTies,
                                           double* tieSizes)
{
    return guarded("VB_V_GetRanksTiesIntDbl", [&] { VB_V_GetRanksTiesIntDbl(x, n, weights, ranks, nTies, tieSizes); });
}

int vecmat_guarded_VB_V_IsSorted(double* x, int n, short strict, short* returned)
{
    return guarded("VB_V_IsSorted", returned, [&] { return VB_V_IsSorted(x, n, strict); });
}

int vecmat_guarded_VB_V_TimeIntervalSize(double* t, int n, short sorted, double* returned)
{
    return guarded("VB_V_TimeIntervalSize", returned, [&] { return VB_V_TimeIntervalSize(t, n, sorted); });
}

// ---- sorting/sort

int vecmat_guarded_VB_SortQVectorDbl(double* x, int n, int first, int last, short descending, int* returned)
{
    return guarded("VB_SortQVectorDbl", returned, [&] { return VB_SortQVectorDbl(x, n, first, last, descending); });
}

int vecmat_guarded_VB_SortQVectorLng(int* x, int n, int first, int last, short descending, int* returned)
{
    return guarded("VB_SortQVectorLng", returned, [&] { return VB_SortQVectorLng(x, n, first, last, descending); });
}

int vecmat_guarded_VB_SortQVectorStr(wchar_t** x, int n, int first, int last, short descending, int* returned)
{
    return guarded("VB_SortQVectorStr", returned, [&] { return VB_SortQVectorStr(x, n, first, last, descending); });
}

int vecmat_guarded_VB_SortQMatrixCol(double* table, int nRows, int nCols, int col, int first, int last,
                                     short descending, int* returned)
{
    return guarded("VB_SortQMatrixCol", returned, [&] { return VB_SortQMatrixCol(table, nRows, nCols, col, first, last, descending); });
}

int vecmat_guarded_VB_SortQMatrixColStr(wchar_t** table, int nRows, int nCols, int col, int first, int last,
                                        short descending, int* returned)
{
    return guarded("VB_SortQMatrixColStr", returned, [&] { return VB_SortQMatrixColStr(table, nRows, nCols, col, first, last, descending); });
}

int vecmat_guarded_VB_SortMatrixSeqQDbl(double* table, int nRows, int nCols, short lastToFirst, int* returned)
{
    return guarded("VB_SortMatrixSeqQDbl", returned, [&] { return VB_SortMatrixSeqQDbl(table, nRows, nCols, lastToFirst); });
}

int vecmat_guarded_VB_SortMatrixSeqQLng(int* table, int nRows, int nCols, short lastToFirst, int* returned)
{
    return guarded("VB_SortMatrixSeqQLng", returned, [&] { return VB_SortMatrixSeqQLng(table, nRows, nCols, lastToFirst); });
}

int vecmat_guarded_VB_SortMatrixSeqQP1toP2Dbl(double* table, int nRows, int nCols, int firstCol, int lastCol,
                                              short lastToFirst, int* returned)
{
    return guarded("VB_SortMatrixSeqQP1toP2Dbl", returned, [&] { return VB_SortMatrixSeqQP1toP2Dbl(table, nRows, nCols, firstCol, lastCol, lastToFirst); });
}

int vecmat_guarded_VB_SortMatrixSeqQP1toP2Lng(int* table, int nRows, int nCols, int firstCol, int lastCol,
                                              short lastToFirst, int* returned)
{
    return guarded("VB_SortMatrixSeqQP1toP2Lng", returned, [&] { return VB_SortMatrixSeqQP1toP2Lng(table, nRows, nCols, firstCol, lastCol, lastToFirst); });
}

int vecmat_guarded_VB_SortQDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                               int nCompanionCols, short descending, short writeKeys, int* returned)
{
    return guarded("VB_SortQDbl", returned, [&] { return VB_SortQDbl(data, nRows, nCols, first, last, key, companion, nCompanionCols, descending, writeKeys); });
}

int vecmat_guarded_VB_SortQDbl2(double* data, int nRows, int nCols, int first, int last, int* key, double* companion,
                                int nCompanionCols, short descending, short writeKeys, int* returned)
{
    return guarded("VB_SortQDbl2", returned, [&] { return VB_SortQDbl2(data, nRows, nCols, first, last, key, companion, nCompanionCols, descending, writeKeys); });
}

int vecmat_guarded_VB_SortQLng(int* data, int nRows, int nCols, int first, int last, int* key, int* companion,
                               int nCompanionCols, short descending, short writeKeys, int* returned)
{
    return guarded("VB_SortQLng", returned, [&] { return VB_SortQLng(data, nRows, nCols, first, last, key, companion, nCompanionCols, descending, writeKeys); });
}

int vecmat_guarded_VB_SortQBool(short* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                                int nCompanionCols, short descending, short writeKeys, int* returned)
{
    return guarded("VB_SortQBool", returned, [&] { return VB_SortQBool(data, nRows, nCols, first, last, key, companion, nCompanionCols, descending, writeKeys); });
}

int vecmat_guarded_VB_SortQStr(wchar_t** data, int nRows, int nCols, int first, int last, double* key,
                               double* companion, int nCompanionCols, short descending, short writeKeys, int* returned)
{
    return guarded("VB_SortQStr", returned, [&] { return VB_SortQStr(data, nRows, nCols, first, last, key, companion, nCompanionCols, descending, writeKeys); });
}

int vecmat_guarded_VB_SortQByColDbl(double* data, int nRows, int nCols, int first, int last, double* key,
                                    double* companion, int nCompanionRows, short descending, short writeKeys,
                                    int* returned)
{
    return guarded("VB_SortQByColDbl", returned, [&] { return VB_SortQByColDbl(data, nRows, nCols, first, last, key, companion, nCompanionRows, descending, writeKeys); });
}

int vecmat_guarded_VB_SortQDblSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key,
                                  double* companion, int nCompanionCols, short descending, short writeKeys,
                                  int* returned)
{
    return guarded("VB_SortQDblSPV", returned, [&] { return VB_SortQDblSPV(data, nRows, nCols, first, last, key, companion, nCompanionCols, descending, writeKeys); });
}

int vecmat_guarded_VB_SortQStrSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key,
                                  double* companion, int nCompanionCols, short descending, short writeKeys,
                                  int* returned)
{
    return guarded("VB_SortQStrSPV", returned, [&] { return VB_SortQStrSPV(data, nRows, nCols, first, last, key, companion, nCompanionCols, descending, writeKeys); });
}

int vecmat_guarded_VB_SortDataBy01(double* data, int n, int nCols, double* key, int* returned)
{
    return guarded("VB_SortDataBy01", returned, [&] { return VB_SortDataBy01(data, n, nCols, key); });
}

int vecmat_guarded_VB_SortDataBy01Bool(short* data, int n, int nCols, double* key, int* returned)
{
    return guarded("VB_SortDataBy01Bool", returned, [&] { return VB_SortDataBy01Bool(data, n, nCols, key); });
}

int vecmat_guarded_VB_SortDataBy01SPV(SAFEARRAY** data, int n, int nCols, double* key, int* returned)
{
    return guarded("VB_SortDataBy01SPV", returned, [&] { return VB_SortDataBy01SPV(data, n, nCols, key); });
}

int vecmat_guarded_VB_SortDataBy01Str(wchar_t** data, int n, int nCols, double* key, int* returned)
{
    return guarded("VB_SortDataBy01Str", returned, [&] { return VB_SortDataBy01Str(data, n, nCols, key); });
}

// ---- missing/missing_counts

int vecmat_guarded_IsMissingValueDbl(double x, short* returned)
{
    return guarded("IsMissingValueDbl", returned, [&] { return IsMissingValueDbl(x); });
}

int vecmat_guarded_VB_IsMissingValueDbl(double x, short* returned)
{
    return guarded("VB_IsMissingValueDbl", returned, [&] { return VB_IsMissingValueDbl(x); });
}

int vecmat_guarded_VB_IsMissingValueStr(const wchar_t* s, short* returned)
{
    return guarded("VB_IsMissingValueStr", returned, [&] { return VB_IsMissingValueStr(s); });
}

int vecmat_guarded_VB_V_NbMissing(double* x, int n, int* returned)
{
    return guarded("VB_V_NbMissing", returned, [&] { return VB_V_NbMissing(x, n); });
}

int vecmat_guarded_VB_V_NbNonMissing(double* x, int n, int* returned)
{
    return guarded("VB_V_NbNonMissing", returned, [&] { return VB_V_NbNonMissing(x, n); });
}

int vecmat_guarded_VB_V_NbMissingStr(wchar_t** x, int n, int* returned)
{
    return guarded("VB_V_NbMissingStr", returned, [&] { return VB_V_NbMissingStr(x, n); });
}

int vecmat_guarded_VB_M_NbMissing(double* a, int nRows, int nCols, int* counts)
{
    return guarded("VB_M_NbMissing", [&] { VB_M_NbMissing(a, nRows, nCols, counts); });
}

int vecmat_guarded_VB_M_NbMissingStr(wchar_t** a, int nRows, int nCols, int* counts)
{
    return guarded("VB_M_NbMissingStr", [&] { VB_M_NbMissingStr(a, nRows, nCols, counts); });
}

int vecmat_guarded_VB_M_NbMissing2(double* a, int nRows, int nCols, int* returned)
{
    return guarded("VB_M_NbMissing2", returned, [&] { return VB_M_NbMissing2(a, nRows, nCols); });
}

int vecmat_guarded_VB_M_NbMissing2Str(wchar_t** a, int nRows, int nCols, int* returned)
{
    return guarded("VB_M_NbMissing2Str", returned, [&] { return VB_M_NbMissing2Str(a, nRows, nCols); });
}

int vecmat_guarded_VB_M_NbNonMissing(double* a, int nRows, int nCols, int* counts)
{
    return guarded("VB_M_NbNonMissing", [&] { VB_M_NbNonMissing(a, nRows, nCols, counts); });
}

int vecmat_guarded_Cpp_M_NbMissingSPV(SAFEARRAY** a, int nRows, int nCols, int* returned)
{
    return guarded("Cpp_M_NbMissingSPV", returned, [&] { return Cpp_M_NbMissingSPV(a, nRows, nCols); });
}

int vecmat_guarded_VB_M_NbMissingSPV_T(SAFEARRAY** a, int n, int unused, int* returned)
{
    return guarded("VB_M_NbMissingSPV_T", returned, [&] { return VB_M_NbMissingSPV_T(a, n, unused); });
}

// ---- missing/missing_masks

int vecmat_guarded_VB_SummarizeMissing(int n, int* total, short* out, short* a, short* b, short* c)
{
    return guarded("VB_SummarizeMissing", [&] { VB_SummarizeMissing(n, total, out, a, b, c); });
}

int vecmat_guarded_VB_SummarizeAllMissing(int n, short* a, short* b, int* total, short* out)
{
    return guarded("VB_SummarizeAllMissing", [&] { VB_SummarizeAllMissing(n, a, b, total, out); });
}

int vecmat_guarded_VB_M_AllMissingRows(double* x, int nRows, int nCols, short* filter, short* out)
{
    return guarded("VB_M_AllMissingRows", [&] { VB_M_AllMissingRows(x, nRows, nCols, filter, out); });
}

int vecmat_guarded_VB_M_AllMissingRowsStr(wchar_t** x, int nRows, int nCols, short* filter, short* out)
{
    return guarded("VB_M_AllMissingRowsStr", [&] { VB_M_AllMissingRowsStr(x, nRows, nCols, filter, out); });
}

int vecmat_guarded_VB_V_GetMissingDbl(double* x, int n, short* a, short* out)
{
    return guarded("VB_V_GetMissingDbl", [&] { VB_V_GetMissingDbl(x, n, a, out); });
}

int vecmat_guarded_VB_V_GetMissingStr(wchar_t** x, int n, short* a, short* out)
{
    return guarded("VB_V_GetMissingStr", [&] { VB_V_GetMissingStr(x, n, a, out); });
}

int vecmat_guarded_Cpp_M_GetMissingDbl(double* a, int nRows, int nCols, short* filter, short* out)
{
    return guarded("Cpp_M_GetMissingDbl", [&] { Cpp_M_GetMissingDbl(a, nRows, nCols, filter, out); });
}

int vecmat_guarded_Cpp_M_GetMissingDblSPV(SAFEARRAY** a, int nRows, int nCols, short* filter, short* out)
{
    return guarded("Cpp_M_GetMissingDblSPV", [&] { Cpp_M_GetMissingDblSPV(a, nRows, nCols, filter, out); });
}

int vecmat_guarded_Cpp_M_IdentifyMissingInMat(double* a, int nRows, int nCols, int* out)
{
    return guarded("Cpp_M_IdentifyMissingInMat", [&] { Cpp_M_IdentifyMissingInMat(a, nRows, nCols, out); });
}

int vecmat_guarded_Cpp_M_IdentifyMissingInMatSPV(SAFEARRAY** a, int nRows, int nCols, int* out)
{
    return guarded("Cpp_M_IdentifyMissingInMatSPV", [&] { Cpp_M_IdentifyMissingInMatSPV(a, nRows, nCols, out); });
}

int vecmat_guarded_Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(double* a, int n, short* returned)
{
    return guarded("Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags", returned, [&] { return Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(a, n); });
}

int vecmat_guarded_Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(SAFEARRAY** a, int n, short* returned)
{
    return guarded("Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T", returned, [&] { return Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(a, n); });
}

// ---- missing/replacement

int vecmat_guarded_VB_M_ReplaceMissingByVal(double* a, int nRows, int nCols, double value)
{
    return guarded("VB_M_ReplaceMissingByVal", [&] { VB_M_ReplaceMissingByVal(a, nRows, nCols, value); });
}

int vecmat_guarded_VB_M_ReplaceMissingByValSPV(SAFEARRAY** a, int nRows, int nCols, double value)
{
    return guarded("VB_M_ReplaceMissingByValSPV", [&] { VB_M_ReplaceMissingByValSPV(a, nRows, nCols, value); });
}

int vecmat_guarded_VB_M_ReplaceMissingByStr(wchar_t** a, int nRows, int nCols, const wchar_t* value)
{
    return guarded("VB_M_ReplaceMissingByStr", [&] { VB_M_ReplaceMissingByStr(a, nRows, nCols, value); });
}

int vecmat_guarded_Cpp_M_ReplaceByMissing(double* a, int nRows, int nCols, int* mask, int nMaskCols, short wholeRow)
{
    return guarded("Cpp_M_ReplaceByMissing", [&] { Cpp_M_ReplaceByMissing(a, nRows, nCols, mask, nMaskCols, wholeRow); });
}

int vecmat_guarded_VB_M_SetWeightsToZeroForMissing(double* data, int nRows, int nCols, double* weights, int nWeightCols)
{
    return guarded("VB_M_SetWeightsToZeroForMissing", [&] { VB_M_SetWeightsToZeroForMissing(data, nRows, nCols, weights, nWeightCols); });
}

// ---- missing/observation_labels

int vecmat_guarded_VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask, const wchar_t* prefix)
{
    return guarded("VB_ReplaceMissingObsLabels", [&] { VB_ReplaceMissingObsLabels(labels, n, mask, prefix); });
}

// ---- missing/complete_rows

int vecmat_guarded_VB_RemoveRowsWithMissing(double* data, int nRows, int nCols, int nRemoved, short* mask, double* out)
{
    return guarded("VB_RemoveRowsWithMissing", [&] { VB_RemoveRowsWithMissing(data, nRows, nCols, nRemoved, mask, out); });
}

int vecmat_guarded_VB_RemoveRowsWithMissingStr(wchar_t** data, int nRows, int nCols, int nRemoved, short* mask,
                                               wchar_t** out)
{
    return guarded("VB_RemoveRowsWithMissingStr", [&] { VB_RemoveRowsWithMissingStr(data, nRows, nCols, nRemoved, mask, out); });
}

int vecmat_guarded_Cpp_M_InsertMissingDbl(double* data, int nRows, int nCols, short* mask, int nInsert, double* out)
{
    return guarded("Cpp_M_InsertMissingDbl", [&] { Cpp_M_InsertMissingDbl(data, nRows, nCols, mask, nInsert, out); });
}

int vecmat_guarded_Cpp_M_InsertMissingLng(int* data, int nRows, int nCols, short* mask, int nInsert, int* out)
{
    return guarded("Cpp_M_InsertMissingLng", [&] { Cpp_M_InsertMissingLng(data, nRows, nCols, mask, nInsert, out); });
}

int vecmat_guarded_Cpp_MatToVect_NoMissing(double* data, int nRows, int nCols, double* counts, double* emptyCols,
                                           double* out)
{
    return guarded("Cpp_MatToVect_NoMissing", [&] { Cpp_MatToVect_NoMissing(data, nRows, nCols, counts, emptyCols, out); });
}

// ---- missing/missing_arithmetic

int vecmat_guarded_Cpp_V_MinIgnoreMissing(double* x, int n, double* returned)
{
    return guarded("Cpp_V_MinIgnoreMissing", returned, [&] { return Cpp_V_MinIgnoreMissing(x, n); });
}

int vecmat_guarded_VB_V_SumIfNotMissing(double* x, int n, double* y, double* returned)
{
    return guarded("VB_V_SumIfNotMissing", returned, [&] { return VB_V_SumIfNotMissing(x, n, y); });
}

int vecmat_guarded_VB_M_ProductABMissing(double* a, int nRows, int nInner, double* b, int nCols, double* c,
                                         int* returned)
{
    return guarded("VB_M_ProductABMissing", returned, [&] { return VB_M_ProductABMissing(a, nRows, nInner, b, nCols, c); });
}

// ---- missing/mean_imputation

int vecmat_guarded_VB_EstimateRowsWithMissingMean(double* X, int n, int nCols, short* mask, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingMean", [&] { VB_EstimateRowsWithMissingMean(X, n, nCols, mask, weights); });
}

int vecmat_guarded_VB_EstimateRowsWithMissingMeanPred(double* statX, int nStat, double* X, int nRows, int nCols,
                                                      short* mask, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingMeanPred", [&] { VB_EstimateRowsWithMissingMeanPred(statX, nStat, X, nRows, nCols, mask, weights); });
}

int vecmat_guarded_VB_EstimateRowsWithMissingMeanSPV(SAFEARRAY** X, int n, int nCols, short* mask, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingMeanSPV", [&] { VB_EstimateRowsWithMissingMeanSPV(X, n, nCols, mask, weights); });
}

// ---- missing/mode_imputation

int vecmat_guarded_VB_EstimateRowsWithMissingMode(wchar_t** S, int n, int nCols, short* mask, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingMode", [&] { VB_EstimateRowsWithMissingMode(S, n, nCols, mask, weights); });
}

int vecmat_guarded_VB_EstimateRowsWithMissingModePred(wchar_t** statS, int nStat, wchar_t** S, int nRows, int nCols,
                                                      short* mask, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingModePred", [&] { VB_EstimateRowsWithMissingModePred(statS, nStat, S, nRows, nCols, mask, weights); });
}

// ---- missing/new_variables

int vecmat_guarded_VB_ComputeNewVar(double* Q, int nRows, int nCols, double* C, double* variances, double* covariances)
{
    return guarded("VB_ComputeNewVar", [&] { VB_ComputeNewVar(Q, nRows, nCols, C, variances, covariances); });
}

// ---- missing/nearest_neighbour

int vecmat_guarded_VB_EstimateRowsWithMissingNN(double* X, int n, int nColsX, short* mask, double* Y, int nColsY,
                                                wchar_t** S, int nColsS, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingNN", [&] { VB_EstimateRowsWithMissingNN(X, n, nColsX, mask, Y, nColsY, S, nColsS, weights); });
}

int vecmat_guarded_VB_EstimateRowsWithMissingNNStr(wchar_t** P, int n, int nColsP, short* mask, double* Y, int nColsY,
                                                   wchar_t** S, int nColsS, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingNNStr", [&] { VB_EstimateRowsWithMissingNNStr(P, n, nColsP, mask, Y, nColsY, S, nColsS, weights); });
}

int vecmat_guarded_VB_EstimateRowsWithMissingNNSPV(SAFEARRAY** X, int n, int nColsX, short* mask, double* Y, int nColsY,
                                                   wchar_t** S, int nColsS, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingNNSPV", [&] { VB_EstimateRowsWithMissingNNSPV(X, n, nColsX, mask, Y, nColsY, S, nColsS, weights); });
}

int vecmat_guarded_VB_EstimateRowsWithMissingNNSPV2(SAFEARRAY** X, int n, int nColsX, short* mask, SAFEARRAY** Y,
                                                    int nColsY, wchar_t** S, int nColsS, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingNNSPV2", [&] { VB_EstimateRowsWithMissingNNSPV2(X, n, nColsX, mask, Y, nColsY, S, nColsS, weights); });
}

int vecmat_guarded_VB_EstimateRowsWithMissingNNPred(double* statX, int nStat, double* X, int nRows, int nColsX,
                                                    short* mask, double* statY, double* Y, int nColsY, wchar_t** statS,
                                                    wchar_t** S, int nColsS, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingNNPred", [&] { VB_EstimateRowsWithMissingNNPred(statX, nStat, X, nRows, nColsX, mask, statY, Y, nColsY, statS, S, nColsS, weights); });
}

int vecmat_guarded_VB_EstimateRowsWithMissingNNStrPred(wchar_t** statX, int nStat, wchar_t** X, int nRows, int nColsX,
                                                       short* mask, double* statY, double* Y, int nColsY,
                                                       wchar_t** statS, wchar_t** S, int nColsS, double* weights)
{
    return guarded("VB_EstimateRowsWithMissingNNStrPred", [&] { VB_EstimateRowsWithMissingNNStrPred(statX, nStat, X, nRows, nColsX, mask, statY, Y, nColsY, statS, S, nColsS, weights); });
}

// ---- qualitative/categories

int vecmat_guarded_VB_M_InfoQuali(wchar_t** table, int nRows, int nCols, wchar_t** modes, double* modeWeights,
                                  int* total, int* nCats, wchar_t** categories, double* catWeights, int ignored,
                                  double* weights, short sortCats)
{
    return guarded("VB_M_InfoQuali", [&] { VB_M_InfoQuali(table, nRows, nCols, modes, modeWeights, total, nCats, categories, catWeights, ignored, weights, sortCats); });
}

int vecmat_guarded_VB_M_InfoQuali2(wchar_t** table, int nRows, int nCols, int maxCats, int* nCats, wchar_t** modes,
                                   double* modeWeights, int* total, wchar_t** categories, double* catWeights,
                                   int ignored, double* weights, short sortCats)
{
    return guarded("VB_M_InfoQuali2", [&] { VB_M_InfoQuali2(table, nRows, nCols, maxCats, nCats, modes, modeWeights, total, categories, catWeights, ignored, weights, sortCats); });
}

int vecmat_guarded_VB_M_InfoQualiValid(wchar_t** table, int nRows, int nCols, int maxCats, int ignored1, int* nCats,
                                       wchar_t** categories, double* catWeights, short* invalid, int ignored2,
                                       double* weights)
{
    return guarded("VB_M_InfoQualiValid", [&] { VB_M_InfoQualiValid(table, nRows, nCols, maxCats, ignored1, nCats, categories, catWeights, invalid, ignored2, weights); });
}

int vecmat_guarded_Cpp_GetMaxCat(wchar_t** table, int nRows, int nCols, int* counts, int* returned)
{
    return guarded("Cpp_GetMaxCat", returned, [&] { return Cpp_GetMaxCat(table, nRows, nCols, counts); });
}

int vecmat_guarded_Cpp_CheckUniqueCatByVar(wchar_t** table, int nRows, int nCols, int* counts, int* returned)
{
    return guarded("Cpp_CheckUniqueCatByVar", returned, [&] { return Cpp_CheckUniqueCatByVar(table, nRows, nCols, counts); });
}

// ---- qualitative/moments_of_one_column

int vecmat_guarded_VB_M_MeanStDevVarOneInMat(double* table, int nRows, int col, double* mean, double* stdDev,
                                             double* variance, int ignored, double* weights, short sampleVariance,
                                             short countDivisor)
{
    return guarded("VB_M_MeanStDevVarOneInMat", [&] { VB_M_MeanStDevVarOneInMat(table, nRows, col, mean, stdDev, variance, ignored, weights, sampleVariance, countDivisor); });
}

// ---- qualitative/frequencies

int vecmat_guarded_VB_V_Freq(double* x, int n, double* weights, double value, double tolerance, double* returned)
{
    return guarded("VB_V_Freq", returned, [&] { return VB_V_Freq(x, n, weights, value, tolerance); });
}

int vecmat_guarded_VB_V_FreqLng(int* x, int n, double* weights, int value, int* returned)
{
    return guarded("VB_V_FreqLng", returned, [&] { return VB_V_FreqLng(x, n, weights, value); });
}

int vecmat_guarded_VB_V_FreqStr(wchar_t** x, int n, double* weights, const wchar_t* value, double* returned)
{
    return guarded("VB_V_FreqStr", returned, [&] { return VB_V_FreqStr(x, n, weights, value); });
}

// ---- qualitative/modes

int vecmat_guarded_VB_V_Mode(wchar_t** x, int n, int ignored, double* weights, wchar_t** returned)
{
    return guarded("VB_V_Mode", returned, [&] { return VB_V_Mode(x, n, ignored, weights); });
}

int vecmat_guarded_VB_V_ModeCatDbl(double* x, int n, double* returned)
{
    return guarded("VB_V_ModeCatDbl", returned, [&] { return VB_V_ModeCatDbl(x, n); });
}

// ---- qualitative/disjunctive_tables

int vecmat_guarded_VB_BuildDisjunctiveTable(wchar_t** table, int nRows, int nCols, int totalCats, int* nCats,
                                            wchar_t** categories, double* freq, int maxCats, double* out, int coding,
                                            int keepBaseline)
{
    return guarded("VB_BuildDisjunctiveTable", [&] { VB_BuildDisjunctiveTable(table, nRows, nCols, totalCats, nCats, categories, freq, maxCats, out, coding, keepBaseline); });
}

int vecmat_guarded_VB_M_IsDisjTable(double* table, int nRows, int nCols, short* mask, int* rowSum, short* returned)
{
    return guarded("VB_M_IsDisjTable", returned, [&] { return VB_M_IsDisjTable(table, nRows, nCols, mask, rowSum); });
}

int vecmat_guarded_Cpp_M_ConvertBinarytoDisjTable(double* table, int nRows, int nCols, double* out)
{
    return guarded("Cpp_M_ConvertBinarytoDisjTable", [&] { Cpp_M_ConvertBinarytoDisjTable(table, nRows, nCols, out); });
}

// ---- qualitative/recoding

int vecmat_guarded_VB_M_ReplaceCatByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories,
                                          double* out)
{
    return guarded("VB_M_ReplaceCatByCodes", [&] { VB_M_ReplaceCatByCodes(table, nRows, nCols, nCats, categories, out); });
}

int vecmat_guarded_VB_M_ReplaceStrByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories,
                                          short* mask, int firstCode, double* out)
{
    return guarded("VB_M_ReplaceStrByCodes", [&] { VB_M_ReplaceStrByCodes(table, nRows, nCols, nCats, categories, mask, firstCode, out); });
}

int vecmat_guarded_VB_M_Binarize(double* table, int nRows, int nCols, double* out)
{
    return guarded("VB_M_Binarize", [&] { VB_M_Binarize(table, nRows, nCols, out); });
}

int vecmat_guarded_VB_M_Binarize2(double* table, int nRows, int nCols)
{
    return guarded("VB_M_Binarize2", [&] { VB_M_Binarize2(table, nRows, nCols); });
}

int vecmat_guarded_VB_M_Binarize2SPV(SAFEARRAY** table, int nRows, int nCols)
{
    return guarded("VB_M_Binarize2SPV", [&] { VB_M_Binarize2SPV(table, nRows, nCols); });
}

int vecmat_guarded_Cpp_V_RecodeToBinary(wchar_t** x, int n, const wchar_t* value, int ignored, double* out)
{
    return guarded("Cpp_V_RecodeToBinary", [&] { Cpp_V_RecodeToBinary(x, n, value, ignored, out); });
}

// ---- qualitative/indicators

int vecmat_guarded_VB_V_Is01(double* x, int n, short* returned)
{
    return guarded("VB_V_Is01", returned, [&] { return VB_V_Is01(x, n); });
}

int vecmat_guarded_VB_V_IsWeights(double* x, int n, short* returned)
{
    return guarded("VB_V_IsWeights", returned, [&] { return VB_V_IsWeights(x, n); });
}

int vecmat_guarded_VB_V_IsCWeights(double* x, int n, short* returned)
{
    return guarded("VB_V_IsCWeights", returned, [&] { return VB_V_IsCWeights(x, n); });
}

int vecmat_guarded_VB_V_IsIndicator(double* x, int n, short* returned)
{
    return guarded("VB_V_IsIndicator", returned, [&] { return VB_V_IsIndicator(x, n); });
}

int vecmat_guarded_VB_V_IsIndicatorSPV(SAFEARRAY** x, int nRows, int nCols, short* returned)
{
    return guarded("VB_V_IsIndicatorSPV", returned, [&] { return VB_V_IsIndicatorSPV(x, nRows, nCols); });
}

// ---- qualitative/group_by

int vecmat_guarded_VB_M_GroupBy(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate,
                                int* nGroups, double* out)
{
    return guarded("VB_M_GroupBy", [&] { VB_M_GroupBy(data, nRows, nCols, colTypes, keyCol, aggregate, nGroups, out); });
}

int vecmat_guarded_VB_M_GroupByW(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate,
                                 int* nGroups, double* out, double* weights)
{
    return guarded("VB_M_GroupByW", [&] { VB_M_GroupByW(data, nRows, nCols, colTypes, keyCol, aggregate, nGroups, out, weights); });
}

// ---- qualitative/distinct

int vecmat_guarded_VB_M_Dedupe(double* data, int nRows, int nCols, int* nKept, double* out)
{
    return guarded("VB_M_Dedupe", [&] { VB_M_Dedupe(data, nRows, nCols, nKept, out); });
}

int vecmat_guarded_VB_V_ExtractDistinct(double* x, int n, double* distinct, int* count)
{
    return guarded("VB_V_ExtractDistinct", [&] { VB_V_ExtractDistinct(x, n, distinct, count); });
}

int vecmat_guarded_VB_V_NbDistinct(double* x, int n, int* returned)
{
    return guarded("VB_V_NbDistinct", returned, [&] { return VB_V_NbDistinct(x, n); });
}

int vecmat_guarded_VB_V_NbDistinctLng(int* x, int n, int* returned)
{
    return guarded("VB_V_NbDistinctLng", returned, [&] { return VB_V_NbDistinctLng(x, n); });
}

int vecmat_guarded_Cpp_V_NbDistinctStr(wchar_t** x, int n, int* returned)
{
    return guarded("Cpp_V_NbDistinctStr", returned, [&] { return Cpp_V_NbDistinctStr(x, n); });
}

// ---- qualitative/labels

int vecmat_guarded_VB_V_ReplaceDoubles(wchar_t** x, int n)
{
    return guarded("VB_V_ReplaceDoubles", [&] { VB_V_ReplaceDoubles(x, n); });
}

int vecmat_guarded_Cpp_M_MergeStringsByRow(wchar_t** table, int nRows, int nCols, const void* separator, wchar_t** out)
{
    return guarded("Cpp_M_MergeStringsByRow", [&] { Cpp_M_MergeStringsByRow(table, nRows, nCols, separator, out); });
}

// ---- descriptive/covariance_with_moments

int vecmat_guarded_INDEX3(int i, int j, int* returned)
{
    return guarded("INDEX3", returned, [&] { return INDEX3(i, j); });
}

int vecmat_guarded_VB_M_CovCorrAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev,
                                               double* var, short corr, short* mask, double* w, short sample,
                                               short freqWeights, short center, short reduce, int* returned)
{
    return guarded("VB_M_CovCorrAndMeanStDevVar", returned, [&] { return VB_M_CovCorrAndMeanStDevVar(X, n, p, C, mean, stdev, var, corr, mask, w, sample, freqWeights, center, reduce); });
}

int vecmat_guarded_VB_M_CovCorrVAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev,
                                                double* var, short corr, short* mask, double* w, short sample,
                                                short freqWeights, short center, short reduce, int* returned)
{
    return guarded("VB_M_CovCorrVAndMeanStDevVar", returned, [&] { return VB_M_CovCorrVAndMeanStDevVar(X, n, p, C, mean, stdev, var, corr, mask, w, sample, freqWeights, center, reduce); });
}

// ---- descriptive/covariance

int vecmat_guarded_VB_M_CovCorr(double* X, int n, int p, double* C, short corr, short* mask, double* w, short sample,
                                short freqWeights, int* returned)
{
    return guarded("VB_M_CovCorr", returned, [&] { return VB_M_CovCorr(X, n, p, C, corr, mask, w, sample, freqWeights); });
}

// ---- descriptive/cross_correlation

int vecmat_guarded_VB_M_CorrMatMat(double* X, int n, int p, double* Y, int q, double* C, short* mask, double* w,
                                   short corr, short square, short sample, short freqWeights, int* returned)
{
    return guarded("VB_M_CorrMatMat", returned, [&] { return VB_M_CorrMatMat(X, n, p, Y, q, C, mask, w, corr, square, sample, freqWeights); });
}

int vecmat_guarded_VB_M_CorrMatMatSPV(SAFEARRAY** X, int n, int p, double* Y, int q, double* C, short* mask, double* w,
                                      short corr, short square, short sample, short freqWeights, int* returned)
{
    return guarded("VB_M_CorrMatMatSPV", returned, [&] { return VB_M_CorrMatMatSPV(X, n, p, Y, q, C, mask, w, corr, square, sample, freqWeights); });
}

int vecmat_guarded_VB_CorrelPearson(double* x, double* y, int n, short* mask, double* w, short sample,
                                    short freqWeights, double* returned)
{
    return guarded("VB_CorrelPearson", returned, [&] { return VB_CorrelPearson(x, y, n, mask, w, sample, freqWeights); });
}

// ---- descriptive/correlation_of_covariance

int vecmat_guarded_VB_M_CorrMatFromCovMat(double* S, int p, double* R, int* returned)
{
    return guarded("VB_M_CorrMatFromCovMat", returned, [&] { return VB_M_CorrMatFromCovMat(S, p, R); });
}

int vecmat_guarded_Cpp_M_CorrMatFromCovMatSPV2_T(SAFEARRAY** C, int p, int* returned)
{
    return guarded("Cpp_M_CorrMatFromCovMatSPV2_T", returned, [&] { return Cpp_M_CorrMatFromCovMatSPV2_T(C, p); });
}

// ---- descriptive/triangular_fit

int vecmat_guarded_TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b)
{
    return guarded("TriangularQFindAB", [&] { TriangularQFindAB(x1, m, x2, prob1, prob2, a, b); });
}

int vecmat_guarded_TriangularFunc(double b, double x1, double m, double x2, double prob1, double prob2,
                                  double* returned)
{
    return guarded("TriangularFunc", returned, [&] { return TriangularFunc(b, x1, m, x2, prob1, prob2); });
}

int vecmat_guarded_TriangularFuncDeriv(double b, double x1, double m, double x2, double prob1, double prob2,
                                       double* returned)
{
    return guarded("TriangularFuncDeriv", returned, [&] { return TriangularFuncDeriv(b, x1, m, x2, prob1, prob2); });
}

int vecmat_guarded_TriangularFunc2(double a, double x1, double m, double x2, double prob1, double prob2,
                                   double* returned)
{
    return guarded("TriangularFunc2", returned, [&] { return TriangularFunc2(a, x1, m, x2, prob1, prob2); });
}

int vecmat_guarded_Cpp_TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a,
                                         double* b)
{
    return guarded("Cpp_TriangularQFindAB", [&] { Cpp_TriangularQFindAB(x1, m, x2, prob1, prob2, a, b); });
}

// ---- descriptive/forecast_errors

int vecmat_guarded_VB_MAPE(double* y, double* f, int n, double* w, int first, double* returned)
{
    return guarded("VB_MAPE", returned, [&] { return VB_MAPE(y, f, n, w, first); });
}

int vecmat_guarded_VB_MPE(double* y, double* f, int n, double* w, int first, double* returned)
{
    return guarded("VB_MPE", returned, [&] { return VB_MPE(y, f, n, w, first); });
}

int vecmat_guarded_VB_MAE(double* y, double* f, int n, double* w, int first, double* returned)
{
    return guarded("VB_MAE", returned, [&] { return VB_MAE(y, f, n, w, first); });
}

int vecmat_guarded_VB_RMSE(double* Y, int n, int p, double* F, int divisor, double* returned)
{
    return guarded("VB_RMSE", returned, [&] { return VB_RMSE(Y, n, p, F, divisor); });
}

// ---- descriptive/means

int vecmat_guarded_VB_V_Mean(double* v, int n, short* mask, double* w, double* returned)
{
    return guarded("VB_V_Mean", returned, [&] { return VB_V_Mean(v, n, mask, w); });
}

int vecmat_guarded_VB_V_Mean2(double* v, int n, double* returned)
{
    return guarded("VB_V_Mean2", returned, [&] { return VB_V_Mean2(v, n); });
}

int vecmat_guarded_VB_V_MeanAbs(double* v, int n, short* mask, double* w, double* returned)
{
    return guarded("VB_V_MeanAbs", returned, [&] { return VB_V_MeanAbs(v, n, mask, w); });
}

int vecmat_guarded_VB_M_Mean(double* X, int n, int p, double* mean, int ignored, double* w, int* returned)
{
    return guarded("VB_M_Mean", returned, [&] { return VB_M_Mean(X, n, p, mean, ignored, w); });
}

int vecmat_guarded_Cpp_V_GMeanGSD(double* v, int n, short* mask, double* w, double* gmean, double* gsd)
{
    return guarded("Cpp_V_GMeanGSD", [&] { Cpp_V_GMeanGSD(v, n, mask, w, gmean, gsd); });
}

int vecmat_guarded_Cpp_V_HarmonicMean(double* v, int n, short* mask, double* w, double* returned)
{
    return guarded("Cpp_V_HarmonicMean", returned, [&] { return Cpp_V_HarmonicMean(v, n, mask, w); });
}

int vecmat_guarded_Cpp_M_Mean2(double* X, int n, int p, double* w, double* mean, int* returned)
{
    return guarded("Cpp_M_Mean2", returned, [&] { return Cpp_M_Mean2(X, n, p, w, mean); });
}

int vecmat_guarded_Cpp_M_Mean3(double* X, int n, int p, double* mean, int* returned)
{
    return guarded("Cpp_M_Mean3", returned, [&] { return Cpp_M_Mean3(X, n, p, mean); });
}

// ---- descriptive/moments

int vecmat_guarded_VB_V_Var(double* v, int n, short* mask, double* w, short sample, short freqWeights, double* returned)
{
    return guarded("VB_V_Var", returned, [&] { return VB_V_Var(v, n, mask, w, sample, freqWeights); });
}

int vecmat_guarded_VB_V_Stdev(double* v, int n, short* mask, double* w, short sample, short freqWeights,
                              double* returned)
{
    return guarded("VB_V_Stdev", returned, [&] { return VB_V_Stdev(v, n, mask, w, sample, freqWeights); });
}

int vecmat_guarded_VB_V_MeanVar(double* v, int n, double* mean, double* var, short* mask, double* w, short sample,
                                short freqWeights)
{
    return guarded("VB_V_MeanVar", [&] { VB_V_MeanVar(v, n, mean, var, mask, w, sample, freqWeights); });
}

int vecmat_guarded_VB_V_MeanStdev(double* v, int n, double* mean, double* stdev, short* mask, double* w, short sample,
                                  short freqWeights)
{
    return guarded("VB_V_MeanStdev", [&] { VB_V_MeanStdev(v, n, mean, stdev, mask, w, sample, freqWeights); });
}

int vecmat_guarded_VB_M_MeanStDev(double* X, int n, int p, double* mean, double* stdev, short* mask, double* w,
                                  short sample, short freqWeights, short ignoreMask, int* returned)
{
    return guarded("VB_M_MeanStDev", returned, [&] { return VB_M_MeanStDev(X, n, p, mean, stdev, mask, w, sample, freqWeights, ignoreMask); });
}

int vecmat_guarded_VB_M_MeanStDevByRow(double* X, int n, int p, double* mean, double* stdev, double* w, short sample,
                                       short freqWeights, int* returned)
{
    return guarded("VB_M_MeanStDevByRow", returned, [&] { return VB_M_MeanStDevByRow(X, n, p, mean, stdev, w, sample, freqWeights); });
}

int vecmat_guarded_VB_M_MeanStDevVar(double* X, int n, int p, double* mean, double* stdev, double* var, short* mask,
                                     double* w, short sample, short freqWeights, int* returned)
{
    return guarded("VB_M_MeanStDevVar", returned, [&] { return VB_M_MeanStDevVar(X, n, p, mean, stdev, var, mask, w, sample, freqWeights); });
}

int vecmat_guarded_Cpp_V_Var2(double* v, int n, short sample, short freqWeights, double* returned)
{
    return guarded("Cpp_V_Var2", returned, [&] { return Cpp_V_Var2(v, n, sample, freqWeights); });
}

// ---- descriptive/shape_moments

int vecmat_guarded_VB_V_MeanVarSkewPKurtP(double* v, int n, double* mean, double* var, double* skewP, double* kurtP,
                                          double* skewS, double* kurtS, double* seSkew, double* seKurt, short* mask,
                                          double* w, short sample, short freqWeights)
{
    return guarded("VB_V_MeanVarSkewPKurtP", [&] { VB_V_MeanVarSkewPKurtP(v, n, mean, var, skewP, kurtP, skewS, kurtS, seSkew, seKurt, mask, w, sample, freqWeights); });
}

// ---- descriptive/conditional_moments

int vecmat_guarded_VB_V_MeanIf(double* v, int n, double* g, double value, double* returned)
{
    return guarded("VB_V_MeanIf", returned, [&] { return VB_V_MeanIf(v, n, g, value); });
}

int vecmat_guarded_VB_V_MeanIfW(double* v, int n, double* g, double* w, double value, double* returned)
{
    return guarded("VB_V_MeanIfW", returned, [&] { return VB_V_MeanIfW(v, n, g, w, value); });
}

int vecmat_guarded_VB_V_VarIf(double* v, int n, double* g, double value, short sample, double* returned)
{
    return guarded("VB_V_VarIf", returned, [&] { return VB_V_VarIf(v, n, g, value, sample); });
}

int vecmat_guarded_VB_V_VarIfW(double* v, int n, double* g, double* w, double value, short sample, double* returned)
{
    return guarded("VB_V_VarIfW", returned, [&] { return VB_V_VarIfW(v, n, g, w, value, sample); });
}

// ---- descriptive/quantiles

int vecmat_guarded_VB_V_Quantile(double* x, int n, double p, double* returned)
{
    return guarded("VB_V_Quantile", returned, [&] { return VB_V_Quantile(x, n, p); });
}

int vecmat_guarded_VB_V_QuantileW(double* v, int n, double* w, double p, double* returned)
{
    return guarded("VB_V_QuantileW", returned, [&] { return VB_V_QuantileW(v, n, w, p); });
}

int vecmat_guarded_VB_V_QuantileM(double* v, int n, short* mask, double p, double* returned)
{
    return guarded("VB_V_QuantileM", returned, [&] { return VB_V_QuantileM(v, n, mask, p); });
}

int vecmat_guarded_VB_V_QuantileMW(double* v, int n, short* mask, double* w, double p, double* returned)
{
    return guarded("VB_V_QuantileMW", returned, [&] { return VB_V_QuantileMW(v, n, mask, w, p); });
}

int vecmat_guarded_Cpp_V_Quantiles13(double* x, int n, double* out)
{
    return guarded("Cpp_V_Quantiles13", [&] { Cpp_V_Quantiles13(x, n, out); });
}

// ---- descriptive/robust_statistics

int vecmat_guarded_Cpp_V_MedianAbsDev(double* v, int n, double centre, short* mask, double* w, double* returned)
{
    return guarded("Cpp_V_MedianAbsDev", returned, [&] { return Cpp_V_MedianAbsDev(v, n, centre, mask, w); });
}

int vecmat_guarded_Cpp_V_MeanAbsDev(double* v, int n, double centre, short* mask, double* w, double* returned)
{
    return guarded("Cpp_V_MeanAbsDev", returned, [&] { return Cpp_V_MeanAbsDev(v, n, centre, mask, w); });
}

int vecmat_guarded_Cpp_V_MedianAbsDev2(double* v, int n, double* centre, double* returned)
{
    return guarded("Cpp_V_MedianAbsDev2", returned, [&] { return Cpp_V_MedianAbsDev2(v, n, centre); });
}

int vecmat_guarded_Cpp_V_MeanStdev2(double* v, int n, short sample, double* mean, double* stdev)
{
    return guarded("Cpp_V_MeanStdev2", [&] { Cpp_V_MeanStdev2(v, n, sample, mean, stdev); });
}

int vecmat_guarded_Cpp_V_Winsorize2(double* v, int n, double pLow, double pHigh)
{
    return guarded("Cpp_V_Winsorize2", [&] { Cpp_V_Winsorize2(v, n, pLow, pHigh); });
}

int vecmat_guarded_Cpp_V_ZScores(double* v, int n, int kind, double* mean, double* stdev, double* out)
{
    return guarded("Cpp_V_ZScores", [&] { Cpp_V_ZScores(v, n, kind, mean, stdev, out); });
}

// ---- descriptive/column_scaling

int vecmat_guarded_VB_M_Center(double* X, int n, int p, double* Z)
{
    return guarded("VB_M_Center", [&] { VB_M_Center(X, n, p, Z); });
}

int vecmat_guarded_VB_M_CenterW(double* X, int n, int p, double* w, double* Z)
{
    return guarded("VB_M_CenterW", [&] { VB_M_CenterW(X, n, p, w, Z); });
}

int vecmat_guarded_VB_M_Center2(double* X, int n, int p)
{
    return guarded("VB_M_Center2", [&] { VB_M_Center2(X, n, p); });
}

int vecmat_guarded_VB_M_Center2SPV(SAFEARRAY** X, int n, int p)
{
    return guarded("VB_M_Center2SPV", [&] { VB_M_Center2SPV(X, n, p); });
}

int vecmat_guarded_VB_M_CenterW2(double* X, int n, int p, double* w)
{
    return guarded("VB_M_CenterW2", [&] { VB_M_CenterW2(X, n, p, w); });
}

int vecmat_guarded_VB_M_Reduce(double* X, int n, int p, double* Z, short sample, short freqWeights)
{
    return guarded("VB_M_Reduce", [&] { VB_M_Reduce(X, n, p, Z, sample, freqWeights); });
}

int vecmat_guarded_VB_M_ReduceW(double* X, int n, int p, double* w, double* Z, short sample, short freqWeights)
{
    return guarded("VB_M_ReduceW", [&] { VB_M_ReduceW(X, n, p, w, Z, sample, freqWeights); });
}

int vecmat_guarded_VB_M_Reduce2(double* X, int n, int p, short sample)
{
    return guarded("VB_M_Reduce2", [&] { VB_M_Reduce2(X, n, p, sample); });
}

int vecmat_guarded_VB_M_ReduceW2(double* X, int n, int p, double* w, short sample, short freqWeights)
{
    return guarded("VB_M_ReduceW2", [&] { VB_M_ReduceW2(X, n, p, w, sample, freqWeights); });
}

int vecmat_guarded_VB_M_Standardize2(double* X, int n, int p, short sample)
{
    return guarded("VB_M_Standardize2", [&] { VB_M_Standardize2(X, n, p, sample); });
}

int vecmat_guarded_VB_M_Standardize2SPV(SAFEARRAY** X, int n, int p, short sample)
{
    return guarded("VB_M_Standardize2SPV", [&] { VB_M_Standardize2SPV(X, n, p, sample); });
}

int vecmat_guarded_VB_M_Standardize3(double* X, int n, int p, double* mean, double* stdev, short sample,
                                     short freqWeights)
{
    return guarded("VB_M_Standardize3", [&] { VB_M_Standardize3(X, n, p, mean, stdev, sample, freqWeights); });
}

int vecmat_guarded_VB_M_StandardizeW2(double* X, int n, int p, double* w, short sample, short freqWeights)
{
    return guarded("VB_M_StandardizeW2", [&] { VB_M_StandardizeW2(X, n, p, w, sample, freqWeights); });
}

int vecmat_guarded_VB_M_StandardizeW3(double* X, int n, int p, double* w, double* mean, double* stdev, short sample,
                                      short freqWeights)
{
    return guarded("VB_M_StandardizeW3", [&] { VB_M_StandardizeW3(X, n, p, w, mean, stdev, sample, freqWeights); });
}

int vecmat_guarded_Cpp_M_StandardizeApply2(double* X, int n, int p, double* mean, double* stdev)
{
    return guarded("Cpp_M_StandardizeApply2", [&] { Cpp_M_StandardizeApply2(X, n, p, mean, stdev); });
}

int vecmat_guarded_Cpp_M_StandardizeByGroup(double* X, int n, int p, double* g, int nGroups, short reduce, short sample)
{
    return guarded("Cpp_M_StandardizeByGroup", [&] { Cpp_M_StandardizeByGroup(X, n, p, g, nGroups, reduce, sample); });
}

// ---- descriptive/standardisation

int vecmat_guarded_VB_M_Standardize(double* X, int n, int p, double* Z, double* mean, double* stdev, double* var,
                                    short* mask, double* w, short sample, short freqWeights)
{
    return guarded("VB_M_Standardize", [&] { VB_M_Standardize(X, n, p, Z, mean, stdev, var, mask, w, sample, freqWeights); });
}

int vecmat_guarded_VB_M_StandardizeW(double* X, int n, int p, double* w, short sample, short freqWeights, double* Z)
{
    return guarded("VB_M_StandardizeW", [&] { VB_M_StandardizeW(X, n, p, w, sample, freqWeights, Z); });
}

int vecmat_guarded_VB_M_StandardizeKnownMeansStDev(double* X, int n, int p, double* mean, double* Z, double* stdev,
                                                   double* var, short* mask)
{
    return guarded("VB_M_StandardizeKnownMeansStDev", [&] { VB_M_StandardizeKnownMeansStDev(X, n, p, mean, Z, stdev, var, mask); });
}

int vecmat_guarded_VB_M_StandardizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV)
{
    return guarded("VB_M_StandardizeMatrix", [&] { VB_M_StandardizeMatrix(X, n, p, Y, nY, V, nV); });
}

int vecmat_guarded_Cpp_M_SubstractFirstCol2(double* X, int n, int p)
{
    return guarded("Cpp_M_SubstractFirstCol2", [&] { Cpp_M_SubstractFirstCol2(X, n, p); });
}

int vecmat_guarded_VB_V_Standardize(double* x, int n, short* mask, double* w, short sample, double* z)
{
    return guarded("VB_V_Standardize", [&] { VB_V_Standardize(x, n, mask, w, sample, z); });
}

int vecmat_guarded_VB_V_Standardize2(double* x, int n, short* mask, double* w, short sample)
{
    return guarded("VB_V_Standardize2", [&] { VB_V_Standardize2(x, n, mask, w, sample); });
}

int vecmat_guarded_VB_M_StandardizeByVect(double* X, int n, int p, short* a, double* w, short sample, double* Z)
{
    return guarded("VB_M_StandardizeByVect", [&] { VB_M_StandardizeByVect(X, n, p, a, w, sample, Z); });
}

int vecmat_guarded_VB_M_StandardizeByVect2(double* X, int n, int p, short* a, double* w, short sample)
{
    return guarded("VB_M_StandardizeByVect2", [&] { VB_M_StandardizeByVect2(X, n, p, a, w, sample); });
}

// ---- descriptive/rescaling

int vecmat_guarded_VB_M_Normalize(double* X, int n, int p, double* norms, short* mask, double* w)
{
    return guarded("VB_M_Normalize", [&] { VB_M_Normalize(X, n, p, norms, mask, w); });
}

int vecmat_guarded_VB_M_NormalizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV)
{
    return guarded("VB_M_NormalizeMatrix", [&] { VB_M_NormalizeMatrix(X, n, p, Y, nY, V, nV); });
}

int vecmat_guarded_VB_V_Rescale(double* v, int n, double low, double high, short* mask, double* out)
{
    return guarded("VB_V_Rescale", [&] { VB_V_Rescale(v, n, low, high, mask, out); });
}

int vecmat_guarded_VB_V_Rescale2(double* x, int n, double low, double high, short* mask)
{
    return guarded("VB_V_Rescale2", [&] { VB_V_Rescale2(x, n, low, high, mask); });
}

int vecmat_guarded_VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a, double* Z)
{
    return guarded("VB_M_RescaleByVect", [&] { VB_M_RescaleByVect(X, n, p, low, high, a, Z); });
}

int vecmat_guarded_VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a)
{
    return guarded("VB_M_RescaleByVect2", [&] { VB_M_RescaleByVect2(X, n, p, low, high, a); });
}

// ---- randomisation/kronecker_product

int vecmat_guarded_Cpp_KroneckerTensorProduct(double* A, int m, int n, double* B, int p, int q, double* C, int rowsC,
                                              int colsC)
{
    return guarded("Cpp_KroneckerTensorProduct", [&] { Cpp_KroneckerTensorProduct(A, m, n, B, p, q, C, rowsC, colsC); });
}

// ---- randomisation/contingency_tables

int vecmat_guarded_Cpp_CheckForMarginalSums(double* T, int n, int p, double* R, int* rowsLeft, int* colsLeft,
                                            int* zeroRows, int* zeroCols)
{
    return guarded("Cpp_CheckForMarginalSums", [&] { Cpp_CheckForMarginalSums(T, n, p, R, rowsLeft, colsLeft, zeroRows, zeroCols); });
}

// ---- randomisation/letter_groups

int vecmat_guarded_Cpp_GetCompMatrices(double* X, int n, int col, int* comp, short keepOrder, int* order,
                                       wchar_t** labels, int* nGroups)
{
    return guarded("Cpp_GetCompMatrices", [&] { Cpp_GetCompMatrices(X, n, col, comp, keepOrder, order, labels, nGroups); });
}

// ---- randomisation/permutations

int vecmat_guarded_GenerateRandom01(int* seed, short seedFlag, int* seedOut, double* returned)
{
    return guarded("GenerateRandom01", returned, [&] { return GenerateRandom01(seed, seedFlag, seedOut); });
}

int vecmat_guarded_Cpp_V_Shuffle(double* v, int n, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_V_Shuffle", [&] { Cpp_V_Shuffle(v, n, seed, seedFlag, seedOut); });
}

int vecmat_guarded_Cpp_V_ShuffleLng(int* v, int n, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_V_ShuffleLng", [&] { Cpp_V_ShuffleLng(v, n, seed, seedFlag, seedOut); });
}

int vecmat_guarded_Cpp_M_ShuffleDbl(double* X, int n, int p, double* Z, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_M_ShuffleDbl", [&] { Cpp_M_ShuffleDbl(X, n, p, Z, seed, seedFlag, seedOut); });
}

int vecmat_guarded_Cpp_M_ShuffleDbl2(double* X, int n, int p, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_M_ShuffleDbl2", [&] { Cpp_M_ShuffleDbl2(X, n, p, seed, seedFlag, seedOut); });
}

int vecmat_guarded_Cpp_M_ShuffleStr(wchar_t** X, int n, int p, wchar_t** Z, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_M_ShuffleStr", [&] { Cpp_M_ShuffleStr(X, n, p, Z, seed, seedFlag, seedOut); });
}

int vecmat_guarded_Cpp_M_ShuffleStr2(wchar_t** X, int n, int p, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_M_ShuffleStr2", [&] { Cpp_M_ShuffleStr2(X, n, p, seed, seedFlag, seedOut); });
}

int vecmat_guarded_Cpp_Random1toNLng(int n, int* out, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_Random1toNLng", [&] { Cpp_Random1toNLng(n, out, seed, seedFlag, seedOut); });
}

int vecmat_guarded_Cpp_Random1toNDbl(int n, double* out, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_Random1toNDbl", [&] { Cpp_Random1toNDbl(n, out, seed, seedFlag, seedOut); });
}

int vecmat_guarded_VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short seedFlag, int* seedOut)
{
    return guarded("VB_GenerateRandomIndicator", [&] { VB_GenerateRandomIndicator(out, n, k, seed, seedFlag, seedOut); });
}

int vecmat_guarded_VB_GenerateIndicator(double* out, int n, int first, int last)
{
    return guarded("VB_GenerateIndicator", [&] { VB_GenerateIndicator(out, n, first, last); });
}

// ---- randomisation/column_addresses

int vecmat_guarded_SimplifyRange(const void* input, wchar_t** returned)
{
    return guarded("SimplifyRange", returned, [&] { return SimplifyRange(input); });
}

int vecmat_guarded_Increase1Col(const void* letters, wchar_t** returned)
{
    return guarded("Increase1Col", returned, [&] { return Increase1Col(letters); });
}

// ---- randomisation/sampling_with_repeats

int vecmat_guarded_VB_M_SamplingWithReplacement(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                                short seedFlag, int* seedOut)
{
    return guarded("VB_M_SamplingWithReplacement", [&] { VB_M_SamplingWithReplacement(S, N, p, n, Z, ids, seed, seedFlag, seedOut); });
}

int vecmat_guarded_VB_M_SamplingWithReplacementSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids,
                                                   int* seed, short seedFlag, int* seedOut)
{
    return guarded("VB_M_SamplingWithReplacementSPV", [&] { VB_M_SamplingWithReplacementSPV(S, N, p, n, Z, ids, seed, seedFlag, seedOut); });
}

int vecmat_guarded_VB_M_SampleUserDefined(wchar_t** S, int N, int p, wchar_t** Z, double* freq, double* ids)
{
    return guarded("VB_M_SampleUserDefined", [&] { VB_M_SampleUserDefined(S, N, p, Z, freq, ids); });
}

int vecmat_guarded_VB_M_SampleUserDefinedSPV(SAFEARRAY** S, int N, int p, SAFEARRAY** Z, double* freq, double* ids)
{
    return guarded("VB_M_SampleUserDefinedSPV", [&] { VB_M_SampleUserDefinedSPV(S, N, p, Z, freq, ids); });
}

// ---- randomisation/interval_sampling

int vecmat_guarded_VB_M_SamplingSystematicRdStart(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                                  short seedFlag, int* seedOut)
{
    return guarded("VB_M_SamplingSystematicRdStart", [&] { VB_M_SamplingSystematicRdStart(S, N, p, n, Z, ids, seed, seedFlag, seedOut); });
}

int vecmat_guarded_VB_M_SamplingSystematicRdStartSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids,
                                                     int* seed, short seedFlag, int* seedOut)
{
    return guarded("VB_M_SamplingSystematicRdStartSPV", [&] { VB_M_SamplingSystematicRdStartSPV(S, N, p, n, Z, ids, seed, seedFlag, seedOut); });
}

int vecmat_guarded_VB_M_SamplingSystematicCentered(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids)
{
    return guarded("VB_M_SamplingSystematicCentered", [&] { VB_M_SamplingSystematicCentered(S, N, p, n, Z, ids); });
}

int vecmat_guarded_VB_M_SamplingSystematicCenteredSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids)
{
    return guarded("VB_M_SamplingSystematicCenteredSPV", [&] { VB_M_SamplingSystematicCenteredSPV(S, N, p, n, Z, ids); });
}

int vecmat_guarded_VB_M_SamplingRandomStratified(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                                 short seedFlag, int* seedOut)
{
    return guarded("VB_M_SamplingRandomStratified", [&] { VB_M_SamplingRandomStratified(S, N, p, n, Z, ids, seed, seedFlag, seedOut); });
}

int vecmat_guarded_VB_M_SamplingRandomStratifiedSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids,
                                                    int* seed, short seedFlag, int* seedOut)
{
    return guarded("VB_M_SamplingRandomStratifiedSPV", [&] { VB_M_SamplingRandomStratifiedSPV(S, N, p, n, Z, ids, seed, seedFlag, seedOut); });
}

// ---- randomisation/stratified_sampling

int vecmat_guarded_Cpp_M_SamplingRandomStratifiedByStr(wchar_t** S, int N, int p, int n, wchar_t** Z, double* rowIds,
                                                       double* outIds, double* strata, double* quota, double* sizes,
                                                       int nStrata, int* seed, short seedFlag, int* seedOut)
{
    return guarded("Cpp_M_SamplingRandomStratifiedByStr", [&] { Cpp_M_SamplingRandomStratifiedByStr(S, N, p, n, Z, rowIds, outIds, strata, quota, sizes, nStrata, seed, seedFlag, seedOut); });
}

int vecmat_guarded_VB_M_SamplingRandomStratifiedByStrSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z,
                                                         double* rowIds, double* outIds, double* strata, double* quota,
                                                         double* sizes, int nStrata, int* seed, short seedFlag,
                                                         int* seedOut)
{
    return guarded("VB_M_SamplingRandomStratifiedByStrSPV", [&] { VB_M_SamplingRandomStratifiedByStrSPV(S, N, p, n, Z, rowIds, outIds, strata, quota, sizes, nStrata, seed, seedFlag, seedOut); });
}

// ---- decompositions/eigen

int vecmat_guarded_VB_M_Eigen(double* a, double* values, double* vectors, int n, short sort, int* returned)
{
    return guarded("VB_M_Eigen", returned, [&] { return VB_M_Eigen(a, values, vectors, n, sort); });
}

int vecmat_guarded_Cpp_M_Norm2(double* a, int rows, int cols, double* returned)
{
    return guarded("Cpp_M_Norm2", returned, [&] { return Cpp_M_Norm2(a, rows, cols); });
}

// ---- decompositions/axis_selection

int vecmat_guarded_VB_FilterEigen(double* eig, int n, short drop, double floor, double cumPercent, int maxCount,
                                  double minValue, int* kept, int* selected, double* percent)
{
    return guarded("VB_FilterEigen", [&] { VB_FilterEigen(eig, n, drop, floor, cumPercent, maxCount, minValue, kept, selected, percent); });
}

int vecmat_guarded_Cpp_FilterOnSumOfSquares(double* data, int rows, int cols, int colA, int colB, double threshold,
                                            double* flags)
{
    return guarded("Cpp_FilterOnSumOfSquares", [&] { Cpp_FilterOnSumOfSquares(data, rows, cols, colA, colB, threshold, flags); });
}

// ---- decompositions/lu

int vecmat_guarded_VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status, int* returned)
{
    return guarded("VB_M_LUDecomp", returned, [&] { return VB_M_LUDecomp(a, n, index, d, status); });
}

// ---- decompositions/determinants

int vecmat_guarded_VB_M_Determinant(double* a, int n, short* status, double* returned)
{
    return guarded("VB_M_Determinant", returned, [&] { return VB_M_Determinant(a, n, status); });
}

int vecmat_guarded_Cpp_M_LogDeterminant(double* a, int n, double* returned)
{
    return guarded("Cpp_M_LogDeterminant", returned, [&] { return Cpp_M_LogDeterminant(a, n); });
}

int vecmat_guarded_VB_M_DeterminantTriang(double* a, int n, short* status, double* returned)
{
    return guarded("VB_M_DeterminantTriang", returned, [&] { return VB_M_DeterminantTriang(a, n, status); });
}

// ---- decompositions/cholesky

int vecmat_guarded_VB_M_CholDecomp(double* a, int n, double* l, int* returned)
{
    return guarded("VB_M_CholDecomp", returned, [&] { return VB_M_CholDecomp(a, n, l); });
}

int vecmat_guarded_VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short keep, int* returned)
{
    return guarded("VB_M_CholDecompPrinc", returned, [&] { return VB_M_CholDecompPrinc(a, n, l, perm, keep); });
}

int vecmat_guarded_VB_M_CholDecompCleaned(double* a, int n, int* mask, double* l, int* returned)
{
    return guarded("VB_M_CholDecompCleaned", returned, [&] { return VB_M_CholDecompCleaned(a, n, mask, l); });
}

// ---- decompositions/echelon_forms

int vecmat_guarded_Cpp_M_ForwardDoolittle(double* a, int n, double* out)
{
    return guarded("Cpp_M_ForwardDoolittle", [&] { Cpp_M_ForwardDoolittle(a, n, out); });
}

int vecmat_guarded_Cpp_M_HermiteCanonical(double* a, int n, double* h)
{
    return guarded("Cpp_M_HermiteCanonical", [&] { Cpp_M_HermiteCanonical(a, n, h); });
}

// ---- decompositions/square_root

int vecmat_guarded_Cpp_M_SquareRoot(double* a, int n, double* out, int* returned)
{
    return guarded("Cpp_M_SquareRoot", returned, [&] { return Cpp_M_SquareRoot(a, n, out); });
}

// ---- decompositions/generalised_inverses

int vecmat_guarded_VB_M_InvGeneralized(double* a, int n, double* out, double tol, int* rank, int* returned)
{
    return guarded("VB_M_InvGeneralized", returned, [&] { return VB_M_InvGeneralized(a, n, out, tol, rank); });
}

int vecmat_guarded_VB_M_InvGeneralizedSym(double* a, int n, double* out, double tol, int* rank, int* returned)
{
    return guarded("VB_M_InvGeneralizedSym", returned, [&] { return VB_M_InvGeneralizedSym(a, n, out, tol, rank); });
}

// ---- decompositions/g2_inverse

int vecmat_guarded_Cpp_M_InverseG2(double* a, int n, double tol, double* out)
{
    return guarded("Cpp_M_InverseG2", [&] { Cpp_M_InverseG2(a, n, tol, out); });
}

int vecmat_guarded_Cpp_M_InverseG2Selective(double* a, int n, int* select, double tol, double* out, short zeroOthers)
{
    return guarded("Cpp_M_InverseG2Selective", [&] { Cpp_M_InverseG2Selective(a, n, select, tol, out, zeroOthers); });
}

// ---- decompositions/constrained_inverses

int vecmat_guarded_CleanConstraintsAndInvert(int n, int* constraints, double* a, double* out, int* returned)
{
    return guarded("CleanConstraintsAndInvert", returned, [&] { return CleanConstraintsAndInvert(n, constraints, a, out); });
}

int vecmat_guarded_CleanConstraintsAndInvertTriang(int n, int* constraints, double* a, short lower, double* out,
                                                   int* returned)
{
    return guarded("CleanConstraintsAndInvertTriang", returned, [&] { return CleanConstraintsAndInvertTriang(n, constraints, a, lower, out); });
}

int vecmat_guarded_VB_M_DeterminantCleaned(double* a, int n, int* constraints, short* status, double* returned)
{
    return guarded("VB_M_DeterminantCleaned", returned, [&] { return VB_M_DeterminantCleaned(a, n, constraints, status); });
}

// ---- decompositions/inversion

int vecmat_guarded_VB_M_Inverse1(double* a, int n, double* out, double tol, int* returned)
{
    return guarded("VB_M_Inverse1", returned, [&] { return VB_M_Inverse1(a, n, out, tol); });
}

int vecmat_guarded_VB_M_InverseTriang(double* a, int n, short lower, double* out, double tol, int* returned)
{
    return guarded("VB_M_InverseTriang", returned, [&] { return VB_M_InverseTriang(a, n, lower, out, tol); });
}

// ---- decompositions/sweep

int vecmat_guarded_VB_M_Sweep(double* a, int n, int k, int* returned)
{
    return guarded("VB_M_Sweep", returned, [&] { return VB_M_Sweep(a, n, k); });
}

// ---- decompositions/inverse_products

int vecmat_guarded_VB_M_ProductTrAinvBA(double* a, int rows, int cols, double* b, double* out)
{
    return guarded("VB_M_ProductTrAinvBA", [&] { VB_M_ProductTrAinvBA(a, rows, cols, b, out); });
}

int vecmat_guarded_VB_M_ProductTrVinvBV(double* v, int n, double* b, double* returned)
{
    return guarded("VB_M_ProductTrVinvBV", returned, [&] { return VB_M_ProductTrVinvBV(v, n, b); });
}

int vecmat_guarded_VB_M_ProductAinvBTrA(double* a, int rows, int cols, double* b, double* out)
{
    return guarded("VB_M_ProductAinvBTrA", [&] { VB_M_ProductAinvBTrA(a, rows, cols, b, out); });
}

// ---- decompositions/nearest_correlation

int vecmat_guarded_Cpp_M_CorrMatFromSymMat(double* a, int n, int* returned)
{
    return guarded("Cpp_M_CorrMatFromSymMat", returned, [&] { return Cpp_M_CorrMatFromSymMat(a, n); });
}

int vecmat_guarded_Cpp_M_CorrMatFromSymMatSPV(SAFEARRAY** a, int n, int* returned)
{
    return guarded("Cpp_M_CorrMatFromSymMatSPV", returned, [&] { return Cpp_M_CorrMatFromSymMatSPV(a, n); });
}

int vecmat_guarded_Cpp_M_CorrMatFromSymMatSPV_T(SAFEARRAY** a, int n, int* returned)
{
    return guarded("Cpp_M_CorrMatFromSymMatSPV_T", returned, [&] { return Cpp_M_CorrMatFromSymMatSPV_T(a, n); });
}

int vecmat_guarded_Cpp_M_RowSumNorm(double* a, int rows, int cols, double* returned)
{
    return guarded("Cpp_M_RowSumNorm", returned, [&] { return Cpp_M_RowSumNorm(a, rows, cols); });
}

// ---- decompositions/correlation_order

int vecmat_guarded_Cpp_ReOrderCorrelations(double* R, int n, int mode, wchar_t** labels, double* second, int* third,
                                           int* returned)
{
    return guarded("Cpp_ReOrderCorrelations", returned, [&] { return Cpp_ReOrderCorrelations(R, n, mode, labels, second, third); });
}

// ---- decompositions/singular_values

int vecmat_guarded_VB_M_SVDecomp(double* x, int n, int p, double* s, double* u, int ldu, double* v, int ldv, int job,
                                 int* info, int* returned)
{
    return guarded("VB_M_SVDecomp", returned, [&] { return VB_M_SVDecomp(x, n, p, s, u, ldu, v, ldv, job, info); });
}

int vecmat_guarded_VB_M_SVDecompSPV(SAFEARRAY** x, int n, int p, double* s, SAFEARRAY** u, int ldu, SAFEARRAY** v,
                                    int ldv, int job, int* info, int* returned)
{
    return guarded("VB_M_SVDecompSPV", returned, [&] { return VB_M_SVDecompSPV(x, n, p, s, u, ldu, v, ldv, job, info); });
}

int vecmat_guarded_VB_M_Rank(double* a, int n, int p, int* returned)
{
    return guarded("VB_M_Rank", returned, [&] { return VB_M_Rank(a, n, p); });
}

// ---- decompositions/level1_routines

int vecmat_guarded_drotg(double* a, double* b, double* c, double* s)
{
    return guarded("drotg", [&] { drotg(a, b, c, s); });
}

// ---- fitting/biplots

int vecmat_guarded_VB_BiplotTransData(double* rows, double* sup, double* cols, int nA, int nB, int m, int k,
                                      double* eigen, double factor, double alpha, double* obs, double* var)
{
    return guarded("VB_BiplotTransData", [&] { VB_BiplotTransData(rows, sup, cols, nA, nB, m, k, eigen, factor, alpha, obs, var); });
}

int vecmat_guarded_VB_BiplotTransDataSPV(SAFEARRAY** rows, double* sup, SAFEARRAY** cols, int nA, int nB, int m,
                                         int storedAxes, int k, double* eigen, double factor, double alpha, double* obs,
                                         double* var)
{
    return guarded("VB_BiplotTransDataSPV", [&] { VB_BiplotTransDataSPV(rows, sup, cols, nA, nB, m, storedAxes, k, eigen, factor, alpha, obs, var); });
}

int vecmat_guarded_ComputeCosines(double* a, int n, int k, double* out)
{
    return guarded("ComputeCosines", [&] { ComputeCosines(a, n, k, out); });
}

int vecmat_guarded_Cpp_M_BoldCosines(int* best, int n, int* flags, int cols)
{
    return guarded("Cpp_M_BoldCosines", [&] { Cpp_M_BoldCosines(best, n, flags, cols); });
}

int vecmat_guarded_Cpp_M_GetMaxDistToOrigin(double* a, int n, int k, double* maxDistance, int* row)
{
    return guarded("Cpp_M_GetMaxDistToOrigin", [&] { Cpp_M_GetMaxDistToOrigin(a, n, k, maxDistance, row); });
}

// ---- fitting/least_squares

int vecmat_guarded_RunOLSBasic(int n, int p, double* X, double* y, double* w, int degree, short interactions,
                               short noIntercept, double tol, double* beta, double* fitted, int* returned)
{
    return guarded("RunOLSBasic", returned, [&] { return RunOLSBasic(n, p, X, y, w, degree, interactions, noIntercept, tol, beta, fitted); });
}

int vecmat_guarded_RunOLSBasic2(int n, int p, double* X, double* y, double* w, int degree, short interactions,
                                short noIntercept, double tol, double* beta, double* se, double* fitted, int* returned)
{
    return guarded("RunOLSBasic2", returned, [&] { return RunOLSBasic2(n, p, X, y, w, degree, interactions, noIntercept, tol, beta, se, fitted); });
}

int vecmat_guarded_RunOLSBasic3(int n, int p, double* X, double* y, double* w, int degree, short interactions,
                                short noIntercept, double tol, double* beta, double* se, double* fitted, double* swept,
                                double* mean, double* sd, int* returned)
{
    return guarded("RunOLSBasic3", returned, [&] { return RunOLSBasic3(n, p, X, y, w, degree, interactions, noIntercept, tol, beta, se, fitted, swept, mean, sd); });
}

// ---- fitting/least_squares_blocks

int vecmat_guarded_RunOLSBasic2Lg(int n, int p1, double* X1, int p2, double* X2, int p3, double* X3, int p4, double* X4,
                                  int p5, double* X5, double* y, double* w, int degree, short interactions,
                                  short noIntercept, double tol, double* beta, double* se, double* fitted,
                                  int* returned)
{
    return guarded("RunOLSBasic2Lg", returned, [&] { return RunOLSBasic2Lg(n, p1, X1, p2, X2, p3, X3, p4, X4, p5, X5, y, w, degree, interactions, noIntercept, tol, beta, se, fitted); });
}

// ---- fitting/tolerance_check

int vecmat_guarded_VB_CheckTolerance(double* corr, int p, int groupCount, int* selected, int ignored, int* group,
                                     double tol, short pairCheck, short keepGoing, short fromLast,
                                     short otherGroupsOnly, int* status, double* tolerance, double* vif)
{
    return guarded("VB_CheckTolerance", [&] { VB_CheckTolerance(corr, p, groupCount, selected, ignored, group, tol, pairCheck, keepGoing, fromLast, otherGroupsOnly, status, tolerance, vif); });
}

// ---- fitting/newton_raphson

int vecmat_guarded_NewtonRaphson(double* x, int n, int* constraints, double* g, double* H, double tol, double* se,
                                 double* Hinv, short limitStep, double maxStep, int* returned)
{
    return guarded("NewtonRaphson", returned, [&] { return NewtonRaphson(x, n, constraints, g, H, tol, se, Hinv, limitStep, maxStep); });
}

// ---- fitting/nipals

int vecmat_guarded_Cpp_NIPALS(int n, int p, double* X, double* w, double tol, int components, double maxColumnShare,
                              double maxTotalShare, int* returned)
{
    return guarded("Cpp_NIPALS", returned, [&] { return Cpp_NIPALS(n, p, X, w, tol, components, maxColumnShare, maxTotalShare); });
}
