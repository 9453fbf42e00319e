/// @file
/// The elements and attributes of a packet, described to any XML writer.

#ifndef ZELINTERCHANGEDATA_BENCH_DESCRIPTION_H
#define ZELINTERCHANGEDATA_BENCH_DESCRIPTION_H

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "bench/Documents.h"

#include <charconv>

namespace ZelInterchangeData::bench {

/// Converts numbers to text without allocating, for writers that only accept texts.
class Digits {
public:
    template <class Number>
    explicit Digits(Number value)
    {
        *std::to_chars(text_.data(), text_.data() + text_.size() - 1, value).ptr = '\0';
    }

    const char* text() const { return text_.data(); }

private:
    std::array<char, 24> text_{};
};

/// Describes a document to a @p Writer, which has open(name), attribute(name, text or number),
/// text(text) and close(). Each writer escapes the texts itself.
template <class Writer>
class Description {
public:
    Description(const Document& document, Writer& writer) : document_(document), writer_(writer) {}

    void describe()
    {
        openFrame();
        describeVideo();
        listLanguages();
        open("xmpDM:Tracks", "rdf:Bag");
        if (!document_.captions.empty()) tellCaptions();
        if (!document_.entries.empty()) tellEntries();
        if (!document_.screenTexts.empty()) tellScreenTexts();
        close(2);
        closeFrame();
    }

private:
    template <class... Names>
    void open(Names... names)
    {
        (writer_.open(names), ...);
    }

    void close(int levels)
    {
        for (int i = 0; i < levels; ++i)
            writer_.close();
    }

    template <class Value>
    void put(const char* name, const Value& value)
    {
        writer_.attribute(name, value);
    }

    void put(const char* name, const std::string& value) { writer_.attribute(name, value.c_str()); }

    void openFrame()
    {
        open("x:xmpmeta");
        put("xmlns:x", "adobe:ns:meta/");
        open("rdf:RDF");
        put("xmlns:rdf", "http://www.w3.org/1999/02/22-rdf-syntax-ns#");
        put("xmlns:xmp", "http://ns.adobe.com/xap/1.0/");
        put("xmlns:xmpDM", "http://ns.adobe.com/xmp/1.0/DynamicMedia/");
        put("xmlns:xmpG", "http://ns.adobe.com/xap/1.0/g/");
        put("xmlns:zel", "http://ns.zel.example/xmp/zel/");
        put("xmlns:zelDM", "http://ns.zel.example/xmp/zelDM/");
        put("xmlns:zelHS", "http://ns.zel.example/xmp/zelHS/");
        put("xmlns:stDim", "http://ns.adobe.com/xap/1.0/sType/Dimensions#");
        put("xmlns:stFnt", "http://ns.adobe.com/xap/1.0/sType/Font#");
        put("xmlns:dc", "http://purl.org/dc/elements/1.1/");
        open("rdf:Description");
        put("zel:version", "1.1.0");
    }

    void describeVideo()
    {
        const Header& header = document_.header;
        put("dc:title", header.title);
        put("dc:date", ZelDataUtilities::getDateString(nullptr));
        put("dc:creator", header.creator);
        put("dc:Description", header.description);
        put("dc:source", header.appName + " - " + header.appVersion);
        put("zelDM:iPodExplicit", "false");
        put("zelDM:keywords", joinedKeywords());
        put("zelDM:thumbnail", "");
        put("zelDM:firstFrame", "");
        open("xmpDM:duration");
        put("xmpDM:scale", "1/1000");
        put("xmpDM:value", header.length);
        close(1);
        open("xmpDM:videoFrameSize");
        put("stDim:unit", "pixel");
        put("stDim:w", header.width);
        put("stDim:h", header.height);
        close(1);
    }

    std::string joinedKeywords() const
    {
        std::string joined;
        for (const std::string& keyword : document_.header.keywords) {
            if (!joined.empty()) joined += ", ";
            joined += keyword;
        }
        return joined;
    }

    void tellText(const std::string& language, const std::string& text)
    {
        open("rdf:li");
        put("xml:lang", language);
        writer_.text(text.c_str());
        close(1);
    }

    void listLanguages()
    {
        open("zel:langName", "rdf:Bag");
        for (const std::string& id : document_.languages) {
            std::string name;
            if (ZelDataUtilities::englishNameForLanguage(id, name) != ZelData_Ok) break;
            tellText(id, name);
        }
        close(2);
    }

    void openTrack(const char* type, const char* name)
    {
        open("rdf:li", "rdf:Description");
        put("xmpDM:trackType", type);
        put("xmpDM:frameRate", "f1000");
        put("xmpDM:trackName", name);
    }

    void tellColor(const char* name, int component)
    {
        open(name);
        put("xmpG:red", component);
        put("xmpG:green", component);
        put("xmpG:blue", component);
        put("xmpG:mode", "RGB");
        close(1);
    }

    void tellCaptions()
    {
        openTrack("Caption", "Captioning");
        put("stFnt:fontFamily", "Helvetica");
        put("zelDM:fontSize", 20);
        put("zelDM:bgOpacity", "0.6");
        open("xmpDM:markers", "rdf:Seq");
        for (const Caption& caption : document_.captions)
            tellCaption(caption);
        close(2);
        tellColor("zel:fgColor", 255);
        tellColor("zel:bgColor", 0);
        close(2);
    }

    void tellCaption(const Caption& caption)
    {
        open("rdf:li", "rdf:Description");
        put("xmpDM:startTime", caption.start);
        put("xmpDM:duration", caption.duration);
        put("zelDM:valign", "bottom");
        put("zelDM:halign", "center");
        open("xmpDM:name", "rdf:Alt");
        for (std::size_t i = 0; i < document_.languages.size(); ++i)
            tellText(document_.languages[i], caption.texts[i]);
        close(4);
    }

    void tellEntries()
    {
        openTrack("TableOfContents", "Table of Contents");
        put("zelDM:image", document_.tocImage);
        open("xmpDM:markers", "rdf:Seq");
        for (const Entry& entry : document_.entries)
            tellEntry(entry);
        close(4);
    }

    void tellEntry(const Entry& entry)
    {
        open("rdf:li", "rdf:Description");
        put("xmpDM:name", entry.titles.front());
        put("xmpDM:startTime", entry.start);
        put("zelDM:image", entry.thumbnail.file);
        put("zelDM:imageindex", entry.thumbnail.index);
        put("zelDM:imageoffset", entry.thumbnail.offset);
        close(2);
    }

    void tellScreenTexts()
    {
        openTrack("ScreenText", "Screen Text");
        open("xmpDM:markers", "rdf:Seq");
        for (const ScreenText& screenText : document_.screenTexts)
            tellScreenText(screenText);
        close(4);
    }

    void tellScreenText(const ScreenText& screenText)
    {
        open("rdf:li", "rdf:Description");
        put("xmpDM:name", screenText.text);
        put("xmpDM:startTime", screenText.start);
        put("xmpDM:duration", screenText.duration);
        put("xmpDM:image", screenText.thumbnail.file);
        put("zelDM:imageindex", screenText.thumbnail.index);
        put("zelDM:imageoffset", screenText.thumbnail.offset);
        put("zelDM:tocEntry", screenText.group);
        close(2);
    }

    void closeFrame()
    {
        open("zelDM:controller", "rdf:Description");
        put("xmpDM:name", "qmplayer");
        open("zelDM:parameters", "rdf:Bag", "rdf:li");
        put("xmpDM:name", "showsearch");
        put("xmpDM:value", "true");
        close(5);
        if (!document_.header.contentNames.empty()) listContents();
        close(3);
    }

    void listContents()
    {
        open("zelDM:contentList", "rdf:Description", "zelDM:files", "rdf:Seq");
        const auto& names = document_.header.contentNames;
        for (std::size_t i = 0; i < names.size(); ++i) {
            open("rdf:li");
            put("xmpDM:name", i);
            put("xmpDM:value", names[i]);
            close(1);
        }
        close(4);
    }

    const Document& document_;
    Writer& writer_;
};

} // namespace ZelInterchangeData::bench

#endif
