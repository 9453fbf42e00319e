/// @file
/// What the fakes have in common: their notes, the call that goes wrong, and the last error.
///
/// Fakes are implementations of the interfaces as a caller might write them. They check nothing.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_FAKE_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_FAKE_H

#include "Script.h"

#include "ZelInterchangeData/i_ZelDataResult.h"

#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace model {

using ZelInterchangeData::ZelDataResult_tags;

/// What call number `at` does instead of its work; 0 for no call.
///
/// c: fails; d: does its work, then fails; h: hands out half of the items, then fails; b, x: throws
/// bad_alloc, something else; B, X: the same after handing out half of the items; l, m: fails, and
/// from then on getLastError() throws bad_alloc, something else; e, k: ends its thread, which exits
/// or is cancelled; E: exits after handing out half of the items; n: fails, and from then on
/// getLastError() ends its thread.
struct FakeScript {
    unsigned long at = 0;
    char mode = 'c';
    ZelDataResult_tags code = ZelInterchangeData::ZelData_Ok;
    ZelDataResult_tags last = ZelInterchangeData::ZelData_Ok;
    bool keepsOwn = false;
};

std::string noted(const std::string& value);
std::string noted(const std::vector<std::string>& values);
std::string noted(float value);
inline std::string noted(bool value)
{
    return value ? "1" : "0";
}
template <class T>
std::string noted(T value)
{
    return shown(value);
}

/// A list of arguments as it appears in the notes.
template <class T, class... Ts>
std::string notedList(const T& first, const Ts&... more)
{
    return "(" + noted(first) + (std::string() + ... + ("," + noted(more))) + ")";
}

/// The part of a fake that does not depend on its interface.
class FakeControl {
public:
    using Work = std::function<ZelDataResult_tags()>;
    using Notes = std::vector<std::string>;

    /// How many fakes there are.
    static int alive() { return alive_; }
    /// How many calls of all fakes went wrong as a script said.
    static unsigned long wentWrong() { return wentWrong_; }
    /// Whether the last script that was set can end a thread.
    static bool mayEndThread() { return mayEndThread_; }

    virtual ~FakeControl() { --alive_; }

    /// Notes calls in @p notes under @p name, or nowhere if it is null. Starts counting again.
    void begin(const std::string& name, Notes* notes);
    void setScript(const FakeScript& script);

protected:
    FakeControl() { ++alive_; }
    FakeControl(const FakeControl& other) : script_(other.script_) { ++alive_; }
    FakeControl& operator=(const FakeControl&) = delete;

    const std::string& name() const { return name_; }
    Notes* notes() const { return notes_; }
    bool keepsOwn() const { return script_.keepsOwn; }

    void note(const std::string& call) const;
    /// Notes the call, then does @p work or what the script says. @p half hands out half of the
    /// items.
    ZelDataResult_tags call(const std::string& operation, const Work& work,
                            const std::string& arguments = {},
                            const std::function<void()>& half = {}) const;
    void throwIfLastErrorDoes() const;
    /// Keeps @p code as the last error.
    virtual void keep(ZelDataResult_tags code) const = 0;

private:
    ZelDataResult_tags goWrong(const Work& work, const std::function<void()>& half) const;

    inline static int alive_ = 0;
    inline static unsigned long wentWrong_ = 0;
    inline static bool mayEndThread_ = false;

    std::string name_;
    Notes* notes_ = nullptr;
    FakeScript script_;
    mutable unsigned long calls_ = 0;
    mutable char lastErrorThrows_ = 0;
};

/// A fake of @p Interface. It keeps its last error in the interface's field or in its own.
template <class Interface>
class Fake : public Interface, public FakeControl {
public:
    void setLastError(ZelDataResult_tags code) const override
    {
        note("setLastError" + notedList(code));
        keep(code);
    }
    ZelDataResult_tags getLastError() const override
    {
        throwIfLastErrorDoes();
        return keepsOwn() ? own_ : Interface::getLastError();
    }

protected:
    /// Makes both last errors those of a new object.
    void forgetCodes()
    {
        Interface::setLastError(ZelInterchangeData::ZelData_Ok);
        own_ = ZelInterchangeData::ZelData_Ok;
    }
    void keep(ZelDataResult_tags code) const override
    {
        if (keepsOwn()) {
            own_ = code;
        } else {
            Interface::setLastError(code);
        }
    }
    template <class T, class V>
    ZelDataResult_tags put(const std::string& operation, T& field, const V& value)
    {
        return call(operation, doing([&] { field = value; }), notedList(value));
    }
    template <class T>
    ZelDataResult_tags fetch(const std::string& operation, const T& field, T& out) const
    {
        return call(operation, doing([&] { out = field; }));
    }
    ZelDataResult_tags done(const std::string& operation, const std::string& arguments = {}) const
    {
        return call(operation, doing([] {}), arguments);
    }
    template <class Action>
    static Work doing(Action action)
    {
        return [action] {
            action();
            return ZelInterchangeData::ZelData_Ok;
        };
    }

private:
    mutable ZelDataResult_tags own_ = ZelInterchangeData::ZelData_Ok;
};

} // namespace model

#endif
