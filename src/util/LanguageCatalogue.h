/// @file
/// The lookups in the catalogue of ISO 639-1 languages.

#ifndef ZELINTERCHANGEDATA_UTIL_LANGUAGECATALOGUE_H
#define ZELINTERCHANGEDATA_UTIL_LANGUAGECATALOGUE_H

#include <optional>
#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// One language of the catalogue. The views stay valid while the program runs; a zero byte follows
/// each.
struct LanguageEntry {
    /// The two-letter code in lower case.
    std::string_view code;
    /// Never empty.
    std::string_view englishName;
    /// The language's own name for itself, in UTF-8. May be empty.
    std::string_view nativeName;
};

/// A copy of one language of the catalogue. An empty English name means that no language was found.
struct LanguageInfo {
    std::string englishName;
    std::string nativeName;
    /// In lower case, even if the code was looked up in upper case.
    std::string code;
};

/// Finds the language of the ID @p id: a two-letter code in any letter case, alone or followed by
/// "-" and anything. Takes constant time and allocates nothing.
[[nodiscard]] std::optional<LanguageEntry> findLanguage(std::string_view id) noexcept;

/// Whether findLanguage() finds a language.
[[nodiscard]] bool isLanguage(std::string_view id) noexcept;

/// Stores in @p key the four bytes "  xy", big-endian, of a code of two bytes, its ASCII letters in
/// lower case ("AA" gives 0x20206161). The bytes need not be letters. For a code of any other
/// length, returns false and leaves @p key unchanged.
[[nodiscard]] bool intForISO6391Code(const std::string& code, int& key);

/// Returns the language of a code of exactly two bytes, or three empty strings.
[[nodiscard]] LanguageInfo languageInfoISOCode(const std::string& code);

/// Returns the language of an ID, as findLanguage() finds it, or three empty strings.
[[nodiscard]] LanguageInfo languagefromID(const std::string& id);

} // namespace ZelInterchangeData

#endif
