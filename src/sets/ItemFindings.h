/// @file
/// The list that findings are collected in, and the steps that several findProblems() share.

#ifndef ZELINTERCHANGEDATA_SETS_ITEMFINDINGS_H
#define ZELINTERCHANGEDATA_SETS_ITEMFINDINGS_H

#include "ZelInterchangeData/ZelDataFinding.h"
#include "sets/FrameRate.h"
#include "sets/ItemCopies.h"
#include "sets/ItemOrder.h"
#include "util/Ending.h"
#include "util/Guard.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

class i_ZelDataLanguage;

/// What happens to a text on its way into the packet.
enum class Treatment { AsGiven, Escaped, EscapedAndStripped };

/// Findings that you add after setItem() are about that item, earlier ones about the subject itself.
class FindingList {
public:
    explicit FindingList(ZelDataFindingSubject_tags subject) noexcept : subject_(subject) {}

    /// The findings that follow are about @p subject itself.
    void setSubject(ZelDataFindingSubject_tags subject) noexcept
    {
        subject_ = subject;
        setItem(ZelDataFinding::noItem, 0);
    }

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
    /// Adds a finding of @p kind about @p property.
    ZelDataFinding& addAbout(ZelDataFinding_tags kind, const char* property);
    /// Adds a finding of @p kind where @p value is above @p maximum or below @p minimum.
    void addOutOfRange(ZelDataFinding_tags kind, unsigned long value, unsigned long minimum,
                       unsigned long maximum);
    /// Adds a finding of @p kind where @p value breaks @p limit.
    void addBeyond(ZelDataFinding_tags kind, unsigned long value, long long limit);

    void checkFrameRate(FrameRate rate);
    /// Adds a finding if @p rate is in range and times in it are not milliseconds.
    void checkMilliseconds(FrameRate rate);
    /// Adds the faults of @p text that make a packet with it unreadable.
    void checkWritten(std::string_view text, Treatment treatment, const char* property,
                      std::string_view language = std::string_view());
    /// Checks the languages @p listed, which are written as given; those that occur again only for
    /// that.
    void checkLanguages(const std::vector<std::string>& listed);
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

/// Replaces @p findings with what @p find, a callable for a FindingList, adds. If @p find ends
/// early, returns its code and leaves @p findings unchanged.
template <class Find>
ZelDataResult_tags collectFindings(ZelDataFindingSubject_tags subject,
                                   std::vector<ZelDataFinding>& findings, Find&& find)
{
    return guarded([&] {
        FindingList found(subject);
        if (const Ending ending = find(found)) return *ending;
        found.moveTo(findings);
        return ZelData_Ok;
    });
}

// Deliberate: the steps below end with the code that a getter returned, not with the last error;
// otherwise an object that fails with a last error of ZelData_Ok would pass as one without problems.

/// Replaces @p ids with the languages that @p languages lists, without the duplicates that the list
/// may contain.
Ending readLanguages(const i_ZelDataLanguage& languages, std::vector<std::string>& ids);

/// Fills @p items through @p getAll, the getter of all items of @p collection, and @p starts with
/// the start of each.
template <class Collection, class Item>
Ending receiveItems(const Collection& collection,
                    ZelDataResult_tags (Collection::*getAll)(std::vector<Item*>&) const,
                    ReceivedItems<Item>& items, std::vector<long long>& starts)
{
    if (const Ending ending = endingOf((collection.*getAll)(items.vector()))) return ending;
    starts.reserve(items.items().size());
    for (const Item* item : items.items()) {
        if (item == nullptr) return ZelData_InternalError;
        long long start = 0;
        if (const Ending ending = endingOf(item->getStart(start))) return ending;
        starts.push_back(start);
    }
    return {};
}

/// Checks each item with @p look, a callable that may end the search, and adds a finding if a later
/// item starts before the item's bound.
template <class Item, class Look>
Ending findItemProblems(const ReceivedItems<Item>& items, const std::vector<long long>& bounds,
                        const std::vector<long long>& starts, FindingList& found, Look&& look)
{
    const auto later = firstLaterStartsBelow(bounds, starts);
    for (std::size_t i = 0; i < starts.size(); ++i) {
        found.setItem(i, starts[i]);
        if (const Ending ending = look(std::as_const(*items.items()[i]))) return ending;
        if (later[i] < starts.size()) found.addLater(bounds[i], later[i], starts[later[i]]);
    }
    return {};
}

/// Checks the texts of @p item, and calls @p look with each text and its language. Then adds the
/// languages of @p listed without a text.
template <class Item, class Look>
Ending findTextProblems(const Item& item, const std::vector<std::string>& listed,
                        FindingList& found, Look&& look)
{
    std::vector<std::string> ids;
    if (const Ending ending = endingOf(item.getLanguageIDs(ids))) return ending;
    for (const std::string& id : ids) {
        std::string text;
        if (const Ending ending = endingOf(item.getTextForLanguage(text, id))) return ending;
        found.checkText(text, id);
        look(text, id);
    }
    found.addMissingTexts(std::move(ids), listed);
    return {};
}

} // namespace ZelInterchangeData

#endif
