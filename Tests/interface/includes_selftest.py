#!/usr/bin/env python3
"""Tests of the check of includes: what a file uses and does not include is found, and nothing else."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
import includes

NUMBERS = """#pragma once
namespace vecmat {
/// cells
constexpr int truncated(double x)
{
    return static_cast<int>(x);
}
inline constexpr double missingValue = -1.0;
template <class Number>
class Scratch
{
public:
    double first() const;
};
enum class Order { up, down };
} // namespace vecmat
"""
FILES = {
    "base/detail/numbers.h": NUMBERS,
    "base/detail/all.h": '#include "numbers.h"\n',
    "elementary/sums.h": '#pragma once\n#include <cstddef>\nint V_Sum(double* x, std::size_t n);\n',
    "elementary/sums.cpp": '#include "sums.h"\n#include "../base/detail/numbers.h"\n'
                           'int V_Sum(double* x, std::size_t n)\n{\n    return vecmat::truncated(x[n]);\n}\n',
    "elementary/sums_exports.cpp": '#include "sums.h"\nint VB_Sum(double* x)\n{\n    return V_Sum(x, 1);\n}\n',
    "kernels/lanes.h": "double load(const double* x);\n",
}


def with_body(body, first='#include "../base/detail/all.h"\n'):
    """The files above with one that gets the numbers by accident."""
    return FILES | {"elementary/means.cpp": first + body}


class Includes(unittest.TestCase):
    def assert_finds(self, body, name, **more):
        self.assertEqual([line.split(" of ")[0] for line in includes.check(with_body(body, **more))],
                         [f"elementary/means.cpp: {name}"])

    def assert_silent(self, body):
        self.assertEqual(includes.check(with_body(body)), [])

    def test_nothing_where_all_is_included(self):
        self.assertEqual(includes.check(FILES), [])

    def test_a_function(self):
        self.assert_finds("int f(double x)\n{\n    return truncated(x);\n}\n", "truncated")

    def test_a_function_behind_its_namespace(self):
        self.assert_finds("int f(double x)\n{\n    return vecmat::truncated(x);\n}\n", "truncated")

    def test_a_function_that_is_handed_on(self):
        self.assert_finds("using vecmat::truncated;\n", "truncated")

    def test_a_class_an_enumeration_and_a_constant(self):
        self.assert_finds("Scratch<int> f();\n", "Scratch")
        self.assert_finds("int f(int);\nconst int g = f(Order::up);\n", "Order")
        self.assert_finds("double f() { return vecmat::missingValue; }\n", "missingValue")

    def test_a_name_of_the_standard_library(self):
        self.assert_finds("int f(int i) { return std::max(i, 1); }\n", "std::max")

    def test_an_include_that_a_header_brings_along_does_not_count(self):
        self.assert_finds("int f(double* x) { return V_Sum(x, 1); }\n", "V_Sum", first='#include "sums_exports.h"\n')

    def test_a_source_whose_own_header_is_not_the_first(self):
        files = FILES | {"elementary/sums_exports.cpp": '#include "../base/detail/all.h"\n' + FILES["elementary/sums_exports.cpp"]}
        self.assertEqual(includes.check(files), ["elementary/sums_exports.cpp: elementary/sums.h first, which then stands alone"])

    def test_members_variables_parameters_and_templates_of_the_same_name(self):
        self.assert_silent("int f(const T& x) { return x.truncated(1.0); }\n")
        self.assert_silent("int f(int (*truncated)(double)) { return 1; }\n")
        self.assert_silent("int f() { const auto truncated = g(); return truncated(1.0); }\n")
        self.assert_silent("template <class Scratch>\nint f(Scratch s);\n")
        self.assert_silent("class A\n{\n    int truncated(double x) { return 1; }\n    int g() { return truncated(1.0); }\n};\n")

    def test_comments_and_strings(self):
        self.assert_silent('// truncated(x)\n/* Scratch<int> */\nconst char* text = "vecmat::truncated(x)";\n')

    def test_what_stands_above_cannot_be_meant(self):
        files = FILES | {"base/detail/more.h": "int f(double* x) { return V_Sum(x, 1); }\n"}
        self.assertEqual(includes.check(files), [])

    def test_the_lanes_are_those_of_the_kernels_alone(self):
        self.assert_silent("double f(const double* x) { return load(x); }\n")
        files = FILES | {"kernels/sums.kernel.cpp": "double f(const double* x) { return load(x); }\n"}
        self.assertEqual(includes.check(files), ["kernels/sums.kernel.cpp: load of kernels/lanes.h"])


if __name__ == "__main__":
    unittest.main()
