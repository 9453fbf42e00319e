#include "toc/ZelDataXmpTocFormatter.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "sets/Factory.h"
#include "sets/FrameRate.h"
#include "util/TextUtilities.h"
#include "xml/LanguageAlternative.h"
#include "xml/MarkupWriter.h"
#include "xml/TrackMarkup.h"

#include <new>

namespace ZelInterchangeData {

namespace {

using Utilities = ZelDataUtilities;

/// Deliberate: only the title in the first language; otherwise, the marker's name would be a list
/// of titles.
std::string_view titleOf(const TocEntryState& entry, const std::vector<std::string>& languageIDs)
{
    if (languageIDs.empty()) return {};
    return entry.texts().find(languageIDs.front()).value_or(std::string_view());
}

void writeMarker(TextBlock& track, const TocEntryState& entry,
                 const std::vector<std::string>& languageIDs)
{
    track.append(R"(<rdf:li><rdf:Description xmpDM:name=")");
    appendEscapedStripped(track, titleOf(entry, languageIDs));
    track.append(R"(" xmpDM:startTime=")")
        .appendNumber(entry.startTime)
        .append(R"(" zelDM:image=")");
    appendEscaped(track, entry.imageFile());
    track.append(R"(" zelDM:imageindex=")")
        .appendNumber(entry.imageIndex)
        .append(R"(" zelDM:imageoffset=")")
        .appendNumber(entry.imageOffset)
        .append(R"(" ></rdf:Description></rdf:li>)");
}

} // namespace

i_ZelDataTocFormatter::~i_ZelDataTocFormatter() = default;

// Defined here so that the document, which creates one, does not compile the class template again.
ZelDataXmpTocFormatter::ZelDataXmpTocFormatter() = default;
ZelDataXmpTocFormatter::~ZelDataXmpTocFormatter() = default;

ZelDataResult_tags ZelDataUtilities::createTocFormatter(i_ZelDataTocFormatter** out,
                                                        ZelDataFormatType_tags format)
{
    return createFormatter<ZelDataXmpTocFormatter>(out, format);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): its signature is fixed.
bool buildTocList(std::vector<std::string> languages, const i_ZelDataTocItem& item,
                  std::string& out)
{
    bool complete = true;
    out = nameAlternativeStart;
    for (const std::string& id : languages) {
        std::string title;
        const auto got = item.getTextForLanguage(title, id);
        if (got == ZelData_OutOfMemory) throw std::bad_alloc(); // it does not mean a missing text
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
    return hold(toc, &i_ZelDataToc::clearTocItems);
}

ZelDataResult_tags ZelDataXmpTocFormatter::getToc(i_ZelDataToc& /*toc*/) const
{
    return store(ZelData_NotImplemented);
}

std::optional<std::size_t> ZelDataXmpTocFormatter::estimateTrack() const
{
    // The size of the texts, with some space for entities, and of the markup.
    constexpr std::size_t trackMarkup = 300;
    constexpr std::size_t markerMarkup = 210;
    const ZelDataToc& toc = *held();
    if (toc.items().count() == 0) return {};
    std::size_t size =
        trackMarkup + sizeWithEntities(toc.imageFile()) + toc.items().count() * markerMarkup;
    for (unsigned long i = 0; i < toc.items().count(); ++i) {
        const TocEntryState& entry = toc.items().state(i);
        size += sizeWithEntities(titleOf(entry, toc.languageIDs())) +
                sizeWithEntities(entry.imageFile());
    }
    return size;
}

/// Writes the table as makeTocConsistent() leaves it: in order. Its other repairs make no difference:
/// a missing title counts as empty, and the held copy has the standard frame rate, because copying a
/// table does not copy its rate.
void ZelDataXmpTocFormatter::appendTrack(std::string& packet) const
{
    const ZelDataToc& toc = *held();
    MarkupWriter track(packet);
    track.markup(trackStart)
        .attribute("xmpDM:trackType", "TableOfContents")
        .attribute("xmpDM:trackName", "Table of Contents")
        .attribute("xmpDM:frameRate", Utilities::getRateString(FrameRate::standard))
        .escaped("zelDM:image", toc.imageFile())
        .markup(markersStart);
    toc.items().visitOrdered(
        [&](const TocEntryState& entry) { writeMarker(track.text(), entry, toc.languageIDs()); });
    track.markup(markersEnd).markup(trackEnd).finish();
}

} // namespace ZelInterchangeData
