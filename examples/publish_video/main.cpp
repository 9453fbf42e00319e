/// @file
/// Publishes a video's side data: reads subtitle files and writes one XMP packet.

#include "CaptionMerger.h"
#include "Check.h"
#include "CueFile.h"
#include "DataSets.h"
#include "Options.h"
#include "OutputFile.h"
#include "PacketWriter.h"
#include "Preview.h"
#include "Report.h"
#include "System.h"
#include "Usage.h"

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace publish {

using namespace ZelInterchangeData;

namespace {

constexpr int failure = 2;

void publishVideo(const Options& options)
{
    refuseOverwriting(options);
    const CueFiles files = readCueFiles(options);
    const std::vector<MergedCaption> merged = mergeCaptions(files.captions);

    const std::unique_ptr<i_ZelInterchangeDataCore> document(
        ZELDataCreator::createInterchangeData());
    const auto header = makeHeader(*document, options, files);
    check(document->setDataHeader(*header), "the header");
    const auto captions = makeCaptions(*document, options, merged);
    if (!files.captions.empty()) check(document->setDataCaptions(*captions), "the captions");
    if (files.toc)
        check(document->setDataToc(*makeToc(*document, *files.toc)), "the table of contents");
    if (files.screenText)
        check(document->setDataScreenText(*makeScreenText(*document, *files.screenText, files.toc)),
              "the screen text");

    Report report = makeReport(options, files, merged, *captions);
    const std::string packet = writePacket(*document, options.output);
    report.bytes = packet.size();
    std::cerr << reportText(report, options.verbose);
    if (options.report) writeOutput(*options.report, reportJson(report));
    if (options.preview) writeOutput(*options.preview, previewPage(packet, reportJson(report)));
}

/// Allocates nothing, because memory may have run out.
int fail(const char* reason)
{
    std::fprintf(stderr, "publish_video: %s\nTry 'publish_video --help'.\n", reason);
    return failure;
}

int run(int argc, char** argv)
{
    try {
        const Options options = parseOptions(commandLine(argc, argv));
        if (options.help)
            writeStandardOutput(usage());
        else if (options.version)
            writeStandardOutput(versionLine());
        else
            publishVideo(options);
        return 0;
    } catch (const std::bad_alloc&) {
        return fail("out of memory");
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}

} // namespace

} // namespace publish

int main(int argc, char** argv)
{
    publish::prepareStreams();
    return publish::run(argc, argv);
}
