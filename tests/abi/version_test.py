"""Checks that the shared library, the changelogs and the packages name the same version, and that the
changelog says for each version whether output bytes and symbols changed."""

import os
import re
import subprocess
import unittest
from pathlib import Path

ROOT = Path(os.environ["ROOT"])
VERSION = os.environ["VERSION"]
MAJOR = VERSION.split(".")[0]
LIBRARY = Path(os.environ["LIBRARY"])

HEADING = re.compile(r"^## (.*)$", re.MULTILINE)
STATEMENT = r"^- {}: (?:first version|unchanged|changed: \S.*)\b"


def sections(text):
    """The versions of a changelog with the text below each, in order."""
    parts = HEADING.split(text)
    return list(zip(parts[1::2], parts[2::2]))


class SharedLibrary(unittest.TestCase):
    def test_the_file_ends_with_the_version(self):
        self.assertTrue(LIBRARY.resolve().name.endswith(f".so.{VERSION}"), LIBRARY.resolve().name)

    def test_the_soname_ends_with_the_major_version(self):
        dynamic = subprocess.run([os.environ["READELF"], "--dynamic", "--wide", LIBRARY],
                                 capture_output=True, text=True, check=True).stdout
        soname, = re.findall(r"SONAME.*\[(.*)\]", dynamic)
        self.assertRegex(soname, rf"^libZelInterchangeDatad?\.so\.{MAJOR}$")


class Changelog(unittest.TestCase):
    def setUp(self):
        self.sections = sections((ROOT / "CHANGELOG.md").read_text(encoding="utf-8"))

    def test_the_newest_version_is_that_of_the_project(self):
        self.assertEqual(self.sections[0][0], VERSION)

    def test_versions_are_semantic_and_newest_first(self):
        numbers = []
        for version, _ in self.sections:
            self.assertRegex(version, r"^\d+\.\d+\.\d+$")
            numbers.append([int(part) for part in version.split(".")])
        self.assertEqual(numbers, sorted(numbers, reverse=True))

    def test_each_version_says_whether_output_bytes_and_symbols_changed(self):
        for version, text in self.sections:
            for subject in ("Output bytes", "Symbols"):
                with self.subTest(f"{version} {subject}"):
                    found = re.findall(STATEMENT.format(subject), text, re.MULTILINE)
                    self.assertEqual(len(found), 1)


class DebianPackages(unittest.TestCase):
    def test_the_newest_version_is_that_of_the_project(self):
        first_line = (ROOT / "packaging/debian/changelog").read_text(encoding="utf-8").split("\n")[0]
        self.assertRegex(first_line, rf"^zelinterchangedata \({re.escape(VERSION)}-\d+\) ")

    def test_the_runtime_package_is_named_after_the_soname(self):
        control = (ROOT / "packaging/debian/control").read_text(encoding="utf-8")
        packages = re.findall(r"^Package: (\S*)$", control, re.MULTILINE)
        self.assertIn(f"libzelinterchangedata{MAJOR}", packages)


if __name__ == "__main__":
    unittest.main()
