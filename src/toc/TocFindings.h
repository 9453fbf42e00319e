/// @file
/// What findProblems() finds in the table of contents of a document.

#ifndef ZELINTERCHANGEDATA_TOC_TOCFINDINGS_H
#define ZELINTERCHANGEDATA_TOC_TOCFINDINGS_H

#include "sets/ItemFindings.h"

namespace ZelInterchangeData {

class ZelDataToc;

/// Adds the findings of findProblems() for @p toc, all of whose items are our own, and then
/// those about what a packet contains of it.
Ending findPacketProblems(const ZelDataToc& toc, FindingList& found);

} // namespace ZelInterchangeData

#endif
