/// @file
/// What a file holds.

#ifndef ZELINTERCHANGEDATA_CORE_FILEPARTS_H
#define ZELINTERCHANGEDATA_CORE_FILEPARTS_H

#include <array>
#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// Parts of the contents of a file, in order.
using FileParts = std::array<std::string_view, 2>;

/// The parts of a file with @p packet, which they refer to: the XML declaration and the packet.
inline FileParts filePartsOf(const std::string& packet)
{
    // Deliberate: ends at the first zero byte; otherwise the file would contain zero bytes.
    return {R"(<?xml version="1.0" encoding="utf-8" ?>)", packet.c_str()};
}

} // namespace ZelInterchangeData

#endif
