/// @file
/// An attribute of an element.

#include "xml/ZelDataXmlAttribute.h"

#include "xml/OrEmpty.h"

namespace ZelInterchangeData {

ZelDataXmlAttribute::ZelDataXmlAttribute(ZelDataXmlNode* owner, TreeMemory* memory)
    : name_(memory), owner_(owner)
{
}

ZelDataXmlAttributeValue& ZelDataXmlAttribute::operator<(const char* name)
{
    name_ = orEmpty(name);
    value_.setParent(owner_);
    return value_;
}

std::size_t ZelDataXmlAttribute::length() const noexcept
{
    constexpr std::size_t markup = 4;
    return name_.size() + value_.getValue().size() + markup;
}

void ZelDataXmlAttribute::write(std::string& out) const
{
    out.append(std::string_view(name_)).append("=\"").append(value_.getValue()).append("\" ");
}

} // namespace ZelInterchangeData
