/// @file
/// See Preview.h.

#include "Preview.h"

#include <cstddef>
#include <cstdint>

#include "PreviewPage.inc"

namespace publish {

namespace {

constexpr std::string_view beforePacket[] = {ZEL_BEFORE_PACKET};
constexpr std::string_view beforeReport[] = {ZEL_BEFORE_REPORT};
constexpr std::string_view afterReport[] = {ZEL_AFTER_REPORT};

/// The 24 bits of up to three bytes of @p bytes from @p begin on; the missing ones are zero.
std::uint32_t threeBytes(std::string_view bytes, std::size_t begin)
{
    std::uint32_t bits = 0;
    for (std::size_t i = begin; i < begin + 3; ++i)
        bits = bits << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
    return bits;
}

void appendBase64(std::string& text, std::string_view bytes)
{
    constexpr std::string_view alphabet =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (std::size_t begin = 0; begin < bytes.size(); begin += 3) {
        const std::uint32_t bits = threeBytes(bytes, begin);
        for (const int shift : {18, 12, 6, 0})
            text += alphabet[bits >> shift & 0x3F];
    }
    const std::size_t padding = (3 - bytes.size() % 3) % 3;
    text.replace(text.size() - padding, padding, padding, '=');
}

} // namespace

std::string previewPage(std::string_view packet, std::string_view report)
{
    std::string page;
    for (const std::string_view part : beforePacket)
        page += part;
    appendBase64(page, packet);
    for (const std::string_view part : beforeReport)
        page += part;
    appendBase64(page, report);
    for (const std::string_view part : afterReport)
        page += part;
    return page;
}

} // namespace publish
