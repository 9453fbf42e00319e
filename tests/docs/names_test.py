"""Checks that the tests, files and folders named in the documents exist, and that each packet field
has a test.

The environment names ROOT, the project's folder."""

import os
import re
import unittest
from pathlib import Path

from blocks import rows_below

ROOT = Path(os.environ["ROOT"])
FORMAT = ROOT / "docs" / "format.md"
DOCUMENTS = [*ROOT.glob("*.md"), *ROOT.glob("docs/*.md")]

CODE = re.compile(r"`([^`\n]+)`")
TEST = re.compile(r"[A-Z]\w+\.[A-Z]\w+")
DEFINITION = re.compile(r"\b(?:TYPED_)?TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)")
PROJECT_PATH = re.compile(r"(?:bench|cmake|docs|examples|include|scripts|src|tests)/[\w./-]+")


def code_words(path):
    """The words in backquotes outside fenced blocks."""
    text = re.sub(r"^```.*?^```$", "", path.read_text(encoding="utf-8"), flags=re.S | re.M)
    return CODE.findall(text)


def defined_tests():
    sources = (path.read_text(encoding="utf-8") for path in (ROOT / "tests").rglob("*.cpp"))
    return {".".join(names) for text in sources for names in DEFINITION.findall(text)}


def rows_of(heading):
    """The rows of the first table below a heading of docs/format.md."""
    return rows_below(FORMAT.read_text(encoding="utf-8"), heading)


class Names(unittest.TestCase):
    def test_every_named_test_exists(self):
        named = {word for path in DOCUMENTS for word in code_words(path) if TEST.fullmatch(word)}
        self.assertGreater(len(named), 40)
        self.assertEqual(sorted(named - defined_tests()), [])

    def test_every_named_file_exists(self):
        named = {word for path in DOCUMENTS for word in code_words(path)
                 if PROJECT_PATH.fullmatch(word)}
        self.assertGreater(len(named), 40)
        self.assertEqual([word for word in sorted(named) if not (ROOT / word).exists()], [])

    def test_every_kind_of_finding_has_a_row_with_its_severity(self):
        kinds = (ROOT / "src/sets/FindingKinds.cpp").read_text(encoding="utf-8")
        expected = re.findall(r"\{ZelDataFinding_(\w+), \"\w+\",\s+(error|warning),", kinds)
        self.assertEqual(len(expected), kinds.count("\"ZelDataFinding_") - 1)  # one is for no kind
        guide = (ROOT / "docs" / "guide.md").read_text(encoding="utf-8")
        rows = rows_below(guide, "## What is wrong with my document?")
        self.assertEqual([(kind.strip("`"), severity) for kind, severity, _ in rows], expected)

    def test_every_field_of_the_packet_names_its_test(self):
        rows = rows_of("## What is escaped, stripped or written as given")
        self.assertEqual(len(rows), 14)
        for field, *_, test in rows:
            with self.subTest(field=field):
                self.assertRegex(test, r"^`FieldTreatment\.\w+`$")

    def test_every_test_of_a_field_has_a_row(self):
        rows = rows_of("## What is escaped, stripped or written as given")
        tests = {test for test in defined_tests() if test.startswith("FieldTreatment.")}
        self.assertEqual({row[-1].strip("`") for row in rows}, tests)

    def test_every_oddity_names_a_test(self):
        for heading in ("## The date", "## Deliberate oddities"):
            for oddity, *_, tests in rows_of(heading):
                with self.subTest(oddity=oddity):
                    self.assertRegex(tests, r"^`[A-Z]\w+\.[A-Z]\w+`")


if __name__ == "__main__":
    unittest.main()
