/// @file
/// The lookups in the catalogue of ISO 639-1 languages.

#ifndef ZELINTERCHANGEDATA_UTIL_LANGUAGECATALOGUE_H
#define ZELINTERCHANGEDATA_UTIL_LANGUAGECATALOGUE_H

#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// One language of the catalogue. The views live as long as the program and end with a zero byte.
struct LanguageEntry {
    /// The two-letter code in lower case.
    std::string_view code;
    /// Never empty.
    std::string_view englishName;
    /// The language's name in itself, in UTF-8. May be empty.
    std::string_view nativeName;
};

/// A copy of one language of the catalogue. An empty English name means that there is none.
struct LanguageInfo {
    std::string englishName;
    std::string nativeName;
    /// In lower case, whatever the case that was asked for.
    std::string code;
};

/// The language of the ID @p id, or null: a two-letter code in any letter case, alone or followed
/// by "-" and anything. Constant time, no allocation.
[[nodiscard]] const LanguageEntry* findLanguage(std::string_view id) noexcept;

/// Stores in @p key the four bytes "  xy", big-endian, of a code of two bytes, its ASCII letters in
/// lower case ("AA" gives 0x20206161). The bytes need not be letters. False for a code that has not
/// two bytes; @p key is left alone then.
[[nodiscard]] bool intForISO6391Code(const std::string& code, int& key);

/// The language of a code of exactly two bytes, or three empty strings.
[[nodiscard]] LanguageInfo languageInfoISOCode(const std::string& code);

/// The language of an ID, as findLanguage() finds it, or three empty strings.
[[nodiscard]] LanguageInfo languagefromID(const std::string& id);

} // namespace ZelInterchangeData

#endif
