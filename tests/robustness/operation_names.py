"""Writes the names of all operations that the library has for callers, as lines of a C++ list.

Usage: operation_names.py SLOT_FOLDER INCLUDE_FOLDER OUTPUT"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "abi"))
from public_operations import public_operations, write_list  # noqa: E402

slot_folder, include_folder, output = sys.argv[1:]
write_list([name for name, _ in public_operations(slot_folder, include_folder)], output)
