/// @file
/// The arguments of a language list, for every class that has one.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_LANGUAGESTRINGS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_LANGUAGESTRINGS_H

#include "hostile/StringParameter.h"

namespace ZelInterchangeData {

/// The texts with the last one first.
inline Texts lastFirst(const Texts& texts)
{
    Texts ids = withoutLast(texts);
    ids.insert(ids.begin(), texts.back());
    return ids;
}

/// Adds what is looked for in @p languages, "fr" and "de".
template <class Object>
void addLanguageLookups(StringParameters& list, const std::string& of,
                        const Kept<Object>& languages, ZelDataResult_tags codeForAbsent)
{
    addLookup<Object>(list, of + "removeLanguage 1", languages,
                      {doing(&Object::removeLanguage), {codeForAbsent}, {ZelData_Ok}, withoutLast});
    addLookup<Object>(
        list, of + "doesLanguageExist 1", languages,
        {asking(&Object::doesLanguageExist), {ZelData_Ok, "no"}, {ZelData_Ok, "yes"}});
    // Asks for the text first, instead of the last language.
    const auto reorder = [](Object& object, const std::string& id, std::string& /*found*/) {
        Texts ids = delivered<i_ZelDataLanguage>(object, &Object::getOrderedLanguageIDs);
        ids.back() = id;
        return object.setOrderedLanguageIDs(lastFirst(ids));
    };
    addLookup<Object>(list, of + "setOrderedLanguageIDs 1", languages,
                      {reorder, {ZelData_InvalidArgument}, {ZelData_Ok}, lastFirst});
}

/// Adds the arguments of a language list. @p make gives an object without languages.
template <class Object>
void addLanguageStrings(StringParameters& list, const std::string& of, const Make<Object>& make,
                        ZelDataResult_tags codeForAbsent)
{
    Kept<Object> languages = {make, &Object::addLanguage,
                              delivering(&Object::getOrderedLanguageIDs), Rule::Language};
    addField(list, of + "addLanguage 1", languages, {Treatment::NotWritten, Former::Stays});
    languages.make = [languages] { return holding(languages, {"fr", "de"}); };
    addLanguageLookups(list, of, languages, codeForAbsent);
    addOut(list, of + "getOrderedLanguageIDs 1", languages.make, &Object::getOrderedLanguageIDs,
           Texts{"fr", "de"});
    addOut(list, of + "getLanguageDisplayNames 1", languages.make, &Object::getLanguageDisplayNames,
           Texts{"French", "German"});
    addOut(list, of + "getLanguageNativeDisplayNames 1", languages.make,
           &Object::getLanguageNativeDisplayNames, Texts{"fran\u00E7ais", "Deutsch"});
}

} // namespace ZelInterchangeData

#endif
