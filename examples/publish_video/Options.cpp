/// @file
/// See Options.h.

#include "Options.h"

#include "PublishError.h"
#include "Text.h"

// Uses the scanner of cxxopts itself: the one with regular expressions recurses once for each
// character and allows no line feed in a value.
#define CXXOPTS_NO_REGEX
#include <cxxopts.hpp>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace publish {

namespace {

constexpr const char* valueOptions[] = {
    "o",       "size",    "title",  "creator", "description", "app-name", "app-version",
    "keyword", "content", "length", "font",    "font-size",   "toc",      "screen-text"};
constexpr const char* flagOptions[] = {"plain-text", "skip-empty", "help"};

std::string optionName(const std::string& key)
{
    return (key.size() == 1 ? "-" : "--") + key;
}

bool isFlag(const std::string& key)
{
    return std::find(std::begin(flagOptions), std::end(flagOptions), key) != std::end(flagOptions);
}

bool isRepeatable(const std::string& key)
{
    return key == "keyword" || key == "content";
}

/// Declares every option as a plain text: cxxopts would split a list at commas and accept "false"
/// for a flag.
cxxopts::Options declaredOptions()
{
    cxxopts::Options declared("publish_video");
    for (const char* name : valueOptions)
        declared.add_options()(name, "", cxxopts::value<std::string>());
    for (const char* name : flagOptions)
        declared.add_options()(name, "", cxxopts::value<std::string>()->implicit_value(""));
    return declared;
}

cxxopts::ParseResult parsed(int argc, const char* const* argv)
{
    try {
        return declaredOptions().parse(argc, argv);
    } catch (const cxxopts::exceptions::exception& error) {
        throw PublishError(printable(error.what()));
    }
}

bool isDigit(char character)
{
    return '0' <= character && character <= '9';
}

bool isLetter(char character)
{
    return ('a' <= character && character <= 'z') || ('A' <= character && character <= 'Z');
}

bool isLanguageCharacter(char character)
{
    return isLetter(character) || isDigit(character) || character == '-';
}

/// Two letters, then nothing or a hyphen and letters, digits and hyphens.
bool isLanguageForm(std::string_view text)
{
    if (text.size() < 2 || !isLetter(text[0]) || !isLetter(text[1])) return false;
    return (text.size() == 2 || text[2] == '-') &&
           std::all_of(text.begin() + 2, text.end(), isLanguageCharacter);
}

/// Splits @p argument, which contains a `=`, at the first one.
LanguageFile languageFile(const std::string& argument, const std::string& name)
{
    const std::size_t equals = argument.find('=');
    LanguageFile file{argument.substr(0, equals), argument.substr(equals + 1)};
    if (!isLanguageForm(file.language))
        throw PublishError(name + ": '" + printable(file.language) +
                           "' is not a language such as en or pt-BR");
    return file;
}

LanguageFile captionFile(const std::string& argument)
{
    const std::string name = "'" + printable(argument) + "'";
    if (!isStrictUtf8(argument)) throw PublishError(name + " is not UTF-8");
    if (argument.find('=') == std::string::npos)
        throw PublishError(name + " is neither an option nor LANG=FILE");
    return languageFile(argument, name);
}

unsigned long numberOf(std::string_view digits, const std::string& name)
{
    unsigned long value = 0;
    const char* const end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, value);
    if (result.ec == std::errc::result_out_of_range)
        throw PublishError(name + ": '" + printable(digits) + "' is too large");
    if (result.ec != std::errc() || result.ptr != end || value == 0)
        throw PublishError(name + ": '" + printable(digits) + "' is not a number of at least 1");
    return value;
}

/// The options of one command line, by name.
class Arguments {
public:
    Arguments(int argc, const char* const* argv) : parsed_(parsed(argc, argv))
    {
        for (const cxxopts::KeyValue& argument : parsed_.arguments())
            check(argument);
    }

    const std::vector<std::string>& others() const { return parsed_.unmatched(); }

    bool has(const std::string& key) const { return parsed_.count(key) != 0; }

    /// Each value of @p key, whole and in order.
    std::vector<std::string> values(const std::string& key) const
    {
        std::vector<std::string> values;
        for (const cxxopts::KeyValue& argument : parsed_.arguments())
            if (argument.key() == key) values.push_back(argument.value());
        return values;
    }

    std::optional<std::string> value(const std::string& key) const
    {
        if (!has(key)) return std::nullopt;
        return values(key).front();
    }

    std::string required(const std::string& key) const
    {
        if (!has(key)) throw PublishError(optionName(key) + " is missing");
        return values(key).front();
    }

    std::string text(const std::string& key) const
    {
        return argumentText(value(key).value_or(std::string()));
    }

    std::vector<std::string> texts(const std::string& key) const
    {
        std::vector<std::string> texts = values(key);
        std::transform(texts.begin(), texts.end(), texts.begin(), argumentText);
        return texts;
    }

    std::optional<unsigned long> number(const std::string& key) const
    {
        if (!has(key)) return std::nullopt;
        return numberOf(values(key).front(), optionName(key));
    }

private:
    void check(const cxxopts::KeyValue& argument) const
    {
        const std::string& key = argument.key();
        if (!isStrictUtf8(argument.value())) throw PublishError(optionName(key) + " is not UTF-8");
        if (parsed_.count(key) > 1 && !isRepeatable(key))
            throw PublishError(optionName(key) + " is given more than once");
        if (isFlag(key) && !argument.value().empty())
            throw PublishError(optionName(key) + " takes no value");
    }

    cxxopts::ParseResult parsed_;
};

void readOutput(const Arguments& arguments, Options& options)
{
    options.output = arguments.required("o");
    if (options.output.empty()) throw PublishError("-o: the file name is empty");
}

void readSize(const Arguments& arguments, Options& options)
{
    const std::string size = arguments.required("size");
    const std::size_t by = size.find('x');
    if (by == std::string::npos)
        throw PublishError("--size: '" + printable(size) + "' is not of the form 640x480");
    options.width = numberOf(std::string_view(size).substr(0, by), "--size");
    options.height = numberOf(std::string_view(size).substr(by + 1), "--size");
}

void readTexts(const Arguments& arguments, Options& options)
{
    options.title = arguments.text("title");
    options.creator = arguments.text("creator");
    options.description = arguments.text("description");
    options.appName = arguments.text("app-name");
    options.appVersion = arguments.text("app-version");
    options.keywords = arguments.texts("keyword");
    options.contentNames = arguments.texts("content");
    if (arguments.has("font")) options.font = arguments.text("font");
}

void readToc(const Arguments& arguments, Options& options)
{
    const std::optional<std::string> toc = arguments.value("toc");
    if (!toc) return;
    const bool hasLanguage = toc->find('=') != std::string::npos;
    options.toc = hasLanguage ? languageFile(*toc, "--toc") : LanguageFile{"en", *toc};
}

} // namespace

Options parseOptions(int argc, const char* const* argv)
{
    Options options;
    const Arguments arguments(argc, argv);
    options.help = arguments.has("help");
    if (options.help) return options;
    readOutput(arguments, options);
    readSize(arguments, options);
    readTexts(arguments, options);
    readToc(arguments, options);
    options.length = arguments.number("length");
    options.fontSize = arguments.number("font-size");
    options.screenText = arguments.value("screen-text");
    options.plainText = arguments.has("plain-text");
    options.skipEmpty = arguments.has("skip-empty");
    for (const std::string& argument : arguments.others())
        options.captions.push_back(captionFile(argument));
    return options;
}

const char* usage()
{
    return R"(publish_video -o OUT.xmp --size WxH [options] [LANG=FILE]...

Writes the side data of a video as one XMP packet. LANG=FILE is an SRT or WebVTT
file with the captions of one language, such as en=film.srt or pt-BR=film.vtt.

  -o OUT.xmp             the file to write
  --size WxH             the video's width and height in pixels
  --title TEXT           \
  --creator TEXT          |
  --description TEXT      | texts of the packet's header
  --app-name TEXT         |
  --app-version TEXT     /
  --keyword TEXT         may be repeated
  --content NAME         a content file; may be repeated
  --length MS            the video's length in milliseconds (default: the latest
                         end of a cue in the files)
  --font NAME            the captions' font family
  --font-size N          the captions' font size
  --toc [LANG=]FILE      the table of contents (default language: en)
  --screen-text FILE     the texts that are visible in the picture
  --plain-text           remove markup from all texts
  --skip-empty           skip cues without text
  --help                 print this text

To pass a value that begins with a hyphen, write it as in --title=-x.
)";
}

} // namespace publish
