#include "core/TrackInsertion.h"

#include "util/Guard.h"

#include <string_view>

namespace ZelInterchangeData {

namespace {

constexpr std::string_view emptyTracks = "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>";
constexpr std::string_view tracksOpening = "<xmpDM:Tracks><rdf:Bag>";
static_assert(emptyTracks.size() == 48 && tracksOpening.size() == 23);

} // namespace

ZelDataResult_tags insertTracks(std::string& packet,
                                const std::vector<std::string>& tracks) noexcept
{
    return guarded([&] {
        // The last list is the header's own: a creator, written as given, may hold another before
        // it.
        const auto position = packet.rfind(emptyTracks);
        if (position == std::string::npos) return ZelData_InternalError;
        std::size_t size = packet.size();
        for (const std::string& track : tracks)
            size += track.size();
        packet.reserve(size); // the only step that may fail, and the only new memory
        auto place = position + tracksOpening.size();
        for (const std::string& track : tracks) {
            packet.insert(place, track);
            place += track.size();
        }
        return ZelData_Ok;
    });
}

} // namespace ZelInterchangeData
