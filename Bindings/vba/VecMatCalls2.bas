Attribute VB_Name = "VecMatCalls2"
Option Explicit

' Declarations of VecMat for macros: see the module VecMat, which this one needs. Written by tools/bindings.

#If Mac And VBA7 Then

' ---- elementary/sums_and_norms ----

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
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Any) As Double
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

#ElseIf Win64 Then

' ---- elementary/sums_and_norms ----

Public Declare PtrSafe Function VB_M_FrobeniusNorm Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double) As Double
Public Declare PtrSafe Sub VB_M_SumByCols Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_SumByRows Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_SquaredRows Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_SquaredColumns Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double)

' ---- elementary/distances ----

Public Declare PtrSafe Sub VB_M_EuclidDist2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef w As Double, ByVal betweenRows As Integer)

' ---- elementary/gauss ----

Public Declare PtrSafe Function VB_V_Gauss Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Long
Public Declare PtrSafe Function VB_M_Gauss Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal m As Long, ByRef b As Double) As Long

' ---- elementary/filling ----

Public Declare PtrSafe Sub VB_InitVectorToFalse Lib "VecMat.dll" ( _
    ByRef v As Boolean, ByVal n As Long)
Public Declare PtrSafe Sub VB_InitVectorToTrue Lib "VecMat.dll" ( _
    ByRef v As Boolean, ByVal n As Long)
Public Declare PtrSafe Sub VB_V_SetToValue Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByVal value As Double)
Public Declare PtrSafe Sub VB_V_SetToValueLng Lib "VecMat.dll" ( _
    ByRef v As Long, ByVal n As Long, ByVal value As Long)
Public Declare PtrSafe Sub VB_V_SetToValueStr Lib "VecMat.dll" ( _
    ByVal v As LongPtr, ByVal n As Long, ByVal value As LongPtr)
Public Declare PtrSafe Sub VB_V_Set1toNDbl Lib "VecMat.dll" (ByRef v As Double, ByVal n As Long)
Public Declare PtrSafe Sub VB_V_Set1toNLng Lib "VecMat.dll" (ByRef v As Long, ByVal n As Long)

' ---- elementary/array_copies ----

Public Declare PtrSafe Sub VB_V_DuplicateDbl Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal n As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_V_DuplicateLng Lib "VecMat.dll" ( _
    ByRef src As Long, ByVal n As Long, ByRef dst As Long)
Public Declare PtrSafe Sub VB_V_DuplicateDblToLng Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal n As Long, ByRef dst As Long)
Public Declare PtrSafe Sub VB_V_DuplicateLngToDbl Lib "VecMat.dll" ( _
    ByRef src As Long, ByVal n As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_V_DuplicateStr Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal n As Long, ByVal dst As LongPtr)
Public Declare PtrSafe Sub VB_M_DuplicateStr Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal r As Long, ByVal c As Long, ByVal dst As LongPtr)
Public Declare PtrSafe Sub VB_M_DuplicateDbl Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal r As Long, ByVal c As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_M_DuplicateLng Lib "VecMat.dll" ( _
    ByRef src As Long, ByVal r As Long, ByVal c As Long, ByRef dst As Long)
Public Declare PtrSafe Sub VB_M_CopyResize Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal r As Long, ByVal c As Long, ByRef dst As Double, _
    ByVal newR As Long, ByVal newC As Long)
Public Declare PtrSafe Sub VB_M_CopyResizeStr Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal r As Long, ByVal c As Long, ByVal dst As LongPtr, _
    ByVal newR As Long, ByVal newC As Long)
Public Declare PtrSafe Sub VB_V_ReverseDbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double)
Public Declare PtrSafe Sub V_ReverseBool Lib "VecMat.dll" ( _
    ByRef x As Boolean, ByVal n As Long, ByRef out As Boolean)
Public Declare PtrSafe Sub VB_V_ReverseBool Lib "VecMat.dll" ( _
    ByRef x As Boolean, ByVal n As Long, ByRef out As Boolean)

' ---- elementary/transposition ----

Public Declare PtrSafe Sub VB_M_Transpose Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_TransposeLng Lib "VecMat.dll" ( _
    ByRef a As Long, ByVal r As Long, ByVal c As Long, ByRef out As Long)
Public Declare PtrSafe Sub VB_M_TransposeStr Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal r As Long, ByVal c As Long, ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_M_Transpose2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal r As Long, ByVal c As Long)
Public Declare PtrSafe Sub VB_M_Transpose2Lng Lib "VecMat.dll" ( _
    ByRef a As Long, ByVal r As Long, ByVal c As Long)
Public Declare PtrSafe Sub VB_M_Transpose2Str Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal r As Long, ByVal c As Long)
Public Declare PtrSafe Sub VB_M_TransposeSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal r As Long, ByVal c As Long, ByVal out As LongPtr)

' ---- elementary/horizontal_merges ----

Public Declare PtrSafe Sub VB_HMergeVectors Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeTableVect Lib "VecMat.dll" ( _
    ByRef t As Double, ByVal r As Long, ByVal c As Long, ByRef v As Double, ByVal n As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeTableVect2 Lib "VecMat.dll" ( _
    ByRef t As Double, ByVal r As Long, ByVal c As Long, ByRef v As Double, ByVal n As Long)
Public Declare PtrSafe Sub VB_HMergeVectTable Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef t As Double, ByVal r As Long, ByVal c As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeVectColDbl Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef t As Double, ByVal r As Long, ByVal col As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeTablesDbl Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_HMergeTablesDbl2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesDbl2SPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesDbl2SPV2 Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal r1 As Long, ByVal c1 As Long, ByVal b As LongPtr, _
    ByVal r2 As Long, ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesLng2 Lib "VecMat.dll" ( _
    ByRef a As Long, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Long, ByVal r2 As Long, _
    ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesBool Lib "VecMat.dll" ( _
    ByRef a As Boolean, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Boolean, _
    ByVal r2 As Long, ByVal c2 As Long, ByRef out As Boolean)
Public Declare PtrSafe Sub VB_HMergeTablesBool2 Lib "VecMat.dll" ( _
    ByRef a As Boolean, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Boolean, _
    ByVal r2 As Long, ByVal c2 As Long)
Public Declare PtrSafe Sub VB_HMergeTablesStr Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal r1 As Long, ByVal c1 As Long, ByVal b As LongPtr, _
    ByVal r2 As Long, ByVal c2 As Long, ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_HMergeTablesStr2 Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal r1 As Long, ByVal c1 As Long, ByVal b As LongPtr, _
    ByVal r2 As Long, ByVal c2 As Long)

' ---- elementary/vertical_merges ----

Public Declare PtrSafe Sub VB_VMergeVectorsDbl Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_VMergeVectorsDbl2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long)
Public Declare PtrSafe Sub VB_VMergeVectorsStr Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long, _
    ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_VMergeVectorsStr2 Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long)
Public Declare PtrSafe Sub VB_VMergeVectorsBool2 Lib "VecMat.dll" ( _
    ByRef a As Boolean, ByVal nA As Long, ByRef b As Boolean, ByVal nB As Long)
Public Declare PtrSafe Sub VB_VMergeTablesDbl Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long, ByRef out As Double)

' ---- elementary/columns_and_rows ----

Public Declare PtrSafe Sub VB_CopyMatrixColToMatrixCol Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal n As Long, ByVal col As Long, ByRef dst As Double, _
    ByVal dstCol As Long, ByVal prepare As Integer)
Public Declare PtrSafe Sub VB_CopyMatrixColToVector Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal n As Long, ByVal col As Long, ByRef v As Double)
Public Declare PtrSafe Sub VB_CopyMatrixRowToMatrixRow Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal row As Long, _
    ByRef dst As Double, ByVal dstRows As Long, ByVal dstRow As Long, ByVal prepare As Integer)
Public Declare PtrSafe Sub VB_CopyMatrixColToOneColMatStr Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal n As Long, ByVal col As Long, ByVal out As LongPtr)

' ---- elementary/blocks ----

Public Declare PtrSafe Sub VB_M_CopyBlock Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long, ByVal c1 As Long, ByVal c2 As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_M_CopyBlockSPV Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal r1 As Long, ByVal r2 As Long, ByVal c1 As Long, _
    ByVal c2 As Long, ByRef dst As Double)
Public Declare PtrSafe Sub VB_M_CopyBlockStr Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long, ByVal c1 As Long, ByVal c2 As Long, ByVal dst As LongPtr)
Public Declare PtrSafe Sub VB_M_DuplicateStrSPV Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal dst As LongPtr)
Public Declare PtrSafe Sub VB_M_PasteBlock Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByRef dst As Double, _
    ByVal dstRows As Long, ByVal dstCols As Long, ByVal row As Long, ByVal col As Long)
Public Declare PtrSafe Sub VB_M_PasteBlockLng Lib "VecMat.dll" ( _
    ByRef src As Long, ByVal rows As Long, ByVal cols As Long, ByRef dst As Long, _
    ByVal dstRows As Long, ByVal dstCols As Long, ByVal row As Long, ByVal col As Long)
Public Declare PtrSafe Sub VB_M_CopyToBigger Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByRef dst As Double, _
    ByVal dstRows As Long, ByVal dstCols As Long)

' ---- elementary/extraction ----

Public Declare PtrSafe Sub VB_M_ExtractMatToMatDbl Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ExtractMatToMatDblSPV Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal cols As Long, ByVal from As Long, ByVal toArg As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ExtractMatToMatStr Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long, ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_M_ExtractMatToMatStrSPV Lib "VecMat.dll" ( _
    ByVal src As LongPtr, ByVal cols As Long, ByVal from As Long, ByVal toArg As Long, _
    ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_M_ExtractMatToMatByColDbl Lib "VecMat.dll" ( _
    ByRef src As Double, ByVal rows As Long, ByVal from As Long, ByVal toArg As Long, _
    ByRef out As Double)

' ---- elementary/removal ----

Public Declare PtrSafe Sub VB_M_RemoveCol Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_RemoveRow Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal row As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_M_MoveRow Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal r1 As Long, _
    ByVal r2 As Long)
Public Declare PtrSafe Sub VB_M_RemoveCols2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long)
Public Declare PtrSafe Sub VB_M_RemoveRows2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toArg As Long)
Public Declare PtrSafe Function VB_M_RemoveRowsInList Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef flags As Long, _
    ByVal nOut As Long, ByRef out As Double) As Long
Public Declare PtrSafe Function VB_M_RemoveColsInList Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef flags As Long, _
    ByVal nOut As Long, ByRef out As Double) As Long

' ---- matrix ----

Public Declare PtrSafe Function sqr2 Lib "VecMat.dll" (ByVal x As Double) As Double

' ---- elementary/vector_sums ----

Public Declare PtrSafe Function VB_V_Sum2Dbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Sum2Lng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_SumFromTo Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Double
Public Declare PtrSafe Function VB_V_SumFromToLng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Long
Public Declare PtrSafe Function VB_V_Sum Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Any) As Double
Public Declare PtrSafe Function VB_V_SumSq Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_SumSqW Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_V_DiffSq Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare PtrSafe Function VB_V_DiffSqW Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef w As Double) As Double

' ---- elementary/vector_counts ----

Public Declare PtrSafe Function VB_V_NbTrue Lib "VecMat.dll" ( _
    ByRef x As Boolean, ByVal n As Long) As Long
Public Declare PtrSafe Function V_NbTrue Lib "VecMat.dll" ( _
    ByRef x As Boolean, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_NbTrueFromTo Lib "VecMat.dll" ( _
    ByRef x As Boolean, ByVal n As Long, ByVal from As Long, ByVal toArg As Long) As Long

#ElseIf Mac Then

' ---- elementary/sums_and_norms ----

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
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Any) As Double
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

#End If
