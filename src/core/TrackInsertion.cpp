#include "core/TrackInsertion.h"

#include "util/LastPlace.h"

#include <string_view>

namespace ZelInterchangeData {

namespace {

constexpr std::string_view emptyTracks = "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>";
constexpr std::string_view tracksOpening = "<xmpDM:Tracks><rdf:Bag>";
static_assert(emptyTracks.size() == 48 && tracksOpening.size() == 23);

} // namespace

std::size_t placeOfTracks(const std::string& packet)
{
    // The last empty list is the header's own: a creator, written as given, may contain one before
    // it.
    const std::size_t list = lastPlaceOf(emptyTracks, packet);
    return list == std::string::npos ? list : list + tracksOpening.size();
}

} // namespace ZelInterchangeData
