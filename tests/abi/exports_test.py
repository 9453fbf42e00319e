"""Checks that the shared library exports the names in exports.txt, each under its version, and no
others. The library's inline members stay hidden, so the list is the same for every compiler. Also
checks that no other module can replace a function that the library calls in itself."""

import os
import re
import subprocess
import unittest
from pathlib import Path

from demangled import NAMESPACE, shortened

LIBRARY = os.environ["LIBRARY"]
EXPORTS = Path(os.environ["EXPORTS"])
DATA = ("vtable for ", "typeinfo for ", "typeinfo name for ")


def output_of(command, *arguments):
    return subprocess.run([os.environ[command], *arguments, LIBRARY], capture_output=True, text=True,
                          check=True).stdout


def exported():
    """The version and the readable name of each defined dynamic symbol, without the symbols that
    stand for the versions themselves."""
    for line in output_of("NM", "--dynamic", "--defined-only", "--demangle").splitlines():
        _, kind, symbol = line.split(maxsplit=2)
        if kind != "A":
            name, _, version = symbol.partition("@@")
            yield version, name


def listed():
    """The versions and names in exports.txt, where each version, with a colon, precedes its names."""
    version = None
    for line in EXPORTS.read_text(encoding="ascii").splitlines():
        if line.startswith("ZELINTERCHANGEDATA_"):
            version = line.removesuffix(":")
        else:
            yield version, line


class Exports(unittest.TestCase):
    def setUp(self):
        self.exported = set(exported())

    def test_the_public_interface_and_nothing_else_is_exported(self):
        self.maxDiff = None
        self.assertEqual(sorted((version, shortened(name)) for version, name in self.exported),
                         sorted(listed()))

    def test_every_exported_name_is_in_the_namespace_or_has_the_prefix_of_c(self):
        for _, name in sorted(self.exported):
            owner = name.split(" for ")[-1]
            with self.subTest(name):
                self.assertTrue(owner.startswith((NAMESPACE, "zeldata_")))


class Relocations(unittest.TestCase):
    def test_the_loader_looks_up_no_function_of_the_library(self):
        names = re.findall(r"^[0-9a-f]+ +[0-9a-f]+ +R_\S+ +[0-9a-f]+ +(.*?)(?:@| \+ |$)",
                           output_of("READELF", "--relocs", "--wide", "--demangle"), re.MULTILINE)
        ours = {name for name in names if NAMESPACE in name}
        self.assertTrue(ours)
        self.assertEqual({name for name in ours if not name.startswith(DATA)}, set())


if __name__ == "__main__":
    unittest.main()
