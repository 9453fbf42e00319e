/// @file
/// See Problems.h.

#include "Problems.h"

#include "Check.h"
#include "PlainText.h"
#include "Text.h"

#include "ZelInterchangeData/ZelDataFindings.h"

#include <algorithm>
#include <map>
#include <utility>

namespace publish {

using namespace ZelInterchangeData;

namespace {

using Places = std::vector<Place>;

Place placeIn(const CueFile& file)
{
    Place place;
    place.path = file.path;
    place.language = file.language;
    return place;
}

Place placeOf(const CueFile& file, const SkippedLines& skipped)
{
    Place place = placeIn(file);
    place.line = skipped.line;
    place.text = skipped.words;
    return place;
}

Place placeOf(const CueFile& file, const Cue& cue, const std::string& detail = {})
{
    Place place = placeIn(file);
    place.line = cue.line;
    place.start = timeText(cue.start);
    place.end = timeText(cue.end);
    place.startMs = cue.start;
    place.endMs = cue.end;
    place.text = firstWords(cue.text);
    place.detail = detail;
    return place;
}

template <class Add>
Places placesInFiles(const Published& published, Add add)
{
    Places places;
    for (const CueFile* file : allFiles(published.files))
        add(*file, places);
    return places;
}

/// A place for each cue that @p isBad says, with what @p detailOf says.
template <class IsBad, class DetailOf>
Places cuesThat(const Published& published, IsBad isBad, DetailOf detailOf)
{
    return placesInFiles(published, [&](const CueFile& file, Places& places) {
        for (const Cue& cue : file.cues)
            if (isBad(cue)) places.push_back(placeOf(file, cue, detailOf(cue)));
    });
}

Places skippedIn(const Published& published, std::vector<SkippedLines> CueFile::*member)
{
    return placesInFiles(published, [&](const CueFile& file, Places& places) {
        for (const SkippedLines& skipped : file.*member)
            places.push_back(placeOf(file, skipped));
    });
}

Places malformed(const Published& published)
{
    return skippedIn(published, &CueFile::malformed);
}

Places withoutLength(const Published& published)
{
    return skippedIn(published, &CueFile::withoutLength);
}

Places outside(const Published& published)
{
    return skippedIn(published, &CueFile::outside);
}

Places withoutCue(const Published& published)
{
    return placesInFiles(published, [](const CueFile& file, Places& places) {
        if (!file.cues.empty() || file.empty != 0) return;
        places.push_back(placeIn(file));
        places.back().detail = file.hint;
    });
}

Places swallowedNumbers(const Published& published)
{
    return cuesThat(
        published, [](const Cue& cue) { return cue.swallowedNumber != 0; },
        [](const Cue& cue) { return "the number in line " + std::to_string(cue.swallowedNumber); });
}

Places swallowedTimings(const Published& published)
{
    return cuesThat(
        published, [](const Cue& cue) { return cue.swallowedTiming != 0; },
        [](const Cue& cue) { return "the times in line " + std::to_string(cue.swallowedTiming); });
}

Places beyondLength(const Published& published)
{
    if (!published.options.length) return {};
    const unsigned long length = *published.options.length;
    return cuesThat(
        published,
        [&](const Cue& cue) { return static_cast<unsigned long long>(cue.end) > length; },
        [](const Cue& cue) { return "ends at " + timeText(cue.end); });
}

/// With --skip-empty, no such cue is left.
Places withoutText(const Published& published)
{
    return cuesThat(
        published, [](const Cue& cue) { return isNothingButBlanks(cue.text); },
        [](const Cue&) { return std::string(); });
}

/// The place of a caption is that of its text in @p language; without one there, of its first text.
Place placeOf(const Published& published, const MergedCaption& caption, const std::string& language,
              const std::string& detail)
{
    const auto named =
        std::find_if(caption.texts.begin(), caption.texts.end(),
                     [&](const LanguageText& text) { return text.language == language; });
    const LanguageText& text = named != caption.texts.end() ? *named : caption.texts.front();
    const CueFile& file = published.files.captions[text.file];
    return placeOf(file, file.cues[text.cue], detail);
}

/// The findings of one kind that the library has about single captions.
template <class DetailOf>
Places findingsOf(const Published& published, ZelDataFinding_tags kind, DetailOf detailOf)
{
    std::vector<ZelDataFinding> findings;
    check(findProblems(published.captions, findings), "looking for problems");
    Places places;
    for (const ZelDataFinding& finding : findings)
        if (finding.kind == kind)
            places.push_back(placeOf(published, published.merged[finding.item], finding.language,
                                     detailOf(finding)));
    return places;
}

Places tooShort(const Published& published)
{
    return findingsOf(published, ZelDataFinding_TooShort, [](const ZelDataFinding& finding) {
        return std::to_string(finding.value) + " ms; should be at least " +
               std::to_string(finding.limit) + " ms";
    });
}

Places tooManyLines(const Published& published)
{
    return findingsOf(published, ZelDataFinding_TooManyLines, [](const ZelDataFinding& finding) {
        return std::to_string(finding.value) + " lines; should be at most " +
               std::to_string(finding.limit);
    });
}

struct ShownCue {
    const CueFile* file;
    const Cue* cue;
};

/// The cues of each language that show something, in order of start.
std::map<std::string, std::vector<ShownCue>> shownCues(const std::vector<CueFile>& files)
{
    std::map<std::string, std::vector<ShownCue>> shown;
    for (const CueFile& file : files)
        for (const Cue& cue : file.cues)
            if (!isNothingButBlanks(cue.text)) shown[file.language].push_back({&file, &cue});
    for (auto& [language, cues] : shown)
        std::stable_sort(cues.begin(), cues.end(), [](const ShownCue& a, const ShownCue& b) {
            return a.cue->start < b.cue->start;
        });
    return shown;
}

/// Of the cues that started earlier, only the one that ends last matters.
Places overlaps(const Published& published)
{
    Places places;
    for (const auto& [language, cues] : shownCues(published.files.captions)) {
        const ShownCue* last = nullptr;
        for (const ShownCue& shown : cues) {
            if (last != nullptr && last->cue->end > shown.cue->start) {
                const Place other = placeOf(*last->file, *last->cue);
                places.push_back(placeOf(*shown.file, *shown.cue,
                                         "\"" + other.text + "\" (" + printable(other.path) + ":" +
                                             std::to_string(other.line) + ") shows until " +
                                             other.end));
            }
            if (last == nullptr || last->cue->end < shown.cue->end) last = &shown;
        }
    }
    return places;
}

bool hasLanguage(const MergedCaption& caption, const std::string& language)
{
    return std::any_of(caption.texts.begin(), caption.texts.end(),
                       [&](const LanguageText& text) { return text.language == language; });
}

/// The languages that the caption lacks although it has another one of their group.
std::string missingLanguages(const MergedCaption& caption, const LanguageGroups& groups)
{
    std::vector<std::string> missing;
    for (const std::vector<std::string>& group : groups) {
        const auto isThere = [&](const std::string& language) {
            return hasLanguage(caption, language);
        };
        if (std::none_of(group.begin(), group.end(), isThere)) continue;
        for (const std::string& language : group)
            if (!isThere(language)) missing.push_back(language);
    }
    return joined(missing, ", ");
}

Places withoutLanguage(const Published& published)
{
    Places places;
    for (const MergedCaption& caption : published.merged) {
        const std::string missing = missingLanguages(caption, published.groups);
        if (!missing.empty()) places.push_back(placeOf(published, caption, {}, "lacks " + missing));
    }
    return places;
}

struct Search {
    ProblemKind kind;
    Places (*find)(const Published&);
};

/// In the order of the report.
constexpr Search searches[] = {
    {{"malformed-cue", "malformed cue, left out", "malformed cues, left out"}, malformed},
    {{"cue-without-length", "cue without length, left out", "cues without length, left out"},
     withoutLength},
    {{"text-outside-cue", "text outside a cue, left out", "texts outside a cue, left out"},
     outside},
    {{"file-without-cue", "file without a cue", "files without a cue"}, withoutCue},
    {{"swallowed-number",
      "text that ends with the number of the next cue, because a blank line is missing",
      "texts that end with the number of the next cue, because a blank line is missing"},
     swallowedNumbers},
    {{"swallowed-cue", "text that seems to contain a malformed cue",
      "texts that seem to contain a malformed cue"},
     swallowedTimings},
    {{"beyond-length", "cue that ends after --length", "cues that end after --length"},
     beyondLength},
    {{"cue-without-text", "cue without text", "cues without text"}, withoutText},
    {{"too-short", "caption that is too short", "captions that are too short"}, tooShort},
    {{"too-many-lines", "caption with too many lines", "captions with too many lines"},
     tooManyLines},
    {{"overlap", "caption that starts while another one shows in its language",
      "captions that start while another one shows in their language"},
     overlaps},
    {{"missing-language", "caption that lacks a language", "captions that lack a language"},
     withoutLanguage}};

} // namespace

std::vector<Problem> problemsOf(const Published& published)
{
    std::vector<Problem> problems;
    for (const Search& search : searches) {
        Problem problem{&search.kind, search.find(published)};
        if (!problem.places.empty()) problems.push_back(std::move(problem));
    }
    return problems;
}

} // namespace publish
