/// @file
/// A plain model of the element tree.

#ifndef ZELINTERCHANGEDATA_TESTS_XML_PLAINTREE_H
#define ZELINTERCHANGEDATA_TESTS_XML_PLAINTREE_H

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// A node of the model. A path of thousands of steps makes a tree as deep: nothing here recurses.
struct PlainNode {
    PlainNode() = default;
    PlainNode(const PlainNode&) = delete;
    PlainNode& operator=(const PlainNode&) = delete;

    ~PlainNode()
    {
        while (!children.empty()) {
            const std::unique_ptr<PlainNode> last = std::move(children.back());
            children.pop_back();
            std::move(last->children.begin(), last->children.end(), std::back_inserter(children));
            last->children.clear();
        }
    }

    PlainNode* parent = nullptr;
    /// The node of the tree that a test compares with this one.
    const void* counterpart = nullptr;
    std::string name;
    std::string text;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<std::pair<std::string, PlainNode*>> currentGroup;
    std::vector<std::unique_ptr<PlainNode>> children;
};

/// What the path verb does.
inline PlainNode& plainPath(PlainNode& node, std::string_view path)
{
    PlainNode* reached = &node;
    for (;;) {
        const std::size_t slash = path.find('/');
        const std::string_view head = path.substr(0, slash);
        const auto& group = reached->currentGroup;
        const auto known = std::find_if(group.begin(), group.end(),
                                        [&](const auto& pair) { return pair.first == head; });
        if (known != group.end()) {
            reached = known->second;
            if (slash == 0) return *reached;
        } else {
            PlainNode& made = *reached->children.emplace_back(std::make_unique<PlainNode>());
            made.parent = reached;
            made.name = head;
            reached->currentGroup.emplace_back(head, &made);
            reached = &made;
            if (slash == std::string_view::npos) return made;
        }
        if (slash != std::string_view::npos) path.remove_prefix(slash + 1);
    }
}

/// What setName() does.
inline PlainNode& plainSetName(PlainNode& node, std::string_view path)
{
    const std::size_t slash = path.find('/');
    node.name = path.substr(0, slash);
    return slash == std::string_view::npos ? node : plainPath(node, path.substr(slash + 1));
}

/// Appends to @p text what write() appends.
inline void appendPlainText(std::string& text, const PlainNode& node)
{
    std::vector<std::pair<const PlainNode*, std::size_t>> open; // with the next child of each
    const auto start = [&](const PlainNode& started) {
        text.append("<").append(started.name).append(started.attributes.empty() ? "" : " ");
        for (const auto& [name, value] : started.attributes)
            text.append(name).append("=\"").append(value).append("\" ");
        text.append(">").append(started.children.empty() ? started.text : "");
        open.emplace_back(&started, 0);
    };
    start(node);
    while (!open.empty()) {
        auto& [current, next] = open.back();
        if (next < current->children.size()) {
            start(*current->children[next++]);
        } else {
            text.append("</").append(current->name).append(">");
            open.pop_back();
        }
    }
}

} // namespace ZelInterchangeData

#endif
