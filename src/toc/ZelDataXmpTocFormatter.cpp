#include "toc/ZelDataXmpTocFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "core/Factory.h"
#include "util/Ending.h"
#include "xml/LanguageAlternative.h"
#include "xml/Track.h"

#include <new>

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

Ending describeTrack(Track& track, const i_ZelDataToc& toc)
{
    unsigned long rate = 0;
    std::string image;
    if (failed(toc.getFrameRate(rate)) || failed(toc.getImageFile(image))) {
        return toc.getLastError();
    }
    track.description()
        .attribute("xmpDM:trackType", "TableOfContents")
        .attribute("xmpDM:trackName", "Table of Contents")
        .attribute("xmpDM:frameRate", Utilities::getRateString(rate))
        .attribute("zelDM:image", Utilities::htmlTagsToText(image));
    return {};
}

Ending addMarker(Track& track, const i_ZelDataTocItem& item,
                 const std::vector<std::string>& languageIDs)
{
    long long start = 0;
    std::string image;
    unsigned long index = 0;
    unsigned long long offset = 0;
    std::string title;
    if (failed(item.getStart(start)) || failed(item.getImageFile(image)) ||
        failed(item.getImageIndex(index)) || failed(item.getImageOffset(offset))) {
        return item.getLastError();
    }
    // One title alone is meant: players read the marker's name as a plain text.
    if (!languageIDs.empty() && failed(item.getTextForLanguage(title, languageIDs.front()))) {
        return item.getLastError();
    }
    title = Utilities::htmlTagsToText(title);
    track.addMarker()
        .attribute("xmpDM:name", Utilities::stripUnsupportedCharacters(title))
        .attribute("xmpDM:startTime", start)
        .attribute("zelDM:image", Utilities::htmlTagsToText(image))
        .attribute("zelDM:imageindex", Utilities::getValueString(index))
        .attribute("zelDM:imageoffset", Utilities::getValueString(offset));
    return {};
}

Ending addMarkers(Track& track, const i_ZelDataToc& toc, unsigned long count)
{
    std::vector<std::string> languageIDs;
    if (failed(toc.getOrderedLanguageIDs(languageIDs))) return toc.getLastError();
    for (unsigned long i = 0; i < count; ++i) {
        i_ZelDataTocItem* handedOut = nullptr;
        const auto got = toc.getTocItemAt(&handedOut, i);
        const std::unique_ptr<i_ZelDataTocItem> item(handedOut);
        if (failed(got)) return toc.getLastError();
        if (!item) return ZelData_InternalError;
        if (const Ending ending = addMarker(track, *item, languageIDs)) return ending;
    }
    return {};
}

ZelDataResult_tags writeTrack(i_ZelDataToc& toc, std::string& out)
{
    if (failed(toc.makeTocConsistent())) return toc.getLastError();
    unsigned long count = 0;
    if (failed(toc.getTocItemCount(count))) return toc.getLastError();
    if (count == 0) return ZelData_Ok;
    Track track;
    if (const Ending ending = describeTrack(track, toc)) return *ending;
    if (const Ending ending = addMarkers(track, toc, count)) return *ending;
    out = track.text();
    return ZelData_Ok;
}

} // namespace

ZelDataResult_tags ZelDataUtilities::createTocFormatter(i_ZelDataTocFormatter** out,
                                                        ZelDataFormatType_tags format)
{
    return createFormatter<ZelDataXmpTocFormatter>(out, format);
}

bool buildTocList(std::vector<std::string> languages, const i_ZelDataTocItem& item,
                  std::string& out)
{
    bool complete = true;
    out = nameAlternativeStart;
    for (const std::string& id : languages) {
        std::string title;
        const auto got = item.getTextForLanguage(title, id);
        if (got == ZelData_OutOfMemory) throw std::bad_alloc(); // no sign of a missing text
        if (failed(got)) {
            complete = false;
            continue;
        }
        appendLanguageItem(out, id, Utilities::htmlTagsToText(title));
    }
    out += nameAlternativeEnd;
    return complete;
}

ZelDataResult_tags ZelDataXmpTocFormatter::setToc(const i_ZelDataToc& toc)
{
    return hold(toc, &ZelDataUtilities::createTocData, &i_ZelDataToc::clearTocItems);
}

ZelDataResult_tags ZelDataXmpTocFormatter::getToc(i_ZelDataToc& /*toc*/) const
{
    return store(ZelData_NotImplemented);
}

ZelDataResult_tags ZelDataXmpTocFormatter::writeString(std::string& out,
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
