#include "ZelInterchangeData/i_ZelDataScreenText.h"

#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "screentext/ZelDataScreenText.h"
#include "sets/FieldCopy.h"
#include "sets/ItemCopies.h"
#include "util/ExactType.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

i_ZelDataScreenText::~i_ZelDataScreenText() = default;

ZelDataResult_tags i_ZelDataScreenText::copyFrom(const i_ZelDataScreenText& source)
{
    if (&source == this) return store(ZelData_InternalError);
    // Between two of our own collections, sharing the items gives the same result as the steps
    // below.
    auto* own = exactly<ZelDataScreenText>(*this);
    const auto* ownSource = exactly<ZelDataScreenText>(source);
    if (own != nullptr && ownSource != nullptr) return own->copyOwn(*ownSource);
    return store(guarded([&] {
        if (failed(clearScreenTextItems())) return getLastError();
        FieldCopy fields(source, *this, [this](ZelDataResult_tags) { return getLastError(); });
        // Deliberate: copied, unlike the rate of a table of contents; otherwise, every written
        // track would state f1000.
        fields.field(&i_ZelDataScreenText::getFrameRate, &i_ZelDataScreenText::setFrameRate);
        if (const Ending ending = fields.ending()) return *ending;
        ReceivedItems<i_ZelDataScreenTextItem> items;
        if (failed(source.getScreenTextItems(items.vector()))) return source.getLastError();
        return items.addTo(*this, &i_ZelDataScreenText::addScreenTextItem).value_or(ZelData_Ok);
    }));
}

ZelDataResult_tags ZelDataScreenText::copyOwn(const ZelDataScreenText& other)
{
    other.setLastError(ZelData_Ok); // as the getters would leave it
    return store(guarded([&] {
        reserved_.clear();
        frameRate_ = other.frameRate_;
        items_ = other.items_;
        return ZelData_Ok;
    }));
}

} // namespace ZelInterchangeData
