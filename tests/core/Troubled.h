/// @file
/// Data sets whose operations return a code that a test chooses, or throw.

#ifndef ZELINTERCHANGEDATA_TESTS_CORE_TROUBLED_H
#define ZELINTERCHANGEDATA_TESTS_CORE_TROUBLED_H

#include "captions/ZelDataCaptions.h"
#include "header/ZelDataHeader.h"
#include "screentext/ZelDataScreenText.h"
#include "toc/ZelDataToc.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// Runs in place of an operation of the object: returns a code, or nothing to run the operation as
/// usual.
using Act = std::function<std::optional<ZelDataResult_tags>(const i_ZelDataResult& object)>;

/// Returns @p code while the last error is @p lastError, so that a test sees which one is used.
inline Act answering(ZelDataResult_tags code, ZelDataResult_tags lastError)
{
    return [=](const i_ZelDataResult& object) {
        object.setLastError(lastError);
        return code;
    };
}

/// Throws @p exception.
template <class Exception>
Act throwing(Exception exception)
{
    return [=](const i_ZelDataResult&) -> std::optional<ZelDataResult_tags> { throw exception; };
}

/// Does @p act at call @p number, counted from 1, and nothing at other calls.
inline Act atCall(int number, const Act& act)
{
    return [=, calls = 0](const i_ZelDataResult& object) mutable {
        return ++calls == number ? act(object) : std::nullopt;
    };
}

/// Counts the calls in @p calls and does nothing else.
inline Act counting(int& calls)
{
    return [&calls](const i_ZelDataResult&) -> std::optional<ZelDataResult_tags> {
        ++calls;
        return std::nullopt;
    };
}

/// The base of the troubled sets. All of them know the operations "clear", "copy" (`copyFrom` of
/// the own kind), "read" (a getter that a copy calls on its source) and "getLastError".
template <class Base>
class Troubled : public Base {
public:
    using Code = ZelDataResult_tags;

    void on(const std::string& operation, Act act) { acts_[operation] = std::move(act); }
    void leave(const std::string& operation) { acts_.erase(operation); }

    Code getLastError() const override
    {
        return act("getLastError", [&] { return Base::getLastError(); });
    }

protected:
    template <class Real>
    Code act(const char* operation, Real&& real) const
    {
        const auto found = acts_.find(operation);
        const auto code = found == acts_.end() ? std::nullopt : found->second(*this);
        return code ? *code : real();
    }

private:
    mutable std::map<std::string, Act> acts_;
};

/// A troubled header. It knows "isValid", "clearLanguages", "addLanguage" and "getLanguageCount",
/// too.
class TroubledHeader : public Troubled<ZelDataHeader> {
public:
    using ZelDataHeader::copyFrom;

    Code isValid() const override
    {
        return act("isValid", [&] { return ZelDataHeader::isValid(); });
    }
    Code clearHeader() override
    {
        return act("clear", [&] { return ZelDataHeader::clearHeader(); });
    }
    Code clearLanguages() override
    {
        return act("clearLanguages", [&] { return ZelDataHeader::clearLanguages(); });
    }
    Code addLanguage(const std::string& id) override
    {
        return act("addLanguage", [&] { return ZelDataHeader::addLanguage(id); });
    }
    Code getLanguageCount(unsigned long& count) const override
    {
        return act("getLanguageCount", [&] { return ZelDataHeader::getLanguageCount(count); });
    }
    Code getTitle(std::string& title) const override
    {
        return act("read", [&] { return ZelDataHeader::getTitle(title); });
    }
    Code copyFrom(const i_ZelDataHeader& other) override
    {
        return act("copy", [&] { return ZelDataHeader::copyFrom(other); });
    }
};

/// Troubled captions. They know "getOrderedLanguageIDs", too.
class TroubledCaptions : public Troubled<ZelDataCaptions> {
public:
    using ZelDataCaptions::copyFrom;

    Code clearCaptionItems() override
    {
        return act("clear", [&] { return ZelDataCaptions::clearCaptionItems(); });
    }
    /// Delivers "ja", which is not one of the languages, if an act replaces it.
    Code getOrderedLanguageIDs(std::vector<std::string>& ids) const override
    {
        std::vector<std::string> real = {"ja"};
        const Code code = act("getOrderedLanguageIDs",
                              [&] { return ZelDataCaptions::getOrderedLanguageIDs(real); });
        ids = real;
        return code;
    }
    Code getFontFamily(std::string& family) const override
    {
        return act("read", [&] { return ZelDataCaptions::getFontFamily(family); });
    }
    Code copyFrom(const i_ZelDataCaptions& other) override
    {
        return act("copy", [&] { return ZelDataCaptions::copyFrom(other); });
    }
};

/// A troubled table of contents.
class TroubledToc : public Troubled<ZelDataToc> {
public:
    using ZelDataToc::copyFrom;

    Code clearTocItems() override
    {
        return act("clear", [&] { return ZelDataToc::clearTocItems(); });
    }
    Code getImageFile(std::string& name) const override
    {
        return act("read", [&] { return ZelDataToc::getImageFile(name); });
    }
    Code copyFrom(const i_ZelDataToc& source) override
    {
        return act("copy", [&] { return ZelDataToc::copyFrom(source); });
    }
};

/// Troubled screen text.
class TroubledScreenText : public Troubled<ZelDataScreenText> {
public:
    Code clearScreenTextItems() override
    {
        return act("clear", [&] { return ZelDataScreenText::clearScreenTextItems(); });
    }
    Code getFrameRate(unsigned long& rate) const override
    {
        return act("read", [&] { return ZelDataScreenText::getFrameRate(rate); });
    }
    Code copyFrom(const i_ZelDataScreenText& source) override
    {
        return act("copy", [&] { return ZelDataScreenText::copyFrom(source); });
    }
};

} // namespace ZelInterchangeData

#endif
