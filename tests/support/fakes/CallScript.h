/// @file
/// The calls of a fake: written down, and one of them made to go wrong.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_CALLSCRIPT_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_CALLSCRIPT_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// How a call goes wrong.
enum class Misdeed { ReturnsCode, ThrowsBadAlloc, ThrowsOther };

/// A failing call returns one code while the last error is another one, so that a caller who takes
/// the wrong one of the two is noticed.
class CallScript {
public:
    static constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
    static constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

    /// Calls are written into @p log from now on.
    void logTo(std::vector<std::string>& log) { log_ = &log; }
    /// The @p nth call of @p operation, counted from 1, goes wrong.
    void failAt(std::string operation, Misdeed misdeed = Misdeed::ReturnsCode, int nth = 1)
    {
        operation_ = std::move(operation);
        misdeed_ = misdeed;
        callsLeft_ = nth;
    }
    /// What getLastError() says after the failing call.
    void keep(ZelDataResult_tags code) { kept_ = code; }

    /// Does @p work, or goes wrong instead.
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
