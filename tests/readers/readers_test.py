"""Reads packets of many kinds with third-party programs.

Usage: readers_test.py CLASS, where each class tests one reader."""

import itertools
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

import readers
from documents import (Caption, Document, Entry, LANGUAGES, ScreenText, description_lines,
                       expected)

CAPTIONS = [
    Caption(4000, 2500, {"en": "Second", "de": "Zweite"}, 0x22),
    Caption(0, 1500, {"en": "First", "fr": "Première"}, 0x11),
    Caption(1500, 2500, {"en": "Between"}, 0x00),
]
TOC = [
    Entry(5000, {"fr": "Fin", "de": "Ende"}, "thumbs.png", 1, 2048),
    Entry(0, {"de": "Anfang"}),
    Entry(1000, {}),
]
SCREEN_TEXT = [
    ScreenText(3000, 0, "OK", "shots.png", 4, 2**40, 7),
    ScreenText(2000, 1500, "Click Save", "shots.png", 3, 4096, 1),
]
CJK = {"zh": "你好，世界。漢字", "ja": "日本語 (にほんご／にっぽんご)", "ko": "한국어 문장입니다",
       "zh-TW": "𠀋𡃁"}
RIGHT_TO_LEFT = {"ar": "مرحبا (123) بالعالم!", "he": "שלום, עולם\u200e",
                 "fa": "فارسی\u200cها", "ur": "اردو"}
EMOJI = {"en": "👋🏽 👩‍👩‍👧‍👦 🇩🇪 ❤️", "de": "😀", "fr": "\U0010fffd"}
SPECIAL = {"en": "\"a\" & 'b' < c > d", "de": "&amp; &lt;b&gt; &#65; <![CDATA[x]]>",
           "fr": "]]>&&<<>>''\"\""}
LINE_FEEDS = {"en": "one\ntwo\n\nfour", "de": "\nAnfang", "fr": "fin\n"}
SPACES = {"en": " one  two ", "de": "\u00a0Rand\u3000", "fr": "a \n b"}
EMPTY = {"en": "", "de": "da", "fr": ""}
LOOK_ALIKES = {"en": "12", "de": "true", "fr": "FALSE", "it": "1/2",
               "es": "-1.5e3", "pt": "{\\rtf1 }"}
IDS = {"EN": "upper", "de-at": "lower", "pt-BR": "mixed",
       "zh-hans-cn": "three", "sr-Latn": "script"}
CONTROLS = {"en": "a\tb\rc\x01d\x1fe\x7ff", "de": "\t"}


def everywhere(texts):
    """A document with these texts everywhere that a text can be."""
    first = min(texts)
    return Document(
        title=texts[first], description=texts[first], app=(texts[first], texts[first]),
        keywords=list(texts.values()),
        captions=[Caption(0, 1000, texts), Caption(1000, 1000, {first: "plain"})],
        toc=[Entry(0, texts), *(Entry(index + 1, {first: text})
                                for index, text in enumerate(texts.values()))],
        screen_text=[ScreenText(index, 1, text) for index, text in enumerate(texts.values())])


def subsets():
    """A header with each combination of the other three sets."""
    for captions, toc, screen_text in itertools.product((None, CAPTIONS), (None, TOC),
                                                        (None, SCREEN_TEXT)):
        yield Document("Subset", captions=captions, toc=toc, screen_text=screen_text)


class ReaderTest(unittest.TestCase):
    """The tests of every reader; each subclass names its reader."""
    reader = None

    def setUp(self):
        self.maxDiff = None
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def packet(self, document):
        """Writes the document's packet with the library; returns its path."""
        description, packet = self.folder / "description", self.folder / "packet.xmp"
        description.write_text("\n".join(description_lines(document)), encoding="ascii")
        result = subprocess.run([os.environ["PACKET_MAKER"], description, packet], check=False,
                                capture_output=True, text=True)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        return packet

    def changed_packet(self, old, new):
        """Writes a packet with one piece of text replaced; returns its path."""
        packet = self.packet(everywhere(EMOJI))
        text = packet.read_text(encoding="utf-8")
        self.assertEqual(text.count(old), 1, old)
        packet.write_text(text.replace(old, new), encoding="utf-8")
        return packet

    def assert_read(self, document):
        self.assertEqual(self.reader.read(self.packet(document)),
                         self.reader.shown(expected(document)))

    def assert_refused(self, packet):
        with self.assertRaises(readers.Refused):
            self.reader.read(packet)

    def test_every_subset_of_the_data_sets(self):
        for document in subsets():
            with self.subTest(captions=bool(document.captions), toc=bool(document.toc),
                              screen_text=bool(document.screen_text)):
                self.assert_read(document)

    def test_sets_without_items_have_no_track(self):
        self.assert_read(Document("Empty sets", captions=[], toc=[], screen_text=[]))

    def test_every_property_of_the_header(self):
        self.assert_read(Document("Title", "Ann and Bob", "What it is", ("Recorder", "2.0"),
                                  ["one", "two words"], ["a.mp4", "b & c.xml"],
                                  (4294967295, 7680, 4320), True))

    def test_chinese_japanese_and_korean(self):
        self.assert_read(everywhere(CJK))

    def test_right_to_left_scripts(self):
        self.assert_read(everywhere(RIGHT_TO_LEFT))

    def test_emoji(self):
        self.assert_read(everywhere(EMOJI))

    def test_the_special_characters(self):
        self.assert_read(everywhere(SPECIAL))

    def test_line_feeds(self):
        self.assert_read(everywhere(LINE_FEEDS))

    def test_spaces(self):
        self.assert_read(everywhere(SPACES))

    def test_empty_texts(self):
        self.assert_read(everywhere(EMPTY))

    def test_texts_that_look_like_other_types(self):
        self.assert_read(everywhere(LOOK_ALIKES))

    def test_language_ids_of_many_forms(self):
        self.assert_read(everywhere(IDS))

    def test_control_characters_are_left_out_of_the_tracks(self):
        self.assert_read(Document("Controls", captions=[Caption(0, 1, CONTROLS)],
                                  toc=[Entry(0, CONTROLS)],
                                  screen_text=[ScreenText(0, 1, text)
                                               for text in CONTROLS.values()]))

    def test_all_languages(self):
        self.assertEqual(len(LANGUAGES), 184)
        native = {code: name for code, (_, name) in LANGUAGES.items()}
        backwards = dict(reversed(native.items()))
        self.assert_read(Document("Languages", captions=[Caption(0, 1, native),
                                                         Caption(1, 1, backwards)]))

    def test_every_alignment(self):
        alignments = [vertical | horizontal for vertical in (0x00, 0x01, 0x02)
                      for horizontal in (0x00, 0x10, 0x20)]
        self.assert_read(Document("Alignments", captions=[
            Caption(index, 1, {"en": f"{alignment:#x}"}, alignment)
            for index, alignment in enumerate(alignments)]))

    def test_the_largest_numbers(self):
        largest = 2**62
        self.assert_read(Document("Numbers", captions=[Caption(largest, largest - 1, {"en": "x"})],
                                  toc=[Entry(2**63 - 1, {"en": "x"}, "a.png", 2**64 - 1,
                                             2**64 - 1)],
                                  screen_text=[ScreenText(largest, largest - 1, "x", "a.png",
                                                          2**64 - 1, 2**64 - 1, 2**64 - 1)],
                                  screen_text_rate=10000))

    def test_many_captions(self):
        self.assert_read(Document("Many", captions=[
            Caption(index * 1000, 900, {"en": f"Caption {index}", "de": f"Untertitel {index}"})
            for index in range(500)]))

    # These test the checks: a packet that was tampered with must not pass.

    def test_a_changed_text_is_noticed(self):
        packet = self.changed_packet('<rdf:li xml:lang="de">😀</rdf:li>',
                                     '<rdf:li xml:lang="de">😁</rdf:li>')
        self.assertNotEqual(self.reader.read(packet),
                            self.reader.shown(expected(everywhere(EMOJI))))

    def test_a_changed_time_is_noticed(self):
        packet = self.changed_packet('xmpDM:startTime="1000"', 'xmpDM:startTime="1001"')
        self.assertNotEqual(self.reader.read(packet),
                            self.reader.shown(expected(everywhere(EMOJI))))

    def test_a_truncated_packet_is_refused(self):
        packet = self.packet(everywhere(EMOJI))
        content = packet.read_bytes()
        packet.write_bytes(content[:len(content) // 2])
        self.assert_refused(packet)

    def test_a_missing_end_tag_is_refused(self):
        self.assert_refused(self.changed_packet("</rdf:RDF>", ""))


class StrictReaderTest(ReaderTest):
    """The tests of the readers that refuse what ExifTool accepts."""

    def test_an_unescaped_character_is_refused(self):
        self.assert_refused(self.changed_packet(">😀<", ">a < b<"))

    def test_an_undeclared_prefix_is_refused(self):
        self.assert_refused(self.changed_packet(' xmlns:zelDM="', ' xmlns:other="'))


class Xmllint(StrictReaderTest):
    reader = readers.Xmllint


class Rapper(StrictReaderTest):
    reader = readers.Rapper


class Exempi(StrictReaderTest):
    reader = readers.Exempi


class ExifTool(ReaderTest):
    reader = readers.ExifTool

    def test_a_changed_language_goes_unnoticed(self):
        """ExifTool ignores these languages; the other three readers check them."""
        packet = self.changed_packet('<rdf:li xml:lang="de">😀</rdf:li>',
                                     '<rdf:li xml:lang="da">😀</rdf:li>')
        self.assertEqual(self.reader.read(packet),
                         self.reader.shown(expected(everywhere(EMOJI))))


del ReaderTest, StrictReaderTest  # run only the classes that name a reader


if __name__ == "__main__":
    unittest.main()
