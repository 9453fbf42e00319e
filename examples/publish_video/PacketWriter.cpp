/// @file
/// See PacketWriter.h.

#include "PacketWriter.h"

#include "Check.h"
#include "OutputFile.h"
#include "System.h"

#include "ZelInterchangeData/ZelDataReplaceFile.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

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

/// For standard output, a device, a pipe, or a file that is already open (`/dev/stdout`).
std::string writeInPlace(const i_ZelInterchangeDataCore& document, const std::string& output)
{
    const std::string contents = fileContents(document);
    if (output == standardOutput)
        writeStandardOutput(contents);
    else
        writeDirectly(output, contents);
    return contents;
}

/// What is in the file that replaceFile() has written. Writing again could give a later date, so this
/// does it only if the file may not be read.
std::string replacedContents(const i_ZelInterchangeDataCore& document,
                             const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    const std::string contents{std::istreambuf_iterator<char>(stream), {}};
    return contents.empty() ? fileContents(document) : contents;
}

/// Whether @p error says that there is a file, but none that can be replaced.
bool isNotReplaceable(const std::error_code& error)
{
    // The standard libraries for Windows do not agree on what ERROR_NOT_SUPPORTED means.
    return error == std::errc::not_supported || error == std::errc::function_not_supported;
}

} // namespace

std::string writePacket(const i_ZelInterchangeDataCore& document, const std::string& output)
{
    if (output == standardOutput) return writeInPlace(document, output);
    const std::filesystem::path file = std::filesystem::u8path(output);
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) // which is no error of its own on Windows
        failToWrite(output, std::make_error_code(std::errc::is_a_directory));
    int systemError = 0;
    auto code = ZelData_Ok;
    // Without this, a signal would leave the file that the library writes first.
    uninterrupted([&] { code = replaceFile(document, output, systemError); });
    const std::error_code error(systemError, std::system_category());
    if (isNotReplaceable(error)) return writeInPlace(document, output);
    if (error) failToWrite(output, error);
    check(code, "writing the packet");
    return replacedContents(document, file);
}

} // namespace publish
