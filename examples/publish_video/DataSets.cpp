/// @file
/// See DataSets.h.

#include "DataSets.h"

#include "Check.h"
#include "PublishError.h"

#include "ZelInterchangeData/ZelDataEscaped.h"

#include <algorithm>
#include <iterator>

namespace publish {

using namespace ZelInterchangeData;

namespace {

unsigned long videoLength(const Options& options, const CueFiles& files)
{
    if (options.length) return *options.length;
    const std::optional<long long> end = lastEnd(files);
    if (end) return static_cast<unsigned long>(*end);
    for (const CueFile* file : allFiles(files))
        if (!file->hint.empty()) throw PublishError(file->name + ": " + file->hint);
    throw PublishError("--length is missing, and no file has a cue to take it from");
}

void setFont(i_ZelDataCaptions& captions, const Options& options)
{
    // The library writes the font family as given, so it is escaped here.
    if (options.font) check(captions.setFontFamily(escaped(*options.font)), "--font");
    if (options.fontSize) check(captions.setFontSize(*options.fontSize), "--font-size");
}

void addCaption(i_ZelDataCaptions& captions, const MergedCaption& caption)
{
    const auto item = make(captions, &i_ZelDataCaptions::createCaptionItem);
    // The start comes first: an end is only accepted if it is after the start.
    check(item->setStart(caption.start), "a caption's start");
    check(item->setEnd(caption.end), "a caption's end");
    for (const LanguageText& text : caption.texts)
        check(item->setTextForLanguage(text.text, text.language), "a caption in " + text.language);
    check(captions.addCaptionItem(*item), "adding a caption");
}

void addTocEntry(i_ZelDataToc& toc, const CueFile& file, const Cue& cue)
{
    const auto entry = make(toc, &i_ZelDataToc::createTocItem);
    check(entry->setStart(cue.start), file.name);
    check(entry->setTextForLanguage(cue.text, file.language), file.name);
    check(toc.addTocItem(*entry), file.name);
}

void addScreenText(i_ZelDataScreenText& screenText, const CueFile& file, const Cue& cue,
                   unsigned long entry)
{
    const auto item = make(screenText, &i_ZelDataScreenText::createScreenTextItem);
    check(item->setStart(cue.start), file.name);
    check(item->setEnd(cue.end), file.name);
    check(item->setText(cue.text), file.name);
    check(item->setGroupId(entry), file.name);
    check(screenText.addScreenTextItem(*item), file.name);
}

/// The starts of the entries, in the order in which the packet numbers them.
std::vector<long long> entryStarts(const std::optional<CueFile>& toc)
{
    std::vector<long long> starts;
    if (toc) {
        std::transform(toc->cues.begin(), toc->cues.end(), std::back_inserter(starts),
                       [](const Cue& cue) { return cue.start; });
    }
    std::sort(starts.begin(), starts.end());
    return starts;
}

/// The number of the last entry that starts at or before @p start; 0 if there is none.
unsigned long entryAt(const std::vector<long long>& starts, long long start)
{
    const auto next = std::upper_bound(starts.begin(), starts.end(), start);
    return next == starts.begin() ? 0 : static_cast<unsigned long>(next - starts.begin() - 1);
}

} // namespace

std::unique_ptr<i_ZelDataHeader> makeHeader(const i_ZelInterchangeDataCore& document,
                                            const Options& options, const CueFiles& files)
{
    auto header = make(document, &i_ZelInterchangeDataCore::createDataHeader);
    check(header->setTitle(options.title), "--title");
    // The library writes the creator as given, so it is escaped here.
    check(header->setCreator(escaped(options.creator)), "--creator");
    check(header->setDescription(options.description), "--description");
    check(header->setAppName(options.appName), "--app-name");
    check(header->setAppVersion(options.appVersion), "--app-version");
    check(header->setKeywords(options.keywords), "--keyword");
    check(header->setVideoLength(videoLength(options, files)), "--length");
    check(header->setVideoWidth(options.width), "--size");
    check(header->setVideoHeight(options.height), "--size");
    // Adds a name that is given twice only once; the second time, the library returns a warning.
    for (const std::string& name : options.contentNames)
        checkError(header->addContentName(name), "--content");
    return header;
}

std::unique_ptr<i_ZelDataCaptions> makeCaptions(const i_ZelInterchangeDataCore& document,
                                                const Options& options,
                                                const std::vector<MergedCaption>& merged)
{
    auto captions = make(document, &i_ZelInterchangeDataCore::createDataCaptions);
    setFont(*captions, options);
    for (const MergedCaption& caption : merged)
        addCaption(*captions, caption);
    return captions;
}

std::unique_ptr<i_ZelDataToc> makeToc(const i_ZelInterchangeDataCore& document, const CueFile& file)
{
    auto toc = make(document, &i_ZelInterchangeDataCore::createDataToc);
    for (const Cue& cue : file.cues)
        addTocEntry(*toc, file, cue);
    return toc;
}

std::unique_ptr<i_ZelDataScreenText> makeScreenText(const i_ZelInterchangeDataCore& document,
                                                    const CueFile& file,
                                                    const std::optional<CueFile>& toc)
{
    auto screenText = make(document, &i_ZelInterchangeDataCore::createDataScreenText);
    const std::vector<long long> starts = entryStarts(toc);
    for (const Cue& cue : file.cues)
        addScreenText(*screenText, file, cue, entryAt(starts, cue.start));
    return screenText;
}

} // namespace publish
