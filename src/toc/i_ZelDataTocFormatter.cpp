#include "ZelInterchangeData/i_ZelDataTocFormatter.h"

namespace ZelInterchangeData {

i_ZelDataTocFormatter::~i_ZelDataTocFormatter() = default;

} // namespace ZelInterchangeData
