/// @file
/// A packet as an XML parser sees it.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_PACKET_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_PACKET_H

#include <libxml/tree.h>

#include <memory>
#include <string>
#include <vector>

namespace fuzz {

/// One element of a packet; the packet must outlive it. To request what does not exist is a
/// finding.
class Element {
public:
    explicit Element(xmlNode* node) : node_(node) {}

    std::vector<Element> children() const;
    /// Whether a child of this @p name, prefix included, exists.
    bool has(const std::string& name) const;
    /// The element at the end of @p path; each step is the only child of its name.
    Element at(const std::string& path) const;
    /// The value of the attribute of this @p name, prefix included.
    std::string attribute(const std::string& name) const;
    /// The text below the element.
    std::string text() const;

private:
    Element child(const std::string& name) const;

    xmlNode* node_;
};

/// A parsed packet. One that is not well-formed, namespaces included, is a finding.
class Packet {
public:
    explicit Packet(const std::string& text);

    Element root() const;

private:
    struct Free {
        void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    };
    std::unique_ptr<xmlDoc, Free> document_;
};

} // namespace fuzz

#endif
