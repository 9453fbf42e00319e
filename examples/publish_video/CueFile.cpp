/// @file
/// See CueFile.h.

#include "CueFile.h"

#include "Encoding.h"
#include "PlainText.h"
#include "PublishError.h"
#include "System.h"
#include "Text.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>

namespace publish {

namespace {

[[noreturn]] void failToRead(const std::string& name)
{
    throw PublishError(name + ": cannot be read: " + std::generic_category().message(errno));
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// Ends the reading of `/dev/zero`. The help names it.
constexpr std::size_t largestFile = 100'000'000;

/// Reads through the C library, because a stream does not distinguish a failure, such as reading a
/// folder, from the end of the file.
std::string contentsOf(const std::string& path, const std::string& name)
{
    const std::unique_ptr<std::FILE, FileCloser> file(openToRead(path));
    if (file == nullptr) failToRead(name);
    std::string bytes;
    char block[65536];
    while (const std::size_t count = std::fread(block, 1, sizeof block, file.get())) {
        if (count > largestFile - bytes.size())
            throw PublishError(name + ": the file is larger than " +
                               std::to_string(largestFile / 1'000'000) + " MB");
        bytes.append(block, count);
    }
    if (std::ferror(file.get()) != 0) failToRead(name);
    return bytes;
}

CueFile readCueFile(const LanguageFile& source, const std::string& name, const Options& options)
{
    return makeCueFile(source, name, contentsOf(source.path, name), options);
}

std::optional<long long> lastEndOf(const std::vector<Cue>& cues)
{
    const auto endsFirst = [](const Cue& a, const Cue& b) { return a.end < b.end; };
    const auto last = std::max_element(cues.begin(), cues.end(), endsFirst);
    if (last == cues.end()) return std::nullopt;
    return last->end;
}

} // namespace

CueFile makeCueFile(const LanguageFile& source, const std::string& name, const std::string& bytes,
                    const Options& options)
{
    std::optional<Subtitles> subtitles = readSubtitles(bytes);
    if (!subtitles)
        throw PublishError(name + ": " + describeForeignBytes(bytes, source.path, source.language));
    CueFile file;
    file.name = name;
    file.path = source.path;
    file.language = source.language;
    if (subtitles->cues.empty())
        file.hint = encodingHint(bytes, source.path, source.language);
    else
        file.outside = std::move(subtitles->outside);
    file.malformed = std::move(subtitles->malformed);
    file.withoutLength = std::move(subtitles->withoutLength);
    file.lastEnd = lastEndOf(subtitles->cues);
    for (Cue& cue : subtitles->cues) {
        if (options.plainText) cue.text = plainText(cue.text, subtitles->isWebVtt);
        const bool isEmpty = isNothingButBlanks(cue.text);
        if (isEmpty) ++file.empty;
        if (!(isEmpty && options.skipEmpty)) file.cues.push_back(std::move(cue));
    }
    return file;
}

CueFiles readCueFiles(const Options& options)
{
    CueFiles files;
    for (const LanguageFile& captions : options.captions)
        files.captions.push_back(
            readCueFile(captions, printable(captions.language + "=" + captions.path), options));
    if (options.toc)
        files.toc = readCueFile(*options.toc, printable("--toc " + options.toc->path), options);
    if (options.screenText)
        files.screenText = readCueFile({{}, *options.screenText},
                                       printable("--screen-text " + *options.screenText), options);
    return files;
}

std::vector<const CueFile*> allFiles(const CueFiles& files)
{
    std::vector<const CueFile*> all;
    for (const CueFile& captions : files.captions)
        all.push_back(&captions);
    if (files.toc) all.push_back(&*files.toc);
    if (files.screenText) all.push_back(&*files.screenText);
    return all;
}

std::optional<long long> lastEnd(const CueFiles& files)
{
    // An empty optional is less than every value.
    std::optional<long long> last;
    for (const CueFile* file : allFiles(files))
        last = std::max(last, file->lastEnd);
    return last;
}

} // namespace publish
