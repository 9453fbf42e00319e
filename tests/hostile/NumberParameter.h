/// @file
/// The list of all arguments that are numbers, each with what it does with the extremes.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_NUMBERPARAMETER_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_NUMBERPARAMETER_H

#include "hostile/Extremes.h"
#include "hostile/Packets.h"
#include "hostile/Parameter.h"
#include "support/Items.h"

#include <functional>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An argument that is tried with every extreme.
using NumberParameter = Parameter<>;
using NumberParameters = std::vector<NumberParameter>;

/// A number that an object keeps.
template <class Object, class Number>
struct NumberField {
    Make<Object> make;
    std::function<ZelDataResult_tags(Object&, Number)> set;
    std::function<Number(const Object&)> get;
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
void addNumber(NumberParameters& list, const std::string& name,
               const NumberField<Object, Number>& field)
{
    list.push_back({name, [field] {
                        for (const Number value : field.values) {
                            SCOPED_TRACE(::testing::PrintToString(value));
                            tryNumber(field, value);
                        }
                    }});
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
void addLastError(NumberParameters& list, const std::string& of, const Make<Object>& make)
{
    list.push_back({of + "setLastError 1", [make] {
                        const auto object = make();
                        for (const auto code : extremesOfEnumeration<ZelDataResult_tags>()) {
                            object->setLastError(code);
                            EXPECT_EQ(code, object->getLastError());
                        }
                    }});
}

/// Adds the frame rate of a collection, from 1 to 10000. It is written as @p written gives it.
template <class Object>
void addFrameRate(NumberParameters& list, const std::string& of, const Make<Object>& make,
                  std::string (*written)(unsigned long))
{
    addNumber<Object, unsigned long>(list, of + "setFrameRate 1",
                                     {make, &Object::setFrameRate,
                                      delivering(&Object::getFrameRate),
                                      [](unsigned long rate) { return rate >= 1 && rate <= 10000; },
                                      extremesOf<unsigned long>({1, 10000}), 4711, written});
}

inline std::string writtenRate(unsigned long rate)
{
    return "frameRate=\"f" + std::to_string(rate) + '"';
}

/// Adds the index of an item, named @p item, in a collection of two items that hold @p values.
template <class Kind>
void addIndices(NumberParameters& list, const std::string& of, const std::string& item,
                const typename Kind::Values& values)
{
    using Data = typename Kind::Data;
    const auto add = [&](const std::string& name, auto call) {
        list.push_back({of + name, [values, call] {
                            for (const auto index : extremesOf<unsigned long>({0, 1, 2})) {
                                SCOPED_TRACE(index);
                                const auto data = newCollection<Kind>({values, values});
                                const auto code = index < 2 ? ZelData_Ok : ZelData_InvalidArgument;
                                EXPECT_CODE(*data, code, call(*data, index));
                            }
                        }});
    };
    add("remove" + item + "At 1",
        [](Data& data, unsigned long index) { return (data.*Kind::removeAt)(index); });
    add("get" + item + "At 2", [](const Data& data, unsigned long index) {
        typename Kind::Item* copy = nullptr;
        const auto code = (data.*Kind::at)(&copy, index);
        const std::unique_ptr<typename Kind::Item> owned(copy);
        EXPECT_EQ(code == ZelData_Ok, owned != nullptr);
        return code;
    });
}

/// Adds what an item says about its image: any numbers.
template <class Item>
void addImageNumbers(NumberParameters& list, const std::string& of, const Make<Item>& make)
{
    addNumber<Item, unsigned long>(list, of + "setImageIndex 1",
                                   {make, &Item::setImageIndex, delivering(&Item::getImageIndex),
                                    any, extremesOf<unsigned long>(), 4711, decimal});
    addNumber<Item, unsigned long long>(list, of + "setImageOffset 1",
                                        {make, &Item::setImageOffset,
                                         delivering(&Item::getImageOffset), any,
                                         extremesOf<unsigned long long>(), 4711, decimal});
}

/// Adds the start of an item, at least 0.
template <class Item>
void addStart(NumberParameters& list, const std::string& of, const Make<Item>& make,
              bool (*isWritable)(long long) = nullptr)
{
    addNumber<Item, long long>(list, of + "setStart 1",
                               {make, &Item::setStart, delivering(&Item::getStart),
                                [](long long start) { return start >= 0; }, extremesOf<long long>(),
                                4711, decimal, isWritable});
}

/// Adds end and duration of an item, the end to one that starts at 5.
template <class Item>
void addEnds(NumberParameters& list, const std::string& of, const Make<Item>& make,
             bool (*isDuration)(long long))
{
    const auto makeLate = [make] {
        auto item = make();
        EXPECT_EQ(ZelData_Ok, item->setStart(5));
        return item;
    };
    addNumber<Item, long long>(list, of + "setEnd 1",
                               {makeLate, &Item::setEnd, delivering(&Item::getEnd),
                                [](long long end) { return end > 5; }, extremesOf<long long>({5}),
                                4711, [](long long end) { return decimal(end - 5); }});
    addNumber<Item, long long>(list, of + "setDuration 1",
                               {make, &Item::setDuration, delivering(&Item::getDuration),
                                isDuration, extremesOf<long long>(), 4711, decimal});
}

void addHeaderNumbers(NumberParameters& list);
void addCaptionNumbers(NumberParameters& list);
void addTocNumbers(NumberParameters& list);
void addScreenTextNumbers(NumberParameters& list);
void addFormatterNumbers(NumberParameters& list);
void addUtilityNumbers(NumberParameters& list);

} // namespace ZelInterchangeData

#endif
