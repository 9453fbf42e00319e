/// @file
/// A language list whose calls follow a script.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_SCRIPTEDLANGUAGES_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_SCRIPTEDLANGUAGES_H

#include "support/fakes/CallScript.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A @p Base in which the operations that copy its languages follow a script.
template <class Base>
class ScriptedLanguages : public Base {
public:
    void setLastError(ZelDataResult_tags code) const override
    {
        static_cast<void>(script.run("setLastError", [] { return ZelData_Ok; }));
        Base::setLastError(code);
    }
    ZelDataResult_tags getLastError() const override
    {
        return script.lastErrorOr(Base::getLastError());
    }
    /// The last error in the field of the base class, whatever getLastError() says.
    ZelDataResult_tags storedCode() const { return Base::getLastError(); }

    ZelDataResult_tags clearLanguages() override
    {
        return script.run("clearLanguages", [&] { return Base::clearLanguages(); });
    }
    ZelDataResult_tags addLanguage(const std::string& id) override
    {
        return script.run("addLanguage", [&] { return Base::addLanguage(id); });
    }
    /// A failing call delivers the list nevertheless.
    ZelDataResult_tags getOrderedLanguageIDs(std::vector<std::string>& ids) const override
    {
        const auto code = Base::getOrderedLanguageIDs(ids);
        return script.run("getOrderedLanguageIDs", [code] { return code; });
    }

    CallScript script;
};

} // namespace ZelInterchangeData

#endif
