#include "robustness/Operation.h"
#include "robustness/Subjects.h"

namespace ZelInterchangeData {

namespace {

using U = ZelDataUtilities;

/// Adds a function; it returns its results in the arguments.
Operation& add(OperationList& list, const std::string& name, ZelDataResult_tags (*act)(Outs&))
{
    list.push_back({name, [act] { return Subject{nullptr, act, [] { return std::string(); }}; }});
    return list.back();
}

/// Adds a function that returns a text.
template <class Function>
void addText(OperationList& list, const std::string& name, Function function)
{
    list.push_back({"ZelDataUtilities::" + name, [function] {
                        return Subject{nullptr,
                                       [function](Outs& outs) {
                                           outs.text = function();
                                           return ZelData_Ok;
                                       },
                                       [] { return std::string(); }};
                    }});
    list.back().letsThrough();
}

void addDataFactories(OperationList& list)
{
    const std::string of = "ZelDataUtilities::";
    add(list, of + "createHeaderData",
        [](Outs& o) { return U::createHeaderData(&o.header.object); });
    add(list, of + "createCaptionItemData",
        [](Outs& o) { return U::createCaptionItemData(&o.caption.object); });
    add(list, of + "createCaptionData",
        [](Outs& o) { return U::createCaptionData(&o.captions.object); });
    add(list, of + "createTocItemData",
        [](Outs& o) { return U::createTocItemData(&o.entry.object); });
    add(list, of + "createTocData", [](Outs& o) { return U::createTocData(&o.toc.object); });
    add(list, of + "createScreenTextItemData",
        [](Outs& o) { return U::createScreenTextItemData(&o.screenTextItem.object); });
    add(list, of + "createScreenTextData",
        [](Outs& o) { return U::createScreenTextData(&o.screenText.object); });
}

void addFormatterFactories(OperationList& list)
{
    static constexpr auto xmp = ZelDataFormat_Xmp;
    const std::string of = "ZelDataUtilities::";
    add(list, of + "createHeaderFormatter",
        [](Outs& o) { return U::createHeaderFormatter(&o.headerFormatter.object, xmp); });
    add(list, of + "createCaptionFormatter",
        [](Outs& o) { return U::createCaptionFormatter(&o.captionFormatter.object, xmp); });
    add(list, of + "createTocFormatter",
        [](Outs& o) { return U::createTocFormatter(&o.tocFormatter.object, xmp); });
    add(list, of + "createScreenTextFormatter",
        [](Outs& o) { return U::createScreenTextFormatter(&o.screenTextFormatter.object, xmp); });
}

/// Old Church Slavonic has names too long for a string to hold them without an allocation.
void addCodes(OperationList& list)
{
    const std::string of = "ZelDataUtilities::";
    add(list, of + "englishNameForLanguage", [](Outs& o) {
        static const std::string id = "cu";
        return U::englishNameForLanguage(id, o.shortText);
    });
    add(list, of + "nativeNameForLanguage", [](Outs& o) {
        static const std::string id = "cu";
        return U::nativeNameForLanguage(id, o.shortText);
    });
    add(list, of + "isValidLanguage", [](Outs& o) { return U::isValidLanguage(o.id); });
    add(list, of + "isValidLanguage|in capital letters", [](Outs&) {
        static const std::string id = "IS";
        return U::isValidLanguage(id);
    });
    add(list, of + "verifyUtf8Format", [](Outs& o) { return U::verifyUtf8Format(o.text, true); });
    add(list, of + "countLinesInUTF8", [](Outs& o) {
        o.number = U::countLinesInUTF8(o.text);
        return ZelData_Ok;
    });
}

void addTexts(OperationList& list)
{
    addText(list, "stripUnsupportedCharacters",
            [] { return U::stripUnsupportedCharacters(longText); });
    addText(list, "htmlTagsToText", [] { return U::htmlTagsToText(longText); });
    addText(list, "htmlTagsFromText", [] { return U::htmlTagsFromText(longText); });
    addText(list, "getVerticalAlignment", [] { return U::getVerticalAlignment(ZelAlignTop); });
    addText(list, "getHorizontalAlignment", [] { return U::getHorizontalAlignment(ZelAlignLeft); });
    addText(list, "getValueString(float)", [] { return U::getValueString(0.5F); });
    addText(list, "getValueString(unsigned long long)",
            [] { return U::getValueString(static_cast<unsigned long long>(-1)); });
    addText(list, "getValueString(unsigned long)",
            [] { return U::getValueString(static_cast<unsigned long>(-1)); });
    addText(list, "getRateString", [] { return U::getRateString(static_cast<unsigned long>(-1)); });
    addText(list, "getVersionString",
            [] { return U::getVersionString(static_cast<unsigned long>(-1)); });
    addText(list, "getDateString", [] {
        long march5 = 1236262029;
        return U::getDateString(&march5);
    });
}

/// The sets lack texts and are out of order.
void addFindings(OperationList& list)
{
    const auto name = [](const char* set) {
        return "findProblems(const " + std::string(set) + "&, std::vector<ZelDataFinding>&)";
    };
    add(list, name("i_ZelDataCaptions"), [](Outs& o) {
        thread_local const auto captions = filledCaptions();
        return findProblems(*captions, o.findings);
    });
    add(list, name("i_ZelDataToc"), [](Outs& o) {
        thread_local const auto toc = filledToc();
        return findProblems(*toc, o.findings);
    });
    add(list, name("i_ZelDataScreenText"), [](Outs& o) {
        thread_local const auto screenText = filledScreenText();
        return findProblems(*screenText, o.findings);
    });
    add(list, "describe", [](Outs& o) {
        thread_local const auto findings = [] {
            std::vector<ZelDataFinding> found;
            EXPECT_EQ(ZelData_Ok, findProblems(*filledCaptions(), found));
            return found;
        }();
        o.text = describe(findings.front());
        return ZelData_Ok;
    }).letsThrough();
}

} // namespace

void addUtilityOperations(OperationList& list)
{
    addDataFactories(list);
    addFormatterFactories(list);
    addCodes(list);
    addTexts(list);
    addFindings(list);
    add(list, "libraryVersion", [](Outs& o) {
        o.text = getValueString(libraryVersion());
        return ZelData_Ok;
    }).letsThrough();
    add(list, "getValueString", [](Outs& o) {
        o.text = getValueString(-9223372036854775807L);
        return ZelData_Ok;
    }).letsThrough();
    add(list, "ZELDataCreator::createInterchangeData", [](Outs& o) {
        try {
            o.document.object = ZELDataCreator::createInterchangeData();
            return ZelData_Ok;
        } catch (const ZelDataException&) {
            return ZelData_OutOfMemory; // so that it can be treated as the factories are
        }
    });
}

} // namespace ZelInterchangeData
