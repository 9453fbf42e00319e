/// @file
/// What the formatters of captions, table of contents and screen text have in common: the copy that
/// they hold, and the order of the items in the track.

#include "captions/Captions.h"
#include "screentext/Items.h"
#include "support/fakes/FailingCaptions.h"
#include "support/fakes/FailingScreenText.h"
#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

struct Captions : CaptionKind {
    using Fake = FailingCaptions;
    static constexpr auto allName = "getCaptionItems";
    static constexpr auto firstGetter = "getFrameRate";
    static Values item(long long start, const std::string& tag)
    {
        return {start, 1, {{"en", tag}}};
    }
};

struct Toc : TocKind {
    using Fake = FailingToc;
    static constexpr auto allName = "getTocItems";
    static constexpr auto firstGetter = "getImageFile";
    static Values item(long long start, const std::string& tag) { return {start, {{"en", tag}}}; }
};

struct ScreenText : ScreenTextKind {
    using Fake = FailingScreenText;
    static constexpr auto allName = "getScreenTextItems";
    static constexpr auto firstGetter = "getFrameRate";
    static Values item(long long start, const std::string& tag) { return {start, 1, tag}; }
};

template <class Kind>
class TrackFormatter : public testing::Test {
protected:
    using Items = std::vector<typename Kind::Values>;

    ZelDataResult_tags set(const typename Kind::Data& data)
    {
        return ((*formatter_).*Kind::setData)(data);
    }
    void give(const Items& items)
    {
        EXPECT_CODE(*formatter_, ZelData_Ok, set(*newCollection<Kind>(items)));
    }
    /// What the formatter writes, in place of "replaced".
    std::string written(bool flag = true)
    {
        std::string out = "replaced";
        EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->writeString(out, ZelDataFormat_Xmp, flag));
        return out;
    }
    std::string trackOf(const Items& items)
    {
        give(items);
        return written();
    }

    std::unique_ptr<typename Kind::Formatter> formatter_ = make(Kind::makeFormatter);
};

/// Expects @p tags in this order in @p track, each once.
void expectTags(const std::vector<std::string>& tags, const std::string& track)
{
    std::size_t from = 0;
    for (const std::string& tag : tags) {
        const auto at = track.find(tag, from);
        ASSERT_NE(std::string::npos, at) << tag << " in " << track;
        EXPECT_EQ(at, track.rfind(tag)) << tag << " in " << track;
        from = at;
    }
}

using Kinds = testing::Types<Captions, Toc, ScreenText>;
TYPED_TEST_SUITE(TrackFormatter, Kinds, KindName);

TYPED_TEST(TrackFormatter, WritesNothingForAnEmptyCollection)
{
    EXPECT_EQ("replaced", this->trackOf({}));
    EXPECT_CODE(*this->formatter_, ZelData_NotImplemented,
                this->formatter_->writeFile("never-written.xmp", ZelDataFormat_Xmp, false));
}

TYPED_TEST(TrackFormatter, WritesManyItemsInTheOrderOfTheirStarts)
{
    std::vector<typename TypeParam::Values> items;
    std::vector<std::string> tags;
    for (long long i = 0; i != 40; ++i) {
        const long long start = i * 7 % 40; // each start once
        items.push_back(TypeParam::item(start, "at " + std::to_string(start) + '.'));
        tags.push_back("at " + std::to_string(i) + '.');
    }
    expectTags(tags, this->trackOf(items));
}

TYPED_TEST(TrackFormatter, WritesItemsWithEqualStartsInTheOrderOfTheExchangeSort)
{
    expectTags({"early", "second", "first"},
               this->trackOf({TypeParam::item(5, "first"), TypeParam::item(5, "second"),
                              TypeParam::item(3, "early")}));
}

TYPED_TEST(TrackFormatter, SortsOnlyTheHeldCopy)
{
    const std::vector items{TypeParam::item(500, "b"), TypeParam::item(100, "a")};
    const auto data = newCollection<TypeParam>(items);
    EXPECT_CODE(*this->formatter_, ZelData_Ok, this->set(*data));
    this->written();
    EXPECT_EQ(items, valuesOf<TypeParam>(*data));
}

TYPED_TEST(TrackFormatter, WritesTheSameAgainWithAndWithoutTheFlag)
{
    this->give({TypeParam::item(9, "b"), TypeParam::item(9, "c"), TypeParam::item(0, "a")});
    const std::string first = this->written(false);
    EXPECT_NE("replaced", first);
    EXPECT_EQ(first, this->written(false));
    EXPECT_EQ(first, this->written(true));
}

TYPED_TEST(TrackFormatter, HoldsACopyThatTheNextCollectionReplaces)
{
    const auto data = newCollection<TypeParam>({TypeParam::item(1, "former")});
    EXPECT_CODE(*this->formatter_, ZelData_Ok, this->set(*data));
    EXPECT_EQ(ZelData_Ok, ((*data).*TypeParam::clear)());
    expectTags({"former"}, this->written());
    const std::string second = this->trackOf({TypeParam::item(2, "latter")});
    expectTags({"latter"}, second);
    EXPECT_EQ(std::string::npos, second.find("former"));
    EXPECT_EQ("replaced", this->trackOf({}));
}

TYPED_TEST(TrackFormatter, DoesNotValidateTheGivenCollection)
{
    typename TypeParam::Fake data;
    data.failAt("isValid", ZelData_InvalidData, ZelData_InvalidData);
    EXPECT_CODE(*this->formatter_, ZelData_Ok, this->set(data));
    EXPECT_EQ("replaced", this->written());
}

TYPED_TEST(TrackFormatter, HoldsWhatCouldBeCopiedAndReturnsTheLastErrorOfTheCopy)
{
    this->give({TypeParam::item(1, "former")});
    typename TypeParam::Fake data;
    addItems<TypeParam>(data, {TypeParam::item(2, "latter")});
    data.failAt(TypeParam::allName, ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(*this->formatter_, ZelData_NotFound, this->set(data));
    EXPECT_EQ("replaced", this->written());
}

TYPED_TEST(TrackFormatter, TurnsExceptionsOfAGivenCollectionIntoCodes)
{
    typename TypeParam::Fake data;
    data.throwAt(TypeParam::firstGetter, std::bad_alloc());
    EXPECT_CODE(*this->formatter_, ZelData_OutOfMemory, this->set(data));
    data.throwAt(TypeParam::firstGetter, std::runtime_error("foreign"));
    EXPECT_CODE(*this->formatter_, ZelData_InternalError, this->set(data));
}

template <class Kind>
class LanguageTrackFormatter : public TrackFormatter<Kind> {
};

using KindsWithLanguages = testing::Types<Captions, Toc>;
TYPED_TEST_SUITE(LanguageTrackFormatter, KindsWithLanguages, KindName);

TYPED_TEST(LanguageTrackFormatter, HoldsNothingIfALanguageIsListedTwice)
{
    this->give({TypeParam::item(1, "former")});
    const auto data = newCollection<TypeParam>({TypeParam::item(1, "latter")});
    EXPECT_EQ(ZelData_Ok, data->addLanguage("de"));
    EXPECT_EQ(ZelData_Ok, data->setOrderedLanguageIDs({"en", "en"}));
    EXPECT_CODE(*this->formatter_, ZelData_WarnAlreadyExists, this->set(*data));
    EXPECT_EQ("replaced", this->written());
}

} // namespace
} // namespace ZelInterchangeData
