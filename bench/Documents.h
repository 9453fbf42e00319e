/// @file
/// The invented side data that all benchmarks write.

#ifndef ZELINTERCHANGEDATA_BENCH_DOCUMENTS_H
#define ZELINTERCHANGEDATA_BENCH_DOCUMENTS_H

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ZelInterchangeData::bench {

/// The order of starts in which the items are passed.
enum class Order { ascending, reversed, shuffled, tied };
inline constexpr std::array<Order, 4> allOrders = {Order::ascending, Order::reversed,
                                                   Order::shuffled, Order::tied};

/// The pair of languages of all texts.
enum class Pair { enDe, enJa };
inline constexpr std::array<Pair, 2> allPairs = {Pair::enDe, Pair::enJa};

std::string_view nameOf(Order order);
std::string_view nameOf(Pair pair);

/// One text for each of the document's two languages.
using Texts = std::array<std::string, 2>;

struct Caption {
    long long start = 0;
    long long duration = 0;
    Texts texts;
};

struct Thumbnail {
    std::string file;
    unsigned long index = 0;
    unsigned long long offset = 0;
};

struct Entry {
    long long start = 0;
    Texts titles;
    Thumbnail thumbnail;
};

struct ScreenText {
    long long start = 0;
    long long duration = 0;
    std::string text;
    Thumbnail thumbnail;
    unsigned long group = 0;
};

struct Header {
    std::string title;
    std::string creator;
    std::string description;
    std::string appName;
    std::string appVersion;
    std::vector<std::string> keywords;
    std::vector<std::string> contentNames;
    unsigned long length = 0;
    unsigned long width = 0;
    unsigned long height = 0;
};

struct Document {
    Header header;
    std::string tocImage;
    /// In the order in which they are listed: ascending by bytes.
    Texts languages;
    std::vector<Caption> captions;
    std::vector<Entry> entries;
    std::vector<ScreenText> screenTexts;
};

/// A document of @p captions captions, a tenth as many entries and half as many screen texts. The
/// same arguments always give the same document.
Document makeDocument(std::size_t captions, Order order, Pair pair);

/// @p document with the items in the order in which the library writes them.
Document inWrittenOrder(const Document& document);

/// @p count short texts: 0 English, 1 German with umlauts, 2 Japanese.
std::vector<std::string> makeTexts(std::size_t count, int alphabet, bool withSpecialCharacters);

/// A size that is large enough for the packet of @p document; all writers that can reserve memory
/// reserve it.
std::size_t roomFor(const Document& document);

} // namespace ZelInterchangeData::bench

#endif
