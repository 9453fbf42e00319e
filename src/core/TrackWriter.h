/// @file
/// Writing a track where it belongs.

#ifndef ZELINTERCHANGEDATA_CORE_TRACKWRITER_H
#define ZELINTERCHANGEDATA_CORE_TRACKWRITER_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <cstddef>
#include <string>

namespace ZelInterchangeData {

class i_ZelDataCaptionFormatter;
class i_ZelDataScreenTextFormatter;
class i_ZelDataTocFormatter;

/// What the document asks of our formatters of tracks beside their interface: to append the track
/// to the packet itself. Got as a string and inserted, a large track would be copied once more.
///
/// The calls go through pointers because a class behind an interface has the virtual operations of
/// that interface and no others.
class TrackWriter {
public:
    /// Stores in @p size about how many bytes the track has, 0 for a set without items, which has
    /// no track. Gives the code that writing ends with.
    ZelDataResult_tags measure(std::size_t& size) const { return measure_(*this, size); }
    /// Appends the track, which was measured, to @p packet.
    void append(std::string& packet) const { append_(*this, packet); }

protected:
    using Measure = ZelDataResult_tags (*)(const TrackWriter& self, std::size_t& size);
    using Append = void (*)(const TrackWriter& self, std::string& packet);

    TrackWriter(Measure measureCall, Append appendCall) noexcept
        : measure_(measureCall), append_(appendCall)
    {
    }
    ~TrackWriter() = default;

private:
    Measure measure_;
    Append append_;
};

/// @name Looking before writing
/// Each gives @p formatter as the writer of its track when it is exactly our own, else null. Each is
/// defined beside the class that it looks for.
/// @{
const TrackWriter* trackWriterOf(const i_ZelDataCaptionFormatter& formatter) noexcept;
const TrackWriter* trackWriterOf(const i_ZelDataTocFormatter& formatter) noexcept;
const TrackWriter* trackWriterOf(const i_ZelDataScreenTextFormatter& formatter) noexcept;
/// @}

} // namespace ZelInterchangeData

#endif
