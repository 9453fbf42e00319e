#include "screentext/ZelDataXmpScreenTextFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "core/Factory.h"
#include "util/Ending.h"
#include "xml/Track.h"

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

Ending describeTrack(Track& track, const i_ZelDataScreenText& screenText)
{
    unsigned long rate = 0;
    if (failed(screenText.getFrameRate(rate))) return screenText.getLastError();
    // Another order than that of the table of contents, and no image: both are meant, players
    // compare these bytes.
    track.description()
        .attribute("xmpDM:trackType", "ScreenText")
        .attribute("xmpDM:frameRate", Utilities::getRateString(rate))
        .attribute("xmpDM:trackName", "Screen Text");
    return {};
}

Ending addMarker(Track& track, const i_ZelDataScreenTextItem& item)
{
    long long start = 0;
    long long duration = 0;
    std::string image;
    unsigned long index = 0;
    unsigned long long offset = 0;
    unsigned long group = 0;
    std::string text;
    if (failed(item.getStart(start)) || failed(item.getDuration(duration)) ||
        failed(item.getImageFile(image)) || failed(item.getImageIndex(index)) ||
        failed(item.getImageOffset(offset)) || failed(item.getGroupId(group)) ||
        failed(item.getText(text))) {
        return item.getLastError();
    }
    text = Utilities::stripUnsupportedCharacters(Utilities::htmlTagsToText(text));
    track.addMarker()
        .attribute("xmpDM:name", text)
        .attribute("xmpDM:startTime", start)
        .attribute("xmpDM:duration", duration)
        // The prefix is meant to be another one than in the table of contents, and the name to go
        // in as stored: players look for this one, and callers escape the name themselves.
        .attribute("xmpDM:image", image)
        .attribute("zelDM:imageindex", Utilities::getValueString(index))
        .attribute("zelDM:imageoffset", Utilities::getValueString(offset))
        .attribute("zelDM:tocEntry", Utilities::getValueString(group));
    return {};
}

Ending addMarkers(Track& track, const i_ZelDataScreenText& screenText, unsigned long count)
{
    for (unsigned long i = 0; i < count; ++i) {
        i_ZelDataScreenTextItem* handedOut = nullptr;
        const auto got = screenText.getScreenTextItemAt(&handedOut, i);
        const std::unique_ptr<i_ZelDataScreenTextItem> item(handedOut);
        if (failed(got)) return screenText.getLastError();
        if (!item) return ZelData_InternalError;
        if (const Ending ending = addMarker(track, *item)) return ending;
    }
    return {};
}

ZelDataResult_tags writeTrack(i_ZelDataScreenText& screenText, std::string& out)
{
    if (failed(screenText.makeScreenTextConsistent())) return screenText.getLastError();
    unsigned long count = 0;
    if (failed(screenText.getScreenTextItemCount(count))) return screenText.getLastError();
    if (count == 0) return ZelData_Ok;
    Track track;
    if (const Ending ending = describeTrack(track, screenText)) return *ending;
    if (const Ending ending = addMarkers(track, screenText, count)) return *ending;
    out = track.text();
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
