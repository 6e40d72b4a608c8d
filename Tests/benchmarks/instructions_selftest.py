"""What Benchmarks/instructions/counts.py makes of the runs and of their counts."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "Benchmarks/instructions"))

import counts
import report

AIMS = [{"workload": "product", "arm64: plain/ours at least": "4", "arm64: ours/peer at most": "Eigen=2"},
        {"workload": "eigen:50", "arm64: plain/ours at least": "9"},
        {"workload": "eigen:200", "arm64: plain/ours at least": "2"}]


def judged(*more, known=2101, error="", uncounted=()):
    """The runs of frame, known loop and those named, with their instructions."""
    named = [("frame", "ours", 100), ("known-loop", "ours", known), *more]
    runs = [{"run": str(k), "workload": workload, "contender": contender, "error": error if k > 1 else "",
             "size": "200" if k > 1 else "0"} for k, (workload, contender, _) in enumerate(named)]
    counted = [{"run": str(k), "instructions": str(count)} for k, (_, _, count) in enumerate(named)
               if k not in uncounted]
    return counts.without_frame(runs, counted)


class Counts(unittest.TestCase):
    def test_the_frame_is_taken_off(self):
        table, faults = judged(("product", "ours", 1100), ("product", "plain", 5100))
        self.assertEqual(dict(table), {("product", 200): {"ours": 1000, "plain": 5000}})
        self.assertEqual(faults, [])

    def test_a_miscounted_loop_is_a_fault(self):
        self.assertEqual(judged(known=2102)[1], ["a loop of 2001 instructions was counted as 2002"])

    def test_a_run_without_a_count_is_a_fault(self):
        table, faults = judged(("product", "ours", 1100), uncounted=(2,))
        self.assertEqual(dict(table), {})
        self.assertEqual(faults, ["product, ours: not counted"])
        self.assertEqual(judged(uncounted=(0,))[1], ["the price of the frame was not counted"])
        self.assertEqual(judged(uncounted=(1,))[1], ["known-loop, ours: not counted",
                                                     "a loop of 2001 instructions was counted as None"])

    def test_a_wrong_result_is_a_fault_and_has_no_count(self):
        table, faults = judged(("product", "ours", 1100), error="other bits")
        self.assertEqual(dict(table), {})
        self.assertEqual(faults, ["product, size 200, ours: other bits"])

    def test_what_misses_its_aim_is_bold(self):
        row = "| product | 200 | 0.10 M | {} | 4 | {} of Eigen{} |"
        reached = {("product", 200): {"ours": 100_000, "plain": 400_000, "Eigen": 50_000}}
        self.assertEqual(counts.workloads_table(reached, AIMS)[2], row.format("4.00", "2.00", " (2)"))
        missed = {("product", 200): {"ours": 100_000, "plain": 399_000, "Eigen": 49_000}}
        self.assertEqual(counts.workloads_table(missed, AIMS)[2], row.format("**3.99**", "**2.04", "** (2)"))

    def test_an_aim_may_be_that_of_a_size(self):
        table = {("eigen", 200): {"ours": 1000, "plain": 3000}}
        self.assertEqual(counts.workloads_table(table, AIMS)[2], "| eigen | 200 | 1,000 | 3.00 | 2 |  |")

    def test_small_calls_have_a_table_of_their_own(self):
        table = {("small-mean", 10): {"ours": 155, "plain": 109}, ("small-sort", 10): {"ours": 110, "plain": 100}}
        self.assertEqual(len(counts.workloads_table(table, AIMS)), 2)
        self.assertEqual(counts.small_table(table)[2:],
                         ["| mean, 10 | 155 | 109 | **1.42** |", "| sort, 10 | 110 | 100 | 1.10 |"])

    def test_the_aims_name_what_there_is(self):
        names = {"arm64: plain/ours at least", "arm64: ours/peer at most"}
        for aim in report.aims():
            self.assertLessEqual(names, set(aim))
            report.parsed_aims(aim["arm64: ours/peer at most"])

    def test_only_its_own_place_is_recorded(self):
        page = ("<!-- The tables of the last run: a. -->\ntimes\n<!-- Their end. -->\n"
                "<!-- The instructions of the last run: b. -->\nold\n<!-- Their end. -->\n")
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder, "page.md")
            file.write_text(page, encoding="utf-8")
            report.record(file, "new", counts.PLACE)
            self.assertEqual(file.read_text(encoding="utf-8"), page.replace("old", "\nnew"))
            report.record(file, "seconds")
            self.assertEqual(file.read_text(encoding="utf-8"),
                             page.replace("old", "\nnew").replace("times", "\nseconds"))


if __name__ == "__main__":
    unittest.main()
