Attribute VB_Name = "VecMatCalls3"
Option Explicit

' Declarations of VecMat for macros: see the module VecMat, which this one needs. Written by tools/bindings.

#If Mac And VBA7 Then

' ---- elementary/vector_counts ----

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
    ByRef x As Double, ByVal n As Long, ByRef mask As Any) As Double
Public Declare PtrSafe Function VB_V_Min2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Max2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Min2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_Max2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_MaxInt CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByRef mask As Any) As Long
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
    ByRef b As Boolean, ByRef c As Any)
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

#ElseIf Win64 Then

' ---- elementary/vector_counts ----

Public Declare PtrSafe Function V_NbTrueFromTo Lib "VecMat.dll" ( _
    ByRef x As Boolean, ByVal from As Long, ByVal toArg As Long) As Long

' ---- elementary/vector_updates ----

Public Declare PtrSafe Sub VB_V_RemoveVal Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal pos As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_PlusVal Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_V_PlusVal2 Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double)
Public Declare PtrSafe Sub VB_V_Norm Lib "VecMat.dll" (ByRef x As Double, ByVal n As Long)
Public Declare PtrSafe Sub VB_V_NormToVal Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double)
Public Declare PtrSafe Sub VB_V_NormW Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double)
Public Declare PtrSafe Sub VB_V_NormToValW Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByRef w As Double)
Public Declare PtrSafe Sub VB_V_ReplaceVal Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Double, ByVal toArg As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ReplaceVal2 Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Double, ByVal toArg As Double)

' ---- elementary/extremes ----

Public Declare PtrSafe Function VB_V_Min Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Boolean) As Double
Public Declare PtrSafe Function VB_V_Max Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Any) As Double
Public Declare PtrSafe Function VB_V_Min2 Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Max2 Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_Min2Lng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_Max2Lng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_MaxInt Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef mask As Any) As Long
Public Declare PtrSafe Function VB_V_MinAndMinPos Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long) As Double
Public Declare PtrSafe Function VB_V_MaxAndMaxPos Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long) As Double
Public Declare PtrSafe Sub VB_V_MinMax Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_V_MinMaxLng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef mask As Boolean)

' ---- elementary/conditional_aggregates ----

Public Declare PtrSafe Function VB_V_SumIf Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_SumIfW Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByRef w As Double, _
    ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_MaxIf Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_MinIf Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef key As Double, ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_NbIf Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double) As Double
Public Declare PtrSafe Function VB_V_NbIfLng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal val As Long) As Long
Public Declare PtrSafe Function VB_V_NbIfW Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal val As Double) As Double

' ---- sorting/sort_apply ----

Public Declare PtrSafe Sub VB_SortApply Lib "VecMat.dll" ( _
    ByRef source As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_SortApply2 Lib "VecMat.dll" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)
Public Declare PtrSafe Sub VB_SortApplyLng Lib "VecMat.dll" ( _
    ByRef source As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByRef out As Long)
Public Declare PtrSafe Sub VB_SortApply2Lng Lib "VecMat.dll" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)
Public Declare PtrSafe Sub VB_SortApplyStr Lib "VecMat.dll" ( _
    ByVal source As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double, _
    ByVal out As LongPtr)
Public Declare PtrSafe Sub VB_SortApply2Str Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef order As Double)

' ---- sorting/ranks ----

Public Declare PtrSafe Sub VB_V_GetRanksDbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef ranks As Double)
Public Declare PtrSafe Sub VB_V_GetRanksLng Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef ranks As Long)
Public Declare PtrSafe Sub VB_V_GetRanksTiesDbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double)
Public Declare PtrSafe Sub VB_V_GetRanksTiesIntDbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double)
Public Declare PtrSafe Function VB_V_IsSorted Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal strict As Integer) As Integer
Public Declare PtrSafe Function VB_V_TimeIntervalSize Lib "VecMat.dll" ( _
    ByRef t As Double, ByVal n As Long, ByVal sorted As Integer) As Double

' ---- sorting/sort ----

Public Declare PtrSafe Function VB_SortQVectorDbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortQVectorLng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortQVectorStr Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal first As Long, ByVal last As Long, _
    ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortQMatrixCol Lib "VecMat.dll" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal col As Long, _
    ByVal first As Long, ByVal last As Long, ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortQMatrixColStr Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal col As Long, _
    ByVal first As Long, ByVal last As Long, ByVal descending As Integer) As Long
Public Declare PtrSafe Function VB_SortMatrixSeqQDbl Lib "VecMat.dll" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, _
    ByVal lastToFirst As Integer) As Long
Public Declare PtrSafe Function VB_SortMatrixSeqQLng Lib "VecMat.dll" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal lastToFirst As Integer) As Long
Public Declare PtrSafe Function VB_SortMatrixSeqQP1toP2Dbl Lib "VecMat.dll" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal firstCol As Long, _
    ByVal lastCol As Long, ByVal lastToFirst As Integer) As Long
Public Declare PtrSafe Function VB_SortMatrixSeqQP1toP2Lng Lib "VecMat.dll" ( _
    ByRef table As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal firstCol As Long, _
    ByVal lastCol As Long, ByVal lastToFirst As Integer) As Long
Public Declare PtrSafe Function VB_SortQDbl Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQDbl2 Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Long, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQLng Lib "VecMat.dll" ( _
    ByRef data As Long, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Long, ByRef companion As Long, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQBool Lib "VecMat.dll" ( _
    ByRef data As Boolean, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQStr Lib "VecMat.dll" ( _
    ByVal data As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQByColDbl Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionRows As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQDblSPV Lib "VecMat.dll" ( _
    ByVal data As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortQStrSPV Lib "VecMat.dll" ( _
    ByVal data As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal first As Long, _
    ByVal last As Long, ByRef key As Double, ByRef companion As Double, _
    ByVal nCompanionCols As Long, ByVal descending As Integer, ByVal writeKeys As Integer) As Long
Public Declare PtrSafe Function VB_SortDataBy01 Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare PtrSafe Function VB_SortDataBy01Bool Lib "VecMat.dll" ( _
    ByRef data As Boolean, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare PtrSafe Function VB_SortDataBy01SPV Lib "VecMat.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long
Public Declare PtrSafe Function VB_SortDataBy01Str Lib "VecMat.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef key As Double) As Long

' ---- missing/missing_counts ----

Public Declare PtrSafe Function IsMissingValueDbl Lib "VecMat.dll" (ByVal x As Double) As Integer
Public Declare PtrSafe Function VB_IsMissingValueDbl Lib "VecMat.dll" (ByVal x As Double) As Integer
Public Declare PtrSafe Function VB_IsMissingValueStr Lib "VecMat.dll" ( _
    ByVal s As LongPtr) As Integer
Public Declare PtrSafe Function VB_V_NbMissing Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_NbNonMissing Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_NbMissingStr Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long
Public Declare PtrSafe Sub VB_M_NbMissing Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare PtrSafe Sub VB_M_NbMissingStr Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare PtrSafe Function VB_M_NbMissing2 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long) As Long
Public Declare PtrSafe Function VB_M_NbMissing2Str Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal nRows As Long, ByVal nCols As Long) As Long
Public Declare PtrSafe Sub VB_M_NbNonMissing Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef counts As Long)
Public Declare PtrSafe Function VB_M_NbMissingSPV_T Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal unused As Long) As Long

' ---- missing/missing_masks ----

Public Declare PtrSafe Sub VB_SummarizeMissing Lib "VecMat.dll" ( _
    ByVal n As Long, ByRef total As Long, ByRef out As Boolean, ByRef a As Boolean, _
    ByRef b As Boolean, ByRef c As Any)
Public Declare PtrSafe Sub VB_SummarizeAllMissing Lib "VecMat.dll" ( _
    ByVal n As Long, ByRef a As Boolean, ByRef b As Boolean, ByRef total As Long, _
    ByRef out As Boolean)
Public Declare PtrSafe Sub VB_M_AllMissingRows Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef filter As Boolean, _
    ByRef out As Boolean)
Public Declare PtrSafe Sub VB_M_AllMissingRowsStr Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef filter As Boolean, _
    ByRef out As Boolean)
Public Declare PtrSafe Sub VB_V_GetMissingDbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef a As Boolean, ByRef out As Boolean)
Public Declare PtrSafe Sub VB_V_GetMissingStr Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByRef a As Boolean, ByRef out As Boolean)

' ---- missing/replacement ----

Public Declare PtrSafe Sub VB_M_ReplaceMissingByVal Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal value As Double)
Public Declare PtrSafe Sub VB_M_ReplaceMissingByValSPV Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal value As Double)
Public Declare PtrSafe Sub VB_M_ReplaceMissingByStr Lib "VecMat.dll" ( _
    ByVal a As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal value As LongPtr)
Public Declare PtrSafe Sub VB_M_SetWeightsToZeroForMissing Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef weights As Double, _
    ByVal nWeightCols As Long)

' ---- missing/observation_labels ----

Public Declare PtrSafe Sub VB_ReplaceMissingObsLabels Lib "VecMat.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef mask As Boolean, ByVal prefix As LongPtr)

' ---- missing/complete_rows ----

Public Declare PtrSafe Sub VB_RemoveRowsWithMissing Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByVal nRemoved As Long, _
    ByRef mask As Boolean, ByRef out As Double)
Public Declare PtrSafe Sub VB_RemoveRowsWithMissingStr Lib "VecMat.dll" ( _
    ByVal data As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal nRemoved As Long, _
    ByRef mask As Boolean, ByVal out As LongPtr)

' ---- missing/missing_arithmetic ----

Public Declare PtrSafe Function VB_V_SumIfNotMissing Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double) As Double

#ElseIf Mac Then

' ---- elementary/vector_counts ----

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
    ByRef x As Double, ByVal n As Long, ByRef mask As Any) As Double
Public Declare Function VB_V_Min2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare Function VB_V_Max2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long) As Double
Public Declare Function VB_V_Min2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare Function VB_V_Max2Lng CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long) As Long
Public Declare Function VB_V_MaxInt CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Long, ByVal n As Long, ByRef mask As Any) As Long
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
    ByRef b As Boolean, ByRef c As Any)
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

#End If
