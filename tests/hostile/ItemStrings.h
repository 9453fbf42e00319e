/// @file
/// The texts by language of captions and of entries, of one and of all.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_ITEMSTRINGS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_ITEMSTRINGS_H

#include "hostile/LanguageStrings.h"

namespace ZelInterchangeData {

template <class Item>
Texts textLanguagesOf(const Item& item)
{
    Texts ids;
    EXPECT_EQ(ZelData_Ok, item.getLanguageIDs(ids));
    return ids;
}

/// The English text, when there is one.
template <class Item>
Texts englishTextOf(const Item& item)
{
    std::string text;
    if (isError(item.getTextForLanguage(text, "en"))) return {};
    return {text};
}

/// Adds what an item takes to keep it.
template <class Item>
void addItemFields(StringParameters& list, const std::string& of, std::unique_ptr<Item> (*make)(),
                   Treatment ofText, Treatment ofLanguage)
{
    Field<Item> text = {of + "setTextForLanguage 1",
                        make,
                        [](Item& i, const std::string& t) { return i.setTextForLanguage(t, "en"); },
                        englishTextOf<Item>,
                        Rule::Utf8OfItem,
                        ofText};
    text.code = ZelData_WarnAlreadyExists;
    addField(list, text);
    addField<Item>(list,
                   {of + "setTextForLanguage 2", make,
                    [](Item& i, const std::string& id) { return i.setTextForLanguage("t", id); },
                    textLanguagesOf<Item>, Rule::LanguageOfItem, ofLanguage},
                   {});
}

/// Adds what an item looks for. @p make gives one with a text for "fr"; what is put comes before it.
template <class Item>
void addItemLookups(StringParameters& list, const std::string& of, std::unique_ptr<Item> (*make)())
{
    const auto put = [](Item& i, const std::string& id) { return i.setTextForLanguage("t", id); };
    addLookup<Item>(list, {of + "removeTextForLanguage 1",
                           make,
                           put,
                           [](Item& i, const std::string& id, std::string& /*found*/) {
                               return i.removeTextForLanguage(id);
                           },
                           textLanguagesOf<Item>,
                           Rule::LanguageOfItem,
                           {ZelData_NotFound, "before"},
                           {ZelData_Ok, "before"},
                           [](const Texts& texts) { return Texts{texts.back()}; }});
    addLookup<Item>(list, {of + "getTextForLanguage 2",
                           make,
                           put,
                           [](Item& i, const std::string& id, std::string& found) {
                               return i.getTextForLanguage(found, id);
                           },
                           textLanguagesOf<Item>,
                           Rule::LanguageOfItem,
                           {ZelData_InvalidArgument, "before"},
                           {ZelData_Ok, "t"}});
}

/// Adds what an item delivers.
template <class Item>
void addItemOuts(StringParameters& list, const std::string& of, std::unique_ptr<Item> (*make)())
{
    addListOut<Item>(list, of + "getLanguageIDs 1", make,
                     [](Item& i, Texts& out) { return i.getLanguageIDs(out); }, {"fr"});
    addOut<Item>(
        list, of + "getTextForLanguage 1", make,
        [](Item& i, std::string& out) { return i.getTextForLanguage(out, "fr"); }, "text");
}

/// Adds what an item of one text or several takes. @p makeItem gives one without any.
template <class Item, std::unique_ptr<Item> (*makeItem)()>
void addItemStrings(StringParameters& list, const std::string& of, Treatment ofText,
                    Treatment ofLanguage)
{
    const auto make = +[] {
        auto item = makeItem();
        EXPECT_EQ(ZelData_Ok, item->setTextForLanguage("text", "fr"));
        return item;
    };
    addItemFields<Item>(list, of, makeItem, ofText, ofLanguage);
    addItemLookups<Item>(list, of, make);
    addItemOuts<Item>(list, of, make);
}

} // namespace ZelInterchangeData

#endif
