/// @file
/// Threads that end inside an operation: while it waits for a file, or in an object of a caller's class.
/// The operation releases what it obtained, and all objects work as if it had not been called.

#include "core/TempFile.h"
#include "robustness/ChildProcess.h"
#include "robustness/Contents.h"
#include "robustness/Subjects.h"
#include "support/FailingAllocation.h"
#include "support/fakes/FailingCaptions.h"
#include "support/fakes/FailingScreenText.h"
#include "support/fakes/FailingToc.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cstddef>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#ifdef __has_feature
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__ 1 // as g++ does
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace ZelInterchangeData {
namespace {

constexpr auto xmp = ZelDataFormat_Xmp;

/// A thread that the tests end before its work is done. Nothing of it is allocated in one thread and
/// freed in another.
class EndingThread {
public:
    explicit EndingThread(std::function<void()> work) : work_(std::move(work))
    {
        EXPECT_EQ(0, pthread_create(&thread_, nullptr, &run, this));
    }
    ~EndingThread() { EXPECT_TRUE(joined_); }
    EndingThread(const EndingThread&) = delete;
    EndingThread& operator=(const EndingThread&) = delete;

    void cancel() const { EXPECT_EQ(0, pthread_cancel(thread_)); }
    /// Waits for the thread to end. Returns whether its work was done.
    bool join()
    {
        EXPECT_EQ(0, pthread_join(thread_, nullptr));
        joined_ = true;
        return isDone_;
    }
    /// The blocks that it allocated and did not free. Call it after join().
    long long liveBlocks() const { return liveBlocks_; }

    /// Whether it waits for something.
    bool sleeps() const
    {
        const int id = id_;
        std::ifstream stat("/proc/self/task/" + std::to_string(id) + "/stat");
        const std::string line{std::istreambuf_iterator<char>(stat), {}};
        return id != 0 && line.find(") S ") != std::string::npos;
    }

private:
    static void* run(void* self)
    {
        static_cast<EndingThread*>(self)->work();
        return nullptr;
    }

    void work()
    {
        struct Count {
            explicit Count(long long& to) : blocks(to), before(liveAllocations()) {}
            ~Count() { blocks = liveAllocations() - before; }
            Count(const Count&) = delete;
            Count& operator=(const Count&) = delete;
            long long& blocks;
            long long before;
        } count(liveBlocks_);
        id_ = gettid();
        work_();
        isDone_ = true;
    }

    std::function<void()> work_;
    pthread_t thread_{};
    std::atomic<int> id_ = 0;
    bool isDone_ = false;
    bool joined_ = false;
    long long liveBlocks_ = 0;
};

// A caller's objects

using End = void (*)();

void exitThread()
{
    pthread_exit(nullptr);
}

void cancelThread()
{
    pthread_cancel(pthread_self());
    pthread_testcancel();
}

/// Ends the thread with @p end when its failing objects are called for the @p nth time.
class EndAtCall {
public:
    EndAtCall(std::size_t nth, End end)
    {
        beforeEachCall() = [nth, end, calls = std::size_t{0}]() mutable {
            if (++calls == nth) end();
        };
    }
    ~EndAtCall() { beforeEachCall() = nullptr; }
    EndAtCall(const EndAtCall&) = delete;
    EndAtCall& operator=(const EndAtCall&) = delete;
};

/// An operation, and what it leaves.
struct Scene {
    std::function<ZelDataResult_tags()> act;
    std::function<std::string()> left;

    /// Calls the operation. Returns its code and what it leaves.
    std::string outcome() const
    {
        const auto code = act();
        return std::to_string(code) + ' ' + left();
    }
};
using MakeScene = std::function<Scene()>;

/// Whether the thread of a scene ended at call number @p nth. If so, calls its operation again.
bool endsAt(const MakeScene& make, std::size_t nth, End end, const std::string& expected)
{
    const auto blocks = liveAllocations();
    long long blocksOfThread = 0;
    bool isDone = false;
    {
        const Scene scene = make();
        EndingThread thread([&] {
            const EndAtCall ending(nth, end);
            mayRefuse(scene.act());
        });
        isDone = thread.join();
        blocksOfThread = thread.liveBlocks();
        if (!isDone) {
            EXPECT_EQ(expected, scene.outcome());
        }
    }
    EXPECT_EQ(blocks, liveAllocations() + blocksOfThread);
    return !isDone;
}

/// Ends the thread of a scene at each call of a caller's object in turn, at least @p leastCalls times.
void expectEveryEnd(const MakeScene& make, std::size_t leastCalls)
{
    const auto expected = make().outcome();
    EXPECT_EQ(0U, expected.find("0 ")) << expected;
    for (const End end : {exitThread, cancelThread}) {
        std::size_t calls = 0;
        while (endsAt(make, calls + 1, end, expected) && !::testing::Test::HasFailure())
            ++calls;
        EXPECT_GE(calls, leastCalls);
    }
}

/// @p Made, filled with the contents of @p filled.
template <class Made, class Interface>
std::shared_ptr<Made> madeFrom(const std::unique_ptr<Interface>& filled)
{
    auto made = std::make_shared<Made>();
    Interface& target = *made;
    EXPECT_EQ(ZelData_Ok, target.copyFrom(*filled));
    return made;
}

/// Captions that store a new item before the thread may end.
struct StoringCaptions : FailingCaptions {
    ZelDataResult_tags createCaptionItem(i_ZelDataCaptionItem** out) const override
    {
        const auto code = FailingCaptions::createCaptionItem(out);
        if (beforeEachCall()) beforeEachCall()();
        return code;
    }
};

/// A document whose sets are of a caller's classes. The thread may end before and after one is made.
struct OwnSets : ZelDataCoreXmp {
    ZelDataResult_tags createDataCaptions(i_ZelDataCaptions** out) const override
    {
        return create<StoringCaptions>(out);
    }
    ZelDataResult_tags createDataToc(i_ZelDataToc** out) const override
    {
        return create<FailingToc>(out);
    }
    ZelDataResult_tags createDataScreenText(i_ZelDataScreenText** out) const override
    {
        return create<FailingScreenText>(out);
    }

private:
    template <class Made, class Interface>
    ZelDataResult_tags create(Interface** out) const
    {
        if (beforeEachCall()) beforeEachCall()();
        *out = new Made;
        if (beforeEachCall()) beforeEachCall()();
        return store(ZelData_Ok);
    }
};

/// The scene in which an object from @p make is copied from a @p Source.
template <class Source, class Interface>
MakeScene copyScene(std::unique_ptr<Interface> (*make)())
{
    return [make] {
        const auto source = madeFrom<Source>(make());
        const std::shared_ptr<Interface> target = make();
        return Scene{[=] { return target->copyFrom(*source); },
                     [=] { return contentsOf(*target); }};
    };
}

TEST(Cancellation, InsideAnObjectThatIsCopied)
{
    expectEveryEnd(copyScene<FailingCaptionItem>(filledCaption), 5);
    expectEveryEnd(copyScene<FailingTocItem>(filledEntry), 6);
    expectEveryEnd(copyScene<FailingScreenTextItem>(filledScreenTextItem), 6);
    expectEveryEnd(copyScene<StoringCaptions>(filledCaptions), 8);
    expectEveryEnd(copyScene<FailingToc>(filledToc), 3);
    expectEveryEnd(copyScene<FailingScreenText>(filledScreenText), 2);
}

TEST(Cancellation, InsideAnItemThatIsAdded)
{
    expectEveryEnd(
        [] {
            const auto item = madeFrom<FailingCaptionItem>(filledCaption());
            const auto captions = std::make_shared<ZelDataCaptions>();
            return Scene{[=] { return captions->addCaptionItem(*item); },
                         [=] { return contentsOf(*captions); }};
        },
        5);
}

/// The scene in which @p operation is called on captions that keep items of the caller's.
MakeScene itemScene(ZelDataResult_tags (*operation)(StoringCaptions&))
{
    return [operation] {
        const auto captions = madeFrom<StoringCaptions>(filledCaptions());
        return Scene{[=] { return operation(*captions); }, [=] { return contentsOf(*captions); }};
    };
}

TEST(Cancellation, InsideItemsThatACollectionKeeps)
{
    expectEveryEnd(itemScene([](StoringCaptions& captions) { return captions.orderCaptions(); }),
                   2);
    expectEveryEnd(
        itemScene([](StoringCaptions& captions) { return captions.makeCaptionsConsistent(); }), 4);
    expectEveryEnd(itemScene([](StoringCaptions& captions) {
                       const auto consistent = captions.makeCaptionsConsistent();
                       return failed(consistent) ? consistent : captions.isValid(false);
                   }),
                   8);
    expectEveryEnd(itemScene([](StoringCaptions& captions) {
                       std::vector<ZelDataFinding> findings;
                       return findProblems(captions, findings);
                   }),
                   8);
}

TEST(Cancellation, InsideSetsOfADocument)
{
    expectEveryEnd(
        [] {
            const auto captions = madeFrom<StoringCaptions>(filledCaptions());
            const auto toc = madeFrom<FailingToc>(filledToc());
            const auto text = madeFrom<FailingScreenText>(filledScreenText());
            const auto document = std::make_shared<OwnSets>();
            EXPECT_EQ(ZelData_Ok, document->setDataHeader(*filledHeader()));
            const auto act = [=] {
                for (const auto code :
                     {document->setDataCaptions(*captions), document->setDataToc(*toc),
                      document->setDataScreenText(*text)}) {
                    if (failed(code)) return code;
                }
                std::string packet;
                return document->writeString(packet, xmp, false);
            };
            return Scene{act, [=] { return contentsOf(*document); }};
        },
        80);
}

/// A document whose thread may end before and after it writes its packet.
struct EndingDocument : ZelDataCoreXmp {
    ZelDataResult_tags writeString(std::string& out, ZelDataFormatType_tags format,
                                   bool append) const override
    {
        if (beforeEachCall()) beforeEachCall()();
        const auto code = ZelDataCoreXmp::writeString(out, format, append);
        if (beforeEachCall()) beforeEachCall()();
        return code;
    }
};

TEST(Cancellation, InsideADocumentThatReplacesAFile)
{
    expectEveryEnd(
        [] {
            const auto document = std::make_shared<EndingDocument>();
            EXPECT_EQ(ZelData_Ok, document->setDataHeader(*filledHeader()));
            const auto file = std::make_shared<TempFile>();
            file->fill("old");
            const auto act = [=] {
                EXPECT_EQ("old", file->bytes());
                int systemError = -1;
                return replaceFile(*document, file->path(), systemError);
            };
            return Scene{act, [=] { return dateMasked(file->bytes()); }};
        },
        2);
}

/// Cancelled at the first system call that can end the thread, it would leave the new file beside the old
/// one.
TEST(Cancellation, WaitsUntilAFileIsReplaced)
{
    const auto document = filledDocument<ZelDataCore>();
    const TempFile file;
    file.fill("old");
    auto code = ZelData_NoData;
    bool isEnabled = false;
    EndingThread thread([&] {
        pthread_cancel(pthread_self());
        int systemError = -1;
        code = replaceFile(*document, file.path(), systemError);
        int state = PTHREAD_CANCEL_DISABLE;
        pthread_setcancelstate(PTHREAD_CANCEL_ENABLE, &state);
        isEnabled = state == PTHREAD_CANCEL_ENABLE;
        pthread_testcancel();
    });
    EXPECT_FALSE(thread.join());
    EXPECT_EQ(ZelData_Ok, code);
    EXPECT_TRUE(isEnabled);
    EXPECT_NE(std::string::npos, file.bytes().find("</x:xmpmeta>"));
}

TEST(Cancellation, InsideASetThatADocumentFills)
{
    expectEveryEnd(
        [] {
            const std::shared_ptr<i_ZelInterchangeDataCore> document =
                filledDocument<ZelDataCore>();
            const auto captions = std::make_shared<StoringCaptions>();
            return Scene{[=] { return document->getDataCaptions(*captions); },
                         [=] { return contentsOf(*captions); }};
        },
        20);
}

TEST(Cancellation, InsideASetThatAFormatterTakes)
{
    expectEveryEnd(
        [] {
            const auto source = madeFrom<StoringCaptions>(filledCaptions());
            const std::shared_ptr<i_ZelDataCaptionFormatter> formatter = filledCaptionFormatter();
            return Scene{[=] { return formatter->setCaptions(*source); },
                         [=] { return contentsOf(*formatter); }};
        },
        8);
}

TEST(Cancellation, TheOperationStoresNoCode)
{
    const auto source = madeFrom<StoringCaptions>(filledCaptions());
    const auto formatter = filledCaptionFormatter();
    formatter->setLastError(ZelData_NoData);
    EndingThread thread([&] {
        const EndAtCall ending(3, exitThread);
        mayRefuse(formatter->setCaptions(*source));
    });
    EXPECT_FALSE(thread.join());
    EXPECT_EQ(ZelData_NoData, formatter->getLastError());
}

// Files

/// A named pipe, removed at the end.
class Fifo {
public:
    Fifo() { EXPECT_EQ(0, mkfifo(path().c_str(), 0600)); }
    ~Fifo()
    {
        if (end_ >= 0) close(end_);
    }
    Fifo(const Fifo&) = delete;
    Fifo& operator=(const Fifo&) = delete;

    const std::string& path() const { return place_.path(); }

    /// From now on opening does not block, but writing does.
    void fill()
    {
        end_ = open(path().c_str(), O_RDWR | O_NONBLOCK);
        ASSERT_GE(end_, 0);
        const std::string bytes(4096, 'x');
        while (write(end_, bytes.data(), bytes.size()) > 0)
            continue;
        while (write(end_, bytes.data(), 1) > 0)
            continue;
    }

private:
    TempFile place_;
    int end_ = -1;
};

/// Cancels a thread that writes @p document to @p fifo once it waits while @p open files are open: then
/// it waits for the right thing.
void cancelWrite(const i_ZelInterchangeDataCore& document, const Fifo& fifo, std::size_t open)
{
    const auto blocks = liveAllocations();
    long long blocksOfThread = 0;
    {
        EndingThread thread([&] {
#ifdef __SANITIZE_ADDRESS__
            __lsan_disable(); // fopen() leaks what it holds; our own blocks are counted below
#endif
            mayRefuse(document.writeFile(fifo.path(), xmp, false));
        });
        while (!thread.sleeps() || openDescriptors() != open)
            std::this_thread::yield();
        thread.cancel();
        EXPECT_FALSE(thread.join());
        blocksOfThread = thread.liveBlocks();
    }
    EXPECT_EQ(blocks, liveAllocations() + blocksOfThread);
}

/// Expects that @p document still writes @p packet, as a string and as a file, and destroys it.
void expectUsable(std::unique_ptr<i_ZelInterchangeDataCore> document, const std::string& packet)
{
    EXPECT_EQ(ZelData_WarnTiming, document->getLastError());
    EXPECT_EQ(packet, contentsOf(*document));
    const TempFile file;
    EXPECT_EQ(ZelData_Ok, document->writeFile(file.path(), xmp, false));
    EXPECT_NE(std::string::npos, file.bytes().find("</x:xmpmeta>"));
}

/// A document whose packet has more characters than the buffer of the file.
std::unique_ptr<i_ZelInterchangeDataCore> longDocument()
{
    return filledDocument<ZelDataCore>();
}

/// A document whose packet stays in the buffer until the file is closed.
std::unique_ptr<i_ZelInterchangeDataCore> shortDocument()
{
    auto document = newDocument<ZelDataCore>();
    EXPECT_EQ(ZelData_Ok, document->setDataHeader(*filledHeader()));
    return document;
}

using MakeDocument = std::unique_ptr<i_ZelInterchangeDataCore> (*)();

class CancelledWrite : public ::testing::TestWithParam<std::pair<const char*, MakeDocument>> {
protected:
    /// The document of the test; its packet is in packet_.
    std::unique_ptr<i_ZelInterchangeDataCore> document_ = GetParam().second();
    std::string packet_ = contentsOf(*document_);
    std::size_t open_ = openDescriptors();

    CancelledWrite() { document_->setLastError(ZelData_WarnTiming); }
};

TEST_P(CancelledWrite, WhileTheFileIsOpened)
{
    const Fifo fifo;
    cancelWrite(*document_, fifo, open_);
    EXPECT_EQ(open_, openDescriptors());
    expectUsable(std::move(document_), packet_);
}

TEST_P(CancelledWrite, WhileItWaitsForTheReader)
{
    {
        Fifo fifo;
        fifo.fill();
        cancelWrite(*document_, fifo, open_ + 2);
    }
    EXPECT_EQ(open_, openDescriptors());
    expectUsable(std::move(document_), packet_);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, CancelledWrite,
    ::testing::Values(std::pair<const char*, MakeDocument>("Long", longDocument),
                      std::pair<const char*, MakeDocument>("Short", shortDocument)),
    [](const auto& documents) { return documents.param.first; });

TEST(CancelledWriteSizes, OneDocumentFitsIntoTheBufferAndOneDoesNot)
{
    EXPECT_GT(contentsOf(*longDocument()).size(), 4096U);
    EXPECT_LT(contentsOf(*shortDocument()).size(), 4000U);
}

} // namespace
} // namespace ZelInterchangeData
