#include "ZelInterchangeData/i_ZelDataTocItem.h"

#include "sets/FieldCopy.h"
#include "sets/TextCopy.h"
#include "toc/ZelDataTocItem.h"
#include "util/ExactType.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

i_ZelDataTocItem::~i_ZelDataTocItem() = default;

ZelDataResult_tags i_ZelDataTocItem::copyFrom(const i_ZelDataTocItem& source)
{
    using Item = i_ZelDataTocItem;
    if (&source == this) return store(ZelData_InternalError);
    // Between two of our own entries, sharing the strings gives the same result as the steps below.
    auto* own = exactly<ZelDataTocItem>(*this);
    const auto* ownSource = exactly<ZelDataTocItem>(source);
    if (own != nullptr && ownSource != nullptr) return own->copyOwn(*ownSource);
    return store(guarded([&] {
        if (const Ending ending = copyTexts(source, *this)) return *ending;
        FieldCopy fields(source, *this, [this](ZelDataResult_tags) { return getLastError(); });
        fields.field(&Item::getStart, &Item::setStart)
            .field(&Item::getImageFile, &Item::setImageFile)
            .field(&Item::getImageIndex, &Item::setImageIndex)
            .field(&Item::getImageOffset, &Item::setImageOffset);
        return fields.ending().value_or(ZelData_Ok);
    }));
}

ZelDataResult_tags ZelDataTocItem::checkCopy() const
{
    return store(ZelData_Ok); // as the getters would leave it
}

ZelDataResult_tags ZelDataTocItem::copyOwn(const ZelDataTocItem& other)
{
    state_ = other.state_;
    return store(other.checkCopy());
}

} // namespace ZelInterchangeData
