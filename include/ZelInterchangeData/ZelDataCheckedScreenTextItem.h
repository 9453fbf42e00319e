/// @file
/// The checked operations of a screen text.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXTITEM_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXTITEM_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"

#include <string>

namespace ZelInterchangeData {

/// A view of a screen text that throws where an operation fails.
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
    ZelDataCheckedScreenTextItem isValid(bool deep) const
    {
        return this->run("isValid", &Interface::isValid, deep);
    }
    ZelDataCheckedScreenTextItem clearText() const
    {
        return this->run("clearText", &Interface::clearText);
    }
    ZelDataCheckedScreenTextItem setText(const std::string& text) const
    {
        return this->run("setText", &Interface::setText, text);
    }
    ZelDataCheckedScreenTextItem setStart(long long start) const
    {
        return this->run("setStart", &Interface::setStart, start);
    }
    ZelDataCheckedScreenTextItem setEnd(long long end) const
    {
        return this->run("setEnd", &Interface::setEnd, end);
    }
    ZelDataCheckedScreenTextItem setDuration(long long duration) const
    {
        return this->run("setDuration", &Interface::setDuration, duration);
    }
    ZelDataCheckedScreenTextItem setImageFile(const std::string& name) const
    {
        return this->run("setImageFile", &Interface::setImageFile, name);
    }
    ZelDataCheckedScreenTextItem setImageIndex(unsigned long index) const
    {
        return this->run("setImageIndex", &Interface::setImageIndex, index);
    }
    ZelDataCheckedScreenTextItem setImageOffset(unsigned long long offset) const
    {
        return this->run("setImageOffset", &Interface::setImageOffset, offset);
    }
    ZelDataCheckedScreenTextItem setGroupId(unsigned long id) const
    {
        return this->run("setGroupId", &Interface::setGroupId, id);
    }
    std::string getText() const { return this->get("getText", &Interface::getText); }
    long long getStart() const { return this->get("getStart", &Interface::getStart); }
    long long getEnd() const { return this->get("getEnd", &Interface::getEnd); }
    long long getDuration() const { return this->get("getDuration", &Interface::getDuration); }
    std::string getImageFile() const { return this->get("getImageFile", &Interface::getImageFile); }
    unsigned long getImageIndex() const
    {
        return this->get("getImageIndex", &Interface::getImageIndex);
    }
    unsigned long long getImageOffset() const
    {
        return this->get("getImageOffset", &Interface::getImageOffset);
    }
    unsigned long getGroupId() const { return this->get("getGroupId", &Interface::getGroupId); }
    ZelDataCheckedScreenTextItem copyFrom(const i_ZelDataScreenTextItem& source) const
    {
        return this->done("copyFrom", this->object().copyFrom(source));
    }
    /// @}
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
