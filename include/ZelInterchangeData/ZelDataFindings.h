/// @file
/// What is wrong with captions, a table of contents or screen texts.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDINGS_H
#define ZELINTERCHANGEDATA_ZELDATAFINDINGS_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFinding.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

class i_ZelDataCaptions;
class i_ZelDataScreenText;
class i_ZelDataToc;

/// @name Finding problems
/// Each replaces @p findings with everything that is wrong with the collection; the collection's
/// own isValid() reports only the first problem. For the library's own collections the list is
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

/// Describes @p finding in one line of English without a line feed, such as "caption 2 at 2000 ms:
/// too short (900 ms, at least 1000 ms)". Items are counted from 0. Control characters in a
/// language ID are escaped as in "\x0A", and so are all non-ASCII bytes if the ID is not UTF-8.
/// Returns "unknown finding" for a kind that does not exist. May throw `std::bad_alloc`.
ZELINTERCHANGEDATA_API std::string describe(const ZelDataFinding& finding);

} // namespace ZelInterchangeData

#endif
