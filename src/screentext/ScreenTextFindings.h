/// @file
/// What findProblems() finds in the screen texts of a document.

#ifndef ZELINTERCHANGEDATA_SCREENTEXT_SCREENTEXTFINDINGS_H
#define ZELINTERCHANGEDATA_SCREENTEXT_SCREENTEXTFINDINGS_H

#include "sets/ItemFindings.h"

namespace ZelInterchangeData {

class ZelDataScreenText;

/// Adds the findings of findProblems() for @p screenText, all of whose items are our own, and then
/// those about what a packet contains of them.
/// The table of contents has @p entries.
Ending findPacketProblems(const ZelDataScreenText& screenText, unsigned long entries,
                          FindingList& found);

} // namespace ZelInterchangeData

#endif
