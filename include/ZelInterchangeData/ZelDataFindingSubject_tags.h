/// @file
/// What a finding is about.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDINGSUBJECT_TAGS_H
#define ZELINTERCHANGEDATA_ZELDATAFINDINGSUBJECT_TAGS_H

#include <cstdint>

namespace ZelInterchangeData {

/// The kind of collection that was checked.
enum ZelDataFindingSubject_tags : std::uint32_t {
    /// Captions. Their times are in milliseconds.
    ZelDataFindingSubject_Caption = 1,
    /// A table of contents. Its times are in ticks of its frame rate.
    ZelDataFindingSubject_TocEntry = 2,
    /// Screen texts. Their times are in ticks of their frame rate.
    ZelDataFindingSubject_ScreenText = 3
};

} // namespace ZelInterchangeData

#endif
