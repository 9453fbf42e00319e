/// @file
/// The subtitle reader of the example, and the function that removes markup.

#include "PlainText.h"
#include "SubtitleReader.h"
#include "Text.h"
#include "support/Input.h"
#include "support/Require.h"
#include "support/StrictText.h"
#include "support/Target.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

using fuzz::Input;
using fuzz::require;
using fuzz::requireEqual;
using publish::Cue;
using publish::Subtitles;

namespace {

constexpr std::string_view arrow = "-->";

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
        text.replace(at, from.size(), to);
        at += to.size();
    }
    return text;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines(1);
    for (const char character : text) {
        if (character == '\n')
            lines.emplace_back();
        else
            lines.back() += character;
    }
    return lines;
}

/// The contents of a file, as the reader must see them.
std::string unified(const std::string& bytes)
{
    const bool hasMark = bytes.compare(0, 3, "\xEF\xBB\xBF") == 0;
    const std::string text = fuzz::filtered(
        bytes.substr(hasMark ? 3 : 0), [](auto value) { return !fuzz::isNoncharacter(value); });
    return replaced(replaced(text, "\r\n", "\n"), "\r", "\n");
}

bool isBlankAtEnd(const std::string& line)
{
    return !line.empty() && (line.back() == ' ' || line.back() == '\t');
}

// Reading

void checkText(const std::string& text, const std::string& contents)
{
    if (text.empty()) return;
    require(fuzz::filtered(text, [](auto value) { return !fuzz::isNoncharacter(value); }) == text,
            "the text of a cue is not a text");
    require(text.find(arrow) == std::string::npos, "an arrow in the text of a cue");
    require(text.find('\r') == std::string::npos, "a carriage return in the text of a cue");
    for (const std::string& line : linesOf(text)) {
        require(!line.empty() && !isBlankAtEnd(line), "a blank line, or a blank at a line's end");
        require(contents.find(line) != std::string::npos, "a line that is not in the file");
    }
    require(!failed(ZelInterchangeData::ZelDataUtilities::verifyUtf8Format(text, false)),
            "the library refuses the text of a cue");
}

/// Each line with an arrow is a cue, a malformed one or one without length; all other lines are
/// none of these.
void checkCounts(const Subtitles& subtitles, const std::vector<std::string>& lines)
{
    std::size_t arrows = 0;
    for (const std::string& line : lines)
        if (line.find(arrow) != std::string::npos) ++arrows;
    require(subtitles.cues.size() + subtitles.malformed.size() + subtitles.withoutLength.size() ==
                arrows,
            "the lines with an arrow");
    const std::string& first = lines.front();
    const bool isWebVtt =
        first == "WEBVTT" || first.rfind("WEBVTT ", 0) == 0 || first.rfind("WEBVTT\t", 0) == 0;
    require(subtitles.isWebVtt == isWebVtt, "whether the file is WebVTT");
}

std::string timeText(long long time)
{
    std::array<char, 60> text{};
    std::snprintf(text.data(), text.size(), "%lld:%02lld:%02lld,%03lld", time / 3600000,
                  time / 60000 % 60, time / 1000 % 60, time % 1000);
    return text.data();
}

/// The cues as a tidy file.
std::string tidied(const std::vector<Cue>& cues, const char* lineEnd)
{
    std::string file;
    for (const Cue& cue : cues) {
        file += timeText(cue.start) + " --> " + timeText(cue.end) + lineEnd;
        if (!cue.text.empty()) file += replaced(cue.text, "\n", lineEnd) + lineEnd;
        file += lineEnd;
    }
    return file;
}

void requireSameCues(const std::vector<Cue>& expected, const std::string& file)
{
    const auto actual = publish::readSubtitles(file);
    require(actual && actual->malformed.empty() && actual->withoutLength.empty(), "a tidy file");
    requireEqual(tidied(expected, "\n"), tidied(actual->cues, "\n"), "the cues of a tidy file");
}

void checkReading(const std::string& bytes)
{
    const auto subtitles = publish::readSubtitles(bytes);
    require(subtitles.has_value() == fuzz::isStrict(bytes), "whether the file is UTF-8");
    if (!subtitles) return;
    const std::string contents = unified(bytes);
    checkCounts(*subtitles, linesOf(contents));
    for (const Cue& cue : subtitles->cues) {
        require(cue.start >= 0 && cue.end > cue.start, "a cue without length");
        checkText(cue.text, contents);
    }
    requireSameCues(subtitles->cues, tidied(subtitles->cues, "\n"));
    requireSameCues(subtitles->cues, "\xEF\xBB\xBF" + tidied(subtitles->cues, "\r\n"));
    requireSameCues(subtitles->cues, tidied(subtitles->cues, "\r"));
}

// Markup

/// The character for the entity at the front of @p text; empty for none.
std::string entityCharacter(std::string_view text, std::size_t& length)
{
    static constexpr std::array<std::array<std::string_view, 2>, 6> entities{
        {{"&amp;", "&"},
         {"&lt;", "<"},
         {"&gt;", ">"},
         {"&nbsp;", "\xC2\xA0"},
         {"&lrm;", "\xE2\x80\x8E"},
         {"&rlm;", "\xE2\x80\x8F"}}};
    for (const auto& [name, character] : entities) {
        if (text.substr(0, name.size()) != name) continue;
        length = name.size();
        return std::string(character);
    }
    return {};
}

/// How many bytes at the front of @p text are markup; searches to the end each time.
std::size_t markupLength(std::string_view text)
{
    const bool isTag = text.substr(0, 1) == "<";
    if (!isTag && text.substr(0, 2) != "{\\") return 0;
    const std::size_t end = text.find(isTag ? '>' : '}');
    return end == std::string_view::npos ? 0 : end + 1;
}

std::string plainlyWithoutMarkup(std::string_view text, bool isWebVtt)
{
    std::string plain;
    while (!text.empty()) {
        std::size_t length = markupLength(text);
        if (length == 0) {
            std::string character;
            if (isWebVtt) character = entityCharacter(text, length);
            if (length == 0) {
                length = 1;
                character = text.front();
            }
            plain += character;
        }
        text.remove_prefix(length);
    }
    return plain;
}

std::string withoutBlanksAtEnds(const std::string& text)
{
    std::string trimmed;
    for (std::string line : linesOf(text)) {
        while (isBlankAtEnd(line))
            line.pop_back();
        trimmed += line + '\n';
    }
    trimmed.pop_back();
    return trimmed;
}

void checkMarkup(const std::string& text)
{
    for (const bool isWebVtt : {false, true})
        requireEqual(withoutBlanksAtEnds(plainlyWithoutMarkup(text, isWebVtt)),
                     publish::plainText(text, isWebVtt), "a text without markup");
}

// Arguments and messages

bool isControl(std::uint32_t value)
{
    return value < 0x20 || (value >= 0x7F && value < 0xA0);
}

void checkArgument(const std::string& text)
{
    const std::string printable = publish::printable(text);
    require(fuzz::filtered(printable, [](auto value) { return !isControl(value); }) == printable,
            "a message of more than plain text");
    const std::string strict = fuzz::filtered(text, [](auto) { return true; });
    require(publish::isStrictUtf8(strict), "strict UTF-8 is refused");
    requireEqual(fuzz::filtered(
                     replaced(replaced(strict, "\t", " "), "\n", " "),
                     [](auto value) { return !isControl(value) && !fuzz::isNoncharacter(value); }),
                 publish::argumentText(strict), "the text of an argument");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes = Input(data, size).rest();
    checkReading(bytes);
    checkReading(fuzz::filtered(bytes, [](auto) { return true; }));
    checkMarkup(bytes);
    checkArgument(bytes);
    return 0;
}
