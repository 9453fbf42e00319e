/// @file
/// A time zone for a test.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_TIMEZONE_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_TIMEZONE_H

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace ZelInterchangeData {

/// Sets the time zone of the process while it lives.
class TimeZone {
public:
    explicit TimeZone(const char* zone)
    {
        if (const char* const before = std::getenv("TZ")) before_ = before;
        set(zone);
    }
    ~TimeZone() { set(before_ ? before_->c_str() : nullptr); }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    /// Null for none.
    static void set(const char* zone)
    {
#ifdef _WIN32
        _putenv_s("TZ", zone != nullptr ? zone : "");
        _tzset();
#else
        if (zone != nullptr) {
            setenv("TZ", zone, 1);
        } else {
            unsetenv("TZ");
        }
        tzset();
#endif
    }

    std::optional<std::string> before_;
};

} // namespace ZelInterchangeData

#endif
