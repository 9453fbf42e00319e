/// @file
/// Screen texts that fail where a test asks for it.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGSCREENTEXT_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGSCREENTEXT_H

#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "support/fakes/FailingParts.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An item, each operation of which can fail.
class FailingScreenTextItem : public FailingSpan<FailingImage<FailingItem<ZelDataScreenTextItem>>> {
public:
    ZelDataResult_tags setText(const std::string& text) override
    {
        return run("setText", [&] { return Own::setText(text); });
    }
    ZelDataResult_tags setGroupId(unsigned long id) override
    {
        return run("setGroupId", [&] { return Own::setGroupId(id); });
    }
    ZelDataResult_tags getText(std::string& text) const override
    {
        return run("getText", [&] { return Own::getText(text); });
    }
    ZelDataResult_tags getGroupId(unsigned long& id) const override
    {
        return run("getGroupId", [&] { return Own::getGroupId(id); });
    }
};

/// A collection; the operations that other classes call can fail.
class FailingScreenText : public FailingCollection<ZelDataScreenText> {
public:
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
        return runHandingOut("getScreenTextItems", [&] { return Own::getScreenTextItems(items); });
    }
};

} // namespace ZelInterchangeData

#endif
