/// @file
/// Objects that a caller wrote, passed to ours and filled by ours. One of their calls fails as the
/// input says: it returns any code, or throws.
///
/// The operation must end as the failure requires, leave everything usable, and, when nothing fails
/// any more, return the same as if nothing had ever failed.

#include "core/Describe.h"
#include "core/ForeignContents.h"
#include "support/FailingAllocation.h"
#include "support/Input.h"
#include "support/Require.h"
#include "support/Target.h"

#include <memory>
#include <new>
#include <string>
#include <type_traits>

using namespace ZelInterchangeData;
using fuzz::Code;
using fuzz::Input;
using fuzz::require;
using fuzz::requireEqual;
using model::FakeControl;
using model::FakeScript;

namespace {

/// What fails, and where.
struct Trouble {
    FakeScript script;
    bool isInItems = false;
};

Code someCode(Input& input)
{
    static constexpr Code codes[] = {
        ZelData_NotFound,     ZelData_WarnTiming, ZelData_OutOfMemory,    ZelData_InternalError,
        ZelData_WarnNoChange, ZelData_Ok,         ZelData_InvalidArgument};
    const std::size_t choice = input.below(std::size(codes) + 1);
    return choice == std::size(codes) ? input.raw<Code>() : codes[choice];
}

Trouble readTrouble(Input& input)
{
    Trouble trouble;
    trouble.script.at = 1 + input.below(24);
    trouble.script.mode = "ccdhbxBXlm"[input.below(10)];
    trouble.script.code = someCode(input);
    trouble.script.last = input.flag() ? trouble.script.code : someCode(input);
    trouble.script.keepsOwn = input.flag();
    trouble.isInItems = input.flag();
    return trouble;
}

struct Outcome {
    Code code = ZelData_Ok;
    /// Whether the operation threw std::bad_alloc.
    bool wasThrown = false;
    /// Whether a caller's object failed during the operation.
    bool wentWrong = false;
    /// The last error of the object that was called.
    Code lastError = ZelData_Ok;
};

template <class Object, class Call>
Outcome perform(const Object& judge, Call&& call)
{
    Outcome outcome;
    const auto before = FakeControl::wentWrong();
    try {
        outcome.code = call();
    } catch (const std::bad_alloc&) {
        outcome.wasThrown = true;
    }
    outcome.wentWrong = FakeControl::wentWrong() != before;
    outcome.lastError = judge.Object::getLastError();
    return outcome;
}

// The ways in which the library uses a caller's object. Each has a target, and an operation that
// can be called again and again, with trouble and without.

/// Copying a set with languages copies these by another operation, which may end with a code that
/// lets the copy continue.
template <class Kind>
inline constexpr bool isCopiedInOne =
    !std::is_base_of_v<i_ZelDataLanguage, typename Kind::Interface>;

/// Copies our object from theirs.
template <class Kind>
class OwnCopies {
public:
    /// Whether the operation itself meets the trouble, not one that it calls.
    static constexpr bool isDirect = isCopiedInOne<Kind>;
    static constexpr bool throwsBadAlloc = std::is_same_v<Kind, fuzz::CaptionItemKind>;
    static constexpr bool isTargetForeign = false;

    explicit OwnCopies(Input& input) : target_(fuzz::makeOwn<Kind>(input)) {}

    Outcome run(Input contents, const Trouble& trouble)
    {
        const auto source =
            fuzz::makeForeign<Kind>(contents, trouble.isInItems ? trouble.script : FakeScript());
        if (!trouble.isInItems) source->setScript(trouble.script);
        const typename Kind::Interface& read = *source;
        return perform<typename Kind::Interface>(*target_, [&] { return target_->copyFrom(read); });
    }
    std::string state() { return fuzz::described(*target_); }

private:
    std::unique_ptr<typename Kind::Interface> target_;
};

/// Copies their object from ours, with the function that it inherits.
template <class Kind>
class ForeignCopies {
    using Interface = typename Kind::Interface;

public:
    static constexpr bool isDirect = isCopiedInOne<Kind>;
    static constexpr bool throwsBadAlloc = std::is_same_v<Kind, fuzz::CaptionItemKind>;
    static constexpr bool isTargetForeign = true;

    explicit ForeignCopies(Input& input) : target_(fuzz::makeForeign<Kind>(input, {})) {}

    Outcome run(Input contents, const Trouble& trouble)
    {
        const auto source = fuzz::makeOwn<Kind>(contents);
        target_->setScript(trouble.script);
        const Outcome outcome =
            perform<Interface>(*target_, [&] { return target_->Interface::copyFrom(*source); });
        target_->setScript({});
        return outcome;
    }
    std::string state() { return fuzz::described<Interface>(*target_); }

private:
    std::unique_ptr<typename Kind::Foreign> target_;
};

/// Copies their object from another one of theirs, which causes trouble.
template <class Kind>
class ForeignCopiesForeign {
    using Interface = typename Kind::Interface;

public:
    static constexpr bool isDirect = isCopiedInOne<Kind>;
    static constexpr bool throwsBadAlloc = std::is_same_v<Kind, fuzz::CaptionItemKind>;
    static constexpr bool isTargetForeign = false;

    explicit ForeignCopiesForeign(Input& input) : target_(fuzz::makeForeign<Kind>(input, {})) {}

    Outcome run(Input contents, const Trouble& trouble)
    {
        const auto source = fuzz::makeForeign<Kind>(contents, {});
        source->setScript(trouble.script);
        const Interface& read = *source;
        return perform<Interface>(*target_, [&] { return target_->Interface::copyFrom(read); });
    }
    std::string state() { return fuzz::described<Interface>(*target_); }

private:
    std::unique_ptr<typename Kind::Foreign> target_;
};

/// Adds their item to our collection.
template <class Kind>
class CollectionAdds {
    using ItemKind = typename Kind::Items;

public:
    static constexpr bool isDirect = false;
    static constexpr bool throwsBadAlloc = false;
    static constexpr bool isTargetForeign = false;

    explicit CollectionAdds(Input& input) : target_(fuzz::makeOwn<Kind>(input)) {}

    Outcome run(Input contents, const Trouble& trouble)
    {
        const auto item = fuzz::makeForeign<ItemKind>(contents, {});
        item->setScript(trouble.script);
        return perform<typename Kind::Interface>(*target_,
                                                 [&] { return ((*target_).*Kind::add)(*item); });
    }
    std::string state() { return fuzz::described(*target_); }

private:
    std::unique_ptr<typename Kind::Interface> target_;
};

/// Passes their set to a formatter.
template <class Kind>
class FormatterHolds {
public:
    static constexpr bool isDirect = false;
    static constexpr bool throwsBadAlloc = false;
    static constexpr bool isTargetForeign = false;

    explicit FormatterHolds(Input& /*input*/) : target_(fuzz::makeObject(Kind::createFormatter)) {}

    Outcome run(Input contents, const Trouble& trouble)
    {
        const auto source =
            fuzz::makeForeign<Kind>(contents, trouble.isInItems ? trouble.script : FakeScript());
        if (!trouble.isInItems) source->setScript(trouble.script);
        return perform<typename Kind::Formatter>(*target_,
                                                 [&] { return ((*target_).*Kind::hold)(*source); });
    }
    std::string state() { return fuzz::described<i_ZelDataFormatterBase>(*target_); }

private:
    std::unique_ptr<typename Kind::Formatter> target_;
};

/// Passes their set to a document.
template <class Kind>
class DocumentTakes {
public:
    static constexpr bool isDirect = false;
    static constexpr bool throwsBadAlloc = false;
    static constexpr bool isTargetForeign = false;

    explicit DocumentTakes(Input& /*input*/) : target_(ZELDataCreator::createInterchangeData())
    {
        Input nothing(nullptr, 0);
        require(target_->setDataHeader(*fuzz::makeOwn<fuzz::HeaderKind>(nothing)) == ZelData_Ok,
                "a header is refused");
    }

    Outcome run(Input contents, const Trouble& trouble)
    {
        const auto source =
            fuzz::makeForeign<Kind>(contents, trouble.isInItems ? trouble.script : FakeScript());
        if (!trouble.isInItems) source->setScript(trouble.script);
        return perform<i_ZelInterchangeDataCore>(*target_,
                                                 [&] { return ((*target_).*Kind::set)(*source); });
    }
    std::string state() { return fuzz::described<i_ZelDataFormatterBase>(*target_); }

private:
    std::unique_ptr<i_ZelInterchangeDataCore> target_;
};

/// Lets a document fill their set.
template <class Kind>
class DocumentGives {
public:
    static constexpr bool isDirect = false;
    static constexpr bool throwsBadAlloc = false;
    static constexpr bool isTargetForeign = true;

    explicit DocumentGives(Input& input)
        : target_(fuzz::makeForeign<Kind>(input, {})),
          document_(ZELDataCreator::createInterchangeData())
    {
    }

    Outcome run(Input contents, const Trouble& trouble)
    {
        fuzz::mayRefuse(((*document_).*Kind::set)(*fuzz::makeOwn<Kind>(contents)));
        target_->setScript(trouble.script);
        const Outcome outcome = perform<i_ZelInterchangeDataCore>(
            *document_, [&] { return ((*document_).*Kind::get)(*target_); });
        target_->setScript({});
        return outcome;
    }
    std::string state() { return fuzz::described<typename Kind::Interface>(*target_); }

private:
    std::unique_ptr<typename Kind::Foreign> target_;
    std::unique_ptr<i_ZelInterchangeDataCore> document_;
};

// What must follow

/// A code that makes the library stop, or an exception.
bool isFatal(const FakeScript& script)
{
    const bool returnsCode = std::string("cdhlm").find(script.mode) != std::string::npos;
    return !returnsCode || failed(script.code);
}

/// The code that an operation must end with when a call of a caller's object is fatal.
Code fatalCode(const FakeScript& script)
{
    switch (script.mode) {
    case 'b':
    case 'B':
    case 'l':
        return ZelData_OutOfMemory;
    case 'x':
    case 'X':
    case 'm':
        return ZelData_InternalError;
    default:
        return script.last;
    }
}

/// Whether @p outcome is what @p trouble must lead to.
template <class Route>
bool isRight(const Outcome& outcome, const Trouble& trouble)
{
    const Code expected = fatalCode(trouble.script);
    const bool isMemory = expected == ZelData_OutOfMemory && trouble.script.mode != 'c' &&
                          trouble.script.mode != 'd' && trouble.script.mode != 'h';
    if (isMemory && Route::throwsBadAlloc) return outcome.wasThrown;
    if (outcome.wasThrown) return false;
    // A target with a last error of its own need not know how its inherited functions ended.
    if (Route::isTargetForeign && trouble.script.keepsOwn) return true;
    // If the last error is not a failure, the caller continues.
    const bool mayGoOn = (!Route::isDirect || trouble.isInItems) && !failed(expected);
    if (mayGoOn || outcome.code == expected) return true;
    // For a header that is copied to, the setter's own code counts.
    return Route::isTargetForeign && outcome.code == trouble.script.code;
}

template <class Route>
void checkOutcome(const Outcome& outcome, const Trouble& trouble)
{
    require(outcome.wasThrown || outcome.lastError == outcome.code,
            "the last error is not the code");
    if (!outcome.wentWrong) {
        require(!outcome.wasThrown, "an exception from nowhere");
    } else if (isFatal(trouble.script)) {
        require(isRight<Route>(outcome, trouble), "the failure of a caller's object is lost");
    }
}

/// Adding twice leaves two items.
template <class Route>
inline constexpr bool isRepeatable = true;
template <class Kind>
inline constexpr bool isRepeatable<CollectionAdds<Kind>> = false;

template <class Route>
void tryRoad(Input& input)
{
    const Trouble trouble = readTrouble(input);
    Input forTwin = input;
    Route tested(input);
    Route twin(forTwin);
    const Outcome plain = twin.run(input, {});
    const Outcome outcome = tested.run(input, trouble);
    checkOutcome<Route>(outcome, trouble);
    if (!isRepeatable<Route> && !failed(outcome.code)) return; // it would add a second item
    const Outcome again = tested.run(input, {});
    require(again.code == plain.code, "after the failure the operation returns another code");
    if (failed(plain.code)) return; // a partial state depends on what was there before
    requireEqual(twin.state(), tested.state(),
                 "after the failure the operation leaves another state");
}

template <class Kind>
void tryItem(Input& input)
{
    switch (input.below(3)) {
    case 0:
        return tryRoad<OwnCopies<Kind>>(input);
    case 1:
        return tryRoad<ForeignCopies<Kind>>(input);
    default:
        return tryRoad<ForeignCopiesForeign<Kind>>(input);
    }
}

template <class Kind>
void trySet(Input& input)
{
    switch (input.below(7)) {
    case 0:
        return tryRoad<FormatterHolds<Kind>>(input);
    case 1:
        return tryRoad<DocumentTakes<Kind>>(input);
    case 2:
        return tryRoad<DocumentGives<Kind>>(input);
    case 3:
        if constexpr (fuzz::hasItems<Kind>) return tryRoad<CollectionAdds<Kind>>(input);
        return;
    default:
        return tryItem<Kind>(input);
    }
}

void tryAny(Input& input)
{
    switch (input.below(7)) {
    case 0:
        return trySet<fuzz::HeaderKind>(input);
    case 1:
        return trySet<fuzz::CaptionsKind>(input);
    case 2:
        return trySet<fuzz::TocKind>(input);
    case 3:
        return trySet<fuzz::ScreenTextKind>(input);
    case 4:
        return tryItem<fuzz::CaptionItemKind>(input);
    case 5:
        return tryItem<fuzz::TocItemKind>(input);
    default:
        return tryItem<fuzz::ScreenTextItemKind>(input);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const long long blocks = ZelInterchangeData::liveAllocations();
    {
        Input input(data, size);
        tryAny(input);
    }
    require(FakeControl::alive() == 0, "a caller's object is leaked");
    require(ZelInterchangeData::liveAllocations() == blocks, "memory is leaked");
    return 0;
}
