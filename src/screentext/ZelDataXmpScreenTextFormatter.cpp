#include "screentext/ZelDataXmpScreenTextFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "sets/Factory.h"
#include "util/TextUtilities.h"
#include "xml/MarkupWriter.h"
#include "xml/TrackMarkup.h"

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

void writeMarker(TextBlock& track, const ScreenTextState& item)
{
    track.append(R"(<rdf:li><rdf:Description xmpDM:name=")");
    appendEscapedStripped(track, item.text());
    track.append(R"(" xmpDM:startTime=")")
        .appendNumber(item.time.start)
        .append(R"(" xmpDM:duration=")")
        .appendNumber(item.time.duration)
        // Deliberate: this prefix, and not escaped; otherwise it would be an escaped "zelDM:image",
        // as in the table of contents.
        .append(R"(" xmpDM:image=")")
        .append(item.imageFile())
        .append(R"(" zelDM:imageindex=")")
        .appendNumber(item.imageIndex)
        .append(R"(" zelDM:imageoffset=")")
        .appendNumber(item.imageOffset)
        .append(R"(" zelDM:tocEntry=")")
        .appendNumber(item.groupId)
        .append(R"(" ></rdf:Description></rdf:li>)");
}

} // namespace

i_ZelDataScreenTextFormatter::~i_ZelDataScreenTextFormatter() = default;

// Defined here so that the document, which creates one, does not compile the class template again.
ZelDataXmpScreenTextFormatter::ZelDataXmpScreenTextFormatter() = default;
ZelDataXmpScreenTextFormatter::~ZelDataXmpScreenTextFormatter() = default;

ZelDataResult_tags ZelDataUtilities::createScreenTextFormatter(i_ZelDataScreenTextFormatter** out,
                                                               ZelDataFormatType_tags format)
{
    return createFormatter<ZelDataXmpScreenTextFormatter>(out, format);
}

ZelDataResult_tags
ZelDataXmpScreenTextFormatter::setScreenText(const i_ZelDataScreenText& screenText)
{
    return hold(screenText, &i_ZelDataScreenText::clearScreenTextItems);
}

ZelDataResult_tags
ZelDataXmpScreenTextFormatter::getScreenText(i_ZelDataScreenText& /*screenText*/) const
{
    return store(ZelData_NotImplemented);
}

std::optional<std::size_t> ZelDataXmpScreenTextFormatter::estimateTrack() const
{
    // The size of the texts, with some space for entities, and of the markup.
    constexpr std::size_t trackMarkup = 250;
    constexpr std::size_t markerMarkup = 260;
    const ZelDataScreenText& screenText = *held();
    if (screenText.items().count() == 0) return {};
    return trackMarkup + screenText.items().count() * markerMarkup + screenText.summary().size;
}

/// Writes the items as makeScreenTextConsistent() leaves them: in order, with a frame rate that is
/// in range.
void ZelDataXmpScreenTextFormatter::appendTrack(std::string& packet) const
{
    const ZelDataScreenText& screenText = *held();
    FrameRate rate = screenText.frameRate();
    rate.repair();
    MarkupWriter track(packet);
    // Deliberate: the rate before the name, and no image; otherwise, the attributes would be those
    // of the table of contents.
    track.markup(trackStart)
        .attribute("xmpDM:trackType", "ScreenText")
        .attribute("xmpDM:frameRate", Utilities::getRateString(rate.value))
        .attribute("xmpDM:trackName", "Screen Text")
        .markup(markersStart);
    screenText.items().visitOrdered(
        [&](const ScreenTextState& item) { writeMarker(track.text(), item); });
    track.markup(markersEnd).markup(trackEnd).finish();
}

} // namespace ZelInterchangeData
