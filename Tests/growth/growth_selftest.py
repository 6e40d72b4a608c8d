"""What tools/lib/growth.py takes for too steep."""

import sys
import unittest
from collections import defaultdict
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))

import growth


def judged(steps, cost="", grown="count", cells=(600, 1200, 2400)):
    measured = {("f", grown, "plain"): list(zip((100, 200, 400), cells, steps))}
    return growth.judge(measured, {"f": cost}, defaultdict(dict, f={"n": "count", "p": "columns"}))


class Growth(unittest.TestCase):
    def test_steps_may_grow_with_the_cells(self):
        self.assertEqual(judged((3000, 6100, 12200)), [])

    def test_squares_are_too_steep(self):
        ((name, grown, style, reached, allowed),) = judged((3000, 12000, 48000))
        self.assertEqual((name, grown, style, allowed), ("f", "count", "plain", 1.0))
        self.assertAlmostEqual(reached, 2.0)

    def test_cells_that_grow_faster_allow_more(self):
        self.assertEqual(judged((3000, 12000, 48000), cells=(1000, 4000, 16000)), [])

    def test_one_steep_doubling_is_another_algorithm(self):
        self.assertEqual(judged((3000, 12000, 24000)), [])

    def test_a_stated_order_allows_its_power(self):
        self.assertEqual(judged((3000, 12000, 48000), "of the order n^2 for each pivot"), [])
        self.assertEqual(len(judged((3000, 24000, 192000), "of the order n^2 for each pivot")), 1)

    def test_an_order_counts_for_what_grows(self):
        self.assertEqual(len(judged((3000, 12000, 48000), "of the order n p^2")), 1)
        self.assertEqual(judged((3000, 12000, 48000), "of the order n p^2", "columns"), [])
        self.assertEqual(judged((3000, 24000, 192000), "of the order n p^2", "all"), [])

    def test_a_name_that_is_no_argument_may_be_anything(self):
        self.assertEqual(judged((3000, 12000, 48000), "of the order n k"), [])

    def test_a_logarithm_is_no_power(self):
        self.assertEqual(growth.stated_powers("a sort, of the order n log n at most", {"n": "count"}), {"count": 1})

    def test_a_few_steps_prove_nothing(self):
        self.assertEqual(judged((30, 120, 480)), [])


if __name__ == "__main__":
    unittest.main()
