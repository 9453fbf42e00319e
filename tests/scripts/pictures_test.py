"""Runs scripts/pictures --check on changed copies of the project.

The environment names ROOT, the project's folder."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(os.environ["ROOT"])
NEEDED = ("bench/figures.md", "docs/pictures", "docs/speed.md", "include", "scripts", "src",
          "tests/core/data")


class Pictures(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        for name in NEEDED:
            target = self.root / name
            target.parent.mkdir(parents=True, exist_ok=True)
            copy = shutil.copytree if (ROOT / name).is_dir() else shutil.copy
            copy(ROOT / name, target)

    def change(self, name, old, new):
        path = self.root / name
        text = path.read_text(encoding="utf-8")
        self.assertIn(old, text)
        path.write_text(text.replace(old, new, 1), encoding="utf-8")

    def check(self):
        return subprocess.run([sys.executable, ROOT / "scripts" / "pictures", "--check", self.root],
                              capture_output=True, text=True, check=False)

    def assert_current(self):
        result = self.check()
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def assert_offence(self, offence):
        result = self.check()
        self.assertEqual(result.returncode, 1, result.stdout)
        self.assertEqual(result.stderr, offence + "; run scripts/pictures\n")

    def test_the_unchanged_project_passes(self):
        self.assert_current()

    def test_a_new_arrow_between_rooms_is_noticed(self):
        (self.root / "src/header/A.cpp").write_text('#include "toc/B.h"\n', encoding="utf-8")
        self.assert_offence("docs/pictures/rooms.dot: out of date")

    def test_an_existing_arrow_changes_nothing(self):
        (self.root / "src/header/A.cpp").write_text('#include "sets/B.h"\n', encoding="utf-8")
        self.assert_current()

    def test_a_removed_room_is_noticed(self):
        shutil.rmtree(self.root / "src" / "xml")
        self.assert_offence("docs/pictures/rooms.dot: out of date")

    def test_a_changed_packet_structure_is_noticed(self):
        self.change("tests/core/data/header-captions-toc-screentext.xmp", "dc:creator=",
                    "dc:creators=")
        self.assert_offence("docs/pictures/packet.dot: out of date")

    def test_changed_packet_values_change_nothing(self):
        self.change("tests/core/data/header-captions-toc-screentext.xmp", "Click Save", "Save")
        self.assert_current()

    def test_a_changed_figure_is_noticed(self):
        self.change("bench/figures.md", "| 1000 | shuffled | ", "| 2000 | shuffled | ")
        self.assert_offence("docs/pictures/ratios.gp: out of date")

    def test_a_changed_table_of_speed_is_noticed(self):
        self.change("docs/speed.md", "| write ÷ straight appender | ≤ 1 | ",
                    "| write ÷ straight appender | ≤ 2 | 0.01, was ")
        self.assert_offence("docs/speed.md: out of date")

    def test_a_picture_drawn_from_another_source_is_noticed(self):
        shutil.copy(self.root / "docs/pictures/rooms.svg", self.root / "docs/pictures/packet.svg")
        self.assert_offence("docs/pictures/packet.svg: not drawn from the current packet.dot")

    def test_a_missing_picture_is_noticed(self):
        (self.root / "docs/pictures/ratios.svg").unlink()
        self.assert_offence("docs/pictures/ratios.svg: not drawn from the current ratios.gp")


if __name__ == "__main__":
    unittest.main()
