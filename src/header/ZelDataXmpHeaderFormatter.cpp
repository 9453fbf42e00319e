#include "header/ZelDataXmpHeaderFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "sets/Factory.h"
#include "util/LanguageCatalogue.h"
#include "util/TextUtilities.h"
#include "xml/LanguageAlternative.h"
#include "xml/MarkupWriter.h"

#include <string_view>
#include <vector>

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

/// The version of the format, 1.1.0; not that of the library.
constexpr unsigned long formatVersion = 0x10100;

/// Everything before the properties of the video.
constexpr std::string_view frameStart =
    R"(<x:xmpmeta xmlns:x="adobe:ns:meta/" >)"
    R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#" )"
    R"(xmlns:xmp="http://ns.adobe.com/xap/1.0/" )"
    R"(xmlns:xmpDM="http://ns.adobe.com/xmp/1.0/DynamicMedia/" )"
    R"(xmlns:xmpG="http://ns.adobe.com/xap/1.0/g/" )"
    R"(xmlns:zel="http://ns.zel.example/xmp/zel/" )"
    R"(xmlns:zelDM="http://ns.zel.example/xmp/zelDM/" )"
    R"(xmlns:zelHS="http://ns.zel.example/xmp/zelHS/" )"
    R"(xmlns:stDim="http://ns.adobe.com/xap/1.0/sType/Dimensions#" )"
    R"(xmlns:stFnt="http://ns.adobe.com/xap/1.0/sType/Font#" )"
    R"(xmlns:dc="http://purl.org/dc/elements/1.1/" >)"
    R"(<rdf:Description )";

constexpr std::string_view frameEnd = "</rdf:Description></rdf:RDF></x:xmpmeta>";

constexpr std::string_view truthValue(bool value)
{
    return value ? "true" : "false";
}

void appendJoined(TextBlock& text, const std::vector<std::string>& words)
{
    for (const std::string& word : words) {
        if (&word != &words.front()) text.append(", ");
        appendEscaped(text, word);
    }
}

void writeTexts(MarkupWriter& packet, const HeaderFields& header)
{
    packet.attribute("zel:version", Utilities::getVersionString(formatVersion))
        .escaped("dc:title", header.title.view())
        .attribute("dc:date", Utilities::getDateString(nullptr))
        // Deliberate: only the creator is not escaped; otherwise, one that is already escaped would
        // be escaped twice.
        .attribute("dc:creator", header.creator.view())
        // Deliberate: the capital D; otherwise the name would be "dc:description".
        .escaped("dc:Description", header.description.view())
        .attributeOf("dc:source",
                     [&](TextBlock& text) {
                         appendEscaped(text, header.appName.view());
                         text.append(" - "); // even if name and version are empty
                         appendEscaped(text, header.appVersion.view());
                     })
        .attribute("zelDM:iPodExplicit", truthValue(header.iPodExplicit))
        .attributeOf("zelDM:keywords",
                     [&](TextBlock& text) {
                         if (header.keywords) appendJoined(text, *header.keywords);
                     })
        .attribute("zelDM:thumbnail", "") // always empty, like the next one
        .attribute("zelDM:firstFrame", "");
}

void writeSizes(MarkupWriter& packet, const HeaderFields& header)
{
    packet.markup("<xmpDM:duration ")
        .attribute("xmpDM:scale", "1/1000")
        .attribute("xmpDM:value", header.videoLength)
        .markup("></xmpDM:duration><xmpDM:videoFrameSize ")
        .attribute("stDim:unit", "pixel")
        .attribute("stDim:w", header.videoWidth)
        .attribute("stDim:h", header.videoHeight)
        .markup("></xmpDM:videoFrameSize>");
}

void writeLanguages(MarkupWriter& packet, const std::vector<std::string>& ids)
{
    if (ids.empty()) return;
    packet.markup("<zel:langName><rdf:Bag>");
    for (const std::string& id : ids) {
        const auto language = findLanguage(id);
        // Deliberate: succeeds without the rest; otherwise, an unknown language would make the
        // packet fail.
        if (!language) break;
        openLanguageItem(packet.text(), id);
        appendEscaped(packet.text(), language->englishName);
        closeLanguageItem(packet.text());
    }
    packet.markup("</rdf:Bag></zel:langName>");
}

void writeController(MarkupWriter& packet, bool showsSearchBar)
{
    packet.markup("<zelDM:controller><rdf:Description ")
        .attribute("xmpDM:name", "qmplayer")
        .markup("><zelDM:parameters><rdf:Bag><rdf:li ")
        .attribute("xmpDM:name", "showsearch")
        .attribute("xmpDM:value", truthValue(showsSearchBar))
        .markup("></rdf:li></rdf:Bag></zelDM:parameters></rdf:Description></zelDM:controller>");
}

void writeContentNames(MarkupWriter& packet, const std::vector<std::string>& names)
{
    if (names.empty()) return;
    packet.markup("<zelDM:contentList><rdf:Description><zelDM:files><rdf:Seq>");
    for (std::size_t i = 0; i < names.size(); ++i) {
        packet.markup("<rdf:li xmpDM:name=\"");
        packet.text().appendNumber(i);
        packet.markup("\" xmpDM:value=\"");
        appendEscaped(packet.text(), names[i]);
        packet.markup("\"></rdf:li>");
    }
    packet.markup("</rdf:Seq></zelDM:files></rdf:Description></zelDM:contentList>");
}

/// A packet without tracks.
std::string packetOf(const ZelDataHeader& header)
{
    std::string text;
    MarkupWriter packet(text);
    packet.markup(frameStart);
    writeTexts(packet, header.fields());
    packet.markup(">");
    writeSizes(packet, header.fields());
    writeLanguages(packet, header.languageIDs());
    // The document finds this empty list and inserts the tracks there.
    packet.markup("<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>");
    writeController(packet, header.showsSearchBar());
    writeContentNames(packet, header.contentNames());
    packet.markup(frameEnd).finish();
    return text;
}

} // namespace

i_ZelDataHeaderFormatter::~i_ZelDataHeaderFormatter() = default;

ZelDataResult_tags ZelDataUtilities::createHeaderFormatter(i_ZelDataHeaderFormatter** out,
                                                           ZelDataFormatType_tags format)
{
    return createFormatter<ZelDataXmpHeaderFormatter>(out, format);
}

ZelDataResult_tags ZelDataXmpHeaderFormatter::setHeader(const i_ZelDataHeader& header)
{
    return hold(header, &i_ZelDataHeader::clearHeader);
}

ZelDataResult_tags ZelDataXmpHeaderFormatter::getHeader(i_ZelDataHeader& /*header*/) const
{
    return store(ZelData_NotImplemented);
}

ZelDataResult_tags ZelDataXmpHeaderFormatter::writeString(std::string& out,
                                                          ZelDataFormatType_tags format,
                                                          bool /*flag*/) const
{
    return store(guarded([&] {
        if (format != ZelDataFormat_Xmp) return ZelData_InternalError;
        if (held() == nullptr) return ZelData_InvalidData;
        out = packetOf(*held());
        return ZelData_Ok;
    }));
}

/// Does not write a string first, unlike the formatters of the tracks.
ZelDataResult_tags ZelDataXmpHeaderFormatter::writeFile(const std::string& /*path*/,
                                                        ZelDataFormatType_tags format,
                                                        bool /*flag*/) const
{
    return store(notImplementedIn(format));
}

} // namespace ZelInterchangeData
