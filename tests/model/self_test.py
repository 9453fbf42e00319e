#!/usr/bin/env python3
"""Tests of the model alone, with the expectations written out."""

import sys
import unittest

sys.dont_write_bytecode = True

import data
import fakes
import packet
import run
import text as texts
from catalogue import LANGUAGES
from data import Ref
from generator import Generator
from session import Session
from xmltree import Stream, safe_xml

INVALID_ARGUMENT = 0x80000003


def got(getter, *arguments, before=None):
    """The value that a getter delivers."""
    ref = Ref(before)
    getter(ref, *arguments)
    return ref.value


class Checked(unittest.TestCase):
    def answers(self, code, thing, operation, *arguments):
        """Expects the code as the result and as the last error."""
        self.assertEqual(hex(code), hex(getattr(thing, operation)(*arguments)))
        self.assertEqual(hex(code), hex(thing.getLastError()))


class TextTest(unittest.TestCase):
    def test_utf8(self):
        for sample, code in (
            (b"", 0),
            (b"\xc3\xa9", 0),
            (b"\xc3", 0x80000006),
            (b"\xa9", 0x80000006),
            (b"\xc0\x80", 0x80000006),
            (b"\xf0\x9f\x98\x80", 0),
            (b"\xfe", 0x80000006),
            (b"\xfd\xbf\xbf\xbf\xbf\xbf", 0),
            (b"\xed\xa0\x80", 0),
        ):
            self.assertEqual(code, texts.verify_utf8(sample, False), sample)
        self.assertEqual(0x80000007, texts.verify_utf8(b"\xf0\x9f\x98\x80", True))
        self.assertEqual(0x80000007, texts.verify_utf8(b"\xfe", True))

    def test_lines(self):
        samples = {b"one line": 0, b"1\n2\n3\n4\n5": 5, b"a\nb": 2, b"a\nb\n": 2, b"a\n": 1, b"": 0}
        for sample, count in samples.items():
            self.assertEqual(count, texts.count_lines(sample))

    def test_characters(self):
        self.assertEqual(b"ab\nc", texts.strip_unsupported(b"a\tb\r\nc"))
        escaped = b"&lt;a href=&apos;x&apos;&gt;&amp;&lt;/a&gt;"
        self.assertEqual(escaped, texts.tags_to_text(b"<a href='x'>&</a>"))

    def test_unescaping(self):
        for sample, out in (
            (b"x &lt; y", b"x < y"),
            (b"x &lt;", b"x &t;"),
            (b"&nbsp;", b"&bsp;"),
            (b"&amx", b"&ax"),
            (b"a&", b"a&"),
            (b"&amp;lt;x", b"&lt;x"),
            (b"&ax", b"&a"),
            (b"&a", b"&a"),
        ):
            self.assertEqual(out, texts.tags_from_text(sample))

    def test_alignment(self):
        self.assertEqual(b"bottom", texts.vertical_alignment(0x03))
        self.assertEqual(b"left", texts.horizontal_alignment(0x30))
        self.assertEqual(b"center", texts.vertical_alignment(0))
        self.assertEqual(b"center", texts.horizontal_alignment(0))

    def test_catalogue(self):
        self.assertEqual(184, len(LANGUAGES))
        for language in (b"EN", b"en-US", b"de-", b"de-anything"):
            self.assertEqual(0, texts.is_language(language))
        for language in (b"eng", b"e", b"", b"qq", b"deu"):
            self.assertEqual(0x80000008, texts.is_language(language))
        self.assertEqual((b"Tshiluba", b""), texts.language_names(b"lu"))
        self.assertEqual(b"Biharis", texts.language_names(b"bh")[0])
        self.assertEqual(0x20207A68, texts.language_key(b"Zh"))
        uyghur = texts.language_names(b"ug")[1].decode()
        self.assertEqual(("\t", "\u200e"), (uyghur[0], uyghur[-1]))

    def test_values(self):
        samples = {2.0: b"2", 0.1: b"0.1", 1234567.0: b"1.23457e+06", 1e6: b"1e+06"}
        for number, shown in samples.items():
            self.assertEqual(shown, texts.value_of_float(texts.bits_of(number)))
        self.assertEqual(b"0.6", texts.value_of_float(data.SIX_TENTHS))
        self.assertEqual(b"-nan", texts.value_of_float(0xFFC00000))
        self.assertEqual(b"f0", texts.rate(0))
        for packed, shown in ((0, b"0.0.0"), (0x00020103, b"2.1.3"), (0x010A00FF, b"266.0.255")):
            self.assertEqual(shown, texts.version(packed))
        self.assertEqual(b"65536.0.0", texts.version(0x100000000))

    def test_dates(self):
        instant = 1236262029
        self.assertEqual(b"2009-03-05T14:07:09+2:00", texts.date(instant, 7200))
        self.assertEqual(b"2009-03-05T14:07:09-5:00", texts.date(instant, -18000))
        self.assertEqual(b"1970-01-01T00:00:00-0:00", texts.date(0, 0))
        self.assertEqual(b"1970-01-01T23:00:00-22:00", texts.date(23 * 3600, 7200))
        self.assertEqual(b"2000-02-29T00:00:00-0:00", texts.date(951782400, 0))
        self.assertEqual(b"", texts.date(2**63 - 1, 0))


class TreeTest(unittest.TestCase):
    def test_paths(self):
        for paths, xml in (
            ((b"a/b", b"a/c"), b"<a><b></b><c></c></a>"),
            ((b"a", b"a"), b"<a><a></a></a>"),
            ((b"a", b"b"), b"<a></a><b></b>"),
            ((), b""),
        ):
            root = Stream()
            for path in paths:
                root.path(path)
            self.assertEqual(xml, root.xml(False))
        self.assertEqual(39, len(Stream().xml(True)))

    def test_groups(self):
        root = Stream()
        root.path(b"a")
        root.new_group().path(b"a")
        self.assertEqual(b"<a></a><a></a>", root.xml(False))

    def test_contents(self):
        root = Stream()
        node = root.path(b"n")
        attribute = node.new_attribute()
        attribute.name, attribute.value = b"k", b"v"
        self.assertIsNone(node.set_text(b"t"))
        node.reach_text()
        self.assertIs(root, node.set_text(b"t&"))
        self.assertEqual(b'<n k="v" >t&</n>', root.xml(False))
        node.path(b"c")
        self.assertEqual(b'<n k="v" ><c></c></n>', root.xml(False))

    def test_escaping(self):
        safe = b"a&lt;b &amp; &quot;c&quot; &apos;d&apos;&gt;"
        self.assertEqual(safe, safe_xml(b"a<b & \"c\" 'd'>"))
        self.assertEqual(b"&amp;amp;", safe_xml(b"&amp;"))


class LanguageListTest(Checked):
    OWNERS = ((data.Header, 0x40000004), (data.Captions, 0x80000004), (data.Toc, 0x80000004))

    def test_adding(self):
        for owner, absent in self.OWNERS:
            thing = owner()
            self.answers(0, thing, "addLanguage", b"en")
            self.answers(0x40000001, thing, "addLanguage", b"en")
            self.assertEqual(1, got(thing.getLanguageCount))
            self.answers(0, thing, "addLanguage", b"EN")
            self.answers(0, thing, "addLanguage", b"en-US")
            for language in (b"eng", b"e", b"xx"):
                self.answers(0x80000008, thing, "addLanguage", language)
            self.answers(absent, thing, "removeLanguage", b"fr")

    def test_order(self):
        thing = data.Header()
        for language in (b"de", b"en-GB"):
            thing.addLanguage(language)
        for wrong in ([b"de"], [b"de", b"en-GB", b"de"], [b"de", b"fr"]):
            self.answers(INVALID_ARGUMENT, thing, "setOrderedLanguageIDs", wrong)
        self.assertEqual([b"German", b"English"], got(thing.getLanguageDisplayNames))
        self.answers(0, thing, "setOrderedLanguageIDs", [b"de", b"de"])
        copy = data.Toc()
        self.answers(0x40000001, copy, "copyFromLanguage", thing)
        self.assertEqual([b"de"], copy.languages)

    def test_self_copy(self):
        for owner, _ in self.OWNERS:
            thing = owner()
            self.answers(0x8000000B, thing, "copyFromLanguage", thing)


def valid_header():
    header = data.Header()
    header.setVideoLength(90500)
    header.setVideoWidth(640)
    header.setVideoHeight(480)
    return header


class HeaderTest(Checked):
    def test_defaults(self):
        header = data.Header()
        self.answers(INVALID_ARGUMENT, header, "isValid")
        self.assertIs(True, got(header.getShowSearchBar))
        self.assertIs(False, got(header.getIPodExplicit))

    def test_refusal_keeps_the_value(self):
        header = valid_header()
        self.answers(INVALID_ARGUMENT, header, "setVideoWidth", 0)
        self.assertEqual(640, got(header.getVideoWidth))

    def test_clearing(self):
        header = data.Header()
        header.setShowSearchBar(False)
        header.addContentName(b"a.mp4")
        self.answers(0x40000004, header, "addContentName", b"a.mp4")
        self.answers(0, header, "clearHeader")
        self.assertIs(False, got(header.getShowSearchBar))
        self.assertEqual([b"a.mp4"], got(header.getContentNames))

    def test_copy(self):
        source, target = valid_header(), data.Header()
        source.addContentName(b"b")
        source.addContentName(b"a")
        self.answers(0, target, "copyFrom", source)
        self.assertEqual([b"b", b"a"], target.content_names)
        self.answers(INVALID_ARGUMENT, target, "copyFrom", data.Header())
        self.answers(0x8000000B, target, "copyFrom", target)


class CaptionItemTest(Checked):
    def test_times(self):
        item = data.CaptionItem()
        self.assertEqual(0, got(item.getEnd))
        self.answers(0x80000009, item, "isValid", False)
        item.setStart(3000)
        self.answers(INVALID_ARGUMENT, item, "setEnd", 3000)
        self.answers(0, item, "setEnd", 3001)
        self.assertEqual(1, got(item.getDuration))
        item.setDuration(2000)
        item.setStart(5000)
        self.assertEqual(7000, got(item.getEnd))
        for wrong in (0, -1):
            self.answers(INVALID_ARGUMENT, item, "setDuration", wrong)

    def test_guidelines(self):
        item = data.CaptionItem()
        item.setDuration(999)
        self.answers(0x40000002, item, "isValid", True)
        self.answers(0, item, "isValid", False)
        item.setDuration(1000)
        item.setTextForLanguage(b"a\nb\nc\nd\n", b"en")
        self.answers(0, item, "isValid", True)
        item.setTextForLanguage(b"a\nb\nc\nd\ne", b"en")
        self.answers(0x40000002, item, "isValid", True)

    def test_texts(self):
        for item in (data.CaptionItem(), data.TocItem()):
            self.answers(0, item, "setTextForLanguage", b"one", b"en")
            self.answers(0x40000001, item, "setTextForLanguage", b"two", b"en")
            self.assertEqual(b"two", got(item.getTextForLanguage, b"en"))
            self.answers(0x80000009, item, "setTextForLanguage", b"x", b"zz")
            self.answers(0x80000009, item, "setTextForLanguage", b"\xff", b"en")
            self.answers(0x80000004, item, "removeTextForLanguage", b"fr")
            item.setTextForLanguage(b"", b"de")
            self.assertEqual([b"de", b"en"], got(item.getLanguageIDs))
            self.answers(0x8000000B, item, "copyFrom", item)

    def test_copy_of_an_item_without_duration(self):
        source, target = data.CaptionItem(), data.CaptionItem()
        source.setTextForLanguage(b"x", b"en")
        source.setStart(7)
        self.answers(INVALID_ARGUMENT, target, "copyFrom", source)
        self.assertEqual((7, 0, {b"en": b"x"}), (target.start, target.duration, target.texts))


def caption(start, end, **languages):
    item = data.CaptionItem()
    item.setStart(start)
    item.setEnd(end)
    for language, content in languages.items():
        item.setTextForLanguage(content, language.encode())
    return item


class CaptionsTest(Checked):
    def test_ranges(self):
        captions = data.Captions()
        self.answers(0, captions, "isValid", True)
        for size, code in ((0, INVALID_ARGUMENT), (501, INVALID_ARGUMENT), (500, 0)):
            self.answers(code, captions, "setFontSize", size)
        for rate, code in ((10000, 0), (10001, INVALID_ARGUMENT)):
            self.answers(code, captions, "setFrameRate", rate)
        self.answers(0, captions, "setBackgroundOpacity", 0x7FC00000)

    def test_overlap(self):
        for end, code in ((2000, 0), (2001, 0x40000003)):
            captions = data.Captions()
            captions.addCaptionItem(caption(0, end))
            captions.addCaptionItem(caption(2000, 3000))
            self.answers(code, captions, "isValid", True)
        captions = data.Captions()
        captions.addCaptionItem(caption(2000, 3000))
        captions.addCaptionItem(caption(0, 2000))
        self.answers(0x40000003, captions, "isValid", False)
        self.answers(0, captions, "makeCaptionsConsistent")
        self.answers(0, captions, "isValid", False)

    def test_missing_texts(self):
        captions = data.Captions()
        captions.addCaptionItem(caption(0, 1000, en=b"x"))
        captions.addCaptionItem(caption(1000, 2000))
        self.answers(INVALID_ARGUMENT, captions, "isValid", False)
        captions.makeCaptionsConsistent()
        self.assertEqual(b"", captions.items[1].texts[b"en"])
        self.answers(0, captions, "isValid", False)
        self.answers(0, captions, "clearCaptionItems")
        self.assertEqual(0, got(captions.getLanguageCount))

    def test_removing_a_language(self):
        captions = data.Captions()
        captions.addCaptionItem(caption(0, 1, fr=b"x"))
        captions.addCaptionItem(caption(0, 1, de=b"x"))
        self.answers(0x80000004, captions, "removeCaptionItemsForLanguage", b"fr")
        self.assertEqual([{}, {b"de": b"x"}], [item.texts for item in captions.items])

    def test_exchange_sort(self):
        captions = data.Captions()
        for start, end in ((5, 6), (5, 7), (3, 4)):
            captions.addCaptionItem(caption(start, end))
        captions.orderCaptions()
        self.assertEqual([1, 2, 1], [item.duration for item in captions.items])
        self.assertEqual([3, 5, 5], [item.start for item in captions.items])

    def test_full_out_pointer(self):
        captions = data.Captions()
        captions.addCaptionItem(caption(0, 1))
        self.answers(INVALID_ARGUMENT, captions, "getCaptionItemAt", Ref(object()), 0)


def entry(start, **languages):
    item = data.TocItem()
    item.setStart(start)
    for language, content in languages.items():
        item.setTextForLanguage(content, language.encode())
    return item


class TocTest(Checked):
    def test_item(self):
        item = entry(9)
        self.answers(INVALID_ARGUMENT, item, "setStart", -1)
        self.assertEqual(9, item.start)
        self.answers(0, item, "setStart", 0)

    def test_table(self):
        toc = data.Toc()
        for rate, code in ((0, INVALID_ARGUMENT), (10001, INVALID_ARGUMENT), (1, 0), (10000, 0)):
            self.answers(code, toc, "setFrameRate", rate)
        toc.addTocItem(entry(500, fr=b"f", de=b"d"))
        self.assertEqual([b"de", b"fr"], toc.languages)
        self.answers(INVALID_ARGUMENT, toc, "removeTocItemAt", 1)
        self.answers(0x80000002, toc, "getTocItemsForLanguage", Ref([]), b"de")
        self.answers(0, toc, "clearTocItems")
        self.assertEqual([], toc.languages)

    def test_order(self):
        toc = data.Toc()
        toc.addTocItem(entry(500))
        toc.addTocItem(entry(100))
        self.answers(0x40000003, toc, "isValid", False)
        self.answers(0, toc, "makeTocConsistent")
        self.assertEqual([100, 500], [item.start for item in toc.items])
        self.answers(0, toc, "isValid", False)

    def test_copy_keeps_the_frame_rate(self):
        source, target = data.Toc(), data.Toc()
        source.setFrameRate(30)
        target.setFrameRate(25)
        self.answers(0, target, "copyFrom", source)
        self.assertEqual(25, target.frame_rate)


class ScreenTextTest(Checked):
    def test_item(self):
        item = data.ScreenTextItem()
        item.setStart(1000)
        for end in (1000, -5):
            self.answers(INVALID_ARGUMENT, item, "setEnd", end)
        self.answers(0, item, "setEnd", 1001)
        self.assertEqual(1, item.duration)
        self.answers(0, item, "setDuration", 0)
        self.answers(INVALID_ARGUMENT, item, "setDuration", -1)
        item.setDuration(500)
        item.setStart(2000)
        self.assertEqual(2500, got(item.getEnd))
        item.setText(b"kept")
        self.answers(0x80000009, item, "setText", b"\xff")
        self.assertEqual(b"kept", item.text)
        self.answers(0, item, "setText", b"")

    def test_wrapped_end(self):
        item = data.ScreenTextItem()
        item.setStart(2**63 - 1)
        item.setDuration(1)
        self.assertEqual(-(2**63), got(item.getEnd))
        self.answers(0, data.ScreenText(), "addScreenTextItem", item)

    def test_collection(self):
        texts_ = data.ScreenText()
        for start in (300, 100, 200):
            item = data.ScreenTextItem()
            item.setStart(start)
            texts_.addScreenTextItem(item)
        self.answers(0x40000003, texts_, "isValid", False)
        self.answers(0, texts_, "makeScreenTextConsistent")
        self.assertEqual([100, 200, 300], [item.start for item in texts_.items])
        self.answers(INVALID_ARGUMENT, texts_, "getScreenTextItemAt", Ref(None), 3)
        copy = data.ScreenText()
        texts_.setFrameRate(25)
        copy.copyFrom(texts_)
        self.assertEqual(25, copy.frame_rate)


def written(formatter, kind=1):
    out = Ref(b"before")
    return formatter.writeString(out, kind, False), out.value


class FormatterTest(Checked):
    def test_before_a_set_is_given(self):
        for new in (
            packet.HeaderFormatter,
            packet.CaptionFormatter,
            packet.TocFormatter,
            packet.ScreenTextFormatter,
        ):
            self.assertEqual((0x8000000C, b"before"), written(new()))
            self.assertEqual((0x8000000B, b"before"), written(new(), 0))
            self.answers(0x80000002, new(), "refuse", None)
            self.answers(0x80000002, new(), "readFile", b"", 1)
            self.answers(0x8000000B, new(), "readString", b"", 2, False)

    def test_empty_sets_write_nothing(self):
        for formatter, empty in (
            (packet.CaptionFormatter(), data.Captions()),
            (packet.TocFormatter(), data.Toc()),
            (packet.ScreenTextFormatter(), data.ScreenText()),
        ):
            formatter.take(empty)
            self.assertEqual((0, b"before"), written(formatter))
            self.answers(0x80000002, formatter, "writeFile", None, 1, False)

    def test_header(self):
        header = valid_header()
        header.setTitle(b"Intro & Setup")
        header.setCreator(b"A&n")
        header.setAppName(b"Recorder")
        header.setAppVersion(b"2.0")
        header.setKeywords([b"a", b"b & c"])
        header.addLanguage(b"en")
        header.addContentName(b"intro.mp4")
        formatter = packet.HeaderFormatter()
        self.answers(0, formatter, "setHeader", header)
        code, out = written(formatter)
        self.assertEqual(0, code)
        for part in (
            b'<x:xmpmeta xmlns:x="adobe:ns:meta/" ><rdf:RDF xmlns:rdf="http://www.w3.org/',
            b'<rdf:Description zel:version="1.1.0" dc:title="Intro &amp; Setup" dc:date="',
            b'" dc:creator="A&n" dc:Description="" dc:source="Recorder - 2.0" '
            b'zelDM:iPodExplicit="false" '
            b'zelDM:keywords="a, b &amp; c" zelDM:thumbnail="" zelDM:firstFrame="" '
            b"><xmpDM:duration "
            b'xmpDM:scale="1/1000" xmpDM:value="90500" ></xmpDM:duration><xmpDM:videoFrameSize '
            b'stDim:unit="pixel" stDim:w="640" stDim:h="480" ></xmpDM:videoFrameSize><zel:langName>'
            b"<rdf:Bag><rdf:li "
            b'xml:lang="en">English</rdf:li></rdf:Bag></zel:langName><xmpDM:Tracks>'
            b"<rdf:Bag></rdf:Bag></xmpDM:Tracks><zelDM:controller><rdf:Description "
            b'xmpDM:name="qmplayer" ><zelDM:parameters><rdf:Bag><rdf:li xmpDM:name="showsearch" '
            b'xmpDM:value="true" ></rdf:li></rdf:Bag></zelDM:parameters></rdf:Description>'
            b"</zelDM:controller><zelDM:contentList><rdf:Description><zelDM:files><rdf:Seq><rdf:li "
            b'xmpDM:name="0" xmpDM:value="intro.mp4"></rdf:li></rdf:Seq></zelDM:files>'
            b"</rdf:Description></zelDM:contentList></rdf:Description></rdf:RDF></x:xmpmeta>",
        ):
            self.assertIn(part, out)

    def test_captions(self):
        captions = data.Captions()
        captions.setForegroundColor(texts.bits_of(0.999), 0x3F000000, 0x3F800000)
        item = caption(1500, 3500, en=b"<b>\tHi\r\n& bye", de=b"")
        item.setAlignment(0x22)
        captions.addCaptionItem(item)
        captions.addCaptionItem(caption(0, 1, en=b"first"))
        formatter = packet.CaptionFormatter()
        formatter.setCaptions(captions)
        self.assertEqual(
            b'<rdf:li><rdf:Description xmpDM:trackType="Caption" xmpDM:frameRate="f1000" '
            b'xmpDM:trackName="Captioning" stFnt:fontFamily="Helvetica" zelDM:fontSize="20" '
            b'zelDM:bgOpacity="0.6" ><xmpDM:markers><rdf:Seq><rdf:li><rdf:Description '
            b'xmpDM:startTime="0" xmpDM:duration="1" zelDM:valign="bottom" zelDM:halign="center" >'
            b'<xmpDM:name><rdf:Alt><rdf:li xml:lang="de">{\\rtf1 }</rdf:li><rdf:li '
            b'xml:lang="en">first'
            b"</rdf:li></rdf:Alt></xmpDM:name></rdf:Description></rdf:li><rdf:li><rdf:Description "
            b'xmpDM:startTime="1500" xmpDM:duration="2000" zelDM:valign="top" '
            b'zelDM:halign="right" >'
            b'<xmpDM:name><rdf:Alt><rdf:li xml:lang="de">{\\rtf1 }</rdf:li><rdf:li xml:lang="en">'
            b"&lt;b&gt;Hi\n&amp; "
            b"bye</rdf:li></rdf:Alt></xmpDM:name></rdf:Description></rdf:li></rdf:Seq>"
            b'</xmpDM:markers><zel:fgColor xmpG:red="254" xmpG:green="127" xmpG:blue="255" '
            b'xmpG:mode="RGB" ></zel:fgColor><zel:bgColor xmpG:red="0" xmpG:green="0" '
            b'xmpG:blue="0" '
            b'xmpG:mode="RGB" ></zel:bgColor></rdf:Description></rdf:li>',
            written(formatter)[1],
        )

    def test_toc(self):
        toc = data.Toc()
        toc.setFrameRate(30)
        toc.setImageFile(b"toc.png")
        demo = entry(5000, fr=b"F", de=b"<D>")
        demo.setImageFile(b"a&b")
        demo.setImageIndex(1)
        demo.setImageOffset(2048)
        toc.addTocItem(demo)
        toc.addTocItem(entry(0))
        formatter = packet.TocFormatter()
        formatter.setToc(toc)
        self.assertEqual(
            b'<rdf:li><rdf:Description xmpDM:trackType="TableOfContents" xmpDM:trackName="Table of '
            b'Contents" xmpDM:frameRate="f1000" zelDM:image="toc.png" '
            b"><xmpDM:markers><rdf:Seq><rdf:li>"
            b'<rdf:Description xmpDM:name="" xmpDM:startTime="0" zelDM:image="" '
            b'zelDM:imageindex="0" '
            b'zelDM:imageoffset="0" ></rdf:Description></rdf:li><rdf:li><rdf:Description '
            b'xmpDM:name="&lt;D&gt;" xmpDM:startTime="5000" zelDM:image="a&amp;b" '
            b'zelDM:imageindex="1" '
            b'zelDM:imageoffset="2048" ></rdf:Description></rdf:li></rdf:Seq></xmpDM:markers>'
            b"</rdf:Description></rdf:li>",
            written(formatter)[1],
        )

    def test_screen_text(self):
        item = data.ScreenTextItem()
        item.setText(b"Click & Save")
        item.setStart(2000)
        item.setImageFile(b"<shots>")
        item.setImageIndex(3)
        item.setImageOffset(4096)
        item.setGroupId(1)
        screen_text = data.ScreenText()
        screen_text.setFrameRate(25)
        screen_text.addScreenTextItem(item)
        formatter = packet.ScreenTextFormatter()
        formatter.setScreenText(screen_text)
        self.assertEqual(
            b'<rdf:li><rdf:Description xmpDM:trackType="ScreenText" xmpDM:frameRate="f25" '
            b'xmpDM:trackName="Screen Text" ><xmpDM:markers><rdf:Seq><rdf:li><rdf:Description '
            b'xmpDM:name="Click &amp; Save" xmpDM:startTime="2000" xmpDM:duration="0" '
            b'xmpDM:image="<shots>" zelDM:imageindex="3" zelDM:imageoffset="4096" '
            b'zelDM:tocEntry="1" >'
            b"</rdf:Description></rdf:li></rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>",
            written(formatter)[1],
        )


class DocumentTest(Checked):
    def test_without_a_header(self):
        document = packet.Document()
        document.setDataCaptions(data.Captions())
        self.assertEqual((INVALID_ARGUMENT, b"before"), written(document))
        self.answers(0x8000000D, document, "getDataToc", data.Toc())
        self.answers(INVALID_ARGUMENT, document, "createDataHeader", Ref(object()))

    def test_zero_sizes(self):
        document = packet.XmpDocument()
        self.answers(INVALID_ARGUMENT, document, "setDataHeader", data.Header())
        self.assertEqual((0x8000000C, b"before"), written(document))
        plain = packet.Document()
        plain.setDataHeader(data.Header())
        self.assertEqual((INVALID_ARGUMENT, b"before"), written(plain))

    def test_a_failing_header_ends_with_the_last_error_of_the_captions(self):
        document = packet.Document()
        document.setDataCaptions(data.Captions())
        self.answers(0, document, "setDataHeader", data.Header())

    def test_other_formats(self):
        plain, direct = packet.Document(), packet.XmpDocument()
        for document in (plain, direct):
            header = valid_header()
            header.addLanguage(b"de")
            document.setDataHeader(header)
            self.assertEqual((0x8000000E, b"before"), written(document, 2))
            self.assertEqual(0x8000000E, document.getLastError())
        self.assertEqual([b"de"], plain.held["Header"].languages)
        self.assertEqual([b"en-US"], direct.held["Header"].languages)

    def test_tracks(self):
        document = packet.Document()
        document.setDataHeader(valid_header())
        frame = written(document)[1]
        self.assertIn(packet.ANCHOR, frame)
        self.assertIn(b'<rdf:li xml:lang="en-US">English</rdf:li></rdf:Bag>', frame)
        captions, toc = data.Captions(), data.Toc()
        captions.addCaptionItem(caption(0, 1, de=b"d"))
        captions.addCaptionItem(caption(1, 2, fr=b"f"))
        toc.addTocItem(entry(0))
        document.setDataCaptions(captions)
        document.setDataToc(toc)
        out = Ref(b"before")
        document.setLastError(0x1234)
        self.assertEqual(0, document.writeString(out, 1, True))
        self.assertEqual(0x1234, document.getLastError())
        self.assertTrue(out.value.startswith(b"before<x:xmpmeta "))
        languages = b'"de">German</rdf:li><rdf:li xml:lang="fr">French</rdf:li></rdf:Bag>'
        self.assertIn(languages, out.value)
        tracks = rb'<xmpDM:Tracks><rdf:Bag><rdf:li>.*"Caption".*</rdf:li><rdf:li>.*"T'
        self.assertRegex(out.value, tracks)

    def test_files(self):
        document = packet.XmpDocument()
        document.setDataHeader(valid_header())
        file, closed = packet.File(True, b"before"), packet.File(False, None)
        self.answers(0, document, "writeFile", file, 1, False)
        start = b'<?xml version="1.0" encoding="utf-8" ?><x:xmpmeta'
        self.assertTrue(file.content.startswith(start))
        self.answers(0x8000000A, document, "writeFile", closed, 1, False)


class FakeTest(Checked):
    @staticmethod
    def scripted(cls, *script):
        log = []
        fake = cls().begin("f", log)
        fake.set_script(fakes.Script(*script), False)
        return fake, log

    def test_the_last_error_of_the_source_is_taken(self):
        fake, log = self.scripted(fakes.FakeTocItem, 2, "c", 0x80000003, 0x80000007)
        self.answers(0x80000007, data.TocItem(), "copyFrom", fake)
        self.assertEqual(["f:getLanguageIDs", "f:getStart"], log)

    def test_exceptions(self):
        fake, _ = self.scripted(fakes.FakeTocItem, 1, "b")
        self.answers(0x80000005, data.TocItem(), "copyFrom", fake)
        fake, _ = self.scripted(fakes.FakeTocItem, 1, "x")
        self.answers(0x8000000B, data.TocItem(), "copyFrom", fake)
        fake, _ = self.scripted(fakes.FakeCaptionItem, 1, "b")
        self.answers(0x80000005, data.Captions(), "addCaptionItem", fake)
        self.assertRaises(data.BadAlloc, data.CaptionItem().copyFrom, fake.clone("g", []))


class HarnessTest(unittest.TestCase):
    def test_the_same_seed_gives_the_same_script(self):
        self.assertEqual(Generator(7, 0, 200).make(), Generator(7, 0, 200).make())

    def test_a_wrong_answer_is_seen(self):
        moment = run.Moment(0)
        right = "00000000 s" + (b"x" + packet.DATE + b"y").hex()
        now = texts.date(moment.first + 1, 0)
        self.assertTrue(run.same(right, "00000000 s" + (b"x" + now + b"y").hex(), moment))
        for wrong in (b"x" + now + b"z", b"x" + now, b"x1999-01-01T00:00:00-0:00y", b"xy"):
            self.assertFalse(run.same(right, "00000000 s" + wrong.hex(), moment))
        self.assertFalse(run.same("00000000", "80000003", moment))

    def test_missing_objects_are_skipped(self):
        session = Session(0)
        self.assertEqual("noobj # # 0", session.run(("H.isValid", 3)))
        session.run(("object.new", 3, "H"))
        self.assertEqual("80000003 80000003 # # 0", session.run(("H.isValid", 3)))


if __name__ == "__main__":
    unittest.main()
