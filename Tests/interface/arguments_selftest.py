#!/usr/bin/env python3
"""Tests of what reads arguments.tsv: shapes are evaluated as told, and a list that is wrong is found out."""

import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools/lib"))
import arguments  # noqa: E402
import shapes  # noqa: E402
from shapes import ShapeError, evaluate, read_expression, read_shape  # noqa: E402

EXPORTS = [{"name": "VB_F", "linkage": "C", "returns": "void", "family": "VB", "unit": "u",
            "parameters": "double* x, int n, int* cols, double* out"},
           {"name": "F", "linkage": "C++", "returns": "void", "family": "M", "unit": "u", "parameters": "matrix* x"}]
ROWS = ["VB_F 1 x double* in n,value(cols) no - data -",
        "VB_F 2 n int value - - - count -",
        "VB_F 3 cols int* inout 1 no keeps count -",
        "VB_F 4 out double* out packed(n) yes all - -"]


def rows_of(lines):
    return [dict(zip(arguments.COLUMNS, line.split(" "))) for line in lines]


def value(text, **values):
    return evaluate(read_expression(text), values)


class Expressions(unittest.TestCase):
    def test_operators_bind_as_in_c(self):
        self.assertEqual(value("1 + 2 * 3 - 4 / 2"), 5)
        self.assertEqual(value("(1 + 2) * 3"), 9)
        self.assertEqual(value("n - 1 - 1", n=5), 3)
        self.assertEqual(value("job % 100 / 10", job=121), 2)
        self.assertEqual(value("n + 1 == 3", n=2), 1)

    def test_division_rounds_towards_zero(self):
        self.assertEqual([value("a / 2", a=a) for a in (-3, 3)], [-1, 1])
        self.assertEqual([value("a % 10", a=a) for a in (-13, 13)], [-3, 3])

    def test_functions(self):
        self.assertEqual(value("max(a, 0, min(b, 2))", a=-1, b=7), 2)
        self.assertEqual([value("if(mode == -1, 7, 8)", mode=mode) for mode in (-1, 0)], [7, 8])
        self.assertEqual([value("span(from, to)", **{"from": 3, "to": to}) for to in (2, 3, 5)], [0, 1, 3])
        self.assertEqual([value("packed(n)", n=n) for n in (-3, 0, 1, 4)], [0, 0, 1, 10])

    def test_functions_of_arrays(self):
        missing = shapes.MISSING
        self.assertEqual(value("value(c)", c=[5]), 5)
        self.assertEqual(value("largest(c, n)", c=[-3, 2, 9], n=2), 2)
        self.assertEqual(value("largest(c, n)", c=[-3], n=1), 0)
        self.assertEqual(value("sum(f, n)", f=[1.5, missing, 2.0, 100.0], n=3), 3)
        self.assertEqual(value("sum(f, n)", f=[1e300], n=1), -2147483648)
        self.assertEqual(value("clamped_sum(c, n, 3)", c=[2.9, -4.0, 8.0, float("nan"), 5.0], n=4), 5)
        self.assertEqual(value("clamped_sum(c, n, 3)", c=[float("inf")], n=1), 3)

    def test_what_is_no_expression_is_refused(self):
        for text in ("", "n +", "n n", "(n", "span(n)", "power(n, 2)", "value(3)", "n ? 1", "1,2"):
            with self.assertRaises(ShapeError, msg=text):
                read_expression(text)


class Shapes(unittest.TestCase):
    def test_lengths(self):
        self.assertEqual(read_shape("n").lengths({"n": 3}), [3])
        self.assertEqual(read_shape("r, c").lengths({"r": 3, "c": 2}), [6])
        self.assertEqual(read_shape("r, c").lengths({"r": -3, "c": -2}), [0])
        self.assertEqual(read_shape("span(a, b), max(c, 1)").lengths({"a": 2, "b": 3, "c": 0}), [2])
        self.assertEqual(read_shape("c x r").lengths({"r": 3, "c": 2}), [3, 3])
        self.assertEqual(read_shape("c x r falling").lengths({"r": 2, "c": 4}), [2, 1, 0, 0])
        self.assertEqual(read_shape("text").lengths({}), [])

    def test_strings_are_told_apart(self):
        self.assertTrue(read_shape("c x r strings").strings)
        self.assertFalse(read_shape("c x r").strings)

    def test_what_is_no_shape_is_refused(self):
        for text in ("a, b, c", "n strings", "n falling", ""):
            with self.assertRaises(ShapeError, msg=text):
                read_shape(text)


class Lists(unittest.TestCase):
    def wrong(self, lines):
        return " ".join(arguments.calls_of(EXPORTS, rows_of(lines))[1])

    def with_row(self, place, old, new):
        lines = list(ROWS)
        self.assertIn(old, lines[place])
        lines[place] = lines[place].replace(old, new)
        return self.wrong(lines)

    def test_a_list_that_fits_is_read(self):
        calls, wrong = arguments.calls_of(EXPORTS, rows_of(ROWS))
        self.assertEqual(wrong, [])
        self.assertEqual(list(calls), ["VB_F"])
        self.assertEqual(calls["VB_F"].argument("x").shape.lengths({"n": 4, "cols": [2]}), [8])
        self.assertTrue(calls["VB_F"].argument("out").null)

    def test_rows_that_lack_or_do_not_belong_are_found(self):
        self.assertIn("VB_F 2 n int: lacks", self.wrong(ROWS[:1] + ROWS[2:]))
        self.assertIn("not in exports.tsv", self.with_row(1, "int", "short"))
        self.assertIn("not in exports.tsv", self.with_row(0, "x", "y"))
        self.assertIn("order", self.wrong([ROWS[1], ROWS[0], *ROWS[2:]]))

    def test_words_that_do_not_fit_are_found(self):
        self.assertIn("no role", self.with_row(0, " in ", " input "))
        self.assertIn("role value", self.with_row(1, "value", "in"))
        self.assertIn("unwritten", self.with_row(3, "all", "-"))
        self.assertIn("null", self.with_row(3, "yes", "maybe"))
        self.assertIn("domain", self.with_row(0, "data", "datum"))

    def test_names_that_do_not_fit_are_found(self):
        self.assertIn("m is no argument", self.with_row(3, "packed(n)", "packed(m)"))
        self.assertIn("x is no argument that is a whole number", self.with_row(3, "packed(n)", "packed(x)"))
        self.assertIn("no other argument of the type int*", self.with_row(0, "value(cols)", "value(n)"))
        self.assertIn("cols is not read", self.with_row(2, "inout 1 no keeps", "out 1 no keeps"))

    def test_the_list_of_the_library_fits(self):
        calls = arguments.read_calls(ROOT)
        names = [name for name in calls if name.startswith(("VB_", "Cpp_"))]
        self.assertEqual(len(names), 490)


if __name__ == "__main__":
    unittest.main()
