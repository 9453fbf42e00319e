/// @file
/// The library's side of the benchmarks: fill, set, write.

#ifndef ZELINTERCHANGEDATA_BENCH_LIBRARYRUN_H
#define ZELINTERCHANGEDATA_BENCH_LIBRARYRUN_H

#include "ZelInterchangeData/ZelInterchangeData.h"
#include "bench/Documents.h"

#include <memory>
#include <string>

namespace ZelInterchangeData::bench {

/// The caller's own data objects.
struct Sets {
    std::unique_ptr<i_ZelDataHeader> header;
    std::unique_ptr<i_ZelDataCaptions> captions;
    std::unique_ptr<i_ZelDataToc> toc;
    std::unique_ptr<i_ZelDataScreenText> screenText;
};

// Each of these throws std::runtime_error if an operation fails.

/// Creates data objects that hold @p document, as an application does.
Sets fill(const Document& document);

/// The captions alone.
std::unique_ptr<i_ZelDataCaptions> fillCaptions(const Document& document);

/// The same as fill() for an application whose texts are characters: it makes a string of each one for
/// the call.
Sets fillFromCharacters(const Document& document);

/// Passes @p sets to a new document object.
std::unique_ptr<i_ZelInterchangeDataCore> set(const Sets& sets);

/// Passes a header alone to a new document object.
std::unique_ptr<i_ZelInterchangeDataCore> setHeader(const i_ZelDataHeader& header);

/// The packet of @p core, in a new string.
std::string write(const i_ZelInterchangeDataCore& core);

/// Screen texts that start at @p starts, in this order.
std::unique_ptr<i_ZelDataScreenText> screenTextAt(const std::vector<long long>& starts);

} // namespace ZelInterchangeData::bench

#endif
