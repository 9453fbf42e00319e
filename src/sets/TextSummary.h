/// @file
/// What a collection knows of the texts of all its items.

#ifndef ZELINTERCHANGEDATA_SETS_TEXTSUMMARY_H
#define ZELINTERCHANGEDATA_SETS_TEXTSUMMARY_H

#include "sets/LanguageList.h"
#include "util/TextUtilities.h"

#include <cstddef>
#include <string_view>

namespace ZelInterchangeData {

/// Answers for all items what would otherwise be asked of each.
struct TextSummary {
    /// The languages of the texts in the order of their first occurrence, those of one item
    /// ascending.
    LanguageList languages;
    /// About how many bytes all texts have in the packet, their language IDs included.
    std::size_t size = 0;

    /// Takes in the next item, whose texts @p state has.
    template <class State>
    void add(const State& state)
    {
        state.texts().forEach([this](std::string_view languageID, std::string_view text) {
            languages.addChecked(languageID);
            size += languageID.size() + sizeWithEntities(text);
        });
    }
};

} // namespace ZelInterchangeData

#endif
