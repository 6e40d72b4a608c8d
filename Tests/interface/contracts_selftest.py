#!/usr/bin/env python3
"""Tests of tools/contracts: whatever its check is there to find, it finds; a tag holds where the rules say."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / "tools/lib"
sys.path.insert(0, str(TOOLS))

import contracts
import doxygen_filter
from header_comments import TagError

HEADER = """\
// Sums. A sum runs in order.
//
// @missing left out (equality)
// @weights used as given
// @empty 0.0
#pragma once

extern "C" {

/// Sum of the cells,
/// one by one.
VECMAT_API double V_Sum(double* x, int n);

/// Sum over some cells.
/// @mask a nonzero entry excludes
///     its row
VECMAT_API double V_SumMask(double* x, int n, short* mask);

// ---- with weights -----

/// Weighted sum.
VECMAT_API double V_SumW(double* x, int n, double* w);
/// @missing an ordinary number
VECMAT_API double V_SumW2(double* x, int n, double* w);

// ---- flat forms -----
// @empty -1.0

VECMAT_API int VB_Count(int* x);
VECMAT_API int VB_Version(int n);
VECMAT_API double VB_V_SumDbl(double* x, int n);
VECMAT_API double VB_V_SumW2(double* x, int n, double* w);
/// @missing ends the sum
VECMAT_API double VB_V_SumMask(double* x, int n, short* mask);

} // extern "C"

// ---- extremes -----

/// The largest.
/// @empty the lowest
VECMAT_API double V_Max(double* x);
/// @weak no test
VECMAT_API int V_Max(int* x);
"""



class Rules(unittest.TestCase):
    def setUp(self):
        self.found = {contract.declaration.signature(): contract
                      for contract in contracts.read_unit(HEADER, "missing/sums")}

    def tags(self, signature):
        return self.found[signature].tags

    def test_tags_of_the_file_hold_where_none_is_nearer(self):
        self.assertEqual(self.tags("V_Sum(double*, int)"), {"missing": "left out (equality)", "empty": "0.0"})

    def test_weights_of_the_file_hold_for_functions_with_weights(self):
        self.assertEqual(self.tags("V_SumW(double*, int, double*)")["weights"], "used as given")
        self.assertNotIn("weights", self.tags("V_Sum(double*, int)"))

    def test_a_text_goes_on_in_lines_set_in(self):
        self.assertEqual(self.tags("V_SumMask(double*, int, short*)")["mask"], "a nonzero entry excludes its row")

    def test_a_comment_of_tags_alone_leaves_the_prose(self):
        contract = self.found["V_SumW2(double*, int, double*)"]
        self.assertEqual(contract.tags["missing"], "an ordinary number")
        self.assertEqual(contract.description(), (" Weighted sum.",))

    def test_a_flat_form_takes_the_tags_of_its_function(self):
        self.assertEqual(self.found["VB_V_SumDbl(double*, int)"].flat_form_of, "V_Sum")
        self.assertEqual(self.tags("VB_V_SumDbl(double*, int)"), self.tags("V_Sum(double*, int)"))
        self.assertEqual(self.tags("VB_V_SumW2(double*, int, double*)")["missing"], "an ordinary number")

    def test_a_flat_form_may_have_tags_of_its_own(self):
        self.assertEqual(self.tags("VB_V_SumMask(double*, int, short*)"),
                         {"missing": "ends the sum", "mask": "a nonzero entry excludes its row", "empty": "0.0"})

    def test_a_flat_form_of_overloads_that_differ_takes_nothing(self):
        text = HEADER + "/// @missing wins\nVECMAT_API int V_Max(short* x);\nVECMAT_API int VB_V_Max(double* x);\n"
        text = text.replace("/// @missing wins", "/// @missing wins\n/// @empty 1")
        tags = contracts.read_unit(text.replace("VECMAT_API int VB_V_Max", "// ---- more\nVECMAT_API int VB_V_Max"),
                                   "missing/sums")[-1].tags
        self.assertNotIn("missing", tags)
        self.assertNotIn("empty", tags)

    def test_the_section_is_nearer_than_the_file(self):
        self.assertEqual(self.tags("VB_Count(int*)")["empty"], "-1.0")

    def test_tags_of_a_file_hold_only_where_they_could_matter(self):
        self.assertEqual(self.tags("VB_Version(int)"), {})

    def test_a_function_is_nearer_than_its_section(self):
        self.assertEqual(self.tags("V_Max(double*)")["empty"], "the lowest")

    def test_a_tag_can_be_taken_back(self):
        text = HEADER.replace("/// @empty the lowest", "/// @empty -")
        self.assertNotIn("empty", contracts.read_unit(text, "missing/sums")[-1].tags)

    def test_tags_that_cannot_be_read(self):
        for old, new, message in (("// @empty 0.0", "// @emtpy 0.0", "no tag @emtpy"),
                                  ("// @empty 0.0", "// @empty 0.0\n// @empty 1.0", "@empty twice"),
                                  ("// @empty 0.0", "// @empty", "without a text"),
                                  ("///     its row", "/// its row", "prose after a tag")):
            with self.assertRaisesRegex(TagError, message):
                contracts.read_unit(HEADER.replace(old, new, 1), "missing/sums")

    def test_reference_has_the_tags_of_each_function(self):
        text = doxygen_filter.documented(HEADER, "sums.h")
        ahead = text[:text.index(" VB_V_SumDbl(")].split("///\n/// The flat form of")[-1].splitlines()
        self.assertIn("/// @par Missing cells", ahead)
        self.assertIn("/// left out (equality)", ahead)


class Check(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.header = self.root / "Sources/Shared/VecMat/missing/sums.h"
        self.page = self.root / "Docs/contracts/missing.md"
        self.header.parent.mkdir(parents=True)
        self.header.write_text(HEADER, encoding="utf-8")
        self.assertEqual(self.run_tool(), "")

    def run_tool(self, *options, status=0):
        run = subprocess.run([sys.executable, "-B", TOOLS / "contracts.py", "--root", self.root, *options], check=False,
                             capture_output=True, text=True)
        self.assertEqual(run.returncode, status, run.stdout + run.stderr)
        return run.stdout

    def expect(self, old, new, *messages):
        """After a change of the header the check finds just these things (beside a page that is out of date)."""
        self.assertIn(old, HEADER)
        self.header.write_text(HEADER.replace(old, new, 1), encoding="utf-8")
        found = [line for line in self.run_tool("--check", status=1).splitlines() if "missing.md" not in line]
        self.assertEqual(len(found), len(messages), found)
        for line, message in zip(found, messages):
            self.assertIn(message, line)

    def test_nothing_is_wrong_where_all_is_there(self):
        self.assertEqual(self.run_tool("--check"), "")

    def test_functions_of_one_contract_share_a_row(self):
        rows = self.page.read_text(encoding="utf-8").splitlines()
        self.assertIn("| `V_Sum`, `VB_V_SumDbl` | left out (equality) |  |  |  | 0.0 |", rows)
        self.assertIn("| `V_Max` | left out (equality) |  |  |  | the lowest |", rows)
        self.assertIn("- Known weakness (`V_Max(int*)`): no test", rows)

    def test_changed_tag_makes_the_page_stale(self):
        self.header.write_text(HEADER.replace("@missing ends", "@missing stops"), encoding="utf-8")
        self.assertIn("missing.md is not what", self.run_tool("--check", status=1))

    def test_edited_page(self):
        self.page.write_text(self.page.read_text(encoding="utf-8").replace("used as", "unused as"), encoding="utf-8")
        self.assertIn("missing.md is not what", self.run_tool("--check", status=1))

    def test_missing_page(self):
        self.page.unlink()
        self.assertIn("missing.md is not what", self.run_tool("--check", status=1))

    def test_no_word_on_missing_cells(self):  # which an array of ints has not
        self.expect("// @missing left out (equality)\n", "", "V_Sum(double*, int) has no @missing",
                    "V_SumMask(double*, int, short*) has no @missing", "V_SumW(double*, int, double*) has no @missing",
                    "VB_V_SumDbl(double*, int) has no @missing", "V_Max(double*) has no @missing")

    def test_no_word_on_empty_input(self):
        self.expect("/// @empty the lowest", "/// @empty -", "V_Max(double*) has no @empty",
                    "V_Max(int*) has no @empty")

    def test_no_word_on_a_mask(self):
        self.expect("/// @mask a nonzero entry excludes\n///     its row\n", "",
                    "V_SumMask(double*, int, short*) has no @mask",
                    "VB_V_SumMask(double*, int, short*) has no @mask")

    def test_no_word_on_weights(self):
        self.expect("// @weights used as given\n", "", "V_SumW(double*, int, double*) has no @weights",
                    "V_SumW2(double*, int, double*) has no @weights", "VB_V_SumW2(double*, int, double*) has no @weights")

    def test_no_word_on_a_divisor(self):
        self.expect("V_Sum(double* x, int n)", "V_Sum(double* x, int n, short sample)",
                    "V_Sum(double*, int, short) has no @divisor")

    def test_a_flat_form_with_an_argument_of_its_own(self):
        self.expect("VB_Version(int n)", "VB_Version(int n, short* filter)", "VB_Version(int, short*) has no @mask")

    def test_tag_that_holds_for_nothing(self):
        self.expect("// @weights used as given\n", "// @weights used as given\n// @mask excludes\n",
                    "sums.h:5: the tag holds for no function")

    def test_tag_that_cannot_be_read(self):
        self.expect("// @empty 0.0", "// @emtpy 0.0", "sums.h: line 5: there is no tag @emtpy")


if __name__ == "__main__":
    unittest.main()
