"""Compares the virtual tables of the shared library with the slot lists, entry by entry.

Reads the symbols with nm and the table entries, which are dynamic relocations, with readelf. The
tables of implementing classes must be exactly as long as those of their interfaces."""

import os
import re
import subprocess
import unittest
from pathlib import Path

from demangled import NAMESPACE, shortened
from slot_lists import read_slot_lists, slot_count, slots, split

LIBRARY = os.environ["LIBRARY"]
SLOTS = Path(os.environ["SLOTS"])
NM = os.environ["NM"]
READELF = os.environ["READELF"]
WORD = 8
HEAD_WORDS = 2  # offset to the top of the object, and type information


def output_of(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def demangled(names):
    """The readable form of each name, in order."""
    result = subprocess.run([os.environ["CXXFILT"]], input="\n".join(names), capture_output=True,
                            text=True, check=True)
    return result.stdout.splitlines()


class Image:
    """Symbols and relocations of the library."""

    def __init__(self, path):
        self.names_at = {}
        self.tables = {}
        for line in output_of(NM, "--print-size", path).splitlines():
            fields = line.split()
            if len(fields) == 4:
                address, size, name = int(fields[0], 16), int(fields[1], 16), fields[3].partition("@")[0]
                self.names_at.setdefault(address, set()).add(name)
                if name.startswith("_ZTV"):
                    self.tables[name] = (address, size)
        self.entries = dict(self.relocations(path))

    def relocations(self, path):
        """Yields an address and the mangled names of what it points to."""
        for line in output_of(READELF, "--relocs", "--wide", path).splitlines():
            fields = line.split()
            if len(fields) == 4 and "RELATIVE" in fields[2]:
                yield int(fields[0], 16), self.names_at.get(int(fields[3], 16), set())
            elif len(fields) >= 5 and fields[2].startswith("R_"):
                yield int(fields[0], 16), {fields[4].partition("@")[0]}

    def table(self, name):
        """The entries of the virtual table of the class, each a set of names for one address."""
        mangled = "_ZTV" + nested(name)
        assert mangled in self.tables, f"no virtual table for {name}"
        address, size = self.tables[mangled]
        return [self.entries.get(address + WORD * index, set())
                for index in range(HEAD_WORDS, size // WORD)]


def nested(name):
    """The mangled name of a class in the namespace."""
    return f"N18ZelInterchangeData{len(name)}{name}E"


def plain(signature):
    """A demangled operation without its class, which may be a template instance."""
    return shortened(re.sub(r"^[\w:]+?(<.*?>)?::(?=(\w+|operator<)\()", "", signature))


def listed(operation):
    """A listed operation in the form that plain() returns: no result type, const after its type."""
    _, name, rest = split(operation)
    return name + re.sub(r"const ([\w:<>]+)([&*])", r"\1 const\2", rest)


IMAGE = Image(LIBRARY)
SLOT_LISTS = read_slot_lists(SLOTS)


class VirtualTables(unittest.TestCase):
    def check_entry(self, names, owner, slot, operation, abstract):
        """Checks one entry of the table; names are the symbols at the address it holds."""
        if abstract and names == {"__cxa_pure_virtual"}:
            return
        found = {plain(name) for name in demangled(sorted(names))}
        self.assertIn(listed(operation), found, f"{owner}, slot {slot}")

    def check_destructors(self, entries, owner, slot, abstract):
        """The complete destructor comes first, the deleting one second."""
        if abstract and not any(entries[slot:slot + 2]):
            return  # g++ leaves both empty, because no object of the class itself is ever destroyed
        for kind, names in zip((("D1Ev", "D2Ev"), ("D0Ev",)), entries[slot:slot + 2]):
            self.assertTrue(any(name.startswith("_ZN") and name.endswith(kind) for name in names),
                            f"{owner}, slot {slot}: {names}")

    def check_table(self, owner, operations, abstract):
        entries = IMAGE.table(owner)
        self.assertEqual(len(entries), slot_count(operations), f"{owner}: number of slots")
        for slot, operation in slots(operations):
            if operation == "~":
                self.check_destructors(entries, owner, slot, abstract)
            else:
                self.check_entry(entries[slot], owner, slot, operation, abstract)

    def test_each_listed_class_has_the_listed_slots(self):
        for slot_list in SLOT_LISTS:
            with self.subTest(slot_list.name):
                self.check_table(slot_list.name, slot_list.operations,
                                 abstract=slot_list.name.startswith("i_")
                                 and slot_list.name != "i_ZelDataResult")

    def test_implementing_classes_add_no_slot(self):
        for slot_list in SLOT_LISTS:
            for implementation in slot_list.implementations:
                with self.subTest(implementation):
                    self.check_table(implementation, slot_list.operations, abstract=False)

    def test_every_public_class_is_checked(self):
        """Internal helpers have tables, too, but none of these prefixes."""
        checked = {name for slot_list in SLOT_LISTS
                   for name in (slot_list.name, *slot_list.implementations)}
        names = {name.removeprefix("vtable for " + NAMESPACE) for name in demangled(IMAGE.tables)}
        self.assertEqual({name for name in names if re.fullmatch(r"(i_Zel|Zel)\w+", name)}, checked)


if __name__ == "__main__":
    unittest.main()
