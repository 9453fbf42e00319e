/// @file
/// Filled headers, and the contents of a header in one value.

#ifndef ZELINTERCHANGEDATA_TESTS_HEADER_HEADERS_H
#define ZELINTERCHANGEDATA_TESTS_HEADER_HEADERS_H

#include "support/Checks.h"

#include <map>
#include <string>
#include <vector>

namespace ZelInterchangeData {

using Texts = std::vector<std::string>;

/// All that a header holds, as plain values; the defaults are those of a new header.
struct HeaderValues {
    std::string appName;
    std::string appVersion;
    std::string title;
    std::string creator;
    std::string description;
    Texts keywords;
    bool iPodExplicit = false;
    unsigned long videoLength = 0;
    unsigned long videoWidth = 0;
    unsigned long videoHeight = 0;
    Texts languages;
    Texts contentNames;
    bool showSearchBar = true;
};

/// Values that all differ from those of a new header.
inline HeaderValues sampleValues()
{
    return {"Recorder", "2.0", "Boats", "Ann", "About boats", {"b", "a", "b"},
            true,       90500, 640,     480,   {"en", "de"},  {"z.mp4", "a.xml"},
            false};
}

/// Sets what differs from a new header.
inline void fill(i_ZelDataHeader& header, const HeaderValues& values)
{
    EXPECT_CODE(header, ZelData_Ok, header.setAppName(values.appName));
    EXPECT_CODE(header, ZelData_Ok, header.setAppVersion(values.appVersion));
    EXPECT_CODE(header, ZelData_Ok, header.setTitle(values.title));
    EXPECT_CODE(header, ZelData_Ok, header.setCreator(values.creator));
    EXPECT_CODE(header, ZelData_Ok, header.setDescription(values.description));
    EXPECT_CODE(header, ZelData_Ok, header.setKeywords(values.keywords));
    EXPECT_CODE(header, ZelData_Ok, header.setIPodExplicit(values.iPodExplicit));
    if (values.videoLength != 0) {
        EXPECT_CODE(header, ZelData_Ok, header.setVideoLength(values.videoLength));
    }
    if (values.videoWidth != 0) {
        EXPECT_CODE(header, ZelData_Ok, header.setVideoWidth(values.videoWidth));
    }
    if (values.videoHeight != 0) {
        EXPECT_CODE(header, ZelData_Ok, header.setVideoHeight(values.videoHeight));
    }
    for (const std::string& id : values.languages)
        EXPECT_CODE(header, ZelData_Ok, header.addLanguage(id));
    for (const std::string& name : values.contentNames)
        EXPECT_CODE(header, ZelData_Ok, header.addContentName(name));
    EXPECT_CODE(header, ZelData_Ok, header.setShowSearchBar(values.showSearchBar));
}

/// What @p header holds. Passes each getter another value, which it must overwrite.
inline HeaderValues valuesOf(const i_ZelDataHeader& header)
{
    HeaderValues values = {"?", "?", "?", "?", "?", {"?"}, true, 77, 77, 77, {"?"}, {"?"}, false};
    EXPECT_CODE(header, ZelData_Ok, header.getAppName(values.appName));
    EXPECT_CODE(header, ZelData_Ok, header.getAppVersion(values.appVersion));
    EXPECT_CODE(header, ZelData_Ok, header.getTitle(values.title));
    EXPECT_CODE(header, ZelData_Ok, header.getCreator(values.creator));
    EXPECT_CODE(header, ZelData_Ok, header.getDescription(values.description));
    EXPECT_CODE(header, ZelData_Ok, header.getKeywords(values.keywords));
    EXPECT_CODE(header, ZelData_Ok, header.getIPodExplicit(values.iPodExplicit));
    EXPECT_CODE(header, ZelData_Ok, header.getVideoLength(values.videoLength));
    EXPECT_CODE(header, ZelData_Ok, header.getVideoWidth(values.videoWidth));
    EXPECT_CODE(header, ZelData_Ok, header.getVideoHeight(values.videoHeight));
    EXPECT_CODE(header, ZelData_Ok, header.getOrderedLanguageIDs(values.languages));
    EXPECT_CODE(header, ZelData_Ok, header.getContentNames(values.contentNames));
    EXPECT_CODE(header, ZelData_Ok, header.getShowSearchBar(values.showSearchBar));
    return values;
}

/// The values by the name of their setter, or of their list.
using Described = std::map<std::string, std::vector<std::string>>;

inline Described described(const HeaderValues& values)
{
    return {{"setAppName", {values.appName}},
            {"setAppVersion", {values.appVersion}},
            {"setTitle", {values.title}},
            {"setCreator", {values.creator}},
            {"setDescription", {values.description}},
            {"setKeywords", values.keywords},
            {"setIPodExplicit", {values.iPodExplicit ? "1" : "0"}},
            {"setVideoLength", {std::to_string(values.videoLength)}},
            {"setVideoWidth", {std::to_string(values.videoWidth)}},
            {"setVideoHeight", {std::to_string(values.videoHeight)}},
            {"languages", values.languages},
            {"contentNames", values.contentNames},
            {"setShowSearchBar", {values.showSearchBar ? "1" : "0"}}};
}

inline Described described(const i_ZelDataHeader& header)
{
    return described(valuesOf(header));
}

} // namespace ZelInterchangeData

#endif
