/// @file
/// See Likeness.h.

#include "Likeness.h"

#include "Text.h"

#include <algorithm>
#include <array>

namespace publish {

namespace {

constexpr std::size_t longest = 40;

} // namespace

std::size_t mistakesBetween(std::string_view a, std::string_view b)
{
    if (std::max(a.size(), b.size()) > longest) return longest;
    // Row i holds the mistakes between the first i bytes of a and each beginning of b.
    std::array<std::array<std::size_t, longest + 1>, longest + 1> mistakes{};
    const auto isSame = [&](std::size_t i, std::size_t j) {
        return lowerCase(a[i - 1]) == lowerCase(b[j - 1]);
    };
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            std::size_t& least = mistakes[i][j];
            least = std::max(i, j);
            if (i == 0 || j == 0) continue;
            least = std::min({mistakes[i - 1][j] + 1, mistakes[i][j - 1] + 1,
                              mistakes[i - 1][j - 1] + (isSame(i, j) ? 0 : 1)});
            if (i > 1 && j > 1 && isSame(i, j - 1) && isSame(i - 1, j))
                least = std::min(least, mistakes[i - 2][j - 2] + 1);
        }
    }
    return mistakes[a.size()][b.size()];
}

bool isLike(std::string_view typed, std::string_view word)
{
    return mistakesBetween(typed, word) <= std::min<std::size_t>(2, word.size() / 3);
}

} // namespace publish
