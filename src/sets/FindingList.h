/// @file
/// Collects the findings of one collection.

#ifndef ZELINTERCHANGEDATA_SETS_FINDINGLIST_H
#define ZELINTERCHANGEDATA_SETS_FINDINGLIST_H

#include "ZelInterchangeData/ZelDataFinding.h"
#include "sets/FrameRate.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// Findings that you add after setItem() are about that item, earlier ones about the collection.
class FindingList {
public:
    explicit FindingList(ZelDataFindingSubject_tags subject) noexcept : subject_(subject) {}

    /// The findings that follow are about the item at @p item, which starts at @p start.
    void setItem(std::size_t item, long long start) noexcept
    {
        item_ = static_cast<unsigned long>(item);
        start_ = start;
    }

    /// Adds a finding of @p kind and returns it; fill the fields that this kind uses.
    ZelDataFinding& add(ZelDataFinding_tags kind);
    /// Adds a finding of @p kind about the text in @p language.
    ZelDataFinding& add(ZelDataFinding_tags kind, const std::string& language);
    /// Adds a finding of @p kind where @p value is above @p maximum or below @p minimum.
    void addOutOfRange(ZelDataFinding_tags kind, unsigned long value, unsigned long minimum,
                       unsigned long maximum);

    void checkFrameRate(FrameRate rate);
    /// Checks @p text and the language that it is stored under.
    void checkText(const std::string& text, const std::string& language);
    /// Adds a finding for each of @p listed that is not among @p ids.
    void addMissingTexts(std::vector<std::string> ids, const std::vector<std::string>& listed);
    /// Adds a finding for the item at @p later, the first later one that starts before @p bound:
    /// out of order if @p laterStart, its start, is before that of the current item, otherwise an
    /// overlap.
    void addLater(long long bound, std::size_t later, long long laterStart);

    /// Replaces @p findings with those collected.
    void moveTo(std::vector<ZelDataFinding>& findings) noexcept { findings.swap(findings_); }

private:
    std::vector<ZelDataFinding> findings_;
    ZelDataFindingSubject_tags subject_;
    unsigned long item_ = ZelDataFinding::noItem;
    long long start_ = 0;
};

} // namespace ZelInterchangeData

#endif
