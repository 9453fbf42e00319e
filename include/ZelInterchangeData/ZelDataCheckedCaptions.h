/// @file
/// The checked operations of captions.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDCAPTIONS_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDCAPTIONS_H

#include "ZelInterchangeData/ZelDataCheckedCaptionItem.h"
#include "ZelInterchangeData/ZelDataCheckedLanguage.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataLimits.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of captions that throws if an operation fails.
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

    /// See i_ZelDataCaptions::isValid().
    ZelDataCheckedCaptions isValid(bool strict) const
    {
        return this->run("isValid", &Interface::isValid, strict);
    }
    /// Whether isValid() succeeds. A warning counts as a failure unless allowWarnings() was called.
    /// Throws if memory runs out.
    bool isGood(bool strict) const
    {
        return this->isGoodCode("isValid", this->object().isValid(strict));
    }
    /// See i_ZelDataCaptions::makeCaptionsConsistent().
    ZelDataCheckedCaptions makeCaptionsConsistent() const
    {
        return this->run("makeCaptionsConsistent", &Interface::makeCaptionsConsistent);
    }
    /// See i_ZelDataCaptions::setFrameRate().
    ZelDataCheckedCaptions setFrameRate(unsigned long rate) const
    {
        return this->run("setFrameRate", &Interface::setFrameRate, rate);
    }
    /// See i_ZelDataCaptions::getFrameRate().
    unsigned long getFrameRate() const
    {
        return this->get("getFrameRate", &Interface::getFrameRate);
    }
    /// See i_ZelDataCaptions::setFontFamily().
    ZelDataCheckedCaptions setFontFamily(const std::string& family) const
    {
        return this->run("setFontFamily", &Interface::setFontFamily, family);
    }
    /// See i_ZelDataCaptions::getFontFamily().
    std::string getFontFamily() const
    {
        return this->get("getFontFamily", &Interface::getFontFamily);
    }
    /// See i_ZelDataCaptions::setFontSize().
    ZelDataCheckedCaptions setFontSize(unsigned long size) const
    {
        return this->run("setFontSize", &Interface::setFontSize, size);
    }
    /// See i_ZelDataCaptions::getFontSize().
    unsigned long getFontSize() const { return this->get("getFontSize", &Interface::getFontSize); }
    /// See i_ZelDataCaptions::setForegroundColor().
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
    /// See i_ZelDataCaptions::setBackgroundColor().
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
    /// See i_ZelDataCaptions::setBackgroundOpacity().
    ZelDataCheckedCaptions setBackgroundOpacity(float opacity) const
    {
        return this->run("setBackgroundOpacity", &Interface::setBackgroundOpacity, opacity);
    }
    /// See i_ZelDataCaptions::getBackgroundOpacity().
    float getBackgroundOpacity() const
    {
        return this->get("getBackgroundOpacity", &Interface::getBackgroundOpacity);
    }
    /// See i_ZelDataCaptions::clearCaptionItems().
    ZelDataCheckedCaptions clearCaptionItems() const
    {
        return this->run("clearCaptionItems", &Interface::clearCaptionItems);
    }
    /// See i_ZelDataCaptions::addCaptionItem().
    ZelDataCheckedCaptions addCaptionItem(const i_ZelDataCaptionItem& item) const
    {
        return this->run("addCaptionItem", &Interface::addCaptionItem, item);
    }
    /// See i_ZelDataCaptions::createCaptionItem().
    std::unique_ptr<i_ZelDataCaptionItem> createCaptionItem() const
    {
        return this->make("createCaptionItem", &Interface::createCaptionItem);
    }
    /// See i_ZelDataCaptions::removeCaptionItemAt().
    ZelDataCheckedCaptions removeCaptionItemAt(unsigned long index) const
    {
        return this->run("removeCaptionItemAt", &Interface::removeCaptionItemAt, index);
    }
    /// See i_ZelDataCaptions::removeCaptionItemsForLanguage().
    ZelDataCheckedCaptions removeCaptionItemsForLanguage(const std::string& languageID) const
    {
        return this->run("removeCaptionItemsForLanguage", &Interface::removeCaptionItemsForLanguage,
                         languageID);
    }
    /// See i_ZelDataCaptions::getCaptionItemCount(), which is not const. A const view therefore
    /// calls getCaptionItems(), which copies all items: its time is in proportion to their number.
    /// If you need the items, too, count those.
    unsigned long getCaptionItemCount() const
    {
        if constexpr (std::is_const_v<Object>)
            return static_cast<unsigned long>(getCaptionItems().size());
        else
            return this->get("getCaptionItemCount", &Interface::getCaptionItemCount);
    }
    /// See i_ZelDataCaptions::getCaptionItemAt().
    std::unique_ptr<i_ZelDataCaptionItem> getCaptionItemAt(unsigned long index) const
    {
        return this->make("getCaptionItemAt", &Interface::getCaptionItemAt, index);
    }
    /// See i_ZelDataCaptions::getCaptionItems().
    std::vector<std::unique_ptr<i_ZelDataCaptionItem>> getCaptionItems() const
    {
        return this->makeAll("getCaptionItems", &Interface::getCaptionItems);
    }
    /// See i_ZelDataCaptions::getCaptionItemsForLanguage().
    std::vector<std::unique_ptr<i_ZelDataCaptionItem>>
    getCaptionItemsForLanguage(const std::string& languageID) const
    {
        return this->makeAll("getCaptionItemsForLanguage", &Interface::getCaptionItemsForLanguage,
                             languageID);
    }
    /// See i_ZelDataCaptions::copyFrom().
    ZelDataCheckedCaptions copyFrom(const i_ZelDataCaptions& other) const
    {
        return this->done("copyFrom", this->object().copyFrom(other), other);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedCaptions, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.operation == "isValid")
            return reasonOfProblem<i_ZelDataCaptions>(this->object(), call);
        if (call.operation == "addCaptionItem") return reasonOfCaption(call);
        if (call.is("getCaptionItemAt", ZelData_InvalidArgument) ||
            call.is("removeCaptionItemAt", ZelData_InvalidArgument))
            return asking(this->object(),
                          [&] { return reasonOfIndex(call, getCaptionItemCount()); });
        const std::string known = reasonOfStyle(call);
        return known.empty() ? this->reasonOfList(call) : known;
    }

    std::string reasonOfStyle(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.is("setFontFamily", ZelData_InvalidArgument))
            return call.text().empty() ? "empty" : "";
        if (call.is("setFontSize", ZelData_InvalidArgument))
            return reasonOfRange(call, ZelDataLimits::minimumFontSize,
                                 ZelDataLimits::maximumFontSize);
        if (call.is("setForegroundColor", ZelData_InvalidArgument) ||
            call.is("setBackgroundColor", ZelData_InvalidArgument))
            return reasonOfFractions(call, {"red is ", "green is ", "blue is "});
        if (call.is("setBackgroundOpacity", ZelData_InvalidArgument))
            return reasonOfFractions(call, {""});
        return reasonOfFrameRate(call);
    }

    static std::string reasonOfFractions(const ZelDataCall& call,
                                         std::initializer_list<const char*> subjects)
    {
        for (std::size_t i = 0; i < subjects.size(); ++i) {
            const float value = call.get<float>(i);
            if (value < 0.0F || value > 1.0F)
                return std::string(subjects.begin()[i]) + "not from 0.0 to 1.0";
        }
        return {};
    }
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
