#include "ZelInterchangeData/i_ZelDataResult.h"

namespace ZelInterchangeData {

i_ZelDataResult::~i_ZelDataResult() = default;

void i_ZelDataResult::setLastError(ZelDataResult_tags code) const
{
    lastError_ = code;
}

ZelDataResult_tags i_ZelDataResult::getLastError() const
{
    return lastError_;
}

} // namespace ZelInterchangeData
