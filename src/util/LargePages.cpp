#include "util/LargePages.h"

#include <memory>

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

namespace ZelInterchangeData {

void reserveAtEnd(std::string& text, std::size_t more)
{
    text.reserve(text.size() + more);
#ifdef MADV_HUGEPAGE
    // glibc maps each block of this size on its own and unmaps it when it is freed: a request for
    // smaller texts would apply to the small blocks that use their memory later.
    constexpr std::size_t leastSize = 32 << 20;
    constexpr std::size_t largePage = 2 << 20;
    void* begin = text.data();
    std::size_t size = text.capacity();
    if (size < leastSize || std::align(largePage, largePage, begin, size) == nullptr) return;
    madvise(begin, size - size % largePage, MADV_HUGEPAGE);
#endif
}

} // namespace ZelInterchangeData
