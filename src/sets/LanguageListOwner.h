/// @file
/// The language operations of every object that has a language list.

#ifndef ZELINTERCHANGEDATA_SETS_LANGUAGELISTOWNER_H
#define ZELINTERCHANGEDATA_SETS_LANGUAGELISTOWNER_H

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataLanguage.h"
#include "sets/LanguageList.h"
#include "util/Ending.h"
#include "util/Guard.h"
#include "util/GuardedCopy.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// Implements the operations of i_ZelDataLanguage for @p Interface, which derives from it.
///
/// @tparam AbsentCode what removing an absent language returns. Deliberate: a header warns,
///         captions and a table of contents report an error; otherwise isError() would be true for
///         a header, or false for the other two.
template <class Interface, ZelDataResult_tags AbsentCode>
class LanguageListOwner : public Interface {
public:
    ZelDataResult_tags clearLanguages() override
    {
        languages_.clear();
        return this->store(ZelData_Ok);
    }

    ZelDataResult_tags addLanguage(const std::string& id) override
    {
        return this->store(guarded([&] { return languages_.add(id); }));
    }

    ZelDataResult_tags removeLanguage(const std::string& id) override
    {
        return this->store(languages_.remove(id) ? ZelData_Ok : AbsentCode);
    }

    ZelDataResult_tags setOrderedLanguageIDs(const std::vector<std::string>& ids) override
    {
        return this->store(guarded([&] { return languages_.reorder(ids); }));
    }

    ZelDataResult_tags getOrderedLanguageIDs(std::vector<std::string>& ids) const override
    {
        return this->store(guardedCopy(ids, languages_.ids()));
    }

    ZelDataResult_tags getLanguageCount(unsigned long& count) const override
    {
        count = static_cast<unsigned long>(languages_.ids().size());
        return this->store(ZelData_Ok);
    }

    ZelDataResult_tags getLanguageDisplayNames(std::vector<std::string>& names) const override
    {
        return namesInto(names, &ZelDataUtilities::englishNameForLanguage);
    }

    ZelDataResult_tags getLanguageNativeDisplayNames(std::vector<std::string>& names) const override
    {
        return namesInto(names, &ZelDataUtilities::nativeNameForLanguage);
    }

    ZelDataResult_tags doesLanguageExist(std::string& id, bool& exists) const override
    {
        exists = languages_.contains(id);
        return this->store(ZelData_Ok);
    }

protected:
    const std::vector<std::string>& languageIDs() const noexcept { return languages_.ids(); }

    const LanguageList& languages() const noexcept { return languages_; }
    LanguageList& languages() noexcept { return languages_; }

    /// Lists the languages of @p item and then calls @p append, which appends it. If memory runs
    /// out, lists none.
    template <class Item, class Append>
    ZelDataResult_tags addWithLanguages(const Item& item, Append&& append)
    {
        return undoLanguagesIfOutOfMemory([&] {
            if (const Ending ending = addLanguagesOf(item)) return *ending;
            append();
            return ZelData_Ok;
        });
    }

    /// Appends a copy of @p item to @p items and lists its languages, which were checked when they
    /// were set. If memory runs out, lists none.
    template <class Items, class Own>
    ZelDataResult_tags addOwnWithLanguages(const Own& item, Items& items)
    {
        return undoLanguagesIfOutOfMemory([&] {
            return items.appendCopyOf(
                item, [this](const auto& state) { languages_.addLanguagesOf(state.texts()); });
        });
    }

private:
    template <class Add>
    ZelDataResult_tags undoLanguagesIfOutOfMemory(Add&& add)
    {
        const std::size_t listed = languageIDs().size();
        const auto added = guarded(std::forward<Add>(add));
        if (added == ZelData_OutOfMemory) languages_.truncate(listed);
        return added;
    }

    /// Lists the languages of @p item in ascending order. Ends with an error; a language that is
    /// already listed is not an error.
    template <class Item>
    Ending addLanguagesOf(const Item& item)
    {
        std::vector<std::string> ids;
        if (failed(item.getLanguageIDs(ids))) return item.getLastError();
        for (const std::string& id : ids) {
            // cppcheck-suppress useStlAlgorithm ; each call changes the object, in this order
            if (isError(this->addLanguage(id))) return this->getLastError();
        }
        return {};
    }

    ZelDataResult_tags namesInto(std::vector<std::string>& names,
                                 LanguageList::NameLookup lookup) const
    {
        return this->store(guarded([&] { return languages_.names(names, lookup); }));
    }

    LanguageList languages_;
};

} // namespace ZelInterchangeData

#endif
