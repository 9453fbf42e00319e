#include "ZelInterchangeData/ZelDataVersion.h"

namespace ZelInterchangeData {

int libraryVersion() noexcept
{
    return ZELINTERCHANGEDATA_VERSION;
}

} // namespace ZelInterchangeData
