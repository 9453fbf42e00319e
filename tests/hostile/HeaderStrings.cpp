#include "hostile/LanguageStrings.h"

namespace ZelInterchangeData {

namespace {

using H = i_ZelDataHeader;

const std::string of = "ZelDataHeader::";

void addProperties(StringParameters& list)
{
    const auto add = [&list](const char* name, auto set, auto get, Treatment treatment) {
        addProperty<H>(list, of, name, plainHeader, set, get, treatment);
    };
    add("AppName", &H::setAppName, &H::getAppName, Treatment::Escaped);
    add("AppVersion", &H::setAppVersion, &H::getAppVersion, Treatment::Escaped);
    add("Title", &H::setTitle, &H::getTitle, Treatment::Escaped);
    add("Creator", &H::setCreator, &H::getCreator, Treatment::AsGiven);
    add("Description", &H::setDescription, &H::getDescription, Treatment::Escaped);
}

void addKeywords(StringParameters& list)
{
    const Kept<H> keywords = {plainHeader,
                              [](H& h, const std::string& text) {
                                  return h.setKeywords({text, "last"});
                              },
                              [](const H& h) {
                                  const Texts texts = delivered(h, &H::getKeywords);
                                  EXPECT_TRUE(texts.empty() || texts.back() == "last");
                                  return texts.empty() ? texts : withoutLast(texts);
                              }};
    addField(list, of + "setKeywords 1", keywords, {Treatment::Escaped});
    addOut<H>(
        list, of + "getKeywords 1", [keywords] { return holding(keywords, {"one"}); },
        &H::getKeywords, Texts{"one", "last"});
}

void addContentNames(StringParameters& list)
{
    Kept<H> names = {plainHeader, &H::addContentName, delivering(&H::getContentNames), Rule::Utf8};
    addField(list, of + "addContentName 1", names, {Treatment::Escaped, Former::Stays});
    names.make = [names] { return holding(names, {"one", "two"}); };
    addOut(list, of + "getContentNames 1", names.make, &H::getContentNames, Texts{"one", "two"});
    addLookup<H>(list, of + "removeContentName 1", names,
                 {doing(&H::removeContentName), {ZelData_WarnNoChange}, {ZelData_Ok}, withoutLast});
    addLookup<H>(list, of + "doesContentNameExist 1", names,
                 {asking(&H::doesContentNameExist), {ZelData_Ok, "no"}, {ZelData_Ok, "yes"}});
}

} // namespace

void addHeaderStrings(StringParameters& list)
{
    addLanguageStrings<H>(list, of, plainHeader, ZelData_WarnNoChange);
    addProperties(list);
    addKeywords(list);
    addContentNames(list);
}

} // namespace ZelInterchangeData
