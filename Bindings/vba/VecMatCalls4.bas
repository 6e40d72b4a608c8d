Attribute VB_Name = "VecMatCalls4"
Option Explicit

' Declarations of VecMat for macros: see the module VecMat, which this one needs. Written by tools/bindings.

#If Mac And VBA7 Then

' ---- missing/missing_arithmetic ----

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
    ByVal S As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef mask As Any, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingModePred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal statS As LongPtr, ByVal nStat As Long, ByVal S As LongPtr, ByVal nRows As Long, _
    ByVal nCols As Long, ByRef mask As Any, ByRef weights As Double)

' ---- missing/new_variables ----

Public Declare PtrSafe Sub VB_ComputeNewVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef Q As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef C As Double, _
    ByRef variances As Double, ByRef covariances As Double)

' ---- missing/nearest_neighbour ----

Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNN CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Any, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal P As LongPtr, ByVal n As Long, ByVal nColsP As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNSPV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByVal Y As LongPtr, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef statX As Any, ByVal nStat As Long, ByRef X As Any, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Any, ByRef Y As Any, _
    ByVal nColsY As Long, ByVal statS As LongPtr, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNStrPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal statX As LongPtr, ByVal nStat As Long, ByVal X As LongPtr, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Any, ByRef Y As Any, _
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
    ByRef nCats As Long, ByVal categories As LongPtr, ByRef freq As Any, ByVal maxCats As Long, _
    ByRef out As Double, ByVal coding As Long, ByVal keepBaseline As Long)
Public Declare PtrSafe Function VB_M_IsDisjTable CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef mask As Any, _
    ByRef rowSum As Long) As Integer

' ---- qualitative/recoding ----

Public Declare PtrSafe Sub VB_M_ReplaceCatByCodes CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As LongPtr, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ReplaceStrByCodes CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As LongPtr, ByRef mask As Any, ByVal firstCode As Long, ByRef out As Double)
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

' ---- descriptive/covariance ----

Public Declare PtrSafe Function VB_M_CovCorr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByVal corr As Integer, ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer) As Long

' ---- descriptive/covariance_with_moments ----

Public Declare PtrSafe Function INDEX3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal i As Long, ByVal j As Long) As Long
Public Declare PtrSafe Function VB_M_CovCorrAndMeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer, _
    ByVal center As Integer, ByVal reduce As Integer) As Long
Public Declare PtrSafe Function VB_M_CovCorrVAndMeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer, _
    ByVal center As Integer, ByVal reduce As Integer) As Long

' ---- descriptive/cross_correlation ----

Public Declare PtrSafe Function VB_M_CorrMatMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Any, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_M_CorrMatMatSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Any, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_CorrelPearson CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByRef y As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double

' ---- descriptive/correlation_of_covariance ----

Public Declare PtrSafe Function VB_M_CorrMatFromCovMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef S As Double, ByVal p As Long, ByRef R As Double) As Long

' ---- descriptive/forecast_errors ----

Public Declare PtrSafe Function VB_MAPE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Any, ByVal first As Long) As Double
Public Declare PtrSafe Function VB_MPE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare PtrSafe Function VB_MAE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare PtrSafe Function VB_RMSE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef Y As Double, ByVal n As Long, ByVal p As Long, ByRef F As Double, _
    ByVal divisor As Long) As Double

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

' ---- descriptive/means ----

Public Declare PtrSafe Function VB_V_Mean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_V_Mean2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_MeanAbs CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_M_Mean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByVal ignored As Long, ByRef w As Double) As Long

' ---- descriptive/moments ----

Public Declare PtrSafe Function VB_V_Var CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare PtrSafe Function VB_V_Stdev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare PtrSafe Sub VB_V_MeanVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_V_MeanStdev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef stdev As Double, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Function VB_M_MeanStDev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef mask As Any, ByRef w As Any, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal ignoreMask As Integer) As Long
Public Declare PtrSafe Function VB_M_MeanStDevByRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef w As Any, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_M_MeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef var As Double, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Long

' ---- descriptive/shape_moments ----

Public Declare PtrSafe Sub VB_V_MeanVarSkewPKurtP CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef skewP As Double, ByRef kurtP As Double, ByRef skewS As Double, ByRef kurtS As Double, _
    ByRef seSkew As Double, ByRef seKurt As Double, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)

' ---- descriptive/conditional_moments ----

Public Declare PtrSafe Function VB_V_MeanIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByVal value As Double) As Double
Public Declare PtrSafe Function VB_V_MeanIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal value As Double) As Double

#ElseIf Win64 Then

' ---- missing/missing_arithmetic ----

Public Declare PtrSafe Function VB_M_ProductABMissing Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal nRows As Long, ByVal nInner As Long, ByRef b As Double, _
    ByVal nCols As Long, ByRef c As Double) As Long

' ---- missing/mean_imputation ----

Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMean Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMeanPred Lib "VecMat.dll" ( _
    ByRef statX As Double, ByVal nStat As Long, ByRef X As Double, ByVal nRows As Long, _
    ByVal nCols As Long, ByRef mask As Boolean, ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMeanSPV Lib "VecMat.dll" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef mask As Boolean, _
    ByRef weights As Double)

' ---- missing/mode_imputation ----

Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMode Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal n As Long, ByVal nCols As Long, ByRef mask As Any, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingModePred Lib "VecMat.dll" ( _
    ByVal statS As LongPtr, ByVal nStat As Long, ByVal S As LongPtr, ByVal nRows As Long, _
    ByVal nCols As Long, ByRef mask As Any, ByRef weights As Double)

' ---- missing/new_variables ----

Public Declare PtrSafe Sub VB_ComputeNewVar Lib "VecMat.dll" ( _
    ByRef Q As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef C As Double, _
    ByRef variances As Double, ByRef covariances As Double)

' ---- missing/nearest_neighbour ----

Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNN Lib "VecMat.dll" ( _
    ByRef X As Any, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNStr Lib "VecMat.dll" ( _
    ByVal P As LongPtr, ByVal n As Long, ByVal nColsP As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNSPV Lib "VecMat.dll" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNSPV2 Lib "VecMat.dll" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByVal Y As LongPtr, ByVal nColsY As Long, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNPred Lib "VecMat.dll" ( _
    ByRef statX As Any, ByVal nStat As Long, ByRef X As Any, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Any, ByRef Y As Any, _
    ByVal nColsY As Long, ByVal statS As LongPtr, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNStrPred Lib "VecMat.dll" ( _
    ByVal statX As LongPtr, ByVal nStat As Long, ByVal X As LongPtr, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Any, ByRef Y As Any, _
    ByVal nColsY As Long, ByVal statS As LongPtr, ByVal S As LongPtr, ByVal nColsS As Long, _
    ByRef weights As Double)

' ---- qualitative/categories ----

Public Declare PtrSafe Sub VB_M_InfoQuali Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal modes As LongPtr, _
    ByRef modeWeights As Double, ByRef total As Long, ByRef nCats As Long, _
    ByVal categories As LongPtr, ByRef catWeights As Double, ByVal ignored As Long, _
    ByRef weights As Double, ByVal sortCats As Integer)
Public Declare PtrSafe Sub VB_M_InfoQuali2 Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal maxCats As Long, _
    ByRef nCats As Long, ByVal modes As LongPtr, ByRef modeWeights As Double, _
    ByRef total As Long, ByVal categories As LongPtr, ByRef catWeights As Double, _
    ByVal ignored As Long, ByRef weights As Double, ByVal sortCats As Integer)
Public Declare PtrSafe Sub VB_M_InfoQualiValid Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal maxCats As Long, _
    ByVal ignored1 As Long, ByRef nCats As Long, ByVal categories As LongPtr, _
    ByRef catWeights As Double, ByRef invalid As Boolean, ByVal ignored2 As Long, _
    ByRef weights As Double)

' ---- qualitative/moments_of_one_column ----

Public Declare PtrSafe Sub VB_M_MeanStDevVarOneInMat Lib "VecMat.dll" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal col As Long, ByRef mean As Double, _
    ByRef stdDev As Double, ByRef variance As Double, ByVal ignored As Long, _
    ByRef weights As Double, ByVal sampleVariance As Integer, ByVal countDivisor As Integer)

' ---- qualitative/frequencies ----

Public Declare PtrSafe Function VB_V_Freq Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef weights As Double, ByVal value As Double, _
    ByVal tolerance As Double) As Double
Public Declare PtrSafe Function VB_V_FreqLng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef weights As Double, ByVal value As Long) As Long
Public Declare PtrSafe Function VB_V_FreqStr Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByRef weights As Double, ByVal value As LongPtr) As Double

' ---- qualitative/modes ----

Public Declare PtrSafe Function VB_V_Mode Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal ignored As Long, ByRef weights As Double) As LongPtr
Public Declare PtrSafe Function VB_V_ModeCatDbl Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' ---- qualitative/disjunctive_tables ----

Public Declare PtrSafe Sub VB_BuildDisjunctiveTable Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByVal totalCats As Long, _
    ByRef nCats As Long, ByVal categories As LongPtr, ByRef freq As Any, ByVal maxCats As Long, _
    ByRef out As Double, ByVal coding As Long, ByVal keepBaseline As Long)
Public Declare PtrSafe Function VB_M_IsDisjTable Lib "VecMat.dll" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef mask As Any, _
    ByRef rowSum As Long) As Integer

' ---- qualitative/recoding ----

Public Declare PtrSafe Sub VB_M_ReplaceCatByCodes Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As LongPtr, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_ReplaceStrByCodes Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As LongPtr, ByRef mask As Any, ByVal firstCode As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_Binarize Lib "VecMat.dll" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_Binarize2 Lib "VecMat.dll" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long)
Public Declare PtrSafe Sub VB_M_Binarize2SPV Lib "VecMat.dll" ( _
    ByVal table As LongPtr, ByVal nRows As Long, ByVal nCols As Long)

' ---- qualitative/indicators ----

Public Declare PtrSafe Function VB_V_Is01 Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsWeights Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsCWeights Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsIndicator Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer
Public Declare PtrSafe Function VB_V_IsIndicatorSPV Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal nRows As Long, ByVal nCols As Long) As Integer

' ---- qualitative/group_by ----

Public Declare PtrSafe Sub VB_M_GroupBy Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef colTypes As Long, _
    ByVal keyCol As Long, ByVal aggregate As Long, ByRef nGroups As Long, ByRef out As Double)
Public Declare PtrSafe Sub VB_M_GroupByW Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef colTypes As Long, _
    ByVal keyCol As Long, ByVal aggregate As Long, ByRef nGroups As Long, ByRef out As Double, _
    ByRef weights As Double)

' ---- qualitative/distinct ----

Public Declare PtrSafe Sub VB_M_Dedupe Lib "VecMat.dll" ( _
    ByRef data As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef nKept As Long, _
    ByRef out As Double)
Public Declare PtrSafe Sub VB_V_ExtractDistinct Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef distinct As Double, ByRef count As Long)
Public Declare PtrSafe Function VB_V_NbDistinct Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long
Public Declare PtrSafe Function VB_V_NbDistinctLng Lib "VecMat.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long

' ---- qualitative/labels ----

Public Declare PtrSafe Sub VB_V_ReplaceDoubles Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal n As Long)

' ---- descriptive/covariance ----

Public Declare PtrSafe Function VB_M_CovCorr Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByVal corr As Integer, ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer) As Long

' ---- descriptive/covariance_with_moments ----

Public Declare PtrSafe Function INDEX3 Lib "VecMat.dll" (ByVal i As Long, ByVal j As Long) As Long
Public Declare PtrSafe Function VB_M_CovCorrAndMeanStDevVar Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer, _
    ByVal center As Integer, ByVal reduce As Integer) As Long
Public Declare PtrSafe Function VB_M_CovCorrVAndMeanStDevVar Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer, _
    ByVal center As Integer, ByVal reduce As Integer) As Long

' ---- descriptive/cross_correlation ----

Public Declare PtrSafe Function VB_M_CorrMatMat Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Any, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_M_CorrMatMatSPV Lib "VecMat.dll" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Any, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_CorrelPearson Lib "VecMat.dll" ( _
    ByRef x As Double, ByRef y As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double

' ---- descriptive/correlation_of_covariance ----

Public Declare PtrSafe Function VB_M_CorrMatFromCovMat Lib "VecMat.dll" ( _
    ByRef S As Double, ByVal p As Long, ByRef R As Double) As Long

' ---- descriptive/forecast_errors ----

Public Declare PtrSafe Function VB_MAPE Lib "VecMat.dll" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Any, ByVal first As Long) As Double
Public Declare PtrSafe Function VB_MPE Lib "VecMat.dll" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare PtrSafe Function VB_MAE Lib "VecMat.dll" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare PtrSafe Function VB_RMSE Lib "VecMat.dll" ( _
    ByRef Y As Double, ByVal n As Long, ByVal p As Long, ByRef F As Double, _
    ByVal divisor As Long) As Double

' ---- descriptive/triangular_fit ----

Public Declare PtrSafe Sub TriangularQFindAB Lib "VecMat.dll" ( _
    ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, ByVal prob1 As Double, _
    ByVal prob2 As Double, ByRef a As Double, ByRef b As Double)
Public Declare PtrSafe Function TriangularFunc Lib "VecMat.dll" ( _
    ByVal b As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double
Public Declare PtrSafe Function TriangularFuncDeriv Lib "VecMat.dll" ( _
    ByVal b As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double
Public Declare PtrSafe Function TriangularFunc2 Lib "VecMat.dll" ( _
    ByVal a As Double, ByVal x1 As Double, ByVal m As Double, ByVal x2 As Double, _
    ByVal prob1 As Double, ByVal prob2 As Double) As Double

' ---- descriptive/means ----

Public Declare PtrSafe Function VB_V_Mean Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_V_Mean2 Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long) As Double
Public Declare PtrSafe Function VB_V_MeanAbs Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double) As Double
Public Declare PtrSafe Function VB_M_Mean Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByVal ignored As Long, ByRef w As Double) As Long

' ---- descriptive/moments ----

Public Declare PtrSafe Function VB_V_Var Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare PtrSafe Function VB_V_Stdev Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare PtrSafe Sub VB_V_MeanVar Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_V_MeanStdev Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef stdev As Double, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Function VB_M_MeanStDev Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef mask As Any, ByRef w As Any, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal ignoreMask As Integer) As Long
Public Declare PtrSafe Function VB_M_MeanStDevByRow Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef w As Any, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare PtrSafe Function VB_M_MeanStDevVar Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef var As Double, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Long

' ---- descriptive/shape_moments ----

Public Declare PtrSafe Sub VB_V_MeanVarSkewPKurtP Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef skewP As Double, ByRef kurtP As Double, ByRef skewS As Double, ByRef kurtS As Double, _
    ByRef seSkew As Double, ByRef seKurt As Double, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)

' ---- descriptive/conditional_moments ----

Public Declare PtrSafe Function VB_V_MeanIf Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByVal value As Double) As Double
Public Declare PtrSafe Function VB_V_MeanIfW Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal value As Double) As Double

#ElseIf Mac Then

' ---- missing/missing_arithmetic ----

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
    ByVal S As Long, ByVal n As Long, ByVal nCols As Long, ByRef mask As Any, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingModePred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal statS As Long, ByVal nStat As Long, ByVal S As Long, ByVal nRows As Long, _
    ByVal nCols As Long, ByRef mask As Any, ByRef weights As Double)

' ---- missing/new_variables ----

Public Declare Sub VB_ComputeNewVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef Q As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef C As Double, _
    ByRef variances As Double, ByRef covariances As Double)

' ---- missing/nearest_neighbour ----

Public Declare Sub VB_EstimateRowsWithMissingNN CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Any, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNStr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal P As Long, ByVal n As Long, ByVal nColsP As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByRef Y As Any, ByVal nColsY As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNSPV2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal nColsX As Long, ByRef mask As Boolean, _
    ByVal Y As Long, ByVal nColsY As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef statX As Any, ByVal nStat As Long, ByRef X As Any, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Any, ByRef Y As Any, _
    ByVal nColsY As Long, ByVal statS As Long, ByVal S As Long, ByVal nColsS As Long, _
    ByRef weights As Double)
Public Declare Sub VB_EstimateRowsWithMissingNNStrPred CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal statX As Long, ByVal nStat As Long, ByVal X As Long, ByVal nRows As Long, _
    ByVal nColsX As Long, ByRef mask As Boolean, ByRef statY As Any, ByRef Y As Any, _
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
    ByRef nCats As Long, ByVal categories As Long, ByRef freq As Any, ByVal maxCats As Long, _
    ByRef out As Double, ByVal coding As Long, ByVal keepBaseline As Long)
Public Declare Function VB_M_IsDisjTable CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef table As Double, ByVal nRows As Long, ByVal nCols As Long, ByRef mask As Any, _
    ByRef rowSum As Long) As Integer

' ---- qualitative/recoding ----

Public Declare Sub VB_M_ReplaceCatByCodes CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As Long, ByRef out As Double)
Public Declare Sub VB_M_ReplaceStrByCodes CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal table As Long, ByVal nRows As Long, ByVal nCols As Long, ByRef nCats As Long, _
    ByVal categories As Long, ByRef mask As Any, ByVal firstCode As Long, ByRef out As Double)
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

' ---- descriptive/covariance ----

Public Declare Function VB_M_CovCorr CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByVal corr As Integer, ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer) As Long

' ---- descriptive/covariance_with_moments ----

Public Declare Function INDEX3 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal i As Long, ByVal j As Long) As Long
Public Declare Function VB_M_CovCorrAndMeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer, _
    ByVal center As Integer, ByVal reduce As Integer) As Long
Public Declare Function VB_M_CovCorrVAndMeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef C As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByVal corr As Integer, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer, _
    ByVal center As Integer, ByVal reduce As Integer) As Long

' ---- descriptive/cross_correlation ----

Public Declare Function VB_M_CorrMatMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Any, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare Function VB_M_CorrMatMatSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal X As Long, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal q As Long, _
    ByRef C As Double, ByRef mask As Any, ByRef w As Double, ByVal corr As Integer, _
    ByVal square As Integer, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare Function VB_CorrelPearson CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByRef y As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double

' ---- descriptive/correlation_of_covariance ----

Public Declare Function VB_M_CorrMatFromCovMat CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef S As Double, ByVal p As Long, ByRef R As Double) As Long

' ---- descriptive/forecast_errors ----

Public Declare Function VB_MAPE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Any, ByVal first As Long) As Double
Public Declare Function VB_MPE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare Function VB_MAE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef y As Double, ByRef f As Double, ByVal n As Long, ByRef w As Double, _
    ByVal first As Long) As Double
Public Declare Function VB_RMSE CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef Y As Double, ByVal n As Long, ByVal p As Long, ByRef F As Double, _
    ByVal divisor As Long) As Double

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

' ---- descriptive/means ----

Public Declare Function VB_V_Mean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double) As Double
Public Declare Function VB_V_Mean2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long) As Double
Public Declare Function VB_V_MeanAbs CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double) As Double
Public Declare Function VB_M_Mean CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByVal ignored As Long, ByRef w As Double) As Long

' ---- descriptive/moments ----

Public Declare Function VB_V_Var CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare Function VB_V_Stdev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Double
Public Declare Sub VB_V_MeanVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Sub VB_V_MeanStdev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef stdev As Double, _
    ByRef mask As Any, ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Function VB_M_MeanStDev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef mask As Any, ByRef w As Any, ByVal sample As Integer, _
    ByVal freqWeights As Integer, ByVal ignoreMask As Integer) As Long
Public Declare Function VB_M_MeanStDevByRow CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef w As Any, ByVal sample As Integer, ByVal freqWeights As Integer) As Long
Public Declare Function VB_M_MeanStDevVar CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Any, ByRef var As Double, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer) As Long

' ---- descriptive/shape_moments ----

Public Declare Sub VB_V_MeanVarSkewPKurtP CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef skewP As Double, ByRef kurtP As Double, ByRef skewS As Double, ByRef kurtS As Double, _
    ByRef seSkew As Double, ByRef seKurt As Double, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)

' ---- descriptive/conditional_moments ----

Public Declare Function VB_V_MeanIf CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByVal value As Double) As Double
Public Declare Function VB_V_MeanIfW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal value As Double) As Double

#End If
