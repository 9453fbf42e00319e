/// @file
/// Text that is written in many small pieces.

#ifndef ZELINTERCHANGEDATA_UTIL_TEXTBLOCK_H
#define ZELINTERCHANGEDATA_UTIL_TEXTBLOCK_H

#include <array>
#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace ZelInterchangeData {

/// Collects pieces in a block before it appends them to a string: most pieces are short literals,
/// and copying them inline is much faster than one call for each.
class TextBlock {
public:
    /// Appends to @p out, which outlives this object and lacks the last pieces until flush().
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): written before it is read.
    explicit TextBlock(std::string& out) : out_(out) {}
    TextBlock(const TextBlock&) = delete;
    TextBlock& operator=(const TextBlock&) = delete;

    TextBlock& append(std::string_view piece)
    {
        if (piece.size() > block_.size() - size_) {
            appendLong(piece);
        } else {
            appendShort(piece);
        }
        return *this;
    }

    /// Appends @p number in decimal.
    template <class Number>
    TextBlock& appendNumber(Number number)
    {
        static_assert(std::is_integral_v<Number>);
        constexpr std::size_t most = 24;
        if (block_.size() - size_ < most) flush();
        char* const begin = block_.data() + size_;
        size_ += static_cast<std::size_t>(std::to_chars(begin, begin + most, number).ptr - begin);
        return *this;
    }

    /// The number of bytes appended so far.
    std::size_t position() const noexcept { return flushed_ + size_; }

    /// Appends the remaining pieces to the string.
    void flush()
    {
        out_.append(block_.data(), size_);
        flushed_ += size_;
        size_ = 0;
    }

private:
    void appendShort(std::string_view piece)
    {
        // copy() also accepts an empty view without data.
        size_ += piece.copy(block_.data() + size_, piece.size());
    }

    void appendLong(std::string_view piece)
    {
        flush();
        if (piece.size() <= block_.size()) {
            appendShort(piece);
            return;
        }
        out_.append(piece);
        flushed_ += piece.size();
    }

    std::string& out_;
    std::size_t flushed_ = 0;
    std::size_t size_ = 0;
    std::array<char, 4096> block_;
};

} // namespace ZelInterchangeData

#endif
