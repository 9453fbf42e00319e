/// @file
/// Operations that several classes have under the same names, each of which can fail. Each part
/// derives from `Failing` or from another part.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGPARTS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGPARTS_H

#include "support/fakes/Failing.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An item: its validity, its text or texts as a whole and its start.
template <class Class>
class FailingItem : public Failing<Class> {
public:
    ZelDataResult_tags isValid(bool deep) const override
    {
        return this->run("isValid", [&] { return Class::isValid(deep); });
    }
    ZelDataResult_tags clearText() override
    {
        return this->run("clearText", [&] { return Class::clearText(); });
    }
    ZelDataResult_tags setStart(long long start) override
    {
        return this->run("setStart", [&] { return Class::setStart(start); });
    }
    ZelDataResult_tags getStart(long long& start) const override
    {
        return this->run("getStart", [&] { return Class::getStart(start); });
    }
};

/// The end and the duration of an item.
template <class Base>
class FailingSpan : public Base {
public:
    using Own = typename Base::Own;

    ZelDataResult_tags setEnd(long long end) override
    {
        return this->run("setEnd", [&] { return Own::setEnd(end); });
    }
    ZelDataResult_tags setDuration(long long duration) override
    {
        return this->run("setDuration", [&] { return Own::setDuration(duration); });
    }
    ZelDataResult_tags getEnd(long long& end) const override
    {
        return this->run("getEnd", [&] { return Own::getEnd(end); });
    }
    ZelDataResult_tags getDuration(long long& duration) const override
    {
        return this->run("getDuration", [&] { return Own::getDuration(duration); });
    }
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
    ZelDataResult_tags removeTextForLanguage(Text id) override
    {
        return this->run("removeTextForLanguage", [&] { return Own::removeTextForLanguage(id); });
    }
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override
    {
        return this->run("getLanguageIDs", [&] { return Own::getLanguageIDs(ids); });
    }
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

    ZelDataResult_tags setImageFile(const std::string& name) override
    {
        return this->run("setImageFile", [&] { return Own::setImageFile(name); });
    }
    ZelDataResult_tags setImageIndex(unsigned long index) override
    {
        return this->run("setImageIndex", [&] { return Own::setImageIndex(index); });
    }
    ZelDataResult_tags setImageOffset(unsigned long long offset) override
    {
        return this->run("setImageOffset", [&] { return Own::setImageOffset(offset); });
    }
    ZelDataResult_tags getImageFile(std::string& name) const override
    {
        return this->run("getImageFile", [&] { return Own::getImageFile(name); });
    }
    ZelDataResult_tags getImageIndex(unsigned long& index) const override
    {
        return this->run("getImageIndex", [&] { return Own::getImageIndex(index); });
    }
    ZelDataResult_tags getImageOffset(unsigned long long& offset) const override
    {
        return this->run("getImageOffset", [&] { return Own::getImageOffset(offset); });
    }
};

/// A collection: its validity and its frame rate.
template <class Class>
class FailingCollection : public Failing<Class> {
public:
    ZelDataResult_tags isValid(bool deep) const override
    {
        return this->run("isValid", [&] { return Class::isValid(deep); });
    }
    ZelDataResult_tags setFrameRate(unsigned long rate) override
    {
        return this->run("setFrameRate", [&] { return Class::setFrameRate(rate); });
    }
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override
    {
        return this->run("getFrameRate", [&] { return Class::getFrameRate(rate); });
    }
};

/// The languages of a collection, as far as copies use them.
template <class Base>
class FailingLanguages : public Base {
public:
    using Own = typename Base::Own;

    ZelDataResult_tags clearLanguages() override
    {
        return this->run("clearLanguages", [&] { return Own::clearLanguages(); });
    }
    ZelDataResult_tags addLanguage(const std::string& id) override
    {
        return this->run("addLanguage", [&] { return Own::addLanguage(id); });
    }
    ZelDataResult_tags getOrderedLanguageIDs(std::vector<std::string>& ids) const override
    {
        return this->run("getOrderedLanguageIDs", [&] { return Own::getOrderedLanguageIDs(ids); });
    }
};

} // namespace ZelInterchangeData

#endif
