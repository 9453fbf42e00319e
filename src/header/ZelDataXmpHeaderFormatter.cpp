#include "header/ZelDataXmpHeaderFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "sets/Factory.h"
#include "util/Ending.h"
#include "util/TextUtilities.h"
#include "util/ValueStrings.h"
#include "xml/LanguageAlternative.h"
#include "xml/ZelDataXmlStream.h"

#include <array>
#include <vector>

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

/// The version of the format, 1.1.0; not that of the library.
constexpr unsigned long formatVersion = 0x10100;

constexpr std::array<std::pair<const char*, const char*>, 10> namespaces = {{
    {"xmlns:rdf", "http://www.w3.org/1999/02/22-rdf-syntax-ns#"},
    {"xmlns:xmp", "http://ns.adobe.com/xap/1.0/"},
    {"xmlns:xmpDM", "http://ns.adobe.com/xmp/1.0/DynamicMedia/"},
    {"xmlns:xmpG", "http://ns.adobe.com/xap/1.0/g/"},
    {"xmlns:zel", "http://ns.zel.example/xmp/zel/"},
    {"xmlns:zelDM", "http://ns.zel.example/xmp/zelDM/"},
    {"xmlns:zelHS", "http://ns.zel.example/xmp/zelHS/"},
    {"xmlns:stDim", "http://ns.adobe.com/xap/1.0/sType/Dimensions#"},
    {"xmlns:stFnt", "http://ns.adobe.com/xap/1.0/sType/Font#"},
    {"xmlns:dc", "http://purl.org/dc/elements/1.1/"},
}};

const char* truthValue(bool value)
{
    return value ? "true" : "false";
}

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words) {
        if (&word != &words.front()) text += ", ";
        text += word;
    }
    return text;
}

/// Builds the items of the language list.
ZelDataResult_tags buildLanguageMarkup(const std::vector<std::string>& ids, std::string& markup)
{
    for (const std::string& id : ids) {
        std::string name;
        const auto found = Utilities::englishNameForLanguage(id, name);
        if (found == ZelData_OutOfMemory) return found;
        // Deliberate: succeeds without the rest; otherwise, an unknown language would make the
        // packet fail.
        if (failed(found)) break;
        appendLanguageItem(markup, id, Utilities::htmlTagsToText(name));
    }
    return ZelData_Ok;
}

/// The items of the content list.
std::string contentMarkup(const std::vector<std::string>& names)
{
    constexpr std::size_t itemMarkup = 80;
    std::string markup;
    for (std::size_t i = 0; i < names.size(); ++i) {
        markup.reserve(markup.size() + itemMarkup + sizeWithEntities(names[i]));
        markup += "<rdf:li xmpDM:name=\"";
        markup += decimalText(static_cast<unsigned long long>(i));
        markup += "\" xmpDM:value=\"";
        appendEscaped(markup, names[i]);
        markup += "\"></rdf:li>";
    }
    return markup;
}

/// Writes one header, step by step, in the order of the packet. A step that cannot get a value ends
/// with the header's last error.
class PacketFrame {
public:
    explicit PacketFrame(const i_ZelDataHeader& header) : header_(header), description_(frame()) {}

    /// Writes the whole packet to @p out, which is unchanged on failure.
    ZelDataResult_tags writeTo(std::string& out)
    {
        using Step = Ending (PacketFrame::*)();
        for (const Step step :
             {&PacketFrame::addTitleAndDate, &PacketFrame::addCreatorAndDescription,
              &PacketFrame::addSource, &PacketFrame::addFlagAndKeywords, &PacketFrame::addDuration,
              &PacketFrame::addFrameSize, &PacketFrame::addLanguages, &PacketFrame::addTrackList,
              &PacketFrame::addController, &PacketFrame::addContentNames}) {
            // cppcheck-suppress useStlAlgorithm ; each step adds to the packet, in this order
            if (const Ending ending = (this->*step)()) return *ending;
        }
        out = stream_.getXml(false);
        return ZelData_Ok;
    }

private:
    ZelDataXmlNode& frame()
    {
        stream_.element("x:xmpmeta").attribute("xmlns:x", "adobe:ns:meta/");
        ZelDataXmlNode& rdf = stream_.element("x:xmpmeta/rdf:RDF");
        for (const auto& [name, uri] : namespaces)
            rdf.attribute(name, uri);
        return stream_.element("x:xmpmeta/rdf:RDF/rdf:Description");
    }

    Ending addTitleAndDate()
    {
        std::string title;
        description_.attribute("zel:version", Utilities::getVersionString(formatVersion));
        if (failed(header_.getTitle(title))) return header_.getLastError();
        description_.attribute("dc:title", Utilities::htmlTagsToText(title));
        description_.attribute("dc:date", Utilities::getDateString(nullptr));
        return {};
    }

    Ending addCreatorAndDescription()
    {
        std::string creator;
        std::string text;
        if (failed(header_.getCreator(creator))) return header_.getLastError();
        // Deliberate: only the creator is not escaped; otherwise, one that is already escaped would
        // be escaped twice.
        description_.attribute("dc:creator", creator);
        if (failed(header_.getDescription(text))) return header_.getLastError();
        // Deliberate: the capital D; otherwise the name would be "dc:description".
        description_.attribute("dc:Description", Utilities::htmlTagsToText(text));
        return {};
    }

    Ending addSource()
    {
        std::string name;
        std::string version;
        if (failed(header_.getAppName(name)) || failed(header_.getAppVersion(version))) {
            return header_.getLastError();
        }
        // The separator is written even if name and version are empty.
        description_.attribute("dc:source", Utilities::htmlTagsToText(name + " - " + version));
        return {};
    }

    Ending addFlagAndKeywords()
    {
        bool isExplicit = false;
        std::vector<std::string> keywords;
        if (failed(header_.getIPodExplicit(isExplicit)) || failed(header_.getKeywords(keywords))) {
            return header_.getLastError();
        }
        description_.attribute("zelDM:iPodExplicit", truthValue(isExplicit))
            .attribute("zelDM:keywords", Utilities::htmlTagsToText(joined(keywords)))
            .attribute("zelDM:thumbnail", "") // always empty, like the next one
            .attribute("zelDM:firstFrame", "");
        return {};
    }

    Ending addDuration()
    {
        unsigned long length = 0;
        if (failed(header_.getVideoLength(length))) return header_.getLastError();
        description_.element("xmpDM:duration")
            .attribute("xmpDM:scale", "1/1000")
            .attribute("xmpDM:value", Utilities::getValueString(length));
        return {};
    }

    Ending addFrameSize()
    {
        unsigned long height = 0;
        unsigned long width = 0;
        if (failed(header_.getVideoHeight(height)) || failed(header_.getVideoWidth(width))) {
            return header_.getLastError(); // uncovered line: our own copy always has them
        }
        description_.element("xmpDM:videoFrameSize")
            .attribute("stDim:unit", "pixel")
            .attribute("stDim:w", Utilities::getValueString(width))
            .attribute("stDim:h", Utilities::getValueString(height));
        return {};
    }

    Ending addLanguages()
    {
        std::vector<std::string> ids;
        std::string markup;
        if (failed(header_.getOrderedLanguageIDs(ids))) return header_.getLastError();
        if (ids.empty()) return {};
        if (const auto built = buildLanguageMarkup(ids, markup); failed(built)) return built;
        description_.element("zel:langName/rdf:Bag").text(markup);
        return {};
    }

    /// The document finds this empty pair of tags and inserts the tracks there.
    Ending addTrackList()
    {
        description_.element("xmpDM:Tracks/rdf:Bag");
        return {};
    }

    Ending addController()
    {
        ZelDataXmlNode& controller = description_.element("zelDM:controller/rdf:Description")
                                         .attribute("xmpDM:name", "qmplayer");
        bool show = false;
        if (failed(header_.getShowSearchBar(show))) return header_.getLastError();
        controller.element("zelDM:parameters/rdf:Bag/rdf:li")
            .attribute("xmpDM:name", "showsearch")
            .attribute("xmpDM:value", truthValue(show));
        return {};
    }

    Ending addContentNames()
    {
        std::vector<std::string> names;
        if (failed(header_.getContentNames(names))) return header_.getLastError();
        if (names.empty()) return {};
        description_.element("zelDM:contentList/rdf:Description/zelDM:files/rdf:Seq")
            .text(contentMarkup(names));
        return {};
    }

    const i_ZelDataHeader& header_;
    ZelDataXmlStream stream_;
    ZelDataXmlNode& description_;
};

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
        return PacketFrame(*held()).writeTo(out);
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
