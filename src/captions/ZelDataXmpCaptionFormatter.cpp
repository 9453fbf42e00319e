#include "captions/ZelDataXmpCaptionFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "core/Factory.h"
#include "xml/LanguageAlternative.h"
#include "xml/Track.h"

#include <cmath>
#include <new>
#include <utility>

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

/// What stands for an empty text: players take it for a caption that shows nothing.
constexpr std::string_view emptyCaption = "{\\rtf1 }";

void describeTrack(Track& track, const CaptionStyle& style)
{
    track.description()
        .attribute("xmpDM:trackType", "Caption")
        .attribute("xmpDM:frameRate", Utilities::getRateString(style.frameRate.value))
        .attribute("xmpDM:trackName", "Captioning")
        .attribute("stFnt:fontFamily", style.fontFamily) // goes in as stored
        .attribute("zelDM:fontSize", Utilities::getValueString(style.fontSize))
        .attribute("zelDM:bgOpacity", Utilities::getValueString(style.backgroundOpacity));
}

/// 0 to 255, cut and not rounded; a NaN gives 0.
long long colorByte(float component)
{
    return std::isnan(component) ? 0
                                 : static_cast<long long>(static_cast<double>(component) * 255.0);
}

void addColor(Track& track, const char* name, const CaptionColor& color)
{
    track.addProperty(name)
        .attribute("xmpG:red", colorByte(color.red))
        .attribute("xmpG:green", colorByte(color.green))
        .attribute("xmpG:blue", colorByte(color.blue))
        .attribute("xmpG:mode", "RGB");
}

std::size_t lengthOf(const std::string& markup)
{
    return markup.size();
}

std::size_t lengthOf(const TextBlock& markup)
{
    return markup.position();
}

template <class Markup>
void appendCaption(Markup& markup, const std::string& languageID, const std::string& text)
{
    openLanguageItem(markup, languageID);
    const std::size_t begin = lengthOf(markup);
    appendEscapedStripped(markup, text);
    if (lengthOf(markup) == begin) markup.append(emptyCaption);
    closeLanguageItem(markup);
}

/// buildCaptionList() for an item of our own, whose texts are not copied. False when one is missing.
bool appendCaptions(TextBlock& markup, const CaptionState& item,
                    const std::vector<std::string>& languageIDs)
{
    markup.append(nameAlternativeStart);
    for (const std::string& id : languageIDs) {
        const std::string* text = item.texts().find(id);
        if (text == nullptr) return false;
        appendCaption(markup, id, *text);
    }
    markup.append(nameAlternativeEnd);
    return true;
}

bool writeMarker(MarkerWriter& markers, const CaptionState& item,
                 const std::vector<std::string>& languageIDs)
{
    markers.begin()
        .attribute("xmpDM:startTime", item.time.start)
        .attribute("xmpDM:duration", item.time.duration)
        .attribute("zelDM:valign", verticalWord(item.alignment))
        .attribute("zelDM:halign", horizontalWord(item.alignment));
    const bool complete = appendCaptions(markers.content(), item, languageIDs);
    markers.endContent();
    return complete;
}

/// About how many bytes the markers take: the texts with a little room for entities, and the markup.
std::size_t expectedSize(const ZelDataCaptions& captions)
{
    constexpr std::size_t markerMarkup = 210;
    constexpr std::size_t languageMarkup = 40;
    std::size_t size =
        captions.items().count() * (markerMarkup + captions.languageIDs().size() * languageMarkup);
    for (unsigned long i = 0; i < captions.items().count(); ++i) {
        const CaptionState& item = captions.items().state(i);
        for (const auto& entry : item.texts().all())
            size += entry.second.size();
    }
    return size;
}

ZelDataResult_tags writeTrack(ZelDataCaptions& captions, std::string& out)
{
    if (captions.items().count() == 0) return ZelData_Ok;
    if (failed(captions.makeCaptionsConsistent())) return captions.getLastError();
    if (!captions.canHandOutItems()) return ZelData_InvalidArgument;
    Track track;
    describeTrack(track, captions.style());
    addColor(track, "zel:fgColor", captions.style().foreground);
    addColor(track, "zel:bgColor", captions.style().background);
    bool complete = true;
    std::string text = track.text(expectedSize(captions), [&](MarkerWriter& markers) {
        for (unsigned long i = 0; i < captions.items().count(); ++i) {
            const CaptionState& item = captions.items().state(i);
            complete = writeMarker(markers, item, captions.languageIDs()) && complete;
        }
    });
    if (!complete) return ZelData_InternalError;
    out = std::move(text);
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
        appendCaption(text, id, caption);
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
