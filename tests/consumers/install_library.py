"""Installs a Release and a Debug build of the library side by side in one prefix for the consumer
tests, and the Release build again with absolute library and include folders."""

import os
import shutil
from pathlib import Path

from support import ABSOLUTE, PREFIX, RELEASE_TREE, SOURCE, WORK, build, configure, install


def folders(libdir, includedir):
    return f"-DCMAKE_INSTALL_LIBDIR={libdir}", f"-DCMAKE_INSTALL_INCLUDEDIR={includedir}"


USUAL = folders("lib", "include")


def library_tree(build_type, tree, definitions=USUAL):
    """Builds the library without tests and examples; returns the build tree."""
    configure(SOURCE, tree, f"-DCMAKE_BUILD_TYPE={build_type}", "-DZELINTERCHANGEDATA_TESTS=OFF",
              "-DZELINTERCHANGEDATA_EXAMPLES=OFF", *definitions)
    build(tree)
    return tree


def debug_tree():
    """The current build tree if it is a suitable Debug build, otherwise a new one."""
    if os.environ["DEBUG_TREE"]:
        return Path(os.environ["DEBUG_TREE"])
    return library_tree("Debug", WORK / "library-Debug")


def main():
    for prefix in (PREFIX, ABSOLUTE):
        shutil.rmtree(prefix, ignore_errors=True)
    # The prefix tells CMake that these folders are not part of the source tree, even if they are in it.
    library_tree("Release", RELEASE_TREE, (f"-DCMAKE_INSTALL_PREFIX={ABSOLUTE}",
                                           *folders(ABSOLUTE / "lib", ABSOLUTE / "include")))
    install(RELEASE_TREE, ABSOLUTE / "prefix")
    # Other folders compile nothing again.
    library_tree("Release", RELEASE_TREE)
    for tree in (RELEASE_TREE, debug_tree()):
        install(tree, PREFIX)


if __name__ == "__main__":
    main()
