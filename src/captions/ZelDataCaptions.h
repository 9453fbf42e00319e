/// @file
/// The captions of a document.

#ifndef ZELINTERCHANGEDATA_CAPTIONS_ZELDATACAPTIONS_H
#define ZELINTERCHANGEDATA_CAPTIONS_ZELDATACAPTIONS_H

#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "captions/CaptionStyle.h"
#include "captions/ZelDataCaptionItem.h"
#include "sets/ItemList.h"
#include "sets/LanguageListOwner.h"
#include "util/Ending.h"

namespace ZelInterchangeData {

/// The captions that the library makes. Removing an absent language is an error here.
class ZelDataCaptions : public LanguageListOwner<i_ZelDataCaptions, ZelData_NotFound> {
public:
    using Items = ItemList<i_ZelDataCaptionItem, ZelDataCaptionItem>;

    ZelDataResult_tags isValid(bool strict) const override;
    ZelDataResult_tags makeCaptionsConsistent() override;

    ZelDataResult_tags setFrameRate(unsigned long rate) override;
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override;
    ZelDataResult_tags setFontFamily(const std::string& family) override;
    ZelDataResult_tags getFontFamily(std::string& family) const override;
    ZelDataResult_tags setFontSize(unsigned long size) override;
    ZelDataResult_tags getFontSize(unsigned long& size) const override;
    ZelDataResult_tags setForegroundColor(float red, float green, float blue) override;
    ZelDataResult_tags getForegroundColor(float& red, float& green, float& blue) const override;
    ZelDataResult_tags setBackgroundColor(float red, float green, float blue) override;
    ZelDataResult_tags getBackgroundColor(float& red, float& green, float& blue) const override;
    ZelDataResult_tags setBackgroundOpacity(float opacity) override;
    ZelDataResult_tags getBackgroundOpacity(float& opacity) const override;

    ZelDataResult_tags clearCaptionItems() override;
    ZelDataResult_tags addCaptionItem(const i_ZelDataCaptionItem& item) override;
    ZelDataResult_tags createCaptionItem(i_ZelDataCaptionItem** out) const override;
    ZelDataResult_tags removeCaptionItemAt(unsigned long index) override;
    ZelDataResult_tags removeCaptionItemsForLanguage(const std::string& languageID) override;
    ZelDataResult_tags getCaptionItemCount(unsigned long& count) override;
    ZelDataResult_tags getCaptionItemAt(i_ZelDataCaptionItem** out,
                                        unsigned long index) const override;
    ZelDataResult_tags getCaptionItems(std::vector<i_ZelDataCaptionItem*>& items) const override;
    ZelDataResult_tags getCaptionItemsForLanguage(std::vector<i_ZelDataCaptionItem*>& items,
                                                  const std::string& languageID) const override;

    /// As copyFrom(), with the same codes, last errors and half-copied state, but shares the items:
    /// the items and styling of our own collections were checked when they were set.
    ZelDataResult_tags copyOwn(const ZelDataCaptions& other);
    /// Whether each item can be copied. This is false for a copy of a caller's item that stopped
    /// half-way although that item's last error was ZelData_Ok.
    bool canHandOutItems() const;
    const CaptionStyle& style() const noexcept { return style_; }
    const Items& items() const noexcept { return items_; }
    /// The summary of all items.
    const TextSummary& summary() const { return items_.summary(); }
    using LanguageListOwner::languageIDs;

    /// Orders the items by start, as makeCaptionsConsistent() does.
    ZelDataResult_tags orderCaptions();

protected:
    CaptionStyle style_;

private:
    ZelDataResult_tags storeColor(CaptionColor& field, CaptionColor color) const;
    static Ending checkItem(const i_ZelDataCaptionItem& item, bool strict,
                            const std::vector<std::string>& listed, long long earliestLater);
    ZelDataResult_tags checkItems(bool strict) const;
    /// createCaptionItem() as a callable.
    auto newItem() const
    {
        return [this](i_ZelDataCaptionItem** out) { return createCaptionItem(out); };
    }

    Items items_;
};

} // namespace ZelInterchangeData

#endif
