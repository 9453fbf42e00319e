#include "toc/TocFindings.h"

#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "toc/ZelDataToc.h"

namespace ZelInterchangeData {

namespace {

Ending checkToc(const i_ZelDataToc& toc, FindingList& found)
{
    FrameRate rate;
    std::vector<std::string> listed;
    ReceivedItems<i_ZelDataTocItem> items;
    std::vector<long long> starts;
    Ending ending = endingOf(toc.getFrameRate(rate.value));
    if (!ending) ending = readLanguages(toc, listed);
    if (!ending) ending = receiveItems(toc, &i_ZelDataToc::getTocItems, items, starts);
    if (ending) return ending;
    found.checkFrameRate(rate);
    const auto noMore = [](const std::string& /*text*/, const std::string& /*language*/) {};
    return findItemProblems(items, starts, starts, found, [&](const i_ZelDataTocItem& item) {
        return findTextProblems(item, listed, found, noMore);
    });
}

// What a packet contains

/// Only the titles in the first language of the table are written.
void checkWrittenTitle(const TocEntryState& entry, const std::string& language, FindingList& found)
{
    const auto title = entry.texts().find(language);
    if (title) found.checkWritten(*title, Treatment::EscapedAndStripped, "title", language);
}

void checkWritten(const ZelDataToc& toc, FindingList& found)
{
    const std::vector<std::string>& languages = toc.languageIDs();
    if (toc.items().count() == 0)
        found.add(ZelDataFinding_NoItems);
    else
        found.checkWritten(toc.imageFile(), Treatment::Escaped, "image");
    for (unsigned long i = 0; i < toc.items().count(); ++i) {
        const TocEntryState& entry = toc.items().state(i);
        found.setItem(i, entry.start());
        if (!languages.empty()) checkWrittenTitle(entry, languages.front(), found);
        found.checkWritten(entry.imageFile(), Treatment::Escaped, "image");
    }
}

} // namespace

Ending findPacketProblems(const ZelDataToc& toc, FindingList& found)
{
    found.setSubject(ZelDataFindingSubject_TocEntry);
    if (const Ending ending = checkToc(toc, found)) return ending;
    found.setSubject(ZelDataFindingSubject_TocEntry);
    checkWritten(toc, found);
    return {};
}

ZelDataResult_tags findProblems(const i_ZelDataToc& toc, std::vector<ZelDataFinding>& findings)
{
    return collectFindings(ZelDataFindingSubject_TocEntry, findings,
                           [&](FindingList& found) { return checkToc(toc, found); });
}

} // namespace ZelInterchangeData
