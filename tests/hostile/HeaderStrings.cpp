#include "hostile/LanguageStrings.h"

namespace ZelInterchangeData {

namespace {

using Header = i_ZelDataHeader;
using Set = ZelDataResult_tags (Header::*)(const std::string&);
using Get = ZelDataResult_tags (Header::*)(std::string&) const;

const std::string of = "ZelDataHeader::";

/// A property, which may be any bytes, and its delivery.
template <Set set, Get get>
void addProperty(StringParameters& list, const std::string& name, Treatment treatment)
{
    addField<Header>(list, {of + "set" + name + " 1", plainHeader,
                            [](Header& h, const std::string& text) { return (h.*set)(text); },
                            [](const Header& h) {
                                std::string text;
                                EXPECT_EQ(ZelData_Ok, (h.*get)(text));
                                return Texts{text};
                            },
                            Rule::Anything, treatment});
    addOut<Header>(
        list, of + "get" + name + " 1",
        [] {
            auto header = plainHeader();
            EXPECT_EQ(ZelData_Ok, (*header.*set)("value"));
            return header;
        },
        [](Header& h, std::string& out) { return (h.*get)(out); }, "value");
}

Texts keywordsOf(const Header& header)
{
    Texts keywords;
    EXPECT_EQ(ZelData_Ok, header.getKeywords(keywords));
    return keywords;
}

Texts contentNamesOf(const Header& header)
{
    Texts names;
    EXPECT_EQ(ZelData_Ok, header.getContentNames(names));
    return names;
}

std::unique_ptr<Header> headerWithLists()
{
    auto header = plainHeader();
    EXPECT_EQ(ZelData_Ok, header->setKeywords({"one", "two"}));
    EXPECT_EQ(ZelData_Ok, header->addContentName("one"));
    EXPECT_EQ(ZelData_Ok, header->addContentName("two"));
    return header;
}

void addKeywords(StringParameters& list)
{
    addField<Header>(list, {of + "setKeywords 1", plainHeader,
                            [](Header& h, const std::string& text) {
                                return h.setKeywords({text, "last"});
                            },
                            [](const Header& h) {
                                Texts keywords = keywordsOf(h);
                                EXPECT_TRUE(keywords.empty() || keywords.back() == "last");
                                return keywords.empty() ? keywords : withoutLast(keywords);
                            },
                            Rule::Anything, Treatment::Escaped});
    addListOut<Header>(list, of + "getKeywords 1", headerWithLists,
                       [](Header& h, Texts& out) { return h.getKeywords(out); }, {"one", "two"});
}

ZelDataResult_tags addName(Header& header, const std::string& name)
{
    return header.addContentName(name);
}

void addContentNames(StringParameters& list)
{
    addField<Header>(list, {of + "addContentName 1", plainHeader, addName, contentNamesOf,
                            Rule::Utf8, Treatment::Escaped, true});
    addListOut<Header>(list, of + "getContentNames 1", headerWithLists,
                       [](Header& h, Texts& out) { return h.getContentNames(out); },
                       {"one", "two"});
    addLookup<Header>(list, {of + "removeContentName 1",
                             headerWithLists,
                             addName,
                             [](Header& h, const std::string& name, std::string& /*found*/) {
                                 return h.removeContentName(name);
                             },
                             contentNamesOf,
                             Rule::Utf8,
                             {ZelData_WarnNoChange, "before"},
                             {ZelData_Ok, "before"},
                             withoutLast});
    addLookup<Header>(list, {of + "doesContentNameExist 1",
                             headerWithLists,
                             addName,
                             [](Header& h, const std::string& name, std::string& found) {
                                 std::string asked = name;
                                 bool exists = false;
                                 const auto code = h.doesContentNameExist(asked, exists);
                                 EXPECT_EQ(name, asked);
                                 return answered(code, exists, found);
                             },
                             contentNamesOf,
                             Rule::Utf8,
                             {ZelData_Ok, "no"},
                             {ZelData_Ok, "yes"}});
}

} // namespace

void addHeaderStrings(StringParameters& list)
{
    using H = Header;
    addLanguageStrings<Header, plainHeader>(list, of, ZelData_WarnNoChange);
    addProperty<&H::setAppName, &H::getAppName>(list, "AppName", Treatment::Escaped);
    addProperty<&H::setAppVersion, &H::getAppVersion>(list, "AppVersion", Treatment::Escaped);
    addProperty<&H::setTitle, &H::getTitle>(list, "Title", Treatment::Escaped);
    addProperty<&H::setCreator, &H::getCreator>(list, "Creator", Treatment::AsGiven);
    addProperty<&H::setDescription, &H::getDescription>(list, "Description", Treatment::Escaped);
    addKeywords(list);
    addContentNames(list);
}

} // namespace ZelInterchangeData
