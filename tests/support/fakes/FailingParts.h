/// @file
/// Operations that several classes have under the same names, each of which can fail. Each part
/// derives from `Failing` or from another part.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGPARTS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGPARTS_H

#include "support/fakes/Failing.h"
#include "support/fakes/Overrides.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An item: its validity, its text or texts as a whole and its start.
template <class Class>
class FailingItem : public Failing<Class> {
public:
    using Own = Class;

    ZelDataResult_tags isValid(bool deep) const override
    {
        return this->run("isValid", [&] { return Own::isValid(deep); });
    }
    OVERRIDE_ACTION(clearText)
    OVERRIDE_SETTER(setStart, long long)
    OVERRIDE_GETTER(getStart, long long)
};

/// The end and the duration of an item.
template <class Base>
class FailingSpan : public Base {
public:
    using Own = typename Base::Own;

    OVERRIDE_SETTER(setEnd, long long)
    OVERRIDE_SETTER(setDuration, long long)
    OVERRIDE_GETTER(getEnd, long long)
    OVERRIDE_GETTER(getDuration, long long)
};

/// The texts of an item by language.
template <class Base>
class FailingTexts : public Base {
    using Text = const std::string&;

public:
    using Own = typename Base::Own;

    ZelDataResult_tags setTextForLanguage(Text text, Text id) override
    {
        return this->run("setTextForLanguage", [&] { return Own::setTextForLanguage(text, id); });
    }
    OVERRIDE_SETTER(removeTextForLanguage, Text)
    OVERRIDE_GETTER(getLanguageIDs, std::vector<std::string>)
    ZelDataResult_tags getTextForLanguage(std::string& text, Text id) const override
    {
        return this->run("getTextForLanguage", [&] { return Own::getTextForLanguage(text, id); });
    }
};

/// The image of an item.
template <class Base>
class FailingImage : public Base {
public:
    using Own = typename Base::Own;

    OVERRIDE_SETTER(setImageFile, const std::string&)
    OVERRIDE_SETTER(setImageIndex, unsigned long)
    OVERRIDE_SETTER(setImageOffset, unsigned long long)
    OVERRIDE_GETTER(getImageFile, std::string)
    OVERRIDE_GETTER(getImageIndex, unsigned long)
    OVERRIDE_GETTER(getImageOffset, unsigned long long)
};

/// A collection: its validity and its frame rate.
template <class Class>
class FailingCollection : public Failing<Class> {
public:
    using Own = Class;

    ZelDataResult_tags isValid(bool deep) const override
    {
        return this->run("isValid", [&] { return Own::isValid(deep); });
    }
    OVERRIDE_SETTER(setFrameRate, unsigned long)
    OVERRIDE_GETTER(getFrameRate, unsigned long)
};

/// The languages of a collection, as far as copies use them.
template <class Base>
class FailingLanguages : public Base {
public:
    using Own = typename Base::Own;

    OVERRIDE_ACTION(clearLanguages)
    OVERRIDE_SETTER(addLanguage, const std::string&)
    OVERRIDE_GETTER(getOrderedLanguageIDs, std::vector<std::string>)
};

} // namespace ZelInterchangeData

#endif
