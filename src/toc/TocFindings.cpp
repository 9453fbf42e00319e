#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "sets/ItemFindings.h"

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

} // namespace

ZelDataResult_tags findProblems(const i_ZelDataToc& toc, std::vector<ZelDataFinding>& findings)
{
    return collectFindings(ZelDataFindingSubject_TocEntry, findings,
                           [&](FindingList& found) { return checkToc(toc, found); });
}

} // namespace ZelInterchangeData
