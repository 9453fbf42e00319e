/// @file
/// The root of an element tree, and the escaping of text.

#ifndef ZELINTERCHANGEDATA_XML_ZELDATAXMLSTREAM_H
#define ZELINTERCHANGEDATA_XML_ZELDATAXMLSTREAM_H

#include "xml/ZelDataXmlNode.h"

#include <string>

namespace ZelInterchangeData {

/// An unnamed root: writes only its children and, if requested, the XML declaration.
class ZelDataXmlStream : public ZelDataXmlNode {
public:
    /// A root without children.
    ZelDataXmlStream();
    ~ZelDataXmlStream() override;

    using ZelDataXmlNode::operator=;

    /// Returns the children, one directly after another; if @p withDeclaration is true, the XML
    /// declaration precedes them without a line break.
    std::string getXml(bool withDeclaration) const;
    /// Not supported: the tree is unchanged.
    void parseXml(const std::string& text);
    /// @p text with `&`, `<`, `>`, `"` and `'` as XML entities. Entities that it already contains
    /// are escaped again; every other byte stays.
    static std::string getSafeXmlString(std::string text);

private:
    std::string declaration_;
};

/// Replaces every @p from in @p subject with @p to and returns @p subject. Replacements are not
/// searched again. @p from must not be empty: it would be found at every position, without end.
std::string& replaceAll(std::string& subject, const std::string& from, const std::string& to);

} // namespace ZelInterchangeData

#endif
