Attribute VB_Name = "VecMatCalls6"
Option Explicit

' Declarations of VecMat for macros: see the module VecMat, which this one needs. Written by tools/bindings.

#If Mac And VBA7 Then

' ---- fitting/least_squares ----

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
    ByVal n As Long, ByVal p1 As Long, ByRef X1 As Any, ByVal p2 As Long, ByRef X2 As Any, _
    ByVal p3 As Long, ByRef X3 As Any, ByVal p4 As Long, ByRef X4 As Any, ByVal p5 As Long, _
    ByRef X5 As Any, ByRef y As Double, ByRef w As Double, ByVal degree As Long, _
    ByVal interactions As Integer, ByVal noIntercept As Integer, ByVal tol As Double, _
    ByRef beta As Double, ByRef se As Double, ByRef fitted As Double) As Long

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

#ElseIf Win64 Then

' ---- fitting/least_squares ----

Public Declare PtrSafe Function RunOLSBasic2 Lib "VecMat.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef se As Double, ByRef fitted As Double) As Long
Public Declare PtrSafe Function RunOLSBasic3 Lib "VecMat.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef y As Double, ByRef w As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noIntercept As Integer, _
    ByVal tol As Double, ByRef beta As Double, ByRef se As Double, ByRef fitted As Double, _
    ByRef swept As Double, ByRef mean As Double, ByRef sd As Double) As Long

' ---- fitting/least_squares_blocks ----

Public Declare PtrSafe Function RunOLSBasic2Lg Lib "VecMat.dll" ( _
    ByVal n As Long, ByVal p1 As Long, ByRef X1 As Any, ByVal p2 As Long, ByRef X2 As Any, _
    ByVal p3 As Long, ByRef X3 As Any, ByVal p4 As Long, ByRef X4 As Any, ByVal p5 As Long, _
    ByRef X5 As Any, ByRef y As Double, ByRef w As Double, ByVal degree As Long, _
    ByVal interactions As Integer, ByVal noIntercept As Integer, ByVal tol As Double, _
    ByRef beta As Double, ByRef se As Double, ByRef fitted As Double) As Long

' ---- fitting/tolerance_check ----

Public Declare PtrSafe Sub VB_CheckTolerance Lib "VecMat.dll" ( _
    ByRef corr As Double, ByVal p As Long, ByVal groupCount As Long, ByRef selected As Long, _
    ByVal ignored As Long, ByRef group As Long, ByVal tol As Double, ByVal pairCheck As Integer, _
    ByVal keepGoing As Integer, ByVal fromLast As Integer, ByVal otherGroupsOnly As Integer, _
    ByRef status As Long, ByRef tolerance As Double, ByRef vif As Double)

' ---- fitting/newton_raphson ----

Public Declare PtrSafe Function NewtonRaphson Lib "VecMat.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef constraints As Long, ByRef g As Double, _
    ByRef H As Double, ByVal tol As Double, ByRef se As Double, ByRef Hinv As Double, _
    ByVal limitStep As Integer, ByVal maxStep As Double) As Long

#ElseIf Mac Then

' ---- fitting/least_squares ----

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
    ByVal n As Long, ByVal p1 As Long, ByRef X1 As Any, ByVal p2 As Long, ByRef X2 As Any, _
    ByVal p3 As Long, ByRef X3 As Any, ByVal p4 As Long, ByRef X4 As Any, ByVal p5 As Long, _
    ByRef X5 As Any, ByRef y As Double, ByRef w As Double, ByVal degree As Long, _
    ByVal interactions As Integer, ByVal noIntercept As Integer, ByVal tol As Double, _
    ByRef beta As Double, ByRef se As Double, ByRef fitted As Double) As Long

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
