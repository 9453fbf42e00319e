#include "ZelInterchangeData/i_ZelDataCaptions.h"

#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "sets/FieldCopy.h"
#include "sets/ItemCopies.h"
#include "util/ExactType.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

namespace {

using Captions = i_ZelDataCaptions;

/// FieldCopy for a colour, whose getter and setter take three numbers.
// cppcheck-suppress constParameter ; the setter changes the target
Ending copyColor(const Captions& source, Captions& target,
                 ZelDataResult_tags (Captions::*get)(float&, float&, float&) const,
                 ZelDataResult_tags (Captions::*set)(float, float, float))
{
    float red = 0;
    float green = 0;
    float blue = 0;
    if (failed((source.*get)(red, green, blue))) return source.getLastError();
    if (failed((target.*set)(red, green, blue))) return target.getLastError();
    return {};
}

Ending copyStyle(const Captions& source, Captions& target)
{
    FieldCopy fields(source, target, [&](ZelDataResult_tags) { return target.getLastError(); });
    fields.field(&Captions::getFrameRate, &Captions::setFrameRate)
        .field(&Captions::getFontFamily, &Captions::setFontFamily)
        .field(&Captions::getFontSize, &Captions::setFontSize);
    if (const Ending ending = fields.ending()) return ending;
    if (const Ending ending = copyColor(source, target, &Captions::getForegroundColor,
                                        &Captions::setForegroundColor)) {
        return ending;
    }
    if (const Ending ending = copyColor(source, target, &Captions::getBackgroundColor,
                                        &Captions::setBackgroundColor)) {
        return ending;
    }
    fields.field(&Captions::getBackgroundOpacity, &Captions::setBackgroundOpacity);
    return fields.ending();
}

} // namespace

i_ZelDataCaptions::~i_ZelDataCaptions() = default;

ZelDataResult_tags i_ZelDataCaptions::copyFrom(const i_ZelDataCaptions& other)
{
    if (&other == this) return store(ZelData_InternalError);
    // Between two of our own collections, sharing the items gives the same result as the steps
    // below.
    auto* own = exactly<ZelDataCaptions>(*this);
    const auto* ownOther = exactly<ZelDataCaptions>(other);
    if (own != nullptr && ownOther != nullptr) return own->copyOwn(*ownOther);
    return store(guarded([&] {
        if (failed(clearCaptionItems())) return getLastError();
        if (failed(i_ZelDataLanguage::copyFrom(other))) return getLastError();
        if (const Ending ending = copyStyle(other, *this)) return *ending;
        ReceivedItems<i_ZelDataCaptionItem> items;
        if (failed(other.getCaptionItems(items.vector()))) return other.getLastError();
        // Deliberate: drops the list just copied and rebuilds it from the items; otherwise
        // languages without a text, and the order of the source, would be kept.
        if (failed(clearLanguages())) return getLastError();
        return items.addTo(*this, &i_ZelDataCaptions::addCaptionItem).value_or(ZelData_Ok);
    }));
}

ZelDataResult_tags ZelDataCaptions::copyOwn(const ZelDataCaptions& other)
{
    other.setLastError(ZelData_Ok); // as the getters would leave it
    return store(guarded([&] {
        items_.clear();
        const auto listed = languages().copyFrom(other.languages());
        if (failed(listed)) return listed;
        style_ = other.style_;
        if (!other.canHandOutItems()) {
            other.setLastError(ZelData_InvalidArgument); // its items cannot be copied
            return ZelData_InvalidArgument;
        }
        items_ = other.items_;
        languages() = items_.summary().languages; // rebuilt from the items
        return ZelData_Ok;
    }));
}

} // namespace ZelInterchangeData
