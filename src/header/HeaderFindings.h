/// @file
/// What findProblems() finds in a header.

#ifndef ZELINTERCHANGEDATA_HEADER_HEADERFINDINGS_H
#define ZELINTERCHANGEDATA_HEADER_HEADERFINDINGS_H

#include "sets/ItemFindings.h"

namespace ZelInterchangeData {

class i_ZelDataHeader;

/// Adds the findings about all of @p header but its languages, which a document does not write.
Ending findPacketProblems(const i_ZelDataHeader& header, FindingList& found);

} // namespace ZelInterchangeData

#endif
