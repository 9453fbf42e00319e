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

/// Makes a copy of an item with all it holds, its script included; its calls are noted under @p
/// name.
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
};

/// Something to which raw texts can be given.
class FakeTexts {
public:
    virtual ~FakeTexts() = default;
    /// Appends without looking, so a language may be there twice.
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

/// The operations on texts per language, kept in the order of their coming.
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

/// A caption item that checks nothing; its end need not fit its start and duration.
class FakeCaptionItem : public FakeTextItem<ZelInterchangeData::i_ZelDataCaptionItem> {
public:
    using Alignment = ZelInterchangeData::ZelAlignment_tags;

    Code setStart(long long v) override { return put("setStart", start_, v); }
    Code setEnd(long long v) override { return put("setEnd", end_, v); }
    Code setDuration(long long v) override { return put("setDuration", duration_, v); }
    Code setAlignment(Alignment v) override { return put("setAlignment", alignment_, v); }
    Code getStart(long long& v) const override { return fetch("getStart", start_, v); }
    Code getEnd(long long& v) const override { return fetch("getEnd", end_, v); }
    Code getDuration(long long& v) const override { return fetch("getDuration", duration_, v); }
    Code getAlignment(Alignment& v) const override { return fetch("getAlignment", alignment_, v); }
    Code copyFrom(const i_ZelDataCaptionItem& other) override
    {
        return call("copyFrom", [&] { return i_ZelDataCaptionItem::copyFrom(other); });
    }

private:
    long long start_ = 0;
    long long end_ = 0;
    long long duration_ = 0;
    Alignment alignment_ = ZelInterchangeData::ZelAlignCenter;
};

/// An entry of a table of contents that checks nothing.
class FakeTocItem : public FakeTextItem<ZelInterchangeData::i_ZelDataTocItem> {
public:
    using Offset = unsigned long long;

    Code setStart(long long v) override { return put("setStart", start_, v); }
    Code setImageFile(const Text& v) override { return put("setImageFile", file_, v); }
    Code setImageIndex(unsigned long v) override { return put("setImageIndex", index_, v); }
    Code setImageOffset(Offset v) override { return put("setImageOffset", offset_, v); }
    Code getStart(long long& v) const override { return fetch("getStart", start_, v); }
    Code getImageFile(Text& v) const override { return fetch("getImageFile", file_, v); }
    Code getImageIndex(unsigned long& v) const override
    {
        return fetch("getImageIndex", index_, v);
    }
    Code getImageOffset(Offset& v) const override { return fetch("getImageOffset", offset_, v); }
    Code copyFrom(const i_ZelDataTocItem& other) override
    {
        return call("copyFrom", [&] { return i_ZelDataTocItem::copyFrom(other); });
    }

private:
    long long start_ = 0;
    Text file_;
    unsigned long index_ = 0;
    Offset offset_ = 0;
};

/// A screen text item that checks nothing.
class FakeScreenTextItem : public FakeItem<ZelInterchangeData::i_ZelDataScreenTextItem> {
public:
    using Offset = unsigned long long;

    Code clearText() override
    {
        return call("clearText", doing([&] { text_.clear(); }));
    }
    Code setText(const Text& v) override { return put("setText", text_, v); }
    Code setStart(long long v) override { return put("setStart", start_, v); }
    Code setEnd(long long v) override { return put("setEnd", end_, v); }
    Code setDuration(long long v) override { return put("setDuration", duration_, v); }
    Code setImageFile(const Text& v) override { return put("setImageFile", file_, v); }
    Code setImageIndex(unsigned long v) override { return put("setImageIndex", index_, v); }
    Code setImageOffset(Offset v) override { return put("setImageOffset", offset_, v); }
    Code setGroupId(unsigned long v) override { return put("setGroupId", group_, v); }
    Code getText(Text& v) const override { return fetch("getText", text_, v); }
    Code getStart(long long& v) const override { return fetch("getStart", start_, v); }
    Code getEnd(long long& v) const override { return fetch("getEnd", end_, v); }
    Code getDuration(long long& v) const override { return fetch("getDuration", duration_, v); }
    Code getImageFile(Text& v) const override { return fetch("getImageFile", file_, v); }
    Code getImageIndex(unsigned long& v) const override
    {
        return fetch("getImageIndex", index_, v);
    }
    Code getImageOffset(Offset& v) const override { return fetch("getImageOffset", offset_, v); }
    Code getGroupId(unsigned long& v) const override { return fetch("getGroupId", group_, v); }
    Code copyFrom(const i_ZelDataScreenTextItem& other) override
    {
        return call("copyFrom", [&] { return i_ZelDataScreenTextItem::copyFrom(other); });
    }

private:
    Text text_;
    long long start_ = 0;
    long long end_ = 0;
    long long duration_ = 0;
    Text file_;
    unsigned long index_ = 0;
    Offset offset_ = 0;
    unsigned long group_ = 0;
};

} // namespace model

#endif
