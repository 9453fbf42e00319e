/// @file
/// Other XML writers that write the same information.

#ifndef ZELINTERCHANGEDATA_BENCH_PEERS_H
#define ZELINTERCHANGEDATA_BENCH_PEERS_H

#include "bench/Documents.h"

#include <cstddef>
#include <string>

namespace ZelInterchangeData::bench {

// Each writes @p document, whose items are in the order to be written, to memory of its own and
// returns the number of bytes. If @p copy is not null, it receives the text, too. While measuring,
// it is null, so that no peer pays for a copy that its users would not make.

/// Builds the tree and saves it to a string.
std::size_t writeWithPugixml(const Document& document, std::string* copy);
/// Uses only the printer, without a tree.
std::size_t writeWithTinyxml2(const Document& document, std::string* copy);
/// Uses the text writer on a buffer.
std::size_t writeWithLibxml2(const Document& document, std::string* copy);

} // namespace ZelInterchangeData::bench

#endif
