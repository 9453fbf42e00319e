/// @file
/// Computes the figures from the measurements, always for the worst case.

#include "bench/RatioReport.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>

namespace ZelInterchangeData::bench {

namespace {

std::string fixed(double value, int digits = 2)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", digits, value);
    return text.data();
}

/// A limit as the table shows it, without trailing zeros.
std::string limitText(double value)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%g", value);
    return text.data();
}

Row atMost(std::string measure, double must, double goal, double value, const std::string& where)
{
    const std::string detail = where.empty() ? "" : " (" + where + ")";
    return {std::move(measure), "≤ " + limitText(must), "≤ " + limitText(goal),
            fixed(value) + detail, value <= must ? Verdict::met : Verdict::missed};
}

Row atLeast(std::string measure, double must, const std::string& goal, double value)
{
    return {std::move(measure), "≥ " + limitText(must), goal, fixed(value),
            value >= must ? Verdict::met : Verdict::missed};
}

Row shown(std::string measure, std::string must, std::string goal, std::string measured)
{
    return {std::move(measure), std::move(must), std::move(goal), std::move(measured),
            Verdict::shown};
}

Row notMeasured(std::string measure)
{
    return {std::move(measure), "", "", "not measured", Verdict::notMeasured};
}

std::string whereOf(const Case& aCase)
{
    return "N = " + std::to_string(aCase.size) + ", " + std::string(nameOf(aCase.order)) + ", " +
           std::string(nameOf(aCase.pair));
}

double allocationsPerCaption(const Case& aCase)
{
    return static_cast<double>(aCase.heap.allocations) / static_cast<double>(aCase.size);
}

double peakPerByte(const Case& aCase)
{
    return static_cast<double>(aCase.heap.peak) / static_cast<double>(aCase.bytes);
}

/// A row for the case with the largest @p value.
Row worstCase(const std::vector<Case>& cases, const char* measure, double must, double goal,
              const std::function<double(const Case&)>& value)
{
    if (cases.empty()) return notMeasured(measure);
    const auto worst =
        std::max_element(cases.begin(), cases.end(),
                         [&](const Case& a, const Case& b) { return value(a) < value(b); });
    return atMost(measure, must, goal, value(*worst), whereOf(*worst));
}

double exponent(const Case& small, const Case& large, double Times::*time)
{
    return std::log(large.times.*time / small.times.*time) /
           std::log(static_cast<double>(large.size) / static_cast<double>(small.size));
}

/// The growth from 1,000 captions to 100,000 in one order with one pair of languages.
struct Growth {
    Order order;
    Pair pair;
    double write;
    double appender;
};

/// Without one of the two sizes, no growth is measured.
std::vector<Growth> growthsOf(const std::vector<Case>& cases)
{
    std::vector<Growth> growths;
    for (const Case& small : cases) {
        for (const Case& large : cases) {
            if (small.size == 1000 && large.size == 100000 && small.order == large.order &&
                small.pair == large.pair) {
                growths.push_back({small.order, small.pair, exponent(small, large, &Times::write),
                                   exponent(small, large, &Times::appender)});
            }
        }
    }
    return growths;
}

Row growthRow(std::vector<Growth> growths, Order order)
{
    const std::string measure =
        "growth from N = 1,000 to 100,000, exponent, " + std::string(nameOf(order));
    growths.erase(std::remove_if(growths.begin(), growths.end(),
                                 [&](const Growth& growth) { return growth.order != order; }),
                  growths.end());
    if (growths.empty()) return notMeasured(measure);
    const auto worst =
        std::max_element(growths.begin(), growths.end(),
                         [](const Growth& a, const Growth& b) { return a.write < b.write; });
    return atMost(measure, 1.15, 1.05, worst->write, std::string(nameOf(worst->pair)));
}

Row relativeGrowthRow(const std::vector<Growth>& growths)
{
    const std::string measure = "growth exponent minus the appender's";
    if (growths.empty()) return notMeasured(measure);
    const auto relative = [](const Growth& growth) { return growth.write - growth.appender; };
    const auto worst =
        std::max_element(growths.begin(), growths.end(), [&](const Growth& a, const Growth& b) {
            return relative(a) < relative(b);
        });
    return atMost(measure, 0, -0.03, relative(*worst),
                  std::string(nameOf(worst->order)) + ", " + std::string(nameOf(worst->pair)));
}

Row coldRow(std::vector<Case> cases)
{
    cases.erase(std::remove_if(cases.begin(), cases.end(), [](const Case& c) { return !c.cold; }),
                cases.end());
    return worstCase(cases, "write ÷ straight appender, other writers in between", 1.3, 1,
                     [](const Case& c) { return c.cold->write / c.cold->appender; });
}

void addAllocationRows(std::vector<Row>& rows, const std::optional<Allocations>& allocations)
{
    const char* const header = "allocations in a write of a header alone";
    const char* const caption = "allocations per caption while filling";
    rows.push_back(allocations ? atMost(header, 12, 6, allocations->headerWrite, "")
                               : notMeasured(header));
    rows.push_back(allocations ? atMost(caption, 3.2, 2.2, allocations->filledCaption, "")
                               : notMeasured(caption));
}

/// The limits are for x86-64; other processors have longer or shorter code. The C face may take 80 KiB.
Row sizeRow(const std::optional<std::size_t>& size)
{
    const char* const measure = "shared library with the C face, stripped, KiB";
    if (!size) return notMeasured(measure);
    const double kibibytes = static_cast<double>(*size) / 1024;
#ifdef __x86_64__
    return atMost(measure, 320 + 80, 240 + 80, kibibytes, "");
#else
    return shown(measure, "", "", fixed(kibibytes));
#endif
}

std::vector<Row> threadRows(const std::optional<ThreadGains>& gains)
{
    const char* const share = "two threads: gain ÷ the appender's gain";
    if (!gains) return {notMeasured(share)};
    return {shown("two threads, own documents", "≥ 1.7 ×", "≥ 1.9 ×",
                  fixed(gains->library) + " × (appender " + fixed(gains->appender) + " ×)"),
            atLeast(share, 0.9, "", gains->library / gains->appender)};
}

struct TextLimits {
    const char* measure;
    /// GB/s.
    double must;
    double goal;
    /// As a multiple of the plain loop's speed: `must` divided by the loop's GB/s on the machine
    /// where it was set.
    double multiple;
};

/// In the order of measureTexts().
constexpr std::array<TextLimits, 5> textLimits = {{
    {"UTF-8 check, short ASCII texts", 2, 4, 2.4},
    {"UTF-8 check, short Latin texts", 1, 2, 1.5},
    {"UTF-8 check, short CJK texts", 2, 4, 1.8},
    {"escape and strip, caption-length texts", 1.2, 2, 3.4},
    {"escape, a text of only \"&\", output", 0.4, 1, 1},
}};

void addTextRows(std::vector<Row>& rows, const std::vector<TextSpeed>& texts)
{
    for (std::size_t i = 0; i < textLimits.size(); ++i) {
        const TextLimits& limits = textLimits[i];
        const std::string multiple = std::string(limits.measure) + ": multiple of the plain loop";
        if (i >= texts.size()) {
            rows.push_back(notMeasured(multiple));
            continue;
        }
        rows.push_back(shown(limits.measure, "≥ " + limitText(limits.must) + " GB/s",
                             "≥ " + limitText(limits.goal) + " GB/s",
                             fixed(texts[i].bytesPerSecond / 1e9) + " GB/s"));
        rows.push_back(atLeast(multiple, limits.multiple, "", texts[i].timesPlain));
    }
}

std::string caseLine(const Case& aCase)
{
    const Times& t = aCase.times;
    std::string line = "| " + std::to_string(aCase.size) + " | " +
                       std::string(nameOf(aCase.order)) + " | " + std::string(nameOf(aCase.pair));
    for (const double value :
         {t.fill / t.appender, t.set / t.appender, t.write / t.appender, t.allSteps / t.appender,
          t.pugixml / t.appender, t.tinyxml2 / t.appender, t.libxml2 / t.appender,
          allocationsPerCaption(aCase), peakPerByte(aCase),
          t.appender * 1e9 / static_cast<double>(aCase.size),
          static_cast<double>(aCase.bytes) / static_cast<double>(aCase.size)}) {
        line += " | " + fixed(value);
    }
    return line + " |\n";
}

} // namespace

std::vector<Row> ratioRows(const Results& results)
{
    const auto& cases = results.cases;
    std::vector<Row> rows = {
        worstCase(cases, "write ÷ pugixml (build and save)", 0.3, 0.25,
                  [](const Case& c) { return c.times.write / c.times.pugixml; }),
        worstCase(cases, "write ÷ straight appender", 1, 0.7,
                  [](const Case& c) { return c.times.write / c.times.appender; }),
        coldRow(cases),
        worstCase(cases, "fill + set + write + release ÷ pugixml", 0.6, 0.45,
                  [](const Case& c) { return c.times.allSteps / c.times.pugixml; }),
        worstCase(cases, "fill ÷ straight appender", 0.9, 0.6,
                  [](const Case& c) { return c.times.fill / c.times.appender; }),
        worstCase(cases, "fill through the C face ÷ the C++ calls, each text made a string", 1.1, 1,
                  [](const Case& c) { return c.times.fillThroughC / c.times.fillFromCharacters; }),
        worstCase(cases, "allocations per caption in a write", 6, 0.1, allocationsPerCaption),
    };
    addAllocationRows(rows, results.allocations);
    rows.push_back(worstCase(cases, "peak heap in a write ÷ bytes out", 3, 2.2, peakPerByte));
    const auto growths = growthsOf(cases);
    for (const Order order : allOrders)
        rows.push_back(growthRow(growths, order));
    rows.push_back(relativeGrowthRow(growths));
    for (Row& row : threadRows(results.threads))
        rows.push_back(std::move(row));
    addTextRows(rows, results.texts);
    rows.push_back(sizeRow(results.librarySize));
    return rows;
}

std::string ratioTable(const std::vector<Row>& rows)
{
    std::string table = "| measure | must | goal | measured |\n|---|---|---|---|\n";
    for (const Row& row : rows) {
        table += "| " + row.measure + " | " + row.must + " | " + row.goal + " | " + row.measured;
        table += " |\n";
    }
    return table;
}

std::string caseTable(const std::vector<Case>& cases)
{
    std::string table =
        "| N | order | languages | fill | set | write | fill + set + write + release "
        "| pugixml | tinyxml2 | libxml2 | allocations per caption "
        "| peak heap ÷ bytes | appender, ns per caption | bytes per caption |\n"
        "|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n";
    for (const Case& aCase : cases)
        table += caseLine(aCase);
    return table;
}

} // namespace ZelInterchangeData::bench
