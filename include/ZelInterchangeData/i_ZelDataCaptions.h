/// @file
/// The captions of a video.

#ifndef ZELINTERCHANGEDATA_I_ZELDATACAPTIONS_H
#define ZELINTERCHANGEDATA_I_ZELDATACAPTIONS_H

#include "ZelInterchangeData/i_ZelDataLanguage.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

class i_ZelDataCaptionItem;

/// Caption items in the order in which they were added, one styling for all, and the list of
/// languages.
///
/// The collection stores copies of items and returns copies, which the caller owns.
class ZELINTERCHANGEDATA_API i_ZelDataCaptions : public i_ZelDataLanguage {
public:
    using i_ZelDataLanguage::copyFrom;

    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataCaptions);
    ~i_ZelDataCaptions() override;

    /// Checks styling, texts and timing; stops at the first problem. Without items, checks only the
    /// styling.
    /// @param strict whether to call `isValid(true)` of each item, too; otherwise, the items' own
    ///         validity is not checked.
    /// - #ZelData_InvalidArgument: a styling value is out of range, or an item has no text for a
    ///   listed language.
    /// - #ZelData_WarnTiming: an item ends after a later one starts. An end equal to a start
    ///   passes.
    /// - The code of an item, if @p strict is true.
    virtual ZelDataResult_tags isValid(bool strict) const = 0;
    /// Orders the items by start, gives each an empty text for every listed language that it lacks,
    /// and corrects styling values that are out of range. Overlaps stay.
    ///
    /// The order is that of an exchange sort: items with equal starts may change places.
    virtual ZelDataResult_tags makeCaptionsConsistent() = 0;

    /// @name Styling
    /// @{

    /// Ticks per second, 1 to 10000. Default 1000, which makes times milliseconds.
    /// - #ZelData_InvalidArgument: out of range.
    virtual ZelDataResult_tags setFrameRate(unsigned long rate) = 0;
    /// The frame rate, in ticks per second.
    virtual ZelDataResult_tags getFrameRate(unsigned long& rate) const = 0;
    /// Any bytes, but not empty. Default "Helvetica". Written without escaping.
    /// - #ZelData_InvalidArgument: @p family is empty.
    virtual ZelDataResult_tags setFontFamily(const std::string& family) = 0;
    /// The font family, as it was set.
    virtual ZelDataResult_tags getFontFamily(std::string& family) const = 0;
    /// 1 to 500. Default 20.
    /// - #ZelData_InvalidArgument: out of range.
    virtual ZelDataResult_tags setFontSize(unsigned long size) = 0;
    /// The font size of all captions.
    virtual ZelDataResult_tags getFontSize(unsigned long& size) const = 0;
    /// Each component 0.0 to 1.0; NaN is accepted. Default white: 1.0, 1.0, 1.0.
    /// - #ZelData_InvalidArgument: a component is out of range; none is stored.
    virtual ZelDataResult_tags setForegroundColor(float red, float green, float blue) = 0;
    /// The components of the text's colour, from 0.0 to 1.0.
    virtual ZelDataResult_tags getForegroundColor(float& red, float& green, float& blue) const = 0;
    /// Each component 0.0 to 1.0; NaN is accepted. Default black: 0.0, 0.0, 0.0.
    /// - #ZelData_InvalidArgument: a component is out of range; none is stored.
    virtual ZelDataResult_tags setBackgroundColor(float red, float green, float blue) = 0;
    /// The components of the background's colour, from 0.0 to 1.0.
    virtual ZelDataResult_tags getBackgroundColor(float& red, float& green, float& blue) const = 0;
    /// 0.0 (clear) to 1.0 (opaque); NaN is accepted. Default 0.6.
    /// - #ZelData_InvalidArgument: out of range.
    virtual ZelDataResult_tags setBackgroundOpacity(float opacity) = 0;
    /// The opacity, from 0.0 (clear) to 1.0 (opaque).
    virtual ZelDataResult_tags getBackgroundOpacity(float& opacity) const = 0;
    /// @}

    /// @name Items
    /// Indices count from 0 in stored order.
    /// @{

    /// Removes all items and empties the language list.
    virtual ZelDataResult_tags clearCaptionItems() = 0;
    /// Appends a copy of @p item and lists those of its languages that are not listed yet, in
    /// ascending byte order. Does not check order or overlap.
    /// - The code of copying the item (see i_ZelDataCaptionItem::copyFrom()): nothing is added. An
    ///   item whose end is not after its start cannot be copied: #ZelData_InvalidArgument.
    /// - The error from listing a language: the item is not added; languages that this call listed
    ///   before the error stay listed, unless memory runs out.
    virtual ZelDataResult_tags addCaptionItem(const i_ZelDataCaptionItem& item) = 0;
    /// Stores a new item with default values in `*out`. It is not part of the collection.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not.
    virtual ZelDataResult_tags createCaptionItem(i_ZelDataCaptionItem** out) const = 0;
    /// Removes the item at @p index; later items move up.
    /// - #ZelData_InvalidArgument: there is no item at @p index.
    virtual ZelDataResult_tags removeCaptionItemAt(unsigned long index) = 0;
    /// Removes the text for @p languageID from every item; items and language list stay.
    /// - #ZelData_NotFound: an item has no such text. The items before it have lost theirs, those
    ///   after it keep theirs.
    virtual ZelDataResult_tags removeCaptionItemsForLanguage(const std::string& languageID) = 0;
    /// The number of items.
    virtual ZelDataResult_tags getCaptionItemCount(unsigned long& count) = 0;
    /// Stores a copy of the item at @p index in `*out`.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not, or there is no such item.
    virtual ZelDataResult_tags getCaptionItemAt(i_ZelDataCaptionItem** out,
                                                unsigned long index) const = 0;
    /// Replaces @p items with copies of all items. Does not delete what the vector pointed to
    /// before.
    /// - The code of a failed copy: @p items is empty.
    virtual ZelDataResult_tags getCaptionItems(std::vector<i_ZelDataCaptionItem*>& items) const = 0;
    /// Not supported: always #ZelData_NotImplemented; @p items is unchanged.
    virtual ZelDataResult_tags getCaptionItemsForLanguage(std::vector<i_ZelDataCaptionItem*>& items,
                                                          const std::string& languageID) const = 0;
    /// @}

    /// Replaces everything with a copy of @p other: the styling, then the items.
    ///
    /// The language list is rebuilt from the items: each contributes its languages in ascending
    /// byte order. A language that no item has and an order that you set are lost.
    /// - #ZelData_InternalError: @p other is this object; nothing changes.
    /// - The code of a failed step, even a warning: what was copied before it stays.
    virtual ZelDataResult_tags copyFrom(const i_ZelDataCaptions& other);
};

} // namespace ZelInterchangeData

#endif
