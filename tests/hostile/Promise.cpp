#include "hostile/Promise.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace ZelInterchangeData {

namespace {

using Items = std::vector<Record>;

/// The starts of the items, which must be in order.
std::vector<long long> startsOf(const Items& items)
{
    const std::string name = "xmpDM:startTime=";
    std::vector<long long> starts;
    for (const Record& item : items) {
        for (const std::string& value : item) {
            if (value.compare(0, name.size(), name) == 0)
                starts.push_back(std::strtoll(value.c_str() + name.size(), nullptr, 10));
        }
    }
    return starts;
}

Items sorted(Items items)
{
    std::sort(items.begin(), items.end());
    return items;
}

/// Both values, if they differ.
template <class Value>
std::string difference(const Value& expected, const Value& found)
{
    if (expected == found) return {};
    return "expected " + ::testing::PrintToString(expected) + "\nfound " +
           ::testing::PrintToString(found) + '\n';
}

std::string trackDifference(const TrackReading& expected, const TrackReading& found)
{
    const auto starts = startsOf(found.items);
    const bool isOrdered =
        starts.size() == found.items.size() && std::is_sorted(starts.begin(), starts.end());
    return difference(expected.head, found.head) +
           difference(sorted(expected.items), sorted(found.items)) +
           (isOrdered ? "" : "items without a start or out of order\n");
}

} // namespace

std::uint64_t promisedDocuments()
{
    const char* number = std::getenv("ZELINTERCHANGEDATA_PROMISE_DOCUMENTS");
    return number != nullptr ? std::strtoull(number, nullptr, 10)
                             : ZELINTERCHANGEDATA_PROMISE_DOCUMENTS;
}

std::string differenceOf(const PacketReading& expected, const PacketReading& found)
{
    std::string all = found.complaint + difference(expected.header, found.header) +
                      difference(expected.tracks.size(), found.tracks.size());
    const std::size_t tracks = std::min(expected.tracks.size(), found.tracks.size());
    for (std::size_t track = 0; track < tracks; ++track)
        all += trackDifference(expected.tracks[track], found.tracks[track]);
    return all;
}

} // namespace ZelInterchangeData
