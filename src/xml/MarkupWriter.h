/// @file
/// Elements as text.

#ifndef ZELINTERCHANGEDATA_XML_MARKUPWRITER_H
#define ZELINTERCHANGEDATA_XML_MARKUPWRITER_H

#include "util/TextBlock.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace ZelInterchangeData {

/// Appends elements to a text. You give their tags as text, and attributes by name and value:
///
///     writer.markup("<xmpDM:duration ").attribute("xmpDM:value", length).markup("></xmpDM:duration>");
///
/// A packet has few shapes of elements, all of them known, so they are written directly instead of
/// being built as a tree.
class MarkupWriter {
public:
    /// Appends to @p text, which outlives this object and is complete after finish().
    explicit MarkupWriter(std::string& text) : text_(text) {}

    /// @p markup as given.
    MarkupWriter& markup(std::string_view markup);
    /// An attribute whose value is written as given, and a space.
    MarkupWriter& attribute(std::string_view name, std::string_view value);
    /// An attribute whose value is escaped.
    MarkupWriter& escaped(std::string_view name, std::string_view value);

    /// An attribute with @p value, an integer, in decimal.
    template <class Number, class = std::enable_if_t<std::is_integral_v<Number>>>
    MarkupWriter& attribute(std::string_view name, Number value)
    {
        using Widest = std::conditional_t<std::is_signed_v<Number>, long long, unsigned long long>;
        return number(name, Widest{value});
    }

    /// An attribute whose value @p append, a callable, appends to its argument.
    template <class Append>
    MarkupWriter& attributeOf(std::string_view name, Append&& append)
    {
        beginValue(name);
        std::forward<Append>(append)(text_);
        return endValue();
    }

    /// The text, for content that the other operations do not write.
    TextBlock& text() noexcept { return text_; }

    /// Appends the remaining bytes to the text.
    void finish() { text_.flush(); }

private:
    MarkupWriter& number(std::string_view name, long long value);
    MarkupWriter& number(std::string_view name, unsigned long long value);
    void beginValue(std::string_view name);
    MarkupWriter& endValue();

    TextBlock text_;
};

} // namespace ZelInterchangeData

#endif
