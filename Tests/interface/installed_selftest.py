#!/usr/bin/env python3
"""Does check_installed.py find libraries that are not hardened, and lists of parts that tell something else?"""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
TOOLS = Path(__file__).resolve().parents[2] / "tools/lib"
sys.path.insert(0, str(TOOLS))

from check_installed import faults

SOURCE = "void fill(char*); int first(int n) { char text[64]; fill(text); return text[n]; } void fill(char* t) { *t = 0; }"
HARDENED = ("-fPIC", "-fstack-protector-strong", "-Wl,-z,relro,-z,now")


class Installed(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = Path(place.name) / "usr"
        (self.folder / "lib").mkdir(parents=True)

    def build(self, *options, name="lib/libVecMat.so.1", kind=("-shared",)):
        subprocess.run([os.environ.get("CXX", "c++"), "-x", "c++", "-", *kind, *options, "-o", self.folder / name], input=SOURCE,
                       text=True, check=True)

    def list_parts(self):
        subprocess.run([sys.executable, "-B", TOOLS / "sbom.py", "--root", self.folder, "--output",
                        self.folder / "doc/vecmat.spdx.json"], check=True)

    def found(self):
        return " ".join(faults(self.folder, True))

    def test_what_is_hardened_and_listed_passes(self):
        self.build(*HARDENED)
        self.list_parts()
        self.assertEqual(self.found(), "")

    def test_each_flag_that_is_missing_is_told(self):
        for option, told in (("-Wl,-z,norelro", "relocations"), ("-Wl,-z,lazy", "bound"), ("-Wl,-z,execstack", "executable stack"),
                             ("-fno-stack-protector", "protector")):
            with self.subTest(option):
                self.build(*HARDENED, option)
                self.list_parts()
                self.assertIn(told, self.found())

    def test_a_program_at_a_fixed_place_is_told(self):
        self.build(*HARDENED)
        self.build("-no-pie", "-nostartfiles", "-Wl,-e,0", name="lib/program", kind=())
        self.list_parts()
        self.assertIn("position independent", self.found())

    def test_lists_that_tell_something_else_are_told(self):
        self.build(*HARDENED)
        self.assertIn("0 lists", self.found())
        self.list_parts()
        self.build(*HARDENED, "-O2")
        self.assertIn("another checksum", self.found())
        self.build(*HARDENED, name="lib/another.so")
        self.assertIn("another.so is not in the list", self.found())
        (self.folder / "lib/libVecMat.so.1").unlink()
        self.assertIn("not there", self.found())


if __name__ == "__main__":
    unittest.main()
