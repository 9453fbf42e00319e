/// @file
/// See LanguageGroups.h.

#include "LanguageGroups.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <utility>

namespace publish {

namespace {

using Pair = std::pair<std::string, std::string>;

/// How many captions have both languages; a language with itself: how many have it.
std::map<Pair, std::size_t> sharedCaptions(const std::vector<MergedCaption>& captions)
{
    std::map<Pair, std::size_t> shared;
    for (const MergedCaption& caption : captions)
        for (const LanguageText& a : caption.texts)
            for (const LanguageText& b : caption.texts)
                ++shared[{a.language, b.language}];
    return shared;
}

/// Moves the group of @p b to that of @p a.
void join(LanguageGroups& groups, const std::string& a, const std::string& b)
{
    const auto groupOf = [&](const std::string& language) {
        return std::find_if(groups.begin(), groups.end(), [&](const auto& group) {
            return std::find(group.begin(), group.end(), language) != group.end();
        });
    };
    const auto to = groupOf(a);
    const auto from = groupOf(b);
    if (to == from) return;
    to->insert(to->end(), from->begin(), from->end());
    std::sort(to->begin(), to->end());
    groups.erase(from);
}

} // namespace

LanguageGroups languageGroups(const std::vector<MergedCaption>& captions)
{
    const std::map<Pair, std::size_t> shared = sharedCaptions(captions);
    LanguageGroups groups;
    for (const auto& [pair, count] : shared)
        if (pair.first == pair.second) groups.push_back({pair.first});
    for (const auto& [pair, count] : shared) {
        const std::size_t fewer =
            std::min(shared.at({pair.first, pair.first}), shared.at({pair.second, pair.second}));
        if (2 * count > fewer) join(groups, pair.first, pair.second);
    }
    std::sort(groups.begin(), groups.end());
    return groups;
}

} // namespace publish
