/// @file
/// Text passes with the library's functions and with the plain loops.

#include "bench/TextSamples.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "bench/Documents.h"
#include "bench/PlainLoops.h"

#include "util/TextUtilities.h"

#include <utility>

namespace ZelInterchangeData::bench {

namespace {

constexpr std::size_t textsInSample = 600;

TextSample sampleOf(const char* name, std::vector<std::string> texts)
{
    std::size_t bytes = 0;
    for (const std::string& text : texts)
        bytes += text.size();
    return {name, std::move(texts), bytes};
}

void escapeOne(std::string& out, const std::string& text)
{
    appendEscapedStripped(out, text);
}

} // namespace

std::array<TextSample, 3> utf8Samples()
{
    return {sampleOf("ASCII", makeTexts(textsInSample, 0, false)),
            sampleOf("Latin", makeTexts(textsInSample, 1, false)),
            sampleOf("CJK", makeTexts(textsInSample, 2, false))};
}

TextSample captionSample()
{
    std::vector<std::string> texts;
    for (const int alphabet : {0, 1, 2}) {
        for (std::string& text : makeTexts(textsInSample / 3, alphabet, true))
            texts.push_back(std::move(text));
    }
    return sampleOf("captions", std::move(texts));
}

TextSample entitySample()
{
    constexpr std::size_t length = std::size_t{1} << 20;
    constexpr std::size_t entityLength = 5; // of "&amp;"
    return {"entities", {std::string(length, '&')}, length * entityLength};
}

std::size_t countValid(const TextSample& sample)
{
    std::size_t valid = 0;
    for (const std::string& text : sample.texts)
        if (ZelDataUtilities::verifyUtf8Format(text, false) == ZelData_Ok) ++valid;
    return valid;
}

std::size_t countValidPlainly(const TextSample& sample)
{
    std::size_t valid = 0;
    for (const std::string& text : sample.texts)
        if (hasUtf8Form(text)) ++valid;
    return valid;
}

std::size_t escapeAll(const TextSample& sample, std::string& out)
{
    out.clear();
    for (const std::string& text : sample.texts)
        escapeOne(out, text);
    return out.size();
}

std::size_t escapeAllPlainly(const TextSample& sample, std::string& out)
{
    out.clear();
    for (const std::string& text : sample.texts)
        appendEscapedByteByByte(out, text);
    return out.size();
}

} // namespace ZelInterchangeData::bench
