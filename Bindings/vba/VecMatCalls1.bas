Attribute VB_Name = "VecMatCalls1"
Option Explicit

' Declarations of VecMat for macros: see the module VecMat, which this one needs. Written by tools/bindings.

#If Mac And VBA7 Then

' ---- frame/services ----

Public Declare PtrSafe Function TestMemory CDecl Lib "/usr/local/lib/libVecMat.dylib" () As Long
Public Declare PtrSafe Function TestAllocMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a1 As Long, ByVal a2 As Long, ByVal a3 As Long, ByVal a4 As Long, ByVal a5 As Long, _
    ByVal a6 As Long, ByVal a7 As Long, ByVal a8 As Long, ByVal a9 As Long, ByVal a10 As Long, _
    ByVal a11 As Long, ByVal a12 As Long, ByVal a13 As Long, ByVal a14 As Long, _
    ByVal a15 As Long, ByVal a16 As Long, ByVal a17 As Long, ByVal a18 As Long, _
    ByVal a19 As Long, ByVal a20 As Long) As Long
Public Declare PtrSafe Function GetStatusMemory CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal bytes As Long) As Long

' ---- frame/super_matrices ----

Public Declare PtrSafe Sub ProjVecToMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByRef dst As Double)

' ---- elementary/column_extremes ----

Public Declare PtrSafe Sub VB_M_MinMaxSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare PtrSafe Sub VB_M_MinMaxSPV_T CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare PtrSafe Sub VB_M_MinMax CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare PtrSafe Sub VB_M_Max CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_Min CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)

' ---- elementary/predicates ----

Public Declare PtrSafe Function VB_V_IsConstant CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal mode As Integer) As Integer
Public Declare PtrSafe Function VB_V_IsConstantLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByVal mode As Integer) As Integer
Public Declare PtrSafe Function V_IsConstantBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsConstantBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_M_IsColConstant CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Long
Public Declare PtrSafe Function VB_M_IsColConstantSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long
Public Declare PtrSafe Function VB_V_IsPositive CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal strict As Integer) As Integer
Public Declare PtrSafe Function VB_M_IsPositive CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef mask As Any, _
    ByVal strict As Integer) As Integer
Public Declare PtrSafe Function VB_M_IsLong CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Integer
Public Declare PtrSafe Function VB_M_IsDiagConstant CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_M_IsIn01 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Integer
Public Declare PtrSafe Function VB_M_IsInIntervalSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal lo As Double, _
    ByVal hi As Double, ByVal openArg As Integer, ByVal skipMissing As Integer) As Integer
Public Declare PtrSafe Function VB_V_IsInInterval CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByVal openArg As Integer, ByVal skipMissing As Integer) As Integer

' ---- elementary/symmetry ----

Public Declare PtrSafe Function VB_M_IsSymmetric CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_M_IsSymmetricSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal n As Long) As Integer
Public Declare PtrSafe Sub VB_M_Symmetrize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal mode As Long)
Public Declare PtrSafe Sub VB_M_SymmetrizeSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal mode As Long)
Public Declare PtrSafe Function VB_M_IsTriangular CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal fill As Integer) As Long
Public Declare PtrSafe Function VB_M_IsTriangularSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal fill As Integer) As Long
Public Declare PtrSafe Function VB_M_CheckIfSimOrDissim CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal kind As Long) As Long
Public Declare PtrSafe Function VB_M_CheckIfSimOrDissimSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal kind As Long) As Long
Public Declare PtrSafe Sub VB_M_TransformSimToDissim CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long)

' ---- elementary/packed_storage ----

Public Declare PtrSafe Sub V_GetPositionInMatNNm1o2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare PtrSafe Sub VB_V_GetPositionInMatNNm1o2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare PtrSafe Sub VB_V_GetPositionInMatNN CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)

' ---- elementary/matrix_products ----

Public Declare PtrSafe Function VB_M_ProductAB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long, ByRef b As Double, ByVal c2 As Long, _
    ByRef out As Double) As Long
Public Declare PtrSafe Function VB_M_ProductBV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef b As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double) As Long
Public Declare PtrSafe Sub VB_M_ProductVB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal rows As Long, ByRef b As Double, ByVal cols As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrAB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductATrB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrAA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductATrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductABTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrABA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare PtrSafe Function VB_M_ProductTrVBV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare PtrSafe Function VB_M_ProductTrV1BV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef va As Double, ByVal n As Long, ByRef b As Double, ByRef vb As Double) As Double
Public Declare PtrSafe Sub VB_M_ProductTrABC CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrBV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef b As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductVTrB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double, ByVal m As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductABC CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductATrBC CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)

' ---- elementary/diagonal_products ----

Public Declare PtrSafe Sub VB_M_ProductADTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrADA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiag CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrADiag CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductDiagVA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal rows As Long, ByRef a As Double, ByVal cols As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductDiagV1ADiagV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef va As Double, ByVal rows As Long, ByRef a As Double, ByVal cols As Long, _
    ByRef vb As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiagV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiagVTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrADiagVA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiagVTrB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef b As Double, ByVal rowsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiagVB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef b As Double, ByVal colsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrADiagV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)

' ---- elementary/column_products ----

Public Declare PtrSafe Sub VB_M_ProductByElement CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductHorizAB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductHorizAB2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByRef cols As Long, ByRef b As Double, _
    ByVal colsB As Long)
Public Declare PtrSafe Sub VB_M_ProductDesignAB2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByRef cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByVal mode As Long, ByRef w As Double, ByRef out As Double)

' ---- elementary/packed_products ----

Public Declare PtrSafe Sub VB_M_ProductASymV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef s As Double, ByVal n As Long, ByRef v As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductVASym CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef s As Double, ByRef out As Double)

' ---- elementary/vector_products ----

Public Declare PtrSafe Function VB_V_ProductTrV1V2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare PtrSafe Sub VB_V_ProductV1V2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ProductV1V22 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double)
Public Declare PtrSafe Sub VB_V_ProductV1TrV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ProductHorizV1V2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByVal m As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ProductHorizV1V22 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByRef n As Long, ByRef b As Double, ByVal m As Long)
Public Declare PtrSafe Function VB_V_Product1toNDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Product1toNLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_V1GreaterThanMatCols CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef a As Double, ByVal cols As Long) As Integer
Public Declare PtrSafe Function VB_V_V1inferiorV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Integer

' ---- elementary/scalar_arithmetic ----

Public Declare PtrSafe Sub VB_M_ScalarsA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ScalarsA2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double)
Public Declare PtrSafe Sub VB_M_ScalarsTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_Sums1As2B CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal s1 As Double, ByVal s2 As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_APlusVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_APlusVal2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal v As Double)

' ---- elementary/cell_functions ----

Public Declare PtrSafe Sub VB_M_Square CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long)
Public Declare PtrSafe Sub VB_M_LogMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_M_Log10Matrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long)

' ---- elementary/sums_and_norms ----

Public Declare PtrSafe Function VB_M_SumOfElem CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Double
Public Declare PtrSafe Function VB_M_Trace CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long) As Double

#ElseIf Win64 Then

' ---- frame/services ----

Public Declare PtrSafe Function TestMemory Lib "VecMat.dll" () As Long
Public Declare PtrSafe Function TestAllocMatrix Lib "VecMat.dll" ( _
    ByVal a1 As Long, ByVal a2 As Long, ByVal a3 As Long, ByVal a4 As Long, ByVal a5 As Long, _
    ByVal a6 As Long, ByVal a7 As Long, ByVal a8 As Long, ByVal a9 As Long, ByVal a10 As Long, _
    ByVal a11 As Long, ByVal a12 As Long, ByVal a13 As Long, ByVal a14 As Long, _
    ByVal a15 As Long, ByVal a16 As Long, ByVal a17 As Long, ByVal a18 As Long, _
    ByVal a19 As Long, ByVal a20 As Long) As Long
Public Declare PtrSafe Function GetStatusMemory Lib "VecMat.dll" (ByVal bytes As Long) As Long

' ---- frame/super_matrices ----

Public Declare PtrSafe Sub ProjVecToMat Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByRef dst As Double)

' ---- elementary/column_extremes ----

Public Declare PtrSafe Sub VB_M_MinMaxSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare PtrSafe Sub VB_M_MinMaxSPV_T Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare PtrSafe Sub VB_M_MinMax Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare PtrSafe Sub VB_M_Max Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_Min Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)

' ---- elementary/predicates ----

Public Declare PtrSafe Function VB_V_IsConstant Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal mode As Integer) As Integer
Public Declare PtrSafe Function VB_V_IsConstantLng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal mode As Integer) As Integer
Public Declare PtrSafe Function V_IsConstantBool Lib "VecMat.dll" ( _
    ByRef x As Boolean, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsConstantBool Lib "VecMat.dll" ( _
    ByRef x As Boolean, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_M_IsColConstant Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Long
Public Declare PtrSafe Function VB_M_IsColConstantSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long
Public Declare PtrSafe Function VB_V_IsPositive Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal strict As Integer) As Integer
Public Declare PtrSafe Function VB_M_IsPositive Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef mask As Any, _
    ByVal strict As Integer) As Integer
Public Declare PtrSafe Function VB_M_IsLong Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Integer
Public Declare PtrSafe Function VB_M_IsDiagConstant Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_M_IsIn01 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Integer
Public Declare PtrSafe Function VB_M_IsInIntervalSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal lo As Double, _
    ByVal hi As Double, ByVal openArg As Integer, ByVal skipMissing As Integer) As Integer
Public Declare PtrSafe Function VB_V_IsInInterval Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByVal openArg As Integer, ByVal skipMissing As Integer) As Integer

' ---- elementary/symmetry ----

Public Declare PtrSafe Function VB_M_IsSymmetric Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_M_IsSymmetricSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal n As Long) As Integer
Public Declare PtrSafe Sub VB_M_Symmetrize Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal mode As Long)
Public Declare PtrSafe Sub VB_M_SymmetrizeSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal mode As Long)
Public Declare PtrSafe Function VB_M_IsTriangular Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal fill As Integer) As Long
Public Declare PtrSafe Function VB_M_IsTriangularSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal fill As Integer) As Long
Public Declare PtrSafe Function VB_M_CheckIfSimOrDissim Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal kind As Long) As Long
Public Declare PtrSafe Function VB_M_CheckIfSimOrDissimSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal kind As Long) As Long
Public Declare PtrSafe Sub VB_M_TransformSimToDissim Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long)

' ---- elementary/packed_storage ----

Public Declare PtrSafe Sub V_GetPositionInMatNNm1o2 Lib "VecMat.dll" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare PtrSafe Sub VB_V_GetPositionInMatNNm1o2 Lib "VecMat.dll" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare PtrSafe Sub VB_V_GetPositionInMatNN Lib "VecMat.dll" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)

' ---- elementary/matrix_products ----

Public Declare PtrSafe Function VB_M_ProductAB Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long, ByRef b As Double, ByVal c2 As Long, _
    ByRef out As Double) As Long
Public Declare PtrSafe Function VB_M_ProductBV Lib "VecMat.dll" ( _
    ByRef b As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double) As Long
Public Declare PtrSafe Sub VB_M_ProductVB Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal rows As Long, ByRef b As Double, ByVal cols As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrAB Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductATrB Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrAA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductATrA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductABTrA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrABA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare PtrSafe Function VB_M_ProductTrVBV Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare PtrSafe Function VB_M_ProductTrV1BV2 Lib "VecMat.dll" ( _
    ByRef va As Double, ByVal n As Long, ByRef b As Double, ByRef vb As Double) As Double
Public Declare PtrSafe Sub VB_M_ProductTrABC Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrBV Lib "VecMat.dll" ( _
    ByRef b As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductVTrB Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double, ByVal m As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductABC Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductATrBC Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)

' ---- elementary/diagonal_products ----

Public Declare PtrSafe Sub VB_M_ProductADTrA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrADA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiag Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrADiag Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductDiagVA Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal rows As Long, ByRef a As Double, ByVal cols As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductDiagV1ADiagV2 Lib "VecMat.dll" ( _
    ByRef va As Double, ByVal rows As Long, ByRef a As Double, ByVal cols As Long, _
    ByRef vb As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiagV Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiagVTrA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrADiagVA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiagVTrB Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef b As Double, ByVal rowsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductADiagVB Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef b As Double, ByVal colsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductTrADiagV Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)

' ---- elementary/column_products ----

Public Declare PtrSafe Sub VB_M_ProductByElement Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductHorizAB Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductHorizAB2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByRef cols As Long, ByRef b As Double, _
    ByVal colsB As Long)
Public Declare PtrSafe Sub VB_M_ProductDesignAB2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByRef cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByVal mode As Long, ByRef w As Double, ByRef out As Double)

' ---- elementary/packed_products ----

Public Declare PtrSafe Sub VB_M_ProductASymV Lib "VecMat.dll" ( _
    ByRef s As Double, ByVal n As Long, ByRef v As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ProductVASym Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef s As Double, ByRef out As Double)

' ---- elementary/vector_products ----

Public Declare PtrSafe Function VB_V_ProductTrV1V2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare PtrSafe Sub VB_V_ProductV1V2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ProductV1V22 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double)
Public Declare PtrSafe Sub VB_V_ProductV1TrV2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ProductHorizV1V2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByVal m As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ProductHorizV1V22 Lib "VecMat.dll" ( _
    ByRef a As Double, ByRef n As Long, ByRef b As Double, ByVal m As Long)
Public Declare PtrSafe Function VB_V_Product1toNDbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Product1toNLng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_V1GreaterThanMatCols Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef a As Double, ByVal cols As Long) As Integer
Public Declare PtrSafe Function VB_V_V1inferiorV2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Integer

' ---- elementary/scalar_arithmetic ----

Public Declare PtrSafe Sub VB_M_ScalarsA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ScalarsA2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double)
Public Declare PtrSafe Sub VB_M_ScalarsTrA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_Sums1As2B Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal s1 As Double, ByVal s2 As Double, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_APlusVal Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal v As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_APlusVal2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal v As Double)

' ---- elementary/cell_functions ----

Public Declare PtrSafe Sub VB_M_Square Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long)
Public Declare PtrSafe Sub VB_M_LogMatrix Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_M_Log10Matrix Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long)

' ---- elementary/sums_and_norms ----

Public Declare PtrSafe Function VB_M_SumOfElem Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Double
Public Declare PtrSafe Function VB_M_Trace Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long) As Double

#ElseIf Mac Then

' ---- frame/services ----

Public Declare Function TestMemory CDecl Lib "/usr/local/lib/libVecMat.dylib" () As Long
Public Declare Function TestAllocMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a1 As Long, ByVal a2 As Long, ByVal a3 As Long, ByVal a4 As Long, ByVal a5 As Long, _
    ByVal a6 As Long, ByVal a7 As Long, ByVal a8 As Long, ByVal a9 As Long, ByVal a10 As Long, _
    ByVal a11 As Long, ByVal a12 As Long, ByVal a13 As Long, ByVal a14 As Long, _
    ByVal a15 As Long, ByVal a16 As Long, ByVal a17 As Long, ByVal a18 As Long, _
    ByVal a19 As Long, ByVal a20 As Long) As Long
Public Declare Function GetStatusMemory CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal bytes As Long) As Long

' ---- frame/super_matrices ----

Public Declare Sub ProjVecToMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByRef dst As Double)

' ---- elementary/column_extremes ----

Public Declare Sub VB_M_MinMaxSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare Sub VB_M_MinMaxSPV_T CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare Sub VB_M_MinMax CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Any, ByVal mode As Integer)
Public Declare Sub VB_M_Max CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare Sub VB_M_Min CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)

' ---- elementary/predicates ----

Public Declare Function VB_V_IsConstant CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal mode As Integer) As Integer
Public Declare Function VB_V_IsConstantLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByVal mode As Integer) As Integer
Public Declare Function V_IsConstantBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long) As Integer
Public Declare Function VB_V_IsConstantBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long) As Integer
Public Declare Function VB_M_IsColConstant CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Long
Public Declare Function VB_M_IsColConstantSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal rows As Long, ByVal cols As Long) As Long
Public Declare Function VB_V_IsPositive CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal strict As Integer) As Integer
Public Declare Function VB_M_IsPositive CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef mask As Any, _
    ByVal strict As Integer) As Integer
Public Declare Function VB_M_IsLong CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Integer
Public Declare Function VB_M_IsDiagConstant CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long) As Integer
Public Declare Function VB_M_IsIn01 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Integer
Public Declare Function VB_M_IsInIntervalSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal rows As Long, ByVal cols As Long, ByVal lo As Double, _
    ByVal hi As Double, ByVal openArg As Integer, ByVal skipMissing As Integer) As Integer
Public Declare Function VB_V_IsInInterval CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByVal openArg As Integer, ByVal skipMissing As Integer) As Integer

' ---- elementary/symmetry ----

Public Declare Function VB_M_IsSymmetric CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long) As Integer
Public Declare Function VB_M_IsSymmetricSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal n As Long) As Integer
Public Declare Sub VB_M_Symmetrize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal mode As Long)
Public Declare Sub VB_M_SymmetrizeSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal n As Long, ByVal mode As Long)
Public Declare Function VB_M_IsTriangular CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal fill As Integer) As Long
Public Declare Function VB_M_IsTriangularSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal n As Long, ByVal fill As Integer) As Long
Public Declare Function VB_M_CheckIfSimOrDissim CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal kind As Long) As Long
Public Declare Function VB_M_CheckIfSimOrDissimSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal rows As Long, ByVal cols As Long, ByVal kind As Long) As Long
Public Declare Sub VB_M_TransformSimToDissim CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long)

' ---- elementary/packed_storage ----

Public Declare Sub V_GetPositionInMatNNm1o2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare Sub VB_V_GetPositionInMatNNm1o2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare Sub VB_V_GetPositionInMatNN CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)

' ---- elementary/matrix_products ----

Public Declare Function VB_M_ProductAB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long, ByRef b As Double, ByVal c2 As Long, _
    ByRef out As Double) As Long
Public Declare Function VB_M_ProductBV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef b As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double) As Long
Public Declare Sub VB_M_ProductVB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal rows As Long, ByRef b As Double, ByVal cols As Long, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductTrAB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductATrB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductTrAA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductATrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductABTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductTrABA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare Function VB_M_ProductTrVBV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare Function VB_M_ProductTrV1BV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef va As Double, ByVal n As Long, ByRef b As Double, ByRef vb As Double) As Double
Public Declare Sub VB_M_ProductTrABC CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductTrBV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef b As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductVTrB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double, ByVal m As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductABC CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductATrBC CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByRef c As Double, ByVal colsC As Long, ByRef out As Double)

' ---- elementary/diagonal_products ----

Public Declare Sub VB_M_ProductADTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductTrADA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductADiag CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductTrADiag CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductDiagVA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal rows As Long, ByRef a As Double, ByVal cols As Long, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductDiagV1ADiagV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef va As Double, ByVal rows As Long, ByRef a As Double, ByVal cols As Long, _
    ByRef vb As Double, ByRef out As Double)
Public Declare Sub VB_M_ProductADiagV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductADiagVTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductTrADiagVA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductADiagVTrB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef b As Double, ByVal rowsB As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductADiagVB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef b As Double, ByVal colsB As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductTrADiagV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByRef out As Double)

' ---- elementary/column_products ----

Public Declare Sub VB_M_ProductByElement CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ProductHorizAB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByRef out As Double)
Public Declare Sub VB_M_ProductHorizAB2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByRef cols As Long, ByRef b As Double, _
    ByVal colsB As Long)
Public Declare Sub VB_M_ProductDesignAB2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByRef cols As Long, ByRef b As Double, _
    ByVal colsB As Long, ByVal mode As Long, ByRef w As Double, ByRef out As Double)

' ---- elementary/packed_products ----

Public Declare Sub VB_M_ProductASymV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef s As Double, ByVal n As Long, ByRef v As Double, ByRef out As Double)
Public Declare Sub VB_M_ProductVASym CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef s As Double, ByRef out As Double)

' ---- elementary/vector_products ----

Public Declare Function VB_V_ProductTrV1V2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare Sub VB_V_ProductV1V2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef out As Double)
Public Declare Sub VB_V_ProductV1V22 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double)
Public Declare Sub VB_V_ProductV1TrV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef out As Double)
Public Declare Sub VB_V_ProductHorizV1V2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByVal m As Long, ByRef out As Double)
Public Declare Sub VB_V_ProductHorizV1V22 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByRef n As Long, ByRef b As Double, ByVal m As Long)
Public Declare Function VB_V_Product1toNDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare Function VB_V_Product1toNLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare Function VB_V_V1GreaterThanMatCols CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef a As Double, ByVal cols As Long) As Integer
Public Declare Function VB_V_V1inferiorV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Integer

' ---- elementary/scalar_arithmetic ----

Public Declare Sub VB_M_ScalarsA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_ScalarsA2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double)
Public Declare Sub VB_M_ScalarsTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_Sums1As2B CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByVal s1 As Double, ByVal s2 As Double, ByRef out As Double)
Public Declare Sub VB_M_APlusVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal v As Double, _
    ByRef out As Double)
Public Declare Sub VB_M_APlusVal2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal v As Double)

' ---- elementary/cell_functions ----

Public Declare Sub VB_M_Square CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long)
Public Declare Sub VB_M_LogMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef mask As Boolean)
Public Declare Sub VB_M_Log10Matrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long)

' ---- elementary/sums_and_norms ----

Public Declare Function VB_M_SumOfElem CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Double
Public Declare Function VB_M_Trace CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long) As Double

#End If
