/// @file
/// The names of arguments, for tests.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_PARAMETERNAME_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_PARAMETERNAME_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

namespace ZelInterchangeData {

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

} // namespace ZelInterchangeData

#endif
