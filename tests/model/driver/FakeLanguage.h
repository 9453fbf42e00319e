/// @file
/// A language list that checks nothing: a fake of its own and the base of fakes that have one.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_FAKELANGUAGE_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_FAKELANGUAGE_H

#include "Fake.h"

#include "ZelInterchangeData/i_ZelDataLanguage.h"

#include <algorithm>
#include <string>
#include <vector>

namespace model {

using Texts = std::vector<std::string>;

/// Whether @p values holds @p value.
inline bool holds(const Texts& values, const std::string& value)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

/// Removes the first @p value from @p values.
inline void removeFirst(Texts& values, const std::string& value)
{
    const auto found = std::find(values.begin(), values.end(), value);
    if (found != values.end()) values.erase(found);
}

/// The language operations of a fake of @p Interface.
template <class Interface>
class FakeLanguageOperations : public Fake<Interface> {
public:
    ZelDataResult_tags clearLanguages() override
    {
        return this->call("clearLanguages", this->doing([&] { languages_.clear(); }));
    }
    ZelDataResult_tags addLanguage(const std::string& id) override
    {
        return this->call("addLanguage", this->doing([&] { languages_.push_back(id); }),
                          notedList(id));
    }
    ZelDataResult_tags removeLanguage(const std::string& id) override
    {
        return this->call("removeLanguage", this->doing([&] { removeFirst(languages_, id); }),
                          notedList(id));
    }
    ZelDataResult_tags setOrderedLanguageIDs(const Texts& ids) override
    {
        return this->put("setOrderedLanguageIDs", languages_, ids);
    }
    ZelDataResult_tags getOrderedLanguageIDs(Texts& ids) const override
    {
        return this->fetch("getOrderedLanguageIDs", languages_, ids);
    }
    ZelDataResult_tags getLanguageCount(unsigned long& count) const override
    {
        return this->call("getLanguageCount", this->doing([&] {
            count = static_cast<unsigned long>(languages_.size());
        }));
    }
    ZelDataResult_tags getLanguageDisplayNames(Texts& names) const override
    {
        return this->fetch("getLanguageDisplayNames", languages_, names);
    }
    ZelDataResult_tags getLanguageNativeDisplayNames(Texts& names) const override
    {
        return this->fetch("getLanguageNativeDisplayNames", languages_, names);
    }
    ZelDataResult_tags doesLanguageExist(std::string& id, bool& exists) const override
    {
        return this->call("doesLanguageExist", this->doing([&] { exists = holds(languages_, id); }),
                          notedList(id));
    }

protected:
    Texts languages_;
};

/// A language list alone.
class FakeLanguage : public FakeLanguageOperations<ZelInterchangeData::i_ZelDataLanguage> {};

} // namespace model

#endif
