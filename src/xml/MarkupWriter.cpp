#include "xml/MarkupWriter.h"

#include "util/TextUtilities.h"

namespace ZelInterchangeData {

MarkupWriter& MarkupWriter::markup(std::string_view markup)
{
    text_.append(markup);
    return *this;
}

MarkupWriter& MarkupWriter::attribute(std::string_view name, std::string_view value)
{
    return attributeOf(name, [value](TextBlock& text) { text.append(value); });
}

MarkupWriter& MarkupWriter::escaped(std::string_view name, std::string_view value)
{
    return attributeOf(name, [value](TextBlock& text) { appendEscaped(text, value); });
}

MarkupWriter& MarkupWriter::number(std::string_view name, long long value)
{
    return attributeOf(name, [value](TextBlock& text) { text.appendNumber(value); });
}

MarkupWriter& MarkupWriter::number(std::string_view name, unsigned long long value)
{
    return attributeOf(name, [value](TextBlock& text) { text.appendNumber(value); });
}

void MarkupWriter::beginValue(std::string_view name)
{
    text_.append(name).append("=\"");
}

MarkupWriter& MarkupWriter::endValue()
{
    text_.append("\" ");
    return *this;
}

} // namespace ZelInterchangeData
