/// @file
/// Copying a header: the order of the steps, and the failure of each.

#include "header/Headers.h"
#include "header/ScriptedHeader.h"
#include "support/Checks.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

/// The calls of one copy of sampleValues(), on the source (get…) and on the target.
const Texts& copySteps()
{
    static const Texts steps = {
        "clearHeader",      "clearLanguages",    "getOrderedLanguageIDs",
        "addLanguage",      "addLanguage",       "getAppName",
        "setAppName",       "getAppVersion",     "setAppVersion",
        "getTitle",         "setTitle",          "getCreator",
        "setCreator",       "getDescription",    "setDescription",
        "getKeywords",      "setKeywords",       "getIPodExplicit",
        "setIPodExplicit",  "getVideoLength",    "setVideoLength",
        "getVideoWidth",    "setVideoWidth",     "getVideoHeight",
        "setVideoHeight",   "clearContentNames", "getContentNames",
        "addContentName",   "addContentName",    "getShowSearchBar",
        "setShowSearchBar",
    };
    return steps;
}

/// What the target holds before the copy.
HeaderValues oldValues()
{
    return {"Old app", "0.9", "Old", "Old creator", "Old text",  {"old"}, true,
            1,         2,     3,     {"fr"},        {"old.mp4"}, true};
}

/// Fills a header before its script starts to log.
void fillQuietly(ScriptedHeader& header, const HeaderValues& values, Texts& log)
{
    fill(header, values);
    header.script.logTo(log);
}

/// What a target holds after the first @p count steps.
Described stateAfter(std::size_t count)
{
    Described state = described(oldValues());
    const Described source = described(sampleValues());
    for (std::size_t i = 0; i < count; ++i) {
        const std::string& step = copySteps()[i];
        if (step == "clearHeader") {
            const auto names = state["contentNames"];
            const auto searchBar = state["setShowSearchBar"];
            state = described(HeaderValues());
            state["contentNames"] = names;
            state["setShowSearchBar"] = searchBar;
        } else if (step == "addLanguage") {
            state["languages"].push_back(source.at("languages")[state["languages"].size()]);
        } else if (step == "clearContentNames") {
            state["contentNames"].clear();
        } else if (step == "addContentName") {
            state["contentNames"].push_back(
                source.at("contentNames")[state["contentNames"].size()]);
        } else if (source.count(step) != 0) {
            state[step] = source.at(step);
        }
    }
    return state;
}

bool isGetter(const std::string& step)
{
    return step.compare(0, 3, "get") == 0;
}

/// The source's last error for a getter, the target's for a language; otherwise the setter's code.
ZelDataResult_tags codeOf(const std::string& step, Misdeed misdeed)
{
    if (misdeed == Misdeed::ThrowsBadAlloc) return ZelData_OutOfMemory;
    if (misdeed == Misdeed::ThrowsOther) return ZelData_InternalError;
    const bool keeps = isGetter(step) || step == "addLanguage";
    return keeps ? CallScript::keptCode : CallScript::returnedCode;
}

class HeaderCopy : public testing::Test {
protected:
    HeaderCopy()
    {
        fillQuietly(source_, sampleValues(), log_);
        fillQuietly(target_, oldValues(), log_);
    }

    i_ZelDataHeader& target() { return target_; }
    /// What the target holds, read without its script.
    Described targetState()
    {
        target_.script = CallScript();
        return described(target_);
    }

    Texts log_;
    ScriptedHeader source_;
    ScriptedHeader target_;
};

TEST_F(HeaderCopy, ReproducesAllFieldsInTheStatedOrder)
{
    EXPECT_EQ(ZelData_Ok, target().copyFrom(source_));
    EXPECT_EQ(ZelData_Ok, target_.storedCode());
    EXPECT_EQ(copySteps(), log_);
    EXPECT_EQ(described(sampleValues()), targetState());
}

TEST_F(HeaderCopy, ChangesOnlyTheLastErrorOfTheSource)
{
    source_.ZelDataHeader::setLastError(ZelData_NoData);
    EXPECT_EQ(ZelData_Ok, target().copyFrom(source_));
    EXPECT_EQ(ZelData_Ok, source_.getLastError());
    EXPECT_EQ(described(sampleValues()), described(source_));
}

TEST_F(HeaderCopy, OntoItselfIsRefusedBeforeAnythingIsCalled)
{
    EXPECT_EQ(ZelData_InternalError, target().copyFrom(target()));
    EXPECT_EQ(ZelData_InternalError, target_.storedCode());
    EXPECT_EQ(Texts(), log_);
    EXPECT_EQ(described(oldValues()), targetState());
}

TEST_F(HeaderCopy, OfTheLanguagesAloneLeavesTheFields)
{
    EXPECT_EQ(ZelData_Ok, target().copyFrom(static_cast<const i_ZelDataLanguage&>(source_)));
    HeaderValues expected = oldValues();
    expected.languages = {"en", "de"};
    EXPECT_EQ(described(expected), targetState());
}

/// The setters refuse 0: texts, keywords and flag are there by then, names and search bar are not.
TEST_F(HeaderCopy, StopsAtASizeThatIsNotSet)
{
    for (const auto& [missing, setter] :
         {std::pair(&HeaderValues::videoLength, "setVideoLength"),
          std::pair(&HeaderValues::videoWidth, "setVideoWidth"),
          std::pair(&HeaderValues::videoHeight, "setVideoHeight")}) {
        HeaderValues values = sampleValues();
        values.*missing = 0;
        const auto source = make(&ZelDataUtilities::createHeaderData);
        const auto copy = make(&ZelDataUtilities::createHeaderData);
        fill(*source, values);
        fill(*copy, oldValues());
        EXPECT_CODE(*copy, ZelData_InvalidArgument, copy->copyFrom(*source));
        const auto stop = std::find(copySteps().begin(), copySteps().end(), setter);
        EXPECT_EQ(stateAfter(static_cast<std::size_t>(stop - copySteps().begin())),
                  described(*copy));
    }
}

TEST_F(HeaderCopy, ADuplicateLanguageEndsItWithAWarning)
{
    EXPECT_EQ(ZelData_Ok, source_.setOrderedLanguageIDs({"de", "de"}));
    EXPECT_EQ(ZelData_WarnAlreadyExists, target().copyFrom(source_));
    EXPECT_EQ(ZelData_WarnAlreadyExists, target_.storedCode());
    HeaderValues expected;
    expected.languages = {"de"};
    expected.contentNames = {"old.mp4"};
    EXPECT_EQ(described(expected), targetState());
}

/// Between two of our own headers, the copy takes a shortcut. What another class allows must not show.
TEST_F(HeaderCopy, OfOurOwnIsTheSameAsOfAnotherClass)
{
    struct Derived : ZelDataHeader {};
    const auto copied = [](i_ZelDataHeader&& target, i_ZelDataHeader&& source, int variant) {
        HeaderValues values = sampleValues();
        if (variant % 2 != 0) values.videoLength = 0;
        if (variant / 2 % 2 != 0) values.videoWidth = 0;
        if (variant / 4 % 2 != 0) values.videoHeight = 0;
        fill(source, values);
        fill(target, oldValues());
        if (variant / 8 != 0) {
            EXPECT_EQ(ZelData_Ok, source.setOrderedLanguageIDs({"de", "de"}));
        }
        source.setLastError(ZelData_NoData);
        target.setLastError(ZelData_NoData);
        const auto code = target.copyFrom(source);
        return std::tuple(code, target.getLastError(), source.getLastError(), described(target),
                          described(source));
    };
    for (int variant = 0; variant < 16; ++variant) {
        EXPECT_EQ(copied(Derived(), Derived(), variant),
                  copied(ZelDataHeader(), ZelDataHeader(), variant))
            << variant;
    }
}

/// The copy returns the last error as it is: here, success, although the copy stopped.
TEST_F(HeaderCopy, AFieldThatFailsWhileTheSourceKeptSuccessEndsItWithSuccess)
{
    source_.script.failAt("getTitle");
    source_.script.keep(ZelData_Ok);
    EXPECT_EQ(ZelData_Ok, target().copyFrom(source_));
    EXPECT_EQ(ZelData_Ok, target_.storedCode());
    ASSERT_FALSE(log_.empty());
    EXPECT_EQ("getTitle", log_.back());
}

/// A language list that fails while its last error is success does not stop the copy.
TEST_F(HeaderCopy, LanguagesThatFailWhileTheSourceKeptSuccessAreLeftOut)
{
    source_.script.failAt("getOrderedLanguageIDs");
    source_.script.keep(ZelData_Ok);
    EXPECT_EQ(ZelData_Ok, target().copyFrom(source_));
    HeaderValues expected = sampleValues();
    expected.languages.clear();
    EXPECT_EQ(described(expected), targetState());
}

/// A header that lists a content name twice, as only a caller's own class can.
class RepeatingHeader : public ScriptedHeader {
public:
    ZelDataResult_tags getContentNames(Texts& names) const override
    {
        names = {"a", "b", "a", "c"};
        return store(ZelData_Ok);
    }
};

TEST_F(HeaderCopy, AContentNameListedTwiceEndsItWithAWarning)
{
    RepeatingHeader source;
    fill(source, sampleValues());
    EXPECT_EQ(ZelData_WarnNoChange, target().copyFrom(source));
    EXPECT_EQ(ZelData_WarnNoChange, target_.storedCode());
    HeaderValues expected = sampleValues();
    expected.contentNames = {"a", "b"};
    expected.showSearchBar = oldValues().showSearchBar;
    EXPECT_EQ(described(expected), targetState());
}

class HeaderCopyStep : public HeaderCopy,
                       public testing::WithParamInterface<std::tuple<std::size_t, Misdeed>> {};

TEST_P(HeaderCopyStep, ThatGoesWrongEndsTheCopyAndKeepsWhatWasCopied)
{
    const auto [index, misdeed] = GetParam();
    const auto begin = copySteps().begin();
    const auto end = begin + static_cast<std::ptrdiff_t>(index) + 1;
    const std::string step = copySteps()[index];
    const auto nth = static_cast<int>(std::count(begin, end, step));
    (isGetter(step) ? source_ : target_).script.failAt(step, misdeed, nth);

    EXPECT_EQ(codeOf(step, misdeed), target().copyFrom(source_));
    EXPECT_EQ(codeOf(step, misdeed), target_.storedCode());
    EXPECT_EQ(Texts(begin, end), log_);
    EXPECT_EQ(stateAfter(index), targetState());
}

std::string stepName(const testing::TestParamInfo<HeaderCopyStep::ParamType>& info)
{
    static const char* const misdeeds[] = {"Fails", "ThrowsBadAlloc", "ThrowsOther"};
    const auto [index, misdeed] = info.param;
    return copySteps()[index] + std::to_string(index) + misdeeds[static_cast<int>(misdeed)];
}

INSTANTIATE_TEST_SUITE_P(Each, HeaderCopyStep,
                         testing::Combine(testing::Range(std::size_t(0), copySteps().size()),
                                          testing::Values(Misdeed::ReturnsCode,
                                                          Misdeed::ThrowsBadAlloc,
                                                          Misdeed::ThrowsOther)),
                         stepName);

} // namespace
} // namespace ZelInterchangeData
