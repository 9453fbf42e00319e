/// @file
/// The text of an element.

#include "xml/ZelDataXmlValue.h"

#include "util/ValueStrings.h"
#include "xml/OrEmpty.h"
#include "xml/Sink.h"
#include "xml/ZelDataXmlNode.h"

#include <utility>

namespace ZelInterchangeData {

ZelDataXmlValue::ZelDataXmlValue() = default;

ZelDataXmlValue::~ZelDataXmlValue() = default;

ZelDataXmlNode& ZelDataXmlValue::operator<(const char* text)
{
    return assign(orEmpty(text));
}

ZelDataXmlNode& ZelDataXmlValue::operator<(const std::string& text)
{
    return assign(text);
}

ZelDataXmlNode& ZelDataXmlValue::operator<(long number)
{
    return operator<(static_cast<long long>(number));
}

ZelDataXmlNode& ZelDataXmlValue::operator<(long long number)
{
    return assign(decimalText(number));
}

ZelDataXmlNode& ZelDataXmlValue::assign(std::string text)
{
    text_ = std::move(text);
    return orSink(owner_ != nullptr ? owner_->parent() : nullptr, sink_);
}

} // namespace ZelInterchangeData
