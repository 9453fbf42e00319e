/// @file
/// The command line.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OPTIONS_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OPTIONS_H

#include <optional>
#include <string>
#include <vector>

namespace publish {

/// A file, and the language of its texts.
struct LanguageFile {
    std::string language;
    std::string path;
};

/// The file name that means standard output.
constexpr const char* standardOutput = "-";

/// What the command line says. The texts are ready for the packet: see argumentText(). Paths are as
/// given.
struct Options {
    bool help = false;
    bool version = false;
    std::string output;
    unsigned long width = 0;
    unsigned long height = 0;
    std::string title;
    std::string creator;
    std::string description;
    std::string appName;
    std::string appVersion;
    std::vector<std::string> keywords;
    std::vector<std::string> contentNames;
    std::optional<unsigned long> length;
    std::optional<std::string> font;
    std::optional<unsigned long> fontSize;
    std::optional<LanguageFile> toc;
    std::optional<std::string> screenText;
    bool plainText = false;
    bool skipEmpty = false;
    bool verbose = false;
    std::optional<std::string> report;
    std::optional<std::string> preview;
    std::vector<LanguageFile> captions;
};

/// Reads the command line, which begins with the name of the program; throws PublishError. With
/// `--help`, and then with `--version`, checks nothing else.
Options parseOptions(const std::vector<std::string>& words);

} // namespace publish

#endif
