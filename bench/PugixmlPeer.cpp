/// @file
/// pugixml: a tree, saved without indentation.

#include "bench/Description.h"
#include "bench/Peers.h"

#include <pugixml.hpp>

namespace ZelInterchangeData::bench {

namespace {

class TreeBuilder {
public:
    explicit TreeBuilder(pugi::xml_document& document) : node_(document.root()) {}

    void open(const char* name) { node_ = node_.append_child(name); }
    void close() { node_ = node_.parent(); }
    void text(const char* value) { node_.append_child(pugi::node_pcdata).set_value(value); }

    template <class Value>
    void attribute(const char* name, Value value)
    {
        node_.append_attribute(name).set_value(value);
    }

private:
    pugi::xml_node node_;
};

class StringWriter final : public pugi::xml_writer {
public:
    explicit StringWriter(std::size_t room) { text.reserve(room); }
    void write(const void* data, std::size_t size) override
    {
        text.append(static_cast<const char*>(data), size);
    }

    std::string text;
};

} // namespace

std::size_t writeWithPugixml(const Document& document, std::string* copy)
{
    pugi::xml_document tree;
    TreeBuilder builder(tree);
    Description(document, builder).describe();
    StringWriter writer(roomFor(document));
    // Avoids the conversion that another encoding would cost.
    tree.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    if (copy != nullptr) *copy = writer.text;
    return writer.text.size();
}

} // namespace ZelInterchangeData::bench
