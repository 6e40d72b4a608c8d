#!/usr/bin/env python3
"""conan_recipe.py RECIPE WORK [ARGUMENT...]: runs the recipe step by step, with a stand-in of Conan.

What it exports is all that its build sees; ARGUMENTs go to each configuration. The package ends up in WORK/package.
"""

import importlib.util
import shutil
import subprocess
import sys
import types
from pathlib import Path

RECIPE, WORK, ARGUMENTS = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve(), sys.argv[3:]


class ConanFile:
    def __init__(self):
        self.recipe_folder = str(RECIPE.parent)
        self.export_sources_folder = self.source_folder = str(WORK / "source")
        self.package_folder = str(WORK / "package")
        self.cpp_info = types.SimpleNamespace(properties={})
        self.cpp_info.set_property = self.cpp_info.properties.__setitem__


class CMakeToolchain:
    kept = {}

    def __init__(self, recipe):
        self.cache_variables = {}

    def generate(self):
        CMakeToolchain.kept = self.cache_variables


class CMake:
    def __init__(self, recipe):
        self.recipe = recipe

    def run(self, *words):
        subprocess.run(["cmake", *map(str, words)], check=True, stdout=subprocess.DEVNULL)

    def configure(self):
        variables = [f"-D{name}={'ON' if value is True else 'OFF' if value is False else value}"
                     for name, value in CMakeToolchain.kept.items()]
        self.run("-S", self.recipe.source_folder, "-B", WORK / "source/build/conan", *ARGUMENTS, "-DCMAKE_BUILD_TYPE=Release",
                 "-DCMAKE_INSTALL_LIBDIR=lib", *variables)

    def build(self):
        self.run("--build", WORK / "source/build/conan")

    def install(self):
        self.run("--install", WORK / "source/build/conan", "--prefix", self.recipe.package_folder)


def copy(recipe, pattern, src, dst):
    """As Conan's: the pattern is matched with whole paths below src."""
    found = [path for path in Path(src).glob(pattern + "*/*" if pattern.endswith("/") else pattern)]
    for path in found:
        target = Path(dst) / path.relative_to(src)
        target.parent.mkdir(parents=True, exist_ok=True)
        (shutil.copytree if path.is_dir() else shutil.copy2)(path, target)
    if not found:
        raise SystemExit(f"the recipe exports {pattern}, and nothing has such a name")


def stand_in(name, **members):
    module = sys.modules[name] = types.ModuleType(name)
    module.__dict__.update(members)


stand_in("conan", ConanFile=ConanFile)
stand_in("conan.tools")
stand_in("conan.tools.cmake", CMake=CMake, CMakeToolchain=CMakeToolchain, cmake_layout=lambda recipe: None)
stand_in("conan.tools.files", copy=copy, load=lambda recipe, path: Path(path).read_text(encoding="utf-8"))

sys.dont_write_bytecode = True
spec = importlib.util.spec_from_file_location("conanfile", RECIPE)
conanfile = importlib.util.module_from_spec(spec)
spec.loader.exec_module(conanfile)
recipe = conanfile.VecMat()
for step in ("set_version", "export_sources", "layout", "generate", "build", "package", "package_info"):
    getattr(recipe, step)()
for folder in recipe.cpp_info.builddirs + recipe.cpp_info.includedirs:
    if not (WORK / "package" / folder).is_dir():
        raise SystemExit(f"the recipe tells of {folder}, and the package has no such folder")
print(f"vecmat/{recipe.version}")
