/// @file
/// The texts of items in the languages of their collection.

#ifndef ZELINTERCHANGEDATA_CORE_ITEMTEXTS_H
#define ZELINTERCHANGEDATA_CORE_ITEMTEXTS_H

#include "core/ItemList.h"
#include "core/LanguageTexts.h"
#include "util/Ending.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// Whether @p texts has one for each of @p languageIDs.
inline bool hasAllTexts(const LanguageTexts& texts, const std::vector<std::string>& languageIDs)
{
    return std::all_of(languageIDs.begin(), languageIDs.end(),
                       [&](const std::string& id) { return texts.find(id).has_value(); });
}

/// Ends with the item's last error when @p item has no text for one of @p languageIDs.
template <class Item>
Ending findMissingText(const Item& item, const std::vector<std::string>& languageIDs)
{
    std::string text;
    for (const std::string& id : languageIDs) {
        if (failed(item.getTextForLanguage(text, id))) return item.getLastError();
    }
    return {};
}

/// Gives @p item an empty text for each of @p languageIDs that it has none for. Ends with the
/// item's last error when that fails, and when memory ran out, which does not mean that a text is
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

/// The same for all items. One of our own takes all its missing texts at once: a collection lists no
/// language that an item would refuse. One that lacks nothing is not touched and so goes on sharing.
template <class Item, class Own>
Ending fillMissingTexts(ItemList<Item, Own>& items, const std::vector<std::string>& languageIDs)
{
    for (unsigned long i = 0; i < items.count(); ++i) {
        if (items.isOwn(i)) {
            if (hasAllTexts(items.state(i).texts(), languageIDs)) continue;
            items.changeState(i).changeTexts().addMissing(languageIDs);
            continue;
        }
        const Ending ending =
            items.change(i, [&](Item& item) { return fillMissingTexts(item, languageIDs); });
        if (ending) return ending;
    }
    return {};
}

/// Removes the text for @p languageID from each item. It is meant to stop at the first item without
/// such a text, with the item's last error: callers tell from the code that the language was not
/// complete.
template <class Item, class Own>
ZelDataResult_tags removeTexts(ItemList<Item, Own>& items, const std::string& languageID)
{
    for (unsigned long i = 0; i < items.count(); ++i) {
        const Ending ending = items.change(i, [&](Item& item) -> Ending {
            if (failed(item.removeTextForLanguage(languageID))) return item.getLastError();
            return {};
        });
        if (ending) return *ending;
    }
    return ZelData_Ok;
}

} // namespace ZelInterchangeData

#endif
