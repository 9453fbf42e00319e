/// @file
/// Objects for out-pointers.

#ifndef ZELINTERCHANGEDATA_CORE_FACTORY_H
#define ZELINTERCHANGEDATA_CORE_FACTORY_H

#include "ZelInterchangeData/ZelDataFormatType_tags.h"
#include "util/Guard.h"

#include <new>

namespace ZelInterchangeData {

/// Whether @p out can take an object: it points to a null pointer.
template <class Interface>
bool isEmptyOutPointer(Interface* const* out) noexcept
{
    return out != nullptr && *out == nullptr;
}

/// Stores a new @p Object, which the caller owns, in `*out`. #ZelData_InvalidArgument when @p out
/// cannot take one, #ZelData_OutOfMemory when none was obtained.
template <class Object, class Interface>
ZelDataResult_tags createObject(Interface** out) noexcept
{
    if (!isEmptyOutPointer(out)) return ZelData_InvalidArgument;
    return guarded([out] {
        *out = new (std::nothrow) Object;
        return *out == nullptr ? ZelData_OutOfMemory : ZelData_Ok;
    });
}

/// As createObject(), with #ZelData_UnsupportedFormat for a format other than XMP. The pointer is
/// checked first.
template <class Formatter, class Interface>
ZelDataResult_tags createFormatter(Interface** out, ZelDataFormatType_tags format) noexcept
{
    if (!isEmptyOutPointer(out)) return ZelData_InvalidArgument;
    if (format != ZelDataFormat_Xmp) return ZelData_UnsupportedFormat;
    return createObject<Formatter>(out);
}

} // namespace ZelInterchangeData

#endif
