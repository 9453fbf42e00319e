/// @file
/// Objects for out-pointers.

#ifndef ZELINTERCHANGEDATA_SETS_FACTORY_H
#define ZELINTERCHANGEDATA_SETS_FACTORY_H

#include "ZelInterchangeData/ZelDataFormatType_tags.h"
#include "util/Guard.h"

#include <memory>
#include <new>
#include <utility>

namespace ZelInterchangeData {

/// Whether @p out can accept an object: it points to a null pointer.
template <class Interface>
bool isEmptyOutPointer(Interface* const* out) noexcept
{
    return out != nullptr && *out == nullptr;
}

/// Returns the object that the factory @p create stores in its out-pointer, and the code. The
/// factory may be a caller's: the object is owned even if the factory stores it and then does not
/// return.
template <class Interface, class Create>
std::pair<std::unique_ptr<Interface>, ZelDataResult_tags> receive(Create&& create)
{
    struct OutPointer {
        ~OutPointer() { delete object; }
        Interface* object = nullptr;
    } out;
    const ZelDataResult_tags code = std::forward<Create>(create)(&out.object);
    return {std::unique_ptr<Interface>(std::exchange(out.object, nullptr)), code};
}

/// Stores a new @p Object, which the caller owns, in `*out`. #ZelData_InvalidArgument if @p out
/// cannot accept one, #ZelData_OutOfMemory if memory runs out.
template <class Object, class Interface>
ZelDataResult_tags createObject(Interface** out)
{
    if (!isEmptyOutPointer(out)) return ZelData_InvalidArgument;
    return guarded([out] {
        *out = new (std::nothrow) Object;
        return *out == nullptr ? ZelData_OutOfMemory : ZelData_Ok;
    });
}

/// As createObject(), but #ZelData_UnsupportedFormat for a format other than XMP. Checks the
/// pointer first.
template <class Formatter, class Interface>
ZelDataResult_tags createFormatter(Interface** out, ZelDataFormatType_tags format)
{
    if (!isEmptyOutPointer(out)) return ZelData_InvalidArgument;
    if (format != ZelDataFormat_Xmp) return ZelData_UnsupportedFormat;
    return createObject<Formatter>(out);
}

} // namespace ZelInterchangeData

#endif
