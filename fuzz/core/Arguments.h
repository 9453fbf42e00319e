/// @file
/// The arguments of an operation, by type: read from an input, passed on, and described afterwards.
///
/// An argument is copied before each use, so that the same operation can be called again.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_ARGUMENTS_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_ARGUMENTS_H

#include "core/Describe.h"
#include "core/World.h"
#include "support/Input.h"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace fuzz {

/// A finding with any fields, usually of a kind that exists.
inline ZelInterchangeData::ZelDataFinding readFinding(Input& input)
{
    ZelInterchangeData::ZelDataFinding finding;
    finding.kind = static_cast<ZelInterchangeData::ZelDataFinding_tags>(input.byte() % 32);
    finding.subject = static_cast<ZelInterchangeData::ZelDataFindingSubject_tags>(input.below(8));
    finding.item = input.number<unsigned long>();
    finding.start = input.number<long long>();
    finding.language = input.text();
    finding.property = input.text();
    finding.component = input.fraction();
    finding.value = input.number<long long>();
    finding.limit = input.number<long long>();
    finding.laterItem = input.number<unsigned long>();
    finding.laterStart = input.number<long long>();
    return finding;
}

/// A value of type @p Value from @p input.
template <class Value>
Value readValue(Input& input)
{
    if constexpr (std::is_same_v<Value, std::string>) {
        return input.text();
    } else if constexpr (std::is_same_v<Value, std::vector<std::string>>) {
        return input.texts();
    } else if constexpr (std::is_same_v<Value, ZelInterchangeData::ZelDataFinding>) {
        return readFinding(input);
    } else if constexpr (std::is_same_v<Value, std::vector<ZelInterchangeData::ZelDataFinding>>) {
        return Value(input.below(2));
    } else if constexpr (std::is_same_v<Value, bool>) {
        return input.flag();
    } else if constexpr (std::is_same_v<Value, float>) {
        return input.fraction();
    } else if constexpr (std::is_same_v<Value, ZelInterchangeData::ZelDataFormatType_tags>) {
        // Nearly always the one format: operations do nothing with any other.
        return static_cast<Value>(input.byte() == 255 ? 2 : 1);
    } else if constexpr (std::is_enum_v<Value>) {
        return static_cast<Value>(input.byte());
    } else {
        return input.number<Value>();
    }
}

template <class Value>
inline constexpr bool isItemList = false;
template <class Interface>
inline constexpr bool isItemList<std::vector<Interface*>> = true;

/// An argument that is only read.
template <class Value, class = void>
class Argument {
public:
    explicit Argument(Input& input) : value_(readValue<Value>(input)) {}

    const Value& pass(World& /*world*/) { return value_; }
    void show(std::string& /*text*/) {}
    bool isUntouched() const { return true; }

private:
    Value value_;
};

template <class Value>
class Argument<const Value&, std::enable_if_t<!std::is_abstract_v<Value>>>
    : public Argument<Value> {
public:
    using Argument<Value>::Argument;
};

/// An argument that receives a value.
template <class Value>
class Argument<Value&, std::enable_if_t<!std::is_const_v<Value> && !std::is_abstract_v<Value> &&
                                        !isItemList<Value>>> {
public:
    explicit Argument(Input& input) : before_(readValue<Value>(input)), value_(before_) {}

    Value& pass(World& /*world*/) { return value_; }
    void show(std::string& text) { describe(text, value_); }
    bool isUntouched() const
    {
        std::string before;
        std::string after;
        describe(before, before_);
        describe(after, value_);
        return before == after;
    }

private:
    Value before_;
    Value value_;
};

/// An object that is read or filled.
template <class Interface>
class Argument<Interface&, std::enable_if_t<std::is_abstract_v<Interface>>> {
public:
    explicit Argument(Input& input) : slot_(input.byte()) {}

    Interface& pass(World& world)
    {
        object_ = &world.object<std::remove_const_t<Interface>>(slot_);
        return *object_;
    }
    void show(std::string& text)
    {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): no object of the world is const.
        describe(text, *const_cast<std::remove_const_t<Interface>*>(object_));
    }
    /// A comparison with its twin shows whether it has changed.
    bool isUntouched() const { return true; }

private:
    std::size_t slot_;
    Interface* object_ = nullptr;
};

/// A pointer that receives a new object: an empty one, a full one, or null.
template <class Interface>
class Argument<Interface**> {
public:
    explicit Argument(Input& input) : kind_(input.below(8)) {}
    Argument(const Argument& other) : kind_(other.kind_) {}
    Argument& operator=(const Argument&) = delete;
    ~Argument() { forget(); }

    Interface** pass(World& world)
    {
        if (kind_ == 1) taken_ = made_ = &world.object<Interface>(0);
        return kind_ == 0 ? nullptr : &made_;
    }
    void show(std::string& text)
    {
        text += isUntouched() ? " untouched" : " made";
        if (!isUntouched()) describe(text, *made_);
    }
    bool isUntouched() const { return made_ == taken_; }

private:
    void forget()
    {
        if (!isUntouched()) delete made_;
    }

    std::size_t kind_;
    Interface* made_ = nullptr;
    Interface* taken_ = nullptr;
};

/// A list that receives copies of all items. Does not delete what it held before.
template <class Interface>
class Argument<std::vector<Interface*>&> {
public:
    explicit Argument(Input& input) : items_(input.below(3)) {}
    Argument(const Argument& other) : items_(other.items_.size()) {}
    Argument& operator=(const Argument&) = delete;
    ~Argument()
    {
        for (Interface* item : items_)
            delete item;
    }

    std::vector<Interface*>& pass(World& /*world*/) { return items_; }
    void show(std::string& text)
    {
        for (Interface* item : items_) {
            text += " item";
            if (item != nullptr) describe(text, *item);
        }
    }
    /// Operations that fail leave it empty; those that are not supported leave it unchanged.
    bool isUntouched() const
    {
        for (const Interface* item : items_)
            if (item != nullptr) return false;
        return true;
    }

private:
    std::vector<Interface*> items_;
};

} // namespace fuzz

#endif
