/// @file
/// See Packet.h.

#include "core/Packet.h"

#include "support/Require.h"

#include <libxml/parser.h>

namespace fuzz {

namespace {

/// Whether @p node, an element or an attribute, has this @p name, prefix included.
template <class Node>
bool isNamed(const Node& node, const std::string& name)
{
    const xmlChar* prefix = node.ns == nullptr ? nullptr : node.ns->prefix;
    return xmlStrQEqual(prefix, node.name, reinterpret_cast<const xmlChar*>(name.c_str())) == 1;
}

std::string takenText(xmlChar* text)
{
    const std::unique_ptr<xmlChar, void (*)(void*)> owned(text, xmlFree);
    return text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
}

struct FreeContext {
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};

} // namespace

std::vector<Element> Element::children() const
{
    std::vector<Element> elements;
    elements.reserve(xmlChildElementCount(node_));
    for (xmlNode* child = xmlFirstElementChild(node_); child != nullptr;
         child = xmlNextElementSibling(child))
        elements.emplace_back(child);
    return elements;
}

bool Element::has(const std::string& name) const
{
    for (const Element& child : children())
        if (isNamed(*child.node_, name)) return true;
    return false;
}

Element Element::child(const std::string& name) const
{
    const Element* found = nullptr;
    const std::vector<Element> all = children();
    for (const Element& child : all) {
        if (!isNamed(*child.node_, name)) continue;
        require(found == nullptr, "an element occurs twice");
        found = &child;
    }
    if (found == nullptr) report("no element " + name);
    return *found;
}

Element Element::at(const std::string& path) const
{
    const std::size_t slash = path.find('/');
    if (slash == std::string::npos) return child(path);
    return child(path.substr(0, slash)).at(path.substr(slash + 1));
}

std::string Element::attribute(const std::string& name) const
{
    for (xmlAttr* attribute = node_->properties; attribute != nullptr; attribute = attribute->next)
        if (isNamed(*attribute, name))
            return takenText(xmlNodeListGetString(node_->doc, attribute->children, 1));
    report("no attribute " + name);
}

std::string Element::text() const
{
    return takenText(xmlNodeGetContent(node_));
}

Packet::Packet(const std::string& text)
{
    const std::unique_ptr<xmlParserCtxt, FreeContext> context(xmlNewParserCtxt());
    constexpr int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    document_.reset(xmlCtxtReadMemory(context.get(), text.data(), static_cast<int>(text.size()),
                                      nullptr, nullptr, options));
    const bool isWellFormed = document_ && context->wellFormed == 1 && context->nsWellFormed == 1;
    if (!isWellFormed) report("the packet is not well-formed: " + text);
}

Element Packet::root() const
{
    return Element(xmlDocGetRootElement(document_.get()));
}

} // namespace fuzz
