"""What tools/coverage prints of branches."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))

import uncovered_branches


def line(number, *counts, throw=()):
    return {"line_number": number, "branches": [{"count": count, "throw": k in throw} for k, count in enumerate(counts)]}


def left_over(*lines):
    report = {"current_working_directory": "/s/build", "files": [{"file": "../a.cpp", "lines": list(lines)}]}
    return uncovered_branches.left_over([report], Path("/s"), lambda path: ["if (x)", "  return;", "else"])


class Branches(unittest.TestCase):
    def test_a_way_never_taken_is_named(self):
        self.assertEqual(left_over(line(1, 3, 0)), ([("a.cpp", 1, "if (x)", 1, 2)], 2))

    def test_ways_that_are_taken_are_not(self):
        self.assertEqual(left_over(line(1, 3, 1), line(3)), ([], 2))

    def test_a_call_that_may_throw_is_no_decision(self):
        self.assertEqual(left_over(line(2, 0, 0, throw=[1])), ([], 0))
        self.assertEqual(left_over(line(1, 3, 0, 3, 0, throw=[3])), ([("a.cpp", 1, "if (x)", 1, 2)], 2))

    def test_one_function_of_a_template_is_enough(self):
        self.assertEqual(left_over(line(1, 3, 0), line(1, 0, 2)), ([], 2))
        self.assertEqual(left_over(line(1, 3, 0), line(1, 2, 0)), ([("a.cpp", 1, "if (x)", 1, 2)], 2))

    def test_so_it_is_where_they_share_a_row(self):
        self.assertEqual(left_over(line(1, 3, 0, 0, 2)), ([], 2))
        self.assertEqual(left_over(line(1, 3, 0, 2, 0)), ([("a.cpp", 1, "if (x)", 1, 2)], 2))

    def test_explanations_are_read(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "judged.tsv"
            path.write_text("# file\tsource\treason\na.cpp\tif (x)\tx is never false\n")
            self.assertEqual(uncovered_branches.judgements(path), {("a.cpp", "if (x)"): "x is never false"})

    def test_a_program_that_was_compiled_and_run(self):
        with tempfile.TemporaryDirectory() as folder:
            source = Path(folder) / "planted.cpp"
            source.write_text("template <class T> int sign(T x)\n{\n    if (x < 0)\n        return -1;\n    return x > 0;\n}\n"
                              "int main(int n, char**) { return sign(n) + sign(double(n)) == 2 && n > 5 ? 1 : 0; }\n")
            subprocess.run(["g++", "--coverage", "-O0", "planted.cpp", "-o", "planted"], cwd=folder, check=True)
            subprocess.run(["./planted"], cwd=folder, check=True)
            found, _ = uncovered_branches.left_over(uncovered_branches.counted(folder), Path(folder).resolve())
            self.assertEqual([row[1] for row in found], [3, 7])


if __name__ == "__main__":
    unittest.main()
