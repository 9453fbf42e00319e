/// @file
/// The texts by language of one caption or entry and of a whole collection.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_ITEMSTRINGS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_ITEMSTRINGS_H

#include "hostile/StringParameter.h"

namespace ZelInterchangeData {

/// The English text, if there is one.
template <class Item>
Texts englishTextOf(const Item& item)
{
    std::string text;
    if (isError(item.getTextForLanguage(text, "en"))) return {};
    return {text};
}

/// Adds the arguments of an item that has texts by language. @p make gives one without any.
template <class Item>
void addItemStrings(StringParameters& list, const std::string& of, const Make<Item>& make,
                    Treatment ofText, Treatment ofLanguage)
{
    const Kept<Item> texts = {
        make, [](Item& i, const std::string& text) { return i.setTextForLanguage(text, "en"); },
        englishTextOf<Item>, Rule::Utf8OfItem};
    addField(list, of + "setTextForLanguage 1", texts, {ofText, Former::IsReplacedWithWarning});

    Kept<Item> languages = {
        make, [](Item& i, const std::string& id) { return i.setTextForLanguage("t", id); },
        delivering(&Item::getLanguageIDs), Rule::LanguageOfItem};
    addField(list, of + "setTextForLanguage 2", languages, {ofLanguage}, {});

    // What is put comes before "fr".
    languages.make = [languages] { return holding(languages, {"fr"}); };
    const auto last = [](const Texts& ids) { return Texts{ids.back()}; };
    addLookup<Item>(list, of + "removeTextForLanguage 1", languages,
                    {doing(&Item::removeTextForLanguage), {ZelData_NotFound}, {ZelData_Ok}, last});
    const auto look = [](Item& i, const std::string& id, std::string& found) {
        return i.getTextForLanguage(found, id);
    };
    addLookup<Item>(list, of + "getTextForLanguage 2", languages,
                    {look, {ZelData_InvalidArgument}, {ZelData_Ok, "t"}});
    addOut(list, of + "getLanguageIDs 1", languages.make, &Item::getLanguageIDs, Texts{"fr"});
    const auto get = [](const Item& i, std::string& out) {
        return i.getTextForLanguage(out, "fr");
    };
    addOut(list, of + "getTextForLanguage 1", languages.make, get, std::string("t"));
}

/// Adds the operations of a collection on its items for one language. @p makeItem gives an item
/// without any text, and @p items names the items.
template <class Kind, class Get>
void addItemsByLanguage(StringParameters& list, const std::string& of, const std::string& items,
                        const Make<typename Kind::Item>& makeItem, Get get)
{
    using Data = typename Kind::Data;
    using Item = typename Kind::Item;
    // Makes the only item one with a text in the language.
    const auto put = [makeItem](Data& data, const std::string& id) {
        EXPECT_EQ(ZelData_Ok, (data.*Kind::clear)());
        const auto item = makeItem();
        EXPECT_EQ(ZelData_Ok, item->setTextForLanguage("t", id));
        return (data.*Kind::add)(*item);
    };
    const auto languages = [](const Data& data) {
        Item* copy = nullptr;
        EXPECT_EQ(ZelData_Ok, (data.*Kind::at)(&copy, 0));
        return delivered(*std::unique_ptr<Item>(copy), &Item::getLanguageIDs);
    };
    const Make<Data> makeFrench = [put] {
        auto data = make(Kind::makeData);
        EXPECT_EQ(ZelData_Ok, put(*data, "fr"));
        return data;
    };
    const Kept<Data> kept = {makeFrench, put, languages, Rule::LanguageOfItem};
    addLookup<Data>(list, of + "remove" + items + "ForLanguage 1", kept,
                    {doing(Kind::removeLanguage), {ZelData_NotFound}, {ZelData_Ok}, none});
    const auto look = [get](Data& data, const std::string& id, std::string& /*found*/) {
        std::vector<Item*> found;
        const auto code = (data.*get)(found, id);
        EXPECT_TRUE(found.empty());
        return code;
    };
    addLookup<Data>(list, of + "get" + items + "ForLanguage 2", kept,
                    {look, {ZelData_NotImplemented}, {ZelData_NotImplemented}});
}

} // namespace ZelInterchangeData

#endif
