/// @file
/// See PacketWriter.h.

#include "PacketWriter.h"

#include "Check.h"
#include "OutputFile.h"
#include "Text.h"

namespace publish {

using namespace ZelInterchangeData;

namespace {

/// What the library writes into a file: the declaration, and the packet up to its first zero byte.
std::string fileContents(const i_ZelInterchangeDataCore& document)
{
    std::string packet;
    check(document.writeString(packet, ZelDataFormat_Xmp, false), "writing the packet");
    return R"(<?xml version="1.0" encoding="utf-8" ?>)" + packet.substr(0, packet.find('\0'));
}

/// The library does not report a failure after opening the file, such as a full device, so the size
/// shows whether everything was written.
void checkSize(std::size_t size, std::size_t expected, const i_ZelInterchangeDataCore& document,
               const std::string& output)
{
    // The date's offset may gain or lose a digit when the hour changes between the two writes, so
    // compare once more.
    if (size != expected && size != fileContents(document).size())
        failToWrite(output, "the file is not complete");
}

std::size_t replaceFile(const i_ZelInterchangeDataCore& document, const std::filesystem::path& file,
                        const std::string& output)
{
    const std::size_t expected = fileContents(document).size();
    ReplacementFile replacement(file, output);
    check(document.writeFile(replacement.path(), ZelDataFormat_Xmp, false), printable(output));
    const std::size_t size = replacement.size();
    checkSize(size, expected, document, output);
    replacement.replace();
    return size;
}

} // namespace

std::size_t writePacket(const i_ZelInterchangeDataCore& document, const std::string& output)
{
    if (const std::optional<std::filesystem::path> file = replaceableFile(output))
        return replaceFile(document, *file, output);
    const std::string contents = fileContents(document);
    writeDirectly(output, contents);
    return contents.size();
}

} // namespace publish
