/// @file
/// The checked operations of a caption.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDCAPTIONITEM_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDCAPTIONITEM_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataLimits.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"

#include <string>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of a caption that throws if an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataCaptionItem for what an operation does.
template <class Object>
class ZelDataCheckedCaptionItem
    : public ZelDataCheckedObject<ZelDataCheckedCaptionItem<Object>, Object> {
    using Base = ZelDataCheckedObject<ZelDataCheckedCaptionItem<Object>, Object>;
    using Interface = i_ZelDataCaptionItem;

public:
    using Base::Base;

    /// @name Operations of i_ZelDataCaptionItem
    /// @{

    /// See i_ZelDataCaptionItem::isValid().
    ZelDataCheckedCaptionItem isValid(bool strict) const
    {
        return this->run("isValid", &Interface::isValid, strict);
    }
    /// Whether isValid() succeeds. A warning counts as a failure unless allowWarnings() was called.
    /// Throws if memory runs out.
    bool isGood(bool strict) const
    {
        return this->isGoodCode("isValid", this->object().isValid(strict));
    }
    /// See i_ZelDataCaptionItem::clearText().
    ZelDataCheckedCaptionItem clearText() const
    {
        return this->run("clearText", &Interface::clearText);
    }
    /// See i_ZelDataCaptionItem::setTextForLanguage().
    ZelDataCheckedCaptionItem setTextForLanguage(const std::string& text,
                                                 const std::string& languageID) const
    {
        return this->run("setTextForLanguage", &Interface::setTextForLanguage, text, languageID);
    }
    /// See i_ZelDataCaptionItem::setStart().
    ZelDataCheckedCaptionItem setStart(long long start) const
    {
        return this->run("setStart", &Interface::setStart, start);
    }
    /// See i_ZelDataCaptionItem::setEnd().
    ZelDataCheckedCaptionItem setEnd(long long end) const
    {
        return this->run("setEnd", &Interface::setEnd, end);
    }
    /// See i_ZelDataCaptionItem::setDuration().
    ZelDataCheckedCaptionItem setDuration(long long duration) const
    {
        return this->run("setDuration", &Interface::setDuration, duration);
    }
    /// See i_ZelDataCaptionItem::setAlignment().
    ZelDataCheckedCaptionItem setAlignment(ZelAlignment_tags alignment) const
    {
        return this->run("setAlignment", &Interface::setAlignment, alignment);
    }
    /// See i_ZelDataCaptionItem::removeTextForLanguage().
    ZelDataCheckedCaptionItem removeTextForLanguage(const std::string& languageID) const
    {
        return this->run("removeTextForLanguage", &Interface::removeTextForLanguage, languageID);
    }
    /// See i_ZelDataCaptionItem::getLanguageIDs().
    std::vector<std::string> getLanguageIDs() const
    {
        return this->get("getLanguageIDs", &Interface::getLanguageIDs);
    }
    /// See i_ZelDataCaptionItem::getTextForLanguage().
    std::string getTextForLanguage(const std::string& languageID) const
    {
        std::string text;
        this->require("getTextForLanguage", this->object().getTextForLanguage(text, languageID),
                      languageID);
        return text;
    }
    /// See i_ZelDataCaptionItem::getStart().
    long long getStart() const { return this->get("getStart", &Interface::getStart); }
    /// See i_ZelDataCaptionItem::getEnd().
    long long getEnd() const { return this->get("getEnd", &Interface::getEnd); }
    /// See i_ZelDataCaptionItem::getDuration().
    long long getDuration() const { return this->get("getDuration", &Interface::getDuration); }
    /// See i_ZelDataCaptionItem::getAlignment().
    ZelAlignment_tags getAlignment() const
    {
        return this->get("getAlignment", &Interface::getAlignment);
    }
    /// See i_ZelDataCaptionItem::copyFrom().
    ZelDataCheckedCaptionItem copyFrom(const i_ZelDataCaptionItem& other) const
    {
        return this->done("copyFrom", this->object().copyFrom(other), other);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedCaptionItem, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.operation == "isValid") return reasonOfValidity(call);
        if (call.operation == "copyFrom") return reasonOfSource(call);
        if (call.is("setDuration", ZelData_InvalidArgument) && call.get<long long>() == 0)
            return "not positive";
        const std::string known = reasonOfTime(*this, call);
        return known.empty() ? reasonOfText(*this, call) : known;
    }

    std::string reasonOfSource(const ZelDataCall& call) const
    {
        const std::string known = ZelDataMessages::reasonOfCopy(this->object(), call);
        return known.empty() ? ZelDataMessages::reasonOfCaption(call) : known;
    }

    std::string reasonOfValidity(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        return asking(this->object(), [&] {
            const long long duration = getDuration();
            const std::string lasts = "it lasts " + shown(duration) + " ms";
            if (call.code == ZelData_InvalidItem && duration <= 0) return lasts;
            if (call.code != ZelData_WarnItemGuidelines) return std::string();
            if (duration >= ZelDataLimits::recommendedDuration) return reasonOfLines();
            return lasts + ", less than " + shown(ZelDataLimits::recommendedDuration) + " ms";
        });
    }

    std::string reasonOfLines() const
    {
        using namespace ZelDataMessages;
        for (const std::string& id : getLanguageIDs()) {
            const auto lines = ZelDataUtilities::countLinesInUTF8(getTextForLanguage(id));
            if (lines > ZelDataLimits::recommendedLines)
                return shown(lines) + " lines in " + shown(id) + ", more than " +
                       shown(ZelDataLimits::recommendedLines);
        }
        return {};
    }
};

/// The checked operations of @p object.
inline ZelDataCheckedCaptionItem<i_ZelDataCaptionItem>
checked(i_ZelDataCaptionItem& object) noexcept
{
    return ZelDataCheckedCaptionItem<i_ZelDataCaptionItem>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedCaptionItem<const i_ZelDataCaptionItem>
checked(const i_ZelDataCaptionItem& object) noexcept
{
    return ZelDataCheckedCaptionItem<const i_ZelDataCaptionItem>(object);
}

} // namespace ZelInterchangeData

#endif
