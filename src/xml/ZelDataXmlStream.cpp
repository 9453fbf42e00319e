/// @file
/// The root of an element tree, and the escaping of text.

#include "xml/ZelDataXmlStream.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace ZelInterchangeData {

ZelDataXmlStream::ZelDataXmlStream()
    : ZelDataXmlNode(nullptr), declaration_(R"(<?xml version="1.0" encoding="utf-8" ?>)")
{
}

ZelDataXmlStream::~ZelDataXmlStream() = default;

std::string ZelDataXmlStream::getXml(bool withDeclaration) const
{
    std::string xml;
    xml.reserve(declaration_.size() + length());
    if (withDeclaration) xml += declaration_;
    writeChildren(xml);
    return xml;
}

void ZelDataXmlStream::parseXml([[maybe_unused]] const std::string& text) {}

std::string ZelDataXmlStream::getSafeXmlString(std::string text)
{
    // The ampersand comes first, so that the ampersands of the other entities are not escaped
    // again.
    replaceAll(text, "&", "&amp;");
    replaceAll(text, "<", "&lt;");
    replaceAll(text, ">", "&gt;");
    replaceAll(text, "\"", "&quot;");
    replaceAll(text, "'", "&apos;");
    return text;
}

// Builds the result in a new string: replacing inside the subject would move its tail once for
// every occurrence.
std::string& replaceAll(std::string& subject, const std::string& from, const std::string& to)
{
    std::string result;
    std::size_t position = 0;
    std::size_t found = subject.find(from);
    if (found == std::string::npos) return subject;
    while (found != std::string::npos) {
        result.append(subject, position, found - position).append(to);
        position = found + from.length();
        found = subject.find(from, position);
    }
    result.append(std::string_view(subject).substr(position));
    subject = std::move(result);
    return subject;
}

} // namespace ZelInterchangeData
