/// @file
/// The language list: one contract for the header, the captions and the table of contents.

#include "captions/ZelDataCaptions.h"
#include "header/ZelDataHeader.h"
#include "sets/LanguageList.h"
#include "support/Checks.h"
#include "support/fakes/ScriptedLanguages.h"
#include "toc/ZelDataToc.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

using IDs = std::vector<std::string>;

/// The last error before an operation, to see whether the operation stores its code.
constexpr auto untouched = static_cast<ZelDataResult_tags>(0x7E57);

/// A list as a caller might write it: it checks nothing and accepts every ID.
class UncheckedList : public i_ZelDataLanguage {
public:
    UncheckedList() = default;
    explicit UncheckedList(IDs ids) : ids_(std::move(ids)) {}

    ZelDataResult_tags clearLanguages() override
    {
        ids_.clear();
        return store(ZelData_Ok);
    }
    ZelDataResult_tags addLanguage(const std::string& id) override
    {
        ids_.push_back(id);
        return store(ZelData_Ok);
    }
    ZelDataResult_tags removeLanguage(const std::string& id) override
    {
        ids_.erase(std::remove(ids_.begin(), ids_.end(), id), ids_.end());
        return store(ZelData_Ok);
    }
    ZelDataResult_tags setOrderedLanguageIDs(const IDs& ids) override
    {
        ids_ = ids;
        return store(ZelData_Ok);
    }
    ZelDataResult_tags getOrderedLanguageIDs(IDs& ids) const override
    {
        ids = ids_;
        return store(ZelData_Ok);
    }
    ZelDataResult_tags getLanguageCount(unsigned long& count) const override
    {
        count = static_cast<unsigned long>(ids_.size());
        return store(ZelData_Ok);
    }
    ZelDataResult_tags getLanguageDisplayNames(IDs& names) const override
    {
        names.clear();
        return store(ZelData_NotImplemented);
    }
    ZelDataResult_tags getLanguageNativeDisplayNames(IDs& names) const override
    {
        names.clear();
        return store(ZelData_NotImplemented);
    }
    ZelDataResult_tags doesLanguageExist(std::string& id, bool& exists) const override
    {
        exists = std::find(ids_.begin(), ids_.end(), id) != ids_.end();
        return store(ZelData_Ok);
    }

private:
    IDs ids_;
};

IDs idsOf(const i_ZelDataLanguage& list)
{
    IDs ids = {"left over"};
    EXPECT_CODE(list, ZelData_Ok, list.getOrderedLanguageIDs(ids));
    return ids;
}

void add(i_ZelDataLanguage& list, const IDs& ids)
{
    for (const std::string& id : ids)
        EXPECT_CODE(list, ZelData_Ok, list.addLanguage(id));
}

/// What removing an absent language returns.
template <class Owner>
constexpr ZelDataResult_tags absentCode = ZelData_NotFound;
template <>
constexpr ZelDataResult_tags absentCode<ZelDataHeader> = ZelData_WarnNoChange;

template <class Owner>
class LanguageListContract : public testing::Test {
protected:
    /// The rules of the list, without those that an owner adds under the same names.
    i_ZelDataLanguage& list() { return owner_; }
    static i_ZelDataLanguage& listOf(Owner& owner) { return owner; }

    Owner owner_;
};

using Owners = testing::Types<ZelDataHeader, ZelDataCaptions, ZelDataToc>;
TYPED_TEST_SUITE(LanguageListContract, Owners, );

TYPED_TEST(LanguageListContract, StartsEmpty)
{
    EXPECT_EQ(ZelData_Ok, this->list().getLastError());
    EXPECT_EQ(IDs(), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, ClearingEmptiesTheList)
{
    add(this->list(), {"en", "de"});
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().clearLanguages());
    EXPECT_EQ(IDs(), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, IDsAreKeptAsGivenInOrderOfAddition)
{
    add(this->list(),
        {"en", "de", "EN", "en-US", "pt-BR", "aa-", "en-GB", "fr-<&\">", "ja-\xF0\x9F\x98\x80"});
    EXPECT_EQ(IDs({"en", "de", "EN", "en-US", "pt-BR", "aa-", "en-GB", "fr-<&\">",
                   "ja-\xF0\x9F\x98\x80"}),
              idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, AddingALanguageTwiceWarnsAndKeepsOne)
{
    add(this->list(), {"en"});
    EXPECT_CODE(this->list(), ZelData_WarnAlreadyExists, this->list().addLanguage("en"));
    unsigned long count = 99;
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().getLanguageCount(count));
    EXPECT_EQ(1UL, count);
}

TYPED_TEST(LanguageListContract, UnknownLanguagesAreRefused)
{
    add(this->list(), {"en"});
    for (const char* id : {"eng", "e", "xx", "", "en_US", "-", "xx-en"}) {
        SCOPED_TRACE(id);
        EXPECT_CODE(this->list(), ZelData_UnknownLanguage, this->list().addLanguage(id));
    }
    EXPECT_EQ(IDs({"en"}), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, MalformedBytesAreFoundBeforeTheLanguageIsLookedUp)
{
    for (const char* id : {"en-\xC3", "xx-\xC3", "\xFF", "en-\xC0\x80"}) {
        SCOPED_TRACE(id);
        EXPECT_CODE(this->list(), ZelData_InvalidUtf8, this->list().addLanguage(id));
    }
    EXPECT_EQ(IDs(), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, RemovingRemovesOnlyTheIdenticalEntry)
{
    add(this->list(), {"en", "EN", "en-GB"});
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().removeLanguage("EN"));
    EXPECT_EQ(IDs({"en", "en-GB"}), idsOf(this->list()));
}

/// A header warns, the other two report an error.
TYPED_TEST(LanguageListContract, RemovingAnAbsentLanguageReturnsTheOwnersCode)
{
    add(this->list(), {"en", "FR"});
    for (const char* id : {"fr", "", "\xFF"}) {
        SCOPED_TRACE(id);
        EXPECT_CODE(this->list(), absentCode<TypeParam>, this->list().removeLanguage(id));
    }
    EXPECT_EQ(IDs({"en", "FR"}), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, ReorderingTakesTheGivenOrder)
{
    add(this->list(), {"en", "de", "fr"});
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().setOrderedLanguageIDs({"fr", "en", "de"}));
    EXPECT_EQ(IDs({"fr", "en", "de"}), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, AnEmptyListCanBeReorderedIntoAnEmptyOne)
{
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().setOrderedLanguageIDs({}));
    EXPECT_CODE(this->list(), ZelData_InvalidArgument, this->list().setOrderedLanguageIDs({"en"}));
    EXPECT_EQ(IDs(), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, AnOrderOfAnotherLengthOrWithAnUnlistedEntryIsRefused)
{
    add(this->list(), {"en", "de"});
    for (const IDs& ids :
         {IDs{"de"}, IDs{"de", "en", "en"}, IDs{}, IDs{"de", "fr"}, IDs{"de", "EN"}}) {
        EXPECT_CODE(this->list(), ZelData_InvalidArgument, this->list().setOrderedLanguageIDs(ids));
        EXPECT_EQ(IDs({"en", "de"}), idsOf(this->list()));
    }
}

/// Deliberate: the check does not require every listed ID in the new order.
TYPED_TEST(LanguageListContract, AnOrderWithADuplicateIsAcceptedAndDropsTheOtherEntry)
{
    add(this->list(), {"en", "de"});
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().setOrderedLanguageIDs({"en", "en"}));
    EXPECT_EQ(IDs({"en", "en"}), idsOf(this->list()));
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().removeLanguage("en"));
    EXPECT_EQ(IDs({"en"}), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, EnglishNamesIgnoreCaseAndRegion)
{
    add(this->list(), {"de", "en-GB", "PT-br"});
    IDs names = {"left over"};
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().getLanguageDisplayNames(names));
    EXPECT_EQ(IDs({"German", "English", "Portuguese"}), names);
}

TYPED_TEST(LanguageListContract, AnEmptyNativeNameCountsAsAName)
{
    add(this->list(), {"de", "lu", "fr-CA"});
    IDs names = {"left over"};
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().getLanguageNativeDisplayNames(names));
    EXPECT_EQ(IDs({"Deutsch", "",
                   "fran\xC3\xA7"
                   "ais"}),
              names);
}

TYPED_TEST(LanguageListContract, AnEmptyListHasNoNames)
{
    IDs names = {"left over"};
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().getLanguageDisplayNames(names));
    EXPECT_EQ(IDs(), names);
    names = {"left over"};
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().getLanguageNativeDisplayNames(names));
    EXPECT_EQ(IDs(), names);
}

TYPED_TEST(LanguageListContract, ExistenceIsJudgedByteForByte)
{
    add(this->list(), {"en-US"});
    for (const auto& [id, expected] :
         {std::pair("en-US", true), std::pair("en-us", false), std::pair("en", false)}) {
        std::string asked = id;
        bool exists = !expected;
        EXPECT_CODE(this->list(), ZelData_Ok, this->list().doesLanguageExist(asked, exists));
        EXPECT_EQ(expected, exists) << id;
        EXPECT_EQ(id, asked);
    }
}

TYPED_TEST(LanguageListContract, CopyingReplacesTheList)
{
    add(this->list(), {"fr", "en"});
    const UncheckedList source({"en", "de-AT", "EN"});
    source.setLastError(untouched);
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().copyFrom(source));
    EXPECT_EQ(IDs({"en", "de-AT", "EN"}), idsOf(this->list()));
    EXPECT_EQ(ZelData_Ok, source.getLastError()) << "a getter stores its code in the source";
}

TYPED_TEST(LanguageListContract, CopyingWorksFromEveryOwnerAndIntoAnyOther)
{
    add(this->list(), {"de", "en"});
    ZelDataHeader header;
    UncheckedList unchecked({"xx"});
    for (i_ZelDataLanguage* target :
         {static_cast<i_ZelDataLanguage*>(&header), static_cast<i_ZelDataLanguage*>(&unchecked)}) {
        EXPECT_CODE(*target, ZelData_Ok, target->copyFrom(this->list()));
        EXPECT_EQ(IDs({"de", "en"}), idsOf(*target));
    }
}

TYPED_TEST(LanguageListContract, CopyingOntoItselfIsRefusedBeforeAnythingIsCalled)
{
    ScriptedLanguages<TypeParam> owner;
    i_ZelDataLanguage& list = owner;
    add(list, {"en", "de"});
    std::vector<std::string> calls;
    owner.script.logTo(calls);
    EXPECT_EQ(ZelData_InternalError, list.copyFrom(list));
    EXPECT_EQ(ZelData_InternalError, owner.storedCode());
    EXPECT_EQ(std::vector<std::string>(), calls);
    EXPECT_EQ(IDs({"en", "de"}), idsOf(list));
}

TYPED_TEST(LanguageListContract, CopyingADuplicateStopsThereWithAWarning)
{
    TypeParam source;
    add(source, {"de", "en", "fr"});
    EXPECT_CODE(source, ZelData_Ok, source.setOrderedLanguageIDs({"en", "en", "fr"}));
    EXPECT_CODE(this->list(), ZelData_WarnAlreadyExists,
                this->list().copyFrom(this->listOf(source)));
    EXPECT_EQ(IDs({"en"}), idsOf(this->list()));
}

TYPED_TEST(LanguageListContract, CopyingChecksEachIDAgain)
{
    add(this->list(), {"fr"});
    EXPECT_CODE(this->list(), ZelData_UnknownLanguage,
                this->list().copyFrom(UncheckedList({"en", "xx", "de"})));
    EXPECT_EQ(IDs({"en"}), idsOf(this->list()));
    EXPECT_CODE(this->list(), ZelData_InvalidUtf8,
                this->list().copyFrom(UncheckedList({"de", "en", "fr-\xC3"})));
    EXPECT_EQ(IDs({"de", "en"}), idsOf(this->list()));
}

/// A step that fails, the code of the copy and the remaining list.
struct FailingStep {
    const char* operation;
    Misdeed misdeed;
    ZelDataResult_tags expected;
    IDs left;
};

TYPED_TEST(LanguageListContract, CopyingEndsWithTheSourcesLastErrorWhenItsListCannotBeRead)
{
    for (const auto& [operation, misdeed, expected, left] :
         {FailingStep{"getOrderedLanguageIDs", Misdeed::ReturnsCode, CallScript::keptCode, {}},
          FailingStep{"getOrderedLanguageIDs", Misdeed::ThrowsBadAlloc, ZelData_OutOfMemory, {}},
          FailingStep{"getOrderedLanguageIDs", Misdeed::ThrowsOther, ZelData_InternalError, {}}}) {
        ScriptedLanguages<UncheckedList> source;
        add(source, {"en"});
        source.script.failAt(operation, misdeed);
        TypeParam target;
        add(target, {"fr"});
        EXPECT_CODE(target, expected, this->listOf(target).copyFrom(source));
        EXPECT_EQ(left, idsOf(target));
    }
}

/// The copy takes over the last error of the source; it has already emptied the target's list.
TYPED_TEST(LanguageListContract, CopyingEndsWithSuccessWhenTheFailingSourceKeptSuccess)
{
    ScriptedLanguages<UncheckedList> source;
    add(source, {"en"});
    source.script.failAt("getOrderedLanguageIDs");
    source.script.keep(ZelData_Ok);
    add(this->list(), {"fr"});
    EXPECT_CODE(this->list(), ZelData_Ok, this->list().copyFrom(source));
    EXPECT_EQ(IDs(), idsOf(this->list()));
}

/// A failed clearing ends the copy with its code, a failed adding with the target's last error. The
/// copy stores both without calling setLastError().
TYPED_TEST(LanguageListContract, CopyingEndsWithTheTargetsOwnFailures)
{
    for (const auto& [operation, misdeed, expected, left] :
         {FailingStep{
              "clearLanguages", Misdeed::ReturnsCode, CallScript::returnedCode, {"fr", "ja"}},
          FailingStep{"clearLanguages", Misdeed::ThrowsBadAlloc, ZelData_OutOfMemory, {"fr", "ja"}},
          FailingStep{"addLanguage", Misdeed::ReturnsCode, CallScript::keptCode, {"en"}},
          FailingStep{"addLanguage", Misdeed::ThrowsBadAlloc, ZelData_OutOfMemory, {"en"}},
          FailingStep{"addLanguage", Misdeed::ThrowsOther, ZelData_InternalError, {"en"}}}) {
        ScriptedLanguages<TypeParam> target;
        add(target, {"fr", "ja"});
        std::vector<std::string> calls;
        target.script.logTo(calls);
        target.script.failAt(operation, misdeed, operation == std::string("addLanguage") ? 2 : 1);
        i_ZelDataLanguage& list = target;
        EXPECT_EQ(expected, list.copyFrom(UncheckedList({"en", "de", "pt"})));
        EXPECT_EQ(expected, target.storedCode());
        EXPECT_EQ(0, std::count(calls.begin(), calls.end(), "setLastError"));
        target.script = CallScript();
        EXPECT_EQ(left, idsOf(list));
    }
}

// The catalogue has a name for every listed language, so only another catalogue can miss one.

ZelDataResult_tags allButGerman(const std::string& id, std::string& name)
{
    if (id == "de") return ZelData_UnknownLanguage;
    name = "name of " + id;
    return ZelData_Ok;
}

ZelDataResult_tags noMemoryForGerman(const std::string& id, std::string& name)
{
    return id == "de" ? ZelData_OutOfMemory : allButGerman(id, name);
}

class LanguageListNames : public testing::Test {
protected:
    LanguageListNames()
    {
        for (const char* id : {"en", "de", "fr"})
            EXPECT_EQ(ZelData_Ok, list_.add(id));
    }

    LanguageList list_;
    IDs names_ = {"left over"};
};

TEST_F(LanguageListNames, AMissingNameIsAnErrorAndTheOthersStay)
{
    EXPECT_EQ(ZelData_InternalError, list_.names(names_, &allButGerman));
    EXPECT_EQ(IDs({"name of en", "name of fr"}), names_);
}

TEST_F(LanguageListNames, ExhaustedMemoryIsNotMistakenForAMissingName)
{
    EXPECT_EQ(ZelData_OutOfMemory, list_.names(names_, &noMemoryForGerman));
    EXPECT_EQ(IDs({"name of en"}), names_);
}

} // namespace
} // namespace ZelInterchangeData
