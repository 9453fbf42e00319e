"""Builds and runs the samples in C, Python and C#, and compares what they print and write with what their
document shows.

The environment names ROOT, the project's folder, LIBRARY, and the C compiler, CC."""

import os
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from blocks import document_name, read_blocks, samples_of
from output import objections, run

ROOT = Path(os.environ["ROOT"])
LIBRARY = Path(os.environ["LIBRARY"])
DOCUMENT = ROOT / "docs" / "languages.md"
WARNINGS = ("-std=c99", "-Wall", "-Wextra", "-Wpedantic", "-Werror")


class Languages(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.made, self.written = Path(folder.name, "made"), Path(folder.name, "written")
        self.made.mkdir()

    def check(self, language, count, command_for):
        """Writes each sample in the language to a file, runs the command for it and checks what it does."""
        samples = samples_of(document_name(DOCUMENT), read_blocks(DOCUMENT), language)
        self.assertEqual(len(samples), count)
        for sample in samples:
            with self.subTest(sample.name):
                shutil.rmtree(self.written, ignore_errors=True)
                self.written.mkdir()
                source = self.made / f"{sample.name}.{language}"
                source.write_text(sample.block.text, encoding="utf-8")
                self.assertEqual(objections(sample, command_for(source), self.written), [])

    def built(self, *command):
        done = run(command, self.made)
        self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""))

    def test_c(self):
        def command(source):
            program = source.with_suffix(".program")
            self.built(os.environ["CC"], *WARNINGS, "-I", ROOT / "include", "-x", "c", source, "-x", "none",
                       LIBRARY, "-o", program)
            return [program]
        self.check("c", 2, command)

    def test_python(self):
        self.check("python", 1, lambda source: [sys.executable, "-B", "-X", "utf8", source])

    @unittest.skipUnless(shutil.which("mcs") and shutil.which("mono"), "Mono is not installed")
    def test_csharp(self):
        def command(source):
            program = source.with_suffix(".exe")
            self.built("mcs", f"-out:{program}", source)
            # The sample loads the library by the name of a release.
            (self.made / "libZelInterchangeData.so").symlink_to(LIBRARY)
            return ["env", f"LD_LIBRARY_PATH={self.made}", "mono", program]
        self.check("csharp", 1, command)


if __name__ == "__main__":
    os.environ["LD_LIBRARY_PATH"] = str(LIBRARY.parent)
    os.environ["ZELDATA_LIBRARY"] = str(LIBRARY)
    os.environ["ZELDATA_LIST"] = str(ROOT / "docs" / "zeldata.json")
    unittest.main()
