/// @file
/// The formatter of screen text.

#ifndef ZELINTERCHANGEDATA_I_ZELDATASCREENTEXTFORMATTER_H
#define ZELINTERCHANGEDATA_I_ZELDATASCREENTEXTFORMATTER_H

#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

namespace ZelInterchangeData {

class i_ZelDataScreenText;

/// Holds a copy of screen text and writes it as one `rdf:li` of the packet's track list.
///
/// - `writeString` (the flag is not used): #ZelData_InternalError for a format other than
///   #ZelDataFormat_Xmp; #ZelData_InvalidData if nothing was ever set. It makes the held copy
///   consistent first. For a collection without items, it returns #ZelData_Ok and leaves the text
///   unchanged.
/// - `writeFile` writes no file: #ZelData_InternalError for another format, the code of a failed
///   `writeString`, otherwise #ZelData_NotImplemented.
/// - `readString`, `readFile`: #ZelData_InternalError for another format, otherwise
///   #ZelData_NotImplemented.
class ZELINTERCHANGEDATA_API i_ZelDataScreenTextFormatter : public i_ZelDataFormatterBase {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataScreenTextFormatter);
    ~i_ZelDataScreenTextFormatter() override;

    /// Replaces the held copy with a copy of @p screenText.
    /// - The code of the failed copy (see i_ZelDataScreenText::copyFrom()): the held copy is
    ///   incomplete.
    virtual ZelDataResult_tags setScreenText(const i_ZelDataScreenText& screenText) = 0;
    /// Not supported: always #ZelData_NotImplemented.
    virtual ZelDataResult_tags getScreenText(i_ZelDataScreenText& screenText) const = 0;
};

} // namespace ZelInterchangeData

#endif
