/// @file
/// Logs the calls of a fake, and makes one of them fail.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_CALLSCRIPT_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_CALLSCRIPT_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// How a call fails.
enum class Misdeed { ReturnsCode, ThrowsBadAlloc, ThrowsOther };

/// A failing call returns one code while the last error is another one, so that a test notices a
/// caller that uses the wrong one.
class CallScript {
public:
    static constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
    static constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

    /// Logs all further calls into @p log.
    void logTo(std::vector<std::string>& log) { log_ = &log; }
    /// Makes the @p nth call of @p operation, counted from 1, fail.
    void failAt(std::string operation, Misdeed misdeed = Misdeed::ReturnsCode, int nth = 1)
    {
        operation_ = std::move(operation);
        misdeed_ = misdeed;
        callsLeft_ = nth;
    }
    /// Sets what getLastError() returns after the failing call.
    void keep(ZelDataResult_tags code) { kept_ = code; }

    /// Does @p work, or fails instead.
    template <class Work>
    ZelDataResult_tags run(const std::string& operation, Work&& work) const
    {
        if (log_ != nullptr) log_->push_back(operation);
        if (operation != operation_ || --callsLeft_ != 0) return std::forward<Work>(work)();
        failed_ = true;
        if (misdeed_ == Misdeed::ThrowsBadAlloc) throw std::bad_alloc();
        if (misdeed_ == Misdeed::ThrowsOther) throw std::runtime_error("a caller's own exception");
        return returnedCode;
    }

    /// The last error of the fake, when @p own is that of its base.
    ZelDataResult_tags lastErrorOr(ZelDataResult_tags own) const { return failed_ ? kept_ : own; }

private:
    std::vector<std::string>* log_ = nullptr;
    std::string operation_;
    Misdeed misdeed_ = Misdeed::ReturnsCode;
    ZelDataResult_tags kept_ = keptCode;
    mutable int callsLeft_ = 0;
    mutable bool failed_ = false;
};

} // namespace ZelInterchangeData

#endif
