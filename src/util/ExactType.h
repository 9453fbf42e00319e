/// @file
/// Distinguishes the library's own objects from those of callers.

#ifndef ZELINTERCHANGEDATA_UTIL_EXACTTYPE_H
#define ZELINTERCHANGEDATA_UTIL_EXACTTYPE_H

#include <typeinfo>

namespace ZelInterchangeData {

/// Returns @p object as an @p Own if that is exactly its class, not a base class of it; otherwise
/// null.
///
/// Compares the addresses of the type information: another copy of the library in the process has
/// classes with the same names but possibly different fields.
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
