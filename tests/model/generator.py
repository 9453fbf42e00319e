"""Random scripts that mostly do what callers do, and sometimes what no caller should.

The generator runs each operation on the model, so it knows which objects there are. The same seed
gives the same script.
"""

import random

import packet
import text as texts
from session import INTERFACES, KINDS, Session
from signatures import FUNCTIONS, SIGNATURES

LANGUAGES = [b"en", b"de", b"fr", b"ja", b"lu", b"ug", b"en-US", b"EN", b"pt-BR", b"zh-Hant-TW"]
ODD_LANGUAGES = [b"en-", b"eN", b"dE-&<\"'>", b"fr-\xc3\xa9", b"en-\0x", b"de-" + packet.ANCHOR]
BAD_LANGUAGES = [b"", b"e", b"eng", b"xx", b"zz-ZZ", b"en_US", b"en-\xff", b"\xff\xfe", b"qq"]
BAD_LANGUAGES += [b" en"]
BAD_LANGUAGES += [b"e\0", b"\0\0", b"en\0", b"en-\xc0\x80", b"\xc3\xa9", b"\xc3\xa9-", b"@n", b"E-"]

FRAGMENTS = [
    b"Hello", b"two words", b"line\nfeed", b"a\nb\nc\nd\ne", b"a\nb\nc\nd\n", b"\n", b"\t", b"\r\n",
    b"<b>", b"&", b"&amp;", b"&lt;", b"'quoted'", b'"', b"]]>", b"<![CDATA[", b"&am", b"&apos",
    b"&a", b"&quot;", b"&gt;x", b"&&", b"&nbsp;", b"&ax", b"<!-- -->", b"<?xml?>", b"{\\rtf1 }",
    b"%s%n", b"/",
    "日本語".encode(), "שלום".encode(), "😀".encode(), "é".encode(), b"\xef\xbb\xbf",
    b"\xef\xbf\xbf",
    packet.ANCHOR, b"</rdf:Bag>", b' dc:date="2000-01-01T00:00:00+0:00"', b"\x7f", b"-12", b"1/2",
    b"\0", b"\x01", b"\x1f", b"\x0b", b"\x08\x0c",
]
# The check accepts these, but no strict reader does.
FRAGMENTS += [b"\xed\xa0\x80", b"\xe0\x80\x80", b"\xf0\x80\x80\x80", b"\xf7\xbf\xbf\xbf"]
FRAGMENTS += [b"\xf8\x88\x80\x80\x80", b"\xfb\xbf\xbf\xbf\xbf", b"\xfc\x84\x80\x80\x80\x80"]
FRAGMENTS += [b"\xfd\xbf\xbf\xbf\xbf\xbf", b"\xc2\x80", b"\xdf\xbf", b"\xf0\x9f\x98\x80"]
BAD_FRAGMENTS = [b"\xff", b"\xfe", b"\x80", b"\xbf", b"\xc0\x80", b"\xc1\xbf", b"\xc3", b"\xc3A"]
BAD_FRAGMENTS += [b"\xe2\x82", b"\xf0\x9f\x98", b"\xf8\x88\x80\x80", b"\xfc\x84\x80\x80\x80"]
BAD_FRAGMENTS += [b"\xe2A", b"\xfe" + b"\x81" * 5, b"\xff" + b"\x81" * 5, b"\xfd" + b"\x81" * 4]
BAD_FRAGMENTS += [b"\xe2\x82\xc0", b"\xf0\x90\x80\x7f", b"\xed\xa0"]

MAX = 2**63 - 1
TIMES = [0, 1, 500, 999, 1000, 1001, 1500, 2000, 2001, 3000, 5000, 90500]
ODD_TIMES = [-1, -1000, MAX, MAX - 1, MAX - 1000, -(2**63), -(2**63) + 1, 2**31, 2**32, 2**62]
NUMBERS = [1, 2, 3, 20, 25, 30, 480, 500, 640, 1000, 9999, 10000]
ODD_NUMBERS = [0, 501, 10001, 2**16, 2**31, 2**32 - 1, 2**32, 2**32 + 1, 2**63, 2**64 - 1]
UNIT_FLOATS = [0x3F800000, 0x00000000, 0x3F19999A, 0x3F7FBE77, 0x3F000000, 0x3F7FFFFF, 0x3E4CCCCD]
ODD_FLOATS = [
    0x3F800001, 0x80000000, 0x80000001, 0x00000001, 0x007FFFFF, 0x7FC00000, 0xFFC00000, 0x7FA00000,
    0x7F800000, 0xFF800000, 0xBF800000, 0x7F7FFFFF, 0x40000000, 0x7FFFFFFF, 0xFFFFFFFF, 0x322BCC77,
]
ODD_FLOATS += [0x49967F5A, 0x47C35000, 0x38D1B717, 0x38D1B716, 0x497423F0, 0x358637BD]
ALIGNMENTS = [0x00, 0x01, 0x02, 0x10, 0x20, 0x11, 0x22, 0x12, 0x21]
ODD_ALIGNMENTS = [0x03, 0x30, 0x33, 0xFFFFFFFF, 0x80000000, 0x04, 0x44, 0x100]
FAILURES = [0x80000003, 0x80000005, 0x8000000B, 0x40000001, 0x40000003, 0xC0000000, 0x80000000]
FAILURES += [0x40000000, 0xFFFFFFFF, 0x80000009]
LAST_ERRORS = FAILURES + [0, 1, 0x3FFFFFFF, 0x12345678]

# How many objects of each kind a script has.
OBJECTS = [
    ("H", 2), ("CI", 3), ("C", 2), ("TI", 3), ("T", 2), ("SI", 3), ("S", 2), ("HF", 1), ("CF", 1),
    ("TF", 1), ("SF", 1), ("D", 2), ("X", 1), ("fL", 1), ("fH", 1), ("fCI", 2), ("fC", 1),
    ("fTI", 2),
    ("fT", 1), ("fSI", 2), ("fS", 1),
]

COLLECTIONS = {
    "C": ("Captions", "Caption", "CI", "makeCaptionsConsistent"),
    "T": ("Toc", "Toc", "TI", "makeTocConsistent"),
    "S": ("ScreenText", "ScreenText", "SI", "makeScreenTextConsistent"),
}
LOOKED_AT = ["L", "H", "CI", "C", "TI", "T", "SI", "S"]
FAKE_ITEMS = ("CI", "TI", "SI")
SETS = {"H": "Header", "C": "Captions", "T": "Toc", "S": "ScreenText"}
FORMATTERS = {"HF": "H", "CF": "C", "TF": "T", "SF": "S"}


class Generator:
    """Where `long` has fewer than 64 bits, its numbers are cut. No instant is before the first. Where
    the processor makes each NaN that it copies a quiet one, all are."""

    def __init__(self, seed, zone, length, long_bits=64, first_instant=-MAX - 1, quiet_nans=False):
        self.random = random.Random(seed)
        self.session = Session(zone)
        self.length = length
        self.long_bits = long_bits
        self.first_instant = first_instant
        self.quiet_nans = quiet_nans
        self.script = []
        self.expected = []
        # Some scripts hold nothing odd, so that long sequences are accepted.
        self.oddity = self.random.choice([0.0, 0.03, 0.1, 0.3])
        self.seed_number = seed

    def emit(self, *operation):
        self.script.append(operation)
        self.expected.append(self.session.run(operation))

    # Values.

    def odd(self):
        return self.random.random() < self.oddity

    def pick(self, usual, odd):
        return self.random.choice(odd if self.odd() else usual)

    def language(self):
        if self.odd():
            return self.random.choice(ODD_LANGUAGES + BAD_LANGUAGES)
        many = self.seed_number % 3
        return self.random.choice(LANGUAGES[: (3, 5, 10)[many]])

    def words(self):
        pieces = self.random.choices(FRAGMENTS, k=self.random.choice([0, 1, 1, 2, 3]))
        if self.odd():
            pieces.insert(self.random.randint(0, len(pieces)), self.random.choice(BAD_FRAGMENTS))
        if self.odd():
            pieces.append(bytes(self.random.choices(range(256), k=self.random.randint(1, 6))))
        return b"".join(pieces)

    def languages(self, slot=None):
        """Often the languages of the object in another order."""
        held = list(getattr(self.session.slots.get(slot), "languages", ()))
        if held and self.random.random() < 0.7:
            self.random.shuffle(held)
            if self.odd() or self.random.random() < 0.1:
                held[0] = held[-1]
            return held
        return [self.language() for _ in range(self.random.randint(0, 4))]

    def time(self):
        if self.random.random() < 0.3 and not self.odd():
            return self.random.randint(0, 20) * 500
        return self.pick(TIMES, ODD_TIMES)

    def time_as(self, kind):
        return self.long(self.time()) if kind == "l" else self.time()

    def long(self, number):
        """The lowest bits of the number, as many as a `long` has."""
        half = 2 ** (self.long_bits - 1)
        return (number + half) % (2 * half) - half

    def float_bits(self):
        if self.odd():
            bits = self.random.choice([self.random.getrandbits(32), self.random.choice(ODD_FLOATS)])
            is_nan = bits & 0x7FFFFFFF > 0x7F800000
            return bits | 0x400000 if is_nan and self.quiet_nans else bits
        return self.random.choice(UNIT_FLOATS + [texts.bits_of(self.random.random())])

    def value(self, kind, operation, slot):
        if kind == "s":
            return self.held_name(operation, slot) or self.some_text(operation)
        if kind == "v":
            if operation == "setOrderedLanguageIDs":
                return self.languages(slot)
            return [self.words() for _ in range(self.random.randint(0, 3))]
        if kind == "u":
            return self.number(operation, slot) % 2**self.long_bits
        if kind == "o":
            return self.number(operation, slot)
        if kind == "q":
            return self.time()
        return self.plain_value(kind)

    def some_text(self, operation):
        return self.language() if self.names_language(operation) else self.words()

    def held_name(self, operation, slot):
        """For an operation that looks up or removes: often a name that the object holds."""
        thing = self.session.slots.get(slot)
        if not operation.startswith(("remove", "does", "getText")) or self.random.random() < 0.3:
            return None
        where = "content_names" if "Content" in operation else "languages"
        if "Text" in operation:
            where = "texts"
        # A fake keeps its texts as pairs.
        names = [n[0] if isinstance(n, tuple) else n for n in getattr(thing, where, ())]
        return self.random.choice(names) if names else None

    def plain_value(self, kind):
        if kind == "l":
            number = self.random.choice([self.time(), self.time(), -self.random.getrandbits(40)])
            return self.long(number)
        if kind == "b":
            return self.random.randint(0, 1)
        if kind == "f":
            return self.float_bits()
        if kind == "t":
            return 1 if self.random.random() < 0.9 else self.random.choice([0, 2, 0xFFFFFFFF, 257])
        return self.pick(ALIGNMENTS, ODD_ALIGNMENTS)

    @staticmethod
    def names_language(operation):
        return "anguage" in operation or "ISO" in operation

    def number(self, operation, slot):
        if operation.endswith("At"):
            count = len(getattr(self.session.slots.get(slot), "items", ()))
            if count and self.random.random() < 0.85:
                return self.random.randrange(count)
        return self.pick(NUMBERS, ODD_NUMBERS)

    def before(self, kind, operation, slot):
        """The value of a reference argument before the call, which some operations read."""
        sought = self.held_name(operation, slot) if operation.startswith("does") else None
        if operation == "doesLanguageExist":
            sought = sought or self.language()
        return {
            "S": sought or b"before\x01",
            "V": [b"stale", b"list"],
            "U": 0xDEAD,
            "I": -7,
            "O": 0xDEAD,
            "Q": -77,
            "B": self.random.randint(0, 1),
            "F": 0x42F6E979,
            "A": 0x77,
        }[kind]

    def slots_of(self, interface):
        wanted = INTERFACES[interface]
        return [slot for slot, thing in self.session.slots.items() if isinstance(thing, wanted)]

    def argument(self, kind, operation, slot):
        if kind == "k":
            return self.random.choice(["file"] * 5 + ["missing", "empty", "zero"])
        if kind == "D":
            return self.random.choice([None, self.random.getrandbits(31), self.instant()])
        if kind.startswith(("c:", "m:")):
            return self.random.choice(self.slots_of(kind[2:]) or [0])
        if kind.startswith("p:"):
            return self.random.choice(["null", "full"] + [90 + self.random.randrange(6)] * 6)
        if kind.startswith("i:"):
            return self.random.randint(0, 2)
        if kind.isupper():
            return self.before(kind, operation, slot)
        return self.value(kind, operation, slot)

    def instant(self):
        instant = self.random.choice(
            [0, -1, 951782400, -62135596800, -62167219201, 253402300800, MAX, -MAX - 1]
            + [67767976233532799, 67768036191676799, 67768036191676800, -67768040609740800]
            + [-67768040609740801, 2**53, -(2**53), self.random.getrandbits(56)]
        )
        return max(self.long(instant), self.first_instant)

    # Steps.

    def anything(self):
        family = self.random.choice(list(SIGNATURES))
        slots = self.slots_of(family)
        if not slots:
            return
        operation = self.random.choice(list(SIGNATURES[family]))
        slot = self.random.choice(slots)
        self.on(family, operation, slot)
        changes = not operation.startswith(("get", "does", "isValid"))
        if changes and family in LOOKED_AT and self.random.random() < 0.5:
            self.look_at(family, slot)

    def on(self, family, operation, slot):
        kinds = SIGNATURES[family][operation]
        values = [self.argument(kind, operation, slot) for kind in kinds]
        self.emit(family + "." + operation, slot, *values)

    def utilities(self):
        for _ in range(8):
            self.utility()

    def utility(self):
        name = self.random.choice(list(FUNCTIONS))
        values = [self.argument(kind, name, None) for kind in FUNCTIONS[name]]
        if name == "replaceAll":
            source = self.words()
            values = [source, self.random.choice([b"a", source[1:3] or b"l", b"aa"]), self.words()]
        self.emit("U." + name, *values)

    def some(self, interface):
        """An object with the interface, sometimes a fake; 0 if there is none."""
        slots = self.slots_of(interface)
        return self.random.choice(slots) if slots else 0

    def fill_header(self):
        slot = self.some("H")
        for name in ("Length", "Width", "Height"):
            self.on("H", "setVideo" + name, slot)
        for operation in self.random.sample(sorted(SIGNATURES["H"]), 5):
            if operation.startswith(("set", "add")):
                self.on("H", operation, slot)
        for _ in range(self.random.randint(0, 3)):
            self.on("L", "addLanguage", slot)
            self.on("H", "addContentName", slot)
        return slot

    def fill_item(self, family, slot):
        for _ in range(self.random.randint(0, 3)):
            operation = "setText" if family == "SI" else "setTextForLanguage"
            self.on(family, operation, slot)
        self.on(family, "setStart", slot)
        if family != "TI":
            start = getattr(self.session.slots[slot], "start")
            if self.random.random() < 0.5 and not self.odd():
                length = self.random.choice([1, 500, 1000, 2000, MAX - start])
                self.emit(family + ".setEnd", slot, min(start + max(length, 1), MAX))
            else:
                self.on(family, "setDuration", slot)
        for operation in self.random.sample(sorted(SIGNATURES[family]), 3):
            if operation.startswith(("setI", "setA", "setG")):
                self.on(family, operation, slot)

    def fill_collection(self):
        family = self.random.choice("CTS")
        _, kind, item_family, repair = COLLECTIONS[family]
        slot = self.some(family)
        for _ in range(self.random.randint(1, 5)):
            item = self.some(item_family)
            if self.random.random() < 0.8:
                self.fill_item(item_family, item)
            self.emit("%s.add%sItem" % (family, kind), slot, item)
        if self.random.random() < 0.3:
            self.on(family, repair, slot)
        if self.random.random() < 0.4:
            self.on(family, "isValid", slot)
        if self.random.random() < 0.4:
            self.style(family, slot)

    def style(self, family, slot):
        for operation in SIGNATURES[family]:
            if operation.startswith("set") and self.random.random() < 0.5:
                self.on(family, operation, slot)

    def prune(self):
        """Removes and reorders what an object holds."""
        words = ("remove", "clear", "setOrdered", "make", "order")
        family = self.random.choice(LOOKED_AT)
        slot = self.full(family)
        for operation in SIGNATURES[family]:
            # Clearing everything is rarer than removing one thing.
            often = 0.15 if operation.startswith("clear") else 0.5
            if operation.startswith(words) and self.random.random() < often:
                self.on(family, operation, slot)
        self.look_at(family, slot)

    def look(self):
        family = self.random.choice(LOOKED_AT)
        self.look_at(family, self.some(family))

    def look_at(self, family, slot):
        """Reads everything of one object."""
        for operation in SIGNATURES[family]:
            if operation.startswith(("get", "does", "isValid")):
                self.on(family, operation, slot)

    def format(self):
        family = self.random.choice(list(FORMATTERS))
        source = FORMATTERS[family]
        slot = self.some(family)
        if self.random.random() < 0.8:
            self.emit("%s.set%s" % (family, SETS[source]), slot, self.some(source))
        for _ in range(self.random.randint(1, 2)):
            self.on("B", self.random.choice(["writeString"] * 4 + ["writeFile"]), slot)

    def document(self):
        slot = self.some("D")
        for family, name in SETS.items():
            source = self.full(family)
            # A document without a header writes nothing.
            missing = family == "H" and name not in self.session.slots[slot].held
            if missing and not self.odd() and not self.holds(self.session.slots[source]):
                source = self.fill_header()
            if missing or self.random.random() < 0.5:
                self.emit("D.setData" + name, slot, source)
        if self.random.random() < 0.3:
            family, name = self.random.choice(list(SETS.items()))
            self.emit("D.getData" + name, slot, self.some(family))
        for _ in range(self.random.randint(1, 2)):
            self.on("B", self.random.choice(["writeString", "writeString", "writeFile"]), slot)

    def full(self, family):
        """An object that holds something, if there is one."""
        slots = self.slots_of(family)
        holding = [slot for slot in slots if self.holds(self.session.slots[slot])]
        return self.random.choice(holding if holding and not self.odd() else slots or [0])

    @staticmethod
    def holds(thing):
        sizes = ("video_length", "video_width", "video_height")
        return bool(getattr(thing, "items", ())) or all(getattr(thing, s, 0) for s in sizes)

    def fakes_of(self, *kinds):
        wanted = tuple(KINDS[kind] for kind in kinds)
        return [slot for slot, thing in self.session.slots.items() if isinstance(thing, wanted)]

    def fake_script(self, calls, reads_only):
        """A script for one of the next calls; what it says may change nothing."""
        at = self.random.randint(1, calls)
        # The model says nothing about a target whose last error cannot be read.
        mode = self.random.choice("cccccddhhbxBX" + ("lm" if reads_only else ""))
        code = self.random.choice(FAILURES)
        if mode == "d" and self.random.random() < 0.4:
            code = self.random.choice([0, 1, 0x3FFFFFFF])
        # If the last error of a failure is success, a half-filled copy is used like a whole one.
        last = self.random.choice([code, code, 0, 0, self.random.choice(LAST_ERRORS)])
        return at, mode, code, last, int(self.random.random() < 0.2)

    def unscripted(self, slot):
        self.emit("fake.script", slot, 0, "c", 0, 0, 0)

    def fill_fake(self, family, slot):
        """Fills a fake, mostly with contents that can be copied."""
        self.unscripted(slot)
        if family in FAKE_ITEMS:
            return self.fill_fake_item(family, slot)
        if family in "LHCT" and self.random.random() < 0.7:
            self.emit("L.clearLanguages", slot)
            for _ in range(self.random.randint(0, 3)):
                self.on("L", "addLanguage", slot)
        if family == "H":
            for name in ("setVideoLength", "setVideoWidth", "setVideoHeight", "addContentName"):
                self.on("H", name, slot)
        if family in COLLECTIONS:
            self.fill_fake_collection(family, slot)
        return None

    def fill_fake_item(self, family, slot):
        self.fill_item(family, slot)
        if family == "CI":
            self.emit("CI.setEnd", slot, self.random.choice(TIMES) + 1001)
        if family != "SI" and self.random.random() < 0.3:
            self.emit("fake.text", slot, self.words(), self.language())

    def fill_fake_collection(self, family, slot):
        _, kind, item_family, _ = COLLECTIONS[family]
        if self.random.random() < 0.5:
            self.emit("%s.clear%sItems" % (family, kind), slot)
        for item in self.fakes_of("f" + item_family) * self.random.randint(0, 2):
            self.fill_fake_item(item_family, item)
            if self.random.random() < 0.5:
                self.emit("fake.script", item, *self.fake_script(15, True))
            self.emit("fake.item", slot, item)
            self.unscripted(item)
        if self.random.random() < 0.3:
            self.style(family, slot)

    def readers(self, family):
        """The operations that read an object of the family, each with each object that has it."""
        kinds = [
            ("%s.%s" % (owner, operation), owner)
            for owner, operations in SIGNATURES.items()
            for operation, arguments in operations.items()
            if "c:" + family in arguments
        ]
        return [(name, slot) for name, owner in kinds for slot in self.slots_of(owner)]

    def scene_with_source(self):
        """Fills and scripts a fake, lets another object read it, and looks at that object."""
        family = self.random.choice(LOOKED_AT)
        fake = self.random.choice(self.fakes_of("f" + family) or [0])
        self.fill_fake(family, fake)
        calls = {"H": 16, "C": 9, "CI": 12, "TI": 14}.get(family, 7)
        calls = 4 if family == "L" else calls
        if self.random.random() < 0.8:
            self.emit("fake.script", fake, *self.fake_script(calls, True))
        operation, reader = self.random.choice(self.readers(family))
        self.emit(operation, reader, fake)
        self.unscripted(fake)
        if operation[0] == "D" or operation[1] == "F":
            self.on("B", "writeString", reader)
        else:
            self.look_at(operation.partition(".")[0], reader)

    def scene_with_target(self):
        """Scripts a fake, copies something into it, and looks at it."""
        family = self.random.choice(LOOKED_AT)
        fake = self.random.choice(self.fakes_of("f" + family) or [0])
        calls = {"H": 20, "C": 13, "CI": 7, "TI": 8, "SI": 9, "T": 8}.get(family, 5)
        if self.random.random() < 0.9:
            self.emit("fake.script", fake, *self.fake_script(calls, False))
        if family in SETS and self.random.random() < 0.5:
            self.emit("D.getData" + SETS[family], self.some("D"), fake)
        else:
            operation = "copyFromLanguage" if family == "L" else "copyFrom"
            self.emit("%s.%s" % (family, operation), fake, self.full(family))
        self.unscripted(fake)
        self.look_at(family, fake)

    def tree(self):
        if self.random.random() < 0.03:
            self.emit("X.new")
        for _ in range(self.random.randint(1, 8)):
            self.tree_verb(self.session.tree)
        self.emit("X.xml", self.random.randint(0, 1))

    def tree_text(self):
        plain = self.random.random() < 0.6
        return self.random.choice([b"a", b"n:b", b"c d"]) if plain else self.words()

    def tree_verb(self, tree):
        count = len(tree.nodes)
        node = self.random.choice([0, count - 1, self.random.randrange(count)])
        form = self.random.randint(0, 1)
        verbs = ["path"] * 6 + ["group", "name", "text", "number", "assign", "write"]
        verb = self.random.choice(verbs)
        if self.random.random() < 0.35:
            return self.attribute_verb(tree, node, form)
        if verb == "path":
            return self.emit("X.path", node, self.path(), form)
        if verb == "group":
            return self.emit("X.group", node)
        if verb == "name" and node:
            return self.emit("X.name", node, self.path())
        if verb == "text":
            return self.emit("X.text", node, self.tree_text(), form)
        if verb == "number":
            kind = self.random.choice("lq")
            return self.emit("X.textnumber", node, kind, self.time_as(kind))
        if verb == "assign":
            return self.emit("X.assign", node, self.time_as("l"))
        return self.emit("X.write", node, b"before")

    def path(self):
        count = self.random.randint(1, 4)
        path = b"/".join(self.random.choices([b"a", b"b", b"c:d", b""], [5, 4, 3, 1], k=count))
        return path + self.words() if self.odd() else path

    def attribute_verb(self, tree, node, form):
        if not tree.attributes or self.random.random() < 0.4:
            self.emit("X.attr", node)
            if self.random.random() < 0.9:
                self.emit("X.attrname", len(tree.attributes) - 1, self.tree_text())
        attribute = self.random.randrange(len(tree.attributes))
        kind = self.random.choice("silqdw")
        if kind == "s":
            return self.emit("X.attrtext", attribute, self.tree_text(), form)
        if kind == "w":
            return self.emit("X.attrwrite", attribute, b"before")
        if kind == "i":
            number = self.random.choice([0, -5, 2**31 - 1, -(2**31)])
        elif kind == "d":
            number = self.random.choice([self.random.getrandbits(64), 0x3FE0000000000000, 1 << 63])
            number = self.random.choice([number, 0xFFF8000000000000, 0x4132D68700000000])
        else:
            number = self.time_as(kind)
        return self.emit("X.attrnumber", attribute, kind, number)

    def renew(self):
        """Destroys an object and makes a new one in its place."""
        slot = self.random.choice(list(self.session.slots))
        kind = self.random.choice(OBJECTS)[0]
        for known, wanted in KINDS.items():
            if type(self.session.slots[slot]) is wanted:
                kind = known
        self.emit("object.delete", slot)
        self.emit("object.new", slot, kind)

    def set_last_error(self):
        slot = self.random.choice(list(self.session.slots))
        self.emit("object.setLastError", slot, self.random.choice(LAST_ERRORS))

    STEPS = (
        ("anything", 30), ("utilities", 3), ("fill_header", 5), ("fill_collection", 10),
        ("look", 4), ("format", 6), ("document", 8), ("scene_with_source", 12),
        ("scene_with_target", 8), ("tree", 4), ("prune", 5), ("renew", 1), ("set_last_error", 1),
    )

    def make(self):
        slot = 0
        for kind, count in OBJECTS:
            for _ in range(count):
                self.emit("object.new", slot, kind)
                slot += 1
        names, weights = zip(*self.STEPS)
        while len(self.script) < self.length:
            getattr(self, self.random.choices(names, weights)[0])()
        return self.script, self.expected
