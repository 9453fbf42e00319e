/// @file
/// Sequences of calls of every operation, in which any allocation may fail.
///
/// Each operation runs twice: in a world where allocations fail as the input says, and in one where
/// none does. If one failed, the operation must report it and change nothing. The same operation,
/// called again, must return what it returns in the other world. At the end, both worlds have the
/// same contents and nothing is leaked.

#include "core/Calls.h"
#include "core/Operations.h"
#include "core/OutputPath.h"
#include "core/Promises.h"
#include "support/Target.h"

#include <type_traits>

namespace fuzz {

namespace {

using namespace ZelInterchangeData;

constexpr int mostCalls = 200;

/// Requires what is promised of the findings of @p object if it has any.
template <class Object>
void requirePromises(const Object& object)
{
    constexpr bool hasFindings =
        std::is_same_v<Object, i_ZelDataHeader> || std::is_same_v<Object, i_ZelDataCaptions> ||
        std::is_same_v<Object, i_ZelDataToc> || std::is_same_v<Object, i_ZelDataScreenText> ||
        std::is_same_v<Object, i_ZelInterchangeDataCore>;
    if constexpr (hasFindings) requireAgreement(object);
}

} // namespace

void Session::requireTwins()
{
    std::string tested;
    std::string twin;
    tested_.forEach([&](auto& object) { describe(tested, object); });
    twin_.forEach([&](auto& object) { describe(twin, object); });
    requireEqual(twin, tested, "the worlds differ at the end");
    tested_.forEach([](auto& object) { requirePromises(object); });
}

std::vector<Operation> allOperations()
{
    std::vector<Operation> operations;
    addLanguageOperations(operations);
    addHeaderOperations(operations);
    addCaptionItemOperations(operations);
    addCaptionOperations(operations);
    addTocItemOperations(operations);
    addTocOperations(operations);
    addScreenTextItemOperations(operations);
    addScreenTextOperations(operations);
    addWriterOperations(operations);
    addFunctionOperations(operations);
    return operations;
}

} // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::vector<fuzz::Operation> operations = fuzz::allOperations();
    fuzz::require(operations.size() <= 256, "a byte does not reach every operation");
    static const fuzz::OutputPath folder(0); // created before blocks are counted
    const long long blocks = ZelInterchangeData::liveAllocations();
    {
        fuzz::Input input(data, size);
        fuzz::Session session(input);
        for (int calls = 0; calls < fuzz::mostCalls && !input.isEmpty(); ++calls)
            operations[input.byte() % operations.size()](session);
        session.requireTwins();
    }
    fuzz::require(ZelInterchangeData::liveAllocations() == blocks, "memory is leaked");
    return 0;
}
