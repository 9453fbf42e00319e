"""The data sets and their items, operation by operation.

Every operation returns its code and keeps it as the last error; a body that returns none has
succeeded. Values are delivered through `Ref` objects, so a test sees whether one was left alone.
The interface classes hold the copies, which call only the operations of both objects; the classes
that derive from them hold everything else.
"""

import functools
import re

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
        return body(self, *arguments) or OK
    except Stop as stop:
        return stop.code
    except ForeignException:
        return INTERNAL_ERROR


def operation(body):
    """Returns and keeps the body's code; exceptions become codes."""

    @functools.wraps(body)
    def run(self, *arguments):
        try:
            code = code_of(body, self, arguments)
        except BadAlloc:
            code = OUT_OF_MEMORY
        return self.store(code)

    return run


def caption_item_operation(body):
    """Like `operation`, but a caption item lets exhausted memory through."""

    @functools.wraps(body)
    def run(self, *arguments):
        return self.store(code_of(body, self, arguments))

    return run


def ends(code):
    """A failing code ends the operation with that code."""
    if failed(code):
        raise Stop(code)


def ends_for(who, code):
    """A failing code ends the operation with the last error of `who`, which may be anything."""
    if failed(code):
        raise Stop(who.getLastError())


def wrapped(number):
    """The number in 64 bits, which may change its sign."""
    return (number + 2**63) % 2**64 - 2**63


def copy_of(value):
    return list(value) if isinstance(value, list) else value


def setter(field, accepts, wrap):
    def body(self, *values):
        if not all(map(accepts, values)):
            return INVALID_ARGUMENT
        setattr(self, field, values if len(values) > 1 else copy_of(values[0]))

    return wrap(body)


def getter(field, wrap=operation):
    def body(self, *refs):
        value = getattr(self, field)
        for ref, one in zip(refs, value if len(refs) > 1 else (value,)):
            ref.value = copy_of(one)

    return wrap(body)


def field_of(name):
    """The attribute that the operations use for `name`: "app_name" for "AppName"."""
    return re.sub("(?<=[a-z])(?=[A-Z])", "_", name).lower()


def anything(_value):
    return True


def is_time(value):
    return value >= 0


def properties(wrap=operation, **accepts):
    """A base class with a setter and a getter for each name. The setter refuses what the function
    beside the name does not accept."""
    members = {}
    for name, accepted in accepts.items():
        members["set" + name] = setter(field_of(name), accepted, wrap)
        members["get" + name] = getter(field_of(name), wrap)
    return type("Properties", (), members)


def get_field(source, name):
    """The values of one field. If the source fails, its last error ends the operation."""
    refs = [Ref() for _ in range(3 if name.endswith("Color") else 1)]
    ends_for(source, getattr(source, "get" + name)(*refs))
    return [ref.value for ref in refs]


def copy_fields(target, source, names):
    """Gets and sets field by field. If the target fails, its last error ends the operation."""
    for name in names:
        ends_for(target, getattr(target, "set" + name)(*get_field(source, name)))


def copy_texts(target, source):
    """Replaces the texts of one item with those of another."""
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


class LanguageList(LanguageInterface):
    """The list operations. `absent` is the code for removing a language that is not listed."""

    absent = NOT_FOUND

    def __init__(self):
        super().__init__()
        self.languages = []

    @operation
    def clearLanguages(self):
        self.languages = []

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

    @operation
    def removeLanguage(self, language):
        if language not in self.languages:
            return self.absent
        self.languages.remove(language)

    @operation
    def setOrderedLanguageIDs(self, ids):
        if len(ids) != len(self.languages) or any(i not in self.languages for i in ids):
            return INVALID_ARGUMENT
        self.languages = list(ids)

    getOrderedLanguageIDs = getter("languages")

    @operation
    def getLanguageCount(self, count):
        count.value = len(self.languages)

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

    def copy_one(self, other, name):
        """If a setter of the header fails, the copy ends with its code, not with the last error."""
        ends(getattr(self, "set" + name)(*get_field(other, name)))


class Header(
    HeaderInterface,
    LanguageList,
    properties(
        AppName=anything,
        AppVersion=anything,
        Title=anything,
        Creator=anything,
        Description=anything,
        Keywords=anything,
        IPodExplicit=anything,
        VideoLength=bool,
        VideoWidth=bool,
        VideoHeight=bool,
        ShowSearchBar=anything,
    ),
):
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

    getContentNames = getter("content_names")

    @operation
    def clearContentNames(self):
        self.content_names = []

    @operation
    def addContentName(self, name):
        ends(texts.verify_utf8(name, False))
        if name in self.content_names:
            return WARN_NO_CHANGE
        self.content_names.append(name)

    @operation
    def removeContentName(self, name):
        if name not in self.content_names:
            return WARN_NO_CHANGE
        self.content_names.remove(name)

    @operation
    def getContentNameCount(self, count):
        count.value = len(self.content_names)

    @operation
    def doesContentNameExist(self, name, exists):
        exists.value = name.value in self.content_names


def in_catalogue_and_utf8(content, language):
    """Whether an item accepts the text in the language."""
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

        @wrap
        def getTextForLanguage(self, content, language):
            if language not in self.texts:
                return INVALID_ARGUMENT
            content.value = self.texts[language]

    return PerLanguageTexts


def span(wrap, accepts_duration):
    """A base class with the operations on start, duration and the end that follows from them."""

    class Span(properties(wrap, Start=is_time, Duration=accepts_duration)):
        @wrap
        def setEnd(self, end):
            if end < 0 or end <= self.start:
                return INVALID_ARGUMENT
            self.duration = end - self.start

        @wrap
        def getEnd(self, end):
            end.value = wrapped(self.start + self.duration)

    return Span


class CaptionItemInterface(Result):
    @caption_item_operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        copy_texts(self, other)
        copy_fields(self, other, ("Start", "End", "Alignment"))


class CaptionItem(
    CaptionItemInterface,
    text_operations(caption_item_operation),
    span(caption_item_operation, lambda duration: duration > 0),
    properties(caption_item_operation, Alignment=anything),
):
    def __init__(self):
        super().__init__()
        self.start = self.duration = 0
        self.alignment = 0x01

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


# The image of an item.
IMAGE = {"ImageFile": anything, "ImageIndex": anything, "ImageOffset": anything}


class TocItem(
    TocItemInterface, text_operations(operation), properties(Start=is_time, **IMAGE)
):
    def __init__(self):
        super().__init__()
        self.start = self.image_index = self.image_offset = 0
        self.image_file = b""

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


class ScreenTextItem(
    ScreenTextItemInterface, span(operation, is_time), properties(GroupId=anything, **IMAGE)
):
    def __init__(self):
        super().__init__()
        self.start = self.duration = self.image_index = self.image_offset = self.group_id = 0
        self.text = self.image_file = b""

    getText = getter("text")

    @operation
    def setText(self, content):
        if not texts.is_utf8(content):
            return INVALID_ITEM
        self.text = content

    @operation
    def clearText(self):
        self.text = b""

    @operation
    def isValid(self, _deep):
        return OK if texts.is_utf8(self.text) else INVALID_ITEM

    def assign(self, other):
        self.start, self.duration, self.text = other.start, other.duration, other.text
        self.image_file, self.image_index = other.image_file, other.image_index
        self.image_offset, self.group_id = other.image_offset, other.group_id


# The operations on the items of a collection, under the names of its kind.
ITEM_OPERATIONS = {
    "clear_items": "clear%sItems",
    "add_item": "add%sItem",
    "create_item": "create%sItem",
    "remove_at": "remove%sItemAt",
    "remove_for_language": "remove%sItemsForLanguage",
    "count_items": "get%sItemCount",
    "item_at": "get%sItemAt",
    "all_items": "get%sItems",
    "items_for_language": "get%sItemsForLanguage",
}


def item_operations(cls, kind):
    """Each name that the operations of the class have for this kind, with the operation."""
    for own, name in ITEM_OPERATIONS.items():
        if hasattr(cls, own):
            yield name % kind, getattr(cls, own)


def of_kind(kind):
    """Decorates a class: its operations on items get the names of the kind."""

    def named(cls):
        for name, body in item_operations(cls, kind):
            setattr(cls, name, body)
        return cls

    return named


class ItemList(Result, properties(FrameRate=lambda rate: 1 <= rate <= 10000)):
    """What the three collections do with their items."""

    new_item = None

    def __init__(self):
        super().__init__()
        self.frame_rate = 1000
        self.items = []

    def copied(self, item):
        copy = type(self).new_item()
        ends_for(copy, copy.copyFrom(item))
        return copy

    @operation
    def clear_items(self):
        self.items = []

    @operation
    def add_item(self, item):
        self.items.append(self.copied(item))

    @operation
    def create_item(self, out):
        if out.value is not None:
            return INVALID_ARGUMENT
        out.value = type(self).new_item()

    @operation
    def remove_at(self, index):
        if index >= len(self.items):
            return INVALID_ARGUMENT
        del self.items[index]

    @operation
    def count_items(self, count):
        count.value = len(self.items)

    @operation
    def item_at(self, out, index):
        if out.value is not None or index >= len(self.items):
            return INVALID_ARGUMENT
        out.value = self.copied(self.items[index])

    @operation
    def all_items(self, out):
        out.value = []
        out.value = [self.copied(item) for item in self.items]

    @operation
    def order(self):
        """Exchange sort by start, with the exchanges in exactly this order."""
        for i in range(len(self.items)):
            for j in range(i + 1, len(self.items)):
                if self.items[j].start < self.items[i].start:
                    self.items[i], self.items[j] = self.items[j], self.items[i]

    @operation
    def isValid(self, strict):
        for i, item in enumerate(self.items):
            if strict:
                ends_for(item, item.isValid(True))
            self.check_texts(item)
            if any(self.ends_after(item, later) for later in self.items[i + 1 :]):
                return WARN_TIMING

    def check_texts(self, item):
        pass

    @staticmethod
    def ends_after(item, later):
        return item.start > later.start


class TranslatedItemList(LanguageList, ItemList):
    """The items of captions and tables of contents, which have a text in each language."""

    @operation
    def clear_items(self):
        self.items = []
        self.languages = []

    @operation
    def add_item(self, item):
        copy = self.copied(item)
        ids = Ref([])
        ends_for(copy, copy.getLanguageIDs(ids))
        for language in ids.value:
            if is_error(self.addLanguage(language)):
                raise Stop(self.getLastError())
        self.items.append(copy)

    @operation
    def remove_for_language(self, language):
        for item in self.items:
            ends_for(item, item.removeTextForLanguage(language))

    @operation
    def items_for_language(self, _items, _language):
        return NOT_IMPLEMENTED

    def check_texts(self, item):
        for language in self.languages:
            ends_for(item, item.getTextForLanguage(Ref(b""), language))

    @operation
    def make_consistent(self):
        self.order()
        for item in self.items:
            for language in self.languages:
                if failed(item.getTextForLanguage(Ref(b""), language)):
                    ends_for(item, item.setTextForLanguage(b"", language))


def copy_items(target, source, kind):
    """Adds the items of the source to the target, which loses its languages first if it has any."""
    items = Ref([])
    ends_for(source, getattr(source, "get%sItems" % kind)(items))
    if isinstance(target, LanguageInterface):
        ends_for(target, target.clearLanguages())
    for item in items.value:
        ends_for(target, getattr(target, "add%sItem" % kind)(item))


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
        copy_items(self, other, "Caption")


WHITE = (0x3F800000,) * 3
BLACK = (0,) * 3
SIX_TENTHS = 0x3F19999A


def in_unit_range(bits):
    """A NaN is not outside the range."""
    value = texts.float_of(bits)
    return not value < 0.0 and not value > 1.0


@of_kind("Caption")
class Captions(
    CaptionsInterface,
    TranslatedItemList,
    properties(
        FontFamily=bool,
        FontSize=lambda size: 1 <= size <= 500,
        ForegroundColor=in_unit_range,
        BackgroundColor=in_unit_range,
        BackgroundOpacity=in_unit_range,
    ),
):
    """Their styling cannot leave its ranges, because its setters refuse what isValid would find."""

    new_item = CaptionItem
    makeCaptionsConsistent = TranslatedItemList.make_consistent
    orderCaptions = ItemList.order

    def __init__(self):
        super().__init__()
        self.font_family = b"Helvetica"
        self.font_size = 20
        self.foreground_color, self.background_color = WHITE, BLACK
        self.background_opacity = SIX_TENTHS

    @staticmethod
    def ends_after(item, later):
        return wrapped(item.start + item.duration) > later.start


class TocInterface(LanguageInterface):
    @operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        ends_for(self, self.clearTocItems())
        ends_for(self, self.copyFromLanguage(other))
        copy_fields(self, other, ("ImageFile",))
        copy_items(self, other, "Toc")


@of_kind("Toc")
class Toc(TocInterface, TranslatedItemList, properties(ImageFile=anything)):
    new_item = TocItem
    makeTocConsistent = TranslatedItemList.make_consistent
    orderTocItems = ItemList.order

    def __init__(self):
        super().__init__()
        self.image_file = b""


class ScreenTextInterface(Result):
    @operation
    def copyFrom(self, other):
        if other is self:
            return INTERNAL_ERROR
        ends_for(self, self.clearScreenTextItems())
        copy_fields(self, other, ("FrameRate",))
        copy_items(self, other, "ScreenText")


@of_kind("ScreenText")
class ScreenText(ScreenTextInterface, ItemList):
    new_item = ScreenTextItem
    makeScreenTextConsistent = orderScreenTextItems = ItemList.order
