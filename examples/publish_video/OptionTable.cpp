/// @file
/// See OptionTable.h.

#include "OptionTable.h"

#include "Likeness.h"

#include <algorithm>
#include <iterator>

namespace publish {

namespace {

template <class Fits>
const OptionEntry* optionThat(Fits fits)
{
    const auto* const found = std::find_if(std::begin(optionTable), std::end(optionTable), fits);
    return found != std::end(optionTable) ? found : nullptr;
}

bool beginsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

} // namespace

const OptionEntry* optionNamed(std::string_view name)
{
    return optionThat([&](const OptionEntry& option) { return option.name == name; });
}

const OptionEntry* optionWithLetter(char letter)
{
    return optionThat([&](const OptionEntry& option) { return option.letter == letter; });
}

const OptionEntry* optionLike(std::string_view name)
{
    const OptionEntry* const nearest =
        std::min_element(std::begin(optionTable), std::end(optionTable),
                         [&](const OptionEntry& a, const OptionEntry& b) {
                             return mistakesBetween(name, a.name) < mistakesBetween(name, b.name);
                         });
    if (isLike(name, nearest->name)) return nearest;
    if (name.size() < 3) return nullptr;
    return optionThat([&](const OptionEntry& option) { return beginsWith(option.name, name); });
}

} // namespace publish
