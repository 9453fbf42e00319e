/// @file
/// Objects of the library whose operations can be made to fail.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILING_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILING_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// Called before each operation of every such object in this thread, unless it is empty.
inline std::function<void()>& beforeEachCall()
{
    static thread_local std::function<void()> called;
    return called;
}

/// A @p Base that fails where a test wants it. A class that derives from it overrides operations and
/// passes each through run(). It counts the living objects of its kind.
template <class Base>
class Failing : public Base {
public:
    using Own = Base;

    Failing() { ++alive(); }
    Failing(const Failing&) = delete;
    Failing& operator=(const Failing&) = delete;
    ~Failing() override { --alive(); }

    /// Makes call number @p nth of @p operation only return @p returned; from then on the last error
    /// is @p lastError.
    void failAt(std::string operation, ZelDataResult_tags returned, ZelDataResult_tags lastError,
                int nth = 1)
    {
        actAt(
            std::move(operation),
            [this, returned, lastError] {
                tripped_ = true;
                lastError_ = lastError;
                return returned;
            },
            nth);
    }

    /// Makes call number @p nth of @p operation throw @p exception.
    template <class Exception>
    void throwAt(std::string operation, Exception exception, int nth = 1)
    {
        actAt(
            std::move(operation),
            [exception = std::move(exception)]() -> ZelDataResult_tags { throw exception; }, nth);
    }

    ZelDataResult_tags getLastError() const override
    {
        return tripped_ ? lastError_ : Base::getLastError();
    }

    /// The code that the library stored, whatever getLastError() returns.
    ZelDataResult_tags storedError() const { return Base::getLastError(); }

    /// From now on a getter delivers its value before it fails.
    void handOutBeforeFailing() { handsOut_ = true; }

    /// The operations that were called so far, in order.
    const std::vector<std::string>& calls() const { return calls_; }

    /// The number of living objects.
    static long& alive()
    {
        static long count = 0;
        return count;
    }

protected:
    template <class Operation>
    ZelDataResult_tags run(const char* name, Operation&& operation) const
    {
        if (beforeEachCall()) beforeEachCall()();
        calls_.emplace_back(name);
        if (name != operation_ || --remaining_ != 0) return operation();
        return action_();
    }
    template <class Operation>
    ZelDataResult_tags runGetter(const char* name, Operation&& operation) const
    {
        if (!handsOut_) return run(name, operation);
        return run(name, [code = operation()] { return code; });
    }

private:
    void actAt(std::string operation, std::function<ZelDataResult_tags()> action, int nth)
    {
        operation_ = std::move(operation);
        action_ = std::move(action);
        remaining_ = nth;
    }

    std::string operation_;
    std::function<ZelDataResult_tags()> action_;
    mutable int remaining_ = 0;
    mutable std::vector<std::string> calls_;
    bool handsOut_ = false;
    bool tripped_ = false;
    ZelDataResult_tags lastError_ = ZelData_Ok;
};

} // namespace ZelInterchangeData

#endif
