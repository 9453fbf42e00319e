"""All public operations: those of the interfaces, read from the slot lists, which a test compares with
the headers, and the static and free functions, read from the headers."""

import re
from collections import Counter
from pathlib import Path

from slot_lists import read_slot_lists, split


def argument_types(arguments):
    """The argument types of a parenthesised list, with or without argument names and defaults."""
    types = []
    for argument in arguments.strip("()").split(","):
        words = re.sub(r"\s+", " ", argument.partition("=")[0]).strip()
        types.append(re.sub(r"(?<=[&* ])(?!long$|int$)\w+$", "", words).strip()
                     if " " in words or re.search(r"[&*]\w", words) else words)
    return [name for name in types if name]


def of_interfaces(slot_folder):
    """The operations of each class that implements an interface, without the destructor."""
    for slot_list in read_slot_lists(slot_folder):
        operations = [split(operation) for operation in slot_list.operations if operation != "~"]
        signatures = [(name, argument_types(rest.removesuffix(" const")))
                      for _, name, rest in operations]
        for implementation in slot_list.implementations:
            yield implementation, signatures


def of_header(pattern, class_name, header):
    """The public functions of a header whose declaration begins with the pattern."""
    text = re.sub(r"//.*", "", header.read_text(encoding="ascii"))
    text = re.sub(r"^private:.*?^};", "", text, flags=re.DOTALL | re.MULTILINE)
    found = re.findall(pattern + r" [^();=]*?(\w+)(\([^)]*\))", text, re.MULTILINE)
    return class_name, [(name, argument_types(arguments)) for name, arguments in found]


def named(class_name, signatures):
    """The name and argument types of each operation. The name is that of the class and the operation,
    followed by the argument types if the operation is overloaded."""
    counts = Counter(name for name, _ in signatures)
    prefix = class_name + "::" if class_name else ""
    for name, types in signatures:
        yield prefix + name + (f"({', '.join(types)})" if counts[name] > 1 else ""), types


def public_operations(slot_folder, include_folder):
    """The name and argument types of each operation. Asserts that every source has some."""
    headers = [path for path in sorted(Path(include_folder).glob("ZelInterchangeData/*.h"))
               # What the one declares is never called; the other is C, and tests/c calls all of it.
               if path.stem not in ("ZelDataStandardLibrary", "zeldata")]
    sources = (of_interfaces(Path(slot_folder)),
               (of_header(r"\bstatic", header.stem, header) for header in headers),
               (of_header(r"^ZELINTERCHANGEDATA_API", "", header) for header in headers))
    operations = []
    for source in sources:
        found = [operation for group in source for operation in named(*group)]
        assert found
        operations += found
    return operations


def write_list(names, output):
    """Writes names as lines of a C++ list."""
    Path(output).write_text("".join(f'    "{name}",\n' for name in names), encoding="ascii")
