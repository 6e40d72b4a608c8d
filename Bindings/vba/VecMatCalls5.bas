Attribute VB_Name = "VecMatCalls5"
Option Explicit

' Declarations of VecMat for macros: see the module VecMat, which this one needs. Written by tools/bindings.

#If Mac And VBA7 Then

' ---- descriptive/conditional_moments ----

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
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByVal p As Double) As Double
Public Declare PtrSafe Function VB_V_QuantileMW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, ByVal p As Double) As Double

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
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByRef mask As Any, _
    ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_StandardizeKnownMeansStDev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef Z As Double, ByRef stdev As Any, ByRef var As Any, ByRef mask As Any)
Public Declare PtrSafe Sub VB_M_StandardizeMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal nY As Long, _
    ByRef V As Double, ByVal nV As Long)
Public Declare PtrSafe Sub VB_V_Standardize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByRef z As Double)
Public Declare PtrSafe Sub VB_V_Standardize2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
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
    ByRef mask As Any, ByRef w As Any)
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
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Any, _
    ByVal ldu As Long, ByRef v As Any, ByVal ldv As Long, ByVal job As Long, ByRef info As Long) As Long
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
    ByRef rows As Double, ByRef sup As Any, ByRef cols As Double, ByVal nA As Long, _
    ByVal nB As Long, ByVal m As Long, ByVal k As Long, ByRef eigen As Double, _
    ByVal factor As Double, ByVal alpha As Double, ByRef obs As Double, ByRef var As Double)
Public Declare PtrSafe Sub VB_BiplotTransDataSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal rows As LongPtr, ByRef sup As Any, ByVal cols As LongPtr, ByVal nA As Long, _
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

#ElseIf Win64 Then

' ---- descriptive/conditional_moments ----

Public Declare PtrSafe Function VB_V_VarIf Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByVal value As Double, _
    ByVal sample As Integer) As Double
Public Declare PtrSafe Function VB_V_VarIfW Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal value As Double, ByVal sample As Integer) As Double

' ---- descriptive/quantiles ----

Public Declare PtrSafe Function VB_V_Quantile Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Double) As Double
Public Declare PtrSafe Function VB_V_QuantileW Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef w As Double, ByVal p As Double) As Double
Public Declare PtrSafe Function VB_V_QuantileM Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByVal p As Double) As Double
Public Declare PtrSafe Function VB_V_QuantileMW Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, ByVal p As Double) As Double

' ---- descriptive/column_scaling ----

Public Declare PtrSafe Sub VB_M_Center Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_CenterW Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_Center2 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long)
Public Declare PtrSafe Sub VB_M_Center2SPV Lib "VecMat.dll" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal p As Long)
Public Declare PtrSafe Sub VB_M_CenterW2 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double)
Public Declare PtrSafe Sub VB_M_Reduce Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_ReduceW Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef Z As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_Reduce2 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare PtrSafe Sub VB_M_ReduceW2 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_Standardize2 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare PtrSafe Sub VB_M_Standardize2SPV Lib "VecMat.dll" ( _
    ByVal X As LongPtr, ByVal n As Long, ByVal p As Long, ByVal sample As Integer)
Public Declare PtrSafe Sub VB_M_Standardize3 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef stdev As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeW2 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeW3 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByVal sample As Integer, _
    ByVal freqWeights As Integer)

' ---- descriptive/standardisation ----

Public Declare PtrSafe Sub VB_M_Standardize Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Z As Double, _
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByRef mask As Any, _
    ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeW Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_StandardizeKnownMeansStDev Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef Z As Double, ByRef stdev As Any, ByRef var As Any, ByRef mask As Any)
Public Declare PtrSafe Sub VB_M_StandardizeMatrix Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal nY As Long, _
    ByRef V As Double, ByVal nV As Long)
Public Declare PtrSafe Sub VB_V_Standardize Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByRef z As Double)
Public Declare PtrSafe Sub VB_V_Standardize2 Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer)
Public Declare PtrSafe Sub VB_M_StandardizeByVect Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef a As Boolean, ByRef w As Double, _
    ByVal sample As Integer, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_StandardizeByVect2 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef a As Boolean, ByRef w As Double, _
    ByVal sample As Integer)

' ---- descriptive/rescaling ----

Public Declare PtrSafe Sub VB_M_Normalize Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef norms As Double, _
    ByRef mask As Any, ByRef w As Any)
Public Declare PtrSafe Sub VB_M_NormalizeMatrix Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal nY As Long, _
    ByRef V As Double, ByVal nV As Long)
Public Declare PtrSafe Sub VB_V_Rescale Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByVal low As Double, ByVal high As Double, _
    ByRef mask As Boolean, ByRef out As Double)
Public Declare PtrSafe Sub VB_V_Rescale2 Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal low As Double, ByVal high As Double, _
    ByRef mask As Boolean)
Public Declare PtrSafe Sub VB_M_RescaleByVect Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal low As Double, _
    ByVal high As Double, ByRef a As Boolean, ByRef Z As Double)
Public Declare PtrSafe Sub VB_M_RescaleByVect2 Lib "VecMat.dll" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByVal low As Double, _
    ByVal high As Double, ByRef a As Boolean)

' ---- randomisation/permutations ----

Public Declare PtrSafe Function GenerateRandom01 Lib "VecMat.dll" ( _
    ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long) As Double
Public Declare PtrSafe Sub VB_GenerateRandomIndicator Lib "VecMat.dll" ( _
    ByRef out As Double, ByVal n As Long, ByVal k As Long, ByRef seed As Long, _
    ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_GenerateIndicator Lib "VecMat.dll" ( _
    ByRef out As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long)

' ---- randomisation/column_addresses ----

Public Declare PtrSafe Function SimplifyRange Lib "VecMat.dll" ( _
    ByVal inputArg As LongPtr) As LongPtr
Public Declare PtrSafe Function Increase1Col Lib "VecMat.dll" (ByVal letters As LongPtr) As LongPtr

' ---- randomisation/sampling_with_repeats ----

Public Declare PtrSafe Sub VB_M_SamplingWithReplacement Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SamplingWithReplacementSPV Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SampleUserDefined Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal Z As LongPtr, _
    ByRef freq As Double, ByRef ids As Double)
Public Declare PtrSafe Sub VB_M_SampleUserDefinedSPV Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal Z As LongPtr, _
    ByRef freq As Double, ByRef ids As Double)

' ---- randomisation/interval_sampling ----

Public Declare PtrSafe Sub VB_M_SamplingSystematicRdStart Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SamplingSystematicRdStartSPV Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SamplingSystematicCentered Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double)
Public Declare PtrSafe Sub VB_M_SamplingSystematicCenteredSPV Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double)
Public Declare PtrSafe Sub VB_M_SamplingRandomStratified Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)
Public Declare PtrSafe Sub VB_M_SamplingRandomStratifiedSPV Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef ids As Double, ByRef seed As Long, ByVal seedFlag As Integer, ByRef seedOut As Long)

' ---- randomisation/stratified_sampling ----

Public Declare PtrSafe Sub VB_M_SamplingRandomStratifiedByStrSPV Lib "VecMat.dll" ( _
    ByVal S As LongPtr, ByVal N As Long, ByVal p As Long, ByVal n2 As Long, ByVal Z As LongPtr, _
    ByRef rowIds As Double, ByRef outIds As Double, ByRef strata As Double, _
    ByRef quota As Double, ByRef sizes As Double, ByVal nStrata As Long, ByRef seed As Long, _
    ByVal seedFlag As Integer, ByRef seedOut As Long)

' ---- decompositions/eigen ----

Public Declare PtrSafe Function VB_M_Eigen Lib "VecMat.dll" ( _
    ByRef a As Double, ByRef values As Double, ByRef vectors As Double, ByVal n As Long, _
    ByVal sort As Integer) As Long

' ---- decompositions/axis_selection ----

Public Declare PtrSafe Sub VB_FilterEigen Lib "VecMat.dll" ( _
    ByRef eig As Double, ByVal n As Long, ByVal drop As Integer, ByVal floor As Double, _
    ByVal cumPercent As Double, ByVal maxCount As Long, ByVal minValue As Double, _
    ByRef kept As Long, ByRef selected As Long, ByRef percent As Double)

' ---- decompositions/lu ----

Public Declare PtrSafe Function VB_M_LUDecomp Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef index As Long, ByRef d As Double, _
    ByRef status As Integer) As Long

' ---- decompositions/determinants ----

Public Declare PtrSafe Function VB_M_Determinant Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double
Public Declare PtrSafe Function VB_M_DeterminantTriang Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double

' ---- decompositions/cholesky ----

Public Declare PtrSafe Function VB_M_CholDecomp Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double) As Long
Public Declare PtrSafe Function VB_M_CholDecompPrinc Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double, ByRef perm As Long, _
    ByVal keep As Integer) As Long
Public Declare PtrSafe Function VB_M_CholDecompCleaned Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef mask As Long, ByRef l As Double) As Long

' ---- decompositions/generalised_inverses ----

Public Declare PtrSafe Function VB_M_InvGeneralized Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double, _
    ByRef rank As Long) As Long
Public Declare PtrSafe Function VB_M_InvGeneralizedSym Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double, _
    ByRef rank As Long) As Long

' ---- decompositions/constrained_inverses ----

Public Declare PtrSafe Function CleanConstraintsAndInvert Lib "VecMat.dll" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef a As Double, ByRef out As Double) As Long
Public Declare PtrSafe Function CleanConstraintsAndInvertTriang Lib "VecMat.dll" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef a As Double, ByVal lower As Integer, _
    ByRef out As Double) As Long
Public Declare PtrSafe Function VB_M_DeterminantCleaned Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef constraints As Long, ByRef status As Integer) As Double

' ---- decompositions/inversion ----

Public Declare PtrSafe Function VB_M_Inverse1 Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef out As Double, ByVal tol As Double) As Long
Public Declare PtrSafe Function VB_M_InverseTriang Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal lower As Integer, ByRef out As Double, _
    ByVal tol As Double) As Long

' ---- decompositions/sweep ----

Public Declare PtrSafe Function VB_M_Sweep Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal k As Long) As Long

' ---- decompositions/inverse_products ----

Public Declare PtrSafe Sub VB_M_ProductTrAinvBA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)
Public Declare PtrSafe Function VB_M_ProductTrVinvBV Lib "VecMat.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double
Public Declare PtrSafe Sub VB_M_ProductAinvBTrA Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByRef b As Double, _
    ByRef out As Double)

' ---- decompositions/singular_values ----

Public Declare PtrSafe Function VB_M_SVDecomp Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Any, _
    ByVal ldu As Long, ByRef v As Any, ByVal ldv As Long, ByVal job As Long, ByRef info As Long) As Long
Public Declare PtrSafe Function VB_M_SVDecompSPV Lib "VecMat.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByVal u As LongPtr, _
    ByVal ldu As Long, ByVal v As LongPtr, ByVal ldv As Long, ByVal job As Long, _
    ByRef info As Long) As Long
Public Declare PtrSafe Function VB_M_Rank Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long) As Long

' ---- decompositions/level1_routines ----

Public Declare PtrSafe Sub drotg Lib "VecMat.dll" ( _
    ByRef a As Double, ByRef b As Double, ByRef c As Double, ByRef s As Double)

' ---- fitting/biplots ----

Public Declare PtrSafe Sub VB_BiplotTransData Lib "VecMat.dll" ( _
    ByRef rows As Double, ByRef sup As Any, ByRef cols As Double, ByVal nA As Long, _
    ByVal nB As Long, ByVal m As Long, ByVal k As Long, ByRef eigen As Double, _
    ByVal factor As Double, ByVal alpha As Double, ByRef obs As Double, ByRef var As Double)
Public Declare PtrSafe Sub VB_BiplotTransDataSPV Lib "VecMat.dll" ( _
    ByVal rows As LongPtr, ByRef sup As Any, ByVal cols As LongPtr, ByVal nA As Long, _
    ByVal nB As Long, ByVal m As Long, ByVal storedAxes As Long, ByVal k As Long, _
    ByRef eigen As Double, ByVal factor As Double, ByVal alpha As Double, ByRef obs As Double, _
    ByRef var As Double)
Public Declare PtrSafe Sub ComputeCosines Lib "VecMat.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal k As Long, ByRef out As Double)

' ---- fitting/least_squares ----

Public Declare PtrSafe Function RunOLSBasic Lib "VecMat.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef fitted As Double) As Long

#ElseIf Mac Then

' ---- descriptive/conditional_moments ----

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
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByVal p As Double) As Double
Public Declare Function VB_V_QuantileMW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, ByVal p As Double) As Double

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
    ByRef mean As Double, ByRef stdev As Double, ByRef var As Double, ByRef mask As Any, _
    ByRef w As Double, ByVal sample As Integer, ByVal freqWeights As Integer)
Public Declare Sub VB_M_StandardizeW CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, _
    ByVal sample As Integer, ByVal freqWeights As Integer, ByRef Z As Double)
Public Declare Sub VB_M_StandardizeKnownMeansStDev CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef mean As Double, _
    ByRef Z As Double, ByRef stdev As Any, ByRef var As Any, ByRef mask As Any)
Public Declare Sub VB_M_StandardizeMatrix CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef Y As Double, ByVal nY As Long, _
    ByRef V As Double, ByVal nV As Long)
Public Declare Sub VB_V_Standardize CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
    ByVal sample As Integer, ByRef z As Double)
Public Declare Sub VB_V_Standardize2 CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByRef x As Double, ByVal n As Long, ByRef mask As Any, ByRef w As Double, _
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
    ByRef mask As Any, ByRef w As Any)
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
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Any, _
    ByVal ldu As Long, ByRef v As Any, ByVal ldv As Long, ByVal job As Long, ByRef info As Long) As Long
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
    ByRef rows As Double, ByRef sup As Any, ByRef cols As Double, ByVal nA As Long, _
    ByVal nB As Long, ByVal m As Long, ByVal k As Long, ByRef eigen As Double, _
    ByVal factor As Double, ByVal alpha As Double, ByRef obs As Double, ByRef var As Double)
Public Declare Sub VB_BiplotTransDataSPV CDecl Lib "/usr/local/lib/libVecMat.dylib" ( _
    ByVal rows As Long, ByRef sup As Any, ByVal cols As Long, ByVal nA As Long, _
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

#End If
