/// @file
/// Numbers that look random and are the same on every machine.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_DICE_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_DICE_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ZelInterchangeData {

/// An xorshift generator; the seed must not be 0.
class Dice {
public:
    explicit Dice(std::uint64_t seed) noexcept : state_(seed) {}

    /// A number below @p count.
    std::size_t below(std::size_t count) noexcept
    {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return static_cast<std::size_t>((state_ >> 11) % count);
    }

    /// True once in @p times throws.
    bool once(std::size_t times) noexcept { return below(times) == 0; }

    /// One of @p choices.
    template <class Choice>
    const Choice& one(const std::vector<Choice>& choices) noexcept
    {
        return choices[below(choices.size())];
    }

private:
    std::uint64_t state_;
};

} // namespace ZelInterchangeData

#endif
