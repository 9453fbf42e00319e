/// @file
/// The screen text of a document.

#ifndef ZELINTERCHANGEDATA_SCREENTEXT_ZELDATASCREENTEXT_H
#define ZELINTERCHANGEDATA_SCREENTEXT_ZELDATASCREENTEXT_H

#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "sets/FrameRate.h"
#include "sets/ItemList.h"
#include "util/Ending.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// The screen text that the library makes.
class ZelDataScreenText : public i_ZelDataScreenText {
public:
    using Items = ItemList<i_ZelDataScreenTextItem, ZelDataScreenTextItem>;

    ZelDataResult_tags isValid(bool deep) const override;
    ZelDataResult_tags makeScreenTextConsistent() override;

    ZelDataResult_tags setFrameRate(unsigned long rate) override;
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override;

    ZelDataResult_tags clearScreenTextItems() override;
    ZelDataResult_tags addScreenTextItem(const i_ZelDataScreenTextItem& item) override;
    ZelDataResult_tags createScreenTextItem(i_ZelDataScreenTextItem** out) const override;
    ZelDataResult_tags removeScreenTextItemAt(unsigned long index) override;
    ZelDataResult_tags getScreenTextItemCount(unsigned long& count) override;
    ZelDataResult_tags getScreenTextItemAt(i_ZelDataScreenTextItem** out,
                                           unsigned long index) const override;
    ZelDataResult_tags
    getScreenTextItems(std::vector<i_ZelDataScreenTextItem*>& items) const override;

    /// As copyFrom(), with the same codes and last errors, but shares the items: those of our own
    /// collections were checked when they were added.
    ZelDataResult_tags copyOwn(const ZelDataScreenText& other);
    const Items& items() const noexcept { return items_; }
    FrameRate frameRate() const noexcept { return frameRate_; }
    /// The summary of all items.
    const ScreenTextSummary& summary() const { return items_.summary(); }

    /// Orders the items by start, as makeScreenTextConsistent() does.
    ZelDataResult_tags orderScreenTextItems();

protected:
    FrameRate frameRate_;

private:
    static Ending checkItem(const i_ZelDataScreenTextItem& item, bool deep,
                            long long earliestLater);
    ZelDataResult_tags checkItems(bool deep) const;
    /// createScreenTextItem() as a callable.
    auto newItem() const
    {
        return [this](i_ZelDataScreenTextItem** out) { return createScreenTextItem(out); };
    }

    Items items_;
    std::vector<std::string> reserved_; // no operation fills it
};

} // namespace ZelInterchangeData

#endif
