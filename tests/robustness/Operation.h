/// @file
/// The list of all operations that a caller can call, each with an object to call it on.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_OPERATION_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_OPERATION_H

#include "robustness/Contents.h"
#include "robustness/Outs.h"
#include "support/Checks.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// One object and the operation to call on it.
struct Subject {
    /// Null for a function that belongs to no object.
    std::shared_ptr<i_ZelDataResult> object;
    std::function<ZelDataResult_tags(Outs&)> call;
    std::function<std::string()> contents;
};

/// One entry of the list. When memory runs out, the operation returns and stores
/// #ZelData_OutOfMemory and leaves its object and its arguments as they were, unless the entry says
/// otherwise. Other objects that it reads are made once in each thread.
struct Operation {
    /// Class and operation, with the types of the arguments where the name alone would not do.
    /// The part after a bar distinguishes several entries for one operation.
    std::string name;
    std::function<Subject()> make;
    /// Lets the exception through.
    bool throws = false;
    /// May stop half-way.
    bool stepwise = false;
    /// Does not store its final code.
    bool storesNothing = false;
};

using OperationList = std::vector<Operation>;

/// What @p make makes, once in each thread.
template <auto make>
auto& given()
{
    thread_local const auto object = make();
    return *object;
}

/// Adds the operations of one class to a list.
template <class Object>
class OperationsOf {
public:
    using Make = std::unique_ptr<Object> (*)();

    /// Adds the operations that every class has. The objects come from @p make.
    OperationsOf(OperationList& list, const std::string& className, Make make)
        : list_(list), make_(make)
    {
        like_.name = className + "::";
        add("setLastError", [](Object& object) {
            object.setLastError(ZelData_WarnTiming);
            return object.getLastError();
        });
        add("getLastError", &Object::getLastError);
    }

    /// Adds an operation with its arguments, each as argument() takes it.
    template <class Act, class... Arguments>
    void add(const std::string& name, Act act, Arguments... arguments) const
    {
        Operation entry = like_;
        entry.name += name;
        entry.make = [make = make_, act, arguments...] {
            const std::shared_ptr<Object> object = make();
            return Subject{object,
                           [object, act, arguments...](Outs& outs) {
                               return std::invoke(act, *object, argument(outs, arguments)...);
                           },
                           [object] { return contentsOf(*object); }};
        };
        list_.push_back(std::move(entry));
    }

    /// The same class with objects from @p make.
    [[nodiscard]] OperationsOf on(Make make) const
    {
        OperationsOf other = *this;
        other.make_ = make;
        return other;
    }
    /// The same class, for operations that let the exception through.
    [[nodiscard]] OperationsOf throwing() const { return with(&Operation::throws); }
    /// The same class, for operations that may stop half-way.
    [[nodiscard]] OperationsOf stepwise() const { return with(&Operation::stepwise); }
    /// The same class, for operations that do not store their final code.
    [[nodiscard]] OperationsOf storingNothing() const { return with(&Operation::storesNothing); }

private:
    OperationsOf with(bool Operation::*conduct) const
    {
        OperationsOf other = *this;
        other.like_.*conduct = true;
        return other;
    }

    OperationList& list_;
    Make make_;
    /// What all entries begin with.
    Operation like_;
};

/// Makes a copy of what @p make makes, of a class that is not exactly ours.
template <class Own, auto make>
auto callersCopy()
{
    class Callers : public Own {};
    const auto source = make();
    auto copy = std::make_unique<Callers>();
    EXPECT_EQ(ZelData_Ok, copy->copyFrom(*source));
    return copy;
}

/// Adds both ways to copy: from an object of our class and from one of a caller's class.
template <class Own, auto make, class Object>
void addCopies(const OperationsOf<Object>& of, const std::string& name = "copyFrom")
{
    ZelDataResult_tags (Object::*const copyFrom)(const Object&) = &Object::copyFrom;
    of.stepwise().add(name, copyFrom, given<make>);
    of.stepwise().add(name + "|of a caller's class", copyFrom, given<callersCopy<Own, make>>);
}

/// A last error that no operation stores.
constexpr auto untouched = static_cast<ZelDataResult_tags>(0x7E57);

void forgetLastError(const Subject& subject);
/// The last error of @p subject; a function has none.
ZelDataResult_tags lastErrorOf(const Subject& subject);
/// All that a call of @p subject shows: its @p code, what the object holds, and @p outs.
std::string outcome(ZelDataResult_tags code, const Subject& subject, const Outs& outs);

/// Calls its argument with something set up around the call.
using Around = std::function<void(const std::function<void()>&)>;

/// Sets nothing up.
void callPlainly(const std::function<void()>& call);
/// What @p operation returns and leaves when @p around calls it on a new object.
std::string outcomeOf(const Operation& operation, const Around& around = callPlainly);

/// All operations.
const OperationList& allOperations();

void addHeaderOperations(OperationList& list);
void addCaptionOperations(OperationList& list);
void addTocOperations(OperationList& list);
void addScreenTextOperations(OperationList& list);
void addFormatterOperations(OperationList& list);
void addDocumentOperations(OperationList& list);
void addUtilityOperations(OperationList& list);

} // namespace ZelInterchangeData

#endif
