#include "hostile/PacketReading.h"

#include <expat.h>
#include <libxml/parser.h>

#include <initializer_list>
#include <memory>
#include <string_view>

namespace ZelInterchangeData {

namespace {

std::string plain(const xmlChar* text)
{
    return text ? reinterpret_cast<const char*>(text) : "";
}

std::string qualified(const xmlNs* ns, const xmlChar* name)
{
    return (ns ? plain(ns->prefix) + ':' : std::string()) + plain(name);
}

std::string nameOf(const xmlNode& node)
{
    return qualified(node.ns, node.name);
}

/// The text of all nodes of a list.
std::string textOf(const xmlNode* node)
{
    std::string text;
    for (; node; node = node->next)
        text += plain(node->content);
    return text;
}

const xmlNode* firstElement(const xmlNode* node)
{
    while (node && node->type != XML_ELEMENT_NODE)
        node = node->next;
    return node;
}

/// The element that @p names lead to, each the name of a child; null when one is missing.
const xmlNode* inside(const xmlNode* node, std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        node = node ? firstElement(node->children) : nullptr;
        while (node && nameOf(*node) != name)
            node = firstElement(node->next);
    }
    return node;
}

/// Appends all that stands in @p node but the elements named @p leftOut.
void append(Record& record, const xmlNode& node, std::string_view leftOut)
{
    for (const xmlAttr* attribute = node.properties; attribute; attribute = attribute->next) {
        const std::string name = qualified(attribute->ns, attribute->name);
        if (name != "dc:date") record.push_back(name + '=' + textOf(attribute->children));
    }
    const xmlNode* child = firstElement(node.children);
    if (!child && node.children) record.push_back("text=" + textOf(node.children));
    for (; child; child = firstElement(child->next)) {
        if (nameOf(*child) != leftOut) append(record, *child, leftOut);
    }
}

TrackReading readTrack(const xmlNode& track)
{
    TrackReading reading;
    append(reading.head, track, "xmpDM:markers");
    const xmlNode* list = inside(&track, {"rdf:Description", "xmpDM:markers", "rdf:Seq"});
    const xmlNode* item = list ? firstElement(list->children) : nullptr;
    for (; item; item = firstElement(item->next))
        append(reading.items.emplace_back(), *item, "");
    return reading;
}

void readTree(const xmlNode& root, PacketReading& reading)
{
    const xmlNode* frame = inside(&root, {"rdf:RDF", "rdf:Description"});
    const xmlNode* tracks = inside(frame, {"xmpDM:Tracks", "rdf:Bag"});
    if (!tracks || nameOf(root) != "x:xmpmeta") {
        reading.complaint += "no frame of a packet";
        return;
    }
    append(reading.header, *frame, "xmpDM:Tracks");
    const xmlNode* track = firstElement(tracks->children);
    for (; track; track = firstElement(track->next))
        reading.tracks.push_back(readTrack(*track));
}

/// Keeps what libxml2 says.
void keepComplaint(void* complaint, xmlErrorPtr error)
{
    *static_cast<std::string*>(complaint) += error->message ? error->message : "no message";
}

} // namespace

PacketReading readPacket(const std::string& packet)
{
    PacketReading reading;
    xmlSetStructuredErrorFunc(&reading.complaint, keepComplaint);
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        xmlReadMemory(packet.data(), static_cast<int>(packet.size()), nullptr, nullptr,
                      XML_PARSE_NONET),
        &xmlFreeDoc);
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    const xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    if (root) {
        readTree(*root, reading);
    } else if (reading.complaint.empty()) {
        reading.complaint = "no document";
    }
    return reading;
}

std::string faultOf(const std::string& packet)
{
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreateNS(nullptr, '|'), &XML_ParserFree);
    const int length = static_cast<int>(packet.size());
    if (XML_Parse(parser.get(), packet.data(), length, XML_TRUE) == XML_STATUS_OK) return {};
    const char* fault = XML_ErrorString(XML_GetErrorCode(parser.get()));
    return fault ? fault : "an error without a name";
}

} // namespace ZelInterchangeData
