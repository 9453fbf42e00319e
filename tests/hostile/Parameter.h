/// @file
/// Arguments of operations, and what both lists of them share.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_PARAMETER_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_PARAMETER_H

#include "support/Checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <initializer_list>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// One argument of one operation.
template <class... Tried>
struct Parameter {
    /// Class, operation with the types of its arguments where the name alone would not do, and the
    /// place of the argument, counted from 1.
    std::string name;
    /// Calls the operation with what is tried and looks at all that shows of it.
    std::function<void(Tried...)> tryWith;
};

template <class... Tried>
void PrintTo(const Parameter<Tried...>& parameter, std::ostream* out)
{
    *out << parameter.name;
}

/// The list that all of @p adders add to.
template <class List>
List collected(std::initializer_list<void (*)(List&)> adders)
{
    List list;
    for (const auto add : adders)
        add(list);
    return list;
}

/// The name of an argument as one that a test may have.
template <class Parameter>
std::string testName(const ::testing::TestParamInfo<Parameter>& parameter)
{
    std::string name = parameter.param.name;
    const auto isNoLetter = [](unsigned char c) { return std::isalnum(c) == 0; };
    std::replace_if(name.begin(), name.end(), isNoLetter, '_');
    return name;
}

/// The names of all, each as often as it occurs.
template <class Parameter>
std::multiset<std::string> namesOf(const std::vector<Parameter>& parameters)
{
    std::multiset<std::string> names;
    for (const Parameter& parameter : parameters)
        names.insert(parameter.name);
    return names;
}

template <class Object>
using Make = std::function<std::unique_ptr<Object>()>;

/// What @p get delivers.
template <class Object, class Value>
Value delivered(const Object& object, ZelDataResult_tags (Object::*get)(Value&) const)
{
    Value value = {};
    EXPECT_EQ(ZelData_Ok, (object.*get)(value));
    return value;
}

/// A function that gives what @p get delivers.
template <class Object, class Value>
auto delivering(ZelDataResult_tags (Object::*get)(Value&) const)
{
    return [get](const Object& object) { return delivered(object, get); };
}

} // namespace ZelInterchangeData

#endif
