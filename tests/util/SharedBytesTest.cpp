#include "util/SharedBytes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

SharedBytes bytesOf(const std::string& text)
{
    SharedBytes bytes(text.size());
    std::memcpy(bytes.mutableData(), text.data(), text.size());
    return bytes;
}

std::string textOf(const SharedBytes& bytes, std::size_t size)
{
    return {reinterpret_cast<const char*>(bytes.data()), size};
}

TEST(SharedBytes, NoBytesHaveNoAddress)
{
    const SharedBytes none;
    const SharedBytes copy(none);
    EXPECT_EQ(nullptr, none.data());
    EXPECT_EQ(nullptr, copy.data());
}

TEST(SharedBytes, HaveRoomForEachByteOfAnySize)
{
    for (std::size_t size = 1; size <= 64; ++size) {
        const std::string text(size, 'x'); // a sanitizer watches what surrounds the bytes
        EXPECT_EQ(text, textOf(bytesOf(text), size));
    }
}

TEST(SharedBytes, CopiesShareThemUntilTheLastIsDestroyed)
{
    SharedBytes last;
    {
        const SharedBytes first = bytesOf("abc");
        const SharedBytes second(first);
        EXPECT_EQ(first.data(), second.data());
        last = second;
    }
    EXPECT_EQ("abc", textOf(last, 3));
}

TEST(SharedBytes, AreAlignedForASize)
{
    const SharedBytes bytes(1);
    EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(bytes.data()) % alignof(std::size_t));
}

TEST(SharedBytes, MovingLeavesNone)
{
    SharedBytes from = bytesOf("abc");
    const SharedBytes to(std::move(from));
    EXPECT_EQ(nullptr, from.data()); // NOLINT(bugprone-use-after-move): this is what is tested
    EXPECT_EQ("abc", textOf(to, 3));
}

TEST(SharedBytes, AssigningToItselfKeepsThem)
{
    SharedBytes bytes = bytesOf("abc");
    const SharedBytes& same = bytes;
    bytes = same;
    EXPECT_EQ("abc", textOf(bytes, 3));
}

TEST(SharedBytes, PrefetchingChangesNothingAndTakesAnySize)
{
    const SharedBytes none;
    none.prefetch(1000);
    const SharedBytes bytes = bytesOf("abc");
    bytes.prefetch(1000);
    EXPECT_EQ("abc", textOf(bytes, 3));
}

TEST(SharedBytes, CanBeReleasedInSeveralThreads)
{
    for (int round = 0; round < 200; ++round) {
        std::vector<std::thread> threads;
        {
            const SharedBytes bytes = bytesOf("abc");
            for (int i = 0; i < 4; ++i) {
                threads.emplace_back([own = bytes] {
                    const SharedBytes copy(own);
                    EXPECT_EQ("abc", textOf(copy, 3));
                });
            }
        }
        for (std::thread& thread : threads)
            thread.join();
    }
}

} // namespace
} // namespace ZelInterchangeData
