/// @file
/// The value of an attribute.

#include "xml/ZelDataXmlAttributeValue.h"

#include "util/ValueStrings.h"
#include "xml/OrEmpty.h"
#include "xml/Sink.h"

#include <utility>

namespace ZelInterchangeData {

ZelDataXmlAttributeValue::ZelDataXmlAttributeValue() = default;

ZelDataXmlAttributeValue::~ZelDataXmlAttributeValue() = default;

ZelDataXmlNode& ZelDataXmlAttributeValue::operator<(const char* text)
{
    return assign(orEmpty(text));
}

ZelDataXmlNode& ZelDataXmlAttributeValue::operator<(const std::string& text)
{
    return assign(text);
}

ZelDataXmlNode& ZelDataXmlAttributeValue::operator<(std::string&& text)
{
    return assign(std::move(text));
}

ZelDataXmlNode& ZelDataXmlAttributeValue::operator<(int number)
{
    return operator<(static_cast<long long>(number));
}

ZelDataXmlNode& ZelDataXmlAttributeValue::operator<(long number)
{
    return operator<(static_cast<long long>(number));
}

ZelDataXmlNode& ZelDataXmlAttributeValue::operator<(long long number)
{
    return assign(decimalText(number));
}

ZelDataXmlNode& ZelDataXmlAttributeValue::operator<(double number)
{
    return assign(generalText(number));
}

ZelDataXmlNode& ZelDataXmlAttributeValue::assign(std::string text)
{
    value_ = std::move(text);
    return orSink(parent_, sink_);
}

} // namespace ZelInterchangeData
