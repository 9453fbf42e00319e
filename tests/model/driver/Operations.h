/// @file
/// The operations that a script can name, made from members and static functions.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_OPERATIONS_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_OPERATIONS_H

#include "Arguments.h"
#include "Fake.h"
#include "Session.h"

#include <exception>
#include <functional>
#include <new>
#include <string>
#include <tuple>

namespace model {

/// The operations of objects, from the list of the model.
void addMemberOperations(Operations& operations);
/// The static functions.
void addFunctionOperations(Operations& operations);
/// Operations on an element tree.
void addTreeOperations(Operations& operations);
/// Operations that make and destroy objects and prepare fakes.
void addObjectOperations(Operations& operations);

/// Writes the kind of file that the script wants, and answers with its contents.
void writeFile(Session& session);

/// The code that @p call returns, as eight digits; "bad_alloc" or "exception" if it throws, "ended"
/// if it ends its thread.
template <class Call>
std::string codeOf(Call&& call)
{
    const auto run = [&]() -> std::string {
        try {
            return hexadecimal(call());
        } catch (const std::bad_alloc&) {
            return "bad_alloc";
        } catch (const std::exception&) {
            return "exception";
        } catch (int) {
            return "exception";
        }
    };
    return FakeControl::mayEndThread() ? inThread(run) : run();
}

template <class I, class Method, class... Args>
void callMember(Session& session, Method method)
{
    I& object = session.object<I>(session.script().read<int>());
    std::tuple<Argument<Args>...> arguments{Argument<Args>(session)...};
    const auto call = [&](auto&... argument) {
        return codeOf([&] { return std::invoke(method, object, argument.pass()...); });
    };
    session.answer(std::apply(call, arguments));
    session.answer(lastError(object));
    std::apply([&](auto&... argument) { (argument.report(session), ...); }, arguments);
}

/// The operation that calls @p method. The script names the object, then the arguments.
template <class I, class... Args>
Session::Operation member(ZelInterchangeData::ZelDataResult_tags (I::*method)(Args...))
{
    return
        [method](Session& session) { callMember<I, decltype(method), Args...>(session, method); };
}

template <class I, class... Args>
Session::Operation member(ZelInterchangeData::ZelDataResult_tags (I::*method)(Args...) const)
{
    return
        [method](Session& session) { callMember<I, decltype(method), Args...>(session, method); };
}

/// The operation that copies one @p I from another.
template <class I>
Session::Operation copying()
{
    return member(
        static_cast<ZelInterchangeData::ZelDataResult_tags (I::*)(const I&)>(&I::copyFrom));
}

/// The operation that assigns one @p Item to another.
template <class Item>
Session::Operation assigning()
{
    return [](Session& session) {
        auto& target = session.object<Item>(session.script().read<int>());
        const auto& source = session.object<Item>(session.script().read<int>());
        target = source;
        session.answer("-");
        session.answer(lastError(target));
        session.answer("e" + lastError(source));
    };
}

inline std::string resultWord(const std::string& result)
{
    return shown(result);
}
inline std::string resultWord(unsigned long result)
{
    return hexadecimal(result);
}

/// The operation that calls a static function.
template <class Result, class... Args>
Session::Operation function(Result (*body)(Args...))
{
    return [body](Session& session) {
        std::tuple<Argument<Args>...> arguments{Argument<Args>(session)...};
        session.answer(std::apply(
            [&](auto&... argument) { return resultWord(body(argument.pass()...)); }, arguments));
        std::apply([&](auto&... argument) { (argument.report(session), ...); }, arguments);
    };
}

} // namespace model

#endif
