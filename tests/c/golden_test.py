"""Writes the golden packets through the C face, byte for byte.

The environment names LIBRARY and ROOT, the project's folder."""

import os
import re
import tempfile
import unittest
from ctypes import byref, c_int32
from itertools import combinations
from pathlib import Path

from binding import CONSTANTS, Library

LIBRARY = Library(os.environ["LIBRARY"])
GOLDEN = Path(os.environ["ROOT"], "tests/core/data")
XMP = CONSTANTS["ZELDATA_FORMAT_XMP"]
DECLARATION = b'<?xml version="1.0" encoding="utf-8" ?>'
DATE = re.compile(rb'dc:date="\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[+-]\d{1,2}:00" ')


def header():
    made = LIBRARY.new("header")
    made.set_video_length(90500)
    made.set_video_width(640)
    made.set_video_height(480)
    made.set_title(b'Tea & "Time"')
    made.set_creator(b"Ann 'n' Bo")
    made.set_description("one < two\n茶 🍵".encode())
    made.set_app_name(b"Recorder")
    made.set_app_version(b"2.0")
    with LIBRARY.new("strings") as keywords:
        keywords.add(b"a")
        keywords.add(b"b & c")
        made.set_keywords(keywords)
    made.set_ipod_explicit(1)
    made.set_show_search_bar(0)
    made.add_language(b"ja")
    made.add_content_name(b"intro.mp4")
    made.add_content_name(b"it's.xml")
    return made


def captions():
    made = LIBRARY.new("captions")
    for language, text, start in ((b"fr", "un\tthé\nchaud", 4000), (b"de", "<b>Tee</b>", 1500)):
        with LIBRARY.new("caption_item") as item:
            item.set_text_for_language(text.encode(), language)
            item.set_start(start)
            item.set_duration(2000)
            item.set_alignment(CONSTANTS["ZELDATA_ALIGN_TOP"] | CONSTANTS["ZELDATA_ALIGN_RIGHT"])
            made.add_item(item)
    made.set_frame_rate(25)
    made.set_font_family(b"Courier")
    made.set_font_size(24)
    made.set_foreground_color(1.0, 0.5, 0.999)
    made.set_background_color(0.0, 0.25, 0.0)
    made.set_background_opacity(0.25)
    return made


def toc():
    made = LIBRARY.new("toc")
    for title, start, index in ((b"Pour & drink", 5000, 1), (b"Boil", 0, 0)):
        with LIBRARY.new("toc_item") as item:
            item.set_text_for_language(title, b"en")
            item.set_start(start)
            item.set_image_file(b"thumbs & more.png")
            item.set_image_index(index)
            item.set_image_offset(index * 2048)
            made.add_item(item)
    made.set_frame_rate(30)
    made.set_image_file(b"<toc>.png")
    return made


def screentext():
    made = LIBRARY.new("screen_text")
    for text, start, group in ((b"Stop <now>", 6000, 1), (b"Click Save", 2000, 0)):
        with LIBRARY.new("screen_text_item") as item:
            item.set_text(text)
            item.set_start(start)
            item.set_duration(1500)
            item.set_image_file(b"shots.png")
            item.set_image_index(3)
            item.set_image_offset(4096)
            item.set_group_id(group)
            made.add_item(item)
    made.set_frame_rate(50)
    return made


SETS = {"header": header, "captions": captions, "toc": toc, "screentext": screentext}


def documents():
    """A name and a document for each combination of the header with the other sets."""
    others = list(SETS)[1:]
    for count in range(len(others) + 1):
        for chosen in combinations(others, count):
            document = LIBRARY.new("document")
            for name in ("header", *chosen):
                with SETS[name]() as data:
                    getattr(document, "set_" + data.kind)(data)
            yield "-".join(("header", *chosen)), document


def without_date(packet):
    masked, count = DATE.subn(b'dc:date="DATE" ', packet)
    assert count == 1
    return masked


class Golden(unittest.TestCase):
    def test_every_golden_packet_is_written_byte_for_byte(self):
        names = set()
        for name, document in documents():
            names.add(name)
            expected = (GOLDEN / f"{name}.xmp").read_bytes()
            with self.subTest(name), document, LIBRARY.new("string") as out:
                document.write_string(out, XMP, 0)
                self.assertEqual(without_date(out.bytes()), expected)
        self.assertEqual(names, {path.stem for path in GOLDEN.glob("*.xmp")})

    def test_both_ways_to_write_a_file_write_these_bytes(self):
        for name, document in documents():
            expected = DECLARATION + (GOLDEN / f"{name}.xmp").read_bytes()
            with self.subTest(name), document, tempfile.TemporaryDirectory() as folder:
                path = Path(folder, "ü.xmp")
                document.write_file(os.fsencode(path), XMP, 0)
                self.assertEqual(without_date(path.read_bytes()), expected)
                path.unlink()
                system_error = c_int32(-1)
                document.replace_file(os.fsencode(path), byref(system_error), XMP)
                self.assertEqual(system_error.value, 0)
                self.assertEqual(without_date(path.read_bytes()), expected)


if __name__ == "__main__":
    unittest.main()
