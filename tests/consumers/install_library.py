"""Installs a Release and a Debug build of the library for the tests of the consumer projects: side by
side into one prefix, and the Release build once more with absolute library and include folders."""

import os
import shutil
from pathlib import Path

from support import ABSOLUTE, PREFIX, RELEASE_TREE, SOURCE, WORK, build, configure, install


def folders(libdir, includedir):
    return f"-DCMAKE_INSTALL_LIBDIR={libdir}", f"-DCMAKE_INSTALL_INCLUDEDIR={includedir}"


USUAL = folders("lib", "include")


def library_tree(build_type, tree, definitions=USUAL):
    """The build tree of the library alone, built."""
    configure(SOURCE, tree, f"-DCMAKE_BUILD_TYPE={build_type}", "-DZELINTERCHANGEDATA_TESTS=OFF",
              "-DZELINTERCHANGEDATA_EXAMPLES=OFF", *definitions)
    build(tree)
    return tree


def debug_tree():
    """The tree whose tests run, when it serves; it is built already."""
    if os.environ["DEBUG_TREE"]:
        return Path(os.environ["DEBUG_TREE"])
    return library_tree("Debug", WORK / "library-Debug")


def main():
    for prefix in (PREFIX, ABSOLUTE):
        shutil.rmtree(prefix, ignore_errors=True)
    # The prefix tells CMake that these folders are no part of the source, in which they may lie.
    library_tree("Release", RELEASE_TREE, (f"-DCMAKE_INSTALL_PREFIX={ABSOLUTE}",
                                           *folders(ABSOLUTE / "lib", ABSOLUTE / "include")))
    install(RELEASE_TREE, ABSOLUTE / "prefix")
    # Nothing is compiled again for other folders.
    library_tree("Release", RELEASE_TREE)
    for tree in (RELEASE_TREE, debug_tree()):
        install(tree, PREFIX)


if __name__ == "__main__":
    main()
