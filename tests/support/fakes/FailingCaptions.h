/// @file
/// Caption items and captions that fail where a test asks for it.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGCAPTIONS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGCAPTIONS_H

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "support/fakes/Failing.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// A caption item, each operation of which can fail.
class FailingCaptionItem : public Failing<ZelDataCaptionItem> {
    using Own = ZelDataCaptionItem;
    using Text = const std::string&;

public:
    ZelDataResult_tags isValid(bool strict) const override
    {
        return run("isValid", [&] { return Own::isValid(strict); });
    }
    ZelDataResult_tags clearText() override
    {
        return run("clearText", [&] { return Own::clearText(); });
    }
    ZelDataResult_tags setTextForLanguage(Text text, Text id) override
    {
        return run("setTextForLanguage", [&] { return Own::setTextForLanguage(text, id); });
    }
    ZelDataResult_tags setStart(long long start) override
    {
        return run("setStart", [&] { return Own::setStart(start); });
    }
    ZelDataResult_tags setEnd(long long end) override
    {
        return run("setEnd", [&] { return Own::setEnd(end); });
    }
    ZelDataResult_tags setDuration(long long duration) override
    {
        return run("setDuration", [&] { return Own::setDuration(duration); });
    }
    ZelDataResult_tags setAlignment(ZelAlignment_tags alignment) override
    {
        return run("setAlignment", [&] { return Own::setAlignment(alignment); });
    }
    ZelDataResult_tags removeTextForLanguage(Text id) override
    {
        return run("removeTextForLanguage", [&] { return Own::removeTextForLanguage(id); });
    }
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override
    {
        return run("getLanguageIDs", [&] { return Own::getLanguageIDs(ids); });
    }
    ZelDataResult_tags getTextForLanguage(std::string& text, Text id) const override
    {
        return run("getTextForLanguage", [&] { return Own::getTextForLanguage(text, id); });
    }
    ZelDataResult_tags getStart(long long& start) const override
    {
        return run("getStart", [&] { return Own::getStart(start); });
    }
    ZelDataResult_tags getEnd(long long& end) const override
    {
        return run("getEnd", [&] { return Own::getEnd(end); });
    }
    ZelDataResult_tags getDuration(long long& duration) const override
    {
        return run("getDuration", [&] { return Own::getDuration(duration); });
    }
    ZelDataResult_tags getAlignment(ZelAlignment_tags& alignment) const override
    {
        return run("getAlignment", [&] { return Own::getAlignment(alignment); });
    }
};

/// Captions, each operation of which that a copy uses can fail. Their items are failing ones too.
class FailingCaptions : public Failing<ZelDataCaptions> {
    using Own = ZelDataCaptions;
    using Text = const std::string&;

public:
    /// Every item that is made from now on is handed to @p prepare first.
    void prepareItems(std::function<void(FailingCaptionItem&)> prepare)
    {
        prepare_ = std::move(prepare);
    }
    /// Makes the items be handed out before a failure of getCaptionItems.
    void handOutBeforeFailing() { handsOut_ = true; }

    ZelDataResult_tags clearLanguages() override
    {
        return run("clearLanguages", [&] { return Own::clearLanguages(); });
    }
    ZelDataResult_tags addLanguage(Text id) override
    {
        return run("addLanguage", [&] { return Own::addLanguage(id); });
    }
    ZelDataResult_tags getOrderedLanguageIDs(std::vector<std::string>& ids) const override
    {
        return run("getOrderedLanguageIDs", [&] { return Own::getOrderedLanguageIDs(ids); });
    }
    ZelDataResult_tags setFrameRate(unsigned long rate) override
    {
        return run("setFrameRate", [&] { return Own::setFrameRate(rate); });
    }
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override
    {
        return run("getFrameRate", [&] { return Own::getFrameRate(rate); });
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
        if (handsOut_) static_cast<void>(Own::getCaptionItems(items));
        return run("getCaptionItems",
                   [&] { return handsOut_ ? ZelData_Ok : Own::getCaptionItems(items); });
    }

private:
    std::function<void(FailingCaptionItem&)> prepare_;
    bool handsOut_ = false;
};

} // namespace ZelInterchangeData

#endif
