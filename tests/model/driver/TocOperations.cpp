#include "Operations.h"

#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"

namespace model {

using namespace ZelInterchangeData;

namespace {

void addItemOperations(Operations& operations)
{
    using I = i_ZelDataTocItem;
    operations.insert({
        {"TI.isValid", member(&I::isValid)},
        {"TI.clearText", member(&I::clearText)},
        {"TI.setTextForLanguage", member(&I::setTextForLanguage)},
        {"TI.setStart", member(&I::setStart)},
        {"TI.setImageFile", member(&I::setImageFile)},
        {"TI.setImageIndex", member(&I::setImageIndex)},
        {"TI.setImageOffset", member(&I::setImageOffset)},
        {"TI.removeTextForLanguage", member(&I::removeTextForLanguage)},
        {"TI.getLanguageIDs", member(&I::getLanguageIDs)},
        {"TI.getTextForLanguage", member(&I::getTextForLanguage)},
        {"TI.getStart", member(&I::getStart)},
        {"TI.getImageFile", member(&I::getImageFile)},
        {"TI.getImageIndex", member(&I::getImageIndex)},
        {"TI.getImageOffset", member(&I::getImageOffset)},
        {"TI.copyFrom", copying<I>()},
    });
}

void addCollectionOperations(Operations& operations)
{
    using I = i_ZelDataToc;
    operations.insert({
        {"T.isValid", member(&I::isValid)},
        {"T.makeTocConsistent", member(&I::makeTocConsistent)},
        {"T.setFrameRate", member(&I::setFrameRate)},
        {"T.getFrameRate", member(&I::getFrameRate)},
        {"T.setImageFile", member(&I::setImageFile)},
        {"T.getImageFile", member(&I::getImageFile)},
        {"T.clearTocItems", member(&I::clearTocItems)},
        {"T.addTocItem", member(&I::addTocItem)},
        {"T.createTocItem", member(&I::createTocItem)},
        {"T.removeTocItemAt", member(&I::removeTocItemAt)},
        {"T.removeTocItemsForLanguage", member(&I::removeTocItemsForLanguage)},
        {"T.getTocItemCount", member(&I::getTocItemCount)},
        {"T.getTocItemAt", member(&I::getTocItemAt)},
        {"T.getTocItems", member(&I::getTocItems)},
        {"T.getTocItemsForLanguage", member(&I::getTocItemsForLanguage)},
        {"T.copyFrom", copying<I>()},
    });
}

void assign(Session& session)
{
    auto& target = session.object<ZelDataTocItem>(session.script().read<int>());
    const auto& source = session.object<ZelDataTocItem>(session.script().read<int>());
    target = source;
    session.answer("-");
    session.answer(lastError(target));
    session.answer("e" + lastError(source));
}

} // namespace

void addTocOperations(Operations& operations)
{
    addItemOperations(operations);
    addCollectionOperations(operations);
    operations["ZTI.assign"] = assign;
    operations["ZT.orderTocItems"] = member(&ZelDataToc::orderTocItems);
}

} // namespace model
