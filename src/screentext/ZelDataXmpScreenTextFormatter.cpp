#include "screentext/ZelDataXmpScreenTextFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "core/Factory.h"
#include "xml/Track.h"

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

void writeMarker(MarkerWriter& markers, const ScreenTextState& item)
{
    markers.begin()
        .escapedStripped("xmpDM:name", item.text())
        .attribute("xmpDM:startTime", item.time.start)
        .attribute("xmpDM:duration", item.time.duration)
        // The prefix is meant to be another one than in the table of contents, and the name to go in
        // as stored: players look for this one, and callers escape the name themselves.
        .attribute("xmpDM:image", item.imageFile())
        .attribute("zelDM:imageindex", static_cast<unsigned long long>(item.imageIndex))
        .attribute("zelDM:imageoffset", item.imageOffset)
        .attribute("zelDM:tocEntry", static_cast<unsigned long long>(item.groupId))
        .end();
}

/// About how many bytes the markers take: the texts with a little room for entities, and the markup.
std::size_t expectedSize(const ZelDataScreenText& screenText)
{
    constexpr std::size_t markerMarkup = 260;
    std::size_t size = screenText.items().count() * markerMarkup;
    for (unsigned long i = 0; i < screenText.items().count(); ++i) {
        const ScreenTextState& item = screenText.items().state(i);
        size += item.text().size() + item.imageFile().size();
    }
    return size;
}

ZelDataResult_tags writeTrack(ZelDataScreenText& screenText, std::string& out)
{
    unsigned long rate = 0;
    if (failed(screenText.makeScreenTextConsistent()) || failed(screenText.getFrameRate(rate))) {
        return screenText.getLastError();
    }
    if (screenText.items().count() == 0) return ZelData_Ok;
    Track track;
    // Another order than that of the table of contents, and no image: both are meant, players compare
    // these bytes.
    track.description()
        .attribute("xmpDM:trackType", "ScreenText")
        .attribute("xmpDM:frameRate", Utilities::getRateString(rate))
        .attribute("xmpDM:trackName", "Screen Text");
    out = track.text(expectedSize(screenText), [&](MarkerWriter& markers) {
        for (unsigned long i = 0; i < screenText.items().count(); ++i) {
            const ScreenTextState& item = screenText.items().state(i);
            writeMarker(markers, item);
        }
    });
    return ZelData_Ok;
}

} // namespace

ZelDataResult_tags ZelDataUtilities::createScreenTextFormatter(i_ZelDataScreenTextFormatter** out,
                                                               ZelDataFormatType_tags format)
{
    return createFormatter<ZelDataXmpScreenTextFormatter>(out, format);
}

ZelDataResult_tags
ZelDataXmpScreenTextFormatter::setScreenText(const i_ZelDataScreenText& screenText)
{
    return hold(screenText, &ZelDataUtilities::createScreenTextData,
                &i_ZelDataScreenText::clearScreenTextItems);
}

ZelDataResult_tags
ZelDataXmpScreenTextFormatter::getScreenText(i_ZelDataScreenText& /*screenText*/) const
{
    return store(ZelData_NotImplemented);
}

ZelDataResult_tags ZelDataXmpScreenTextFormatter::writeString(std::string& out,
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
