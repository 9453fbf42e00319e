"""What the shared library exports against the list in exports.txt: each name of the list under its
version, and no other one. The library's own inline members stay hidden, so the list is the same for
every compiler. And what others can put in the place of what the library calls itself: no function of
its own."""

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
    """The version and the readable name of each defined dynamic symbol; those of the versions
    themselves, which have no address, left out."""
    for line in output_of("NM", "--dynamic", "--defined-only", "--demangle").splitlines():
        _, kind, symbol = line.split(maxsplit=2)
        if kind != "A":
            name, _, version = symbol.partition("@@")
            yield version, name


def listed():
    """The same from the list: each version, followed by a colon, comes before its names."""
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

    def test_every_exported_name_lies_in_the_namespace(self):
        for _, name in sorted(self.exported):
            owner = name.split(" for ")[-1]
            with self.subTest(name):
                self.assertTrue(owner.startswith(NAMESPACE))


class Relocations(unittest.TestCase):
    def test_no_function_of_the_library_is_looked_up_when_it_is_loaded(self):
        names = re.findall(r"^[0-9a-f]+ +[0-9a-f]+ +R_\S+ +[0-9a-f]+ +(.*?)(?:@| \+ |$)",
                           output_of("READELF", "--relocs", "--wide", "--demangle"), re.MULTILINE)
        ours = {name for name in names if NAMESPACE in name}
        self.assertTrue(ours)
        self.assertEqual({name for name in ours if not name.startswith(DATA)}, set())


if __name__ == "__main__":
    unittest.main()
