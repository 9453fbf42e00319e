/// @file
/// Compares random trees with a plain, recursive model.

#include "xml/ZelDataXmlNode.h"

#include "xml/PlainTree.h"
#include "xml/TreeVerbs.h"
#include "xml/ZelDataXmlStream.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

/// Applies the same verbs to a tree and to its model, and compares what they return.
class TwinTrees {
public:
    explicit TwinTrees(unsigned seed) : random_(seed) { known_.emplace_back(&tree_, &plain_); }

    void doSomething()
    {
        const auto [node, plain] = known_[below(known_.size())];
        switch (below(8)) {
        case 0:
            plain->currentGroup.clear();
            EXPECT_EQ(&(*node < groupVerb), node);
            break;
        case 1:
            addAttribute(*node, *plain);
            break;
        case 2:
            setText(*node, *plain);
            break;
        default:
            walk(*node, *plain);
        }
    }

    void expectTheSameText() const
    {
        std::string expected;
        for (const auto& child : plain_.children)
            appendPlainText(expected, *child);
        EXPECT_EQ(tree_.getXml(false), expected);
    }

private:
    std::size_t below(std::size_t limit)
    {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }

    std::string somePath()
    {
        static const std::vector<std::string> steps{"", "a", "b", "rdf:li", "aa"};
        std::string path = steps[below(steps.size())];
        for (std::size_t more = below(4); more > 0; --more)
            path += "/" + steps[below(steps.size())];
        return path;
    }

    void addAttribute(ZelDataXmlNode& node, PlainNode& plain)
    {
        const std::string name = somePath();
        const std::string value = std::to_string(below(1000));
        plain.attributes.emplace_back(name, value);
        EXPECT_EQ(&(node < attributeVerb < name.c_str() < value), &node);
    }

    void setText(ZelDataXmlNode& node, PlainNode& plain)
    {
        plain.text = std::to_string(below(1000));
        ZelDataXmlNode& returned = node < textVerb < plain.text;
        if (plain.parent != nullptr) {
            EXPECT_EQ(&returned, node.parent());
            expectPair(returned, *plain.parent);
        } else {
            EXPECT_NE(&returned, &node);
        }
    }

    void walk(ZelDataXmlNode& node, PlainNode& plain)
    {
        const std::string path = somePath();
        ZelDataXmlNode& returned = below(2) == 0 ? node < path.c_str() : node < path;
        expectPair(returned, plainPath(plain, path));
    }

    /// Expects that neither of the two was ever the counterpart of another node.
    void expectPair(ZelDataXmlNode& node, PlainNode& plain)
    {
        const auto toPlain = plainOf_.emplace(&node, &plain);
        const auto toNode = nodeOf_.emplace(&plain, &node);
        EXPECT_EQ(toPlain.first->second, &plain);
        EXPECT_EQ(toNode.first->second, &node);
        if (toPlain.second) known_.emplace_back(&node, &plain);
    }

    std::mt19937 random_;
    ZelDataXmlStream tree_;
    PlainNode plain_;
    std::vector<std::pair<ZelDataXmlNode*, PlainNode*>> known_;
    std::map<ZelDataXmlNode*, PlainNode*> plainOf_{{&tree_, &plain_}};
    std::map<PlainNode*, ZelDataXmlNode*> nodeOf_{{&plain_, &tree_}};
};

TEST(RandomTree, MatchesTheRecursiveModel)
{
    for (unsigned seed = 1; seed <= 400 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TwinTrees trees(seed);
        for (int step = 0; step < 150; ++step)
            trees.doSomething();
        trees.expectTheSameText();
    }
}

} // namespace
} // namespace ZelInterchangeData
