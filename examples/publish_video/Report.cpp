/// @file
/// See Report.h.

#include "Report.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace publish {

namespace {

std::vector<LanguageCount> countLanguages(const std::vector<MergedCaption>& merged)
{
    std::map<std::string, std::size_t> counts;
    for (const MergedCaption& caption : merged)
        for (const LanguageText& text : caption.texts)
            ++counts[text.language];
    std::vector<LanguageCount> languages;
    for (const auto& [language, count] : counts)
        languages.push_back({language, count, merged.size() - count});
    return languages;
}

std::size_t countJoined(const std::vector<MergedCaption>& merged)
{
    return static_cast<std::size_t>(
        std::count_if(merged.begin(), merged.end(),
                      [](const MergedCaption& caption) { return caption.texts.size() > 1; }));
}

} // namespace

Report makeReport(const Options& options, const CueFiles& files,
                  const std::vector<MergedCaption>& merged,
                  const ZelInterchangeData::i_ZelDataCaptions& captions)
{
    Report report;
    report.output = options.output;
    report.captions = merged.size();
    report.joined = countJoined(merged);
    report.languages = countLanguages(merged);
    report.groups = languageGroups(merged);
    if (files.toc) report.entries = files.toc->cues.size();
    if (files.screenText) report.screenTexts = files.screenText->cues.size();
    if (options.skipEmpty)
        for (const CueFile* file : allFiles(files))
            report.skipped += file->empty;
    report.problems = problemsOf({options, files, merged, captions, report.groups});
    return report;
}

} // namespace publish
