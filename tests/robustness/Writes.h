/// @file
/// Makes the system's writes to files fail in the way that a test asks for.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_WRITES_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_WRITES_H

#include <cstddef>
#include <limits>

namespace ZelInterchangeData {

/// What happens at one of the writes.
enum class Trouble {
    None,
    /// It is refused with an error number.
    Fails,
    /// A signal arrives before any byte is taken.
    Interrupted,
    /// Only some of the bytes are taken.
    Short
};

/// While an object exists, the write functions of the system go through it, in this test program and
/// in the libraries that it loads, except for the standard streams. Only one may exist at a time.
class Writes {
public:
    static constexpr std::size_t every = std::numeric_limits<std::size_t>::max();

    /// @p trouble comes at the write with the index @p at, counted from 0, or at every one.
    /// Trouble::Interrupted then comes at every other write, since no write would ever end.
    ///
    /// @param detail the error number, or how many bytes are taken.
    explicit Writes(Trouble trouble = Trouble::None, std::size_t at = every, int detail = 0);
    ~Writes();
    Writes(const Writes&) = delete;
    Writes& operator=(const Writes&) = delete;

    /// How many writes there were.
    [[nodiscard]] std::size_t count() const noexcept;
    /// How many of them failed.
    [[nodiscard]] std::size_t troubled() const noexcept;
};

/// While an object exists, fclose() closes the file and then reports an error. Only one may exist at a
/// time.
class FailingCloses {
public:
    FailingCloses();
    ~FailingCloses();
    FailingCloses(const FailingCloses&) = delete;
    FailingCloses& operator=(const FailingCloses&) = delete;

    /// How many files were closed.
    [[nodiscard]] std::size_t count() const noexcept;
};

} // namespace ZelInterchangeData

#endif
