/// @file
/// Caption items and captions that fail where a test wants it.

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
    OVERRIDE_SETTER(setAlignment, ZelAlignment_tags)
    OVERRIDE_GETTER(getAlignment, ZelAlignment_tags)
};

/// Captions: each operation that a copy calls can fail. The items that they make can fail too.
class FailingCaptions : public FailingLanguages<FailingCollection<ZelDataCaptions>> {
    using Text = const std::string&;

public:
    /// Calls @p prepare with every item that is made from now on.
    void prepareItems(std::function<void(FailingCaptionItem&)> prepare)
    {
        prepare_ = std::move(prepare);
    }

    OVERRIDE_SETTER(setFontFamily, Text)
    OVERRIDE_GETTER(getFontFamily, std::string)
    OVERRIDE_SETTER(setFontSize, unsigned long)
    OVERRIDE_GETTER(getFontSize, unsigned long)
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
    OVERRIDE_SETTER(setBackgroundOpacity, float)
    OVERRIDE_GETTER(getBackgroundOpacity, float)
    OVERRIDE_ACTION(clearCaptionItems)
    OVERRIDE_SETTER(addCaptionItem, const i_ZelDataCaptionItem&)
    ZelDataResult_tags createCaptionItem(i_ZelDataCaptionItem** out) const override
    {
        return run("createCaptionItem", [&] {
            auto* item = new FailingCaptionItem;
            if (prepare_) prepare_(*item);
            *out = item;
            return ZelData_Ok;
        });
    }
    OVERRIDE_GETTER(getCaptionItems, std::vector<i_ZelDataCaptionItem*>)

private:
    std::function<void(FailingCaptionItem&)> prepare_;
};

} // namespace ZelInterchangeData

#endif
