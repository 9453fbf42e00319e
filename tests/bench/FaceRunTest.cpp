/// @file
/// Compares the run through the face with the run through codes.

#include "bench/FaceRun.h"
#include "bench/LibraryRun.h"

#include <gtest/gtest.h>

#include <regex>

namespace ZelInterchangeData::bench {
namespace {

std::string withoutDate(const std::string& packet)
{
    return std::regex_replace(packet, std::regex("dc:date=\"[^\"]*\""), "dc:date=\"\"");
}

TEST(FaceRun, WritesThePacketOfTheRunThroughCodes)
{
    const Document document = makeDocument(40, Order::shuffled, Pair::enDe);
    EXPECT_EQ(withoutDate(write(*set(fill(document)))), withoutDate(publishThroughFace(document)));
}

} // namespace
} // namespace ZelInterchangeData::bench
