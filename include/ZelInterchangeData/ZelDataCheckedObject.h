/// @file
/// What the checked views of all objects have in common.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDOBJECT_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDOBJECT_H

#include "ZelInterchangeData/ZelDataCheck.h"
#include "ZelInterchangeData/ZelDataExport.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of an object: its operations throw ZelDataError if those of the object fail.
///
/// To make a view, call checked(). A view offers the same operations as its object:
/// - An operation without a value returns the view, so calls can be chained:
///   `checked(*header).setTitle("Intro").setVideoLength(90500)`.
/// - A getter returns its value, and an object in a `std::unique_ptr`.
/// - ZelDataError names the operation. The object is in the state in which the operation left it,
///   and its last error is set as always.
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
    /// Returns the view if @p code is not a failure of @p operation; otherwise throws.
    Self done(const char* operation, ZelDataResult_tags code) const
    {
        require(operation, code);
        return self();
    }

    /// Calls the member function @p call of the object with @p arguments and returns the view.
    template <class Call, class... Arguments>
    Self run(const char* operation, Call call, Arguments&&... arguments) const
    {
        return done(operation, (object_->*call)(std::forward<Arguments>(arguments)...));
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
        require(operation, code);
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
        require(operation, (object_->*getAll)(handedOut.items, arguments...));
        if (handedOut.hasNull()) throw ZelDataError(ZelData_InternalError, operation);
        return handedOut.owned();
    }

    /// Throws if @p code is a failure of @p operation.
    void require(const char* operation, ZelDataResult_tags code) const
    {
        if (warningsPass_)
            checkError(code, operation);
        else
            check(code, operation);
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

    Object* object_;
    bool warningsPass_ = false;
};

} // namespace ZelInterchangeData

#endif
