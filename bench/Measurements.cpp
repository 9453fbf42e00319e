/// @file
/// Interleaved rounds and their medians.

#include "bench/Measurements.h"

#include "bench/CFaceRun.h"
#include "bench/LibraryRun.h"
#include "bench/Peers.h"
#include "bench/StraightAppender.h"
#include "bench/TextSamples.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <stdexcept>
#include <thread>
#include <utility>

namespace ZelInterchangeData::bench {

namespace {

std::size_t repeatsOf(std::size_t size, const Effort& effort)
{
    return std::max<std::size_t>(1, effort.captionsInTurn / size);
}

/// More and shorter turns for small documents, so that a disturbance spoils fewer of them.
int roundsOf(std::size_t size, const Effort& effort)
{
    return effort.rounds * static_cast<int>(std::clamp<std::size_t>(20000 / size, 1, 5));
}

/// Elapsed time in seconds, for threads that work in parallel.
double wallSeconds()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

/// The processor time of this thread in seconds: excludes the time that other programs take.
double workSeconds()
{
    timespec time{};
    if (clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time) != 0) {
        throw std::runtime_error("the processor time cannot be read");
    }
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

class Stopwatch {
public:
    /// The seconds of work since construction or the last lap.
    double lap()
    {
        const double now = workSeconds();
        return now - std::exchange(last_, now);
    }

private:
    double last_ = workSeconds();
};

template <class Operation>
double secondsOf(Operation&& operation)
{
    Stopwatch watch;
    operation();
    return watch.lap();
}

template <class Operation>
double wallSecondsOf(Operation&& operation)
{
    const double begin = wallSeconds();
    operation();
    return wallSeconds() - begin;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The samples of all rounds; the position in a round says what was measured.
template <std::size_t Count>
struct Samples {
    void add(const std::array<double, Count>& round)
    {
        for (std::size_t i = 0; i < Count; ++i)
            values[i].push_back(round[i]);
    }

    std::array<double, Count> medians() const
    {
        std::array<double, Count> result{};
        for (std::size_t i = 0; i < Count; ++i)
            result[i] = median(values[i]);
        return result;
    }

    std::array<std::vector<double>, Count> values;
};

/// Fill, set and write, in seconds.
std::array<double, 3> libraryTurn(const Document& document, std::size_t repeats)
{
    std::array<double, 3> sums{};
    for (std::size_t i = 0; i < repeats; ++i) {
        Stopwatch watch;
        const Sets sets = fill(document);
        sums[0] += watch.lap();
        const auto core = set(sets);
        sums[1] += watch.lap();
        write(*core); // the packet is released here
        sums[2] += watch.lap();
    }
    return sums;
}

template <class Write>
double peerTurn(std::size_t repeats, Write&& writeOnce)
{
    return secondsOf([&] {
        std::size_t bytes = 0;
        for (std::size_t i = 0; i < repeats; ++i)
            bytes += writeOnce();
        if (bytes == 0) throw std::runtime_error("a writer wrote nothing");
    });
}

using Round = std::array<double, 10>;

Round measureRound(const Document& document, const Document& written, std::size_t repeats)
{
    const auto own = libraryTurn(document, repeats);
    Round round{
        own[0],
        own[1],
        own[2],
        // In one turn, as the peers' steps: reading the clock after each one would count, too.
        peerTurn(repeats, [&] { return write(*set(fill(document))).size(); }),
        peerTurn(repeats, [&] { return fillFromCharacters(document).captions ? 1U : 0U; }),
        peerTurn(repeats, [&] { return fillThroughC(document); }),
        peerTurn(repeats, [&] { return appendPacket(written).size(); }),
        peerTurn(repeats, [&] { return writeWithPugixml(written, nullptr); }),
        peerTurn(repeats, [&] { return writeWithTinyxml2(written, nullptr); }),
        peerTurn(repeats, [&] { return writeWithLibxml2(written, nullptr); }),
    };
    for (double& seconds : round)
        seconds /= static_cast<double>(repeats);
    return round;
}

/// One write and one append, each after the other writers.
std::array<double, 2> measureColdRound(const i_ZelInterchangeDataCore& core,
                                       const Document& written)
{
    const auto useCaches = [&] {
        peerTurn(1, [&] {
            return writeWithPugixml(written, nullptr) + writeWithTinyxml2(written, nullptr) +
                   writeWithLibxml2(written, nullptr);
        });
    };
    useCaches();
    const double write = secondsOf([&] { bench::write(core); });
    useCaches();
    return {write, secondsOf([&] { appendPacket(written); })};
}

ColdTimes measureCold(const Document& document, const Document& written, const Effort& effort)
{
    const Sets sets = fill(document);
    const auto core = set(sets);
    const int rounds = static_cast<int>(repeatsOf(coldSize, effort)) * effort.rounds;
    Samples<2> samples;
    for (int round = 0; round < rounds; ++round)
        samples.add(measureColdRound(*core, written));
    const auto [write, appender] = samples.medians();
    return {write, appender};
}

/// Watches one write, including its output.
void measureHeap(Case& result, const Document& document, const Document& written)
{
    const Sets sets = fill(document);
    const auto core = set(sets);
    const HeapWatch watch;
    const std::string packet = write(*core);
    result.heap = watch.use();
    result.bytes = packet.size();
    if (packet.size() != appendPacket(written).size()) {
        throw std::runtime_error("the appender does not write what the library writes");
    }
}

/// Runs @p operation in @p count threads at once, each with its number, and waits for all.
template <class Operation>
void inThreads(std::size_t count, const Operation& operation)
{
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < count; ++i)
        threads.emplace_back([&operation, i] { operation(i); });
    for (std::thread& thread : threads)
        thread.join();
}

template <class Library, class Plain>
TextSpeed measureText(const TextSample& sample, const Effort& effort, Library&& library,
                      Plain&& plain)
{
    // Many short turns, so that a disturbance of some milliseconds spoils few of them.
    constexpr int passes = 10;
    const int turns = 20 * effort.rounds;
    std::size_t ours = 0;
    std::size_t theirs = 0;
    Samples<2> samples;
    for (int turn = 0; turn < turns; ++turn) {
        samples.add({secondsOf([&] {
                         for (int i = 0; i < passes; ++i)
                             ours += library();
                     }),
                     secondsOf([&] {
                         for (int i = 0; i < passes; ++i)
                             theirs += plain();
                     })});
    }
    if (ours != theirs) throw std::runtime_error("the plain loop returns another result");
    const auto [own, loop] = samples.medians();
    return {sample.name, static_cast<double>(sample.bytes) * passes / own, loop / own};
}

} // namespace

Case measureCase(std::size_t size, Order order, Pair pair, const Effort& effort)
{
    const Document document = makeDocument(size, order, pair);
    const Document written = inWrittenOrder(document);
    const std::size_t repeats = repeatsOf(size, effort);
    Case result{size, order, pair, 0, {}, {}, {}};
    measureHeap(result, document, written); // also warms everything up
    Samples<10> samples;
    for (int round = 0; round < roundsOf(size, effort); ++round)
        samples.add(measureRound(document, written, repeats));
    const Round medians = samples.medians();
    result.times = {medians[0], medians[1], medians[2], medians[3], medians[4],
                    medians[5], medians[6], medians[7], medians[8], medians[9]};
    if (size == coldSize) result.cold = measureCold(document, written, effort);
    return result;
}

Allocations measureAllocations()
{
    const Document document = makeDocument(1000, Order::ascending, Pair::enDe);
    Allocations result;
    {
        const auto core = setHeader(*fill(document).header);
        const HeapWatch watch;
        write(*core);
        result.headerWrite = static_cast<double>(watch.use().allocations);
    }
    const HeapWatch watch;
    const auto captions = fillCaptions(document);
    result.filledCaption = static_cast<double>(watch.use().allocations) /
                           static_cast<double>(document.captions.size());
    return result;
}

ThreadGains measureThreads(const Effort& effort)
{
    constexpr std::size_t size = 1000;
    // More than for one thread, so that the time to start the threads does not matter.
    const std::size_t writes = 10 * repeatsOf(size, effort);
    const std::array<Document, 2> documents = {makeDocument(size, Order::shuffled, Pair::enDe),
                                               makeDocument(size, Order::shuffled, Pair::enJa)};
    const std::array<Sets, 2> sets = {fill(documents[0]), fill(documents[1])};
    const std::array cores = {set(sets[0]), set(sets[1])};
    const auto library = [&](std::size_t i) {
        for (std::size_t n = 0; n < writes; ++n)
            write(*cores[i]);
    };
    const auto appender = [&](std::size_t i) {
        for (std::size_t n = 0; n < writes; ++n)
            appendPacket(documents[i]);
    };
    Samples<6> samples;
    for (int round = 0; round < effort.rounds; ++round) {
        // Writes the documents one by one in a thread, too, so that only the second thread makes a
        // difference.
        samples.add({wallSecondsOf([&] { inThreads(1, library); }),
                     wallSecondsOf([&] { inThreads(1, [&](std::size_t) { library(1); }); }),
                     wallSecondsOf([&] { inThreads(2, library); }),
                     wallSecondsOf([&] { inThreads(1, appender); }),
                     wallSecondsOf([&] { inThreads(1, [&](std::size_t) { appender(1); }); }),
                     wallSecondsOf([&] { inThreads(2, appender); })});
    }
    const auto times = samples.medians();
    return {(times[0] + times[1]) / times[2], (times[3] + times[4]) / times[5]};
}

std::vector<TextSpeed> measureTexts(const Effort& effort)
{
    std::vector<TextSpeed> speeds;
    for (const TextSample& sample : utf8Samples()) {
        speeds.push_back(measureText(
            sample, effort, [&] { return countValid(sample); },
            [&] { return countValidPlainly(sample); }));
    }
    for (const TextSample& sample : {captionSample(), entitySample()}) {
        std::string out;
        speeds.push_back(measureText(
            sample, effort, [&] { return escapeAll(sample, out); },
            [&] { return escapeAllPlainly(sample, out); }));
    }
    return speeds;
}

} // namespace ZelInterchangeData::bench
