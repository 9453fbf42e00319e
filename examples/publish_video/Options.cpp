/// @file
/// See Options.h.

#include "Options.h"

#include "Language.h"
#include "OptionTable.h"
#include "PublishError.h"
#include "Text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace publish {

namespace {

using Words = std::vector<std::string>;

/// The one style in which messages name an option.
std::string nameOf(const OptionEntry& option)
{
    return std::string("--") + option.name;
}

std::string quoted(std::string_view text)
{
    return "'" + printable(text) + "'";
}

/// @p word as you type it, without control characters.
std::string typed(const std::string& word)
{
    return printable(forShell(word));
}

/// A word of the command line as an option: `--name`, `--name=VALUE`, `-n` or `-nVALUE`.
struct OptionWord {
    /// As typed, up to the value.
    std::string_view typed;
    /// A null pointer for an option that the program does not have.
    const OptionEntry* option = nullptr;
    std::optional<std::string_view> value;
};

OptionWord longOption(std::string_view word)
{
    const std::string_view typed = word.substr(0, word.find('='));
    OptionWord read{typed, optionNamed(typed.substr(2)), std::nullopt};
    if (typed.size() != word.size()) read.value = word.substr(typed.size() + 1);
    return read;
}

OptionWord shortOption(std::string_view word)
{
    const std::string_view typed = word.substr(0, word.find('='));
    // -output is a slip, hardly a file called utput.
    if (optionNamed(typed.substr(1)) != nullptr) return {typed, nullptr, std::nullopt};
    OptionWord read{word, optionWithLetter(word[1]), std::nullopt};
    if (read.option != nullptr) read.typed = word.substr(0, 2);
    if (word.size() > 2) read.value = word.substr(2);
    return read;
}

/// Everything that begins with a hyphen, except a single one and the two that end the options.
std::optional<OptionWord> optionWord(std::string_view word)
{
    if (word.size() < 2 || word[0] != '-' || word == "--") return std::nullopt;
    return word[1] == '-' ? longOption(word) : shortOption(word);
}

[[noreturn]] void refuseUnknown(const OptionWord& word)
{
    const std::string_view name = word.typed.substr(word.typed[1] == '-' ? 2 : 1);
    const OptionEntry* const like = name.size() > 1 ? optionLike(name) : nullptr;
    throw PublishError("unknown option " + printable(word.typed) +
                       (like != nullptr ? "; did you mean " + nameOf(*like) + "?" : ""));
}

/// Splits a command line into options with their values, and other words.
class Arguments {
public:
    explicit Arguments(Words words) : words_(std::move(words))
    {
        while (next_ < words_.size())
            take(words_[next_++]);
    }

    const Words& others() const { return others_; }

    bool has(std::string_view name) const { return !values(name).empty(); }

    /// Each value of the option, in order.
    Words values(std::string_view name) const
    {
        Words values;
        for (const Given& given : given_)
            if (given.option->name == name) values.push_back(given.value);
        return values;
    }

    std::optional<std::string> value(std::string_view name) const
    {
        Words all = values(name);
        if (all.empty()) return std::nullopt;
        return all.front();
    }

    std::string required(std::string_view name) const
    {
        const std::optional<std::string> given = value(name);
        if (!given) throw PublishError(nameOf(*optionNamed(name)) + " is missing");
        return *given;
    }

    std::string text(std::string_view name) const
    {
        return argumentText(value(name).value_or(std::string()));
    }

    Words texts(std::string_view name) const
    {
        Words texts = values(name);
        std::transform(texts.begin(), texts.end(), texts.begin(), argumentText);
        return texts;
    }

private:
    struct Given {
        const OptionEntry* option;
        std::string value;
    };

    void take(const std::string& word)
    {
        const std::optional<OptionWord> option = optionWord(word);
        if (!option || onlyOthers_)
            takeOther(word);
        else if (option->option == nullptr)
            refuseUnknown(*option);
        else
            add(*option->option, valueOf(*option));
    }

    void takeOther(const std::string& word)
    {
        if (word == "--" && !onlyOthers_)
            onlyOthers_ = true;
        else
            others_.push_back(word);
    }

    std::string valueOf(const OptionWord& word)
    {
        const std::string name = nameOf(*word.option);
        if (word.option->value == nullptr) {
            if (word.value) throw PublishError(name + " takes no value");
            return {};
        }
        if (!word.value) return nextValue(name);
        if (word.typed[1] != '-' && word.value == "=") throw PublishError(name + " needs a value");
        if (word.typed[1] != '-' && word.value->substr(0, 1) == "=")
            throw PublishError(name + ": " + quoted(*word.value) +
                               " begins with an equals sign; did you mean " + name +
                               printable(*word.value) + "?");
        return std::string(*word.value);
    }

    std::string nextValue(const std::string& name)
    {
        if (next_ == words_.size()) throw PublishError(name + " needs a value");
        const std::string& value = words_[next_++];
        const std::optional<OptionWord> option = optionWord(value);
        if (option && option->option != nullptr)
            throw PublishError(name + ": " + quoted(value) +
                               " is an option; if you mean it as the value, write " +
                               typed(name + "=" + value));
        return value;
    }

    void add(const OptionEntry& option, const std::string& value)
    {
        if (!isStrictUtf8(value)) throw PublishError(nameOf(option) + " is not UTF-8");
        if (has(option.name) && !option.mayRepeat)
            throw PublishError(nameOf(option) + " is given more than once");
        given_.push_back({&option, value});
    }

    Words words_;
    std::size_t next_ = 1; // after the name of the program
    bool onlyOthers_ = false;
    std::vector<Given> given_;
    Words others_;
};

/// Whether @p word is among the options, whatever the rest of the command line says.
bool isGiven(const Words& words, std::string_view word)
{
    const auto end = std::find(words.begin(), words.end(), "--");
    return std::find(words.begin(), end, word) != end;
}

std::string suggestion(const std::string& language)
{
    const std::string like = languageLike(language);
    return like.empty() ? "" : "; did you mean " + like + "?";
}

void refuseEmpty(const std::string& text, const std::string& name, const std::string& what)
{
    if (text.empty()) throw PublishError(name + ": the " + what + " is empty");
}

/// Splits @p argument, which contains a `=`, at the first one.
LanguageFile languageFile(const std::string& argument, const std::string& name)
{
    const std::size_t equals = argument.find('=');
    LanguageFile file{argument.substr(0, equals), argument.substr(equals + 1)};
    if (!isLanguageForm(file.language))
        throw PublishError(name + ": " + quoted(file.language) +
                           " is not a language code such as en or pt-BR" +
                           suggestion(file.language));
    if (!isKnownLanguage(file.language))
        throw PublishError(name + ": unknown language " + quoted(file.language) +
                           suggestion(file.language));
    return file;
}

LanguageFile captionFile(const std::string& argument)
{
    if (!isStrictUtf8(argument)) throw PublishError(quoted(argument) + " is not UTF-8");
    if (argument.find('=') == std::string::npos)
        throw PublishError(quoted(argument) +
                           " is neither an option nor LANG=FILE, such as en=film.srt");
    return languageFile(argument, quoted(argument));
}

unsigned long numberOf(std::string_view digits, const OptionEntry& option)
{
    unsigned long value = 0;
    const char* const end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || value == 0 || value > option.largest)
        throw PublishError(nameOf(option) + ": " + quoted(digits) + " is not a number" +
                           (option.value == std::string_view("MS") ? " of milliseconds" : "") +
                           " from 1 to " + std::to_string(option.largest));
    return value;
}

std::optional<unsigned long> readNumber(const Arguments& arguments, std::string_view name)
{
    const std::optional<std::string> digits = arguments.value(name);
    if (!digits) return std::nullopt;
    return numberOf(*digits, *optionNamed(name));
}

/// @p file, which the program writes for the option @p name; refuses what looks like a file to read.
std::string writtenFile(const std::string& file, const std::string& name)
{
    refuseEmpty(file, name, "file name");
    const std::string language = file.substr(0, file.find('='));
    if (language != file && (isLanguageForm(language) || !languageLike(language).empty()))
        throw PublishError(name + ": " + quoted(file) +
                           " looks like LANG=FILE; if you mean a file of that name, write " +
                           typed(name + "=./" + file));
    return file;
}

void readWritten(const Arguments& arguments, Options& options)
{
    options.output = writtenFile(arguments.required("output"), "--output");
    if (const auto report = arguments.value("report"))
        options.report = writtenFile(*report, "--report");
    if (const auto preview = arguments.value("preview"))
        options.preview = writtenFile(*preview, "--preview");
}

void readSize(const Arguments& arguments, Options& options)
{
    const std::string size = arguments.required("size");
    const std::size_t by = size.find('x');
    if (by == std::string::npos)
        throw PublishError("--size: " + quoted(size) + " is not of the form 640x480");
    options.width = numberOf(std::string_view(size).substr(0, by), *optionNamed("size"));
    options.height = numberOf(std::string_view(size).substr(by + 1), *optionNamed("size"));
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
    if (!arguments.has("font")) return;
    options.font = arguments.text("font");
    refuseEmpty(*options.font, "--font", "name");
}

void readToc(const Arguments& arguments, Options& options)
{
    const std::optional<std::string> toc = arguments.value("toc");
    if (!toc) return;
    const bool hasLanguage = toc->find('=') != std::string::npos;
    options.toc = hasLanguage ? languageFile(*toc, "--toc") : LanguageFile{"en", *toc};
}

} // namespace

Options parseOptions(const Words& words)
{
    Options options;
    options.help = isGiven(words, "--help") || isGiven(words, "-h");
    if (options.help) return options;
    const Arguments arguments(words);
    options.version = arguments.has("version");
    if (options.version) return options;
    readWritten(arguments, options);
    readSize(arguments, options);
    readTexts(arguments, options);
    readToc(arguments, options);
    options.length = readNumber(arguments, "length");
    options.fontSize = readNumber(arguments, "font-size");
    options.screenText = arguments.value("screen-text");
    options.plainText = arguments.has("plain-text");
    options.skipEmpty = arguments.has("skip-empty");
    options.verbose = arguments.has("verbose");
    for (const std::string& argument : arguments.others())
        options.captions.push_back(captionFile(argument));
    return options;
}

} // namespace publish
