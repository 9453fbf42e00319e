#include "toc/ZelDataXmpTocFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "core/Factory.h"
#include "xml/LanguageAlternative.h"
#include "xml/Track.h"

#include <new>

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

/// The title that the marker carries. One alone is meant: players read the name as a plain text.
std::string_view titleOf(const TocEntryState& entry, const std::vector<std::string>& languageIDs)
{
    if (languageIDs.empty()) return {};
    const std::string* title = entry.texts().find(languageIDs.front());
    return title == nullptr ? std::string_view() : *title;
}

void writeMarker(MarkerWriter& markers, const TocEntryState& entry,
                 const std::vector<std::string>& languageIDs)
{
    markers.begin()
        .escapedStripped("xmpDM:name", titleOf(entry, languageIDs))
        .attribute("xmpDM:startTime", entry.startTime)
        .escaped("zelDM:image", entry.imageFile())
        .attribute("zelDM:imageindex", static_cast<unsigned long long>(entry.imageIndex))
        .attribute("zelDM:imageoffset", entry.imageOffset)
        .end();
}

/// About how many bytes the markers take: the texts with a little room for entities, and the markup.
std::size_t expectedSize(const ZelDataToc& toc)
{
    constexpr std::size_t markerMarkup = 210;
    std::size_t size = toc.items().count() * markerMarkup;
    for (unsigned long i = 0; i < toc.items().count(); ++i) {
        const TocEntryState& entry = toc.items().state(i);
        size += titleOf(entry, toc.languageIDs()).size() + entry.imageFile().size();
    }
    return size;
}

ZelDataResult_tags writeTrack(ZelDataToc& toc, std::string& out)
{
    unsigned long rate = 0;
    std::string image;
    if (failed(toc.makeTocConsistent()) || failed(toc.getFrameRate(rate)) ||
        failed(toc.getImageFile(image))) {
        return toc.getLastError();
    }
    if (toc.items().count() == 0) return ZelData_Ok;
    Track track;
    track.description()
        .attribute("xmpDM:trackType", "TableOfContents")
        .attribute("xmpDM:trackName", "Table of Contents")
        .attribute("xmpDM:frameRate", Utilities::getRateString(rate))
        .attribute("zelDM:image", Utilities::htmlTagsToText(image));
    out = track.text(expectedSize(toc), [&](MarkerWriter& markers) {
        for (unsigned long i = 0; i < toc.items().count(); ++i) {
            const TocEntryState& entry = toc.items().state(i);
            writeMarker(markers, entry, toc.languageIDs());
        }
    });
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
