#include "ZelInterchangeData/ZelDataReplaceFile.h"

#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"
#include "core/FileReplacement.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

// Deliberate: not noexcept; with it, a thread that ends in a caller's document would end the process.
// The guard lets nothing else pass.
ZelDataResult_tags replaceFile(const i_ZelInterchangeDataCore& document, const std::string& path,
                               int& systemError, ZelDataFormatType_tags format)
{
    systemError = 0;
    return guarded([&] {
        std::string packet;
        const auto written = document.writeString(packet, format, false);
        if (failed(written)) return written;
        systemError = replaceFileWith(filePartsOf(packet), path);
        return systemError == 0 ? ZelData_Ok : ZelData_FileOpenFailed;
    });
}

} // namespace ZelInterchangeData
