#include "hostile/PacketGenerator.h"

#include "hostile/CodePoints.h"
#include "hostile/HostileTexts.h"
#include "support/Dice.h"

#include <algorithm>
#include <limits>

namespace ZelInterchangeData {

namespace {

using Pieces = std::vector<std::string>;

/// What every text may hold: no control characters but white space, none of the five characters.
const Pieces& harmless()
{
    static const Pieces pieces = {"a",
                                  "word ",
                                  " ",
                                  "  ",
                                  "\n",
                                  "\t",
                                  "\r",
                                  "\r\n",
                                  ";",
                                  "#x3C;",
                                  "]]",
                                  "--",
                                  "?",
                                  "!",
                                  "{",
                                  "}",
                                  "=",
                                  "/",
                                  "\x7F",
                                  "\xC2\x80",
                                  "\xC2\x85",
                                  "\xC2\x9F",
                                  "\xC3\xA9",
                                  "\xCC\x81",
                                  "\xD7\x90",
                                  "\xE2\x80\xA8",
                                  "\xE2\x80\xAE", // NOLINT(misc-misleading-bidirectional): meant
                                  "\xE8\x8C\xB6",
                                  "\xED\x9F\xBF",
                                  "\xEE\x80\x80",
                                  "\xEF\xB7\x90",
                                  "\xEF\xBB\xBF",
                                  "\xEF\xBF\xBD",
                                  "\xF0\x90\x80\x80",
                                  "\xF0\x9F\x8D\xB5",
                                  "\xF0\x9F\xBF\xBE",
                                  "\xF4\x8F\xBF\xBF"};
    return pieces;
}

/// What a text that is escaped may hold besides.
const Pieces& markup()
{
    static const Pieces pieces = {"\"",   "&",      "'",         "<",         ">",        "]]>",
                                  "<!--", "-->",    "<![CDATA[", "<?xml?>",   "&amp;",    "&lt",
                                  "&#0;", "&nbsp;", "\"/>",      "</rdf:li>", emptyTracks};
    return pieces;
}

/// What a text that is stripped may hold besides.
const Pieces& controls()
{
    static const Pieces pieces = {
        std::string(1, '\0'), "\x01", "\x08", "\x0B", "\x0C", "\x0E", "\x1B", "\x1F"};
    return pieces;
}

/// Any code point that XML allows and that is neither markup nor a control character.
std::string anyCharacter(Dice& dice)
{
    for (;;) {
        const auto point = static_cast<std::uint32_t>(dice.below(0x110000));
        const bool isSurrogate = point >= 0xD800 && point < 0xE000;
        const bool isForbidden = isSurrogate || point == 0xFFFE || point == 0xFFFF;
        if (point > 0x7E && !isForbidden) return encoded(point);
    }
}

enum class Kind { AsGiven, Escaped, EscapedAndStripped };

const Pieces& choose(Dice& dice, Kind kind)
{
    if (kind == Kind::EscapedAndStripped && dice.once(5)) return controls();
    if (kind != Kind::AsGiven && dice.once(3)) return markup();
    return harmless();
}

/// Mostly a few, rarely so many that what follows may begin anywhere in a writer's block of memory.
std::size_t pieceCount(Dice& dice)
{
    return dice.once(500) ? dice.below(5000) : dice.below(6);
}

std::string text(Dice& dice, Kind kind)
{
    std::string result;
    for (std::size_t count = pieceCount(dice); count > 0; --count)
        result += dice.once(6) ? anyCharacter(dice) : dice.one(choose(dice, kind));
    return result;
}

Pieces texts(Dice& dice)
{
    Pieces result;
    for (std::size_t count = dice.below(4); count > 0; --count)
        result.push_back(text(dice, Kind::Escaped));
    return result;
}

/// A language, often followed by something that no check reads.
std::string language(Dice& dice)
{
    auto name = languageNames().begin();
    std::advance(name, dice.below(languageNames().size()));
    return dice.once(2) ? name->first : name->first + '-' + text(dice, Kind::AsGiven);
}

TextsByLanguage textsByLanguage(Dice& dice, const Pieces& languages)
{
    TextsByLanguage result;
    for (const std::string& id : languages) {
        if (!dice.once(4)) result[id] = text(dice, Kind::EscapedAndStripped);
    }
    return result;
}

Pieces languages(Dice& dice)
{
    Pieces ids;
    for (std::size_t count = dice.below(5); count > 0; --count)
        ids.push_back(language(dice));
    return ids;
}

/// Few different starts, so that many are equal.
long long time(Dice& dice)
{
    return dice.once(20) ? std::numeric_limits<long long>::max() / 2
                         : static_cast<long long>(dice.below(5));
}

/// Mostly a few, rarely many.
std::size_t itemCount(Dice& dice)
{
    return dice.once(1000) ? 60 : dice.below(4);
}

ImageModel image(Dice& dice, Kind kind)
{
    return {text(dice, kind), dice.once(9) ? std::numeric_limits<unsigned long>::max() : 3,
            dice.below(9)};
}

void fillHeader(PacketModel& model, Dice& dice)
{
    model.title = text(dice, Kind::Escaped);
    model.creator = text(dice, Kind::AsGiven);
    model.description = text(dice, Kind::Escaped);
    model.appName = text(dice, Kind::Escaped);
    model.appVersion = text(dice, Kind::Escaped);
    model.keywords = texts(dice);
    model.contentNames = texts(dice);
    // A name is listed once.
    std::sort(model.contentNames.begin(), model.contentNames.end());
    model.contentNames.erase(std::unique(model.contentNames.begin(), model.contentNames.end()),
                             model.contentNames.end());
    model.isExplicit = dice.once(2);
    model.showsSearch = dice.once(2);
    model.length = 1 + dice.below(100000);
    model.width = 1 + dice.below(10000);
    model.height = 1 + dice.below(10000);
}

void fillCaptions(PacketModel& model, Dice& dice)
{
    model.fontFamily = "F" + text(dice, Kind::AsGiven);
    model.fontSize = 1 + dice.below(500);
    model.captionRate = 1 + dice.below(10000);
    const Pieces ids = languages(dice);
    for (std::size_t count = itemCount(dice); count > 0; --count) {
        model.captions.push_back({time(dice), 1 + time(dice),
                                  dice.once(2) ? ZelAlignTop : ZelAlignBottom,
                                  textsByLanguage(dice, ids)});
    }
}

void fillToc(PacketModel& model, Dice& dice)
{
    model.tableImage = text(dice, Kind::Escaped);
    const Pieces ids = languages(dice);
    for (std::size_t count = itemCount(dice); count > 0; --count) {
        model.entries.push_back(
            {time(dice), image(dice, Kind::Escaped), textsByLanguage(dice, ids)});
    }
}

void fillScreenText(PacketModel& model, Dice& dice)
{
    model.screenTextRate = 1 + dice.below(10000);
    for (std::size_t count = itemCount(dice); count > 0; --count) {
        model.screenTexts.push_back({time(dice), time(dice), image(dice, Kind::AsGiven),
                                     dice.below(9), text(dice, Kind::EscapedAndStripped)});
    }
}

} // namespace

PacketModel generatedModel(std::uint64_t seed)
{
    // Spread over all bits, or neighbouring seeds would begin alike.
    Dice dice(seed * 0x9E3779B97F4A7C15U);
    PacketModel model;
    fillHeader(model, dice);
    fillCaptions(model, dice);
    fillToc(model, dice);
    fillScreenText(model, dice);
    return model;
}

} // namespace ZelInterchangeData
