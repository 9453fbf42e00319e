/// @file
/// How an argument of each type is read from the script, passed and reported.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_ARGUMENTS_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_ARGUMENTS_H

#include "Describe.h"
#include "Session.h"

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace model {

template <class T>
constexpr bool isObject =
    std::is_base_of_v<ZelInterchangeData::i_ZelDataResult, std::remove_cv_t<T>>;

template <class T>
inline constexpr bool isItemList = false;
template <class I>
inline constexpr bool isItemList<std::vector<I*>> = true;

/// A pointer that nobody may follow: the value of an out-argument before the call.
template <class I>
I* sentinel()
{
    alignas(std::max_align_t) static char place = 0;
    return reinterpret_cast<I*>(&place);
}

/// A value. The answer does not report it.
template <class T, class = void>
class Argument {
public:
    explicit Argument(Session& session) : value_(session.script().read<T>()) {}
    const T& pass() const { return value_; }
    void report(Session&) const {}

private:
    T value_;
};

template <class T>
class Argument<const T&, std::enable_if_t<!isObject<T>>> : public Argument<T> {
public:
    using Argument<T>::Argument;
};

/// A reference: the script gives the value before, the answer the value after.
template <class T>
class Argument<T&, std::enable_if_t<!isObject<T> && !isItemList<T> && !std::is_const_v<T>>> {
public:
    explicit Argument(Session& session) : value_(session.script().read<T>()) {}
    T& pass() { return value_; }
    void report(Session& session) const { session.answer(shown(value_)); }

private:
    T value_;
};

/// Another object, by its number. The answer reports its last error.
template <class I>
class Argument<I&, std::enable_if_t<isObject<I>>> {
public:
    explicit Argument(Session& session)
        : object_(session.object<std::remove_const_t<I>>(session.script().read<int>()))
    {
    }
    I& pass() const { return object_; }
    void report(Session& session) const { session.answer("e" + lastError(object_)); }

private:
    std::remove_const_t<I>& object_;
};

/// An out-pointer: "null", "full" or the number that the new object gets.
template <class I>
class Argument<I**, void> {
public:
    explicit Argument(Session& session) : where_(session.script().word())
    {
        if (where_ == "full") value_ = sentinel<I>();
    }
    I** pass() { return where_ == "null" ? nullptr : &value_; }
    void report(Session& session)
    {
        if (where_ == "null") return session.answer("null");
        if (where_ == "full") return session.answer(value_ == sentinel<I>() ? "kept" : "replaced");
        if (!value_) return session.answer("none");
        session.answer("made");
        session.answer("e" + lastError(*value_));
        session.keep(std::stoi(where_),
                     std::unique_ptr<ZelInterchangeData::i_ZelDataResult>(value_));
    }

private:
    std::string where_;
    I* value_ = nullptr;
};

/// A vector of items; the script says how many it holds before the call. The answer describes the
/// new ones, which are destroyed.
template <class I>
class Argument<std::vector<I*>&, void> {
public:
    explicit Argument(Session& session)
        : items_(session.script().read<std::size_t>(), sentinel<I>())
    {
    }
    std::vector<I*>& pass() { return items_; }
    void report(Session& session)
    {
        session.answer("[" + std::to_string(items_.size()));
        for (I* item : items_)
            session.answer(item == sentinel<I>() ? "kept" : taken(item));
        session.answer("]");
    }

private:
    static std::string taken(I* item)
    {
        const std::unique_ptr<I> owned(item);
        return described(*owned);
    }

    std::vector<I*> items_;
};

} // namespace model

#endif
