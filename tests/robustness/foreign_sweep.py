"""Gives every operation that takes a caller's object one that goes wrong at its first, second, third
call and so on, in every way, and compares what happens with the model.

foreign_sweep.py --driver PATH --slots FOLDER [--share N/M]

With a share, it tries only every M-th of these points, starting with the N-th: together the shares 1/M
to M/M try all of them.

It compares the code, both last errors, what each side holds afterwards, every call that is made on
the caller's object and the number of such objects that are alive. Then it calls the operation once
more with the object in order."""

import argparse
import itertools
import re
import sys
from collections import namedtuple
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE.parent / "model"), str(HERE.parent / "abi")]

from codes import (INVALID_ARGUMENT, NO_DATA, OK, OUT_OF_MEMORY, WARN_NO_CHANGE,  # noqa: E402
                   WARN_TIMING, XMP)
from run import first_difference, line_of, readable  # noqa: E402
from session import Session  # noqa: E402
from signatures import SIGNATURES  # noqa: E402
from slot_lists import read_file, split  # noqa: E402

ZONE = ("UTC0", 0)

INTERFACES = {
    "L": "i_ZelDataLanguage", "H": "i_ZelDataHeader", "CI": "i_ZelDataCaptionItem",
    "C": "i_ZelDataCaptions", "TI": "i_ZelDataTocItem", "T": "i_ZelDataToc",
    "SI": "i_ZelDataScreenTextItem", "S": "i_ZelDataScreenText",
    "HF": "i_ZelDataHeaderFormatter", "CF": "i_ZelDataCaptionFormatter",
    "TF": "i_ZelDataTocFormatter", "SF": "i_ZelDataScreenTextFormatter",
    "D": "i_ZelInterchangeDataCore",
}
SETS = {"H": "Header", "C": "Captions", "T": "Toc", "S": "ScreenText"}
ITEMS = {"C": ("CI", "Caption"), "T": ("TI", "Toc"), "S": ("SI", "ScreenText")}
FORMATTERS = {"HF": "H", "CF": "C", "TF": "T", "SF": "S"}
# Our classes for each interface; the language operations belong to three of them.
OWN = {"L": ["H", "C", "T"], "D": ["D", "X"]}

# What goes wrong: the model's letter for it, the code returned and the code kept. A known error and
# a known warning, unknown ones, both bits at once, a failure that is kept as success, a code that is
# no failure; a failure after the work was done or half of the items were handed out; exhausted
# memory, an exception, a number thrown; the end of the thread; a last error that cannot be read
# any more.
WAYS = [
    ("c", INVALID_ARGUMENT, WARN_TIMING), ("c", WARN_TIMING, INVALID_ARGUMENT),
    ("c", 0x80000E11, 0x40000E22), ("c", 0x40000E22, 0x80000E11), ("c", 0xC0000E33, 0x80000E44),
    ("c", OUT_OF_MEMORY, OUT_OF_MEMORY), ("c", WARN_NO_CHANGE, NO_DATA),
    ("c", INVALID_ARGUMENT, OK), ("d", 0x3FFFFFFF, INVALID_ARGUMENT),
    ("d", 0x80000E11, 0x40000E22), ("h", 0x80000E11, 0x40000E22),
    ("b", OK, OK), ("x", OK, OK), ("B", OK, OK), ("X", OK, OK),
    ("e", OK, OK), ("k", OK, OK), ("E", OK, OK),
]
# A target whose last error cannot be read has no result to compare.
SOURCE_WAYS = WAYS + [("l", 0x80000E11, 0x80000E11), ("m", 0x80000E11, 0x80000E11),
                        ("n", 0x80000E11, 0x80000E11)]

# One operation with the family of the caller's object that it reads ("c") or changes ("m").
Operation = namedtuple("Operation", "owner name direction family")
# The objects of a script: the one called, the argument, an item, and full ones to copy from.
CALLED, ARGUMENT, ITEM, OTHER, FULL = 1, 2, 3, 4, 10


def operations():
    """All operations that the model knows and that take a caller's object."""
    for owner in INTERFACES:
        for name, kinds in SIGNATURES[owner].items():
            for kind in kinds:
                if kind[:2] in ("c:", "m:"):
                    yield Operation(owner, name, kind[0], kind[2:])


def shown(operation):
    name = "copyFrom" if operation.name.startswith("copyFrom") else operation.name
    const = "const " if operation.direction == "c" else ""
    return "%s::%s(%s%s&)" % (INTERFACES[operation.owner], name, const,
                              INTERFACES[operation.family])


def expected_operations(slot_folder):
    """All operations of the slot lists that take a reference to an object with an interface."""
    for path in sorted(Path(slot_folder).glob("i_*.txt")):
        for line in read_file(path)[1]:
            if line != "~" and re.search(r"\bi_Zel\w+&", line):
                _, name, rest = split(line)
                yield "%s::%s%s" % (path.stem, name, rest.removesuffix(" const"))


class Script:
    """Operations and the answers that the model gives."""

    def __init__(self):
        self.session = Session(ZONE[1])
        self.operations = []
        self.answers = []

    def emit(self, *operation):
        self.operations.append(operation)
        self.answers.append(self.session.run(operation))

    def is_fake(self, slot):
        return hasattr(self.session.slots[slot], "calls")

    def calls(self, name):
        """How often the last operation called the fake of this name."""
        mark = re.compile(r"%s:(?!setLastError)" % re.escape(name))
        return sum(1 for note in self.session.log if mark.match(note))

    # Contents. The old ones differ from what is copied, to show what was replaced.

    def fill_item(self, family, slot, old):
        text, other = (b"old", b"old too") if old else (b"<new> & long enough to be kept", b"new")
        start = 9000 if old else 1000
        if family == "SI":
            self.emit("SI.setText", slot, text)
            self.emit("SI.setGroupId", slot, 3 + old)
        else:
            self.emit(family + ".setTextForLanguage", slot, text, b"de" if old else b"en")
            self.emit(family + ".setTextForLanguage", slot, other, b"fr")
        self.emit(family + ".setStart", slot, start)
        if family == "TI":
            self.emit("TI.setImageFile", slot, other)
            return
        self.emit(family + ".setDuration", slot, 1500)
        if self.is_fake(slot):
            self.emit(family + ".setEnd", slot, start + 1500)
        if family == "CI":
            self.emit("CI.setAlignment", slot, 0x11)

    def fill_header(self, slot, old):
        text = b"old" if old else b"<new>"
        for name in ("AppName", "AppVersion", "Title", "Creator", "Description"):
            self.emit("H.set" + name, slot, text)
        self.emit("H.setKeywords", slot, [text, b"b"])
        for number, name in enumerate(("Length", "Width", "Height")):
            self.emit("H.setVideo" + name, slot, 100 + number + old)
        for language in (b"de", b"fr") if old else (b"en", b"cu"):
            self.emit("L.addLanguage", slot, language)
        self.emit("H.addContentName", slot, text)
        self.emit("H.addContentName", slot, b"b")

    def fill_collection(self, family, slot, old, script=None):
        """Two items; the second one of a fake goes wrong as @p script says."""
        item_family, name = ITEMS[family]
        fake = self.is_fake(slot)
        self.emit(family + ".setFrameRate", slot, 30 + old)
        if family == "T":
            self.emit("T.setImageFile", slot, b"old" if old else b"new")
        if family == "C":
            self.emit("C.setFontFamily", slot, b"old" if old else b"new")
        for index in range(2):
            self.emit("object.new", ITEM, "f" + item_family if fake else item_family)
            self.fill_item(item_family, ITEM, old)
            if fake:
                if script and index == 1:
                    self.emit("fake.script", ITEM, *script)
                self.emit("fake.item", slot, ITEM)
            else:
                self.emit("%s.add%sItem" % (family, name), slot, ITEM)
        self.emit("object.delete", ITEM)
        if fake and family != "S":
            self.emit("L.addLanguage", slot, b"en")
            self.emit("L.addLanguage", slot, b"fr")

    def make(self, slot, family, kind, old=False, script=None):
        """A filled object of the @p kind."""
        self.emit("object.new", slot, kind)
        if family == "H":
            self.fill_header(slot, old)
        elif family == "L":
            self.emit("L.addLanguage", slot, b"de" if old else b"en")
            self.emit("L.addLanguage", slot, b"fr")
        elif family in ITEMS:
            self.fill_collection(family, slot, old, script)
        else:
            self.fill_item(family, slot, old)

    def make_full_ones(self):
        for index, family in enumerate(SETS):
            self.make(FULL + index, family, family, old=True)

    def make_called(self, kind):
        """An object to call the operation on. It holds what is old; "empty D" holds nothing."""
        is_empty, kind = kind.startswith("empty "), kind.split()[-1]
        if kind in ("D", "X"):
            self.emit("object.new", CALLED, kind)
            for index, name in enumerate(SETS.values()):
                if not is_empty:
                    self.emit("D.setData" + name, CALLED, FULL + index)
        elif kind in FORMATTERS:
            self.emit("object.new", CALLED, kind)
            family = FORMATTERS[kind]
            self.emit("%s.set%s" % (kind, SETS[family]), CALLED, FULL + list(SETS).index(family))
        else:
            self.make(CALLED, kind.lstrip("f"), kind, old=True)

    # Reading it back.

    BEFORE = {"S": b"before", "V": [b"before"], "U": 7, "Q": 7, "O": 7, "B": 1, "F": 0, "A": 1}

    def look_at(self, family, slot):
        """Reads everything that an object of the family holds."""
        for name, kinds in SIGNATURES[family].items():
            is_plain = all(kind in self.BEFORE or kind[0] == "i" for kind in kinds)
            if name.startswith("get") and is_plain:
                self.emit("%s.%s" % (family, name), slot,
                          *[self.BEFORE.get(kind, 0) for kind in kinds])
        if family in ("CI", "TI"):
            for language in (b"de", b"en", b"fr"):
                self.emit(family + ".getTextForLanguage", slot, b"before", language)
        if family in ("H", "C", "T"):
            self.emit("L.getOrderedLanguageIDs", slot, [b"before"])

    def look_at_called(self, kind):
        kind = kind.split()[-1]
        if kind in FORMATTERS or kind in ("D", "X"):
            self.emit("B.writeString", CALLED, b"before", XMP, 0)
        else:
            self.look_at(kind.lstrip("f"), CALLED)


# Which object is called, and whose calls fail: those of the argument, its items or the called object, and
# whether the argument is one of ours.
Scene = namedtuple("Scene", "operation called wrong own_argument")


def called_kinds(operation):
    """Our classes, and a caller's where the operation is implemented in the interface itself."""
    kinds = list(OWN.get(operation.owner, [operation.owner]))
    if operation.owner == "D":
        kinds += ["empty D", "empty X"]
    return kinds


def scenes(operation):
    for kind in called_kinds(operation):
        yield Scene(operation, kind, "argument", False)
        if operation.family in ITEMS and operation.direction == "c":
            yield Scene(operation, kind, "item", False)
    if operation.name.startswith("copyFrom"):
        fake = "f" + operation.owner
        yield Scene(operation, fake, "argument", False)
        yield Scene(operation, fake, "called", False)
        if operation.owner != "L":
            yield Scene(operation, fake, "called", True)


class Sweep:
    """All calls of one scene, each going wrong in each way."""

    def __init__(self, scene, in_share):
        self.scene = scene
        self.in_share = in_share
        self.script = Script()
        self.script.make_full_ones()
        self.points = [(0, "in order")]

    def prepare(self, fault):
        """Makes both sides anew; the one that the scene names will go wrong as @p fault says."""
        operation, script = self.scene.operation, self.script
        script.make_called(self.scene.called)
        kind = operation.family if self.scene.own_argument else "f" + operation.family
        script.make(ARGUMENT, operation.family, kind, script=fault
                    if self.scene.wrong == "item" else None)
        if self.scene.wrong != "item":
            script.emit("fake.script", self.wrong_slot(), *fault)

    def wrong_slot(self):
        return CALLED if self.scene.wrong == "called" else ARGUMENT

    def call(self):
        operation = self.scene.operation
        self.script.emit("%s.%s" % (operation.owner, operation.name), CALLED, ARGUMENT)

    def count(self):
        """How often the one that goes wrong was called."""
        name = "%d.1" % ARGUMENT if self.scene.wrong == "item" else str(self.wrong_slot())
        return self.script.calls(name)

    def look(self):
        self.script.look_at_called(self.scene.called)
        if self.scene.operation.direction == "m":
            self.script.look_at(self.scene.operation.family, ARGUMENT)

    def point(self, at, way, keeps_own):
        if not next(self.in_share):
            return
        mode, code, kept = way
        self.points.append((len(self.script.operations), "call %d, %s" % (at, (way, keeps_own))))
        self.prepare((at, mode, code, kept, keeps_own))
        self.call()
        assert self.count() >= at, "the call that goes wrong was not reached"
        if self.scene.wrong != "item":
            self.script.emit("fake.script", self.wrong_slot(), 0, "c", 0, 0, 0)
        self.look()
        self.call()

    def run(self):
        self.prepare((0, "c", 0, 0, 0))
        self.call()
        calls = self.count()
        self.look()
        is_source = self.scene.wrong != "called" and self.scene.operation.direction == "c"
        for at in range(1, calls + 1):
            for way in SOURCE_WAYS if is_source else WAYS:
                self.point(at, way, 0)
            self.point(at, WAYS[0], 1)
        return calls

    def difference(self, driver):
        """Describes the first difference; empty when there is none."""
        found = first_difference(driver, self.script.operations, self.script.answers, ZONE)
        if not found:
            return ""
        index, got = found
        place = max(point for point in self.points if point[0] <= index)
        return "\n".join(
            ["%s" % (self.scene,), place[1]]
            + [line_of(line) for line in self.script.operations[place[0]: index + 1]]
            + ["model:  " + readable(self.script.answers[index]), "driver: " + readable(got)])


def check_list(slot_folder):
    """Whether the list has every operation that takes a caller's object."""
    listed = {shown(operation) for operation in operations()}
    expected = set(expected_operations(slot_folder))
    for name in sorted(listed ^ expected):
        print("%s: %s" % (name, "not listed" if name in expected else "not in the interfaces"))
    return listed == expected and len(expected) > 0


def share_of(text):
    """For each point in turn whether it is in the share."""
    number, _, shares = text.partition("/")
    return itertools.cycle(index + 1 == int(number) for index in range(int(shares)))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--driver", required=True)
    parser.add_argument("--slots", required=True)
    parser.add_argument("--share", default="1/1")
    options = parser.parse_args()
    if not check_list(options.slots):
        return 1
    in_share = share_of(options.share)
    scene_count = calls = points = steps = 0
    for operation in operations():
        reached = 0
        for scene in scenes(operation):
            sweep = Sweep(scene, in_share)
            reached += sweep.run()
            scene_count += 1
            points += len(sweep.points) - 1
            steps += len(sweep.script.operations)
            if difference := sweep.difference([options.driver]):
                print(difference)
                return 1
        calls += reached
        # A formatter refuses to hand out what it holds, and calls nothing.
        if (reached == 0) != (operation.owner in FORMATTERS and operation.direction == "m"):
            print("%s made %d calls" % (shown(operation), reached))
            return 1
    print("%d scenes, %d calls, each going wrong in up to %d ways: %d points, %d operations compared"
          % (scene_count, calls, len(SOURCE_WAYS) + 1, points, steps))
    return 0


if __name__ == "__main__":
    sys.exit(main())
