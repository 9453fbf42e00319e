/// @file
/// A fixed amount of work for callgrind, one dump for each named section.

#include "ZelInterchangeData/ZelDataFace.h"
#include "bench/CFaceRun.h"
#include "bench/FaceRun.h"
#include "bench/LibraryRun.h"
#include "bench/StraightAppender.h"
#include "bench/TextSamples.h"

#include <valgrind/callgrind.h>

#include <cstdio>
#include <stdexcept>

namespace ZelInterchangeData::bench {

namespace {

/// Counts the instructions of @p work alone, under @p name. The library's sections and the others
/// are counted in the same way. Outside valgrind the requests do nothing.
template <class Work>
void section(const std::string& name, Work&& work)
{
    CALLGRIND_ZERO_STATS;
    CALLGRIND_TOGGLE_COLLECT;
    const std::size_t result = work();
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    if (result == 0) throw std::runtime_error(name + " did nothing");
    std::printf("%s %zu\n", name.c_str(), result);
}

void probeDocument(std::size_t size, Order order)
{
    const Document document = makeDocument(size, order, Pair::enDe);
    const Document written = inWrittenOrder(document);
    const Sets sets = fill(document);
    const auto core = set(sets);
    const std::string place = std::string(nameOf(order)) + "." + std::to_string(size);
    section("write." + place, [&] { return write(*core).size(); });
    section("appender." + place, [&] { return appendPacket(written).size(); });
}

void probeTexts()
{
    for (const TextSample& sample : utf8Samples()) {
        const std::string name = std::string("utf8.") + sample.name;
        section(name, [&] { return countValid(sample); });
        section(name + ".plain", [&] { return countValidPlainly(sample); });
    }
    const TextSample sample = captionSample();
    std::string out;
    out.reserve(sample.bytes * 2);
    section("escape", [&] { return escapeAll(sample, out); });
    section("escape.plain", [&] { return escapeAllPlainly(sample, out); });
}

/// What @p publish returns in ten rounds. With ten rounds, the initial state of the heap matters
/// little.
template <class Publish>
std::size_t tenRounds(Publish&& publish)
{
    std::size_t bytes = 0;
    for (int round = 0; round < 10; ++round)
        bytes += publish().size();
    return bytes;
}

/// The same document through codes and through the face that is compiled into the caller.
void probeFace()
{
    const Document document = makeDocument(1000, Order::shuffled, Pair::enDe);
    const auto throughCodes = [&] { return write(*set(fill(document))); };
    const auto throughFace = [&] { return publishThroughFace(document); };
    static_cast<void>(tenRounds(throughFace));
    section("codes", [&] { return tenRounds(throughCodes); });
    section("face", [&] { return tenRounds(throughFace); });
}

/// Filling through the C face and through the interfaces, in both cases with texts that are
/// characters.
void probeCFace()
{
    const Document document = makeDocument(1000, Order::shuffled, Pair::enDe);
    const auto tenFills = [](auto&& fillOnce) {
        std::size_t captions = 0;
        for (int round = 0; round < 10; ++round)
            captions += fillOnce();
        return captions;
    };
    const auto throughC = [&] { return fillThroughC(document); };
    static_cast<void>(tenFills(throughC));
    section("fill", [&] {
        return tenFills([&] { return fillFromCharacters(document).captions ? 1U : 0U; });
    });
    section("fill.c", [&] { return tenFills(throughC); });
}

/// Finds problems in captions that are in order, so that the search for a later one that starts too
/// early examines all of them.
void probeFindings(std::size_t size)
{
    const Sets sets = fill(makeDocument(size, Order::ascending, Pair::enDe));
    section("findings." + std::to_string(size), [&] {
        std::vector<ZelDataFinding> findings;
        return failed(findProblems(*sets.captions, findings)) ? 0 : findings.size() + 1;
    });
}

std::string languageID(std::size_t number)
{
    return "en-" + std::to_string(number);
}

/// Texts in many languages, on one item and in one list.
void probeLanguages(std::size_t size)
{
    const auto item = createCaptionItem();
    checked(*item).setDuration(1000);
    const std::string text(1000, 'x'); // many of them are too much to be packed
    section("texts." + std::to_string(size), [&] {
        for (std::size_t i = 0; i < size; ++i)
            checked(*item).setTextForLanguage(text, languageID(i * 7919 % size));
        return size;
    });
    const auto header = createHeader();
    section("languages." + std::to_string(size), [&] {
        for (std::size_t i = 0; i < size; ++i)
            checked(*header).addLanguage(languageID(i));
        return size;
    });
    const auto captions = createCaptions();
    section("item." + std::to_string(size),
            [&] { return checked(*captions).addCaptionItem(*item).getLanguageCount(); });
}

/// Removes all captions from the front, one after another.
void probeFront(std::size_t size)
{
    const Sets sets = fill(makeDocument(size, Order::ascending, Pair::enDe));
    const auto captions = checked(*sets.captions);
    section("front." + std::to_string(size), [&] {
        for (std::size_t i = 0; i < size; ++i)
            captions.removeCaptionItemAt(0);
        return captions.getCaptionItemCount() + 1;
    });
    std::vector<const void*> pointers(size);
    section("front.pointers." + std::to_string(size), [&] {
        for (std::size_t i = 0; i < size; ++i)
            pointers.erase(pointers.begin());
        return pointers.size() + 1;
    });
}

} // namespace

} // namespace ZelInterchangeData::bench

int main()
{
    using namespace ZelInterchangeData::bench;
    for (const Order order : allOrders) {
        for (const std::size_t size : {std::size_t{1000}, std::size_t{8000}})
            probeDocument(size, order);
    }
    probeTexts();
    probeFace();
    probeCFace();
    for (const std::size_t size : {std::size_t{1000}, std::size_t{8000}}) {
        probeFindings(size);
        probeLanguages(size);
        probeFront(size);
    }
    return 0;
}
