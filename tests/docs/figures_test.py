"""Checks the figures in docs/evidence.md that can be counted in the source tree, and the README's figure of
speed.

The environment names ROOT, the project's folder."""

import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(os.environ["ROOT"])
WORDS = ["No", "One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten"]


def evidence():
    return (ROOT / "docs" / "evidence.md").read_text(encoding="utf-8")


def arguments(kind):
    """The number of arguments of this kind that the operations have."""
    with tempfile.TemporaryDirectory() as folder:
        output = Path(folder) / "names"
        subprocess.run([sys.executable, "-B", ROOT / "tests/hostile/parameter_names.py", kind,
                        ROOT / "tests/abi/slots", ROOT / "include", output], check=True)
        return len(output.read_text(encoding="ascii").splitlines())


class Figures(unittest.TestCase):
    def assert_named(self, words):
        self.assertIn(words, evidence())

    def test_arguments(self):
        self.assert_named(f"{arguments('strings')} text and {arguments('numbers')} number arguments")

    def test_dates(self):
        dates = (ROOT / "tests/robustness/zone_dates.inc").read_text(encoding="ascii")
        zones = re.findall(r'^\{"([^"]+)", ', dates, re.MULTILINE)
        self.assert_named(f"{len(zones)} dates in {len(set(zones))} time zones")

    def test_fuzz_targets(self):
        targets = [path for path in (ROOT / "fuzz/seeds").iterdir() if path.is_dir()]
        self.assert_named(f"{WORDS[len(targets)]} fuzz targets")

    def test_documents(self):
        rules = (ROOT / "tests/hostile/CMakeLists.txt").read_text(encoding="ascii")
        count = int(re.search(r"_PROMISE_DOCUMENTS=(\d+)\"", rules)[1])
        self.assert_named(f"{count:,} documents")

    def test_threads_and_writes(self):
        source = (ROOT / "tests/robustness/ThreadsTest.cpp").read_text(encoding="ascii")
        threads, writes = (int(re.search(rf"{name} = (\d+);", source)[1])
                           for name in ("threadCount", "writeCount"))
        self.assert_named(f"{threads} threads, {writes:,} writes")

    def test_speed(self):
        """The README's milliseconds for 1,000 captions."""
        figures = (ROOT / "bench" / "figures.md").read_text(encoding="utf-8")
        header = next(line for line in figures.splitlines() if line.startswith("| N |")).split(" | ")
        total, unit = (header.index(name) for name in ("fill + set + write + release",
                                                       "appender, ns per caption"))
        times = [float(cells[total]) * float(cells[unit]) * 1000
                 for cells in (line.split(" | ") for line in figures.splitlines())
                 if cells[0] == "| 1000"]
        self.assertEqual(len(times), 8)
        self.assertLess(max(times), 1e6)
        readme = " ".join((ROOT / "README.md").read_text(encoding="utf-8").split())
        self.assertIn("1,000 captions in two languages are described and written in less than a millisecond",
                      readme)


if __name__ == "__main__":
    unittest.main()
