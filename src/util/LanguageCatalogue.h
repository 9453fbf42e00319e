/// @file
/// The lookups in the catalogue of ISO 639-1 languages.

#ifndef ZELINTERCHANGEDATA_UTIL_LANGUAGECATALOGUE_H
#define ZELINTERCHANGEDATA_UTIL_LANGUAGECATALOGUE_H

#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// One language of the catalogue. The views are valid as long as the program runs and are followed
/// by a zero byte.
struct LanguageEntry {
    /// The two-letter code in lower case.
    std::string_view code;
    /// Never empty.
    std::string_view englishName;
    /// The language's name in itself, in UTF-8. May be empty.
    std::string_view nativeName;
};

/// A copy of one language of the catalogue. An empty English name means that no language was found.
struct LanguageInfo {
    std::string englishName;
    std::string nativeName;
    /// In lower case, whatever the case of the code that was looked up.
    std::string code;
};

/// Finds the language of the ID @p id: a two-letter code in any letter case, alone or followed by
/// "-" and anything. Null when there is none. Takes constant time and allocates nothing.
[[nodiscard]] const LanguageEntry* findLanguage(std::string_view id) noexcept;

/// Stores in @p key the four bytes "  xy", big-endian, of a code of two bytes, its ASCII letters in
/// lower case ("AA" gives 0x20206161). The bytes need not be letters. Returns false for a code of
/// any other length; @p key is left alone then.
[[nodiscard]] bool intForISO6391Code(const std::string& code, int& key);

/// Returns the language of a code of exactly two bytes, or three empty strings.
[[nodiscard]] LanguageInfo languageInfoISOCode(const std::string& code);

/// Returns the language of an ID, as findLanguage() finds it, or three empty strings.
[[nodiscard]] LanguageInfo languagefromID(const std::string& id);

} // namespace ZelInterchangeData

#endif
