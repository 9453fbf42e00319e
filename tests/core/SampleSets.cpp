#include "core/SampleSets.h"

#include "support/Checks.h"

#include <regex>

namespace ZelInterchangeData {

namespace {

/// Expects that every step of making a sample succeeded.
void expectOk(std::initializer_list<ZelDataResult_tags> codes)
{
    for (const auto code : codes)
        EXPECT_EQ(ZelData_Ok, code);
}

void addEntry(i_ZelDataToc& toc, const std::string& title, long long start, unsigned long index)
{
    const auto item = make(&ZelDataUtilities::createTocItemData);
    expectOk({item->setTextForLanguage(title, "en"), item->setStart(start),
              item->setImageFile("thumbs & more.png"), item->setImageIndex(index),
              item->setImageOffset(index * 2048), toc.addTocItem(*item)});
}

void addText(i_ZelDataScreenText& texts, const std::string& text, long long start,
             unsigned long group)
{
    const auto item = make(&ZelDataUtilities::createScreenTextItemData);
    expectOk({item->setText(text), item->setStart(start), item->setDuration(1500),
              item->setImageFile("shots.png"), item->setImageIndex(3), item->setImageOffset(4096),
              item->setGroupId(group), texts.addScreenTextItem(*item)});
}

} // namespace

std::unique_ptr<i_ZelDataHeader> plainHeader()
{
    auto header = make(&ZelDataUtilities::createHeaderData);
    expectOk(
        {header->setVideoLength(90500), header->setVideoWidth(640), header->setVideoHeight(480)});
    return header;
}

std::unique_ptr<i_ZelDataHeader> sampleHeader()
{
    auto header = plainHeader();
    expectOk({header->setTitle("Tea & \"Time\""), header->setCreator("Ann 'n' Bo"),
              header->setDescription("one < two\n\xE8\x8C\xB6 \xF0\x9F\x8D\xB5"),
              header->setAppName("Recorder"), header->setAppVersion("2.0")});
    expectOk({header->setKeywords({"a", "b & c"}), header->setIPodExplicit(true),
              header->setShowSearchBar(false), header->addLanguage("ja"),
              header->addContentName("intro.mp4"), header->addContentName("it's.xml")});
    return header;
}

void addCaption(i_ZelDataCaptions& captions, const std::string& language, const std::string& text,
                long long start)
{
    const auto item = make(&ZelDataUtilities::createCaptionItemData);
    expectOk({item->setTextForLanguage(text, language), item->setStart(start),
              item->setDuration(2000), item->setAlignment(ZelAlignTop | ZelAlignRight),
              captions.addCaptionItem(*item)});
}

std::unique_ptr<i_ZelDataCaptions> sampleCaptions()
{
    auto captions = make(&ZelDataUtilities::createCaptionData);
    addCaption(*captions, "fr", "un\tth\xC3\xA9\nchaud", 4000);
    addCaption(*captions, "de", "<b>Tee</b>", 1500);
    expectOk({captions->setFrameRate(25), captions->setFontFamily("Courier"),
              captions->setFontSize(24), captions->setForegroundColor(1.0F, 0.5F, 0.999F),
              captions->setBackgroundColor(0.0F, 0.25F, 0.0F),
              captions->setBackgroundOpacity(0.25F)});
    return captions;
}

std::unique_ptr<i_ZelDataToc> sampleToc()
{
    auto toc = make(&ZelDataUtilities::createTocData);
    addEntry(*toc, "Pour & drink", 5000, 1);
    addEntry(*toc, "Boil", 0, 0);
    expectOk({toc->setFrameRate(30), toc->setImageFile("<toc>.png")});
    return toc;
}

std::unique_ptr<i_ZelDataScreenText> sampleScreenText()
{
    auto texts = make(&ZelDataUtilities::createScreenTextData);
    addText(*texts, "Stop <now>", 6000, 1);
    addText(*texts, "Click Save", 2000, 0);
    expectOk({texts->setFrameRate(50)});
    return texts;
}

std::string withoutDate(const std::string& packet)
{
    static const std::regex date(R"#(dc:date="\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[+-]\d{1,2}:00" )#");
    EXPECT_TRUE(std::regex_search(packet, date)) << packet;
    return std::regex_replace(packet, date, R"#(dc:date="DATE" )#");
}

} // namespace ZelInterchangeData
