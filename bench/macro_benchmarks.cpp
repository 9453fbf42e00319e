/// @file
/// Named runs over whole documents: each writer, each step, each size, order and pair of languages.

#include "bench/LibraryRun.h"
#include "bench/Peers.h"
#include "bench/StraightAppender.h"

#include <benchmark/benchmark.h>

#include <functional>

namespace ZelInterchangeData::bench {

namespace {

/// A run that does one thing with one document, repeatedly.
using Run = std::function<void(benchmark::State&, const Document&)>;

void count(benchmark::State& state, const Document& document, std::size_t bytes)
{
    const auto captions = static_cast<std::int64_t>(document.captions.size());
    state.SetItemsProcessed(state.iterations() * captions);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void runFill(benchmark::State& state, const Document& document)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(fill(document));
    count(state, document, 0);
}

void runSet(benchmark::State& state, const Document& document)
{
    const Sets sets = fill(document);
    for (auto _ : state)
        benchmark::DoNotOptimize(set(sets));
    count(state, document, 0);
}

void runWrite(benchmark::State& state, const Document& document)
{
    const Sets sets = fill(document);
    const auto core = set(sets);
    std::size_t bytes = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(bytes = write(*core).size());
    count(state, document, bytes);
}

void runAll(benchmark::State& state, const Document& document)
{
    std::size_t bytes = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(bytes = write(*set(fill(document))).size());
    count(state, document, bytes);
}

/// A peer, which receives the items in the order in which they are written.
template <class Write>
Run peer(Write writeOnce)
{
    return [writeOnce](benchmark::State& state, const Document& document) {
        const Document written = inWrittenOrder(document);
        std::size_t bytes = 0;
        for (auto _ : state)
            benchmark::DoNotOptimize(bytes = writeOnce(written));
        count(state, document, bytes);
    };
}

const std::vector<std::pair<std::string, Run>>& runs()
{
    static const std::vector<std::pair<std::string, Run>> all = {
        {"fill", runFill},
        {"set", runSet},
        {"write", runWrite},
        {"all", runAll},
        {"appender", peer([](const Document& d) { return appendPacket(d).size(); })},
        {"pugixml", peer([](const Document& d) { return writeWithPugixml(d, nullptr); })},
        {"tinyxml2", peer([](const Document& d) { return writeWithTinyxml2(d, nullptr); })},
        {"libxml2", peer([](const Document& d) { return writeWithLibxml2(d, nullptr); })},
    };
    return all;
}

void registerRun(const std::string& name, const Run& run, std::size_t size, Order order, Pair pair)
{
    const std::string fullName = name + "/" + std::to_string(size) + "/" +
                                 std::string(nameOf(order)) + "/" + std::string(nameOf(pair));
    benchmark::RegisterBenchmark(fullName.c_str(), [=](benchmark::State& state) {
        run(state, makeDocument(size, order, pair));
    })->Unit(benchmark::kMicrosecond);
}

[[maybe_unused]] const bool registered = [] {
    for (const std::size_t size :
         {std::size_t{100}, std::size_t{1000}, std::size_t{10000}, std::size_t{100000}}) {
        for (const Order order : allOrders) {
            for (const Pair pair : allPairs) {
                for (const auto& [name, run] : runs())
                    registerRun(name, run, size, order, pair);
            }
        }
    }
    return true;
}();

} // namespace

} // namespace ZelInterchangeData::bench
