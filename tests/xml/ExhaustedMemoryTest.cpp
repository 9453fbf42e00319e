/// @file
/// Each verb when memory runs out: the tree stays whole and nothing leaks.

#include "support/FailingAllocation.h"
#include "xml/TreeVerbs.h"
#include "xml/ZelDataXmlStream.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>

namespace ZelInterchangeData {
namespace {

/// Too long for any string to hold it without an allocation.
const char* const longName = "a-name-that-is-too-long-to-be-kept-inside-a-string-object";

/// Makes each allocation of @p verb fail in turn, each time on a new tree with a child "first", then
/// passes the tree and its earlier text to @p check. Returns the number of failures.
///
/// A tree allocates its memory in pieces. The name of an attribute fills more and more of the first
/// piece, so that the piece runs out at each place where the verb needs memory.
template <class Verb, class Check>
std::size_t failAtEachAllocation(const Verb& verb, const Check& check)
{
    std::size_t failures = 0;
    for (std::size_t used = 0; used < 4500; used += 8) {
        for (std::size_t granted = 0;; ++granted) {
            SCOPED_TRACE("used: " + std::to_string(used) + ", granted: " + std::to_string(granted));
            const long long before = liveAllocations();
            auto tree = std::make_unique<ZelDataXmlStream>();
            tree->element("first").attribute(std::string(used, 'n').c_str(), "");
            const std::string text = tree->getXml(false);
            if (!runsOutOfMemory(granted, [&] { verb(*tree); })) break;
            ++failures;
            check(*tree, text);
            tree.reset();
            EXPECT_EQ(liveAllocations() - 1, before) << "only the text is left";
        }
    }
    return failures;
}

TEST(ExhaustedMemory, ANewChildIsBothFoundAndWrittenOrNeither)
{
    const std::string made = std::string("<") + longName + "></" + longName + ">";
    const auto failures =
        failAtEachAllocation([](ZelDataXmlStream& tree) { tree < longName; },
                             [&](ZelDataXmlStream& tree, const std::string& first) {
                                 EXPECT_EQ(tree.getXml(false), first);
                                 tree < longName;
                                 EXPECT_EQ(tree.getXml(false), first + made);
                             });
    EXPECT_GE(failures, 4U);
}

TEST(ExhaustedMemory, APathIsMadeAsFarAsMemoryReaches)
{
    const auto failures =
        failAtEachAllocation([](ZelDataXmlStream& tree) { tree < "a/b/c"; },
                             [](ZelDataXmlStream& tree, const std::string& first) {
                                 const std::string text = tree.getXml(false);
                                 EXPECT_TRUE(text == first || text == first + "<a></a>" ||
                                             text == first + "<a><b></b></a>")
                                     << text;
                                 tree < "a/b/d";
                                 EXPECT_EQ(tree.getXml(false), first + "<a><b><d></d></b></a>");
                             });
    EXPECT_GE(failures, 9U);
}

TEST(ExhaustedMemory, ANewGroupTakesNoMemory)
{
    ZelDataXmlStream tree;
    tree.element("first");
    EXPECT_FALSE(runsOutOfMemory(0, [&] { tree < groupVerb; }));
    tree < "first";
    EXPECT_EQ(tree.getXml(false), "<first></first><first></first>");
}

TEST(ExhaustedMemory, AnAttributeThatCannotBeMadeIsNotAdded)
{
    const auto failures =
        failAtEachAllocation([](ZelDataXmlStream& tree) { tree < attributeVerb; },
                             [](ZelDataXmlStream& tree, const std::string& first) {
                                 EXPECT_EQ(written(tree), "<>" + first + "</>");
                             });
    EXPECT_GE(failures, 2U);
}

TEST(ExhaustedMemory, ANamedAttributeIsWritableAtEachStage)
{
    const auto failures = failAtEachAllocation(
        [](ZelDataXmlStream& tree) { tree.attribute(longName, longName); },
        [](ZelDataXmlStream& tree, const std::string& first) {
            const std::string text = written(tree);
            EXPECT_TRUE(text == "<>" + first + "</>" || text == "< =\"\" >" + first + "</>" ||
                        text == std::string("< ") + longName + "=\"\" >" + first + "</>")
                << text;
        });
    EXPECT_GE(failures, 4U);
}

TEST(ExhaustedMemory, ATextThatCannotBeStoredLeavesTheOldOne)
{
    ZelDataXmlNode node(nullptr);
    ZelDataXmlNode child(&node);
    child.text("old");
    EXPECT_TRUE(runsOutOfMemory(0, [&] { child < textVerb < longName; }));
    EXPECT_EQ(written(child), "<>old</>");
}

TEST(ExhaustedMemory, SettingTheTextOfARootLeavesTheTreeAsItWas)
{
    const auto failures =
        failAtEachAllocation([](ZelDataXmlStream& tree) { (tree = 5L) < "lost"; },
                             [](ZelDataXmlStream& tree, const std::string& first) {
                                 (tree = 5L) < "lost";
                                 EXPECT_EQ(tree.getXml(false), first);
                             });
    EXPECT_GE(failures, 1U);
}

TEST(ExhaustedMemory, WritingLeavesTheTreeAsItWas)
{
    const auto failures = failAtEachAllocation(
        [](ZelDataXmlStream& tree) { const std::string text = tree.getXml(true); },
        [](ZelDataXmlStream& tree, const std::string& first) {
            EXPECT_EQ(tree.getXml(false), first);
        });
    EXPECT_GE(failures, 2U);
}

TEST(ExhaustedMemory, ADeepTreeIsDestroyedWithoutAnyAllocation)
{
    std::string path = "a";
    for (int step = 0; step < 1000; ++step)
        path += "/a";
    auto tree = std::make_unique<ZelDataXmlStream>();
    tree->element(path);
    EXPECT_FALSE(runsOutOfMemory(0, [&] { tree.reset(); }));
}

TEST(ExhaustedMemory, ReplacingLeavesTheSubjectAsItWas)
{
    std::string subject = "a-b-c";
    const std::string from = "-";
    const std::string to = longName;
    EXPECT_TRUE(runsOutOfMemory(0, [&] { replaceAll(subject, from, to); }));
    EXPECT_EQ(subject, "a-b-c");
}

} // namespace
} // namespace ZelInterchangeData
