"""A system with a compiler, CMake and nothing else: a copy of the tree is configured, built and installed
with every find_package disabled."""

import re
import shutil
import unittest

from support import CONSUMERS, CXX, CXXFLAGS, SOURCE, ChecksOfPrograms, fresh_folder, install, run

PACKAGE = re.compile(r"^\s*find_package\((\w+)", re.MULTILINE)
FLAGS = (f"-DCMAKE_CXX_COMPILER={CXX}", f"-DCMAKE_CXX_FLAGS={' '.join(CXXFLAGS)}",
         "-DCMAKE_INSTALL_LIBDIR=lib")
SHARED = "lib/libZelInterchangeData.so"
STATIC = "lib/libZelInterchangeData.a"


def copy_of_the_tree(folder):
    """The tree without build output."""
    built = {path.parent for path in SOURCE.rglob("CMakeCache.txt")}
    shutil.copytree(SOURCE, folder, ignore=lambda parent, names: [
        name for name in names if name == ".git" or SOURCE.joinpath(parent, name) in built])
    return folder


def packages(tree):
    """The packages that the project looks for, except those of its consumers."""
    return {package for path in tree.rglob("CMakeLists.txt") if "consumers" not in path.relative_to(tree).parts
            for package in PACKAGE.findall(path.read_text(encoding="utf-8"))}


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
        hidden = packages(cls.source)
        assert {"GTest", "Python3"} <= hidden, hidden
        return run("cmake", "--no-warn-unused-cli", "-S", cls.source, "-B", cls.tree,
                   "-G", cls.GENERATOR, *FLAGS,
                   *(f"-DCMAKE_DISABLE_FIND_PACKAGE_{name}=TRUE" for name in sorted(hidden)),
                   *definitions)

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
        left_out = re.findall(r"^-- Left out: (.*)$", self.output, re.MULTILINE)
        self.assertEqual(left_out, [
            "the tests. Install GoogleTest (Debian: libgtest-dev libgmock-dev)"])
        self.assertNotIn("CMake Warning", self.output)

    def test_it_builds_and_installs_both_libraries(self):
        self.assertLess({SHARED, STATIC}, self.installed)

    def test_it_builds_and_installs_the_tool(self):
        self.assertLess({"bin/publish_video", "share/man/man1/publish_video.1"}, self.installed)
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


if __name__ == "__main__":
    unittest.main()
