/// @file
/// Screen texts that fail where a test asks for it.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGSCREENTEXT_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGSCREENTEXT_H

#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "support/fakes/Failing.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An item, each operation of which can fail.
class FailingScreenTextItem : public Failing<ZelDataScreenTextItem> {
    using Own = ZelDataScreenTextItem;

public:
    ZelDataResult_tags isValid(bool deep) const override
    {
        return run("isValid", [&] { return Own::isValid(deep); });
    }
    ZelDataResult_tags clearText() override
    {
        return run("clearText", [&] { return Own::clearText(); });
    }
    ZelDataResult_tags setText(const std::string& text) override
    {
        return run("setText", [&] { return Own::setText(text); });
    }
    ZelDataResult_tags setStart(long long start) override
    {
        return run("setStart", [&] { return Own::setStart(start); });
    }
    ZelDataResult_tags setEnd(long long end) override
    {
        return run("setEnd", [&] { return Own::setEnd(end); });
    }
    ZelDataResult_tags setDuration(long long duration) override
    {
        return run("setDuration", [&] { return Own::setDuration(duration); });
    }
    ZelDataResult_tags setImageFile(const std::string& name) override
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
    ZelDataResult_tags setGroupId(unsigned long id) override
    {
        return run("setGroupId", [&] { return Own::setGroupId(id); });
    }
    ZelDataResult_tags getText(std::string& text) const override
    {
        return run("getText", [&] { return Own::getText(text); });
    }
    ZelDataResult_tags getStart(long long& start) const override
    {
        return run("getStart", [&] { return Own::getStart(start); });
    }
    ZelDataResult_tags getEnd(long long& end) const override
    {
        return run("getEnd", [&] { return Own::getEnd(end); });
    }
    ZelDataResult_tags getDuration(long long& duration) const override
    {
        return run("getDuration", [&] { return Own::getDuration(duration); });
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
    ZelDataResult_tags getGroupId(unsigned long& id) const override
    {
        return run("getGroupId", [&] { return Own::getGroupId(id); });
    }
};

/// A collection, whose operations that others call can fail.
class FailingScreenText : public Failing<ZelDataScreenText> {
    using Own = ZelDataScreenText;

public:
    ZelDataResult_tags isValid(bool deep) const override
    {
        return run("isValid", [&] { return Own::isValid(deep); });
    }
    ZelDataResult_tags setFrameRate(unsigned long rate) override
    {
        return run("setFrameRate", [&] { return Own::setFrameRate(rate); });
    }
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override
    {
        return run("getFrameRate", [&] { return Own::getFrameRate(rate); });
    }
    ZelDataResult_tags clearScreenTextItems() override
    {
        return run("clearScreenTextItems", [&] { return Own::clearScreenTextItems(); });
    }
    ZelDataResult_tags addScreenTextItem(const i_ZelDataScreenTextItem& item) override
    {
        return run("addScreenTextItem", [&] { return Own::addScreenTextItem(item); });
    }
    ZelDataResult_tags
    getScreenTextItems(std::vector<i_ZelDataScreenTextItem*>& items) const override
    {
        return run("getScreenTextItems", [&] { return Own::getScreenTextItems(items); });
    }
};

} // namespace ZelInterchangeData

#endif
