"""A recipe for Conan 2: `conan create packaging/conan` packages the working copy that it lies in."""

import re
from pathlib import Path

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load

EXPORTED = ("CMakeLists.txt", "LICENSE", "CHANGELOG.md", "exports.tsv", "arguments.tsv", "Sources/*", "Bindings/c/*",
            "Bindings/vba/*", "Docs/*", "cmake/*", "tools/*")


class VecMat(ConanFile):
    name = "vecmat"
    description = "Vector and matrix routines for statistical analyses, with missing cells, to the last bit"
    license = "MIT"
    topics = ("statistics", "linear algebra", "missing data")
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"

    def _root(self):
        return Path(self.recipe_folder).parents[1]

    def set_version(self):
        text = load(self, str(self._root() / "CMakeLists.txt"))
        self.version = re.search(r"^project\(VecMat VERSION ([0-9.]+)", text, re.M)[1]

    def export_sources(self):
        for pattern in EXPORTED:
            copy(self, pattern, str(self._root()), self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["VECMAT_TESTS"] = False
        toolchain.cache_variables["VECMAT_DIGEST"] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, str(Path(self.package_folder) / "licenses"))

    def package_info(self):
        # The package's own CMake files tell of the target and of the companions that it loads.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = ["lib/cmake/VecMat"]
        self.cpp_info.includedirs = ["include/VecMat"]
        self.cpp_info.libs = ["VecMat"]
        self.cpp_info.set_property("pkg_config_name", "vecmat")
