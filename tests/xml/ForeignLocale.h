/// @file
/// A locale in which streams group digits and write a decimal comma.

#ifndef ZELINTERCHANGEDATA_TESTS_XML_FOREIGNLOCALE_H
#define ZELINTERCHANGEDATA_TESTS_XML_FOREIGNLOCALE_H

#include <locale>
#include <string>

namespace ZelInterchangeData {

/// As long as it lives, streams write 1234567 as 1.234.567 and 0.5 as 0,5.
class ForeignLocale {
public:
    ForeignLocale() : before_(std::locale::global(std::locale(std::locale(), new Digits))) {}
    ~ForeignLocale() { std::locale::global(before_); }
    ForeignLocale(const ForeignLocale&) = delete;
    ForeignLocale& operator=(const ForeignLocale&) = delete;

private:
    /// Owned by the locale that it is given to.
    class Digits : public std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    std::locale before_;
};

} // namespace ZelInterchangeData

#endif
