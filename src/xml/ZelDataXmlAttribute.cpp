/// @file
/// An attribute of an element.

#include "xml/ZelDataXmlAttribute.h"

#include "xml/OrEmpty.h"

namespace ZelInterchangeData {

ZelDataXmlAttribute::ZelDataXmlAttribute(ZelDataXmlNode* owner) : owner_(owner) {}

ZelDataXmlAttributeValue& ZelDataXmlAttribute::operator<(const char* name)
{
    name_ = orEmpty(name);
    value_.setParent(owner_);
    return value_;
}

void ZelDataXmlAttribute::write(std::string& out) const
{
    out.append(name_).append("=\"").append(value_.getValue()).append("\" ");
}

} // namespace ZelInterchangeData
