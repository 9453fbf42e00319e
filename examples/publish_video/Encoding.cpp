/// @file
/// See Encoding.h.

#include "Encoding.h"

#include "SubtitleReader.h"
#include "Text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace publish {

namespace {

struct Named {
    std::string_view key;
    const char* encoding;
};

/// The longer marks first, because they begin like the shorter ones.
constexpr Named marks[] = {{{"\xFF\xFE\0\0", 4}, "UTF-32"},
                           {{"\0\0\xFE\xFF", 4}, "UTF-32"},
                           {"\xFF\xFE", "UTF-16"},
                           {"\xFE\xFF", "UTF-16"}};

constexpr const char* westernEncoding = "WINDOWS-1252";

/// The encoding that subtitles in a language mostly have if they are not in UTF-8.
constexpr Named encodings[] = {
    {"ar", "WINDOWS-1256"}, {"be", "WINDOWS-1251"}, {"bg", "WINDOWS-1251"}, {"cs", "WINDOWS-1250"},
    {"el", "WINDOWS-1253"}, {"et", "WINDOWS-1257"}, {"fa", "WINDOWS-1256"}, {"he", "WINDOWS-1255"},
    {"hr", "WINDOWS-1250"}, {"hu", "WINDOWS-1250"}, {"ja", "SHIFT_JIS"},    {"ko", "EUC-KR"},
    {"lt", "WINDOWS-1257"}, {"lv", "WINDOWS-1257"}, {"mk", "WINDOWS-1251"}, {"pl", "WINDOWS-1250"},
    {"ro", "WINDOWS-1250"}, {"ru", "WINDOWS-1251"}, {"sk", "WINDOWS-1250"}, {"sl", "WINDOWS-1250"},
    {"sr", "WINDOWS-1251"}, {"th", "WINDOWS-874"},  {"tr", "WINDOWS-1254"}, {"uk", "WINDOWS-1251"},
    {"vi", "WINDOWS-1258"}, {"zh", "GB18030"}};

/// Subtitles in UTF-16 have a zero byte in each digit of their times.
const char* encodingByZeros(std::string_view bytes)
{
    std::size_t zeros[2] = {0, 0};
    for (std::size_t at = 0; at < bytes.size(); ++at)
        if (bytes[at] == '\0') ++zeros[at % 2];
    const auto areAt = [&](std::size_t place) {
        return zeros[place] > bytes.size() / 16 && zeros[place] > 8 * zeros[1 - place];
    };
    if (areAt(1)) return "UTF-16LE";
    return areAt(0) ? "UTF-16BE" : nullptr;
}

const char* wideEncodingOf(std::string_view bytes)
{
    const auto* const mark = std::find_if(std::begin(marks), std::end(marks), [&](const Named& it) {
        return bytes.substr(0, it.key.size()) == it.key;
    });
    return mark != std::end(marks) ? mark->encoding : encodingByZeros(bytes);
}

bool isOfText(char byte)
{
    constexpr std::string_view allowed = "\t\n\f\r\x1A";
    return static_cast<unsigned char>(byte) >= 0x20 || allowed.find(byte) != std::string_view::npos;
}

/// Whether more bytes are foreign to UTF-8 than are characters of several bytes: otherwise the
/// bytes are damaged UTF-8.
bool isMostlyForeign(std::string_view bytes)
{
    std::size_t foreign = 0;
    std::size_t characters = 0;
    while (!bytes.empty()) {
        const std::size_t length = lengthOfStrictUtf8(bytes);
        characters += countOfLongCharacters(bytes.substr(0, length));
        bytes.remove_prefix(length);
        if (bytes.empty()) break;
        ++foreign;
        bytes.remove_prefix(1);
    }
    return foreign > characters;
}

bool isEightBit(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), isOfText) && isMostlyForeign(bytes);
}

const char* eightBitEncodingOf(const std::string& language)
{
    const auto* const found =
        std::find_if(std::begin(encodings), std::end(encodings), [&](const Named& candidate) {
            return std::equal(
                candidate.key.begin(), candidate.key.end(), language.begin(),
                language.begin() +
                    std::min<std::ptrdiff_t>(2, static_cast<std::ptrdiff_t>(language.size())),
                [](char a, char b) { return a == lowerCase(b); });
        });
    return found != std::end(encodings) ? found->encoding : westernEncoding;
}

/// @p path with ".utf-8" before its extension.
std::string convertedName(const std::string& path)
{
    const std::size_t dot = path.rfind('.');
    const std::size_t slash = path.find_last_of("/\\");
    const bool hasExtension =
        dot != std::string::npos && dot != 0 && (slash == std::string::npos || dot > slash + 1);
    const std::size_t at = hasExtension ? dot : path.size();
    return path.substr(0, at) + ".utf-8" + path.substr(at);
}

std::string conversion(const std::string& encoding, std::string path)
{
    // A message must not contain control characters.
    if (printable(path) != path) path = "FILE";
    if (path.substr(0, 1) == "-") path = "./" + path;
    return "\n  iconv -f " + encoding + " -t UTF-8 " + forShell(path) + " > " +
           forShell(convertedName(path));
}

} // namespace

std::string encodingHint(std::string_view bytes, const std::string& path,
                         const std::string& language)
{
    if (const char* const wide = wideEncodingOf(bytes))
        return "it looks like " + std::string(wide, 6) +
               "; to convert it:" + conversion(wide, path);
    if (isStrictUtf8(bytes) || !isEightBit(bytes)) return {};
    const char* const encoding = eightBitEncodingOf(language);
    return std::string("it looks like an 8-bit encoding; to convert it if that is ") + encoding +
           ":" + conversion(encoding, path);
}

std::string describeForeignBytes(std::string_view bytes, const std::string& path,
                                 const std::string& language)
{
    const std::string_view good = bytes.substr(0, lengthOfStrictUtf8(bytes));
    const std::string hint = encodingHint(bytes, path, language);
    return "the file is not UTF-8: line " + std::to_string(countOfLines(good)) +
           (hint.empty() ? "" : "; ") + hint;
}

} // namespace publish
