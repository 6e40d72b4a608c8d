#!/usr/bin/env python3
"""level1_names_test.py ROOT LIBRARIES CC CXX FLAGS: VecMat in one process with a BLAS that has five of its names.

`ddot`, `daxpy`, `dscal`, `drot` and `drotg` stand for other arguments in a BLAS that is built without underscores. The
stand-in of one is built in three ways: as it comes (its names without a version, its own calls through the loader), bound
(-Bsymbolic-functions) and with a version node of its own. Each is linked and loaded before VecMat and after it.
Whatever comes first, VecMat's own steps are VecMat's. What else the loader does is told in Docs/versions.md.
"""

import shlex
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT, LIBRARIES, CC, CXX, FLAGS = sys.argv[1:6] if len(sys.argv) > 5 else [None] * 5
BLAS = {"plain": [], "bound": ["-Wl,-Bsymbolic-functions"], "versioned": ["-Wl,--version-script,blas.map"]}
KEPT_APART = "VecMat right, 0 calls of the BLAS, caller reaches VecMat 5, BLAS reaches itself 5"
BLAS_TAKEN = "VecMat right, 0 calls of the BLAS, caller reaches VecMat 0, BLAS reaches itself 5"
VECMAT_TAKEN = "VecMat right, 0 calls of the BLAS, caller reaches VecMat 5, BLAS reaches itself 0"


def run(*words, **options):
    return subprocess.run(words, check=True, capture_output=True, text=True, **options).stdout.strip()


class Level1Names(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        work = cls.work = Path(cls.folder.name)
        (work / "blas.map").write_text("BLAS_1 { global: *; };\n")
        flags = [*shlex.split(FLAGS), "-O1", "-fPIC", "-D_GNU_SOURCE", "-w"]
        vecmat = [f"-L{LIBRARIES}", "-lVecMat", f"-Wl,-rpath,{LIBRARIES}"]
        here = [f"-L{work}", f"-Wl,-rpath,{work}", "-Wl,--no-as-needed"]
        for kind, options in BLAS.items():
            run(CC, *flags, "-shared", *options, HERE / "blas.c", "-o", f"libblas_{kind}.so", "-ldl", cwd=work)
        run(CXX, *flags, "-std=c++20", "-shared", "-I", f"{ROOT}/Sources/Shared/VecMat", HERE / "caller.cpp", "-o",
            "libcaller.so", *vecmat, cwd=work)
        run(CC, *flags, HERE / "program.c", "-o", "program", "-ldl", cwd=work)
        for kind in BLAS:
            run(CC, *flags, HERE / "program.c", "-o", f"{kind}_last", *here, *vecmat, "-lcaller", f"-lblas_{kind}",
                "-ldl", cwd=work)
            run(CC, *flags, HERE / "program.c", "-o", f"{kind}_first", *here, f"-lblas_{kind}", *vecmat, "-lcaller",
                "-ldl", cwd=work)
        run(CC, *flags, HERE / "program.c", "-o", "without_blas", *here, *vecmat, "-lcaller", "-ldl", cwd=work)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def opened(self, *libraries):
        """What the program prints that opens `name=flags` in this order."""
        return run(self.work / "program", *(f"{self.work}/lib{library}" for library in libraries))

    def linked(self, name, **environment):
        return run(self.work / name, env=environment)

    def test_a_blas_with_a_version_of_its_own_is_kept_apart_in_either_order(self):
        for order in ("first", "last"):
            self.assertEqual(self.linked(f"versioned_{order}"), KEPT_APART, order)
        self.assertEqual(self.opened("caller.so=g", "blas_versioned.so=g"), KEPT_APART)
        self.assertEqual(self.opened("blas_versioned.so=g", "caller.so=g"), KEPT_APART)

    def test_a_bound_blas_calls_itself_in_either_order(self):
        self.assertEqual(self.linked("bound_last"), KEPT_APART)
        self.assertEqual(self.opened("caller.so=g", "blas_bound.so=g"), KEPT_APART)
        self.assertEqual(self.linked("bound_first"), BLAS_TAKEN)
        self.assertEqual(self.opened("blas_bound.so=g", "caller.so=g"), BLAS_TAKEN)

    def test_libraries_opened_for_themselves_are_kept_apart(self):
        for kind in BLAS:
            library = f"blas_{kind}.so=l"
            self.assertEqual(self.opened("caller.so=l", library), KEPT_APART, kind)
            self.assertEqual(self.opened(library, "caller.so=l"), KEPT_APART, kind)

    def test_a_blas_opened_by_a_program_linked_with_vecmat_is_kept_apart_by_a_deep_binding(self):
        for kind in BLAS:
            opened = run(self.work / "without_blas", f"{self.work}/libblas_{kind}.so=ld")
            self.assertEqual(opened, KEPT_APART, kind)

    def test_the_first_library_gives_its_names_to_references_without_a_version(self):
        self.assertEqual(self.linked("plain_first"), BLAS_TAKEN)
        self.assertEqual(self.opened("blas_plain.so=g", "caller.so=g"), BLAS_TAKEN)
        self.assertEqual(self.linked("plain_last"), VECMAT_TAKEN)
        self.assertEqual(self.opened("caller.so=g", "blas_plain.so=g"), VECMAT_TAKEN)

    def test_a_preloaded_blas_does_not_reach_into_vecmat(self):
        for kind in ("plain", "bound"):
            preloaded = self.linked("without_blas", LD_PRELOAD=f"{self.work}/libblas_{kind}.so")
            self.assertEqual(preloaded, BLAS_TAKEN, kind)
        preloaded = self.linked("without_blas", LD_PRELOAD=f"{self.work}/libblas_versioned.so")
        self.assertEqual(preloaded, KEPT_APART)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
