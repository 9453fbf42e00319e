#include "Operations.h"

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"

#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"

namespace model {

using namespace ZelInterchangeData;

namespace {

void addItemOperations(Operations& operations)
{
    using I = i_ZelDataCaptionItem;
    operations.insert({
        {"CI.isValid", member(&I::isValid)},
        {"CI.clearText", member(&I::clearText)},
        {"CI.setTextForLanguage", member(&I::setTextForLanguage)},
        {"CI.setStart", member(&I::setStart)},
        {"CI.setEnd", member(&I::setEnd)},
        {"CI.setDuration", member(&I::setDuration)},
        {"CI.setAlignment", member(&I::setAlignment)},
        {"CI.removeTextForLanguage", member(&I::removeTextForLanguage)},
        {"CI.getLanguageIDs", member(&I::getLanguageIDs)},
        {"CI.getTextForLanguage", member(&I::getTextForLanguage)},
        {"CI.getStart", member(&I::getStart)},
        {"CI.getEnd", member(&I::getEnd)},
        {"CI.getDuration", member(&I::getDuration)},
        {"CI.getAlignment", member(&I::getAlignment)},
        {"CI.copyFrom", copying<I>()},
    });
}

void addCollectionOperations(Operations& operations)
{
    using I = i_ZelDataCaptions;
    operations.insert({
        {"C.isValid", member(&I::isValid)},
        {"C.makeCaptionsConsistent", member(&I::makeCaptionsConsistent)},
        {"C.setFrameRate", member(&I::setFrameRate)},
        {"C.getFrameRate", member(&I::getFrameRate)},
        {"C.setFontFamily", member(&I::setFontFamily)},
        {"C.getFontFamily", member(&I::getFontFamily)},
        {"C.setFontSize", member(&I::setFontSize)},
        {"C.getFontSize", member(&I::getFontSize)},
        {"C.setForegroundColor", member(&I::setForegroundColor)},
        {"C.getForegroundColor", member(&I::getForegroundColor)},
        {"C.setBackgroundColor", member(&I::setBackgroundColor)},
        {"C.getBackgroundColor", member(&I::getBackgroundColor)},
        {"C.setBackgroundOpacity", member(&I::setBackgroundOpacity)},
        {"C.getBackgroundOpacity", member(&I::getBackgroundOpacity)},
        {"C.clearCaptionItems", member(&I::clearCaptionItems)},
        {"C.addCaptionItem", member(&I::addCaptionItem)},
        {"C.createCaptionItem", member(&I::createCaptionItem)},
        {"C.removeCaptionItemAt", member(&I::removeCaptionItemAt)},
        {"C.removeCaptionItemsForLanguage", member(&I::removeCaptionItemsForLanguage)},
        {"C.getCaptionItemCount", member(&I::getCaptionItemCount)},
        {"C.getCaptionItemAt", member(&I::getCaptionItemAt)},
        {"C.getCaptionItems", member(&I::getCaptionItems)},
        {"C.getCaptionItemsForLanguage", member(&I::getCaptionItemsForLanguage)},
        {"C.copyFrom", copying<I>()},
    });
}

void assign(Session& session)
{
    auto& target = session.object<ZelDataCaptionItem>(session.script().read<int>());
    const auto& source = session.object<ZelDataCaptionItem>(session.script().read<int>());
    target = source;
    session.answer("-");
    session.answer(lastError(target));
    session.answer("e" + lastError(source));
}

} // namespace

void addCaptionOperations(Operations& operations)
{
    addItemOperations(operations);
    addCollectionOperations(operations);
    operations["ZCI.assign"] = assign;
    operations["ZC.orderCaptions"] = member(&ZelDataCaptions::orderCaptions);
}

} // namespace model
