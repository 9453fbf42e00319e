#include "robustness/Setting.h"

#include "core/HostileLocale.h"
#include "xml/ForeignLocale.h"

#include <gtest/gtest.h>

#include <array>
#include <cfenv>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <cwctype>
#include <langinfo.h>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace ZelInterchangeData {

namespace {

/// Puts in place the C locale with the given name, one of those made for the tests.
class CLocale {
public:
    explicit CLocale(const char* name) : before_(std::setlocale(LC_ALL, nullptr))
    {
        setenv("LOCPATH", ZELINTERCHANGEDATA_TEST_LOCALES, 1);
        EXPECT_NE(nullptr, std::setlocale(LC_ALL, name)) << name;
    }
    ~CLocale() { std::setlocale(LC_ALL, before_.c_str()); }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;

private:
    std::string before_;
};

/// The same for this thread alone. newlocale() would leak where LOCPATH is set.
class ThreadLocale {
public:
    explicit ThreadLocale(const char* name) : own_(copyOf(name)), before_(uselocale(own_)) {}
    ~ThreadLocale()
    {
        uselocale(before_);
        freelocale(own_);
    }
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;

private:
    static locale_t copyOf(const char* name)
    {
        const CLocale original(name);
        return duplocale(LC_GLOBAL_LOCALE);
    }

    locale_t own_;
    locale_t before_;
};

/// A global locale of C++.
class GlobalLocale {
public:
    explicit GlobalLocale(const std::locale& locale) : before_(std::locale::global(locale)) {}
    ~GlobalLocale() { std::locale::global(before_); }
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;

private:
    std::locale before_;
};

class BothLocales {
public:
    explicit BothLocales(const char* name) : c_(name) {}

private:
    CLocale c_;
    ForeignLocale cpp_;
};

class Rounding {
public:
    explicit Rounding(int direction) : before_(std::fegetround())
    {
        EXPECT_EQ(0, std::fesetround(direction));
    }
    ~Rounding() { std::fesetround(before_); }
    Rounding(const Rounding&) = delete;
    Rounding& operator=(const Rounding&) = delete;

private:
    int before_;
};

template <class Character>
class Comma : public std::numpunct<Character> {
    Character do_decimal_point() const override { return ','; }
};

template <class Character>
class Groups : public std::numpunct<Character> {
    Character do_thousands_sep() const override { return '\''; }
    std::string do_grouping() const override { return "\1\2"; }
};

/// Writes # for every integer and ~ for every other number.
class Numbers : public std::num_put<char> {
    iter_type do_put(iter_type to, std::ios_base& /*stream*/, char /*fill*/,
                     long /*value*/) const override
    {
        *to = '#';
        return ++to;
    }
    iter_type do_put(iter_type to, std::ios_base& /*stream*/, char /*fill*/,
                     double /*value*/) const override
    {
        *to = '~';
        return ++to;
    }
};

/// Knows no letters, and so neither upper nor lower case.
class Caseless : public std::ctype<char> {
public:
    Caseless() : std::ctype<char>(noClasses()) {}

private:
    static const mask* noClasses()
    {
        static const mask classes[table_size] = {};
        return classes;
    }
    char do_tolower(char /*character*/) const override { return '?'; }
    char do_toupper(char /*character*/) const override { return '?'; }
};

/// What every function of the facets called Throwing... does.
[[noreturn]] void refuse()
{
    throw std::runtime_error("this facet must not be used");
}

template <class Character>
class ThrowingNumbers : public std::num_put<Character> {
    using To = typename std::num_put<Character>::iter_type;
    To do_put(To, std::ios_base&, Character, bool) const override { refuse(); }
    To do_put(To, std::ios_base&, Character, long) const override { refuse(); }
    To do_put(To, std::ios_base&, Character, unsigned long) const override { refuse(); }
    To do_put(To, std::ios_base&, Character, long long) const override { refuse(); }
    To do_put(To, std::ios_base&, Character, unsigned long long) const override { refuse(); }
    To do_put(To, std::ios_base&, Character, double) const override { refuse(); }
    To do_put(To, std::ios_base&, Character, long double) const override { refuse(); }
    To do_put(To, std::ios_base&, Character, const void*) const override { refuse(); }
};

class ThrowingTime : public std::time_put<char> {
    iter_type do_put(iter_type, std::ios_base&, char, const std::tm*, char, char) const override
    {
        refuse();
    }
};

class ThrowingOrder : public std::collate<char> {
    int do_compare(const char*, const char*, const char*, const char*) const override { refuse(); }
    string_type do_transform(const char*, const char*) const override { refuse(); }
    long do_hash(const char*, const char*) const override { refuse(); }
};

class ThrowingCharacters : public std::ctype<wchar_t> {
    bool do_is(mask, wchar_t) const override { refuse(); }
    wchar_t do_toupper(wchar_t) const override { refuse(); }
    wchar_t do_tolower(wchar_t) const override { refuse(); }
    wchar_t do_widen(char) const override { refuse(); }
    const char* do_widen(const char*, const char*, wchar_t*) const override { refuse(); }
    char do_narrow(wchar_t, char) const override { refuse(); }
};

class ThrowingConversion : public std::codecvt<wchar_t, char, std::mbstate_t> {
    result do_out(std::mbstate_t&, const wchar_t*, const wchar_t*, const wchar_t*&, char*, char*,
                  char*&) const override
    {
        refuse();
    }
    result do_unshift(std::mbstate_t&, char*, char*, char*&) const override { refuse(); }
};

/// The classic locale with @p facets, which it owns, instead of its own.
template <class... Facets>
std::locale classicWith(Facets*... facets)
{
    std::locale locale = std::locale::classic();
    ((locale = std::locale(locale, facets)), ...);
    return locale;
}

/// A setting that an object of the class @p Place puts in place.
template <class Place, class... Arguments>
Setting setting(std::string name, std::string sample, Arguments... arguments)
{
    return {std::move(name), [=] { return std::make_shared<Place>(arguments...); },
            std::move(sample)};
}

/// What sampleText() is expected to return.
std::string sampleOf(const std::string& c, const std::string& stream,
                     const std::string& characters = "ANSI_X3.4-1968",
                     const std::string& upper = "I", const std::string& rounded = "3 -3",
                     const std::string& letters = "ax")
{
    return c + '|' + stream + '|' + characters + '|' + upper + '|' + rounded + '|' + letters;
}

const std::string plain = "1234567.5";
const std::string plainC = "1234567.5 ";

std::vector<Setting> cLocales()
{
    const std::string both = "1234567,5 .";
    const std::string narrowBoth = "1234567,5 \u202F";
    return {
        setting<CLocale>("C, decimal comma", sampleOf("1234567,5 ", plain, "UTF-8"), "eo.UTF-8"),
        setting<CLocale>("C, groups", sampleOf("1234567.5 ,", plain, "UTF-8"), "hi_IN.UTF-8"),
        setting<CLocale>("C, both, one byte for a character", sampleOf(both, plain, "ISO-8859-1"),
                         "de_DE.ISO-8859-1"),
        setting<CLocale>("C, both, several bytes for a separator",
                         sampleOf(narrowBoth, plain, "UTF-8"), "fr_FR.UTF-8"),
        setting<CLocale>("C, characters that are not Unicode",
                         sampleOf("1234567.5 ,", plain, "EUC-JP"), "ja_JP.EUC-JP"),
        setting<CLocale>("C, another upper case", sampleOf(both, plain, "ISO-8859-9", "\u0130"),
                         "tr_TR.ISO-8859-9"),
        setting<ThreadLocale>("C, this thread alone", sampleOf(both, plain, "ISO-8859-1"),
                              "de_DE.ISO-8859-1"),
    };
}

std::vector<Setting> cppLocales()
{
    const std::string ascii = "ANSI_X3.4-1968";
    return {
        setting<BothLocales>("C and C++, both",
                             sampleOf("1234567,5 .", "1.234.567,5", "ISO-8859-1"),
                             "de_DE.ISO-8859-1"),
        setting<GlobalLocale>("C++, decimal comma", sampleOf(plainC, "1234567,5"),
                              classicWith(new Comma<char>, new Comma<wchar_t>)),
        setting<GlobalLocale>("C++, groups", sampleOf(plainC, "12'34'56'7.5"),
                              classicWith(new Groups<char>, new Groups<wchar_t>)),
        setting<ForeignLocale>("C++, both", sampleOf(plainC, "1.234.567,5")),
        setting<GlobalLocale>("C++, numbers of its own", sampleOf(plainC, "~"),
                              classicWith(new Numbers)),
        setting<GlobalLocale>("C++, no letters", sampleOf(plainC, plain, ascii, "I", "3 -3", "?x"),
                              classicWith(new Caseless)),
        setting<HostileLocale>("C++, no conversion",
                               sampleOf(plainC, plain, ascii, "I", "3 -3", "a?"), "C"),
        setting<GlobalLocale>(
            "C++, facets that throw", sampleOf(plainC, "", ascii, "I", "3 -3", "thrown"),
            classicWith(new ThrowingNumbers<char>, new ThrowingNumbers<wchar_t>, new ThrowingTime,
                        new ThrowingOrder, new ThrowingCharacters, new ThrowingConversion)),
    };
}

std::vector<Setting> roundings()
{
    const auto rounded = [](const char* numbers) {
        return sampleOf(plainC, plain, "ANSI_X3.4-1968", "I", numbers);
    };
    return {
        setting<Rounding>("rounding up", rounded("3 -2"), FE_UPWARD),
        setting<Rounding>("rounding down", rounded("2 -3"), FE_DOWNWARD),
        setting<Rounding>("rounding towards zero", rounded("2 -2"), FE_TOWARDZERO),
    };
}

/// A small letter and a wide one, as the global locale of C++ makes them.
std::string sampleLetters()
{
    const std::locale global;
    try {
        const auto widened = std::use_facet<std::ctype<wchar_t>>(global).widen('x');
        return {std::tolower('A', global), static_cast<char>(widened)};
    } catch (const std::runtime_error&) {
        return "thrown";
    }
}

/// The UTF-8 of a letter below U+0800.
std::string utf8(wint_t letter)
{
    if (letter < 0x80) return {static_cast<char>(letter)};
    return {static_cast<char>(0xC0 | (letter >> 6)), static_cast<char>(0x80 | (letter & 0x3F))};
}

} // namespace

const std::vector<Setting>& allSettings()
{
    static const std::vector<Setting> settings = [] {
        std::vector<Setting> all;
        for (const auto& some : {cppLocales(), cLocales(), roundings()})
            all.insert(all.end(), some.begin(), some.end());
        return all;
    }();
    return settings;
}

std::string sampleText()
{
    std::array<char, 64> number{};
    std::snprintf(number.data(), number.size(), "%.1f", 1234567.5);
    std::ostringstream stream;
    stream.precision(10);
    stream << 1234567.5;
    std::array<char, 64> rounded{};
    std::snprintf(rounded.data(), rounded.size(), "%.0f %.0f", 2.6, -2.6);
    const auto c = number.data() + std::string(" ") + std::localeconv()->thousands_sep;
    return sampleOf(c, stream.str(), nl_langinfo(CODESET), utf8(std::towupper(L'i')),
                    rounded.data(), sampleLetters());
}

} // namespace ZelInterchangeData
