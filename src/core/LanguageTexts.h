/// @file
/// One text per language.

#ifndef ZELINTERCHANGEDATA_CORE_LANGUAGETEXTS_H
#define ZELINTERCHANGEDATA_CORE_LANGUAGETEXTS_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <map>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// The texts of an item by language ID, in ascending byte order. Exhausted memory passes through as
/// `std::bad_alloc` and changes nothing.
class LanguageTexts {
public:
    using Map = std::map<std::string, std::string>;

    /// #ZelData_Ok when both are UTF-8 and the catalogue knows the language, else
    /// #ZelData_InvalidItem.
    static ZelDataResult_tags check(const std::string& text, const std::string& languageID);

    /// All texts, for walking over them.
    const Map& all() const noexcept { return texts_; }

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
    Map texts_;
};

} // namespace ZelInterchangeData

#endif
