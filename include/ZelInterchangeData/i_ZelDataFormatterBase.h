/// @file
/// What the document and the formatters of the data sets have in common.

#ifndef ZELINTERCHANGEDATA_I_ZELDATAFORMATTERBASE_H
#define ZELINTERCHANGEDATA_I_ZELDATAFORMATTERBASE_H

#include "ZelInterchangeData/ZelDataFormatType_tags.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"
#include "ZelInterchangeData/i_ZelDataResult.h"

#include <string>

namespace ZelInterchangeData {

/// Writes data in a format. Reading is part of the interface but never supported.
///
/// The derived interfaces document what @p format and @p flag mean for each operation and which
/// codes it returns.
class ZELINTERCHANGEDATA_API i_ZelDataFormatterBase : public i_ZelDataResult {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataFormatterBase);
    ~i_ZelDataFormatterBase() override;

    /// Writes the data to @p out, which is unchanged on failure.
    virtual ZelDataResult_tags writeString(std::string& out, ZelDataFormatType_tags format,
                                           bool flag) const = 0;
    /// Not supported; nothing is read.
    virtual ZelDataResult_tags readString(const std::string& text, ZelDataFormatType_tags format,
                                          bool flag) = 0;
    /// Writes the data to the file at @p path. Only the document supports this.
    virtual ZelDataResult_tags writeFile(const std::string& path, ZelDataFormatType_tags format,
                                         bool flag) const = 0;
    /// Not supported; nothing is read.
    virtual ZelDataResult_tags readFile(const std::string& path, ZelDataFormatType_tags format) = 0;
};

} // namespace ZelInterchangeData

#endif
