#include "ZelInterchangeData/ZelDataFindings.h"

#include "ZelInterchangeData/ZelDataOneLine.h"
#include "ZelInterchangeData/ZelDataUtilities.h"

#include <initializer_list>
#include <string_view>

namespace ZelInterchangeData {

namespace {

std::string joined(std::initializer_list<std::string_view> parts)
{
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

std::string number(long long value)
{
    return std::to_string(value);
}

std::string languageOf(const ZelDataFinding& finding)
{
    const std::string& language = finding.language;
    return ZelDataMessages::onOneLine(language, ZelDataMessages::isUtf8(language));
}

std::string nameOfCollection(ZelDataFindingSubject_tags subject)
{
    switch (subject) {
    case ZelDataFindingSubject_Caption:
        return "captions";
    case ZelDataFindingSubject_TocEntry:
        return "table of contents";
    case ZelDataFindingSubject_ScreenText:
        return "screen texts";
    case ZelDataFindingSubject_Header:
        return "header";
    case ZelDataFindingSubject_Document:
        return "document";
    }
    return "collection";
}

std::string nameOfItem(ZelDataFindingSubject_tags subject)
{
    switch (subject) {
    case ZelDataFindingSubject_Caption:
        return "caption ";
    case ZelDataFindingSubject_TocEntry:
        return "entry ";
    case ZelDataFindingSubject_ScreenText:
        return "screen text ";
    default:
        return "item ";
    }
}

/// Times of captions are in milliseconds, all others in ticks of the frame rate.
std::string timeOf(const ZelDataFinding& finding, long long time)
{
    return number(time) + (finding.subject == ZelDataFindingSubject_Caption ? " ms" : "");
}

std::string placeOf(const ZelDataFinding& finding)
{
    const bool isInHeader = finding.subject == ZelDataFindingSubject_Header;
    if (finding.item == ZelDataFinding::noItem || isInHeader)
        return nameOfCollection(finding.subject);
    return joined({nameOfItem(finding.subject), ZelDataUtilities::getValueString(finding.item),
                   " at ", timeOf(finding, finding.start)});
}

std::string laterItemOf(const ZelDataFinding& finding)
{
    return nameOfItem(finding.subject) + ZelDataUtilities::getValueString(finding.laterItem);
}

std::string outOfRange(const std::string& what, const ZelDataFinding& finding)
{
    const bool below = finding.value < finding.limit;
    return joined({what, " out of range (", number(finding.value),
                   below ? ", at least " : ", at most ", number(finding.limit), ")"});
}

std::string colorOutOfRange(const ZelDataFinding& finding)
{
    const bool below = finding.component < static_cast<float>(finding.limit);
    return joined({finding.property, " out of range (",
                   ZelDataUtilities::getValueString(finding.component),
                   below ? ", at least " : ", at most ", number(finding.limit), ")"});
}

std::string shortDuration(const std::string& what, const ZelDataFinding& finding)
{
    return joined({what, " (", timeOf(finding, finding.value), ", at least ",
                   timeOf(finding, finding.limit), ")"});
}

std::string badText(const ZelDataFinding& finding)
{
    std::string text = "the text";
    if (finding.subject != ZelDataFindingSubject_ScreenText) text += " in " + languageOf(finding);
    return text + " is not UTF-8";
}

std::string tooManyLines(const ZelDataFinding& finding)
{
    return joined({"too many lines in ", languageOf(finding), " (", number(finding.value),
                   ", at most ", number(finding.limit), ")"});
}

std::string overlap(const ZelDataFinding& finding)
{
    return joined({"overlap: it ends at ", timeOf(finding, finding.value), ", ",
                   laterItemOf(finding), " starts at ", timeOf(finding, finding.laterStart)});
}

std::string outOfOrder(const ZelDataFinding& finding)
{
    return joined({"out of order: ", laterItemOf(finding), " starts before it, at ",
                   timeOf(finding, finding.laterStart)});
}

/// The field that @p finding is about: "the title", "keyword 2", "the text in en".
std::string fieldOf(const ZelDataFinding& finding)
{
    const bool isListed =
        finding.subject == ZelDataFindingSubject_Header && finding.item != ZelDataFinding::noItem;
    if (isListed)
        return joined({finding.property, " ", ZelDataUtilities::getValueString(finding.item)});
    const bool isLanguage = finding.property == "language";
    std::string field = "the " + finding.property;
    if (!finding.language.empty()) field += (isLanguage ? " " : " in ") + languageOf(finding);
    return field;
}

/// A fault in the field that @p finding is about.
std::string fault(const ZelDataFinding& finding, const char* what)
{
    return joined({fieldOf(finding), what, " at byte ", number(finding.value)});
}

std::string entryMissing(const ZelDataFinding& finding)
{
    const std::string known =
        joined({"no entry ", number(finding.value), " in the table of contents, "});
    if (finding.limit < 0) return known + "which has none";
    return known + "the last is " + number(finding.limit);
}

std::string notMilliseconds(const ZelDataFinding& finding)
{
    return joined({"times are not milliseconds (frame rate ", number(finding.value), ", not ",
                   number(finding.limit), ")"});
}

std::string reasonOf(const ZelDataFinding& finding)
{
    switch (finding.kind) {
    case ZelDataFinding_FrameRateOutOfRange:
        return outOfRange("frame rate", finding);
    case ZelDataFinding_FontFamilyMissing:
        return "the font family is empty";
    case ZelDataFinding_FontSizeOutOfRange:
        return outOfRange("font size", finding);
    case ZelDataFinding_ColorOutOfRange:
        return colorOutOfRange(finding);
    case ZelDataFinding_NoDuration:
        return shortDuration("no duration", finding);
    case ZelDataFinding_TooShort:
        return shortDuration("too short", finding);
    case ZelDataFinding_BadText:
        return badText(finding);
    case ZelDataFinding_BadLanguage:
        return joined({"the language ", languageOf(finding), " is not known"});
    case ZelDataFinding_TooManyLines:
        return tooManyLines(finding);
    case ZelDataFinding_MissingText:
        return "no text in " + languageOf(finding);
    case ZelDataFinding_Overlap:
        return overlap(finding);
    case ZelDataFinding_OutOfOrder:
        return outOfOrder(finding);
    case ZelDataFinding_HeaderMissing:
        return "no header";
    case ZelDataFinding_SizeMissing:
        return "no " + finding.property;
    case ZelDataFinding_ListedTwice:
        return fieldOf(finding) + " is listed before";
    case ZelDataFinding_NotEscaped:
        return fault(finding, " has an unescaped \", & or <");
    case ZelDataFinding_ControlCharacter:
        return fault(finding, " has a control character");
    case ZelDataFinding_NotStrictUtf8:
        return fault(finding, " is not strict UTF-8");
    case ZelDataFinding_ForbiddenCharacter:
        return fault(finding, " has U+FFFE or U+FFFF");
    case ZelDataFinding_NoItems:
        return "no items, so no track";
    case ZelDataFinding_NoText:
        return "no text in any language";
    case ZelDataFinding_EmptyText:
        return joined({"the text in ", languageOf(finding), " is empty"});
    case ZelDataFinding_EntryMissing:
        return entryMissing(finding);
    case ZelDataFinding_NotMilliseconds:
        return notMilliseconds(finding);
    }
    return "unknown finding";
}

} // namespace

std::string describe(const ZelDataFinding& finding)
{
    return placeOf(finding) + ": " + reasonOf(finding);
}

} // namespace ZelInterchangeData
