# The recipe for Conan 2: conan create packaging/conan
import os

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")


class Gkcntr(ConanFile):
    name = "gkcntr"
    license = "MIT"
    description = "Two-dimensional contour and region geometry for machine vision"
    package_type = "library"
    settings = "os", "compiler", "build_type", "arch"
    options = {"shared": [True, False], "fPIC": [True, False], "cairo": [True, False], "interop": [True, False]}
    default_options = {"shared": True, "fPIC": True, "cairo": False, "interop": False}
    implements = ["auto_shared_fpic"]

    def set_version(self):
        text = load(self, os.path.join(ROOT, "CMakeLists.txt"))
        self.version = text.split("project(gkcntr VERSION ")[1].split()[0]

    def export_sources(self):
        for what in ("CMakeLists.txt", "LICENSE", "gkcntr.h", "cmake/*", "platform/*", "cntr/*", "ch_core/*", "interop/*"):
            copy(self, what, ROOT, self.export_sources_folder)

    def requirements(self):
        self.requires("eigen/[>=3.4 <4]", visible=False)
        if self.options.cairo:
            self.requires("cairo/[>=1.16 <2]")
        if self.options.interop:
            self.requires("nlohmann_json/[>=3.11 <4]", visible=False)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["GKCNTR_TESTS"] = False
        toolchain.cache_variables["GKCNTR_EXAMPLES"] = False
        toolchain.cache_variables["GKCNTR_WERROR"] = False
        toolchain.cache_variables["GKCNTR_CAIRO"] = bool(self.options.cairo)
        toolchain.cache_variables["GKCNTR_INTEROP"] = bool(self.options.interop)
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))

    # The installed CMake package serves as it is.
    def package_info(self):
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = [os.path.join("lib", "cmake", "gkcntr")]
        self.cpp_info.includedirs = [os.path.join("include", "gkcntr")]
        self.cpp_info.libs = ["gkcntr"]
        if not self.options.shared:
            self.cpp_info.defines = ["GKCNTR_STATIC"]
