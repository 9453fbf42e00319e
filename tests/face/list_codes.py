"""Writes a macro call for each result code in the header.

Usage: list_codes.py HEADER OUTPUT"""

import re
import sys
from pathlib import Path


def codes(text):
    """The enumerators of the header's enumeration, in order."""
    body = re.search(r"enum \[\[nodiscard\]\] ZelDataResult_tags[^{]*\{(.*?)\};", text, re.DOTALL)[1]
    body = re.sub(r"//[^\n]*", "", body)
    return [enumerator.split("=")[0].strip() for enumerator in body.split(",")]


if __name__ == "__main__":
    listed = codes(Path(sys.argv[1]).read_text(encoding="utf-8"))
    Path(sys.argv[2]).write_text("".join(f"LISTED_CODE({code})\n" for code in listed),
                                 encoding="ascii")
