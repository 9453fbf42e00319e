/// @file
/// Why an operation failed, as far as its arguments or the getters of its object reveal it: what
/// several views share. Each function returns an empty text if it does not know.

#ifndef ZELINTERCHANGEDATA_ZELDATAREASONS_H
#define ZELINTERCHANGEDATA_ZELDATAREASONS_H

#include "ZelInterchangeData/ZelDataCall.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/ZelDataLimits.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

namespace ZelDataMessages {

/// @name Reasons that the arguments reveal
/// @{

/// A number outside @p minimum to @p maximum.
inline std::string reasonOfRange(const ZelDataCall& call, unsigned long minimum,
                                 unsigned long maximum)
{
    const auto value = call.get<unsigned long long>();
    if (value >= minimum && value <= maximum) return {};
    return "not from " + shown(minimum) + " to " + shown(maximum);
}

/// A frame rate.
inline std::string reasonOfFrameRate(const ZelDataCall& call)
{
    if (!call.is("setFrameRate", ZelData_InvalidArgument)) return {};
    return reasonOfRange(call, ZelDataLimits::minimumFrameRate, ZelDataLimits::maximumFrameRate);
}

/// The language ID @p id. Suggests an ID that is written with an underscore instead of a hyphen.
inline std::string reasonOfLanguage(const std::string& id)
{
    if (!isUtf8(id)) return "the language ID is not UTF-8";
    if (!failed(ZelDataUtilities::isValidLanguage(id))) return {};
    std::string reason = shown(id) + " is no language of ISO 639-1";
    std::string hyphenated = id;
    std::replace(hyphenated.begin(), hyphenated.end(), '_', '-');
    if (failed(ZelDataUtilities::isValidLanguage(hyphenated))) return reason;
    return reason + "; write " + shown(hyphenated);
}

/// An object that is copied onto itself.
inline std::string reasonOfCopy(const i_ZelDataResult& target, const ZelDataCall& call)
{
    const bool isSelf =
        call.is("copyFrom", ZelData_InternalError) && call.arguments.begin()->is(target);
    return isSelf ? "the source is the object itself" : "";
}
/// @}

/// @name Reasons that need getters
/// @{

/// The text with the ID of @p call, if it is not among those with the @p ids.
inline std::string reasonOfMissingLanguage(const ZelDataCall& call,
                                           const std::vector<std::string>& ids)
{
    if (std::find(ids.begin(), ids.end(), call.text()) != ids.end()) return {};
    if (ids.empty()) return "there are no languages";
    return (ids.size() == 1 ? "the only language is " : "the languages are ") + listed(ids);
}

/// An index, if there are only @p count items.
inline std::string reasonOfIndex(const ZelDataCall& call, unsigned long count)
{
    if (call.get<unsigned long long>() < count) return {};
    if (count == 0) return "there are none";
    return (count == 1 ? "there is " : "there are ") + shown(count);
}

/// A start, an end or a duration of @p item.
template <class View>
std::string reasonOfTime(const View& item, const ZelDataCall& call)
{
    if (call.code != ZelData_InvalidArgument) return {};
    const bool setsEnd = call.operation == "setEnd";
    if (!setsEnd && call.operation != "setStart" && call.operation != "setDuration") return {};
    const auto value = call.get<long long>();
    if (value < 0) return "negative";
    if (!setsEnd) return {};
    return asking(item.object(), [&] {
        const long long start = item.getStart();
        if (value > start) return std::string();
        return "not after the start, " + shown(start);
    });
}

/// The caption that is the argument of @p call, if it cannot be copied.
inline std::string reasonOfCaption(const ZelDataCall& call)
{
    if (call.code != ZelData_InvalidArgument) return {};
    const i_ZelDataCaptionItem& caption = *call.get<const i_ZelDataCaptionItem*>();
    return asking(caption, [&] {
        long long start = 0;
        long long end = 0;
        if (failed(caption.getStart(start)) || failed(caption.getEnd(end)) || end > start)
            return std::string();
        return "the caption ends at " + shown(end) + ", not after its start, " + shown(start);
    });
}

/// The first size of @p header that is 0.
inline std::string reasonOfSizes(const i_ZelDataHeader& header)
{
    return asking(header, [&] {
        const auto isZero = [&](ZelDataResult_tags (i_ZelDataHeader::*get)(unsigned long&) const) {
            unsigned long size = 0;
            return !failed((header.*get)(size)) && size == 0;
        };
        if (isZero(&i_ZelDataHeader::getVideoLength)) return "the video length is 0";
        if (isZero(&i_ZelDataHeader::getVideoWidth)) return "the video width is 0";
        return isZero(&i_ZelDataHeader::getVideoHeight) ? "the video height is 0" : "";
    });
}

/// The header that is the argument of @p call, if it cannot be copied.
inline std::string reasonOfHeader(const ZelDataCall& call)
{
    const auto* header = call.arguments.begin()->as<const i_ZelDataHeader*>();
    if (header == nullptr || call.code != ZelData_InvalidArgument) return {};
    return reasonOfSizes(**header);
}

/// The header of @p document, if it cannot be written.
inline std::string reasonOfWriting(const i_ZelInterchangeDataCore& document,
                                   ZelDataResult_tags code)
{
    if (code != ZelData_InvalidArgument) return {};
    return asking(document, [&] {
        i_ZelDataHeader* made = nullptr;
        if (failed(ZelDataUtilities::createHeaderData(&made))) return std::string();
        const std::unique_ptr<i_ZelDataHeader> header(made);
        const auto got = document.getDataHeader(*header);
        if (got == ZelData_NoData) return std::string("the document has no header");
        // A copy stops at the first size that is 0.
        if (got != ZelData_InvalidArgument) return std::string();
        return reasonOfSizes(*header);
    });
}

/// The first problem of @p collection for which isValid() returns the code of @p call.
template <class Collection>
std::string reasonOfProblem(const Collection& collection, const ZelDataCall& call)
{
    return asking(collection, [&] {
        std::vector<ZelDataFinding> findings;
        if (failed(findProblems(collection, findings))) return std::string();
        const auto found =
            std::find_if(findings.begin(), findings.end(), [&](const ZelDataFinding& finding) {
                return codeOf(finding) == call.code;
            });
        if (found == findings.end()) return std::string();
        return describe(*found);
    });
}

/// A text of @p item or its language.
template <class View>
std::string reasonOfText(const View& item, const ZelDataCall& call)
{
    if (call.is("setTextForLanguage", ZelData_WarnAlreadyExists))
        return "it replaced an earlier text";
    if (call.is("setTextForLanguage", ZelData_InvalidItem)) {
        std::string reason = reasonOfLanguage(call.text(1));
        if (!reason.empty() || isUtf8(call.text(0))) return reason;
        return "the text is not UTF-8";
    }
    if (!call.is("getTextForLanguage", ZelData_InvalidArgument) &&
        !call.is("removeTextForLanguage", ZelData_NotFound))
        return {};
    return asking(item.object(),
                  [&] { return reasonOfMissingLanguage(call, item.getLanguageIDs()); });
}
/// @}

} // namespace ZelDataMessages

} // namespace ZelInterchangeData

#endif
