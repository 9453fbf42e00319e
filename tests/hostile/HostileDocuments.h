/// @file
/// Documents that a careless or malicious caller filled, and what they hold.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_HOSTILEDOCUMENTS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_HOSTILEDOCUMENTS_H

#include "hostile/PacketModel.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace ZelInterchangeData {

/// The document of @p seed, which is not 0. Up to all of its texts are hostile, sets, sizes or
/// durations may be missing, and a set may come from a class of the caller that fails. The document
/// kept what it did not refuse.
std::unique_ptr<i_ZelInterchangeDataCore> hostileDocument(std::uint64_t seed);

/// What @p document holds, read with its getters; none if a set cannot be read.
std::optional<PacketModel> modelOf(const i_ZelInterchangeDataCore& document);

} // namespace ZelInterchangeData

#endif
