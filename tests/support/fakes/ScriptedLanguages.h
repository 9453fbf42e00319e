/// @file
/// A language list whose calls follow a script.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_SCRIPTEDLANGUAGES_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_SCRIPTEDLANGUAGES_H

#include "support/fakes/CallScript.h"
#include "support/fakes/Overrides.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A @p Base with a script for each operation that a copy of its languages calls.
template <class Base>
class ScriptedLanguages : public Base {
public:
    using Own = Base;

    void setLastError(ZelDataResult_tags code) const override
    {
        static_cast<void>(script.run("setLastError", [] { return ZelData_Ok; }));
        Base::setLastError(code);
    }
    ZelDataResult_tags getLastError() const override
    {
        return script.lastErrorOr(Base::getLastError());
    }
    /// The last error in the field of the base class, whatever getLastError() returns.
    ZelDataResult_tags storedCode() const { return Base::getLastError(); }

    OVERRIDE_ACTION(clearLanguages)
    OVERRIDE_SETTER(addLanguage, const std::string&)
    OVERRIDE_GETTER(getOrderedLanguageIDs, std::vector<std::string>)

    CallScript script;

protected:
    template <class Operation>
    ZelDataResult_tags run(const char* name, Operation&& operation) const
    {
        return script.run(name, operation);
    }
    /// A failing getter still delivers its value.
    template <class Operation>
    ZelDataResult_tags runGetter(const char* name, Operation&& operation) const
    {
        return script.run(name, [code = operation()] { return code; });
    }
};

} // namespace ZelInterchangeData

#endif
