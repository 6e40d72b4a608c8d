Attribute VB_Name = "VecMatHelpers"
Option Explicit

' Converts a macro's data to the shapes that VecMat takes, and its results back: ranges, arrays of arrays, strings.
' Needs the module VecMat and nothing of the host. Compiles under VBA6 and VBA7, with 32 and 64 bits.
'
' A range's values are what its property Value returns: one value, or an array (row, column) of Variants. Procedures
' that take them also take the range itself and any other array. Arrays of two dimensions are read column by column.
' Bad values raise error 5 or 13, whose description starts with the argument's name. Pass the name that your own
' callers know as the last argument.

#If Mac And VBA7 Then
Private Declare PtrSafe Function MoveBytes CDecl Lib "/usr/lib/libSystem.dylib" Alias "memmove" ( _
    ByVal target As LongPtr, ByVal source As LongPtr, ByVal size As LongPtr) As LongPtr
#ElseIf Mac Then
Private Declare Function MoveBytes CDecl Lib "/usr/lib/libSystem.dylib" Alias "memmove" ( _
    ByVal target As Long, ByVal source As Long, ByVal size As Long) As Long
#ElseIf VBA7 Then
Private Declare PtrSafe Sub MoveBytes Lib "kernel32" Alias "RtlMoveMemory" ( _
    ByVal target As LongPtr, ByVal source As LongPtr, ByVal size As LongPtr)
#Else
Private Declare Sub MoveBytes Lib "kernel32" Alias "RtlMoveMemory" ( _
    ByVal target As Long, ByVal source As Long, ByVal size As Long)
#End If

Private Const BadCall As Long = 5
Private Const BadType As Long = 13
Private Const MostDimensions As Long = 60
Private Const LongLongType As Long = 20    ' vbLongLong, which hosts with 32 bits lack

' Strings for an argument that is an array of strings, passed as VarPtr(list.Pointers(0)). Filled by
' VecMatGiveTexts and read by VecMatTakeTexts. Don't assign one list to another: the copy would point to the strings of
' the original.
Public Type VecMatTexts
    Texts() As String
#If VBA7 Then
    Pointers() As LongPtr
#Else
    Pointers() As Long
#End If
End Type

' A column of a VecMatTextTable: what the library reads where VecMatColumn has its strings.
Public Type VecMatTextColumn
    Numbers() As Double
#If VBA7 Then
    Pointers() As LongPtr
#Else
    Pointers() As Long
#End If
End Type

' A table of columns of strings, passed as VarPtr(table). Filled by VecMatGiveTextTable and read by
' VecMatTakeTextTable. Don't assign it either. Columns comes first: the library takes the address of the table for that
' of Columns.
Public Type VecMatTextTable
    Columns() As VecMatTextColumn
    Kept() As VecMatColumn
End Type

' ---- numbers ----

' A range's values as numbers, from index 0, column by column. Dates become their serial numbers, True 1 and False 0.
' Blank cells, errors, Null and texts, even those that spell a number, become missing.
Public Function VecMatNumbers(ByRef values As Variant, Optional ByVal argument As String = "values") As Double()
    Dim cells As Variant, cell As Variant, numbers() As Double, i As Long
    cells = CellsOf(values, argument)
    ReDim numbers(0 To CellCount(cells) - 1)
    For Each cell In cells
        numbers(i) = NumberOf(cell, i + 1, argument)
        i = i + 1
    Next cell
    VecMatNumbers = numbers
End Function

' The reverse: an array (1 To rows, 1 To cols) of Variants for a range, of the first rows * cols numbers, column by
' column. A missing cell becomes missingAs, by default Empty; CVErr(2042) shows as #N/A.
Public Function VecMatValues(ByRef numbers() As Double, ByVal rows As Long, ByVal cols As Long, _
    Optional ByVal missingAs As Variant) As Variant
    Dim values() As Variant, number As Variant, row As Long, col As Long
    If rows < 1 Then Err.Raise BadCall, "VecMat", "rows: is " & rows
    If cols < 1 Then Err.Raise BadCall, "VecMat", "cols: is " & cols
    If CellCount(numbers) < CDbl(rows) * cols Then
        Err.Raise BadCall, "VecMat", "numbers: has " & CellCount(numbers) & " cells, not " & rows & " times " & cols
    End If
    If IsMissing(missingAs) Then missingAs = Empty
    ReDim values(1 To rows, 1 To cols)
    row = 1
    col = 1
    For Each number In numbers
        If col > cols Then Exit For
        values(row, col) = ValueOf(number, missingAs)
        row = row + 1
        If row > rows Then
            row = 1
            col = col + 1
        End If
    Next number
    VecMatValues = values
End Function

' ---- tables of columns ----

' A table of columns, passed as VarPtr(table), from an array of arrays or a range's values. Each column is converted as
' by VecMatNumbers. All must have the same length; in a triangle each is one shorter than the one before.
Public Function VecMatNumberTable(ByRef columns As Variant, Optional ByVal isTriangle As Boolean = False, _
    Optional ByVal argument As String = "columns") As VecMatTable
    Dim table As VecMatTable, column As Variant, j As Long
    ReDim table.Columns(0 To ColumnCount(columns, argument) - 1)
    For Each column In ColumnsOf(columns, argument)
        table.Columns(j).Numbers = VecMatNumbers(column, argument & "(" & j + 1 & ")")
        CheckLength CellCount(table.Columns(j).Numbers), CellCount(table.Columns(0).Numbers), j, isTriangle, argument
        j = j + 1
    Next column
    VecMatNumberTable = table
End Function

' The reverse: an array (1 To rows, 1 To columns) of Variants with as many rows as the first column has cells. Cells are
' missing as in VecMatValues; those outside of a triangle are Empty.
Public Function VecMatTableValues(ByRef table As VecMatTable, Optional ByVal missingAs As Variant) As Variant
    Dim values() As Variant, number As Variant, row As Long, j As Long, rows As Long
    If IsMissing(missingAs) Then missingAs = Empty
    rows = CellCount(table.Columns(LBound(table.Columns)).Numbers)
    If rows = 0 Then Err.Raise BadCall, "VecMat", "table: its first column has no numbers"
    ReDim values(1 To rows, 1 To UBound(table.Columns) - LBound(table.Columns) + 1)
    For j = 1 To UBound(values, 2)
        row = 1
        For Each number In table.Columns(LBound(table.Columns) + j - 1).Numbers
            If row > rows Then Err.Raise BadCall, "VecMat", "table: column " & j & " has more than " & rows & " cells"
            values(row, j) = ValueOf(number, missingAs)
            row = row + 1
        Next number
    Next j
    VecMatTableValues = values
End Function

' ---- strings ----

' A range's values as strings, from index 0, column by column. Blank cells, errors and Null become empty strings, which
' count as missing; numbers and dates are converted by CStr.
Public Function VecMatStrings(ByRef values As Variant, Optional ByVal argument As String = "values") As String()
    Dim cells As Variant, cell As Variant, texts() As String, i As Long
    cells = CellsOf(values, argument)
    ReDim texts(0 To CellCount(cells) - 1)
    For Each cell In cells
        texts(i) = TextOf(cell, i + 1, argument)
        i = i + 1
    Next cell
    VecMatStrings = texts
End Function

' Fills a list with a range's values as strings, for arguments that are read or written. Where the argument is only
' written, fill the list with as many empty strings.
Public Sub VecMatGiveTexts(ByRef list As VecMatTexts, ByRef values As Variant, _
    Optional ByVal argument As String = "values")
    list.Texts = VecMatStrings(values, argument)
    PointTo list.Texts, list.Pointers
End Sub

' The strings in the list after a call, from index 0. Frees those that the library made. Call it after each call that
' writes strings. Not for VB_SortDataBy01Str, which moves the caller's strings and makes none: pass that one
' VarPtr(texts(0)) of a String array.
Public Function VecMatTakeTexts(ByRef list As VecMatTexts) As String()
    TakeInto list.Texts, list.Pointers
    VecMatTakeTexts = list.Texts
End Function

' Fills a table with columns of strings, from an array of arrays or a range's values. All must have the same length.
Public Sub VecMatGiveTextTable(ByRef table As VecMatTextTable, ByRef columns As Variant, _
    Optional ByVal argument As String = "columns")
    Dim column As Variant, j As Long
    ReDim table.Kept(0 To ColumnCount(columns, argument) - 1)
    ReDim table.Columns(0 To UBound(table.Kept))
    For Each column In ColumnsOf(columns, argument)
        table.Kept(j).Strings = VecMatStrings(column, argument & "(" & j + 1 & ")")
        CheckLength CellCount(table.Kept(j).Strings), CellCount(table.Kept(0).Strings), j, False, argument
        PointTo table.Kept(j).Strings, table.Columns(j).Pointers
        j = j + 1
    Next column
End Sub

' The strings in the table after a call: an array of String arrays, both from index 0. Frees as VecMatTakeTexts does.
Public Function VecMatTakeTextTable(ByRef table As VecMatTextTable) As Variant
    Dim columns() As Variant, j As Long
    ReDim columns(0 To UBound(table.Kept))
    For j = 0 To UBound(table.Kept)
        TakeInto table.Kept(j).Strings, table.Columns(j).Pointers
        columns(j) = table.Kept(j).Strings
    Next j
    VecMatTakeTextTable = columns
End Function

' The text of a string that the library returned as a pointer. Frees the pointer; a null one gives an empty text.
#If VBA7 Then
Public Function VecMatTakeString(ByVal bstr As LongPtr) As String
#Else
Public Function VecMatTakeString(ByVal bstr As Long) As String
#End If
    Dim size As Long, text As String
    If bstr = 0 Then Exit Function
    MoveBytes VarPtr(size), bstr - 4, 4    ' the length in bytes stands before the characters
    If size > 0 Then
        text = String$(size \ 2, 0)
        MoveBytes StrPtr(text), bstr, size
    End If
    VecMatFreeString bstr
    VecMatTakeString = text
End Function

' The character codes of a text, with a 0 after the last, as single strings are passed on a Mac. A surrogate pair gives
' one code.
Public Function VecMatCharacters(ByVal text As String) As Long()
    Dim numbers() As Long, i As Long, count As Long, unit As Long, previous As Long
    ReDim numbers(0 To Len(text))
    For i = 1 To Len(text)
        unit = AscW(Mid$(text, i, 1)) And &HFFFF&
        If (previous And &HFC00&) = &HD800& And (unit And &HFC00&) = &HDC00& Then
            numbers(count - 1) = &H10000 + (previous And &H3FF&) * &H400& + (unit And &H3FF&)
        Else
            numbers(count) = unit
            count = count + 1
        End If
        previous = unit
    Next i
    ReDim Preserve numbers(0 To count)
    numbers(count) = 0
    VecMatCharacters = numbers
End Function

' ---- private ----

Private Function NumberOf(ByRef cell As Variant, ByVal position As Long, ByVal argument As String) As Double
    Select Case VarType(cell)
    Case vbByte, vbInteger, vbLong, vbSingle, vbDouble, vbCurrency, vbDecimal, vbDate, LongLongType
        NumberOf = CDbl(cell)
    Case vbBoolean
        If cell Then NumberOf = 1
    Case vbEmpty, vbNull, vbError, vbString
        NumberOf = VecMatMissing
    Case Else
        Err.Raise BadType, "VecMat", argument & ": cell " & position & " is no value but " & TypeName(cell)
    End Select
End Function

Private Function TextOf(ByRef cell As Variant, ByVal position As Long, ByVal argument As String) As String
    Select Case VarType(cell)
    Case vbEmpty, vbNull, vbError
        TextOf = ""
    Case vbString, vbByte, vbInteger, vbLong, vbSingle, vbDouble, vbCurrency, vbDecimal, vbDate, vbBoolean, LongLongType
        TextOf = CStr(cell)
    Case Else
        Err.Raise BadType, "VecMat", argument & ": cell " & position & " is no value but " & TypeName(cell)
    End Select
End Function

Private Function ValueOf(ByRef number As Variant, ByRef missingAs As Variant) As Variant
    If number = VecMatMissing Then
        ValueOf = missingAs
    Else
        ValueOf = number
    End If
End Function

' The values of a range, an array, or one value, as an array.
Private Function CellsOf(ByRef values As Variant, ByVal argument As String) As Variant
    Dim cells As Variant
    cells = ValuesOf(values, argument)
    If Not IsArray(cells) Then cells = Array(cells)
    If CellCount(cells) = 0 Then Err.Raise BadCall, "VecMat", argument & ": has no cells"
    CellsOf = cells
End Function

Private Function ValuesOf(ByRef source As Variant, ByVal argument As String) As Variant
    If Not IsObject(source) Then
        ValuesOf = source
        Exit Function
    End If
    On Error GoTo NoValues
    ValuesOf = source.Value
    Exit Function
NoValues:
    Err.Raise BadType, "VecMat", argument & ": is " & TypeName(source) & ", which has no values"
End Function

' How many dimensions an array has; 0 for anything else, and for an array without bounds yet.
Private Function DimensionCount(ByRef values As Variant) As Long
    Dim dimension As Long, bound As Long
    If Not IsArray(values) Then Exit Function
    On Error GoTo Done
    For dimension = 1 To MostDimensions
        bound = UBound(values, dimension)
        DimensionCount = dimension
    Next dimension
Done:
    Err.Clear    ' after the last dimension UBound is an error
End Function

Private Function CellCount(ByRef values As Variant) As Long
    Dim dimension As Long, count As Long
    If DimensionCount(values) = 0 Then Exit Function
    count = 1
    For dimension = 1 To DimensionCount(values)
        count = count * (UBound(values, dimension) - LBound(values, dimension) + 1)
    Next dimension
    CellCount = count
End Function

Private Function ColumnCount(ByRef columns As Variant, ByVal argument As String) As Long
    ColumnCount = CellCount(ColumnsOf(columns, argument))
End Function

' An array of arrays is returned as it is, an array (row, column) as an array of its columns.
Private Function ColumnsOf(ByRef source As Variant, ByVal argument As String) As Variant
    Dim values As Variant, columns() As Variant, column() As Variant, i As Long, j As Long
    values = CellsOf(source, argument)
    If DimensionCount(values) = 1 Then
        If IsArray(source) Then CheckArrays values, argument
        ColumnsOf = values
        Exit Function
    End If
    If DimensionCount(values) > 2 Then Err.Raise BadCall, "VecMat", argument & ": has more than two dimensions"
    ReDim columns(0 To UBound(values, 2) - LBound(values, 2))
    For j = 0 To UBound(columns)
        ReDim column(0 To UBound(values, 1) - LBound(values, 1))
        For i = 0 To UBound(column)
            column(i) = values(LBound(values, 1) + i, LBound(values, 2) + j)
        Next i
        columns(j) = column
    Next j
    ColumnsOf = columns
End Function

' Plain values would become columns of one cell, past which the library would read.
Private Sub CheckArrays(ByRef columns As Variant, ByVal argument As String)
    Dim column As Variant, j As Long
    For Each column In columns
        j = j + 1
        If Not IsArray(column) And Not IsObject(column) Then
            Err.Raise BadType, "VecMat", argument & ": column " & j & " is no array but " & TypeName(column)
        End If
    Next column
End Sub

Private Sub CheckLength(ByVal length As Long, ByVal first As Long, ByVal j As Long, ByVal isTriangle As Boolean, _
    ByVal argument As String)
    Dim expected As Long
    expected = first
    If isTriangle Then expected = first - j
    If length <> expected Then
        Err.Raise BadCall, "VecMat", argument & ": column " & j + 1 & " has " & length & " cells, not " & expected
    End If
End Sub

#If VBA7 Then
Private Sub PointTo(ByRef texts() As String, ByRef pointers() As LongPtr)
#Else
Private Sub PointTo(ByRef texts() As String, ByRef pointers() As Long)
#End If
    Dim i As Long
    ReDim pointers(0 To UBound(texts))
    For i = 0 To UBound(texts)
        pointers(i) = StrPtr(texts(i))
    Next i
End Sub

' Where a pointer is no longer that of its text, the library has replaced it by a string of its own.
#If VBA7 Then
Private Sub TakeInto(ByRef texts() As String, ByRef pointers() As LongPtr)
#Else
Private Sub TakeInto(ByRef texts() As String, ByRef pointers() As Long)
#End If
    Dim i As Long
    For i = 0 To UBound(texts)
        If pointers(i) <> StrPtr(texts(i)) Then
            texts(i) = VecMatTakeString(pointers(i))
            pointers(i) = StrPtr(texts(i))
        End If
    Next i
End Sub
