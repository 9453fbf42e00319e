/// @file
/// The formatter of a table of contents.

#ifndef ZELINTERCHANGEDATA_I_ZELDATATOCFORMATTER_H
#define ZELINTERCHANGEDATA_I_ZELDATATOCFORMATTER_H

#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

namespace ZelInterchangeData {

class i_ZelDataToc;

/// Holds a copy of a table of contents and writes it as one `rdf:li` of the packet's track list.
///
/// - `writeString` (the flag is not used): #ZelData_InternalError for a format other than
///   #ZelDataFormat_Xmp; #ZelData_InvalidData if nothing was ever set. It makes the held copy
///   consistent first. For a table without entries, it returns #ZelData_Ok and leaves the text
///   unchanged.
/// - `writeFile` writes no file: #ZelData_InternalError for another format, the code of a failed
///   `writeString`, otherwise #ZelData_NotImplemented.
/// - `readString`, `readFile`: #ZelData_InternalError for another format, otherwise
///   #ZelData_NotImplemented.
class ZELINTERCHANGEDATA_API i_ZelDataTocFormatter : public i_ZelDataFormatterBase {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataTocFormatter);
    ~i_ZelDataTocFormatter() override;

    /// Replaces the held copy with a copy of @p toc.
    /// - The code of the failed copy (see i_ZelDataToc::copyFrom()): the held copy is incomplete.
    virtual ZelDataResult_tags setToc(const i_ZelDataToc& toc) = 0;
    /// Not supported: always #ZelData_NotImplemented.
    virtual ZelDataResult_tags getToc(i_ZelDataToc& toc) const = 0;
};

} // namespace ZelInterchangeData

#endif
