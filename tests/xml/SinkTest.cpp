/// @file
/// The node that replaces a missing one.

#include "xml/Sink.h"

#include "support/FailingAllocation.h"
#include "xml/TreeVerbs.h"
#include "xml/ZelDataXmlStream.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace ZelInterchangeData {
namespace {

TEST(Sink, EveryPathReturnsTheSink)
{
    Sink sink;
    ZelDataXmlNode& node = sink;
    const char* none = nullptr;
    EXPECT_EQ(&(node < "a/b/c"), &node);
    EXPECT_EQ(&(node < std::string("a")), &node);
    EXPECT_EQ(&(node < none), &node);
    EXPECT_EQ(&node.element("a"), &node);
    EXPECT_EQ(&node.setName("a/b"), &node);
    EXPECT_EQ(written(node), "<a></a>");
}

TEST(Sink, IsItsOwnParent)
{
    Sink sink;
    EXPECT_EQ(sink.parent(), &sink);
    EXPECT_EQ(&sink.text("t"), &sink);
}

TEST(Sink, EveryOtherVerbReturnsTheSink)
{
    Sink sink;
    ZelDataXmlNode& node = sink;
    EXPECT_EQ(&(node = 5L), &node);
    EXPECT_EQ(&(node < groupVerb), &node);
    EXPECT_EQ(&(node < attributeVerb < "k" < "v"), &node);
    EXPECT_EQ(&(node < textVerb < "t"), &node);
}

TEST(Sink, ReplacesANullNodeAndIsMadeOnce)
{
    std::unique_ptr<ZelDataXmlNode> sink;
    ZelDataXmlNode& made = orSink(nullptr, sink);
    EXPECT_EQ(&made, sink.get());
    EXPECT_EQ(&orSink(nullptr, sink), &made);
}

TEST(Sink, IsNotMadeForAnExistingNode)
{
    ZelDataXmlNode node(nullptr);
    std::unique_ptr<ZelDataXmlNode> sink;
    EXPECT_EQ(&orSink(&node, sink), &node);
    EXPECT_EQ(sink, nullptr);
}

TEST(Sink, AnExpressionOfAnyLengthNeedsOnlyOne)
{
    ZelDataXmlStream root;
    ZelDataXmlNode* node = &(root.element("a") = 1L);
    const long long before = liveAllocations();
    for (int step = 0; step < 1000000; ++step)
        node = &(node->element("deeper") = 1L);
    EXPECT_EQ(liveAllocations(), before);
    EXPECT_EQ(root.getXml(false), "<a>1</a>");
}

} // namespace
} // namespace ZelInterchangeData
