/// @file
/// What findProblems() finds in the captions of a document.

#ifndef ZELINTERCHANGEDATA_CAPTIONS_CAPTIONFINDINGS_H
#define ZELINTERCHANGEDATA_CAPTIONS_CAPTIONFINDINGS_H

#include "sets/ItemFindings.h"

namespace ZelInterchangeData {

class ZelDataCaptions;

/// Adds the findings of findProblems() for @p captions, all of whose items are our own, and then
/// those about what a packet contains of them.
Ending findPacketProblems(const ZelDataCaptions& captions, FindingList& found);

} // namespace ZelInterchangeData

#endif
