/// @file
/// A filled document: its packet is well-formed, and an independent reader finds every text, time
/// and number in it.
///
/// Most inputs follow the rules for callers: strings are strict UTF-8 without U+FFFE and U+FFFF,
/// those written as given contain none of the five special characters, and those not stripped
/// contain no control characters except tab, line feed and carriage return. In the others, strings
/// are any bytes. Then, the same must hold if findProblems() finds no error.

#include "ZelInterchangeData/ZelDataFace.h"
#include "core/Packet.h"
#include "core/Promises.h"
#include "support/Input.h"
#include "support/Require.h"
#include "support/StrictText.h"
#include "support/Target.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace ZelInterchangeData;
using fuzz::Element;
using fuzz::Input;
using fuzz::require;
using fuzz::requireEqual;

namespace {

// Texts of the input, and how a reader sees them

bool isXmlCharacter(std::uint32_t value)
{
    return (value >= 0x20 || value == '\t' || value == '\n' || value == '\r') &&
           !fuzz::isNoncharacter(value);
}

bool isGiven(std::uint32_t value)
{
    const bool isSpecial =
        value == '"' || value == '&' || value == '\'' || value == '<' || value == '>';
    return isXmlCharacter(value) && !isSpecial;
}

/// A text after stripping.
std::string shown(const std::string& text)
{
    return fuzz::filtered(text, [](auto value) { return value >= 0x20 || value == '\n'; });
}

/// How an XML reader changes white space in an attribute.
std::string inAttribute(const std::string& text)
{
    std::string normal;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && text.compare(i + 1, 1, "\n") == 0;
        const bool isSpace = text[i] == '\r' || text[i] == '\n' || text[i] == '\t';
        if (!isPair) normal += isSpace ? ' ' : text[i];
    }
    return normal;
}

// What the document holds, as it must be read back

using Attributes = std::map<std::string, std::string>;
using Texts = std::map<std::string, std::string>;

/// A caption, an entry or a screen text.
struct Marker {
    long long start = 0;
    Attributes attributes;
    Texts texts;
};

struct Expected {
    Attributes header;
    std::vector<std::string> content;
    std::vector<std::string> languages; // of the captions
    std::vector<Marker> captions;
    std::vector<Marker> entries;
    std::vector<Marker> screenTexts;
    Attributes captionTrack;
    std::string tocImage;
    std::vector<std::string> tocLanguages;
};

/// The exchange sort of all sets.
void sort(std::vector<Marker>& markers)
{
    for (std::size_t i = 0; i < markers.size(); ++i)
        for (std::size_t j = i + 1; j < markers.size(); ++j)
            if (markers[j].start < markers[i].start) std::swap(markers[i], markers[j]);
}

void listLanguages(std::vector<std::string>& list, const Texts& texts)
{
    for (const auto& [id, text] : texts)
        if (std::find(list.begin(), list.end(), id) == list.end()) list.push_back(id);
}

/// Fills a document from an input.
class Filler {
public:
    explicit Filler(Input& input) : input_(input) {}

    const Expected& expected() const { return expected_; }
    /// Whether the strings follow the rules for callers.
    bool isTame() const { return isTame_; }
    /// Whether a reader must find what is expected, provided that it can read the packet.
    bool isExact() const { return isExact_; }

    void fill(i_ZelInterchangeDataCore& document)
    {
        isTame_ = input_.below(4) != 0;
        fillHeader(document);
        const std::size_t sets = input_.below(8);
        if ((sets & 1U) != 0) fillCaptions(document);
        if ((sets & 2U) != 0) fillToc(document);
        if ((sets & 4U) != 0) fillScreenText(document);
        sort(expected_.captions);
        sort(expected_.entries);
        sort(expected_.screenTexts);
    }

private:
    /// Runs @p action, which may fail only if a string breaks the rules.
    template <class Action>
    void attempt(Action&& action)
    {
        try {
            action();
        } catch (const ZelDataError& error) {
            require(!isTame_, error.what());
            const std::string_view message = error.what();
            require(std::none_of(
                        message.begin(), message.end(),
                        [](char character) { return static_cast<unsigned char>(character) < ' '; }),
                    "a message has more than one line");
            isExact_ = false;
        }
    }

    /// A text of the input with the characters that @p isAllowed takes, or as it is.
    template <class IsAllowed>
    std::string text(IsAllowed&& isAllowed)
    {
        const std::string text = input_.text();
        return isTame_ ? fuzz::filtered(text, isAllowed) : text;
    }
    /// A text that the library strips.
    std::string strippedText()
    {
        return text([](auto value) { return !fuzz::isNoncharacter(value); });
    }
    /// A text that the library escapes and does not strip.
    std::string escapedText() { return text(isXmlCharacter); }
    /// A text that the library writes as given.
    std::string givenText()
    {
        std::string given = text(isGiven);
        if (given.find('&') != std::string::npos) isExact_ = false;
        return given;
    }

    std::string languageID()
    {
        static const char* const codes[] = {"en", "de", "fr", "JA", "ug", "lu", "he", "zh"};
        const std::string code = codes[input_.below(std::size(codes))];
        return input_.flag() ? code : code + "-" + givenText();
    }

    /// A start, which other markers may share.
    long long start()
    {
        const auto start = input_.number<long long>();
        return start < 0 ? 7 : start;
    }

    void fillHeader(i_ZelInterchangeDataCore& document)
    {
        const auto header = createHeader();
        const std::string title = escapedText();
        const std::string creator = givenText();
        const std::string description = escapedText();
        const std::string name = escapedText();
        const std::string version = escapedText();
        const auto view = checked(*header);
        attempt([&] { view.setTitle(title); });
        attempt([&] { view.setCreator(creator); });
        attempt([&] { view.setDescription(description); });
        attempt([&] { view.setAppName(name); });
        attempt([&] { view.setAppVersion(version); });
        expected_.header = {{"dc:title", inAttribute(title)},
                            {"dc:creator", inAttribute(creator)},
                            {"dc:Description", inAttribute(description)},
                            {"dc:source", inAttribute(name + " - " + version)}};
        fillKeywords(*header);
        fillContent(*header);
        fillSizes(*header);
        attempt([&] { checked(document).setDataHeader(*header); });
    }

    void fillKeywords(i_ZelDataHeader& header)
    {
        std::vector<std::string> keywords(input_.below(4));
        std::string joined;
        for (std::string& keyword : keywords) {
            keyword = escapedText();
            joined += (&keyword == &keywords.front() ? "" : ", ") + keyword;
        }
        attempt([&] { checked(header).setKeywords(keywords); });
        expected_.header["zelDM:keywords"] = inAttribute(joined);
    }

    void fillContent(i_ZelDataHeader& header)
    {
        for (std::size_t more = input_.below(4); more > 0; --more) {
            const std::string name = escapedText();
            if (!failed(header.addContentName(name)))
                expected_.content.push_back(inAttribute(name));
        }
    }

    void fillSizes(i_ZelDataHeader& header)
    {
        const unsigned long length = std::max(1UL, input_.number<unsigned long>());
        const bool isExplicit = input_.flag();
        checked(header)
            .setVideoLength(length)
            .setVideoWidth(640)
            .setVideoHeight(480)
            .setIPodExplicit(isExplicit);
        expected_.header["zelDM:iPodExplicit"] = isExplicit ? "true" : "false";
        expected_.header["length"] = std::to_string(length);
    }

    /// Sets texts of @p item; returns what a reader must find.
    template <class Item>
    Texts fillTexts(Item& item)
    {
        Texts texts;
        for (std::size_t more = input_.below(5); more > 0; --more) {
            const std::string text = strippedText();
            const std::string id = languageID();
            attempt([&] { checked(item).allowWarnings().setTextForLanguage(text, id); });
            texts[id] = shown(text);
        }
        return texts;
    }

    void fillCaptions(i_ZelInterchangeDataCore& document)
    {
        const auto captions = createCaptions();
        const std::string family = givenText();
        if (!family.empty()) attempt([&] { checked(*captions).setFontFamily(family); });
        expected_.captionTrack = {
            {"stFnt:fontFamily", family.empty() ? "Helvetica" : inAttribute(family)}};
        for (std::size_t more = input_.below(8); more > 0; --more)
            addCaption(*captions);
        attempt([&] { checked(document).setDataCaptions(*captions); });
    }

    void addCaption(i_ZelDataCaptions& captions)
    {
        const auto item = createCaptionItem();
        Marker marker;
        marker.start = start() / 2;
        const long long duration = 1 + input_.byte();
        const auto alignment = static_cast<ZelAlignment_tags>(input_.byte());
        checked(*item).setStart(marker.start).setDuration(duration).setAlignment(alignment);
        marker.texts = fillTexts(*item);
        const auto isSet = [alignment](unsigned bit) { return (alignment & bit) != 0; };
        const char* vertical = isSet(1) ? "bottom" : isSet(2) ? "top" : "center";
        const char* horizontal = isSet(16) ? "left" : isSet(32) ? "right" : "center";
        marker.attributes = {{"xmpDM:startTime", std::to_string(marker.start)},
                             {"xmpDM:duration", std::to_string(duration)},
                             {"zelDM:valign", vertical},
                             {"zelDM:halign", horizontal}};
        attempt([&] { checked(captions).addCaptionItem(*item); });
        listLanguages(expected_.languages, marker.texts);
        expected_.captions.push_back(std::move(marker));
    }

    void fillToc(i_ZelInterchangeDataCore& document)
    {
        const auto toc = createToc();
        const std::string image = escapedText();
        attempt([&] { checked(*toc).setImageFile(image); });
        expected_.tocImage = inAttribute(image);
        for (std::size_t more = input_.below(8); more > 0; --more)
            addEntry(*toc);
        attempt([&] { checked(document).setDataToc(*toc); });
    }

    void addEntry(i_ZelDataToc& toc)
    {
        const auto item = createTocItem();
        Marker marker;
        marker.start = start();
        const auto index = input_.number<unsigned long>();
        const auto offset = input_.number<unsigned long long>();
        const std::string image = escapedText();
        checked(*item).setStart(marker.start).setImageIndex(index).setImageOffset(offset);
        attempt([&] { checked(*item).setImageFile(image); });
        marker.texts = fillTexts(*item);
        marker.attributes = {{"xmpDM:startTime", std::to_string(marker.start)},
                             {"zelDM:image", inAttribute(image)},
                             {"zelDM:imageindex", std::to_string(index)},
                             {"zelDM:imageoffset", std::to_string(offset)}};
        attempt([&] { checked(toc).addTocItem(*item); });
        listLanguages(expected_.tocLanguages, marker.texts);
        expected_.entries.push_back(std::move(marker));
    }

    void fillScreenText(i_ZelInterchangeDataCore& document)
    {
        const auto texts = createScreenText();
        for (std::size_t more = input_.below(8); more > 0; --more)
            addScreenText(*texts);
        attempt([&] { checked(document).setDataScreenText(*texts); });
    }

    void addScreenText(i_ZelDataScreenText& texts)
    {
        const auto item = createScreenTextItem();
        Marker marker;
        marker.start = start();
        const std::string text = strippedText();
        const std::string image = givenText();
        const auto group = input_.number<unsigned long>();
        const long long duration = input_.byte();
        checked(*item).setStart(marker.start).setDuration(duration).setGroupId(group);
        attempt([&] { checked(*item).setText(text); });
        attempt([&] { checked(*item).setImageFile(image); });
        marker.attributes = {{"xmpDM:name", inAttribute(shown(text))},
                             {"xmpDM:startTime", std::to_string(marker.start)},
                             {"xmpDM:duration", std::to_string(duration)},
                             {"xmpDM:image", inAttribute(image)},
                             {"zelDM:imageindex", "0"},
                             {"zelDM:imageoffset", "0"},
                             {"zelDM:tocEntry", std::to_string(group)}};
        attempt([&] { checked(texts).addScreenTextItem(*item); });
        expected_.screenTexts.push_back(std::move(marker));
    }

    Input& input_;
    Expected expected_;
    bool isTame_ = true;
    bool isExact_ = true;
};

/// Checks that the loop over the items of @p set finds those of @p markers, which are sorted.
template <class Set>
void checkItems(const Set& set, const std::vector<Marker>& markers)
{
    std::vector<long long> starts;
    for (const auto& item : items(set))
        starts.push_back(checked(*item).getStart());
    std::sort(starts.begin(), starts.end());
    require(starts.size() == markers.size(), "the number of items");
    for (std::size_t i = 0; i < starts.size(); ++i)
        require(starts[i] == markers[i].start, "the start of an item");
}

/// Reads the sets of @p document that have items, as a caller does.
void checkSets(const i_ZelInterchangeDataCore& document, const Expected& expected)
{
    const auto view = checked(document);
    if (!expected.captions.empty()) {
        const auto captions = createCaptions();
        view.getDataCaptions(*captions);
        checkItems(*captions, expected.captions);
    }
    if (!expected.entries.empty()) {
        const auto toc = createToc();
        view.getDataToc(*toc);
        checkItems(*toc, expected.entries);
    }
    if (!expected.screenTexts.empty()) {
        const auto texts = createScreenText();
        view.getDataScreenText(*texts);
        checkItems(*texts, expected.screenTexts);
    }
}

// The packet

/// Checks that @p element has the attributes of @p expected, with these values.
void checkAttributes(const Element& element, const Attributes& expected)
{
    for (const auto& [name, value] : expected)
        requireEqual(value, element.attribute(name), name.c_str());
}

/// If the captions have no language, the packet still lists one.
void checkLanguageList(const Element& description, std::vector<std::string> languages)
{
    if (languages.empty()) languages.emplace_back("en-US");
    const auto items = description.at("zel:langName/rdf:Bag").children();
    require(items.size() == languages.size(), "the number of languages");
    for (std::size_t i = 0; i < items.size(); ++i) {
        std::string name;
        require(ZelDataUtilities::englishNameForLanguage(languages[i], name) == ZelData_Ok,
                "a language of the packet has no name");
        requireEqual(inAttribute(languages[i]), items[i].attribute("xml:lang"), "a language");
        requireEqual(name, items[i].text(), "the name of a language");
    }
}

void checkContent(const Element& description, const std::vector<std::string>& content)
{
    require(description.has("zelDM:contentList") != content.empty(), "whether there is content");
    if (content.empty()) return;
    const auto files = description.at("zelDM:contentList/rdf:Description/zelDM:files/rdf:Seq");
    const auto items = files.children();
    require(items.size() == content.size(), "the number of content names");
    for (std::size_t i = 0; i < items.size(); ++i)
        checkAttributes(items[i], {{"xmpDM:name", std::to_string(i)}, {"xmpDM:value", content[i]}});
}

void checkHeader(const Element& description, const Expected& expected)
{
    Attributes header = expected.header;
    requireEqual(header["length"], description.at("xmpDM:duration").attribute("xmpDM:value"),
                 "the length");
    header.erase("length");
    checkAttributes(description, header);
    checkLanguageList(description, expected.languages);
    checkContent(description, expected.content);
}

/// The marker elements of the track of @p type.
std::vector<Element> markersOf(const Element& track)
{
    std::vector<Element> markers;
    for (const Element& item : track.at("xmpDM:markers/rdf:Seq").children())
        markers.push_back(item.at("rdf:Description"));
    return markers;
}

void checkCaptionTexts(const Element& marker, const Texts& texts,
                       const std::vector<std::string>& languages)
{
    const auto items = marker.at("xmpDM:name/rdf:Alt").children();
    require(items.size() == languages.size(), "the number of texts");
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto text = texts.find(languages[i]);
        const bool isEmpty = text == texts.end() || text->second.empty();
        requireEqual(inAttribute(languages[i]), items[i].attribute("xml:lang"),
                     "the language of a caption");
        requireEqual(isEmpty ? "{\\rtf1 }" : text->second, items[i].text(), "a caption");
    }
}

/// The attributes of an entry, with its title in the first language of the table.
Attributes withTitle(const Marker& entry, const std::vector<std::string>& languages)
{
    Attributes attributes = entry.attributes;
    const auto title = languages.empty() ? entry.texts.end() : entry.texts.find(languages.front());
    attributes["xmpDM:name"] = title == entry.texts.end() ? "" : inAttribute(title->second);
    return attributes;
}

void checkTracks(const Element& description, const Expected& expected)
{
    std::size_t next = 0;
    const auto tracks = description.at("xmpDM:Tracks/rdf:Bag").children();
    const auto nextTrack = [&](const char* type, const std::vector<Marker>& markers) {
        require(next < tracks.size(), "a track is missing");
        const Element track = tracks[next++].at("rdf:Description");
        requireEqual(type, track.attribute("xmpDM:trackType"), "the kind of a track");
        require(markersOf(track).size() == markers.size(), "the number of markers");
        return track;
    };
    if (!expected.captions.empty()) {
        const Element track = nextTrack("Caption", expected.captions);
        checkAttributes(track, expected.captionTrack);
        const auto markers = markersOf(track);
        for (std::size_t i = 0; i < markers.size(); ++i) {
            checkAttributes(markers[i], expected.captions[i].attributes);
            checkCaptionTexts(markers[i], expected.captions[i].texts, expected.languages);
        }
    }
    if (!expected.entries.empty()) {
        const Element track = nextTrack("TableOfContents", expected.entries);
        checkAttributes(track, {{"zelDM:image", expected.tocImage}});
        const auto markers = markersOf(track);
        for (std::size_t i = 0; i < markers.size(); ++i)
            checkAttributes(markers[i], withTitle(expected.entries[i], expected.tocLanguages));
    }
    if (!expected.screenTexts.empty()) {
        const auto markers = markersOf(nextTrack("ScreenText", expected.screenTexts));
        for (std::size_t i = 0; i < markers.size(); ++i)
            checkAttributes(markers[i], expected.screenTexts[i].attributes);
    }
    require(next == tracks.size(), "a track too many");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    Filler filler(input);
    const auto document = createDocument();
    filler.fill(*document);
    const auto findings = fuzz::problemsOf(*document);
    const bool isFaulty = !findings || fuzz::hasErrors(*findings);
    require(!isFaulty || !filler.isTame(), "an error in a document that follows the rules");
    if (isFaulty) return 0;
    const fuzz::Packet packet(checked(*document).writeString());
    if (!filler.isExact()) return 0;
    checkSets(*document, filler.expected());
    const Element description = packet.root().at("rdf:RDF/rdf:Description");
    checkHeader(description, filler.expected());
    checkTracks(description, filler.expected());
    return 0;
}
