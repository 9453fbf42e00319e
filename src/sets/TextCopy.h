/// @file
/// Copies of an item's texts.

#ifndef ZELINTERCHANGEDATA_SETS_TEXTCOPY_H
#define ZELINTERCHANGEDATA_SETS_TEXTCOPY_H

#include "util/Ending.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// Replaces the texts of @p target with those of @p source, through their virtual operations. Ends
/// with the last error of the item that failed.
template <class Item>
Ending copyTexts(const Item& source, Item& target)
{
    std::vector<std::string> ids;
    if (failed(source.getLanguageIDs(ids))) return source.getLastError();
    if (failed(target.clearText())) return target.getLastError();
    for (const std::string& id : ids) {
        std::string text;
        if (failed(source.getTextForLanguage(text, id))) return source.getLastError();
        if (failed(target.setTextForLanguage(text, id))) return target.getLastError();
    }
    return {};
}

} // namespace ZelInterchangeData

#endif
