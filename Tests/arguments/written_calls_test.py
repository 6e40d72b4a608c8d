#!/usr/bin/env python3
"""written_calls_test.py WRITE_CALLS: what the program writes can be read, and its arrays have the shapes of arguments.tsv.

So the expressions mean in C++ what they mean here, and a program in another language gets at the same calls.
"""

import json
import struct
import subprocess
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
from arguments import NUMBERS, read_calls  # noqa: E402

PROGRAM = sys.argv.pop(1) if len(sys.argv) > 1 else ""


def doubles(digits):
    return [number for (number,) in struct.iter_unpack(">d", bytes.fromhex(digits))]


def cells(text, kind):
    """The cells of one array or column: doubles stand in one string of digits."""
    return doubles(text) if isinstance(text, str) and kind in ("double*", "SAFEARRAY**") else text


def values_of(call, written):
    """What the names of the expressions stand for: the numbers, and the arrays as they were before the call."""
    values = {}
    for argument, part in zip(call.arguments, written):
        if argument.type in ("int", "short"):
            values[argument.name] = part["value"]
        elif argument.type not in NUMBERS and part["before"] is not None:
            values[argument.name] = cells(part["before"], argument.type)
    return values


class WrittenCalls(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.calls = read_calls()
        out = subprocess.run([PROGRAM], check=True, capture_output=True, text=True).stdout
        cls.lines = [json.loads(line) for line in out.splitlines()]

    def test_every_function_is_called_with_its_arguments_in_order(self):
        self.assertEqual({line["call"] for line in self.lines}, set(self.calls))
        for line in self.lines:
            self.assertEqual([part["name"] for part in line["arguments"]],
                             [argument.name for argument in self.calls[line["call"]].arguments])

    def test_arrays_have_the_lengths_that_the_list_tells(self):
        for line in self.lines:
            call = self.calls[line["call"]]
            values = values_of(call, line["arguments"])
            for argument, part in zip(call.arguments, line["arguments"]):
                if argument.shape.rows is None or part["before"] is None:
                    continue
                parts = part["before"] if argument.type == "SAFEARRAY**" else [part["before"]]
                self.assertEqual([len(cells(one, argument.type)) for one in parts], argument.shape.lengths(values),
                                 f"{argument.name} of {call.name}")

    def test_what_is_only_read_is_the_same_before_and_after(self):
        for line in self.lines:
            for argument, part in zip(self.calls[line["call"]].arguments, line["arguments"]):
                if argument.role == "in" and "after" in part:
                    self.assertEqual(part["before"], part["after"], f"{argument.name} of {line['call']}")

    def test_numbers_come_over_bit_for_bit(self):
        sums = [line for line in self.lines if line["call"] == "VB_V_Sum2Dbl"]
        self.assertTrue(sums)
        for line in sums:
            x, n = line["arguments"]
            total = 0.0
            for number in doubles(x["before"])[:n["value"]]:
                total += number if number != -float.fromhex("0x1.fffffffffffe2p+1023") else 0.0
            self.assertEqual(struct.pack(">d", total).hex() if total == total else "nan",
                             line["returns"] if total == total else "nan")


if __name__ == "__main__":
    unittest.main()
