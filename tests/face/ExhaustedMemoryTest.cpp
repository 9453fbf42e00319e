/// @file
/// The face when memory runs out at each allocation of a call in turn.

#include "ZelInterchangeData/ZelDataFace.h"
#include "core/TempFile.h"
#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <new>
#include <string>

namespace ZelInterchangeData {
namespace {

const std::string longText = "a text that is too long to be kept inside of a string object";
const std::string longId = "en-a-language-id-that-is-too-long-for-a-string";

/// How a call ended.
struct Ending {
    bool memoryFailed = false;
    bool wasTold = false;
};

Ending endingOf(const std::function<void()>& call, std::size_t granted, Shortage shortage)
{
    Ending ending;
    const FailingAllocation failing(granted, shortage);
    try {
        call();
    } catch (const ZelDataError& error) {
        ending.wasTold = error.code() == ZelData_OutOfMemory;
    } catch (const ZelDataException&) {
        ending.wasTold = true;
    } catch (const std::bad_alloc&) {
        ending.wasTold = true;
    }
    ending.memoryFailed = failing.failed();
    return ending;
}

/// Expects that @p call throws if any of its allocations fails, and that nothing leaks.
void expectThrown(const std::function<void()>& call)
{
    call(); // leaves its object in the same state for all later calls
    for (const auto shortage : {Shortage::Once, Shortage::Lasting}) {
        bool failed = true;
        for (std::size_t granted = 0; failed; ++granted) {
            SCOPED_TRACE("allocations granted: " + std::to_string(granted));
            const auto live = liveAllocations();
            const Ending ending = endingOf(call, granted, shortage);
            EXPECT_EQ(live, liveAllocations());
            EXPECT_EQ(ending.memoryFailed, ending.wasTold);
            EXPECT_TRUE(ending.memoryFailed || granted > 0) << "no allocation failed";
            failed = ending.memoryFailed && !::testing::Test::HasFailure();
        }
    }
}

template <class Made>
void expectFactoryThrows(Made (*create)())
{
    expectThrown([create] { create(); });
}

TEST(FaceWithoutMemory, FactoriesThrow)
{
    expectFactoryThrows(createDocument);
    expectFactoryThrows(createHeader);
    expectFactoryThrows(createCaptions);
    expectFactoryThrows(createToc);
    expectFactoryThrows(createScreenText);
    expectFactoryThrows<std::unique_ptr<i_ZelDataCaptionItem>>(createCaptionItem);
    expectFactoryThrows<std::unique_ptr<i_ZelDataTocItem>>(createTocItem);
    expectFactoryThrows<std::unique_ptr<i_ZelDataScreenTextItem>>(createScreenTextItem);
    expectThrown([] { createHeaderFormatter(); });
    expectThrown([] { createCaptionFormatter(); });
    expectThrown([] { createTocFormatter(); });
    expectThrown([] { createScreenTextFormatter(); });
}

TEST(FaceWithoutMemory, FactoriesThatFillTheirItemThrow)
{
    expectThrown([] { createCaptionItem(1, 2, {{longId, longText}, {"de", longText}}); });
    expectThrown([] { createTocItem(1, {{longId, longText}, {"de", longText}}); });
    expectThrown([] { createScreenTextItem(1, 2, longText); });
}

TEST(FaceWithoutMemory, OperationsAndGettersThrow)
{
    const auto header = createHeader();
    expectThrown([&] { checked(*header).setTitle(longText); });
    expectThrown([&] { static_cast<void>(checked(*header).getTitle()); });
    const auto document = createDocument();
    checked(*header).setVideoLength(1).setVideoWidth(2).setVideoHeight(3);
    checked(*document).setDataHeader(*header);
    expectThrown([&] { static_cast<void>(checked(*document).createDataHeader()); });
    expectThrown([&] { static_cast<void>(checked(*document).writeString()); });
    const TempFile file;
    expectThrown([&] { replaceFile(*document, file.path()); });
}

template <class Collection>
void expectItemsThrow(const Collection& collection)
{
    EXPECT_EQ(2U, items(collection).size());
    expectThrown([&] { static_cast<void>(items(collection)); });
}

TEST(FaceWithoutMemory, ItemsThrowAndLeakNothing)
{
    const auto captions = createCaptions();
    const auto toc = createToc();
    const auto screenText = createScreenText();
    for (const long long start : {1, 2}) {
        checked(*captions).addCaptionItem(*createCaptionItem(start, 9, {{longId, longText}}));
        checked(*toc).addTocItem(*createTocItem(start, {{longId, longText}}));
        checked(*screenText).addScreenTextItem(*createScreenTextItem(start, 9, longText));
    }
    expectItemsThrow(*captions);
    expectItemsThrow(*toc);
    expectItemsThrow(*screenText);
}

} // namespace
} // namespace ZelInterchangeData
