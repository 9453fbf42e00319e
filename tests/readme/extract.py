"""Writes the first code block of a language in a Markdown file to a file of its own.

Usage: extract.py FILE LANGUAGE OUTPUT"""

import re
import sys
from pathlib import Path


def first_block(text, language):
    """The lines between the fences, each with its line feed."""
    return re.search(rf"^```{language}\n(.*?)^```$", text, re.DOTALL | re.MULTILINE)[1]


if __name__ == "__main__":
    markdown = Path(sys.argv[1]).read_text(encoding="utf-8")
    Path(sys.argv[3]).write_text(first_block(markdown, sys.argv[2]), encoding="utf-8")
