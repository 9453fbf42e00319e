/// @file
/// Operations on the objects of two worlds: memory runs out in one of them only.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_CALLS_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_CALLS_H

#include "core/Arguments.h"
#include "core/World.h"
#include "support/FailingAllocation.h"
#include "support/Input.h"
#include "support/Require.h"

#include <functional>
#include <new>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace fuzz {

using Code = ZelInterchangeData::ZelDataResult_tags;
using ZelInterchangeData::FailingAllocation;

/// Which allocations of an operation fail; by default, none.
struct FailurePlan {
    /// How many succeed first.
    std::size_t granted = FailingAllocation::unlimited;
    ZelInterchangeData::Shortage shortage = ZelInterchangeData::Shortage::Lasting;
};

/// How an operation ended.
struct Outcome {
    /// #ZelData_OutOfMemory for a std::bad_alloc, too.
    Code code = ZelInterchangeData::ZelData_Ok;
    bool wasThrown = false;
    /// Whether an allocation failed.
    bool ranShort = false;
};

/// What is allowed after an operation that ran out of memory.
struct Traits {
    /// An exception reports it, not a code.
    bool throwsIt = false;
    /// The object may be changed: the operation has several steps and stops between them.
    bool mayBePartial = false;
    /// Output arguments may be changed.
    bool mayFillArguments = false;
    /// The last error may be the one from before.
    bool mayKeepLastError = false;
    /// The code is that of another object, whatever it is.
    bool mayHideIt = false;
};

/// Two worlds that are equal between operations.
class Session {
public:
    explicit Session(Input& input) : input_(input) {}

    Input& input() { return input_; }
    World& tested() { return tested_; }
    World& twin() { return twin_; }

    /// Which allocations of the next operation fail.
    FailurePlan nextPlan()
    {
        const std::uint8_t choice = input_.byte();
        if ((choice & 2U) == 0) return {};
        using ZelInterchangeData::Shortage;
        // Most operations need only a few allocations.
        const std::size_t granted = choice / 4U % ((choice & 128U) != 0 ? 32U : 4U);
        return {granted, (choice & 1U) != 0 ? Shortage::Lasting : Shortage::Once};
    }

    /// Requires that both worlds have the same contents.
    void requireTwins();

private:
    Input& input_;
    World tested_;
    World twin_;
};

using Operation = std::function<void(Session&)>;

/// Every operation of every object, every factory and every function on texts and values.
std::vector<Operation> allOperations();

// How a member or a function becomes an operation

template <class Call>
Outcome perform(const FailurePlan& plan, Call&& call)
{
    Outcome outcome;
    const FailingAllocation failure(plan.granted, plan.shortage);
    try {
        outcome.code = call();
    } catch (const std::bad_alloc&) {
        outcome.code = ZelInterchangeData::ZelData_OutOfMemory;
        outcome.wasThrown = true;
    } catch (const ZelInterchangeData::ZelDataException&) {
        outcome.code = ZelInterchangeData::ZelData_OutOfMemory;
        outcome.wasThrown = true;
    }
    outcome.ranShort = failure.failed();
    return outcome;
}

/// Requires that an operation fails as it must and leaves its arguments unchanged.
template <class Arguments>
void requireExhausted(const Outcome& outcome, const Traits& traits, Arguments& arguments)
{
    const bool isTold = outcome.code == ZelInterchangeData::ZelData_OutOfMemory;
    require(isTold || traits.mayHideIt, "a failed allocation is ignored");
    require(!isTold || outcome.wasThrown == traits.throwsIt || traits.mayHideIt,
            "exhausted memory is reported the wrong way");
    const bool isUntouched =
        std::apply([](auto&... argument) { return (argument.isUntouched() && ...); }, arguments);
    require(isUntouched || traits.mayFillArguments, "an argument is changed by a failure");
}

/// The code, the last error if there is one, and the output.
template <class Arguments>
std::string shown(const Outcome& outcome, Code lastError, Arguments& arguments)
{
    std::string text;
    describe(text, static_cast<std::uint32_t>(outcome.code));
    describe(text, static_cast<std::uint32_t>(lastError));
    std::apply([&](auto&... argument) { (argument.show(text), ...); }, arguments);
    return withoutDates(std::move(text));
}

/// A call, with its object.
template <class Interface, class Method, class... Args>
class MemberCall {
public:
    MemberCall(Input& input, Method method)
        : method_(method), number_(input.byte()), arguments_{Argument<Args>(input)...}
    {
    }

    Interface& object(World& world) const { return world.object<Interface>(number_); }

    Outcome run(World& world, const FailurePlan& plan, std::tuple<Argument<Args>...>& arguments)
    {
        Interface& object = this->object(world);
        const auto call = [&](auto&&... passed) {
            return perform(plan, [&] { return std::invoke(method_, object, passed...); });
        };
        return std::apply([&](auto&... argument) { return call(argument.pass(world)...); },
                          arguments);
    }

    /// Runs the operation without failures and returns the outcome as a text.
    std::string runPlainly(World& world)
    {
        auto arguments = arguments_;
        const Outcome outcome = run(world, {}, arguments);
        return shown(outcome, object(world).getLastError(), arguments);
    }

    /// Runs out of memory as @p plan says. Returns whether it did.
    bool runShort(Session& session, const FailurePlan& plan, const Traits& traits,
                  std::string& result)
    {
        auto arguments = arguments_;
        Interface& tested = object(session.tested());
        const Code before = tested.getLastError();
        const Outcome outcome = run(session.tested(), plan, arguments);
        const Code after = tested.getLastError();
        if (!outcome.ranShort) {
            result = shown(outcome, after, arguments);
            return false;
        }
        requireExhausted(outcome, traits, arguments);
        const bool isKept = (traits.mayKeepLastError || traits.throwsIt) && after == before;
        require(isKept || after == outcome.code, "the last error is not the code");
        if (!traits.mayBePartial) requireAsBefore(tested, object(session.twin()), before);
        return true;
    }

private:
    /// Requires that the operation left @p tested equal to its twin.
    static void requireAsBefore(Interface& tested, Interface& twin, Code lastError)
    {
        tested.setLastError(lastError);
        requireEqual(described(twin), described(tested), "a failure changed the object");
    }

    Method method_;
    std::size_t number_;
    std::tuple<Argument<Args>...> arguments_;
};

template <class Interface, class... Args, class Method>
Operation memberOperation(Method method, Traits traits)
{
    traits.throwsIt = std::is_same_v<Interface, ZelInterchangeData::i_ZelDataCaptionItem>;
    return [method, traits](Session& session) {
        const FailurePlan plan = session.nextPlan();
        MemberCall<Interface, Method, Args...> call(session.input(), method);
        std::string result;
        if (call.runShort(session, plan, traits, result))
            result = call.runPlainly(session.tested()); // as if nothing had happened
        requireEqual(call.runPlainly(session.twin()), result, "the twin returns something else");
    };
}

/// The operation that calls @p method.
template <class Interface, class... Args>
Operation member(Code (Interface::*method)(Args...), Traits traits = {})
{
    return memberOperation<Interface, Args...>(method, traits);
}

template <class Interface, class... Args>
Operation member(Code (Interface::*method)(Args...) const, Traits traits = {})
{
    return memberOperation<Interface, Args...>(method, traits);
}

/// The operation that calls a function in each world: one that returns a code, or one whose text
/// @p body stores in its first argument.
template <class... Args>
Operation function(std::function<Code(Args...)> body, Traits traits = {})
{
    return [body, traits](Session& session) {
        const FailurePlan plan = session.nextPlan();
        const std::tuple<Argument<Args>...> arguments{Argument<Args>(session.input())...};
        const auto run = [&](World& world, const FailurePlan& how, auto& passed) {
            return std::apply(
                [&](auto&... argument) {
                    const auto call = [&](auto&&... value) {
                        return perform(how, [&] { return body(value...); });
                    };
                    return call(argument.pass(world)...);
                },
                passed);
        };
        const auto runPlainly = [&](World& world) {
            auto passed = arguments;
            const Outcome outcome = run(world, {}, passed);
            return shown(outcome, ZelInterchangeData::ZelData_Ok, passed);
        };
        auto passed = arguments;
        const Outcome outcome = run(session.tested(), plan, passed);
        if (outcome.ranShort) requireExhausted(outcome, traits, passed);
        const std::string result = outcome.ranShort
                                       ? runPlainly(session.tested())
                                       : shown(outcome, ZelInterchangeData::ZelData_Ok, passed);
        requireEqual(runPlainly(session.twin()), result, "a function returns two results");
    };
}

template <class... Args>
Operation function(Code (*body)(Args...), Traits traits = {})
{
    return function(std::function<Code(Args...)>(body), traits);
}

} // namespace fuzz

#endif
