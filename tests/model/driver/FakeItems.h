/// @file
/// Items that check nothing.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_FAKEITEMS_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_FAKEITEMS_H

#include "FakeLanguage.h"

#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace model {

using Code = ZelDataResult_tags;
using Text = std::string;

/// Makes a copy of an item with all that it holds, its script included. It notes its calls under
/// @p name.
template <class Item>
std::unique_ptr<Item> cloned(const Item& item, const std::string& name, FakeControl::Notes* notes)
{
    auto copy = std::make_unique<Item>(item);
    copy->restart();
    copy->begin(name, notes);
    return copy;
}

/// What all fake items have in common.
template <class Interface>
class FakeItem : public Fake<Interface> {
public:
    /// Forgets the last error.
    void restart() { this->forgetCodes(); }

    Code isValid(bool strict) const override { return this->done("isValid", notedList(strict)); }
    Code setStart(long long v) override { return this->put("setStart", start_, v); }
    Code getStart(long long& v) const override { return this->fetch("getStart", start_, v); }
    Code copyFrom(const Interface& other) override
    {
        return this->call("copyFrom", [&] { return Interface::copyFrom(other); });
    }

private:
    long long start_ = 0;
};

/// The end and the duration of an item; the end need not fit the start and the duration.
template <class Base>
class FakeSpan : public Base {
public:
    Code setEnd(long long v) override { return this->put("setEnd", end_, v); }
    Code setDuration(long long v) override { return this->put("setDuration", duration_, v); }
    Code getEnd(long long& v) const override { return this->fetch("getEnd", end_, v); }
    Code getDuration(long long& v) const override
    {
        return this->fetch("getDuration", duration_, v);
    }

private:
    long long end_ = 0;
    long long duration_ = 0;
};

/// The image of an item.
template <class Base>
class FakeImage : public Base {
public:
    using Index = unsigned long;
    using Offset = unsigned long long;

    Code setImageFile(const Text& v) override { return this->put("setImageFile", file_, v); }
    Code setImageIndex(Index v) override { return this->put("setImageIndex", index_, v); }
    Code setImageOffset(Offset v) override { return this->put("setImageOffset", offset_, v); }
    Code getImageFile(Text& v) const override { return this->fetch("getImageFile", file_, v); }
    Code getImageIndex(Index& v) const override { return this->fetch("getImageIndex", index_, v); }
    Code getImageOffset(Offset& v) const override
    {
        return this->fetch("getImageOffset", offset_, v);
    }

private:
    Text file_;
    Index index_ = 0;
    Offset offset_ = 0;
};

/// An item that accepts raw texts.
class FakeTexts {
public:
    virtual ~FakeTexts() = default;
    /// Appends without checking, so a language may be there twice.
    void append(const Text& text, const Text& language) { texts_.emplace_back(language, text); }

protected:
    FakeTexts() = default;
    FakeTexts(const FakeTexts&) = default;
    FakeTexts& operator=(const FakeTexts&) = delete;

    std::pair<Text, Text>* find(const Text& language) { return findIn(texts_, language); }
    const std::pair<Text, Text>* find(const Text& language) const
    {
        return findIn(texts_, language);
    }

    std::vector<std::pair<Text, Text>> texts_;

private:
    template <class Texts>
    static auto findIn(Texts& texts, const Text& language) -> decltype(texts.data())
    {
        for (auto& entry : texts) {
            if (entry.first == language) return &entry;
        }
        return nullptr;
    }
};

/// The operations on texts by language, which stay in the order in which they came.
template <class Interface>
class FakeTextItem : public FakeItem<Interface>, public FakeTexts {
public:
    Code clearText() override
    {
        return this->call("clearText", this->doing([&] { texts_.clear(); }));
    }
    Code setTextForLanguage(const Text& text, const Text& language) override
    {
        return this->call("setTextForLanguage", this->doing([&] { replace(text, language); }),
                          notedList(text, language));
    }
    Code removeTextForLanguage(const Text& language) override
    {
        return this->call("removeTextForLanguage", this->doing([&] { remove(language); }),
                          notedList(language));
    }
    Code getLanguageIDs(Texts& ids) const override
    {
        return this->call("getLanguageIDs", this->doing([&] { list(ids); }));
    }
    Code getTextForLanguage(Text& text, const Text& language) const override
    {
        return this->call(
            "getTextForLanguage", [&] { return read(text, language); }, notedList(language));
    }

private:
    void replace(const Text& text, const Text& language)
    {
        if (auto* entry = find(language)) {
            entry->second = text;
        } else {
            append(text, language);
        }
    }
    void remove(const Text& language)
    {
        texts_.erase(std::remove_if(texts_.begin(), texts_.end(),
                                    [&](const auto& entry) { return entry.first == language; }),
                     texts_.end());
    }
    void list(Texts& ids) const
    {
        ids.clear();
        for (const auto& entry : texts_)
            ids.push_back(entry.first);
    }
    Code read(Text& text, const Text& language) const
    {
        const auto* entry = find(language);
        if (!entry) return ZelInterchangeData::ZelData_InvalidArgument;
        text = entry->second;
        return ZelInterchangeData::ZelData_Ok;
    }
};

/// A caption item that checks nothing.
class FakeCaptionItem : public FakeSpan<FakeTextItem<ZelInterchangeData::i_ZelDataCaptionItem>> {
public:
    using Alignment = ZelInterchangeData::ZelAlignment_tags;

    Code setAlignment(Alignment v) override { return put("setAlignment", alignment_, v); }
    Code getAlignment(Alignment& v) const override { return fetch("getAlignment", alignment_, v); }

private:
    Alignment alignment_ = ZelInterchangeData::ZelAlignCenter;
};

/// An entry of a table of contents that checks nothing.
class FakeTocItem : public FakeImage<FakeTextItem<ZelInterchangeData::i_ZelDataTocItem>> {};

/// A screen text item that checks nothing.
class FakeScreenTextItem
    : public FakeSpan<FakeImage<FakeItem<ZelInterchangeData::i_ZelDataScreenTextItem>>> {
public:
    Code clearText() override
    {
        return call("clearText", doing([&] { text_.clear(); }));
    }
    Code setText(const Text& v) override { return put("setText", text_, v); }
    Code setGroupId(unsigned long v) override { return put("setGroupId", group_, v); }
    Code getText(Text& v) const override { return fetch("getText", text_, v); }
    Code getGroupId(unsigned long& v) const override { return fetch("getGroupId", group_, v); }

private:
    Text text_;
    unsigned long group_ = 0;
};

} // namespace model

#endif
