/// @file
/// The checked operations of a collection of screen texts.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXT_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXT_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"

#include <memory>
#include <vector>

namespace ZelInterchangeData {

/// A view of a collection of screen texts that throws where an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataScreenText for what an operation does.
template <class Object>
class ZelDataCheckedScreenText
    : public ZelDataCheckedObject<ZelDataCheckedScreenText<Object>, Object> {
    using Base = ZelDataCheckedObject<ZelDataCheckedScreenText<Object>, Object>;
    using Interface = i_ZelDataScreenText;

public:
    using Base::Base;

    /// @name Operations of i_ZelDataScreenText
    /// @{
    ZelDataCheckedScreenText isValid(bool deep) const
    {
        return this->run("isValid", &Interface::isValid, deep);
    }
    ZelDataCheckedScreenText makeScreenTextConsistent() const
    {
        return this->run("makeScreenTextConsistent", &Interface::makeScreenTextConsistent);
    }
    ZelDataCheckedScreenText setFrameRate(unsigned long rate) const
    {
        return this->run("setFrameRate", &Interface::setFrameRate, rate);
    }
    unsigned long getFrameRate() const
    {
        return this->get("getFrameRate", &Interface::getFrameRate);
    }
    ZelDataCheckedScreenText clearScreenTextItems() const
    {
        return this->run("clearScreenTextItems", &Interface::clearScreenTextItems);
    }
    ZelDataCheckedScreenText addScreenTextItem(const i_ZelDataScreenTextItem& item) const
    {
        return this->run("addScreenTextItem", &Interface::addScreenTextItem, item);
    }
    std::unique_ptr<i_ZelDataScreenTextItem> createScreenTextItem() const
    {
        return this->make("createScreenTextItem", &Interface::createScreenTextItem);
    }
    ZelDataCheckedScreenText removeScreenTextItemAt(unsigned long index) const
    {
        return this->run("removeScreenTextItemAt", &Interface::removeScreenTextItemAt, index);
    }
    unsigned long getScreenTextItemCount() const
    {
        return this->get("getScreenTextItemCount", &Interface::getScreenTextItemCount);
    }
    std::unique_ptr<i_ZelDataScreenTextItem> getScreenTextItemAt(unsigned long index) const
    {
        return this->make("getScreenTextItemAt", &Interface::getScreenTextItemAt, index);
    }
    std::vector<std::unique_ptr<i_ZelDataScreenTextItem>> getScreenTextItems() const
    {
        return this->makeAll("getScreenTextItems", &Interface::getScreenTextItems);
    }
    ZelDataCheckedScreenText copyFrom(const i_ZelDataScreenText& source) const
    {
        return this->done("copyFrom", this->object().copyFrom(source));
    }
    /// @}
};

/// The checked operations of @p object.
inline ZelDataCheckedScreenText<i_ZelDataScreenText> checked(i_ZelDataScreenText& object) noexcept
{
    return ZelDataCheckedScreenText<i_ZelDataScreenText>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedScreenText<const i_ZelDataScreenText>
checked(const i_ZelDataScreenText& object) noexcept
{
    return ZelDataCheckedScreenText<const i_ZelDataScreenText>(object);
}

} // namespace ZelInterchangeData

#endif
