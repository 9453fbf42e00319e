/// @file
/// Checks and transformations of UTF-8 texts, and the alignment words.

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ZelInterchangeData {

namespace {

constexpr unsigned char byteOf(char c) noexcept
{
    return static_cast<unsigned char>(c);
}

/// The first lead byte of the sequences that leave the Basic Multilingual Plane.
constexpr unsigned char firstLeadBeyondBmp = 0xF0;

constexpr int invalidLead = -1;

/// How many continuation bytes follow @p lead, or invalidLead.
constexpr int continuationCount(unsigned char lead) noexcept
{
    if (lead < 0x80) return 0;
    if (lead < 0xC2) return invalidLead;
    if (lead < 0xE0) return 1;
    if (lead < 0xF0) return 2;
    if (lead < 0xF8) return 3;
    // Meant: the old forms of five and six bytes pass; these two lines gone, they would be refused.
    if (lead < 0xFC) return 4;
    if (lead < 0xFE) return 5;
    return invalidLead;
}

constexpr bool isContinuation(char c) noexcept
{
    return (byteOf(c) & 0xC0U) == 0x80U;
}

/// Whether @p text, which is not empty, begins with a whole sequence; takes it off @p text.
bool takeSequence(std::string_view& text) noexcept
{
    const int count = continuationCount(byteOf(text.front()));
    if (count == invalidLead) return false;
    const std::string_view following = text.substr(1, static_cast<std::size_t>(count));
    text.remove_prefix(1 + following.size());
    return following.size() == static_cast<std::size_t>(count) &&
           std::all_of(following.begin(), following.end(), isContinuation);
}

/// The control characters below the blank, most of which XML forbids. Only the line feed stays.
constexpr bool isUnsupported(char c) noexcept
{
    constexpr unsigned char minChar = 31;
    return byteOf(c) <= minChar && c != '\n';
}

struct Entity {
    char character;
    std::string_view markup;
};

constexpr std::array<Entity, 5> entities = {{
    {'"', "&quot;"},
    {'&', "&amp;"},
    {'\'', "&apos;"},
    {'<', "&lt;"},
    {'>', "&gt;"},
}};

/// For each byte the place of its entity, or noEntity.
using EntityPlaces = std::array<std::uint8_t, 256>;

constexpr std::uint8_t noEntity = 0xFF;

constexpr EntityPlaces makeEntityPlaces() noexcept
{
    EntityPlaces places{};
    for (std::uint8_t& place : places)
        place = noEntity;
    for (std::uint8_t place = 0; place < entities.size(); ++place) {
        places[byteOf(entities[place].character)] = place;
    }
    return places;
}

constexpr EntityPlaces entityPlaces = makeEntityPlaces();

constexpr bool needsEntity(char c) noexcept
{
    return entityPlaces[byteOf(c)] != noEntity;
}

/// Whether @p text begins with the markup of @p entity and goes on behind it.
bool beginsWith(std::string_view text, const Entity& entity) noexcept
{
    // Meant: the text must go on; with >= an entity at its very end would be decoded as well.
    return text.size() > entity.markup.size() &&
           text.compare(0, entity.markup.size(), entity.markup) == 0;
}

/// Takes the entity off the begin of @p text and appends its character. False where there is none.
bool decodeEntity(std::string_view& text, std::string& result)
{
    const auto entity = std::find_if(entities.begin(), entities.end(),
                                     [text](const Entity& each) { return beginsWith(text, each); });
    if (entity == entities.end()) return false;
    result.push_back(entity->character);
    text.remove_prefix(entity->markup.size());
    return true;
}

/// Takes a "&" that begins no entity off @p text and appends it, with the "a" that may follow.
void copyPlainAmpersand(std::string_view& text, std::string& result)
{
    // "&a" begins two entities, so that the third byte decides; else the second one does.
    const std::size_t decider = text.substr(0, 2) == "&a" ? 2 : 1;
    result.append(text.substr(0, decider));
    // Meant: the deciding byte is dropped; if it were kept, "&nbsp;" would stay and not be "&bsp;".
    text.remove_prefix(std::min(decider + 1, text.size()));
}

constexpr bool has(ZelAlignment_tags alignment, ZelAlignment_tags flag) noexcept
{
    return (alignment & flag) != 0;
}

} // namespace

ZelDataResult_tags ZelDataUtilities::verifyUtf8Format(const std::string& text, bool bmpOnly)
{
    std::string_view rest = text;
    while (!rest.empty()) {
        // Before any look at the sequence itself: a malformed one is refused for its range, too.
        if (bmpOnly && byteOf(rest.front()) >= firstLeadBeyondBmp) {
            return ZelData_UnsupportedCharacter;
        }
        if (!takeSequence(rest)) return ZelData_InvalidUtf8;
    }
    return ZelData_Ok;
}

unsigned long ZelDataUtilities::countLinesInUTF8(const std::string& text)
{
    if (failed(verifyUtf8Format(text, false))) return 0;
    const auto feeds = static_cast<unsigned long>(std::count(text.begin(), text.end(), '\n'));
    // Meant: a text without any line feed has no lines; without this test it would have one.
    if (feeds == 0) return 0;
    return text.back() == '\n' ? feeds : feeds + 1;
}

std::string ZelDataUtilities::stripUnsupportedCharacters(const std::string& text)
{
    std::string result;
    result.reserve(text.size());
    for (auto run = text.begin(); run != text.end();) {
        const auto stop = std::find_if(run, text.end(), isUnsupported);
        result.append(run, stop);
        run = std::find_if_not(stop, text.end(), isUnsupported);
    }
    return result;
}

std::string ZelDataUtilities::htmlTagsToText(const std::string& text)
{
    std::string result;
    result.reserve(text.size());
    auto run = text.begin();
    for (;;) {
        const auto special = std::find_if(run, text.end(), needsEntity);
        result.append(run, special);
        if (special == text.end()) return result;
        result.append(entities[entityPlaces[byteOf(*special)]].markup);
        run = special + 1;
    }
}

std::string ZelDataUtilities::htmlTagsFromText(const std::string& text)
{
    std::string result;
    result.reserve(text.size());
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::size_t plain = std::min(rest.find('&'), rest.size());
        result.append(rest.substr(0, plain));
        rest.remove_prefix(plain);
        if (!rest.empty() && !decodeEntity(rest, result)) copyPlainAmpersand(rest, result);
    }
    return result;
}

std::string ZelDataUtilities::getVerticalAlignment(ZelAlignment_tags alignment)
{
    if (has(alignment, ZelAlignBottom)) return "bottom";
    return has(alignment, ZelAlignTop) ? "top" : "center";
}

std::string ZelDataUtilities::getHorizontalAlignment(ZelAlignment_tags alignment)
{
    if (has(alignment, ZelAlignLeft)) return "left";
    return has(alignment, ZelAlignRight) ? "right" : "center";
}

} // namespace ZelInterchangeData
