#include "screentext/ZelDataScreenTextItem.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "sets/Factory.h"
#include "util/GuardedCopy.h"

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createScreenTextItemData(i_ZelDataScreenTextItem** out)
{
    return createObject<ZelDataScreenTextItem>(out);
}

ZelDataScreenTextItem& ZelDataScreenTextItem::operator=(const ZelDataScreenTextItem& other)
{
    if (&other != this) state_ = other.state_;
    return *this;
}

/// An item is always valid: its text was checked when it was set. Deliberate: the flag has no
/// effect; otherwise, a deep check could reject an item.
ZelDataResult_tags ZelDataScreenTextItem::isValid(bool /*deep*/) const
{
    return store(ZelData_Ok);
}

// Text and group

ZelDataResult_tags ZelDataScreenTextItem::clearText()
{
    state_.setText({});
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::setText(const std::string& text)
{
    return setCharacters(text);
}

ZelDataResult_tags ZelDataScreenTextItem::setCharacters(std::string_view text)
{
    if (failed(verifyUtf8(text, false))) return store(ZelData_InvalidItem);
    return store(guarded([&] {
        state_.setText(text);
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataScreenTextItem::getText(std::string& text) const
{
    return store(guardedCopy(text, state_.text()));
}

ZelDataResult_tags ZelDataScreenTextItem::setGroupId(unsigned long id)
{
    state_.groupId = id;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::getGroupId(unsigned long& id) const
{
    id = state_.groupId;
    return store(ZelData_Ok);
}

// Times

ZelDataResult_tags ZelDataScreenTextItem::setStart(long long start)
{
    return store(state_.time.setStart(start) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataScreenTextItem::getStart(long long& start) const
{
    start = state_.time.start;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::setEnd(long long end)
{
    return store(state_.time.setEnd(end) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataScreenTextItem::getEnd(long long& end) const
{
    end = state_.time.end();
    return store(ZelData_Ok);
}

/// A screen text may have a duration of zero, unlike a caption.
ZelDataResult_tags ZelDataScreenTextItem::setDuration(long long duration)
{
    if (duration < 0) return store(ZelData_InvalidArgument);
    state_.time.duration = duration;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::getDuration(long long& duration) const
{
    duration = state_.time.duration;
    return store(ZelData_Ok);
}

// Image

ZelDataResult_tags ZelDataScreenTextItem::setImageFile(const std::string& name)
{
    return store(guarded([&] {
        state_.setImageFile(name);
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataScreenTextItem::getImageFile(std::string& name) const
{
    return store(guardedCopy(name, state_.imageFile()));
}

ZelDataResult_tags ZelDataScreenTextItem::setImageIndex(unsigned long index)
{
    state_.imageIndex = index;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::getImageIndex(unsigned long& index) const
{
    index = state_.imageIndex;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::setImageOffset(unsigned long long offset)
{
    state_.imageOffset = offset;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::getImageOffset(unsigned long long& offset) const
{
    offset = state_.imageOffset;
    return store(ZelData_Ok);
}

} // namespace ZelInterchangeData
