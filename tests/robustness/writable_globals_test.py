"""Checks that no object file of the library has a variable that can be written, or code that runs
when the library is loaded: all that threads could share is constant.

Usage: writable_globals_test.py READELF STATIC_LIBRARY"""

import re
import subprocess
import sys

# Relocated once by the loader and read-only from then on.
CONSTANT = re.compile(r"\.data\.rel\.ro(\..*)?$")
# The compiler's own references for the exception tables: nothing writes to them but the loader.
COMPILERS_OWN = re.compile(r"\.data(\.rel)?(\.local)?\.DW\.ref\.")

FILE = re.compile(r"^File: .*\((.*)\)$")
SECTION = re.compile(
    r"^\s*\[\s*\d+\] (?P<name>\S+)\s+(?P<type>[A-Z_]+)\s+[0-9a-f]+ [0-9a-f]+ (?P<size>[0-9a-f]+)"
    r"\s+[0-9a-f]+\s+(?P<flags>[A-Za-z]*)\s")


def sections(readelf, library):
    """Yields object file, section name and size of each section that can be written."""
    listing = subprocess.run([readelf, "-SW", library], check=True, capture_output=True,
                             text=True).stdout
    file = None
    for line in listing.splitlines():
        if match := FILE.match(line):
            file = match.group(1)
        elif match := SECTION.match(line):
            if "W" in match["flags"] and "A" in match["flags"]:
                yield file, match["name"], int(match["size"], 16)


def main():
    found = list(sections(*sys.argv[1:]))
    files = {file for file, _, _ in found}
    # Every object has its empty .data and .bss, so a listing that was not understood is noticed.
    if len(files) < 40:
        sys.exit(f"only {len(files)} object files with sections were found")
    offences = [f"{file}: {name} has {size} bytes" for file, name, size in found
                if size and not CONSTANT.match(name) and not COMPILERS_OWN.match(name)]
    for offence in offences:
        print(offence)
    print(f"{len(files)} object files, {len(offences)} with something to write to")
    sys.exit(1 if offences else 0)


if __name__ == "__main__":
    main()
