#include "ZelInterchangeData/i_ZelDataCaptionItem.h"

#include "captions/ZelDataCaptionItem.h"
#include "sets/FieldCopy.h"
#include "sets/TextCopy.h"
#include "util/ExactType.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

i_ZelDataCaptionItem::~i_ZelDataCaptionItem() = default;

ZelDataResult_tags i_ZelDataCaptionItem::copyFrom(const i_ZelDataCaptionItem& other)
{
    using Item = i_ZelDataCaptionItem;
    if (&other == this) return store(ZelData_InternalError);
    // Between two of our own items, sharing the texts gives the same result as the steps below.
    auto* own = exactly<ZelDataCaptionItem>(*this);
    const auto* ownOther = exactly<ZelDataCaptionItem>(other);
    if (own != nullptr && ownOther != nullptr) return own->copyOwn(*ownOther);
    return store(guardedButForMemory([&] {
        if (const Ending ending = copyTexts(other, *this)) return *ending;
        FieldCopy fields(other, *this, [this](ZelDataResult_tags) { return getLastError(); });
        fields
            .field(&Item::getStart, &Item::setStart)
            // Deliberate: the end, not the duration; otherwise an item whose end wraps to a
            // negative one would be copied.
            .field(&Item::getEnd, &Item::setEnd)
            .field(&Item::getAlignment, &Item::setAlignment);
        return fields.ending().value_or(ZelData_Ok);
    }));
}

ZelDataResult_tags ZelDataCaptionItem::checkCopy() const
{
    setLastError(ZelData_Ok); // as the getters would leave it
    return state_.time.hasLength() ? ZelData_Ok : ZelData_InvalidArgument;
}

ZelDataResult_tags ZelDataCaptionItem::copyOwn(const ZelDataCaptionItem& other)
{
    const auto copied = other.checkCopy();
    state_.changeTexts() = other.state_.texts();
    state_.time.start = other.state_.time.start;
    if (failed(copied)) return store(copied);
    state_.time.duration = other.state_.time.duration;
    state_.alignment = other.state_.alignment;
    return store(copied);
}

} // namespace ZelInterchangeData
