/// @file
/// Compares the runs through the faces with the run through codes.

#include "bench/FaceRun.h"
#include "bench/CFaceRun.h"
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

TEST(CFaceRun, FillsAndWritesWhatTheRunThroughCodesDoes)
{
    const Document document = makeDocument(40, Order::shuffled, Pair::enDe);
    EXPECT_EQ(40U, fillThroughC(document));
    EXPECT_EQ(withoutDate(write(*set(fill(document)))), withoutDate(publishThroughC(document)));
    EXPECT_EQ(write(*set(fill(document))).size(), write(*set(fillFromCharacters(document))).size());
}

} // namespace
} // namespace ZelInterchangeData::bench
