"""Runs one sample of a document and compares its output with what the document shows.

Usage: sample_test.py DOCUMENT SAMPLE PROGRAM"""

import sys
import tempfile
from pathlib import Path

from blocks import document_name, read_blocks, samples_of
from output import objections


def sample_named(path, name):
    return next(sample for sample in samples_of(document_name(path), read_blocks(path), "cpp")
                if sample.name == name)


def main():
    document, name, program = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        found = objections(sample_named(document, name), [program], Path(folder))
    for objection in found:
        print(f"{name}: {objection}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
