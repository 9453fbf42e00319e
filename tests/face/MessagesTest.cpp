/// @file
/// What the exceptions of the face say.

#include "ZelInterchangeData/ZelDataFace.h"
#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "support/FailingAllocation.h"
#include "support/fakes/FailingCaptions.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <limits>
#include <new>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#if defined(__GLIBC__) && defined(__GLIBCXX__)
#include <pthread.h>
#endif

namespace ZelInterchangeData {
namespace {

const std::string outOfRange = " (ZelData_InvalidArgument, 0x80000003)";
const std::string badItem = " (ZelData_InvalidItem, 0x80000009)";
const std::string replaced = " (ZelData_WarnAlreadyExists, 0x40000001)";
const std::string noChange = " (ZelData_WarnNoChange, 0x40000004)";
const std::string notFound = " (ZelData_NotFound, 0x80000004)";
const std::string guidelines = " (ZelData_WarnItemGuidelines, 0x40000002)";
const std::string timing = " (ZelData_WarnTiming, 0x40000003)";
const std::string badText = " (ZelData_InvalidUtf8, 0x80000006)";
const std::string unknown = " (ZelData_UnknownLanguage, 0x80000008)";
const std::string internal = " (ZelData_InternalError, 0x8000000B)";
const std::string noData = " (ZelData_NoData, 0x8000000D)";
const std::string unexplained = "ZelData_InvalidArgument (0x80000003): "
                                "A value is out of range, missing, or not there to be read.";

constexpr auto otherFormat = static_cast<ZelDataFormatType_tags>(2);

/// The message of the ZelDataError that @p call throws; empty if it throws none.
template <class Call>
std::string saidBy(Call&& call)
{
    try {
        call();
        return {};
    } catch (const ZelDataError& error) {
        return error.what();
    }
}

/// Calls @p call, which must fail, and expects that it leaves the code as the last error of @p
/// object. Returns the message.
template <class Object, class Call>
std::string saidAndKept(const Object& object, Call&& call)
{
    try {
        call();
        ADD_FAILURE() << "nothing was thrown";
        return {};
    } catch (const ZelDataError& error) {
        EXPECT_EQ(error.code(), object->getLastError());
        return error.what();
    }
}

TEST(Message, NamesOperationArgumentsReasonAndCode)
{
    const auto item = createCaptionItem(1000, 2000, {{"en", "a"}});
    try {
        checked(item).setEnd(500);
        FAIL() << "nothing was thrown";
    } catch (const ZelDataError& error) {
        EXPECT_STREQ(("setEnd(500): not after the start, 1000" + outOfRange).c_str(), error.what());
        EXPECT_EQ("setEnd", error.operation());
        EXPECT_EQ(ZelData_InvalidArgument, error.code());
    }
}

TEST(Message, SaysWhatTheCodeMeansIfNothingElseIsKnown)
{
    const auto captions = createCaptions();
    EXPECT_EQ(
        "getCaptionItemsForLanguage(\"en\"): ZelData_NotImplemented (0x80000002): "
        "The operation is not supported.",
        saidBy([&] { static_cast<void>(checked(captions).getCaptionItemsForLanguage("en")); }));
}

TEST(Message, ShowsTextsInOneLine)
{
    const auto item = createCaptionItem(0, 2000, {{"en", "a"}});
    const auto said = [&](const std::string& text) {
        return saidAndKept(item, [&] { checked(item).setTextForLanguage(text, "en"); });
    };
    const std::string end = ", \"en\"): it replaced an earlier text" + replaced;
    EXPECT_EQ("setTextForLanguage(\"\"" + end, said(""));
    EXPECT_EQ("setTextForLanguage(\"a\\x0A\\x7F\\x09\xC3\xA9\"" + end, said("a\n\x7F\t\xC3\xA9"));
    EXPECT_EQ("setTextForLanguage(\"" + std::string(40, 'a') + "\"" + end,
              said(std::string(40, 'a')));
}

TEST(Message, ShortensALongTextBetweenTwoCharacters)
{
    const auto item = createCaptionItem(0, 2000, {{"en", "a"}});
    const auto said = [&](const std::string& text) {
        return saidBy([&] { checked(item).setTextForLanguage(text, "en"); });
    };
    const auto shown = [](const std::string& text) {
        return "setTextForLanguage(\"" + text +
               "\xE2\x80\xA6\", \"en\"): it replaced an earlier text" + replaced;
    };
    EXPECT_EQ(shown(std::string(40, 'a')), said(std::string(41, 'a')));
    EXPECT_EQ(shown(std::string(39, 'a')), said(std::string(39, 'a') + "\xC3\xA9z"));
    EXPECT_EQ(shown(std::string(37, 'a')), said(std::string(37, 'a') + "\xF0\x9F\x90\x9Fz"));
    EXPECT_EQ(shown(std::string(36, 'a') + "\xF0\x9F\x90\x9F"),
              said(std::string(36, 'a') + "\xF0\x9F\x90\x9Fz"));
}

TEST(Message, ShowsTheBytesOfATextThatIsNotUtf8)
{
    const auto item = createCaptionItem();
    const auto said = [&](const std::string& text) {
        return saidAndKept(item, [&] { checked(item).setTextForLanguage(text, "fr"); });
    };
    EXPECT_EQ("setTextForLanguage(\"Fran\\xE7ois\", \"fr\"): the text is not UTF-8" + badItem,
              said("Fran\xE7ois"));
    std::string bytes;
    for (int i = 0; i < 40; ++i)
        bytes += "\\x80";
    EXPECT_EQ("setTextForLanguage(\"" + bytes + "\xE2\x80\xA6\", \"fr\"): the text is not UTF-8" +
                  badItem,
              said(std::string(50, '\x80')));
}

TEST(Message, SuggestsAHyphenInALanguage)
{
    const auto caption = createCaptionItem();
    EXPECT_EQ("setTextForLanguage(\"Hello\", \"en_US\"): \"en_US\" is no language of ISO 639-1; "
              "write \"en-US\"" +
                  badItem,
              saidAndKept(caption, [&] { checked(caption).setTextForLanguage("Hello", "en_US"); }));
    const auto entry = createTocItem();
    EXPECT_EQ(
        "setTextForLanguage(\"Hello\", \"english\"): \"english\" is no language of ISO 639-1" +
            badItem,
        saidAndKept(entry, [&] { checked(entry).setTextForLanguage("Hello", "english"); }));
    EXPECT_EQ("setTextForLanguage(\"Hello\", \"zz_US\"): \"zz_US\" is no language of ISO 639-1" +
                  badItem,
              saidAndKept(entry, [&] { checked(entry).setTextForLanguage("Hello", "zz_US"); }));
    EXPECT_EQ("setTextForLanguage(\"Hello\", \"en\\xFF\"): the language ID is not UTF-8" + badItem,
              saidAndKept(entry, [&] { checked(entry).setTextForLanguage("Hello", "en\xFF"); }));
}

TEST(Message, NamesTheLanguagesThatAnItemHas)
{
    const auto caption = createCaptionItem(0, 2000, {{"en", "a"}, {"de", "b"}});
    EXPECT_EQ("getTextForLanguage(\"fr\"): the languages are \"de\", \"en\"" + outOfRange,
              saidAndKept(caption,
                          [&] { static_cast<void>(checked(caption).getTextForLanguage("fr")); }));
    const auto entry = createTocItem(0, {{"en", "a"}});
    EXPECT_EQ("removeTextForLanguage(\"fr\"): the only language is \"en\"" + notFound,
              saidAndKept(entry, [&] { checked(entry).removeTextForLanguage("fr"); }));
    const auto empty = createTocItem();
    EXPECT_EQ(
        "getTextForLanguage(\"fr\"): there are no languages" + outOfRange,
        saidAndKept(empty, [&] { static_cast<void>(checked(empty).getTextForLanguage("fr")); }));
    const auto many =
        createTocItem(0, {{"de", ""}, {"en", ""}, {"es", ""}, {"fr", ""}, {"it", ""}, {"pt", ""}});
    EXPECT_EQ("removeTextForLanguage(\"ja\"): the languages are \"de\", \"en\", \"es\", \"fr\", "
              "\"it\", \xE2\x80\xA6" +
                  notFound,
              saidAndKept(many, [&] { checked(many).removeTextForLanguage("ja"); }));
}

TEST(Message, SaysWhatIsWrongWithATime)
{
    const auto caption = createCaptionItem(1000, 2000, {{"en", "a"}});
    const auto text = createScreenTextItem(1000, 2000, "a");
    const auto entry = createTocItem();
    const auto setter = [](const auto& item, auto set) {
        return saidAndKept(item, [&] { set(checked(item)); });
    };
    EXPECT_EQ("setStart(-1): negative" + outOfRange,
              setter(caption, [](auto view) { view.setStart(-1); }));
    EXPECT_EQ(
        "setStart(-9223372036854775808): negative" + outOfRange,
        setter(caption, [](auto view) { view.setStart(std::numeric_limits<long long>::min()); }));
    EXPECT_EQ("setEnd(1000): not after the start, 1000" + outOfRange,
              setter(caption, [](auto view) { view.setEnd(1000); }));
    EXPECT_EQ("setEnd(-5): negative" + outOfRange,
              setter(caption, [](auto view) { view.setEnd(-5); }));
    EXPECT_EQ("setDuration(0): not positive" + outOfRange,
              setter(caption, [](auto view) { view.setDuration(0); }));
    EXPECT_EQ("setDuration(-1): negative" + outOfRange,
              setter(caption, [](auto view) { view.setDuration(-1); }));
    EXPECT_EQ("setEnd(500): not after the start, 1000" + outOfRange,
              setter(text, [](auto view) { view.setEnd(500); }));
    EXPECT_EQ("setDuration(-1): negative" + outOfRange,
              setter(text, [](auto view) { view.setDuration(-1); }));
    EXPECT_EQ("setStart(-1): negative" + outOfRange,
              setter(entry, [](auto view) { view.setStart(-1); }));
    EXPECT_EQ("setEnd(1): not after the start, 1" + outOfRange, saidBy([] {
                  static_cast<void>(createCaptionItem(1, 1, {{"en", "a"}}));
              }));
}

TEST(Message, SaysThatAScreenTextIsNotUtf8)
{
    const auto item = createScreenTextItem();
    EXPECT_EQ("setText(\"\\xFF\"): the text is not UTF-8" + badItem,
              saidAndKept(item, [&] { checked(item).setText("\xFF"); }));
}

TEST(Message, SaysWhyACaptionIsNotGood)
{
    const auto bare = createCaptionItem();
    EXPECT_EQ("isValid(false): it lasts 0 ms" + badItem,
              saidAndKept(bare, [&] { checked(bare).isValid(false); }));
    const auto brief = createCaptionItem(0, 600, {{"en", "a"}});
    EXPECT_EQ("isValid(true): it lasts 600 ms, less than 1000 ms" + guidelines,
              saidAndKept(brief, [&] { checked(brief).isValid(true); }));
    const auto full = createCaptionItem(0, 1000, {{"de", "a"}, {"en", "1\n2\n3\n4\n5"}});
    EXPECT_EQ("isValid(true): 5 lines in \"en\", more than 4" + guidelines,
              saidAndKept(full, [&] { checked(full).isValid(true); }));
}

TEST(Message, SaysWhyACollectionIsNotGood)
{
    const auto captions = createCaptions();
    const auto said = [&](bool strict) {
        return saidAndKept(captions, [&] { checked(captions).isValid(strict); });
    };
    checked(captions)
        .addCaptionItem(*createCaptionItem(0, 900, {{"en", "a"}}))
        .addCaptionItem(*createCaptionItem(800, 2000, {{"en", "b"}}));
    EXPECT_EQ("isValid(true): caption 0 at 0 ms: too short (900 ms, at least 1000 ms)" + guidelines,
              said(true));
    EXPECT_EQ("isValid(false): caption 0 at 0 ms: overlap: it ends at 900 ms, caption 1 starts at "
              "800 ms" +
                  timing,
              said(false));
    checked(captions).addLanguage("de");
    EXPECT_EQ("isValid(false): caption 0 at 0 ms: no text in de" + outOfRange, said(false));
}

TEST(Message, SaysWhyATableOfContentsIsNotGood)
{
    const auto toc = createToc();
    checked(toc).addTocItem(*createTocItem(9, {{"en", "a"}}));
    checked(toc).addTocItem(*createTocItem(8, {{"en", "b"}}));
    EXPECT_EQ("isValid(true): entry 0 at 9: out of order: entry 1 starts before it, at 8" + timing,
              saidAndKept(toc, [&] { checked(toc).isValid(true); }));
}

TEST(Message, SaysWhyScreenTextsAreNotGood)
{
    const auto texts = createScreenText();
    checked(texts).addScreenTextItem(*createScreenTextItem(9, 9, "a"));
    checked(texts).addScreenTextItem(*createScreenTextItem(8, 9, "b"));
    EXPECT_EQ("isValid(true): screen text 0 at 9: out of order: screen text 1 starts before it, at "
              "8" +
                  timing,
              saidAndKept(texts, [&] { checked(texts).isValid(true); }));
}

/// Captions with two problems, whose check returns what a test says.
class OwnCaptions : public ZelDataCaptions {
public:
    OwnCaptions()
    {
        checked(*this)
            .addCaptionItem(*ZelInterchangeData::createCaptionItem(0, 900, {{"en", "a"}}))
            .addLanguage("de");
    }

    ZelDataResult_tags isValid(bool /*strict*/) const override { return store(code); }
    ZelDataResult_tags getFontSize(unsigned long& size) const override
    {
        const auto result = ZelDataCaptions::getFontSize(size);
        return hasFontSize ? result : store(ZelData_InternalError);
    }

    ZelDataResult_tags code = ZelData_InvalidArgument;
    bool hasFontSize = true;
};

TEST(Message, GivesTheFirstProblemOfTheCodeThatTheCheckReturned)
{
    OwnCaptions captions;
    const auto said = [&] {
        return saidAndKept(&captions, [&] { checked(captions).isValid(true); });
    };
    EXPECT_EQ("isValid(true): caption 0 at 0 ms: no text in de" + outOfRange, said());
    captions.hasFontSize = false;
    EXPECT_EQ("isValid(true): " + unexplained, said());
    captions.hasFontSize = true;
    captions.code = ZelData_WarnTiming;
    EXPECT_EQ("isValid(true): ZelData_WarnTiming (0x40000003): ", said().substr(0, 48));
}

TEST(Message, SaysHowManyItemsThereAre)
{
    const auto captions = createCaptions();
    const auto toc = createToc();
    const auto screenText = createScreenText();
    EXPECT_EQ("getTocItemAt(0): there are none" + outOfRange,
              saidAndKept(toc, [&] { static_cast<void>(checked(toc).getTocItemAt(0)); }));
    for (const long long start : {1, 2, 3})
        checked(captions).addCaptionItem(*createCaptionItem(start, 9, {{"en", ""}}));
    checked(screenText).addScreenTextItem(*createScreenTextItem(1, 2, ""));
    EXPECT_EQ("getCaptionItemAt(7): there are 3" + outOfRange, saidAndKept(captions, [&] {
                  static_cast<void>(checked(captions).getCaptionItemAt(7));
              }));
    EXPECT_EQ("getCaptionItemAt(3): there are 3" + outOfRange, saidAndKept(captions, [&] {
                  static_cast<void>(checked(std::as_const(*captions)).getCaptionItemAt(3));
              }));
    EXPECT_EQ("removeCaptionItemAt(3): there are 3" + outOfRange,
              saidAndKept(captions, [&] { checked(captions).removeCaptionItemAt(3); }));
    EXPECT_EQ("removeTocItemAt(1): there are none" + outOfRange,
              saidAndKept(toc, [&] { checked(toc).removeTocItemAt(1); }));
    EXPECT_EQ("getScreenTextItemAt(1): there is 1" + outOfRange, saidAndKept(screenText, [&] {
                  static_cast<void>(checked(screenText).getScreenTextItemAt(1));
              }));
    EXPECT_EQ("removeScreenTextItemAt(1): there is 1" + outOfRange,
              saidAndKept(screenText, [&] { checked(screenText).removeScreenTextItemAt(1); }));
}

TEST(Message, NamesTheRangeOfAStyle)
{
    const auto captions = createCaptions();
    const auto said = [&](auto set) {
        return saidAndKept(captions, [&] { set(checked(captions)); });
    };
    EXPECT_EQ("setFrameRate(0): not from 1 to 10000" + outOfRange,
              said([](auto view) { view.setFrameRate(ZelDataLimits::minimumFrameRate - 1); }));
    EXPECT_EQ("setFrameRate(10001): not from 1 to 10000" + outOfRange,
              said([](auto view) { view.setFrameRate(ZelDataLimits::maximumFrameRate + 1); }));
    EXPECT_EQ("setFontSize(0): not from 1 to 500" + outOfRange,
              said([](auto view) { view.setFontSize(ZelDataLimits::minimumFontSize - 1); }));
    EXPECT_EQ("setFontSize(501): not from 1 to 500" + outOfRange,
              said([](auto view) { view.setFontSize(ZelDataLimits::maximumFontSize + 1); }));
    EXPECT_EQ("setFontFamily(\"\"): empty" + outOfRange,
              said([](auto view) { view.setFontFamily(""); }));
    EXPECT_EQ("setForegroundColor(1, 1.5, 0): green is not from 0.0 to 1.0" + outOfRange,
              said([](auto view) { view.setForegroundColor(1.0F, 1.5F, 0.0F); }));
    EXPECT_EQ("setBackgroundColor(-1, 0, 0): red is not from 0.0 to 1.0" + outOfRange,
              said([](auto view) { view.setBackgroundColor(-1.0F, 0.0F, 0.0F); }));
    EXPECT_EQ("setBackgroundOpacity(1.25): not from 0.0 to 1.0" + outOfRange,
              said([](auto view) { view.setBackgroundOpacity(1.25F); }));
}

TEST(Message, NamesTheRangeOfAFrameRate)
{
    const auto toc = createToc();
    const auto screenText = createScreenText();
    EXPECT_EQ("setFrameRate(0): not from 1 to 10000" + outOfRange,
              saidAndKept(toc, [&] { checked(toc).setFrameRate(0); }));
    EXPECT_EQ("setFrameRate(0): not from 1 to 10000" + outOfRange,
              saidAndKept(screenText, [&] { checked(screenText).setFrameRate(0); }));
}

TEST(Message, SaysThatACaptionHasNoDuration)
{
    const auto captions = createCaptions();
    const auto bare = createCaptionItem();
    const auto target = createCaptionItem();
    const std::string reason = ": the caption ends at 0, not after its start, 0" + outOfRange;
    EXPECT_EQ("addCaptionItem" + reason,
              saidAndKept(captions, [&] { checked(captions).addCaptionItem(*bare); }));
    EXPECT_EQ(ZelData_Ok, bare->getLastError());
    EXPECT_EQ("copyFrom" + reason, saidAndKept(target, [&] { checked(target).copyFrom(*bare); }));
}

TEST(Message, SaysWhatIsWrongWithAListOfLanguages)
{
    const auto toc = createToc();
    checked(toc).addLanguage("en").addLanguage("de");
    const auto said = [&](auto call) { return saidAndKept(toc, [&] { call(checked(toc)); }); };
    EXPECT_EQ("addLanguage(\"en\"): it is listed already" + replaced,
              said([](auto view) { view.addLanguage("en"); }));
    EXPECT_EQ("addLanguage(\"pt_BR\"): \"pt_BR\" is no language of ISO 639-1; write \"pt-BR\"" +
                  unknown,
              said([](auto view) { view.addLanguage("pt_BR"); }));
    EXPECT_EQ("addLanguage(\"\\xFF\"): the language ID is not UTF-8" + badText,
              said([](auto view) { view.addLanguage("\xFF"); }));
    EXPECT_EQ("removeLanguage(\"fr\"): the languages are \"en\", \"de\"" + notFound,
              said([](auto view) { view.removeLanguage("fr"); }));
    EXPECT_EQ("setOrderedLanguageIDs({\"en\"}): 1, the list has 2" + outOfRange,
              said([](auto view) { view.setOrderedLanguageIDs({"en"}); }));
    EXPECT_EQ("setOrderedLanguageIDs({\"fr\", \"en\"}): \"fr\" is not listed" + outOfRange,
              said([](auto view) {
                  view.setOrderedLanguageIDs({"fr", "en"});
              }));
}

TEST(Message, SaysWhatIsWrongWithAHeader)
{
    const auto header = createHeader();
    const auto said = [&](auto call) {
        return saidAndKept(header, [&] { call(checked(header)); });
    };
    EXPECT_EQ("setVideoLength(0): not positive" + outOfRange,
              said([](auto view) { view.setVideoLength(0); }));
    EXPECT_EQ("isValid: the video length is 0" + outOfRange,
              said([](auto view) { view.isValid(); }));
    EXPECT_EQ("isValid: the video width is 0" + outOfRange,
              said([](auto view) { view.setVideoLength(1).isValid(); }));
    EXPECT_EQ("isValid: the video height is 0" + outOfRange,
              said([](auto view) { view.setVideoWidth(1).isValid(); }));
    EXPECT_EQ("setVideoWidth(0): not positive" + outOfRange,
              said([](auto view) { view.setVideoWidth(0); }));
    EXPECT_EQ("setVideoHeight(0): not positive" + outOfRange,
              said([](auto view) { view.setVideoHeight(0); }));
    EXPECT_EQ("addContentName(\"\\xFF\"): the name is not UTF-8" + badText,
              said([](auto view) { view.addContentName("\xFF"); }));
    EXPECT_EQ("addContentName(\"a.mp4\"): it is listed already" + noChange,
              said([](auto view) { view.addContentName("a.mp4").addContentName("a.mp4"); }));
    EXPECT_EQ("removeContentName(\"b.mp4\"): it is not listed" + noChange,
              said([](auto view) { view.removeContentName("b.mp4"); }));
    EXPECT_EQ("removeLanguage(\"fr\"): there are no languages" + noChange,
              said([](auto view) { view.removeLanguage("fr"); }));
}

TEST(Message, SaysWhyAHeaderCannotBeCopied)
{
    const auto source = createHeader();
    checked(source).setVideoLength(1).setVideoHeight(1);
    const std::string reason = ": the video width is 0" + outOfRange;
    const auto header = createHeader();
    EXPECT_EQ("copyFrom" + reason, saidAndKept(header, [&] { checked(header).copyFrom(*source); }));
    const auto formatter = createHeaderFormatter();
    EXPECT_EQ("setHeader" + reason,
              saidAndKept(formatter, [&] { checked(formatter).setHeader(*source); }));
    const auto document = createDocument();
    EXPECT_EQ("setDataHeader" + reason, saidBy([&] { checked(document).setDataHeader(*source); }));
}

TEST(Message, SaysThatAnObjectWasCopiedOntoItself)
{
    const auto copied = [](const auto& object) {
        return saidAndKept(object, [&] { checked(object).copyFrom(*object); });
    };
    const std::string reason = "copyFrom: the source is the object itself" + internal;
    EXPECT_EQ(reason, copied(createHeader()));
    EXPECT_EQ(reason, copied(createCaptions()));
    EXPECT_EQ(reason, copied(createToc()));
    EXPECT_EQ(reason, copied(createScreenText()));
    EXPECT_EQ(reason, copied(createCaptionItem()));
    EXPECT_EQ(reason, copied(createTocItem()));
    EXPECT_EQ(reason, copied(createScreenTextItem()));
}

TEST(Message, SaysWhatADocumentDoesNotHave)
{
    const auto document = createDocument();
    const auto header = createHeader();
    const auto captions = createCaptions();
    const auto toc = createToc();
    const auto screenText = createScreenText();
    const auto said = [&](auto call) {
        return saidAndKept(document, [&] { call(checked(document)); });
    };
    EXPECT_EQ("getDataHeader: the document has no header" + noData,
              said([&](auto view) { view.getDataHeader(*header); }));
    EXPECT_EQ("getDataCaptions: the document has no captions" + noData,
              said([&](auto view) { view.getDataCaptions(*captions); }));
    EXPECT_EQ("getDataToc: the document has no table of contents" + noData,
              said([&](auto view) { view.getDataToc(*toc); }));
    EXPECT_EQ("getDataScreenText: the document has no screen text" + noData,
              said([&](auto view) { view.getDataScreenText(*screenText); }));
}

TEST(Message, SaysWhyADocumentCannotBeWritten)
{
    const auto document = createDocument();
    document->setLastError(ZelData_WarnTiming); // which writing keeps
    const auto writes = [&] { static_cast<void>(checked(document).writeString()); };
    EXPECT_EQ("writeString: the document has no header" + outOfRange, saidBy(writes));
    EXPECT_EQ("writeFile(\"a.xmp\"): the document has no header" + outOfRange,
              saidBy([&] { checked(document).writeFile("a.xmp"); }));
    EXPECT_EQ("replaceFile(\"a.xmp\"): the document has no header" + outOfRange,
              saidBy([&] { replaceFile(*document, "a.xmp"); }));
    EXPECT_EQ(ZelData_WarnTiming, document->getLastError());
    const auto header = createHeader();
    checked(header).setVideoLength(1).setVideoWidth(1);
    EXPECT_EQ(ZelData_InvalidArgument, document->setDataHeader(*header));
    EXPECT_EQ("writeString: the video height is 0" + outOfRange, saidBy(writes));
}

TEST(Message, ShowsTheFormatOnlyIfItIsNotTheUsualOne)
{
    const std::string unsupported =
        "(format 2): ZelData_UnsupportedFormat (0x8000000E): The format is not supported.";
    const auto document = createDocument();
    EXPECT_EQ("writeString" + unsupported, saidAndKept(document, [&] {
                  static_cast<void>(checked(document).writeString(otherFormat));
              }));
    EXPECT_EQ("createTocFormatter" + unsupported,
              saidBy([] { static_cast<void>(createTocFormatter(otherFormat)); }));
}

TEST(Message, NamesTheFileThatCannotBeOpened)
{
    const auto header = createHeader();
    checked(header).setVideoLength(1).setVideoWidth(1).setVideoHeight(1);
    const auto document = createDocument();
    checked(document).setDataHeader(*header);
    EXPECT_EQ("writeFile(\"no/such/folder.xmp\"): ZelData_FileOpenFailed (0x8000000A): "
              "The file could not be opened.",
              saidBy([&] { checked(document).writeFile("no/such/folder.xmp"); }));
}

/// A caller's own caption. Its getter of the start may throw, and its last error may be one that only
/// its operations set.
class OwnCaption : public ZelDataCaptionItem {
public:
    void keepLastErrorToItself() { settable_ = false; }
    void throwFromGetter(std::function<void()> action) { action_ = std::move(action); }
    int asked() const { return asked_; }

    ZelDataResult_tags isValid(bool /*strict*/) const override
    {
        return keep(ZelData_WarnItemGuidelines);
    }
    ZelDataResult_tags setEnd(long long end) override
    {
        return keep(ZelDataCaptionItem::setEnd(end));
    }
    ZelDataResult_tags getStart(long long& start) const override
    {
        ++asked_;
        if (action_) {
            own_ = ZelData_InternalError;
            action_();
        }
        return keep(ZelDataCaptionItem::getStart(start));
    }
    void setLastError(ZelDataResult_tags code) const override
    {
        if (settable_) own_ = code;
    }
    ZelDataResult_tags getLastError() const override { return own_; }

private:
    ZelDataResult_tags keep(ZelDataResult_tags code) const
    {
        own_ = code;
        return code;
    }

    bool settable_ = true;
    std::function<void()> action_;
    mutable int asked_ = 0;
    mutable ZelDataResult_tags own_ = ZelData_Ok;
};

std::string saidAboutEnd(OwnCaption& caption)
{
    return saidAndKept(&caption, [&] { checked(caption).setEnd(0); });
}

TEST(MessageAboutAnotherImplementation, KeepsItsLastError)
{
    OwnCaption caption;
    EXPECT_EQ("setEnd(0): not after the start, 0" + outOfRange, saidAboutEnd(caption));
    EXPECT_EQ(1, caption.asked());
}

TEST(MessageAboutAnotherImplementation, AsksNothingIfTheLastErrorCannotBeSet)
{
    OwnCaption caption;
    caption.keepLastErrorToItself();
    EXPECT_EQ("setEnd(0): " + unexplained, saidAboutEnd(caption));
    EXPECT_EQ(0, caption.asked());
}

TEST(MessageAboutAnotherImplementation, KeepsItsLastErrorIfAGetterThrows)
{
    const std::function<void()> actions[] = {[] { throw std::runtime_error("no start"); },
                                             [] { throw std::bad_alloc(); }, [] { throw 42; }};
    for (const auto& action : actions) {
        OwnCaption caption;
        caption.throwFromGetter(action);
        EXPECT_EQ("setEnd(0): " + unexplained, saidAboutEnd(caption));
        EXPECT_EQ(1, caption.asked());
    }
}

TEST(Argument, IsAnObjectOrAValue)
{
    const auto header = createHeader();
    const auto other = createHeader();
    EXPECT_TRUE(ZelDataArgument(*header).is(*header));
    EXPECT_FALSE(ZelDataArgument(*other).is(*header));
    EXPECT_FALSE(ZelDataArgument(true).is(*header));
    EXPECT_EQ("18446744073709551615", ZelDataArgument(~0ULL).shown());
}

TEST(MessageAboutAnotherImplementation, ExplainsNoRefusalOfAGoodArgument)
{
    FailingCaptions captions;
    captions.failAt("setFontSize", ZelData_InvalidArgument, ZelData_InvalidArgument);
    EXPECT_EQ("setFontSize(20): " + unexplained,
              saidBy([&] { checked(captions).setFontSize(20); }));
    captions.failAt("setForegroundColor", ZelData_InvalidArgument, ZelData_InvalidArgument);
    EXPECT_EQ("setForegroundColor(0, 0.5, 1): " + unexplained,
              saidBy([&] { checked(captions).setForegroundColor(0.0F, 0.5F, 1.0F); }));
    captions.failAt("addCaptionItem", ZelData_InvalidArgument, ZelData_InvalidArgument);
    EXPECT_EQ("addCaptionItem: " + unexplained, saidBy([&] {
                  checked(captions).addCaptionItem(*createCaptionItem(0, 1, {{"en", "a"}}));
              }));
    FailingCaptionItem item;
    item.failAt("setDuration", ZelData_InvalidArgument, ZelData_InvalidArgument);
    EXPECT_EQ("setDuration(500): " + unexplained, saidBy([&] { checked(item).setDuration(500); }));
    item.failAt("setAlignment", ZelData_InvalidArgument, ZelData_InvalidArgument);
    EXPECT_EQ("setAlignment(18): " + unexplained,
              saidBy([&] { checked(item).setAlignment(ZelAlignTop | ZelAlignLeft); }));
    OwnCaption lasting;
    checked(lasting).setDuration(5000).setTextForLanguage("Hi", "en");
    EXPECT_EQ("isValid(true): ZelData_WarnItemGuidelines (0x40000002): "
              "The caption is valid but shorter, or has more lines, than recommended.",
              saidBy([&] { checked(lasting).isValid(true); }));
    FailingCaptionItem started;
    started.failAt("setStart", ZelData_InvalidArgument, ZelData_InvalidArgument);
    EXPECT_EQ("setStart(0): " + unexplained, saidBy([&] { checked(started).setStart(0); }));
    FailingCaptions failing;
    failing.failAt("getFontSize", ZelData_InternalError, ZelData_InternalError);
    const auto target = createCaptions();
    EXPECT_EQ("copyFrom: ZelData_InternalError (0x8000000B): The data are inconsistent, an object "
              "was copied onto itself, or an internal step failed.",
              saidBy([&] { checked(target).copyFrom(failing); }));
    FailingCaptionItem speechless;
    speechless.failAt("setTextForLanguage", ZelData_InvalidItem, ZelData_InvalidItem);
    EXPECT_EQ("setTextForLanguage(\"Hi\", \"en\"): ZelData_InvalidItem (0x80000009): "
              "The item has no duration, or a text or language that is not valid.",
              saidBy([&] { checked(speechless).setTextForLanguage("Hi", "en"); }));
}

#if defined(__GLIBC__) && defined(__GLIBCXX__)
TEST(MessageAboutAnotherImplementation, LetsAThreadEndInAGetter)
{
    OwnCaption caption;
    caption.throwFromGetter([] { pthread_exit(nullptr); });
    bool returned = false;
    std::thread([&] {
        static_cast<void>(saidBy([&] { checked(caption).setEnd(0); }));
        returned = true;
    }).join();
    EXPECT_FALSE(returned);
    EXPECT_EQ(1, caption.asked());
}
#endif

/// How @p call ends if memory runs out after @p granted allocations: with the message of a
/// ZelDataError, or with "std::bad_alloc". Sets @p failed to whether memory ran out.
std::string endingOf(const std::function<void()>& call, std::size_t granted, Shortage shortage,
                     bool& failed)
{
    std::string ending;
    ending.reserve(500);
    const FailingAllocation failing(granted, shortage);
    try {
        call();
    } catch (const ZelDataError& error) {
        ending = error.what();
    } catch (const std::bad_alloc&) {
        ending = "std::bad_alloc";
    }
    failed = failing.failed();
    return ending;
}

/// The endings of @p call with each number of allocations.
std::set<std::string> endingsOf(const std::function<void()>& call, Shortage shortage)
{
    std::set<std::string> endings;
    bool failed = true;
    for (std::size_t granted = 0; failed; ++granted)
        endings.insert(endingOf(call, granted, shortage, failed));
    return endings;
}

TEST(MessageWithoutMemory, IsShorter)
{
    const auto caption = createCaptionItem(1000, 2000, {{"en", "a"}});
    const auto header = createHeader();
    const auto document = createDocument();
    const std::string reason = "not after the start, 1000" + outOfRange;
    const std::set<std::string> ofTime = {"setEnd(500): " + reason, "setEnd: " + reason,
                                          "setEnd(500): " + unexplained, "setEnd: " + unexplained};
    const std::set<std::string> ofDocument = {
        "writeString: the document has no header" + outOfRange, "writeString: " + unexplained};
    const auto setEnd = [&] { checked(caption).setEnd(500); };
    const auto write = [&] { static_cast<void>(checked(document).writeString()); };
    for (const auto& [call, messages] :
         {std::pair{std::function<void()>(setEnd), ofTime}, {write, ofDocument}}) {
        const std::string full = saidBy(call);
        for (const auto shortage : {Shortage::Once, Shortage::Lasting}) {
            const auto endings = endingsOf(call, shortage);
            EXPECT_EQ(1U, endings.count(full));
            EXPECT_LT(1U, endings.size());
            for (const std::string& ending : endings)
                EXPECT_TRUE(messages.count(ending) != 0 ||
                            (ending == "std::bad_alloc" && shortage == Shortage::Lasting) ||
                            ending.find("ZelData_OutOfMemory (0x80000005)") != std::string::npos)
                    << ending;
        }
        EXPECT_EQ(ZelData_InvalidArgument, caption->getLastError());
    }
}

} // namespace
} // namespace ZelInterchangeData
