"""Uses the library as a subproject: it works there, and adds nothing to the enclosing project."""

import json
import re
import unittest
from pathlib import Path

from support import CONSUMERS, SOURCE, ChecksOfPrograms, build, configure, fresh_folder, install, tests_of

WARNING_FLAGS = re.compile(r"-W(?!l,)\S*|-w\b|-pedantic\S*")


def cache_variables(tree):
    cache = (tree / "CMakeCache.txt").read_text(encoding="utf-8")
    return set(re.findall(r"^([^#/\s][^:]*):[A-Z]+=", cache, re.MULTILINE))


def compile_commands(tree):
    return json.loads((tree / "compile_commands.json").read_text(encoding="utf-8"))


class Subproject(ChecksOfPrograms):
    """The checks for each way to add the library as a subproject."""

    PROJECT = ""
    NEEDED = ()
    DEFINED = ()

    @classmethod
    def setUpClass(cls):
        cls.folder = fresh_folder(cls.PROJECT)
        cls.tree = cls.folder / "tree"
        configure(CONSUMERS / cls.PROJECT, cls.tree, f"-DLIBRARY_SOURCE={SOURCE}")
        build(cls.tree)

    def test_the_program_works(self):
        self.assert_needs(self.tree / "consumer", *self.NEEDED)
        self.assert_works(self.tree / "consumer")

    def test_it_adds_no_cache_variable(self):
        stand_in = self.folder / "stand_in"
        configure(CONSUMERS / self.PROJECT, stand_in,
                  f"-DLIBRARY_SOURCE={CONSUMERS / 'stand_in'}")
        self.assertEqual(cache_variables(self.tree), cache_variables(stand_in))

    def test_it_adds_no_test(self):
        self.assertEqual(tests_of(self.tree), ["the_consumers_own"])

    def test_it_adds_no_install_rule(self):
        self.assertEqual(install(self.tree, self.folder / "prefix"), {"bin/consumer"})

    def test_it_adds_no_warning_flag(self):
        commands = compile_commands(self.tree)
        ours = [entry for entry in commands if Path(entry["file"]).is_relative_to(SOURCE / "src")]
        self.assertGreater(len(ours), 40)
        flags = {flag for entry in commands for flag in WARNING_FLAGS.findall(entry["command"])}
        self.assertEqual(flags, set())

    def test_the_consumer_gets_only_the_include_folder_and_definitions(self):
        command, = (entry["command"] for entry in compile_commands(self.tree)
                    if entry["file"].endswith("program/main.cpp"))
        self.assertEqual(re.findall(r" (-[IDfO]\S*)", command),
                         [*self.DEFINED, f"-I{SOURCE}/include"])


class AddSubdirectory(Subproject, unittest.TestCase):
    PROJECT = "add_subdirectory"
    NEEDED = ("libZelInterchangeData.so.1",)


class FetchContent(Subproject, unittest.TestCase):
    PROJECT = "fetch_content"
    DEFINED = ("-DZELINTERCHANGEDATA_STATIC",)

    # Reconfigures the tree, so its name makes it run last.
    def test_with_installation_enabled_the_library_is_installed(self):
        configure(CONSUMERS / self.PROJECT, self.tree, f"-DLIBRARY_SOURCE={SOURCE}",
                  "-DCONSUMER_INSTALLS_THE_LIBRARY=ON", "-DCMAKE_INSTALL_LIBDIR=lib")
        build(self.tree)
        installed = install(self.tree, self.folder / "asked_for")
        self.assertLess({"bin/consumer", "lib/libZelInterchangeData.so.1",
                         "lib/libZelInterchangeData.a", "lib/pkgconfig/ZelInterchangeData.pc",
                         "lib/cmake/ZelInterchangeData/ZelInterchangeDataConfig.cmake",
                         "include/ZelInterchangeData/ZelInterchangeData.h"}, installed)


if __name__ == "__main__":
    unittest.main()
