#include "Operations.h"

#include "util/LanguageCatalogue.h"
#include "xml/ZelDataXmlStream.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocFormatter.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"

namespace model {

using namespace ZelInterchangeData;
using U = ZelDataUtilities;

namespace {

/// A time, or "now" for the null pointer.
void dateString(Session& session)
{
    const std::string when = session.script().word();
    long seconds = when == "now" ? 0 : std::stol(when);
    session.answer(shown(U::getDateString(when == "now" ? nullptr : &seconds)));
}

std::string entryWord(const LanguageInfo& info)
{
    return shown(std::vector<std::string>{info.englishName, info.nativeName, info.code});
}

/// A lookup that returns a whole entry of the catalogue.
Session::Operation lookup(LanguageInfo (*body)(const std::string&))
{
    return [body](Session& session) {
        session.answer(entryWord(body(session.script().read<std::string>())));
    };
}

void addFactories(Operations& operations)
{
    operations.insert({
        {"U.createHeaderData", function(&U::createHeaderData)},
        {"U.createCaptionItemData", function(&U::createCaptionItemData)},
        {"U.createCaptionData", function(&U::createCaptionData)},
        {"U.createTocItemData", function(&U::createTocItemData)},
        {"U.createTocData", function(&U::createTocData)},
        {"U.createScreenTextItemData", function(&U::createScreenTextItemData)},
        {"U.createScreenTextData", function(&U::createScreenTextData)},
        {"U.createHeaderFormatter", function(&U::createHeaderFormatter)},
        {"U.createCaptionFormatter", function(&U::createCaptionFormatter)},
        {"U.createTocFormatter", function(&U::createTocFormatter)},
        {"U.createScreenTextFormatter", function(&U::createScreenTextFormatter)},
    });
}

void addTexts(Operations& operations)
{
    operations.insert({
        {"U.englishNameForLanguage", function(&U::englishNameForLanguage)},
        {"U.nativeNameForLanguage", function(&U::nativeNameForLanguage)},
        {"U.isValidLanguage", function(&U::isValidLanguage)},
        {"U.intForISO6391Code", function(&intForISO6391Code)},
        {"U.languageInfoISOCode", lookup(&languageInfoISOCode)},
        {"U.languagefromID", lookup(&languagefromID)},
        {"U.verifyUtf8Format", function(&U::verifyUtf8Format)},
        {"U.countLinesInUTF8", function(&U::countLinesInUTF8)},
        {"U.stripUnsupportedCharacters", function(&U::stripUnsupportedCharacters)},
        {"U.htmlTagsToText", function(&U::htmlTagsToText)},
        {"U.htmlTagsFromText", function(&U::htmlTagsFromText)},
        {"U.getVerticalAlignment", function(&U::getVerticalAlignment)},
        {"U.getHorizontalAlignment", function(&U::getHorizontalAlignment)},
        {"U.getSafeXmlString", function(&ZelDataXmlStream::getSafeXmlString)},
        {"U.replaceAll", function(&replaceAll)},
    });
}

} // namespace

void addFunctionOperations(Operations& operations)
{
    addFactories(operations);
    addTexts(operations);
    operations.insert({
        {"U.floatString", function<std::string, float>(&U::getValueString)},
        {"U.longString", function<std::string, long>(&ZelInterchangeData::getValueString)},
        {"U.unsignedLongString", function<std::string, unsigned long>(&U::getValueString)},
        {"U.unsignedLongLongString", function<std::string, unsigned long long>(&U::getValueString)},
        {"U.getRateString", function(&U::getRateString)},
        {"U.getVersionString", function(&U::getVersionString)},
        {"U.getDateString", dateString},
    });
}

} // namespace model
