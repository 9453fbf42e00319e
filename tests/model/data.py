"""The data sets and their items, operation by operation.

Every operation returns its code and keeps it as the last error. Values are delivered through `Ref`
objects, so that a value that must be left alone can be seen to be left alone. The interface classes
hold the copies, which work only through the operations of both objects; the classes behind them
hold everything else.
"""

import functools

import text as texts
from codes import (
    INTERNAL_ERROR,
    INVALID_ARGUMENT,
    INVALID_ITEM,
    NOT_FOUND,
    NOT_IMPLEMENTED,
    OK,
    OUT_OF_MEMORY,
    UNKNOWN_LANGUAGE,
    WARN_ALREADY_EXISTS,
    WARN_ITEM_GUIDELINES,
    WARN_NO_CHANGE,
    WARN_TIMING,
    failed,
    is_error,
)


class BadAlloc(Exception):
    """Exhausted memory."""


class ForeignException(Exception):
    """Any other exception that a foreign implementation throws."""


class EndOfThread(Exception):
    """Cancellation or exit inside a foreign implementation. No operation catches it."""


class Ref:
    """A reference argument."""

    def __init__(self, value=None):
        self.value = value


class Stop(Exception):
    """Ends the running operation with a code."""

    def __init__(self, code):
        super().__init__()
        self.code = code


def code_of(body, self, arguments):
    try:
        return body(self, *arguments)
    except Stop as stop:
        return stop.code
    except ForeignException:
        return INTERNAL_ERROR


def operation(body):
    """Returns and keeps what the body gives; exceptions become codes."""

    @functools.wraps(body)
    def run(self, *arguments):
        try:
            code = code_of(body, self, arguments)
        except BadAlloc:
            code = OUT_OF_MEMORY
        return self.store(code)

    return run


def caption_item_operation(body):
    """As `operation`, but a caption item lets exhausted memory through."""

    @functools.wraps(body)
    def run(self, *arguments):
        return self.store(code_of(body, self, arguments))

    return run


def ends(code):
    """A failing code ends the operation and is its code."""
    if failed(code):
        raise Stop(code)


def ends_for(who, code):
    """A failing code ends the operation with the last error of `who`, which may be anything."""
    if failed(code):
        raise Stop(who.getLastError())


def wrapped(number):
    """The number as 64 bits keep it."""
    return (number + 2**63) % 2**64 - 2**63


def setter(field, wrap=operation):
    def body(self, value):
        setattr(self, field, list(value) if isinstance(value, list) else value)
        return OK

    return wrap(body)


def getter(field, wrap=operation):
    def body(self, ref):
        value = getattr(self, field)
        ref.value = list(value) if isinstance(value, list) else value
        return OK

    return wrap(body)


def checked_setter(field, accepts, wrap=operation):
    def body(self, value):
        if not accepts(value):
            return INVALID_ARGUMENT
        setattr(self, field, value)
        return OK

    return wrap(body)


def get_field(source, name):
    """The values of one field; where the source fails, its last error ends the operation."""
    refs = [Ref() for _ in range(3 if name.endswith("Color") else 1)]
    ends_for(source, getattr(source, "get" + name)(*refs))
    return [ref.value for ref in refs]


def copy_fields(target, source, names):
    """Gets and sets field by field; where the target fails, its last error ends the operation."""
    for name in names:
        ends_for(target, getattr(target, "set" + name)(*get_field(source, name)))


def copy_texts(target, source):
    """Replaces the texts of one item by those of another."""
    ids = Ref([])
    ends_for(source, source.getLanguageIDs(ids))
    ends_for(target, target.clearText())
    for language in ids.value:
        content = Ref(b"")
        ends_for(source, source.getTextForLanguage(content, language))
        ends_for(target, target.setTextForLanguage(content.value, language))


class Result:
    def __init__(self):
        self.last = OK

    def setLastError(self, code):
        self.last = code

    def getLastError(self):
        return self.last

    def store(self, code):
        self.last = code
        return code


class LanguageInterface(Result):
    @operation
    def copyFromLanguage(self, other):
        if other is self:
            return INTERNAL_ERROR
        ends(self.clearLanguages())
        ids = Ref([])
        ends_for(other, other.getOrderedLanguageIDs(ids))
        for language in ids.value:
            ends_for(self, self.addLanguage(language))
        return OK


class LanguageList(LanguageInterface):
    """The list operations; `absent` is the answer to the removal of what is not listed."""

    absent = NOT_FOUND

    def __init__(self):
        super().__init__()
        self.languages = []

    @operation
    def clearLanguages(self):
        self.languages = []
        return OK

    @operation
    def addLanguage(self, language):
        code = texts.verify_utf8(language, False)
        if failed(code):
            return code
        if failed(texts.is_language(language)):
            return UNKNOWN_LANGUAGE
        if language in self.languages:
            return WARN_ALREADY_EXISTS
        self.languages.append(language)
        return OK

    @operation
    def removeLanguage(self, language):
        if language not in self.languages:
            return self.absent
        self.languages.remove(language)
        return OK

    @operation
    def setOrderedLanguageIDs(self, ids):
        if len(ids) != len(self.languages) or any(i not in self.languages for i in ids):
            return INVALID_ARGUMENT
        self.languages = list(ids)
        return OK

    getOrderedLanguageIDs = getter("languages")

    @operation
    def getLanguageCount(self, count):
        count.value = len(self.languages)
        return OK

    def names_into(self, names, which):
        found = [texts.language_names(language) for language in self.languages]
        names.value = [entry[which] for entry in found if entry]
        return OK if len(names.value) == len(self.languages) else INTERNAL_ERROR

    @operation
    def getLanguageDisplayNames(self, names):
        return self.names_into(names, 0)

    @operation
    def getLanguageNativeDisplayNames(self, names):
        return self.names_into(names, 1)

    @operation
    def doesLanguageExist(self, language, exists):
        exists.value = language.value in self.languages
        return OK


class HeaderInterface(LanguageInterface):
    FIELDS = ("AppName", "AppVersion", "Title", "Creator", "Description", "Keywords")
    FIELDS += ("IPodExplicit", "VideoLength", "VideoWidth", "VideoHeight")

    @operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        ends(self.clearHeader())
        ends(self.copyFromLanguage(other))
        for name in self.FIELDS:
            self.copy_one(other, name)
        ends(self.clearContentNames())
        names = Ref([])
        ends_for(other, other.getContentNames(names))
        for name in names.value:
            ends(self.addContentName(name))
        self.copy_one(other, "ShowSearchBar")
        return OK

    def copy_one(self, other, name):
        """A failing setter of a header is answered with its code, not with the last error."""
        ends(getattr(self, "set" + name)(*get_field(other, name)))


class Header(HeaderInterface, LanguageList):
    absent = WARN_NO_CHANGE

    def __init__(self):
        super().__init__()
        self.show_search_bar = True
        self.content_names = []
        self.reset()

    def reset(self):
        self.ipod_explicit = False
        self.app_name = self.app_version = self.title = self.creator = self.description = b""
        self.video_length = self.video_width = self.video_height = 0
        self.keywords = []
        self.languages = []

    @operation
    def isValid(self):
        sizes = (self.video_length, self.video_width, self.video_height)
        return OK if all(sizes) else INVALID_ARGUMENT

    @operation
    def clearHeader(self):
        self.reset()
        return OK

    setAppName, getAppName = setter("app_name"), getter("app_name")
    setAppVersion, getAppVersion = setter("app_version"), getter("app_version")
    setTitle, getTitle = setter("title"), getter("title")
    setCreator, getCreator = setter("creator"), getter("creator")
    setDescription, getDescription = setter("description"), getter("description")
    setKeywords, getKeywords = setter("keywords"), getter("keywords")
    setIPodExplicit, getIPodExplicit = setter("ipod_explicit"), getter("ipod_explicit")
    setShowSearchBar, getShowSearchBar = setter("show_search_bar"), getter("show_search_bar")
    setVideoLength = checked_setter("video_length", lambda value: value != 0)
    setVideoWidth = checked_setter("video_width", lambda value: value != 0)
    setVideoHeight = checked_setter("video_height", lambda value: value != 0)
    getVideoLength = getter("video_length")
    getVideoWidth = getter("video_width")
    getVideoHeight = getter("video_height")
    getContentNames = getter("content_names")

    @operation
    def clearContentNames(self):
        self.content_names = []
        return OK

    @operation
    def addContentName(self, name):
        ends(texts.verify_utf8(name, False))
        if name in self.content_names:
            return WARN_NO_CHANGE
        self.content_names.append(name)
        return OK

    @operation
    def removeContentName(self, name):
        if name not in self.content_names:
            return WARN_NO_CHANGE
        self.content_names.remove(name)
        return OK

    @operation
    def getContentNameCount(self, count):
        count.value = len(self.content_names)
        return OK

    @operation
    def doesContentNameExist(self, name, exists):
        exists.value = name.value in self.content_names
        return OK


def in_catalogue_and_utf8(content, language):
    """What makes a text with its language acceptable to an item."""
    known = texts.is_utf8(language) and not failed(texts.is_language(language))
    return known and texts.is_utf8(content)


def text_operations(wrap):
    """A base class with the operations on one text per language, shared by two kinds of items."""

    class PerLanguageTexts(Result):
        def __init__(self):
            super().__init__()
            self.texts = {}

        @wrap
        def clearText(self):
            self.texts = {}
            return OK

        @wrap
        def setTextForLanguage(self, content, language):
            if not in_catalogue_and_utf8(content, language):
                return INVALID_ITEM
            replaced = language in self.texts
            self.texts[language] = content
            return WARN_ALREADY_EXISTS if replaced else OK

        @wrap
        def removeTextForLanguage(self, language):
            return OK if self.texts.pop(language, None) is not None else NOT_FOUND

        @wrap
        def getLanguageIDs(self, ids):
            ids.value = sorted(self.texts)
            return OK

        @wrap
        def getTextForLanguage(self, content, language):
            if language not in self.texts:
                return INVALID_ARGUMENT
            content.value = self.texts[language]
            return OK

    return PerLanguageTexts


class TimeSpan:
    """Start, duration and the end that follows from them; a mixin."""

    @staticmethod
    def span_operations(wrap, accepts_duration):
        def set_end(self, end):
            if end < 0 or end <= self.start:
                return INVALID_ARGUMENT
            self.duration = end - self.start
            return OK

        def get_end(self, end):
            end.value = wrapped(self.start + self.duration)
            return OK

        return {
            "setStart": checked_setter("start", lambda start: start >= 0, wrap),
            "getStart": getter("start", wrap),
            "setDuration": checked_setter("duration", accepts_duration, wrap),
            "getDuration": getter("duration", wrap),
            "setEnd": wrap(set_end),
            "getEnd": wrap(get_end),
        }


def timed(wrap, accepts_duration):
    """A class with the operations on the time span."""
    return type("Timed", (), TimeSpan.span_operations(wrap, accepts_duration))


class CaptionItemInterface(Result):
    @caption_item_operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        copy_texts(self, other)
        copy_fields(self, other, ("Start", "End", "Alignment"))
        return OK


class CaptionItem(
    CaptionItemInterface,
    text_operations(caption_item_operation),
    timed(caption_item_operation, lambda duration: duration > 0),
):
    def __init__(self):
        super().__init__()
        self.start = self.duration = 0
        self.alignment = 0x01

    setAlignment = setter("alignment", caption_item_operation)
    getAlignment = getter("alignment", caption_item_operation)

    @caption_item_operation
    def isValid(self, strict):
        if self.duration <= 0:
            return INVALID_ITEM
        if strict and self.duration < 1000:
            return WARN_ITEM_GUIDELINES
        for language, content in sorted(self.texts.items()):
            if not in_catalogue_and_utf8(content, language):
                return INVALID_ITEM
            if strict and texts.count_lines(content) > 4:
                return WARN_ITEM_GUIDELINES
        return OK

    def assign(self, other):
        self.start, self.duration, self.alignment = other.start, other.duration, other.alignment
        self.texts = dict(other.texts)


class TocItemInterface(Result):
    @operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        copy_texts(self, other)
        copy_fields(self, other, ("Start", "ImageFile", "ImageIndex", "ImageOffset"))
        return OK


class TocItem(TocItemInterface, text_operations(operation)):
    def __init__(self):
        super().__init__()
        self.start = self.image_index = self.image_offset = 0
        self.image_file = b""

    setStart = checked_setter("start", lambda start: start >= 0)
    getStart = getter("start")
    setImageFile, getImageFile = setter("image_file"), getter("image_file")
    setImageIndex, getImageIndex = setter("image_index"), getter("image_index")
    setImageOffset, getImageOffset = setter("image_offset"), getter("image_offset")

    @operation
    def isValid(self, _deep):
        ok = all(in_catalogue_and_utf8(content, key) for key, content in self.texts.items())
        return OK if ok else INVALID_ITEM

    def assign(self, other):
        self.start, self.image_file = other.start, other.image_file
        self.image_index, self.image_offset = other.image_index, other.image_offset
        self.texts = dict(other.texts)


class ScreenTextItemInterface(Result):
    FIELDS = ("Text", "Start", "Duration", "ImageFile", "ImageIndex", "ImageOffset", "GroupId")

    @operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        ends_for(self, self.clearText())
        copy_fields(self, other, self.FIELDS)
        return OK


class ScreenTextItem(ScreenTextItemInterface, timed(operation, lambda duration: duration >= 0)):
    def __init__(self):
        super().__init__()
        self.start = self.duration = self.image_index = self.image_offset = self.group_id = 0
        self.text = self.image_file = b""

    getText = getter("text")
    setImageFile, getImageFile = setter("image_file"), getter("image_file")
    setImageIndex, getImageIndex = setter("image_index"), getter("image_index")
    setImageOffset, getImageOffset = setter("image_offset"), getter("image_offset")
    setGroupId, getGroupId = setter("group_id"), getter("group_id")

    @operation
    def setText(self, content):
        if not texts.is_utf8(content):
            return INVALID_ITEM
        self.text = content
        return OK

    @operation
    def clearText(self):
        self.text = b""
        return OK

    @operation
    def isValid(self, _deep):
        return OK if texts.is_utf8(self.text) else INVALID_ITEM

    def assign(self, other):
        self.start, self.duration, self.text = other.start, other.duration, other.text
        self.image_file, self.image_index = other.image_file, other.image_index
        self.image_offset, self.group_id = other.image_offset, other.group_id


def in_rate_range(value):
    return 1 <= value <= 10000


class ItemList(Result):
    """What the three collections share over their items. Derived classes name the operations."""

    new_item = None

    def __init__(self):
        super().__init__()
        self.frame_rate = 1000
        self.items = []

    setFrameRate = checked_setter("frame_rate", in_rate_range)
    getFrameRate = getter("frame_rate")

    def copied(self, item):
        copy = type(self).new_item()
        ends_for(copy, copy.copyFrom(item))
        return copy

    @operation
    def create_item(self, out):
        if out.value is not None:
            return INVALID_ARGUMENT
        out.value = type(self).new_item()
        return OK

    @operation
    def remove_at(self, index):
        if index >= len(self.items):
            return INVALID_ARGUMENT
        del self.items[index]
        return OK

    @operation
    def count_items(self, count):
        count.value = len(self.items)
        return OK

    @operation
    def item_at(self, out, index):
        if out.value is not None or index >= len(self.items):
            return INVALID_ARGUMENT
        out.value = self.copied(self.items[index])
        return OK

    @operation
    def all_items(self, out):
        out.value = []
        out.value = [self.copied(item) for item in self.items]
        return OK

    @operation
    def order(self):
        """Exchange sort by start, in exactly this order of exchanges."""
        for i in range(len(self.items)):
            for j in range(i + 1, len(self.items)):
                if self.items[j].start < self.items[i].start:
                    self.items[i], self.items[j] = self.items[j], self.items[i]
        return OK

    def texts_for_listed_languages(self, item):
        for language in self.languages:
            ends_for(item, item.getTextForLanguage(Ref(b""), language))

    def fill_missing_texts(self):
        for item in self.items:
            for language in self.languages:
                if failed(item.getTextForLanguage(Ref(b""), language)):
                    ends_for(item, item.setTextForLanguage(b"", language))

    def append_with_languages(self, item):
        copy = self.copied(item)
        ids = Ref([])
        ends_for(copy, copy.getLanguageIDs(ids))
        for language in ids.value:
            if is_error(self.addLanguage(language)):
                raise Stop(self.getLastError())
        self.items.append(copy)

    def remove_texts(self, language):
        for item in self.items:
            ends_for(item, item.removeTextForLanguage(language))


class CaptionsInterface(LanguageInterface):
    FIELDS = ("FrameRate", "FontFamily", "FontSize", "ForegroundColor", "BackgroundColor")
    FIELDS += ("BackgroundOpacity",)

    @operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        ends_for(self, self.clearCaptionItems())
        ends_for(self, self.copyFromLanguage(other))
        copy_fields(self, other, self.FIELDS)
        items = Ref([])
        ends_for(other, other.getCaptionItems(items))
        ends_for(self, self.clearLanguages())
        for item in items.value:
            ends_for(self, self.addCaptionItem(item))
        return OK


WHITE = (0x3F800000,) * 3
BLACK = (0,) * 3
SIX_TENTHS = 0x3F19999A


def in_unit_range(bits):
    """A NaN is not outside the range."""
    value = texts.float_of(bits)
    return not value < 0.0 and not value > 1.0


def colour_setter(field):
    def body(self, red, green, blue):
        if not all(in_unit_range(bits) for bits in (red, green, blue)):
            return INVALID_ARGUMENT
        setattr(self, field, (red, green, blue))
        return OK

    return operation(body)


def colour_getter(field):
    def body(self, red, green, blue):
        red.value, green.value, blue.value = getattr(self, field)
        return OK

    return operation(body)


class Captions(CaptionsInterface, LanguageList, ItemList):
    new_item = CaptionItem

    def __init__(self):
        super().__init__()
        self.font_family = b"Helvetica"
        self.font_size = 20
        self.foreground, self.background, self.opacity = WHITE, BLACK, SIX_TENTHS

    setFontFamily, getFontFamily = checked_setter("font_family", bool), getter("font_family")
    setFontSize = checked_setter("font_size", lambda size: 1 <= size <= 500)
    getFontSize = getter("font_size")
    setForegroundColor = colour_setter("foreground")
    getForegroundColor = colour_getter("foreground")
    setBackgroundColor = colour_setter("background")
    getBackgroundColor = colour_getter("background")
    setBackgroundOpacity = checked_setter("opacity", in_unit_range)
    getBackgroundOpacity = getter("opacity")

    createCaptionItem = ItemList.create_item
    removeCaptionItemAt = ItemList.remove_at
    getCaptionItemCount = ItemList.count_items
    getCaptionItemAt = ItemList.item_at
    getCaptionItems = ItemList.all_items
    orderCaptions = ItemList.order

    @operation
    def clearCaptionItems(self):
        self.items = []
        self.languages = []
        return OK

    @operation
    def addCaptionItem(self, item):
        self.append_with_languages(item)
        return OK

    @operation
    def removeCaptionItemsForLanguage(self, language):
        self.remove_texts(language)
        return OK

    @operation
    def getCaptionItemsForLanguage(self, _items, _language):
        return NOT_IMPLEMENTED

    @operation
    def isValid(self, strict):
        # The styling cannot leave its ranges: its setters refuse what this check would find.
        for i, item in enumerate(self.items):
            if strict:
                ends_for(item, item.isValid(True))
            self.texts_for_listed_languages(item)
            end = wrapped(item.start + item.duration)
            if any(end > later.start for later in self.items[i + 1 :]):
                return WARN_TIMING
        return OK

    @operation
    def makeCaptionsConsistent(self):
        self.orderCaptions()
        self.fill_missing_texts()
        return OK


class TocInterface(LanguageInterface):
    @operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        ends_for(self, self.clearTocItems())
        ends_for(self, self.copyFromLanguage(other))
        copy_fields(self, other, ("ImageFile",))
        items = Ref([])
        ends_for(other, other.getTocItems(items))
        ends_for(self, self.clearLanguages())
        for item in items.value:
            ends_for(self, self.addTocItem(item))
        return OK


class Toc(TocInterface, LanguageList, ItemList):
    new_item = TocItem

    def __init__(self):
        super().__init__()
        self.image_file = b""

    setImageFile, getImageFile = setter("image_file"), getter("image_file")

    createTocItem = ItemList.create_item
    removeTocItemAt = ItemList.remove_at
    getTocItemCount = ItemList.count_items
    getTocItemAt = ItemList.item_at
    getTocItems = ItemList.all_items
    orderTocItems = ItemList.order

    @operation
    def clearTocItems(self):
        self.items = []
        self.languages = []
        return OK

    @operation
    def addTocItem(self, item):
        self.append_with_languages(item)
        return OK

    @operation
    def removeTocItemsForLanguage(self, language):
        self.remove_texts(language)
        return OK

    @operation
    def getTocItemsForLanguage(self, _items, _language):
        return NOT_IMPLEMENTED

    @operation
    def isValid(self, deep):
        for i, item in enumerate(self.items):
            if deep:
                ends_for(item, item.isValid(True))
            self.texts_for_listed_languages(item)
            if any(item.start > later.start for later in self.items[i + 1 :]):
                return WARN_TIMING
        return OK

    @operation
    def makeTocConsistent(self):
        self.orderTocItems()
        self.fill_missing_texts()
        return OK


class ScreenTextInterface(Result):
    @operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        ends_for(self, self.clearScreenTextItems())
        copy_fields(self, other, ("FrameRate",))
        items = Ref([])
        ends_for(other, other.getScreenTextItems(items))
        for item in items.value:
            ends_for(self, self.addScreenTextItem(item))
        return OK


class ScreenText(ScreenTextInterface, ItemList):
    new_item = ScreenTextItem

    createScreenTextItem = ItemList.create_item
    removeScreenTextItemAt = ItemList.remove_at
    getScreenTextItemCount = ItemList.count_items
    getScreenTextItemAt = ItemList.item_at
    getScreenTextItems = ItemList.all_items
    orderScreenTextItems = ItemList.order

    @operation
    def clearScreenTextItems(self):
        self.items = []
        return OK

    @operation
    def addScreenTextItem(self, item):
        self.items.append(self.copied(item))
        return OK

    @operation
    def isValid(self, deep):
        for i, item in enumerate(self.items):
            if deep:
                ends_for(item, item.isValid(True))
            if any(item.start > later.start for later in self.items[i + 1 :]):
                return WARN_TIMING
        return OK

    @operation
    def makeScreenTextConsistent(self):
        self.orderScreenTextItems()
        return OK
