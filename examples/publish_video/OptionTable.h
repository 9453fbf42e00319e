/// @file
/// The options of the program. The parser, the help and the manual page use this table.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OPTIONTABLE_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OPTIONTABLE_H

#include <limits>
#include <string>
#include <string_view>

namespace publish {

/// An option of the command line.
struct OptionEntry {
    /// Without the hyphens.
    const char* name;
    /// The short form without the hyphen; `'\0'` if there is none.
    char letter;
    /// What the help calls the value; a null pointer for an option without one.
    const char* value;
    const char* help;
    /// What holds without the option, in the words of the help; a null pointer if there is nothing
    /// to say.
    const char* fallback;
    bool mayRepeat = false;
    /// For a number: the largest. The smallest is 1.
    unsigned long largest = 0;
};

/// A number without a limit of its own.
constexpr unsigned long anyNumber = std::numeric_limits<unsigned long>::max();

/// In the order of the help.
constexpr OptionEntry optionTable[] = {
    {"output", 'o', "OUT.xmp", "the file to write; - is standard output", "required"},
    {"size", '\0', "WxH", "the video's width and height in pixels, each at least 1", "required",
     false, anyNumber},
    {"title", '\0', "TEXT", "the video's title", "default: empty"},
    {"creator", '\0', "TEXT", "who made the video", "default: empty"},
    {"description", '\0', "TEXT", "what the video is about", "default: empty"},
    {"app-name", '\0', "TEXT", "the program that made the video", "default: empty"},
    {"app-version", '\0', "TEXT", "the version of that program", "default: empty"},
    {"keyword", '\0', "TEXT", "a keyword; may be repeated", "default: none", true},
    {"content", '\0', "NAME", "a content file; may be repeated", "default: none", true},
    {"length", '\0', "MS", "the video's length in milliseconds, at least 1",
     "default: the latest end of a cue in the files", false, anyNumber},
    {"font", '\0', "NAME", "the captions' font family", "default: Helvetica"},
    {"font-size", '\0', "N", "the captions' font size, 1 to 500", "default: 20", false, 500},
    {"toc", '\0', "[LANG=]FILE", "the table of contents", "default: none; LANG: en"},
    {"screen-text", '\0', "FILE", "the texts that are visible in the picture", "default: none"},
    {"plain-text", '\0', nullptr, "remove markup from all texts", "default: keep it"},
    {"skip-empty", '\0', nullptr, "leave out cues without text", "default: use them"},
    {"verbose", '\0', nullptr, "report every place of a problem", "default: the first three"},
    {"report", '\0', "FILE",
     "also write the report, with every place, as JSON; - is standard output", "default: none"},
    {"preview", '\0', "FILE.html",
     "also write a page that shows the packet in a browser; - is standard output", "default: none"},
    {"help", 'h', nullptr, "print this help", nullptr},
    {"version", '\0', nullptr, "print the version", nullptr},
};

/// The option that is called @p name, without hyphens; a null pointer if there is none.
const OptionEntry* optionNamed(std::string_view name);

/// The option with the short form @p letter, which is not zero; a null pointer if there is none.
const OptionEntry* optionWithLetter(char letter);

/// The option whose name is like @p name; a null pointer if none is.
const OptionEntry* optionLike(std::string_view name);

} // namespace publish

#endif
