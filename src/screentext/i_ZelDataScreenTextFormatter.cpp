#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"

namespace ZelInterchangeData {

i_ZelDataScreenTextFormatter::~i_ZelDataScreenTextFormatter() = default;

} // namespace ZelInterchangeData
