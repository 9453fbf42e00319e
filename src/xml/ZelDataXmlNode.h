/// @file
/// A tree of elements.

#ifndef ZELINTERCHANGEDATA_XML_ZELDATAXMLNODE_H
#define ZELINTERCHANGEDATA_XML_ZELDATAXMLNODE_H

#include "xml/TreeMemory.h"
#include "xml/ZelDataXmlAttribute.h"
#include "xml/ZelDataXmlValue.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// One element: a name, attributes, and children or a text.
///
/// You build a tree with verbs. Each verb has an operator form, and the frequent verbs have a named
/// form. An expression reads from left to right, and each verb returns what the next one works on:
///
///     description.attribute("xmpDM:name", title).attribute("xmpDM:startTime", start);
///
/// The tree only writes. Names, values and texts are written as given: the caller escapes them.
/// Nothing is removed until the whole tree is destroyed.
///
/// A verb that runs out of memory throws `std::bad_alloc`. The tree then contains what was built so
/// far and can be written, extended and destroyed. Only memory limits the depth of a tree.
class ZelDataXmlNode {
public:
    /// A nameless node below @p parent, which does not list it; null makes a root. It takes its
    /// memory from the tree of @p parent, which must outlive it. To make the elements of a tree,
    /// use their paths.
    explicit ZelDataXmlNode(ZelDataXmlNode* parent);
    /// Destroys the attributes and everything below, too.
    virtual ~ZelDataXmlNode();

    /// The element at the end of @p path, a list of names with "/" between them. Null is an empty
    /// path.
    ///
    /// Names are looked up only in the current child group; missing elements are created.
    /// - An inner step goes to the child with its name, so "x/y" reuses an existing "x".
    /// - The last step always creates an element. If its name is taken, it goes one level down and
    ///   tries the same name there: requesting "x" twice gives "x/x".
    /// - An empty name is a name like any other, with one exception: if a nameless inner step finds
    ///   its child, the path ends there, whatever follows.
    ///
    /// To create a second element of the same name beside the first, call newGroup() first.
    virtual ZelDataXmlNode& operator<(const char* path);
    /// The same for the characters of @p path up to its first zero byte.
    ZelDataXmlNode& operator<(const std::string& path);
    /// Starts a new child group and returns this node. The argument only selects the verb.
    ZelDataXmlNode& operator<(long long* newGroupVerb);
    /// Appends an attribute without name and value. The argument only selects the verb.
    ZelDataXmlAttribute& operator<(void* attributeVerb);
    /// The text, which from now on leads back to the parent. The argument only selects the verb.
    ZelDataXmlValue& operator<(void** textVerb);
    /// Makes @p number the text. Returns the parent, or a node outside the tree if the text was
    /// never reached through its verb.
    ZelDataXmlNode& operator=(long number);

    /// As `*this < path`.
    ZelDataXmlNode& element(const char* path) { return operator<(path); }
    ZelDataXmlNode& element(const std::string& path) { return operator<(path); }
    /// Starts a new child group: existing children keep their places but are no longer found by
    /// name. Returns this node.
    ZelDataXmlNode& newGroup();
    /// Appends an attribute; @p value is written as given. Returns this node.
    ZelDataXmlNode& attribute(const char* name, std::string value);
    /// Appends an attribute with @p value in decimal. Returns this node.
    ZelDataXmlNode& attribute(const char* name, long long value);
    /// Replaces the text with @p markup, which is written as given, and only if there are no
    /// children. Returns the parent, or a node outside the tree if there is none.
    ZelDataXmlNode& text(const std::string& markup);

    /// Takes the first step of @p path as the name and builds the rest below. Returns the end of
    /// the path. The parent still finds this node by its first name.
    ZelDataXmlNode& setName(const std::string& path);
    /// The node that this one was created under; null for a root.
    ZelDataXmlNode* parent() const noexcept { return parent_; }
    /// Appends the element and all below it to @p out.
    void write(std::string& out) const;

    ZelDataXmlNode(const ZelDataXmlNode&) = delete;
    ZelDataXmlNode& operator=(const ZelDataXmlNode&) = delete;

protected:
    /// The most bytes that write() appends.
    std::size_t length() const;
    /// Appends each child to @p out, in the order of creation.
    void writeChildren(std::string& out) const;

private:
    /// Transparent, to look up a step of a path without copying it.
    using ChildGroup = std::map<TreeString, ZelDataXmlNode*, std::less<>,
                                TreeAllocator<std::pair<const TreeString, ZelDataXmlNode*>>>;
    template <class Type>
    using List = std::vector<Type, TreeAllocator<Type>>;

    template <class Object, class... Arguments>
    Object* make(Arguments&&... arguments);
    ZelDataXmlNode* findChild(std::string_view name) const;
    ZelDataXmlNode& addChild(std::string_view name);
    ZelDataXmlNode& walk(std::string_view path);
    void writeStartTag(std::string& out) const;
    void writeEndTag(std::string& out) const;

    std::unique_ptr<TreeMemory> ownMemory_; // of a root, for the whole tree
    TreeMemory* memory_;
    ChildGroup currentGroup_; // children of earlier groups are never looked up
    List<ZelDataXmlNode*> children_;
    TreeString name_;
    ZelDataXmlValue text_;
    List<ZelDataXmlAttribute*> attributes_;
    ZelDataXmlNode* parent_;
};

} // namespace ZelInterchangeData

#endif
