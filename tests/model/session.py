"""Runs a script on the model and gives the lines that the driver must print.

An operation is a tuple: its name, the number of its object where it has one, its arguments.
"""

import data
import fakes
import packet
import text as texts
from codes import OK, UNKNOWN_LANGUAGE
from data import BadAlloc, EndOfThread, ForeignException, Ref
from signatures import FUNCTIONS, SIGNATURES
from xmltree import Stream, safe_xml

# What an out-pointer that is not empty points to, and each item in a vector before the call.
FULL = object()

INTERFACES = {
    "L": data.LanguageInterface,
    "H": data.HeaderInterface,
    "CI": data.CaptionItemInterface,
    "C": data.CaptionsInterface,
    "TI": data.TocItemInterface,
    "T": data.TocInterface,
    "SI": data.ScreenTextItemInterface,
    "S": data.ScreenTextInterface,
    "B": (packet.Formatter, packet.Document),
    "HF": packet.HeaderFormatter,
    "CF": packet.CaptionFormatter,
    "TF": packet.TocFormatter,
    "SF": packet.ScreenTextFormatter,
    "D": packet.Document,
    "ZCI": data.CaptionItem,
    "ZTI": data.TocItem,
    "ZSI": data.ScreenTextItem,
    "ZC": data.Captions,
    "ZT": data.Toc,
    "ZS": data.ScreenText,
}

KINDS = {
    "H": data.Header,
    "CI": data.CaptionItem,
    "C": data.Captions,
    "TI": data.TocItem,
    "T": data.Toc,
    "SI": data.ScreenTextItem,
    "S": data.ScreenText,
    "HF": packet.HeaderFormatter,
    "CF": packet.CaptionFormatter,
    "TF": packet.TocFormatter,
    "SF": packet.ScreenTextFormatter,
    "D": packet.Document,
    "X": packet.XmpDocument,
    "fL": fakes.FakeLanguage,
    "fH": fakes.FakeHeader,
    "fCI": fakes.FakeCaptionItem,
    "fC": fakes.FakeCaptions,
    "fTI": fakes.FakeTocItem,
    "fT": fakes.FakeToc,
    "fSI": fakes.FakeScreenTextItem,
    "fS": fakes.FakeScreenText,
}


def number(value):
    return "%d" % value


def text(value):
    return "s" + value.hex()


def pattern(bits):
    return "f%08x" % bits


def word_list(values):
    return "[%d%s]" % (len(values), "".join(" " + text(value) for value in values))


VALUES = {
    "s": text,
    "v": word_list,
    "u": number,
    "q": number,
    "o": number,
    "l": number,
    "b": number,
    "f": pattern,
    "t": number,
    "a": number,
    "i": number,
}


def last_error(thing):
    try:
        return "%08x" % thing.getLastError()
    except (BadAlloc, ForeignException):
        return "throws"
    except EndOfThread:
        return "ended"


DESCRIBED = (
    (data.CaptionItemInterface, ("Start", "End", "Duration", "Alignment")),
    (data.TocItemInterface, ("Start", "ImageFile", "ImageIndex", "ImageOffset")),
    (data.ScreenTextItemInterface, data.ScreenTextItemInterface.FIELDS + ("End",)),
)


def described(item):
    """All that an item holds, as its getters deliver it."""
    try:
        parts = ["%08x" % item.getLastError()]
        fields = next(names for interface, names in DESCRIBED if isinstance(item, interface))
        for name in fields:
            ref = Ref(b"" if name in ("ImageFile", "Text") else 0)
            getattr(item, "get" + name)(ref)
            parts.append(text(ref.value) if isinstance(ref.value, bytes) else number(ref.value))
        if not isinstance(item, data.ScreenTextItemInterface):
            parts += described_texts(item)
        return "(" + " ".join(parts) + ")"
    except (BadAlloc, ForeignException):
        return "(throws)"


def described_texts(item):
    ids = Ref([])
    item.getLanguageIDs(ids)
    parts = []
    for language in ids.value:
        content = Ref(b"")
        item.getTextForLanguage(content, language)
        parts += [text(language), text(content.value)]
    return parts


class ValueArgument:
    def __init__(self, _session, _kind, value):
        self.passed = list(value) if isinstance(value, list) else value

    def report(self, _session):
        return []


class RefArgument:
    def __init__(self, _session, kind, value):
        self.show = VALUES[kind.lower()]
        self.passed = Ref(list(value) if isinstance(value, list) else value)

    def report(self, _session):
        return [self.show(self.passed.value)]


class ObjectArgument:
    def __init__(self, session, kind, slot):
        self.passed = session.of_interface(slot, kind[2:])

    def report(self, _session):
        return ["e" + last_error(self.passed)]


class OutPointer:
    """"null", "full" or the number that the new object gets."""

    def __init__(self, _session, _kind, where):
        self.where = where
        self.passed = Ref(FULL if where in ("null", "full") else None)

    def report(self, session):
        if self.where == "null":
            return ["null"]
        if self.where == "full":
            return ["kept" if self.passed.value is FULL else "replaced"]
        if self.passed.value is None:
            return ["none"]
        session.slots[self.where] = self.passed.value
        return ["made", "e" + last_error(self.passed.value)]


class ItemsArgument:
    def __init__(self, _session, _kind, count):
        self.passed = Ref([FULL] * count)

    def report(self, _session):
        items = self.passed.value
        shown = ["kept" if item is FULL else described(item) for item in items]
        return ["[%d" % len(items)] + shown + ["]"]


class FileArgument:
    """file: a file that exists; missing, empty, zero: paths that cannot be opened."""

    def __init__(self, _session, _kind, where):
        self.passed = packet.File(where == "file", b"before" if where == "file" else None)

    def report(self, _session):
        content = self.passed.content
        return ["nofile" if content is None else text(content)]


def argument_class(kind):
    if kind[1:2] == ":":
        classes = {"c": ObjectArgument, "m": ObjectArgument, "p": OutPointer, "i": ItemsArgument}
        return classes[kind[0]]
    if kind == "k":
        return FileArgument
    return RefArgument if kind.isupper() and kind != "D" else ValueArgument


class MissingObject(Exception):
    """The script names an object that does not exist or is of another kind."""


def names_function(which):
    def run(language, name):
        names = texts.language_names(language)
        if names is None:
            return UNKNOWN_LANGUAGE
        name.value = names[which]
        return OK

    return run


def result_word(result):
    if isinstance(result, list):
        return word_list(result)
    return text(result) if isinstance(result, bytes) else "%08x" % result


def replace_all(subject, old, new):
    subject.value = subject.value.replace(old, new)
    return subject.value


def key_of_code(code, key):
    if len(code) != 2:
        return False
    key.value = texts.language_key(code)
    return True


def entry_of_code(code):
    names = texts.NAMES.get(code.lower()) if len(code) == 2 else None
    return [*names, code.lower()] if names else [b"", b"", b""]


def entry_of_language(language):
    return entry_of_code(language[:2] if texts.language_names(language) else b"")


FUNCTION_BODIES = {
    "createHeaderData": packet.made(data.Header),
    "createCaptionItemData": packet.made(data.CaptionItem),
    "createCaptionData": packet.made(data.Captions),
    "createTocItemData": packet.made(data.TocItem),
    "createTocData": packet.made(data.Toc),
    "createScreenTextItemData": packet.made(data.ScreenTextItem),
    "createScreenTextData": packet.made(data.ScreenText),
    "createHeaderFormatter": packet.made_formatter(packet.HeaderFormatter),
    "createCaptionFormatter": packet.made_formatter(packet.CaptionFormatter),
    "createTocFormatter": packet.made_formatter(packet.TocFormatter),
    "createScreenTextFormatter": packet.made_formatter(packet.ScreenTextFormatter),
    "englishNameForLanguage": names_function(0),
    "nativeNameForLanguage": names_function(1),
    "isValidLanguage": texts.is_language,
    "verifyUtf8Format": texts.verify_utf8,
    "countLinesInUTF8": texts.count_lines,
    "stripUnsupportedCharacters": texts.strip_unsupported,
    "htmlTagsToText": texts.tags_to_text,
    "htmlTagsFromText": texts.tags_from_text,
    "getVerticalAlignment": texts.vertical_alignment,
    "getHorizontalAlignment": texts.horizontal_alignment,
    "floatString": texts.value_of_float,
    "longString": texts.decimal,
    "unsignedLongString": texts.decimal,
    "unsignedLongLongString": texts.decimal,
    "getRateString": texts.rate,
    "getVersionString": texts.version,
    "getSafeXmlString": safe_xml,
    "replaceAll": replace_all,
    "intForISO6391Code": key_of_code,
    "languageInfoISOCode": entry_of_code,
    "languagefromID": entry_of_language,
}


class Tree:
    """A stream, with its nodes and attributes in the order in which it first returned them."""

    def __init__(self):
        self.stream = Stream()
        self.nodes = [self.stream]
        self.attributes = []

    def node(self, index):
        if not 0 <= index < len(self.nodes):
            raise MissingObject()
        return self.nodes[index]

    def attribute(self, index):
        if not 0 <= index < len(self.attributes):
            raise MissingObject()
        return self.attributes[index]

    def number_of(self, node):
        for index, known in enumerate(self.nodes):
            if known is node:
                return str(index)
        self.nodes.append(node)
        return str(len(self.nodes) - 1)

    def returned(self, node):
        return "none" if node is None else self.number_of(node)

    def path(self, node, path, _form):
        return self.returned(self.node(node).path(path))

    def name(self, node, path):
        return self.returned(self.node(node).set_name(path))

    def group(self, node):
        return self.returned(self.node(node).new_group())

    def attr(self, node):
        self.attributes.append(self.node(node).new_attribute())
        return "a%d" % (len(self.attributes) - 1)

    def attrname(self, attribute, name):
        found = self.attribute(attribute)
        found.name = name.partition(b"\0")[0]
        found.named = True
        return "named"

    def attrtext(self, attribute, value, form):
        return self.set_attribute(attribute, value.partition(b"\0")[0] if form == 0 else value)

    def attrnumber(self, attribute, kind, value):
        shown = texts.value_of_double(value) if kind == "d" else texts.decimal(value)
        return self.set_attribute(attribute, shown)

    def set_attribute(self, attribute, value):
        found = self.attribute(attribute)
        if not found.named:
            raise MissingObject()
        found.value = value
        return self.returned(found.owner)

    def text(self, node, value, form):
        found = self.node(node)
        found.reach_text()
        return self.returned(found.set_text(value.partition(b"\0")[0] if form == 0 else value))

    def textnumber(self, node, _kind, value):
        found = self.node(node)
        found.reach_text()
        return self.returned(found.set_text(texts.decimal(value)))

    def assign(self, node, value):
        return self.returned(self.node(node).set_text(texts.decimal(value)))

    def write(self, node, before):
        return text(before + self.node(node).written())

    def attrwrite(self, attribute, before):
        return text(before + self.attribute(attribute).written())

    def parse(self, _text):
        return "parsed"

    def xml(self, with_declaration):
        return text(self.stream.xml(with_declaration))


class Session:
    def __init__(self, zone):
        self.zone = zone
        self.slots = {}
        self.log = []
        self.tree = Tree()

    def of_interface(self, slot, interface):
        thing = self.slots.get(slot)
        if not isinstance(thing, INTERFACES[interface]):
            raise MissingObject()
        return thing

    def run(self, operation):
        """The line that the driver must print."""
        self.log.clear()
        try:
            words = self.words(*operation)
        except MissingObject:
            words = ["noobj"]
        return " ".join(words + ["#"] + self.log + ["#", str(self.alive())])

    def alive(self):
        made = [thing for thing in self.slots.values() if isinstance(thing, fakes.Fake)]
        return len(made) + sum(len(getattr(thing, "items", ())) for thing in made)

    def words(self, name, *arguments):
        family, _, operation = name.partition(".")
        if family in SIGNATURES:
            return self.member(family, operation, *arguments)
        if family == "U":
            return self.function(operation, arguments)
        if family == "X":
            return self.tree_operation(operation, arguments)
        return getattr(self, family + "_" + operation)(*arguments)

    def arguments(self, kinds, values):
        return [argument_class(kind)(self, kind, v) for kind, v in zip(kinds, values)]

    def member(self, family, operation, slot, *values):
        thing = self.of_interface(slot, family)
        arguments = self.arguments(SIGNATURES[family][operation], values)
        words = [self.code_of(getattr(thing, operation), arguments), last_error(thing)]
        for argument in arguments:
            words += argument.report(self)
        return words

    @staticmethod
    def code_of(body, arguments):
        try:
            code = body(*[argument.passed for argument in arguments])
        except BadAlloc:
            return "bad_alloc"
        except ForeignException:
            return "exception"
        except EndOfThread:
            return "ended"
        return "-" if code is None else "%08x" % code

    def function(self, name, values):
        arguments = self.arguments(FUNCTIONS[name], values)
        passed = [argument.passed for argument in arguments]
        if name == "getDateString":
            result = packet.DATE if passed[0] is None else texts.date(passed[0], self.zone)
        else:
            result = FUNCTION_BODIES[name](*passed)
        words = [result_word(result)]
        for argument in arguments:
            words += argument.report(self)
        return words

    def tree_operation(self, name, values):
        if name == "new":
            self.tree = Tree()
            return ["new"]
        return [getattr(self.tree, name)(*values)]

    def object_new(self, slot, kind):
        made = KINDS[kind]()
        if isinstance(made, fakes.Fake):
            made.begin(str(slot), self.log)
        self.slots[slot] = made
        return [last_error(made)]

    def object_delete(self, slot):
        return ["deleted" if self.slots.pop(slot, None) is not None else "noobj"]

    def object_setLastError(self, slot, code):
        if slot not in self.slots:
            raise MissingObject()
        self.slots[slot].setLastError(code)
        return [last_error(self.slots[slot])]

    def fake(self, slot, kind=fakes.Fake):
        thing = self.slots.get(slot)
        if not isinstance(thing, kind):
            raise MissingObject()
        return thing

    def fake_script(self, slot, at, mode, code, last, keeps_own):
        self.fake(slot).set_script(fakes.Script(at, mode, code, last), bool(keeps_own))
        return ["scripted"]

    def fake_text(self, slot, content, language):
        self.fake(slot, fakes.FakeTextOperations).texts.append((language, content))
        return ["texted"]

    def fake_item(self, slot, item):
        collection = self.fake(slot, fakes.FakeItemList)
        collection.add_clone(self.fake(item, type(collection).new_item))
        return ["added"]
