"""Checks the figures in docs/evidence.md that can be counted in the source tree, and the milliseconds in
docs/speed.md and the README.

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
        """The milliseconds for 1,000 captions, and the size of their packet."""
        figures = (ROOT / "bench" / "figures.md").read_text(encoding="utf-8").splitlines()
        names = next(line for line in figures if line.startswith("| N |")).strip("| ").split(" | ")
        rows = [dict(zip(names, line.strip("| ").split(" | "))) for line in figures
                if line.startswith("| 1000 |")]
        self.assertEqual(len(rows), 8)
        total, write = ([float(row[name]) * float(row["appender, ns per caption"]) / 1000 for row in rows]
                        for name in ("fill + set + write + release", "write"))
        size = sum(float(row["bytes per caption"]) for row in rows) / len(rows)
        speed = self.words_of("docs/speed.md")
        self.assertIn(f"take {min(total):.2f} to {max(total):.2f} ms", speed)
        self.assertIn(f"Writing takes {min(write):.2f} to {max(write):.2f} ms", speed)
        self.assertIn(f"about {round(size, -1):.0f} kB", speed)
        self.assertLess(max(total), 1)
        self.assertIn("1,000 captions in two languages are described and written in less than a millisecond",
                      self.words_of("README.md"))

    def words_of(self, name):
        return " ".join((ROOT / name).read_text(encoding="utf-8").split())


if __name__ == "__main__":
    unittest.main()
