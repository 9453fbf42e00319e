#include "captions/ZelDataXmpCaptionFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "sets/Factory.h"
#include "util/TextUtilities.h"
#include "xml/LanguageAlternative.h"
#include "xml/MarkupWriter.h"
#include "xml/TrackMarkup.h"

#include <cmath>
#include <new>
#include <utility>

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

/// Deliberate: written in place of an empty text; otherwise, its list item would be empty.
constexpr std::string_view emptyCaption = "{\\rtf1 }";

void describeTrack(MarkupWriter& track, const CaptionStyle& style)
{
    track.attribute("xmpDM:trackType", "Caption")
        .attribute("xmpDM:frameRate", Utilities::getRateString(style.frameRate.value))
        .attribute("xmpDM:trackName", "Captioning")
        .attribute("stFnt:fontFamily", style.fontFamily) // written as stored
        .attribute("zelDM:fontSize", style.fontSize)
        .attribute("zelDM:bgOpacity", Utilities::getValueString(style.backgroundOpacity));
}

/// 0 to 255, truncated, not rounded; 0 for NaN.
long long colorByte(float component)
{
    return std::isnan(component) ? 0
                                 : static_cast<long long>(static_cast<double>(component) * 255.0);
}

void writeColor(MarkupWriter& track, const CaptionColor& color)
{
    track.attribute("xmpG:red", colorByte(color.red))
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
void appendCaption(Markup& markup, std::string_view languageID, std::string_view text)
{
    openLanguageItem(markup, languageID);
    const std::size_t begin = lengthOf(markup);
    appendEscapedStripped(markup, text);
    if (lengthOf(markup) == begin) markup.append(emptyCaption);
    closeLanguageItem(markup);
}

/// A missing text counts as empty, as after makeCaptionsConsistent().
void writeMarker(TextBlock& track, const CaptionState& item,
                 const std::vector<std::string>& languageIDs)
{
    track.append(R"(<rdf:li><rdf:Description xmpDM:startTime=")")
        .appendNumber(item.time.start)
        .append(R"(" xmpDM:duration=")")
        .appendNumber(item.time.duration)
        .append(R"(" zelDM:valign=")")
        .append(verticalWord(item.alignment))
        .append(R"(" zelDM:halign=")")
        .append(horizontalWord(item.alignment))
        .append(R"(" ><xmpDM:name><rdf:Alt>)");
    for (std::size_t i = 0; i < languageIDs.size(); ++i) {
        const std::string& id = languageIDs[i];
        appendCaption(track, id, item.texts().find(id, i).value_or(std::string_view()));
    }
    track.append("</rdf:Alt></xmpDM:name></rdf:Description></rdf:li>");
}

} // namespace

i_ZelDataCaptionFormatter::~i_ZelDataCaptionFormatter() = default;

// Defined here so that the document, which creates one, does not compile the class template again.
ZelDataXmpCaptionFormatter::ZelDataXmpCaptionFormatter() = default;
ZelDataXmpCaptionFormatter::~ZelDataXmpCaptionFormatter() = default;

ZelDataResult_tags ZelDataUtilities::createCaptionFormatter(i_ZelDataCaptionFormatter** out,
                                                            ZelDataFormatType_tags format)
{
    return createFormatter<ZelDataXmpCaptionFormatter>(out, format);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): its signature is fixed.
bool buildCaptionList(std::vector<std::string> languageIDs, const i_ZelDataCaptionItem& item,
                      std::string& text)
{
    bool complete = true;
    text += nameAlternativeStart;
    for (const std::string& id : languageIDs) {
        std::string caption;
        const auto got = item.getTextForLanguage(caption, id);
        if (got == ZelData_OutOfMemory) throw std::bad_alloc(); // it does not mean a missing text
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
    return hold(captions, &i_ZelDataCaptions::clearCaptionItems);
}

ZelDataResult_tags ZelDataXmpCaptionFormatter::getCaptions(i_ZelDataCaptions& /*captions*/) const
{
    return store(ZelData_NotImplemented);
}

Ending ZelDataXmpCaptionFormatter::checkTrack() const
{
    if (!held()->canHandOutItems()) return ZelData_InvalidArgument;
    return {};
}

std::optional<std::size_t> ZelDataXmpCaptionFormatter::estimateTrack() const
{
    // The size of the texts, with some space for entities, and of the markup.
    constexpr std::size_t trackMarkup = 700;
    constexpr std::size_t markerMarkup = 210;
    constexpr std::size_t languageMarkup = 40;
    const ZelDataCaptions& captions = *held();
    const std::size_t count = captions.items().count();
    if (count == 0) return {};
    return trackMarkup + count * (markerMarkup + captions.languageIDs().size() * languageMarkup) +
           captions.summary().size;
}

/// Writes the captions as makeCaptionsConsistent() leaves them: in order, with a text in each
/// language and a styling that is in range.
void ZelDataXmpCaptionFormatter::appendTrack(std::string& packet) const
{
    const ZelDataCaptions& captions = *held();
    CaptionStyle style = captions.style();
    style.repair();
    MarkupWriter track(packet);
    track.markup(trackStart);
    describeTrack(track, style);
    track.markup(markersStart);
    captions.items().visitOrdered(
        [&](const CaptionState& item) { writeMarker(track.text(), item, captions.languageIDs()); });
    track.markup(markersEnd).markup("<zel:fgColor ");
    writeColor(track, style.foreground);
    track.markup("></zel:fgColor><zel:bgColor ");
    writeColor(track, style.background);
    track.markup("></zel:bgColor>").markup(trackEnd).finish();
}

} // namespace ZelInterchangeData
