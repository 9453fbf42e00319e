/// @file
/// The texts of items in the languages of their collection.

#ifndef ZELINTERCHANGEDATA_CORE_ITEMTEXTS_H
#define ZELINTERCHANGEDATA_CORE_ITEMTEXTS_H

#include "util/Ending.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

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

/// Removes the text for @p languageID from each of @p items, a vector of pointers. It is meant to
/// stop at the first item without such a text, with the item's last error: callers tell from the
/// code that the language was not complete.
template <class Items>
ZelDataResult_tags removeTexts(const Items& items, const std::string& languageID)
{
    for (const auto& item : items) {
        if (failed(item->removeTextForLanguage(languageID))) return item->getLastError();
    }
    return ZelData_Ok;
}

} // namespace ZelInterchangeData

#endif
