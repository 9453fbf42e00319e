/// @file
/// See Packet.h.

#include "core/Packet.h"

#include "support/Require.h"

#include <libxml/parser.h>

namespace fuzz {

namespace {

std::string bytesOf(const xmlChar* text)
{
    return text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
}

/// The name with its prefix, as the packet has it.
std::string nameOf(const xmlNs* space, const xmlChar* name)
{
    const bool hasPrefix = space != nullptr && space->prefix != nullptr;
    return (hasPrefix ? bytesOf(space->prefix) + ":" : std::string()) + bytesOf(name);
}

std::string takenText(xmlChar* text)
{
    const std::unique_ptr<xmlChar, void (*)(void*)> owned(text, xmlFree);
    return bytesOf(text);
}

struct FreeContext {
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};

} // namespace

std::string Element::name() const
{
    return nameOf(node_->ns, node_->name);
}

std::vector<Element> Element::children() const
{
    std::vector<Element> elements;
    for (xmlNode* child = xmlFirstElementChild(node_); child != nullptr;
         child = xmlNextElementSibling(child))
        elements.emplace_back(child);
    return elements;
}

bool Element::has(const std::string& name) const
{
    for (const Element& child : children())
        if (child.name() == name) return true;
    return false;
}

Element Element::child(const std::string& name) const
{
    const Element* found = nullptr;
    const std::vector<Element> all = children();
    for (const Element& child : all) {
        if (child.name() != name) continue;
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
        if (nameOf(attribute->ns, attribute->name) == name)
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
