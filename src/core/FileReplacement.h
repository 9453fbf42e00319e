/// @file
/// Replacing a file as a whole. FileReplacementPosix.cpp and FileReplacementWindows.cpp implement
/// it.

#ifndef ZELINTERCHANGEDATA_CORE_FILEREPLACEMENT_H
#define ZELINTERCHANGEDATA_CORE_FILEREPLACEMENT_H

#include "core/FileParts.h"

#include <chrono>
#include <cstdint>
#include <iterator>
#include <string>

namespace ZelInterchangeData {

/// Makes the file at @p path hold @p parts and returns 0, or returns the number of the system's error.
/// The public replaceFile() documents what it replaces and what it leaves after a failure.
///
/// Throws `std::bad_alloc` if memory runs out; then nothing has changed. Throws nothing else, and a
/// cancelled thread ends only after it.
[[nodiscard]] int replaceFileWith(const FileParts& parts, const std::string& path);

/// How many names are tried before the folder counts as unable to take a new file.
constexpr int mostTemporaryNames = 100;

/// A name for a file that replaces another one later, in the characters of a system's paths. Each
/// call gives another name: threads differ in the address, calls in the time.
template <class Character>
std::basic_string<Character> temporaryName()
{
    constexpr char prefix[] = ".ZelInterchangeData-";
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    auto number = static_cast<std::uint64_t>(now) ^
                  (reinterpret_cast<std::uintptr_t>(&now) * 0x9E3779B97F4A7C15U);
    std::basic_string<Character> name(std::begin(prefix), std::end(prefix) - 1);
    for (int digits = 16; digits != 0; --digits, number >>= 4U)
        name += static_cast<Character>("0123456789abcdef"[number & 0xFU]);
    return name;
}

} // namespace ZelInterchangeData

#endif
