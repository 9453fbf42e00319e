/// @file
/// A document whose memory runs out at each allocation in turn.

#include "core/SampleSets.h"
#include "core/TempFile.h"
#include "core/WatchedDocument.h"
#include "core/ZelDataCore.h"
#include "core/ZelDataCoreXmp.h"
#include "support/Checks.h"
#include "support/FailingAllocation.h"

namespace ZelInterchangeData {
namespace {

constexpr auto xmp = ZelDataFormat_Xmp;
constexpr auto untouched = static_cast<ZelDataResult_tags>(0x7E57);

/// The code of @p action if only @p granted allocations succeed.
template <class Action>
ZelDataResult_tags codeWith(std::size_t granted, Action&& action)
{
    const FailingAllocation failing(granted);
    return action();
}

void fill(i_ZelInterchangeDataCore& document)
{
    EXPECT_EQ(ZelData_Ok, document.setDataHeader(*sampleHeader()));
    EXPECT_EQ(ZelData_Ok, document.setDataCaptions(*sampleCaptions()));
    EXPECT_EQ(ZelData_Ok, document.setDataToc(*sampleToc()));
    EXPECT_EQ(ZelData_Ok, document.setDataScreenText(*sampleScreenText()));
}

/// Runs @p action with more and more memory until it succeeds. Until then it must run out of memory
/// each time, after which @p check checks the state.
template <class Action, class Check>
void starve(Action&& action, Check&& check)
{
    std::size_t granted = 0;
    for (;; ++granted) {
        const auto code = codeWith(granted, action);
        if (code == ZelData_Ok) break;
        ASSERT_EQ(ZelData_OutOfMemory, code) << granted;
        check();
    }
    EXPECT_GT(granted, 0U);
}

template <class Set>
class StarvedDataSet : public ::testing::Test {
};

TYPED_TEST_SUITE(StarvedDataSet, AllSets, );

TYPED_TEST(StarvedDataSet, IsOutOfMemoryWhenSetAndCanBeSetAgain)
{
    const auto sample = TypeParam::sample();
    for (std::size_t granted = 0;; ++granted) {
        ZelDataCore document;
        const auto set = [&] { return (document.*TypeParam::set)(*sample); };
        const auto code = codeWith(granted, set);
        EXPECT_EQ(code, document.getLastError());
        if (code == ZelData_Ok) break;
        ASSERT_EQ(ZelData_OutOfMemory, code) << granted;
        EXPECT_EQ(ZelData_Ok, set());
    }
}

TYPED_TEST(StarvedDataSet, IsOutOfMemoryWhenFetchedAndStaysWhole)
{
    ZelDataCore document;
    EXPECT_EQ(ZelData_Ok, (document.*TypeParam::set)(*TypeParam::sample()));
    typename TypeParam::Fake target;
    const auto get = [&] { return (document.*TypeParam::get)(target); };
    starve(get, [&] {
        EXPECT_EQ(ZelData_OutOfMemory, document.getLastError());
        EXPECT_EQ(ZelData_Ok, get());
        EXPECT_EQ(TypeParam::contents, TypeParam::contentsOf(target));
    });
}

TEST(StarvedDocument, HeaderThatCannotBeMadeIsOutOfMemoryEvenWhenThereAreCaptions)
{
    ZelDataCore document;
    EXPECT_EQ(ZelData_Ok, document.setDataCaptions(*sampleCaptions()));
    const auto header = sampleHeader();
    EXPECT_CODE(document, ZelData_OutOfMemory,
                codeWith(0, [&] { return document.setDataHeader(*header); }));
}

TEST(StarvedDocument, HeaderThatCannotBeCopiedReportsTheCaptionsLastError)
{
    WatchedDocument<ZelDataCore> document;
    const auto header = sampleHeader();
    EXPECT_EQ(ZelData_Ok, header->setDescription(std::string(1000, 'd')));
    EXPECT_EQ(ZelData_Ok, document.setDataCaptions(*sampleCaptions()));
    EXPECT_EQ(ZelData_Ok, document.setDataHeader(*plainHeader()));
    document.held<TroubledCaptions>().setLastError(ZelData_WarnTiming);
    EXPECT_CODE(document, ZelData_WarnTiming,
                codeWith(0, [&] { return document.setDataHeader(*header); }));
}

TEST(StarvedDocument, LeavesTheStringAloneAndStoresAtMostOutOfMemory)
{
    ZelDataCore document;
    fill(document);
    for (const bool append : {false, true}) {
        std::string out = "before";
        document.setLastError(untouched);
        starve([&] { return document.writeString(out, xmp, append); },
               [&] {
                   const auto lastError = document.getLastError();
                   EXPECT_TRUE(lastError == untouched || lastError == ZelData_OutOfMemory);
                   EXPECT_EQ("before", out);
                   document.setLastError(untouched);
               });
        EXPECT_EQ(untouched, document.getLastError());
        EXPECT_EQ(append, out.find("before") == 0);
    }
}

TEST(StarvedDocument, FirstAllocatesToHandOverItsSetsAndStoresTheFailure)
{
    ZelDataCore document;
    fill(document);
    std::string out;
    EXPECT_CODE(document, ZelData_OutOfMemory,
                codeWith(0, [&] { return document.writeString(out, xmp, false); }));
}

TEST(StarvedDocument, TheWriterStoresOutOfMemory)
{
    ZelDataCoreXmp document;
    fill(document);
    std::string out = "before";
    starve([&] { return document.writeString(out, xmp, true); },
           [&] {
               EXPECT_EQ(ZelData_OutOfMemory, document.getLastError());
               EXPECT_EQ("before", out);
           });
    EXPECT_EQ(ZelData_Ok, document.getLastError());
}

TEST(StarvedDocument, TouchesNoFile)
{
    ZelDataCore plain;
    ZelDataCoreXmp writer;
    fill(plain);
    fill(writer);
    for (const i_ZelInterchangeDataCore* document :
         std::initializer_list<const i_ZelInterchangeDataCore*>{&plain, &writer}) {
        const TempFile file;
        file.fill("kept");
        starve([&] { return document->writeFile(file.path(), xmp, false); },
               [&] { ASSERT_EQ("kept", file.bytes()); });
        EXPECT_EQ(0U, file.bytes().find("<?xml version=\"1.0\" encoding=\"utf-8\" ?><x:xmpmeta"));
    }
}

TEST(StarvedDocument, LeaksNothing)
{
    const auto before = liveAllocations();
    {
        ZelDataCore document;
        fill(document);
        std::string out;
        starve([&] { return document.writeString(out, xmp, false); }, [] {});
    }
    EXPECT_EQ(before, liveAllocations());
}

} // namespace
} // namespace ZelInterchangeData
