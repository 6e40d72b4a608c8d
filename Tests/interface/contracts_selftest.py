#!/usr/bin/env python3
"""Tests of the contracts test: whatever it is there to find, it finds."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools/lib/contracts.py"

HEADER = """\
// Sums. A missing cell is left out.
#pragma once

extern "C" {

/// Sum of the cells; 0.0
/// for none.
VECMAT_API double V_Sum(double* x, int n);
VECMAT_API double VB_V_Sum(double* x, int n);

// ---- with weights -----

/// Weighted sum.
VECMAT_API double V_SumW(double* x, int n, double* w);

} // extern "C"

VECMAT_API double V_Max(double* x);
VECMAT_API double V_Max(int* x);
"""

COLUMNS = "unit\tfunctions\tmissing\tmask\tweights\tdivisor\tempty\tfingerprint\n"
ROWS = ("missing/sums\tV_Sum VB_V_Sum\tleft out\t-\t-\t-\t0.0\t-\n"
        "missing/sums\tV_SumW\tleft out\t-\tused\t-\t0.0\t-\n"
        "missing/sums\tV_Max(double*)\twins\t-\t-\t-\t0.0\t-\n"
        "missing/sums\tV_Max(int*)\tnever\t-\t-\t-\t0\t-\n")


class Contracts(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.header = self.root / "Sources/Shared/VecMat/missing/sums.h"
        self.table = self.root / "Docs/contracts/missing.tsv"
        for path, text in ((self.header, HEADER), (self.table, COLUMNS + ROWS)):
            path.parent.mkdir(parents=True)
            path.write_text(text, encoding="utf-8")
        self.assertEqual(self.run_tool("--accept", "missing/sums"), "")

    def run_tool(self, *options):
        return subprocess.run([sys.executable, "-B", TOOL, "--root", self.root, *options], check=False,
                              capture_output=True, text=True).stdout

    def expect(self, message, path, old, new, count=1):
        """After the change the check finds just the one thing (beside a page that is out of date)."""
        text = path.read_text(encoding="utf-8")
        self.assertIn(old, text)
        path.write_text(text.replace(old, new, 1), encoding="utf-8")
        found = [line for line in self.run_tool("--check").splitlines() if "missing.md" not in line]
        self.assertTrue(any(message in line for line in found), found)
        self.assertEqual(len(found), count, found)

    def test_nothing_is_wrong_where_all_is_read(self):
        self.assertEqual(self.run_tool("--check"), "")

    def test_page_has_what_the_table_has(self):
        page = self.table.with_suffix(".md")
        self.assertIn("| `V_SumW` | left out |  | used |  | 0.0 |", page.read_text(encoding="utf-8"))
        page.write_text(page.read_text(encoding="utf-8").replace("used", "unused"), encoding="utf-8")
        self.assertIn("missing.md is not what", self.run_tool("--check"))

    def test_changed_comment_of_a_function(self):
        self.expect("of V_Sum has changed", self.header, "for none", "for one")

    def test_changed_comment_of_a_section(self):
        self.expect("of V_SumW has changed", self.header, "---- with weights", "---- with other weights", 3)

    def test_changed_comment_of_the_header(self):
        self.expect("of V_SumW has changed", self.header, "is left out", "wins", 4)

    def test_changed_declaration(self):
        self.expect("of V_Sum has changed", self.header, "V_Sum(double* x, int n)", "V_Sum(double* x, int m)")

    def test_layout_of_a_comment_is_no_matter(self):
        text = self.header.read_text(encoding="utf-8")
        text = text.replace("cells; 0.0\n/// for none.", "cells; 0.0 for\n/// none.").replace("weights -----", "weights ---")
        self.header.write_text(text, encoding="utf-8")
        self.assertEqual(self.run_tool("--check"), "")

    def test_new_function(self):
        self.expect("V_New(int) of missing/sums.h stands in no row", self.header, "V_Max(int* x);",
                    "V_Max(int* x);\nVECMAT_API double V_New(int n);")

    def test_function_in_two_rows(self):
        self.expect("stands in line 4, too", self.table, "V_Max(int*)", "V_Max", 2)

    def test_function_that_is_gone(self):
        self.expect("V_Gone is not declared", self.table, "V_Sum VB_V_Sum", "V_Sum VB_V_Sum V_Gone")

    def test_untold_argument(self):
        self.expect("nothing is told of 'w' of V_SumW", self.table, "\tused\t", "\t-\t")

    def test_empty_cell(self):
        self.table.write_text(self.table.read_text(encoding="utf-8").replace("\twins\t", "\t\t"), encoding="utf-8")
        self.assertNotEqual(subprocess.run([sys.executable, "-B", TOOL, "--root", self.root, "--check"], check=False,
                                           capture_output=True).returncode, 0)


if __name__ == "__main__":
    unittest.main()
