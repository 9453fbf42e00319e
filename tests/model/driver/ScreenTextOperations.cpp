#include "Operations.h"

#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"

#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"

namespace model {

using namespace ZelInterchangeData;

namespace {

void addItemOperations(Operations& operations)
{
    using I = i_ZelDataScreenTextItem;
    operations.insert({
        {"SI.isValid", member(&I::isValid)},
        {"SI.clearText", member(&I::clearText)},
        {"SI.setText", member(&I::setText)},
        {"SI.setStart", member(&I::setStart)},
        {"SI.setEnd", member(&I::setEnd)},
        {"SI.setDuration", member(&I::setDuration)},
        {"SI.setImageFile", member(&I::setImageFile)},
        {"SI.setImageIndex", member(&I::setImageIndex)},
        {"SI.setImageOffset", member(&I::setImageOffset)},
        {"SI.setGroupId", member(&I::setGroupId)},
        {"SI.getText", member(&I::getText)},
        {"SI.getStart", member(&I::getStart)},
        {"SI.getEnd", member(&I::getEnd)},
        {"SI.getDuration", member(&I::getDuration)},
        {"SI.getImageFile", member(&I::getImageFile)},
        {"SI.getImageIndex", member(&I::getImageIndex)},
        {"SI.getImageOffset", member(&I::getImageOffset)},
        {"SI.getGroupId", member(&I::getGroupId)},
        {"SI.copyFrom", copying<I>()},
    });
}

void addCollectionOperations(Operations& operations)
{
    using I = i_ZelDataScreenText;
    operations.insert({
        {"S.isValid", member(&I::isValid)},
        {"S.makeScreenTextConsistent", member(&I::makeScreenTextConsistent)},
        {"S.setFrameRate", member(&I::setFrameRate)},
        {"S.getFrameRate", member(&I::getFrameRate)},
        {"S.clearScreenTextItems", member(&I::clearScreenTextItems)},
        {"S.addScreenTextItem", member(&I::addScreenTextItem)},
        {"S.createScreenTextItem", member(&I::createScreenTextItem)},
        {"S.removeScreenTextItemAt", member(&I::removeScreenTextItemAt)},
        {"S.getScreenTextItemCount", member(&I::getScreenTextItemCount)},
        {"S.getScreenTextItemAt", member(&I::getScreenTextItemAt)},
        {"S.getScreenTextItems", member(&I::getScreenTextItems)},
        {"S.copyFrom", copying<I>()},
    });
}

void assign(Session& session)
{
    auto& target = session.object<ZelDataScreenTextItem>(session.script().read<int>());
    const auto& source = session.object<ZelDataScreenTextItem>(session.script().read<int>());
    target = source;
    session.answer("-");
    session.answer(lastError(target));
    session.answer("e" + lastError(source));
}

} // namespace

void addScreenTextOperations(Operations& operations)
{
    addItemOperations(operations);
    addCollectionOperations(operations);
    operations["ZSI.assign"] = assign;
    operations["ZS.orderScreenTextItems"] = member(&ZelDataScreenText::orderScreenTextItems);
}

} // namespace model
