#!/usr/bin/env python3
"""Tests of the reference's makers: dead links are found, differences told, names linked, examples checked."""

import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools/lib"))

import check_links
import reference_cpp_examples
import reference_examples
from arguments import read_calls
from reference_example_calls import example_of
from reference_indexes import read_tasks
from reference_model import (as_markdown, document_of, escaped, first_sentence, read_functions, stem, summary, summary_alone,
                             words_of)
from reference_signatures import Signatures
from reference_siblings import differences, forms, relatives, representative, spellings

FUNCTIONS = read_functions(ROOT)


class Links(unittest.TestCase):
    def dead(self, **pages):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in pages.items():
                (Path(folder) / f"{name}.html").write_text(text, encoding="utf-8")
            return check_links.dead_links(Path(folder))[0]

    def test_good_links_pass(self):
        self.assertEqual(self.dead(a='<a href="b.html#x">b</a><a href="https://example.org/">c</a>', b='<p id="x">'), [])

    def test_a_missing_page_is_found(self):
        self.assertIn("there is no such file", self.dead(a='<a href="b.html">b</a>')[0])

    def test_a_missing_anchor_is_found(self):
        self.assertIn("there is no such anchor", self.dead(a='<a href="b.html#y">b</a>', b='<p id="x">')[0])

    def test_a_missing_picture_is_found(self):
        self.assertIn("there is no such file", self.dead(a='<img src="a.png">')[0])

    def test_what_has_to_be_fetched_is_found(self):
        self.assertIn("another machine", self.dead(a='<a href="a.html"></a><script src="https://example.org/a.js">')[0])

    def test_pages_without_links_are_wrong(self):
        self.assertIn("no links at all", self.dead(a="<p>")[0])


class Model(unittest.TestCase):
    def test_every_exported_name_has_a_page_of_its_own(self):
        rows = (ROOT / "exports.tsv").read_text(encoding="utf-8").splitlines()[1:]
        self.assertEqual({row.split("\t")[0] for row in rows}, set(FUNCTIONS))
        documents = [document_of(name).lower() for name in FUNCTIONS]
        self.assertEqual(len(set(documents)), len(FUNCTIONS))

    def test_every_function_has_a_summary(self):
        self.assertEqual([name for name, function in FUNCTIONS.items() if not summary(function, FUNCTIONS)], [])

    def test_a_summary_that_leans_on_its_unit_tells_of_it_elsewhere(self):
        self.assertRegex(summary_alone(FUNCTIONS["M_CovCorr"], FUNCTIONS), "^Covariances and correlations .* – from one table$")
        self.assertRegex(summary_alone(FUNCTIONS["VB_V_Min2Lng"], FUNCTIONS), "^Minima and maxima .* – the same without a mask$")
        self.assertEqual(summary_alone(FUNCTIONS["V_Quantile"], FUNCTIONS), summary(FUNCTIONS["V_Quantile"], FUNCTIONS))

    def test_stems(self):
        for name in ("V_Mean", "VB_V_Mean2", "M_MeanSPV", "Cpp_M_Mean3"):
            self.assertEqual(stem(name), "Mean")
        self.assertEqual(words_of("VB_V_MeanVar"), ["v", "mean", "var"])
        self.assertIn("VMean2", spellings("VB_V_Mean2"))
        self.assertIn("Mean2", spellings("VB_V_Mean2"))

    def test_markdown(self):
        self.assertEqual(escaped("a_b * `c_d`"), "a\\_b \\* `c_d`")
        self.assertEqual(as_markdown([" Text:", "     W - 1   code", " More."]), ["Text:", "", "    W - 1   code", "", "More."])
        self.assertEqual(first_sentence(["One. Two."]), "One")


class Siblings(unittest.TestCase):
    def test_forms_and_relatives(self):
        function = FUNCTIONS["V_Quantile"]
        self.assertEqual(forms(function, FUNCTIONS), ["VB_V_Quantile"])
        self.assertIn("V_QuantileMW", relatives(function, FUNCTIONS))
        self.assertNotIn("VB_V_Quantile", relatives(function, FUNCTIONS))
        self.assertIn("VB_V_QuantileM", relatives(FUNCTIONS["VB_V_Quantile"], FUNCTIONS))
        self.assertEqual(representative("V_Mean2", FUNCTIONS["VB_V_Mean"], FUNCTIONS), "VB_V_Mean2")

    def test_differences_are_those_of_the_contracts(self):
        found = {one.title: one for one in differences(FUNCTIONS["V_Quantile"], FUNCTIONS["V_QuantileM"])}
        self.assertEqual(found["Empty input"].here, "-1.0")
        self.assertTrue(found["Missing cells"].there.startswith("left out"))
        self.assertIn("`mask`", found["Arguments"].there)

    def test_what_is_the_same_is_no_difference(self):
        self.assertEqual(list(differences(FUNCTIONS["V_Mean"], FUNCTIONS["V_Mean"])), [])


class Languages(unittest.TestCase):
    def test_signatures_are_those_that_are_shipped(self):
        signatures = Signatures(ROOT)
        by_language = {one.language: one.text for one in signatures.of(FUNCTIONS["V_Mean2"], FUNCTIONS)}
        self.assertEqual(by_language["C++"], "double V_Mean2(matrix* v, int n);")
        self.assertEqual(by_language["C"], "double VB_V_Mean2(double* v, int n);")
        self.assertEqual(by_language["VBA"], "Function VB_V_Mean2(ByRef v As Double, ByVal n As Long) As Double")
        self.assertTrue(by_language["Python"].startswith("vecmat.flat.VB_V_Mean2(v, n)"))
        self.assertEqual(by_language["R"], "flat$VB_V_Mean2(v, n)")
        self.assertIn("vecmat.mean", [one.name for one in signatures.callers_in("Python", FUNCTIONS["V_Mean2"])])
        self.assertIn("vm_mean", [one.name for one in signatures.callers_in("R", FUNCTIONS["V_Mean2"])])

    def test_no_flat_function_lacks_its_signature_in_c_and_python(self):
        signatures = Signatures(ROOT)
        flat = [name for name, function in FUNCTIONS.items() if function.call]
        self.assertEqual([name for name in flat if name not in signatures.c or name not in signatures.python], [])


class ExamplesOfPages(unittest.TestCase):
    def test_every_flat_function_has_an_example(self):
        examples = reference_examples.Examples(ROOT)
        self.assertEqual([name for name, function in FUNCTIONS.items() if function.call and name not in examples.python], [])
        unknown = [name for name in (*examples.python, *examples.cpp) if name not in FUNCTIONS]
        self.assertEqual(unknown, [])

    def test_what_is_typed_and_what_is_printed(self):
        self.assertEqual(reference_examples.statements(">>> a = [1,\n... 2]\n>>> a\n[1, 2]\n"),
                         [(["a = [1,", "2]"], []), (["a"], ["[1, 2]"])])
        self.assertEqual(reference_cpp_examples.parts_of("int a;\n// 1\n// 2"), ("int a;", ["1", "2"]))

    def test_made_up_examples_fit_the_table(self):
        lines = example_of(read_calls(ROOT)["VB_V_Mean2"], {"missing": "left out"})
        self.assertEqual(lines, ["v = [4.0, MISSING, 7.0, 2.0, 9.0]", "flat.VB_V_Mean2(v, 5)"])

    def test_tasks_name_functions_that_exist(self):
        named = {name for tasks in read_tasks(ROOT / "Docs/site/tasks.tsv").values() for _, names, _ in tasks for name in names}
        self.assertEqual(named - set(FUNCTIONS), set())


if __name__ == "__main__":
    unittest.main()
