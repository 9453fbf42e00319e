#include "captions/ZelDataCaptions.h"

#include "sets/ItemTexts.h"

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createCaptionData(i_ZelDataCaptions** out)
{
    return createObject<ZelDataCaptions>(out);
}

// Checking and repairing

bool ZelDataCaptions::canHandOutItems() const
{
    for (unsigned long i = 0; i < items_.count(); ++i) {
        if (!items_.state(i).time.hasLength()) return false;
    }
    return true;
}

/// Checks one item, which must not overlap a later one; the earliest of those starts at @p
/// earliestLater.
Ending ZelDataCaptions::checkItem(const i_ZelDataCaptionItem& item, bool strict,
                                  const std::vector<std::string>& listed, long long earliestLater)
{
    // Deliberate: only `strict` checks the items' own validity; otherwise an item that is not valid
    // would fail isValid(false), too.
    if (strict && failed(item.isValid(true))) return item.getLastError();
    if (const Ending ending = findMissingText(item, listed)) return ending;
    long long end = 0;
    if (failed(item.getEnd(end))) return item.getLastError();
    if (end > earliestLater) return ZelData_WarnTiming;
    return {};
}

/// Returns the code of the first problem of the items, in stored order.
ZelDataResult_tags ZelDataCaptions::checkItems(bool strict) const
{
    const auto listed = languageIDs(); // a caller's item may change the list
    const Ending ending =
        items_.checkAll([&](const i_ZelDataCaptionItem& item, long long earliestLater) {
            return checkItem(item, strict, listed, earliestLater);
        });
    return ending.value_or(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::isValid(bool strict) const
{
    return store(
        guarded([&] { return style_.isInRange() ? checkItems(strict) : ZelData_InvalidArgument; }));
}

ZelDataResult_tags ZelDataCaptions::orderCaptions()
{
    return store(guarded([&] { return items_.order().value_or(ZelData_Ok); }));
}

ZelDataResult_tags ZelDataCaptions::makeCaptionsConsistent()
{
    return store(guarded([&] {
        const auto listed = languageIDs(); // a caller's item may change the list
        if (const Ending ending = orderAndFillMissingTexts(items_, listed)) return *ending;
        style_.repair();
        return ZelData_Ok;
    }));
}

// Styling

ZelDataResult_tags ZelDataCaptions::setFrameRate(unsigned long rate)
{
    return store(style_.frameRate.set(rate) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataCaptions::getFrameRate(unsigned long& rate) const
{
    rate = style_.frameRate.value;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::setFontFamily(const std::string& family)
{
    if (family.empty()) return store(ZelData_InvalidArgument);
    return store(guardedCopy(style_.fontFamily, family));
}

ZelDataResult_tags ZelDataCaptions::getFontFamily(std::string& family) const
{
    return store(guardedCopy(family, style_.fontFamily));
}

ZelDataResult_tags ZelDataCaptions::setFontSize(unsigned long size)
{
    if (!CaptionStyle::isFontSize(size)) return store(ZelData_InvalidArgument);
    style_.fontSize = size;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::getFontSize(unsigned long& size) const
{
    size = style_.fontSize;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::storeColor(CaptionColor& field, CaptionColor color) const
{
    if (!color.isInRange()) return store(ZelData_InvalidArgument);
    field = color;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::setForegroundColor(float red, float green, float blue)
{
    return storeColor(style_.foreground, {red, green, blue});
}

ZelDataResult_tags ZelDataCaptions::getForegroundColor(float& red, float& green, float& blue) const
{
    red = style_.foreground.red;
    green = style_.foreground.green;
    blue = style_.foreground.blue;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::setBackgroundColor(float red, float green, float blue)
{
    return storeColor(style_.background, {red, green, blue});
}

ZelDataResult_tags ZelDataCaptions::getBackgroundColor(float& red, float& green, float& blue) const
{
    red = style_.background.red;
    green = style_.background.green;
    blue = style_.background.blue;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::setBackgroundOpacity(float opacity)
{
    // Deliberate: NaN passes; otherwise, the setter would reject it with ZelData_InvalidArgument.
    if (!isFraction(opacity)) return store(ZelData_InvalidArgument);
    style_.backgroundOpacity = opacity;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::getBackgroundOpacity(float& opacity) const
{
    opacity = style_.backgroundOpacity;
    return store(ZelData_Ok);
}

// Items

ZelDataResult_tags ZelDataCaptions::clearCaptionItems()
{
    return store(guarded([&] {
        items_.clear();
        // Deliberate: clears the languages, too; otherwise, languages without a text would stay
        // listed.
        languages().clear();
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataCaptions::addCaptionItem(const i_ZelDataCaptionItem& item)
{
    return store(guarded([&] {
        if (const auto* own = exactly<ZelDataCaptionItem>(item);
            own && exactly<ZelDataCaptions>(*this)) {
            return addOwnWithLanguages(*own, items_);
        }
        auto copy = copyItem(item, newItem());
        if (!copy.item) return copy.code;
        return addWithLanguages(*copy.item, [&] { items_.append(std::move(copy.item)); });
    }));
}

ZelDataResult_tags ZelDataCaptions::createCaptionItem(i_ZelDataCaptionItem** out) const
{
    return store(ZelDataUtilities::createCaptionItemData(out));
}

ZelDataResult_tags ZelDataCaptions::removeCaptionItemAt(unsigned long index)
{
    return store(guarded([&] { return items_.removeAt(index); }));
}

ZelDataResult_tags ZelDataCaptions::removeCaptionItemsForLanguage(const std::string& languageID)
{
    return store(guarded([&] { return removeTexts(items_, languageID); }));
}

ZelDataResult_tags ZelDataCaptions::getCaptionItemCount(unsigned long& count)
{
    count = items_.count();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptions::getCaptionItemAt(i_ZelDataCaptionItem** out,
                                                     unsigned long index) const
{
    return store(guarded([&] { return items_.copyOut(out, index, newItem()); }));
}

ZelDataResult_tags ZelDataCaptions::getCaptionItems(std::vector<i_ZelDataCaptionItem*>& items) const
{
    return store(guarded([&] { return items_.copyOutAll(items, newItem()); }));
}

ZelDataResult_tags
ZelDataCaptions::getCaptionItemsForLanguage(std::vector<i_ZelDataCaptionItem*>& /*items*/,
                                            const std::string& /*languageID*/) const
{
    return store(ZelData_NotImplemented);
}

} // namespace ZelInterchangeData
