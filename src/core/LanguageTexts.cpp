#include "core/LanguageTexts.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace ZelInterchangeData {

namespace {

/// How much there is to store.
struct Size {
    std::size_t entries;
    std::size_t characters; // of all IDs and texts
};

std::size_t charactersOf(const LanguageTexts::Entry& entry) noexcept
{
    return entry.languageID.size() + entry.text.size();
}

/// Where an entry's text lies among the characters. Its ID lies between the end of the entry before
/// and the text.
struct Span {
    std::size_t textBegin;
    std::size_t end;
};

/// The shared bytes: the number of entries, a Span for each, and the characters.
struct Layout {
    explicit Layout(const SharedBytes& bytes) noexcept
        : count(reinterpret_cast<std::size_t*>(bytes.data()))
    {
    }

    Span* spans() const noexcept { return reinterpret_cast<Span*>(count + 1); }
    char* characters() const noexcept { return reinterpret_cast<char*>(spans() + *count); }
    std::size_t beginOf(std::size_t index) const noexcept
    {
        return index == 0 ? 0 : spans()[index - 1].end;
    }

    std::size_t* count;
};

/// New bytes for entries whose number and characters are known, filled from the first to the last.
class Filling {
public:
    explicit Filling(Size size)
        : bytes_(sizeof(std::size_t) + size.entries * sizeof(Span) + size.characters),
          layout_(bytes_)
    {
        new (layout_.count) std::size_t(size.entries);
    }

    void append(const LanguageTexts::Entry& entry)
    {
        copy(entry.languageID);
        const std::size_t textBegin = used_;
        copy(entry.text);
        new (layout_.spans() + filled_++) Span{textBegin, used_};
    }

    /// Appends the entries of @p other from @p first up to @p last, their characters in one piece.
    void append(const Layout& other, std::size_t first, std::size_t last)
    {
        if (first == last) return;
        const std::size_t from = other.beginOf(first);
        const std::size_t to = used_;
        copy({other.characters() + from, other.beginOf(last) - from});
        for (std::size_t i = first; i < last; ++i) {
            const auto [textBegin, end] = other.spans()[i];
            new (layout_.spans() + filled_++) Span{textBegin - from + to, end - from + to};
        }
    }

    SharedBytes take() { return std::move(bytes_); }

private:
    void copy(std::string_view text)
    {
        used_ += text.copy(layout_.characters() + used_, text.size());
    }

    SharedBytes bytes_;
    Layout layout_;
    std::size_t filled_ = 0;
    std::size_t used_ = 0;
};

/// A change of texts: @p removed entries at @p place go, and @p added, if there is one, comes there.
struct Edit {
    std::size_t place;
    std::size_t removed;
    const LanguageTexts::Entry* added;
};

Size sizeOfEdited(const LanguageTexts& texts, const Edit* first, const Edit* last)
{
    Size size{texts.count(), texts.size()};
    for (const Edit* edit = first; edit != last; ++edit) {
        for (std::size_t i = edit->place; i < edit->place + edit->removed; ++i) {
            --size.entries;
            size.characters -= charactersOf(texts[i]);
        }
        if (edit->added == nullptr) continue;
        ++size.entries;
        size.characters += charactersOf(*edit->added);
    }
    return size;
}

/// What @p texts, stored in @p bytes, are after the edits from @p first up to @p last, which are in
/// the order of their places.
SharedBytes edited(const LanguageTexts& texts, const SharedBytes& bytes, const Edit* first,
                   const Edit* last)
{
    const Size size = sizeOfEdited(texts, first, last);
    if (size.entries == 0) return {};
    Filling filling(size);
    const Layout old(bytes);
    std::size_t next = 0;
    for (const Edit* edit = first; edit != last; ++edit) {
        filling.append(old, next, edit->place);
        if (edit->added != nullptr) filling.append(*edit->added);
        next = edit->place + edit->removed;
    }
    filling.append(old, next, texts.count());
    return filling.take();
}

/// The same for one edit.
SharedBytes edited(const LanguageTexts& texts, const SharedBytes& bytes, const Edit& edit)
{
    return edited(texts, bytes, &edit, &edit + 1);
}

} // namespace

ZelDataResult_tags LanguageTexts::check(const std::string& text, const std::string& languageID)
{
    const bool valid = !failed(ZelDataUtilities::verifyUtf8Format(languageID, false)) &&
                       !failed(ZelDataUtilities::isValidLanguage(languageID)) &&
                       !failed(ZelDataUtilities::verifyUtf8Format(text, false));
    return valid ? ZelData_Ok : ZelData_InvalidItem;
}

std::size_t LanguageTexts::count() const noexcept
{
    return bytes_.data() == nullptr ? 0 : *Layout(bytes_).count;
}

std::size_t LanguageTexts::size() const noexcept
{
    return bytes_.data() == nullptr ? 0 : Layout(bytes_).beginOf(count());
}

LanguageTexts::Entry LanguageTexts::operator[](std::size_t index) const noexcept
{
    const Layout layout(bytes_);
    const std::size_t begin = layout.beginOf(index);
    const auto [textBegin, end] = layout.spans()[index];
    const char* const characters = layout.characters();
    return {{characters + begin, textBegin - begin}, {characters + textBegin, end - textBegin}};
}

/// Where the text for @p languageID stands, or where it would.
std::size_t LanguageTexts::placeOf(std::string_view languageID) const noexcept
{
    std::size_t first = 0;
    std::size_t last = count();
    while (first != last) {
        const std::size_t middle = first + (last - first) / 2;
        if ((*this)[middle].languageID < languageID) {
            first = middle + 1;
        } else {
            last = middle;
        }
    }
    return first;
}

bool LanguageTexts::holds(std::size_t place, std::string_view languageID) const noexcept
{
    return place < count() && (*this)[place].languageID == languageID;
}

std::optional<std::string_view> LanguageTexts::find(std::string_view languageID) const noexcept
{
    const std::size_t place = placeOf(languageID);
    if (!holds(place, languageID)) return std::nullopt;
    return (*this)[place].text;
}

ZelDataResult_tags LanguageTexts::set(std::string_view text, std::string_view languageID)
{
    const std::size_t place = placeOf(languageID);
    const bool replaces = holds(place, languageID);
    const Entry added{languageID, text};
    bytes_ = edited(*this, bytes_, {place, replaces ? std::size_t{1} : 0, &added});
    return replaces ? ZelData_WarnAlreadyExists : ZelData_Ok;
}

void LanguageTexts::addMissing(const std::vector<std::string>& languageIDs)
{
    std::vector<Entry> missing;
    for (const std::string& id : languageIDs) {
        if (!find(id)) missing.push_back({id, {}});
    }
    const auto byID = [](const Entry& a, const Entry& b) { return a.languageID < b.languageID; };
    const auto same = [](const Entry& a, const Entry& b) { return a.languageID == b.languageID; };
    std::sort(missing.begin(), missing.end(), byID);
    missing.erase(std::unique(missing.begin(), missing.end(), same), missing.end());
    std::vector<Edit> edits;
    edits.reserve(missing.size());
    std::transform(missing.begin(), missing.end(), std::back_inserter(edits),
                   [&](const Entry& entry) {
                       return Edit{placeOf(entry.languageID), 0, &entry};
                   });
    if (!edits.empty()) bytes_ = edited(*this, bytes_, edits.data(), edits.data() + edits.size());
}

ZelDataResult_tags LanguageTexts::get(std::string& text, const std::string& languageID) const
{
    const auto found = find(languageID);
    if (!found) return ZelData_InvalidArgument;
    text = *found;
    return ZelData_Ok;
}

ZelDataResult_tags LanguageTexts::remove(const std::string& languageID)
{
    const std::size_t place = placeOf(languageID);
    if (!holds(place, languageID)) return ZelData_NotFound;
    bytes_ = edited(*this, bytes_, {place, 1, nullptr});
    return ZelData_Ok;
}

ZelDataResult_tags LanguageTexts::getLanguageIDs(std::vector<std::string>& ids) const
{
    std::vector<std::string> found;
    found.reserve(count());
    for (std::size_t i = 0; i < count(); ++i)
        found.emplace_back((*this)[i].languageID);
    ids.swap(found);
    return ZelData_Ok;
}

} // namespace ZelInterchangeData
