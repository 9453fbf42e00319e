#include "hostile/HostileDocuments.h"

#include "header/ScriptedHeader.h"
#include "hostile/HostileTexts.h"
#include "hostile/PacketGenerator.h"
#include "support/Checks.h"
#include "support/Dice.h"
#include "support/TextRules.h"
#include "support/fakes/FailingCaptions.h"
#include "support/fakes/FailingScreenText.h"
#include "support/fakes/FailingToc.h"

#include <limits>

namespace ZelInterchangeData {

namespace {

using Document = i_ZelInterchangeDataCore;
using Strings = std::vector<std::string>;

void ignore(std::initializer_list<ZelDataResult_tags> /*codes*/) {}

/// Hostile texts that do not take long to write.
const Strings& shortTexts()
{
    static const Strings texts = [] {
        Strings all;
        for (const HostileText& text : hostileTexts()) {
            if (text.bytes.size() < 1000) all.push_back(text.bytes);
        }
        return all;
    }();
    return texts;
}

/// Spoils values, each with a chance of one in so many.
class Spoiler {
public:
    Spoiler(Dice& dice, std::size_t chance) : dice_(dice), chance_(chance) {}

    bool strikes() { return dice_.once(chance_); }

    void spoil(std::string& text)
    {
        if (strikes()) text.insert(dice_.below(text.size() + 1), dice_.one(shortTexts()));
    }

    /// A text that is written as given is often escaped before.
    void spoilGiven(std::string& text)
    {
        if (dice_.once(3)) text += markupOf(dice_.one(shortTexts()).substr(0, 1), false) + "&#65;";
        spoil(text);
    }

    void spoil(Strings& texts)
    {
        for (std::string& text : texts)
            spoil(text);
    }

    void spoil(TextsByLanguage& texts)
    {
        TextsByLanguage spoiled;
        for (const auto& [language, text] : texts) {
            std::string id = language;
            if (strikes()) spoil(id);
            spoil(spoiled[id] = text);
            if (strikes()) spoiled[id] += "\n\n\n\n\n";
        }
        texts = spoiled;
    }

    template <class Number>
    void spoil(Number& number)
    {
        static const std::vector<Number> extremes = {0, 1, std::numeric_limits<Number>::max()};
        if (strikes()) number = dice_.one(extremes);
    }

private:
    Dice& dice_;
    std::size_t chance_;
};

void spoilHeader(PacketModel& model, Spoiler& spoiler)
{
    spoiler.spoil(model.title);
    spoiler.spoilGiven(model.creator);
    spoiler.spoil(model.description);
    spoiler.spoil(model.appName);
    spoiler.spoil(model.appVersion);
    spoiler.spoil(model.keywords);
    spoiler.spoil(model.contentNames);
    spoiler.spoil(model.length);
    spoiler.spoil(model.width);
    spoiler.spoil(model.height);
}

ZelAlignment_tags anyAlignment(Dice& dice)
{
    return static_cast<ZelAlignment_tags>(dice.below(64));
}

float anyFraction(Dice& dice)
{
    static const std::vector<float> fractions = {0.0F,
                                                 1e-05F,
                                                 0.25F,
                                                 0.6F,
                                                 0.999F,
                                                 1.0F,
                                                 1.5F,
                                                 -1.0F,
                                                 1.0F / 3.0F,
                                                 123456789.0F,
                                                 std::numeric_limits<float>::quiet_NaN()};
    return dice.one(fractions);
}

ColorModel anyColor(Dice& dice)
{
    const float red = anyFraction(dice);
    const float green = anyFraction(dice);
    return {red, green, anyFraction(dice)};
}

void spoilCaptions(PacketModel& model, Dice& dice, Spoiler& spoiler)
{
    spoiler.spoilGiven(model.fontFamily);
    spoiler.spoil(model.fontSize);
    spoiler.spoil(model.captionRate);
    model.foreground = anyColor(dice);
    model.background = anyColor(dice);
    model.opacity = anyFraction(dice);
    for (CaptionModel& caption : model.captions) {
        spoiler.spoil(caption.start);
        spoiler.spoil(caption.duration);
        spoiler.spoil(caption.texts);
        caption.alignment = anyAlignment(dice);
    }
}

void spoilToc(PacketModel& model, Spoiler& spoiler)
{
    spoiler.spoil(model.tableImage);
    for (EntryModel& entry : model.entries) {
        spoiler.spoil(entry.start);
        spoiler.spoil(entry.image.file);
        spoiler.spoil(entry.texts);
    }
}

void spoilScreenText(PacketModel& model, Spoiler& spoiler)
{
    spoiler.spoil(model.screenTextRate);
    for (ScreenTextModel& text : model.screenTexts) {
        spoiler.spoil(text.start);
        spoiler.spoil(text.duration);
        spoiler.spoilGiven(text.image.file);
        spoiler.spoil(text.group);
        spoiler.spoil(text.text);
    }
}

void leaveSetsOut(PacketModel& model, Dice& dice)
{
    model.hasHeader = !dice.once(20);
    model.hasCaptions = !dice.once(5);
    model.hasToc = !dice.once(5);
    model.hasScreenText = !dice.once(5);
}

/// A code that the caller's object returns, or keeps as its last error.
ZelDataResult_tags anyCode(Dice& dice)
{
    static const std::vector<ZelDataResult_tags> codes = {
        ZelData_Ok, ZelData_WarnTiming, ZelData_InvalidArgument, ZelData_OutOfMemory};
    return dice.one(codes);
}

/// Fails or lies at one of @p operations.
template <class Fake>
void trouble(Fake& fake, Dice& dice, const Strings& operations)
{
    const auto returned = anyCode(dice);
    const auto kept = anyCode(dice);
    fake.failAt(dice.one(operations), returned, kept, 1 + static_cast<int>(dice.below(3)));
}

void setTroubledHeader(Document& document, const PacketModel& model, Dice& dice)
{
    ScriptedHeader header;
    mayRefuse(header.copyFrom(*headerOf(model, ignore)));
    if (dice.once(2)) {
        mayRefuse(header.addLanguage("en"));
        mayRefuse(header.addLanguage("de"));
        mayRefuse(header.setOrderedLanguageIDs({"de", "de"}));
    }
    header.script.keep(anyCode(dice));
    header.script.failAt(dice.one<std::string>(
        {"none", "getTitle", "getVideoWidth", "getContentNames", "getShowSearchBar"}));
    mayRefuse(document.setDataHeader(header));
}

void setTroubledCaptions(Document& document, const PacketModel& model, Dice& dice)
{
    FailingCaptions captions;
    mayRefuse(captions.copyFrom(*captionsOf(model, ignore)));
    if (dice.once(2)) {
        trouble(captions, dice,
                {"getFrameRate", "getFontFamily", "getFontSize", "getBackgroundColor",
                 "getOrderedLanguageIDs", "getCaptionItems"});
    } else {
        captions.prepareItems([&](FailingCaptionItem& item) {
            trouble(item, dice, {"getStart", "getEnd", "getLanguageIDs", "getTextForLanguage"});
        });
    }
    mayRefuse(document.setDataCaptions(captions));
}

void setTroubledToc(Document& document, const PacketModel& model, Dice& dice)
{
    FailingToc toc;
    mayRefuse(toc.copyFrom(*tocOf(model, ignore)));
    trouble(toc, dice, {"getImageFile", "getOrderedLanguageIDs", "getTocItems"});
    mayRefuse(document.setDataToc(toc));
}

void setTroubledScreenText(Document& document, const PacketModel& model, Dice& dice)
{
    FailingScreenText screenText;
    mayRefuse(screenText.copyFrom(*screenTextOf(model, ignore)));
    trouble(screenText, dice, {"getFrameRate", "getScreenTextItems"});
    mayRefuse(document.setDataScreenText(screenText));
}

/// Sets one of the sets again, from a class of the caller.
void setTroubled(Document& document, const PacketModel& model, Dice& dice)
{
    using Set = void (*)(Document&, const PacketModel&, Dice&);
    static const std::vector<Set> all = {setTroubledHeader, setTroubledCaptions, setTroubledToc,
                                         setTroubledScreenText};
    dice.one(all)(document, model, dice);
}

// Reading

/// The value that @p get returns for @p object.
template <class Object, class Value>
void read(const Object& object, ZelDataResult_tags (Object::*get)(Value&) const, Value& value)
{
    EXPECT_EQ(ZelData_Ok, (object.*get)(value));
}

template <class Item>
TextsByLanguage textsOf(const Item& item)
{
    TextsByLanguage texts;
    Strings ids;
    read(item, &Item::getLanguageIDs, ids);
    for (const std::string& id : ids)
        EXPECT_EQ(ZelData_Ok, item.getTextForLanguage(texts[id], id));
    return texts;
}

template <class Item>
void readImage(const Item& item, ImageModel& image)
{
    read(item, &Item::getImageFile, image.file);
    read(item, &Item::getImageIndex, image.index);
    read(item, &Item::getImageOffset, image.offset);
}

/// The items that @p get returns for @p collection.
template <class Collection, class Item>
std::vector<std::unique_ptr<Item>>
itemsOf(const Collection& collection,
        ZelDataResult_tags (Collection::*get)(std::vector<Item*>&) const)
{
    std::vector<Item*> items;
    read(collection, get, items);
    return std::vector<std::unique_ptr<Item>>(items.begin(), items.end());
}

void readHeader(const i_ZelDataHeader& header, PacketModel& model)
{
    using Header = i_ZelDataHeader;
    read(header, &Header::getTitle, model.title);
    read(header, &Header::getCreator, model.creator);
    read(header, &Header::getDescription, model.description);
    read(header, &Header::getAppName, model.appName);
    read(header, &Header::getAppVersion, model.appVersion);
    read(header, &Header::getKeywords, model.keywords);
    read(header, &Header::getContentNames, model.contentNames);
    read(header, &Header::getIPodExplicit, model.isExplicit);
    read(header, &Header::getShowSearchBar, model.showsSearch);
    read(header, &Header::getVideoLength, model.length);
    read(header, &Header::getVideoWidth, model.width);
    read(header, &Header::getVideoHeight, model.height);
}

void readCaptions(const i_ZelDataCaptions& captions, PacketModel& model)
{
    using Captions = i_ZelDataCaptions;
    using Item = i_ZelDataCaptionItem;
    read(captions, &Captions::getFontFamily, model.fontFamily);
    read(captions, &Captions::getFontSize, model.fontSize);
    read(captions, &Captions::getFrameRate, model.captionRate);
    auto& [red, green, blue] = model.foreground;
    EXPECT_EQ(ZelData_Ok, captions.getForegroundColor(red, green, blue));
    auto& [backRed, backGreen, backBlue] = model.background;
    EXPECT_EQ(ZelData_Ok, captions.getBackgroundColor(backRed, backGreen, backBlue));
    read(captions, &Captions::getBackgroundOpacity, model.opacity);
    for (const auto& item : itemsOf(captions, &Captions::getCaptionItems)) {
        CaptionModel& caption = model.captions.emplace_back();
        read<Item>(*item, &Item::getStart, caption.start);
        read<Item>(*item, &Item::getDuration, caption.duration);
        read<Item>(*item, &Item::getAlignment, caption.alignment);
        caption.texts = textsOf(*item);
    }
}

void readToc(const i_ZelDataToc& toc, PacketModel& model)
{
    read(toc, &i_ZelDataToc::getImageFile, model.tableImage);
    for (const auto& item : itemsOf(toc, &i_ZelDataToc::getTocItems)) {
        EntryModel& entry = model.entries.emplace_back();
        read<i_ZelDataTocItem>(*item, &i_ZelDataTocItem::getStart, entry.start);
        readImage(*item, entry.image);
        entry.texts = textsOf(*item);
    }
}

void readScreenText(const i_ZelDataScreenText& screenText, PacketModel& model)
{
    using Item = i_ZelDataScreenTextItem;
    read(screenText, &i_ZelDataScreenText::getFrameRate, model.screenTextRate);
    for (const auto& item : itemsOf(screenText, &i_ZelDataScreenText::getScreenTextItems)) {
        ScreenTextModel& text = model.screenTexts.emplace_back();
        read<Item>(*item, &Item::getStart, text.start);
        read<Item>(*item, &Item::getDuration, text.duration);
        readImage(*item, text.image);
        read<Item>(*item, &Item::getGroupId, text.group);
        read<Item>(*item, &Item::getText, text.text);
    }
}

/// Reads a set with @p get and @p readSet; returns false if it cannot be read.
template <class Set>
bool readSet(const Document& document, ZelDataResult_tags (Document::*get)(Set&) const,
             ZelDataResult_tags (*create)(Set**), void (*readSet)(const Set&, PacketModel&),
             bool& exists, PacketModel& model)
{
    const auto set = make(create);
    const auto code = (document.*get)(*set);
    exists = code != ZelData_NoData;
    if (code == ZelData_Ok) readSet(*set, model);
    return code == ZelData_Ok || code == ZelData_NoData;
}

} // namespace

std::unique_ptr<Document> hostileDocument(std::uint64_t seed)
{
    Dice dice(seed * 0xD1B54A32D192ED03U);
    PacketModel model = generatedModel(seed);
    static const std::vector<std::size_t> chances = {1000, 60, 60, 10, 2};
    Spoiler spoiler(dice, dice.one(chances));
    spoilHeader(model, spoiler);
    spoilCaptions(model, dice, spoiler);
    spoilToc(model, spoiler);
    spoilScreenText(model, spoiler);
    leaveSetsOut(model, dice);
    auto document = documentOf(model, ignore);
    if (dice.once(4)) setTroubled(*document, model, dice);
    return document;
}

std::optional<PacketModel> modelOf(const Document& document)
{
    using U = ZelDataUtilities;
    PacketModel model;
    const bool isRead =
        readSet(document, &Document::getDataHeader, U::createHeaderData, readHeader,
                model.hasHeader, model) &&
        readSet(document, &Document::getDataCaptions, U::createCaptionData, readCaptions,
                model.hasCaptions, model) &&
        readSet(document, &Document::getDataToc, U::createTocData, readToc, model.hasToc, model) &&
        readSet(document, &Document::getDataScreenText, U::createScreenTextData, readScreenText,
                model.hasScreenText, model);
    return isRead ? std::optional<PacketModel>(model) : std::nullopt;
}

} // namespace ZelInterchangeData
