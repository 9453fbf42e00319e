"""Shared by the consumer tests: where the library is installed, how to build a project, and what its
program must print."""

import json
import os
import re
import shutil
import subprocess
from pathlib import Path

CONSUMERS = Path(__file__).resolve().parent
SOURCE = CONSUMERS.parent.parent
WORK = Path(os.environ["WORK"])
VERSION = os.environ["VERSION"]
CXX = os.environ["CXX"]
CXXFLAGS = os.environ.get("CXXFLAGS", "").split()

PREFIX = WORK / "prefix"
RELEASE_TREE = WORK / "library-Release"
# Holds the library and include folders of the installation with absolute folders.
ABSOLUTE = WORK / "absolute"

MAJOR, MINOR, PATCH = (int(part) for part in VERSION.split("."))
NUMBER = MAJOR * 10000 + MINOR * 100 + PATCH
EXPECTED_OUTPUT = ((CONSUMERS / "program" / "expected_output.txt").read_text(encoding="utf-8") +
                   f"version {NUMBER}, running {NUMBER}\n")


def run(*command, **options):
    """Runs the command and returns its output; if it fails, raises AssertionError with the output."""
    result = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, text=True, check=False, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command} ended with {result.returncode}:\n{result.stdout}")
    return result.stdout


def fresh_folder(name):
    """Creates an empty folder for one test."""
    folder = WORK / "projects" / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    return folder


def configure(source, tree, *definitions):
    run("cmake", "-S", source, "-B", tree, "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={CXX}",
        f"-DCMAKE_CXX_FLAGS={' '.join(CXXFLAGS)}", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
        *definitions)


def build(tree):
    run("cmake", "--build", tree)


def install(tree, prefix):
    """Installs a tree; returns the installed paths, relative to the prefix if they are in it."""
    output = run("cmake", "--install", tree, "--prefix", prefix)
    paths = re.findall(r"^-- (?:Installing|Up-to-date): (.*)$", output, re.MULTILINE)
    return {path.removeprefix(f"{prefix}/") for path in paths}


def tests_of(tree):
    listing = run("ctest", "--test-dir", tree, "--show-only=json-v1")
    return [test["name"] for test in json.loads(listing)["tests"]]


def needed_libraries(program):
    """Our shared libraries among those that the program needs."""
    entries = run("readelf", "--dynamic", "--wide", program)
    return re.findall(r"NEEDED.*\[(libZel[^]]*)\]", entries)


def make_with_pkg_config(folder, pkgconfig_folder, module, flags=(), static=False, compiler=CXX):
    """Builds the pkg_config project; returns its program."""
    extra = ["PKG_CONFIG_FLAGS=--static", "LDFLAGS=-static"] if static else []
    environment = dict(os.environ, PKG_CONFIG_PATH=str(pkgconfig_folder),
                       CXXFLAGS=" ".join([*CXXFLAGS, *flags]))
    run("make", "-C", CONSUMERS / "pkg_config", f"BUILD={folder}", f"MODULE={module}",
        f"CXX={compiler}", *extra, env=environment)
    return folder / "consumer"


class ChecksOfPrograms:
    """Assertions for a unittest.TestCase that checks built programs."""

    def assert_works(self, program, library_folder=None):
        environment = dict(os.environ)
        if library_folder is not None:
            environment["LD_LIBRARY_PATH"] = str(library_folder)
        self.assertEqual(run(program, env=environment), EXPECTED_OUTPUT)

    def assert_needs(self, program, *libraries):
        self.assertEqual(needed_libraries(program), list(libraries))
