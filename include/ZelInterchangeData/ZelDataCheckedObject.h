/// @file
/// What the checked views of all objects have in common.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDOBJECT_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDOBJECT_H

#include "ZelInterchangeData/ZelDataCall.h"
#include "ZelInterchangeData/ZelDataExport.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of an object: its operations throw ZelDataError if those of the object fail.
///
/// To make a view, call checked() with the object or the `std::unique_ptr` that owns it. A view
/// offers the same operations as its object, and isGood() beside isValid():
/// - An operation without a value returns the view, so calls can be chained:
///   `checked(header).setTitle("Intro").setVideoLength(90500)`.
/// - A getter returns its value, and an object in a `std::unique_ptr`.
/// - ZelDataError names the operation. Its message shows the arguments and says what they or the
///   object's getters reveal about the failure. The object is in the state in which the operation
///   left it, and so is its last error.
/// - If there is no memory for the message, it is shorter; if there is none for the shortest, the
///   operation throws `std::bad_alloc`.
///
/// Warnings throw as well, because the library itself stops at them: a copy that meets one is
/// incomplete. To let them pass, for example to replace a text, call allowWarnings().
///
/// A view consists of a pointer and a flag. It owns nothing and must not outlive its object. In a
/// class of your own, store the object, not a view of it: g++ warns about a view (-Wattributes),
/// because views are hidden from other modules.
/// @tparam Self the view that derives from this class.
/// @tparam Object the interface, `const` for a view with the const operations only.
template <class Self, class Object>
class ZelDataCheckedObject {
public:
    /// A view of @p object that throws on warnings.
    explicit ZelDataCheckedObject(Object& object) noexcept : object_(&object) {}

    /// A copy of the view that lets warnings pass and throws only on errors.
    Self allowWarnings() const noexcept
    {
        Self view(self());
        view.warningsPass_ = true;
        return view;
    }

    /// The object itself.
    Object& object() const noexcept { return *object_; }

protected:
    /// Returns the view if @p code is not a failure of @p operation; otherwise throws and shows
    /// @p arguments.
    template <class... Arguments>
    Self done(const char* operation, ZelDataResult_tags code, const Arguments&... arguments) const
    {
        require(operation, code, arguments...);
        return self();
    }

    /// Calls the member function @p call of the object with @p arguments and returns the view.
    template <class Call, class... Arguments>
    Self run(const char* operation, Call call, Arguments&&... arguments) const
    {
        return done(operation, (object_->*call)(arguments...), arguments...);
    }

    /// Whether @p code, which an `isValid` returned, is not a failure. Throws if memory ran out.
    bool isGoodCode(const char* operation, ZelDataResult_tags code) const
    {
        if (code == ZelData_OutOfMemory) require(operation, code);
        return !fails(code);
    }

    /// Returns the value of the object's getter @p getter.
    template <class Owner, class Value>
    Value get(const char* operation, ZelDataResult_tags (Owner::*getter)(Value&) const) const
    {
        Value value{};
        require(operation, (object_->*getter)(value));
        return value;
    }

    /// The same for a getter that is not const.
    template <class Owner, class Value>
    Value get(const char* operation, ZelDataResult_tags (Owner::*getter)(Value&)) const
    {
        Value value{};
        require(operation, (object_->*getter)(value));
        return value;
    }

    /// Returns the object that the member function @p maker makes from @p arguments.
    template <class Owner, class Made, class... Parameters, class... Arguments>
    std::unique_ptr<Made> make(const char* operation,
                               ZelDataResult_tags (Owner::*maker)(Made**, Parameters...) const,
                               Arguments... arguments) const
    {
        Made* made = nullptr;
        const auto code = (object_->*maker)(&made, arguments...);
        std::unique_ptr<Made> owner(made);
        require(operation, code, arguments...);
        return owner;
    }

    /// Returns the items that the member function @p getAll stores for @p arguments.
    template <class Owner, class Made, class... Parameters, class... Arguments>
    std::vector<std::unique_ptr<Made>>
    makeAll(const char* operation,
            ZelDataResult_tags (Owner::*getAll)(std::vector<Made*>&, Parameters...) const,
            const Arguments&... arguments) const
    {
        HandedOut<Made> handedOut;
        require(operation, (object_->*getAll)(handedOut.items, arguments...), arguments...);
        if (handedOut.hasNull()) throw ZelDataError(ZelData_InternalError, operation);
        return handedOut.owned();
    }

    /// Throws if @p code is a failure of @p operation, and shows @p arguments.
    template <class... Arguments>
    void require(const char* operation, ZelDataResult_tags code,
                 const Arguments&... arguments) const
    {
        if (fails(code)) fail(operation, code, {ZelDataArgument(arguments)...});
    }

    /// Whether the view throws for @p code.
    bool fails(ZelDataResult_tags code) const noexcept
    {
        return warningsPass_ ? isError(code) : failed(code);
    }

    /// What is known about the failure of @p call; empty if nothing is. A view that knows more has
    /// a function of its own.
    std::string reason(const ZelDataCall& call) const
    {
        static_cast<void>(call);
        return {};
    }

private:
    /// Items that a collection returned; deletes those that owned() has not passed on.
    template <class Made>
    struct HandedOut {
        HandedOut() = default;
        HandedOut(const HandedOut&) = delete;
        HandedOut& operator=(const HandedOut&) = delete;
        ~HandedOut()
        {
            for (Made* item : items)
                delete item;
        }

        bool hasNull() const { return std::count(items.begin(), items.end(), nullptr) != 0; }

        std::vector<std::unique_ptr<Made>> owned()
        {
            std::vector<std::unique_ptr<Made>> owners(items.size());
            for (std::size_t i = 0; i < items.size(); ++i)
                owners[i].reset(std::exchange(items[i], nullptr));
            return owners;
        }

        std::vector<Made*> items;
    };

    const Self& self() const noexcept { return static_cast<const Self&>(*this); }

    [[noreturn]] void fail(const char* operation, ZelDataResult_tags code,
                           std::initializer_list<ZelDataArgument> arguments) const
    {
        const ZelDataCall call = {operation, code, arguments};
        throwZelDataError(call, [&] { return self().reason(call); });
    }

    Object* object_;
    bool warningsPass_ = false;
};

/// The checked operations of the object that @p owner owns; it must own one.
template <class Interface, class Deleter>
auto checked(const std::unique_ptr<Interface, Deleter>& owner) noexcept -> decltype(checked(*owner))
{
    return checked(*owner);
}

/// Does not compile: the view would outlive its object. Store what the factory returns, then call
/// checked() with that: `const auto captions = createCaptions(); checked(captions)...`.
template <class Interface, class Deleter>
void checked(const std::unique_ptr<Interface, Deleter>&& owner) = delete;

} // namespace ZelInterchangeData

#endif
