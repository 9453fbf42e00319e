/// @file
/// Distinct documents in many threads. Each test runs in a process of its own and does not use the
/// library before its threads start, so that they race for the first use of everything.

#include "ZelInterchangeData/zeldata.h"
#include "core/TempFile.h"
#include "robustness/Contents.h"
#include "robustness/Operation.h"
#include "robustness/Subjects.h"
#include "support/Checks.h"
#include "support/Dice.h"
#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace ZelInterchangeData {
namespace {

constexpr std::size_t threadCount = 16;
constexpr std::size_t writeCount = 10000;
constexpr std::size_t writesPerThread = writeCount / threadCount;
constexpr auto xmp = ZelDataFormat_Xmp;

/// Lets no thread through until all have arrived.
class Barrier {
public:
    void wait()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        if (++arrived_ == threadCount) everybody_.notify_all();
        everybody_.wait(lock, [this] { return arrived_ == threadCount; });
    }

private:
    std::mutex mutex_;
    std::condition_variable everybody_;
    std::size_t arrived_ = 0;
};

/// Calls @p work with the number of its thread, in all threads at once.
void race(const std::function<void(std::size_t)>& work)
{
    Barrier barrier;
    std::vector<std::thread> threads;
    for (std::size_t number = 0; number < threadCount; ++number) {
        threads.emplace_back([&, number] {
            barrier.wait();
            work(number);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

std::string ownText(std::size_t number)
{
    return "the <text> of the thread with the number " + std::to_string(number);
}

void addItems(i_ZelDataCaptions& captions, i_ZelDataToc& toc, i_ZelDataScreenText& screenText,
              std::size_t number)
{
    const auto caption = make(&ZelDataUtilities::createCaptionItemData);
    const auto entry = make(&ZelDataUtilities::createTocItemData);
    const auto shown = make(&ZelDataUtilities::createScreenTextItemData);
    const auto text = ownText(number);
    expectOk({caption->setTextForLanguage(text, "de"), caption->setTextForLanguage(text, "cu"),
              caption->setDuration(2000), captions.addCaptionItem(*caption),
              entry->setTextForLanguage(text, "en"), toc.addTocItem(*entry), shown->setText(text),
              shown->setDuration(5), screenText.addScreenTextItem(*shown)});
}

std::unique_ptr<i_ZelDataHeader> ownHeader(std::size_t number)
{
    auto header = make(&ZelDataUtilities::createHeaderData);
    expectOk({header->setTitle(ownText(number)), header->setVideoLength(1000 + number),
              header->setVideoWidth(640), header->setVideoHeight(480)});
    return header;
}

/// A document whose contents name the thread.
std::unique_ptr<i_ZelInterchangeDataCore> ownDocument(std::size_t number)
{
    const auto captions = make(&ZelDataUtilities::createCaptionData);
    const auto toc = make(&ZelDataUtilities::createTocData);
    const auto screenText = make(&ZelDataUtilities::createScreenTextData);
    addItems(*captions, *toc, *screenText, number);
    std::unique_ptr<i_ZelInterchangeDataCore> document(ZELDataCreator::createInterchangeData());
    expectOk({document->setDataHeader(*ownHeader(number)), document->setDataCaptions(*captions),
              document->setDataToc(*toc), document->setDataScreenText(*screenText)});
    return document;
}

std::string writtenAsString(const i_ZelInterchangeDataCore& document)
{
    std::string packet;
    EXPECT_EQ(ZelData_Ok, document.writeString(packet, xmp, false));
    return dateMasked(packet);
}

std::string writtenAsFile(const i_ZelInterchangeDataCore& document)
{
    const TempFile file;
    EXPECT_EQ(ZelData_Ok, document.writeFile(file.path(), xmp, false));
    const std::string declaration = "<?xml version=\"1.0\" encoding=\"utf-8\" ?>";
    const std::string bytes = file.bytes();
    EXPECT_EQ(declaration, bytes.substr(0, declaration.size()));
    return dateMasked(bytes.substr(declaration.size()));
}

/// Writes @p document often, expects the same each time, and returns it.
std::string writtenOften(const i_ZelInterchangeDataCore& document)
{
    std::string first = writtenAsString(document);
    std::size_t differing = 0;
    for (std::size_t i = 1; i < writesPerThread; ++i) {
        const auto again = i % 25 == 0 ? writtenAsFile(document) : writtenAsString(document);
        if (again != first) ++differing;
    }
    EXPECT_EQ(0U, differing);
    return first;
}

/// Expects that the threads wrote what one thread alone writes.
void expectAsAlone(const std::vector<std::string>& packets)
{
    for (std::size_t number = 0; number < threadCount; ++number) {
        EXPECT_EQ(writtenAsString(*ownDocument(number)), packets[number]);
        EXPECT_NE(std::string::npos, packets[number].find(std::to_string(1000 + number)));
    }
}

TEST(Threads, EachMakesAndWritesItsOwnDocument)
{
    std::vector<std::string> packets(threadCount);
    race([&](std::size_t number) { packets[number] = writtenOften(*ownDocument(number)); });
    expectAsAlone(packets);
}

/// What @p operation returns and leaves in each thread when all of them call it at once.
std::vector<std::string> outcomesInThreads(const Operation& operation)
{
    std::vector<std::string> outcomes(threadCount);
    race([&](std::size_t number) { outcomes[number] = outcomeOf(operation); });
    return outcomes;
}

TEST(Threads, AllCallEachOperationAtOnceAndForTheFirstTime)
{
    for (const Operation& operation : allOperations()) {
        const auto outcomes = outcomesInThreads(operation);
        const std::vector<std::string> expected(threadCount, outcomeOf(operation));
        EXPECT_EQ(expected, outcomes) << operation.name;
    }
}

struct Sets {
    std::unique_ptr<i_ZelDataCaptions> captions = make(&ZelDataUtilities::createCaptionData);
    std::unique_ptr<i_ZelDataToc> toc = make(&ZelDataUtilities::createTocData);
    std::unique_ptr<i_ZelDataScreenText> text = make(&ZelDataUtilities::createScreenTextData);
};

/// Copies that share their items only with each other, so that one of the threads releases the last
/// share.
std::vector<Sets> copiesOfOneSet()
{
    const Sets original;
    addItems(*original.captions, *original.toc, *original.text, threadCount);
    std::vector<Sets> copies(threadCount);
    for (Sets& copy : copies) {
        expectOk({copy.captions->copyFrom(*original.captions), copy.toc->copyFrom(*original.toc),
                  copy.text->copyFrom(*original.text)});
    }
    return copies;
}

/// Replaces the item of each set with the thread's own.
void change(const Sets& sets, std::size_t number)
{
    addItems(*sets.captions, *sets.toc, *sets.text, number);
    expectOk({sets.captions->removeCaptionItemAt(0), sets.toc->removeTocItemAt(0),
              sets.text->removeScreenTextItemAt(0)});
}

void hand(i_ZelInterchangeDataCore& document, const Sets& sets)
{
    expectOk({document.setDataCaptions(*sets.captions), document.setDataToc(*sets.toc),
              document.setDataScreenText(*sets.text)});
}

TEST(Threads, EachChangesAndWritesItsOwnCopyOfOneSet)
{
    const auto copies = copiesOfOneSet();
    std::vector<std::string> packets(threadCount);
    race([&](std::size_t number) {
        const Sets& own = copies[number];
        const auto document = ownDocument(number);
        hand(*document, own);
        EXPECT_NE(std::string::npos, writtenAsString(*document).find("the number 16<"));
        change(own, number);
        hand(*document, own);
        packets[number] = writtenOften(*document);
    });
    expectAsAlone(packets);
}

/// What a thread owns until it exchanges it with what another one left.
struct Belongings {
    Sets sets;
    std::unique_ptr<i_ZelDataHeader> header = ownHeader(0);
    std::unique_ptr<i_ZelDataCaptionItem> caption = filledCaption();
    std::unique_ptr<i_ZelDataTocItem> entry = filledEntry();
    std::unique_ptr<i_ZelDataScreenTextItem> shown = filledScreenTextItem();
    std::unique_ptr<i_ZelInterchangeDataCore> document{ZELDataCreator::createInterchangeData()};
};

/// Belongings that any thread may copy or exchange, one thread at a time.
struct Place {
    std::mutex mutex;
    Belongings belongings;
};

/// Fewer than threads, so that they meet.
using Places = std::vector<Place>;
constexpr std::size_t placeCount = threadCount / 2;

/// A thread that copies, changes, exchanges and destroys objects whose memory others share.
class Trader {
public:
    Trader(std::size_t number, Places& places) : number_(number), dice_(number + 1), places_(places)
    {
    }

    void step()
    {
        using Step = void (Trader::*)();
        constexpr std::array<Step, 10> steps = {
            &Trader::copySets,   &Trader::copyItems, &Trader::copyDocument, &Trader::changeSets,
            &Trader::changeItem, &Trader::takeItems, &Trader::fillDocument, &Trader::write,
            &Trader::exchange,   &Trader::startAgain};
        (this->*steps[dice_.below(steps.size())])();
    }

private:
    /// Calls @p action with the belongings at any place, which no other thread uses meanwhile.
    template <class Action>
    void atAnyPlace(Action&& action)
    {
        Place& place = places_[dice_.below(places_.size())];
        const std::lock_guard<std::mutex> lock(place.mutex);
        action(place.belongings);
    }

    void copySets()
    {
        const Sets copies;
        atAnyPlace([&](const Belongings& there) {
            expectOk({copies.captions->copyFrom(*there.sets.captions),
                      copies.toc->copyFrom(*there.sets.toc),
                      copies.text->copyFrom(*there.sets.text)});
        });
        expectOk({own_.sets.captions->copyFrom(*copies.captions),
                  own_.sets.toc->copyFrom(*copies.toc), own_.sets.text->copyFrom(*copies.text)});
        keepFew();
    }

    void copyItems()
    {
        atAnyPlace([&](const Belongings& there) {
            expectOk({own_.header->copyFrom(*there.header), own_.caption->copyFrom(*there.caption),
                      own_.entry->copyFrom(*there.entry), own_.shown->copyFrom(*there.shown)});
        });
    }

    /// The sets of a document there; it may have none.
    void copyDocument()
    {
        atAnyPlace([&](const Belongings& there) {
            static_cast<void>(there.document->getDataHeader(*own_.header));
            static_cast<void>(there.document->getDataCaptions(*own_.sets.captions));
            static_cast<void>(there.document->getDataToc(*own_.sets.toc));
            static_cast<void>(there.document->getDataScreenText(*own_.sets.text));
        });
        keepFew();
    }

    void changeSets()
    {
        addItems(*own_.sets.captions, *own_.sets.toc, *own_.sets.text, number_);
        expectOk({own_.sets.captions->addCaptionItem(*own_.caption),
                  own_.sets.toc->addTocItem(*own_.entry),
                  own_.sets.text->addScreenTextItem(*own_.shown)});
        keepFew();
    }

    void changeItem()
    {
        const std::string text = ownText(number_);
        expectOk({own_.header->setTitle(text), own_.shown->setText(text)});
        EXPECT_FALSE(isError(own_.caption->setTextForLanguage(text, "de")));
        EXPECT_FALSE(isError(own_.entry->setTextForLanguage(text, "en")));
    }

    /// Copies of the first items, unless there are none.
    void takeItems()
    {
        i_ZelDataCaptionItem* caption = nullptr;
        i_ZelDataTocItem* entry = nullptr;
        i_ZelDataScreenTextItem* shown = nullptr;
        if (failed(own_.sets.captions->getCaptionItemAt(&caption, 0))) return;
        own_.caption.reset(caption);
        expectOk({own_.sets.toc->getTocItemAt(&entry, 0)});
        own_.entry.reset(entry);
        expectOk({own_.sets.text->getScreenTextItemAt(&shown, 0)});
        own_.shown.reset(shown);
    }

    void fillDocument()
    {
        hand(*own_.document, own_.sets);
        expectOk({own_.document->setDataHeader(*own_.header)});
    }

    void write()
    {
        fillDocument();
        const std::string packet = writtenAsString(*own_.document);
        EXPECT_EQ(packet, writtenAsString(*own_.document));
    }

    void exchange()
    {
        atAnyPlace([&](Belongings& there) { std::swap(there, own_); });
    }

    void startAgain() { own_ = Belongings(); }

    void keepFew()
    {
        unsigned long count = 0;
        expectOk({own_.sets.captions->getCaptionItemCount(count)});
        if (count < 20) return;
        own_.sets = Sets();
    }

    std::size_t number_;
    Dice dice_;
    Places& places_;
    Belongings own_;
};

/// How many blocks more than before are allocated after @p action, of those that this thread
/// allocates and frees.
template <class Action>
long long blocksLeftBy(Action&& action)
{
    const long long before = liveAllocations();
    action();
    return liveAllocations() - before;
}

/// How long the threads trade: as the environment says, otherwise briefly.
std::chrono::seconds tradingTime()
{
    const char* seconds = std::getenv("ZELINTERCHANGEDATA_STRESS_SECONDS");
    return std::chrono::seconds(seconds != nullptr ? std::atol(seconds) : 1);
}

TEST(Threads, TradeSharedCopiesAndLeaveNoMemoryBehind)
{
    std::atomic<long long> blocks{0}; // one thread frees what another one allocated
    std::atomic<long long> steps{0};
    std::unique_ptr<Places> places;
    blocks += blocksLeftBy([&] { places = std::make_unique<Places>(placeCount); });
    race([&](std::size_t number) {
        const auto end = std::chrono::steady_clock::now() + tradingTime();
        blocks += blocksLeftBy([&] {
            Trader trader(number, *places);
            do {
                trader.step();
                ++steps;
            } while (std::chrono::steady_clock::now() < end);
        });
    });
    EXPECT_NE(0, blocks) << "the places must hold what the threads left";
    blocks += blocksLeftBy([&] { places.reset(); });
    EXPECT_EQ(0, blocks);
    std::cout << steps << " steps of " << threadCount << " threads" << std::endl;
}

TEST(Threads, EachUsesTheUtilities)
{
    std::vector<std::string> results(threadCount);
    race([&](std::size_t number) {
        std::string& result = results[number];
        for (int i = 0; i < 500; ++i) {
            std::string name;
            long march5 = 1236262029;
            EXPECT_EQ(ZelData_Ok, ZelDataUtilities::nativeNameForLanguage("ja-JP", name));
            result = name + ZelDataUtilities::getValueString(0.1F) +
                     ZelDataUtilities::getDateString(&march5) +
                     ZelDataUtilities::htmlTagsToText("<a & b>") + getValueString(-7L);
        }
    });
    for (const std::string& result : results)
        EXPECT_EQ(results.front(), result);
    EXPECT_NE(std::string::npos, results.front().find("2009-03-05T14:07:09"));
}

/// What the C face says about a time that is the number of the thread, and the packet with a title
/// that has it.
std::string writtenThroughC(std::size_t number)
{
    zeldata_caption_item* item = nullptr;
    zeldata_header* header = nullptr;
    zeldata_document* document = nullptr;
    zeldata_string* packet = nullptr;
    EXPECT_EQ(ZELDATA_OK, zeldata_caption_item_create(&item));
    EXPECT_EQ(ZELDATA_OK, zeldata_header_create(&header));
    EXPECT_EQ(ZELDATA_OK, zeldata_document_create(&document));
    EXPECT_EQ(ZELDATA_OK, zeldata_string_create(&packet));
    EXPECT_EQ(ZELDATA_OK, zeldata_caption_item_set_start(item, 1000));
    EXPECT_EQ(ZELDATA_INVALID_ARGUMENT,
              zeldata_caption_item_set_end(item, static_cast<std::int64_t>(number)));
    std::string written = zeldata_last_message(item);
    EXPECT_EQ(ZELDATA_OK,
              zeldata_header_set_title(header, ownText(number).c_str(), ZELDATA_TERMINATED));
    EXPECT_EQ(ZELDATA_OK, zeldata_header_set_video_length(header, 1));
    EXPECT_EQ(ZELDATA_OK, zeldata_header_set_video_width(header, 1));
    EXPECT_EQ(ZELDATA_OK, zeldata_header_set_video_height(header, 1));
    EXPECT_EQ(ZELDATA_OK, zeldata_document_set_header(document, header));
    EXPECT_EQ(ZELDATA_OK, zeldata_document_write_string(document, packet, ZELDATA_FORMAT_XMP, 0));
    written += dateMasked({zeldata_string_get_data(packet), zeldata_string_get_size(packet)});
    zeldata_string_destroy(packet);
    zeldata_document_destroy(document);
    zeldata_header_destroy(header);
    zeldata_caption_item_destroy(item);
    return written;
}

TEST(Threads, EachUsesItsOwnHandlesOfTheCFace)
{
    std::vector<std::string> written(threadCount);
    race([&](std::size_t number) {
        for (int i = 0; i < 100; ++i)
            written[number] = writtenThroughC(number);
    });
    for (std::size_t number = 0; number < threadCount; ++number) {
        EXPECT_EQ(writtenThroughC(number), written[number]);
        EXPECT_EQ(0U, written[number].find("setEnd(" + std::to_string(number) + "): "));
    }
}

} // namespace
} // namespace ZelInterchangeData
