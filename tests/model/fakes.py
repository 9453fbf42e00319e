"""Implementations of the interfaces as a caller might write them: they check nothing.

They note each call. A script can make one call fail or throw. The driver has the same classes.
"""

from codes import INVALID_ARGUMENT, NOT_IMPLEMENTED, OK, failed
from data import (
    BLACK,
    SIX_TENTHS,
    WHITE,
    BadAlloc,
    CaptionItemInterface,
    CaptionsInterface,
    EndOfThread,
    ForeignException,
    HeaderInterface,
    LanguageInterface,
    ScreenTextInterface,
    ScreenTextItemInterface,
    TocInterface,
    TocItemInterface,
    copy_of,
    field_of,
    item_operations,
)


def shown(value):
    """How an argument appears in the notes."""
    if isinstance(value, bytes):
        return "s" + value.hex()
    if isinstance(value, list):
        return "[" + ",".join(map(shown, value)) + "]"
    return str(int(value))


class Script:
    """What call number `at` does instead of its work; 0 for no call.

    c: fails; d: does its work, then fails; h: hands out half of the items, then fails;
    b, x: throws BadAlloc, ForeignException; B, X: the same after handing out half of the items;
    l, m: fails, and from then on getLastError throws BadAlloc, ForeignException; e, k: ends its
    thread, which exits or is cancelled; E: exits after handing out half of the items; n: fails, and
    from then on getLastError ends its thread.
    """

    def __init__(self, at=0, mode="c", code=OK, last=OK):
        self.at = at
        self.mode = mode
        self.code = code
        self.last = last


def throw(mode):
    if mode in "eEkn":
        raise EndOfThread()
    raise BadAlloc() if mode in "bBl" else ForeignException()


class Fake:
    """The notes, the script, the last error and the values, to be mixed into an interface."""

    VALUES = {}

    def begin(self, name, log):
        for field, value in self.VALUES.items():
            setattr(self, field, copy_of(value))
        self.name = name
        self.log = log
        self.script = Script()
        self.calls = 0
        self.last_error_throws = None
        self.keeps_own = False
        self.own_last = OK
        return self

    def set_script(self, script, keeps_own):
        self.script = script
        self.calls = 0
        self.last_error_throws = None
        self.keeps_own = keeps_own

    def setLastError(self, code):
        self.log.append("%s:setLastError(%d)" % (self.name, code))
        self.keep(code)

    def getLastError(self):
        if self.last_error_throws:
            throw(self.last_error_throws)
        return self.own_last if self.keeps_own else self.last

    def keep(self, code):
        if self.keeps_own:
            self.own_last = code
        else:
            self.last = code
        return code

    def call(self, operation, work, arguments=(), half=None):
        self.calls += 1
        noted = "(" + ",".join(map(shown, arguments)) + ")" if arguments else ""
        self.log.append("%s:%s%s" % (self.name, operation, noted))
        if self.calls != self.script.at:
            return self.keep(work() or OK)
        return self.go_wrong(work, half)

    def go_wrong(self, work, half):
        mode = self.script.mode
        if half and mode in "hBXE":
            half()
        if mode == "d":
            work()
        if mode in "bBxXeEk":
            throw(mode)
        if mode in "lmn":
            self.last_error_throws = mode
        self.keep(self.script.last)
        return self.script.code

    def put(self, operation, field, *values):
        value = copy_of(values[0]) if len(values) == 1 else values
        return self.call(operation, lambda: setattr(self, field, value), values)

    def fetch(self, operation, field, *refs):
        def work():
            value = getattr(self, field)
            for ref, one in zip(refs, value if len(refs) > 1 else (value,)):
                ref.value = copy_of(one)

        return self.call(operation, work)

    def deliver(self, operation, ref, value, *arguments):
        """Sets the reference to what the function returns."""
        return self.call(operation, lambda: setattr(ref, "value", value()), arguments)

    def done(self, operation, *arguments):
        return self.call(operation, lambda: OK, arguments)

    def isValid(self, *strict):
        return self.done("isValid", *strict)


def holding(interface, **values):
    """Decorates a fake of the interface: each name becomes a field with a first value, a setter and
    a getter. copyFrom is the interface's."""

    def decorated(cls):
        cls.VALUES = {**cls.VALUES, **{field_of(name): value for name, value in values.items()}}
        for name in values:
            add_accessors(cls, name, field_of(name))
        cls.copyFrom = lambda self, other: self.call(
            "copyFrom", lambda: interface.copyFrom(self, other)
        )
        return cls

    return decorated


def add_accessors(cls, name, field):
    setattr(cls, "set" + name, lambda self, *values: self.put("set" + name, field, *values))
    setattr(cls, "get" + name, lambda self, *refs: self.fetch("get" + name, field, *refs))


def remove_from(values, value):
    if value in values:
        values.remove(value)


class FakeLanguageOperations(Fake):
    VALUES = {"languages": []}

    def clearLanguages(self):
        return self.call("clearLanguages", self.languages.clear)

    def addLanguage(self, language):
        return self.call("addLanguage", lambda: self.languages.append(language), (language,))

    def removeLanguage(self, language):
        return self.call(
            "removeLanguage", lambda: remove_from(self.languages, language), (language,)
        )

    def setOrderedLanguageIDs(self, ids):
        return self.put("setOrderedLanguageIDs", "languages", ids)

    def getOrderedLanguageIDs(self, ids):
        return self.fetch("getOrderedLanguageIDs", "languages", ids)

    def getLanguageCount(self, count):
        return self.deliver("getLanguageCount", count, lambda: len(self.languages))

    def getLanguageDisplayNames(self, names):
        return self.fetch("getLanguageDisplayNames", "languages", names)

    def getLanguageNativeDisplayNames(self, names):
        return self.fetch("getLanguageNativeDisplayNames", "languages", names)

    def doesLanguageExist(self, language, exists):
        return self.deliver(
            "doesLanguageExist", exists, lambda: language.value in self.languages, language.value
        )


class FakeLanguage(FakeLanguageOperations, LanguageInterface):
    pass


@holding(
    HeaderInterface,
    AppName=b"",
    AppVersion=b"",
    Title=b"",
    Creator=b"",
    Description=b"",
    Keywords=[],
    IPodExplicit=False,
    VideoLength=0,
    VideoWidth=0,
    VideoHeight=0,
    ShowSearchBar=False,
)
class FakeHeader(FakeLanguageOperations, HeaderInterface):
    VALUES = {**FakeLanguageOperations.VALUES, "content_names": []}

    def clearHeader(self):
        return self.call("clearHeader", self.wipe)

    def wipe(self):
        for field in self.VALUES.keys() - {"content_names", "show_search_bar"}:
            setattr(self, field, copy_of(self.VALUES[field]))

    def clearContentNames(self):
        return self.call("clearContentNames", self.content_names.clear)

    def addContentName(self, name):
        return self.call("addContentName", lambda: self.content_names.append(name), (name,))

    def removeContentName(self, name):
        return self.call(
            "removeContentName", lambda: remove_from(self.content_names, name), (name,)
        )

    def getContentNameCount(self, count):
        return self.deliver("getContentNameCount", count, lambda: len(self.content_names))

    def getContentNames(self, names):
        return self.fetch("getContentNames", "content_names", names)

    def doesContentNameExist(self, name, exists):
        return self.deliver(
            "doesContentNameExist", exists, lambda: name.value in self.content_names, name.value
        )


class FakeItem(Fake):
    """An item that can be cloned with all that it holds, its script included."""

    def clone(self, name, log):
        copy = type(self)().begin(name, log)
        copy.set_script(self.script, self.keeps_own)
        for field in self.VALUES:
            setattr(copy, field, copy_of(getattr(self, field)))
        return copy


class FakeTextOperations(FakeItem):
    """Texts in the order in which they came. The raw list may hold a language twice."""

    VALUES = {"texts": []}

    def clearText(self):
        return self.call("clearText", self.texts.clear)

    def index_of(self, language):
        return next((i for i, (key, _) in enumerate(self.texts) if key == language), None)

    def setTextForLanguage(self, content, language):
        def work():
            index = self.index_of(language)
            if index is None:
                self.texts.append((language, content))
            else:
                self.texts[index] = (language, content)

        return self.call("setTextForLanguage", work, (content, language))

    def removeTextForLanguage(self, language):
        def work():
            self.texts = [entry for entry in self.texts if entry[0] != language]

        return self.call("removeTextForLanguage", work, (language,))

    def getLanguageIDs(self, ids):
        return self.deliver("getLanguageIDs", ids, lambda: [key for key, _ in self.texts])

    def getTextForLanguage(self, content, language):
        def work():
            index = self.index_of(language)
            if index is None:
                return INVALID_ARGUMENT
            content.value = self.texts[index][1]

        return self.call("getTextForLanguage", work, (language,))


@holding(CaptionItemInterface, Start=0, End=0, Duration=0, Alignment=0)
class FakeCaptionItem(FakeTextOperations, CaptionItemInterface):
    pass


IMAGE = {"ImageFile": b"", "ImageIndex": 0, "ImageOffset": 0}


@holding(TocItemInterface, Start=0, **IMAGE)
class FakeTocItem(FakeTextOperations, TocItemInterface):
    pass


@holding(ScreenTextItemInterface, Text=b"", Start=0, End=0, Duration=0, GroupId=0, **IMAGE)
class FakeScreenTextItem(FakeItem, ScreenTextItemInterface):
    def clearText(self):
        return self.call("clearText", lambda: setattr(self, "text", b""))


class FakeItemList(Fake):
    """The items of a collection. It hands out clones, which note their calls too. The first
    argument of each operation is its name."""

    VALUES = {"items": []}
    new_item = None

    def unnoted(self):
        return type(self).new_item().begin("", [])

    def add_clone(self, item):
        self.items.append(item.clone("", []))

    def noted_clone(self, index):
        return self.items[index].clone("%s.%d" % (self.name, index), self.log)

    def add_item(self, operation, item):
        def work():
            copy = self.unnoted()
            code = copy.copyFrom(item)
            if not failed(code):
                self.items.append(copy)
            return code

        return self.call(operation, work)

    def create_item(self, operation, out):
        def work():
            if out.value is not None:
                return INVALID_ARGUMENT
            out.value = self.unnoted()

        return self.call(operation, work)

    def remove_at(self, operation, index):
        def work():
            if index >= len(self.items):
                return INVALID_ARGUMENT
            del self.items[index]

        return self.call(operation, work, (index,))

    def count_items(self, operation, count):
        return self.deliver(operation, count, lambda: len(self.items))

    def item_at(self, operation, out, index):
        def work():
            if out.value is not None or index >= len(self.items):
                return INVALID_ARGUMENT
            out.value = self.noted_clone(index)

        return self.call(operation, work, (index,))

    def all_items(self, operation, out):
        def hand_out(count):
            out.value = [self.noted_clone(index) for index in range(count)]

        half = (len(self.items) + 1) // 2
        return self.call(
            operation, lambda: hand_out(len(self.items)), half=lambda: hand_out(half)
        )

    def clear_items(self, operation):
        def work():
            self.items = []
            self.languages = []

        return self.call(operation, work)


class FakeTranslatedItemList(FakeLanguageOperations, FakeItemList):
    VALUES = {**FakeLanguageOperations.VALUES, **FakeItemList.VALUES}
    remove_for_language = Fake.done

    def items_for_language(self, operation, _items, language):
        return self.call(operation, lambda: NOT_IMPLEMENTED, (language,))


def of_kind(kind, make_consistent):
    """Decorates a collection: its operations on items get the names of the kind."""

    def named(cls):
        operations = [*item_operations(cls, kind), (make_consistent, Fake.done)]
        for name, body in operations:
            setattr(cls, name, lambda self, *a, n=name, b=body: b(self, n, *a))
        return cls

    return named


@of_kind("Caption", "makeCaptionsConsistent")
@holding(
    CaptionsInterface,
    FrameRate=1000,
    FontFamily=b"Font",
    FontSize=20,
    ForegroundColor=WHITE,
    BackgroundColor=BLACK,
    BackgroundOpacity=SIX_TENTHS,
)
class FakeCaptions(FakeTranslatedItemList, CaptionsInterface):
    new_item = FakeCaptionItem


@of_kind("Toc", "makeTocConsistent")
@holding(TocInterface, FrameRate=1000, ImageFile=b"")
class FakeToc(FakeTranslatedItemList, TocInterface):
    new_item = FakeTocItem


@of_kind("ScreenText", "makeScreenTextConsistent")
@holding(ScreenTextInterface, FrameRate=1000)
class FakeScreenText(FakeItemList, ScreenTextInterface):
    new_item = FakeScreenTextItem
