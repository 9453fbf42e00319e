#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"

namespace ZelInterchangeData {

i_ZelDataHeaderFormatter::~i_ZelDataHeaderFormatter() = default;

} // namespace ZelInterchangeData
