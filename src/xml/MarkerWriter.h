/// @file
/// The markers of a track.

#ifndef ZELINTERCHANGEDATA_XML_MARKERWRITER_H
#define ZELINTERCHANGEDATA_XML_MARKERWRITER_H

#include "util/TextBlock.h"
#include "util/TextUtilities.h"

#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// Appends markers to the text of a track. A track has many markers of one shape, so each is
/// written directly instead of being built as a tree:
///
///     markers.begin().attribute("xmpDM:startTime", start).escaped("zelDM:image", image).end();
///
/// A marker has at least one attribute.
class MarkerWriter {
public:
    /// Appends to @p text, which outlives this object and is complete after finish().
    explicit MarkerWriter(std::string& text) : text_(text) {}

    /// Opens a marker; its attributes follow.
    MarkerWriter& begin()
    {
        text_.append("<rdf:li><rdf:Description ");
        return *this;
    }

    /// An attribute whose value is written as given.
    MarkerWriter& attribute(std::string_view name, std::string_view value)
    {
        beginValue(name);
        text_.append(value);
        return endValue();
    }

    /// An attribute with @p value in decimal.
    MarkerWriter& attribute(std::string_view name, long long value)
    {
        beginValue(name);
        text_.appendNumber(value);
        return endValue();
    }

    /// An attribute with @p value in decimal.
    MarkerWriter& attribute(std::string_view name, unsigned long long value)
    {
        beginValue(name);
        text_.appendNumber(value);
        return endValue();
    }

    /// An attribute whose value is escaped.
    MarkerWriter& escaped(std::string_view name, std::string_view value)
    {
        beginValue(name);
        appendEscaped(text_, value);
        return endValue();
    }

    /// An attribute whose value is escaped and stripped of control characters.
    MarkerWriter& escapedStripped(std::string_view name, std::string_view value)
    {
        beginValue(name);
        appendEscapedStripped(text_, value);
        return endValue();
    }

    /// Ends the attributes and returns the text, to append the marker's content to.
    TextBlock& content()
    {
        text_.append(">");
        return text_;
    }

    /// Closes a marker without content.
    void end()
    {
        content();
        endContent();
    }

    /// Closes a marker after its content().
    void endContent() { text_.append("</rdf:Description></rdf:li>"); }

    /// Appends the remaining bytes to the text.
    void finish() { text_.flush(); }

private:
    void beginValue(std::string_view name)
    {
        text_.append(name);
        text_.append("=\"");
    }

    MarkerWriter& endValue()
    {
        text_.append("\" ");
        return *this;
    }

    TextBlock text_;
};

} // namespace ZelInterchangeData

#endif
