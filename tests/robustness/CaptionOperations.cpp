#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "robustness/ItemOperations.h"
#include "robustness/LanguageOperations.h"

namespace ZelInterchangeData {

namespace {

using Item = i_ZelDataCaptionItem;
using Captions = i_ZelDataCaptions;

void addItemOperations(OperationList& list)
{
    const OperationsOf<Item> of(list, "ZelDataCaptionItem", filledCaption);
    of.add("setStart", &Item::setStart, 77);
    of.add("setEnd", &Item::setEnd, 7777);
    of.add("setDuration", &Item::setDuration, 78);
    of.add("setAlignment", &Item::setAlignment, ZelAlignBottom);
    of.add("getStart", &Item::getStart, &Outs::time);
    of.add("getEnd", &Item::getEnd, &Outs::time);
    of.add("getDuration", &Item::getDuration, &Outs::time);
    of.add("getAlignment", &Item::getAlignment, &Outs::alignment);
    const auto throwing = of.throwing();
    throwing.add("isValid", &Item::isValid, true);
    addTextOperations(throwing);
    addCopies<ZelDataCaptionItem, filledCaption>(throwing);
}

void addStyle(const OperationsOf<Captions>& of)
{
    using C = Captions;
    of.add("setFrameRate", &C::setFrameRate, 77);
    of.add("getFrameRate", &C::getFrameRate, &Outs::number);
    of.add("setFontFamily", &C::setFontFamily, otherText);
    of.add("getFontFamily", &C::getFontFamily, &Outs::text);
    of.add("setFontSize", &C::setFontSize, 33);
    of.add("getFontSize", &C::getFontSize, &Outs::number);
    of.add("setForegroundColor", &C::setForegroundColor, 0, 0, 1);
    of.add("getForegroundColor", &C::getForegroundColor, &Outs::red, &Outs::green, &Outs::blue);
    of.add("setBackgroundColor", &C::setBackgroundColor, 1, 1, 1);
    of.add("getBackgroundColor", &C::getBackgroundColor, &Outs::red, &Outs::green, &Outs::blue);
    of.add("setBackgroundOpacity", &C::setBackgroundOpacity, 1);
    of.add("getBackgroundOpacity", &C::getBackgroundOpacity, &Outs::red);
}

void addItems(const OperationsOf<Captions>& of)
{
    using C = Captions;
    of.add("clearCaptionItems", &C::clearCaptionItems);
    of.add("addCaptionItem", &C::addCaptionItem, given<filledCaption>);
    of.add("addCaptionItem|of a caller's class", &C::addCaptionItem,
           given<callersCopy<ZelDataCaptionItem, filledCaption>>);
    of.add("addCaptionItem|with two languages that are not listed", &C::addCaptionItem,
           given<captionWithOtherLanguages>);
    of.add("createCaptionItem", &C::createCaptionItem, &Outs::caption);
    of.add("removeCaptionItemAt", &C::removeCaptionItemAt, 0);
    const auto remove = &C::removeCaptionItemsForLanguage;
    of.add("removeCaptionItemsForLanguage", remove, firstID);
    of.on(captionsInBothLanguages)
        .add("removeCaptionItemsForLanguage|that all have", remove, firstID);
    of.on(captionsWithLongTexts)
        .add("removeCaptionItemsForLanguage|with long texts", remove, firstID);
    of.add("getCaptionItemCount", &C::getCaptionItemCount, &Outs::number);
    of.add("getCaptionItemAt", &C::getCaptionItemAt, &Outs::caption, 1);
    of.add("getCaptionItems", &C::getCaptionItems, &Outs::captionItems);
    of.add("getCaptionItemsForLanguage", &C::getCaptionItemsForLanguage, &Outs::captionItems,
           firstID);
}

} // namespace

void addCaptionOperations(OperationList& list)
{
    addItemOperations(list);
    const OperationsOf<Captions> of(list, "ZelDataCaptions", filledCaptions);
    addLanguageOperations(of);
    of.add("isValid", &Captions::isValid, true);
    of.add("makeCaptionsConsistent", &Captions::makeCaptionsConsistent);
    addStyle(of);
    addItems(of);
    addCopies<ZelDataCaptions, filledCaptions>(of, "copyFrom(const i_ZelDataCaptions&)");
}

} // namespace ZelInterchangeData
