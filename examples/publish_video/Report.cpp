/// @file
/// See Report.h.

#include "Report.h"

#include "Check.h"

#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/ZelDataUtilities.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace publish {

using namespace ZelInterchangeData;

namespace {

/// The problems of the captions as they are in the packet: in order of start, with a text in every
/// language.
std::vector<ZelDataFinding> findingsOf(const i_ZelDataCaptions& captions)
{
    i_ZelDataCaptions* made = nullptr;
    check(ZelDataUtilities::createCaptionData(&made), "making a data object");
    const std::unique_ptr<i_ZelDataCaptions> ordered(made);
    check(ordered->copyFrom(captions), "copying the captions");
    check(ordered->makeCaptionsConsistent(), "ordering the captions");
    std::vector<ZelDataFinding> findings;
    check(findProblems(*ordered, findings), "looking for problems");
    return findings;
}

std::string joined(const std::vector<std::string>& parts, const std::string& separator)
{
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : separator) + part;
    return text;
}

/// Says which recommendation the caption breaks; describeCaption() names the caption. Captions that
/// are in order have no other kinds of findings.
std::string reasonOf(const ZelDataFinding& finding)
{
    const std::string value = std::to_string(finding.value);
    switch (finding.kind) {
    case ZelDataFinding_TooShort:
        return "too short (" + value + " ms)";
    case ZelDataFinding_TooManyLines:
        return "too many lines (" + value + " in " + finding.language + ")";
    case ZelDataFinding_Overlap:
        return "overlap with the caption at " + std::to_string(finding.laterStart) + " ms";
    default:
        return describe(finding);
    }
}

/// The line about the caption that all of @p findings concern.
std::string describeCaption(const std::vector<ZelDataFinding>& findings)
{
    std::vector<std::string> reasons;
    std::transform(findings.begin(), findings.end(), std::back_inserter(reasons), reasonOf);
    return "caption at " + std::to_string(findings.front().start) + " ms: " + joined(reasons, ", ");
}

} // namespace

std::string describeFile(const CueFile& file, bool skipEmpty)
{
    return file.name + ": " + std::to_string(file.cues.size()) + " cues used, " +
           std::to_string(file.malformed) + " malformed, " + std::to_string(file.withoutLength) +
           " without length, " + std::to_string(file.empty) + " empty" +
           (skipEmpty ? " (skipped)" : " (used)");
}

std::vector<std::string> describeCaptions(const i_ZelDataCaptions& captions)
{
    std::vector<std::string> lines;
    std::vector<ZelDataFinding> findings = findingsOf(captions);
    // The findings are grouped by caption.
    for (auto first = findings.begin(); first != findings.end();) {
        const auto next = std::find_if(first, findings.end(), [&](const ZelDataFinding& finding) {
            return finding.item != first->item;
        });
        lines.push_back(describeCaption({first, next}));
        first = next;
    }
    return lines;
}

std::string describeLanguages(const i_ZelDataCaptions& captions)
{
    std::vector<std::string> languages;
    check(captions.getOrderedLanguageIDs(languages), "reading the languages");
    // The library lists this one if the captions have none.
    if (languages.empty()) languages.emplace_back("en-US");
    return "languages: " + joined(languages, ", ");
}

} // namespace publish
