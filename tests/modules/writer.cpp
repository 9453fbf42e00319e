// A plug-in that makes an object with each factory and writes the document of examples/complete_document
// into a string and into a file. It answers with the version of its library and the packet.

#include "ZelInterchangeData/ZelDataFace.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

using namespace ZelInterchangeData;

namespace {

void require(bool met, const char* condition)
{
    if (!met) throw std::runtime_error(condition);
}

std::string contentsOf(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

extern "C" void run(std::string& answer)
{
    const auto header = createHeader();
    checked(*header).setTitle("Intro & Setup").setCreator("Ann").setAppName("Recorder");
    checked(*header).setVideoLength(90500).setVideoWidth(640).setVideoHeight(480);
    const auto captions = createCaptions();
    const auto hello = createCaptionItem(1500, 3500, {{"en", "Hi & welcome"}, {"de", "Hallo"}});
    const auto bye = createCaptionItem(80000, 83000, {{"en", "Goodbye"}, {"de", "Tschüss"}});
    checked(*captions).addCaptionItem(*hello).addCaptionItem(*bye);
    const auto toc = createToc();
    checked(*toc).addTocItem(*createTocItem(0, {{"en", "Intro"}}));
    checked(*toc).addTocItem(*createTocItem(45000, {{"en", "Setup"}}));
    const auto screenText = createScreenText();
    checked(*screenText).addScreenTextItem(*createScreenTextItem(45000, 60000, "File > New", 1));
    const auto document = createDocument();
    checked(*document).setDataHeader(*header).setDataCaptions(*captions).setDataToc(*toc);
    checked(*document).setDataScreenText(*screenText).writeFile("written.xmp");
    const std::string file = contentsOf("written.xmp");
    std::remove("written.xmp");

    // The two packets may differ in their dates, so compares only their lengths.
    const std::string packet = checked(*document).writeString();
    require(file.size() ==
                std::string("<?xml version=\"1.0\" encoding=\"utf-8\" ?>").size() + packet.size(),
            "the file is as long as the text");
    const auto holds = [&packet](const std::string& part) {
        return !part.empty() && packet.find(part) != std::string::npos;
    };
    const auto captionFormatter = createCaptionFormatter();
    require(holds(checked(*captionFormatter).setCaptions(*captions).writeString()), "captions");
    const auto tocFormatter = createTocFormatter();
    require(holds(checked(*tocFormatter).setToc(*toc).writeString()), "table of contents");
    const auto screenTextFormatter = createScreenTextFormatter();
    require(holds(checked(*screenTextFormatter).setScreenText(*screenText).writeString()),
            "screen text");
    const auto headerFormatter = createHeaderFormatter();
    require(!checked(*headerFormatter).setHeader(*header).writeString().empty(), "header");

    std::vector<ZelDataFinding> findings;
    require(toString(findProblems(*captions, findings)) == std::string("ZelData_Ok"), "findings");
    require(findings.empty() && ZelDataFinding().item == ZelDataFinding::noItem, "no finding");
    require(items(*captions).size() == 2, "items");
    require(std::string(describe(ZelData_NoData)) ==
                ZelDataError(ZelData_NoData, "").what() +
                    std::string(": ZelData_NoData (0x8000000D): ").size(),
            "the description of a code");

    answer = getValueString(libraryVersion()) + ' ' + file;
}
