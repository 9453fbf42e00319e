/// @file
/// What a builder verb returns if there is no node to return to.

#ifndef ZELINTERCHANGEDATA_XML_SINK_H
#define ZELINTERCHANGEDATA_XML_SINK_H

#include "xml/ZelDataXmlNode.h"

#include <memory>

namespace ZelInterchangeData {

/// A node that accepts every verb and belongs to no tree, so what is built on it is never written.
///
/// It is its own parent and the end of each of its paths. An expression that reaches it therefore
/// stays on it and creates neither a child nor a second sink, however long the expression is.
class Sink final : public ZelDataXmlNode {
public:
    /// Its text leads back to itself even if the text verb was not used.
    Sink() : ZelDataXmlNode(this) { *this < static_cast<void**>(nullptr); }

    using ZelDataXmlNode::operator<;
    /// This node, whatever @p path is.
    ZelDataXmlNode& operator<([[maybe_unused]] const char* path) override { return *this; }
};

/// @p node, or the sink in @p sink if it is null. The first call that needs the sink creates it.
// cppcheck-suppress constParameter ; the caller may change the node
inline ZelDataXmlNode& orSink(ZelDataXmlNode* node, std::unique_ptr<ZelDataXmlNode>& sink)
{
    if (node != nullptr) return *node;
    if (sink == nullptr) sink = std::make_unique<Sink>();
    return *sink;
}

} // namespace ZelInterchangeData

#endif
