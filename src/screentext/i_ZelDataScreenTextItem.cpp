#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"

#include "screentext/ZelDataScreenTextItem.h"
#include "sets/FieldCopy.h"
#include "util/ExactType.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

i_ZelDataScreenTextItem::~i_ZelDataScreenTextItem() = default;

ZelDataResult_tags i_ZelDataScreenTextItem::copyFrom(const i_ZelDataScreenTextItem& source)
{
    using Item = i_ZelDataScreenTextItem;
    if (&source == this) return store(ZelData_InternalError);
    // Between two of our own items, sharing the strings gives the same result as the steps below.
    auto* own = exactly<ZelDataScreenTextItem>(*this);
    const auto* ownSource = exactly<ZelDataScreenTextItem>(source);
    if (own != nullptr && ownSource != nullptr) return own->copyOwn(*ownSource);
    return store(guarded([&] {
        if (failed(clearText())) return getLastError();
        FieldCopy fields(source, *this, [this](ZelDataResult_tags) { return getLastError(); });
        fields.field(&Item::getText, &Item::setText)
            .field(&Item::getStart, &Item::setStart)
            // Copies the duration, not the end, because a screen text may have a duration of zero.
            .field(&Item::getDuration, &Item::setDuration)
            .field(&Item::getImageFile, &Item::setImageFile)
            .field(&Item::getImageIndex, &Item::setImageIndex)
            .field(&Item::getImageOffset, &Item::setImageOffset)
            .field(&Item::getGroupId, &Item::setGroupId);
        return fields.ending().value_or(ZelData_Ok);
    }));
}

ZelDataResult_tags ZelDataScreenTextItem::checkCopy() const
{
    return store(ZelData_Ok); // as the getters would leave it
}

ZelDataResult_tags ZelDataScreenTextItem::copyOwn(const ZelDataScreenTextItem& other)
{
    state_ = other.state_;
    return store(other.checkCopy());
}

} // namespace ZelInterchangeData
