"""Writes a code block of a language in a Markdown file to a file of its own.

Usage: extract.py FILE LANGUAGE NUMBER OUTPUT    (the first block is number 1)"""

import re
import sys
from pathlib import Path


def block(text, language, number):
    """The lines between the fences of the block, each with its line feed."""
    blocks = re.findall(rf"^```{language}\n(.*?)^```$", text, re.DOTALL | re.MULTILINE)
    return blocks[number - 1]


if __name__ == "__main__":
    markdown = Path(sys.argv[1]).read_text(encoding="utf-8")
    Path(sys.argv[4]).write_text(block(markdown, sys.argv[2], int(sys.argv[3])), encoding="utf-8")
