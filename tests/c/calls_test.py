"""Compiles calls.c as C with each compiler, without a warning, compares the functions that it calls with
the list, and runs it.

The environment names COMPILERS, NM, LIBRARY and ROOT, the project's folder. FLAGS are those of a
sanitizer with which the library was compiled."""

import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(os.environ["ROOT"])
LIBRARY = Path(os.environ["LIBRARY"])
COMPILERS = os.environ["COMPILERS"].split(":")
FLAGS = os.environ["FLAGS"].split()
LINK_FLAGS = os.environ["LINK_FLAGS"].split()
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Wundef", "-Werror"]
SOURCE = ROOT / "tests/c/calls.c"


def run(*command, **options):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, check=False, **options)


class Calls(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def compile(self, compiler, *options):
        made = run(compiler, *WARNINGS, *FLAGS, "-I", ROOT / "include", *options)
        self.assertEqual((made.returncode, made.stdout + made.stderr), (0, ""))

    def test_the_header_is_c_of_1999_and_of_2011_without_a_warning(self):
        for compiler in COMPILERS:
            for standard in ("c99", "c11"):
                with self.subTest(f"{compiler} {standard}"):
                    self.compile(compiler, f"-std={standard}", "-fsyntax-only", SOURCE)

    def test_the_header_is_cpp_of_2011_and_later_without_a_warning(self):
        for compiler in COMPILERS:
            for standard in ("c++11", "c++20"):
                with self.subTest(f"{compiler} {standard}"):
                    self.compile(compiler, "-x", "c++", f"-std={standard}", "-fsyntax-only",
                                 ROOT / "include/ZelInterchangeData/zeldata.h")

    def test_the_program_calls_every_function(self):
        made = self.folder / "calls.o"
        self.compile(COMPILERS[0], "-std=c99", "-c", SOURCE, "-o", made)
        names = {line.split()[-1] for line in run(os.environ["NM"], "-u", made).stdout.splitlines()}
        listed = json.loads((ROOT / "docs/zeldata.json").read_text(encoding="ascii"))["functions"]
        self.assertEqual({name for name in names if name.startswith("zeldata_")},
                         {function["name"] for function in listed})

    def test_the_program_gets_what_it_expects(self):
        for compiler in COMPILERS:
            with self.subTest(compiler):
                program = self.folder / "calls"
                self.compile(compiler, "-std=c99", SOURCE, LIBRARY, *LINK_FLAGS, "-o", program)
                ran = run(program, self.folder / "packet.xmp",
                          env={**os.environ, "LD_LIBRARY_PATH": str(LIBRARY.parent)})
                self.assertEqual((ran.returncode, ran.stdout, ran.stderr), (0, "", ""))


if __name__ == "__main__":
    unittest.main()
