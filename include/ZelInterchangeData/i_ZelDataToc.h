/// @file
/// The table of contents of a video.

#ifndef ZELINTERCHANGEDATA_I_ZELDATATOC_H
#define ZELINTERCHANGEDATA_I_ZELDATATOC_H

#include "ZelInterchangeData/i_ZelDataLanguage.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

class i_ZelDataTocItem;

/// Entries in the order in which they were added, the file of their thumbnails, and the list of
/// languages.
///
/// The table stores copies of entries and returns copies, which the caller owns.
class ZELINTERCHANGEDATA_API i_ZelDataToc : public i_ZelDataLanguage {
public:
    using i_ZelDataLanguage::copyFrom;

    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataToc);
    ~i_ZelDataToc() override;

    /// Checks frame rate, texts and order; stops at the first problem. Does not check the image
    /// fields.
    /// @param deep whether to call `isValid(true)` of each entry, too.
    /// - #ZelData_InvalidArgument: the frame rate is out of range, or an entry has no text for a
    ///   listed language.
    /// - #ZelData_WarnTiming: an entry starts after a later one. Equal starts pass.
    /// - The code of an entry, if @p deep is true.
    virtual ZelDataResult_tags isValid(bool deep) const = 0;
    /// Orders the entries by start, gives each an empty text for every listed language that it
    /// lacks, and sets a frame rate that is out of range to 1000.
    ///
    /// The order is that of an exchange sort: entries with equal starts may change places.
    virtual ZelDataResult_tags makeTocConsistent() = 0;

    /// Ticks per second of the entries' starts, 1 to 10000. Default 1000. It is never copied, so a
    /// written table always states 1000.
    /// - #ZelData_InvalidArgument: out of range.
    virtual ZelDataResult_tags setFrameRate(unsigned long rate) = 0;
    /// The frame rate, in ticks per second.
    virtual ZelDataResult_tags getFrameRate(unsigned long& rate) const = 0;
    /// The file of the thumbnails; stored as given. Default empty.
    virtual ZelDataResult_tags setImageFile(const std::string& name) = 0;
    /// The file of the thumbnails.
    virtual ZelDataResult_tags getImageFile(std::string& name) const = 0;

    /// @name Entries
    /// Indices count from 0 in stored order.
    /// @{

    /// Removes all entries and empties the language list.
    virtual ZelDataResult_tags clearTocItems() = 0;
    /// Appends a copy of @p item and lists those of its languages that are not listed yet, in
    /// ascending byte order. Does not check the order of starts.
    /// - The code of copying the entry (see i_ZelDataTocItem::copyFrom()): nothing is added.
    /// - The error from listing a language: the entry is not added; languages that this call listed
    ///   before the error stay listed, unless memory runs out.
    virtual ZelDataResult_tags addTocItem(const i_ZelDataTocItem& item) = 0;
    /// Stores a new entry with default values in `*out`. It is not part of the table.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not.
    virtual ZelDataResult_tags createTocItem(i_ZelDataTocItem** out) const = 0;
    /// Removes the entry at @p index; later entries move up.
    /// - #ZelData_InvalidArgument: there is no entry at @p index.
    virtual ZelDataResult_tags removeTocItemAt(unsigned long index) = 0;
    /// Removes the text for @p languageID from every entry; entries and language list stay.
    /// - #ZelData_NotFound: an entry has no such text. The entries before it have lost theirs,
    ///   those after it keep theirs.
    virtual ZelDataResult_tags removeTocItemsForLanguage(const std::string& languageID) = 0;
    /// The number of entries.
    virtual ZelDataResult_tags getTocItemCount(unsigned long& count) = 0;
    /// Stores a copy of the entry at @p index in `*out`.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not, or there is no such entry.
    virtual ZelDataResult_tags getTocItemAt(i_ZelDataTocItem** out, unsigned long index) const = 0;
    /// Replaces @p items with copies of all entries. Does not delete what the vector pointed to
    /// before.
    /// - The code of a failed copy: @p items is empty.
    virtual ZelDataResult_tags getTocItems(std::vector<i_ZelDataTocItem*>& items) const = 0;
    /// Not supported: always #ZelData_NotImplemented; @p items is unchanged.
    virtual ZelDataResult_tags getTocItemsForLanguage(std::vector<i_ZelDataTocItem*>& items,
                                                      const std::string& languageID) const = 0;
    /// @}

    /// Replaces image file and entries with copies of those of @p source; the frame rate stays.
    ///
    /// The language list is rebuilt from the entries: each contributes its languages in ascending
    /// byte order. A language that no entry has and an order that you set are lost.
    /// - #ZelData_InternalError: @p source is this object; nothing changes.
    /// - The code of a failed step, even a warning: what was copied before it stays.
    virtual ZelDataResult_tags copyFrom(const i_ZelDataToc& source);
};

} // namespace ZelInterchangeData

#endif
