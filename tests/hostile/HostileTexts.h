/// @file
/// Texts that a careless program would not expect.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_HOSTILETEXTS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_HOSTILETEXTS_H

#include <string>
#include <vector>

namespace ZelInterchangeData {

struct HostileText {
    /// For the reader of a failure.
    std::string name;
    std::string bytes;
};

/// The list for the tracks of a packet, when it is empty.
extern const std::string emptyTracks;

/// Markup, control characters, odd and malformed UTF-8, zero bytes, and texts of 1 MiB. None begins
/// with a language ID.
const std::vector<HostileText>& hostileTexts();

} // namespace ZelInterchangeData

#endif
