/// @file
/// See PlainText.h.

#include "PlainText.h"

#include <algorithm>
#include <iterator>

namespace publish {

namespace {

struct Entity {
    std::string_view name;
    std::string_view character;
};

constexpr Entity entities[] = {{"&amp;", "&"},
                               {"&lt;", "<"},
                               {"&gt;", ">"},
                               {"&nbsp;", "\xC2\xA0"},
                               {"&lrm;", "\xE2\x80\x8E"},
                               {"&rlm;", "\xE2\x80\x8F"}};

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

const Entity* entityAt(std::string_view text)
{
    const auto* const end = std::end(entities);
    const auto* const found = std::find_if(std::begin(entities), end, [&](const Entity& entity) {
        return startsWith(text, entity.name);
    });
    return found != end ? found : nullptr;
}

/// Finds where markup ends. Looks up the last closing characters once, so that it does not search a
/// text with many openings and no closing to its end for each of them.
class MarkupFinder {
public:
    explicit MarkupFinder(std::string_view text)
        : text_(text), lastAngle_(text.rfind('>')), lastBrace_(text.rfind('}'))
    {
    }

    /// The number of characters of the markup at @p at; 0 if there is none.
    std::size_t lengthAt(std::size_t at) const
    {
        if (text_[at] == '<') return lengthUpTo('>', lastAngle_, at);
        if (startsWith(text_.substr(at), "{\\")) return lengthUpTo('}', lastBrace_, at);
        return 0;
    }

private:
    std::size_t lengthUpTo(char closing, std::size_t last, std::size_t at) const
    {
        if (last == std::string_view::npos || last < at) return 0;
        return text_.find(closing, at) + 1 - at;
    }

    std::string_view text_;
    std::size_t lastAngle_;
    std::size_t lastBrace_;
};

std::string withoutMarkup(std::string_view text, bool isWebVtt)
{
    const MarkupFinder markup(text);
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (const std::size_t length = markup.lengthAt(at); length != 0) {
            at += length;
        } else if (const Entity* entity = isWebVtt ? entityAt(text.substr(at)) : nullptr) {
            plain += entity->character;
            at += entity->name.size();
        } else {
            plain += text[at++];
        }
    }
    return plain;
}

} // namespace

std::string_view withoutBlanksAtEnd(std::string_view line)
{
    while (!line.empty() && isBlank(line.back()))
        line.remove_suffix(1);
    return line;
}

bool isNothingButBlanks(std::string_view text)
{
    return text.find_first_not_of(" \t\n") == std::string_view::npos;
}

std::string plainText(std::string_view text, bool isWebVtt)
{
    std::string trimmed;
    forEachLine(withoutMarkup(text, isWebVtt), [&trimmed](std::string_view line) {
        trimmed += withoutBlanksAtEnd(line);
        trimmed += '\n';
    });
    trimmed.pop_back();
    return trimmed;
}

} // namespace publish
