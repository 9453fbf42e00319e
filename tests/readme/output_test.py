"""The programs of the README: the first one is the example that is built and run elsewhere, the second
one prints the packet that the README shows, the third one the findings."""

import os
import re
import subprocess
import unittest
from pathlib import Path

from extract import block

README = Path(os.environ["README"]).read_text(encoding="utf-8")
EXAMPLE = Path(os.environ["EXAMPLE"]).read_text(encoding="utf-8")
PACKET = os.environ["PACKET"]
FINDINGS = os.environ["FINDINGS"]
DATE = re.compile(r'dc:date="\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[-+]\d{1,2}:00"')


def in_one_line(block):
    """The shown packet as it is printed: a tag follows a tag at once, an attribute a blank."""
    lines = [line.strip() for line in block.splitlines()]
    text = lines[0]
    for line in lines[1:]:
        text += line if text.endswith(">") and line.startswith("<") else " " + line
    return text


def output_of(program):
    """What the program prints; it must succeed and report nothing."""
    result = subprocess.run([program], capture_output=True, text=True, check=True)
    return result.stdout if not result.stderr else None


class Programs(unittest.TestCase):
    def test_there_are_three(self):
        self.assertEqual(README.count("```cpp\n"), 3)


class FirstProgram(unittest.TestCase):
    def test_it_is_the_example_of_a_complete_document(self):
        self.assertEqual(block(README, "cpp", 1), EXAMPLE)


class Packet(unittest.TestCase):
    def masked(self, packet):
        """The packet without its date, which it must have."""
        text, count = DATE.subn('dc:date=""', packet)
        self.assertEqual(count, 1)
        return text

    def test_the_program_prints_the_packet_shown(self):
        shown = in_one_line(block(README, "xml", 1))
        self.assertEqual(self.masked(output_of(PACKET)), self.masked(shown) + "\n")


class Findings(unittest.TestCase):
    def test_the_program_prints_the_lines_shown(self):
        self.assertEqual(output_of(FINDINGS), block(README, "text", 1))


if __name__ == "__main__":
    unittest.main()
