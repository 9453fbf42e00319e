#include "hostile/Rules.h"

#include "support/TextRules.h"

namespace ZelInterchangeData {

namespace {

/// A list of languages distinguishes the two errors, an item does not.
ZelDataResult_tags languageCode(const std::string& id)
{
    if (utf8Code(id, false) != ZelData_Ok) return ZelData_InvalidUtf8;
    return isEnglish(id) ? ZelData_Ok : ZelData_UnknownLanguage;
}

ZelDataResult_tags itemCode(ZelDataResult_tags code)
{
    return code == ZelData_Ok ? ZelData_Ok : ZelData_InvalidItem;
}

} // namespace

bool isEnglish(const std::string& id)
{
    return (id.substr(0, 2) == "en" || id.substr(0, 2) == "EN") && (id.size() == 2 || id[2] == '-');
}

ZelDataResult_tags codeFor(Rule rule, const std::string& text)
{
    switch (rule) {
    case Rule::Anything:
        return ZelData_Ok;
    case Rule::NotEmpty:
        return text.empty() ? ZelData_InvalidArgument : ZelData_Ok;
    case Rule::Utf8:
        return utf8Code(text, false);
    case Rule::Utf8OfItem:
        return itemCode(utf8Code(text, false));
    case Rule::Language:
        return languageCode(text);
    case Rule::LanguageOfItem:
        return itemCode(languageCode(text));
    }
    return ZelData_InternalError;
}

std::string written(Treatment treatment, const std::string& text)
{
    switch (treatment) {
    case Treatment::Escaped:
        return markupOf(text, false);
    case Treatment::EscapedAndStripped:
        return markupOf(text, true);
    case Treatment::CaptionText: {
        const std::string left = markupOf(text, true);
        return left.empty() ? "{\\rtf1 }" : left;
    }
    case Treatment::AsGiven:
        return text;
    case Treatment::NotWritten:
        break;
    }
    return {};
}

std::vector<std::string> variants(Rule rule, const std::string& text)
{
    if (rule != Rule::Language && rule != Rule::LanguageOfItem) return {text};
    return {text, "en-" + text, "EN-" + text, "en" + text};
}

} // namespace ZelInterchangeData
