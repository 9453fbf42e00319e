/// @file
/// The texts that are visible in a video.

#ifndef ZELINTERCHANGEDATA_I_ZELDATASCREENTEXT_H
#define ZELINTERCHANGEDATA_I_ZELDATASCREENTEXT_H

#include "ZelInterchangeData/ZelDataStandardLibrary.h"
#include "ZelInterchangeData/i_ZelDataResult.h"

#include <vector>

namespace ZelInterchangeData {

class i_ZelDataScreenTextItem;

/// Screen-text items in the order in which they were added.
///
/// The collection stores copies of items and returns copies, which the caller owns.
class ZELINTERCHANGEDATA_API i_ZelDataScreenText : public i_ZelDataResult {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataScreenText);
    ~i_ZelDataScreenText() override;

    /// Checks frame rate and order; stops at the first problem. Overlaps pass.
    /// @param deep whether to call `isValid(true)` of each item, too.
    /// - #ZelData_InvalidArgument: the frame rate is out of range.
    /// - #ZelData_WarnTiming: an item starts after a later one. Equal starts pass.
    /// - The code of an item, if @p deep is true.
    virtual ZelDataResult_tags isValid(bool deep) const = 0;
    /// Orders the items by start and sets a frame rate that is out of range to 1000.
    ///
    /// The order is that of an exchange sort: items with equal starts may change places.
    virtual ZelDataResult_tags makeScreenTextConsistent() = 0;

    /// Ticks per second of the items' times, 1 to 10000. Default 1000: milliseconds.
    /// - #ZelData_InvalidArgument: out of range.
    virtual ZelDataResult_tags setFrameRate(unsigned long rate) = 0;
    /// The frame rate, in ticks per second.
    virtual ZelDataResult_tags getFrameRate(unsigned long& rate) const = 0;

    /// @name Items
    /// Indices count from 0 in stored order.
    /// @{

    /// Removes all items.
    virtual ZelDataResult_tags clearScreenTextItems() = 0;
    /// Appends a copy of @p item. Does not check order or times.
    /// - The code of copying the item (see i_ZelDataScreenTextItem::copyFrom()): nothing is added.
    virtual ZelDataResult_tags addScreenTextItem(const i_ZelDataScreenTextItem& item) = 0;
    /// Stores a new item with default values in `*out`. It is not part of the collection.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not.
    virtual ZelDataResult_tags createScreenTextItem(i_ZelDataScreenTextItem** out) const = 0;
    /// Removes the item at @p index; later items move up.
    /// - #ZelData_InvalidArgument: there is no item at @p index.
    virtual ZelDataResult_tags removeScreenTextItemAt(unsigned long index) = 0;
    /// The number of items.
    virtual ZelDataResult_tags getScreenTextItemCount(unsigned long& count) = 0;
    /// Stores a copy of the item at @p index in `*out`.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not, or there is no such item.
    virtual ZelDataResult_tags getScreenTextItemAt(i_ZelDataScreenTextItem** out,
                                                   unsigned long index) const = 0;
    /// Replaces @p items with copies of all items. Does not delete what the vector pointed to
    /// before.
    /// - The code of a failed copy: @p items is empty.
    virtual ZelDataResult_tags
    getScreenTextItems(std::vector<i_ZelDataScreenTextItem*>& items) const = 0;
    /// @}

    /// Replaces frame rate and items with copies of those of @p source.
    /// - #ZelData_InternalError: @p source is this object; nothing changes.
    /// - The code of a failed step, even a warning: what was copied before it stays.
    virtual ZelDataResult_tags copyFrom(const i_ZelDataScreenText& source);
};

} // namespace ZelInterchangeData

#endif
