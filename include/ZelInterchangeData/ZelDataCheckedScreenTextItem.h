/// @file
/// The checked operations of a screen text.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXTITEM_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXTITEM_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"

#include <string>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of a screen text that throws if an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataScreenTextItem for what an operation does.
template <class Object>
class ZelDataCheckedScreenTextItem
    : public ZelDataCheckedObject<ZelDataCheckedScreenTextItem<Object>, Object> {
    using Base = ZelDataCheckedObject<ZelDataCheckedScreenTextItem<Object>, Object>;
    using Interface = i_ZelDataScreenTextItem;

public:
    using Base::Base;

    /// @name Operations of i_ZelDataScreenTextItem
    /// @{

    /// See i_ZelDataScreenTextItem::isValid().
    ZelDataCheckedScreenTextItem isValid(bool deep) const
    {
        return this->run("isValid", &Interface::isValid, deep);
    }
    /// Whether isValid() succeeds. A warning counts as a failure unless allowWarnings() was called.
    /// Throws if memory runs out.
    bool isGood(bool deep) const
    {
        return this->isGoodCode("isValid", this->object().isValid(deep));
    }
    /// See i_ZelDataScreenTextItem::clearText().
    ZelDataCheckedScreenTextItem clearText() const
    {
        return this->run("clearText", &Interface::clearText);
    }
    /// See i_ZelDataScreenTextItem::setText().
    ZelDataCheckedScreenTextItem setText(const std::string& text) const
    {
        return this->run("setText", &Interface::setText, text);
    }
    /// See i_ZelDataScreenTextItem::setStart().
    ZelDataCheckedScreenTextItem setStart(long long start) const
    {
        return this->run("setStart", &Interface::setStart, start);
    }
    /// See i_ZelDataScreenTextItem::setEnd().
    ZelDataCheckedScreenTextItem setEnd(long long end) const
    {
        return this->run("setEnd", &Interface::setEnd, end);
    }
    /// See i_ZelDataScreenTextItem::setDuration().
    ZelDataCheckedScreenTextItem setDuration(long long duration) const
    {
        return this->run("setDuration", &Interface::setDuration, duration);
    }
    /// See i_ZelDataScreenTextItem::setImageFile().
    ZelDataCheckedScreenTextItem setImageFile(const std::string& name) const
    {
        return this->run("setImageFile", &Interface::setImageFile, name);
    }
    /// See i_ZelDataScreenTextItem::setImageIndex().
    ZelDataCheckedScreenTextItem setImageIndex(unsigned long index) const
    {
        return this->run("setImageIndex", &Interface::setImageIndex, index);
    }
    /// See i_ZelDataScreenTextItem::setImageOffset().
    ZelDataCheckedScreenTextItem setImageOffset(unsigned long long offset) const
    {
        return this->run("setImageOffset", &Interface::setImageOffset, offset);
    }
    /// See i_ZelDataScreenTextItem::setGroupId().
    ZelDataCheckedScreenTextItem setGroupId(unsigned long id) const
    {
        return this->run("setGroupId", &Interface::setGroupId, id);
    }
    /// See i_ZelDataScreenTextItem::getText().
    std::string getText() const { return this->get("getText", &Interface::getText); }
    /// See i_ZelDataScreenTextItem::getStart().
    long long getStart() const { return this->get("getStart", &Interface::getStart); }
    /// See i_ZelDataScreenTextItem::getEnd().
    long long getEnd() const { return this->get("getEnd", &Interface::getEnd); }
    /// See i_ZelDataScreenTextItem::getDuration().
    long long getDuration() const { return this->get("getDuration", &Interface::getDuration); }
    /// See i_ZelDataScreenTextItem::getImageFile().
    std::string getImageFile() const { return this->get("getImageFile", &Interface::getImageFile); }
    /// See i_ZelDataScreenTextItem::getImageIndex().
    unsigned long getImageIndex() const
    {
        return this->get("getImageIndex", &Interface::getImageIndex);
    }
    /// See i_ZelDataScreenTextItem::getImageOffset().
    unsigned long long getImageOffset() const
    {
        return this->get("getImageOffset", &Interface::getImageOffset);
    }
    /// See i_ZelDataScreenTextItem::getGroupId().
    unsigned long getGroupId() const { return this->get("getGroupId", &Interface::getGroupId); }
    /// See i_ZelDataScreenTextItem::copyFrom().
    ZelDataCheckedScreenTextItem copyFrom(const i_ZelDataScreenTextItem& source) const
    {
        return this->done("copyFrom", this->object().copyFrom(source), source);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedScreenTextItem, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.operation == "copyFrom") return reasonOfCopy(this->object(), call);
        if (call.is("setText", ZelData_InvalidItem))
            return isUtf8(call.text()) ? "" : "the text is not UTF-8";
        return reasonOfTime(*this, call);
    }
};

/// The checked operations of @p object.
inline ZelDataCheckedScreenTextItem<i_ZelDataScreenTextItem>
checked(i_ZelDataScreenTextItem& object) noexcept
{
    return ZelDataCheckedScreenTextItem<i_ZelDataScreenTextItem>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedScreenTextItem<const i_ZelDataScreenTextItem>
checked(const i_ZelDataScreenTextItem& object) noexcept
{
    return ZelDataCheckedScreenTextItem<const i_ZelDataScreenTextItem>(object);
}

} // namespace ZelInterchangeData

#endif
