#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

namespace ZelInterchangeData {

i_ZelInterchangeDataCore::~i_ZelInterchangeDataCore() = default;

} // namespace ZelInterchangeData
