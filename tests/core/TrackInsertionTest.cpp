#include "core/TrackInsertion.h"

#include "support/Checks.h"
#include "support/FailingAllocation.h"

namespace ZelInterchangeData {
namespace {

const std::string emptyList = "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>";

ZelDataResult_tags insert(std::string& packet, const std::string& tracks)
{
    return insertTracks(packet, tracks.size(), [&](std::string& place) { place += tracks; });
}

std::string inserted(std::string packet, const std::string& tracks)
{
    EXPECT_EQ(ZelData_Ok, insert(packet, tracks));
    return packet;
}

TEST(TrackInsertion, TracksBecomeTheItemsOfTheEmptyList)
{
    EXPECT_EQ("<a><xmpDM:Tracks><rdf:Bag><rdf:li></rdf:li></rdf:Bag></xmpDM:Tracks></a>",
              inserted("<a>" + emptyList + "</a>", "<rdf:li></rdf:li>"));
}

TEST(TrackInsertion, TheListMayBeTheWholePacket)
{
    EXPECT_EQ("<xmpDM:Tracks><rdf:Bag>t</rdf:Bag></xmpDM:Tracks>", inserted(emptyList, "t"));
}

TEST(TrackInsertion, TracksFillTheLastOfSeveralEmptyLists)
{
    EXPECT_EQ(emptyList + "<xmpDM:Tracks><rdf:Bag>t</rdf:Bag></xmpDM:Tracks>!",
              inserted(emptyList + emptyList + "!", "t"));
}

TEST(TrackInsertion, TracksThatContainAnEmptyListAreInsertedUnchanged)
{
    EXPECT_EQ("<xmpDM:Tracks><rdf:Bag>" + emptyList + "</rdf:Bag></xmpDM:Tracks>",
              inserted(emptyList, emptyList));
}

TEST(TrackInsertion, ZeroBytesAreOrdinaryBytes)
{
    const std::string zero(1, '\0');
    EXPECT_EQ(zero + "<xmpDM:Tracks><rdf:Bag>" + zero + "</rdf:Bag></xmpDM:Tracks>" + zero,
              inserted(zero + emptyList + zero, zero));
}

TEST(TrackInsertion, WithoutAnEmptyListItIsAnInternalErrorAndNothingChanges)
{
    for (const std::string without : {"", "x", "<xmpDM:Tracks><rdf:Bag/></xmpDM:Tracks>",
                                      "<xmpDM:Tracks><rdf:Bag> </rdf:Bag></xmpDM:Tracks>",
                                      "<xmpDM:Tracks ><rdf:Bag></rdf:Bag></xmpDM:Tracks>",
                                      "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks"}) {
        std::string packet = without;
        EXPECT_EQ(ZelData_InternalError, insert(packet, "t"));
        EXPECT_EQ(without, packet);
    }
}

TEST(TrackInsertion, TheTracksAreAppendedWithoutMoreMemoryThanAnnounced)
{
    std::string packet = emptyList;
    const auto code = insertTracks(packet, 1000, [](std::string& place) {
        const FailingAllocation failing(0);
        place.append(1000, 't');
    });
    EXPECT_EQ(ZelData_Ok, code);
    EXPECT_EQ(inserted(emptyList, std::string(1000, 't')), packet);
}

TEST(TrackInsertion, ATrackMayBeLongerThanAnnounced)
{
    std::string packet = emptyList;
    EXPECT_EQ(ZelData_Ok,
              insertTracks(packet, 1, [](std::string& place) { place.append(5000, 't'); }));
    EXPECT_EQ(inserted(emptyList, std::string(5000, 't')), packet);
}

TEST(TrackInsertion, PropagatesExhaustedMemory)
{
    std::string packet = emptyList;
    packet.shrink_to_fit();
    const FailingAllocation failing(0);
    EXPECT_THROW(static_cast<void>(insert(packet, std::string())), std::bad_alloc);
}

} // namespace
} // namespace ZelInterchangeData
