#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "sets/ItemFindings.h"

namespace ZelInterchangeData {

namespace {

Ending checkItem(const i_ZelDataScreenTextItem& item, FindingList& found)
{
    std::string text;
    if (const Ending ending = endingOf(item.getText(text))) return ending;
    if (failed(ZelDataUtilities::verifyUtf8Format(text, false))) found.add(ZelDataFinding_BadText);
    return {};
}

Ending checkScreenText(const i_ZelDataScreenText& screenText, FindingList& found)
{
    FrameRate rate;
    ReceivedItems<i_ZelDataScreenTextItem> items;
    std::vector<long long> starts;
    Ending ending = endingOf(screenText.getFrameRate(rate.value));
    if (!ending)
        ending = receiveItems(screenText, &i_ZelDataScreenText::getScreenTextItems, items, starts);
    if (ending) return ending;
    found.checkFrameRate(rate);
    return findItemProblems(items, starts, starts, found, [&](const i_ZelDataScreenTextItem& item) {
        return checkItem(item, found);
    });
}

} // namespace

ZelDataResult_tags findProblems(const i_ZelDataScreenText& screenText,
                                std::vector<ZelDataFinding>& findings)
{
    return collectFindings(ZelDataFindingSubject_ScreenText, findings,
                           [&](FindingList& found) { return checkScreenText(screenText, found); });
}

} // namespace ZelInterchangeData
