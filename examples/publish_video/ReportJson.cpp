/// @file
/// The report for programs: see Report.h.

#include "Report.h"
#include "Text.h"

#include <utility>

namespace publish {

namespace {

/// A value as JSON.
using Json = std::string;

Json textOf(const std::string& text)
{
    Json quoted = "\"";
    for (const char character : text) {
        if (static_cast<unsigned char>(character) < 0x20)
            quoted += "\\u00" + hexadecimal(character);
        else if (character == '"' || character == '\\')
            quoted += {'\\', character};
        else
            quoted += character;
    }
    return quoted + '"';
}

using Members = std::vector<std::pair<const char*, Json>>;

Json objectOf(const Members& members)
{
    std::vector<Json> parts;
    for (const auto& [name, value] : members)
        parts.push_back(textOf(name) + ": " + value);
    return "{" + joined(parts, ", ") + "}";
}

template <class Values, class ToJson>
Json arrayOf(const Values& values, ToJson toJson)
{
    std::vector<Json> parts;
    for (const auto& value : values)
        parts.push_back(toJson(value));
    return "[" + joined(parts, ",\n") + "]";
}

Json languageJson(const LanguageCount& count)
{
    return objectOf({{"language", textOf(count.language)},
                     {"captions", std::to_string(count.captions)},
                     {"missing", std::to_string(count.missing)}});
}

Json groupJson(const std::vector<std::string>& group)
{
    return arrayOf(group, textOf);
}

/// Without the members that nothing is known about.
Json placeJson(const Place& place)
{
    Members members{{"file", textOf(place.path)}};
    if (!place.language.empty()) members.emplace_back("language", textOf(place.language));
    if (place.line != 0) members.emplace_back("line", std::to_string(place.line));
    if (place.startMs) {
        members.emplace_back("start", textOf(place.start));
        members.emplace_back("end", textOf(place.end));
        members.emplace_back("start_ms", std::to_string(*place.startMs));
        members.emplace_back("end_ms", std::to_string(*place.endMs));
    }
    if (place.line != 0) members.emplace_back("text", textOf(place.text));
    if (!place.detail.empty()) members.emplace_back("detail", textOf(place.detail));
    return objectOf(members);
}

Json problemJson(const Problem& problem)
{
    return objectOf({{"kind", textOf(problem.kind->id)},
                     {"message", textOf(problem.kind->one)},
                     {"count", std::to_string(problem.places.size())},
                     {"places", arrayOf(problem.places, placeJson)}});
}

} // namespace

std::string reportJson(const Report& report)
{
    return objectOf({{"output", textOf(report.output)},
                     {"bytes", std::to_string(report.bytes)},
                     {"captions", std::to_string(report.captions)},
                     {"joined", std::to_string(report.joined)},
                     {"languages", arrayOf(report.languages, languageJson)},
                     {"timing_groups", arrayOf(report.groups, groupJson)},
                     {"entries", std::to_string(report.entries)},
                     {"screen_texts", std::to_string(report.screenTexts)},
                     {"cues_without_text_left_out", std::to_string(report.skipped)},
                     {"problems", arrayOf(report.problems, problemJson)}}) +
           "\n";
}

} // namespace publish
