/// @file
/// A plain, recursive model of the element tree.

#ifndef ZELINTERCHANGEDATA_TESTS_XML_PLAINTREE_H
#define ZELINTERCHANGEDATA_TESTS_XML_PLAINTREE_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// A node of the model.
struct PlainNode {
    PlainNode* parent = nullptr;
    /// The node of the tree that a test compares with this one.
    const void* counterpart = nullptr;
    std::string name;
    std::string text;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<std::pair<std::string, PlainNode*>> currentGroup;
    std::vector<std::unique_ptr<PlainNode>> children;
};

inline PlainNode& plainPath(PlainNode& node, std::string_view path);

/// What setName() does.
inline PlainNode& plainSetName(PlainNode& node, std::string_view path)
{
    const std::size_t slash = path.find('/');
    node.name = path.substr(0, slash);
    return slash == std::string_view::npos ? node : plainPath(node, path.substr(slash + 1));
}

/// What the path verb does.
inline PlainNode& plainPath(PlainNode& node, std::string_view path)
{
    const std::size_t slash = path.find('/');
    const std::string_view head = path.substr(0, slash);
    const std::string_view rest = slash == std::string_view::npos ? path : path.substr(slash + 1);
    for (const auto& [name, child] : node.currentGroup) {
        if (name != head) continue;
        if (slash == 0) return *child;
        return plainPath(*child, rest);
    }
    node.children.push_back(std::make_unique<PlainNode>());
    PlainNode& made = *node.children.back();
    made.parent = &node;
    node.currentGroup.emplace_back(head, &made);
    return plainSetName(made, path);
}

/// Appends to @p text what write() appends.
inline void appendPlainText(std::string& text, const PlainNode& node)
{
    text.append("<").append(node.name).append(node.attributes.empty() ? "" : " ");
    for (const auto& [name, value] : node.attributes)
        text.append(name).append("=\"").append(value).append("\" ");
    text.append(">").append(node.children.empty() ? node.text : "");
    for (const auto& child : node.children)
        appendPlainText(text, *child);
    text.append("</").append(node.name).append(">");
}

} // namespace ZelInterchangeData

#endif
