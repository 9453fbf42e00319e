/// @file
/// Measures library and peers in interleaved rounds and prints the table of ratios.

#include "bench/RatioReport.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

namespace ZelInterchangeData::bench {

namespace {

constexpr const char* usage =
    "Usage: ratio_table [--sizes N,N...] [--orders ORDER,ORDER...] [--rounds N] [--quick] "
    "[--check] [--library FILE]\n"
    "\n"
    "Measures in interleaved rounds and prints two Markdown tables: each ratio in its worst case,\n"
    "and all cases, with times as multiples of the straight appender's.\n"
    "  --sizes   numbers of captions in a document (default 100,1000,10000,100000)\n"
    "  --orders  ascending, reversed, shuffled, tied (default all)\n"
    "  --rounds  number of rounds; their medians count (default 9; small sizes have up to five "
    "times as many)\n"
    "  --quick   as --sizes 100,1000 --rounds 1, with less work in a round; do not quote the "
    "figures\n"
    "  --library FILE   the stripped shared library, for its size\n"
    "  --check   exit with status 1 if a ratio misses its limit or was not measured\n";

struct Options {
    std::vector<std::size_t> sizes = {100, 1000, 10000, 100000};
    std::vector<Order> orders = {allOrders.begin(), allOrders.end()};
    Effort effort;
    std::string library;
    bool check = false;
    bool help = false;
};

template <class Number>
Number numberFrom(std::string_view text)
{
    Number number{};
    const auto* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end || number < 1) {
        throw std::invalid_argument("not a number of at least 1: " + std::string(text));
    }
    return number;
}

Order orderFrom(std::string_view text)
{
    const auto* const found = std::find_if(allOrders.begin(), allOrders.end(),
                                           [&](Order order) { return nameOf(order) == text; });
    if (found == allOrders.end())
        throw std::invalid_argument("unknown order: " + std::string(text));
    return *found;
}

/// The parts of @p text between its commas, each converted by @p convert.
template <class Convert>
auto listFrom(std::string_view text, Convert convert)
{
    std::vector<decltype(convert(text))> values;
    for (std::size_t comma = text.find(','); comma != std::string_view::npos;
         comma = text.find(',')) {
        values.push_back(convert(text.substr(0, comma)));
        text.remove_prefix(comma + 1);
    }
    values.push_back(convert(text));
    return values;
}

/// Reads the option at @p at, and its value if it takes one.
void readOption(Options& options, const std::vector<std::string_view>& arguments, std::size_t& at)
{
    const std::string_view name = arguments[at];
    const auto value = [&] {
        if (++at == arguments.size())
            throw std::invalid_argument(std::string(name) + " needs a value");
        return arguments[at];
    };
    if (name == "--sizes") {
        options.sizes = listFrom(value(), numberFrom<std::size_t>);
    } else if (name == "--orders") {
        options.orders = listFrom(value(), orderFrom);
    } else if (name == "--rounds") {
        options.effort.rounds = numberFrom<int>(value());
    } else if (name == "--library") {
        options.library = value();
    } else if (name == "--quick") {
        options.sizes = {100, 1000};
        options.effort = {1, 1000};
    } else if (name == "--check") {
        options.check = true;
    } else if (name == "--help" || name == "-h") {
        options.help = true;
    } else {
        throw std::invalid_argument("unknown option: " + std::string(name));
    }
}

Options readOptions(const std::vector<std::string_view>& arguments)
{
    Options options;
    for (std::size_t at = 0; at < arguments.size(); ++at)
        readOption(options, arguments, at);
    return options;
}

Results measure(const Options& options)
{
    Results results;
    results.texts = measureTexts(options.effort);
    results.allocations = measureAllocations();
    if (!options.library.empty()) results.librarySize = std::filesystem::file_size(options.library);
    if (std::thread::hardware_concurrency() > 1) results.threads = measureThreads(options.effort);
    for (const std::size_t size : options.sizes) {
        for (const Order order : options.orders) {
            for (const Pair pair : allPairs)
                results.cases.push_back(measureCase(size, order, pair, options.effort));
        }
    }
    return results;
}

/// Prints the limits that are missed to standard error; returns true if there are none.
bool passes(const std::vector<Row>& rows)
{
    bool pass = true;
    for (const Row& row : rows) {
        if (row.verdict != Verdict::missed && row.verdict != Verdict::notMeasured) continue;
        pass = false;
        std::fprintf(stderr, "ratio_table: %s: must be %s, is %s\n", row.measure.c_str(),
                     row.must.empty() ? "measured" : row.must.c_str(), row.measured.c_str());
    }
    return pass;
}

int run(const Options& options)
{
    const Results results = measure(options);
    const auto rows = ratioRows(results);
    std::printf("%s\n", ratioTable(rows).c_str());
    std::printf("All times are multiples of the straight appender's time, medians of %d rounds or "
                "more:\n\n%s",
                options.effort.rounds, caseTable(results.cases).c_str());
    return options.check && !passes(rows) ? 1 : 0;
}

} // namespace

} // namespace ZelInterchangeData::bench

int main(int argc, char** argv)
{
    using namespace ZelInterchangeData::bench;
    try {
        const Options options = readOptions({argv + 1, argv + argc});
        if (options.help) {
            std::fputs(usage, stdout);
            return 0;
        }
        return run(options);
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "ratio_table: %s\n%s", error.what(), usage);
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "ratio_table: %s\n", error.what());
        return 1;
    }
}
