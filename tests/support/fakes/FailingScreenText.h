/// @file
/// Screen text that fails where a test wants it.

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
    OVERRIDE_SETTER(setText, const std::string&)
    OVERRIDE_SETTER(setGroupId, unsigned long)
    OVERRIDE_GETTER(getText, std::string)
    OVERRIDE_GETTER(getGroupId, unsigned long)
};

/// A collection: each operation that a copy calls can fail.
class FailingScreenText : public FailingCollection<ZelDataScreenText> {
public:
    OVERRIDE_ACTION(clearScreenTextItems)
    OVERRIDE_SETTER(addScreenTextItem, const i_ZelDataScreenTextItem&)
    OVERRIDE_GETTER(getScreenTextItems, std::vector<i_ZelDataScreenTextItem*>)
};

} // namespace ZelInterchangeData

#endif
