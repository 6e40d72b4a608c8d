Attribute VB_Name = "VecMat"
Option Explicit

' Declarations of the functions of VecMat that take plain arrays, for macros.
' Written by tools/bindings from exports.tsv: change those, not this module.
'
' What each function does, and how it treats missing cells, masks, weights and empty inputs, is told in the
' pages below Docs/contracts. What goes across the border is told in Docs/border.md, in short:
'
'   numbers       An array is handed over by its first element: VB_V_Mean2(v(0), n). Tables are stored column
'                 after column, as VBA stores an array (row, column). Give arrays the sizes that the function
'                 tells: nothing is checked.
'   Booleans      A single one goes in and comes back as an Integer, -1 or 0. An array is one of Booleans.
'   strings       An array of strings is handed over by VarPtr(labels(0)). Let the strings that a function will
'                 replace be empty: the library never frees one. A single string goes in as the array of its
'                 characters' numbers, each a Long, with a 0 behind the last: text(0). SimplifyRange and
'                 Increase1Col take StrPtr(text). A string that comes back is a pointer, which the caller owns.
'   columns       A table of columns is a VecMatTable, handed over by VarPtr(table).
'   missing       A cell without a value holds VecMatMissing.

Public Const VecMatMissing As Double = -1.79769313486231E+308

' One column of a table of columns: of its two arrays fill the one that the function reads.
Public Type VecMatColumn
    Numbers() As Double
    Strings() As String
End Type

Public Type VecMatTable
    Columns() As VecMatColumn
End Type

#If VBA7 Then

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
    ByRef max As Double, ByRef mask As Boolean, ByVal mode As Integer)
Public Declare PtrSafe Sub VB_M_MinMaxSPV_T CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Boolean, ByVal mode As Integer)
Public Declare PtrSafe Sub VB_M_MinMax CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Boolean, ByVal mode As Integer)
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
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef mask As Boolean, _
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

' ---- elementary/packed_storage ----

Public Declare PtrSafe Sub V_GetPositionInMatNNm1o2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare PtrSafe Sub VB_V_GetPositionInMatNNm1o2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare PtrSafe Sub VB_V_GetPositionInMatNN CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)

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

' ---- elementary/sums_and_norms ----

Public Declare PtrSafe Function VB_M_SumOfElem CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Double
Public Declare PtrSafe Function VB_M_Trace CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_M_FrobeniusNorm CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double) As Double
Public Declare PtrSafe Sub VB_M_SumByCols CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_SumByRows CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_SquaredRows CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_SquaredColumns CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)

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

' ---- elementary/distances ----

Public Declare PtrSafe Sub VB_M_EuclidDist2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef w As Double, ByVal betweenRows As Integer)

' ---- elementary/gauss ----

Public Declare PtrSafe Function VB_V_Gauss CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Long
Public Declare PtrSafe Function VB_M_Gauss CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal m As Long, ByRef b As Double) As Long

' ---- elementary/filling ----

Public Declare PtrSafe Sub VB_InitVectorToFalse CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Boolean, ByVal n As Long)
Public Declare PtrSafe Sub VB_InitVectorToTrue CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Boolean, ByVal n As Long)
Public Declare PtrSafe Sub VB_V_SetToValue CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByVal value As Double)
Public Declare PtrSafe Sub VB_V_SetToValueLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Long, ByVal n As Long, ByVal value As Long)
Public Declare PtrSafe Sub VB_V_SetToValueStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal v As LongPtr, ByVal n As Long, ByRef value As Long)
Public Declare PtrSafe Sub VB_V_Set1toNDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long)
Public Declare PtrSafe Sub VB_V_Set1toNLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Long, ByVal n As Long)

' ---- elementary/array_copies ----

Public Declare PtrSafe Sub VB_V_DuplicateDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal n As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_V_DuplicateLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Long, ByVal n As Long, ByRef dst As Long)
Public Declare PtrSafe Sub VB_V_DuplicateDblToLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal n As Long, ByRef dst As Long)
Public Declare PtrSafe Sub VB_V_DuplicateLngToDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Long, ByVal n As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_V_DuplicateStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal n As Long, ByVal dst As LongPtr)
Public Declare PtrSafe Sub VB_M_DuplicateStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal r As Long, ByVal c As Long, ByVal dst As LongPtr)
Public Declare PtrSafe Sub VB_M_DuplicateDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal r As Long, ByVal c As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_M_DuplicateLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Long, ByVal r As Long, ByVal c As Long, ByRef dst As Long)
Public Declare PtrSafe Sub VB_M_CopyResize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal r As Long, ByVal c As Long, ByRef dst As Double, _
    ByVal newR As Long, ByVal newC As Long)
Public Declare PtrSafe Sub VB_M_CopyResizeStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal r As Long, ByVal c As Long, ByVal dst As LongPtr, _
    ByVal newR As Long, ByVal newC As Long)
Public Declare PtrSafe Sub VB_V_ReverseDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double)
Public Declare PtrSafe Sub V_ReverseBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long, ByRef out As Boolean)
Public Declare PtrSafe Sub VB_V_ReverseBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long, ByRef out As Boolean)

' ---- elementary/transposition ----

Public Declare PtrSafe Sub VB_M_Transpose CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_TransposeLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Long, ByVal r As Long, ByVal c As Long, ByRef out As Long)
Public Declare PtrSafe Sub VB_M_TransposeStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal r As Long, ByVal c As Long, ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_M_Transpose2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long)
Public Declare PtrSafe Sub VB_M_Transpose2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Long, ByVal r As Long, ByVal c As Long)
Public Declare PtrSafe Sub VB_M_Transpose2Str CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal r As Long, ByVal c As Long)
Public Declare PtrSafe Sub VB_M_TransposeSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal r As Long, ByVal c As Long, ByVal out As LongPtr)

' ---- elementary/horizontal_merges ----

Public Declare PtrSafe Sub VB_HMergeVectors CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeTableVect CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef t As Double, ByVal r As Long, ByVal c As Long, ByRef v As Double, ByVal n As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeTableVect2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef t As Double, ByVal r As Long, ByVal c As Long, ByRef v As Double, ByVal n As Long)
Public Declare PtrSafe Sub VB_HMergeVectTable CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef t As Double, ByVal r As Long, ByVal c As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeVectColDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef t As Double, ByVal r As Long, ByVal col As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeTablesDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeTablesDbl2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesDbl2SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesDbl2SPV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal r1 As Long, ByVal c1 As Long, ByVal b As LongPtr, _
    ByVal r2 As Long, ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesLng2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Long, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Long, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Boolean, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Boolean, _
    ByVal r2 As Long, ByVal c2 As Long, ByRef out As Boolean)
Public Declare PtrSafe Sub VB_HMergeTablesBool2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Boolean, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Boolean, _
    ByVal r2 As Long, ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal r1 As Long, ByVal c1 As Long, ByVal b As LongPtr, _
    ByVal r2 As Long, ByVal c2 As Long, ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_HMergeTablesStr2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal r1 As Long, ByVal c1 As Long, ByVal b As LongPtr, _
    ByVal r2 As Long, ByVal c2 As Long)

' ---- elementary/vertical_merges ----

Public Declare PtrSafe Sub VB_VMergeVectorsDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_VMergeVectorsDbl2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long)
Public Declare PtrSafe Sub VB_VMergeVectorsStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long, _
    ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_VMergeVectorsStr2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long)
Public Declare PtrSafe Sub VB_VMergeVectorsBool2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Boolean, ByVal nA As Long, ByRef b As Boolean, ByVal nB As Long)
Public Declare PtrSafe Sub VB_VMergeTablesDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long, ByRef out As Double)

' ---- elementary/columns_and_rows ----

Public Declare PtrSafe Sub VB_CopyMatrixColToMatrixCol CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal n As Long, ByVal col As Long, ByRef dst As Double, _
    ByVal dstCol As Long, ByVal prepare As Integer)
Public Declare PtrSafe Sub VB_CopyMatrixColToVector CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal n As Long, ByVal col As Long, ByRef v As Double)
Public Declare PtrSafe Sub VB_CopyMatrixRowToMatrixRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal row As Long, _
    ByRef dst As Double, ByVal dstRows As Long, ByVal dstRow As Long, ByVal prepare As Integer)
Public Declare PtrSafe Sub VB_CopyMatrixColToOneColMatStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal n As Long, ByVal col As Long, ByVal out As LongPtr)

' ---- elementary/blocks ----

Public Declare PtrSafe Sub VB_M_CopyBlock CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long, ByVal c1 As Long, ByVal c2 As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_M_CopyBlockSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal r1 As Long, ByVal r2 As Long, ByVal c1 As Long, _
    ByVal c2 As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_M_CopyBlockStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long, ByVal c1 As Long, ByVal c2 As Long, ByVal dst As LongPtr)
Public Declare PtrSafe Sub VB_M_DuplicateStrSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal dst As LongPtr)
Public Declare PtrSafe Sub VB_M_PasteBlock CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByRef dst As Double, _
    ByVal dstRows As Long, ByVal dstCols As Long, ByVal row As Long, ByVal col As Long)
Public Declare PtrSafe Sub VB_M_PasteBlockLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Long, ByVal rows As Long, ByVal cols As Long, ByRef dst As Long, _
    ByVal dstRows As Long, ByVal dstCols As Long, ByVal row As Long, ByVal col As Long)
Public Declare PtrSafe Sub VB_M_CopyToBigger CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByRef dst As Double, _
    ByVal dstRows As Long, ByVal dstCols As Long)

' ---- elementary/extraction ----

Public Declare PtrSafe Sub VB_M_ExtractMatToMatDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ExtractMatToMatDblSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal cols As Long, ByVal from As Long, ByVal toArg As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ExtractMatToMatStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long, ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_M_ExtractMatToMatStrSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As LongPtr, ByVal cols As Long, ByVal from As Long, ByVal toArg As Long, _
    ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_M_ExtractMatToMatByColDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal from As Long, ByVal toArg As Long, _
    ByRef out As Double)

' ---- elementary/removal ----

Public Declare PtrSafe Sub VB_M_RemoveCol CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_RemoveRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal row As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_MoveRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long)
Public Declare PtrSafe Sub VB_M_RemoveCols2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long)
Public Declare PtrSafe Sub VB_M_RemoveRows2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long)
Public Declare PtrSafe Function VB_M_RemoveRowsInList CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef flags As Long, _
    ByVal nOut As Long, ByRef out As Double) As Long
Public Declare PtrSafe Function VB_M_RemoveColsInList CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef flags As Long, _
    ByVal nOut As Long, ByRef out As Double) As Long

' ---- matrix ----

Public Declare PtrSafe Function sqr2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Double) As Double

' ---- elementary/vector_sums ----

Public Declare PtrSafe Function VB_V_Sum2Dbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Sum2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_SumFromTo CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Double
Public Declare PtrSafe Function VB_V_SumFromToLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Long
Public Declare PtrSafe Function VB_V_Sum CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_V_SumSq CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_SumSqW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_V_DiffSq CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare PtrSafe Function VB_V_DiffSqW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef w As Double) As Double

' ---- elementary/vector_counts ----

Public Declare PtrSafe Function VB_V_NbTrue CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long) As Long
Public Declare PtrSafe Function V_NbTrue CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_NbTrueFromTo CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Long
Public Declare PtrSafe Function V_NbTrueFromTo CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal from As Long, ByVal toArg As Long) As Long

' ---- elementary/vector_updates ----

Public Declare PtrSafe Sub VB_V_RemoveVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal pos As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_PlusVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_V_PlusVal2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double)
Public Declare PtrSafe Sub VB_V_Norm CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long)
Public Declare PtrSafe Sub VB_V_NormToVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double)
Public Declare PtrSafe Sub VB_V_NormW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double)
Public Declare PtrSafe Sub VB_V_NormToValW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByRef w As Double)
Public Declare PtrSafe Sub VB_V_ReplaceVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Double, ByVal toArg As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ReplaceVal2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Double, ByVal toArg As Double)

' ---- elementary/extremes ----

Public Declare PtrSafe Function VB_V_Min CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean) As Double
Public Declare PtrSafe Function VB_V_Max CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean) As Double
Public Declare PtrSafe Function VB_V_Min2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Max2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Min2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_Max2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_MaxInt CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByRef mask As Boolean) As Long
Public Declare PtrSafe Function VB_V_MinAndMinPos CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long) As Double
Public Declare PtrSafe Function VB_V_MaxAndMaxPos CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long) As Double
Public Declare PtrSafe Sub VB_V_MinMax CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_V_MinMaxLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef mask As Boolean)

' ---- elementary/conditional_aggregates ----

Public Declare PtrSafe Function VB_V_SumIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_SumIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByRef w As Double, _
    ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_MaxIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_MinIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_NbIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_NbIfLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByVal val As Long) As Long
Public Declare PtrSafe Function VB_V_NbIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal val As Double) As Double

' ---- sorting/sort_apply ----

Public Declare PtrSafe Sub VB_SortApply CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef source As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_SortApply2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)
Public Declare PtrSafe Sub VB_SortApplyLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef source As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByRef out As Long)
Public Declare PtrSafe Sub VB_SortApply2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)
Public Declare PtrSafe Sub VB_SortApplyStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal source As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_SortApply2Str CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)

' ---- sorting/ranks ----

Public Declare PtrSafe Sub VB_V_GetRanksDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef ranks As Double)
Public Declare PtrSafe Sub VB_V_GetRanksLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef ranks As Long)
Public Declare PtrSafe Sub VB_V_GetRanksTiesDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double)
Public Declare PtrSafe Sub VB_V_GetRanksTiesIntDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double)
Public Declare PtrSafe Function VB_V_IsSorted CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal strict As Integer) As Integer
Public Declare PtrSafe Function VB_V_TimeIntervalSize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef t As Double, ByVal n As Long, ByVal sorted As Integer) As Double

' ---- sorting/sort ----

Public Declare PtrSafe Function VB_SortQVectorDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortQVectorLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortQVectorStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortQMatrixCol CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal col As Long, _
    ByVal first As Long, ByVal last As Long, ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortQMatrixColStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal col As Long, _
    ByVal first As Long, ByVal last As Long, ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortMatrixSeqQDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, _
    ByVal lastToFirst As Integer) As Long
Public Declare PtrSafe Function VB_SortMatrixSeqQLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal lastToFirst As Integer) As Long
Public Declare PtrSafe Function VB_SortMatrixSeqQP1toP2Dbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal firstCol As Long, _
    ByVal lastCol As Long, ByVal lastToFirst As Integer) As Long
Public Declare PtrSafe Function VB_SortMatrixSeqQP1toP2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal firstCol As Long, _
    ByVal lastCol As Long, ByVal lastToFirst As Integer) As Long
Public Declare PtrSafe Function VB_SortQDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQDbl2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Long, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Long, ByRef companion As Long, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Boolean, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQByColDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionRows As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQDblSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQStrSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortDataBy01 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare PtrSafe Function VB_SortDataBy01Bool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Boolean, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare PtrSafe Function VB_SortDataBy01SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare PtrSafe Function VB_SortDataBy01Str CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long

' ---- missing/missing_counts ----

Public Declare PtrSafe Function IsMissingValueDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Double) As Integer
Public Declare PtrSafe Function VB_IsMissingValueDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Double) As Integer
Public Declare PtrSafe Function VB_IsMissingValueStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef s As Long) As Integer
Public Declare PtrSafe Function VB_V_NbMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_NbNonMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_NbMissingStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long
Public Declare PtrSafe Sub VB_M_NbMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare PtrSafe Sub VB_M_NbMissingStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare PtrSafe Function VB_M_NbMissing2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long) As Long
Public Declare PtrSafe Function VB_M_NbMissing2Str CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal nRows As Long, ByVal nCols As Long) As Long
Public Declare PtrSafe Sub VB_M_NbNonMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare PtrSafe Function VB_M_NbMissingSPV_T CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal unused As Long) As Long

' ---- missing/missing_masks ----

Public Declare PtrSafe Sub VB_SummarizeMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByRef total As Long, ByRef out As Boolean, ByRef a As Boolean, _
    ByRef b As Boolean, ByRef c As Boolean)
Public Declare PtrSafe Sub VB_SummarizeAllMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByRef a As Boolean, ByRef b As Boolean, ByRef total As Long, _
    ByRef out As Boolean)
Public Declare PtrSafe Sub VB_M_AllMissingRows CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef filter As Boolean, _
    ByRef out As Boolean)
Public Declare PtrSafe Sub VB_M_AllMissingRowsStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef filter As Boolean, _
    ByRef out As Boolean)
Public Declare PtrSafe Sub VB_V_GetMissingDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef a As Boolean, ByRef out As Boolean)
Public Declare PtrSafe Sub VB_V_GetMissingStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal n As Long, ByRef a As Boolean, ByRef out As Boolean)

' ---- missing/replacement ----

Public Declare PtrSafe Sub VB_M_ReplaceMissingByVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal value As Double)
Public Declare PtrSafe Sub VB_M_ReplaceMissingByValSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal value As Double)
Public Declare PtrSafe Sub VB_M_ReplaceMissingByStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef value As Long)
Public Declare PtrSafe Sub VB_M_SetWeightsToZeroForMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef weights As Double, _
    ByVal nWeightCols As Long)

' ---- missing/observation_labels ----

Public Declare PtrSafe Sub VB_ReplaceMissingObsLabels CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef mask As Boolean, ByRef prefix As Long)

' ---- missing/complete_rows ----

Public Declare PtrSafe Sub VB_RemoveRowsWithMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal nRemoved As Long, _
    ByRef mask As Boolean, ByRef out As Double)
Public Declare PtrSafe Sub VB_RemoveRowsWithMissingStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal nRemoved As Long, _
    ByRef mask As Boolean, ByVal out As LongPtr)

' ---- missing/missing_arithmetic ----

Public Declare PtrSafe Function VB_V_SumIfNotMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double) As Double
Public Declare PtrSafe Function VB_M_ProductABMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nInner As Long, ByRef b As Double, _
    ByVal nCols As Long, ByRef c As Double) As Long

' ---- missing/mean_imputation ----

Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMeanPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef statX As Double, ByVal nStat As Long, ByRef X As Double, ByVal nRows As Long, _
    ByVal nCols As Long, ByRef mask As Boolean, ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMeanSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef weights As Double)

' ---- missing/mode_imputation ----

Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMode CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingModePred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal statS As LongPtr, ByVal nStat As Long, ByVal S As LongPtr, ByVal nRows As Long, _
    ByVal nCols As Long, ByRef mask As Boolean, ByRef weights As Double)

' ---- missing/new_variables ----

Public Declare PtrSafe Sub VB_ComputeNewVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef Q As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef C As Double, _
    ByRef variances As Double, ByRef covariances As Double)

' ---- missing/nearest_neighbour ----

Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNN CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Double, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal P As LongPtr, ByVal n As Long, ByVal nColsP As Long, ByRef mask As Boolean, _
    ByRef Y As Double, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Double, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNSPV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByVal Y As LongPtr, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef statX As Double, ByVal nStat As Long, ByRef X As Double, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Double, ByRef Y As Double, _
    ByVal nColsY As Long, ByVal statS As LongPtr, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNStrPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal statX As LongPtr, ByVal nStat As Long, ByVal X As LongPtr, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Double, ByRef Y As Double, _
    ByVal nColsY As Long, ByVal statS As LongPtr, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)

' ---- qualitative/categories ----

Public Declare PtrSafe Sub VB_M_InfoQuali CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal modes As LongPtr, _
    ByRef modeWeights As Double, ByRef total As Long, ByRef nCats As Long, _
    ByVal categories As LongPtr, ByRef catWeights As Double, ByVal ignored As Long, _
    ByRef weights As Double, ByVal sortCats As Integer)
Public Declare PtrSafe Sub VB_M_InfoQuali2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal maxCats As Long, _
    ByRef nCats As Long, ByVal modes As LongPtr, ByRef modeWeights As Double, _
    ByRef total As Long, ByVal categories As LongPtr, ByRef catWeights As Double, _
    ByVal ignored As Long, ByRef weights As Double, ByVal sortCats As Integer)
Public Declare PtrSafe Sub VB_M_InfoQualiValid CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal maxCats As Long, _
    ByVal ignored1 As Long, ByRef nCats As Long, ByVal categories As LongPtr, _
    ByRef catWeights As Double, ByRef invalid As Boolean, ByVal ignored2 As Long, _
    ByRef weights As Double)

' ---- qualitative/moments_of_one_column ----

Public Declare PtrSafe Sub VB_M_MeanStDevVarOneInMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal col As Long, ByRef mean As Double, _
    ByRef stdDev As Double, ByRef variance As Double, ByVal ignored As Long, _
    ByRef weights As Double, ByVal sampleVariance As Integer, ByVal countDivisor As Integer)

' ---- qualitative/frequencies ----

Public Declare PtrSafe Function VB_V_Freq CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByVal value As Double, _
    ByVal tolerance As Double) As Double
Public Declare PtrSafe Function VB_V_FreqLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByRef weights As Double, ByVal value As Long) As Long
Public Declare PtrSafe Function VB_V_FreqStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal n As Long, ByRef weights As Double, ByRef value As Long) As Double

' ---- qualitative/modes ----

Public Declare PtrSafe Function VB_V_Mode CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal ignored As Long, ByRef weights As Double) As LongPtr
Public Declare PtrSafe Function VB_V_ModeCatDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double

' ---- qualitative/disjunctive_tables ----

Public Declare PtrSafe Sub VB_BuildDisjunctiveTable CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal totalCats As Long, _
    ByRef nCats As Long, ByVal categories As LongPtr, ByRef freq As Double, _
    ByVal maxCats As Long, ByRef out As Double, ByVal coding As Long, ByVal keepBaseline As Long)
Public Declare PtrSafe Function VB_M_IsDisjTable CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef rowSum As Long) As Integer

' ---- qualitative/recoding ----

Public Declare PtrSafe Sub VB_M_ReplaceCatByCodes CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As LongPtr, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ReplaceStrByCodes CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As LongPtr, ByRef mask As Boolean, ByVal firstCode As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_Binarize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_Binarize2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long)
Public Declare PtrSafe Sub VB_M_Binarize2SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long)

' ---- qualitative/indicators ----

Public Declare PtrSafe Function VB_V_Is01 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsWeights CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsCWeights CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsIndicator CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsIndicatorSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal nRows As Long, ByVal nCols As Long) As Integer

' ---- qualitative/group_by ----

Public Declare PtrSafe Sub VB_M_GroupBy CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef colTypes As Long, _
    ByVal keyCol As Long, ByVal aggregate As Long, ByRef nGroups As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_GroupByW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef colTypes As Long, _
    ByVal keyCol As Long, ByVal aggregate As Long, ByRef nGroups As Long, ByRef out As Double, _
    ByRef weights As Double)

' ---- qualitative/distinct ----

Public Declare PtrSafe Sub VB_M_Dedupe CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef nKept As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ExtractDistinct CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef distinct As Double, ByRef count As Long)
Public Declare PtrSafe Function VB_V_NbDistinct CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_NbDistinctLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long

' ---- qualitative/labels ----

Public Declare PtrSafe Sub VB_V_ReplaceDoubles CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal n As Long)

' ---- descriptive/covariance_with_moments ----

Public Declare PtrSafe Function INDEX3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal i As Long, ByVal j As Long) As Long
Public Declare PtrSafe Function VB_M_CovCorrAndMeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal center As Integer, ByVal reduce As Integer) As Long
Public Declare PtrSafe Function VB_M_CovCorrVAndMeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal center As Integer, ByVal reduce As Integer) As Long

' ---- descriptive/covariance ----

Public Declare PtrSafe Function VB_M_CovCorr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByVal corr As Integer, ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer) As Long

' ---- descriptive/cross_correlation ----

Public Declare PtrSafe Function VB_M_CorrMatMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Boolean, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_M_CorrMatMatSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Boolean, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_CorrelPearson CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByRef y As Double, ByVal n As Long, ByRef mask As Boolean, _
    ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer) As Double

' ---- descriptive/correlation_of_covariance ----

Public Declare PtrSafe Function VB_M_CorrMatFromCovMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef S As Double, ByVal p As Long, ByRef R As Double) As Long

' ---- descriptive/triangular_fit ----

Public Declare PtrSafe Sub TriangularQFindAB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, ByVal prob1 As Double, _
    ByVal prob2 As Double, ByRef a As Double, ByRef b As Double)
Public Declare PtrSafe Function TriangularFunc CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal b As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double
Public Declare PtrSafe Function TriangularFuncDeriv CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal b As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double
Public Declare PtrSafe Function TriangularFunc2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double

' ---- descriptive/forecast_errors ----

Public Declare PtrSafe Function VB_MAPE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare PtrSafe Function VB_MPE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare PtrSafe Function VB_MAE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare PtrSafe Function VB_RMSE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef Y As Double, ByVal n As Long, ByVal p As Long, ByRef F As Double, _
    ByVal divisor As Long) As Double

' ---- descriptive/means ----

Public Declare PtrSafe Function VB_V_Mean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_V_Mean2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_MeanAbs CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_M_Mean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByVal ignored As Long, ByRef w As Double) As Long

' ---- descriptive/moments ----

Public Declare PtrSafe Function VB_V_Var CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare PtrSafe Function VB_V_Stdev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare PtrSafe Sub VB_V_MeanVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_V_MeanStdev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef stdev As Double, _
    ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer)
Public Declare PtrSafe Function VB_M_MeanStDev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal ignoreMask As Integer) As Long
Public Declare PtrSafe Function VB_M_MeanStDevByRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_M_MeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByRef var As Double, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Long

' ---- descriptive/shape_moments ----

Public Declare PtrSafe Sub VB_V_MeanVarSkewPKurtP CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef skewP As Double, ByRef kurtP As Double, ByRef skewS As Double, ByRef kurtS As Double, _
    ByRef seSkew As Double, ByRef seKurt As Double, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)

' ---- descriptive/conditional_moments ----

Public Declare PtrSafe Function VB_V_MeanIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByVal value As Double) As Double
Public Declare PtrSafe Function VB_V_MeanIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal value As Double) As Double
Public Declare PtrSafe Function VB_V_VarIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByVal value As Double, _
    ByVal sample As Integer) As Double
Public Declare PtrSafe Function VB_V_VarIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal value As Double, ByVal sample As Integer) As Double

' ---- descriptive/quantiles ----

Public Declare PtrSafe Function VB_V_Quantile CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Double) As Double
Public Declare PtrSafe Function VB_V_QuantileW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef w As Double, ByVal p As Double) As Double
Public Declare PtrSafe Function VB_V_QuantileM CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByVal p As Double) As Double
Public Declare PtrSafe Function VB_V_QuantileMW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal p As Double) As Double

' ---- descriptive/column_scaling ----

Public Declare PtrSafe Sub VB_M_Center CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_CenterW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_Center2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long)
Public Declare PtrSafe Sub VB_M_Center2SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal p As Long)
Public Declare PtrSafe Sub VB_M_CenterW2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double)
Public Declare PtrSafe Sub VB_M_Reduce CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_ReduceW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef Z As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_Reduce2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare PtrSafe Sub VB_M_ReduceW2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_Standardize2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare PtrSafe Sub VB_M_Standardize2SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare PtrSafe Sub VB_M_Standardize3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeW2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeW3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer)

' ---- descriptive/standardisation ----

Public Declare PtrSafe Sub VB_M_Standardize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByRef mask As Boolean, _
    ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_StandardizeKnownMeansStDev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef Z As Double, ByRef stdev As Double, ByRef var As Double, ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_M_StandardizeMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal nY As Long, _
    ByRef V As Double, ByVal nV As Long)
Public Declare PtrSafe Sub VB_V_Standardize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByRef z As Double)
Public Declare PtrSafe Sub VB_V_Standardize2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeByVect CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef a As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_StandardizeByVect2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef a As Boolean, ByRef w As Double, _
    ByVal sample As Integer)

' ---- descriptive/rescaling ----

Public Declare PtrSafe Sub VB_M_Normalize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef norms As Double, _
    ByRef mask As Boolean, ByRef w As Double)
Public Declare PtrSafe Sub VB_M_NormalizeMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal nY As Long, _
    ByRef V As Double, ByVal nV As Long)
Public Declare PtrSafe Sub VB_V_Rescale CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByVal low As Double, ByVal high As Double, _
    ByRef mask As Boolean, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_Rescale2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal low As Double, ByVal high As Double, _
    ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_M_RescaleByVect CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal low As Double, _
    ByVal high As Double, ByRef a As Boolean, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_RescaleByVect2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal low As Double, _
    ByVal high As Double, ByRef a As Boolean)

' ---- randomisation/permutations ----

Public Declare PtrSafe Function GenerateRandom01 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long) As Double
Public Declare PtrSafe Sub VB_GenerateRandomIndicator CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef out As Double, ByVal n As Long, ByVal k As Long, ByRef seed As Long, _
    ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_GenerateIndicator CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef out As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long)

' ---- randomisation/column_addresses ----

Public Declare PtrSafe Function SimplifyRange CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal inputArg As LongPtr) As LongPtr
Public Declare PtrSafe Function Increase1Col CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal letters As LongPtr) As LongPtr

' ---- randomisation/sampling_with_repeats ----

Public Declare PtrSafe Sub VB_M_SamplingWithReplacement CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SamplingWithReplacementSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SampleUserDefined CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal Z As LongPtr, _
    ByRef freq As Double, ByRef ids As Double)
Public Declare PtrSafe Sub VB_M_SampleUserDefinedSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal Z As LongPtr, _
    ByRef freq As Double, ByRef ids As Double)

' ---- randomisation/interval_sampling ----

Public Declare PtrSafe Sub VB_M_SamplingSystematicRdStart CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SamplingSystematicRdStartSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SamplingSystematicCentered CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double)
Public Declare PtrSafe Sub VB_M_SamplingSystematicCenteredSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double)
Public Declare PtrSafe Sub VB_M_SamplingRandomStratified CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SamplingRandomStratifiedSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)

' ---- randomisation/stratified_sampling ----

Public Declare PtrSafe Sub VB_M_SamplingRandomStratifiedByStrSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef rowIds As Double, ByRef outIds As Double, ByRef strata As Double, _
    ByRef quota As Double, ByRef sizes As Double, ByVal nStrata As Long, ByRef seed As Long, _
    ByVal seedFlag As Integer, ByRef seedOut As Long)

' ---- decompositions/eigen ----

Public Declare PtrSafe Function VB_M_Eigen CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByRef values As Double, ByRef vectors As Double, ByVal n As Long, _
    ByVal sort As Integer) As Long

' ---- decompositions/axis_selection ----

Public Declare PtrSafe Sub VB_FilterEigen CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef eig As Double, ByVal n As Long, ByVal drop As Integer, ByVal floor As Double, _
    ByVal cumPercent As Double, ByVal maxCount As Long, ByVal minValue As Double, _
    ByRef kept As Long, ByRef selected As Long, ByRef percent As Double)

' ---- decompositions/lu ----

Public Declare PtrSafe Function VB_M_LUDecomp CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef index As Long, ByRef d As Double, _
    ByRef status As Integer) As Long

' ---- decompositions/determinants ----

Public Declare PtrSafe Function VB_M_Determinant CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double
Public Declare PtrSafe Function VB_M_DeterminantTriang CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double

' ---- decompositions/cholesky ----

Public Declare PtrSafe Function VB_M_CholDecomp CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double) As Long
Public Declare PtrSafe Function VB_M_CholDecompPrinc CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double, ByRef perm As Long, _
    ByVal keep As Integer) As Long
Public Declare PtrSafe Function VB_M_CholDecompCleaned CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef mask As Long, ByRef l As Double) As Long

' ---- decompositions/generalised_inverses ----

Public Declare PtrSafe Function VB_M_InvGeneralized CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double, _
    ByRef rank As Long) As Long
Public Declare PtrSafe Function VB_M_InvGeneralizedSym CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double, _
    ByRef rank As Long) As Long

' ---- decompositions/constrained_inverses ----

Public Declare PtrSafe Function CleanConstraintsAndInvert CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef a As Double, ByRef out As Double) As Long
Public Declare PtrSafe Function CleanConstraintsAndInvertTriang CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef a As Double, ByVal lower As Integer, _
    ByRef out As Double) As Long
Public Declare PtrSafe Function VB_M_DeterminantCleaned CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef constraints As Long, ByRef status As Integer) As Double

' ---- decompositions/inversion ----

Public Declare PtrSafe Function VB_M_Inverse1 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double) As Long
Public Declare PtrSafe Function VB_M_InverseTriang CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal lower As Integer, ByRef out As Double, _
    ByVal tol As Double) As Long

' ---- decompositions/sweep ----

Public Declare PtrSafe Function VB_M_Sweep CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal k As Long) As Long

' ---- decompositions/inverse_products ----

Public Declare PtrSafe Sub VB_M_ProductTrAinvBA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare PtrSafe Function VB_M_ProductTrVinvBV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare PtrSafe Sub VB_M_ProductAinvBTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)

' ---- decompositions/singular_values ----

Public Declare PtrSafe Function VB_M_SVDecomp CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Double, _
    ByVal ldu As Long, ByRef v As Double, ByVal ldv As Long, ByVal job As Long, _
    ByRef info As Long) As Long
Public Declare PtrSafe Function VB_M_SVDecompSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByVal u As LongPtr, _
    ByVal ldu As Long, ByVal v As LongPtr, ByVal ldv As Long, ByVal job As Long, _
    ByRef info As Long) As Long
Public Declare PtrSafe Function VB_M_Rank CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long) As Long

' ---- decompositions/level1_routines ----

Public Declare PtrSafe Sub drotg CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByRef b As Double, ByRef c As Double, ByRef s As Double)

' ---- fitting/biplots ----

Public Declare PtrSafe Sub VB_BiplotTransData CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef rows As Double, ByRef sup As Double, ByRef cols As Double, ByVal nA As Long, _
    ByVal nB As Long, ByVal m As Long, ByVal k As Long, ByRef eigen As Double, _
    ByVal factor As Double, ByVal alpha As Double, ByRef obs As Double, ByRef var As Double)
Public Declare PtrSafe Sub VB_BiplotTransDataSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal rows As LongPtr, ByRef sup As Double, ByVal cols As LongPtr, ByVal nA As Long, _
    ByVal nB As Long, ByVal m As Long, ByVal storedAxes As Long, ByVal k As Long, _
    ByRef eigen As Double, ByVal factor As Double, ByVal alpha As Double, ByRef obs As Double, _
    ByRef var As Double)
Public Declare PtrSafe Sub ComputeCosines CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal k As Long, ByRef out As Double)

' ---- fitting/least_squares ----

Public Declare PtrSafe Function RunOLSBasic CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef fitted As Double) As Long
Public Declare PtrSafe Function RunOLSBasic2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef se As Double, ByRef fitted As Double) As Long
Public Declare PtrSafe Function RunOLSBasic3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef se As Double, ByRef fitted As Double, _
    ByRef swept As Double, ByRef mean As Double, ByRef sd As Double) As Long

' ---- fitting/least_squares_blocks ----

Public Declare PtrSafe Function RunOLSBasic2Lg CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByVal p1 As Long, ByRef X1 As Double, ByVal p2 As Long, ByRef X2 As Double, _
    ByVal p3 As Long, ByRef X3 As Double, ByVal p4 As Long, ByRef X4 As Double, _
    ByVal p5 As Long, ByRef X5 As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef se As Double, ByRef fitted As Double) As Long

' ---- fitting/tolerance_check ----

Public Declare PtrSafe Sub VB_CheckTolerance CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef corr As Double, ByVal p As Long, ByVal groupCount As Long, ByRef selected As Long, _
    ByVal ignored As Long, ByRef group As Long, ByVal tol As Double, ByVal pairCheck As Integer, _
    ByVal keepGoing As Integer, ByVal fromLast As Integer, ByVal otherGroupsOnly As Integer, _
    ByRef status As Long, ByRef tolerance As Double, ByRef vif As Double)

' ---- fitting/newton_raphson ----

Public Declare PtrSafe Function NewtonRaphson CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef constraints As Long, ByRef g As Double, _
    ByRef H As Double, ByVal tol As Double, ByRef se As Double, ByRef Hinv As Double, _
    ByVal limitStep As Integer, ByVal maxStep As Double) As Long

#Else

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
    ByRef max As Double, ByRef mask As Boolean, ByVal mode As Integer)
Public Declare Sub VB_M_MinMaxSPV_T CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Boolean, ByVal mode As Integer)
Public Declare Sub VB_M_MinMax CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef min As Double, _
    ByRef max As Double, ByRef mask As Boolean, ByVal mode As Integer)
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
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef mask As Boolean, _
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

' ---- elementary/packed_storage ----

Public Declare Sub V_GetPositionInMatNNm1o2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare Sub VB_V_GetPositionInMatNNm1o2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)
Public Declare Sub VB_V_GetPositionInMatNN CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal k As Long, ByVal n As Long, ByRef i As Long, ByRef j As Long)

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

' ---- elementary/sums_and_norms ----

Public Declare Function VB_M_SumOfElem CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Double
Public Declare Function VB_M_Trace CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long) As Double
Public Declare Function VB_M_FrobeniusNorm CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double) As Double
Public Declare Sub VB_M_SumByCols CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare Sub VB_M_SumByRows CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare Sub VB_M_SquaredRows CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare Sub VB_M_SquaredColumns CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)

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

' ---- elementary/distances ----

Public Declare Sub VB_M_EuclidDist2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef w As Double, ByVal betweenRows As Integer)

' ---- elementary/gauss ----

Public Declare Function VB_V_Gauss CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Long
Public Declare Function VB_M_Gauss CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal m As Long, ByRef b As Double) As Long

' ---- elementary/filling ----

Public Declare Sub VB_InitVectorToFalse CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Boolean, ByVal n As Long)
Public Declare Sub VB_InitVectorToTrue CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Boolean, ByVal n As Long)
Public Declare Sub VB_V_SetToValue CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByVal value As Double)
Public Declare Sub VB_V_SetToValueLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Long, ByVal n As Long, ByVal value As Long)
Public Declare Sub VB_V_SetToValueStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal v As Long, ByVal n As Long, ByRef value As Long)
Public Declare Sub VB_V_Set1toNDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long)
Public Declare Sub VB_V_Set1toNLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Long, ByVal n As Long)

' ---- elementary/array_copies ----

Public Declare Sub VB_V_DuplicateDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal n As Long, ByRef dst As Double)
Public Declare Sub VB_V_DuplicateLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Long, ByVal n As Long, ByRef dst As Long)
Public Declare Sub VB_V_DuplicateDblToLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal n As Long, ByRef dst As Long)
Public Declare Sub VB_V_DuplicateLngToDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Long, ByVal n As Long, ByRef dst As Double)
Public Declare Sub VB_V_DuplicateStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal n As Long, ByVal dst As Long)
Public Declare Sub VB_M_DuplicateStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal r As Long, ByVal c As Long, ByVal dst As Long)
Public Declare Sub VB_M_DuplicateDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal r As Long, ByVal c As Long, ByRef dst As Double)
Public Declare Sub VB_M_DuplicateLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Long, ByVal r As Long, ByVal c As Long, ByRef dst As Long)
Public Declare Sub VB_M_CopyResize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal r As Long, ByVal c As Long, ByRef dst As Double, _
    ByVal newR As Long, ByVal newC As Long)
Public Declare Sub VB_M_CopyResizeStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal r As Long, ByVal c As Long, ByVal dst As Long, _
    ByVal newR As Long, ByVal newC As Long)
Public Declare Sub VB_V_ReverseDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double)
Public Declare Sub V_ReverseBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long, ByRef out As Boolean)
Public Declare Sub VB_V_ReverseBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long, ByRef out As Boolean)

' ---- elementary/transposition ----

Public Declare Sub VB_M_Transpose CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long, ByRef out As Double)
Public Declare Sub VB_M_TransposeLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Long, ByVal r As Long, ByVal c As Long, ByRef out As Long)
Public Declare Sub VB_M_TransposeStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal r As Long, ByVal c As Long, ByVal out As Long)
Public Declare Sub VB_M_Transpose2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long)
Public Declare Sub VB_M_Transpose2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Long, ByVal r As Long, ByVal c As Long)
Public Declare Sub VB_M_Transpose2Str CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal r As Long, ByVal c As Long)
Public Declare Sub VB_M_TransposeSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal r As Long, ByVal c As Long, ByVal out As Long)

' ---- elementary/horizontal_merges ----

Public Declare Sub VB_HMergeVectors CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, _
    ByRef out As Double)
Public Declare Sub VB_HMergeTableVect CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef t As Double, ByVal r As Long, ByVal c As Long, ByRef v As Double, ByVal n As Long, _
    ByRef out As Double)
Public Declare Sub VB_HMergeTableVect2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef t As Double, ByVal r As Long, ByVal c As Long, ByRef v As Double, ByVal n As Long)
Public Declare Sub VB_HMergeVectTable CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef t As Double, ByVal r As Long, ByVal c As Long, _
    ByRef out As Double)
Public Declare Sub VB_HMergeVectColDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef t As Double, ByVal r As Long, ByVal col As Long, _
    ByRef out As Double)
Public Declare Sub VB_HMergeTablesDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long, ByRef out As Double)
Public Declare Sub VB_HMergeTablesDbl2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare Sub VB_HMergeTablesDbl2SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare Sub VB_HMergeTablesDbl2SPV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal r1 As Long, ByVal c1 As Long, ByVal b As Long, _
    ByVal r2 As Long, ByVal c2 As Long)
Public Declare Sub VB_HMergeTablesLng2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Long, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Long, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare Sub VB_HMergeTablesBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Boolean, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Boolean, _
    ByVal r2 As Long, ByVal c2 As Long, ByRef out As Boolean)
Public Declare Sub VB_HMergeTablesBool2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Boolean, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Boolean, _
    ByVal r2 As Long, ByVal c2 As Long)
Public Declare Sub VB_HMergeTablesStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal r1 As Long, ByVal c1 As Long, ByVal b As Long, _
    ByVal r2 As Long, ByVal c2 As Long, ByVal out As Long)
Public Declare Sub VB_HMergeTablesStr2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal r1 As Long, ByVal c1 As Long, ByVal b As Long, _
    ByVal r2 As Long, ByVal c2 As Long)

' ---- elementary/vertical_merges ----

Public Declare Sub VB_VMergeVectorsDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, _
    ByRef out As Double)
Public Declare Sub VB_VMergeVectorsDbl2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long)
Public Declare Sub VB_VMergeVectorsStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal nA As Long, ByVal b As Long, ByVal nB As Long, _
    ByVal out As Long)
Public Declare Sub VB_VMergeVectorsStr2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal nA As Long, ByVal b As Long, ByVal nB As Long)
Public Declare Sub VB_VMergeVectorsBool2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Boolean, ByVal nA As Long, ByRef b As Boolean, ByVal nB As Long)
Public Declare Sub VB_VMergeTablesDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long, ByRef out As Double)

' ---- elementary/columns_and_rows ----

Public Declare Sub VB_CopyMatrixColToMatrixCol CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal n As Long, ByVal col As Long, ByRef dst As Double, _
    ByVal dstCol As Long, ByVal prepare As Integer)
Public Declare Sub VB_CopyMatrixColToVector CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal n As Long, ByVal col As Long, ByRef v As Double)
Public Declare Sub VB_CopyMatrixRowToMatrixRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal row As Long, _
    ByRef dst As Double, ByVal dstRows As Long, ByVal dstRow As Long, ByVal prepare As Integer)
Public Declare Sub VB_CopyMatrixColToOneColMatStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal n As Long, ByVal col As Long, ByVal out As Long)

' ---- elementary/blocks ----

Public Declare Sub VB_M_CopyBlock CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long, ByVal c1 As Long, ByVal c2 As Long, ByRef dst As Double)
Public Declare Sub VB_M_CopyBlockSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal r1 As Long, ByVal r2 As Long, ByVal c1 As Long, _
    ByVal c2 As Long, ByRef dst As Double)
Public Declare Sub VB_M_CopyBlockStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long, ByVal c1 As Long, ByVal c2 As Long, ByVal dst As Long)
Public Declare Sub VB_M_DuplicateStrSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal rows As Long, ByVal cols As Long, ByVal dst As Long)
Public Declare Sub VB_M_PasteBlock CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByRef dst As Double, _
    ByVal dstRows As Long, ByVal dstCols As Long, ByVal row As Long, ByVal col As Long)
Public Declare Sub VB_M_PasteBlockLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Long, ByVal rows As Long, ByVal cols As Long, ByRef dst As Long, _
    ByVal dstRows As Long, ByVal dstCols As Long, ByVal row As Long, ByVal col As Long)
Public Declare Sub VB_M_CopyToBigger CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByRef dst As Double, _
    ByVal dstRows As Long, ByVal dstCols As Long)

' ---- elementary/extraction ----

Public Declare Sub VB_M_ExtractMatToMatDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long, ByRef out As Double)
Public Declare Sub VB_M_ExtractMatToMatDblSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal cols As Long, ByVal from As Long, ByVal toArg As Long, _
    ByRef out As Double)
Public Declare Sub VB_M_ExtractMatToMatStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long, ByVal out As Long)
Public Declare Sub VB_M_ExtractMatToMatStrSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal src As Long, ByVal cols As Long, ByVal from As Long, ByVal toArg As Long, _
    ByVal out As Long)
Public Declare Sub VB_M_ExtractMatToMatByColDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef src As Double, ByVal rows As Long, ByVal from As Long, ByVal toArg As Long, _
    ByRef out As Double)

' ---- elementary/removal ----

Public Declare Sub VB_M_RemoveCol CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByRef out As Double)
Public Declare Sub VB_M_RemoveRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal row As Long, _
    ByRef out As Double)
Public Declare Sub VB_M_MoveRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long)
Public Declare Sub VB_M_RemoveCols2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long)
Public Declare Sub VB_M_RemoveRows2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long)
Public Declare Function VB_M_RemoveRowsInList CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef flags As Long, _
    ByVal nOut As Long, ByRef out As Double) As Long
Public Declare Function VB_M_RemoveColsInList CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef flags As Long, _
    ByVal nOut As Long, ByRef out As Double) As Long

' ---- matrix ----

Public Declare Function sqr2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Double) As Double

' ---- elementary/vector_sums ----

Public Declare Function VB_V_Sum2Dbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare Function VB_V_Sum2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare Function VB_V_SumFromTo CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Double
Public Declare Function VB_V_SumFromToLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Long
Public Declare Function VB_V_Sum CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double) As Double
Public Declare Function VB_V_SumSq CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare Function VB_V_SumSqW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double
Public Declare Function VB_V_DiffSq CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare Function VB_V_DiffSqW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef w As Double) As Double

' ---- elementary/vector_counts ----

Public Declare Function VB_V_NbTrue CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long) As Long
Public Declare Function V_NbTrue CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long) As Long
Public Declare Function VB_V_NbTrueFromTo CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Long
Public Declare Function V_NbTrueFromTo CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Boolean, ByVal from As Long, ByVal toArg As Long) As Long

' ---- elementary/vector_updates ----

Public Declare Sub VB_V_RemoveVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal pos As Long, ByRef out As Double)
Public Declare Sub VB_V_PlusVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByRef mask As Boolean)
Public Declare Sub VB_V_PlusVal2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double)
Public Declare Sub VB_V_Norm CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long)
Public Declare Sub VB_V_NormToVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double)
Public Declare Sub VB_V_NormW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double)
Public Declare Sub VB_V_NormToValW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByRef w As Double)
Public Declare Sub VB_V_ReplaceVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Double, ByVal toArg As Double, _
    ByRef out As Double)
Public Declare Sub VB_V_ReplaceVal2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Double, ByVal toArg As Double)

' ---- elementary/extremes ----

Public Declare Function VB_V_Min CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean) As Double
Public Declare Function VB_V_Max CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean) As Double
Public Declare Function VB_V_Min2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare Function VB_V_Max2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare Function VB_V_Min2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare Function VB_V_Max2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare Function VB_V_MaxInt CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByRef mask As Boolean) As Long
Public Declare Function VB_V_MinAndMinPos CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long) As Double
Public Declare Function VB_V_MaxAndMaxPos CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long) As Double
Public Declare Sub VB_V_MinMax CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef mask As Boolean)
Public Declare Sub VB_V_MinMaxLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef mask As Boolean)

' ---- elementary/conditional_aggregates ----

Public Declare Function VB_V_SumIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare Function VB_V_SumIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByRef w As Double, _
    ByVal val As Double) As Double
Public Declare Function VB_V_MaxIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare Function VB_V_MinIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare Function VB_V_NbIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double) As Double
Public Declare Function VB_V_NbIfLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByVal val As Long) As Long
Public Declare Function VB_V_NbIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal val As Double) As Double

' ---- sorting/sort_apply ----

Public Declare Sub VB_SortApply CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef source As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByRef out As Double)
Public Declare Sub VB_SortApply2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)
Public Declare Sub VB_SortApplyLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef source As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByRef out As Long)
Public Declare Sub VB_SortApply2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)
Public Declare Sub VB_SortApplyStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal source As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByVal out As Long)
Public Declare Sub VB_SortApply2Str CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)

' ---- sorting/ranks ----

Public Declare Sub VB_V_GetRanksDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef ranks As Double)
Public Declare Sub VB_V_GetRanksLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef ranks As Long)
Public Declare Sub VB_V_GetRanksTiesDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double)
Public Declare Sub VB_V_GetRanksTiesIntDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double)
Public Declare Function VB_V_IsSorted CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal strict As Integer) As Integer
Public Declare Function VB_V_TimeIntervalSize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef t As Double, ByVal n As Long, ByVal sorted As Integer) As Double

' ---- sorting/sort ----

Public Declare Function VB_SortQVectorDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare Function VB_SortQVectorLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare Function VB_SortQVectorStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare Function VB_SortQMatrixCol CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal col As Long, _
    ByVal first As Long, ByVal last As Long, ByVal descending As Integer) As Long
Public Declare Function VB_SortQMatrixColStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal col As Long, _
    ByVal first As Long, ByVal last As Long, ByVal descending As Integer) As Long
Public Declare Function VB_SortMatrixSeqQDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, _
    ByVal lastToFirst As Integer) As Long
Public Declare Function VB_SortMatrixSeqQLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal lastToFirst As Integer) As Long
Public Declare Function VB_SortMatrixSeqQP1toP2Dbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal firstCol As Long, _
    ByVal lastCol As Long, ByVal lastToFirst As Integer) As Long
Public Declare Function VB_SortMatrixSeqQP1toP2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal firstCol As Long, _
    ByVal lastCol As Long, ByVal lastToFirst As Integer) As Long
Public Declare Function VB_SortQDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare Function VB_SortQDbl2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Long, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare Function VB_SortQLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Long, ByRef companion As Long, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare Function VB_SortQBool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Boolean, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare Function VB_SortQStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare Function VB_SortQByColDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionRows As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare Function VB_SortQDblSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare Function VB_SortQStrSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare Function VB_SortDataBy01 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare Function VB_SortDataBy01Bool CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Boolean, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare Function VB_SortDataBy01SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As Long, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare Function VB_SortDataBy01Str CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As Long, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long

' ---- missing/missing_counts ----

Public Declare Function IsMissingValueDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Double) As Integer
Public Declare Function VB_IsMissingValueDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Double) As Integer
Public Declare Function VB_IsMissingValueStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef s As Long) As Integer
Public Declare Function VB_V_NbMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare Function VB_V_NbNonMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare Function VB_V_NbMissingStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal n As Long) As Long
Public Declare Sub VB_M_NbMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare Sub VB_M_NbMissingStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare Function VB_M_NbMissing2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long) As Long
Public Declare Function VB_M_NbMissing2Str CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal nRows As Long, ByVal nCols As Long) As Long
Public Declare Sub VB_M_NbNonMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare Function VB_M_NbMissingSPV_T CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal n As Long, ByVal unused As Long) As Long

' ---- missing/missing_masks ----

Public Declare Sub VB_SummarizeMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByRef total As Long, ByRef out As Boolean, ByRef a As Boolean, _
    ByRef b As Boolean, ByRef c As Boolean)
Public Declare Sub VB_SummarizeAllMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByRef a As Boolean, ByRef b As Boolean, ByRef total As Long, _
    ByRef out As Boolean)
Public Declare Sub VB_M_AllMissingRows CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef filter As Boolean, _
    ByRef out As Boolean)
Public Declare Sub VB_M_AllMissingRowsStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef filter As Boolean, _
    ByRef out As Boolean)
Public Declare Sub VB_V_GetMissingDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef a As Boolean, ByRef out As Boolean)
Public Declare Sub VB_V_GetMissingStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal n As Long, ByRef a As Boolean, ByRef out As Boolean)

' ---- missing/replacement ----

Public Declare Sub VB_M_ReplaceMissingByVal CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal value As Double)
Public Declare Sub VB_M_ReplaceMissingByValSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal value As Double)
Public Declare Sub VB_M_ReplaceMissingByStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef value As Long)
Public Declare Sub VB_M_SetWeightsToZeroForMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef weights As Double, _
    ByVal nWeightCols As Long)

' ---- missing/observation_labels ----

Public Declare Sub VB_ReplaceMissingObsLabels CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal labels As Long, ByVal n As Long, ByRef mask As Boolean, ByRef prefix As Long)

' ---- missing/complete_rows ----

Public Declare Sub VB_RemoveRowsWithMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal nRemoved As Long, _
    ByRef mask As Boolean, ByRef out As Double)
Public Declare Sub VB_RemoveRowsWithMissingStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal data As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal nRemoved As Long, _
    ByRef mask As Boolean, ByVal out As Long)

' ---- missing/missing_arithmetic ----

Public Declare Function VB_V_SumIfNotMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double) As Double
Public Declare Function VB_M_ProductABMissing CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nInner As Long, ByRef b As Double, _
    ByVal nCols As Long, ByRef c As Double) As Long

' ---- missing/mean_imputation ----

Public Declare Sub VB_EstimateRowsWithMissingMean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingMeanPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef statX As Double, ByVal nStat As Long, ByRef X As Double, ByVal nRows As Long, _
    ByVal nCols As Long, ByRef mask As Boolean, ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingMeanSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef weights As Double)

' ---- missing/mode_imputation ----

Public Declare Sub VB_EstimateRowsWithMissingMode CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal n As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingModePred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal statS As Long, ByVal nStat As Long, ByVal S As Long, ByVal nRows As Long, _
    ByVal nCols As Long, ByRef mask As Boolean, ByRef weights As Double)

' ---- missing/new_variables ----

Public Declare Sub VB_ComputeNewVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef Q As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef C As Double, _
    ByRef variances As Double, ByRef covariances As Double)

' ---- missing/nearest_neighbour ----

Public Declare Sub VB_EstimateRowsWithMissingNN CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Double, ByVal nColsY As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal P As Long, ByVal n As Long, ByVal nColsP As Long, ByRef mask As Boolean, _
    ByRef Y As Double, ByVal nColsY As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Double, ByVal nColsY As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNSPV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByVal Y As Long, ByVal nColsY As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef statX As Double, ByVal nStat As Long, ByRef X As Double, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Double, ByRef Y As Double, _
    ByVal nColsY As Long, ByVal statS As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNStrPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal statX As Long, ByVal nStat As Long, ByVal X As Long, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Double, ByRef Y As Double, _
    ByVal nColsY As Long, ByVal statS As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)

' ---- qualitative/categories ----

Public Declare Sub VB_M_InfoQuali CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal modes As Long, _
    ByRef modeWeights As Double, ByRef total As Long, ByRef nCats As Long, _
    ByVal categories As Long, ByRef catWeights As Double, ByVal ignored As Long, _
    ByRef weights As Double, ByVal sortCats As Integer)
Public Declare Sub VB_M_InfoQuali2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal maxCats As Long, _
    ByRef nCats As Long, ByVal modes As Long, ByRef modeWeights As Double, _
    ByRef total As Long, ByVal categories As Long, ByRef catWeights As Double, _
    ByVal ignored As Long, ByRef weights As Double, ByVal sortCats As Integer)
Public Declare Sub VB_M_InfoQualiValid CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal maxCats As Long, _
    ByVal ignored1 As Long, ByRef nCats As Long, ByVal categories As Long, _
    ByRef catWeights As Double, ByRef invalid As Boolean, ByVal ignored2 As Long, _
    ByRef weights As Double)

' ---- qualitative/moments_of_one_column ----

Public Declare Sub VB_M_MeanStDevVarOneInMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal col As Long, ByRef mean As Double, _
    ByRef stdDev As Double, ByRef variance As Double, ByVal ignored As Long, _
    ByRef weights As Double, ByVal sampleVariance As Integer, ByVal countDivisor As Integer)

' ---- qualitative/frequencies ----

Public Declare Function VB_V_Freq CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByVal value As Double, _
    ByVal tolerance As Double) As Double
Public Declare Function VB_V_FreqLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByRef weights As Double, ByVal value As Long) As Long
Public Declare Function VB_V_FreqStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal n As Long, ByRef weights As Double, ByRef value As Long) As Double

' ---- qualitative/modes ----

Public Declare Function VB_V_Mode CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal n As Long, ByVal ignored As Long, ByRef weights As Double) As Long
Public Declare Function VB_V_ModeCatDbl CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double

' ---- qualitative/disjunctive_tables ----

Public Declare Sub VB_BuildDisjunctiveTable CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal totalCats As Long, _
    ByRef nCats As Long, ByVal categories As Long, ByRef freq As Double, _
    ByVal maxCats As Long, ByRef out As Double, ByVal coding As Long, ByVal keepBaseline As Long)
Public Declare Function VB_M_IsDisjTable CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef rowSum As Long) As Integer

' ---- qualitative/recoding ----

Public Declare Sub VB_M_ReplaceCatByCodes CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As Long, ByRef out As Double)
Public Declare Sub VB_M_ReplaceStrByCodes CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As Long, ByRef mask As Boolean, ByVal firstCode As Long, _
    ByRef out As Double)
Public Declare Sub VB_M_Binarize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef out As Double)
Public Declare Sub VB_M_Binarize2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long)
Public Declare Sub VB_M_Binarize2SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long)

' ---- qualitative/indicators ----

Public Declare Function VB_V_Is01 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare Function VB_V_IsWeights CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare Function VB_V_IsCWeights CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare Function VB_V_IsIndicator CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare Function VB_V_IsIndicatorSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal nRows As Long, ByVal nCols As Long) As Integer

' ---- qualitative/group_by ----

Public Declare Sub VB_M_GroupBy CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef colTypes As Long, _
    ByVal keyCol As Long, ByVal aggregate As Long, ByRef nGroups As Long, ByRef out As Double)
Public Declare Sub VB_M_GroupByW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef colTypes As Long, _
    ByVal keyCol As Long, ByVal aggregate As Long, ByRef nGroups As Long, ByRef out As Double, _
    ByRef weights As Double)

' ---- qualitative/distinct ----

Public Declare Sub VB_M_Dedupe CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef nKept As Long, _
    ByRef out As Double)
Public Declare Sub VB_V_ExtractDistinct CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef distinct As Double, ByRef count As Long)
Public Declare Function VB_V_NbDistinct CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare Function VB_V_NbDistinctLng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long

' ---- qualitative/labels ----

Public Declare Sub VB_V_ReplaceDoubles CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal n As Long)

' ---- descriptive/covariance_with_moments ----

Public Declare Function INDEX3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal i As Long, ByVal j As Long) As Long
Public Declare Function VB_M_CovCorrAndMeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal center As Integer, ByVal reduce As Integer) As Long
Public Declare Function VB_M_CovCorrVAndMeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal center As Integer, ByVal reduce As Integer) As Long

' ---- descriptive/covariance ----

Public Declare Function VB_M_CovCorr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByVal corr As Integer, ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer) As Long

' ---- descriptive/cross_correlation ----

Public Declare Function VB_M_CorrMatMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Boolean, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare Function VB_M_CorrMatMatSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Boolean, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare Function VB_CorrelPearson CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByRef y As Double, ByVal n As Long, ByRef mask As Boolean, _
    ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer) As Double

' ---- descriptive/correlation_of_covariance ----

Public Declare Function VB_M_CorrMatFromCovMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef S As Double, ByVal p As Long, ByRef R As Double) As Long

' ---- descriptive/triangular_fit ----

Public Declare Sub TriangularQFindAB CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, ByVal prob1 As Double, _
    ByVal prob2 As Double, ByRef a As Double, ByRef b As Double)
Public Declare Function TriangularFunc CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal b As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double
Public Declare Function TriangularFuncDeriv CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal b As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double
Public Declare Function TriangularFunc2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal a As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double

' ---- descriptive/forecast_errors ----

Public Declare Function VB_MAPE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare Function VB_MPE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare Function VB_MAE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare Function VB_RMSE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef Y As Double, ByVal n As Long, ByVal p As Long, ByRef F As Double, _
    ByVal divisor As Long) As Double

' ---- descriptive/means ----

Public Declare Function VB_V_Mean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double) As Double
Public Declare Function VB_V_Mean2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long) As Double
Public Declare Function VB_V_MeanAbs CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double) As Double
Public Declare Function VB_M_Mean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByVal ignored As Long, ByRef w As Double) As Long

' ---- descriptive/moments ----

Public Declare Function VB_V_Var CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare Function VB_V_Stdev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare Sub VB_V_MeanVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer)
Public Declare Sub VB_V_MeanStdev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef stdev As Double, _
    ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer)
Public Declare Function VB_M_MeanStDev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByRef mask As Boolean, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal ignoreMask As Integer) As Long
Public Declare Function VB_M_MeanStDevByRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer) As Long
Public Declare Function VB_M_MeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByRef var As Double, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Long

' ---- descriptive/shape_moments ----

Public Declare Sub VB_V_MeanVarSkewPKurtP CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef skewP As Double, ByRef kurtP As Double, ByRef skewS As Double, ByRef kurtS As Double, _
    ByRef seSkew As Double, ByRef seKurt As Double, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)

' ---- descriptive/conditional_moments ----

Public Declare Function VB_V_MeanIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByVal value As Double) As Double
Public Declare Function VB_V_MeanIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal value As Double) As Double
Public Declare Function VB_V_VarIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByVal value As Double, _
    ByVal sample As Integer) As Double
Public Declare Function VB_V_VarIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal value As Double, ByVal sample As Integer) As Double

' ---- descriptive/quantiles ----

Public Declare Function VB_V_Quantile CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Double) As Double
Public Declare Function VB_V_QuantileW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef w As Double, ByVal p As Double) As Double
Public Declare Function VB_V_QuantileM CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByVal p As Double) As Double
Public Declare Function VB_V_QuantileMW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal p As Double) As Double

' ---- descriptive/column_scaling ----

Public Declare Sub VB_M_Center CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double)
Public Declare Sub VB_M_CenterW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef Z As Double)
Public Declare Sub VB_M_Center2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long)
Public Declare Sub VB_M_Center2SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal p As Long)
Public Declare Sub VB_M_CenterW2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double)
Public Declare Sub VB_M_Reduce CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Sub VB_M_ReduceW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef Z As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Sub VB_M_Reduce2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare Sub VB_M_ReduceW2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Sub VB_M_Standardize2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare Sub VB_M_Standardize2SPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare Sub VB_M_Standardize3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Sub VB_M_StandardizeW2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Sub VB_M_StandardizeW3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer)

' ---- descriptive/standardisation ----

Public Declare Sub VB_M_Standardize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByRef mask As Boolean, _
    ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Sub VB_M_StandardizeW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer, ByRef Z As Double)
Public Declare Sub VB_M_StandardizeKnownMeansStDev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef Z As Double, ByRef stdev As Double, ByRef var As Double, ByRef mask As Boolean)
Public Declare Sub VB_M_StandardizeMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal nY As Long, _
    ByRef V As Double, ByVal nV As Long)
Public Declare Sub VB_V_Standardize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByRef z As Double)
Public Declare Sub VB_V_Standardize2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean, ByRef w As Double, _
    ByVal sample As Integer)
Public Declare Sub VB_M_StandardizeByVect CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef a As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByRef Z As Double)
Public Declare Sub VB_M_StandardizeByVect2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef a As Boolean, ByRef w As Double, _
    ByVal sample As Integer)

' ---- descriptive/rescaling ----

Public Declare Sub VB_M_Normalize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef norms As Double, _
    ByRef mask As Boolean, ByRef w As Double)
Public Declare Sub VB_M_NormalizeMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal nY As Long, _
    ByRef V As Double, ByVal nV As Long)
Public Declare Sub VB_V_Rescale CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByVal low As Double, ByVal high As Double, _
    ByRef mask As Boolean, ByRef out As Double)
Public Declare Sub VB_V_Rescale2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal low As Double, ByVal high As Double, _
    ByRef mask As Boolean)
Public Declare Sub VB_M_RescaleByVect CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal low As Double, _
    ByVal high As Double, ByRef a As Boolean, ByRef Z As Double)
Public Declare Sub VB_M_RescaleByVect2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal low As Double, _
    ByVal high As Double, ByRef a As Boolean)

' ---- randomisation/permutations ----

Public Declare Function GenerateRandom01 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long) As Double
Public Declare Sub VB_GenerateRandomIndicator CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef out As Double, ByVal n As Long, ByVal k As Long, ByRef seed As Long, _
    ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare Sub VB_GenerateIndicator CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef out As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long)

' ---- randomisation/column_addresses ----

Public Declare Function SimplifyRange CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal inputArg As Long) As Long
Public Declare Function Increase1Col CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal letters As Long) As Long

' ---- randomisation/sampling_with_repeats ----

Public Declare Sub VB_M_SamplingWithReplacement CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare Sub VB_M_SamplingWithReplacementSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare Sub VB_M_SampleUserDefined CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal Z As Long, _
    ByRef freq As Double, ByRef ids As Double)
Public Declare Sub VB_M_SampleUserDefinedSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal Z As Long, _
    ByRef freq As Double, ByRef ids As Double)

' ---- randomisation/interval_sampling ----

Public Declare Sub VB_M_SamplingSystematicRdStart CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare Sub VB_M_SamplingSystematicRdStartSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare Sub VB_M_SamplingSystematicCentered CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef ids As Double)
Public Declare Sub VB_M_SamplingSystematicCenteredSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef ids As Double)
Public Declare Sub VB_M_SamplingRandomStratified CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare Sub VB_M_SamplingRandomStratifiedSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)

' ---- randomisation/stratified_sampling ----

Public Declare Sub VB_M_SamplingRandomStratifiedByStrSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal S As Long, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As Long, _
    ByRef rowIds As Double, ByRef outIds As Double, ByRef strata As Double, _
    ByRef quota As Double, ByRef sizes As Double, ByVal nStrata As Long, ByRef seed As Long, _
    ByVal seedFlag As Integer, ByRef seedOut As Long)

' ---- decompositions/eigen ----

Public Declare Function VB_M_Eigen CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByRef values As Double, ByRef vectors As Double, ByVal n As Long, _
    ByVal sort As Integer) As Long

' ---- decompositions/axis_selection ----

Public Declare Sub VB_FilterEigen CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef eig As Double, ByVal n As Long, ByVal drop As Integer, ByVal floor As Double, _
    ByVal cumPercent As Double, ByVal maxCount As Long, ByVal minValue As Double, _
    ByRef kept As Long, ByRef selected As Long, ByRef percent As Double)

' ---- decompositions/lu ----

Public Declare Function VB_M_LUDecomp CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef index As Long, ByRef d As Double, _
    ByRef status As Integer) As Long

' ---- decompositions/determinants ----

Public Declare Function VB_M_Determinant CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double
Public Declare Function VB_M_DeterminantTriang CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double

' ---- decompositions/cholesky ----

Public Declare Function VB_M_CholDecomp CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double) As Long
Public Declare Function VB_M_CholDecompPrinc CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double, ByRef perm As Long, _
    ByVal keep As Integer) As Long
Public Declare Function VB_M_CholDecompCleaned CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef mask As Long, ByRef l As Double) As Long

' ---- decompositions/generalised_inverses ----

Public Declare Function VB_M_InvGeneralized CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double, _
    ByRef rank As Long) As Long
Public Declare Function VB_M_InvGeneralizedSym CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double, _
    ByRef rank As Long) As Long

' ---- decompositions/constrained_inverses ----

Public Declare Function CleanConstraintsAndInvert CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef a As Double, ByRef out As Double) As Long
Public Declare Function CleanConstraintsAndInvertTriang CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef a As Double, ByVal lower As Integer, _
    ByRef out As Double) As Long
Public Declare Function VB_M_DeterminantCleaned CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef constraints As Long, ByRef status As Integer) As Double

' ---- decompositions/inversion ----

Public Declare Function VB_M_Inverse1 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double) As Long
Public Declare Function VB_M_InverseTriang CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal lower As Integer, ByRef out As Double, _
    ByVal tol As Double) As Long

' ---- decompositions/sweep ----

Public Declare Function VB_M_Sweep CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal k As Long) As Long

' ---- decompositions/inverse_products ----

Public Declare Sub VB_M_ProductTrAinvBA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare Function VB_M_ProductTrVinvBV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare Sub VB_M_ProductAinvBTrA CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)

' ---- decompositions/singular_values ----

Public Declare Function VB_M_SVDecomp CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Double, _
    ByVal ldu As Long, ByRef v As Double, ByVal ldv As Long, ByVal job As Long, _
    ByRef info As Long) As Long
Public Declare Function VB_M_SVDecompSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal x As Long, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByVal u As Long, _
    ByVal ldu As Long, ByVal v As Long, ByVal ldv As Long, ByVal job As Long, _
    ByRef info As Long) As Long
Public Declare Function VB_M_Rank CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long) As Long

' ---- decompositions/level1_routines ----

Public Declare Sub drotg CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByRef b As Double, ByRef c As Double, ByRef s As Double)

' ---- fitting/biplots ----

Public Declare Sub VB_BiplotTransData CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef rows As Double, ByRef sup As Double, ByRef cols As Double, ByVal nA As Long, _
    ByVal nB As Long, ByVal m As Long, ByVal k As Long, ByRef eigen As Double, _
    ByVal factor As Double, ByVal alpha As Double, ByRef obs As Double, ByRef var As Double)
Public Declare Sub VB_BiplotTransDataSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal rows As Long, ByRef sup As Double, ByVal cols As Long, ByVal nA As Long, _
    ByVal nB As Long, ByVal m As Long, ByVal storedAxes As Long, ByVal k As Long, _
    ByRef eigen As Double, ByVal factor As Double, ByVal alpha As Double, ByRef obs As Double, _
    ByRef var As Double)
Public Declare Sub ComputeCosines CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef a As Double, ByVal n As Long, ByVal k As Long, ByRef out As Double)

' ---- fitting/least_squares ----

Public Declare Function RunOLSBasic CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef fitted As Double) As Long
Public Declare Function RunOLSBasic2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef se As Double, ByRef fitted As Double) As Long
Public Declare Function RunOLSBasic3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef se As Double, ByRef fitted As Double, _
    ByRef swept As Double, ByRef mean As Double, ByRef sd As Double) As Long

' ---- fitting/least_squares_blocks ----

Public Declare Function RunOLSBasic2Lg CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal n As Long, ByVal p1 As Long, ByRef X1 As Double, ByVal p2 As Long, ByRef X2 As Double, _
    ByVal p3 As Long, ByRef X3 As Double, ByVal p4 As Long, ByRef X4 As Double, _
    ByVal p5 As Long, ByRef X5 As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef se As Double, ByRef fitted As Double) As Long

' ---- fitting/tolerance_check ----

Public Declare Sub VB_CheckTolerance CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef corr As Double, ByVal p As Long, ByVal groupCount As Long, ByRef selected As Long, _
    ByVal ignored As Long, ByRef group As Long, ByVal tol As Double, ByVal pairCheck As Integer, _
    ByVal keepGoing As Integer, ByVal fromLast As Integer, ByVal otherGroupsOnly As Integer, _
    ByRef status As Long, ByRef tolerance As Double, ByRef vif As Double)

' ---- fitting/newton_raphson ----

Public Declare Function NewtonRaphson CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef constraints As Long, ByRef g As Double, _
    ByRef H As Double, ByVal tol As Double, ByRef se As Double, ByRef Hinv As Double, _
    ByVal limitStep As Integer, ByVal maxStep As Double) As Long

#End If
