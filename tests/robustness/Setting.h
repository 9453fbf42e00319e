/// @file
/// Settings of the process that change how numbers and text are read and written.

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
    /// Puts the setting in place until the result is destroyed.
    std::function<std::shared_ptr<void>()> enter;
    /// What sampleText() returns under it.
    std::string sample;
};

/// Locales of C and C++, with a combination of both first, and the directions of rounding.
const std::vector<Setting>& allSettings();

/// What the C library and the streams make of a few values. It shows that a setting is in place.
std::string sampleText();

} // namespace ZelInterchangeData

#endif
