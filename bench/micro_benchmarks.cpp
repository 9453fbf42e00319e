/// @file
/// The text functions compared with plain loops, and the ordering compared with a stable sort.

#include "bench/LibraryRun.h"
#include "bench/TextSamples.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace ZelInterchangeData::bench {

namespace {

void runTexts(benchmark::State& state, const TextSample& sample,
              std::size_t (*pass)(const TextSample&))
{
    for (auto _ : state)
        benchmark::DoNotOptimize(pass(sample));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(sample.bytes));
}

void registerUtf8()
{
    for (const TextSample& sample : utf8Samples()) {
        const std::string name = std::string("utf8/") + sample.name;
        benchmark::RegisterBenchmark(
            (name + "/library").c_str(),
            [sample](benchmark::State& state) { runTexts(state, sample, &countValid); });
        benchmark::RegisterBenchmark((name + "/plain").c_str(), [sample](benchmark::State& state) {
            runTexts(state, sample, &countValidPlainly);
        });
    }
}

void escape(benchmark::State& state, std::size_t (*pass)(const TextSample&, std::string&))
{
    const TextSample sample = captionSample();
    std::string out;
    for (auto _ : state)
        benchmark::DoNotOptimize(pass(sample, out));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(sample.bytes));
}
BENCHMARK_CAPTURE(escape, library, &escapeAll);
BENCHMARK_CAPTURE(escape, plain, &escapeAllPlainly);

std::vector<long long> startsOf(std::size_t count, Order order)
{
    std::vector<long long> starts;
    for (const Caption& caption : makeDocument(count, order, Pair::enDe).captions)
        starts.push_back(caption.start);
    return starts;
}

/// Creates the set outside the measured time for each run, because a second run would find it in
/// order.
void orderByLibrary(benchmark::State& state, const std::vector<long long>& starts)
{
    using Clock = std::chrono::steady_clock;
    for (auto _ : state) {
        const auto screenText = screenTextAt(starts);
        const auto begin = Clock::now();
        if (screenText->makeScreenTextConsistent() != ZelData_Ok) throw std::runtime_error("order");
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(starts.size()));
}

/// Items that are reached through pointers.
std::vector<std::unique_ptr<Caption>> itemsAt(const std::vector<long long>& starts)
{
    std::vector<std::unique_ptr<Caption>> items;
    for (const long long start : starts) {
        items.push_back(std::make_unique<Caption>());
        items.back()->start = start;
    }
    return items;
}

void orderByStableSort(benchmark::State& state, const std::vector<long long>& starts)
{
    using Clock = std::chrono::steady_clock;
    for (auto _ : state) {
        auto items = itemsAt(starts);
        const auto begin = Clock::now();
        std::stable_sort(items.begin(), items.end(),
                         [](const auto& a, const auto& b) { return a->start < b->start; });
        benchmark::DoNotOptimize(items.data());
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(starts.size()));
}

void registerOrdering()
{
    for (const std::size_t size : {std::size_t{1000}, std::size_t{10000}, std::size_t{100000}}) {
        for (const Order order : allOrders) {
            const std::string name =
                "order/" + std::string(nameOf(order)) + "/" + std::to_string(size);
            benchmark::RegisterBenchmark((name + "/library").c_str(), [=](benchmark::State& state) {
                orderByLibrary(state, startsOf(size, order));
            })->UseManualTime();
            benchmark::RegisterBenchmark(
                (name + "/stable_sort").c_str(),
                [=](benchmark::State& state) { orderByStableSort(state, startsOf(size, order)); })
                ->UseManualTime();
        }
    }
}

[[maybe_unused]] const bool registered = [] {
    registerUtf8();
    registerOrdering();
    return true;
}();

} // namespace

} // namespace ZelInterchangeData::bench
