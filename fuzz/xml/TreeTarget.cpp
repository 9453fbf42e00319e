/// @file
/// Compares the element tree with a plain description of its rules.

#include "support/Input.h"
#include "support/Require.h"
#include "support/Streamed.h"
#include "support/Target.h"
#include "xml/PlainTree.h"
#include "xml/TreeVerbs.h"
#include "xml/ZelDataXmlStream.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

using namespace ZelInterchangeData;
using fuzz::Input;
using fuzz::require;
using fuzz::requireEqual;
using fuzz::streamed;

namespace {

constexpr int mostSteps = 400;

/// Does the same to a tree and to its plain description, and compares what the verbs return.
class TwinTrees {
public:
    explicit TwinTrees(Input& input) : input_(input)
    {
        known_.emplace_back(&tree_, &plain_);
        plainOf_.reserve(mostSteps);
        plain_.counterpart = &tree_;
    }

    void doSomething()
    {
        const auto [node, plain] = known_[input_.below(std::min<std::size_t>(known_.size(), 256))];
        switch (input_.below(12)) {
        case 0:
            startGroup(*node, *plain);
            break;
        case 1:
            addAttribute(*node, *plain);
            break;
        case 2:
            addNamedAttribute(*node, *plain);
            break;
        case 3:
            setText(*node, *plain);
            break;
        case 4:
            setTextWithoutVerb(*node, *plain);
            break;
        case 5:
            rename(*node, *plain);
            break;
        default:
            walk(*node, *plain);
        }
    }

    void requireTheSameText() const
    {
        std::string expected;
        for (const auto& child : plain_.children)
            appendPlainText(expected, *child);
        requireEqual(expected, tree_.getXml(false), "the text of a tree");
        requireEqual("<?xml version=\"1.0\" encoding=\"utf-8\" ?>" + expected, tree_.getXml(true),
                     "the text with its declaration");
        std::string below = "before";
        known_.back().first->write(below);
        expected = "before";
        appendPlainText(expected, *known_.back().second);
        requireEqual(expected, below, "the text of an element");
    }

private:
    /// Any bytes, but no zero byte where the tree takes a C string.
    std::string word()
    {
        std::string bytes = input_.text();
        bytes.resize(std::min(bytes.size(), bytes.find('\0')));
        return bytes;
    }

    std::string path()
    {
        static const char* const steps[] = {"", "a", "b", "rdf:li", "aa", "aaa", "B"};
        const std::size_t count = input_.below(6);
        if (count == 5) return word();
        std::string path = steps[input_.below(std::size(steps))];
        for (std::size_t more = count; more > 0; --more)
            path.append("/").append(steps[input_.below(std::size(steps))]);
        return path;
    }

    void startGroup(ZelDataXmlNode& node, PlainNode& plain)
    {
        plain.currentGroup.clear();
        ZelDataXmlNode& returned = input_.flag() ? node < groupVerb : node.newGroup();
        require(&returned == &node, "a new group returns another node");
    }

    /// Sets the value through one of the verbs and returns the text that it must have then.
    std::string setValue(ZelDataXmlAttributeValue& value, const ZelDataXmlNode& owner)
    {
        const auto returnsOwner = [&](const ZelDataXmlNode& returned, std::string text) {
            require(&returned == &owner, "an attribute returns another node");
            return text;
        };
        const std::string text = word();
        const auto number = input_.number<long long>();
        const auto real = static_cast<double>(input_.raw<float>());
        switch (input_.below(6)) {
        case 0:
            return returnsOwner(value < text.c_str(), text);
        case 1:
            return returnsOwner(value < text, text);
        case 2:
            return returnsOwner(value < static_cast<int>(number),
                                streamed(static_cast<int>(number)));
        case 3:
            return returnsOwner(value < static_cast<long>(number), streamed(number));
        case 4:
            return returnsOwner(value < number, streamed(number));
        default:
            return returnsOwner(value < real, streamed(real));
        }
    }

    void addAttribute(ZelDataXmlNode& node, PlainNode& plain)
    {
        const std::string name = word();
        ZelDataXmlAttributeValue& value = node < attributeVerb < name.c_str();
        std::string text = setValue(value, node);
        requireEqual(text, value.getValue(), "the value of an attribute");
        plain.attributes.emplace_back(name, std::move(text));
    }

    void addNamedAttribute(ZelDataXmlNode& node, PlainNode& plain)
    {
        const std::string name = word();
        const auto number = input_.number<long long>();
        const bool isNumber = input_.flag();
        const std::string text = isNumber ? streamed(number) : input_.text();
        ZelDataXmlNode& returned =
            isNumber ? node.attribute(name.c_str(), number) : node.attribute(name.c_str(), text);
        require(&returned == &node, "a named attribute returns another node");
        plain.attributes.emplace_back(name, text);
    }

    /// The node that a text leads back to: the parent, or one outside the tree.
    void requireParent(ZelDataXmlNode& returned, ZelDataXmlNode& node, PlainNode& plain)
    {
        if (plain.parent == nullptr) {
            require(plainOf_.count(&returned) == 0,
                    "a text leads to a node that it must not reach");
            static_cast<void>(returned < "lost" < attributeVerb < "k" < "v"); // never written
        } else {
            require(&returned == node.parent(), "a text leads to another node than the parent");
            requirePair(returned, *plain.parent);
        }
    }

    void setText(ZelDataXmlNode& node, PlainNode& plain)
    {
        reached_.insert(&plain);
        const auto number = input_.number<long long>();
        const std::size_t form = input_.below(4);
        plain.text = form < 2 ? word() : streamed(number);
        ZelDataXmlValue& value = node < textVerb;
        ZelDataXmlNode& returned = form == 0   ? value < plain.text.c_str()
                                   : form == 1 ? value < plain.text
                                   : form == 2 ? value < number
                                               : value < static_cast<long>(number);
        requireParent(returned, node, plain);
    }

    void setTextWithoutVerb(ZelDataXmlNode& node, PlainNode& plain)
    {
        const long number = input_.number<long>();
        plain.text = streamed(number);
        ZelDataXmlNode& returned = node = number;
        if (reached_.count(&plain) != 0)
            requireParent(returned, node, plain);
        else
            require(plainOf_.count(&returned) == 0,
                    "a number leads into the tree without the verb");
    }

    void rename(ZelDataXmlNode& node, PlainNode& plain)
    {
        const std::string path = this->path();
        requirePair(node.setName(path), plainSetName(plain, path));
    }

    void walk(ZelDataXmlNode& node, PlainNode& plain)
    {
        const std::string path = this->path();
        ZelDataXmlNode& returned = input_.flag() ? node < path.c_str() : node.element(path);
        requirePair(returned, plainPath(plain, path));
    }

    /// Neither of the two may ever have been the counterpart of another node.
    void requirePair(ZelDataXmlNode& node, PlainNode& plain)
    {
        const auto [known, isNew] = plainOf_.try_emplace(&node, &plain);
        if (isNew && plain.counterpart == nullptr) plain.counterpart = &node;
        require(known->second == &plain && plain.counterpart == &node,
                "a verb returns another node");
        if (isNew) known_.emplace_back(&node, &plain);
    }

    Input& input_;
    ZelDataXmlStream tree_;
    PlainNode plain_;
    std::vector<std::pair<ZelDataXmlNode*, PlainNode*>> known_;
    std::unordered_map<ZelDataXmlNode*, PlainNode*> plainOf_{{&tree_, &plain_}};
    std::unordered_set<PlainNode*> reached_; // by the text verb
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    TwinTrees trees(input);
    for (int step = 0; step < mostSteps && !input.isEmpty(); ++step)
        trees.doSomething();
    trees.requireTheSameText();
    return 0;
}
