/// @file
/// What the tests of both promises share: how many documents they try, and how readings differ.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_PROMISE_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_PROMISE_H

#include "hostile/PacketReading.h"

#include <cstdint>
#include <string>

namespace ZelInterchangeData {

/// The documents are shared out, so that shares can run at the same time.
constexpr std::uint64_t promiseShares = 20;

/// The number of documents: the environment's, or that of the build.
std::uint64_t promisedDocuments();

/// What of @p expected a reader did not find, or found besides, or complained about; empty if
/// nothing. Items with the same start may have any order.
std::string differenceOf(const PacketReading& expected, const PacketReading& found);

} // namespace ZelInterchangeData

#endif
