"""The slot lists in slots/: one file per polymorphic class, one line per virtual operation, in
slot order. `~` is the destructor, which takes two slots."""

from dataclasses import dataclass
from pathlib import Path
import re

KEYS = ("header", "extends", "implemented by")


@dataclass
class SlotList:
    """The content of one file, with the operations of its base classes first."""
    name: str
    header: str
    implementations: list
    operations: list


def read_file(path):
    """The keys and operations in the file, without those of base classes."""
    keys, operations = {}, []
    for line in path.read_text(encoding="ascii").splitlines():
        key, colon, value = line.partition(": ")
        if colon and key in KEYS:
            keys[key] = value
        else:
            operations.append(line)
    return keys, operations


def read_slot_list(folder, name):
    """The complete slot list of the named class."""
    keys, operations = read_file(folder / f"{name}.txt")
    if "extends" in keys:
        operations = read_slot_list(folder, keys["extends"]).operations + operations
    return SlotList(name, keys["header"], keys.get("implemented by", "").split(), operations)


def read_slot_lists(folder):
    """All slot lists in the folder, sorted by name. Fails if there are none."""
    lists = [read_slot_list(folder, path.stem) for path in sorted(Path(folder).glob("*.txt"))]
    assert lists, f"no slot list in {folder}"
    return lists


def slots(operations):
    """Yields a slot index and the operation that begins there."""
    index = 0
    for operation in operations:
        yield index, operation
        index += 2 if operation == "~" else 1


def slot_count(operations):
    """The number of slots that the operations take."""
    return len(operations) + operations.count("~")


def split(operation):
    """The operation's result, name and what follows the name: arguments and const-ness."""
    return re.fullmatch(r"(.*?) ?(operator<|\w+)(\(.*)", operation).groups()
