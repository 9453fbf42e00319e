/// @file
/// The report for people: see Report.h.

#include "OutputFile.h"
#include "Report.h"
#include "Text.h"

#include <algorithm>

namespace publish {

namespace {

std::string counted(std::size_t count, const std::string& one, const std::string& several)
{
    return std::to_string(count) + " " + (count == 1 ? one : several);
}

std::string captionLines(const Report& report)
{
    // The library lists this language if the captions have none.
    if (report.captions == 0) return "captions: none; the packet names the language en-US\n";
    std::string lines = "captions: " + std::to_string(report.captions) + ", " +
                        std::to_string(report.joined) + " joined from several languages\n";
    for (const LanguageCount& count : report.languages)
        lines += "  " + count.language + ": " + counted(count.captions, "caption", "captions") +
                 (count.missing == 0 ? "" : ", missing in " + std::to_string(count.missing)) + "\n";
    return lines;
}

std::string groupLine(const LanguageGroups& groups)
{
    if (groups.size() < 2) return {};
    std::vector<std::string> parts;
    for (const std::vector<std::string>& group : groups)
        parts.push_back(joined(group, ", "));
    return "timed separately, so mostly not joined: " + joined(parts, " | ") + "\n";
}

std::string summary(const Report& report)
{
    std::string text = shownOutput(report.output) + ": " + counted(report.bytes, "byte", "bytes") +
                       " written\n" + captionLines(report) + groupLine(report.groups) +
                       "table of contents: " + counted(report.entries, "entry", "entries") + "\n" +
                       "screen texts: " + std::to_string(report.screenTexts) + "\n";
    if (report.skipped != 0)
        text += "cues without text, left out: " + std::to_string(report.skipped) + "\n";
    return text + (report.problems.empty() ? "problems: none\n" : "problems:\n");
}

/// The start, the language, the file with the line, the text and the detail, as far as they are known.
std::string placeLine(const Place& place)
{
    std::vector<std::string> parts;
    if (!place.start.empty()) parts.push_back(place.start);
    if (!place.language.empty()) parts.push_back(place.language);
    parts.push_back(printable(place.path) +
                    (place.line != 0 ? ":" + std::to_string(place.line) : ""));
    if (!place.text.empty()) parts.push_back("\"" + place.text + "\"");
    return "    " + joined(parts, " ") + (place.detail.empty() ? "" : ": " + place.detail) + "\n";
}

std::string problemLines(const Problem& problem, bool isVerbose)
{
    constexpr std::size_t first = 3;
    const std::size_t count = problem.places.size();
    const std::size_t shown = isVerbose ? count : std::min(first, count);
    std::string lines = "  " + counted(count, problem.kind->one, problem.kind->several) + ":\n";
    for (std::size_t at = 0; at != shown; ++at)
        lines += placeLine(problem.places[at]);
    if (shown != count)
        lines += "    and " + std::to_string(count - shown) + " more (--verbose shows all)\n";
    return lines;
}

} // namespace

std::string reportText(const Report& report, bool isVerbose)
{
    std::string text = summary(report);
    for (const Problem& problem : report.problems)
        text += problemLines(problem, isVerbose);
    return text;
}

} // namespace publish
