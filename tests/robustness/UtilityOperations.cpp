#include "robustness/Operation.h"
#include "robustness/Subjects.h"

namespace ZelInterchangeData {

namespace {

using U = ZelDataUtilities;

constexpr auto xmp = ZelDataFormat_Xmp;

/// Adds functions, which belong to no object, to a list.
class Functions {
public:
    /// Their names begin with @p scope.
    explicit Functions(OperationList& list, std::string scope = "")
        : list_(list), scope_(std::move(scope))
    {
    }

    /// Adds a function with its arguments, each as argument() takes it.
    template <class Function, class... Arguments>
    Operation& add(const std::string& name, Function function, Arguments... arguments) const
    {
        const auto call = [function, arguments...](Outs& outs) {
            return function(argument(outs, arguments)...);
        };
        list_.push_back({scope_ + name, [call] {
                             return Subject{nullptr, call, [] { return std::string(); }};
                         }});
        return list_.back();
    }

    /// Adds a function that returns a text and lets the exception through.
    template <class Function, class... Arguments>
    void addText(const std::string& name, Function function, Arguments... arguments) const
    {
        const auto call = [function, arguments...](std::string& text) {
            text = function(arguments...);
            return ZelData_Ok;
        };
        add(name, call, &Outs::text).throws = true;
    }

private:
    OperationList& list_;
    std::string scope_;
};

void addFactories(const Functions& of)
{
    of.add("createHeaderData", U::createHeaderData, &Outs::header);
    of.add("createCaptionItemData", U::createCaptionItemData, &Outs::caption);
    of.add("createCaptionData", U::createCaptionData, &Outs::captions);
    of.add("createTocItemData", U::createTocItemData, &Outs::entry);
    of.add("createTocData", U::createTocData, &Outs::toc);
    of.add("createScreenTextItemData", U::createScreenTextItemData, &Outs::screenTextItem);
    of.add("createScreenTextData", U::createScreenTextData, &Outs::screenText);
    of.add("createHeaderFormatter", U::createHeaderFormatter, &Outs::headerFormatter, xmp);
    of.add("createCaptionFormatter", U::createCaptionFormatter, &Outs::captionFormatter, xmp);
    of.add("createTocFormatter", U::createTocFormatter, &Outs::tocFormatter, xmp);
    of.add("createScreenTextFormatter", U::createScreenTextFormatter, &Outs::screenTextFormatter,
           xmp);
}

void addCodes(const Functions& of)
{
    // Old Church Slavonic has names too long for a string to hold them without an allocation.
    const std::string slavonic = "cu";
    of.add("englishNameForLanguage", U::englishNameForLanguage, slavonic, &Outs::shortText);
    of.add("nativeNameForLanguage", U::nativeNameForLanguage, slavonic, &Outs::shortText);
    of.add("isValidLanguage", U::isValidLanguage, &Outs::id);
    of.add("isValidLanguage|in capital letters", U::isValidLanguage, std::string("IS"));
    of.add("verifyUtf8Format", U::verifyUtf8Format, &Outs::text, true);
    const auto countLines = [](const std::string& text, unsigned long& lines) {
        lines = U::countLinesInUTF8(text);
        return ZelData_Ok;
    };
    of.add("countLinesInUTF8", countLines, &Outs::text, &Outs::number);
}

void addTexts(const Functions& of)
{
    constexpr auto greatest = static_cast<unsigned long>(-1);
    of.addText("stripUnsupportedCharacters", U::stripUnsupportedCharacters, longText);
    of.addText("htmlTagsToText", U::htmlTagsToText, longText);
    of.addText("htmlTagsFromText", U::htmlTagsFromText, longText);
    of.addText("getVerticalAlignment", U::getVerticalAlignment, ZelAlignTop);
    of.addText("getHorizontalAlignment", U::getHorizontalAlignment, ZelAlignLeft);
    of.addText("getValueString(float)", [] { return U::getValueString(0.5F); });
    of.addText("getValueString(unsigned long long)",
               [] { return U::getValueString(static_cast<unsigned long long>(-1)); });
    of.addText("getValueString(unsigned long)", [] { return U::getValueString(greatest); });
    of.addText("getRateString", U::getRateString, greatest);
    of.addText("getVersionString", U::getVersionString, greatest);
    of.addText("getDateString", [] {
        long march5 = 1236262029;
        return U::getDateString(&march5);
    });
}

/// Adds the search for problems in a set that lacks texts and is out of order.
template <class Set>
void addFindProblems(const Functions& of, const std::string& set, Set& (*given)())
{
    ZelDataResult_tags (*const find)(const Set&, std::vector<ZelDataFinding>&) = findProblems;
    of.add("findProblems(const " + set + "&, std::vector<ZelDataFinding>&)", find, given,
           &Outs::findings);
}

std::unique_ptr<ZelDataFinding> firstFinding()
{
    std::vector<ZelDataFinding> found;
    EXPECT_EQ(ZelData_Ok, findProblems(*filledCaptions(), found));
    return std::make_unique<ZelDataFinding>(found.at(0));
}

} // namespace

void addUtilityOperations(OperationList& list)
{
    const Functions utilities(list, "ZelDataUtilities::");
    addFactories(utilities);
    addCodes(utilities);
    addTexts(utilities);
    const Functions of(list);
    addFindProblems(of, "i_ZelDataCaptions", given<filledCaptions>);
    addFindProblems(of, "i_ZelDataToc", given<filledToc>);
    addFindProblems(of, "i_ZelDataScreenText", given<filledScreenText>);
    const auto replace = [](const std::string& path) {
        int systemError = 0;
        return replaceFile(given<filledDocument<ZelDataCore>>(), path, systemError);
    };
    of.add("replaceFile", replace, &Outs::file);
    addFindProblems(of, "i_ZelDataHeader", given<filledHeader>);
    addFindProblems(of, "i_ZelInterchangeDataCore", given<filledDocument<ZelDataCore>>);
    of.addText("describe", [] { return describe(given<firstFinding>()); });
    of.addText("toString", [] { return std::string(toString(ZelDataFinding_MissingText)); });
    of.addText("severityOf",
               [] { return getValueString(static_cast<long>(severityOf(given<firstFinding>()))); });
    of.addText("codeOf", [] { return std::string(toString(codeOf(given<firstFinding>()))); });
    of.addText("libraryVersion", [] { return getValueString(libraryVersion()); });
    of.addText("getValueString", [] { return getValueString(-9223372036854775807L); });
    const auto create = [](i_ZelInterchangeDataCore** document) {
        try {
            *document = ZELDataCreator::createInterchangeData();
            return ZelData_Ok;
        } catch (const ZelDataException&) {
            return ZelData_OutOfMemory; // so that it can be treated as the factories are
        }
    };
    of.add("ZELDataCreator::createInterchangeData", create, &Outs::document);
}

} // namespace ZelInterchangeData
