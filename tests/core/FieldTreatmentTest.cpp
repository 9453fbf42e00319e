/// @file
/// How the packet holds each text: escaped, stripped or as given.

#include "core/SampleSets.h"
#include "support/Checks.h"

#include <gmock/gmock.h>

namespace ZelInterchangeData {
namespace {

using ::testing::HasSubstr;

/// Everything that a rule could change: the characters of markup, control characters, a character of
/// two bytes.
const std::string probe = "a\"&'<>\t\r\n\x01\x1F\x7F\xC3\xA9";
const std::string escaped = "a&quot;&amp;&apos;&lt;&gt;\t\r\n\x01\x1F\x7F\xC3\xA9";
const std::string escapedAndStripped = "a&quot;&amp;&apos;&lt;&gt;\n\x7F\xC3\xA9";

std::string attribute(const std::string& name, const std::string& value)
{
    return " " + name + "=\"" + value + "\" ";
}

std::string element(const std::string& language, const std::string& text)
{
    return "<rdf:li xml:lang=\"" + language + "\">" + text + "</rdf:li>";
}

class FieldTreatment : public ::testing::Test {
protected:
    /// The packet of the sets, with the probe in the field that a test chose.
    std::string packet() const
    {
        const std::unique_ptr<i_ZelInterchangeDataCore> document(
            ZELDataCreator::createInterchangeData());
        EXPECT_EQ(ZelData_Ok, document->setDataHeader(*header_));
        EXPECT_EQ(ZelData_Ok, document->setDataCaptions(*captions_));
        EXPECT_EQ(ZelData_Ok, document->setDataToc(*toc_));
        EXPECT_EQ(ZelData_Ok, document->setDataScreenText(*screenText_));
        std::string packet;
        EXPECT_EQ(ZelData_Ok, document->writeString(packet, ZelDataFormat_Xmp, false));
        return packet;
    }

    std::unique_ptr<i_ZelDataHeader> header_ = plainHeader();
    std::unique_ptr<i_ZelDataCaptions> captions_ = sampleCaptions();
    std::unique_ptr<i_ZelDataToc> toc_ = sampleToc();
    std::unique_ptr<i_ZelDataScreenText> screenText_ = sampleScreenText();
};

TEST_F(FieldTreatment, TheTitleIsEscaped)
{
    EXPECT_EQ(ZelData_Ok, header_->setTitle(probe));
    EXPECT_THAT(packet(), HasSubstr(attribute("dc:title", escaped)));
}

TEST_F(FieldTreatment, TheDescriptionIsEscaped)
{
    EXPECT_EQ(ZelData_Ok, header_->setDescription(probe));
    EXPECT_THAT(packet(), HasSubstr(attribute("dc:Description", escaped)));
}

TEST_F(FieldTreatment, NameAndVersionOfTheApplicationAreEscaped)
{
    EXPECT_EQ(ZelData_Ok, header_->setAppName(probe));
    EXPECT_EQ(ZelData_Ok, header_->setAppVersion(probe));
    EXPECT_THAT(packet(), HasSubstr(attribute("dc:source", escaped + " - " + escaped)));
}

TEST_F(FieldTreatment, KeywordsAreEscaped)
{
    EXPECT_EQ(ZelData_Ok, header_->setKeywords({probe, probe}));
    EXPECT_THAT(packet(), HasSubstr(attribute("zelDM:keywords", escaped + ", " + escaped)));
}

TEST_F(FieldTreatment, TheCreatorIsWrittenAsGiven)
{
    EXPECT_EQ(ZelData_Ok, header_->setCreator(probe));
    EXPECT_THAT(packet(), HasSubstr(attribute("dc:creator", probe)));
}

TEST_F(FieldTreatment, ContentNamesAreEscaped)
{
    EXPECT_EQ(ZelData_Ok, header_->addContentName(probe));
    EXPECT_THAT(packet(),
                HasSubstr("<rdf:li xmpDM:name=\"0\" xmpDM:value=\"" + escaped + "\"></rdf:li>"));
}

TEST_F(FieldTreatment, LanguageIDsAreWrittenAsGiven)
{
    addCaption(*captions_, "en-" + probe, "text", 9000);
    EXPECT_THAT(packet(), HasSubstr(element("en-" + probe, "English")));
    EXPECT_THAT(packet(), HasSubstr(element("en-" + probe, "text")));
}

TEST_F(FieldTreatment, TheFontFamilyIsWrittenAsGiven)
{
    EXPECT_EQ(ZelData_Ok, captions_->setFontFamily(probe));
    EXPECT_THAT(packet(), HasSubstr(attribute("stFnt:fontFamily", probe)));
}

TEST_F(FieldTreatment, CaptionTextsAreEscapedAndStripped)
{
    addCaption(*captions_, "en", probe, 9000);
    EXPECT_THAT(packet(), HasSubstr(element("en", escapedAndStripped)));
}

TEST_F(FieldTreatment, TitlesOfEntriesAreEscapedAndStripped)
{
    const auto entry = make(&ZelDataUtilities::createTocItemData);
    EXPECT_EQ(ZelData_Ok, entry->setTextForLanguage(probe, "en"));
    EXPECT_EQ(ZelData_Ok, toc_->addTocItem(*entry));
    EXPECT_THAT(packet(), HasSubstr(attribute("xmpDM:name", escapedAndStripped)));
}

TEST_F(FieldTreatment, TheImageOfTheTableIsEscaped)
{
    EXPECT_EQ(ZelData_Ok, toc_->setImageFile(probe));
    EXPECT_THAT(packet(), HasSubstr(attribute("zelDM:image", escaped)));
}

TEST_F(FieldTreatment, ImagesOfEntriesAreEscaped)
{
    const auto entry = make(&ZelDataUtilities::createTocItemData);
    EXPECT_EQ(ZelData_Ok, entry->setImageFile(probe));
    EXPECT_EQ(ZelData_Ok, toc_->addTocItem(*entry));
    EXPECT_THAT(packet(), HasSubstr(attribute("zelDM:image", escaped)));
}

TEST_F(FieldTreatment, ScreenTextsAreEscapedAndStripped)
{
    const auto item = make(&ZelDataUtilities::createScreenTextItemData);
    EXPECT_EQ(ZelData_Ok, item->setText(probe));
    EXPECT_EQ(ZelData_Ok, screenText_->addScreenTextItem(*item));
    EXPECT_THAT(packet(), HasSubstr(attribute("xmpDM:name", escapedAndStripped)));
}

TEST_F(FieldTreatment, ImagesOfScreenTextsAreWrittenAsGiven)
{
    const auto item = make(&ZelDataUtilities::createScreenTextItemData);
    EXPECT_EQ(ZelData_Ok, item->setImageFile(probe));
    EXPECT_EQ(ZelData_Ok, screenText_->addScreenTextItem(*item));
    EXPECT_THAT(packet(), HasSubstr(attribute("xmpDM:image", probe)));
}

} // namespace
} // namespace ZelInterchangeData
