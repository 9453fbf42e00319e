/// @file
/// The language catalogue: its compile-time index, and the lookups.

#include "util/LanguageCatalogue.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "util/Guard.h"
#include "util/LanguageTable.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace ZelInterchangeData {

namespace {

constexpr std::size_t letterCount = 26;
constexpr std::size_t codeLength = 2;

/// The byte @p c, unsigned, with ASCII letters in lower case, whatever the locale.
constexpr unsigned lowerCase(char c) noexcept
{
    const unsigned byte = static_cast<unsigned char>(c);
    return byte >= 'A' && byte <= 'Z' ? byte + ('a' - 'A') : byte;
}

/// 0 to 25 for the letters in any case. Every other byte gives 26 or more: those below 'a' wrap.
constexpr std::size_t letterNumber(char c) noexcept
{
    return std::size_t{lowerCase(c)} - 'a';
}

constexpr std::size_t indexOf(std::size_t first, std::size_t second) noexcept
{
    return first * letterCount + second;
}

/// For each pair of letters, the place in the table, counted from 1, or 0 if there is no such
/// language.
using Index = std::array<std::uint8_t, letterCount * letterCount>;

constexpr Index makeIndex() noexcept
{
    Index places{};
    std::uint8_t place = 0;
    for (const LanguageEntry& entry : languageTable) {
        places[indexOf(letterNumber(entry.code[0]), letterNumber(entry.code[1]))] = ++place;
    }
    return places;
}

constexpr Index index = makeIndex();

/// Whether @p id is long enough for a code and any rest begins with "-".
constexpr bool isLanguageId(std::string_view id) noexcept
{
    return id.size() >= codeLength && (id.size() == codeLength || id[codeLength] == '-');
}

LanguageInfo copyOf(const LanguageEntry* entry)
{
    if (entry == nullptr) return {};
    return {std::string(entry->englishName), std::string(entry->nativeName),
            std::string(entry->code)};
}

/// Copies one of the names of the language of @p id.
ZelDataResult_tags copyName(const std::string& id, std::string_view LanguageEntry::*which,
                            std::string& name)
{
    const LanguageEntry* const entry = findLanguage(id);
    if (entry == nullptr) return ZelData_UnknownLanguage;
    return guarded([&] {
        name.assign(entry->*which);
        return ZelData_Ok;
    });
}

} // namespace

const LanguageEntry* findLanguage(std::string_view id) noexcept
{
    if (!isLanguageId(id)) return nullptr;
    const std::size_t first = letterNumber(id[0]);
    const std::size_t second = letterNumber(id[1]);
    if (first >= letterCount || second >= letterCount) return nullptr;
    const std::size_t place = index[indexOf(first, second)];
    return place == 0 ? nullptr : &languageTable[place - 1];
}

bool intForISO6391Code(const std::string& code, int& key)
{
    if (code.size() != codeLength) return false;
    key = static_cast<int>(0x20200000U + (lowerCase(code[0]) << 8U) + lowerCase(code[1]));
    return true;
}

LanguageInfo languageInfoISOCode(const std::string& code)
{
    return copyOf(code.size() == codeLength ? findLanguage(code) : nullptr);
}

LanguageInfo languagefromID(const std::string& id)
{
    return copyOf(findLanguage(id));
}

ZelDataResult_tags ZelDataUtilities::englishNameForLanguage(const std::string& id,
                                                            std::string& name)
{
    return copyName(id, &LanguageEntry::englishName, name);
}

ZelDataResult_tags ZelDataUtilities::nativeNameForLanguage(const std::string& id, std::string& name)
{
    return copyName(id, &LanguageEntry::nativeName, name);
}

ZelDataResult_tags ZelDataUtilities::isValidLanguage(const std::string& id)
{
    return findLanguage(id) == nullptr ? ZelData_UnknownLanguage : ZelData_Ok;
}

} // namespace ZelInterchangeData
