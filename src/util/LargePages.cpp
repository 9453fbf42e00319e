#include "util/LargePages.h"

#include <cerrno>
#include <memory>

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

namespace ZelInterchangeData {

void reserveAtEnd(std::string& text, std::size_t more)
{
    text.reserve(text.size() + more);
#ifdef MADV_HUGEPAGE
    constexpr std::size_t largePage = 2 << 20;
    void* begin = text.data();
    std::size_t size = text.capacity();
    if (std::align(largePage, largePage, begin, size) == nullptr) return;
    const int kept = errno;
    madvise(begin, size - size % largePage, MADV_HUGEPAGE);
    errno = kept;
#endif
}

} // namespace ZelInterchangeData
