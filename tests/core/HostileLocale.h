/// @file
/// A locale that spoils wide streams.

#ifndef ZELINTERCHANGEDATA_TESTS_CORE_HOSTILELOCALE_H
#define ZELINTERCHANGEDATA_TESTS_CORE_HOSTILELOCALE_H

#include <array>
#include <clocale>
#include <cwchar>
#include <locale>
#include <string>

namespace ZelInterchangeData {

/// The names of C locales that the system has.
#ifdef _WIN32
constexpr std::array<const char*, 1> localeNames = {"C"};
#else
constexpr std::array<const char*, 2> localeNames = {"C", "C.UTF-8"};
#endif

/// While it lives, the global locale widens every narrow character to a question mark and converts no
/// wide character, and the C locale is the named one.
class HostileLocale {
public:
    explicit HostileLocale(const char* name)
        : cBefore_(std::setlocale(LC_ALL, nullptr)),
          before_(std::locale::global(
              std::locale(std::locale(std::locale(), new Widening), new Conversion))),
          named_(std::setlocale(LC_ALL, name) != nullptr)
    {
    }
    ~HostileLocale()
    {
        std::locale::global(before_);
        std::setlocale(LC_ALL, cBefore_.c_str());
    }
    HostileLocale(const HostileLocale&) = delete;
    HostileLocale& operator=(const HostileLocale&) = delete;

    /// Whether the system has the named C locale.
    bool isInPlace() const { return named_; }

private:
    /// Owned by the locale that it is given to, like the next one.
    class Widening : public std::ctype<wchar_t> {
        wchar_t do_widen(char /*narrow*/) const override { return L'?'; }
        const char* do_widen(const char* first, const char* last, wchar_t* out) const override
        {
            for (; first != last; ++first, ++out)
                *out = L'?';
            return last;
        }
    };

    class Conversion : public std::codecvt<wchar_t, char, std::mbstate_t> {
        result do_out(std::mbstate_t& /*state*/, const wchar_t* /*from*/,
                      const wchar_t* /*fromEnd*/, const wchar_t*& /*fromNext*/, char* /*to*/,
                      char* /*toEnd*/, char*& /*toNext*/) const override
        {
            return error;
        }
    };

    std::string cBefore_;
    std::locale before_;
    bool named_;
};

} // namespace ZelInterchangeData

#endif
