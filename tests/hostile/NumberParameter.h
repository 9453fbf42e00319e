/// @file
/// The list of all arguments that are numbers, each with what it does with the extremes.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_NUMBERPARAMETER_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_NUMBERPARAMETER_H

#include "hostile/Extremes.h"
#include "hostile/Packets.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// One argument of one operation.
struct NumberParameter {
    /// Class, operation with the types of its arguments where the name alone would not do, and the
    /// place of the argument, counted from 1.
    std::string name;
    /// Calls the operation with every extreme and looks at all that shows of it.
    std::function<void()> tryAll;
};

inline void PrintTo(const NumberParameter& parameter, std::ostream* out)
{
    *out << parameter.name;
}

using NumberParameters = std::vector<NumberParameter>;

/// A number that an object keeps.
template <class Object, class Number>
struct NumberField {
    std::string name;
    std::unique_ptr<Object> (*make)();
    ZelDataResult_tags (*set)(Object&, Number);
    Number (*get)(const Object&);
    bool (*accepts)(Number);
    std::vector<Number> values;
    /// A number that is accepted.
    Number mark;
    /// What the packet holds for a number, found once for the mark; null for what is not written.
    std::string (*written)(Number);
    /// Whether an object with the number can be written at all; null when all can.
    bool (*isWritable)(Number) = nullptr;
};

template <class Object, class Number>
void expectPacket(const NumberField<Object, Number>& field, const std::string& pattern,
                  Number value, const Object& object)
{
    if (!field.written) {
        EXPECT_TRUE(same(pattern, packetOf(object)));
    } else if (!field.isWritable || field.isWritable(value)) {
        const std::string mark = field.written(field.mark);
        EXPECT_NE(std::string::npos, pattern.find(mark)) << mark;
        EXPECT_TRUE(same(replaced(pattern, mark, field.written(value)), packetOf(object)));
    }
}

template <class Object, class Number>
void tryNumber(const NumberField<Object, Number>& field, Number value)
{
    const auto object = field.make();
    EXPECT_CODE(*object, ZelData_Ok, field.set(*object, field.mark));
    const std::string pattern = packetOf(*object);
    const bool accepted = field.accepts(value);
    EXPECT_CODE(*object, accepted ? ZelData_Ok : ZelData_InvalidArgument,
                field.set(*object, value));
    const Number kept = accepted ? value : field.mark;
    EXPECT_TRUE(isSameNumber(kept, field.get(*object)));
    expectPacket(field, pattern, kept, *object);
}

/// Adds an argument that is kept.
template <class Object, class Number>
void addNumber(NumberParameters& list, const NumberField<Object, Number>& field)
{
    list.push_back({field.name, [field] {
                        for (const Number value : field.values) {
                            SCOPED_TRACE(::testing::PrintToString(value));
                            tryNumber(field, value);
                        }
                    }});
}

/// What @p get delivers.
template <class Object, class Number>
Number delivered(const Object& object, ZelDataResult_tags (Object::*get)(Number&) const)
{
    Number number = {};
    EXPECT_EQ(ZelData_Ok, (object.*get)(number));
    return number;
}

template <class Number>
std::string decimal(Number number)
{
    return '"' + std::to_string(number) + '"';
}

template <class Number>
bool any(Number /*number*/)
{
    return true;
}

/// Adds the argument of the operation that keeps a code: it keeps any.
template <class Object>
void addLastError(NumberParameters& list, const std::string& of, std::unique_ptr<Object> (*make)())
{
    list.push_back({of + "setLastError 1", [make] {
                        const auto object = make();
                        for (const auto code : extremesOfEnumeration<ZelDataResult_tags>()) {
                            object->setLastError(code);
                            EXPECT_EQ(code, object->getLastError());
                        }
                    }});
}

/// Whether a collection takes @p rate.
inline bool isRate(unsigned long rate)
{
    return rate >= 1 && rate <= 10000;
}

/// Adds the frame rate of a collection. It is written as @p written gives it.
template <class Object>
void addFrameRate(NumberParameters& list, const std::string& of, std::unique_ptr<Object> (*make)(),
                  std::string (*written)(unsigned long))
{
    addNumber<Object, unsigned long>(
        list, {of + "setFrameRate 1", make,
               [](Object& o, unsigned long rate) { return o.setFrameRate(rate); },
               [](const Object& o) { return delivered(o, &Object::getFrameRate); }, isRate,
               extremesOf<unsigned long>({1, 10000}), 4711, written});
}

inline std::string writtenRate(unsigned long rate)
{
    return "frameRate=\"f" + std::to_string(rate) + '"';
}

/// Adds the index of an item in a collection of two. @p call gives the code for an index.
template <class Object>
void addIndex(NumberParameters& list, const std::string& name, std::unique_ptr<Object> (*make)(),
              ZelDataResult_tags (*call)(Object&, unsigned long))
{
    list.push_back({name, [make, call] {
                        for (const auto index : extremesOf<unsigned long>({0, 1, 2})) {
                            SCOPED_TRACE(index);
                            const auto object = make();
                            const bool exists = index < 2;
                            EXPECT_CODE(*object, exists ? ZelData_Ok : ZelData_InvalidArgument,
                                        call(*object, index));
                        }
                    }});
}

/// Adds what an item says about its image: any numbers.
template <class Item>
void addImageNumbers(NumberParameters& list, const std::string& of, std::unique_ptr<Item> (*make)())
{
    addNumber<Item, unsigned long>(
        list, {of + "setImageIndex 1", make,
               [](Item& i, unsigned long index) { return i.setImageIndex(index); },
               [](const Item& i) { return delivered(i, &Item::getImageIndex); }, any,
               extremesOf<unsigned long>(), 4711, decimal});
    addNumber<Item, unsigned long long>(
        list, {of + "setImageOffset 1", make,
               [](Item& i, unsigned long long offset) { return i.setImageOffset(offset); },
               [](const Item& i) { return delivered(i, &Item::getImageOffset); }, any,
               extremesOf<unsigned long long>(), 4711, decimal});
}

/// Adds the start of an item, at least 0.
template <class Item>
void addStart(NumberParameters& list, const std::string& of, std::unique_ptr<Item> (*make)(),
              bool (*isWritable)(long long))
{
    addNumber<Item, long long>(list, {of + "setStart 1", make,
                                      [](Item& i, long long start) { return i.setStart(start); },
                                      [](const Item& i) { return delivered(i, &Item::getStart); },
                                      [](long long start) { return start >= 0; },
                                      extremesOf<long long>(), 4711, decimal, isWritable});
}

/// Adds end and duration of an item. @p makeLate gives one that starts at 5.
template <class Item>
void addEnds(NumberParameters& list, const std::string& of, std::unique_ptr<Item> (*make)(),
             std::unique_ptr<Item> (*makeLate)(), bool (*isDuration)(long long))
{
    addNumber<Item, long long>(
        list, {of + "setEnd 1", makeLate, [](Item& i, long long end) { return i.setEnd(end); },
               [](const Item& i) { return delivered(i, &Item::getEnd); },
               [](long long end) { return end > 5; }, extremesOf<long long>({5}), 4711,
               [](long long end) { return decimal(end - 5); }});
    addNumber<Item, long long>(list,
                               {of + "setDuration 1", make,
                                [](Item& i, long long length) { return i.setDuration(length); },
                                [](const Item& i) { return delivered(i, &Item::getDuration); },
                                isDuration, extremesOf<long long>(), 4711, decimal});
}

/// All arguments.
const NumberParameters& allNumberParameters();

void addHeaderNumbers(NumberParameters& list);
void addCaptionNumbers(NumberParameters& list);
void addTocNumbers(NumberParameters& list);
void addScreenTextNumbers(NumberParameters& list);
void addFormatterNumbers(NumberParameters& list);
void addUtilityNumbers(NumberParameters& list);

} // namespace ZelInterchangeData

#endif
