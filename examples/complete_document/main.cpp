#include "ZelInterchangeData/ZelDataFace.h"
#include <iostream>
using namespace ZelInterchangeData;
int main()
try {
    const auto header = createHeader();
    // The creator is written as given: escape it. The title is escaped when it is written.
    checked(header).setTitle("Intro & Setup").setCreator(escaped("Ann")).setAppName("Recorder");
    checked(header).setVideoLength(90500).setVideoWidth(640).setVideoHeight(480); // ms, pixels
    const auto captions = createCaptions();
    const auto hello = createCaptionItem(1500, 3500, {{"en", "Hi & welcome"}, {"de", "Hallo"}});
    const auto bye = createCaptionItem(80000, 83000, {{"en", "Goodbye"}, {"de", "Tschüss"}});
    checked(captions).addCaptionItem(*hello).addCaptionItem(*bye);
    const auto toc = createToc();
    checked(toc).addTocItem(*createTocItem(0, {{"en", "Intro"}}));     // entry 0
    checked(toc).addTocItem(*createTocItem(45000, {{"en", "Setup"}})); // entry 1
    const auto screenText = createScreenText();
    checked(screenText).addScreenTextItem(*createScreenTextItem(45000, 60000, "File > New", 1));
    const auto document = createDocument();
    checked(document).setDataHeader(*header).setDataCaptions(*captions).setDataToc(*toc);
    checked(document).setDataScreenText(*screenText);
    replaceFile(*document, "intro.xmp");
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
