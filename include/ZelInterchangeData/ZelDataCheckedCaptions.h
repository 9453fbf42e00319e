/// @file
/// The checked operations of captions.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDCAPTIONS_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDCAPTIONS_H

#include "ZelInterchangeData/ZelDataCheckedLanguage.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A view of captions that throws where an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataCaptions for what an operation does.
template <class Object>
class ZelDataCheckedCaptions
    : public ZelDataCheckedLanguage<ZelDataCheckedCaptions<Object>, Object> {
    using Base = ZelDataCheckedLanguage<ZelDataCheckedCaptions<Object>, Object>;
    using Interface = i_ZelDataCaptions;

public:
    using Base::Base;
    using Base::copyFrom;

    /// @name Operations of i_ZelDataCaptions
    /// @{
    ZelDataCheckedCaptions isValid(bool strict) const
    {
        return this->run("isValid", &Interface::isValid, strict);
    }
    ZelDataCheckedCaptions makeCaptionsConsistent() const
    {
        return this->run("makeCaptionsConsistent", &Interface::makeCaptionsConsistent);
    }
    ZelDataCheckedCaptions setFrameRate(unsigned long rate) const
    {
        return this->run("setFrameRate", &Interface::setFrameRate, rate);
    }
    unsigned long getFrameRate() const
    {
        return this->get("getFrameRate", &Interface::getFrameRate);
    }
    ZelDataCheckedCaptions setFontFamily(const std::string& family) const
    {
        return this->run("setFontFamily", &Interface::setFontFamily, family);
    }
    std::string getFontFamily() const
    {
        return this->get("getFontFamily", &Interface::getFontFamily);
    }
    ZelDataCheckedCaptions setFontSize(unsigned long size) const
    {
        return this->run("setFontSize", &Interface::setFontSize, size);
    }
    unsigned long getFontSize() const { return this->get("getFontSize", &Interface::getFontSize); }
    ZelDataCheckedCaptions setForegroundColor(float red, float green, float blue) const
    {
        return this->run("setForegroundColor", &Interface::setForegroundColor, red, green, blue);
    }
    /// Red, green and blue.
    std::array<float, 3> getForegroundColor() const
    {
        std::array<float, 3> color = {};
        this->require("getForegroundColor",
                      this->object().getForegroundColor(color[0], color[1], color[2]));
        return color;
    }
    ZelDataCheckedCaptions setBackgroundColor(float red, float green, float blue) const
    {
        return this->run("setBackgroundColor", &Interface::setBackgroundColor, red, green, blue);
    }
    /// Red, green and blue.
    std::array<float, 3> getBackgroundColor() const
    {
        std::array<float, 3> color = {};
        this->require("getBackgroundColor",
                      this->object().getBackgroundColor(color[0], color[1], color[2]));
        return color;
    }
    ZelDataCheckedCaptions setBackgroundOpacity(float opacity) const
    {
        return this->run("setBackgroundOpacity", &Interface::setBackgroundOpacity, opacity);
    }
    float getBackgroundOpacity() const
    {
        return this->get("getBackgroundOpacity", &Interface::getBackgroundOpacity);
    }
    ZelDataCheckedCaptions clearCaptionItems() const
    {
        return this->run("clearCaptionItems", &Interface::clearCaptionItems);
    }
    ZelDataCheckedCaptions addCaptionItem(const i_ZelDataCaptionItem& item) const
    {
        return this->run("addCaptionItem", &Interface::addCaptionItem, item);
    }
    std::unique_ptr<i_ZelDataCaptionItem> createCaptionItem() const
    {
        return this->make("createCaptionItem", &Interface::createCaptionItem);
    }
    ZelDataCheckedCaptions removeCaptionItemAt(unsigned long index) const
    {
        return this->run("removeCaptionItemAt", &Interface::removeCaptionItemAt, index);
    }
    ZelDataCheckedCaptions removeCaptionItemsForLanguage(const std::string& languageID) const
    {
        return this->run("removeCaptionItemsForLanguage", &Interface::removeCaptionItemsForLanguage,
                         languageID);
    }
    unsigned long getCaptionItemCount() const
    {
        return this->get("getCaptionItemCount", &Interface::getCaptionItemCount);
    }
    std::unique_ptr<i_ZelDataCaptionItem> getCaptionItemAt(unsigned long index) const
    {
        return this->make("getCaptionItemAt", &Interface::getCaptionItemAt, index);
    }
    std::vector<std::unique_ptr<i_ZelDataCaptionItem>> getCaptionItems() const
    {
        return this->makeAll("getCaptionItems", &Interface::getCaptionItems);
    }
    std::vector<std::unique_ptr<i_ZelDataCaptionItem>>
    getCaptionItemsForLanguage(const std::string& languageID) const
    {
        return this->makeAll("getCaptionItemsForLanguage", &Interface::getCaptionItemsForLanguage,
                             languageID);
    }
    ZelDataCheckedCaptions copyFrom(const i_ZelDataCaptions& other) const
    {
        return this->done("copyFrom", this->object().copyFrom(other));
    }
    /// @}
};

/// The checked operations of @p object.
inline ZelDataCheckedCaptions<i_ZelDataCaptions> checked(i_ZelDataCaptions& object) noexcept
{
    return ZelDataCheckedCaptions<i_ZelDataCaptions>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedCaptions<const i_ZelDataCaptions>
checked(const i_ZelDataCaptions& object) noexcept
{
    return ZelDataCheckedCaptions<const i_ZelDataCaptions>(object);
}

} // namespace ZelInterchangeData

#endif
