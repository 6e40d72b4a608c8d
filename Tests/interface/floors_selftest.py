#!/usr/bin/env python3
"""Tests of the test of the floors: whatever it is there to find, it finds."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools/lib"))
import floors

UMBRELLA = "".join(f'#include "{header}"\n' for header in (
    "base/api.h", "elementary/sums.h", "fitting/lines.h", "matrix.h"))
FILES = {
    "VecMat.h": UMBRELLA,
    "base/api.h": "#include <cstddef>\n",
    "base/detail/numbers.h": "",
    "matrix.h": '#include "base/api.h"\n',
    "matrix.cpp": '#include "matrix.h"\n#include "base/detail/numbers.h"\n',
    "matrix_sums.cpp": '#include "access/cells.h"\n#include "matrix.h"\n',
    "kernels/sums.kernel.cpp": '#include "lanes.h"\n',
    "kernels/lanes.h": "",
    "access/cells.h": '#include "../matrix.h"\n',
    "elementary/sums.h": '#include "../matrix.h"\n',
    "elementary/sums.cpp": '#include "sums.h"\n#include "detail/pairs.h"\n#include "../access/cells.h"\n',
    "elementary/detail/pairs.h": '  #  include "../../kernels/lanes.h"\n',
    "fitting/lines.h": '#include "../elementary/sums.h"\n',
    "fitting/lines.cpp": '#include "lines.h"\n#include "../elementary/detail/pairs.h"\n',
}


def with_line(path, line):
    """The files above, one of them with a line more."""
    return FILES | {path: FILES.get(path, "") + line + "\n"}


class Floors(unittest.TestCase):
    def found(self, files, *parts, exceptions=None):
        wrong = floors.check(files, {} if exceptions is None else exceptions)
        self.assertTrue(any(all(part in line for part in parts) for line in wrong), wrong)

    def test_nothing_where_nothing_is_wrong(self):
        self.assertEqual(floors.check(FILES, {}), [])

    def test_an_include_of_a_higher_folder(self):
        self.found(with_line("elementary/sums.cpp", '#include "../fitting/lines.h"'),
                   "elementary/sums.cpp:4", "fitting/lines.h", "above")

    def test_an_include_of_a_private_header_of_a_higher_folder(self):
        self.found(with_line("base/detail/numbers.h", '#include "../../elementary/detail/pairs.h"'),
                   "base/detail/numbers.h:1", "above")

    def test_a_table_that_includes_the_accessors(self):
        self.found(with_line("matrix.cpp", '#include "access/cells.h"'), "matrix.cpp:3", "above")

    def test_a_kernel_that_includes_a_table(self):
        self.found(with_line("kernels/sums.kernel.cpp", '#include "../matrix.h"'), "kernels/sums.kernel.cpp:2")

    def test_folders_in_a_cycle(self):
        self.found(with_line("elementary/sums.cpp", '#include "../fitting/lines.h"'), "cycle: elementary, fitting")

    def test_a_cycle_over_several_folders(self):
        edges = [floors.Edge("base", "missing", 1, True), floors.Edge("missing", "fitting", 1, True),
                 floors.Edge("fitting", "base", 1, False), floors.Edge("access", "base", 1, False)]
        self.assertEqual(floors.cycles(edges), [("base", "missing", "fitting")])

    def test_a_folder_that_is_no_floor(self):
        self.found(with_line("elementary/sums.cpp", '#include "../cellar/wine.h"'), "cellar/wine.h", "no floor")
        self.found(with_line("cellar/wine.cpp", '#include "../matrix.h"'), "cellar/wine.cpp", "no floor")

    def test_a_public_header_that_includes_a_private_one(self):
        for private in ("../access/cells.h", "detail/pairs.h", "../kernels/lanes.h", "../base/detail/numbers.h"):
            with self.subTest(private):
                self.found(with_line("elementary/sums.h", f'#include "{private}"'),
                           "elementary/sums.h:2", "public header")

    def test_an_umbrella_that_includes_a_private_header(self):
        self.found(with_line("VecMat.h", '#include "access/cells.h"'), "VecMat.h:5", "public header")

    def test_an_umbrella_that_lacks_a_header(self):
        self.found(FILES | {"fitting/curves.h": ""}, "VecMat.h does not include fitting/curves.h")

    def test_an_include_of_nothing(self):
        self.found(with_line("elementary/sums.cpp", '#include "gone.h"'), "elementary/gone.h does not exist")

    def test_an_exception_allows_one_include_and_no_other(self):
        files = with_line("elementary/sums.cpp", '#include "../fitting/lines.h"')
        exceptions = {("elementary/sums.cpp", "fitting/lines.h"): "the contract names the fit"}
        self.assertEqual(floors.check(files, exceptions), [])
        files["elementary/detail/pairs.h"] += '#include "../../fitting/lines.h"\n'
        self.found(files, "elementary/detail/pairs.h:2", exceptions=exceptions)

    def test_an_exception_without_a_reason_or_a_use(self):
        files = with_line("elementary/sums.cpp", '#include "../fitting/lines.h"')
        self.found(files, "no reason", exceptions={("elementary/sums.cpp", "fitting/lines.h"): " "})
        self.found(FILES, "not needed", exceptions={("elementary/sums.cpp", "fitting/lines.h"): "it was once"})

    def test_the_graph_has_each_edge_with_its_count(self):
        edges = floors.graph(floors.read_includes(with_line("elementary/sums.cpp", '#include "../fitting/lines.h"')))
        self.assertEqual(edges[0], floors.Edge("elementary", "fitting", 1, True))
        self.assertIn(floors.Edge("fitting", "elementary", 2, False), edges)
        self.assertIn(floors.Edge("members", "access", 1, False), edges)
        self.assertNotIn("kernels", {edge.source for edge in edges})

    def test_files_are_read_from_a_folder(self):
        with tempfile.TemporaryDirectory() as folder:
            for path, text in FILES.items():
                (Path(folder) / path).parent.mkdir(parents=True, exist_ok=True)
                (Path(folder) / path).write_text(text, encoding="utf-8")
            (Path(folder) / "notes.txt").write_text('#include "gone.h"\n', encoding="utf-8")
            self.assertEqual(floors.read_files(Path(folder)), FILES)


if __name__ == "__main__":
    unittest.main()
