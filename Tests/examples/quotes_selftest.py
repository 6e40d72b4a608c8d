#!/usr/bin/env python3
"""Does tools/lib/quotes.py quote what it is asked for, and notice what has changed or isn't there?"""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools" / "lib"))

import quotes

SOURCE = """#include "a.h"

int other()
{
    return twice(1);
}

// Doubles.
int twice(int x)
{
    return 2 * x;
}
"""
FUNCTION = "```cpp\n// Doubles.\nint twice(int x)\n{\n    return 2 * x;\n}\n```"
SPEED = "| what | time | ratio |\n| --- | --- | --- |\n| sort, 10 | 1 s | 2 |\n| mean | 3 s | 4 |\n"


class Quotes(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        (self.root / "Docs").mkdir()
        (self.root / "a.cpp").write_text(SOURCE)
        (self.root / "Docs/speed.md").write_text(SPEED)

    def document(self, specification, body=""):
        text = f"Ahead\n\n<!-- quote {specification} -->\n{body}<!-- end of quote -->\n\nBehind\n"
        (self.root / "README.md").write_text(text)

    def renewed(self, specification):
        self.document(specification, "old\n")
        self.assertEqual(quotes.faults(self.root, check=False), [])
        return (self.root / "README.md").read_text()

    def test_a_function_with_its_comment(self):
        self.assertEqual(self.renewed("a.cpp twice"), f"Ahead\n\n<!-- quote a.cpp twice -->\n\n{FUNCTION}\n\n"
                         "<!-- end of quote -->\n\nBehind\n")

    def test_a_whole_file(self):
        self.assertIn(f"\n```cpp\n{SOURCE}```\n", self.renewed("a.cpp"))

    def test_rows_and_columns_of_a_table(self):
        self.assertIn("\n| what | ratio |\n| --- | --- |\n| mean | 4 |\n| sort, 10 | 2 |\n\n",
                      self.renewed('Docs/speed.md rows mean "sort, 10" columns what ratio'))

    def test_what_is_renewed_passes_the_check_until_the_source_changes(self):
        self.renewed("a.cpp twice")
        self.assertEqual(quotes.faults(self.root, check=True), [])
        (self.root / "a.cpp").write_text(SOURCE.replace("2 * x", "x + x"))
        self.assertEqual(len(quotes.faults(self.root, check=True)), 1)

    def test_what_is_not_there(self):
        for specification in ("b.cpp", "a.cpp thrice", "Docs/speed.md rows median",
                              'Docs/speed.md rows mean columns "peer"'):
            self.document(specification)
            self.assertEqual(len(quotes.faults(self.root, check=False)), 1, specification)

    def test_a_quotation_without_an_end(self):
        (self.root / "README.md").write_text("<!-- quote a.cpp -->\n")
        self.assertGreaterEqual(len(quotes.faults(self.root, check=True)), 1)

    def test_documents_without_quotations_are_an_error(self):
        (self.root / "README.md").write_text("Nothing\n")
        self.assertEqual(len(quotes.faults(self.root, check=True)), 1)


if __name__ == "__main__":
    unittest.main()
