"""Tests the example of a complete document: its length, the file it writes, and its symbols.

The arguments are the words of the command that runs the program, if it needs one.
"""

import errno
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = os.environ["PROGRAM"]
SOURCE = Path(os.environ["SOURCE"])
EXPECTED = Path(os.environ["EXPECTED"])
NM = os.environ["NM"]
EMULATOR = sys.argv[1:]
DATE = re.compile(rb'dc:date="\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[-+]\d{1,2}:00"')
LONGEST = 26


class CompleteDocument(unittest.TestCase):
    def run_in(self, folder):
        done = subprocess.run([*EMULATOR, PROGRAM], cwd=folder, capture_output=True, text=True, check=False)
        # A Wine without fonts says so when it starts.
        done.stderr = re.sub(r"Wine cannot find the FreeType.*?freetype\.org\n", "", done.stderr, flags=re.S)
        return done

    def test_the_program_writes_the_expected_file(self):
        with tempfile.TemporaryDirectory() as folder:
            result = self.run_in(folder)
            self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
            packet = (Path(folder) / "intro.xmp").read_bytes()
        packet, count = DATE.subn(b'dc:date=""', packet)
        self.assertEqual(count, 1)
        self.assertEqual(packet + b"\n", EXPECTED.read_bytes())
        print("1 packet compared")

    def test_a_file_that_cannot_be_replaced_is_reported(self):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "intro.xmp").mkdir()
            result = self.run_in(folder)
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        reason = "Access (is )?denied\\.?" if PROGRAM.endswith(".exe") else os.strerror(errno.EISDIR)
        self.assertRegex(result.stderr, rf'^replaceFile\("intro\.xmp"\): {reason}\n$')

    def test_the_program_is_short(self):
        self.assertLessEqual(len(SOURCE.read_text(encoding="utf-8").splitlines()), LONGEST)

    @unittest.skipIf(PROGRAM.endswith(".exe"), "Windows has no weak symbols")
    def test_the_face_defines_only_inline_functions(self):
        """Weak symbols let several parts of a program use the face without collisions."""
        result = subprocess.run([NM, "--defined-only", "--demangle", PROGRAM],
                                capture_output=True, text=True, check=True)
        ours = [line.split(maxsplit=2)[1:] for line in result.stdout.splitlines()
                if "ZelInterchangeData::" in line]
        self.assertTrue(ours)
        # Local symbols of this program ("r", "t") are invisible to other parts, too.
        self.assertEqual([name for kind, name in ours if kind not in "WVuwvrtdb"], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
