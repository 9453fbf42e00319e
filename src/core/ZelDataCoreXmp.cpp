#include "core/ZelDataCoreXmp.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"
#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"
#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"
#include "ZelInterchangeData/i_ZelDataTocFormatter.h"
#include "core/FileStreams.h"
#include "core/TrackInsertion.h"
#include "core/TrackWriter.h"
#include "util/Guard.h"

#include <array>
#include <cstring>
#include <memory>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

namespace {

constexpr std::string_view xmlDeclaration = R"(<?xml version="1.0" encoding="utf-8" ?>)";

/// A track with the formatter that writes it.
struct FormattedTrack {
    std::unique_ptr<i_ZelDataFormatterBase> formatter;
    const TrackWriter* writer;
};

/// The tracks of a packet, those that there are.
class Tracks {
public:
    explicit Tracks(ZelDataFormatType_tags type) : type_(type) {}

    /// Adds the track of @p data, if there are any, with a formatter that @p create makes.
    template <class Formatter, class Data>
    Ending add(const Data* data, ZelDataResult_tags (*create)(Formatter**, ZelDataFormatType_tags),
               ZelDataResult_tags (Formatter::*set)(const Data&))
    {
        if (data == nullptr) return {};
        Formatter* made = nullptr;
        const auto created = create(&made, type_);
        std::unique_ptr<Formatter> formatter(made);
        if (failed(created)) return created;
        if (failed((made->*set)(*data))) return made->getLastError();
        const TrackWriter* writer = trackWriterOf(*made);
        if (writer == nullptr) return ZelData_InternalError;
        return keep({std::move(formatter), writer});
    }

    /// About how many bytes all tracks have; 0 when there are none.
    std::size_t size() const noexcept { return size_; }

    void appendTo(std::string& packet) const
    {
        for (const FormattedTrack& track : tracks_)
            track.writer->append(packet);
    }

private:
    Ending keep(FormattedTrack track)
    {
        std::size_t length = 0;
        if (const auto measured = track.writer->measure(length); failed(measured)) return measured;
        size_ += length;
        if (length != 0) tracks_.push_back(std::move(track));
        return {};
    }

    ZelDataFormatType_tags type_;
    std::size_t size_ = 0;
    std::vector<FormattedTrack> tracks_;
};

/// Writes each byte as one wide character, in blocks on the stack: the stream's own insertion of
/// narrow text would ask for memory when the file is emptied already.
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

// Each of these steps ends with the code that writing ends with.

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
    // Meant to go on: captions that cannot name their languages are written under "en-US".
    if (failed(listed)) return {};
    for (const std::string& id : ids) {
        // cppcheck-suppress useStlAlgorithm ; each call changes the object, in this order
        if (isError(header()->addLanguage(id))) return header()->getLastError();
    }
    return {};
}

Ending ZelDataCoreXmp::replaceHeaderLanguages() const
{
    if (failed(header()->clearLanguages())) return header()->getLastError();
    if (const Ending ending = copyCaptionLanguages()) return ending;
    unsigned long count = 0;
    if (failed(header()->getLanguageCount(count))) return header()->getLastError();
    if (count == 0 && isError(header()->addLanguage("en-US"))) return header()->getLastError();
    return {};
}

Ending ZelDataCoreXmp::writeHeader(std::string& packet, ZelDataFormatType_tags format) const
{
    i_ZelDataHeaderFormatter* made = nullptr;
    const auto created = ZelDataUtilities::createHeaderFormatter(&made, format);
    const std::unique_ptr<i_ZelDataHeaderFormatter> formatter(made);
    if (failed(created)) return created;
    if (failed(made->setHeader(*header())) || failed(made->writeString(packet, format, false))) {
        return made->getLastError();
    }
    return {};
}

ZelDataResult_tags ZelDataCoreXmp::writeTracks(std::string& packet,
                                               ZelDataFormatType_tags format) const
{
    Tracks tracks(format);
    if (const Ending ending = tracks.add(captions(), &ZelDataUtilities::createCaptionFormatter,
                                         &i_ZelDataCaptionFormatter::setCaptions)) {
        return *ending;
    }
    if (const Ending ending = tracks.add(toc(), &ZelDataUtilities::createTocFormatter,
                                         &i_ZelDataTocFormatter::setToc)) {
        return *ending;
    }
    if (const Ending ending = tracks.add(screenText(), &ZelDataUtilities::createScreenTextFormatter,
                                         &i_ZelDataScreenTextFormatter::setScreenText)) {
        return *ending;
    }
    if (tracks.size() == 0) return ZelData_Ok;
    return insertTracks(packet, tracks.size(), [&](std::string& place) { tracks.appendTo(place); });
}

ZelDataResult_tags ZelDataCoreXmp::assemble(std::string& packet,
                                            ZelDataFormatType_tags format) const
{
    if (const Ending ending = checkHeader()) return *ending;
    if (const Ending ending = replaceHeaderLanguages()) return *ending;
    if (const Ending ending = writeHeader(packet, format)) return *ending;
    return writeTracks(packet, format);
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
        writeBytes(*stream, xmlDeclaration);
        // Meant to end at the first zero byte: no XML goes on behind it.
        writeBytes(*stream, {text.data(), std::strlen(text.c_str())});
        stream->close(); // what fails from the opening on is not reported
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
