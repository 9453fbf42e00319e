/// @file
/// The loops that the benchmarks compare with.

#include "bench/PlainLoops.h"

namespace ZelInterchangeData::bench {

namespace {

/// The number of continuation bytes that follow @p lead; -1 if it is not a lead byte.
int followers(unsigned char lead)
{
    if (lead < 0x80) return 0;
    if (lead < 0xC2) return -1;
    if (lead < 0xE0) return 1;
    if (lead < 0xF0) return 2;
    if (lead < 0xF8) return 3;
    if (lead < 0xFC) return 4;
    return lead < 0xFE ? 5 : -1;
}

} // namespace

bool hasUtf8Form(std::string_view text)
{
    int open = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (open > 0) {
            if ((byte & 0xC0U) != 0x80) return false;
            --open;
        } else {
            open = followers(byte);
            if (open < 0) return false;
        }
    }
    return open == 0;
}

void appendEscapedByteByByte(std::string& out, std::string_view text)
{
    for (const char c : text) {
        switch (c) {
        case '"':
            out += "&quot;";
            break;
        case '&':
            out += "&amp;";
            break;
        case '\'':
            out += "&apos;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        default:
            if (static_cast<unsigned char>(c) >= 0x20 || c == '\n') out += c;
        }
    }
}

} // namespace ZelInterchangeData::bench
