/// @file
/// The checked operations of a collection of screen texts.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXT_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXT_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of a collection of screen texts that throws if an operation fails.
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

    /// See i_ZelDataScreenText::isValid().
    ZelDataCheckedScreenText isValid(bool deep) const
    {
        return this->run("isValid", &Interface::isValid, deep);
    }
    /// Whether isValid() succeeds. A warning counts as a failure unless allowWarnings() was called.
    /// Throws if memory runs out.
    bool isGood(bool deep) const
    {
        return this->isGoodCode("isValid", this->object().isValid(deep));
    }
    /// See i_ZelDataScreenText::makeScreenTextConsistent().
    ZelDataCheckedScreenText makeScreenTextConsistent() const
    {
        return this->run("makeScreenTextConsistent", &Interface::makeScreenTextConsistent);
    }
    /// See i_ZelDataScreenText::setFrameRate().
    ZelDataCheckedScreenText setFrameRate(unsigned long rate) const
    {
        return this->run("setFrameRate", &Interface::setFrameRate, rate);
    }
    /// See i_ZelDataScreenText::getFrameRate().
    unsigned long getFrameRate() const
    {
        return this->get("getFrameRate", &Interface::getFrameRate);
    }
    /// See i_ZelDataScreenText::clearScreenTextItems().
    ZelDataCheckedScreenText clearScreenTextItems() const
    {
        return this->run("clearScreenTextItems", &Interface::clearScreenTextItems);
    }
    /// See i_ZelDataScreenText::addScreenTextItem().
    ZelDataCheckedScreenText addScreenTextItem(const i_ZelDataScreenTextItem& item) const
    {
        return this->run("addScreenTextItem", &Interface::addScreenTextItem, item);
    }
    /// See i_ZelDataScreenText::createScreenTextItem().
    std::unique_ptr<i_ZelDataScreenTextItem> createScreenTextItem() const
    {
        return this->make("createScreenTextItem", &Interface::createScreenTextItem);
    }
    /// See i_ZelDataScreenText::removeScreenTextItemAt().
    ZelDataCheckedScreenText removeScreenTextItemAt(unsigned long index) const
    {
        return this->run("removeScreenTextItemAt", &Interface::removeScreenTextItemAt, index);
    }
    /// See i_ZelDataScreenText::getScreenTextItemCount(), which is not const. A const view therefore
    /// calls getScreenTextItems(), which copies all items: its time is in proportion to their
    /// number. If you need the items, too, count those.
    unsigned long getScreenTextItemCount() const
    {
        if constexpr (std::is_const_v<Object>)
            return static_cast<unsigned long>(getScreenTextItems().size());
        else
            return this->get("getScreenTextItemCount", &Interface::getScreenTextItemCount);
    }
    /// See i_ZelDataScreenText::getScreenTextItemAt().
    std::unique_ptr<i_ZelDataScreenTextItem> getScreenTextItemAt(unsigned long index) const
    {
        return this->make("getScreenTextItemAt", &Interface::getScreenTextItemAt, index);
    }
    /// See i_ZelDataScreenText::getScreenTextItems().
    std::vector<std::unique_ptr<i_ZelDataScreenTextItem>> getScreenTextItems() const
    {
        return this->makeAll("getScreenTextItems", &Interface::getScreenTextItems);
    }
    /// See i_ZelDataScreenText::copyFrom().
    ZelDataCheckedScreenText copyFrom(const i_ZelDataScreenText& source) const
    {
        return this->done("copyFrom", this->object().copyFrom(source), source);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedScreenText, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.operation == "isValid")
            return reasonOfProblem<i_ZelDataScreenText>(this->object(), call);
        if (call.operation == "copyFrom") return reasonOfCopy(this->object(), call);
        if (call.is("getScreenTextItemAt", ZelData_InvalidArgument) ||
            call.is("removeScreenTextItemAt", ZelData_InvalidArgument))
            return asking(this->object(),
                          [&] { return reasonOfIndex(call, getScreenTextItemCount()); });
        return reasonOfFrameRate(call);
    }
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
