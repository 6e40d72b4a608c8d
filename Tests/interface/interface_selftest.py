#!/usr/bin/env python3
"""Tests of the interface test: whatever it is there to find, it finds."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
import check_calls
import interface
from declarations import HeaderError, read_header

HEADING = "name\tlinkage\treturns\tparameters\tfamily\tunit\n"
LIST = HEADING + (
    "table::table\tC++\t\tint rows\tmember\ttable\n"
    "table::~table\tC++\t\t\tmember\ttable\n"
    "table::get\tC++\tdouble\tint i, int j\tmember\ttable\n"
    "V_Sum\tC++\tdouble\tmatrix* v, int n\tV\tunit/sums\n"
    "V_Sum\tC++\tint\tmatrixInt* v, int n\tV\tunit/sums\n"
    "VB_V_Sum\tC\tdouble\tdouble* v, int n, int from\tVB\tunit/sums\n"
    "Label\tC\tstd::wstring\tconst wchar_t* text, std::wstring& rest, std::vector<void*>& all\tother\tunit/sums\n"
    "V_Later\tC\tvoid\t\tV\tunit/later\n")

TABLE = """
#pragma once
class VECMAT_API table { // as the library's tables
public:
    int nRows = 0; /* V_Sum(int) { */
    unsigned limit = (1u << 4);
    table(int rows);
    ~table();
    table& operator=(const table&) = delete;
    VECMAT_API double get(int i, int j)
    {
        return i < j ? 1.0 : 0.0;
    }
private:
    struct Shape { int rows; };
    VECMAT_LOCAL explicit table(Shape s) : nRows{s.rows} { }
    void onlyInside();
};
"""

SUMS = """
#define A_MACRO(x) \\
    VECMAT_API int x();
VECMAT_API double V_Sum(matrix* v, int n);
VECMAT_API int V_Sum(matrixInt *v,
                     int n);
namespace vecmat { inline int helper(int a = 3) { return a; } }
template <class T> T twice(T x) { return x + x; }
extern "C" {
VECMAT_API double VB_V_Sum(double* v, int n, int from);
}
extern "C" VECMAT_API std::wstring Label(wchar_t const *text, std::wstring& rest, std::vector<void*>& all);
"""

SYMBOLS = {"table::table(int)", "table::~table()", "table::get(int, int)", "V_Sum(matrix*, int)",
           "V_Sum(matrixInt*, int)", "VB_V_Sum", "Label"}


def judge(rows=LIST, table=TABLE, sums=SUMS, symbols=frozenset(SYMBOLS)):
    parsed, wrong = interface.read_rows(rows)
    declarations = read_header(table, "table.h") + read_header(sums, "unit/sums.h")
    more, missing = interface.compare(parsed, declarations, set(symbols))
    return wrong + more, missing


class Agreement(unittest.TestCase):
    def test_nothing_is_wrong_where_all_three_agree(self):
        wrong, missing = judge()
        self.assertEqual(wrong, [])
        self.assertEqual([row.name for row in missing], ["V_Later"])

    def test_summary_counts_what_is_missing(self):
        parsed, _ = interface.read_rows(LIST)
        lines = interface.summary(parsed, judge()[1])
        self.assertEqual(lines[0], "7 of 8 rows of the interface list are in the library")
        self.assertIn("  V: 1 of 3", lines)
        self.assertIn("  unit/later: 1 of 1", lines)


class Disagreement(unittest.TestCase):
    def expect(self, message, count=None, **changed):
        wrong, _ = judge(**changed)
        self.assertTrue(any(message in line for line in wrong), f"{message!r} is not in {wrong}")
        if count is not None:
            self.assertEqual(len(wrong), count, wrong)

    def change(self, text, old, new):
        self.assertIn(old, text)
        return text.replace(old, new, 1)

    def test_return_type(self):
        self.expect("VB_V_Sum returns 'int', the list has 'double'", 1,
                    sums=self.change(SUMS, "API double VB_V", "API int VB_V"))

    def test_return_type_of_a_member(self):
        self.expect("table::get returns 'int'", 1, table=self.change(TABLE, "double get", "int get"))

    def test_parameter_type(self):
        self.expect("V_Sum(matrix*, short) disagrees with the list",
                    sums=self.change(SUMS, "matrix* v, int n", "matrix* v, short n"))

    def test_reference_instead_of_pointer(self):
        self.expect("V_Sum(matrix*&, int) disagrees", sums=self.change(SUMS, "matrix* v", "matrix*& v"))

    def test_lost_const(self):
        self.expect("disagrees with the list: Label(const wchar_t*",
                    sums=self.change(SUMS, "wchar_t const *text", "wchar_t* text"))

    def test_parameter_too_many(self):
        self.expect("VB_V_Sum(double*, int, int, int) disagrees",
                    sums=self.change(SUMS, "int from", "int from, int to"))

    def test_parameters_of_one_type_exchanged(self):
        self.expect("VB_V_Sum has its parameter 'from' in another place", 2,
                    sums=self.change(SUMS, "int n, int from", "int from, int n"))

    def test_another_name_for_a_parameter_is_no_matter(self):
        self.assertEqual(judge(sums=self.change(SUMS, "int from", "int first"))[0], [])

    def test_linkage_in_the_header(self):
        declaration = "VECMAT_API double VB_V_Sum(double* v, int n, int from);\n"
        self.expect("VB_V_Sum has C++ linkage, the list has C", 1,
                    sums=self.change(SUMS, 'extern "C" {\n' + declaration + "}\n", declaration))

    def test_row_of_the_wrong_linkage(self):
        self.expect("VB_V_Sum has C linkage, the list has C++", rows=self.change(LIST, "VB_V_Sum\tC\t", "VB_V_Sum\tC++\t"))

    def test_declaration_without_a_row(self):
        self.expect("V_New(int) has no row", sums=SUMS + "VECMAT_API void V_New(int n);\n",
                    symbols=SYMBOLS | {"V_New(int)"})

    def test_member_without_a_row(self):
        self.expect("table::more() has no row", table=self.change(TABLE, "    ~table();", "    ~table();\nint more();"))

    def test_declaration_in_another_header(self):
        self.expect("is declared here, the list has it in unit/other.h",
                    rows=LIST.replace("matrixInt* v, int n\tV\tunit/sums", "matrixInt* v, int n\tV\tunit/other"))

    def test_declared_twice(self):
        self.expect("is declared again", 1, sums=SUMS + "VECMAT_API double V_Sum(matrix* v, int n);\n")

    def test_exported_without_a_row(self):
        self.expect("the library exports helper, which has no row", 1, symbols=SYMBOLS | {"helper"})
        self.expect("the library exports std::vector<int>::push_back(int), which has no row", 1,
                    symbols=SYMBOLS | {"std::vector<int>::push_back(int)"})
        self.expect("exports typeinfo for table, which has no row", 1, symbols=SYMBOLS | {"typeinfo for table"})

    def test_symbol_of_the_wrong_linkage(self):
        symbols = SYMBOLS - {"VB_V_Sum"} | {"VB_V_Sum(double*, int, int)"}
        self.expect("exports VB_V_Sum(double*, int, int) with the wrong linkage, the list has C", symbols=symbols)
        self.expect("exports V_Sum with the wrong linkage, the list has C++", symbols=SYMBOLS | {"V_Sum"})

    def test_symbol_with_other_parameters(self):
        self.expect("exports V_Sum(matrix*, long), which disagrees", symbols=SYMBOLS | {"V_Sum(matrix*, long)"})

    def test_declared_but_not_exported_is_missing(self):
        wrong, missing = judge(symbols=SYMBOLS - {"VB_V_Sum"})
        self.assertEqual(wrong, [])
        self.assertEqual([row.name for row in missing], ["VB_V_Sum", "V_Later"])

    def test_exported_but_not_declared(self):
        self.expect("V_Later() is exported but no header declares it", 1, symbols=SYMBOLS | {"V_Later"})

    def test_mark_left_out(self):
        self.expect("is exported but no header declares it for export", 1,
                    sums=self.change(SUMS, "VECMAT_API int V_Sum", "int V_Sum"))

    def test_broken_list(self):
        self.expect("a second row for VB_V_Sum", rows=LIST + "VB_V_Sum\tC\tint\t\tVB\tunit/sums\n")
        self.expect("not a row", 1, rows=LIST + "V_Half\tC\n")
        self.expect("not a row", 1, rows=LIST + "V_Odd\tD\tint\t\tV\tunit/sums\n")
        self.expect("the columns are not", 1, rows=LIST.replace("linkage", "language", 1))


class Reading(unittest.TestCase):
    def refuse(self, text, message):
        with self.assertRaisesRegex(HeaderError, message):
            read_header(text, "some.h")

    def test_what_cannot_be_exported_is_reported(self):
        self.refuse("template <class T> VECMAT_API T twice(T x);", "template")
        self.refuse("template <class T> VECMAT_API T twice(T x) { return x; }", "template")
        self.refuse("namespace vecmat { VECMAT_API int f(); }", "namespace")
        self.refuse("VECMAT_API extern int count;", "exported data")
        self.refuse("VECMAT_API int f(;", "cannot read")

    def test_unbalanced_braces_are_reported(self):
        self.refuse("namespace vecmat { int f();", "never closed")
        self.refuse("int f(); }", "brace too many")

    def test_line_numbers_survive_comments(self):
        found = read_header("/* one\n two */\n// three\n\nVECMAT_API int\nf(int a = g(1, 2), double b[]);", "some.h")
        self.assertEqual([(d.signature(), d.line, d.names) for d in found], [("f(int, double*)", 5, ("a", "b"))])

    def test_unreadable_header_is_told_for_a_folder(self):
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, "unit").mkdir()
            Path(folder, "unit", "sums.h").write_text("VECMAT_API int f(;", encoding="utf-8")
            self.assertEqual(len(interface.read_headers(folder)[1]), 1)

    def test_umbrella(self):
        declarations = read_header(SUMS, "unit/sums.h")
        with tempfile.TemporaryDirectory() as folder:
            self.assertIn("does not exist", interface.check_umbrella(folder, declarations)[0])
            Path(folder, "VecMat.h").write_text('#include "unit/gone.h"\n', encoding="utf-8")
            self.assertEqual(interface.check_umbrella(folder, declarations),
                             ["VecMat.h does not include unit/sums.h",
                              "VecMat.h includes unit/gone.h, which does not exist"])


class Symbols(unittest.TestCase):
    """On a library that is compiled here."""

    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)

    def compile(self, source, *options):
        path, library = Path(self.folder, "a.cpp"), Path(self.folder, "liba.so")
        path.write_text(source, encoding="utf-8")
        subprocess.run([os.environ.get("CXX", "c++"), "-shared", "-fPIC", "-fvisibility=hidden",
                        "-DVECMAT_API=__attribute__((visibility(\"default\")))", *options, path, "-o", library],
                       check=True)
        return library

    def test_calls_of_own_functions_that_others_can_take_over(self):
        source = """
            #include <cmath>
            extern "C" VECMAT_API double ddot(double x);
            VECMAT_API double V_Norm(double x, int) { return std::cos(x) + 1.0; }
            extern "C" VECMAT_API double dnrm2(double x) { return V_Norm(ddot(x), 1) + ddot(x + 1.0); }
            double ddot(double x) { return std::sin(x); }
            """
        self.assertEqual(interface.open_calls(self.compile(source, "-O0")), ["V_Norm(double, int)", "ddot"])
        self.assertEqual(interface.open_calls(self.compile(source, "-O0", "-Wl,-Bsymbolic-functions")), [])

    def test_names_as_the_list_has_them(self):
        self.assertEqual(interface.read_symbols(self.compile("""
            #include <string>
            #include <vector>
            struct matrix;
            struct VECMAT_API table { table(int); ~table(); double get(int i, unsigned j); };
            table::table(int) {}
            table::~table() {}
            double table::get(int, unsigned) { return 0.0; }
            VECMAT_API double V_Sum(matrix*&, const wchar_t*, short&, std::vector<void*>&) { return 0.0; }
            VECMAT_API void V_Set(matrix**, std::wstring, const void*) {}
            extern "C" VECMAT_API double VB_V_Sum(double*, int) { return 0.0; }
            extern "C" VECMAT_API int data; int data = 3;
            double hidden(int) { return 0.0; }
            """)), {"table::table(int)", "table::~table()", "table::get(int, unsigned int)",
                   "V_Sum(matrix*&, const wchar_t*, short&, std::vector<void*>&)",
                   "V_Set(matrix**, std::wstring, const void*)", "VB_V_Sum", "data"})


class Calls(unittest.TestCase):
    """On a program that is compiled here."""

    def test_overloads_are_told_apart_and_mentions_are_no_calls(self):
        rows, _ = interface.read_rows(HEADING + (
            "table::get\tC++\tdouble\tint i\tmember\ttable\n"
            "table::set\tC++\tvoid\tint i\tmember\ttable\n"
            "V_Sum\tC++\tdouble\tdouble* v\tV\tunit/sums\n"
            "V_Sum\tC++\tint\tint* v\tV\tunit/sums\n"
            "VB_V_Sum\tC\tdouble\tdouble* v\tVB\tunit/sums\n"
            "VB_V_Max\tC\tdouble\tdouble* v\tVB\tunit/sums\n"))
        source = """
            struct table { double get(int i) { return i; } void set(int) {} };
            double V_Sum(double*);
            int V_Sum(int*);
            extern "C" double VB_V_Sum(double*);
            extern "C" double VB_V_Max(double*);
            // VB_V_Max(nullptr);
            double call(int* x) { table t; return t.get(1) + V_Sum(x) + VB_V_Sum(nullptr) + sizeof "VB_V_Max(x)"; }
            """
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, "a.cpp").write_text(source, encoding="utf-8")
            subprocess.run([os.environ.get("CXX", "c++"), "-O0", "-c", f"{folder}/a.cpp", "-o", f"{folder}/a.o"],
                           check=True)
            self.assertEqual(check_calls.not_called(rows, check_calls.called_symbols([f"{folder}/a.o"])),
                             ["table::set(int)", "V_Sum(double*)", "VB_V_Max(double*)"])


class Program(unittest.TestCase):
    """The program as it is run: its exit status."""

    def run_on(self, list_text, *options):
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, "exports.tsv").write_text(list_text, encoding="utf-8")
            Path(folder, "headers").mkdir()
            Path(folder, "headers", "a.h").write_text('extern "C" VECMAT_API int present(int n);', encoding="utf-8")
            Path(folder, "headers", "VecMat.h").write_text('#include "a.h"\n', encoding="utf-8")
            Path(folder, "a.cpp").write_text('extern "C" int present(int n) { return n; }', encoding="utf-8")
            subprocess.run([os.environ.get("CXX", "c++"), "-shared", "-fPIC", f"{folder}/a.cpp", "-o",
                            f"{folder}/liba.so"], check=True)
            return subprocess.run([sys.executable, "-B", Path(__file__).with_name("check_interface.py"), *options,
                                   f"{folder}/exports.tsv", f"{folder}/headers", f"{folder}/liba.so"],
                                  capture_output=True, text=True)

    def test_what_is_missing_fails_only_where_all_must_be_there(self):
        present = HEADING + "present\tC\tint\tint n\tother\ta\n"
        absent = present + "absent\tC\tint\tint n\tother\ta\n"
        self.assertEqual(self.run_on(present, "--complete").returncode, 0)
        self.assertEqual(self.run_on(absent).returncode, 0)
        complete = self.run_on(absent, "--complete")
        self.assertEqual(complete.returncode, 1)
        self.assertIn("WRONG: missing: absent(int)", complete.stdout)

    def test_what_is_wrong_always_fails(self):
        wrong = self.run_on(HEADING + "present\tC\tint\tdouble n\tother\ta\n")
        self.assertEqual(wrong.returncode, 1)
        self.assertIn("2 wrong", wrong.stdout)


if __name__ == "__main__":
    unittest.main()
