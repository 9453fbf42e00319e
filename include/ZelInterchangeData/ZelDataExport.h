/// @file
/// The macros that decide whether a symbol is visible outside the program or shared library that it
/// is compiled into.

#ifndef ZELINTERCHANGEDATA_ZELDATAEXPORT_H
#define ZELINTERCHANGEDATA_ZELDATAEXPORT_H

/// @def ZELINTERCHANGEDATA_API
/// Marks what the shared library exports. Empty if ZELINTERCHANGEDATA_STATIC is defined, as it
/// is for the static library, which exports nothing from the program that links it. On Windows, it
/// exports if ZELINTERCHANGEDATA_EXPORTS is defined, as it is while the shared library is compiled,
/// and otherwise imports: a program that links the static library there must define
/// ZELINTERCHANGEDATA_STATIC.

// Deliberate: the static form is empty, not "hidden"; with hidden interfaces g++ would warn about
// every class of the program that has a pointer to one. The static library itself is compiled with
// hidden visibility, which decides at link time.
#if defined(ZELINTERCHANGEDATA_STATIC)
#define ZELINTERCHANGEDATA_API
#elif defined(_WIN32) && defined(ZELINTERCHANGEDATA_EXPORTS)
#define ZELINTERCHANGEDATA_API __declspec(dllexport)
#elif defined(_WIN32)
#define ZELINTERCHANGEDATA_API __declspec(dllimport)
#elif defined(__GNUC__)
#define ZELINTERCHANGEDATA_API __attribute__((visibility("default")))
#else
#define ZELINTERCHANGEDATA_API
#endif

/// @def ZELINTERCHANGEDATA_INLINE
/// Marks what a header defines. It is compiled into the program or shared library that includes the
/// header and is invisible to every other one in the process.
#if defined(__GNUC__) && !defined(_WIN32)
#define ZELINTERCHANGEDATA_INLINE [[gnu::visibility("hidden")]]
#else
#define ZELINTERCHANGEDATA_INLINE
#endif

/// @def ZELINTERCHANGEDATA_INLINE_COPIES
/// The constructor and the copy operations that the compiler would generate for @p Interface,
/// marked.
#define ZELINTERCHANGEDATA_INLINE_COPIES(Interface)                                                \
    ZELINTERCHANGEDATA_INLINE Interface() = default;                                               \
    ZELINTERCHANGEDATA_INLINE Interface(const Interface&) = default;                               \
    ZELINTERCHANGEDATA_INLINE Interface& operator=(const Interface&) = default

#endif
