/// @file
/// One timed caption.

#ifndef ZELINTERCHANGEDATA_I_ZELDATACAPTIONITEM_H
#define ZELINTERCHANGEDATA_I_ZELDATACAPTIONITEM_H

#include "ZelInterchangeData/ZelAlignment_tags.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"
#include "ZelInterchangeData/i_ZelDataResult.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A start, a duration, an alignment, and one text per language.
///
/// Times are in milliseconds; the end is always start plus duration, wrapping in 64 bits. A new
/// item has duration 0 and is invalid until a duration or an end is set. If memory runs out, the
/// operations of the library's own items throw `std::bad_alloc` and leave the item unchanged; only
/// copyFrom() may have copied a part.
class ZELINTERCHANGEDATA_API i_ZelDataCaptionItem : public i_ZelDataResult {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataCaptionItem);
    ~i_ZelDataCaptionItem() override;

    /// Checks the item except its start. An item without texts is valid.
    /// @param strict whether to check the recommended limits of captions, too.
    /// - #ZelData_InvalidItem: the duration is not positive, or a text or language is not valid.
    /// - #ZelData_WarnItemGuidelines: @p strict is true, and the duration is below 1000
    ///   milliseconds or a text has more than 4 lines as ZelDataUtilities::countLinesInUTF8()
    ///   counts them.
    virtual ZelDataResult_tags isValid(bool strict) const = 0;
    /// Removes the texts of all languages.
    virtual ZelDataResult_tags clearText() = 0;
    /// Stores @p text, which may be empty, for @p languageID. Note the order: the text comes first.
    /// - #ZelData_InvalidItem: @p languageID is not UTF-8 or unknown to the catalogue, or @p text
    ///   is not UTF-8.
    /// - #ZelData_WarnAlreadyExists: the text was stored and replaced an earlier one.
    virtual ZelDataResult_tags setTextForLanguage(const std::string& text,
                                                  const std::string& languageID) = 0;
    /// Sets the start in milliseconds, at least 0. Default 0. Keeps the duration, so the end moves,
    /// too.
    /// - #ZelData_InvalidArgument: @p start is negative.
    virtual ZelDataResult_tags setStart(long long start) = 0;
    /// Sets the duration so that the item ends at @p end milliseconds. Set the start first.
    /// - #ZelData_InvalidArgument: @p end is negative or not after the start.
    virtual ZelDataResult_tags setEnd(long long end) = 0;
    /// Sets the duration in milliseconds, at least 1. Default 0.
    /// - #ZelData_InvalidArgument: @p duration is not positive.
    virtual ZelDataResult_tags setDuration(long long duration) = 0;
    /// Stores any value. Default #ZelAlignBottom, horizontally centred.
    virtual ZelDataResult_tags setAlignment(ZelAlignment_tags alignment) = 0;
    /// Removes the text for @p languageID.
    /// - #ZelData_NotFound: there is none.
    virtual ZelDataResult_tags removeTextForLanguage(const std::string& languageID) = 0;
    /// Replaces @p ids with the languages that have a text, in ascending byte order.
    virtual ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const = 0;
    /// Replaces @p text with the text for @p languageID.
    /// - #ZelData_InvalidArgument: there is none.
    virtual ZelDataResult_tags getTextForLanguage(std::string& text,
                                                  const std::string& languageID) const = 0;
    /// The start, in milliseconds.
    virtual ZelDataResult_tags getStart(long long& start) const = 0;
    /// Start plus duration, in milliseconds.
    virtual ZelDataResult_tags getEnd(long long& end) const = 0;
    /// The duration, in milliseconds.
    virtual ZelDataResult_tags getDuration(long long& duration) const = 0;
    /// The alignment as it was set, including bits without a meaning.
    virtual ZelDataResult_tags getAlignment(ZelAlignment_tags& alignment) const = 0;
    /// Replaces everything with a copy of @p other: the texts, then start, end and alignment.
    /// - #ZelData_InternalError: @p other is this object; nothing changes.
    /// - #ZelData_InvalidArgument: the end of @p other is not after its start, as in a new item.
    ///   Texts and start were copied.
    /// - The code of a failed step, even a warning: what was copied before it stays.
    virtual ZelDataResult_tags copyFrom(const i_ZelDataCaptionItem& other);
};

} // namespace ZelInterchangeData

#endif
