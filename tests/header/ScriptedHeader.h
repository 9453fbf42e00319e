/// @file
/// A header whose calls follow a script.

#ifndef ZELINTERCHANGEDATA_TESTS_HEADER_SCRIPTEDHEADER_H
#define ZELINTERCHANGEDATA_TESTS_HEADER_SCRIPTEDHEADER_H

#include "header/ZelDataHeader.h"
#include "support/fakes/ScriptedLanguages.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A header in which all operations that a copy calls follow a script. A failing getter delivers its
/// value nevertheless; a failing setter does not store.
class ScriptedHeader : public ScriptedLanguages<ZelDataHeader> {
public:
    using Code = ZelDataResult_tags;
    using Text = std::string;
    using Number = unsigned long;
    using Header = ZelDataHeader;

    Code clearHeader() override
    {
        return script.run("clearHeader", [&] { return Header::clearHeader(); });
    }
    Code setAppName(const Text& v) override
    {
        return script.run("setAppName", [&] { return Header::setAppName(v); });
    }
    Code setAppVersion(const Text& v) override
    {
        return script.run("setAppVersion", [&] { return Header::setAppVersion(v); });
    }
    Code setTitle(const Text& v) override
    {
        return script.run("setTitle", [&] { return Header::setTitle(v); });
    }
    Code setCreator(const Text& v) override
    {
        return script.run("setCreator", [&] { return Header::setCreator(v); });
    }
    Code setDescription(const Text& v) override
    {
        return script.run("setDescription", [&] { return Header::setDescription(v); });
    }
    Code setKeywords(const std::vector<Text>& v) override
    {
        return script.run("setKeywords", [&] { return Header::setKeywords(v); });
    }
    Code setIPodExplicit(bool v) override
    {
        return script.run("setIPodExplicit", [&] { return Header::setIPodExplicit(v); });
    }
    Code setVideoLength(Number v) override
    {
        return script.run("setVideoLength", [&] { return Header::setVideoLength(v); });
    }
    Code setVideoWidth(Number v) override
    {
        return script.run("setVideoWidth", [&] { return Header::setVideoWidth(v); });
    }
    Code setVideoHeight(Number v) override
    {
        return script.run("setVideoHeight", [&] { return Header::setVideoHeight(v); });
    }
    Code clearContentNames() override
    {
        return script.run("clearContentNames", [&] { return Header::clearContentNames(); });
    }
    Code addContentName(const Text& v) override
    {
        return script.run("addContentName", [&] { return Header::addContentName(v); });
    }
    Code setShowSearchBar(bool v) override
    {
        return script.run("setShowSearchBar", [&] { return Header::setShowSearchBar(v); });
    }

    Code getAppName(Text& v) const override
    {
        return delivered("getAppName", Header::getAppName(v));
    }
    Code getAppVersion(Text& v) const override
    {
        return delivered("getAppVersion", Header::getAppVersion(v));
    }
    Code getTitle(Text& v) const override { return delivered("getTitle", Header::getTitle(v)); }
    Code getCreator(Text& v) const override
    {
        return delivered("getCreator", Header::getCreator(v));
    }
    Code getDescription(Text& v) const override
    {
        return delivered("getDescription", Header::getDescription(v));
    }
    Code getKeywords(std::vector<Text>& v) const override
    {
        return delivered("getKeywords", Header::getKeywords(v));
    }
    Code getIPodExplicit(bool& v) const override
    {
        return delivered("getIPodExplicit", Header::getIPodExplicit(v));
    }
    Code getVideoLength(Number& v) const override
    {
        return delivered("getVideoLength", Header::getVideoLength(v));
    }
    Code getVideoWidth(Number& v) const override
    {
        return delivered("getVideoWidth", Header::getVideoWidth(v));
    }
    Code getVideoHeight(Number& v) const override
    {
        return delivered("getVideoHeight", Header::getVideoHeight(v));
    }
    Code getContentNames(std::vector<Text>& v) const override
    {
        return delivered("getContentNames", Header::getContentNames(v));
    }
    Code getShowSearchBar(bool& v) const override
    {
        return delivered("getShowSearchBar", Header::getShowSearchBar(v));
    }

private:
    Code delivered(const char* operation, Code code) const
    {
        return script.run(operation, [code] { return code; });
    }
};

} // namespace ZelInterchangeData

#endif
