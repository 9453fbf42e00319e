#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

namespace ZelInterchangeData {

i_ZelDataFormatterBase::~i_ZelDataFormatterBase() = default;

} // namespace ZelInterchangeData
