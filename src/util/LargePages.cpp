#include "util/LargePages.h"

#ifdef __linux__
#include <cerrno>
#include <cstdint>
#include <sys/mman.h>
#endif

namespace ZelInterchangeData {

#ifdef __linux__

void preferLargePages(void* memory, std::size_t size) noexcept
{
    // Below this size the heap may hand the memory to others later; above it, it is given back whole,
    // and the hint goes with it.
    constexpr std::size_t ownMapping = std::size_t{33} << 20;
    constexpr std::uintptr_t largePage = std::uintptr_t{2} << 20;
    if (size < ownMapping) return;
    const auto address = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t begin = (address + largePage - 1) / largePage * largePage;
    const std::uintptr_t end = (address + size) / largePage * largePage;
    const int callersErrno = errno;
    static_cast<void>(
        madvise(static_cast<char*>(memory) + (begin - address), end - begin, MADV_HUGEPAGE));
    errno = callersErrno;
}

#else

void preferLargePages(void* /*memory*/, std::size_t /*size*/) noexcept {}

#endif

} // namespace ZelInterchangeData
