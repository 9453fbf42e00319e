/// @file
/// An ordered list of language IDs.

#ifndef ZELINTERCHANGEDATA_SETS_LANGUAGELIST_H
#define ZELINTERCHANGEDATA_SETS_LANGUAGELIST_H

#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "sets/LanguageTexts.h"
#include "util/TextList.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ZelInterchangeData {

/// Language IDs in the order in which they were added, without duplicates unless reorder() accepted
/// some.
class LanguageList {
public:
    /// Looks up one language in the catalogue: stores a name and returns a code.
    using NameLookup = ZelDataResult_tags (*)(const std::string& id, std::string& name);

    const std::vector<std::string>& ids() const noexcept { return ids_.texts(); }
    bool contains(std::string_view id) const { return ids_.contains(id); }

    void clear() noexcept { ids_.clear(); }
    /// The code of the UTF-8 check, #ZelData_UnknownLanguage or #ZelData_WarnAlreadyExists.
    ZelDataResult_tags add(const std::string& id);
    /// As clear() and add() for each entry of @p other, whose entries are already checked: stops at
    /// a duplicate that reorder() accepted, with #ZelData_WarnAlreadyExists.
    ZelDataResult_tags copyFrom(const LanguageList& other);
    /// Lists the languages of @p texts that are not listed, in ascending order.
    void addLanguagesOf(const LanguageTexts& texts);
    /// Removes the first identical entry; returns false if there is none.
    bool remove(const std::string& id) { return ids_.remove(id); }
    /// Removes all entries but the first @p count, if there are that many.
    void truncate(std::size_t count) noexcept { ids_.truncate(count); }
    /// #ZelData_InvalidArgument if @p ids has another count or an entry that is not listed.
    ZelDataResult_tags reorder(const std::vector<std::string>& ids);
    /// Replaces @p names with what @p lookup finds; #ZelData_InternalError if a name is missing.
    ZelDataResult_tags names(std::vector<std::string>& names, NameLookup lookup) const;

private:
    TextList ids_;
};

} // namespace ZelInterchangeData

#endif
