#include "ZelInterchangeData/ZELDataCreator.h"

#include "ZelInterchangeData/ZelDataException.h"
#include "core/ZelDataCore.h"

#include <new>

namespace ZelInterchangeData {

i_ZelInterchangeDataCore* ZELDataCreator::createInterchangeData()
{
    auto* document = new (std::nothrow) ZelDataCore;
    if (document == nullptr) throw ZelDataException("Out of memory");
    return document;
}

} // namespace ZelInterchangeData
