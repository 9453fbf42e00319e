/// @file
/// Documents that meet the conditions of a well-formed packet, up to their limits.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_PACKETGENERATOR_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_PACKETGENERATOR_H

#include "hostile/PacketModel.h"

#include <cstdint>

namespace ZelInterchangeData {

/// The document of @p seed, the same one on every machine. Every seed but 0 has one.
PacketModel generatedModel(std::uint64_t seed);

} // namespace ZelInterchangeData

#endif
