/// @file
/// What is measured for the table of ratios.

#ifndef ZELINTERCHANGEDATA_BENCH_MEASUREMENTS_H
#define ZELINTERCHANGEDATA_BENCH_MEASUREMENTS_H

#include "bench/Documents.h"
#include "bench/HeapWatch.h"

#include <string>
#include <vector>

namespace ZelInterchangeData::bench {

/// How much work one figure takes.
struct Effort {
    /// The medians of the rounds count. Small documents have up to five times as many.
    int rounds = 9;
    /// Small documents are written several times in a turn, until they make this many captions, so
    /// that the resolution of the clock does not show.
    std::size_t captionsInTurn = 4000;
};

/// Medians over the rounds, in seconds for one document. Each includes releasing what was made in
/// it; `release` is for the caller's sets and the document object.
struct Times {
    double fill = 0;
    double set = 0;
    double write = 0;
    double release = 0;
    double appender = 0;
    double pugixml = 0;
    double tinyxml2 = 0;
    double libxml2 = 0;
};

/// One size in one order with one pair of languages.
struct Case {
    std::size_t size = 0;
    Order order = Order::ascending;
    Pair pair = Pair::enDe;
    std::size_t bytes = 0;
    Times times;
    HeapUse heap;
};

/// Library and peers take turns within each round. Throws std::runtime_error when library and
/// appender differ in size.
Case measureCase(std::size_t size, Order order, Pair pair, const Effort& effort);

/// How many times the work of one thread two threads do in the same time, each with its own
/// document.
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
