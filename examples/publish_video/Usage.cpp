/// @file
/// See Usage.h.

#include "Usage.h"

#include "OptionTable.h"

#include "ZelInterchangeData/ZelDataVersion.h"

#include <cstddef>
#include <string_view>

namespace publish {

namespace {

constexpr std::size_t width = 80;

constexpr std::string_view summary = "write the side data of a video as one XMP packet";

constexpr std::string_view synopsis = "--output OUT.xmp --size WxH [OPTION]... [LANG=FILE]...";

constexpr std::string_view description[] = {
    "Writes the side data of a video as one XMP packet. LANG=FILE is an SRT or WebVTT file with "
    "the "
    "captions of one language, such as en=film.srt or pt-BR=film.vtt. Each file is in UTF-8 and "
    "at most 100 MB long. The report on standard error counts what is in the packet and lists the "
    "problems of the files.",
    "A value is the next argument, or follows an equals sign; -oOUT.xmp is the same as -o OUT.xmp. "
    "If "
    "a value is itself an option, use the equals sign: --title=--plain-text. After --, all "
    "arguments are LANG=FILE."};

struct Example {
    std::string_view purpose;
    std::string_view command;
};

constexpr Example examples[] = {
    {"Captions in two languages:",
     "publish_video -o film.xmp --size 1280x720 --title \"The Film\" \\\n"
     "      en=film.en.srt de=film.de.srt"},
    {"Chapters, captions without markup, and the report for a program:",
     "publish_video -o film.xmp --size 1280x720 --plain-text --report film.json \\\n"
     "      --toc chapters.vtt en=film.vtt"}};

struct Status {
    std::string_view number;
    std::string_view meaning;
};

constexpr Status statuses[] = {
    {"0", "The packet is written, whatever problems the report lists; or you asked for the help or "
          "the version."},
    {"2", "An error, which the last lines name. OUT.xmp is as before, unless the error is about "
          "--report or --preview, or memory ran out."}};

std::string programAndVersion()
{
    const auto number = [](int value) { return std::to_string(value); };
    return "publish_video " + number(ZELINTERCHANGEDATA_VERSION_MAJOR) + "." +
           number(ZELINTERCHANGEDATA_VERSION_MINOR) + "." +
           number(ZELINTERCHANGEDATA_VERSION_PATCH);
}

/// How the help shows the option itself.
std::string leftSide(const OptionEntry& option)
{
    const std::string letter = option.letter != '\0' ? std::string{'-', option.letter} + ", " : "";
    return letter + "--" + option.name + (option.value != nullptr ? " " : "") +
           (option.value != nullptr ? option.value : "");
}

std::string rightSide(const OptionEntry& option)
{
    return option.help +
           (option.fallback != nullptr ? " (" + std::string(option.fallback) + ")" : "");
}

/// Adds @p text in lines that begin with @p indent blanks, the first of them in the current line.
void addWrapped(std::string& page, std::string_view text, std::size_t indent)
{
    std::size_t column = page.size() - (page.rfind('\n') + 1);
    page.append(column < indent ? indent - column : 0, ' ');
    column = indent;
    for (bool isFirst = true; !text.empty(); isFirst = false) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(word.size() < text.size() ? word.size() + 1 : word.size());
        const bool fits = isFirst || column + 1 + word.size() <= width;
        if (!fits) page.append("\n").append(indent, ' ');
        if (!isFirst && fits) page += ' ';
        column = fits ? column + word.size() + (isFirst ? 0 : 1) : indent + word.size();
        page += word;
    }
    page += '\n';
}

/// @p text for a line of a manual page that does not begin with it.
std::string roff(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == '\\')
            escaped += "\\e";
        else if (character == '-')
            escaped += "\\-";
        else
            escaped += character;
    }
    return escaped;
}

std::string heading(std::string_view name)
{
    return ".SH " + std::string(name) + "\n";
}

/// A term and what it means.
std::string manualItem(std::string_view term, std::string_view meaning)
{
    return ".TP\n.B " + roff(term) + "\n" + roff(meaning) + "\n";
}

} // namespace

std::string usage()
{
    constexpr std::size_t indent = 6;
    constexpr std::size_t column = 29;
    std::string page = "Usage: publish_video " + std::string(synopsis) + "\n";
    for (const std::string_view paragraph : description) {
        page += '\n';
        addWrapped(page, paragraph, 0);
    }
    page += "\nOptions:\n";
    for (const OptionEntry& option : optionTable) {
        page.append(option.letter != '\0' ? 2 : indent, ' ').append(leftSide(option)).append("  ");
        addWrapped(page, rightSide(option), column);
    }
    page += "\nExamples:\n";
    for (const Example& example : examples) {
        page.append("  ").append(example.purpose).append("\n");
        page.append("    ").append(example.command).append("\n");
    }
    page += "\nExit status:\n";
    for (const Status& status : statuses) {
        page.append("  ").append(status.number);
        addWrapped(page, status.meaning, indent - 1);
    }
    return page;
}

std::string manualPage()
{
    std::string page = ".TH PUBLISH_VIDEO 1 \"\" \"" + programAndVersion() + "\"\n" +
                       heading("NAME") + "publish_video \\- " + roff(summary) + "\n" +
                       heading("SYNOPSIS") + ".B publish_video\n" + roff(synopsis) + "\n" +
                       heading("DESCRIPTION");
    for (const std::string_view& paragraph : description)
        page += (&paragraph == description ? "" : ".PP\n") + roff(paragraph) + "\n";
    page += heading("OPTIONS");
    for (const OptionEntry& option : optionTable)
        page += manualItem(leftSide(option), rightSide(option));
    page += heading("EXAMPLES");
    for (const Example& example : examples)
        page += (&example == examples ? "" : ".PP\n") + roff(example.purpose) + "\n.PP\n.nf\n" +
                roff(example.command) + "\n.fi\n";
    page += heading("EXIT STATUS");
    for (const Status& status : statuses)
        page += manualItem(status.number, status.meaning);
    return page;
}

std::string versionLine()
{
    return programAndVersion() + "\n";
}

} // namespace publish
