/// @file
/// See Report.h.

#include "Report.h"

#include "Check.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"

#include <memory>

namespace publish {

using namespace ZelInterchangeData;

namespace {

constexpr long long shortestDuration = 1000;
constexpr unsigned long mostLines = 4;

using Captions = std::vector<std::unique_ptr<i_ZelDataCaptionItem>>;

/// The captions as the packet has them: in order of start, with a text in every language.
Captions writtenCaptions(const i_ZelDataCaptions& captions)
{
    i_ZelDataCaptions* made = nullptr;
    check(ZelDataUtilities::createCaptionData(&made), "making a data object");
    const std::unique_ptr<i_ZelDataCaptions> ordered(made);
    check(ordered->copyFrom(captions), "copying the captions");
    check(ordered->makeCaptionsConsistent(), "ordering the captions");
    std::vector<i_ZelDataCaptionItem*> items;
    check(ordered->getCaptionItems(items), "reading the captions");
    return Captions(items.begin(), items.end());
}

long long startOf(const i_ZelDataCaptionItem& item)
{
    long long start = 0;
    check(item.getStart(start), "reading a caption");
    return start;
}

long long endOf(const i_ZelDataCaptionItem& item)
{
    long long end = 0;
    check(item.getEnd(end), "reading a caption");
    return end;
}

std::vector<std::string> languagesOf(const i_ZelDataCaptionItem& item)
{
    std::vector<std::string> languages;
    check(item.getLanguageIDs(languages), "reading a caption");
    return languages;
}

std::string textOf(const i_ZelDataCaptionItem& item, const std::string& language)
{
    std::string text;
    check(item.getTextForLanguage(text, language), "reading a caption");
    return text;
}

std::string joined(const std::vector<std::string>& parts, const std::string& separator)
{
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : separator) + part;
    return text;
}

/// Why @p item is no good caption by itself; isValid() knows that it is none, but not every reason.
std::vector<std::string> reasonsOf(const i_ZelDataCaptionItem& item)
{
    std::vector<std::string> reasons;
    if (item.isValid(true) != ZelData_WarnItemGuidelines) return reasons;
    const long long duration = endOf(item) - startOf(item);
    if (duration < shortestDuration)
        reasons.push_back("too short (" + std::to_string(duration) + " ms)");
    for (const std::string& language : languagesOf(item)) {
        const unsigned long lines = ZelDataUtilities::countLinesInUTF8(textOf(item, language));
        if (lines > mostLines)
            reasons.push_back("too many lines (" + std::to_string(lines) + " in " + language + ")");
    }
    return reasons;
}

} // namespace

std::string describeFile(const CueFile& file, bool skipEmpty)
{
    return file.name + ": " + std::to_string(file.cues.size()) + " cues taken, " +
           std::to_string(file.malformed) + " malformed, " + std::to_string(file.withoutLength) +
           " without length, " + std::to_string(file.empty) + " empty" +
           (skipEmpty ? " (left out)" : " (taken)");
}

std::vector<std::string> describeCaptions(const i_ZelDataCaptions& captions)
{
    std::vector<std::string> lines;
    const Captions items = writtenCaptions(captions);
    for (std::size_t at = 0; at < items.size(); ++at) {
        std::vector<std::string> reasons = reasonsOf(*items[at]);
        // In order of start, a caption that overlaps any later one overlaps the next one.
        if (at + 1 < items.size() && endOf(*items[at]) > startOf(*items[at + 1]))
            reasons.push_back("overlap with the caption at " +
                              std::to_string(startOf(*items[at + 1])) + " ms");
        if (!reasons.empty())
            lines.push_back("caption at " + std::to_string(startOf(*items[at])) +
                            " ms: " + joined(reasons, ", "));
    }
    return lines;
}

std::string describeLanguages(const i_ZelDataCaptions& captions)
{
    std::vector<std::string> languages;
    check(captions.getOrderedLanguageIDs(languages), "reading the languages");
    // The library lists this one where the captions have none.
    if (languages.empty()) languages.push_back("en-US");
    return "languages: " + joined(languages, ", ");
}

} // namespace publish
