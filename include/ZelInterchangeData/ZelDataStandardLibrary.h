/// @file
/// Makes the linker reject a program whose std::string or std::vector differs from the library's.
/// Both cross the interface in virtual calls, which no linker checks.

#ifndef ZELINTERCHANGEDATA_ZELDATASTANDARDLIBRARY_H
#define ZELINTERCHANGEDATA_ZELDATASTANDARDLIBRARY_H

#include "ZelInterchangeData/ZelDataExport.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// Never called. If the linker does not find this function, the program was compiled with a
/// different standard library, or with settings that change its types: with libc++, with
/// `-D_GLIBCXX_USE_CXX11_ABI=0`, with `-D_GLIBCXX_DEBUG`.
ZELINTERCHANGEDATA_API void
library_was_built_with_another_std_string_or_vector(const std::string&,
                                                    const std::vector<std::string>&) noexcept;

/// @cond
#if defined(__GNUC__)
#if defined(__ELF__) && defined(__has_attribute)
#if __has_attribute(retain)
#define ZELINTERCHANGEDATA_KEPT used, retain
#endif
#endif
#ifndef ZELINTERCHANGEDATA_KEPT
#define ZELINTERCHANGEDATA_KEPT used
#endif

// The reference that each translation unit makes: one relocation, and no code that runs.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): a constant pointer to a function.
__attribute__((ZELINTERCHANGEDATA_KEPT)) static void (*const sameStringAndVector)(
    const std::string&, const std::vector<std::string>&) noexcept =
    &library_was_built_with_another_std_string_or_vector;

#undef ZELINTERCHANGEDATA_KEPT
#endif
/// @endcond

} // namespace ZelInterchangeData

#endif
