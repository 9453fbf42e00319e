/// @file
/// The kinds of findings.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDING_TAGS_H
#define ZELINTERCHANGEDATA_ZELDATAFINDING_TAGS_H

#include <cstdint>

namespace ZelInterchangeData {

/// What is wrong with a collection or with one of its items. Parentheses list the fields of
/// ZelDataFinding that a kind fills; the fields about the item are filled for every kind that
/// concerns one.
enum ZelDataFinding_tags : std::uint32_t {
    /// The frame rate of the collection is outside 1 to 10000 (value, limit).
    ZelDataFinding_FrameRateOutOfRange = 1,
    /// The font family of captions is empty.
    ZelDataFinding_FontFamilyMissing = 2,
    /// The font size of captions is outside 1 to 500 (value, limit).
    ZelDataFinding_FontSizeOutOfRange = 3,
    /// A component of a colour of captions, or their background opacity, is below 0.0 or above 1.0
    /// (property, component, limit).
    ZelDataFinding_ColorOutOfRange = 4,
    /// A caption's duration is not positive (value, limit).
    ZelDataFinding_NoDuration = 5,
    /// A caption's duration is positive and below 1000 milliseconds (value, limit).
    ZelDataFinding_TooShort = 6,
    /// A text is not UTF-8 (language, except for a screen text).
    ZelDataFinding_BadText = 7,
    /// The language ID of a text is not UTF-8, or the catalogue does not know it (language).
    ZelDataFinding_BadLanguage = 8,
    /// A caption's text has more than 4 lines, as ZelDataUtilities::countLinesInUTF8() counts them
    /// (language, value, limit).
    ZelDataFinding_TooManyLines = 9,
    /// The item has no text in a language that the collection lists (language).
    ZelDataFinding_MissingText = 10,
    /// A caption ends after the start of a later one, which does not start before it. The value is
    /// the end, the limit the later start (value, limit, laterItem, laterStart).
    ZelDataFinding_Overlap = 11,
    /// A later item starts before this one. The value is the start, the limit the later start
    /// (value, limit, laterItem, laterStart).
    ZelDataFinding_OutOfOrder = 12
};

} // namespace ZelInterchangeData

#endif
