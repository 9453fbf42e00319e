#include "screentext/ZelDataScreenTextItem.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "core/Factory.h"
#include "util/GuardedCopy.h"

#include <utility>

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createScreenTextItemData(i_ZelDataScreenTextItem** out)
{
    return createObject<ZelDataScreenTextItem>(out);
}

ZelDataScreenTextItem& ZelDataScreenTextItem::operator=(const ZelDataScreenTextItem& other)
{
    if (&other == this) return *this;
    std::string text(other.text_);
    ImageReference image(other.image_);
    std::swap(text_, text);
    std::swap(image_, image);
    time_ = other.time_;
    groupId_ = other.groupId_;
    return *this;
}

/// The flag is meant to change nothing: checking more would refuse items that are written
/// today.
ZelDataResult_tags ZelDataScreenTextItem::isValid(bool /*deep*/) const
{
    const bool valid = !failed(ZelDataUtilities::verifyUtf8Format(text_, false));
    return store(valid ? ZelData_Ok : ZelData_InvalidItem);
}

// Text and group

ZelDataResult_tags ZelDataScreenTextItem::clearText()
{
    text_.clear();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::setText(const std::string& text)
{
    if (failed(ZelDataUtilities::verifyUtf8Format(text, false))) return store(ZelData_InvalidItem);
    return store(guardedCopy(text_, text));
}

ZelDataResult_tags ZelDataScreenTextItem::getText(std::string& text) const
{
    return store(guardedCopy(text, text_));
}

ZelDataResult_tags ZelDataScreenTextItem::setGroupId(unsigned long id)
{
    groupId_ = id;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::getGroupId(unsigned long& id) const
{
    id = groupId_;
    return store(ZelData_Ok);
}

// Times

ZelDataResult_tags ZelDataScreenTextItem::setStart(long long start)
{
    return store(time_.setStart(start) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataScreenTextItem::getStart(long long& start) const
{
    start = time_.start;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::setEnd(long long end)
{
    return store(time_.setEnd(end) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataScreenTextItem::getEnd(long long& end) const
{
    end = time_.end();
    return store(ZelData_Ok);
}

/// Unlike a caption, a screen text may have no length.
ZelDataResult_tags ZelDataScreenTextItem::setDuration(long long duration)
{
    if (duration < 0) return store(ZelData_InvalidArgument);
    time_.duration = duration;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::getDuration(long long& duration) const
{
    duration = time_.duration;
    return store(ZelData_Ok);
}

// Image

ZelDataResult_tags ZelDataScreenTextItem::setImageFile(const std::string& name)
{
    return store(guardedCopy(image_.file, name));
}

ZelDataResult_tags ZelDataScreenTextItem::getImageFile(std::string& name) const
{
    return store(guardedCopy(name, image_.file));
}

ZelDataResult_tags ZelDataScreenTextItem::setImageIndex(unsigned long index)
{
    image_.index = index;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::getImageIndex(unsigned long& index) const
{
    index = image_.index;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::setImageOffset(unsigned long long offset)
{
    image_.offset = offset;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenTextItem::getImageOffset(unsigned long long& offset) const
{
    offset = image_.offset;
    return store(ZelData_Ok);
}

} // namespace ZelInterchangeData
