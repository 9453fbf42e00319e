#include "util/Prefetch.h"

#include <gtest/gtest.h>

namespace ZelInterchangeData {
namespace {

/// The sanitizers notice an access to the addresses.
TEST(Prefetch, AcceptsUnreadableAddresses)
{
    const int value = 7;
    prefetch(nullptr, 0);
    prefetch(nullptr, 1000);
    prefetch(&value, sizeof(value));
    prefetch(&value, 100000);
    EXPECT_EQ(7, value);
}

} // namespace
} // namespace ZelInterchangeData
