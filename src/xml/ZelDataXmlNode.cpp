/// @file
/// The element tree: building, writing, destroying.

#include "xml/ZelDataXmlNode.h"

#include "xml/OrEmpty.h"

#include <cstddef>
#include <utility>

namespace ZelInterchangeData {

namespace {

/// An element whose start tag is written and whose end tag is not.
struct OpenElement {
    const ZelDataXmlNode* node;
    std::size_t nextChild;
};

} // namespace

ZelDataXmlNode::ZelDataXmlNode(ZelDataXmlNode* parent) : parent_(parent)
{
    childGroups_.push_back(std::make_unique<ChildGroup>());
}

// Leaves go first, found by way of the parents: neither the stack nor the memory that a recursion
// or a list of nodes would take grows with the depth of the tree.
ZelDataXmlNode::~ZelDataXmlNode()
{
    ZelDataXmlNode* node = this;
    while (node != this || !node->children_.empty()) {
        if (!node->children_.empty()) {
            node = node->children_.back().get();
        } else {
            node = node->parent_;
            node->children_.pop_back();
        }
    }
}

ZelDataXmlNode& ZelDataXmlNode::operator<(const char* path)
{
    return walk(orEmpty(path));
}

ZelDataXmlNode& ZelDataXmlNode::operator<(const std::string& path)
{
    return *this < path.c_str();
}

ZelDataXmlNode& ZelDataXmlNode::operator<([[maybe_unused]] long long* newGroupVerb)
{
    childGroups_.push_back(std::make_unique<ChildGroup>());
    ++currentGroup_;
    return *this;
}

ZelDataXmlAttribute& ZelDataXmlNode::operator<([[maybe_unused]] void* attributeVerb)
{
    attributes_.push_back(std::make_unique<ZelDataXmlAttribute>(this));
    return *attributes_.back();
}

ZelDataXmlValue& ZelDataXmlNode::operator<([[maybe_unused]] void** textVerb)
{
    text_.setParent(this);
    return text_;
}

ZelDataXmlNode& ZelDataXmlNode::operator=(long number)
{
    return text_ < number;
}

ZelDataXmlNode& ZelDataXmlNode::element(const std::string& path)
{
    return *this < path;
}

ZelDataXmlNode& ZelDataXmlNode::newGroup()
{
    return *this < static_cast<long long*>(nullptr);
}

ZelDataXmlNode& ZelDataXmlNode::attribute(const char* name, const std::string& value)
{
    return *this < static_cast<void*>(nullptr) < name < value;
}

ZelDataXmlNode& ZelDataXmlNode::attribute(const char* name, long long value)
{
    return *this < static_cast<void*>(nullptr) < name < value;
}

ZelDataXmlNode& ZelDataXmlNode::text(const std::string& markup)
{
    return *this < static_cast<void**>(nullptr) < markup;
}

ZelDataXmlNode& ZelDataXmlNode::setName(const std::string& path)
{
    const std::size_t slash = path.find('/');
    name_ = path.substr(0, slash);
    return slash == std::string::npos ? *this : *this < path.substr(slash + 1);
}

void ZelDataXmlNode::write(std::string& out) const
{
    writeStartTag(out);
    std::vector<OpenElement> open{{this, 0}};
    while (!open.empty()) {
        OpenElement& innermost = open.back();
        const auto& children = innermost.node->children_;
        if (innermost.nextChild == children.size()) {
            innermost.node->writeEndTag(out);
            open.pop_back();
        } else {
            const ZelDataXmlNode* child = children[innermost.nextChild++].get();
            child->writeStartTag(out);
            open.push_back({child, 0});
        }
    }
}

void ZelDataXmlNode::writeChildren(std::string& out) const
{
    for (const auto& child : children_)
        child->write(out);
}

ZelDataXmlNode::ChildGroup& ZelDataXmlNode::currentGroup() const
{
    return *childGroups_[static_cast<std::size_t>(currentGroup_)];
}

ZelDataXmlNode* ZelDataXmlNode::findChild(std::string_view name) const
{
    const auto found = currentGroup().find(name);
    return found != currentGroup().end() ? found->second : nullptr;
}

ZelDataXmlNode& ZelDataXmlNode::addChild(std::string_view name)
{
    auto child = std::make_unique<ZelDataXmlNode>(this);
    child->name_ = name;
    ChildGroup entry;
    entry.emplace(name, child.get());
    children_.push_back(std::move(child));
    // Only relinks the entry: whatever can fail is done, so a child is in both places or in none.
    currentGroup().merge(entry);
    return *children_.back();
}

ZelDataXmlNode& ZelDataXmlNode::walk(std::string_view path)
{
    ZelDataXmlNode* node = this;
    for (;;) {
        const std::size_t slash = path.find('/');
        const bool isLast = slash == std::string_view::npos;
        ZelDataXmlNode* child = node->findChild(path.substr(0, slash));
        if (child == nullptr) {
            child = &node->addChild(path.substr(0, slash));
            if (isLast) return *child;
        } else if (slash == 0) {
            // Meant: a nameless step that finds its child ends the path. Walked on, "/a" asked for
            // twice would give <><a><a></a></a></> in place of <><a></a></>.
            return *child;
        }
        // Meant: a last step whose name is taken is asked for again one level down. If it returned
        // the child instead, asking twice for "x" would not give <x><x></x></x>.
        if (!isLast) path.remove_prefix(slash + 1);
        node = child;
    }
}

void ZelDataXmlNode::writeStartTag(std::string& out) const
{
    out.append("<").append(name_);
    // Meant: a blank follows every attribute, the last one too, as in <rdf:li xml:lang="en" >.
    // Without it an XML reader would see no difference, but the bytes of every packet would change.
    if (!attributes_.empty()) out += ' ';
    for (const auto& attribute : attributes_)
        attribute->write(out);
    out += '>';
}

void ZelDataXmlNode::writeEndTag(std::string& out) const
{
    // Meant: children displace the text. If it were written too, markup would stand beside text.
    if (children_.empty()) out += text_.getValue();
    out.append("</").append(name_).append(">");
}

} // namespace ZelInterchangeData
