#include "sets/PackedTexts.h"

#include <utility>

namespace ZelInterchangeData {

namespace {

/// The size of what is stored.
struct Size {
    std::size_t entries;
    std::size_t textBytes; // of all IDs and texts
};

std::size_t bytesOf(const PackedTexts::Entry& entry) noexcept
{
    return entry.languageID.size() + entry.text.size();
}

/// Where an entry's text is among the characters. Its ID is between the end of the previous entry
/// and the text.
struct Span {
    std::size_t textBegin;
    std::size_t end;
};

/// The shared bytes: the number of entries, a Span for each, and the characters.
struct Layout {
    explicit Layout(const SharedBytes& bytes) noexcept
        : count(reinterpret_cast<const std::size_t*>(bytes.data()))
    {
    }

    const Span* spans() const noexcept { return reinterpret_cast<const Span*>(count + 1); }
    const char* characters() const noexcept
    {
        return reinterpret_cast<const char*>(spans() + *count);
    }
    std::size_t beginOf(std::size_t index) const noexcept
    {
        return index == 0 ? 0 : spans()[index - 1].end;
    }

    const std::size_t* count;
};

/// New bytes for entries whose number and bytes are known, filled from first to last.
class Filling {
public:
    explicit Filling(Size size)
        : bytes_(sizeof(std::size_t) + size.entries * sizeof(Span) + size.textBytes),
          spans_(reinterpret_cast<Span*>(bytes_.mutableData() + sizeof(std::size_t))),
          characters_(reinterpret_cast<char*>(spans_ + size.entries))
    {
        new (bytes_.mutableData()) std::size_t(size.entries);
    }

    void append(const PackedTexts::Entry& entry)
    {
        copy(entry.languageID);
        const std::size_t textBegin = used_;
        copy(entry.text);
        new (spans_ + filled_++) Span{textBegin, used_};
    }

    /// Appends the entries of @p other from @p first up to, not including, @p last; copies their
    /// characters at once.
    void append(const Layout& other, std::size_t first, std::size_t last)
    {
        if (first == last) return;
        const std::size_t from = other.beginOf(first);
        const std::size_t to = used_;
        copy({other.characters() + from, other.beginOf(last) - from});
        for (std::size_t i = first; i < last; ++i) {
            const auto [textBegin, end] = other.spans()[i];
            new (spans_ + filled_++) Span{textBegin - from + to, end - from + to};
        }
    }

    SharedBytes take() { return std::move(bytes_); }

private:
    void copy(std::string_view text) { used_ += text.copy(characters_ + used_, text.size()); }

    SharedBytes bytes_;
    Span* spans_;
    char* characters_;
    std::size_t filled_ = 0;
    std::size_t used_ = 0;
};

/// Compares language IDs, without a call for two letters, as most have.
int compare(std::string_view a, std::string_view b) noexcept
{
    if (a.size() != 2 || b.size() != 2) return a.compare(b);
    const auto number = [](std::string_view id) {
        return static_cast<unsigned char>(id[0]) << 8 | static_cast<unsigned char>(id[1]);
    };
    return number(a) - number(b);
}

/// A change of texts: removes those from @p first up to, not including, @p last, and puts @p added,
/// if there is one, in their place.
struct Edit {
    std::size_t first;
    std::size_t last;
    const PackedTexts::Entry* added;
};

Size sizeAfter(const PackedTexts& texts, const Edit& edit)
{
    Size size{texts.count(), texts.byteCount()};
    for (std::size_t i = edit.first; i < edit.last; ++i) {
        --size.entries;
        size.textBytes -= bytesOf(texts[i]);
    }
    if (edit.added != nullptr) {
        ++size.entries;
        size.textBytes += bytesOf(*edit.added);
    }
    return size;
}

/// Returns @p texts, which are stored in @p bytes, with @p edit applied.
SharedBytes edited(const PackedTexts& texts, const SharedBytes& bytes, const Edit& edit)
{
    const Size size = sizeAfter(texts, edit);
    if (size.entries == 0) return {};
    Filling filling(size);
    const Layout old(bytes);
    filling.append(old, 0, edit.first);
    if (edit.added != nullptr) filling.append(*edit.added);
    filling.append(old, edit.last, texts.count());
    return filling.take();
}

} // namespace

std::size_t PackedTexts::count() const noexcept
{
    return bytes_.data() == nullptr ? 0 : *Layout(bytes_).count;
}

std::size_t PackedTexts::byteCount() const noexcept
{
    return bytes_.data() == nullptr ? 0 : Layout(bytes_).beginOf(count());
}

std::size_t PackedTexts::bytesWith(std::size_t added) const noexcept
{
    return sizeof(std::size_t) + (count() + 1) * sizeof(Span) + byteCount() + added;
}

PackedTexts::Entry PackedTexts::operator[](std::size_t index) const noexcept
{
    const Layout layout(bytes_);
    const std::size_t begin = layout.beginOf(index);
    const auto [textBegin, end] = layout.spans()[index];
    const char* const characters = layout.characters();
    return {{characters + begin, textBegin - begin}, {characters + textBegin, end - textBegin}};
}

/// The index of the text for @p languageID, or the one that a new text would get.
std::size_t PackedTexts::placeOf(std::string_view languageID) const noexcept
{
    std::size_t first = 0;
    std::size_t last = count();
    while (first != last) {
        const std::size_t middle = first + (last - first) / 2;
        if (compare((*this)[middle].languageID, languageID) < 0) {
            first = middle + 1;
        } else {
            last = middle;
        }
    }
    return first;
}

bool PackedTexts::holds(std::size_t place, std::string_view languageID) const noexcept
{
    return place < count() && compare((*this)[place].languageID, languageID) == 0;
}

std::optional<std::string_view> PackedTexts::find(std::string_view languageID) const noexcept
{
    const std::size_t place = placeOf(languageID);
    if (!holds(place, languageID)) return std::nullopt;
    return (*this)[place].text;
}

bool PackedTexts::set(std::string_view text, std::string_view languageID)
{
    const std::size_t place = placeOf(languageID);
    const bool replaces = holds(place, languageID);
    const Entry added{languageID, text};
    bytes_ = edited(*this, bytes_, {place, replaces ? place + 1 : place, &added});
    return replaces;
}

void PackedTexts::remove(std::string_view languageID)
{
    const std::size_t place = placeOf(languageID);
    bytes_ = edited(*this, bytes_, {place, place + 1, nullptr});
}

} // namespace ZelInterchangeData
