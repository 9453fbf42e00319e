/// @file
/// What is known about each kind of finding.

#include "ZelInterchangeData/ZelDataFindings.h"

#include <algorithm>
#include <array>

namespace ZelInterchangeData {

namespace {

constexpr auto warning = ZelDataFindingSeverity_Warning;
constexpr auto error = ZelDataFindingSeverity_Error;

struct Kind {
    ZelDataFinding_tags kind;
    const char* name;
    ZelDataFindingSeverity_tags severity;
    ZelDataResult_tags code;
};

constexpr std::array<Kind, 24> kinds = {{
    {ZelDataFinding_FrameRateOutOfRange, "ZelDataFinding_FrameRateOutOfRange", error,
     ZelData_InvalidArgument},
    {ZelDataFinding_FontFamilyMissing, "ZelDataFinding_FontFamilyMissing", error,
     ZelData_InvalidArgument},
    {ZelDataFinding_FontSizeOutOfRange, "ZelDataFinding_FontSizeOutOfRange", error,
     ZelData_InvalidArgument},
    {ZelDataFinding_ColorOutOfRange, "ZelDataFinding_ColorOutOfRange", error,
     ZelData_InvalidArgument},
    {ZelDataFinding_NoDuration, "ZelDataFinding_NoDuration", error, ZelData_InvalidItem},
    {ZelDataFinding_TooShort, "ZelDataFinding_TooShort", warning, ZelData_WarnItemGuidelines},
    {ZelDataFinding_BadText, "ZelDataFinding_BadText", error, ZelData_InvalidItem},
    {ZelDataFinding_BadLanguage, "ZelDataFinding_BadLanguage", error, ZelData_InvalidItem},
    {ZelDataFinding_TooManyLines, "ZelDataFinding_TooManyLines", warning,
     ZelData_WarnItemGuidelines},
    {ZelDataFinding_MissingText, "ZelDataFinding_MissingText", warning, ZelData_InvalidArgument},
    {ZelDataFinding_Overlap, "ZelDataFinding_Overlap", warning, ZelData_WarnTiming},
    {ZelDataFinding_OutOfOrder, "ZelDataFinding_OutOfOrder", warning, ZelData_WarnTiming},
    {ZelDataFinding_HeaderMissing, "ZelDataFinding_HeaderMissing", error, ZelData_Ok},
    {ZelDataFinding_SizeMissing, "ZelDataFinding_SizeMissing", error, ZelData_InvalidArgument},
    {ZelDataFinding_ListedTwice, "ZelDataFinding_ListedTwice", error, ZelData_Ok},
    {ZelDataFinding_NotEscaped, "ZelDataFinding_NotEscaped", error, ZelData_Ok},
    {ZelDataFinding_ControlCharacter, "ZelDataFinding_ControlCharacter", error, ZelData_Ok},
    {ZelDataFinding_NotStrictUtf8, "ZelDataFinding_NotStrictUtf8", error, ZelData_Ok},
    {ZelDataFinding_ForbiddenCharacter, "ZelDataFinding_ForbiddenCharacter", error, ZelData_Ok},
    {ZelDataFinding_NoItems, "ZelDataFinding_NoItems", warning, ZelData_Ok},
    {ZelDataFinding_NoText, "ZelDataFinding_NoText", warning, ZelData_Ok},
    {ZelDataFinding_EmptyText, "ZelDataFinding_EmptyText", warning, ZelData_Ok},
    {ZelDataFinding_EntryMissing, "ZelDataFinding_EntryMissing", warning, ZelData_Ok},
    {ZelDataFinding_NotMilliseconds, "ZelDataFinding_NotMilliseconds", warning, ZelData_Ok},
}};

/// For a value that is not a kind.
constexpr Kind unknown = {static_cast<ZelDataFinding_tags>(0), "ZelDataFinding_Unknown", warning,
                          ZelData_Ok};

const Kind& lookUp(ZelDataFinding_tags kind) noexcept
{
    const auto* const found = std::find_if(kinds.data(), kinds.data() + kinds.size(),
                                           [kind](const Kind& each) { return each.kind == kind; });
    return found == kinds.data() + kinds.size() ? unknown : *found;
}

} // namespace

const char* toString(ZelDataFinding_tags kind) noexcept
{
    return lookUp(kind).name;
}

ZelDataFindingSeverity_tags severityOf(const ZelDataFinding& finding) noexcept
{
    // A document does not copy the frame rate of a table of contents.
    const bool isIgnored = finding.kind == ZelDataFinding_FrameRateOutOfRange &&
                           finding.subject == ZelDataFindingSubject_TocEntry;
    return isIgnored ? warning : lookUp(finding.kind).severity;
}

ZelDataResult_tags codeOf(const ZelDataFinding& finding) noexcept
{
    // The check of a header looks at its sizes alone.
    const bool isIgnored = finding.subject == ZelDataFindingSubject_Header &&
                           finding.kind != ZelDataFinding_SizeMissing;
    return isIgnored ? ZelData_Ok : lookUp(finding.kind).code;
}

} // namespace ZelInterchangeData
