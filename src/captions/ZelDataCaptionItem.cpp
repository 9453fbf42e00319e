#include "captions/ZelDataCaptionItem.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "core/Factory.h"

#include <utility>

namespace ZelInterchangeData {

namespace {

constexpr long long recommendedDuration = 1000;
constexpr unsigned long recommendedLines = 4;

} // namespace

ZelDataResult_tags ZelDataUtilities::createCaptionItemData(i_ZelDataCaptionItem** out)
{
    return createObject<ZelDataCaptionItem>(out);
}

ZelDataCaptionItem& ZelDataCaptionItem::operator=(const ZelDataCaptionItem& other)
{
    if (&other == this) return *this;
    LanguageTexts texts(other.texts_);
    std::swap(texts_, texts);
    time_ = other.time_;
    alignment_ = other.alignment_;
    return *this;
}

ZelDataResult_tags ZelDataCaptionItem::isValid(bool strict) const
{
    if (time_.duration <= 0) return store(ZelData_InvalidItem);
    if (strict && time_.duration < recommendedDuration) return store(ZelData_WarnItemGuidelines);
    for (const auto& [languageID, text] : texts_.all()) {
        if (failed(LanguageTexts::check(text, languageID))) return store(ZelData_InvalidItem);
        if (strict && ZelDataUtilities::countLinesInUTF8(text) > recommendedLines) {
            return store(ZelData_WarnItemGuidelines);
        }
    }
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::clearText()
{
    texts_.clear();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::setTextForLanguage(const std::string& text,
                                                          const std::string& languageID)
{
    return store(texts_.set(text, languageID));
}

ZelDataResult_tags ZelDataCaptionItem::setStart(long long start)
{
    return store(time_.setStart(start) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataCaptionItem::setEnd(long long end)
{
    return store(time_.setEnd(end) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataCaptionItem::setDuration(long long duration)
{
    if (duration <= 0) return store(ZelData_InvalidArgument);
    time_.duration = duration;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::setAlignment(ZelAlignment_tags alignment)
{
    alignment_ = alignment;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::removeTextForLanguage(const std::string& languageID)
{
    return store(texts_.remove(languageID));
}

ZelDataResult_tags ZelDataCaptionItem::getLanguageIDs(std::vector<std::string>& ids) const
{
    return store(texts_.getLanguageIDs(ids));
}

ZelDataResult_tags ZelDataCaptionItem::getTextForLanguage(std::string& text,
                                                          const std::string& languageID) const
{
    return store(texts_.get(text, languageID));
}

ZelDataResult_tags ZelDataCaptionItem::getStart(long long& start) const
{
    start = time_.start;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::getEnd(long long& end) const
{
    end = time_.end();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::getDuration(long long& duration) const
{
    duration = time_.duration;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataCaptionItem::getAlignment(ZelAlignment_tags& alignment) const
{
    alignment = alignment_;
    return store(ZelData_Ok);
}

} // namespace ZelInterchangeData
