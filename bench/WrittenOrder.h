/// @file
/// The order in which items are written, determined independently of the library.

#ifndef ZELINTERCHANGEDATA_BENCH_WRITTENORDER_H
#define ZELINTERCHANGEDATA_BENCH_WRITTENORDER_H

#include <cstddef>
#include <vector>

namespace ZelInterchangeData::bench {

/// The indices of @p starts in the order that an exchange sort leaves, ties included, without its
/// quadratic time. It prepares benchmarks and is not fast itself.
std::vector<std::size_t> writtenOrder(const std::vector<long long>& starts);

} // namespace ZelInterchangeData::bench

#endif
