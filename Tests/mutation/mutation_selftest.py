"""The tool of tools/mutation on a small library of its own: what a test pins is killed, what none pins survives."""

import contextlib
import io
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))

import mutation
import mutation_places
import mutation_runs
import mutation_schemata

LIBRARY = """\
// a + b + c in a comment is no place
double pinned(double a, double b, double c) { return a + b + c; }
double unpinned(double a, double b, double c) { return a + b + c; }
double forgotten(double a) { return a - 1.0; }
constexpr int size = 2 + 1;
static_assert(size == 3);
double total(const double* x, int n)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i)
        sum += x[i];
    return sum;
}
int steps(int n)
{
    int count = 0;
    while (n > 0) {
        if (n == 7)
            return -1;
        n = n - 1;
        ++count;
    }
    return count;
}
double largest(const double* x, int n)
{
    double best = x[0];
    for (int i = 1; i < n; ++i)
        best = x[i] > best ? x[i] : best;
    return best;
}
"""

TESTS = """\
#include <gtest/gtest.h>
#include <vector>
double largest(const double*, int);
double pinned(double, double, double);
double unpinned(double, double, double);
double total(const double*, int);
int steps(int);
TEST(Sums, Pinned) { EXPECT_EQ(pinned(0.1, 0.2, 0.3), 0.1 + 0.2 + 0.3); }
TEST(Sums, Unpinned) { EXPECT_EQ(unpinned(1.0, 2.0, 3.0), 6.0); }
TEST(Sums, Total)
{
    const double x[] = {1e100, 1.0, -1e100, 0.1};
    EXPECT_EQ(total(x, 4), 0.1);
}
TEST(Steps, AreCounted) { EXPECT_EQ(steps(3), 3); }
TEST(Sums, Largest) { EXPECT_EQ(largest(std::vector<double>(4, 1e300).data(), 4), 1e300); }
TEST(Steps, Fails) { EXPECT_EQ(1, 2); }
"""


class OnASmallLibrary(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        folder = Path(cls.folder.name)
        source = folder / "sums.cpp"
        source.write_text(LIBRARY)
        file = mutation_places.File(source, "sums.cpp")
        mutation_places.places(source, ["-std=c++20"], {str(source): file}, set())
        cls.mutants = list(file.found.values())
        cls.switched = mutation_schemata.with_switches(LIBRARY, list(enumerate(cls.mutants)))
        (folder / "switched.cpp").write_text(cls.switched)
        (folder / "mutants.h").write_text(mutation_schemata.HEADER)
        (folder / "mutants.cpp").write_text(mutation_schemata.SOURCE.replace("COUNT", str(len(cls.mutants))))
        (folder / "tests.cpp").write_text(TESTS)
        compiler = ["g++", "-std=c++20", "-ffp-contract=off", "-O1", "-w"]
        subprocess.run([*compiler, "-fPIC", "-shared", "-include", "mutants.h", "switched.cpp", "mutants.cpp", "-o", "libsums.so"],
                       cwd=folder, check=True)
        subprocess.run([*compiler, "tests.cpp", "-L.", "-lsums", "-lgtest", "-lgtest_main", "-o", "tests"], cwd=folder, check=True)
        sanitized = folder / "sanitized"
        sanitized.mkdir()
        compiler.append("-fsanitize=address")
        subprocess.run([*compiler, "-I.", "-fPIC", "-shared", "-include", "mutants.h", "switched.cpp", "mutants.cpp", "-o",
                        "sanitized/libsums.so"], cwd=folder, check=True)
        subprocess.run([*compiler, "tests.cpp", "-Lsanitized", "-lsums", "-lgtest", "-lgtest_main", "-o", "sanitized/tests"],
                       cwd=folder, check=True)
        program = mutation_runs.Program(folder / "tests")
        cls.reach = mutation_runs.Reach(folder / "reach", folder, "", len(cls.mutants))
        cls.reach.learn(program)
        cls.verdicts = {number: mutation_runs.verdict(number, cls.reach.runs(number, [program]), folder)
                        for number in range(len(cls.mutants))}
        other = mutation_runs.Program(sanitized / "tests", sanitized=True)
        cls.reach.carry_over(program, other)
        cls.sanitized_verdicts = {number: mutation_runs.verdict(number, cls.reach.runs(number, [other]), sanitized)
                                  for number, mutant in enumerate(cls.mutants) if mutant.function in ("largest", "unpinned")}

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def of(self, function, kind, part=""):
        found = [self.verdicts[number] for number, mutant in enumerate(self.mutants)
                 if (mutant.function, mutant.kind) == (function, kind) and part in mutant.shown]
        self.assertTrue(found, (function, kind, part))
        return found

    def test_an_order_that_a_test_pins_is_killed(self):
        self.assertEqual(self.of("pinned", "order"), [("killed", "tests: Sums.Pinned")])

    def test_an_order_that_none_pins_survives(self):
        self.assertEqual(self.of("unpinned", "order"), [("survived", "1 cases")])

    def test_the_operators_beside_it_are_killed(self):
        self.assertEqual({status for status, _ in self.of("unpinned", "operator")}, {"killed"})

    def test_a_loop_the_other_way_round_is_killed(self):
        self.assertEqual(self.of("total", "direction"), [("killed", "tests: Sums.Total")])

    def test_what_no_test_calls_is_told(self):
        self.assertEqual({status for status, _ in self.of("forgotten", "operator")}, {"unreached"})

    def test_a_loop_without_end_is_killed(self):
        self.assertEqual(self.of("steps", "statement", "n = n - 1 =>"), [("killed", "tests: no end")])

    def test_an_edge_that_no_test_sees_survives(self):
        self.assertEqual(self.of("steps", "constant", "[7 =>"), [("survived", "1 cases")])

    def test_the_sanitizers_see_what_is_read_beyond_an_array(self):
        edge = next(number for number, mutant in enumerate(self.mutants) if "[i < n => i <= n]" in mutant.shown
                    and mutant.function == "largest")
        self.assertEqual(self.verdicts[edge], ("survived", "1 cases"))
        self.assertEqual(self.sanitized_verdicts[edge], ("killed", "tests: heap-buffer-overflow"))

    def test_and_no_order_of_a_sum(self):
        order = next(number for number, mutant in enumerate(self.mutants)
                     if (mutant.function, mutant.kind) == ("unpinned", "order"))
        self.assertEqual(self.sanitized_verdicts[order], ("survived", "1 cases"))

    def test_a_case_that_fails_by_itself_kills_nothing(self):
        self.assertEqual(self.reach.failing, ["tests: Steps.Fails"])

    def test_what_the_compiler_evaluates_is_no_place(self):
        self.assertEqual([mutant for mutant in self.mutants if mutant.line in (1, 5, 6)], [])

    def test_every_mutant_stands_on_its_line(self):
        self.assertEqual(self.switched.count("\n"), LIBRARY.count("\n"))
        lines = self.switched.splitlines()
        for number, mutant in enumerate(self.mutants):
            self.assertTrue(re.search(rf"changed\({number}\)", lines[mutant.line - 1]), mutant)


class Samples(unittest.TestCase):
    def mutant(self, file, number):
        return mutation_places.Mutant(file, number, "f", "operator", f"[{number} => x]", ())

    def test_are_drawn_evenly_and_the_same_again(self):
        mutants = {"large.cpp": [self.mutant("large.cpp", n) for n in range(100)],
                   "small.cpp": [self.mutant("small.cpp", n) for n in range(3)]}
        sample = mutation.drawn_evenly(mutants, "1")
        self.assertEqual(sum(mutant.file == "small.cpp" for mutant in sample[:6]), 3)
        self.assertEqual(sample, mutation.drawn_evenly(mutants, "1"))
        self.assertNotEqual(sample, mutation.drawn_evenly(mutants, "2"))

    def test_survivors_are_named_unless_judged(self):
        mutants = [self.mutant("sorting/a.cpp", n) for n in range(4)]
        results = mutation.Results(Path("none"))
        for mutant, verdict in zip(mutants, [("killed", "t: A.B"), ("survived", "3 cases"), ("survived", "2 cases")]):
            results.known[mutant.name] = verdict
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            left = mutation.report(mutants, results, {mutants[1].name: "the same to every caller"})
        self.assertEqual(left, 1)
        self.assertIn("sorting/a.cpp:2: f: operator: [2 => x] (survived 2 cases)\n", printed.getvalue())
        self.assertNotIn("[1 => x]", printed.getvalue())
        self.assertRegex(printed.getvalue(), r"sorting +4 +1 +1 +1 +0 +1 +50.0 %\n")

    def test_a_judgement_is_stale_when_its_place_is_gone_whatever_the_constant(self):
        def name(kind, shown):
            return "a.cpp", "f", kind, shown

        mutants = [self.mutant("a.cpp", 1)._replace(kind="constant", shown="g(x, [1 => 0] );"),
                   self.mutant("a.cpp", 2)._replace(shown="[a + b => a - b]")]
        stale = [name("constant", "h(x, [1 => 2] );"), name("operator", "[a + b => a * b]")]
        judged = [name("constant", "g(x, [1 => 2] );"), name("operator", "[a + b => a - b]"), *stale]
        self.assertEqual(mutation.stale_judgements(dict.fromkeys(judged), mutants), stale)

    def test_a_judgement_that_a_test_contradicts_is_told(self):
        mutant = self.mutant("sorting/a.cpp", 1)
        results = mutation.Results(Path("none"))
        results.known[mutant.name] = ("killed", "t: A.B")
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            mutation.report([mutant], results, {mutant.name: "wrong"})
        self.assertIn("but t: A.B sees it", printed.getvalue())


if __name__ == "__main__":
    unittest.main()
