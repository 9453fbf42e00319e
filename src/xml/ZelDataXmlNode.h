/// @file
/// The element tree that every packet is built from.

#ifndef ZELINTERCHANGEDATA_XML_ZELDATAXMLNODE_H
#define ZELINTERCHANGEDATA_XML_ZELDATAXMLNODE_H

#include "xml/TreeMemory.h"
#include "xml/ZelDataXmlAttribute.h"
#include "xml/ZelDataXmlValue.h"

#include <functional>
#include <map>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace ZelInterchangeData {

/// One element: a name, attributes, and children or a text.
///
/// A tree is built by verbs. Each verb has an operator form, and the frequent ones have a named
/// form; an expression reads from left to right and each verb returns what the next one works on:
///
///     description.attribute("xmpDM:name", title).attribute("xmpDM:startTime", start);
///
/// The tree only writes. Names, values and texts are written as they were given: whoever hands them
/// over escapes them. Nothing is removed before the whole tree goes.
///
/// A verb that runs out of memory lets `std::bad_alloc` through. The tree then holds what was built
/// so far and can be written, extended and destroyed. Only memory limits how deep a tree may be.
class ZelDataXmlNode {
public:
    /// A node without name below @p parent, which does not know of it; null for a root. It takes its
    /// memory from the tree of @p parent, which must outlive it. Elements of a tree are made by their
    /// paths.
    explicit ZelDataXmlNode(ZelDataXmlNode* parent);
    /// Destroys the attributes and everything below, too.
    virtual ~ZelDataXmlNode();

    /// The element at the end of @p path, a list of names with "/" between them. Null is an empty
    /// path.
    ///
    /// Names are looked up in the current child group alone; elements that are missing are made.
    /// - An inner step goes to the child of its name, so "x/y" reuses an existing "x".
    /// - The last step always makes an element. Where its name is taken it goes one level down and
    ///   asks for the same name there: "x" asked for twice gives "x/x".
    /// - An empty name is a name like any other, with one exception: where an inner step without
    ///   name finds its child, the path ends there, whatever follows.
    ///
    /// For a second element of the same name beside the first one, use newGroup() before.
    virtual ZelDataXmlNode& operator<(const char* path);
    /// The same for the characters of @p path up to its first zero byte.
    ZelDataXmlNode& operator<(const std::string& path);
    /// Starts a new child group and returns this node. The argument only selects the verb.
    ZelDataXmlNode& operator<(long long* newGroupVerb);
    /// Appends an attribute without name and value. The argument only selects the verb.
    ZelDataXmlAttribute& operator<(void* attributeVerb);
    /// The text, which from now on leads back to the parent. The argument only selects the verb.
    ZelDataXmlValue& operator<(void** textVerb);
    /// Makes @p number the text. Returns the parent, but a node outside the tree when the text was
    /// never reached by its verb.
    ZelDataXmlNode& operator=(long number);

    /// As `*this < path`.
    ZelDataXmlNode& element(const char* path) { return operator<(path); }
    ZelDataXmlNode& element(const std::string& path) { return operator<(path); }
    /// Starts a new child group: every child made so far keeps its place but is no longer found by
    /// its name. Returns this node.
    ZelDataXmlNode& newGroup();
    /// Appends an attribute; @p value is written as given. Returns this node.
    ZelDataXmlNode& attribute(const char* name, std::string value);
    /// Appends an attribute with @p value in decimal. Returns this node.
    ZelDataXmlNode& attribute(const char* name, long long value);
    /// Replaces the text by @p markup, which is written as given, and only as long as there are no
    /// children. Returns the parent, or a node outside the tree when there is none.
    ZelDataXmlNode& text(const std::string& markup);

    /// Takes the first step of @p path as the name and builds the rest below. Returns the end of
    /// the path. The parent goes on finding this node by its first name.
    ZelDataXmlNode& setName(const std::string& path);
    /// The node that this one was made under; null for a root.
    ZelDataXmlNode* parent() const noexcept { return parent_; }
    /// Appends the element and all below it to @p out.
    void write(std::string& out) const;

    ZelDataXmlNode(const ZelDataXmlNode&) = delete;
    ZelDataXmlNode& operator=(const ZelDataXmlNode&) = delete;

protected:
    /// Appends each child, in the order of their making, to @p out.
    void writeChildren(std::string& out) const;

private:
    /// Transparent, so that a step of a path is looked up without being copied.
    using ChildGroup = std::pmr::map<std::pmr::string, ZelDataXmlNode*, std::less<>>;

    template <class Object, class... Arguments>
    Object* make(Arguments&&... arguments);
    ZelDataXmlNode* findChild(std::string_view name) const;
    ZelDataXmlNode& addChild(std::string_view name);
    ZelDataXmlNode& walk(std::string_view path);
    void writeStartTag(std::string& out) const;
    void writeEndTag(std::string& out) const;

    std::unique_ptr<TreeMemory> ownMemory_; // of a root, for the whole tree
    std::pmr::memory_resource* memory_;
    ChildGroup currentGroup_; // nothing asks for the children of an earlier group by their names
    std::pmr::vector<ZelDataXmlNode*> children_;
    std::pmr::string name_;
    ZelDataXmlValue text_;
    std::pmr::vector<ZelDataXmlAttribute*> attributes_;
    ZelDataXmlNode* parent_;
};

} // namespace ZelInterchangeData

#endif
