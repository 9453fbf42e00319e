/// @file
/// What a collection knows about the texts of all its items.

#ifndef ZELINTERCHANGEDATA_SETS_TEXTSUMMARY_H
#define ZELINTERCHANGEDATA_SETS_TEXTSUMMARY_H

#include "sets/LanguageList.h"

#include <cstddef>

namespace ZelInterchangeData {

/// Summarises all items, so that most operations need not visit each of them.
struct TextSummary {
    /// The languages of the texts in the order of their first occurrence, those of one item
    /// ascending.
    LanguageList languages;
    /// The approximate number of bytes that all texts and their language IDs take in the packet.
    std::size_t size = 0;

    /// Adds the next item, which has the texts of @p state.
    template <class State>
    void add(const State& state)
    {
        languages.addLanguagesOf(state.texts());
        size += state.texts().sizeWithEntities();
    }
};

} // namespace ZelInterchangeData

#endif
