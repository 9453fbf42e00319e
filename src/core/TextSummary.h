/// @file
/// What a collection knows of the texts of all its items.

#ifndef ZELINTERCHANGEDATA_CORE_TEXTSUMMARY_H
#define ZELINTERCHANGEDATA_CORE_TEXTSUMMARY_H

#include "core/LanguageList.h"

#include <cstddef>

namespace ZelInterchangeData {

/// Answers for all items what would otherwise be asked of each.
struct TextSummary {
    /// The languages of the texts in the order of their first occurrence, those of one item
    /// ascending.
    LanguageList languages;
    /// The bytes of all texts.
    std::size_t size = 0;

    /// Takes in the next item, whose texts @p state has.
    template <class State>
    void add(const State& state)
    {
        const auto& texts = state.texts();
        for (std::size_t i = 0; i < texts.count(); ++i)
            languages.addChecked(texts[i].languageID);
        size += texts.size();
    }
};

} // namespace ZelInterchangeData

#endif
