#include "ZelInterchangeData/ZelDataException.h"

namespace ZelInterchangeData {

// NOLINTNEXTLINE(modernize-pass-by-value): the parameter is part of the exported name.
ZelDataException::ZelDataException(const std::string& message) : message_(message) {}

ZelDataException::~ZelDataException() = default;

const char* ZelDataException::what() const noexcept
{
    return message_.c_str();
}

} // namespace ZelInterchangeData
