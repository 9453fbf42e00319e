#include "screentext/ZelDataScreenText.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createScreenTextData(i_ZelDataScreenText** out)
{
    return createObject<ZelDataScreenText>(out);
}

// Checking and repairing

/// Checks one item; no later one starts before @p earliestLater.
Ending ZelDataScreenText::checkItem(const i_ZelDataScreenTextItem& item, bool deep,
                                    long long earliestLater)
{
    if (deep && failed(item.isValid(true))) return item.getLastError();
    long long start = 0;
    if (failed(item.getStart(start))) return item.getLastError();
    if (start > earliestLater) return ZelData_WarnTiming;
    return {};
}

/// Returns the code of the first problem of the items, in stored order.
ZelDataResult_tags ZelDataScreenText::checkItems(bool deep) const
{
    const Ending ending =
        items_.checkAll([&](const i_ZelDataScreenTextItem& item, long long earliestLater) {
            return checkItem(item, deep, earliestLater);
        });
    return ending.value_or(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenText::isValid(bool deep) const
{
    return store(guarded(
        [&] { return frameRate_.isInRange() ? checkItems(deep) : ZelData_InvalidArgument; }));
}

ZelDataResult_tags ZelDataScreenText::orderScreenTextItems()
{
    return store(guarded([&] { return items_.order().value_or(ZelData_Ok); }));
}

ZelDataResult_tags ZelDataScreenText::makeScreenTextConsistent()
{
    if (failed(orderScreenTextItems())) return getLastError();
    frameRate_.repair();
    return store(ZelData_Ok);
}

// Properties

ZelDataResult_tags ZelDataScreenText::setFrameRate(unsigned long rate)
{
    return store(frameRate_.set(rate) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataScreenText::getFrameRate(unsigned long& rate) const
{
    rate = frameRate_.value;
    return store(ZelData_Ok);
}

// Items

ZelDataResult_tags ZelDataScreenText::clearScreenTextItems()
{
    return store(guarded([&] {
        items_.clear();
        reserved_.clear();
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataScreenText::addScreenTextItem(const i_ZelDataScreenTextItem& item)
{
    return store(guarded([&] {
        if (const auto* own = exactly<ZelDataScreenTextItem>(item);
            own && exactly<ZelDataScreenText>(*this)) {
            return items_.appendCopyOf(*own, [](const ScreenTextState&) {});
        }
        auto copy = copyItem(item, newItem());
        if (!copy.item) return copy.code;
        items_.append(std::move(copy.item));
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataScreenText::createScreenTextItem(i_ZelDataScreenTextItem** out) const
{
    return store(ZelDataUtilities::createScreenTextItemData(out));
}

ZelDataResult_tags ZelDataScreenText::removeScreenTextItemAt(unsigned long index)
{
    return store(guarded([&] { return items_.removeAt(index); }));
}

ZelDataResult_tags ZelDataScreenText::getScreenTextItemCount(unsigned long& count)
{
    count = items_.count();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenText::getScreenTextItemAt(i_ZelDataScreenTextItem** out,
                                                          unsigned long index) const
{
    return store(guarded([&] { return items_.copyOut(out, index, newItem()); }));
}

ZelDataResult_tags
ZelDataScreenText::getScreenTextItems(std::vector<i_ZelDataScreenTextItem*>& items) const
{
    return store(guarded([&] { return items_.copyOutAll(items, newItem()); }));
}

} // namespace ZelInterchangeData
