#include "captions/ZelDataCaptionItem.h"

#include "ZelInterchangeData/ZelDataLimits.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "sets/Factory.h"
#include "util/TextUtilities.h"

#include <algorithm>

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createCaptionItemData(i_ZelDataCaptionItem** out)
{
    return createObject<ZelDataCaptionItem>(out);
}

ZelDataCaptionItem& ZelDataCaptionItem::operator=(const ZelDataCaptionItem& other)
{
    if (&other != this) state_ = other.state_;
    return *this;
}

ZelDataResult_tags CaptionState::check(bool strict) const
{
    if (time.duration < ZelDataLimits::shortestDuration) return ZelData_InvalidItem;
    if (strict && time.duration < ZelDataLimits::recommendedDuration)
        return ZelData_WarnItemGuidelines;
    // Languages and texts were checked when they were set; only the lines remain.
    unsigned long most = 0;
    if (strict) {
        texts().forEach([&](std::string_view /*languageID*/, std::string_view text) {
            most = std::max(most, countLines(text));
        });
    }
    return most > ZelDataLimits::recommendedLines ? ZelData_WarnItemGuidelines : ZelData_Ok;
}

ZelDataResult_tags ZelDataCaptionItem::isValid(bool strict) const
{
    return store(state_.check(strict));
}

ZelDataResult_tags ZelDataCaptionItem::clearText()
{
    state_.changeTexts().clear();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::setTextForLanguage(const std::string& text,
                                                          const std::string& languageID)
{
    return setCharacters(text, languageID);
}

ZelDataResult_tags ZelDataCaptionItem::setCharacters(std::string_view text,
                                                     std::string_view languageID)
{
    const auto checked = LanguageTexts::check(text, languageID);
    if (failed(checked)) return store(checked);
    return store(state_.changeTexts().set(text, languageID));
}

ZelDataResult_tags ZelDataCaptionItem::setStart(long long start)
{
    return store(state_.time.setStart(start) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataCaptionItem::setEnd(long long end)
{
    return store(state_.time.setEnd(end) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataCaptionItem::setDuration(long long duration)
{
    if (duration <= 0) return store(ZelData_InvalidArgument);
    state_.time.duration = duration;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::setAlignment(ZelAlignment_tags alignment)
{
    state_.alignment = alignment;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::removeTextForLanguage(const std::string& languageID)
{
    return store(state_.changeTexts().remove(languageID));
}

ZelDataResult_tags ZelDataCaptionItem::getLanguageIDs(std::vector<std::string>& ids) const
{
    return store(state_.texts().getLanguageIDs(ids));
}

ZelDataResult_tags ZelDataCaptionItem::getTextForLanguage(std::string& text,
                                                          const std::string& languageID) const
{
    return store(state_.texts().get(text, languageID));
}

ZelDataResult_tags ZelDataCaptionItem::getStart(long long& start) const
{
    start = state_.time.start;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::getEnd(long long& end) const
{
    end = state_.time.end();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::getDuration(long long& duration) const
{
    duration = state_.time.duration;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::getAlignment(ZelAlignment_tags& alignment) const
{
    alignment = state_.alignment;
    return store(ZelData_Ok);
}

} // namespace ZelInterchangeData
