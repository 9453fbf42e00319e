"""Writes each C++ and CMake sample of a Markdown file to a file.

Usage: extract.py FOLDER DOCUMENT

Writes NAME.cpp or NAME.cmake for each sample, deletes everything else in the folder, and prints the
names, one per line. Leaves a file whose text is unchanged alone."""

import sys
from pathlib import Path

from blocks import document_name, preamble_of, program_of, project_of, read_blocks, samples_of


def files_of(path):
    """The names and texts of the files for the samples of one document."""
    blocks, document = read_blocks(path), document_name(path)
    preamble = preamble_of(blocks)
    for sample in samples_of(document, blocks, "cpp"):
        yield sample.name + ".cpp", program_of(sample, preamble)
    for sample in samples_of(document, blocks, "cmake"):
        yield sample.name + ".cmake", project_of(sample.block)


def write_files(folder, files):
    folder.mkdir(parents=True, exist_ok=True)
    for left_over in set(folder.iterdir()) - {folder / name for name in files}:
        left_over.unlink()
    for name, text in files.items():
        target = folder / name
        if not target.exists() or target.read_text(encoding="utf-8") != text:
            target.write_text(text, encoding="utf-8")


def main():
    folder, document = sys.argv[1:]
    files = dict(files_of(document))
    write_files(Path(folder), files)
    print("\n".join(files))


if __name__ == "__main__":
    main()
