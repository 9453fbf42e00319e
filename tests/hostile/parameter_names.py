"""Writes the names of all arguments of one kind that the operations for callers have, as lines of a
C++ list. A name is that of the operation and the place of the argument, counted from 1.

Usage: parameter_names.py strings|numbers SLOT_FOLDER INCLUDE_FOLDER OUTPUT"""

import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "abi"))
from public_operations import public_operations, write_list  # noqa: E402

KINDS = {
    # What is delivered counts as well: an argument may hold anything before.
    "strings": re.compile(r"(const )?std::(string|vector<std::string>)&"),
    # An enumeration can hold any number of its type; a flag cannot.
    "numbers": re.compile(r"(unsigned )?(long|int|long long)\*?|float|double|\w+_tags"),
}

kind, slot_folder, include_folder, output = sys.argv[1:]
write_list([f"{name} {place}"
            for name, types in public_operations(slot_folder, include_folder)
            for place, argument in enumerate(types, 1) if KINDS[kind].fullmatch(argument)],
           output)
