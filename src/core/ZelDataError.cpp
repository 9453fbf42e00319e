#include "ZelInterchangeData/ZelDataError.h"

namespace ZelInterchangeData {

ZelDataError::~ZelDataError() = default;

const char* ZelDataError::what() const noexcept
{
    return std::runtime_error::what();
}

} // namespace ZelInterchangeData
