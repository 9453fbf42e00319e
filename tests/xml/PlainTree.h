/// @file
/// A plain, recursive model of the element tree.

#ifndef ZELINTERCHANGEDATA_TESTS_XML_PLAINTREE_H
#define ZELINTERCHANGEDATA_TESTS_XML_PLAINTREE_H

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// A node of the model.
struct PlainNode {
    PlainNode* parent = nullptr;
    std::string name;
    std::string text;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<std::pair<std::string, PlainNode*>> currentGroup;
    std::vector<std::unique_ptr<PlainNode>> children;
};

inline PlainNode& plainPath(PlainNode& node, const std::string& path);

/// What setName() does.
inline PlainNode& plainSetName(PlainNode& node, const std::string& path)
{
    node.name = path;
    if (path.find('/') == std::string::npos) return node;
    node.name = path.substr(0, path.find('/'));
    return plainPath(node, path.substr(path.find('/') + 1));
}

/// What the path verb does.
inline PlainNode& plainPath(PlainNode& node, const std::string& path)
{
    const std::size_t slash = path.find('/');
    const std::string head = slash == std::string::npos ? path : path.substr(0, slash);
    const std::string rest = slash == std::string::npos ? path : path.substr(slash + 1);
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

/// What write() appends.
inline std::string plainText(const PlainNode& node)
{
    std::string attributes;
    for (const auto& [name, value] : node.attributes)
        attributes.append(name).append("=\"").append(value).append("\" ");
    std::string content;
    for (const auto& child : node.children)
        content += plainText(*child);
    if (node.children.empty()) content = node.text;
    return "<" + node.name + (attributes.empty() ? "" : " ") + attributes + ">" + content + "</" +
           node.name + ">";
}

} // namespace ZelInterchangeData

#endif
