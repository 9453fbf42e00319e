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

/// What the command line says. The texts are ready for the packet: see argumentText(). Paths are as
/// given.
struct Options {
    bool help = false;
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
    std::vector<LanguageFile> captions;
};

/// Reads the command line; throws PublishError. With `--help`, checks nothing else. Checks only the
/// form of a language, not whether the library knows it.
Options parseOptions(int argc, const char* const* argv);

/// Returns the help text.
const char* usage();

} // namespace publish

#endif
