#include "ZelInterchangeData/ZelDataException.h"

#include <gtest/gtest.h>

#include <memory>

namespace ZelInterchangeData {
namespace {

TEST(ZelDataException, WhatIsTheMessageOfTheConstructor)
{
    EXPECT_STREQ("Out of memory", ZelDataException("Out of memory").what());
}

TEST(ZelDataException, TheMessageIsCopied)
{
    auto message = std::make_unique<std::string>("a message too long for any short string");
    const ZelDataException exception(*message);
    message.reset();
    EXPECT_STREQ("a message too long for any short string", exception.what());
}

TEST(ZelDataException, WhatReturnsTheSamePointerWhileTheObjectLives)
{
    const ZelDataException exception("here");
    EXPECT_EQ(exception.what(), exception.what());
}

TEST(ZelDataException, IsCaughtAsAStandardException)
{
    try {
        throw ZelDataException("Out of memory");
    } catch (const std::exception& exception) {
        EXPECT_STREQ("Out of memory", exception.what());
    }
}

TEST(ZelDataException, ACopyHasTheSameMessage)
{
    const ZelDataException exception("one message for both");
    const ZelDataException copy(exception);
    EXPECT_STREQ("one message for both", copy.what());
}

} // namespace
} // namespace ZelInterchangeData
