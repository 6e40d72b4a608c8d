#!/usr/bin/env python3
"""Tests of the checker of VBA's modules: it takes what the language has, and every rule of it rejects something."""

import re
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True

import check_vba
import source
from malformed import BODIES, DECLARATIONS, LINES, PROCEDURES, TEXTS

HERE = Path(__file__).resolve().parent
RULE = re.compile(r"raise VbaError\(|self\.fail\(|reader\.fail\(")
RULE_FILES = [path for path in sorted(HERE.glob("*.py")) if path.name not in ("vba_selftest.py", "malformed.py")]

GOOD = """\
Attribute VB_Name = "Good"
Option Explicit
Option Base 0
Option Compare Binary
#Const Verbose = 0
#If Win64 And Not Mac Then
Private Declare PtrSafe Function Move Lib "kernel32" Alias "RtlMoveMemory" (ByVal a As LongPtr, ByRef b As Any) As Long
#ElseIf VBA7 Then
Private Declare PtrSafe Function Move CDecl Lib "libc" (ByVal a As LongPtr, ByRef b As Any) As Long
#Else
Private Declare Function Move CDecl Lib "libc" (ByVal a As Long, ByRef b As Any) As Long
#End If
Public Const Half As Double = 1 / 2, Name1 As String = "a""b" & vbCrLf
Private Const Size = 2 ^ 3
Public Enum Colour
    Red = 1
    Green
End Enum
Public Type Inner
    Numbers() As Double
    Grid(1 To 2, 0 To Size) As Long
End Type
Public Type Outer
    Parts() As Inner
    Title As String
End Type
Private counter As Long, table(1 To 3) As Double

Public Property Get Count() As Long
    Count = counter
End Property

Public Property Let Count(ByVal value As Long)
    counter = value
End Property

Private Function Total(ByRef numbers() As Double, Optional ByVal start As Long = 0, Optional ByVal last As Variant) As Double
    Dim i As Long, sum As Double
    If IsMissing(last) Then last = UBound(numbers)
    For i = start To last Step 1: sum = sum + numbers(i): Next i
    Total = sum
End Function

Private Function Made() As Double()
    Dim numbers() As Double
    ReDim numbers(0 To 2), numbers(3)
    ReDim Preserve numbers(0 To Size + 1)
    Made = numbers
End Function

Private Function Made2(ByVal i As Long) As Object
    Set Made2 = Nothing
End Function

Private Sub Several(ParamArray rest() As Variant)
    Debug.Print UBound(rest); rest(0), "x"
End Sub

Public Sub Work(): counter = 1: End Sub

Public Sub Everything()
    Dim all As Outer, v() As Double, cell As Variant, list As Collection, i As Long, colour1 As Colour
    Const Local1 As Long = &HFFFF&
    v = Made
    v = Made()
    Debug.Print Made()(0), Total(v, last:=2), Total(numbers:=v); -2 ^ -i; Not i = 1 Or i Like "a*" Xor True
    ReDim all.Parts(0 To 1)
    all.Parts(0).Numbers = v
    all.Parts(0).Grid(1, 2) = Local1 Mod 3 \\ 2
    With all.Parts(1)
        .Numbers = v
        Debug.Print .Numbers(0) + _
            .Numbers(1)
    End With
    Set list = New Collection
    list.Add 1, "key"
    For Each cell In Array(1, #1/2/2003#, Null)
        If IsNull(cell) Then Exit For Else i = i + 1
        If i > 1 Then
            Several cell
        ElseIf i < 0 Then
            Call Several(cell, 2)
        Else
            Work
        End If
    Next cell
    Select Case i
    Case Is > 3, 1 To 2
        i = 3
    Case Else
        i = 4
    End Select
    Do While i > 0
        i = i - 1
        If i = 2 Then Exit Do
    Loop
    Do
        i = i + 1
    Loop Until i > 3
    While i > 0
        i = i - 1
    Wend
    On Error GoTo Failed
    On Error Resume Next
    On Error GoTo 0
    On Error GoTo -1
    Count = Count + 1
    colour1 = Green
    cell = Left$("abc", 2) & Trim("x") & String$(2, 0) & [colour1]
    Erase v
    Move 0, ByVal 0&
    Good.Work
    Made2(1).Value = 3
    If TypeOf list Is Collection Then Stop
    GoTo Done
Failed:
    Resume Next
    Resume Done
    Err.Raise 5, "Good", Err.Description
Done:
    Rem the last
    Exit Sub
End Sub
"""


def text_of(declarations="", body="", procedures=""):
    return (f'Attribute VB_Name = "M"\nOption Explicit\n{declarations}\nPrivate Sub Work()\n{body}\nEnd Sub\n{procedures}\n'
            ).replace("\n", "\r\n")


class Selftest(unittest.TestCase):
    seen = set()  # places of rules that have rejected something

    @classmethod
    def setUpClass(cls):
        original = source.VbaError.__init__

        def recorded(error, line, message):
            frame = sys._getframe(1)
            if frame.f_code.co_name == "fail":
                frame = frame.f_back
            cls.seen.add((Path(frame.f_code.co_filename).name, frame.f_lineno))
            original(error, line, message)

        source.VbaError.__init__ = recorded

    def reject(self, message, *texts):
        wrong = check_vba.check({f"M{number or ''}": text for number, text in enumerate(texts)})
        self.assertTrue(any(message in line for line in wrong), f"{message!r} is not in {wrong}\n{texts[0]}")

    def test_what_the_language_has(self):
        self.assertEqual(check_vba.check({"Good": GOOD.replace("\n", "\r\n")}), [])
        self.assertEqual(check_vba.check({"M": text_of()}), [])

    def test_declarations(self):
        for message, declarations in DECLARATIONS:
            with self.subTest(message):
                self.reject(message, text_of(declarations))

    def test_bodies(self):
        shared = ("Private Type Pair\nA As Long\nB() As Double\nEnd Type\nPrivate Const One As Long = 1\n"
                  "Private Enum Kind\nFirst\nEnd Enum\nPrivate fixed(0 To 2) As Double, rows() As Pair")
        functions = ("Private Function Twice(ByRef x As Double, Optional ByVal y As Long) As Double\nTwice = 2 * x + y\n"
                     "End Function\nPrivate Sub TakePair(ByRef p As Pair)\nEnd Sub\n"
                     "Private Sub TakeAny(ByVal v As Variant)\nEnd Sub\n"
                     "Private Sub TakeRow(ByRef r() As Double)\nEnd Sub")
        self.assertEqual(check_vba.check({"M": text_of(shared, "", functions)}), [])
        for message, body in BODIES:
            with self.subTest(message + ": " + body):
                self.reject(message, text_of(shared, "Dim i As Long, d As Double, s As String, v As Variant, a() As Double, p As Pair\n"
                                             + body, functions))

    def test_procedures(self):
        for message, procedures in PROCEDURES:
            with self.subTest(message):
                self.reject(message, text_of("Private Type Pair\nA As Long\nEnd Type", "", procedures))

    def test_lines(self):
        for message, old, new in LINES:
            with self.subTest(message):
                text = text_of("", "Dim i As Long\ni = 1")
                self.assertIn(old, text)
                self.reject(message, text.replace(old, new, 1))

    def test_several_modules(self):
        for message, texts in TEXTS:
            with self.subTest(message):
                self.reject(message, *[text.replace("\n", "\r\n") for text in texts])

    def test_pages(self):
        page = "text\n```vb\nSub A()\n    Range(\"A1\").Value = 1\nEnd Sub\n```\n```vb\nSub A()\nEnd Sub\n```\n"
        modules = check_vba.modules_of_page("x", page)
        self.assertEqual(len(modules), 2)
        self.assertEqual(check_vba.check({**modules, "Spreadsheet": check_vba.SPREADSHEET}), [])
        wrong = check_vba.check({**check_vba.modules_of_page("x", page.replace("Range", "Rage")),
                                 "Spreadsheet": check_vba.SPREADSHEET})
        self.assertIn("Rage is not declared", wrong[0])

    def test_hosts(self):
        self.assertEqual(check_vba.check({"M": text_of("#If Win64 Then", "x = 1", "#End If")}),
                         ["M, line 5: x is not declared (VBA7, 64-bit Windows; VBA7, 64-bit Mac)"])

    def test_zz_every_rule_has_rejected_something(self):
        rules = {(path.name, number) for path in RULE_FILES
                 for number, line in enumerate(path.read_text(encoding="ascii").split("\n"), start=1)
                 if RULE.search(line) and "self.line, message" not in line}
        self.assertGreater(len(rules), 100)
        self.assertEqual(sorted(rules - self.seen), [])


if __name__ == "__main__":
    unittest.main()
