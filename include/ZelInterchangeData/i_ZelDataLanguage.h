/// @file
/// The ordered list of languages of a header, of captions and of a table of contents.

#ifndef ZELINTERCHANGEDATA_I_ZELDATALANGUAGE_H
#define ZELINTERCHANGEDATA_I_ZELDATALANGUAGE_H

#include "ZelInterchangeData/ZelDataStandardLibrary.h"
#include "ZelInterchangeData/i_ZelDataResult.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An ordered list of language IDs.
///
/// A language ID is a two-letter ISO 639-1 code that the catalogue knows, in any letter case,
/// optionally followed by "-" and anything ("en", "EN", "en-US"). IDs are stored as given and
/// compared byte for byte, so "en", "EN" and "en-GB" are three different entries.
class ZELINTERCHANGEDATA_API i_ZelDataLanguage : public i_ZelDataResult {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataLanguage);
    ~i_ZelDataLanguage() override;

    /// Empties the list.
    virtual ZelDataResult_tags clearLanguages() = 0;
    /// Appends @p id.
    /// - #ZelData_InvalidUtf8: @p id is not UTF-8.
    /// - #ZelData_UnknownLanguage: its language is not in the catalogue.
    /// - #ZelData_WarnAlreadyExists: an identical ID is listed; the list is unchanged.
    virtual ZelDataResult_tags addLanguage(const std::string& id) = 0;
    /// Removes the first entry that is identical to @p id.
    /// - #ZelData_WarnNoChange from a header, #ZelData_NotFound from captions and a table of
    ///   contents: @p id is not listed.
    virtual ZelDataResult_tags removeLanguage(const std::string& id) = 0;
    /// Puts the list in the order of @p ids.
    /// - #ZelData_InvalidArgument: @p ids and the list differ in the number of entries, or @p ids
    ///   contains one that is not listed.
    ///
    /// This checks only count and membership: if an ID occurs twice in @p ids, another one
    /// disappears from the list. Copying such a list stops at the second occurrence.
    virtual ZelDataResult_tags setOrderedLanguageIDs(const std::vector<std::string>& ids) = 0;
    /// Replaces @p ids with the list.
    virtual ZelDataResult_tags getOrderedLanguageIDs(std::vector<std::string>& ids) const = 0;
    /// The number of entries.
    virtual ZelDataResult_tags getLanguageCount(unsigned long& count) const = 0;
    /// Replaces @p names with the English name of each entry, in order.
    /// - #ZelData_InternalError: a name is missing; @p names holds those that were found.
    /// - #ZelData_OutOfMemory: @p names holds those that were found.
    virtual ZelDataResult_tags getLanguageDisplayNames(std::vector<std::string>& names) const = 0;
    /// Replaces @p names with each language's own name, in order. The name may be empty ("lu").
    /// - #ZelData_InternalError: a name is missing; @p names holds those that were found.
    /// - #ZelData_OutOfMemory: @p names holds those that were found.
    virtual ZelDataResult_tags
    getLanguageNativeDisplayNames(std::vector<std::string>& names) const = 0;
    /// Sets @p exists to whether an entry identical to @p id is listed; @p id is unchanged.
    virtual ZelDataResult_tags doesLanguageExist(std::string& id, bool& exists) const = 0;
    /// Replaces the list with that of @p other, entry by entry through addLanguage().
    /// - #ZelData_InternalError: @p other is this object; nothing changes.
    /// - The code of a failed step, even a warning: the entries added before it stay.
    virtual ZelDataResult_tags copyFrom(const i_ZelDataLanguage& other);
};

} // namespace ZelInterchangeData

#endif
