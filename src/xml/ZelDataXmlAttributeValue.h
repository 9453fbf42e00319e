/// @file
/// The value of an attribute.

#ifndef ZELINTERCHANGEDATA_XML_ZELDATAXMLATTRIBUTEVALUE_H
#define ZELINTERCHANGEDATA_XML_ZELDATAXMLATTRIBUTEVALUE_H

#include <memory>
#include <string>

namespace ZelInterchangeData {

class ZelDataXmlNode;

/// The value of an attribute, and the node that an expression returns to after setting it.
///
/// Every setter returns that node. If there is none, it returns a node outside the tree, whose
/// content is never written.
class ZelDataXmlAttributeValue {
public:
    /// An empty value without a node to return to.
    ZelDataXmlAttributeValue();
    ~ZelDataXmlAttributeValue();

    /// Makes @p node the node to return to; null for none.
    void setParent(ZelDataXmlNode* node) noexcept { parent_ = node; }
    /// The value.
    const std::string& getValue() const noexcept { return value_; }

    /// Replaces the value. Null is an empty value.
    ZelDataXmlNode& operator<(const char* text);
    /// Replaces the value.
    ZelDataXmlNode& operator<(const std::string& text);
    /// The same, without a copy.
    ZelDataXmlNode& operator<(std::string&& text);
    /// Replaces the value with @p number in decimal.
    ZelDataXmlNode& operator<(int number);
    /// Replaces the value with @p number in decimal.
    ZelDataXmlNode& operator<(long number);
    /// Replaces the value with @p number in decimal.
    ZelDataXmlNode& operator<(long long number);
    /// Replaces the value with @p number with up to six significant digits ("0.6", "1.23457e+06").
    ZelDataXmlNode& operator<(double number);

    /// As `*this < text`.
    ZelDataXmlNode& assign(std::string text);

    ZelDataXmlAttributeValue(const ZelDataXmlAttributeValue&) = delete;
    ZelDataXmlAttributeValue& operator=(const ZelDataXmlAttributeValue&) = delete;

private:
    ZelDataXmlNode* parent_ = nullptr;
    std::string value_;
    std::unique_ptr<ZelDataXmlNode> sink_;
};

} // namespace ZelInterchangeData

#endif
