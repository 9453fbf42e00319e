/// @file
/// The report for programs: see Report.h.

#include "Report.h"

#include <utility>

namespace publish {

namespace {

/// A value, already written as JSON.
using Json = std::string;

Json textOf(const std::string& text)
{
    constexpr char digits[] = "0123456789abcdef";
    Json quoted = "\"";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20)
            quoted += {'\\', 'u', '0', '0', digits[byte / 16], digits[byte % 16]};
        else if (character == '"' || character == '\\')
            quoted += {'\\', character};
        else
            quoted += character;
    }
    return quoted + '"';
}

template <class Number>
Json numberOf(Number number)
{
    return std::to_string(number);
}

Json listed(const std::vector<Json>& parts, const std::string& open, const std::string& close,
            const std::string& separator)
{
    Json list = open;
    for (const Json& part : parts)
        list += (&part == parts.data() ? "" : separator) + part;
    return list + close;
}

using Members = std::vector<std::pair<std::string, Json>>;

Json objectOf(const Members& members)
{
    std::vector<Json> parts;
    for (const auto& [name, value] : members)
        parts.push_back(textOf(name) + ": " + value);
    return listed(parts, "{", "}", ", ");
}

template <class Values, class ToJson>
Json arrayOf(const Values& values, ToJson toJson)
{
    std::vector<Json> parts;
    for (const auto& value : values)
        parts.push_back(toJson(value));
    return listed(parts, "[", "]", ",\n");
}

Json languageJson(const LanguageCount& count)
{
    return objectOf({{"language", textOf(count.language)},
                     {"captions", numberOf(count.captions)},
                     {"missing", numberOf(count.missing)}});
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
    if (place.line != 0) members.emplace_back("line", numberOf(place.line));
    if (place.startMs) {
        members.emplace_back("start", textOf(place.start));
        members.emplace_back("end", textOf(place.end));
        members.emplace_back("start_ms", numberOf(*place.startMs));
        members.emplace_back("end_ms", numberOf(*place.endMs));
    }
    if (place.line != 0) members.emplace_back("text", textOf(place.text));
    if (!place.detail.empty()) members.emplace_back("detail", textOf(place.detail));
    return objectOf(members);
}

Json problemJson(const Problem& problem)
{
    return objectOf({{"kind", textOf(problem.kind->id)},
                     {"message", textOf(problem.kind->one)},
                     {"count", numberOf(problem.places.size())},
                     {"places", arrayOf(problem.places, placeJson)}});
}

} // namespace

std::string reportJson(const Report& report)
{
    return objectOf({{"output", textOf(report.output)},
                     {"bytes", numberOf(report.bytes)},
                     {"captions", numberOf(report.captions)},
                     {"joined", numberOf(report.joined)},
                     {"languages", arrayOf(report.languages, languageJson)},
                     {"timing_groups", arrayOf(report.groups, groupJson)},
                     {"entries", numberOf(report.entries)},
                     {"screen_texts", numberOf(report.screenTexts)},
                     {"cues_without_text_left_out", numberOf(report.skipped)},
                     {"problems", arrayOf(report.problems, problemJson)}}) +
           "\n";
}

} // namespace publish
