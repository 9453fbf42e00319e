/// @file
/// The throwing form of replaceFile().

#ifndef ZELINTERCHANGEDATA_ZELDATAFILES_H
#define ZELINTERCHANGEDATA_ZELDATAFILES_H

#include "ZelInterchangeData/ZelDataCall.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataOneLine.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/ZelDataReplaceFile.h"

#include <string>
#include <system_error>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

namespace ZelDataMessages {

/// What replaceFile() throws if the system reports @p systemError for the file at @p path.
inline std::system_error fileError(const std::string& path, int systemError)
{
    return {systemError, std::system_category(),
            "replaceFile(\"" + onOneLine(path, isUtf8(path)) + "\")"};
}

} // namespace ZelDataMessages

/// Writes @p document to the file at @p path, completely or not at all: see the function of this
/// name that returns a code. If the file cannot be written, throws a `std::system_error` with the
/// system's error number, `std::system_category()` and a message such as
/// `replaceFile("talk.xmp"): No space left on device`. If there is no packet to write, throws
/// ZelDataError. May throw `std::bad_alloc`.
inline void replaceFile(const i_ZelInterchangeDataCore& document, const std::string& path,
                        ZelDataFormatType_tags format = ZelDataFormat_Xmp)
{
    int systemError = 0;
    const auto code = replaceFile(document, path, systemError, format);
    if (systemError != 0) throw ZelDataMessages::fileError(path, systemError);
    if (failed(code)) {
        throwZelDataError({"replaceFile", code, {ZelDataArgument(path), ZelDataArgument(format)}},
                          [&] { return ZelDataMessages::reasonOfWriting(document, code); });
    }
}

} // namespace ZelInterchangeData

#endif
