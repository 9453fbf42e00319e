/// @file
/// Publishes a video's side data: reads subtitle files and writes one XMP packet.

#include "Check.h"
#include "CueFile.h"
#include "DataSets.h"
#include "Options.h"
#include "PacketWriter.h"
#include "PublishError.h"
#include "Report.h"
#include "System.h"
#include "Text.h"

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace publish {

using namespace ZelInterchangeData;

namespace {

constexpr int failure = 2;

void checkLanguage(const LanguageFile& file)
{
    if (failed(ZelDataUtilities::isValidLanguage(file.language)))
        throw PublishError("unknown language '" + file.language + "' for " + printable(file.path));
}

void checkLanguages(const Options& options)
{
    for (const LanguageFile& captions : options.captions)
        checkLanguage(captions);
    if (options.toc) checkLanguage(*options.toc);
}

std::vector<std::string> describe(const Options& options, const CueFiles& files,
                                  const i_ZelDataCaptions& captions)
{
    std::vector<std::string> lines;
    const auto describeOne = [&](const CueFile& file) {
        return describeFile(file, options.skipEmpty);
    };
    std::transform(files.captions.begin(), files.captions.end(), std::back_inserter(lines),
                   describeOne);
    if (files.toc) lines.push_back(describeOne(*files.toc));
    if (files.screenText) lines.push_back(describeOne(*files.screenText));
    const auto captionLines = describeCaptions(captions);
    lines.insert(lines.end(), captionLines.begin(), captionLines.end());
    lines.push_back(describeLanguages(captions));
    return lines;
}

void publishVideo(const Options& options)
{
    checkLanguages(options);
    const CueFiles files = readCueFiles(options);

    const std::unique_ptr<i_ZelInterchangeDataCore> document(
        ZELDataCreator::createInterchangeData());
    const auto header = makeHeader(*document, options, files);
    check(document->setDataHeader(*header), "the header");
    const auto captions = makeCaptions(*document, options, files.captions);
    if (!files.captions.empty()) check(document->setDataCaptions(*captions), "the captions");
    if (files.toc)
        check(document->setDataToc(*makeToc(*document, *files.toc)), "the table of contents");
    if (files.screenText)
        check(document->setDataScreenText(*makeScreenText(*document, *files.screenText, files.toc)),
              "the screen text");

    const std::vector<std::string> report = describe(options, files, *captions);
    const std::size_t bytes = writePacket(*document, options.output);
    for (const std::string& line : report)
        std::cerr << line << '\n';
    std::cerr << bytes << " bytes written to " << printable(options.output) << '\n';
}

Options readOptions(const std::vector<std::string>& words)
{
    std::vector<const char*> arguments;
    std::transform(words.begin(), words.end(), std::back_inserter(arguments),
                   [](const std::string& word) { return word.c_str(); });
    return parseOptions(static_cast<int>(arguments.size()), arguments.data());
}

int run(int argc, char** argv)
{
    try {
        const Options options = readOptions(commandLine(argc, argv));
        if (options.help)
            std::cout << usage();
        else
            publishVideo(options);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "publish_video: " << error.what() << '\n';
        return failure;
    }
}

} // namespace

} // namespace publish

int main(int argc, char** argv)
{
    publish::prepareStreams();
    return publish::run(argc, argv);
}
