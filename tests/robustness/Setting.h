/// @file
/// Settings of the process that change how others read and write numbers and text.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_SETTING_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_SETTING_H

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// One setting.
struct Setting {
    std::string name;
    /// Puts it in place; it goes when the result is destroyed.
    std::function<std::shared_ptr<void>()> enter;
    /// What sampleText() gives under it.
    std::string sample;
};

/// Locales of C and C++, both together first, and the directions of rounding.
const std::vector<Setting>& allSettings();

/// What the C library and the streams make of a few values, so that a setting shows to be in place.
std::string sampleText();

} // namespace ZelInterchangeData

#endif
