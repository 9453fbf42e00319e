/// @file
/// The text of an element.

#ifndef ZELINTERCHANGEDATA_XML_ZELDATAXMLVALUE_H
#define ZELINTERCHANGEDATA_XML_ZELDATAXMLVALUE_H

#include <memory>
#include <string>

namespace ZelInterchangeData {

class ZelDataXmlNode;

/// A text, and the node that it belongs to after a call of setParent().
///
/// Every setter returns the parent of that node, so that the next path of an expression starts one
/// level up. If there is none, it returns a node outside the tree, whose content is never written.
class ZelDataXmlValue {
public:
    /// An empty text that belongs to no node.
    ZelDataXmlValue();
    ~ZelDataXmlValue();

    /// Makes @p owner the node whose text this is; null for none.
    void setParent(ZelDataXmlNode* owner) noexcept { owner_ = owner; }
    /// The text.
    const std::string& getValue() const noexcept { return text_; }

    /// Replaces the text. Null is an empty text.
    ZelDataXmlNode& operator<(const char* text);
    /// Replaces the text.
    ZelDataXmlNode& operator<(const std::string& text);
    /// Replaces the text with @p number in decimal.
    ZelDataXmlNode& operator<(long number);
    /// Replaces the text with @p number in decimal.
    ZelDataXmlNode& operator<(long long number);

    /// As `*this < text`.
    ZelDataXmlNode& assign(std::string text);

    ZelDataXmlValue(const ZelDataXmlValue&) = delete;
    ZelDataXmlValue& operator=(const ZelDataXmlValue&) = delete;

private:
    ZelDataXmlNode* owner_ = nullptr;
    std::string text_;
    std::unique_ptr<ZelDataXmlNode> sink_;
};

} // namespace ZelInterchangeData

#endif
