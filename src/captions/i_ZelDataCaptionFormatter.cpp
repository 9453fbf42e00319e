#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"

namespace ZelInterchangeData {

i_ZelDataCaptionFormatter::~i_ZelDataCaptionFormatter() = default;

} // namespace ZelInterchangeData
