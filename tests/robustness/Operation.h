/// @file
/// The list of all operations that a caller can call, each with an object to call it on.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_OPERATION_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_OPERATION_H

#include "robustness/Contents.h"
#include "robustness/Outs.h"

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

/// One entry of the list. Memory that runs out gives #ZelData_OutOfMemory, returned and stored, and
/// leaves object and arguments as they were, unless the entry says otherwise. What an operation reads
/// besides is made once for each thread.
struct Operation {
    /// Class and operation, with the types of the arguments where the name alone would not do.
    /// The part after a bar distinguishes several entries for one operation.
    std::string name;
    std::function<Subject()> make;
    /// Lets the exception through.
    bool throws = false;
    /// May have gone a part of its way.
    bool stepwise = false;
    /// Does not store its final code.
    bool storesNothing = false;

    Operation& letsThrough()
    {
        throws = true;
        return *this;
    }
    Operation& inSteps()
    {
        stepwise = true;
        return *this;
    }
    Operation& withoutStoring()
    {
        storesNothing = true;
        return *this;
    }
};

using OperationList = std::vector<Operation>;

/// Adds the operations of one class to a list.
template <class Object>
class OperationsOf {
public:
    using Act = ZelDataResult_tags (*)(Object&, Outs&);

    /// Objects to call operations on come from @p make.
    OperationsOf(OperationList& list, std::string className, std::unique_ptr<Object> (*make)())
        : list_(list), className_(std::move(className)), make_(make)
    {
        add("setLastError", [](Object& object, Outs& /*outs*/) {
            object.setLastError(ZelData_WarnTiming);
            return object.getLastError();
        });
        add("getLastError", [](Object& object, Outs& /*outs*/) { return object.getLastError(); });
    }

    /// The entry can be changed until the next one is added.
    Operation& add(const std::string& name, Act act) { return addOn(make_, name, act); }

    Operation& addOn(std::unique_ptr<Object> (*make)(), const std::string& name, Act act)
    {
        list_.push_back({className_ + "::" + name, [make, act] {
                             const std::shared_ptr<Object> object = make();
                             return Subject{
                                 object, [object, act](Outs& outs) { return act(*object, outs); },
                                 [object] { return contentsOf(*object); }};
                         }});
        return list_.back();
    }

private:
    OperationList& list_;
    std::string className_;
    std::unique_ptr<Object> (*make_)();
};

/// A last error that no operation stores.
constexpr auto untouched = static_cast<ZelDataResult_tags>(0x7E57);

void forgetLastError(const Subject& subject);
/// The last error of @p subject; a function has none.
ZelDataResult_tags lastErrorOf(const Subject& subject);
/// All that shows of an operation of @p subject that gave @p code and was called with @p outs.
std::string outcome(ZelDataResult_tags code, const Subject& subject, const Outs& outs);

/// Calls what it is given, with something set up around it.
using Around = std::function<void(const std::function<void()>&)>;

/// Calls with nothing around.
void callPlainly(const std::function<void()>& call);
/// What @p operation gives and leaves on a new object; @p around calls it. All else happens as always.
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
