/// @file
/// The language catalogue: its compile-time index, and the lookups.

#include "util/LanguageCatalogue.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "util/Guard.h"
#include "util/LanguageTable.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

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

/// All texts of the table, one after the other, each followed by a zero byte. The library contains
/// these instead of the table: each of the table's pointers would take more room than the name, because
/// it is relocated when the library is loaded.
template <std::size_t Size>
struct Texts {
    std::string_view operator[](std::size_t number) const noexcept
    {
        const std::size_t begin = begins[number];
        return {characters.data() + begin, begins[number + 1] - begin - 1};
    }

    std::array<char, Size> characters{};
    std::array<std::uint16_t, 3 * std::size(languageTable) + 1> begins{};
};

constexpr std::array<std::string_view, 3> textsOf(const LanguageEntry& entry) noexcept
{
    return {entry.code, entry.englishName, entry.nativeName};
}

constexpr std::size_t sizeOfTexts() noexcept
{
    std::size_t size = 0;
    for (const LanguageEntry& entry : languageTable) {
        for (const std::string_view text : textsOf(entry))
            size += text.size() + 1; // cppcheck-suppress useStlAlgorithm ; not constexpr in C++17
    }
    return size;
}

constexpr auto makeTexts() noexcept
{
    Texts<sizeOfTexts()> texts;
    std::size_t number = 0;
    std::size_t size = 0;
    for (const LanguageEntry& entry : languageTable) {
        for (const std::string_view text : textsOf(entry)) {
            for (const char character : text)
                texts.characters[size++] = character;
            texts.begins[++number] = static_cast<std::uint16_t>(++size); // after the zero byte
        }
    }
    return texts;
}

static_assert(sizeOfTexts() <= 0xFFFF);
constexpr auto texts = makeTexts();

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

/// The place of the language of @p id in the table, counted from 1, or 0 if there is none.
std::size_t placeOf(std::string_view id) noexcept
{
    if (!isLanguageId(id)) return 0;
    const std::size_t first = letterNumber(id[0]);
    const std::size_t second = letterNumber(id[1]);
    return first < letterCount && second < letterCount ? index[indexOf(first, second)] : 0;
}

LanguageInfo copyOf(const std::optional<LanguageEntry>& entry)
{
    if (!entry) return {};
    return {std::string(entry->englishName), std::string(entry->nativeName),
            std::string(entry->code)};
}

/// Copies one of the names of the language of @p id.
ZelDataResult_tags copyName(const std::string& id, std::string_view LanguageEntry::*which,
                            std::string& name)
{
    const auto entry = findLanguage(id);
    if (!entry) return ZelData_UnknownLanguage;
    return guarded([&] {
        name.assign((*entry).*which);
        return ZelData_Ok;
    });
}

} // namespace

std::optional<LanguageEntry> findLanguage(std::string_view id) noexcept
{
    const std::size_t place = placeOf(id);
    if (place == 0) return std::nullopt;
    const std::size_t first = 3 * (place - 1);
    return LanguageEntry{texts[first], texts[first + 1], texts[first + 2]};
}

bool isLanguage(std::string_view id) noexcept
{
    return placeOf(id) != 0;
}

bool intForISO6391Code(const std::string& code, int& key)
{
    if (code.size() != codeLength) return false;
    key = static_cast<int>(0x20200000U + (lowerCase(code[0]) << 8U) + lowerCase(code[1]));
    return true;
}

LanguageInfo languageInfoISOCode(const std::string& code)
{
    return copyOf(code.size() == codeLength ? findLanguage(code) : std::nullopt);
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
    return isLanguage(id) ? ZelData_Ok : ZelData_UnknownLanguage;
}

} // namespace ZelInterchangeData
