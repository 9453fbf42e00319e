/// @file
/// The texts that a language list takes, for every class that has one.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_LANGUAGESTRINGS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_LANGUAGESTRINGS_H

#include "hostile/StringParameter.h"

namespace ZelInterchangeData {

template <class Object>
Texts languagesOf(const Object& object)
{
    Texts ids;
    EXPECT_EQ(ZelData_Ok, object.getOrderedLanguageIDs(ids));
    return ids;
}

/// Adds the lookups in the list that @p make gives an object with; it holds "fr" and "de".
template <class Object>
void addLanguageLookups(StringParameters& list, const std::string& of,
                        std::unique_ptr<Object> (*make)(), ZelDataResult_tags codeForAbsent)
{
    const auto add = [](Object& o, const std::string& id) { return o.addLanguage(id); };
    addLookup<Object>(list, {of + "removeLanguage 1",
                             make,
                             add,
                             [](Object& o, const std::string& id, std::string& /*found*/) {
                                 return o.removeLanguage(id);
                             },
                             languagesOf<Object>,
                             Rule::Language,
                             {codeForAbsent, "before"},
                             {ZelData_Ok, "before"},
                             withoutLast});
    addLookup<Object>(list, {of + "doesLanguageExist 1",
                             make,
                             add,
                             [](Object& o, const std::string& id, std::string& found) {
                                 std::string asked = id;
                                 bool exists = false;
                                 const auto code = o.doesLanguageExist(asked, exists);
                                 EXPECT_EQ(id, asked);
                                 return answered(code, exists, found);
                             },
                             languagesOf<Object>,
                             Rule::Language,
                             {ZelData_Ok, "no"},
                             {ZelData_Ok, "yes"}});
}

/// Adds the order of the list that @p make gives an object with.
template <class Object>
void addLanguageOrder(StringParameters& list, const std::string& of,
                      std::unique_ptr<Object> (*make)())
{
    // The text that is there last is wanted first.
    addLookup<Object>(list, {of + "setOrderedLanguageIDs 1",
                             make,
                             [](Object& o, const std::string& id) { return o.addLanguage(id); },
                             [](Object& o, const std::string& id, std::string& /*found*/) {
                                 Texts ids = languagesOf(o);
                                 ids.pop_back();
                                 ids.insert(ids.begin(), id);
                                 return o.setOrderedLanguageIDs(ids);
                             },
                             languagesOf<Object>,
                             Rule::Language,
                             {ZelData_InvalidArgument, "before"},
                             {ZelData_Ok, "before"},
                             [](const Texts& texts) {
                                 Texts ids = withoutLast(texts);
                                 ids.insert(ids.begin(), texts.back());
                                 return ids;
                             }});
}

/// Adds the lists that are delivered.
template <class Object>
void addLanguageOuts(StringParameters& list, const std::string& of,
                     std::unique_ptr<Object> (*make)())
{
    addListOut<Object>(list, of + "getOrderedLanguageIDs 1", make,
                       [](Object& o, Texts& out) { return o.getOrderedLanguageIDs(out); },
                       {"fr", "de"});
    addListOut<Object>(list, of + "getLanguageDisplayNames 1", make,
                       [](Object& o, Texts& out) { return o.getLanguageDisplayNames(out); },
                       {"French", "German"});
    addListOut<Object>(list, of + "getLanguageNativeDisplayNames 1", make,
                       [](Object& o, Texts& out) { return o.getLanguageNativeDisplayNames(out); },
                       {"fran\xC3\xA7"
                        "ais",
                        "Deutsch"});
}

/// Adds all that a list of languages takes. @p makeEmpty gives an object without languages.
template <class Object, std::unique_ptr<Object> (*makeEmpty)()>
void addLanguageStrings(StringParameters& list, const std::string& of,
                        ZelDataResult_tags codeForAbsent)
{
    const auto make = +[] {
        auto object = makeEmpty();
        EXPECT_EQ(ZelData_Ok, object->addLanguage("fr"));
        EXPECT_EQ(ZelData_Ok, object->addLanguage("de"));
        return object;
    };
    addField<Object>(list, {of + "addLanguage 1", makeEmpty,
                            [](Object& o, const std::string& id) { return o.addLanguage(id); },
                            languagesOf<Object>, Rule::Language, Treatment::NotWritten, true});
    addLanguageLookups<Object>(list, of, make, codeForAbsent);
    addLanguageOrder<Object>(list, of, make);
    addLanguageOuts<Object>(list, of, make);
}

} // namespace ZelInterchangeData

#endif
