"""Builds one CMake block of a document as a project, which finds the library as a user's would: in a
prefix, in a source folder beside it or with FetchContent. Its program is the first one in the README
and must print what the README shows.

Usage: consumer_test.py PROJECT README

Needs the library in the prefix, and the environment of the consumer tests."""

import os
import shutil
import sys
import tempfile
from pathlib import Path

from blocks import document_name, preamble_of, program_of, read_blocks, samples_of
from output import objections
from support import PREFIX, SOURCE, configure, fresh_folder, run


def first_program(readme):
    blocks = read_blocks(readme)
    sample = samples_of(document_name(readme), blocks, "cpp")[0]
    return sample, program_of(sample, preamble_of(blocks))


def program_built(project, text):
    """Creates and builds the project; returns its program."""
    folder = fresh_folder(f"docs.{project.stem}")
    shutil.copy(project, folder / "CMakeLists.txt")
    (folder / "main.cpp").write_text(text, encoding="utf-8")
    (folder / "ZelInterchangeData").symlink_to(SOURCE)
    tree = folder / "build"
    # A unity build compiles the library in a third of the time; tests/consumers tests the usual build.
    configure(folder, tree, f"-DCMAKE_BUILD_TYPE={os.environ['BUILD_TYPE']}", "-DCMAKE_UNITY_BUILD=ON",
              f"-DCMAKE_PREFIX_PATH={PREFIX}", "-DFETCHCONTENT_FULLY_DISCONNECTED=ON",
              f"-DFETCHCONTENT_SOURCE_DIR_ZELINTERCHANGEDATA={SOURCE}")
    run("cmake", "--build", tree, "--target", "my_program")
    return tree / "my_program"


def main():
    project, readme = Path(sys.argv[1]), sys.argv[2]
    sample, text = first_program(readme)
    program = program_built(project, text)
    with tempfile.TemporaryDirectory() as folder:
        found = objections(sample, [str(program)], Path(folder))
    for objection in found:
        print(f"{project.name}: {objection}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
