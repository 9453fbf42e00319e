#include "hostile/HostileTexts.h"

#include <cstddef>

namespace ZelInterchangeData {

const std::string emptyTracks = "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>";

namespace {

using Texts = std::vector<HostileText>;

/// As it is, and between letters.
void addBoth(Texts& texts, const std::string& name, const std::string& bytes)
{
    texts.push_back({name, bytes});
    texts.push_back({name + " between letters", "x" + bytes + "y"});
}

void addMarkup(Texts& texts)
{
    texts.push_back({"nothing", ""});
    for (const char c : {'"', '&', '\'', '<', '>'})
        addBoth(texts, std::string("the character ") + c, std::string(1, c));
    addBoth(texts, "all five characters", "\"&'<>");
    addBoth(texts, "the end of a CDATA section", "]]>");
    addBoth(texts, "a CDATA section", "<![CDATA[x]]>");
    addBoth(texts, "a comment", "<!-- x -- y -->");
    addBoth(texts, "an open comment", "<!--");
    addBoth(texts, "a processing instruction", "<?xml version=\"1.0\"?>");
    addBoth(texts, "an open processing instruction", "<?x");
    addBoth(texts, "a document type", "<!DOCTYPE x [<!ENTITY y \"z\">]>");
    addBoth(texts, "the end of the packet", "\"></rdf:Description></rdf:RDF></x:xmpmeta>");
    addBoth(texts, "an attribute", "\" zel:version=\"9");
    addBoth(texts, "the empty list of the tracks", emptyTracks);
    addBoth(texts, "two empty lists of tracks", emptyTracks + emptyTracks);
    addBoth(texts, "an escaped empty list", "&lt;xmpDM:Tracks&gt;&lt;rdf:Bag&gt;");
}

void addEntities(Texts& texts)
{
    for (const char* entity :
         {"&quot;",     "&amp;", "&apos;", "&lt;",  "&gt;", "&amp;amp;",  "&nbsp;",
          "&x;",        "&;",    "&#0;",   "&#x0;", "&#1;", "&#xFFFE;",   "&#xD800;",
          "&#x110000;", "&a",    "&am",    "&ap",   "&l",   "&unfinished"}) {
        addBoth(texts, std::string("the reference ") + entity, entity);
    }
}

void addControlCharacters(Texts& texts)
{
    for (char c = 1; c < 0x20; ++c)
        addBoth(texts, "control character " + std::to_string(c), std::string(1, c));
    addBoth(texts, "DEL", "\x7F");
    for (int c = 0x80; c < 0xA0; ++c) {
        const std::string bytes = {'\xC2', static_cast<char>(c)};
        addBoth(texts, "C1 character " + std::to_string(c), bytes);
    }
    addBoth(texts, "line ends", "\r\n\n\r\n\t");
    addBoth(texts, "only what is stripped", "\x01\t\r\x1F");
}

void addZeroBytes(Texts& texts)
{
    addBoth(texts, "a zero byte", std::string(1, '\0'));
    addBoth(texts, "two zero bytes", std::string(2, '\0'));
    addBoth(texts, "a zero byte before markup", std::string("\0<&\"", 4));
    addBoth(texts, "a zero byte and the empty list", std::string(1, '\0') + emptyTracks);
}

void addOddCharacters(Texts& texts)
{
    addBoth(texts, "BOM", "\xEF\xBB\xBF");
    addBoth(texts, "U+FFFE", "\xEF\xBF\xBE");
    addBoth(texts, "U+FFFF", "\xEF\xBF\xBF");
    addBoth(texts, "U+FDD0", "\xEF\xB7\x90");
    addBoth(texts, "U+FDEF", "\xEF\xB7\xAF");
    addBoth(texts, "U+1FFFE", "\xF0\x9F\xBF\xBE");
    addBoth(texts, "U+10FFFF", "\xF4\x8F\xBF\xBF");
    addBoth(texts, "U+2028", "\xE2\x80\xA8");
    // NOLINTNEXTLINE(misc-misleading-bidirectional): meant to mislead.
    addBoth(texts, "right to left", "\xE2\x80\xAE");
    addBoth(texts, "a combining accent", "\xCC\x81");
}

void addForbiddenForms(Texts& texts)
{
    addBoth(texts, "U+D800", "\xED\xA0\x80");
    addBoth(texts, "U+DFFF", "\xED\xBF\xBF");
    addBoth(texts, "a pair of surrogates", "\xED\xA0\xBD\xED\xB8\x80");
    addBoth(texts, "a slash in two bytes", "\xC0\xAF");
    addBoth(texts, "zero in two bytes", "\xC0\x80");
    addBoth(texts, "U+007F in two bytes", "\xC1\xBF");
    addBoth(texts, "a less-than sign in three bytes", "\xE0\x80\xBC");
    addBoth(texts, "zero in three bytes", "\xE0\x80\x80");
    addBoth(texts, "U+07FF in three bytes", "\xE0\x9F\xBF");
    addBoth(texts, "U+FFFF in four bytes", "\xF0\x8F\xBF\xBF");
    addBoth(texts, "U+110000", "\xF4\x90\x80\x80");
    addBoth(texts, "U+1FFFFF", "\xF7\xBF\xBF\xBF");
    addBoth(texts, "five bytes", "\xF8\x88\x80\x80\x80");
    addBoth(texts, "the last of five bytes", "\xFB\xBF\xBF\xBF\xBF");
    addBoth(texts, "six bytes", "\xFC\x84\x80\x80\x80\x80");
    addBoth(texts, "the last of six bytes", "\xFD\xBF\xBF\xBF\xBF\xBF");
}

void addMalformed(Texts& texts)
{
    addBoth(texts, "0xFE", "\xFE");
    addBoth(texts, "0xFF", "\xFF");
    addBoth(texts, "0xFE and five bytes", "\xFE\x80\x80\x80\x80\x80");
    addBoth(texts, "UTF-16", "\xFF\xFE<");
    addBoth(texts, "a stray byte", "\x80");
    addBoth(texts, "two stray bytes", "\xBF\xBF");
    for (const char* whole : {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80",
                              "\xF8\x88\x80\x80\x80", "\xFC\x84\x80\x80\x80\x80"}) {
        const std::string sequence = whole;
        for (std::size_t length = 1; length < sequence.size(); ++length) {
            addBoth(texts, std::to_string(length) + " of " + std::to_string(sequence.size()),
                    sequence.substr(0, length));
        }
    }
    addBoth(texts, "a sequence cut by markup", "\xE2\x82<");
}

void addLongTexts(Texts& texts)
{
    constexpr std::size_t mebibyte = 1048576;
    texts.push_back({"1 MiB of letters", std::string(mebibyte, 'q')});
    texts.push_back({"1 MiB of markup", std::string(mebibyte, '&')});
    texts.push_back({"1 MiB of control characters", std::string(mebibyte, '\x01')});
    texts.push_back({"1 MiB that ends in half a character", std::string(mebibyte, 'q') + "\xC3"});
}

} // namespace

const std::vector<HostileText>& hostileTexts()
{
    static const Texts texts = [] {
        Texts all;
        for (const auto add : {addMarkup, addEntities, addControlCharacters, addZeroBytes,
                               addOddCharacters, addForbiddenForms, addMalformed, addLongTexts}) {
            add(all);
        }
        return all;
    }();
    return texts;
}

} // namespace ZelInterchangeData
