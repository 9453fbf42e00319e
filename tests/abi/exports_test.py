"""What the shared library exports against the list in exports.txt: each name of the list, and no
other one. The library's own inline members stay hidden, so the list is the same for every
compiler."""

import os
import subprocess
import unittest
from pathlib import Path

from demangled import NAMESPACE, shortened

LIBRARY = os.environ["LIBRARY"]
EXPORTS = Path(os.environ["EXPORTS"])
NM = os.environ["NM"]


def exported():
    """The readable names of the defined dynamic symbols."""
    result = subprocess.run([NM, "--dynamic", "--defined-only", "--demangle", LIBRARY],
                            capture_output=True, text=True, check=True)
    return {line.split(maxsplit=2)[2] for line in result.stdout.splitlines()}


class Exports(unittest.TestCase):
    def setUp(self):
        self.exported = exported()
        self.listed = EXPORTS.read_text(encoding="ascii").splitlines()

    def test_the_public_interface_and_nothing_else_is_exported(self):
        self.maxDiff = None
        self.assertEqual(sorted(shortened(name) for name in self.exported), sorted(self.listed))

    def test_every_exported_name_lies_in_the_namespace(self):
        for name in sorted(self.exported):
            owner = name.split(" for ")[-1]
            with self.subTest(name):
                self.assertTrue(owner.startswith(NAMESPACE))


if __name__ == "__main__":
    unittest.main()
