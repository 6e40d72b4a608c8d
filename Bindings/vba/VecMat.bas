Attribute VB_Name = "VecMat"
Option Explicit

' Shared by the modules VecMatCalls1, 2, ..., which declare the functions of VecMat that take plain arrays, for
' macros on a Mac and on 64-bit Windows. Import all of them.
' Written by tools/bindings from exports.tsv and arguments.tsv: change those, not these modules.
'
' Docs/contracts describes what each function does, and how it treats missing cells, masks, weights and empty
' inputs. Docs/border.md describes how arguments are passed; in short:
'
'   numbers       An array is passed by its first element: VB_V_Mean2(v(0), n). Tables are stored column
'                 after column, as VBA stores an array (row, column). Give arrays the sizes that the function
'                 requires: nothing is checked.
'   Booleans      A single one is passed and returned as an Integer, -1 or 0. An array is one of Booleans.
'   strings       An array of strings is passed as an array of pointers. VecMatGiveTexts and VecMatTakeTexts, in
'                 VecMatHelpers, make it, and free what the library makes. A single string is passed as
'                 StrPtr(text) on Windows, and on a Mac as the first element of VecMatCharacters(text).
'                 SimplifyRange and Increase1Col take StrPtr(text) everywhere. A returned string is a pointer:
'                 VecMatTakeString gives its text and frees it.
'   columns       A table of columns is a VecMatTable, passed as VarPtr(table): see VecMatNumberTable in
'                 VecMatHelpers, and VecMatTextTable for strings.
'   missing       A cell without a value holds VecMatMissing. VecMatNumbers turns a range's values into numbers,
'                 and VecMatValues turns numbers into values.
'   absent        Where the contract allows an array to be absent, as with most masks and weights, it is declared
'                 As Any: pass its first element, or ByVal VecMatNothing.
'   the library   On Windows VecMat.dll is found beside the host, on the path, or in the folder given to VecMatFrom.
'                 On a Mac its path is part of the declarations: see tools/bindings --library.

Public Const VecMatMissing As Double = -1.79769313486231E+308

' One column of a table of columns: fill the one of its two arrays that the function reads.
Public Type VecMatColumn
    Numbers() As Double
    Strings() As String
End Type

Public Type VecMatTable
    Columns() As VecMatColumn
End Type

#If VBA7 Then
Public Const VecMatNothing As LongPtr = 0
#Else
Public Const VecMatNothing As Long = 0
#End If

' Frees a string where the library has it from. VecMatHelpers calls it: see VecMatTakeString there.
#If Mac And VBA7 Then
Public Declare PtrSafe Sub VecMatFreeString CDecl Lib "/usr/local/lib/libCompanionRuntime.dylib" Alias "SysFreeString2" ( _
    ByVal bstr As LongPtr)
#ElseIf Mac Then
Public Declare Sub VecMatFreeString CDecl Lib "/usr/local/lib/libCompanionRuntime.dylib" Alias "SysFreeString2" ( _
    ByVal bstr As Long)
#ElseIf VBA7 Then
Public Declare PtrSafe Sub VecMatFreeString Lib "oleaut32" Alias "SysFreeString" (ByVal bstr As LongPtr)
#Else
Public Declare Sub VecMatFreeString Lib "oleaut32" Alias "SysFreeString" (ByVal bstr As Long)
#End If

#If Win64 And Not Mac Then
Private Declare PtrSafe Function LoadLibraryExW Lib "kernel32" ( _
    ByVal path As LongPtr, ByVal file As LongPtr, ByVal flags As Long) As LongPtr

' Loads the library from a folder that also contains the companions: VecMatFrom ThisWorkbook.Path. Call it before any
' function of the library; True if it was found.
Public Function VecMatFrom(ByVal folder As String) As Boolean
    Dim path As String
    path = folder & "\VecMat.dll"
    VecMatFrom = LoadLibraryExW(StrPtr(path), 0, 8) <> 0
End Function
#End If
