#include "ZelInterchangeData/i_ZelDataResult.h"

#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

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

i_ZelDataFormatterBase::~i_ZelDataFormatterBase() = default;

} // namespace ZelInterchangeData
