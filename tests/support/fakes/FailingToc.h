/// @file
/// Entries and tables of contents that fail where a test asks for it.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGTOC_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_FAILINGTOC_H

#include "support/fakes/FailingParts.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An entry, each operation of which can fail.
class FailingTocItem : public FailingTexts<FailingImage<FailingItem<ZelDataTocItem>>> {};

/// A table; the operations that other classes call can fail.
class FailingToc : public FailingLanguages<FailingCollection<ZelDataToc>> {
public:
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
        return runHandingOut("getTocItems", [&] { return Own::getTocItems(items); });
    }
};

} // namespace ZelInterchangeData

#endif
