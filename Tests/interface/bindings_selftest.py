#!/usr/bin/env python3
"""Tests of the bindings test: whatever it is there to find, it finds."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
import bindings
from declarations import read_header

HEADER = """
extern "C" {
VECMAT_API double VB_V_Mean(double* v, int n, short* mask);
VECMAT_API void VB_Label(wchar_t** labels, int len, const wchar_t* text, SAFEARRAY** a, const void* one);
VECMAT_API int VB_Factor(short N, int* n, short* status);
VECMAT_API void Cpp_Native(double x);
VECMAT_API void M_Tables(matrix* a);
VECMAT_API wchar_t* Step(const void* input);
}
VECMAT_API void Overloaded(double x);
"""

BLOCK = """
Public Declare PtrSafe Function VB_V_Mean CDecl Lib "lib" ( _
    ByRef v As Double, ByVal n As Long, ByRef mask As Boolean) As Double ' a comment
Public Declare PtrSafe Sub VB_Label CDecl Lib "lib" ( _
    ByVal labels As LongPtr, ByVal lenArg As Long, ByRef text As Long, ByVal a As LongPtr, ByVal one As LongPtr)
Public Declare PtrSafe Function VB_Factor CDecl Lib "lib" (ByVal N As Integer, ByRef n2 As Long, ByRef status As Integer) As Long
Public Declare PtrSafe Function Step CDecl Lib "lib" (ByVal inputArg As LongPtr) As LongPtr
"""
OLDER = BLOCK.replace("PtrSafe ", "").replace("LongPtr", "Long")
WINDOWS = BLOCK.replace("CDecl ", "").replace('"lib"', '"dll"').replace("ByRef text As Long", "ByVal text As LongPtr")
MODULE = ('Attribute VB_Name = "X"\n#If Mac And VBA7 Then' + BLOCK + "#ElseIf Win64 Then" + WINDOWS + "#ElseIf Mac Then"
          + OLDER + "#End If\n").replace("\n", "\r\n")


def compare_macros(text, declarations):
    return bindings.compare_macros([text], declarations)

C = """
#ifndef A
/* comment; */
#ifdef __cplusplus
struct SAFEARRAY;
extern "C" {
#else
typedef struct SAFEARRAY
{
    void* pvData;
} SAFEARRAY;
#endif
double VB_V_Mean(double* v, int n, short* mask);
void VB_Label(wchar_t** labels, int len, const wchar_t* text, struct SAFEARRAY** a,
    const void* one);
int VB_Factor(short N, int* n, short* status);
void Cpp_Native(double x);
wchar_t* Step(const void* input);
#ifdef __cplusplus
}
#endif
"""
GUARDED = """
#define VECMAT_GUARDED_API __declspec(dllexport)
VECMAT_GUARDED_API const char* vecmat_guarded_error(void);
VECMAT_GUARDED_API int vecmat_guarded_VB_V_Mean(double* v, int n, short* mask, double* returned);
VECMAT_GUARDED_API int vecmat_guarded_VB_Label(wchar_t** labels, int len, const wchar_t* text, struct SAFEARRAY** a,
                                               const void* one);
VECMAT_GUARDED_API int vecmat_guarded_VB_Factor(short N, int* n, short* status, int* returned);
VECMAT_GUARDED_API int vecmat_guarded_Cpp_Native(double x);
VECMAT_GUARDED_API int vecmat_guarded_Step(const void* input, wchar_t** returned);
"""


DECLARATIONS = read_header(HEADER, "a.h")


class Case(unittest.TestCase):
    def expect(self, message, text, old, new, compare, count=1):
        self.assertIn(old, text)
        wrong = compare(text.replace(old, new, count), DECLARATIONS)
        self.assertTrue(any(message in line for line in wrong), f"{message!r} is not in {wrong}")


class Macros(Case):
    def change(self, message, old, new, count=1):
        self.expect(message, MODULE, old, new, compare_macros, count)

    def test_nothing_is_wrong_where_all_agree(self):
        self.assertEqual(compare_macros(MODULE, DECLARATIONS), [])

    def test_types_and_passing(self):
        self.change("ByVal v As Double, the header double* v", "ByRef v As Double", "ByVal v As Double")
        self.change("ByRef v As Single", "ByRef v As Double", "ByRef v As Single")
        self.change("ByRef n As Long, the header int n", "ByVal n As Long", "ByRef n As Long")
        self.change("ByRef mask As Integer", "mask As Boolean", "mask As Integer")
        self.change("ByRef status As Boolean", "status As Integer", "status As Boolean")
        self.change("ByVal labels As Long, the header wchar_t**", "labels As LongPtr", "labels As Long")
        self.change("ByRef text As Integer", "text As Long", "text As Integer")
        self.change("returns Integer, the header double", ") As Double", ") As Integer")
        self.change("returns Long, the header wchar_t*", ") As LongPtr", ") As Long")

    def test_all_blocks_are_looked_at(self):
        for start, end, title in (("#ElseIf Win64", "#ElseIf Mac", "Windows"), ("#ElseIf Mac", "#End If", "before VBA7")):
            first, last = MODULE.index(start), MODULE.index(end)
            text = MODULE[:first] + MODULE[first:last].replace("ByVal n As Long", "ByRef n As Long") + MODULE[last:]
            self.assertEqual(compare_macros(text, DECLARATIONS),
                             [f"{title}: VB_V_Mean has ByRef n As Long, the header int n"])

    def test_several_modules(self):
        self.assertIn("VB_V_Mean is declared twice",
                      "".join(bindings.compare_macros([MODULE, MODULE], DECLARATIONS)))

    def test_absent_arrays(self):
        nullable = {("VB_V_Mean", "mask")}
        text = MODULE.replace("ByRef mask As Boolean", "ByRef mask As Any")
        self.assertEqual(bindings.compare_macros([text], DECLARATIONS, nullable), [])
        self.assertIn("mask As Any", "".join(bindings.compare_macros([text], DECLARATIONS)))
        self.assertIn("mask As Boolean", "".join(bindings.compare_macros([MODULE], DECLARATIONS, nullable)))

    def test_count_and_order(self):
        self.change("has 2 parameters, the header 3", ", ByRef mask As Boolean", "")
        self.change("calls m what the header calls n", "ByVal n As Long", "ByVal m As Long")
        self.change("calls mask what", "ByRef v As Double, ByVal n As Long, ByRef mask As Boolean",
                    "ByRef mask As Boolean, ByVal n As Long, ByRef v As Double")

    def test_what_is_declared(self):
        self.change("Step is not declared", "Function Step", "Function Stop2")
        self.change("Cpp_Native is not a flat function", "Function Step", "Function Cpp_Native")
        self.change("is declared twice", "VB_Factor", "VB_V_Mean")
        self.change("not all in one library", '"lib"', '"other"')

    def test_language(self):
        self.change("PtrSafe", "PtrSafe Sub VB_Label", "Sub VB_Label")
        self.change("CDecl", "CDecl ", "")
        self.change("CDecl", "VB_Factor Lib", "VB_Factor CDecl Lib")
        self.change("not a declaration", "Public Declare PtrSafe Sub VB_Label", "Public Declare PtrSafe Function VB_Label")
        self.change("nothing but case", "n2 As Long", "n As Long")
        self.change("not a parameter", "ByVal n As Long", "n As Long")
        self.change("three blocks", "#ElseIf Win64 Then", "")


class CHeader(Case):
    def change(self, message, old, new):
        self.expect(message, C, old, new, bindings.compare_c)

    def test_nothing_is_wrong_where_all_agree(self):
        self.assertEqual(bindings.compare_c(C, DECLARATIONS), [])

    def test_what_differs(self):
        self.change("VB_V_Mean is", "double VB_V_Mean", "float VB_V_Mean")
        self.change("VB_V_Mean is", "int n, short* mask", "int m, short* mask")
        self.change("VB_Label is", "const wchar_t* text", "wchar_t* text")
        self.change("VB_Label is", "struct SAFEARRAY** a", "struct SAFEARRAY* a")
        self.change("VB_Factor is", "short* status", "int* status")
        self.change("Cpp_Native is not declared", "void Cpp_Native(double x);", "")
        self.change("Overloaded is not a flat function", "Cpp_Native", "Overloaded")
        self.change("M_Tables is not a flat function", "Cpp_Native", "M_Tables")
        self.change("is declared twice", "Cpp_Native", "VB_V_Mean")
        self.change("say (void)", "(double x)", "()")
        self.change("not a declaration", "void Cpp_Native(double x);", "int data = 3;")


class Guarded(unittest.TestCase):
    def found(self, old="", new=""):
        return bindings.compare_guarded(GUARDED.replace(old, new) if old else GUARDED, DECLARATIONS)

    def test_right(self):
        self.assertEqual(self.found(), [])

    def test_wrong(self):
        for old, new, words in (("int n, short* mask, double* returned", "int n, short* mask", "VB_V_Mean"),
                                ("double* returned", "int* returned", "VB_V_Mean"),
                                ("(double x)", "(double x, double* returned)", "Cpp_Native"),
                                ("int vecmat_guarded_Step", "void vecmat_guarded_Step", "Step"),
                                ("guarded_Step(", "guarded_Stop(", "Step is not declared"),
                                ("const char* vecmat", "char* vecmat", "vecmat_guarded_error")):
            with self.subTest(new=new):
                self.assertIn(words, "".join(self.found(old, new)))

    def test_symbols(self):
        symbols = {"vecmat_guarded_" + name for name in ("VB_V_Mean", "VB_Label", "VB_Factor", "Cpp_Native", "Step",
                                                         "error")}
        self.assertEqual(bindings.compare_guarded_symbols(symbols, DECLARATIONS), [])
        self.assertIn("lacks", "".join(bindings.compare_guarded_symbols(symbols - {"vecmat_guarded_Step"}, DECLARATIONS)))
        self.assertIn("too", "".join(bindings.compare_guarded_symbols(symbols | {"other"}, DECLARATIONS)))


if __name__ == "__main__":
    unittest.main()
