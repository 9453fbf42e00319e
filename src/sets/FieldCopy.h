/// @file
/// The get-and-set pairs of the copy operations.

#ifndef ZELINTERCHANGEDATA_SETS_FIELDCOPY_H
#define ZELINTERCHANGEDATA_SETS_FIELDCOPY_H

#include "util/Ending.h"

#include <type_traits>
#include <utility>

namespace ZelInterchangeData {

/// Copies fields one after another between two implementations of @p Interface, through their
/// virtual operations, until one fails. If a getter fails, ends with the source's last error; if a
/// setter fails, with the code that the caller chooses.
template <class Interface, class OnSetFailure>
class FieldCopy {
public:
    /// @param onSetFailure returns the code to end with; its argument is the code of the setter
    ///         that failed.
    FieldCopy(const Interface& source, Interface& target, OnSetFailure onSetFailure)
        : source_(source), target_(target), onSetFailure_(std::move(onSetFailure))
    {
    }

    /// Copies the next field, unless an earlier one failed.
    template <class Value, class Argument>
    FieldCopy& field(ZelDataResult_tags (Interface::*get)(Value&) const,
                     ZelDataResult_tags (Interface::*set)(Argument))
    {
        static_assert(std::is_same_v<Value, std::decay_t<Argument>>);
        if (ending_) return *this;
        Value value{};
        if (failed((source_.*get)(value))) {
            ending_ = source_.getLastError();
        } else if (const auto code = (target_.*set)(value); failed(code)) {
            ending_ = onSetFailure_(code);
        }
        return *this;
    }

    /// The result so far.
    [[nodiscard]] Ending ending() const { return ending_; }

private:
    const Interface& source_;
    Interface& target_;
    OnSetFailure onSetFailure_;
    Ending ending_;
};

} // namespace ZelInterchangeData

#endif
