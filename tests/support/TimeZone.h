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
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZone()
    {
        if (before_) {
            setenv("TZ", before_->c_str(), 1);
        } else {
            unsetenv("TZ");
        }
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    std::optional<std::string> before_;
};

} // namespace ZelInterchangeData

#endif
