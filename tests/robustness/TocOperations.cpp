#include "robustness/ItemOperations.h"
#include "robustness/LanguageOperations.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

namespace ZelInterchangeData {

namespace {

using Item = i_ZelDataTocItem;
using Toc = i_ZelDataToc;

void addItemOperations(OperationList& list)
{
    const OperationsOf<Item> of(list, "ZelDataTocItem", filledEntry);
    of.add("setStart", &Item::setStart, 77);
    of.add("getStart", &Item::getStart, &Outs::time);
    addImageOperations(of);
    of.add("isValid", &Item::isValid, true);
    addTextOperations(of);
    addCopies<ZelDataTocItem, filledEntry>(of);
}

void addItems(const OperationsOf<Toc>& of)
{
    of.add("clearTocItems", &Toc::clearTocItems);
    of.add("addTocItem", &Toc::addTocItem, given<filledEntry>);
    of.add("addTocItem|of a caller's class", &Toc::addTocItem,
           given<callersCopy<ZelDataTocItem, filledEntry>>);
    of.add("addTocItem|with two languages that are not listed", &Toc::addTocItem,
           given<entryWithOtherLanguages>);
    of.add("createTocItem", &Toc::createTocItem, &Outs::entry);
    of.add("removeTocItemAt", &Toc::removeTocItemAt, 0);
    const auto remove = &Toc::removeTocItemsForLanguage;
    of.add("removeTocItemsForLanguage", remove, firstID);
    of.on(tocInBothLanguages).add("removeTocItemsForLanguage|that all have", remove, firstID);
    of.add("getTocItemCount", &Toc::getTocItemCount, &Outs::number);
    of.add("getTocItemAt", &Toc::getTocItemAt, &Outs::entry, 1);
    of.add("getTocItems", &Toc::getTocItems, &Outs::entries);
    of.add("getTocItemsForLanguage", &Toc::getTocItemsForLanguage, &Outs::entries, firstID);
}

} // namespace

void addTocOperations(OperationList& list)
{
    addItemOperations(list);
    const OperationsOf<Toc> of(list, "ZelDataToc", filledToc);
    addLanguageOperations(of);
    of.add("isValid", &Toc::isValid, true);
    of.add("makeTocConsistent", &Toc::makeTocConsistent);
    of.add("setFrameRate", &Toc::setFrameRate, 77);
    of.add("getFrameRate", &Toc::getFrameRate, &Outs::number);
    of.add("setImageFile", &Toc::setImageFile, otherText);
    of.add("getImageFile", &Toc::getImageFile, &Outs::text);
    addItems(of);
    addCopies<ZelDataToc, filledToc>(of, "copyFrom(const i_ZelDataToc&)");
}

} // namespace ZelInterchangeData
