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
    /// Empty on a machine with only one processor.
    std::optional<ThreadGains> threads;
    std::vector<TextSpeed> texts;
    std::optional<Allocations> allocations;
    /// The size of the stripped shared library in bytes; empty without a library to look at.
    std::optional<std::size_t> librarySize;
};

enum class Verdict {
    met,
    missed,
    /// Not measured in this run; a check fails.
    notMeasured,
    /// For information only: an absolute figure depends on the machine.
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

/// The table in Markdown; `\n` ends each line.
std::string ratioTable(const std::vector<Row>& rows);
/// The table of all cases in Markdown, one line each.
std::string caseTable(const std::vector<Case>& cases);

} // namespace ZelInterchangeData::bench

#endif
