/// @file
/// Reserves once, then appends literal markup, escaped texts and numbers.

#include "bench/StraightAppender.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <charconv>
#include <cstdint>

namespace ZelInterchangeData::bench {

namespace {

/// How a byte is written: as it is, not at all, or as an entity.
enum Kind : std::uint8_t { harmless, dropped, quote, ampersand, apostrophe, less, greater };

constexpr std::array<std::string_view, 7> replacements = {"",       "",     "&quot;", "&amp;",
                                                          "&apos;", "&lt;", "&gt;"};

constexpr std::array<std::uint8_t, 256> makeKinds(Kind control)
{
    std::array<std::uint8_t, 256> kinds{};
    for (std::size_t i = 0; i < 0x20; ++i)
        kinds[i] = control;
    kinds['\n'] = harmless;
    kinds['"'] = quote;
    kinds['&'] = ampersand;
    kinds['\''] = apostrophe;
    kinds['<'] = less;
    kinds['>'] = greater;
    return kinds;
}

/// Drops the control characters of item texts; all other texts keep them.
constexpr auto itemKinds = makeKinds(dropped);
constexpr auto plainKinds = makeKinds(harmless);

void appendReplaced(std::string& out, std::string_view text,
                    const std::array<std::uint8_t, 256>& kinds)
{
    const char* run = text.data();
    const char* const end = run + text.size();
    for (const char* at = run; at != end; ++at) {
        const auto kind = kinds[static_cast<unsigned char>(*at)];
        if (kind == harmless) continue;
        out.append(run, at);
        out.append(replacements[kind]);
        run = at + 1;
    }
    out.append(run, end);
}

class Packet {
public:
    explicit Packet(const Document& document) : document_(document)
    {
        out_.reserve(roomFor(document));
    }

    std::string take()
    {
        openFrame();
        describeVideo();
        listLanguages();
        out_ += "<xmpDM:Tracks><rdf:Bag>";
        if (!document_.captions.empty()) writeCaptions();
        if (!document_.entries.empty()) writeEntries();
        if (!document_.screenTexts.empty()) writeScreenTexts();
        out_ += "</rdf:Bag></xmpDM:Tracks>";
        closeFrame();
        return std::move(out_);
    }

private:
    void text(std::string_view value) { appendReplaced(out_, value, plainKinds); }
    void itemText(std::string_view value) { appendReplaced(out_, value, itemKinds); }

    template <class Number>
    void number(Number value)
    {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): written before it is read.
        std::array<char, 24> digits;
        const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
        out_.append(digits.data(), written.ptr);
    }

    void openFrame()
    {
        out_ += "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" >"
                "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\" "
                "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
                "xmlns:xmpDM=\"http://ns.adobe.com/xmp/1.0/DynamicMedia/\" "
                "xmlns:xmpG=\"http://ns.adobe.com/xap/1.0/g/\" "
                "xmlns:zel=\"http://ns.zel.example/xmp/zel/\" "
                "xmlns:zelDM=\"http://ns.zel.example/xmp/zelDM/\" "
                "xmlns:zelHS=\"http://ns.zel.example/xmp/zelHS/\" "
                "xmlns:stDim=\"http://ns.adobe.com/xap/1.0/sType/Dimensions#\" "
                "xmlns:stFnt=\"http://ns.adobe.com/xap/1.0/sType/Font#\" "
                "xmlns:dc=\"http://purl.org/dc/elements/1.1/\" >"
                "<rdf:Description zel:version=\"1.1.0\" ";
    }

    void describeVideo()
    {
        const Header& header = document_.header;
        out_ += "dc:title=\"";
        text(header.title);
        out_ += "\" dc:date=\"";
        out_ += ZelDataUtilities::getDateString(nullptr);
        out_ += "\" dc:creator=\"";
        out_ += header.creator;
        out_ += "\" dc:Description=\"";
        text(header.description);
        out_ += "\" dc:source=\"";
        text(header.appName);
        out_ += " - ";
        text(header.appVersion);
        out_ += "\" zelDM:iPodExplicit=\"false\" zelDM:keywords=\"";
        listKeywords();
        out_ += "\" zelDM:thumbnail=\"\" zelDM:firstFrame=\"\" >"
                "<xmpDM:duration xmpDM:scale=\"1/1000\" xmpDM:value=\"";
        number(header.length);
        out_ += "\" ></xmpDM:duration><xmpDM:videoFrameSize stDim:unit=\"pixel\" stDim:w=\"";
        number(header.width);
        out_ += "\" stDim:h=\"";
        number(header.height);
        out_ += "\" ></xmpDM:videoFrameSize>";
    }

    void listKeywords()
    {
        std::string_view separator;
        for (const std::string& keyword : document_.header.keywords) {
            out_ += separator;
            text(keyword);
            separator = ", ";
        }
    }

    void listLanguages()
    {
        out_ += "<zel:langName><rdf:Bag>";
        for (const std::string& id : document_.languages) {
            std::string name;
            if (ZelDataUtilities::englishNameForLanguage(id, name) != ZelData_Ok) break;
            openLanguage(id);
            text(name);
            out_ += "</rdf:li>";
        }
        out_ += "</rdf:Bag></zel:langName>";
    }

    void openLanguage(const std::string& id)
    {
        out_ += "<rdf:li xml:lang=\"";
        out_ += id;
        out_ += "\">";
    }

    void writeCaptions()
    {
        out_ += "<rdf:li><rdf:Description xmpDM:trackType=\"Caption\" xmpDM:frameRate=\"f1000\" "
                "xmpDM:trackName=\"Captioning\" stFnt:fontFamily=\"Helvetica\" "
                "zelDM:fontSize=\"20\" zelDM:bgOpacity=\"0.6\" ><xmpDM:markers><rdf:Seq>";
        for (const Caption& caption : document_.captions)
            writeCaption(caption);
        out_ += "</rdf:Seq></xmpDM:markers>"
                "<zel:fgColor xmpG:red=\"255\" xmpG:green=\"255\" xmpG:blue=\"255\" "
                "xmpG:mode=\"RGB\" ></zel:fgColor>"
                "<zel:bgColor xmpG:red=\"0\" xmpG:green=\"0\" xmpG:blue=\"0\" "
                "xmpG:mode=\"RGB\" ></zel:bgColor></rdf:Description></rdf:li>";
    }

    void writeCaption(const Caption& caption)
    {
        out_ += "<rdf:li><rdf:Description xmpDM:startTime=\"";
        number(caption.start);
        out_ += "\" xmpDM:duration=\"";
        number(caption.duration);
        out_ += "\" zelDM:valign=\"bottom\" zelDM:halign=\"center\" ><xmpDM:name><rdf:Alt>";
        for (std::size_t i = 0; i < document_.languages.size(); ++i)
            writeCaptionText(caption.texts[i], document_.languages[i]);
        out_ += "</rdf:Alt></xmpDM:name></rdf:Description></rdf:li>";
    }

    void writeCaptionText(const std::string& value, const std::string& language)
    {
        openLanguage(language);
        const std::size_t before = out_.size();
        itemText(value);
        // The library writes this in place of an empty text.
        if (out_.size() == before) out_ += "{\\rtf1 }";
        out_ += "</rdf:li>";
    }

    void writeEntries()
    {
        out_ += "<rdf:li><rdf:Description xmpDM:trackType=\"TableOfContents\" "
                "xmpDM:trackName=\"Table of Contents\" xmpDM:frameRate=\"f1000\" zelDM:image=\"";
        text(document_.tocImage);
        out_ += "\" ><xmpDM:markers><rdf:Seq>";
        for (const Entry& entry : document_.entries)
            writeEntry(entry);
        out_ += "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>";
    }

    void writeEntry(const Entry& entry)
    {
        out_ += "<rdf:li><rdf:Description xmpDM:name=\"";
        itemText(entry.titles.front());
        out_ += "\" xmpDM:startTime=\"";
        number(entry.start);
        out_ += "\" zelDM:image=\"";
        text(entry.thumbnail.file);
        writeThumbnailPlace(entry.thumbnail);
        out_ += "\" ></rdf:Description></rdf:li>";
    }

    void writeThumbnailPlace(const Thumbnail& thumbnail)
    {
        out_ += "\" zelDM:imageindex=\"";
        number(thumbnail.index);
        out_ += "\" zelDM:imageoffset=\"";
        number(thumbnail.offset);
    }

    void writeScreenTexts()
    {
        out_ += "<rdf:li><rdf:Description xmpDM:trackType=\"ScreenText\" xmpDM:frameRate=\"f1000\" "
                "xmpDM:trackName=\"Screen Text\" ><xmpDM:markers><rdf:Seq>";
        for (const ScreenText& screenText : document_.screenTexts)
            writeScreenText(screenText);
        out_ += "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>";
    }

    void writeScreenText(const ScreenText& screenText)
    {
        out_ += "<rdf:li><rdf:Description xmpDM:name=\"";
        itemText(screenText.text);
        out_ += "\" xmpDM:startTime=\"";
        number(screenText.start);
        out_ += "\" xmpDM:duration=\"";
        number(screenText.duration);
        out_ += "\" xmpDM:image=\"";
        out_ += screenText.thumbnail.file;
        writeThumbnailPlace(screenText.thumbnail);
        out_ += "\" zelDM:tocEntry=\"";
        number(screenText.group);
        out_ += "\" ></rdf:Description></rdf:li>";
    }

    void closeFrame()
    {
        out_ += "<zelDM:controller><rdf:Description xmpDM:name=\"qmplayer\" ><zelDM:parameters>"
                "<rdf:Bag><rdf:li xmpDM:name=\"showsearch\" xmpDM:value=\"true\" ></rdf:li>"
                "</rdf:Bag></zelDM:parameters></rdf:Description></zelDM:controller>";
        if (!document_.header.contentNames.empty()) listContents();
        out_ += "</rdf:Description></rdf:RDF></x:xmpmeta>";
    }

    void listContents()
    {
        const auto& names = document_.header.contentNames;
        out_ += "<zelDM:contentList><rdf:Description><zelDM:files><rdf:Seq>";
        for (std::size_t i = 0; i < names.size(); ++i) {
            out_ += "<rdf:li xmpDM:name=\"";
            number(i);
            out_ += "\" xmpDM:value=\"";
            text(names[i]);
            out_ += "\"></rdf:li>";
        }
        out_ += "</rdf:Seq></zelDM:files></rdf:Description></zelDM:contentList>";
    }

    const Document& document_;
    std::string out_;
};

} // namespace

std::string appendPacket(const Document& document)
{
    return Packet(document).take();
}

} // namespace ZelInterchangeData::bench
