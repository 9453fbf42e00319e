#include "screentext/ScreenTextFindings.h"

#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "screentext/ZelDataScreenText.h"

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

// What a packet contains

void checkWrittenItem(const ScreenTextState& item, unsigned long entries, FindingList& found)
{
    if (item.groupId >= entries)
        found.addBeyond(ZelDataFinding_EntryMissing, item.groupId,
                        static_cast<long long>(entries) - 1);
    found.checkWritten(item.text(), Treatment::EscapedAndStripped, "text");
    found.checkWritten(item.imageFile(), Treatment::AsGiven, "image");
}

void checkWritten(const ZelDataScreenText& screenText, unsigned long entries, FindingList& found)
{
    const ZelDataScreenText::Items& items = screenText.items();
    if (items.count() == 0)
        found.add(ZelDataFinding_NoItems);
    else
        found.checkMilliseconds(screenText.frameRate());
    for (unsigned long i = 0; i < items.count(); ++i) {
        found.setItem(i, items.state(i).start());
        checkWrittenItem(items.state(i), entries, found);
    }
}

} // namespace

Ending findPacketProblems(const ZelDataScreenText& screenText, unsigned long entries,
                          FindingList& found)
{
    found.setSubject(ZelDataFindingSubject_ScreenText);
    if (const Ending ending = checkScreenText(screenText, found)) return ending;
    found.setSubject(ZelDataFindingSubject_ScreenText);
    checkWritten(screenText, entries, found);
    return {};
}

ZelDataResult_tags findProblems(const i_ZelDataScreenText& screenText,
                                std::vector<ZelDataFinding>& findings)
{
    return collectFindings(ZelDataFindingSubject_ScreenText, findings,
                           [&](FindingList& found) { return checkScreenText(screenText, found); });
}

} // namespace ZelInterchangeData
