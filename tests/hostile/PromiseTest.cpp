/// @file
/// Documents that keep to the conditions under which a packet is well-formed.

#include "hostile/Promise.h"
#include "hostile/HostileTexts.h"
#include "hostile/PacketGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace ZelInterchangeData {
namespace {

void expectPromise(const PacketModel& model)
{
    const std::string packet = packetOf(model);
    EXPECT_EQ("", faultOf(packet)) << packet;
    EXPECT_EQ("", differenceOf(expectedOf(model), readPacket(packet))) << packet;
}

class PromiseOfWellFormedness : public ::testing::TestWithParam<std::uint64_t> {};

TEST_P(PromiseOfWellFormedness, HoldsForGeneratedDocuments)
{
    const std::uint64_t last = promisedDocuments();
    ASSERT_GE(last, promiseShares) << "each share needs a document";
    for (std::uint64_t seed = GetParam() + 1; seed <= last; seed += promiseShares) {
        expectPromise(generatedModel(seed));
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Share, PromiseOfWellFormedness,
                         ::testing::Range(std::uint64_t{0}, promiseShares));

/// What the documents must vary in, or the promise would mean little.
struct Variety {
    std::set<std::size_t> captions;
    std::set<std::size_t> entries;
    std::set<std::size_t> screenTexts;
    std::set<std::size_t> textsOfACaption;
    std::size_t longestTitle = 0;
    bool equalStarts = false;
    bool emptyTracksInATitle = false;
    bool controlCharacterInACaption = false;
    bool lineFeedInAFontFamily = false;

    void look(const PacketModel& model)
    {
        captions.insert(model.captions.size());
        entries.insert(model.entries.size());
        screenTexts.insert(model.screenTexts.size());
        longestTitle = std::max(longestTitle, model.title.size());
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
    EXPECT_LT(4096U, seen.longestTitle);
    EXPECT_TRUE(seen.equalStarts);
    EXPECT_TRUE(seen.emptyTracksInATitle);
    EXPECT_TRUE(seen.controlCharacterInACaption);
    EXPECT_TRUE(seen.lineFeedInAFontFamily);
}

} // namespace
} // namespace ZelInterchangeData
