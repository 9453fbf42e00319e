/// @file
/// Compares the text utilities with plain descriptions of what they do.

#include "ZelInterchangeData/ZelDataEscaped.h"
#include "ZelInterchangeData/ZelDataOneLine.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "support/Input.h"
#include "support/Require.h"
#include "support/Streamed.h"
#include "support/Target.h"
#include "util/TextUtilities.h"
#include "xml/ZelDataXmlStream.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace ZelInterchangeData;
using fuzz::Input;
using fuzz::require;
using fuzz::requireEqual;
using fuzz::streamed;
using Utilities = ZelDataUtilities;

namespace {

// UTF-8

/// The number of continuation bytes that follow a lead; -1 for a byte that is not a lead.
int continuations(unsigned char lead)
{
    if (lead < 0x80) return 0;
    if (lead < 0xC2 || lead > 0xFD) return -1;
    int ones = 0;
    while ((lead << ones & 0x80) != 0)
        ++ones;
    return ones - 1;
}

ZelDataResult_tags plainCheck(const std::string& text, bool bmpOnly)
{
    for (std::size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at++]);
        if (bmpOnly && lead >= 0xF0) return ZelData_UnsupportedCharacter;
        const int more = continuations(lead);
        if (more < 0) return ZelData_InvalidUtf8;
        for (int i = 0; i < more; ++i, ++at) {
            if (at == text.size() || (text[at] & 0xC0) != 0x80) return ZelData_InvalidUtf8;
        }
    }
    return ZelData_Ok;
}

unsigned long plainLineCount(const std::string& text)
{
    if (failed(plainCheck(text, false))) return 0;
    const auto feeds = static_cast<unsigned long>(std::count(text.begin(), text.end(), '\n'));
    return feeds + (feeds != 0 && text.back() != '\n' ? 1 : 0);
}

// Escaping

constexpr std::array<std::pair<char, std::string_view>, 5> entities{
    {{'"', "&quot;"}, {'&', "&amp;"}, {'\'', "&apos;"}, {'<', "&lt;"}, {'>', "&gt;"}}};

std::string plainEscaped(const std::string& text)
{
    std::string escaped;
    for (const char character : text) {
        const auto* const entity =
            std::find_if(entities.begin(), entities.end(),
                         [&](const auto& one) { return one.first == character; });
        if (entity == entities.end())
            escaped += character;
        else
            escaped += entity->second;
    }
    return escaped;
}

std::string plainStripped(const std::string& text)
{
    std::string kept;
    for (const char character : text)
        if (static_cast<unsigned char>(character) >= 0x20 || character == '\n') kept += character;
    return kept;
}

/// The number of bytes of @p text from @p at, the place of a `&`, up to the byte that is dropped.
std::size_t keptOfBrokenEntity(const std::string& text, std::size_t at)
{
    return text.compare(at + 1, 1, "a") == 0 ? 2 : 1;
}

std::string plainUnescaped(const std::string& text)
{
    std::string out;
    for (std::size_t at = 0; at < text.size();) {
        const auto isHere = [&](const auto& entity) {
            return text.compare(at, entity.second.size(), entity.second) == 0 &&
                   at + entity.second.size() < text.size();
        };
        const auto* const found = text[at] == '&'
                                      ? std::find_if(entities.begin(), entities.end(), isHere)
                                      : entities.end();
        if (found != entities.end()) {
            out += found->first;
            at += found->second.size();
        } else if (text[at] == '&') {
            const std::size_t kept = keptOfBrokenEntity(text, at);
            out += text.substr(at, kept);
            at += kept + 1;
        } else {
            out += text[at++];
        }
    }
    return out;
}

void checkEscaping(const std::string& text, const std::string& before)
{
    const std::string escaped = plainEscaped(text);
    requireEqual(escaped, Utilities::htmlTagsToText(text), "escaping");
    requireEqual(escaped, ZelInterchangeData::escaped(text), "escaping by the face");
    requireEqual(escaped, ZelDataXmlStream::getSafeXmlString(text), "escaping for the tree");
    requireEqual(text + ' ', Utilities::htmlTagsFromText(escaped + ' '), "escaping and back");
    requireEqual(plainUnescaped(text), Utilities::htmlTagsFromText(text), "unescaping");
    requireEqual(plainStripped(text), Utilities::stripUnsupportedCharacters(text), "stripping");
    std::string out = before;
    appendEscaped(out, text);
    appendEscapedStripped(out, text);
    requireEqual(before + escaped + plainStripped(escaped), out, "appending escaped text");
}

void checkBlock(const std::string& text, const std::string& before)
{
    std::string out = "begin";
    TextBlock block(out);
    block.append(before);
    appendEscaped(block, text);
    block.append(before);
    appendEscapedStripped(block, text);
    const std::string escaped = plainEscaped(text);
    const std::string expected = before + escaped + before + plainStripped(escaped);
    require(block.position() == expected.size(), "the position in a block");
    block.flush();
    requireEqual("begin" + expected, out, "escaped text in a block");
}

void checkReplacing(const std::string& text, const std::string& from, const std::string& to)
{
    if (from.empty()) return;
    std::string expected;
    for (std::size_t at = 0; at < text.size();) {
        const bool isHere = text.compare(at, from.size(), from) == 0;
        expected += isHere ? to : text.substr(at, 1);
        at += isHere ? from.size() : 1;
    }
    std::string subject = text;
    require(&replaceAll(subject, from, to) == &subject, "replacing returns another text");
    requireEqual(expected, subject, "replacing");
}

/// How a line shows each byte that it cannot have.
const std::vector<std::string>& byteCodes()
{
    static const std::vector<std::string> codes = [] {
        std::vector<std::string> all;
        for (unsigned byte = 0; byte < 256; ++byte) {
            std::array<char, 5> code{};
            std::snprintf(code.data(), code.size(), "\\x%02X", byte);
            all.emplace_back(code.data());
        }
        return all;
    }();
    return codes;
}

/// @p text on one line; @p utf8 says whether bytes that are not ASCII stay.
std::string plainLine(const std::string& text, bool utf8)
{
    std::string line;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte >= ' ' && byte < 0x7F) || (byte > 0x7F && utf8))
            line += character;
        else
            line += byteCodes()[byte];
    }
    return line;
}

void checkLine(const std::string& text)
{
    require(ZelDataMessages::isUtf8(text) == (plainCheck(text, false) == ZelData_Ok),
            "whether the face takes a text for UTF-8");
    for (const bool utf8 : {false, true})
        requireEqual(plainLine(text, utf8), ZelDataMessages::onOneLine(text, utf8),
                     "a text on one line");
}

// Languages

struct NamesInHex {
    const char* code;
    const char* englishName;
    const char* nativeName;
};

constexpr NamesInHex allNames[] = {
#include "util/LanguageNames.inc"
};

std::string bytesOf(const std::string& hex)
{
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2)
        bytes.push_back(static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16)));
    return bytes;
}

struct Names {
    std::string code;
    std::string englishName;
    std::string nativeName;
};

const std::vector<Names>& plainNames()
{
    static const std::vector<Names> names = [] {
        std::vector<Names> all;
        for (const NamesInHex& one : allNames)
            all.push_back({one.code, bytesOf(one.englishName), bytesOf(one.nativeName)});
        return all;
    }();
    return names;
}

/// The language of @p id; null for none.
const Names* plainLookup(const std::string& id)
{
    const bool hasForm = id.size() == 2 || (id.size() > 2 && id[2] == '-');
    if (!hasForm) return nullptr;
    const auto isIt = [&](const Names& names) {
        return (id[0] == names.code[0] || id[0] == names.code[0] - 'a' + 'A') &&
               (id[1] == names.code[1] || id[1] == names.code[1] - 'a' + 'A');
    };
    const auto found = std::find_if(plainNames().begin(), plainNames().end(), isIt);
    return found == plainNames().end() ? nullptr : &*found;
}

void checkLanguage(const std::string& id)
{
    const Names* names = plainLookup(id);
    const auto code = names != nullptr ? ZelData_Ok : ZelData_UnknownLanguage;
    std::string english = "before";
    std::string native = "before";
    require(Utilities::isValidLanguage(id) == code, "whether a language is known");
    require(Utilities::englishNameForLanguage(id, english) == code, "the code of an English name");
    require(Utilities::nativeNameForLanguage(id, native) == code, "the code of a native name");
    requireEqual(names != nullptr ? names->englishName : "before", english, "an English name");
    requireEqual(names != nullptr ? names->nativeName : "before", native, "a native name");
}

// Values

void checkNumbers(Input& input)
{
    const auto real = input.raw<float>();
    const auto wide = input.number<unsigned long long>();
    const auto word = input.number<unsigned long>();
    const auto signedWord = input.number<long>();
    requireEqual(streamed(real), Utilities::getValueString(real), "a float");
    requireEqual(streamed(wide), Utilities::getValueString(wide), "an unsigned long long");
    requireEqual(streamed(word), Utilities::getValueString(word), "an unsigned long");
    requireEqual(streamed(signedWord), getValueString(signedWord), "a long");
    requireEqual("f" + streamed(word), Utilities::getRateString(word), "a rate");
    requireEqual(streamed(word / 65536) + "." + streamed(word / 256 % 256) + "." +
                     streamed(word % 256),
                 Utilities::getVersionString(word), "a version");
}

std::string plainDate(long seconds)
{
    std::tm utc{};
    std::tm local{};
    if (gmtime_r(&seconds, &utc) == nullptr || localtime_r(&seconds, &local) == nullptr) return "";
    std::array<char, 100> text{};
    const int hours = local.tm_hour - utc.tm_hour;
    std::snprintf(text.data(), text.size(), "%04lld-%02d-%02dT%02d:%02d:%02d%c%d:00",
                  utc.tm_year + 1900LL, utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min,
                  utc.tm_sec, hours > 0 ? '+' : '-', hours < 0 ? -hours : hours);
    return text.data();
}

void checkAlignment(ZelAlignment_tags alignment)
{
    const auto has = [bits = static_cast<unsigned>(alignment)](unsigned bit) {
        return (bits & bit) != 0;
    };
    const char* vertical = has(1U) ? "bottom" : has(2U) ? "top" : "center";
    const char* horizontal = has(0x10U) ? "left" : has(0x20U) ? "right" : "center";
    requireEqual(vertical, Utilities::getVerticalAlignment(alignment), "a vertical alignment");
    requireEqual(horizontal, Utilities::getHorizontalAlignment(alignment),
                 "a horizontal alignment");
}

void checkText(const std::string& text, const std::string& before)
{
    for (const bool bmpOnly : {false, true})
        require(Utilities::verifyUtf8Format(text, bmpOnly) == plainCheck(text, bmpOnly),
                "whether a text is UTF-8");
    require(Utilities::countLinesInUTF8(text) == plainLineCount(text), "the number of lines");
    checkEscaping(text, before);
    checkBlock(text, before);
    checkLine(text);
    checkLanguage(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    checkNumbers(input);
    long seconds = input.number<long>();
    requireEqual(plainDate(seconds), Utilities::getDateString(&seconds), "a date");
    checkAlignment(static_cast<ZelAlignment_tags>(input.raw<std::uint32_t>()));
    const std::string before = input.text();
    const std::string from = input.bytes();
    const std::string text = input.rest();
    checkReplacing(text, from, before);
    checkText(text, before);
    checkText(from + text, from);
    return 0;
}
