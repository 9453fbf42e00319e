"""A system with a compiler, CMake and nothing else: a copy of the tree is configured, built and installed,
and CMake finds no package and no program. With GoogleTest, the tests that need no more are built."""

import os
import re
import shutil
import unittest

from support import (CONSUMERS, CXX, CXXFLAGS, SOURCE, ChecksOfPrograms, fresh_folder, install, run,
                     tests_of)

FLAGS = (f"-DCMAKE_CXX_COMPILER={CXX}", f"-DCMAKE_CXX_FLAGS={' '.join(CXXFLAGS)}",
         "-DCMAKE_INSTALL_LIBDIR=lib")
# CMake searches neither the system's folders nor PATH, so it must be told where its own program is.
HIDDEN = ("-DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF", "-DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF")
MAKE_PROGRAMS = {"Ninja": "ninja", "Unix Makefiles": "make"}
GOOGLETEST = f"-DGTest_DIR={os.environ['GTEST']}"
SHARED = "lib/libZelInterchangeData.so"
STATIC = "lib/libZelInterchangeData.a"


def copy_of_the_tree(folder):
    """The tree without build output."""
    built = {path.parent for path in SOURCE.rglob("CMakeCache.txt")} | {SOURCE / "build", SOURCE / ".git"}
    shutil.copytree(SOURCE, folder, ignore=lambda parent, names: [
        name for name in names if SOURCE.joinpath(parent, name) in built])
    return folder


def configure_bare(source, tree, *definitions, generator="Ninja"):
    return run("cmake", "-S", source, "-B", tree, "-G", generator, *FLAGS, *HIDDEN,
               f"-DCMAKE_MAKE_PROGRAM={shutil.which(MAKE_PROGRAMS[generator])}", *definitions)


def left_out(output):
    """What is left out, and what to do about it."""
    return dict(re.findall(r"^-- Left out: (.*?)\. (.*)$", output, re.MULTILINE))


class Bare(ChecksOfPrograms):
    """The checks, for each generator."""

    GENERATOR = ""

    @classmethod
    def setUpClass(cls):
        cls.folder = fresh_folder(cls.__name__)
        cls.source = copy_of_the_tree(cls.folder / "source")
        cls.tree = cls.folder / "tree"
        cls.output = cls.configure()
        run("cmake", "--build", cls.tree, "--parallel", "2")
        cls.installed = install(cls.tree, cls.folder / "prefix")

    @classmethod
    def configure(cls, *definitions):
        return configure_bare(cls.source, cls.tree, *definitions, generator=cls.GENERATOR)

    def built_with(self, library, *definitions):
        """What is installed when the tree is configured again, and the consumer of that."""
        self.configure(*definitions)
        run("cmake", "--build", self.tree, "--parallel", "2")
        prefix = self.folder / self.id()
        installed = install(self.tree, prefix)
        consumer = self.folder / f"{self.id()}.consumer"
        run("cmake", "-S", CONSUMERS / "find_package", "-B", consumer, "-G", self.GENERATOR,
            *FLAGS, f"-DCMAKE_PREFIX_PATH={prefix}", f"-DCONSUMER_LIBRARY={library}")
        run("cmake", "--build", consumer)
        self.assert_works(consumer / "consumer")
        return installed, consumer / "consumer"

    def test_it_says_what_is_left_out_and_what_to_install(self):
        self.assertEqual(left_out(self.output), {
            "the tests": "Install GoogleTest (Debian: libgtest-dev libgmock-dev)"})
        self.assertNotIn("CMake Warning", self.output)

    def test_it_builds_and_installs_both_libraries(self):
        self.assertLess({SHARED, STATIC}, self.installed)

    def test_it_builds_and_installs_the_tool(self):
        self.assertLess({"bin/publish_video", "share/man/man1/publish_video.1",
                         "share/doc/ZelInterchangeData/preview.html"}, self.installed)
        moved = self.folder / "moved"
        shutil.copytree(self.folder / "prefix", moved, symlinks=True)
        self.assertRegex(run(moved / "bin/publish_video", "--version"), r"^publish_video \d+\.\d+\.\d+\n$")
        program = run("readelf", "--dynamic", moved / "bin/publish_video")
        self.assertIn("[$ORIGIN/../lib]", program)

    def test_it_is_optimised(self):
        cache = (self.tree / "CMakeCache.txt").read_text(encoding="utf-8")
        self.assertIn("\nCMAKE_BUILD_TYPE:STRING=Release\n", cache)


class BareNinja(Bare, unittest.TestCase):
    GENERATOR = "Ninja"

    def test_both_names_are_the_static_library_where_it_is_built_alone(self):
        for library in ("ZelInterchangeData", "ZelInterchangeDataStatic"):
            with self.subTest(library):
                installed, consumer = self.built_with(library, "-DBUILD_SHARED_LIBS=OFF")
                self.assertIn(STATIC, installed)
                self.assertEqual([name for name in installed if ".so" in name], [])
                self.assert_needs(consumer)
                self.assert_needs(self.tree / "examples/complete_document/complete_document")

    def test_with_shared_libraries_both_are_built(self):
        installed, consumer = self.built_with("ZelInterchangeData", "-DBUILD_SHARED_LIBS=ON")
        self.assertLess({SHARED, STATIC}, installed)
        self.assert_needs(consumer, "libZelInterchangeData.so.1")


class BareMake(Bare, unittest.TestCase):
    GENERATOR = "Unix Makefiles"


class Testing(unittest.TestCase):
    def test_testing_that_is_off_leaves_the_tests_out(self):
        for wanted in ((), ("-DZELINTERCHANGEDATA_TESTS=ON",)):
            with self.subTest(wanted):
                tree = fresh_folder(self.id())
                output = run("cmake", "-S", SOURCE, "-B", tree, *FLAGS, "-DBUILD_TESTING=OFF",
                             "-DZELINTERCHANGEDATA_EXAMPLES=OFF", *wanted)
                self.assertNotIn("GTest", output)
                self.assertFalse((tree / "tests").exists())

    def test_with_googletest_alone_the_tests_that_need_more_are_left_out(self):
        tree = fresh_folder(self.id())
        absent = left_out(configure_bare(SOURCE, tree, GOOGLETEST))
        folders = {f"tests/{file.parent.name}" for file in SOURCE.glob("tests/*/CMakeLists.txt")}
        self.assertEqual(set(absent), folders - {"tests/examples"} | {"fuzz", "page/tests"})
        self.assertEqual(absent["tests/readers"],
                         "Install Python3, xmllint, rapper, exempi, exiftool (Debian: scripts/setup)")
        self.assertIn("core_tests", tests_of(tree))

    def test_the_presets_stop_where_a_test_would_be_left_out(self):
        with self.assertRaisesRegex(AssertionError, r"CMake Error at .*\n  Left out: tests/readers\."):
            configure_bare(SOURCE, fresh_folder(self.id()), "--preset", "release", GOOGLETEST)

    def test_without_the_shared_library_only_its_tests_are_left_out(self):
        tree = fresh_folder(self.id())
        output = run("cmake", "-S", SOURCE, "-B", tree, *FLAGS, "-DBUILD_SHARED_LIBS=OFF")
        self.assertIn("the tests of the shared library", left_out(output))
        tests = set(tests_of(tree))
        self.assertLess({"core_tests", "abi.exports.other_compiler", "consumers.install"}, tests)
        self.assertFalse(tests & {"abi.exports", "abi.version", "abi.vtables", "modules.SecondCopy"})


if __name__ == "__main__":
    unittest.main()
