#include "core/ZelDataCoreXmp.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"
#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"
#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"
#include "ZelInterchangeData/i_ZelDataTocFormatter.h"
#include "core/FileStreams.h"
#include "core/TrackInsertion.h"
#include "util/Guard.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <ostream>
#include <string_view>
#include <utility>

namespace ZelInterchangeData {

namespace {

constexpr std::string_view xmlDeclaration = R"(<?xml version="1.0" encoding="utf-8" ?>)";

/// Gets the text that a formatter, which @p create makes, writes for @p data.
template <class Formatter, class Data>
Ending writeWith(std::string& text, const Data& data, ZelDataFormatType_tags type,
                 ZelDataResult_tags (*create)(Formatter**, ZelDataFormatType_tags),
                 ZelDataResult_tags (Formatter::*set)(const Data&))
{
    Formatter* made = nullptr;
    const auto created = create(&made, type);
    const std::unique_ptr<Formatter> formatter(made);
    if (failed(created)) return created;
    if (failed((made->*set)(data)) || failed(made->writeString(text, type, false))) {
        return made->getLastError();
    }
    return {};
}

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

Ending ZelDataCoreXmp::writeTracks(std::vector<std::string>& tracks,
                                   ZelDataFormatType_tags format) const
{
    Ending ending;
    if (captions() != nullptr) {
        ending = writeWith(tracks.emplace_back(), *captions(), format,
                           &ZelDataUtilities::createCaptionFormatter,
                           &i_ZelDataCaptionFormatter::setCaptions);
    }
    if (!ending && toc() != nullptr) {
        ending = writeWith(tracks.emplace_back(), *toc(), format,
                           &ZelDataUtilities::createTocFormatter, &i_ZelDataTocFormatter::setToc);
    }
    if (!ending && screenText() != nullptr) {
        ending = writeWith(tracks.emplace_back(), *screenText(), format,
                           &ZelDataUtilities::createScreenTextFormatter,
                           &i_ZelDataScreenTextFormatter::setScreenText);
    }
    return ending;
}

ZelDataResult_tags ZelDataCoreXmp::assemble(std::string& packet,
                                            ZelDataFormatType_tags format) const
{
    if (const Ending ending = checkHeader()) return *ending;
    if (const Ending ending = replaceHeaderLanguages()) return *ending;
    if (const Ending ending =
            writeWith(packet, *header(), format, &ZelDataUtilities::createHeaderFormatter,
                      &i_ZelDataHeaderFormatter::setHeader)) {
        return *ending;
    }
    std::vector<std::string> tracks; // a set without items leaves its text empty
    if (const Ending ending = writeTracks(tracks, format)) return *ending;
    const bool isEmpty = std::all_of(tracks.begin(), tracks.end(),
                                     [](const std::string& track) { return track.empty(); });
    return isEmpty ? ZelData_Ok : insertTracks(packet, tracks);
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
