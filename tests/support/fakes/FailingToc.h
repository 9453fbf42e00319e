/// @file
/// Entries and tables of contents that fail where a test wants it.

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

/// A table: each operation that a copy calls can fail.
class FailingToc : public FailingLanguages<FailingCollection<ZelDataToc>> {
public:
    OVERRIDE_SETTER(setImageFile, const std::string&)
    OVERRIDE_GETTER(getImageFile, std::string)
    OVERRIDE_ACTION(clearTocItems)
    OVERRIDE_SETTER(addTocItem, const i_ZelDataTocItem&)
    OVERRIDE_GETTER(getTocItems, std::vector<i_ZelDataTocItem*>)
};

} // namespace ZelInterchangeData

#endif
