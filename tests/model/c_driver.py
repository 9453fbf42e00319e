"""A driver for run.py that speaks C alone: it loads the shared library and calls the functions of
docs/zeldata.json.

c_driver.py FOLDER < script

The environment names LIBRARY. `offered` leaves in a script what C offers: no objects of the caller's
own classes, no internals of the library, and nothing that the list leaves out. An out-pointer that is
null or full stays out, too, because the C face refuses it before it asks the object.
"""

import ctypes
import os
import struct
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "c"))

from binding import FUNCTIONS, LIST, Library  # noqa: E402
from signatures import CLASSES, SIGNATURES  # noqa: E402
from signatures import FUNCTIONS as STATIC  # noqa: E402

HANDLES = {"H": "header", "C": "captions", "CI": "caption_item", "T": "toc", "TI": "toc_item", "S": "screen_text",
           "SI": "screen_text_item", "HF": "header_formatter", "CF": "caption_formatter", "TF": "toc_formatter",
           "SF": "screen_text_formatter", "D": "document"}
SHARED = {"L": ("H", "C", "T"), "B": ("D", "HF", "CF", "TF", "SF")}
POINTERS = {"U": ctypes.c_uint64, "Q": ctypes.c_int64, "O": ctypes.c_uint64, "B": ctypes.c_int32,
            "A": ctypes.c_uint32}

# The C function for each operation, by handle and name; for a static one by its name alone.
MEMBERS = {}
STATICS = {"floatString": "get_value_string_float", "longString": "get_value_string_int64",
           "unsignedLongString": "get_value_string_uint64", "unsignedLongLongString": "get_value_string_uint64"}
for function in FUNCTIONS:
    owner, _, rest = function.get("operation", "").partition("::")
    method = rest.partition("(")[0]
    short = function["name"].removeprefix("zeldata_")
    if owner in CLASSES.values():
        if "_copy_languages_from_" in short:
            method = "copyFromLanguage"
        handle = function["parameters"][0][0].removeprefix("const ").removeprefix("zeldata_").removesuffix("*")
        MEMBERS[handle, method] = short.partition("_from_")[0] if method == "copyFromLanguage" else short
    elif owner == "ZelDataUtilities" and not short.endswith("_now"):
        STATICS[method] = short
LEFT_OUT = {entry["operation"].partition("(")[0] for entry in LIST["left_out"]}


def offered(script):
    """The operations of a script that C offers."""
    documents = set()
    for operation in script:
        family, _, name = operation[0].partition(".")
        if operation[0] == "object.new":
            slot, kind = operation[1:]
            documents.discard(slot)
            if kind not in HANDLES:
                continue
            if kind == "D":
                documents.add(slot)
        elif family == "object":
            pass
        elif family == "U":
            if name not in STATICS or {"null", "full"} & {*operation[1:2]}:
                continue
        elif family in SIGNATURES and not family.startswith("Z"):
            if f"{CLASSES[family]}::{name}" in LEFT_OUT or (name == "writeFile" and operation[1] not in documents):
                continue
            if any(kind.startswith("p:") and value in ("null", "full")
                   for kind, value in zip(SIGNATURES[family][name], operation[2:])):
                continue
        else:
            continue
        yield operation


class MissingObject(Exception):
    """The script names an object that does not exist or is of another kind."""


def bits_of(value):
    return struct.unpack("I", bytes(value))[0]


class Driver:
    def __init__(self, folder):
        self.library = Library(os.environ["LIBRARY"])
        self.folder = os.fsencode(folder)
        self.slots = {}

    def object(self, slot, family):
        kind, handle = self.slots.get(slot, (None, None))
        if kind is None or (kind != family and kind not in SHARED.get(family, ())):
            raise MissingObject()
        return kind, handle

    def last_error(self, kind, handle):
        return "%08x" % self.library.function(f"zeldata_{HANDLES[kind]}_get_last_error")(handle)

    def keep(self, slot, kind, handle):
        self.drop(slot)
        self.slots[slot] = kind, handle

    def drop(self, slot):
        kind, handle = self.slots.pop(slot, (None, None))
        if kind:
            self.library.function(f"zeldata_{HANDLES[kind]}_destroy")(handle)
        return kind is not None

    # The kinds of arguments. Each returns what is passed and a function that returns the words of the answer.

    def by_value(self, words, kind):
        value = next(words)
        if kind == "s":
            text = bytes.fromhex(value[1:])
            return [text, len(text)], list
        if kind == "f":
            return [ctypes.c_float.from_buffer_copy(struct.pack("I", int(value)))], list
        return [int(value)], list

    def text(self, words):
        text = self.library.new("string")
        text.set(bytes.fromhex(next(words)[1:]))
        return [text.handle], lambda: ["s" + text.bytes().hex()]

    def texts(self, words):
        texts = self.library.new("strings")
        for _ in range(int(next(words))):
            texts.add(bytes.fromhex(next(words)[1:]))

        def report():
            count, text = ctypes.c_uint64(), self.library.new("string")
            texts.get_count(ctypes.byref(count))
            found = []
            for index in range(count.value):
                texts.get(index, text)
                found.append(" s" + text.bytes().hex())
            return f"[{count.value}{''.join(found)}]".split()
        return [texts.handle], report

    def number(self, words, kind):
        if kind == "F":
            place = ctypes.c_float.from_buffer_copy(struct.pack("I", int(next(words))))
            return [ctypes.byref(place)], lambda: ["f%08x" % bits_of(place)]
        place = POINTERS[kind](int(next(words)))
        return [ctypes.byref(place)], lambda: [str(place.value)]

    def other(self, words, family):
        kind, handle = self.object(next(words), family)
        return [handle], lambda: ["e" + self.last_error(kind, handle)]

    def made(self, words, kind):
        place, slot = ctypes.c_void_p(), next(words)

        def report():
            if not place:
                return ["none"]
            self.keep(slot, kind, place)
            return ["made", "e" + self.last_error(kind, place)]
        return [ctypes.byref(place)], report

    def file(self, words):
        where = next(words)
        path = self.folder + {"empty": b"", "missing": b"/no such folder/packet.xmp", "zero": b"/cut\0tail",
                              "file": "/päcket.xmp".encode()}[where]
        path = b"" if where == "empty" else path
        if where == "file":
            Path(os.fsdecode(path)).write_bytes(b"before")

        def report():
            read = Path(os.fsdecode(path.partition(b"\0")[0]))
            return ["s" + read.read_bytes().hex()] if read.is_file() else ["nofile"]
        return [path, len(path)], report

    def argument(self, words, kind):
        if kind == "k":
            return self.file(words)
        if kind[1:2] == ":":
            return (self.made if kind[0] == "p" else self.other)(words, kind[2:])
        if kind in ("v", "V"):
            passed, report = self.texts(words)
            return passed, report if kind == "V" else list
        if kind == "S":
            return self.text(words)
        return self.number(words, kind) if kind.isupper() else self.by_value(words, kind)

    def called(self, name, first, kinds, words):
        """The code of zeldata_NAME, and the words that report its arguments."""
        arguments = []
        for kind in kinds:
            if kind == "S" and "_does_" in name:  # is not changed
                word = next(words)
                arguments.append((self.by_value(iter([word]), "s")[0], lambda word=word: [word]))
            else:
                arguments.append(self.argument(words, kind))
        passed = [one for values, _ in arguments for one in values]
        code = self.library.function("zeldata_" + name)(*first, *passed)
        return "%08x" % code, arguments

    def member(self, family, name, words):
        kind, handle = self.object(next(words), family)
        short = MEMBERS[HANDLES[kind], name]
        if name == "copyFromLanguage":
            words = list(words)
            short += "_from_" + HANDLES[self.object(words[0], "L")[0]]
            words = iter(words)
        code, arguments = self.called(short, [handle], SIGNATURES[family][name], words)
        answer = [code, self.last_error(kind, handle)]
        return answer + [word for _, report in arguments for word in report()]

    def static(self, name, words):
        short, kinds = STATICS[name], STATIC[name]
        if name == "getDateString":
            value = next(words)
            return [self.stored(short + "_now") if value == "now" else self.stored(short, int(value))]
        if name == "countLinesInUTF8":
            text, count = bytes.fromhex(next(words)[1:]), ctypes.c_uint64()
            self.library.call(short, text, ctypes.byref(count))
            return ["%08x" % count.value]
        function = next(one for one in FUNCTIONS if one["name"] == "zeldata_" + short)
        if function["parameters"][-1][1] == "result":
            return [self.stored(short, *[one for kind in kinds for one in self.argument(words, kind)[0]])]
        code, arguments = self.called(short, [], kinds, words)
        return [code] + [word for _, report in arguments for word in report()]

    def stored(self, name, *arguments):
        """The text that a static function stores."""
        text = self.library.new("string")
        code = self.library.function("zeldata_" + name)(*arguments, text.handle)
        return "s" + text.bytes().hex() if code == 0 else "%08x" % code

    def on_object(self, name, words):
        slot = next(words)
        if name == "new":
            kind = next(words)
            place = ctypes.c_void_p()
            self.library.function(f"zeldata_{HANDLES[kind]}_create")(
                ctypes.byref(place), *([1] if kind.endswith("F") else []))
            self.keep(slot, kind, place)
        elif name == "delete":
            return ["deleted" if self.drop(slot) else "noobj"]
        elif slot not in self.slots:
            raise MissingObject()
        else:
            kind, handle = self.slots[slot]
            self.library.function(f"zeldata_{HANDLES[kind]}_set_last_error")(handle, int(next(words)))
        return [self.last_error(*self.slots[slot])]

    def run(self, line):
        words = iter(line.split())
        family, _, name = next(words).partition(".")
        try:
            if family == "object":
                answer = self.on_object(name, words)
            elif family == "U":
                answer = self.static(name, words)
            else:
                answer = self.member(family, name, words)
        except MissingObject:
            answer = ["noobj"]
        return " ".join(answer + ["#", "#", "0"])


def main():
    driver = Driver(sys.argv[1])
    for line in sys.stdin:
        print(driver.run(line), flush=True)


if __name__ == "__main__":
    main()
