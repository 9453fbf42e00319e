#include "robustness/ItemOperations.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"

namespace ZelInterchangeData {

namespace {

using Item = i_ZelDataScreenTextItem;
using ScreenText = i_ZelDataScreenText;

void addItemOperations(OperationList& list)
{
    const OperationsOf<Item> of(list, "ZelDataScreenTextItem", filledScreenTextItem);
    of.add("isValid", &Item::isValid, true);
    of.add("clearText", &Item::clearText);
    of.add("setText", &Item::setText, otherText);
    of.add("setStart", &Item::setStart, 77);
    of.add("setEnd", &Item::setEnd, 7777);
    of.add("setDuration", &Item::setDuration, 78);
    of.add("setGroupId", &Item::setGroupId, 81);
    of.add("getText", &Item::getText, &Outs::text);
    of.add("getStart", &Item::getStart, &Outs::time);
    of.add("getEnd", &Item::getEnd, &Outs::time);
    of.add("getDuration", &Item::getDuration, &Outs::time);
    of.add("getGroupId", &Item::getGroupId, &Outs::number);
    addImageOperations(of);
    addCopies<ZelDataScreenTextItem, filledScreenTextItem>(of);
}

void addItems(const OperationsOf<ScreenText>& of)
{
    using S = ScreenText;
    of.add("clearScreenTextItems", &S::clearScreenTextItems);
    of.add("addScreenTextItem", &S::addScreenTextItem, given<filledScreenTextItem>);
    of.add("addScreenTextItem|of a caller's class", &S::addScreenTextItem,
           given<callersCopy<ZelDataScreenTextItem, filledScreenTextItem>>);
    of.add("createScreenTextItem", &S::createScreenTextItem, &Outs::screenTextItem);
    of.add("removeScreenTextItemAt", &S::removeScreenTextItemAt, 0);
    of.add("getScreenTextItemCount", &S::getScreenTextItemCount, &Outs::number);
    of.add("getScreenTextItemAt", &S::getScreenTextItemAt, &Outs::screenTextItem, 1);
    of.add("getScreenTextItems", &S::getScreenTextItems, &Outs::screenTextItems);
}

} // namespace

void addScreenTextOperations(OperationList& list)
{
    addItemOperations(list);
    const OperationsOf<ScreenText> of(list, "ZelDataScreenText", filledScreenText);
    of.add("isValid", &ScreenText::isValid, true);
    of.add("makeScreenTextConsistent", &ScreenText::makeScreenTextConsistent);
    of.add("setFrameRate", &ScreenText::setFrameRate, 77);
    of.add("getFrameRate", &ScreenText::getFrameRate, &Outs::number);
    addItems(of);
    addCopies<ZelDataScreenText, filledScreenText>(of);
}

} // namespace ZelInterchangeData
