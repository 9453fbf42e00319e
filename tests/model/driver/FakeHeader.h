/// @file
/// A header that checks nothing.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_FAKEHEADER_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_FAKEHEADER_H

#include "FakeLanguage.h"

#include "ZelInterchangeData/i_ZelDataHeader.h"

#include <string>

namespace model {

/// A header that checks nothing.
class FakeHeader : public FakeLanguageOperations<ZelInterchangeData::i_ZelDataHeader> {
public:
    using Code = ZelDataResult_tags;
    using Text = std::string;
    using Number = unsigned long;

    Code isValid() const override { return done("isValid"); }
    Code clearHeader() override
    {
        return call("clearHeader", doing([&] { wipe(); }));
    }
    Code setAppName(const Text& v) override { return put("setAppName", appName_, v); }
    Code setAppVersion(const Text& v) override { return put("setAppVersion", appVersion_, v); }
    Code setTitle(const Text& v) override { return put("setTitle", title_, v); }
    Code setCreator(const Text& v) override { return put("setCreator", creator_, v); }
    Code setDescription(const Text& v) override { return put("setDescription", description_, v); }
    Code setKeywords(const Texts& v) override { return put("setKeywords", keywords_, v); }
    Code setIPodExplicit(bool v) override { return put("setIPodExplicit", iPodExplicit_, v); }
    Code setVideoLength(Number v) override { return put("setVideoLength", length_, v); }
    Code setVideoWidth(Number v) override { return put("setVideoWidth", width_, v); }
    Code setVideoHeight(Number v) override { return put("setVideoHeight", height_, v); }
    Code getAppName(Text& v) const override { return fetch("getAppName", appName_, v); }
    Code getAppVersion(Text& v) const override { return fetch("getAppVersion", appVersion_, v); }
    Code getTitle(Text& v) const override { return fetch("getTitle", title_, v); }
    Code getCreator(Text& v) const override { return fetch("getCreator", creator_, v); }
    Code getDescription(Text& v) const override { return fetch("getDescription", description_, v); }
    Code getKeywords(Texts& v) const override { return fetch("getKeywords", keywords_, v); }
    Code getIPodExplicit(bool& v) const override
    {
        return fetch("getIPodExplicit", iPodExplicit_, v);
    }
    Code getVideoLength(Number& v) const override { return fetch("getVideoLength", length_, v); }
    Code getVideoWidth(Number& v) const override { return fetch("getVideoWidth", width_, v); }
    Code getVideoHeight(Number& v) const override { return fetch("getVideoHeight", height_, v); }
    Code clearContentNames() override
    {
        return call("clearContentNames", doing([&] { names_.clear(); }));
    }
    Code addContentName(const Text& name) override
    {
        return call("addContentName", doing([&] { names_.push_back(name); }), notedList(name));
    }
    Code removeContentName(const Text& name) override
    {
        return call("removeContentName", doing([&] { removeFirst(names_, name); }),
                    notedList(name));
    }
    Code getContentNameCount(Number& count) const override
    {
        return call("getContentNameCount",
                    doing([&] { count = static_cast<Number>(names_.size()); }));
    }
    Code getContentNames(Texts& v) const override { return fetch("getContentNames", names_, v); }
    Code doesContentNameExist(Text& name, bool& exists) const override
    {
        return call("doesContentNameExist", doing([&] { exists = holds(names_, name); }),
                    notedList(name));
    }
    Code setShowSearchBar(bool v) override { return put("setShowSearchBar", searchBar_, v); }
    Code getShowSearchBar(bool& v) const override
    {
        return fetch("getShowSearchBar", searchBar_, v);
    }
    using i_ZelDataHeader::copyFrom;
    Code copyFrom(const i_ZelDataHeader& other) override
    {
        return call("copyFrom", [&] { return i_ZelDataHeader::copyFrom(other); });
    }

private:
    void wipe()
    {
        iPodExplicit_ = false;
        for (Text* text : {&appName_, &appVersion_, &title_, &creator_, &description_}) {
            text->clear();
        }
        length_ = width_ = height_ = 0;
        keywords_.clear();
        languages_.clear();
    }

    bool iPodExplicit_ = false;
    bool searchBar_ = false;
    Text appName_;
    Text appVersion_;
    Text title_;
    Text creator_;
    Text description_;
    Number length_ = 0;
    Number width_ = 0;
    Number height_ = 0;
    Texts keywords_;
    Texts names_;
};

} // namespace model

#endif
