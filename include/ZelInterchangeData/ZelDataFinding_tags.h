/// @file
/// The kinds of findings.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDING_TAGS_H
#define ZELINTERCHANGEDATA_ZELDATAFINDING_TAGS_H

#include <cstdint>

namespace ZelInterchangeData {

/// What is wrong with a collection or with one of its items. Parentheses list the fields of
/// ZelDataFinding that a kind fills; the fields about the item are filled for every kind that
/// concerns one. Only findProblems() for a header or for a document reports the kinds from
/// #ZelDataFinding_HeaderMissing on.
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
    /// The language ID of a text or of a header is not UTF-8, or the catalogue does not know it
    /// (language).
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
    ZelDataFinding_OutOfOrder = 12,
    /// The document has no header.
    ZelDataFinding_HeaderMissing = 13,
    /// The video length, video width or video height of the header is 0 (property).
    ZelDataFinding_SizeMissing = 14,
    /// A language (property, language) or content name (property, item) is listed before.
    ZelDataFinding_ListedTwice = 15,
    /// A text that is written as given has `"`, `<`, or `&` that does not begin a reference to one
    /// of the five entities or to a character (property, language; value: the place of the first
    /// one in the text, in bytes).
    ZelDataFinding_NotEscaped = 16,
    /// A text that is not stripped has a control character other than tab, line feed and carriage
    /// return (property, language; value: as for #ZelDataFinding_NotEscaped).
    ZelDataFinding_ControlCharacter = 17,
    /// A text is not strict UTF-8: it has a malformed or overlong sequence, a surrogate, or a
    /// character above U+10FFFF (property, language; value: as for #ZelDataFinding_NotEscaped).
    ZelDataFinding_NotStrictUtf8 = 18,
    /// A text has U+FFFE or U+FFFF (property, language; value: as for #ZelDataFinding_NotEscaped).
    ZelDataFinding_ForbiddenCharacter = 19,
    /// A collection of the document has no items, so the packet has no track for it.
    ZelDataFinding_NoItems = 20,
    /// A caption has no text in any language.
    ZelDataFinding_NoText = 21,
    /// The text of a caption is empty once control characters are stripped, so the packet has a
    /// placeholder instead (language).
    ZelDataFinding_EmptyText = 22,
    /// The table of contents has no entry with the number in a screen text's group. The value is
    /// the group, the limit the last number; -1 if there are no entries (value, limit).
    ZelDataFinding_EntryMissing = 23,
    /// The frame rate of a collection is not 1000, so its times are not milliseconds (value, limit).
    ZelDataFinding_NotMilliseconds = 24
};

} // namespace ZelInterchangeData

#endif
