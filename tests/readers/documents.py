"""Documents that the tests write, and the data that every reader should find in their packets.

The expected data has the shape of the packet's data: a structure is a dictionary from property names
to values, a list is a list, a plain string is the value of an attribute, and an Item is a list entry
that the packet holds as the text of an element."""

import re
from collections import namedtuple
from dataclasses import dataclass, field
from pathlib import Path
from urllib.parse import quote

Item = namedtuple("Item", "language text")

# The packet's text of a caption in a language in which the caption has no text.
PLACEHOLDER = "{\\rtf1 }"

# The library strips control characters other than the line feed from the tracks.
CONTROL = re.compile(r"[\x00-\x09\x0b-\x1f]")

VERTICAL = {0x00: "center", 0x01: "bottom", 0x02: "top"}
HORIZONTAL = {0x00: "center", 0x10: "left", 0x20: "right"}

LANGUAGE_TABLE = Path(__file__).parent.parent / "util" / "LanguageNames.inc"


@dataclass
class Caption:
    start: int
    duration: int
    texts: dict
    alignment: int = 0x01


@dataclass
class Entry:
    start: int
    titles: dict
    image: str = "thumbs.png"
    index: int = 0
    offset: int = 0


@dataclass
class ScreenText:
    start: int
    duration: int
    text: str
    image: str = "shots.png"
    index: int = 0
    offset: int = 0
    group: int = 0


@dataclass
class Document:
    title: str
    creator: str = "Ann"
    description: str = ""
    app: tuple = ("Recorder", "2.0")
    keywords: list = field(default_factory=list)
    contents: list = field(default_factory=list)
    video: tuple = (90500, 640, 480)
    explicit: bool = False
    captions: list = None
    toc: list = None
    screen_text: list = None
    screen_text_rate: int = 1000


def language_names():
    """The language catalogue, from code to English and native name."""
    entry = re.compile(r'\{"(\w\w)",((?:\s*"[0-9A-F]*")+),((?:\s*"[0-9A-F]*")+)\}')
    table = entry.findall(LANGUAGE_TABLE.read_text(encoding="ascii"))
    return {code: tuple(bytes.fromhex(re.sub(r'[\s"]', "", name)).decode() for name in names)
            for code, *names in table}


LANGUAGES = language_names()


def word(text):
    """The text as one word of a description."""
    return "=" + quote(text, safe="")


def words(texts):
    """The pairs of language and text at the end of a line."""
    return " ".join(f"{language} {word(text)}" for language, text in texts.items())


def description_lines(document):
    """The lines of the document's description for packet_maker."""
    yield f"title {word(document.title)}"
    yield f"creator {word(document.creator)}"
    yield f"description {word(document.description)}"
    yield "app " + " ".join(word(text) for text in document.app)
    yield from (f"keyword {word(keyword)}" for keyword in document.keywords)
    yield from (f"content {word(name)}" for name in document.contents)
    yield "video " + " ".join(str(number) for number in document.video)
    if document.explicit:
        yield "explicit"
    if document.captions is not None:
        yield "captions"
        for item in document.captions:
            yield f"caption {item.start} {item.duration} {item.alignment} {words(item.texts)}"
    if document.toc is not None:
        yield "toc"
        for item in document.toc:
            yield (f"entry {item.start} {item.index} {item.offset} {word(item.image)} "
                   f"{words(item.titles)}")
    if document.screen_text is not None:
        yield f"screentext {document.screen_text_rate}"
        for item in document.screen_text:
            yield (f"item {item.start} {item.duration} {item.index} {item.offset} {item.group} "
                   f"{word(item.image)} {word(item.text)}")


def languages_of(texts_of_items):
    """The languages in order of first occurrence, and in ascending order within an item."""
    languages = []
    for texts in texts_of_items:
        languages += [language for language in sorted(texts) if language not in languages]
    return languages


def by_start(items):
    return sorted(items, key=lambda item: item.start)


def expected_caption(item, languages):
    texts = [CONTROL.sub("", item.texts.get(language, "")) for language in languages]
    return {
        "xmpDM:startTime": str(item.start),
        "xmpDM:duration": str(item.duration),
        "zelDM:valign": VERTICAL[item.alignment & 0x0F],
        "zelDM:halign": HORIZONTAL[item.alignment & 0xF0],
        "xmpDM:name": [Item(language, text or PLACEHOLDER)
                       for language, text in zip(languages, texts)],
    }


def expected_caption_track(captions):
    languages = languages_of(item.texts for item in captions)
    return {
        "xmpDM:trackType": "Caption",
        "xmpDM:frameRate": "f1000",
        "xmpDM:trackName": "Captioning",
        "stFnt:fontFamily": "Helvetica",
        "zelDM:fontSize": "20",
        "zelDM:bgOpacity": "0.6",
        "xmpDM:markers": [expected_caption(item, languages) for item in by_start(captions)],
        "zel:fgColor": {"xmpG:red": "255", "xmpG:green": "255", "xmpG:blue": "255",
                        "xmpG:mode": "RGB"},
        "zel:bgColor": {"xmpG:red": "0", "xmpG:green": "0", "xmpG:blue": "0", "xmpG:mode": "RGB"},
    }


def expected_entry(item, language):
    return {
        "xmpDM:name": CONTROL.sub("", item.titles.get(language, "")),
        "xmpDM:startTime": str(item.start),
        "zelDM:image": item.image,
        "zelDM:imageindex": str(item.index),
        "zelDM:imageoffset": str(item.offset),
    }


def expected_toc_track(entries):
    # In the packet, an entry has one title: the one in the first language of the whole table.
    language = (languages_of(item.titles for item in entries) or [None])[0]
    return {
        "xmpDM:trackType": "TableOfContents",
        "xmpDM:trackName": "Table of Contents",
        "xmpDM:frameRate": "f1000",
        "zelDM:image": "",
        "xmpDM:markers": [expected_entry(item, language) for item in by_start(entries)],
    }


def expected_screen_text(item):
    return {
        "xmpDM:name": CONTROL.sub("", item.text),
        "xmpDM:startTime": str(item.start),
        "xmpDM:duration": str(item.duration),
        "xmpDM:image": item.image,
        "zelDM:imageindex": str(item.index),
        "zelDM:imageoffset": str(item.offset),
        "zelDM:tocEntry": str(item.group),
    }


def expected_screen_text_track(items, rate):
    return {
        "xmpDM:trackType": "ScreenText",
        "xmpDM:frameRate": f"f{rate}",
        "xmpDM:trackName": "Screen Text",
        "xmpDM:markers": [expected_screen_text(item) for item in by_start(items)],
    }


def expected_tracks(document):
    """The tracks of the sets that have items."""
    tracks = []
    if document.captions:
        tracks.append(expected_caption_track(document.captions))
    if document.toc:
        tracks.append(expected_toc_track(document.toc))
    if document.screen_text:
        tracks.append(expected_screen_text_track(document.screen_text, document.screen_text_rate))
    return tracks


def expected_header(document):
    length, width, height = document.video
    return {
        "zel:version": "1.1.0",
        "dc:title": document.title,
        "dc:creator": document.creator,
        "dc:Description": document.description,
        "dc:source": " - ".join(document.app),
        "zelDM:iPodExplicit": "true" if document.explicit else "false",
        "zelDM:keywords": ", ".join(document.keywords),
        "zelDM:thumbnail": "",
        "zelDM:firstFrame": "",
        "xmpDM:duration": {"xmpDM:scale": "1/1000", "xmpDM:value": str(length)},
        "xmpDM:videoFrameSize": {"stDim:unit": "pixel", "stDim:w": str(width),
                                 "stDim:h": str(height)},
        "zelDM:controller": {
            "xmpDM:name": "qmplayer",
            "zelDM:parameters": [{"xmpDM:name": "showsearch", "xmpDM:value": "true"}],
        },
    }


def expected(document):
    """All data of the document's packet except the date."""
    languages = languages_of(item.texts for item in document.captions or []) or ["en-US"]
    data = expected_header(document)
    data["zel:langName"] = [Item(language, LANGUAGES[language[:2].lower()][0])
                            for language in languages]
    data["xmpDM:Tracks"] = expected_tracks(document)
    if document.contents:
        data["zelDM:contentList"] = {"zelDM:files": [
            {"xmpDM:name": str(index), "xmpDM:value": name}
            for index, name in enumerate(document.contents)]}
    return data
