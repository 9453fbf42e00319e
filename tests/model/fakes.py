"""Implementations of the interfaces as a caller might write them: they check nothing.

Each call is noted down. One call, the n-th, can be scripted to fail or to throw. The driver holds
the same classes.
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
)


def shown(value):
    """How an argument appears in the notes."""
    if isinstance(value, bytes):
        return "s" + value.hex()
    if isinstance(value, list):
        return "[" + ",".join(map(shown, value)) + "]"
    return str(int(value))


class Script:
    """What the n-th call does; 0 for nothing.

    c: fails; d: does its work, then fails; h: hands out half of the items, then fails;
    b, x: throws exhausted memory, something else; B, X: the same after handing out half of the
    items; l, m: fails, and from then on the last error's getter throws exhausted memory, something
    else; e, k: ends its thread, which exits or is cancelled; E: exits after handing out half of the
    items; n: fails, and from then on the last error's getter ends its thread.
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
    """The notes, the script and the last error, to be mixed into an interface."""

    def begin(self, name, log):
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
            return self.keep(work())
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
        def work():
            value = values[0] if len(values) == 1 else values
            setattr(self, field, list(value) if isinstance(value, list) else value)
            return OK

        return self.call(operation, work, values)

    def fetch(self, operation, field, *refs):
        def work():
            value = getattr(self, field)
            for ref, one in zip(refs, value if len(refs) > 1 else (value,)):
                ref.value = list(one) if isinstance(one, list) else one
            return OK

        return self.call(operation, work)

    def done(self, operation, *arguments):
        return self.call(operation, lambda: OK, arguments)


def plain(cls, **fields):
    """Gives the class a setter and a getter for each field; the last words name the operations."""
    for name, field in fields.items():
        setattr(
            cls, "set" + name, lambda self, *v, n=name, f=field: self.put("set" + n, f, *v)
        )
        setattr(
            cls, "get" + name, lambda self, *r, n=name, f=field: self.fetch("get" + n, f, *r)
        )
    return cls


class FakeLanguageOperations(Fake):
    def begin(self, name, log):
        self.languages = []
        return super().begin(name, log)

    def clearLanguages(self):
        def work():
            self.languages = []
            return OK

        return self.call("clearLanguages", work)

    def addLanguage(self, language):
        def work():
            self.languages.append(language)
            return OK

        return self.call("addLanguage", work, (language,))

    def removeLanguage(self, language):
        def work():
            if language in self.languages:
                self.languages.remove(language)
            return OK

        return self.call("removeLanguage", work, (language,))

    def setOrderedLanguageIDs(self, ids):
        return self.put("setOrderedLanguageIDs", "languages", ids)

    def getOrderedLanguageIDs(self, ids):
        return self.fetch("getOrderedLanguageIDs", "languages", ids)

    def getLanguageCount(self, count):
        def work():
            count.value = len(self.languages)
            return OK

        return self.call("getLanguageCount", work)

    def getLanguageDisplayNames(self, names):
        return self.fetch("getLanguageDisplayNames", "languages", names)

    def getLanguageNativeDisplayNames(self, names):
        return self.fetch("getLanguageNativeDisplayNames", "languages", names)

    def doesLanguageExist(self, language, exists):
        def work():
            exists.value = language.value in self.languages
            return OK

        return self.call("doesLanguageExist", work, (language.value,))


class FakeLanguage(FakeLanguageOperations, LanguageInterface):
    pass


class FakeHeader(FakeLanguageOperations, HeaderInterface):
    def begin(self, name, log):
        self.show_search_bar = False
        self.content_names = []
        self.wipe()
        return super().begin(name, log)

    def wipe(self):
        self.ipod_explicit = False
        self.app_name = self.app_version = self.title = self.creator = self.description = b""
        self.video_length = self.video_width = self.video_height = 0
        self.keywords = []
        self.languages = []
        return OK

    def isValid(self):
        return self.done("isValid")

    def clearHeader(self):
        return self.call("clearHeader", self.wipe)

    def clearContentNames(self):
        def work():
            self.content_names = []
            return OK

        return self.call("clearContentNames", work)

    def addContentName(self, name):
        def work():
            self.content_names.append(name)
            return OK

        return self.call("addContentName", work, (name,))

    def removeContentName(self, name):
        def work():
            if name in self.content_names:
                self.content_names.remove(name)
            return OK

        return self.call("removeContentName", work, (name,))

    def getContentNameCount(self, count):
        def work():
            count.value = len(self.content_names)
            return OK

        return self.call("getContentNameCount", work)

    def getContentNames(self, names):
        return self.fetch("getContentNames", "content_names", names)

    def doesContentNameExist(self, name, exists):
        def work():
            exists.value = name.value in self.content_names
            return OK

        return self.call("doesContentNameExist", work, (name.value,))

    def copyFrom(self, other):
        return self.call("copyFrom", lambda: HeaderInterface.copyFrom(self, other))


plain(
    FakeHeader,
    AppName="app_name",
    AppVersion="app_version",
    Title="title",
    Creator="creator",
    Description="description",
    Keywords="keywords",
    IPodExplicit="ipod_explicit",
    VideoLength="video_length",
    VideoWidth="video_width",
    VideoHeight="video_height",
    ShowSearchBar="show_search_bar",
)


class FakeTextOperations(Fake):
    """Texts in the order of their coming. The raw list may hold a language twice."""

    def begin(self, name, log):
        self.texts = []
        return super().begin(name, log)

    def isValid(self, strict):
        return self.done("isValid", strict)

    def clearText(self):
        def work():
            self.texts = []
            return OK

        return self.call("clearText", work)

    def index_of(self, language):
        return next((i for i, (key, _) in enumerate(self.texts) if key == language), None)

    def setTextForLanguage(self, content, language):
        def work():
            index = self.index_of(language)
            if index is None:
                self.texts.append((language, content))
            else:
                self.texts[index] = (language, content)
            return OK

        return self.call("setTextForLanguage", work, (content, language))

    def removeTextForLanguage(self, language):
        def work():
            self.texts = [entry for entry in self.texts if entry[0] != language]
            return OK

        return self.call("removeTextForLanguage", work, (language,))

    def getLanguageIDs(self, ids):
        def work():
            ids.value = [language for language, _ in self.texts]
            return OK

        return self.call("getLanguageIDs", work)

    def getTextForLanguage(self, content, language):
        def work():
            index = self.index_of(language)
            if index is None:
                return INVALID_ARGUMENT
            content.value = self.texts[index][1]
            return OK

        return self.call("getTextForLanguage", work, (language,))


class FakeItem(Fake):
    """An item that can be copied with all it holds, its script included."""

    CLONED = ()

    def clone(self, name, log):
        copy = type(self)().begin(name, log)
        copy.set_script(self.script, self.keeps_own)
        for field in self.CLONED:
            value = getattr(self, field)
            setattr(copy, field, list(value) if isinstance(value, list) else value)
        return copy


class FakeCaptionItem(FakeItem, FakeTextOperations, CaptionItemInterface):
    CLONED = ("texts", "start", "end", "duration", "alignment")

    def begin(self, name, log):
        self.start = self.end = self.duration = self.alignment = 0
        return super().begin(name, log)

    def copyFrom(self, other):
        return self.call("copyFrom", lambda: CaptionItemInterface.copyFrom(self, other))


plain(FakeCaptionItem, Start="start", End="end", Duration="duration", Alignment="alignment")


class FakeTocItem(FakeItem, FakeTextOperations, TocItemInterface):
    CLONED = ("texts", "start", "image_file", "image_index", "image_offset")

    def begin(self, name, log):
        self.start = self.image_index = self.image_offset = 0
        self.image_file = b""
        return super().begin(name, log)

    def copyFrom(self, other):
        return self.call("copyFrom", lambda: TocItemInterface.copyFrom(self, other))


plain(
    FakeTocItem,
    Start="start",
    ImageFile="image_file",
    ImageIndex="image_index",
    ImageOffset="image_offset",
)


class FakeScreenTextItem(FakeItem, ScreenTextItemInterface):
    CLONED = ("text", "start", "end", "duration")
    CLONED += ("image_file", "image_index", "image_offset", "group_id")

    def begin(self, name, log):
        self.start = self.end = self.duration = 0
        self.image_index = self.image_offset = self.group_id = 0
        self.text = self.image_file = b""
        return super().begin(name, log)

    def isValid(self, strict):
        return self.done("isValid", strict)

    def clearText(self):
        def work():
            self.text = b""
            return OK

        return self.call("clearText", work)

    def copyFrom(self, other):
        return self.call("copyFrom", lambda: ScreenTextItemInterface.copyFrom(self, other))


plain(
    FakeScreenTextItem,
    Text="text",
    Start="start",
    End="end",
    Duration="duration",
    ImageFile="image_file",
    ImageIndex="image_index",
    ImageOffset="image_offset",
    GroupId="group_id",
)


class FakeItemList(Fake):
    """The items of a collection. What it hands out are clones whose calls are noted, too."""

    new_item = None

    def begin(self, name, log):
        self.frame_rate = 1000
        self.items = []
        return super().begin(name, log)

    def unnoted(self):
        return type(self).new_item().begin("", [])

    def add_clone(self, item):
        self.items.append(item.clone("", []))

    def noted_clone(self, index):
        return self.items[index].clone("%s.%d" % (self.name, index), self.log)

    def add(self, operation, item):
        def work():
            copy = self.unnoted()
            code = copy.copyFrom(item)
            if not failed(code):
                self.items.append(copy)
            return code

        return self.call(operation, work)

    def create(self, operation, out):
        def work():
            if out.value is not None:
                return INVALID_ARGUMENT
            out.value = self.unnoted()
            return OK

        return self.call(operation, work)

    def remove_at(self, operation, index):
        def work():
            if index >= len(self.items):
                return INVALID_ARGUMENT
            del self.items[index]
            return OK

        return self.call(operation, work, (index,))

    def count(self, operation, count):
        def work():
            count.value = len(self.items)
            return OK

        return self.call(operation, work)

    def at(self, operation, out, index):
        def work():
            if out.value is not None or index >= len(self.items):
                return INVALID_ARGUMENT
            out.value = self.noted_clone(index)
            return OK

        return self.call(operation, work, (index,))

    def all_items(self, operation, out):
        def hand_out(count):
            out.value = [self.noted_clone(index) for index in range(count)]
            return OK

        half = (len(self.items) + 1) // 2
        return self.call(
            operation, lambda: hand_out(len(self.items)), half=lambda: hand_out(half)
        )

    def clear(self, operation):
        def work():
            self.items = []
            self.languages = []
            return OK

        return self.call(operation, work)


def collection(cls, kind, items):
    """Gives the class the item operations under the names of its kind."""
    operations = {
        "add%sItem" % kind: cls.add,
        "create%sItem" % kind: cls.create,
        "remove%sItemAt" % kind: cls.remove_at,
        "get%sItemCount" % kind: cls.count,
        "get%sItemAt" % kind: cls.at,
        "get%sItems" % kind: cls.all_items,
        "clear%sItems" % kind: cls.clear,
    }
    for name, body in operations.items():
        setattr(cls, name, lambda self, *a, n=name, b=body: b(self, n, *a))
    for name in items:
        setattr(cls, name, lambda self, *a, n=name: self.call(n, lambda: OK))
    return cls


class FakeCaptions(FakeLanguageOperations, FakeItemList, CaptionsInterface):
    new_item = FakeCaptionItem

    def begin(self, name, log):
        self.font_family = b"Font"
        self.font_size = 20
        self.foreground, self.background, self.opacity = WHITE, BLACK, SIX_TENTHS
        return super().begin(name, log)

    def isValid(self, strict):
        return self.done("isValid", strict)

    def removeCaptionItemsForLanguage(self, language):
        return self.done("removeCaptionItemsForLanguage", language)

    def getCaptionItemsForLanguage(self, _items, language):
        return self.call("getCaptionItemsForLanguage", lambda: NOT_IMPLEMENTED, (language,))

    def copyFrom(self, other):
        return self.call("copyFrom", lambda: CaptionsInterface.copyFrom(self, other))


plain(
    FakeCaptions,
    FrameRate="frame_rate",
    FontFamily="font_family",
    FontSize="font_size",
    ForegroundColor="foreground",
    BackgroundColor="background",
    BackgroundOpacity="opacity",
)
collection(FakeCaptions, "Caption", ["makeCaptionsConsistent"])


class FakeToc(FakeLanguageOperations, FakeItemList, TocInterface):
    new_item = FakeTocItem

    def begin(self, name, log):
        self.image_file = b""
        return super().begin(name, log)

    def isValid(self, deep):
        return self.done("isValid", deep)

    def removeTocItemsForLanguage(self, language):
        return self.done("removeTocItemsForLanguage", language)

    def getTocItemsForLanguage(self, _items, language):
        return self.call("getTocItemsForLanguage", lambda: NOT_IMPLEMENTED, (language,))

    def copyFrom(self, other):
        return self.call("copyFrom", lambda: TocInterface.copyFrom(self, other))


plain(FakeToc, FrameRate="frame_rate", ImageFile="image_file")
collection(FakeToc, "Toc", ["makeTocConsistent"])


class FakeScreenText(FakeItemList, ScreenTextInterface):
    new_item = FakeScreenTextItem

    def isValid(self, deep):
        return self.done("isValid", deep)

    def copyFrom(self, other):
        return self.call("copyFrom", lambda: ScreenTextInterface.copyFrom(self, other))


plain(FakeScreenText, FrameRate="frame_rate")
collection(FakeScreenText, "ScreenText", ["makeScreenTextConsistent"])
