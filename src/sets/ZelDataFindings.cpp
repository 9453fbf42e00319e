#include "ZelInterchangeData/ZelDataFindings.h"

#include "ZelInterchangeData/ZelDataOneLine.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "util/ValueStrings.h"

#include <utility>

namespace ZelInterchangeData {

namespace {

/// A finding's language, which a sentence shows on one line.
struct Language {
    const std::string& id;
};

/// A text that grows part by part, which takes less code than joining temporary texts.
struct Sentence {
    // Deliberate: not one overload for std::string_view; with it, each literal would take more code.
    Sentence& operator<<(const char* part)
    {
        text += part;
        return *this;
    }
    Sentence& operator<<(const std::string& part)
    {
        text += part;
        return *this;
    }
    Sentence& operator<<(Language language)
    {
        const bool isUtf8 = ZelDataMessages::isUtf8(language.id);
        return *this << ZelDataMessages::onOneLine(language.id, isUtf8);
    }
    Sentence& operator<<(long long number) { return *this << decimalText(number); }
    Sentence& operator<<(unsigned long number)
    {
        return *this << ZelDataUtilities::getValueString(number);
    }
    Sentence& operator<<(float number) { return *this << ZelDataUtilities::getValueString(number); }

    std::string text;
};

const char* nameOfCollection(ZelDataFindingSubject_tags subject)
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

const char* nameOfItem(ZelDataFindingSubject_tags subject)
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
const char* unitOf(const ZelDataFinding& finding)
{
    return finding.subject == ZelDataFindingSubject_Caption ? " ms" : "";
}

// Each of the following functions appends a part of the description of a finding.

Sentence& place(Sentence& sentence, const ZelDataFinding& finding)
{
    const bool isInHeader = finding.subject == ZelDataFindingSubject_Header;
    if (finding.item == ZelDataFinding::noItem || isInHeader)
        return sentence << nameOfCollection(finding.subject);
    return sentence << nameOfItem(finding.subject) << finding.item << " at " << finding.start
                    << unitOf(finding);
}

Sentence& laterItem(Sentence& sentence, const ZelDataFinding& finding)
{
    return sentence << nameOfItem(finding.subject) << finding.laterItem;
}

template <class Number>
Sentence& outOfRange(Sentence& sentence, Number value, long long limit)
{
    const bool below = value < static_cast<Number>(limit);
    return sentence << " out of range (" << value << (below ? ", at least " : ", at most ") << limit
                    << ")";
}

Sentence& shortDuration(Sentence& sentence, const char* what, const ZelDataFinding& finding)
{
    return sentence << what << " (" << finding.value << unitOf(finding) << ", at least "
                    << finding.limit << unitOf(finding) << ")";
}

Sentence& badText(Sentence& sentence, const ZelDataFinding& finding)
{
    sentence << "the text";
    if (finding.subject != ZelDataFindingSubject_ScreenText)
        sentence << " in " << Language{finding.language};
    return sentence << " is not UTF-8";
}

Sentence& overlap(Sentence& sentence, const ZelDataFinding& finding)
{
    sentence << "overlap: it ends at " << finding.value << unitOf(finding) << ", ";
    return laterItem(sentence, finding) << " starts at " << finding.laterStart << unitOf(finding);
}

Sentence& outOfOrder(Sentence& sentence, const ZelDataFinding& finding)
{
    return laterItem(sentence << "out of order: ", finding)
           << " starts before it, at " << finding.laterStart << unitOf(finding);
}

/// The field that @p finding is about: "the title", "keyword 2", "the text in en".
Sentence& field(Sentence& sentence, const ZelDataFinding& finding)
{
    const bool isListed =
        finding.subject == ZelDataFindingSubject_Header && finding.item != ZelDataFinding::noItem;
    if (isListed) return sentence << finding.property << " " << finding.item;
    sentence << "the " << finding.property;
    if (finding.language.empty()) return sentence;
    const bool isLanguage = finding.property == "language";
    return sentence << (isLanguage ? " " : " in ") << Language{finding.language};
}

/// A fault in the field that @p finding is about.
Sentence& fault(Sentence& sentence, const ZelDataFinding& finding, const char* what)
{
    return field(sentence, finding) << what << " at byte " << finding.value;
}

Sentence& entryMissing(Sentence& sentence, const ZelDataFinding& finding)
{
    sentence << "no entry " << finding.value << " in the table of contents, ";
    if (finding.limit < 0) return sentence << "which has none";
    return sentence << "the last is " << finding.limit;
}

Sentence& reason(Sentence& sentence, const ZelDataFinding& finding)
{
    switch (finding.kind) {
    case ZelDataFinding_FrameRateOutOfRange:
        return outOfRange(sentence << "frame rate", finding.value, finding.limit);
    case ZelDataFinding_FontFamilyMissing:
        return sentence << "the font family is empty";
    case ZelDataFinding_FontSizeOutOfRange:
        return outOfRange(sentence << "font size", finding.value, finding.limit);
    case ZelDataFinding_ColorOutOfRange:
        return outOfRange(sentence << finding.property, finding.component, finding.limit);
    case ZelDataFinding_NoDuration:
        return shortDuration(sentence, "no duration", finding);
    case ZelDataFinding_TooShort:
        return shortDuration(sentence, "too short", finding);
    case ZelDataFinding_BadText:
        return badText(sentence, finding);
    case ZelDataFinding_BadLanguage:
        return sentence << "the language " << Language{finding.language} << " is not known";
    case ZelDataFinding_TooManyLines:
        return sentence << "too many lines in " << Language{finding.language} << " ("
                        << finding.value << ", at most " << finding.limit << ")";
    case ZelDataFinding_MissingText:
        return sentence << "no text in " << Language{finding.language};
    case ZelDataFinding_Overlap:
        return overlap(sentence, finding);
    case ZelDataFinding_OutOfOrder:
        return outOfOrder(sentence, finding);
    case ZelDataFinding_HeaderMissing:
        return sentence << "no header";
    case ZelDataFinding_SizeMissing:
        return sentence << "no " << finding.property;
    case ZelDataFinding_ListedTwice:
        return field(sentence, finding) << " is listed before";
    case ZelDataFinding_NotEscaped:
        return fault(sentence, finding, " has an unescaped \", & or <");
    case ZelDataFinding_ControlCharacter:
        return fault(sentence, finding, " has a control character");
    case ZelDataFinding_NotStrictUtf8:
        return fault(sentence, finding, " is not strict UTF-8");
    case ZelDataFinding_ForbiddenCharacter:
        return fault(sentence, finding, " has U+FFFE or U+FFFF");
    case ZelDataFinding_NoItems:
        return sentence << "no items, so no track";
    case ZelDataFinding_NoText:
        return sentence << "no text in any language";
    case ZelDataFinding_EmptyText:
        return sentence << "the text in " << Language{finding.language} << " is empty";
    case ZelDataFinding_EntryMissing:
        return entryMissing(sentence, finding);
    case ZelDataFinding_NotMilliseconds:
        return sentence << "times are not milliseconds (frame rate " << finding.value << ", not "
                        << finding.limit << ")";
    }
    return sentence << "unknown finding";
}

} // namespace

std::string describe(const ZelDataFinding& finding)
{
    Sentence sentence;
    reason(place(sentence, finding) << ": ", finding);
    return std::move(sentence.text);
}

} // namespace ZelInterchangeData
