#include "core/TrackInsertion.h"

#include "support/Checks.h"
#include "xml/FailingAllocation.h"

namespace ZelInterchangeData {
namespace {

const std::string emptyList = "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>";

std::string inserted(std::string packet, const std::string& tracks)
{
    EXPECT_EQ(ZelData_Ok, insertTracks(packet, {tracks}));
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

TEST(TrackInsertion, OfSeveralEmptyListsTheLastOneIsTaken)
{
    EXPECT_EQ(emptyList + "<xmpDM:Tracks><rdf:Bag>t</rdf:Bag></xmpDM:Tracks>!",
              inserted(emptyList + emptyList + "!", "t"));
}

TEST(TrackInsertion, TracksThatHoldAnEmptyListGoInAsTheyAre)
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
        EXPECT_EQ(ZelData_InternalError, insertTracks(packet, {"t"}));
        EXPECT_EQ(without, packet);
    }
}

TEST(TrackInsertion, WithoutMemoryThePacketStaysAsItWas)
{
    std::string packet = emptyList;
    packet.shrink_to_fit();
    const std::vector<std::string> tracks{std::string(1000, 't')};
    ZelDataResult_tags code = ZelData_Ok;
    {
        const FailingAllocation failing(0);
        code = insertTracks(packet, tracks);
    }
    EXPECT_EQ(ZelData_OutOfMemory, code);
    EXPECT_EQ(emptyList, packet);
}

} // namespace
} // namespace ZelInterchangeData
