"""The programs of the README: the first one is the example that is built and run elsewhere, the output
of the second one is the packet that the README shows."""

import os
import re
import subprocess
import unittest
from pathlib import Path

from extract import block

README = Path(os.environ["README"]).read_text(encoding="utf-8")
EXAMPLE = Path(os.environ["EXAMPLE"]).read_text(encoding="utf-8")
PROGRAM = os.environ["PROGRAM"]
DATE = re.compile(r'dc:date="\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[-+]\d{1,2}:00"')


def in_one_line(block):
    """The shown packet as it is printed: a tag follows a tag at once, an attribute a blank."""
    lines = [line.strip() for line in block.splitlines()]
    text = lines[0]
    for line in lines[1:]:
        text += line if text.endswith(">") and line.startswith("<") else " " + line
    return text


class FirstProgram(unittest.TestCase):
    def test_it_is_the_example_of_a_complete_document(self):
        self.assertEqual(block(README, "cpp", 1), EXAMPLE)


class Output(unittest.TestCase):
    def masked(self, packet):
        """The packet without its date, which it must have."""
        text, count = DATE.subn('dc:date=""', packet)
        self.assertEqual(count, 1)
        return text

    def test_the_program_prints_the_packet_shown(self):
        result = subprocess.run([PROGRAM], capture_output=True, text=True, check=False)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        shown = in_one_line(block(README, "xml", 1))
        self.assertEqual(self.masked(result.stdout), self.masked(shown) + "\n")


if __name__ == "__main__":
    unittest.main()
