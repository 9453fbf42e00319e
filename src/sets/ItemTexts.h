/// @file
/// The texts of items in the languages of their collection.

#ifndef ZELINTERCHANGEDATA_SETS_ITEMTEXTS_H
#define ZELINTERCHANGEDATA_SETS_ITEMTEXTS_H

#include "sets/ItemList.h"
#include "util/Ending.h"

#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// Ends with the item's last error if @p item has no text for one of @p languageIDs.
template <class Item>
Ending findMissingText(const Item& item, const std::vector<std::string>& languageIDs)
{
    std::string text;
    for (const std::string& id : languageIDs) {
        if (failed(item.getTextForLanguage(text, id))) return item.getLastError();
    }
    return {};
}

/// Gives @p item an empty text for each of @p languageIDs in which it has none. Ends with the
/// item's last error if that fails, or if memory runs out, which does not mean that a text is
/// missing.
template <class Item>
Ending fillMissingTexts(Item& item, const std::vector<std::string>& languageIDs)
{
    std::string text;
    for (const std::string& id : languageIDs) {
        const auto code = item.getTextForLanguage(text, id);
        if (!failed(code)) continue;
        if (code == ZelData_OutOfMemory) return item.getLastError();
        if (failed(item.setTextForLanguage(std::string(), id))) return item.getLastError();
    }
    return {};
}

/// Orders @p items by start and gives each an empty text for each of @p languageIDs in which it has
/// none. Does not check the texts of our own items: a collection lists no language that they would
/// reject.
template <class Item, class Own>
Ending orderAndFillMissingTexts(ItemList<Item, Own>& items,
                                const std::vector<std::string>& languageIDs)
{
    return items.orderAndChangeAll(
        [&](typename Own::State& state) -> Ending {
            state.changeTexts().addMissing(languageIDs);
            return {};
        },
        [&](Item& item) { return fillMissingTexts(item, languageIDs); });
}

/// removeTexts() for items that are all our own. Allocates all memory before it removes the first
/// text.
template <class Item, class Own>
ZelDataResult_tags removeOwnTexts(ItemList<Item, Own>& items, const std::string& languageID)
{
    auto code = ZelData_Ok;
    std::vector<PackedTexts> prepared;
    for (unsigned long i = 0; i < items.count() && !failed(code); ++i) {
        auto left = items.changeState(i).changeTexts().prepareRemoval(languageID);
        if (left) {
            prepared.push_back(std::move(*left));
        } else {
            code = ZelData_NotFound;
        }
    }
    for (unsigned long i = 0; i < prepared.size(); ++i)
        items.changeState(i).changeTexts().finishRemoval(languageID, std::move(prepared[i]));
    return code;
}

/// Removes the text for @p languageID from each item. Deliberate: it stops at the first item without
/// such a text, with the item's last error; otherwise the code would not say that the language was
/// incomplete.
template <class Item, class Own>
ZelDataResult_tags removeTexts(ItemList<Item, Own>& items, const std::string& languageID)
{
    if (items.areOwn()) return removeOwnTexts(items, languageID);
    const Ending ending = items.changeAll(
        [&](auto& state) { return endingOf(state.changeTexts().remove(languageID)); },
        [&](Item& item) -> Ending {
            if (failed(item.removeTextForLanguage(languageID))) return item.getLastError();
            return {};
        });
    return ending.value_or(ZelData_Ok);
}

} // namespace ZelInterchangeData

#endif
