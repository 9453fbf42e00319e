/// @file
/// One text per language.

#ifndef ZELINTERCHANGEDATA_SETS_LANGUAGETEXTS_H
#define ZELINTERCHANGEDATA_SETS_LANGUAGETEXTS_H

#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "sets/PackedTexts.h"
#include "util/CopyOnWrite.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZelInterchangeData {

/// The texts of an item by language ID, in ascending byte order. Copies share them until one of
/// them changes. Exhausted memory passes through as `std::bad_alloc` and changes nothing.
///
/// They are packed while a change copies few bytes, as it does for nearly every item, and kept in a
/// map beyond that, so that no number and no length of texts makes a change slow.
class LanguageTexts {
public:
    /// #ZelData_Ok when both are UTF-8 and the catalogue knows the language, else
    /// #ZelData_InvalidItem.
    static ZelDataResult_tags check(const std::string& text, const std::string& languageID);

    std::size_t count() const noexcept;
    /// The text for @p languageID, valid until the texts change; none when there is no such text.
    std::optional<std::string_view> find(std::string_view languageID) const
    {
        return many_ ? many_->read().find(languageID) : few_.find(languageID);
    }
    /// The number of bytes in all language IDs and texts.
    std::size_t characters() const noexcept;
    /// Calls @p visit with each language ID and its text.
    template <class Visit>
    void forEach(Visit&& visit) const
    {
        if (many_) {
            for (const auto& [languageID, text] : many_->read().texts)
                visit(std::string_view(languageID), std::string_view(text));
            return;
        }
        for (std::size_t i = 0; i < few_.count(); ++i) {
            const auto [languageID, text] = few_[i];
            visit(languageID, text);
        }
    }

    /// Prefetches the texts if they are packed and of usual length.
    void prefetch() const noexcept { few_.prefetch(); }

    void clear() noexcept;
    /// Stores a copy of @p text. Both must already have passed check(). #ZelData_WarnAlreadyExists
    /// when it replaced a text.
    ZelDataResult_tags set(std::string_view text, std::string_view languageID);
    /// Stores an empty text for each of @p languageIDs that has none; all must already have passed
    /// check().
    void addMissing(const std::vector<std::string>& languageIDs);
    /// #ZelData_InvalidArgument when there is none.
    ZelDataResult_tags get(std::string& text, const std::string& languageID) const;
    /// #ZelData_NotFound when there is none.
    ZelDataResult_tags remove(const std::string& languageID);
    /// Prepares to remove the text for @p languageID, as far as that needs memory, and returns what
    /// finishRemoval() then needs; none when there is no such text. The texts stay as they are.
    std::optional<PackedTexts> prepareRemoval(std::string_view languageID);
    /// Removes the text for @p languageID, which was prepared with the result @p left.
    void finishRemoval(std::string_view languageID, PackedTexts left) noexcept;
    /// Replaces @p ids with the languages that have a text.
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const;

private:
    struct Map {
        std::optional<std::string_view> find(std::string_view languageID) const;
        /// Returns whether it replaced a text.
        bool set(std::string_view text, std::string_view languageID);

        std::map<std::string, std::string, std::less<>> texts;
        std::size_t characters = 0;
    };

    Map unpacked() const;
    /// Stores a copy of @p text. Returns whether it replaced one.
    bool replace(std::string_view text, std::string_view languageID);

    PackedTexts few_;                      // empty while there are many
    std::optional<CopyOnWrite<Map>> many_; // none while there are few
};

} // namespace ZelInterchangeData

#endif
