"""Checks that the tests build and run every C++, CMake and shell block of every document.

The environment names ROOT, the project's folder, and REGISTERED, the file with the names of the
samples that have a test."""

import os
import re
import unittest
from pathlib import Path

from blocks import document_name, is_program, preamble_of, read_blocks, samples_of

ROOT = Path(os.environ["ROOT"])
REGISTERED = Path(os.environ["REGISTERED"])

# A block without a language is shown and not run.
LANGUAGES = {"", "c", "cmake", "cpp", "csharp", "python", "sh", "swift", "text", "xml"}

# Everything that looks like an opening fence with a language, at any indentation.
ANY_FENCE = re.compile(r"^[ \t>*+-]*(?:`{3,}|~{3,})[ \t]*(\w[^\s`]*)", re.MULTILINE)


def documents():
    """All Markdown files outside hidden folders, build folders and packages of Node.js."""
    for folder, folders, files in os.walk(ROOT):
        folders[:] = [name for name in folders if name[0] != "." and name not in ("build", "out", "node_modules")]
        yield from (Path(folder, name) for name in files if name.endswith((".md", ".markdown")))


class Coverage(unittest.TestCase):
    def test_every_sample_has_a_test(self):
        expected = [f"{sample.name}.{language}" for path in documents()
                    for language in ("cpp", "cmake")
                    for sample in samples_of(document_name(path), read_blocks(path), language)]
        self.assertEqual(sorted(REGISTERED.read_text(encoding="utf-8").split()), sorted(expected))
        self.assertTrue(any(name.startswith("README.") for name in expected))

    def test_every_block_is_seen(self):
        for path in documents():
            with self.subTest(document=path.name):
                fences = ANY_FENCE.findall(path.read_text(encoding="utf-8"))
                seen = [block.language for block in read_blocks(path) if block.language]
                self.assertEqual(fences, seen)

    def test_languages_are_known(self):
        """A program in another language would not run."""
        for path in documents():
            with self.subTest(document=path.name):
                self.assertLessEqual({block.language for block in read_blocks(path)}, LANGUAGES)

    def test_scripts_are_where_they_run(self):
        """delivery_test.py runs the scripts of its page, and no other test runs any."""
        with_scripts = [path.name for path in documents()
                        if any(block.language == "sh" for block in read_blocks(path))]
        self.assertEqual(with_scripts, ["delivery.md"])

    def test_programs_in_other_languages_are_where_they_run(self):
        """languages_test.py runs those of its page, except the one in Swift."""
        with_programs = [path.name for path in documents()
                         if {block.language for block in read_blocks(path)} & {"c", "csharp", "python", "swift"}]
        self.assertEqual(with_programs, ["languages.md"])

    def test_a_preamble_is_used(self):
        for path in documents():
            blocks = read_blocks(path)
            if preamble_of(blocks) is not None:
                with self.subTest(document=path.name):
                    samples = samples_of(document_name(path), blocks, "cpp")
                    self.assertFalse(all(is_program(sample.block.text) for sample in samples))


if __name__ == "__main__":
    unittest.main()
