/// @file
/// Caption items and captions that fail where a test asks for it.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGCAPTIONS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGCAPTIONS_H

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "support/fakes/FailingParts.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// A caption item, each operation of which can fail.
class FailingCaptionItem : public FailingTexts<FailingSpan<FailingItem<ZelDataCaptionItem>>> {
public:
    ZelDataResult_tags setAlignment(ZelAlignment_tags alignment) override
    {
        return run("setAlignment", [&] { return Own::setAlignment(alignment); });
    }
    ZelDataResult_tags getAlignment(ZelAlignment_tags& alignment) const override
    {
        return run("getAlignment", [&] { return Own::getAlignment(alignment); });
    }
};

/// Captions; the operations that a copy uses can fail, and so can their items.
class FailingCaptions : public FailingLanguages<FailingCollection<ZelDataCaptions>> {
    using Text = const std::string&;

public:
    /// Calls @p prepare with every item that is made from now on.
    void prepareItems(std::function<void(FailingCaptionItem&)> prepare)
    {
        prepare_ = std::move(prepare);
    }

    ZelDataResult_tags setFontFamily(Text family) override
    {
        return run("setFontFamily", [&] { return Own::setFontFamily(family); });
    }
    ZelDataResult_tags getFontFamily(std::string& family) const override
    {
        return run("getFontFamily", [&] { return Own::getFontFamily(family); });
    }
    ZelDataResult_tags setFontSize(unsigned long size) override
    {
        return run("setFontSize", [&] { return Own::setFontSize(size); });
    }
    ZelDataResult_tags getFontSize(unsigned long& size) const override
    {
        return run("getFontSize", [&] { return Own::getFontSize(size); });
    }
    ZelDataResult_tags setForegroundColor(float red, float green, float blue) override
    {
        return run("setForegroundColor", [&] { return Own::setForegroundColor(red, green, blue); });
    }
    ZelDataResult_tags getForegroundColor(float& red, float& green, float& blue) const override
    {
        return run("getForegroundColor", [&] { return Own::getForegroundColor(red, green, blue); });
    }
    ZelDataResult_tags setBackgroundColor(float red, float green, float blue) override
    {
        return run("setBackgroundColor", [&] { return Own::setBackgroundColor(red, green, blue); });
    }
    ZelDataResult_tags getBackgroundColor(float& red, float& green, float& blue) const override
    {
        return run("getBackgroundColor", [&] { return Own::getBackgroundColor(red, green, blue); });
    }
    ZelDataResult_tags setBackgroundOpacity(float opacity) override
    {
        return run("setBackgroundOpacity", [&] { return Own::setBackgroundOpacity(opacity); });
    }
    ZelDataResult_tags getBackgroundOpacity(float& opacity) const override
    {
        return run("getBackgroundOpacity", [&] { return Own::getBackgroundOpacity(opacity); });
    }
    ZelDataResult_tags clearCaptionItems() override
    {
        return run("clearCaptionItems", [&] { return Own::clearCaptionItems(); });
    }
    ZelDataResult_tags addCaptionItem(const i_ZelDataCaptionItem& item) override
    {
        return run("addCaptionItem", [&] { return Own::addCaptionItem(item); });
    }
    ZelDataResult_tags createCaptionItem(i_ZelDataCaptionItem** out) const override
    {
        return run("createCaptionItem", [&] {
            auto* item = new FailingCaptionItem;
            if (prepare_) prepare_(*item);
            *out = item;
            return ZelData_Ok;
        });
    }
    ZelDataResult_tags getCaptionItems(std::vector<i_ZelDataCaptionItem*>& items) const override
    {
        return runHandingOut("getCaptionItems", [&] { return Own::getCaptionItems(items); });
    }

private:
    std::function<void(FailingCaptionItem&)> prepare_;
};

} // namespace ZelInterchangeData

#endif
