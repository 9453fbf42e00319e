/// @file
/// One text that is visible in the video.

#ifndef ZELINTERCHANGEDATA_I_ZELDATASCREENTEXTITEM_H
#define ZELINTERCHANGEDATA_I_ZELDATASCREENTEXTITEM_H

#include "ZelInterchangeData/ZelDataStandardLibrary.h"
#include "ZelInterchangeData/i_ZelDataResult.h"

#include <string>

namespace ZelInterchangeData {

/// A text, its start and duration, a reference to an image, and the table-of-contents entry that it
/// belongs to.
///
/// Times are in ticks of the collection's frame rate; the end is always start plus duration,
/// wrapping in 64 bits.
class ZELINTERCHANGEDATA_API i_ZelDataScreenTextItem : public i_ZelDataResult {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataScreenTextItem);
    ~i_ZelDataScreenTextItem() override;

    /// Checks only the text. @p deep has no effect.
    /// - #ZelData_InvalidItem: the text is not UTF-8.
    virtual ZelDataResult_tags isValid(bool deep) const = 0;
    /// Empties the text.
    virtual ZelDataResult_tags clearText() = 0;
    /// Sets the text. Default empty.
    /// - #ZelData_InvalidItem: @p text is not UTF-8.
    virtual ZelDataResult_tags setText(const std::string& text) = 0;
    /// Sets the start in ticks, at least 0. Default 0. Keeps the duration, so the end moves, too.
    /// - #ZelData_InvalidArgument: @p start is negative.
    virtual ZelDataResult_tags setStart(long long start) = 0;
    /// Sets the duration so that the item ends at @p end ticks. Set the start first.
    /// - #ZelData_InvalidArgument: @p end is negative or not after the start.
    virtual ZelDataResult_tags setEnd(long long end) = 0;
    /// Sets the duration in ticks, at least 0. Default 0.
    /// - #ZelData_InvalidArgument: @p duration is negative.
    virtual ZelDataResult_tags setDuration(long long duration) = 0;
    /// The file that holds the image; stored as given and written without escaping. Default empty.
    virtual ZelDataResult_tags setImageFile(const std::string& name) = 0;
    /// Index of the image in the file. Any value; default 0.
    virtual ZelDataResult_tags setImageIndex(unsigned long index) = 0;
    /// Offset of the image in the file, in bytes. Any value; default 0.
    virtual ZelDataResult_tags setImageOffset(unsigned long long offset) = 0;
    /// Number of the table-of-contents entry that the text belongs to. Entries count from 0 in the
    /// order of their starts, so the default, 0, ties the text to the first entry. Any value; the
    /// library does not check that the entry exists.
    virtual ZelDataResult_tags setGroupId(unsigned long id) = 0;
    /// The text as it was set; control characters are removed only when it is written.
    virtual ZelDataResult_tags getText(std::string& text) const = 0;
    /// The start, in ticks.
    virtual ZelDataResult_tags getStart(long long& start) const = 0;
    /// Start plus duration, in ticks.
    virtual ZelDataResult_tags getEnd(long long& end) const = 0;
    /// The duration, in ticks.
    virtual ZelDataResult_tags getDuration(long long& duration) const = 0;
    /// The file that holds the image.
    virtual ZelDataResult_tags getImageFile(std::string& name) const = 0;
    /// The index of the image in the file.
    virtual ZelDataResult_tags getImageIndex(unsigned long& index) const = 0;
    /// The offset of the image in the file, in bytes.
    virtual ZelDataResult_tags getImageOffset(unsigned long long& offset) const = 0;
    /// The number of the table-of-contents entry that the text belongs to.
    virtual ZelDataResult_tags getGroupId(unsigned long& id) const = 0;
    /// Replaces everything with a copy of @p source: text, start, duration, image file, index,
    /// offset, group.
    /// - #ZelData_InternalError: @p source is this object; nothing changes.
    /// - The code of a failed step, even a warning: what was copied before it stays.
    virtual ZelDataResult_tags copyFrom(const i_ZelDataScreenTextItem& source);
};

} // namespace ZelInterchangeData

#endif
