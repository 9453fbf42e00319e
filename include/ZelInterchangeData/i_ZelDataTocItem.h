/// @file
/// One entry of the table of contents.

#ifndef ZELINTERCHANGEDATA_I_ZELDATATOCITEM_H
#define ZELINTERCHANGEDATA_I_ZELDATATOCITEM_H

#include "ZelInterchangeData/ZelDataStandardLibrary.h"
#include "ZelInterchangeData/i_ZelDataResult.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A start, a reference to a thumbnail, and one title per language.
///
/// The start is in ticks of the table's frame rate; in a written table, ticks are milliseconds.
class ZELINTERCHANGEDATA_API i_ZelDataTocItem : public i_ZelDataResult {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataTocItem);
    ~i_ZelDataTocItem() override;

    /// Checks texts and languages. An entry without texts is valid. @p deep has no effect.
    /// - #ZelData_InvalidItem: a text or language is not valid.
    virtual ZelDataResult_tags isValid(bool deep) const = 0;
    /// Removes the titles of all languages.
    virtual ZelDataResult_tags clearText() = 0;
    /// Stores @p text, which may be empty, for @p languageID. Note the order: the text comes first.
    /// - #ZelData_InvalidItem: @p languageID is not UTF-8 or unknown to the catalogue, or @p text
    ///   is not UTF-8.
    /// - #ZelData_WarnAlreadyExists: the text was stored and replaced an earlier one.
    virtual ZelDataResult_tags setTextForLanguage(const std::string& text,
                                                  const std::string& languageID) = 0;
    /// Sets the start in ticks, at least 0. Default 0.
    /// - #ZelData_InvalidArgument: @p start is negative.
    virtual ZelDataResult_tags setStart(long long start) = 0;
    /// The file that holds the thumbnail; stored as given. Default empty.
    virtual ZelDataResult_tags setImageFile(const std::string& name) = 0;
    /// Index of the thumbnail in the file. Any value; default 0.
    virtual ZelDataResult_tags setImageIndex(unsigned long index) = 0;
    /// Offset of the thumbnail in the file, in bytes. Any value; default 0.
    virtual ZelDataResult_tags setImageOffset(unsigned long long offset) = 0;
    /// Removes the title for @p languageID.
    /// - #ZelData_NotFound: there is none.
    virtual ZelDataResult_tags removeTextForLanguage(const std::string& languageID) = 0;
    /// Replaces @p ids with the languages that have a title, in ascending byte order.
    virtual ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const = 0;
    /// Replaces @p text with the title for @p languageID.
    /// - #ZelData_InvalidArgument: there is none.
    virtual ZelDataResult_tags getTextForLanguage(std::string& text,
                                                  const std::string& languageID) const = 0;
    /// The start, in ticks.
    virtual ZelDataResult_tags getStart(long long& start) const = 0;
    /// The file that holds the thumbnail.
    virtual ZelDataResult_tags getImageFile(std::string& name) const = 0;
    /// The index of the thumbnail in the file.
    virtual ZelDataResult_tags getImageIndex(unsigned long& index) const = 0;
    /// The offset of the thumbnail in the file, in bytes.
    virtual ZelDataResult_tags getImageOffset(unsigned long long& offset) const = 0;
    /// Replaces everything with a copy of @p source: the titles, then start, image file, index,
    /// offset.
    /// - #ZelData_InternalError: @p source is this object; nothing changes.
    /// - The code of a failed step, even a warning: what was copied before it stays.
    virtual ZelDataResult_tags copyFrom(const i_ZelDataTocItem& source);
};

} // namespace ZelInterchangeData

#endif
