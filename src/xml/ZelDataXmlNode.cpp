/// @file
/// The element tree: building, writing, destroying.

#include "xml/ZelDataXmlNode.h"

#include "util/ValueStrings.h"
#include "xml/OrEmpty.h"

#include <cstddef>
#include <utility>

namespace ZelInterchangeData {

namespace {

/// Reserves space for one more in @p pointers.
template <class Pointers>
void makeRoom(Pointers& pointers)
{
    constexpr std::size_t usual = 4;
    if (pointers.size() == pointers.capacity()) {
        pointers.reserve(pointers.empty() ? usual : pointers.size() * 2);
    }
}

/// An element whose start tag is written but whose end tag is not.
struct OpenElement {
    const ZelDataXmlNode* node;
    std::size_t nextChild;
};

} // namespace

// A node without a parent, or that is its own parent, is a root.
ZelDataXmlNode::ZelDataXmlNode(ZelDataXmlNode* parent)
    : ownMemory_(parent == nullptr || parent == this ? std::make_unique<TreeMemory>() : nullptr),
      memory_(ownMemory_ != nullptr ? ownMemory_.get() : parent->memory_), currentGroup_(memory_),
      children_(memory_), name_(memory_), attributes_(memory_), parent_(parent)
{
}

// Destroys leaves first and finds them through the parents: neither the stack nor the memory that a
// recursion or a list of nodes would use grows with the depth of the tree.
// NOLINTNEXTLINE(misc-no-recursion): one step, because a leaf has no children.
ZelDataXmlNode::~ZelDataXmlNode()
{
    ZelDataXmlNode* node = this;
    while (node != this || !node->children_.empty()) {
        if (!node->children_.empty()) {
            node = node->children_.back();
        } else {
            ZelDataXmlNode* const leaf = std::exchange(node, node->parent_);
            node->children_.pop_back();
            // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.VirtualCall): of another node.
            leaf->~ZelDataXmlNode(); // the root releases its memory
        }
    }
    for (ZelDataXmlAttribute* own : attributes_)
        std::destroy_at(own);
}

/// A new object in the tree's memory; its owner destroys it and does not delete it.
template <class Object, class... Arguments>
Object* ZelDataXmlNode::make(Arguments&&... arguments)
{
    void* const place = memory_->allocate(sizeof(Object), alignof(Object));
    return new (place) Object(std::forward<Arguments>(arguments)...);
}

ZelDataXmlNode& ZelDataXmlNode::operator<(const char* path)
{
    return walk(orEmpty(path));
}

ZelDataXmlNode& ZelDataXmlNode::operator<(const std::string& path)
{
    return operator<(path.c_str());
}

ZelDataXmlNode& ZelDataXmlNode::operator<([[maybe_unused]] long long* newGroupVerb)
{
    currentGroup_.clear();
    return *this;
}

ZelDataXmlAttribute& ZelDataXmlNode::operator<([[maybe_unused]] void* attributeVerb)
{
    makeRoom(attributes_);
    attributes_.push_back(make<ZelDataXmlAttribute>(this, memory_));
    return *attributes_.back();
}

ZelDataXmlValue& ZelDataXmlNode::operator<([[maybe_unused]] void** textVerb)
{
    text_.setParent(this);
    return text_;
}

// cppcheck-suppress operatorEqRetRefThis ; a verb, not an assignment
ZelDataXmlNode& ZelDataXmlNode::operator=(long number)
{
    // NOLINTNEXTLINE(misc-unconventional-assign-operator): a verb, which continues as text() does.
    return text_.assign(decimalText(static_cast<long long>(number)));
}

ZelDataXmlNode& ZelDataXmlNode::newGroup()
{
    return operator<(static_cast<long long*>(nullptr));
}

ZelDataXmlNode& ZelDataXmlNode::attribute(const char* name, std::string value)
{
    ZelDataXmlAttribute& added = operator<(static_cast<void*>(nullptr));
    return (added < name).assign(std::move(value));
}

ZelDataXmlNode& ZelDataXmlNode::attribute(const char* name, long long value)
{
    return attribute(name, decimalText(value));
}

ZelDataXmlNode& ZelDataXmlNode::text(const std::string& markup)
{
    return operator<(static_cast<void**>(nullptr)).assign(markup);
}

ZelDataXmlNode& ZelDataXmlNode::setName(const std::string& path)
{
    const std::size_t slash = path.find('/');
    name_ = std::string_view(path).substr(0, slash);
    return slash == std::string::npos ? *this : operator<(path.substr(slash + 1));
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
            const ZelDataXmlNode* child = children[innermost.nextChild++];
            child->writeStartTag(out);
            open.push_back({child, 0});
        }
    }
}

void ZelDataXmlNode::writeChildren(std::string& out) const
{
    for (const ZelDataXmlNode* child : children_)
        child->write(out);
}

ZelDataXmlNode* ZelDataXmlNode::findChild(std::string_view name) const
{
    const auto found = currentGroup_.find(name);
    return found != currentGroup_.end() ? found->second : nullptr;
}

ZelDataXmlNode& ZelDataXmlNode::addChild(std::string_view name)
{
    makeRoom(children_);
    TreeString ownName(name, memory_);
    ChildGroup entry(memory_);
    ZelDataXmlNode*& entered = entry.emplace(ownName, nullptr).first->second;
    entered = make<ZelDataXmlNode>(this);
    // Nothing below can fail, so a child is in both places or in neither.
    entered->name_ = std::move(ownName);
    children_.push_back(entered);
    currentGroup_.merge(entry);
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
            // Deliberate: a nameless step that finds its child ends the path; otherwise, requesting
            // "/a" twice would give <><a><a></a></a></> instead of <><a></a></>.
            return *child;
        }
        // Deliberate: a last step whose name is taken is repeated one level down; otherwise,
        // requesting "x" twice would not give <x><x></x></x>.
        if (!isLast) path.remove_prefix(slash + 1);
        node = child;
    }
}

std::size_t ZelDataXmlNode::length() const
{
    constexpr std::size_t markup = 6;
    std::size_t length = 0;
    std::vector<const ZelDataXmlNode*> open{this}; // a tree may be too deep for recursion
    while (!open.empty()) {
        const ZelDataXmlNode* const node = open.back();
        open.pop_back();
        length += 2 * node->name_.size() + markup + node->text_.getValue().size();
        for (const auto* own : node->attributes_)
            length += own->length();
        open.insert(open.end(), node->children_.begin(), node->children_.end());
    }
    return length;
}

void ZelDataXmlNode::writeStartTag(std::string& out) const
{
    out.append("<").append(std::string_view(name_));
    // Deliberate: a space follows every attribute, even the last one; otherwise, there would be
    // none before ">" in start tags with attributes.
    if (!attributes_.empty()) out += ' ';
    for (const auto* own : attributes_)
        own->write(out);
    out += '>';
}

void ZelDataXmlNode::writeEndTag(std::string& out) const
{
    // Deliberate: children displace the text; otherwise, both would be written.
    if (children_.empty()) out += text_.getValue();
    out.append("</").append(std::string_view(name_)).append(">");
}

} // namespace ZelInterchangeData
