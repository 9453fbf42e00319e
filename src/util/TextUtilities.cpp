/// @file
/// Checks and transformations of UTF-8 texts, and the alignment words.

#include "util/TextUtilities.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "util/ByteBlocks.h"

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

/// The first lead byte of the sequences for characters outside the Basic Multilingual Plane.
constexpr unsigned char firstLeadBeyondBmp = 0xF0;

constexpr int invalidLead = -1;

/// The number of continuation bytes that follow @p lead, or invalidLead.
constexpr int continuationCount(unsigned char lead) noexcept
{
    if (lead < 0x80) return 0;
    if (lead < 0xC2) return invalidLead;
    if (lead < 0xE0) return 1;
    if (lead < 0xF0) return 2;
    if (lead < 0xF8) return 3;
    // Deliberate: the old forms of five and six bytes pass; without these two lines, they would be
    // rejected.
    if (lead < 0xFC) return 4;
    if (lead < 0xFE) return 5;
    return invalidLead;
}

constexpr bool isContinuation(char c) noexcept
{
    return (byteOf(c) & 0xC0U) == 0x80U;
}

/// Returns the end of the character that begins at @p text, or null if it is incomplete.
const char* skipCharacter(const char* text, const char* end) noexcept
{
    const int count = continuationCount(byteOf(*text));
    if (count == invalidLead || end - text <= count) return nullptr;
    return std::all_of(text + 1, text + 1 + count, isContinuation) ? text + 1 + count : nullptr;
}

/// Checks sequences block by block, by the high bits of their lead bytes and continuation bytes.
class SequenceBlocks {
public:
    /// Adds a block. Returns whether it correctly continues the ones before it. No branch depends
    /// on where characters of two or three bytes are: in mixed text it would be unpredictable.
    bool addBlock(ByteBlock block) noexcept
    {
        const ByteBlock high = highBits(block);
        const ByteBlock lead = high & block << 1; // of at least two bytes, and so on
        const ByteBlock lead3 = lead & block << 2;
        const ByteBlock lead4 = lead3 & block << 3;
        ByteBlock expected = open_ | lead << 8 | lead3 << 16;
        ByteBlock neverLead = firstBelow((block & repeated(0xFE)) ^ repeated(0xC0), 1) & high;
        open_ = lead >> 56 | lead3 >> 48;
        if (lead4 != 0) { // rare, and most texts have none
            const ByteBlock lead5 = lead4 & block << 4;
            const ByteBlock lead6 = lead5 & block << 5;
            expected |= lead4 << 24 | lead5 << 32 | lead6 << 40;
            neverLead |= lead6 & block << 6;
            open_ |= lead4 >> 40 | lead5 >> 32 | lead6 >> 24;
        }
        return ((high ^ lead ^ expected) | neverLead) == 0; // the other high bytes continue
    }

private:
    ByteBlock open_ = 0; // the bytes of the next block that must continue a sequence
};

/// Whether each sequence of @p text has the continuation bytes that its lead byte requires, and
/// there are no others.
inline bool isWellFormed(std::string_view text) noexcept
{
    const char* position = text.data();
    const char* const end = position + text.size();
    const auto hasBlock = [&] { return end - position >= static_cast<std::ptrdiff_t>(blockSize); };
    while (hasBlock() && highBits(loadBlock(position)) == 0)
        position += blockSize; // ASCII
    // From here on, all blocks are added: which of them are ASCII would be unpredictable.
    SequenceBlocks sequences;
    for (; hasBlock(); position += blockSize) {
        if (!sequences.addBlock(loadBlock(position))) return false;
    }
    const ByteBlock last = lastBytes(text, static_cast<std::size_t>(end - position));
    return sequences.addBlock(last); // it ends with a zero byte, which completes no sequence
}

/// The control characters below the space, most of which XML forbids, except the line feed.
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

/// For each byte, the index of its entity, or noEntity.
using EntityPlaces = std::array<std::uint8_t, 256>;

constexpr std::uint8_t noEntity = 0xFF;

constexpr EntityPlaces makeEntityPlaces() noexcept
{
    EntityPlaces places{};
    for (std::uint8_t& place : places)
        place = noEntity; // cppcheck-suppress useStlAlgorithm ; std::fill is not constexpr in C++17
    for (std::size_t place = 0; place < entities.size(); ++place) {
        places[byteOf(entities[place].character)] = static_cast<std::uint8_t>(place);
    }
    return places;
}

constexpr EntityPlaces entityPlaces = makeEntityPlaces();

constexpr bool needsEntity(char c) noexcept
{
    return entityPlaces[byteOf(c)] != noEntity;
}

/// Sets the highest bit of the first byte of @p block that needs an entity, and perhaps more, as
/// firstBelow() does.
constexpr ByteBlock entityBits(ByteBlock block) noexcept
{
    // Two of the characters differ in one bit, and so do another two: one test covers both.
    return firstBelow(block ^ repeated('"'), 1) |
           firstBelow((block & repeated(0xFE)) ^ repeated('&'), 1) |
           firstBelow((block & repeated(0xFD)) ^ repeated('<'), 1);
}

/// Marks the bytes of @p block that need an entity; the first mark is exact.
constexpr ByteBlock needingEntity(ByteBlock block) noexcept
{
    return highBits(entityBits(block) & ~block);
}

/// Marks the bytes of @p block that need an entity or are below the space; the first mark is exact.
constexpr ByteBlock needingEntityOrControl(ByteBlock block) noexcept
{
    return highBits((entityBits(block) | firstBelow(block, ' ')) & ~block);
}

/// Returns the end of the bytes of @p text from @p position on that are written as they are. @p mark
/// marks those of a block that may not be, and @p isHarmless decides for one byte.
template <class Mark, class IsHarmless>
const char* skipHarmless(std::string_view text, const char* position, Mark mark,
                         IsHarmless isHarmless) noexcept
{
    const char* const end = text.data() + text.size();
    for (;;) {
        ByteBlock marked = 0;
        while (end - position >= static_cast<std::ptrdiff_t>(blockSize)) {
            marked = mark(loadBlock(position));
            if (marked != 0) break;
            position += blockSize;
        }
        if (marked == 0) {
            const auto left = static_cast<std::size_t>(end - position);
            marked = mark(lastBytes(text, left)); // and perhaps the zeros after them
            if (marked == 0 || bytesBeforeFirst(marked) >= left) return end;
        }
        position += bytesBeforeFirst(marked);
        if (!isHarmless(*position)) return position;
        ++position; // a line feed
    }
}

/// Whether @p text may need so many entities that their number matters.
constexpr bool isLong(std::string_view text) noexcept
{
    return text.size() >= 4096;
}

std::string_view entityFor(char character) noexcept
{
    return entities[entityPlaces[byteOf(character)]].markup;
}

/// Appends runs of harmless bytes as they are, and entities for the bytes between them that need
/// one.
template <class Out, class Mark, class IsHarmless>
void appendRuns(Out& out, std::string_view text, Mark mark, IsHarmless isHarmless)
{
    const char* position = text.data();
    const char* const end = position + text.size();
    while (position != end) {
        const char* const stop = skipHarmless(text, position, mark, isHarmless);
        out.append(std::string_view(position, static_cast<std::size_t>(stop - position)));
        for (position = stop; position != end && !isHarmless(*position); ++position) {
            if (needsEntity(*position)) out.append(entityFor(*position));
        }
    }
}

template <class Out>
void appendEscapedTo(Out& out, std::string_view text)
{
    appendRuns(out, text, needingEntity, [](char c) { return !needsEntity(c); });
}

template <class Out>
void appendEscapedStrippedTo(Out& out, std::string_view text)
{
    appendRuns(out, text, needingEntityOrControl,
               [](char c) { return !needsEntity(c) && !isUnsupported(c); });
}

/// Whether @p text begins with the markup of @p entity and continues after it.
bool beginsWith(std::string_view text, const Entity& entity) noexcept
{
    // Deliberate: the text must continue; with >=, an entity at its very end would be decoded as
    // well.
    return text.size() > entity.markup.size() &&
           text.compare(0, entity.markup.size(), entity.markup) == 0;
}

/// Removes the entity at the beginning of @p text and appends its character. Returns false if there
/// is none.
bool decodeEntity(std::string_view& text, std::string& result)
{
    const auto* const end = entities.data() + entities.size();
    const auto* const entity = std::find_if(
        entities.data(), end, [text](const Entity& each) { return beginsWith(text, each); });
    if (entity == end) return false;
    result.push_back(entity->character);
    text.remove_prefix(entity->markup.size());
    return true;
}

/// Removes a "&" that does not begin an entity from @p text and appends it, with the "a" that may
/// follow.
void copyPlainAmpersand(std::string_view& text, std::string& result)
{
    // "&a" begins two entities, so the third byte decides; otherwise the second one does.
    const std::size_t decider = text.substr(0, 2) == "&a" ? 2 : 1;
    result.append(text.substr(0, decider));
    // Deliberate: the deciding byte is dropped; otherwise "&nbsp;" would stay and not become
    // "&bsp;".
    text.remove_prefix(std::min(decider + 1, text.size()));
}

constexpr bool has(ZelAlignment_tags alignment, ZelAlignment_tags flag) noexcept
{
    return (alignment & flag) != 0;
}

} // namespace

ZelDataResult_tags ZelDataUtilities::verifyUtf8Format(const std::string& text, bool bmpOnly)
{
    return verifyUtf8(text, bmpOnly);
}

ZelDataResult_tags verifyUtf8(std::string_view text, bool bmpOnly)
{
    // For a valid text, this is faster than looking for the first error.
    if (!bmpOnly && isWellFormed(text)) return ZelData_Ok;
    const char* position = text.data();
    const char* const end = position + text.size();
    while (position != end) {
        // Checked before the sequence itself: a malformed one is rejected for its range, too.
        if (bmpOnly && byteOf(*position) >= firstLeadBeyondBmp) return ZelData_UnsupportedCharacter;
        position = skipCharacter(position, end);
        if (position == nullptr) return ZelData_InvalidUtf8;
    }
    return ZelData_Ok;
}

std::size_t sizeWithEntities(std::string_view text) noexcept
{
    std::size_t size = text.size();
    if (!isLong(text)) return size;
    for (const char c : text)
        size += needsEntity(c) ? entityFor(c).size() - 1 : 0;
    return size;
}

void appendEscaped(std::string& out, std::string_view text)
{
    if (isLong(text)) {
        TextBlock block(out); // appends many short pieces faster than a string does
        appendEscapedTo(block, text);
        block.flush();
    } else {
        appendEscapedTo(out, text);
    }
}

void appendEscaped(TextBlock& out, std::string_view text)
{
    appendEscapedTo(out, text);
}

void appendEscapedStripped(std::string& out, std::string_view text)
{
    appendEscapedStrippedTo(out, text);
}

void appendEscapedStripped(TextBlock& out, std::string_view text)
{
    appendEscapedStrippedTo(out, text);
}

bool beginsWithEntity(std::string_view text) noexcept
{
    return std::any_of(entities.begin(), entities.end(), [text](const Entity& entity) {
        return text.compare(0, entity.markup.size(), entity.markup) == 0;
    });
}

unsigned long ZelDataUtilities::countLinesInUTF8(const std::string& text)
{
    return failed(verifyUtf8Format(text, false)) ? 0 : countLines(text);
}

unsigned long countLines(std::string_view text) noexcept
{
    const auto feeds = static_cast<unsigned long>(std::count(text.begin(), text.end(), '\n'));
    // Deliberate: a text without any line feed has no lines; without this test, it would have one.
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
    result.reserve(sizeWithEntities(text));
    appendEscaped(result, text);
    return result;
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

std::string_view verticalWord(ZelAlignment_tags alignment) noexcept
{
    if (has(alignment, ZelAlignBottom)) return "bottom";
    return has(alignment, ZelAlignTop) ? "top" : "center";
}

std::string_view horizontalWord(ZelAlignment_tags alignment) noexcept
{
    if (has(alignment, ZelAlignLeft)) return "left";
    return has(alignment, ZelAlignRight) ? "right" : "center";
}

std::string ZelDataUtilities::getVerticalAlignment(ZelAlignment_tags alignment)
{
    return std::string(verticalWord(alignment));
}

std::string ZelDataUtilities::getHorizontalAlignment(ZelAlignment_tags alignment)
{
    return std::string(horizontalWord(alignment));
}

} // namespace ZelInterchangeData
