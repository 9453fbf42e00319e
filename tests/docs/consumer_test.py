"""One CMake block of a document as a project of its own, which finds the library in the ways that a
user has: a prefix, a folder of sources beside it, a declared fetch. Its program is the first one of
the README, and prints what the README shows.

Usage: consumer_test.py PROJECT README

The environment names CMAKE, SOURCE (the library's folder), PREFIX (where it is installed),
CONFIGURATION and COMPILER."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from blocks import document_name, preamble_of, program_of, read_blocks, samples_of
from output import objections


def first_program(readme):
    blocks = read_blocks(readme)
    sample = samples_of(document_name(readme), blocks, "cpp")[0]
    return sample, program_of(sample, preamble_of(blocks))


def call(*arguments):
    """Ends the test, and shows what was said, when CMake fails."""
    result = subprocess.run([os.environ["CMAKE"], *arguments], stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, text=True, check=False)
    if result.returncode != 0:
        sys.exit(result.stdout)


def build(project, text, folder):
    """Lays the project out and builds it; returns the program."""
    shutil.copy(project, folder / "CMakeLists.txt")
    (folder / "main.cpp").write_text(text, encoding="utf-8")
    (folder / "ZelInterchangeData").symlink_to(os.environ["SOURCE"])
    call("-S", str(folder), "-B", str(folder / "build"), "-G", "Ninja",
         f"-DCMAKE_BUILD_TYPE={os.environ['CONFIGURATION']}",
         f"-DCMAKE_CXX_COMPILER={os.environ['COMPILER']}",
         f"-DCMAKE_PREFIX_PATH={os.environ['PREFIX']}",
         f"-DFETCHCONTENT_SOURCE_DIR_ZELINTERCHANGEDATA={os.environ['SOURCE']}",
         "-DFETCHCONTENT_FULLY_DISCONNECTED=ON")
    call("--build", str(folder / "build"), "--target", "my_program")
    return next(path for path in (folder / "build").rglob("my_program") if path.is_file())


def main():
    project, readme = sys.argv[1:]
    sample, text = first_program(readme)
    with tempfile.TemporaryDirectory() as place, tempfile.TemporaryDirectory() as folder:
        program = build(project, text, Path(place))
        found = objections(sample, [str(program)], Path(folder))
    for objection in found:
        print(f"{Path(project).name}: {objection}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
