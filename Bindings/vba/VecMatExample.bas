Attribute VB_Name = "VecMatExample"
Option Explicit

' A macro that calls VecMat: numbers, tables, Booleans, strings, tables of columns and random draws.
' Import the other modules first, then run ShowVecMat; what it prints stands beside each line.

' Gives back the string of which the library has handed over the pointer. The string is moved, not copied:
' the variable frees it from then on.
#If Mac And VBA7 Then
Private Declare PtrSafe Function MoveBytes CDecl Lib "/usr/lib/libSystem.dylib" Alias "memmove" ( _
    ByVal target As LongPtr, ByVal source As LongPtr, ByVal size As LongPtr) As LongPtr
#ElseIf Win64 Then
Private Declare PtrSafe Sub MoveBytes Lib "kernel32" Alias "RtlMoveMemory" ( _
    ByVal target As LongPtr, ByVal source As LongPtr, ByVal size As LongPtr)
#ElseIf Mac Then
Private Declare Function MoveBytes CDecl Lib "/usr/lib/libSystem.dylib" Alias "memmove" ( _
    ByVal target As Long, ByVal source As Long, ByVal size As Long) As Long
#End If

#If VBA7 Then
Private Function TakenString(ByVal bstr As LongPtr) As String
#Else
Private Function TakenString(ByVal bstr As Long) As String
#End If
    Dim text As String
    MoveBytes VarPtr(text), VarPtr(bstr), LenB(bstr)
    TakenString = text
End Function

' The characters of a text as the numbers that a single string goes in as, with a 0 behind the last.
Private Function Characters(ByVal text As String) As Long()
    Dim numbers() As Long, i As Long
    ReDim numbers(0 To Len(text))
    For i = 1 To Len(text)
        numbers(i - 1) = AscW(Mid$(text, i, 1)) And &HFFFF&
    Next i
    Characters = numbers
End Function

Public Sub ShowVecMat()
    ShowNumbers
    ShowTables
    ShowStrings
    ShowColumns
    ShowDraws
End Sub

Private Sub ShowNumbers()
    Dim v(0 To 3) As Double, weights(0 To 3) As Double, mask(0 To 3) As Boolean
    v(0) = 4: v(1) = VecMatMissing: v(2) = 5: v(3) = 90
    weights(0) = 1: weights(1) = 1: weights(2) = 3: weights(3) = 1
    Debug.Print VB_V_Mean2(v(0), 4)                        ' 33: the missing cell does not count
    mask(3) = True                                         ' leaves out the last cell
    Debug.Print VB_V_Mean(v(0), 4, mask(0), weights(0))    ' 4.75
    Debug.Print VB_V_Mean(v(0), 2, ByVal VecMatNothing, weights(0))  ' 4: no mask
    Debug.Print VB_IsMissingValueDbl(v(1))                 ' -1, which is True
End Sub

Private Sub ShowTables()
    Dim a(1 To 2, 1 To 2) As Double, b(1 To 2, 1 To 2) As Double, product(1 To 2, 1 To 2) As Double
    a(1, 1) = 1: a(1, 2) = 2
    a(2, 1) = 3: a(2, 2) = 4
    b(1, 2) = 1: b(2, 1) = 1
    VB_M_ProductAB a(1, 1), 2, 2, b(1, 1), 2, product(1, 1)
    Debug.Print product(1, 1); product(1, 2); product(2, 1); product(2, 2)    ' 2 1 4 3
End Sub

Private Sub ShowStrings()
    Dim labels(0 To 3) As String, weights(0 To 3) As Double, filled(0 To 1) As String, text() As Long, i As Long
    labels(0) = "north": labels(1) = "south": labels(2) = "": labels(3) = "south"
    For i = 0 To 3
        weights(i) = 1
    Next i
    Debug.Print TakenString(VB_V_Mode(VarPtr(labels(0)), 4, 0, weights(0)))    ' south
#If Mac Then
    text = Characters("none")
    VB_V_SetToValueStr VarPtr(filled(0)), 2, text(0)
#Else
    VB_V_SetToValueStr VarPtr(filled(0)), 2, StrPtr("none")
#End If
    Debug.Print filled(0); " "; filled(1)                                      ' none none
    Debug.Print TakenString(SimplifyRange(StrPtr("'S'!$B:$B,'S'!$A:$A")))      ' 'S'!$A:$B
End Sub

Private Sub ShowColumns()
    Dim table As VecMatTable, mask(0 To 2) As Boolean, smallest(0 To 1) As Double, largest(0 To 1) As Double, i As Long
    ReDim table.Columns(0 To 1)
    ReDim table.Columns(0).Numbers(0 To 2)
    ReDim table.Columns(1).Numbers(0 To 2)
    For i = 0 To 2
        table.Columns(0).Numbers(i) = i
        table.Columns(1).Numbers(i) = 10 - i
    Next i
    mask(0) = True
    VB_M_MinMaxSPV VarPtr(table), 3, 2, smallest(0), largest(0), mask(0), 0
    Debug.Print smallest(0); largest(0); smallest(1); largest(1)    ' 1 2 8 9
End Sub

Private Sub ShowDraws()
    Dim chosen(0 To 9) As Double, seed As Long, nextSeed As Long
    seed = 20
    VB_GenerateRandomIndicator chosen(0), 10, 4, seed, -1, nextSeed    ' the same four with the same seed
    Debug.Print VB_V_Sum2Dbl(chosen(0), 10)                            ' 4
    VB_GenerateRandomIndicator chosen(0), 10, 4, nextSeed, -1, seed    ' the series goes on
End Sub
