/// @file
/// The table of ratios, and its limits.

#ifndef ZELINTERCHANGEDATA_BENCH_RATIOREPORT_H
#define ZELINTERCHANGEDATA_BENCH_RATIOREPORT_H

#include "bench/Measurements.h"

#include <optional>
#include <string>
#include <vector>

namespace ZelInterchangeData::bench {

/// Everything that one run measured.
struct Results {
    std::vector<Case> cases;
    /// Empty on a machine with one processor only.
    std::optional<ThreadGains> threads;
    std::vector<TextSpeed> texts;
};

enum class Verdict {
    met,
    missed,
    /// The run did not measure it, which a check does not accept.
    notMeasured,
    /// Given for information: an absolute figure depends on the machine.
    shown
};

/// One row of the table.
struct Row {
    std::string measure;
    std::string must;
    std::string goal;
    std::string measured;
    Verdict verdict;
};

std::vector<Row> ratioRows(const Results& results);

/// As Markdown; `\n` after each line.
std::string ratioTable(const std::vector<Row>& rows);
/// One line for each case, as Markdown.
std::string caseTable(const std::vector<Case>& cases);

} // namespace ZelInterchangeData::bench

#endif
