/// @file
/// What is wrong with captions, a table of contents or screen texts.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDINGS_H
#define ZELINTERCHANGEDATA_ZELDATAFINDINGS_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFinding.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

class i_ZelDataCaptions;
class i_ZelDataScreenText;
class i_ZelDataToc;

/// @name Finding problems
/// Each replaces @p findings with everything that is wrong with the collection, where the
/// collection's own isValid() gives the first thing alone. Of the library's own collections there
/// are no findings exactly when `isValid(true)` gives ZelData_Ok, and the first finding is the one
/// whose code it gives.
///
/// First come the findings on the collection itself, then those on the items in stored order. Those
/// on one item come in the order duration, its texts by language, missing texts in the order of the
/// collection's languages, order and overlap. Of these last two an item has at most one finding; it
/// names the first later item concerned.
///
/// The time needed grows with n log n in the number of items. The collection is only read, through
/// its interface, so any implementation will do; as with every getter, its last error is set. The
/// functions store no last error of their own.
/// - The code of a getter of the collection or of an item that fails, as that getter returns it.
/// - ZelData_InternalError: the collection hands out a null pointer for an item, or an
///   implementation of the caller's throws an exception other than `std::bad_alloc`.
/// - ZelData_OutOfMemory.
///
/// On failure @p findings stays as it was.
/// @{

/// Looks at styling, durations, texts, languages, order and overlap of captions.
ZELINTERCHANGEDATA_API ZelDataResult_tags findProblems(const i_ZelDataCaptions& captions,
                                                       std::vector<ZelDataFinding>& findings);
/// Looks at frame rate, texts, languages and order of the entries of a table of contents.
ZELINTERCHANGEDATA_API ZelDataResult_tags findProblems(const i_ZelDataToc& toc,
                                                       std::vector<ZelDataFinding>& findings);
/// Looks at frame rate, texts and order of screen texts. A screen text may have no duration and may
/// overlap others.
ZELINTERCHANGEDATA_API ZelDataResult_tags findProblems(const i_ZelDataScreenText& screenText,
                                                       std::vector<ZelDataFinding>& findings);
/// @}

/// @p finding in one line of English without a line feed, such as
/// "caption 2 at 2000 ms: too short (900 ms, at least 1000 ms)". Items are counted from 0, as
/// everywhere. Control characters of a language ID, and all bytes beyond ASCII of one that is not
/// UTF-8, stand as "\x0A". "unknown finding" for a kind that is none. Lets `std::bad_alloc` through.
ZELINTERCHANGEDATA_API std::string describe(const ZelDataFinding& finding);

} // namespace ZelInterchangeData

#endif
