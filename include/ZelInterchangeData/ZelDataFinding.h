/// @file
/// One thing that is wrong with a collection, a header or a document.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDING_H
#define ZELINTERCHANGEDATA_ZELDATAFINDING_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFindingSubject_tags.h"
#include "ZelInterchangeData/ZelDataFinding_tags.h"

#include <limits>
#include <string>

namespace ZelInterchangeData {

/// A problem that findProblems() found. Fields that the kind does not use keep their defaults. The
/// fields, their types and their order are part of the binary interface.
struct ZelDataFinding {
    /// Means no item.
    ZELINTERCHANGEDATA_INLINE static constexpr unsigned long noItem =
        std::numeric_limits<unsigned long>::max();

    /// @cond
    // What the compiler would generate, marked.
    ZELINTERCHANGEDATA_INLINE ZelDataFinding() = default;
    ZELINTERCHANGEDATA_INLINE ZelDataFinding(const ZelDataFinding&) = default;
    ZELINTERCHANGEDATA_INLINE ZelDataFinding(ZelDataFinding&&) = default;
    ZELINTERCHANGEDATA_INLINE ZelDataFinding& operator=(const ZelDataFinding&) = default;
    ZELINTERCHANGEDATA_INLINE ZelDataFinding& operator=(ZelDataFinding&&) = default;
    ZELINTERCHANGEDATA_INLINE ~ZelDataFinding() = default;
    /// @endcond

    /// What is wrong. 0, which is not a kind, in a new finding.
    ZelDataFinding_tags kind = static_cast<ZelDataFinding_tags>(0);
    /// What was checked. 0, which is not a kind, in a new finding.
    ZelDataFindingSubject_tags subject = static_cast<ZelDataFindingSubject_tags>(0);

    /// Index of the item, from 0 in stored order; #noItem if the finding is about the collection. In
    /// a header, the index of the keyword or content name.
    unsigned long item = noItem;
    /// The item's start, in milliseconds for captions, else in ticks; 0 in a header.
    long long start = 0;
    /// The language ID concerned, or that of the text concerned.
    std::string language;

    /// The colour component that is out of range: "foreground red", "foreground green", "foreground
    /// blue", the same with "background", or "background opacity". Otherwise the field concerned:
    /// of a header "application name", "application version", "title", "creator", "description",
    /// "keyword", "content name", "video length", "video width" or "video height"; of a collection
    /// or an item "font family", "text", "title" or "image"; of any of them "language".
    std::string property;
    /// The value of a colour component.
    float component = 0.0F;
    /// Any other value: a duration, a start or an end in the unit of #start, a number of lines, a
    /// frame rate, a font size, a group, or a place in a text in bytes from 0. A value too large for
    /// the type is replaced with its largest number.
    long long value = 0;
    /// The limit that #value or #component breaks; the limit itself is allowed.
    long long limit = 0;

    /// Index of the first later item concerned; #noItem if there is none.
    unsigned long laterItem = noItem;
    /// The start of that item, in the unit of #start.
    long long laterStart = 0;
};

} // namespace ZelInterchangeData

#endif
