#include "ZelInterchangeData/i_ZelDataCaptionItem.h"

#include "captions/ZelDataCaptionItem.h"
#include "core/FieldCopy.h"
#include "core/TextCopy.h"
#include "util/ExactType.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

i_ZelDataCaptionItem::~i_ZelDataCaptionItem() = default;

ZelDataResult_tags i_ZelDataCaptionItem::copyFrom(const i_ZelDataCaptionItem& other)
{
    using Item = i_ZelDataCaptionItem;
    if (&other == this) return store(ZelData_InternalError);
    // Between two items of our own the steps below lead where sharing the texts does.
    auto* own = exactly<ZelDataCaptionItem>(*this);
    const auto* ownOther = exactly<ZelDataCaptionItem>(other);
    if (own != nullptr && ownOther != nullptr) return own->copyOwn(*ownOther);
    return store(guardedButForMemory([&] {
        if (const Ending ending = copyTexts(other, *this)) return *ending;
        FieldCopy fields(other, *this, [this](ZelDataResult_tags) { return getLastError(); });
        fields
            .field(&Item::getStart, &Item::setStart)
            // The end, not the duration: an item without a length is meant to be refused here.
            .field(&Item::getEnd, &Item::setEnd)
            .field(&Item::getAlignment, &Item::setAlignment);
        return fields.ending().value_or(ZelData_Ok);
    }));
}

} // namespace ZelInterchangeData
