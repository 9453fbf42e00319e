/// @file
/// The entry point of every target.

#ifndef ZELINTERCHANGEDATA_FUZZ_SUPPORT_TARGET_H
#define ZELINTERCHANGEDATA_FUZZ_SUPPORT_TARGET_H

#include <cstddef>
#include <cstdint>

/// Runs one input of @p size bytes; ends the process with a finding. Always returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

#endif
