#!/usr/bin/env python3
"""Does guide.py find what the pages of the guide get wrong, and leave alone what is right?"""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))

import guide

NOWHERE = Path("/nonexistent")


def fenced(language, *lines):
    return "\n".join(["```" + language, *lines, "```"]) + "\n"


def renewed(text):
    with tempfile.TemporaryDirectory() as folder:
        return guide.renewed(text, NOWHERE, Path(folder))[0]


class Python(unittest.TestCase):
    def test_what_is_right_stays(self):
        page = "# Title\n\n" + fenced("python", ">>> x = 2", ">>> x + 1", "3", "", ">>> for i in (1, 2):", "...     print(i)", "1", "2")
        self.assertEqual(renewed(page), page)

    def test_a_wrong_figure_is_replaced(self):
        self.assertEqual(renewed(fenced("python", ">>> 1 + 1", "3")), fenced("python", ">>> 1 + 1", "2"))

    def test_blocks_share_a_session(self):
        page = fenced("python", ">>> x = 2") + "Text.\n" + fenced("python", ">>> x", "2")
        self.assertEqual(renewed(page), page)

    def test_a_hidden_check_is_run(self):
        self.assertIn("\n4\n", renewed("<!-- check python\n>>> 2 + 2\n5\n-->\n"))

    def test_errors_and_warnings_are_shown(self):
        page = fenced("python", ">>> import warnings", ">>> warnings.warn('thin ice')", ">>> [][1]")
        self.assertIn("UserWarning: thin ice\n", renewed(page))
        self.assertIn("IndexError: list index out of range\n", renewed(page))

    def test_a_block_without_a_statement_is_an_error(self):
        with self.assertRaises(guide.PageError):
            renewed(fenced("python", "x = 2"))


class R(unittest.TestCase):
    def setUp(self):
        if not guide.shutil.which("Rscript"):
            self.skipTest("no R")

    def test_what_is_right_stays(self):
        page = fenced("r", "# a comment", "x <- c(1,", "       2)", "mean(x)", "#> [1] 1.5", "", "x[2]", "#> [1] 2")
        self.assertEqual(renewed(page), page)

    def test_a_wrong_figure_is_replaced(self):
        self.assertEqual(renewed(fenced("r", "1 + 1", "#> [1] 3")), fenced("r", "1 + 1", "#> [1] 2"))

    def test_errors_and_warnings_are_shown(self):
        self.assertIn("#> Error: no\n", renewed(fenced("r", "stop('no')")))
        self.assertIn("#> Warning: NaNs produced\n", renewed(fenced("r", "x <- sqrt(-1)")))


class JavaScript(unittest.TestCase):
    def setUp(self):
        if not guide.shutil.which("node"):
            self.skipTest("no Node")

    def test_what_is_right_stays(self):
        page = fenced("js", "// a comment", "const x = [1,", "  2];", "x.map((n) =>", "  n + 1);", "//> [ 2, 3 ]", "", "x[2];") + \
            "Text.\n" + fenced("js", "await Promise.resolve(x.length);", "//> 2", "for (const n of x) {", "  console.log(n);", "}",
                               "//> 1", "//> 2")
        self.assertEqual(renewed(page), page)

    def test_a_wrong_figure_is_replaced(self):
        self.assertEqual(renewed(fenced("js", "1 + 1;", "//> 3")), fenced("js", "1 + 1;", "//> 2"))

    def test_errors_are_shown_where_they_can_be_caught(self):
        self.assertIn("//> TypeError: no\n", renewed(fenced("js", "(() => { throw new TypeError('no'); })();")))
        with self.assertRaises(guide.PageError):
            renewed(fenced("js", "const x = missing;"))

    def test_a_document_shows_what_its_script_writes(self):
        if not guide.shutil.which("chromium"):
            self.skipTest("no Chromium")
        page = "".join(fenced("html", "<title>Title</title>", "<p>1 &lt; <b id=here></b></p>", "<script type=module>",
                              "document.getElementById('here').textContent = 2;", "</script>"))
        self.assertEqual(renewed(page + fenced("text", "1 < 3")), page + fenced("text", "1 < 2"))


class Programs(unittest.TestCase):
    def program(self, text, shown):
        return fenced("c", "#include <stdio.h>", f'int main(void) {{ puts("{text}"); return 0; }}') + fenced("text", shown)

    def test_what_is_right_stays(self):
        self.assertEqual(renewed(self.program("yes", "yes")), self.program("yes", "yes"))

    def test_a_wrong_output_is_replaced(self):
        self.assertEqual(renewed(self.program("yes", "no")), self.program("yes", "yes"))

    def test_a_header_is_there_for_the_programs_below(self):
        page = fenced("c", "/* word.h: a word */", '#define WORD "yes"') + \
            fenced("c", '#include "word.h"', "#include <stdio.h>", "int main(void) { puts(WORD); return 0; }") + fenced("text", "yes")
        self.assertEqual(renewed(page), page)

    def test_a_program_that_fails_or_whose_output_is_not_shown_is_an_error(self):
        for page in (fenced("c", "int main(void) { return 1; }") + fenced("text"),
                     fenced("c", "int main(void) { return 0; }"),
                     fenced("c", "int main(void) { return undeclared; }") + fenced("text")):
            with self.assertRaises(guide.PageError):
                renewed(page)


class Pages(unittest.TestCase):
    def test_other_blocks_are_left_alone(self):
        page = fenced("vb", "Sub A()", "End Sub") + fenced("sh", "false") + fenced("c", "double f(void);")
        self.assertEqual(renewed(page), page)

    def test_names_that_do_not_exist(self):
        text = "`VB_V_Mean2`, `vm.upper` and `V_Mean2()`, but not `V_Men2` or `vm.uper`, nor `VB_` by itself"
        self.assertEqual(guide.unknown_names(text, {"VB_V_Mean2", "V_Mean2"}, type("P", (), {"upper": 1})),
                         ["V_Men2", "vm.uper"])

    def test_names_of_the_package_for_javascript_count_where_it_is_used(self):
        text, package = "`vm.countMissing` and `vm.countMising`", type("P", (), {})
        self.assertEqual(guide.unknown_names(text + fenced("js"), set(), package), ["vm.countMising"])
        self.assertEqual(guide.unknown_names(text, set(), package), ["vm.countMising", "vm.countMissing"])


if __name__ == "__main__":
    unittest.main()
