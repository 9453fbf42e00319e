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
    return text != nullptr ? reinterpret_cast<const char*>(text) : "";
}

std::string qualified(const xmlNs* ns, const xmlChar* name)
{
    return (ns != nullptr ? plain(ns->prefix) + ':' : std::string()) + plain(name);
}

std::string nameOf(const xmlNode& node)
{
    return qualified(node.ns, node.name);
}

/// The text of all nodes of a list.
std::string textOf(const xmlNode* node)
{
    std::string text;
    for (; node != nullptr; node = node->next)
        text += plain(node->content);
    return text;
}

const xmlNode* firstElement(const xmlNode* node)
{
    while (node != nullptr && node->type != XML_ELEMENT_NODE)
        node = node->next;
    return node;
}

/// The element that @p names lead to, each the name of a child; null when one is missing.
const xmlNode* inside(const xmlNode* node, std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        node = node != nullptr ? firstElement(node->children) : nullptr;
        while (node != nullptr && nameOf(*node) != name)
            node = firstElement(node->next);
    }
    return node;
}

/// Appends all that @p node holds but the elements named @p leftOut.
void append(Record& record, const xmlNode& node, std::string_view leftOut)
{
    for (const xmlAttr* attribute = node.properties; attribute != nullptr;
         attribute = attribute->next) {
        const std::string name = qualified(attribute->ns, attribute->name);
        if (name != "dc:date") record.push_back(name + '=' + textOf(attribute->children));
    }
    const xmlNode* child = firstElement(node.children);
    if (child == nullptr && node.children != nullptr)
        record.push_back("text=" + textOf(node.children));
    for (; child != nullptr; child = firstElement(child->next)) {
        if (nameOf(*child) != leftOut) append(record, *child, leftOut);
    }
}

TrackReading readTrack(const xmlNode& track)
{
    TrackReading reading;
    append(reading.head, track, "xmpDM:markers");
    const xmlNode* list = inside(&track, {"rdf:Description", "xmpDM:markers", "rdf:Seq"});
    const xmlNode* item = list != nullptr ? firstElement(list->children) : nullptr;
    for (; item != nullptr; item = firstElement(item->next))
        append(reading.items.emplace_back(), *item, "");
    return reading;
}

void readTree(const xmlNode& root, PacketReading& reading)
{
    const xmlNode* frame = inside(&root, {"rdf:RDF", "rdf:Description"});
    const xmlNode* tracks = inside(frame, {"xmpDM:Tracks", "rdf:Bag"});
    if (tracks == nullptr || nameOf(root) != "x:xmpmeta") {
        reading.complaint += "no frame of a packet";
        return;
    }
    append(reading.header, *frame, "xmpDM:Tracks");
    const xmlNode* track = firstElement(tracks->children);
    for (; track != nullptr; track = firstElement(track->next))
        reading.tracks.push_back(readTrack(*track));
}

/// Keeps what libxml2 reports.
void keepComplaint(void* complaint, xmlErrorPtr error)
{
    *static_cast<std::string*>(complaint) +=
        error->message != nullptr ? error->message : "no message";
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
    const xmlNode* root = document != nullptr ? xmlDocGetRootElement(document.get()) : nullptr;
    if (root != nullptr) {
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
    return fault != nullptr ? fault : "an error without a name";
}

} // namespace ZelInterchangeData
