"""The target of calls has every operation of every interface, every factory and every function on
texts and values.

The environment names ROOT, the project's folder."""

import os
import re
import sys
import unittest
from collections import Counter
from pathlib import Path

ROOT = Path(os.environ["ROOT"])
sys.path.insert(0, str(ROOT / "tests" / "abi"))
from public_operations import public_operations  # noqa: E402, from the folder above
from slot_lists import read_file, split  # noqa: E402

SLOTS = ROOT / "tests" / "abi" / "slots"
SOURCES = [path.read_text(encoding="ascii") for path in sorted((ROOT / "fuzz/core").glob("*.cpp"))
           if path.name.endswith("Operations.cpp")]

# The last error is checked around each call. The version of the library is a constant. Writing a
# file in another way tries no other packet.
LEFT_OUT = {"setLastError", "getLastError", "libraryVersion", "replaceFile"}


def called_members():
    """The class and operation of each member that becomes an operation of the target."""
    for text in SOURCES:
        for body in re.split(r"^void add", text, flags=re.MULTILINE):
            aliases = dict(re.findall(r"using (\w+) = (i_\w+);", body))
            for owner, name in re.findall(r"member\(&(\w+)::(\w+)", body):
                yield aliases.get(owner, owner), name
            for owner in re.findall(r"copying<(\w+)>\(\)", body):
                yield aliases.get(owner, owner), "copyFrom"
            if re.search(r"^\s+writeFile,$", body, re.MULTILINE):
                yield "i_ZelDataFormatterBase", "writeFile"


def listed_members():
    """The same for the slot lists, each operation with the interface that declares it."""
    for path in SLOTS.glob("i_*.txt"):
        for operation in read_file(path)[1]:
            if operation != "~" and split(operation)[1] not in LEFT_OUT:
                yield path.stem, split(operation)[1]


class Calls(unittest.TestCase):
    def test_every_operation_of_an_interface_is_called(self):
        listed = set(listed_members())
        self.assertGreater(len(listed), 150)
        self.assertEqual(sorted(listed - set(called_members())), [])

    def test_every_function_is_called_with_all_its_overloads(self):
        names = [name.split("(")[0] for name, _ in public_operations(SLOTS, ROOT / "include")]
        functions = Counter(name.split("::")[-1] for name in names
                            if name.startswith(("ZelDataUtilities::", "ZELDataCreator::"))
                            or "::" not in name)
        self.assertGreater(len(functions), 25)
        text = "".join(SOURCES)
        for name, overloads in functions.items():
            if name not in LEFT_OUT:
                with self.subTest(name):
                    self.assertGreaterEqual(len(re.findall(rf"\b{name}\b", text)), overloads)


if __name__ == "__main__":
    unittest.main()
