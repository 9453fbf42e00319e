/// @file
/// One text per language.

#ifndef ZELINTERCHANGEDATA_CORE_LANGUAGETEXTS_H
#define ZELINTERCHANGEDATA_CORE_LANGUAGETEXTS_H

#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "util/SharedBytes.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZelInterchangeData {

/// The texts of an item by language ID, in ascending byte order. Exhausted memory passes through as
/// `std::bad_alloc` and changes nothing.
///
/// All of them lie in one piece of memory that copies share; a change makes a new one. Texts are
/// set once and then copied and read many times, so the cheap copy and the one step to the bytes
/// are worth the copying of a change.
class LanguageTexts {
public:
    /// A language ID and its text.
    struct Entry {
        std::string_view languageID;
        std::string_view text;
    };

    /// #ZelData_Ok when both are UTF-8 and the catalogue knows the language, else
    /// #ZelData_InvalidItem.
    static ZelDataResult_tags check(const std::string& text, const std::string& languageID);

    std::size_t count() const noexcept;
    /// The entry at @p index, which is below count(). Its views hold until the texts change.
    Entry operator[](std::size_t index) const noexcept;
    /// The text for @p languageID; none when there is no such text.
    std::optional<std::string_view> find(std::string_view languageID) const noexcept;
    /// About how many bytes the texts have.
    std::size_t size() const noexcept;

    /// Has the texts at hand when they are needed, as far as they are of usual length.
    void prefetch() const noexcept { bytes_.prefetch(224); }

    void clear() noexcept { bytes_ = SharedBytes(); }
    /// Stores a copy of @p text. Both stood check(). #ZelData_WarnAlreadyExists when it replaced a
    /// text.
    ZelDataResult_tags set(std::string_view text, std::string_view languageID);
    /// #ZelData_InvalidArgument when there is none.
    ZelDataResult_tags get(std::string& text, const std::string& languageID) const;
    /// #ZelData_NotFound when there is none.
    ZelDataResult_tags remove(const std::string& languageID);
    /// Replaces @p ids with the languages that have a text.
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const;

private:
    std::size_t placeOf(std::string_view languageID) const noexcept;
    bool holds(std::size_t place, std::string_view languageID) const noexcept;

    SharedBytes bytes_;
};

} // namespace ZelInterchangeData

#endif
