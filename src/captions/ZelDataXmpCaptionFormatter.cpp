#include "captions/ZelDataXmpCaptionFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "core/Factory.h"
#include "util/Ending.h"
#include "xml/LanguageAlternative.h"
#include "xml/Track.h"

#include <cmath>
#include <new>

namespace ZelInterchangeData {

namespace {

using Captions = i_ZelDataCaptions;
using Utilities = ZelDataUtilities;

/// What stands for an empty text: players take it for a caption that shows nothing.
constexpr const char* emptyCaption = "{\\rtf1 }";

Ending describeTrack(Track& track, const Captions& captions)
{
    unsigned long rate = 0;
    std::string fontFamily;
    unsigned long fontSize = 0;
    float opacity = 0;
    if (failed(captions.getFrameRate(rate)) || failed(captions.getFontFamily(fontFamily)) ||
        failed(captions.getFontSize(fontSize)) || failed(captions.getBackgroundOpacity(opacity))) {
        return captions.getLastError();
    }
    track.description()
        .attribute("xmpDM:trackType", "Caption")
        .attribute("xmpDM:frameRate", Utilities::getRateString(rate))
        .attribute("xmpDM:trackName", "Captioning")
        .attribute("stFnt:fontFamily", fontFamily) // goes in as stored
        .attribute("zelDM:fontSize", Utilities::getValueString(fontSize))
        .attribute("zelDM:bgOpacity", Utilities::getValueString(opacity));
    return {};
}

Ending addMarker(Track& track, const i_ZelDataCaptionItem& item,
                 const std::vector<std::string>& languageIDs)
{
    long long start = 0;
    long long duration = 0;
    ZelAlignment_tags alignment = ZelAlignCenter;
    if (failed(item.getStart(start)) || failed(item.getDuration(duration)) ||
        failed(item.getAlignment(alignment))) {
        return item.getLastError();
    }
    std::string texts;
    if (!buildCaptionList(languageIDs, item, texts)) return ZelData_InternalError;
    track.addMarker()
        .attribute("xmpDM:startTime", start)
        .attribute("xmpDM:duration", duration)
        .attribute("zelDM:valign", Utilities::getVerticalAlignment(alignment))
        .attribute("zelDM:halign", Utilities::getHorizontalAlignment(alignment))
        .text(texts);
    return {};
}

Ending addMarkers(Track& track, const Captions& captions, unsigned long count)
{
    std::vector<std::string> languageIDs;
    if (failed(captions.getOrderedLanguageIDs(languageIDs))) return captions.getLastError();
    for (unsigned long i = 0; i < count; ++i) {
        i_ZelDataCaptionItem* handedOut = nullptr;
        const auto got = captions.getCaptionItemAt(&handedOut, i);
        const std::unique_ptr<i_ZelDataCaptionItem> item(handedOut);
        if (failed(got)) return captions.getLastError();
        if (!item) return ZelData_InternalError;
        if (const Ending ending = addMarker(track, *item, languageIDs)) return ending;
    }
    return {};
}

/// 0 to 255, cut and not rounded; a NaN gives 0.
long long colorByte(float component)
{
    return std::isnan(component) ? 0
                                 : static_cast<long long>(static_cast<double>(component) * 255.0);
}

Ending addColor(Track& track, const char* name, const Captions& captions,
                ZelDataResult_tags (Captions::*get)(float&, float&, float&) const)
{
    float red = 0;
    float green = 0;
    float blue = 0;
    if (failed((captions.*get)(red, green, blue))) return captions.getLastError();
    track.addProperty(name)
        .attribute("xmpG:red", colorByte(red))
        .attribute("xmpG:green", colorByte(green))
        .attribute("xmpG:blue", colorByte(blue))
        .attribute("xmpG:mode", "RGB");
    return {};
}

ZelDataResult_tags writeTrack(Captions& captions, std::string& out)
{
    unsigned long count = 0;
    if (failed(captions.getCaptionItemCount(count))) return captions.getLastError();
    if (count == 0) return ZelData_Ok;
    if (failed(captions.makeCaptionsConsistent())) return captions.getLastError();
    Track track;
    if (const Ending ending = describeTrack(track, captions)) return *ending;
    if (const Ending ending = addMarkers(track, captions, count)) return *ending;
    if (const Ending ending =
            addColor(track, "zel:fgColor", captions, &Captions::getForegroundColor)) {
        return *ending;
    }
    if (const Ending ending =
            addColor(track, "zel:bgColor", captions, &Captions::getBackgroundColor)) {
        return *ending;
    }
    out = track.text();
    return ZelData_Ok;
}

} // namespace

ZelDataResult_tags ZelDataUtilities::createCaptionFormatter(i_ZelDataCaptionFormatter** out,
                                                            ZelDataFormatType_tags format)
{
    return createFormatter<ZelDataXmpCaptionFormatter>(out, format);
}

bool buildCaptionList(std::vector<std::string> languageIDs, const i_ZelDataCaptionItem& item,
                      std::string& text)
{
    bool complete = true;
    text += nameAlternativeStart;
    for (const std::string& id : languageIDs) {
        std::string caption;
        const auto got = item.getTextForLanguage(caption, id);
        if (got == ZelData_OutOfMemory) throw std::bad_alloc(); // no sign of a missing text
        if (failed(got)) {
            complete = false;
            continue;
        }
        caption = Utilities::stripUnsupportedCharacters(Utilities::htmlTagsToText(caption));
        appendLanguageItem(text, id, caption.empty() ? emptyCaption : caption);
    }
    text += nameAlternativeEnd;
    return complete;
}

ZelDataResult_tags ZelDataXmpCaptionFormatter::setCaptions(const i_ZelDataCaptions& captions)
{
    return hold(captions, &ZelDataUtilities::createCaptionData,
                &i_ZelDataCaptions::clearCaptionItems);
}

ZelDataResult_tags ZelDataXmpCaptionFormatter::getCaptions(i_ZelDataCaptions& /*captions*/) const
{
    return store(ZelData_NotImplemented);
}

ZelDataResult_tags ZelDataXmpCaptionFormatter::writeString(std::string& out,
                                                           ZelDataFormatType_tags format,
                                                           bool /*flag*/) const
{
    return store(guarded([&] {
        if (format != ZelDataFormat_Xmp) return ZelData_InternalError;
        if (held() == nullptr) return ZelData_InvalidData;
        return writeTrack(*held(), out);
    }));
}

} // namespace ZelInterchangeData
