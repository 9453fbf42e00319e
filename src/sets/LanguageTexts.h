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
/// them changes. If memory runs out, an operation throws `std::bad_alloc` and changes nothing.
///
/// They are packed as long as a change copies few bytes. More or longer texts are in a map, so that a
/// change stays fast.
class LanguageTexts {
public:
    /// #ZelData_Ok if both are UTF-8 and the language is in the catalogue, otherwise
    /// #ZelData_InvalidItem.
    static ZelDataResult_tags check(std::string_view text, std::string_view languageID);

    std::size_t count() const noexcept;
    /// The approximate number of bytes that all texts and their language IDs take in a packet.
    std::size_t sizeWithEntities() const;
    /// The text for @p languageID, valid until the texts change; none if there is no such text.
    /// Looks first at place @p likely.
    std::optional<std::string_view> find(std::string_view languageID, std::size_t likely = 0) const
    {
        return many_ ? many_->read().find(languageID) : few_.find(languageID, likely);
    }
    /// Calls @p visit with each language ID and its text.
    template <class Visit>
    void forEach(Visit&& visit) const
    {
        if (many_) {
            for (const auto& [languageID, text] : many_->read().texts)
                visit(std::string_view(languageID), std::string_view(text));
            return;
        }
        const std::size_t count = few_.count();
        for (std::size_t i = 0; i < count; ++i) {
            const auto [languageID, text] = few_[i];
            visit(languageID, text);
        }
    }

    /// Prefetches the texts if they are packed and of usual length.
    void prefetch() const noexcept { few_.prefetch(); }

    void clear() noexcept;
    /// Stores a copy of @p text. Both must already have passed check(). #ZelData_WarnAlreadyExists
    /// if it replaced a text.
    ZelDataResult_tags set(std::string_view text, std::string_view languageID);
    /// Stores an empty text for each of @p languageIDs that has none; all must already have passed
    /// check().
    void addMissing(const std::vector<std::string>& languageIDs);
    /// #ZelData_InvalidArgument if there is none.
    ZelDataResult_tags get(std::string& text, const std::string& languageID) const;
    /// #ZelData_NotFound if there is none.
    ZelDataResult_tags remove(const std::string& languageID);
    /// Allocates what finishRemoval() needs to remove the text for @p languageID, and returns it;
    /// none if there is no such text. The texts are unchanged.
    std::optional<PackedTexts> prepareRemoval(std::string_view languageID);
    /// Removes the text for @p languageID, using @p left, the result of prepareRemoval().
    void finishRemoval(std::string_view languageID, PackedTexts left) noexcept;
    /// Replaces @p ids with the languages that have a text.
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const;

private:
    struct Map {
        std::optional<std::string_view> find(std::string_view languageID) const;
        /// Returns whether it replaced a text.
        bool set(std::string_view text, std::string_view languageID);

        std::map<std::string, std::string, std::less<>> texts;
    };

    Map unpacked() const;
    /// Stores a copy of @p text. Returns whether it replaced one.
    bool replace(std::string_view text, std::string_view languageID);

    PackedTexts few_;                      // empty if there are many
    std::optional<CopyOnWrite<Map>> many_; // none if there are few
};

} // namespace ZelInterchangeData

#endif
