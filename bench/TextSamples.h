/// @file
/// The texts of the text benchmarks, and passes over them with the library's functions.

#ifndef ZELINTERCHANGEDATA_BENCH_TEXTSAMPLES_H
#define ZELINTERCHANGEDATA_BENCH_TEXTSAMPLES_H

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace ZelInterchangeData::bench {

struct TextSample {
    const char* name;
    std::vector<std::string> texts;
    std::size_t bytes;
};

/// Texts of caption length: ASCII, Latin and CJK, in this order.
std::array<TextSample, 3> utf8Samples();
/// Texts of caption length in all three, every sixth with special characters.
TextSample captionSample();
/// One long text of characters that all become entities; the number of bytes is that of the
/// entities.
TextSample entitySample();

/// A pass over all texts. Use the result, so that the compiler cannot remove a call.
std::size_t countValid(const TextSample& sample);
std::size_t countValidPlainly(const TextSample& sample);

/// A pass over all texts that escapes and strips each into @p out; returns the bytes written.
std::size_t escapeAll(const TextSample& sample, std::string& out);
std::size_t escapeAllPlainly(const TextSample& sample, std::string& out);

} // namespace ZelInterchangeData::bench

#endif
