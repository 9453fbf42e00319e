/// @file
/// Makes documents from word lists; everything random comes from seeded engines.

#include "bench/Documents.h"

#include "bench/WrittenOrder.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <utility>

namespace ZelInterchangeData::bench {

namespace {

using Words = std::vector<std::string_view>;
/// The word lists of a document's two languages.
using Lists = std::array<std::size_t, 2>;

const std::array<Words, 3>& wordLists()
{
    static const std::array<Words, 3> lists = {{
        {"the", "boat", "turns", "slowly", "under", "a", "bridge", "and", "nobody", "calls", "from",
         "that", "shore", "where", "we", "waited", "yesterday"},
        {"das", "Boot", "fährt", "über", "den", "Fluß", "und", "niemand", "hört", "später",
         "unsere", "Stimmen", "am", "grünen", "Ufer", "natürlich"},
        {"舟は", "ゆっくり", "橋の下を", "通り", "だれも", "岸から", "声を", "かけない", "きのう",
         "私たちは", "ここで", "待った"},
    }};
    return lists;
}

constexpr std::array<std::string_view, 4> specialWords = {"<i>Bo</i>", "\"Yes\"", "you & I",
                                                          "don't"};
/// The number of different starts with heavy ties. It is independent of the size, so the ties grow
/// with it.
constexpr unsigned distinctTiedStarts = 16;

/// Random numbers that are the same with every standard library, unlike the libraries' own
/// distributions and shuffles.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(engine_() % limit); }

    template <class Values>
    void shuffle(Values& values)
    {
        for (std::size_t i = values.size(); i > 1; --i)
            std::swap(values[i - 1], values[below(i)]);
    }

private:
    std::mt19937_64 engine_;
};

/// About @p length bytes of words; @p lineFeed asks for two lines.
std::string makeText(Dice& dice, const Words& words, std::size_t length, bool lineFeed,
                     bool special)
{
    std::string text;
    while (text.size() < length) {
        const bool breakHere = lineFeed && text.size() >= length / 2;
        if (!text.empty()) text += breakHere ? '\n' : ' ';
        lineFeed = lineFeed && !breakHere;
        text += words[dice.below(words.size())];
    }
    if (special) text.append(" ").append(specialWords[dice.below(specialWords.size())]);
    return text;
}

/// A text of @p list as long as one or two lines on the screen; every sixth has special characters.
std::string captionText(Dice& dice, std::size_t list)
{
    const std::size_t length = 36 + dice.below(40);
    const bool twoLines = dice.below(3) == 0;
    return makeText(dice, wordLists()[list], length, twoLines, dice.below(6) == 0);
}

/// One line of @p list: it becomes an attribute, in which writers treat line feeds differently.
std::string titleText(Dice& dice, std::size_t list)
{
    const std::size_t length = 24 + dice.below(32);
    return makeText(dice, wordLists()[list], length, false, dice.below(6) == 0);
}

std::vector<long long> makeStarts(Dice& dice, std::size_t count, Order order)
{
    std::vector<long long> starts(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto place = order == Order::tied ? dice.below(distinctTiedStarts) : i;
        starts[i] = static_cast<long long>(place) * 2500;
    }
    if (order == Order::reversed) std::reverse(starts.begin(), starts.end());
    if (order == Order::shuffled) dice.shuffle(starts);
    return starts;
}

Thumbnail makeThumbnail(std::size_t i)
{
    return {"thumbs.bin", static_cast<unsigned long>(i), static_cast<unsigned long long>(i) * 4096};
}

Header makeHeader(std::size_t captions)
{
    Header header;
    header.title = "A River & Its Bridges";
    header.creator = "Ann Bo";
    header.description = "Twelve bridges, one \"boat\"";
    header.appName = "bench";
    header.appVersion = "1.0";
    header.keywords = {"river", "bridge", "boat"};
    header.contentNames = {"river.mp4", "river-small.mp4"};
    header.length = static_cast<unsigned long>(captions * 2500 + 5000);
    header.width = 1280;
    header.height = 720;
    return header;
}

std::uint64_t seedOf(std::size_t captions, Order order, Pair pair)
{
    return captions * 8 + static_cast<std::uint64_t>(order) * 2 + static_cast<std::uint64_t>(pair);
}

void addCaptions(Document& document, Dice& dice, std::size_t count, Order order, const Lists& lists)
{
    for (const long long start : makeStarts(dice, count, order)) {
        const auto duration = 1500 + static_cast<long long>(dice.below(1000));
        // Braces evaluate from left to right, so every compiler rolls the dice in the same order.
        document.captions.push_back(
            {start, duration, {captionText(dice, lists[0]), captionText(dice, lists[1])}});
    }
}

void addEntries(Document& document, Dice& dice, std::size_t count, Order order, const Lists& lists)
{
    for (const long long start : makeStarts(dice, count, order)) {
        document.entries.push_back({start,
                                    {titleText(dice, lists[0]), titleText(dice, lists[1])},
                                    makeThumbnail(document.entries.size())});
    }
}

void addScreenTexts(Document& document, Dice& dice, std::size_t count, Order order)
{
    for (const long long start : makeStarts(dice, count, order)) {
        const auto duration = 1500 + static_cast<long long>(dice.below(1000));
        const std::size_t i = document.screenTexts.size();
        document.screenTexts.push_back({start, duration, titleText(dice, 0), makeThumbnail(i),
                                        static_cast<unsigned long>(i / 5)});
    }
}

template <class Item>
std::vector<Item> ordered(const std::vector<Item>& items)
{
    std::vector<long long> starts;
    starts.reserve(items.size());
    for (const Item& item : items)
        starts.push_back(item.start);
    std::vector<Item> result;
    result.reserve(items.size());
    for (const std::size_t index : writtenOrder(starts))
        result.push_back(items[index]);
    return result;
}

} // namespace

std::string_view nameOf(Order order)
{
    constexpr std::array<std::string_view, 4> names = {"ascending", "reversed", "shuffled", "tied"};
    return names[static_cast<std::size_t>(order)];
}

std::string_view nameOf(Pair pair)
{
    return pair == Pair::enDe ? "en+de" : "en+ja";
}

Document makeDocument(std::size_t captions, Order order, Pair pair)
{
    Dice dice(seedOf(captions, order, pair));
    const Lists lists = pair == Pair::enDe ? Lists{1, 0} : Lists{0, 2};
    Document document;
    document.header = makeHeader(captions);
    document.tocImage = "thumbs.bin";
    document.languages = pair == Pair::enDe ? Texts{"de", "en"} : Texts{"en", "ja"};
    addCaptions(document, dice, captions, order, lists);
    addEntries(document, dice, captions / 10, order, lists);
    addScreenTexts(document, dice, captions / 2, order);
    return document;
}

Document inWrittenOrder(const Document& document)
{
    Document result = document;
    result.captions = ordered(document.captions);
    result.entries = ordered(document.entries);
    result.screenTexts = ordered(document.screenTexts);
    return result;
}

std::vector<std::string> makeTexts(std::size_t count, int alphabet, bool withSpecialCharacters)
{
    Dice dice(static_cast<std::uint64_t>(alphabet) + 1);
    const Words& words = wordLists()[static_cast<std::size_t>(alphabet)];
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t length = 36 + dice.below(40);
        const bool special = withSpecialCharacters && dice.below(6) == 0;
        texts.push_back(makeText(dice, words, length, dice.below(3) == 0, special));
    }
    return texts;
}

std::size_t roomFor(const Document& document)
{
    return 4096 + document.captions.size() * 500 + document.entries.size() * 280 +
           document.screenTexts.size() * 320;
}

} // namespace ZelInterchangeData::bench
