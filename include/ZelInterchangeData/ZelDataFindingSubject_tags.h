/// @file
/// What a finding is about.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDINGSUBJECT_TAGS_H
#define ZELINTERCHANGEDATA_ZELDATAFINDINGSUBJECT_TAGS_H

#include <cstdint>

namespace ZelInterchangeData {

/// What was checked.
enum ZelDataFindingSubject_tags : std::uint32_t {
    /// Captions. Their times are in milliseconds.
    ZelDataFindingSubject_Caption = 1,
    /// A table of contents. Its times are in ticks of its frame rate.
    ZelDataFindingSubject_TocEntry = 2,
    /// Screen texts. Their times are in ticks of their frame rate.
    ZelDataFindingSubject_ScreenText = 3,
    /// A header. Its items are keywords or content names; they have no times.
    ZelDataFindingSubject_Header = 4,
    /// A document.
    ZelDataFindingSubject_Document = 5
};

} // namespace ZelInterchangeData

#endif
