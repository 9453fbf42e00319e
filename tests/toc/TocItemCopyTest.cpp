/// @file
/// Copying entries: the rules of their own. The rest is in sets/CopyContractTest.cpp.

#include "toc/Entries.h"

namespace ZelInterchangeData {
namespace {

const Entry sourceEntry{7, {{"de", "Anfang"}, {"en", "Intro"}}, "s.png", 3, 4};

/// A foreign entry that lists a language twice.
class RepeatingItem : public ZelDataTocItem {
public:
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override
    {
        ids = {"de", "de"};
        return ZelData_Ok;
    }
};

TEST(TocItemCopyOfForeign, ALanguageListedTwiceStopsWithTheWarningOfTheSecond)
{
    RepeatingItem source;
    fill(source, sourceEntry);
    ZelDataTocItem target;
    EXPECT_CODE(target, ZelData_WarnAlreadyExists, target.copyFrom(source));
    EXPECT_EQ((Entry{0, {{"de", "Anfang"}}}), contentsOf(target));
}

/// A foreign entry that starts before the video.
class EarlyItem : public ZelDataTocItem {
public:
    ZelDataResult_tags getStart(long long& start) const override
    {
        start = -1;
        return ZelData_Ok;
    }
};

TEST(TocItemCopyOfForeign, AForeignValueIsCheckedLikeAnyOther)
{
    EarlyItem source;
    fill(source, sourceEntry);
    ZelDataTocItem target;
    EXPECT_CODE(target, ZelData_InvalidArgument, target.copyFrom(source));
    EXPECT_EQ((Entry{0, sourceEntry.titles}), contentsOf(target));
}

} // namespace
} // namespace ZelInterchangeData
