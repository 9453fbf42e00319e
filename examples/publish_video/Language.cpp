/// @file
/// See Language.h.

#include "Language.h"

#include "Likeness.h"
#include "Text.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

namespace publish {

using ZelInterchangeData::ZelDataUtilities;

namespace {

struct Mistake {
    std::string_view typed;
    const char* meant;
};

/// Codes of countries that are no languages, and codes of three letters.
constexpr Mistake mistakes[] = {
    {"jp", "ja"},  {"cn", "zh"},  {"tw", "zh"},  {"kr", "ko"},  {"gr", "el"},  {"cz", "cs"},
    {"dk", "da"},  {"ua", "uk"},  {"us", "en"},  {"gb", "en"},  {"at", "de"},  {"in", "hi"},
    {"il", "he"},  {"ir", "fa"},  {"rs", "sr"},  {"mx", "es"},  {"vn", "vi"},  {"ara", "ar"},
    {"ces", "cs"}, {"cze", "cs"}, {"chi", "zh"}, {"zho", "zh"}, {"dan", "da"}, {"deu", "de"},
    {"ger", "de"}, {"dut", "nl"}, {"nld", "nl"}, {"ell", "el"}, {"gre", "el"}, {"eng", "en"},
    {"fin", "fi"}, {"fra", "fr"}, {"fre", "fr"}, {"heb", "he"}, {"hin", "hi"}, {"hun", "hu"},
    {"ita", "it"}, {"jpn", "ja"}, {"kor", "ko"}, {"nor", "no"}, {"pol", "pl"}, {"por", "pt"},
    {"ron", "ro"}, {"rum", "ro"}, {"rus", "ru"}, {"spa", "es"}, {"swe", "sv"}, {"tha", "th"},
    {"tur", "tr"}, {"ukr", "uk"}, {"vie", "vi"}};

bool isLanguageCharacter(char character)
{
    return isLetter(character) || isDigit(character) || character == '-';
}

std::string inLowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), lowerCase);
    return text;
}

struct NamedLanguage {
    std::string id;
    std::string english;
    std::string native;
};

std::vector<NamedLanguage> allLanguages()
{
    std::vector<NamedLanguage> languages;
    for (char first = 'a'; first <= 'z'; ++first)
        for (char second = 'a'; second <= 'z'; ++second) {
            NamedLanguage language{{first, second}, {}, {}};
            if (!failed(ZelDataUtilities::englishNameForLanguage(language.id, language.english)) &&
                !failed(ZelDataUtilities::nativeNameForLanguage(language.id, language.native)))
                languages.push_back(language);
        }
    return languages;
}

/// The language with the name that is most like @p text; empty if none is.
std::string languageNamed(const std::string& text)
{
    const auto mistakesIn = [&](const NamedLanguage& language) {
        const bool isNative = !text.empty() && inLowerCase(text) == inLowerCase(language.native);
        return isNative ? 0 : mistakesBetween(text, language.english);
    };
    const std::vector<NamedLanguage> languages = allLanguages();
    const auto nearest = std::min_element(languages.begin(), languages.end(),
                                          [&](const NamedLanguage& a, const NamedLanguage& b) {
                                              return mistakesIn(a) < mistakesIn(b);
                                          });
    const bool isFound = mistakesIn(*nearest) == 0 || isLike(text, nearest->english);
    return isFound ? nearest->id : std::string();
}

/// For a text without a region.
std::string primaryLanguageLike(const std::string& text)
{
    if (isKnownLanguage(text)) return text;
    const std::string small = inLowerCase(text);
    const auto* const mistake =
        std::find_if(std::begin(mistakes), std::end(mistakes),
                     [&](const Mistake& candidate) { return candidate.typed == small; });
    return mistake != std::end(mistakes) ? mistake->meant : languageNamed(text);
}

} // namespace

bool isLanguageForm(std::string_view text)
{
    if (text.size() < 2 || !isLetter(text[0]) || !isLetter(text[1])) return false;
    return (text.size() == 2 || text[2] == '-') &&
           std::all_of(text.begin() + 2, text.end(), isLanguageCharacter);
}

bool isKnownLanguage(const std::string& text)
{
    return isLanguageForm(text) && !failed(ZelDataUtilities::isValidLanguage(text));
}

std::string languageLike(const std::string& text)
{
    const std::size_t end = std::min(text.find_first_of("-_"), text.size());
    const std::string language = primaryLanguageLike(text.substr(0, end));
    if (language.empty() || end == text.size()) return language;
    const std::string whole = language + "-" + text.substr(end + 1);
    return isKnownLanguage(whole) ? whole : language;
}

} // namespace publish
