"""The formatters and the documents: what they write, and the code of each step.

The texts are put together element by element, without the element tree, so a mistake in the tree
shows.
"""

import text as texts
from codes import (
    FILE_OPEN_FAILED,
    INTERNAL_ERROR,
    INVALID_ARGUMENT,
    INVALID_DATA,
    NO_DATA,
    NOT_IMPLEMENTED,
    OK,
    UNSUPPORTED_FORMAT,
    XMP,
    failed,
    is_error,
)
from data import (
    Captions,
    Header,
    Ref,
    Result,
    ScreenText,
    Stop,
    Toc,
    ends,
    ends_for,
    operation,
)
from xmltree import DECLARATION

# The place of the moment of writing, which only the comparison fills.
DATE = b"<the moment of writing>"

NAMESPACES = (
    (b"rdf", b"http://www.w3.org/1999/02/22-rdf-syntax-ns#"),
    (b"xmp", b"http://ns.adobe.com/xap/1.0/"),
    (b"xmpDM", b"http://ns.adobe.com/xmp/1.0/DynamicMedia/"),
    (b"xmpG", b"http://ns.adobe.com/xap/1.0/g/"),
    (b"zel", b"http://ns.zel.example/xmp/zel/"),
    (b"zelDM", b"http://ns.zel.example/xmp/zelDM/"),
    (b"zelHS", b"http://ns.zel.example/xmp/zelHS/"),
    (b"stDim", b"http://ns.adobe.com/xap/1.0/sType/Dimensions#"),
    (b"stFnt", b"http://ns.adobe.com/xap/1.0/sType/Font#"),
    (b"dc", b"http://purl.org/dc/elements/1.1/"),
)

ANCHOR = b"<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>"
PLACEHOLDER = b"{\\rtf1 }"


def element(name, attributes=(), *inner):
    start = b"".join(key + b'="' + value + b'" ' for key, value in attributes)
    start = name + (b" " + start if start else b"")
    return b"<" + start + b">" + b"".join(inner) + b"</" + name + b">"


def truth(flag):
    return b"true" if flag else b"false"


def language_markup(languages):
    out = b""
    for language in languages:
        names = texts.language_names(language)
        if names is None:
            break
        name = texts.tags_to_text(names[0])
        out += b'<rdf:li xml:lang="' + language + b'">' + name + b"</rdf:li>"
    return out


def content_markup(names):
    return b"".join(
        b'<rdf:li xmpDM:name="%d" xmpDM:value="' % index + texts.tags_to_text(name) + b'"></rdf:li>'
        for index, name in enumerate(names)
    )


def description_attributes(h):
    escaped = texts.tags_to_text
    return (
        (b"zel:version", b"1.1.0"),
        (b"dc:title", escaped(h.title)),
        (b"dc:date", DATE),
        (b"dc:creator", h.creator),
        (b"dc:Description", escaped(h.description)),
        (b"dc:source", escaped(h.app_name + b" - " + h.app_version)),
        (b"zelDM:iPodExplicit", truth(h.ipod_explicit)),
        (b"zelDM:keywords", escaped(b", ".join(h.keywords))),
        (b"zelDM:thumbnail", b""),
        (b"zelDM:firstFrame", b""),
    )


def size_elements(h):
    length = ((b"xmpDM:scale", b"1/1000"), (b"xmpDM:value", texts.decimal(h.video_length)))
    width, height = texts.decimal(h.video_width), texts.decimal(h.video_height)
    frame = ((b"stDim:unit", b"pixel"), (b"stDim:w", width), (b"stDim:h", height))
    return element(b"xmpDM:duration", length) + element(b"xmpDM:videoFrameSize", frame)


def controller(h):
    search = ((b"xmpDM:name", b"showsearch"), (b"xmpDM:value", truth(h.show_search_bar)))
    bag = element(b"rdf:Bag", (), element(b"rdf:li", search))
    inner = element(b"zelDM:parameters", (), bag)
    player = element(b"rdf:Description", ((b"xmpDM:name", b"qmplayer"),), inner)
    return element(b"zelDM:controller", (), player)


def header_text(h):
    parts = [size_elements(h)]
    if h.languages:
        bag = element(b"rdf:Bag", (), language_markup(h.languages))
        parts.append(element(b"zel:langName", (), bag))
    parts += [ANCHOR, controller(h)]
    if h.content_names:
        sequence = element(b"rdf:Seq", (), content_markup(h.content_names))
        files = element(b"zelDM:files", (), sequence)
        parts.append(element(b"zelDM:contentList", (), element(b"rdf:Description", (), files)))
    description = element(b"rdf:Description", description_attributes(h), *parts)
    spaces = tuple((b"xmlns:" + prefix, uri) for prefix, uri in NAMESPACES)
    frame = element(b"rdf:RDF", spaces, description)
    return element(b"x:xmpmeta", ((b"xmlns:x", b"adobe:ns:meta/"),), frame)


def marker(attributes, *inner):
    return element(b"rdf:li", (), element(b"rdf:Description", attributes, *inner))


def track(attributes, markers, *more):
    sequence = element(b"xmpDM:markers", (), element(b"rdf:Seq", (), *markers))
    return marker(attributes, sequence, *more)


def caption_texts(languages, item):
    out = b"<xmpDM:name><rdf:Alt>"
    for language in languages:
        content = texts.strip_unsupported(texts.tags_to_text(item.texts[language]))
        out += b'<rdf:li xml:lang="' + language + b'">' + (content or PLACEHOLDER) + b"</rdf:li>"
    return out + b"</rdf:Alt></xmpDM:name>"


def caption_marker(languages, item):
    attributes = (
        (b"xmpDM:startTime", texts.decimal(item.start)),
        (b"xmpDM:duration", texts.decimal(item.duration)),
        (b"zelDM:valign", texts.vertical_alignment(item.alignment)),
        (b"zelDM:halign", texts.horizontal_alignment(item.alignment)),
    )
    return marker(attributes, caption_texts(languages, item))


def colour_value(bits):
    value = texts.float_of(bits)
    return b"0" if value != value else texts.decimal(int(value * 255.0))


def colour(name, components):
    keys = (b"xmpG:red", b"xmpG:green", b"xmpG:blue")
    values = tuple(zip(keys, map(colour_value, components)))
    return element(name, values + ((b"xmpG:mode", b"RGB"),))


def captions_text(c):
    attributes = (
        (b"xmpDM:trackType", b"Caption"),
        (b"xmpDM:frameRate", texts.rate(c.frame_rate)),
        (b"xmpDM:trackName", b"Captioning"),
        (b"stFnt:fontFamily", c.font_family),
        (b"zelDM:fontSize", texts.decimal(c.font_size)),
        (b"zelDM:bgOpacity", texts.value_of_float(c.background_opacity)),
    )
    markers = [caption_marker(c.languages, item) for item in c.items]
    colours = colour(b"zel:fgColor", c.foreground_color), colour(b"zel:bgColor", c.background_color)
    return track(attributes, markers, *colours)


def toc_marker(languages, item):
    title = texts.tags_to_text(item.texts[languages[0]]) if languages else b""
    return marker(
        (
            (b"xmpDM:name", texts.strip_unsupported(title)),
            (b"xmpDM:startTime", texts.decimal(item.start)),
            (b"zelDM:image", texts.tags_to_text(item.image_file)),
            (b"zelDM:imageindex", texts.decimal(item.image_index)),
            (b"zelDM:imageoffset", texts.decimal(item.image_offset)),
        )
    )


def toc_text(t):
    attributes = (
        (b"xmpDM:trackType", b"TableOfContents"),
        (b"xmpDM:trackName", b"Table of Contents"),
        (b"xmpDM:frameRate", texts.rate(t.frame_rate)),
        (b"zelDM:image", texts.tags_to_text(t.image_file)),
    )
    return track(attributes, [toc_marker(t.languages, item) for item in t.items])


def screen_text_marker(item):
    return marker(
        (
            (b"xmpDM:name", texts.strip_unsupported(texts.tags_to_text(item.text))),
            (b"xmpDM:startTime", texts.decimal(item.start)),
            (b"xmpDM:duration", texts.decimal(item.duration)),
            (b"xmpDM:image", item.image_file),
            (b"zelDM:imageindex", texts.decimal(item.image_index)),
            (b"zelDM:imageoffset", texts.decimal(item.image_offset)),
            (b"zelDM:tocEntry", texts.decimal(item.group_id)),
        )
    )


def screen_text_text(s):
    attributes = (
        (b"xmpDM:trackType", b"ScreenText"),
        (b"xmpDM:frameRate", texts.rate(s.frame_rate)),
        (b"xmpDM:trackName", b"Screen Text"),
    )
    return track(attributes, [screen_text_marker(item) for item in s.items])


class Formatter(Result):
    """What the four formatters share: the held copy and the stubs."""

    new_set = None
    clear = None

    def __init__(self):
        super().__init__()
        self.held = None

    @operation
    def take(self, source):
        if self.held is None:
            self.held = type(self).new_set()
        ends_for(self.held, getattr(self.held, self.clear)())
        ends_for(self.held, self.held.copyFrom(source))

    @operation
    def refuse(self, _target):
        return NOT_IMPLEMENTED

    def check(self, kind):
        """Refuses another format, and refuses to write before a set was given."""
        if kind != XMP:
            raise Stop(INTERNAL_ERROR)
        if self.held is None:
            raise Stop(INVALID_DATA)

    @operation
    def readString(self, _text, kind, _flag):
        return NOT_IMPLEMENTED if kind == XMP else INTERNAL_ERROR

    @operation
    def readFile(self, _path, kind):
        return NOT_IMPLEMENTED if kind == XMP else INTERNAL_ERROR

    @operation
    def writeFile(self, _file, kind, flag):
        if kind != XMP:
            return INTERNAL_ERROR
        ends(self.writeString(Ref(b""), kind, flag))
        return NOT_IMPLEMENTED


class HeaderFormatter(Formatter):
    new_set = Header
    clear = "clearHeader"
    setHeader, getHeader = Formatter.take, Formatter.refuse

    @operation
    def writeString(self, out, kind, _flag):
        self.check(kind)
        out.value = header_text(self.held)

    @operation
    def writeFile(self, _file, kind, _flag):
        """Unlike the others, never writes a string first."""
        return NOT_IMPLEMENTED if kind == XMP else INTERNAL_ERROR


class TrackFormatter(Formatter):
    make_consistent = None
    write_track = None

    @operation
    def writeString(self, out, kind, _flag):
        self.check(kind)
        if not self.held.items:
            return OK
        ends_for(self.held, getattr(self.held, self.make_consistent)())
        for index in range(len(self.held.items)):
            # The formatter reads copies of the items, and a half-filled item cannot be copied.
            ends_for(self.held, self.held.item_at(Ref(None), index))
        out.value = type(self).write_track(self.held)


class CaptionFormatter(TrackFormatter):
    new_set, clear, make_consistent = Captions, "clearCaptionItems", "makeCaptionsConsistent"
    setCaptions, getCaptions = Formatter.take, Formatter.refuse
    write_track = staticmethod(captions_text)


class TocFormatter(TrackFormatter):
    new_set, clear, make_consistent = Toc, "clearTocItems", "makeTocConsistent"
    setToc, getToc = Formatter.take, Formatter.refuse
    write_track = staticmethod(toc_text)


class ScreenTextFormatter(TrackFormatter):
    new_set, clear, make_consistent = ScreenText, "clearScreenTextItems", "makeScreenTextConsistent"
    setScreenText, getScreenText = Formatter.take, Formatter.refuse
    write_track = staticmethod(screen_text_text)


def made(new):
    """A factory: fills an empty out-pointer. `out.value` is None only for a fresh one."""

    def factory(out):
        if out.value is not None:
            return INVALID_ARGUMENT
        out.value = new()
        return OK

    return factory


def made_formatter(new):
    def factory(out, kind):
        if out.value is not None:
            return INVALID_ARGUMENT
        if kind != XMP:
            return UNSUPPORTED_FORMAT
        out.value = new()
        return OK

    return factory


# Kind of set: its class, the operation that empties it.
SETS = {
    "Header": (Header, "clearHeader"),
    "Captions": (Captions, "clearCaptionItems"),
    "Toc": (Toc, "clearTocItems"),
    "ScreenText": (ScreenText, "clearScreenTextItems"),
}


class File:
    """A path in the scratch folder, whether it can be opened, and the contents of its file."""

    def __init__(self, openable, content):
        self.openable = openable
        self.content = content


def set_operation(kind):
    def body(self, source):
        held = self.held.get(kind)
        if held is None:
            held = self.held[kind] = SETS[kind][0]()
            self.store(OK)
        # If the header fails and there are captions, the code is their last error.
        teller = self.held.get("Captions", held) if kind == "Header" else held
        ends_for(teller, getattr(held, SETS[kind][1])())
        ends_for(teller, held.copyFrom(source))

    return operation(body)


def get_operation(kind):
    def body(self, target):
        held = self.held.get(kind)
        if held is None:
            return NO_DATA
        ends_for(target, getattr(target, SETS[kind][1])())
        ends_for(target, target.copyFrom(held))

    return operation(body)


def create_operation(kind):
    def body(_self, out):
        return made(SETS[kind][0])(out)

    return operation(body)


class Document(Result):
    def __init__(self):
        super().__init__()
        self.held = {}

    setDataHeader, getDataHeader = set_operation("Header"), get_operation("Header")
    setDataCaptions, getDataCaptions = set_operation("Captions"), get_operation("Captions")
    setDataToc, getDataToc = set_operation("Toc"), get_operation("Toc")
    setDataScreenText, getDataScreenText = set_operation("ScreenText"), get_operation("ScreenText")
    createDataHeader = create_operation("Header")
    createDataCaptions = create_operation("Captions")
    createDataToc = create_operation("Toc")
    createDataScreenText = create_operation("ScreenText")

    @operation
    def readString(self, _text, _kind, _flag):
        return NOT_IMPLEMENTED

    @operation
    def readFile(self, _path, _kind):
        return NOT_IMPLEMENTED

    def through_copy(self, kind, write):
        """Writes through a temporary document. Returns its final code but does not store it."""
        if kind != XMP:
            return self.store(UNSUPPORTED_FORMAT)
        copy = XmpDocument()
        for name in SETS:
            if name in self.held and failed(getattr(copy, "setData" + name)(self.held[name])):
                return self.store(copy.getLastError())
        return write(copy)

    def writeString(self, out, kind, append):
        return self.through_copy(kind, lambda copy: copy.writeString(out, XMP, append))

    def writeFile(self, file, kind, flag):
        return self.through_copy(kind, lambda copy: copy.writeFile(file, XMP, flag))


FORMATTERS = {
    "Captions": made_formatter(CaptionFormatter),
    "Toc": made_formatter(TocFormatter),
    "ScreenText": made_formatter(ScreenTextFormatter),
}


class XmpDocument(Document):
    def take_languages(self, header):
        """Gives the header the languages of the captions, or en-US alone."""
        ends_for(header, header.clearLanguages())
        ids = Ref([])
        captions = self.held.get("Captions")
        if captions and not failed(captions.getOrderedLanguageIDs(ids)):
            for language in ids.value:
                if is_error(header.addLanguage(language)):
                    raise Stop(header.getLastError())
        if not header.languages and is_error(header.addLanguage(b"en-US")):
            raise Stop(header.getLastError())

    def part(self, factory, kind, name):
        formatter, out = Ref(None), Ref(b"")
        ends(factory(formatter, kind))
        formatter = formatter.value
        ends_for(formatter, getattr(formatter, "set" + name)(self.held[name]))
        ends_for(formatter, formatter.writeString(out, kind, False))
        return out.value

    @staticmethod
    def joined(frame, tracks):
        at = frame.rfind(ANCHOR)
        if at < 0 or at >= len(frame) - 25:
            raise Stop(INTERNAL_ERROR)
        return frame[: at + 23] + tracks + frame[at + 23 :]

    @operation
    def writeString(self, out, kind, append):
        header = self.held.get("Header")
        if header is None:
            return INVALID_ARGUMENT
        if failed(header.isValid()):
            return INVALID_DATA
        self.take_languages(header)
        frame = self.part(made_formatter(HeaderFormatter), kind, "Header")
        present = [name for name in FORMATTERS if name in self.held]
        tracks = b"".join(self.part(FORMATTERS[name], kind, name) for name in present)
        text = self.joined(frame, tracks) if tracks else frame
        out.value = out.value + text if append else text

    def writeFile(self, file, kind, _flag):
        text = Ref(b"")
        if failed(self.writeString(text, kind, False)):
            return self.getLastError()
        if not file.openable:
            return self.store(FILE_OPEN_FAILED)
        file.content = DECLARATION + text.value.partition(b"\0")[0]
        return self.store(OK)
