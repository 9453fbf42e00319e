/// @file
/// What is wrong with captions, a table of contents, screen texts, a header or a document.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDINGS_H
#define ZELINTERCHANGEDATA_ZELDATAFINDINGS_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFinding.h"
#include "ZelInterchangeData/ZelDataFindingSeverity_tags.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

class i_ZelDataCaptions;
class i_ZelDataHeader;
class i_ZelDataScreenText;
class i_ZelDataToc;
class i_ZelInterchangeDataCore;

/// @name Finding problems of a collection
/// Each replaces @p findings with every problem that `isValid(true)` looks for; `isValid(true)`
/// itself reports only the first one. For the library's own collections the list is
/// empty if and only if `isValid(true)` returns ZelData_Ok; otherwise the first finding is the one
/// whose code `isValid(true)` returns.
///
/// The findings about the collection itself come first, then those about the items in stored order.
/// Those about one item come in this order: duration, its texts by language, missing texts in the
/// order of the collection's languages, order and overlap. An item has at most one finding of these
/// last two kinds; it names the first later item concerned.
///
/// These functions take n log n steps for n items. They only call getters of the collection and its
/// items, so any implementation works. The getters store a last error, the functions do not.
/// - The code of a getter of the collection or of an item that fails.
/// - ZelData_InternalError: the collection returns a null pointer for an item, or the caller's
///   implementation throws an exception other than `std::bad_alloc`.
/// - ZelData_OutOfMemory.
///
/// On failure, @p findings is unchanged.
/// @{

/// Checks styling, durations, texts, languages, order and overlap of captions.
ZELINTERCHANGEDATA_API ZelDataResult_tags findProblems(const i_ZelDataCaptions& captions,
                                                       std::vector<ZelDataFinding>& findings);
/// Checks frame rate, texts, languages and order of the entries of a table of contents.
ZELINTERCHANGEDATA_API ZelDataResult_tags findProblems(const i_ZelDataToc& toc,
                                                       std::vector<ZelDataFinding>& findings);
/// Checks frame rate, texts and order of screen texts. A screen text may have no duration and may
/// overlap others.
ZELINTERCHANGEDATA_API ZelDataResult_tags findProblems(const i_ZelDataScreenText& screenText,
                                                       std::vector<ZelDataFinding>& findings);
/// @}

/// @name Finding problems of the packet
/// Each replaces @p findings with errors and warnings; severityOf() tells which a finding is. With
/// an error, the document cannot be written or its packet cannot be read. A warning is about
/// something that you probably did not want.
///
/// If findProblems() finds no error in a document of the library, `writeString` returns ZelData_Ok
/// unless memory runs out, the packet is well-formed XML, and an XML parser returns every value of
/// the document, except those that the format leaves out or changes.
///
/// They do not look at
/// - what is not written: the titles of entries in other languages than the table's first, the
///   styling or image of a collection without items and, in a document, the languages of the header;
/// - whether a value is right: spelling, files that exist, times after the end of the video;
/// - lengths: an XML parser may refuse a text of some megabytes;
/// - the codes that the document's setters returned: a set that was copied in part is checked as it
///   is now.
///
/// They only call getters, so any implementation works. The getters store a last error, the
/// functions do not. They take n log n steps for n items.
/// - The code of a getter that fails, or of a copy that a document fails to make.
/// - ZelData_InternalError: the caller's implementation throws an exception other than
///   `std::bad_alloc`.
/// - ZelData_OutOfMemory.
///
/// On failure, @p findings is unchanged.
/// @{

/// Checks sizes, texts, content names and languages of a header. The findings come in this order:
/// missing sizes; application name and version, title, creator, description, keywords and content
/// names, each with its faults in the order of ZelDataFinding_tags; content names listed twice;
/// languages.
///
/// For the library's own headers, `isValid()` fails if and only if a size is missing. The faults of
/// languages concern the packet that a header formatter writes; a document writes others.
ZELINTERCHANGEDATA_API ZelDataResult_tags findProblems(const i_ZelDataHeader& header,
                                                       std::vector<ZelDataFinding>& findings);
/// Checks the header, the captions, the table of contents and the screen texts, in this order; only
/// the header must exist. For each collection, the findings of its own findProblems() come first,
/// then those that only this function reports: about the collection, and about its items in stored
/// order.
///
/// It copies each set of @p document with `getDataHeader` and its counterparts. The library's own
/// document never holds a caption without a duration or a language listed twice, because it does not
/// accept such a set.
ZELINTERCHANGEDATA_API ZelDataResult_tags findProblems(const i_ZelInterchangeDataCore& document,
                                                       std::vector<ZelDataFinding>& findings);
/// @}

/// @name About one finding
/// @{

/// The name of @p kind ("ZelDataFinding_TooShort"), "ZelDataFinding_Unknown" for a value that is not
/// a kind. Never null; valid until the library is unloaded.
ZELINTERCHANGEDATA_API const char* toString(ZelDataFinding_tags kind) noexcept;

/// How serious @p finding is: ZelDataFindingSeverity_Error if the document does not accept or does
/// not write what it is about, or if its packet is not read; otherwise, and for a kind that does not
/// exist, ZelDataFindingSeverity_Warning.
ZELINTERCHANGEDATA_API ZelDataFindingSeverity_tags
severityOf(const ZelDataFinding& finding) noexcept;

/// The code that `isValid(true)` of the collection, or `isValid()` of the header, returns if @p
/// finding is the first one; ZelData_Ok for a kind that they do not look at or that does not exist.
/// It says nothing about the packet: see severityOf().
ZELINTERCHANGEDATA_API ZelDataResult_tags codeOf(const ZelDataFinding& finding) noexcept;

/// Describes @p finding in one line of English without a line feed, such as "caption 2 at 2000 ms:
/// too short (900 ms, at least 1000 ms)". Items are counted from 0. Control characters in a
/// language ID are escaped as in "\x0A", and so are all non-ASCII bytes if the ID is not UTF-8.
/// For a kind that does not exist, it says "unknown finding" after the place. May throw
/// `std::bad_alloc`.
ZELINTERCHANGEDATA_API std::string describe(const ZelDataFinding& finding);
/// @}

} // namespace ZelInterchangeData

#endif
