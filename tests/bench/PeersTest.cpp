#include "bench/Peers.h"

#include "bench/LibraryRun.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <algorithm>
#include <ostream>

namespace ZelInterchangeData::bench {

namespace {

/// The element as text: name, attributes in the order of their names, the date masked, text,
/// children. Packets with the same information have the same text.
std::string canonical(const pugi::xml_node& node)
{
    if (node.type() == pugi::node_pcdata) return std::string("text:") + node.value() + "\n";
    std::vector<std::string> attributes;
    for (const pugi::xml_attribute& attribute : node.attributes()) {
        const std::string name = attribute.name();
        attributes.push_back(name + "=" + (name == "dc:date" ? "now" : attribute.value()));
    }
    std::sort(attributes.begin(), attributes.end());
    std::string text = std::string("element:") + node.name() + "\n";
    for (const std::string& attribute : attributes)
        text += attribute + "\n";
    for (const pugi::xml_node& child : node.children())
        text += canonical(child);
    return text + "end\n";
}

std::string canonical(const std::string& packet)
{
    pugi::xml_document document;
    const auto parsed = document.load_buffer(packet.data(), packet.size());
    EXPECT_TRUE(parsed) << parsed.description();
    return canonical(document.document_element());
}

struct NamedWriter {
    const char* name;
    std::size_t (*write)(const Document&, std::string*);
};

/// For the messages of the tests.
std::ostream& operator<<(std::ostream& stream, const NamedWriter& writer)
{
    return stream << writer.name;
}

class Peer : public testing::TestWithParam<NamedWriter> {};

TEST_P(Peer, WritesTheInformationThatTheLibraryWrites)
{
    for (const Pair pair : allPairs) {
        const Document document = makeDocument(100, Order::shuffled, pair);
        std::string written;
        const std::size_t size = GetParam().write(inWrittenOrder(document), &written);
        EXPECT_EQ(size, written.size());
        EXPECT_EQ(canonical(written), canonical(write(*set(fill(document)))));
    }
}

TEST_P(Peer, WritesTheSameSizeWithoutACopy)
{
    const Document document = makeDocument(100, Order::ascending, Pair::enDe);
    std::string written;
    GetParam().write(document, &written);
    EXPECT_EQ(GetParam().write(document, nullptr), written.size());
    EXPECT_LE(written.size(), roomFor(document));
}

INSTANTIATE_TEST_SUITE_P(Writers, Peer,
                         testing::Values(NamedWriter{"pugixml", &writeWithPugixml},
                                         NamedWriter{"tinyxml2", &writeWithTinyxml2},
                                         NamedWriter{"libxml2", &writeWithLibxml2}),
                         [](const auto& writer) { return std::string(writer.param.name); });

} // namespace

} // namespace ZelInterchangeData::bench
