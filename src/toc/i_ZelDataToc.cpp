#include "ZelInterchangeData/i_ZelDataToc.h"

#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "sets/FieldCopy.h"
#include "sets/ItemCopies.h"
#include "toc/ZelDataToc.h"
#include "util/ExactType.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

i_ZelDataToc::~i_ZelDataToc() = default;

/// Deliberate: the frame rate stays; otherwise, a written table could state a rate other than 1000.
ZelDataResult_tags i_ZelDataToc::copyFrom(const i_ZelDataToc& source)
{
    if (&source == this) return store(ZelData_InternalError);
    // Between two of our own tables, sharing the entries gives the same result as the steps below.
    auto* own = exactly<ZelDataToc>(*this);
    const auto* ownSource = exactly<ZelDataToc>(source);
    if (own != nullptr && ownSource != nullptr) return own->copyOwn(*ownSource);
    return store(guarded([&] {
        if (failed(clearTocItems())) return getLastError();
        if (failed(i_ZelDataLanguage::copyFrom(source))) return getLastError();
        FieldCopy fields(source, *this, [this](ZelDataResult_tags) { return getLastError(); });
        fields.field(&i_ZelDataToc::getImageFile, &i_ZelDataToc::setImageFile);
        if (const Ending ending = fields.ending()) return *ending;
        ReceivedItems<i_ZelDataTocItem> items;
        if (failed(source.getTocItems(items.vector()))) return source.getLastError();
        // Deliberate: drops the list just copied and rebuilds it from the entries; otherwise
        // languages without a title, and the order of the source, would be kept.
        if (failed(clearLanguages())) return getLastError();
        return items.addTo(*this, &i_ZelDataToc::addTocItem).value_or(ZelData_Ok);
    }));
}

ZelDataResult_tags ZelDataToc::copyOwn(const ZelDataToc& other)
{
    other.setLastError(ZelData_Ok); // as the getters would leave it
    return store(guarded([&] {
        items_.clear();
        const auto listed = languages().copyFrom(other.languages());
        if (failed(listed)) return listed;
        imageFile_ = other.imageFile_;
        items_ = other.items_;
        languages() = items_.summary().languages; // rebuilt from the items
        return ZelData_Ok;
    }));
}

} // namespace ZelInterchangeData
