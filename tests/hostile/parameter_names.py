"""Writes the names of all arguments of one kind that the public operations have, as lines of a C++
list.

Usage: parameter_names.py strings|numbers SLOT_FOLDER INCLUDE_FOLDER OUTPUT

A name is the implementing class and the operation, with the types of the arguments where the class
has several of that name, and the place of the argument, counted from 1. The operations come from the
slot lists, which a test compares with the headers; the static functions come from the headers."""

import re
import sys
from collections import Counter
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "abi"))
from slot_lists import read_slot_lists, split  # noqa: E402

KINDS = {
    # What is delivered counts as well: an argument may hold anything before.
    "strings": re.compile(r"(const )?std::(string|vector<std::string>)&"),
    # An enumeration can hold any number of its type; a flag cannot.
    "numbers": re.compile(r"(unsigned )?(long|int|long long)\*?|float|double|\w+_tags"),
}


def argument_types(arguments):
    """The types in a list of arguments with or without names, given in parentheses."""
    types = []
    for argument in arguments.strip("()").split(","):
        words = re.sub(r"\s+", " ", argument).strip()
        types.append(re.sub(r"(?<=[&* ])(?!long$|int$)\w+$", "", words).strip()
                     if " " in words or re.search(r"[&*]\w", words) else words)
    return [name for name in types if name]


def named(class_name, signatures, kind):
    """The names of the arguments of operations, given as pairs of a name and its types."""
    counts = Counter(name for name, _ in signatures)
    prefix = class_name + "::" if class_name else ""
    for name, types in signatures:
        shown = f"{name}({', '.join(types)})" if counts[name] > 1 else name
        for place, argument in enumerate(types, 1):
            if kind.fullmatch(argument):
                yield f"{prefix}{shown} {place}"


def interface_parameters(slot_folder, kind):
    """The arguments of the operations of each class behind an interface."""
    for slot_list in read_slot_lists(slot_folder):
        signatures = []
        for operation in slot_list.operations:
            if operation != "~":
                _, name, rest = split(operation)
                signatures.append((name, argument_types(rest.removesuffix(" const"))))
        for implementation in slot_list.implementations:
            yield from named(implementation, signatures, kind)


def function_parameters(header, kind):
    """The arguments of a header's public static and exported functions."""
    text = re.sub(r"//.*", "", header.read_text(encoding="ascii"))
    text = re.sub(r"^private:.*?^};", "};", text, flags=re.MULTILINE | re.DOTALL)
    static = re.findall(r"\bstatic [^();]*?(\w+)(\([^)]*\))", text)
    free = re.findall(r"^ZELINTERCHANGEDATA_API [\w:]+ \*?(\w+)(\([^)]*\))", text, re.MULTILINE)
    for class_name, functions in ((header.stem, static), ("", free)):
        yield from named(class_name, [(name, argument_types(arguments))
                                      for name, arguments in functions], kind)


def main():
    kind, slot_folder, include_folder, output = sys.argv[1:]
    headers = sorted(Path(include_folder).glob("ZelInterchangeData/*.h"))
    interfaces = list(interface_parameters(Path(slot_folder), KINDS[kind]))
    functions = [name for header in headers for name in function_parameters(header, KINDS[kind])]
    assert interfaces and functions
    names = interfaces + functions
    Path(output).write_text("".join(f'    "{name}",\n' for name in names), encoding="ascii")


if __name__ == "__main__":
    main()
