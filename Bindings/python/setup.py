"""The package's extension modules and the library itself are built by CMake, from the sources of the whole project."""

import os
import re
import shlex
import shutil
import subprocess
import sys
from pathlib import Path

from setuptools import Distribution, setup
from setuptools.command.build_ext import build_ext
from setuptools.extension import Extension

HERE = Path(__file__).resolve().parent
# One version for the whole project.
VERSION = re.search(r"^project\(VecMat VERSION ([0-9.]+)", (HERE / "../../CMakeLists.txt").read_text(), re.M)[1]


class BuildByCMake(build_ext):
    def run(self):
        build = Path(os.environ.get("VECMAT_BUILD_DIRECTORY", Path(self.build_temp).resolve() / "vecmat"))
        package = HERE / "src/vecmat" if self.inplace else Path(self.build_lib).resolve() / "vecmat"
        configure = ["cmake", "-S", HERE, "-B", build, "-DCMAKE_BUILD_TYPE=Release",
                     f"-DPython3_EXECUTABLE={sys.executable}"]
        if shutil.which("ninja") and not (build / "CMakeCache.txt").exists():
            configure += ["-G", "Ninja"]
        if shutil.which("ccache"):
            # The cache does not see through precompiled headers.
            configure += ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON"]
        configure += shlex.split(os.environ.get("CMAKE_ARGS", ""))
        for command in (configure,
                        ["cmake", "--build", build, "--parallel", str(os.cpu_count() or 1)],
                        ["cmake", "--install", build, "--component", "python", "--prefix", package]):
            subprocess.run([str(word) for word in command], check=True)

    def get_outputs(self):
        return []


class Binary(Distribution):
    def has_ext_modules(self):
        return True


setup(version=VERSION, distclass=Binary, cmdclass={"build_ext": BuildByCMake}, ext_modules=[Extension("vecmat.flat", [])])
