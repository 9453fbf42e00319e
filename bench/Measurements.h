/// @file
/// The measurements for the table of ratios.

#ifndef ZELINTERCHANGEDATA_BENCH_MEASUREMENTS_H
#define ZELINTERCHANGEDATA_BENCH_MEASUREMENTS_H

#include "bench/Documents.h"
#include "bench/HeapWatch.h"

#include <optional>
#include <string>
#include <vector>

namespace ZelInterchangeData::bench {

/// How much work to do for each figure.
struct Effort {
    /// The number of rounds, of which the median counts; up to five times as many for small
    /// documents.
    int rounds = 9;
    /// A turn writes a small document repeatedly, until it has written this many captions, so that
    /// the resolution of the clock does not matter.
    std::size_t captionsInTurn = 4000;
};

/// Medians over the rounds, in seconds for one document. Each includes releasing what it created,
/// except that `fill` and `set` leave the caller's sets and the document object to `allSteps`.
struct Times {
    double fill = 0;
    double set = 0;
    double write = 0;
    double allSteps = 0;           // fill, set, write and release
    double fillFromCharacters = 0; // with the release, as fillThroughC
    double fillThroughC = 0;
    double appender = 0;
    double pugixml = 0;
    double tinyxml2 = 0;
    double libxml2 = 0;
};

/// Medians of single writes, in seconds, with other writers before each of them: they fill the caches
/// with their own code and data, as the rest of a program does that writes one packet.
struct ColdTimes {
    double write = 0;
    double appender = 0;
};

/// The size that is written cold.
constexpr std::size_t coldSize = 100;

/// One size in one order with one pair of languages.
struct Case {
    std::size_t size = 0;
    Order order = Order::ascending;
    Pair pair = Pair::enDe;
    std::size_t bytes = 0;
    Times times;
    HeapUse heap;
    std::optional<ColdTimes> cold; // of documents of coldSize captions
};

/// Library and peers take turns in each round. Throws std::runtime_error if the packets of library
/// and appender differ in size.
Case measureCase(std::size_t size, Order order, Pair pair, const Effort& effort);

/// Calls of operator new.
struct Allocations {
    /// In a write of a document that has only a header.
    double headerWrite = 0;
    /// While filling, for each caption: to create it, set two texts and the times, add and destroy it.
    double filledCaption = 0;
};

Allocations measureAllocations();

/// How much work two threads do, each with its own document, as a multiple of one thread's in the
/// same time.
struct ThreadGains {
    double library = 0;
    double appender = 0;
};

ThreadGains measureThreads(const Effort& effort);

/// The speed of a text function.
struct TextSpeed {
    std::string name;
    double bytesPerSecond = 0;
    /// As a multiple of the byte-by-byte loop's speed.
    double timesPlain = 0;
};

/// The UTF-8 check on ASCII, Latin and CJK texts, then escaping with stripping.
std::vector<TextSpeed> measureTexts(const Effort& effort);

} // namespace ZelInterchangeData::bench

#endif
