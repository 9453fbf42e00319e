/// @file
/// The bytes of an input, as the values that a target needs.

#ifndef ZELINTERCHANGEDATA_FUZZ_SUPPORT_INPUT_H
#define ZELINTERCHANGEDATA_FUZZ_SUPPORT_INPUT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace fuzz {

/// Takes values from the front of an input, one after another. An input that has ended continues
/// with zeros, so a target calls isEmpty() where it decides whether to continue.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size)
        : bytes_(reinterpret_cast<const char*>(data), size)
    {
    }

    bool isEmpty() const { return bytes_.empty(); }

    std::uint8_t byte()
    {
        if (bytes_.empty()) return 0;
        const auto value = static_cast<std::uint8_t>(bytes_.front());
        bytes_.remove_prefix(1);
        return value;
    }
    bool flag() { return (byte() & 1U) != 0; }
    /// 0 to @p limit - 1; the limit is at most 256.
    std::size_t below(std::size_t limit) { return byte() % limit; }

    /// The bytes that remain.
    std::string rest() { return std::string(take(bytes_.size())); }

    /// A small number, an extreme one or any other.
    template <class Number>
    Number number()
    {
        using Limits = std::numeric_limits<Number>;
        switch (below(8)) {
        case 0:
            return Limits::max();
        case 1:
            return Limits::lowest();
        case 2:
            return static_cast<Number>(Limits::max() - static_cast<Number>(byte()));
        case 3:
            return raw<Number>();
        case 4:
            return static_cast<Number>(byte() * 100);
        default:
            return static_cast<Number>(byte());
        }
    }

    /// The bits of a value.
    template <class Value>
    Value raw()
    {
        static_assert(std::is_trivially_copyable_v<Value>);
        Value value{};
        const std::string_view bits = take(sizeof value);
        std::memcpy(&value, bits.data(), bits.size());
        return value;
    }

    /// A number from 0 to 1, one just outside, or any bits.
    float fraction()
    {
        const std::uint8_t choice = byte();
        return choice == 255 ? raw<float>() : static_cast<float>(choice) / 250.0F;
    }

    /// Up to 255 bytes of the input.
    std::string bytes() { return std::string(take(byte())); }

    /// A word that operations know, a text of any bytes, or a text that is long enough to need
    /// memory.
    std::string text()
    {
        static const char* const words[] = {
            "",         "en",    "de",   "fr",
            "EN",       "en-US", "zz",   "lu",
            "ja",       "&x",    "a\nb", "<rdf:",
            "\xC3\xA9", "\xFF",  "ar",   "zh-Hant-and-more-than-a-short-string-holds",
            "x"};
        const std::size_t choice = byte();
        if (choice >= 224) return longText();
        return choice >= 128 ? bytes() : words[choice % std::size(words)];
    }

    std::vector<std::string> texts()
    {
        std::vector<std::string> list(below(5));
        for (std::string& one : list)
            one = text();
        return list;
    }

private:
    std::string_view take(std::size_t count)
    {
        const std::string_view taken = bytes_.substr(0, count);
        bytes_.remove_prefix(taken.size());
        return taken;
    }

    std::string longText()
    {
        const std::string piece = bytes() + "-and-on";
        std::size_t times = 1 + below(64);
        std::string whole = "long ";
        whole.reserve(whole.size() + times * piece.size());
        for (; times > 0; --times)
            whole += piece;
        return whole;
    }

    std::string_view bytes_;
};

} // namespace fuzz

#endif
