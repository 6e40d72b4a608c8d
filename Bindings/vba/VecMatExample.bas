Attribute VB_Name = "VecMatExample"
Option Explicit

' A macro that calls VecMat: numbers, tables, Booleans, a range's values, strings, tables of columns and
' random draws.
' Import the other modules first, then run ShowVecMat; what it prints stands beside each line.

#If Mac Or Win64 Then    ' where the library is

Public Sub ShowVecMat()
    ShowNumbers
    ShowTables
    ShowValues
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

Private Sub ShowValues()
    Dim values(1 To 4, 1 To 2) As Variant, numbers() As Double, back As Variant    ' as Range("A1:B4").Value gives them
    values(1, 1) = 4: values(2, 1) = Empty: values(3, 1) = 5: values(4, 1) = 90
    values(1, 2) = True: values(2, 2) = "none": values(3, 2) = CVErr(2042): values(4, 2) = 3
    numbers = VecMatNumbers(values)
    Debug.Print VB_V_Mean2(numbers(0), 4); VB_V_Mean2(numbers(4), 4)                   ' 33 2: three cells are missing
    back = VecMatValues(numbers, 4, 2, CVErr(2042))
    Debug.Print back(1, 1); IsError(back(2, 1)); back(4, 2)                           ' 4 True 3
End Sub

Private Sub ShowStrings()
    Dim labels As VecMatTexts, filled As VecMatTexts, weights(0 To 3) As Double, none(0 To 1) As String, i As Long
    Dim texts() As String
    VecMatGiveTexts labels, Array("north", "south", Empty, "south")
    For i = 0 To 3
        weights(i) = 1
    Next i
    Debug.Print VecMatTakeString(VB_V_Mode(VarPtr(labels.Pointers(0)), 4, 0, weights(0)))    ' south
    VecMatGiveTexts filled, none
#If Mac Then
    Dim characters() As Long
    characters = VecMatCharacters("none")
    VB_V_SetToValueStr VarPtr(filled.Pointers(0)), 2, characters(0)
#Else
    VB_V_SetToValueStr VarPtr(filled.Pointers(0)), 2, StrPtr("none")
#End If
    texts = VecMatTakeTexts(filled)
    Debug.Print texts(0); " "; texts(1)                                                      ' none none
    Debug.Print VecMatTakeString(SimplifyRange(StrPtr("'S'!$B:$B,'S'!$A:$A")))               ' 'S'!$A:$B
End Sub

Private Sub ShowColumns()
    Dim table As VecMatTable, mask(0 To 2) As Boolean, smallest(0 To 1) As Double, largest(0 To 1) As Double
    table = VecMatNumberTable(Array(Array(0, 1, 2), Array(10, 9, 8)))
    mask(0) = True
    VB_M_MinMaxSPV VarPtr(table), 3, 2, smallest(0), largest(0), mask(0), 0
    Debug.Print smallest(0); largest(0); smallest(1); largest(1)    ' 1 2 8 9

    Dim given As VecMatTextTable, copied As VecMatTextTable, names As Variant
    VecMatGiveTextTable given, Array(Array("a", "b"), Array("c", Empty))
    VecMatGiveTextTable copied, Array(Array("", ""), Array("", ""))
    VB_M_DuplicateStrSPV VarPtr(given), 2, 2, VarPtr(copied)
    names = VecMatTakeTextTable(copied)
    Debug.Print names(0)(0); names(0)(1); names(1)(0)               ' abc
End Sub

Private Sub ShowDraws()
    Dim chosen(0 To 9) As Double, seed As Long, nextSeed As Long
    seed = 20
    VB_GenerateRandomIndicator chosen(0), 10, 4, seed, -1, nextSeed    ' the same four with the same seed
    Debug.Print VB_V_Sum2Dbl(chosen(0), 10)                            ' 4
    VB_GenerateRandomIndicator chosen(0), 10, 4, nextSeed, -1, seed    ' the series goes on
End Sub

#End If
