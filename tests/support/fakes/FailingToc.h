/// @file
/// Entries and tables of contents that fail where a test asks for it.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGTOC_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGTOC_H

#include "support/fakes/Failing.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An entry, each operation of which can fail.
class FailingTocItem : public Failing<ZelDataTocItem> {
    using Own = ZelDataTocItem;
    using Text = const std::string&;

public:
    ZelDataResult_tags isValid(bool deep) const override
    {
        return run("isValid", [&] { return Own::isValid(deep); });
    }
    ZelDataResult_tags clearText() override
    {
        return run("clearText", [&] { return Own::clearText(); });
    }
    ZelDataResult_tags setTextForLanguage(Text text, Text id) override
    {
        return run("setTextForLanguage", [&] { return Own::setTextForLanguage(text, id); });
    }
    ZelDataResult_tags setStart(long long start) override
    {
        return run("setStart", [&] { return Own::setStart(start); });
    }
    ZelDataResult_tags setImageFile(Text name) override
    {
        return run("setImageFile", [&] { return Own::setImageFile(name); });
    }
    ZelDataResult_tags setImageIndex(unsigned long index) override
    {
        return run("setImageIndex", [&] { return Own::setImageIndex(index); });
    }
    ZelDataResult_tags setImageOffset(unsigned long long offset) override
    {
        return run("setImageOffset", [&] { return Own::setImageOffset(offset); });
    }
    ZelDataResult_tags removeTextForLanguage(Text id) override
    {
        return run("removeTextForLanguage", [&] { return Own::removeTextForLanguage(id); });
    }
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override
    {
        return run("getLanguageIDs", [&] { return Own::getLanguageIDs(ids); });
    }
    ZelDataResult_tags getTextForLanguage(std::string& text, Text id) const override
    {
        return run("getTextForLanguage", [&] { return Own::getTextForLanguage(text, id); });
    }
    ZelDataResult_tags getStart(long long& start) const override
    {
        return run("getStart", [&] { return Own::getStart(start); });
    }
    ZelDataResult_tags getImageFile(std::string& name) const override
    {
        return run("getImageFile", [&] { return Own::getImageFile(name); });
    }
    ZelDataResult_tags getImageIndex(unsigned long& index) const override
    {
        return run("getImageIndex", [&] { return Own::getImageIndex(index); });
    }
    ZelDataResult_tags getImageOffset(unsigned long long& offset) const override
    {
        return run("getImageOffset", [&] { return Own::getImageOffset(offset); });
    }
};

/// A table, whose operations that others call can fail.
class FailingToc : public Failing<ZelDataToc> {
    using Own = ZelDataToc;

public:
    ZelDataResult_tags isValid(bool deep) const override
    {
        return run("isValid", [&] { return Own::isValid(deep); });
    }
    ZelDataResult_tags clearLanguages() override
    {
        return run("clearLanguages", [&] { return Own::clearLanguages(); });
    }
    ZelDataResult_tags addLanguage(const std::string& id) override
    {
        return run("addLanguage", [&] { return Own::addLanguage(id); });
    }
    ZelDataResult_tags getOrderedLanguageIDs(std::vector<std::string>& ids) const override
    {
        return run("getOrderedLanguageIDs", [&] { return Own::getOrderedLanguageIDs(ids); });
    }
    ZelDataResult_tags setFrameRate(unsigned long rate) override
    {
        return run("setFrameRate", [&] { return Own::setFrameRate(rate); });
    }
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override
    {
        return run("getFrameRate", [&] { return Own::getFrameRate(rate); });
    }
    ZelDataResult_tags setImageFile(const std::string& name) override
    {
        return run("setImageFile", [&] { return Own::setImageFile(name); });
    }
    ZelDataResult_tags getImageFile(std::string& name) const override
    {
        return run("getImageFile", [&] { return Own::getImageFile(name); });
    }
    ZelDataResult_tags clearTocItems() override
    {
        return run("clearTocItems", [&] { return Own::clearTocItems(); });
    }
    ZelDataResult_tags addTocItem(const i_ZelDataTocItem& item) override
    {
        return run("addTocItem", [&] { return Own::addTocItem(item); });
    }
    ZelDataResult_tags getTocItems(std::vector<i_ZelDataTocItem*>& items) const override
    {
        return run("getTocItems", [&] { return Own::getTocItems(items); });
    }
};

} // namespace ZelInterchangeData

#endif
