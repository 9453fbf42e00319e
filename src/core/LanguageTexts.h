/// @file
/// One text per language.

#ifndef ZELINTERCHANGEDATA_CORE_LANGUAGETEXTS_H
#define ZELINTERCHANGEDATA_CORE_LANGUAGETEXTS_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// The texts of an item by language ID, in ascending byte order. Exhausted memory passes through as
/// `std::bad_alloc` and changes nothing.
class LanguageTexts {
public:
    /// A language ID and its text.
    using Entry = std::pair<std::string, std::string>;

    /// #ZelData_Ok when both are UTF-8 and the catalogue knows the language, else
    /// #ZelData_InvalidItem.
    static ZelDataResult_tags check(const std::string& text, const std::string& languageID);

    /// All texts, for walking over them.
    const std::vector<Entry>& all() const noexcept { return texts_; }
    /// The text for @p languageID, or null when there is none.
    const std::string* find(const std::string& languageID) const noexcept;

    void clear() noexcept { texts_.clear(); }
    /// Stores a copy of @p text. The code of check(), or #ZelData_WarnAlreadyExists when it
    /// replaced one.
    ZelDataResult_tags set(const std::string& text, const std::string& languageID);
    /// #ZelData_InvalidArgument when there is none.
    ZelDataResult_tags get(std::string& text, const std::string& languageID) const;
    /// #ZelData_NotFound when there is none.
    ZelDataResult_tags remove(const std::string& languageID);
    /// Replaces @p ids with the languages that have a text.
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const;

private:
    std::vector<Entry> texts_;
};

} // namespace ZelInterchangeData

#endif
