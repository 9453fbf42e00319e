#include "core/ZelDataCoreXmp.h"

#include "captions/ZelDataXmpCaptionFormatter.h"
#include "core/FileParts.h"
#include "core/FileStreams.h"
#include "core/TrackInsertion.h"
#include "header/ZelDataXmpHeaderFormatter.h"
#include "screentext/ZelDataXmpScreenTextFormatter.h"
#include "toc/ZelDataXmpTocFormatter.h"
#include "util/Guard.h"

#include <array>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

namespace {

/// The tracks of a packet, each with the formatter that writes it.
class Tracks {
public:
    Ending add(const i_ZelDataCaptions* captions)
    {
        return add(captions_, captions, &ZelDataXmpCaptionFormatter::setCaptions);
    }
    Ending add(const i_ZelDataToc* toc) { return add(toc_, toc, &ZelDataXmpTocFormatter::setToc); }
    Ending add(const i_ZelDataScreenText* screenText)
    {
        return add(screenText_, screenText, &ZelDataXmpScreenTextFormatter::setScreenText);
    }

    /// Inserts the tracks into the empty track list of @p packet.
    ZelDataResult_tags insertInto(std::string& packet) const
    {
        if (!captions_.size && !toc_.size && !screenText_.size) return ZelData_Ok;
        const std::size_t size =
            captions_.size.value_or(0) + toc_.size.value_or(0) + screenText_.size.value_or(0);
        return insertTracks(packet, size, [&](std::string& place) {
            append(captions_, place);
            append(toc_, place);
            append(screenText_, place);
        });
    }

private:
    template <class Formatter>
    struct Track {
        Formatter formatter;
        std::optional<std::size_t> size; // an estimate; none without a track
    };

    template <class Formatter, class Data>
    static Ending add(Track<Formatter>& track, const Data* data,
                      ZelDataResult_tags (Formatter::*set)(const Data&))
    {
        if (data == nullptr) return {};
        if (failed((track.formatter.*set)(*data))) return track.formatter.getLastError();
        const Ending ending = track.formatter.checkTrack();
        if (ending) return ending; // uncovered branch: what fails here cannot be set
        track.size = track.formatter.estimateTrack();
        return {};
    }

    template <class Formatter>
    static void append(const Track<Formatter>& track, std::string& packet)
    {
        if (track.size) track.formatter.appendTrack(packet);
    }

    Track<ZelDataXmpCaptionFormatter> captions_;
    Track<ZelDataXmpTocFormatter> toc_;
    Track<ZelDataXmpScreenTextFormatter> screenText_;
};

/// Writes each byte as one wide character, in blocks on the stack: the stream's own operator for
/// narrow text would allocate memory after the file was emptied.
void writeBytes(std::wostream& stream, std::string_view bytes)
{
    std::array<wchar_t, 1024> block{};
    while (!bytes.empty()) {
        const auto part = bytes.substr(0, block.size());
        for (std::size_t i = 0; i < part.size(); ++i) {
            block[i] = static_cast<wchar_t>(static_cast<unsigned char>(part[i]));
        }
        stream.write(block.data(), static_cast<std::streamsize>(part.size()));
        bytes.remove_prefix(part.size());
    }
}

} // namespace

// If one of these steps ends, writing ends with its code.

Ending ZelDataCoreXmp::checkHeader() const
{
    if (header() == nullptr) return ZelData_InvalidArgument;
    if (failed(header()->isValid())) return ZelData_InvalidData;
    return {};
}

Ending ZelDataCoreXmp::copyCaptionLanguages() const
{
    if (captions() == nullptr) return {};
    std::vector<std::string> ids;
    const auto listed = captions()->getOrderedLanguageIDs(ids);
    if (listed == ZelData_OutOfMemory) return captions()->getLastError();
    // Deliberate: continues; otherwise captions that cannot list their languages would make writing
    // fail instead of counting as "en-US".
    if (failed(listed)) return {};
    for (const std::string& id : ids) {
        // cppcheck-suppress useStlAlgorithm ; each call changes the object, in this order
        if (isError(mutableHeader().addLanguage(id))) return header()->getLastError();
    }
    return {};
}

Ending ZelDataCoreXmp::replaceHeaderLanguages() const
{
    if (failed(mutableHeader().clearLanguages())) return header()->getLastError();
    if (const Ending ending = copyCaptionLanguages()) return ending;
    unsigned long count = 0;
    if (failed(header()->getLanguageCount(count))) return header()->getLastError();
    if (count == 0 && isError(mutableHeader().addLanguage("en-US")))
        return header()->getLastError();
    return {};
}

Ending ZelDataCoreXmp::writeHeader(std::string& packet, ZelDataFormatType_tags format) const
{
    if (format != ZelDataFormat_Xmp) return ZelData_UnsupportedFormat;
    ZelDataXmpHeaderFormatter formatter;
    if (failed(formatter.setHeader(*header())) ||
        failed(formatter.writeString(packet, format, false))) {
        return formatter.getLastError();
    }
    return {};
}

ZelDataResult_tags ZelDataCoreXmp::writeTracks(std::string& packet) const
{
    Tracks tracks;
    if (const Ending ending = tracks.add(captions())) return *ending;
    if (const Ending ending = tracks.add(toc())) return *ending;
    if (const Ending ending = tracks.add(screenText())) return *ending;
    return tracks.insertInto(packet);
}

ZelDataResult_tags ZelDataCoreXmp::assemble(std::string& packet,
                                            ZelDataFormatType_tags format) const
{
    if (const Ending ending = checkHeader()) return *ending;
    if (const Ending ending = replaceHeaderLanguages()) return *ending;
    if (const Ending ending = writeHeader(packet, format)) return *ending;
    return writeTracks(packet);
}

ZelDataResult_tags ZelDataCoreXmp::writeString(std::string& out, ZelDataFormatType_tags format,
                                               bool append) const
{
    return store(guarded([&] {
        std::string packet;
        const auto assembled = assemble(packet, format);
        if (failed(assembled)) return assembled;
        if (append) {
            out += packet;
        } else {
            out = std::move(packet);
        }
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataCoreXmp::writeFile(const std::string& path, ZelDataFormatType_tags format,
                                             bool /*flag*/) const
{
    return store(guarded([&] {
        std::string text;
        if (failed(writeString(text, format, false))) return getLastError();
        const auto stream = createWofstreamWithFile(path);
        if (!stream->is_open()) return ZelData_FileOpenFailed;
        for (const std::string_view part : filePartsOf(text))
            writeBytes(*stream, part);
        stream->close(); // does not report failures after opening
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataCoreXmp::readString(const std::string& text,
                                              ZelDataFormatType_tags format, bool flag)
{
    return ZelDataCore::readString(text, format, flag);
}

ZelDataResult_tags ZelDataCoreXmp::readFile(const std::string& path, ZelDataFormatType_tags format)
{
    return ZelDataCore::readFile(path, format);
}

} // namespace ZelInterchangeData
