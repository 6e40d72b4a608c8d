"""What tools/coverage prints of branches."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))

import uncovered_branches


def line(number, *counts, throw=()):
    return {"line_number": number, "count": 1, "gcovr/noncode": False,
            "branches": [{"count": count, "throw": k in throw} for k, count in enumerate(counts)]}


def left_over(*lines):
    return uncovered_branches.left_over({"files": [{"file": "a.cpp", "lines": list(lines)}]},
                                        lambda file: ["if (x)", "  return;", "else"])


class Branches(unittest.TestCase):
    def test_a_branch_never_taken_is_named(self):
        self.assertEqual(left_over(line(1, 3, 0)), ([("a.cpp", 1, "if (x)", 1, 2)], 2))

    def test_branches_that_are_taken_are_not(self):
        self.assertEqual(left_over(line(1, 3, 1), line(3)), ([], 2))

    def test_branches_of_exceptions_do_not_count(self):
        self.assertEqual(left_over(line(2, 3, 0, throw=[1])), ([], 1))

    def test_one_function_of_a_template_is_enough(self):
        self.assertEqual(left_over(line(1, 3, 0), line(1, 0, 2)), ([], 2))
        self.assertEqual(left_over(line(1, 3, 0), line(1, 2, 0)), ([("a.cpp", 1, "if (x)", 1, 2)], 2))

    def test_explanations_are_read(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "judged.tsv"
            path.write_text("# file\tsource\treason\na.cpp\tif (x)\tx is never false\n")
            self.assertEqual(uncovered_branches.judgements(path), {("a.cpp", "if (x)"): "x is never false"})


if __name__ == "__main__":
    unittest.main()
