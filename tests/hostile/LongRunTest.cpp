/// @file
/// What many documents, one after the other, leave behind in the memory of the process.

#include "core/TempFile.h"
#include "hostile/HostileDocuments.h"
#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#if __GLIBC_PREREQ(2, 33)
#define ZELINTERCHANGEDATA_HEAP_REPORTS
#endif
#endif

namespace ZelInterchangeData {
namespace {

/// Whether the heap counts exactly: it counts what its cache for a thread keeps as if it were in use.
bool isHeapExact()
{
    const char* tunables = std::getenv("GLIBC_TUNABLES");
    return tunables != nullptr &&
           std::string(tunables).find("glibc.malloc.tcache_count=0") != std::string::npos;
}

/// The bytes that the heap has handed out; 0 if it does not tell.
std::size_t heapInUse()
{
#ifdef ZELINTERCHANGEDATA_HEAP_REPORTS
    const auto info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
#else
    return 0;
#endif
}

/// The pages of the process that are in memory.
std::size_t residentPages()
{
    std::size_t size = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident;
}

struct Memory {
    long long blocks = liveAllocations();
    std::size_t heap = heapInUse();
    std::size_t pages = residentPages();
};

std::ostream& operator<<(std::ostream& out, const Memory& memory)
{
    return out << memory.blocks << " blocks, " << memory.heap << " bytes of the heap, "
               << memory.pages << " resident pages";
}

constexpr std::uint64_t thousand = 1000;

/// Makes, writes and destroys a thousand documents, the same each time.
void writeAThousand(const std::string& path)
{
    for (std::uint64_t seed = 1; seed <= thousand; ++seed) {
        const auto document = hostileDocument(seed);
        std::string packet;
        static_cast<void>(document->writeString(packet, ZelDataFormat_Xmp, false));
        if (seed % 10 == 0) {
            static_cast<void>(document->writeFile(path, ZelDataFormat_Xmp, false));
        }
    }
}

/// How many thousands of documents: as the environment says, otherwise a few.
std::uint64_t thousands()
{
    const char* documents = std::getenv("ZELINTERCHANGEDATA_LONG_RUN_DOCUMENTS");
    return documents != nullptr ? std::strtoull(documents, nullptr, 10) / thousand : 3;
}

TEST(LongRun, TakesNoMoreMemoryAfterTheLastDocumentThanAfterAThousand)
{
    const TempFile file;
    const std::string path = file.path();
    ASSERT_LT(1U, thousands());
    writeAThousand(path);
    const Memory first;
    for (std::uint64_t round = 1; round < thousands(); ++round)
        writeAThousand(path);
    const Memory last;
    std::cout << "after 1 thousand documents: " << first << "\nafter " << thousands()
              << " thousand: " << last << std::endl;
    EXPECT_EQ(first.blocks, last.blocks);
    if (!isHeapExact()) return;
    EXPECT_EQ(first.heap, last.heap);
    EXPECT_EQ(first.pages, last.pages);
}

} // namespace
} // namespace ZelInterchangeData
