"""Writes the names of all operations that the public interfaces have, as lines of a C++ list.

Usage: operation_names.py SLOT_FOLDER INCLUDE_FOLDER OUTPUT

A name is the implementing class and the operation, with the types of the arguments where the class
has several of that name. The operations come from the slot lists, which a test compares with the
headers; the static functions come from the headers themselves."""

import re
import sys
from collections import Counter
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "abi"))
from slot_lists import read_slot_lists, split  # noqa: E402


def named(class_name, signatures):
    """The names of the operations, given as pairs of a name and its arguments."""
    counts = Counter(name for name, _ in signatures)
    prefix = class_name + "::" if class_name else ""
    return [prefix + name + (arguments if counts[name] > 1 else "")
            for name, arguments in signatures]


def interface_operations(slot_folder):
    """The operations of each class behind an interface, destructors aside."""
    for slot_list in read_slot_lists(slot_folder):
        signatures = []
        for operation in slot_list.operations:
            if operation != "~":
                _, name, rest = split(operation)
                signatures.append((name, rest.removesuffix(" const")))
        for implementation in slot_list.implementations:
            yield from named(implementation, signatures)


def functions(pattern, header):
    """The functions of a header that callers can call and whose beginning matches the pattern, as
    names and types of arguments."""
    text = re.sub(r"//.*", "", header.read_text(encoding="ascii"))
    text = re.sub(r"^private:.*?^};", "", text, flags=re.DOTALL | re.MULTILINE)
    for name, arguments in re.findall(pattern + r" [^();=]*?(\w+)\(([^)]*)\)", text, re.MULTILINE):
        types = ", ".join(re.sub(r"\s+|\w+$", " ", argument).strip()
                          for argument in arguments.split(","))
        yield name, f"({types})"


def operation_names(slot_folder, include_folder):
    """The names of all operations, and an assertion that every source of them gave some."""
    headers = sorted(Path(include_folder).glob("ZelInterchangeData/*.h"))
    interfaces = list(interface_operations(slot_folder))
    static = [name for header in headers
              for name in named(header.stem, list(functions(r"\bstatic", header)))]
    free = [name for header in headers
            for name in named("", list(functions(r"^ZELINTERCHANGEDATA_API", header)))]
    assert interfaces and static and free
    return interfaces + static + free


def main():
    slot_folder, include_folder, output = sys.argv[1:]
    names = operation_names(Path(slot_folder), include_folder)
    Path(output).write_text("".join(f'    "{name}",\n' for name in names), encoding="ascii")


if __name__ == "__main__":
    main()
