/// @file
/// Documents that keep to the conditions under which a packet is well-formed.

#include "hostile/HostileTexts.h"
#include "hostile/PacketGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>

namespace ZelInterchangeData {
namespace {

using Items = std::vector<Record>;

/// The documents are shared out, so that shares can run at the same time.
constexpr std::uint64_t shares = 20;

/// The number of documents: the environment's, or that of the build.
std::uint64_t documents()
{
    const char* number = std::getenv("ZELINTERCHANGEDATA_PROMISE_DOCUMENTS");
    return number != nullptr ? std::strtoull(number, nullptr, 10)
                             : ZELINTERCHANGEDATA_PROMISE_DOCUMENTS;
}

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

/// Items with the same start may have any order here.
void expectTrack(const TrackReading& expected, const TrackReading& found)
{
    EXPECT_EQ(expected.head, found.head);
    EXPECT_EQ(sorted(expected.items), sorted(found.items));
    const auto starts = startsOf(found.items);
    EXPECT_EQ(found.items.size(), starts.size());
    EXPECT_TRUE(std::is_sorted(starts.begin(), starts.end()));
}

void expectPromise(const PacketModel& model)
{
    const std::string packet = packetOf(model);
    EXPECT_EQ("", faultOf(packet)) << packet;
    const PacketReading found = readPacket(packet);
    EXPECT_EQ("", found.complaint) << packet;
    const PacketReading expected = expectedOf(model);
    EXPECT_EQ(expected.header, found.header);
    ASSERT_EQ(expected.tracks.size(), found.tracks.size()) << packet;
    for (std::size_t track = 0; track < expected.tracks.size(); ++track)
        expectTrack(expected.tracks[track], found.tracks[track]);
}

class PromiseOfWellFormedness : public ::testing::TestWithParam<std::uint64_t> {};

TEST_P(PromiseOfWellFormedness, HoldsForGeneratedDocuments)
{
    const std::uint64_t last = documents();
    ASSERT_GE(last, shares) << "each share needs a document";
    for (std::uint64_t seed = GetParam() + 1; seed <= last; seed += shares) {
        expectPromise(generatedModel(seed));
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Share, PromiseOfWellFormedness,
                         ::testing::Range(std::uint64_t{0}, shares));

/// What the documents must vary in, or the promise would mean little.
struct Variety {
    std::set<std::size_t> captions;
    std::set<std::size_t> entries;
    std::set<std::size_t> screenTexts;
    std::set<std::size_t> textsOfACaption;
    bool equalStarts = false;
    bool emptyTracksInATitle = false;
    bool controlCharacterInACaption = false;
    bool lineFeedInAFontFamily = false;

    void look(const PacketModel& model)
    {
        captions.insert(model.captions.size());
        entries.insert(model.entries.size());
        screenTexts.insert(model.screenTexts.size());
        emptyTracksInATitle |= model.title.find(emptyTracks) != std::string::npos;
        lineFeedInAFontFamily |= model.fontFamily.find('\n') != std::string::npos;
        for (const CaptionModel& caption : model.captions)
            look(model, caption);
    }

private:
    void look(const PacketModel& model, const CaptionModel& caption)
    {
        textsOfACaption.insert(caption.texts.size());
        equalStarts |=
            &caption != model.captions.data() && caption.start == model.captions.front().start;
        for (const auto& [language, text] : caption.texts)
            controlCharacterInACaption |= text.find('\x1F') != std::string::npos;
    }
};

TEST(GeneratedDocuments, HaveEverySetAndHostileTexts)
{
    Variety seen;
    for (std::uint64_t seed = 1; seed <= 5000; ++seed)
        seen.look(generatedModel(seed));
    const std::set<std::size_t> counts = {0, 1, 2, 3, 60};
    EXPECT_EQ(counts, seen.captions);
    EXPECT_EQ(counts, seen.entries);
    EXPECT_EQ(counts, seen.screenTexts);
    EXPECT_EQ((std::set<std::size_t>{0, 1, 2, 3, 4}), seen.textsOfACaption);
    EXPECT_TRUE(seen.equalStarts);
    EXPECT_TRUE(seen.emptyTracksInATitle);
    EXPECT_TRUE(seen.controlCharacterInACaption);
    EXPECT_TRUE(seen.lineFeedInAFontFamily);
}

} // namespace
} // namespace ZelInterchangeData
