"""Tests how samples are extracted and compared, with small made-up documents."""

import os
import sys
import tempfile
import unittest
import unittest.mock
from pathlib import Path

from blocks import (Block, Sample, blocks_of, preamble_of, program_of, project_of, rows_below,
                    samples_of)
from extract import write_files
from output import objections

DOCUMENT = """Text.

```cpp preamble
#include <iostream>
```

```cpp name=hello
std::cout << "hello\\n";
```

It prints

```text
hello
```

~~~cpp
int main()
{
}
~~~

```text file=a.txt
a
```

```cmake
target_link_libraries(my_program PRIVATE library)
```
"""


def sample(*outputs):
    return Sample("d.s", Block("cpp", [], "", 1), list(outputs))


def printer(text, file=None):
    """A command that prints the text, or writes it into a file."""
    place = f"open({file!r}, 'w', encoding='utf-8')" if file else "sys.stdout"
    return [sys.executable, "-X", "utf8", "-c", f"import sys; {place}.write({text!r})"]


class Blocks(unittest.TestCase):
    def test_each_block_is_found_with_its_language_and_words(self):
        found = [(block.language, block.words, block.line) for block in blocks_of(DOCUMENT)]
        self.assertEqual(found, [("cpp", ["preamble"], 3), ("cpp", ["name=hello"], 7),
                                 ("text", [], 13), ("cpp", [], 17), ("text", ["file=a.txt"], 23),
                                 ("cmake", [], 27)])

    def test_an_unclosed_block_is_refused(self):
        with self.assertRaises(ValueError):
            blocks_of("```cpp\nint a;\n``\n")

    def test_a_longer_fence_can_contain_a_shorter_one(self):
        self.assertEqual([block.text for block in blocks_of("````text\n```\n````\n")], ["```\n"])

    def test_samples_have_names_and_the_outputs_that_follow(self):
        samples = samples_of("d", blocks_of(DOCUMENT), "cpp")
        self.assertEqual([s.name for s in samples], ["d.hello", "d.cpp-2"])
        self.assertEqual([[o.text for o in s.outputs] for s in samples], [["hello\n"], ["a\n"]])

    def test_a_body_becomes_main_below_the_preamble(self):
        blocks = blocks_of(DOCUMENT)
        part, program = samples_of("d", blocks, "cpp")
        self.assertEqual(program_of(part, preamble_of(blocks)),
                         "#include <iostream>\n\nint main()\n{\nstd::cout << \"hello\\n\";\n}\n")
        self.assertEqual(program_of(program, preamble_of(blocks)), "int main()\n{\n}\n")

    def test_a_body_without_a_preamble_is_refused(self):
        blocks = blocks_of("```cpp\nreturn 0;\n```\n")
        with self.assertRaises(ValueError):
            program_of(samples_of("d", blocks, "cpp")[0], preamble_of(blocks))

    def test_only_a_part_of_a_project_is_completed(self):
        part = project_of(Block("cmake", [], "add_subdirectory(a)\n", 1))
        self.assertEqual(part.splitlines()[1:], ["project(documented LANGUAGES CXX)",
                                                 "add_executable(my_program main.cpp)",
                                                 "add_subdirectory(a)"])
        whole = "project(mine)\nadd_executable(my_program main.cpp)\n"
        self.assertEqual(project_of(Block("cmake", [], whole, 1)), whole)

    def test_a_script_has_the_output_that_follows(self):
        [script] = samples_of("d", blocks_of("```sh\nls\n```\n\n```text\na\n```\n"), "sh")
        self.assertEqual((script.block.text, [o.text for o in script.outputs]), ("ls\n", ["a\n"]))

    def test_the_rows_of_the_first_table_below_a_heading_are_found(self):
        text = "## A\n\n|x|\n|-|\n|0|\n\n## B\n\n| x | y |\n|-|-|\n| 1 | 2 |\n| 3 | 4 |\n\n|z|\n|-|\n|5|\n"
        self.assertEqual(rows_below(text, "## B"), [["1", "2"], ["3", "4"]])

    def test_files_of_removed_samples_are_deleted(self):
        with tempfile.TemporaryDirectory() as folder:
            write_files(Path(folder), {"a.cpp": "1", "b.cpp": "2"})
            write_files(Path(folder), {"b.cpp": "3"})
            self.assertEqual([(p.name, p.read_text()) for p in Path(folder).iterdir()],
                             [("b.cpp", "3")])


class Output(unittest.TestCase):
    def found(self, a_sample, command):
        with tempfile.TemporaryDirectory() as folder:
            return objections(a_sample, command, Path(folder))

    def test_the_shown_output_passes(self):
        self.assertEqual(self.found(sample(Block("text", [], "a\nb\n", 1)), printer("a\nb\n")), [])

    def test_an_extra_byte_is_noticed(self):
        self.assertEqual(self.found(sample(Block("text", [], "a\n", 1)), printer("a \n")),
                         ["prints 'a \\n'"])

    def test_output_that_is_not_shown_is_noticed(self):
        self.assertEqual(self.found(sample(), printer("a")),
                         ["the document shows no output", "prints what is not shown: 'a'"])

    def test_a_sample_without_a_shown_output_is_noticed(self):
        self.assertEqual(self.found(sample(), printer("")), ["the document shows no output"])

    def test_a_failure_is_noticed(self):
        command = [sys.executable, "-c", "import sys; print('a'); sys.exit(3)"]
        self.assertEqual(self.found(sample(Block("text", [], "a\n", 1)), command),
                         ["exit status 3, standard error: ''"])

    def test_a_packet_is_shown_in_several_lines_and_compared_as_one(self):
        shown = Block("xml", [], "<a>\n  <b c=\"1\"\n     d=\"2\" ></b>\n</a>\n", 1)
        self.assertEqual(self.found(sample(shown), printer('<a><b c="1" d="2" ></b></a>\n')), [])
        self.assertNotEqual(self.found(sample(shown), printer('<a><b c="1" d="2"></b></a>\n')), [])

    def test_any_date_matches_but_only_a_date(self):
        shown = Block("xml", [], '<a dc:date="2024-05-17T14:07:09+2:00" ></a>\n', 1)
        good = '<a dc:date="2031-01-02T03:04:05-0:00" ></a>'
        self.assertEqual(self.found(sample(shown), printer(good)), [])
        self.assertNotEqual(self.found(sample(shown), printer(good.replace("T", " "))), [])

    def test_a_date_that_is_shown_empty_must_not_be_empty(self):
        shown = Block("xml", [], '<a dc:date="" ></a>\n', 1)
        good = '<a dc:date="2031-01-02T03:04:05-0:00" ></a>'
        self.assertEqual(self.found(sample(shown), printer(good)), [])
        self.assertNotEqual(self.found(sample(shown), printer('<a dc:date="" ></a>')), [])

    def test_project_files_are_compared(self):
        with tempfile.TemporaryDirectory() as root:
            Path(root, "source.cpp").write_text("int main();\n", encoding="utf-8")
            Path(root, "expected.xmp").write_text("<a></a>\n", encoding="utf-8")
            words = ["source=source.cpp", "writes=a.xmp", "expected=expected.xmp"]
            with unittest.mock.patch.dict(os.environ, ROOT=root):
                good = Sample("d.s", Block("cpp", words, "int main();\n", 1), [])
                self.assertEqual(self.found(good, printer("<a></a>", "a.xmp")), [])
                self.assertEqual(self.found(good, printer("<b></b>", "a.xmp")),
                                 ["writes '<b></b>' into a.xmp"])
                other = Sample("d.s", Block("cpp", words, "int main()\n", 1), [])
                self.assertEqual(self.found(other, printer("<a></a>", "a.xmp")),
                                 ["differs from source.cpp"])

    def test_written_files_are_compared(self):
        shown = sample(Block("text", ["file=a.txt"], "a\n", 1))
        self.assertEqual(self.found(shown, printer("a\n", "a.txt")), [])
        self.assertEqual(self.found(shown, printer("b\n", "a.txt")), ["writes 'b\\n' into a.txt"])
        self.assertEqual(self.found(shown, printer("a\n", "b.txt")),
                         ["writes b.txt, which is not shown", "does not write a.txt"])


if __name__ == "__main__":
    unittest.main()
