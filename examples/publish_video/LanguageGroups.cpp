/// @file
/// See LanguageGroups.h.

#include "LanguageGroups.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <numeric>
#include <set>

namespace publish {

namespace {

using Languages = std::vector<std::string>;

/// In alphabetical order.
Languages languagesOf(const std::vector<MergedCaption>& captions)
{
    std::set<std::string> languages;
    for (const MergedCaption& caption : captions)
        for (const LanguageText& text : caption.texts)
            languages.insert(text.language);
    return {languages.begin(), languages.end()};
}

/// For each two languages, how many captions have both; for one and itself, how many have it.
using Shared = std::vector<std::vector<std::size_t>>;

Shared sharedCaptions(const std::vector<MergedCaption>& captions, const Languages& languages)
{
    Shared shared(languages.size(), std::vector<std::size_t>(languages.size()));
    for (const MergedCaption& caption : captions) {
        std::vector<std::size_t> there;
        for (const LanguageText& text : caption.texts) {
            const auto place = std::lower_bound(languages.begin(), languages.end(), text.language);
            there.push_back(static_cast<std::size_t>(place - languages.begin()));
        }
        for (const std::size_t a : there)
            for (const std::size_t b : there)
                ++shared[a][b];
    }
    return shared;
}

} // namespace

LanguageGroups languageGroups(const std::vector<MergedCaption>& captions)
{
    const Languages languages = languagesOf(captions);
    const Shared shared = sharedCaptions(captions, languages);
    // Each group is known by the first of its languages.
    std::vector<std::size_t> firsts(languages.size());
    std::iota(firsts.begin(), firsts.end(), std::size_t{0});
    for (std::size_t b = 0; b != languages.size(); ++b) {
        for (std::size_t a = 0; a != b; ++a) {
            if (2 * shared[a][b] <= std::min(shared[a][a], shared[b][b])) continue;
            const auto [first, later] = std::minmax({firsts[a], firsts[b]});
            std::replace(firsts.begin(), firsts.end(), later, first);
        }
    }
    std::map<std::size_t, Languages> groups;
    for (std::size_t at = 0; at != languages.size(); ++at)
        groups[firsts[at]].push_back(languages[at]);
    LanguageGroups ordered;
    for (const auto& [first, group] : groups)
        ordered.push_back(group);
    return ordered;
}

} // namespace publish
