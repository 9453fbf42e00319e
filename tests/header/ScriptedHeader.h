/// @file
/// A header whose calls follow a script.

#ifndef ZELINTERCHANGEDATA_TESTS_HEADER_SCRIPTEDHEADER_H
#define ZELINTERCHANGEDATA_TESTS_HEADER_SCRIPTEDHEADER_H

#include "header/ZelDataHeader.h"
#include "support/fakes/ScriptedLanguages.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A header with a script for each operation that a copy calls. A failing getter still delivers its
/// value; a failing setter does not store.
class ScriptedHeader : public ScriptedLanguages<ZelDataHeader> {
public:
    using Text = std::string;
    using Number = unsigned long;

    OVERRIDE_ACTION(clearHeader)
    OVERRIDE_SETTER(setAppName, const Text&)
    OVERRIDE_SETTER(setAppVersion, const Text&)
    OVERRIDE_SETTER(setTitle, const Text&)
    OVERRIDE_SETTER(setCreator, const Text&)
    OVERRIDE_SETTER(setDescription, const Text&)
    OVERRIDE_SETTER(setKeywords, const std::vector<Text>&)
    OVERRIDE_SETTER(setIPodExplicit, bool)
    OVERRIDE_SETTER(setVideoLength, Number)
    OVERRIDE_SETTER(setVideoWidth, Number)
    OVERRIDE_SETTER(setVideoHeight, Number)
    OVERRIDE_ACTION(clearContentNames)
    OVERRIDE_SETTER(addContentName, const Text&)
    OVERRIDE_SETTER(setShowSearchBar, bool)

    OVERRIDE_GETTER(getAppName, Text)
    OVERRIDE_GETTER(getAppVersion, Text)
    OVERRIDE_GETTER(getTitle, Text)
    OVERRIDE_GETTER(getCreator, Text)
    OVERRIDE_GETTER(getDescription, Text)
    OVERRIDE_GETTER(getKeywords, std::vector<Text>)
    OVERRIDE_GETTER(getIPodExplicit, bool)
    OVERRIDE_GETTER(getVideoLength, Number)
    OVERRIDE_GETTER(getVideoWidth, Number)
    OVERRIDE_GETTER(getVideoHeight, Number)
    OVERRIDE_GETTER(getContentNames, std::vector<Text>)
    OVERRIDE_GETTER(getShowSearchBar, bool)
};

} // namespace ZelInterchangeData

#endif
