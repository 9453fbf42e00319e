/// @file
/// Telling the library's own objects from those of callers.

#ifndef ZELINTERCHANGEDATA_UTIL_EXACTTYPE_H
#define ZELINTERCHANGEDATA_UTIL_EXACTTYPE_H

#include <typeinfo>

namespace ZelInterchangeData {

/// Returns @p object as an @p Own when it is exactly that and not of a class derived from it, else
/// null.
///
/// Compares the addresses of the type descriptions: another copy of the library in the same process
/// has classes of the same names, which need not have the same fields.
template <class Own, class Interface>
const Own* exactly(const Interface& object) noexcept
{
    return &typeid(object) == &typeid(Own) ? static_cast<const Own*>(&object) : nullptr;
}

/// The same for an object that may be changed.
template <class Own, class Interface>
Own* exactly(Interface& object) noexcept
{
    return &typeid(object) == &typeid(Own) ? static_cast<Own*>(&object) : nullptr;
}

} // namespace ZelInterchangeData

#endif
