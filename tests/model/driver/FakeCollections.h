/// @file
/// Collections that check nothing.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_FAKECOLLECTIONS_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_FAKECOLLECTIONS_H

#include "FakeItems.h"
#include "FakeLanguage.h"

#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataToc.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace model {

/// A collection that accepts a fake item as it is.
class FakeItemHolder {
public:
    virtual ~FakeItemHolder() = default;
    /// Keeps a clone of @p item, if that is of the right kind, and returns whether it is.
    virtual bool addClone(const FakeControl& item) = 0;
};

/// What all fake collections have in common, on top of @p Base. They hand out clones of their
/// items, which note their calls too.
template <class Interface, class Base, class ItemInterface, class Item>
class FakeCollection : public Base, public FakeItemHolder {
public:
    using Number = unsigned long;

    Code isValid(bool strict) const override { return this->done("isValid", notedList(strict)); }
    Code setFrameRate(Number v) override { return this->put("setFrameRate", rate_, v); }
    Code getFrameRate(Number& v) const override { return this->fetch("getFrameRate", rate_, v); }
    using Interface::copyFrom;
    Code copyFrom(const Interface& other) override
    {
        return this->call("copyFrom", [&] { return Interface::copyFrom(other); });
    }
    bool addClone(const FakeControl& item) override
    {
        const auto* own = dynamic_cast<const Item*>(&item);
        if (own) items_.push_back(cloned(*own, "", nullptr));
        return own != nullptr;
    }

protected:
    using Items = std::vector<ItemInterface*>;

    Code add(const std::string& operation, const ItemInterface& item)
    {
        return this->call(operation, [&] {
            auto copy = std::make_unique<Item>();
            const Code code = copy->copyFrom(item);
            if (!ZelInterchangeData::failed(code)) items_.push_back(std::move(copy));
            return code;
        });
    }
    Code create(const std::string& operation, ItemInterface** out) const
    {
        return this->call(operation, [&] { return handOut(out, std::make_unique<Item>()); });
    }
    Code removeAt(const std::string& operation, unsigned long index)
    {
        return this->call(
            operation, [&] { return erase(index); }, notedList(index));
    }
    Code count(const std::string& operation, unsigned long& count) const
    {
        return this->call(operation,
                          this->doing([&] { count = static_cast<unsigned long>(items_.size()); }));
    }
    Code at(const std::string& operation, ItemInterface** out, unsigned long index) const
    {
        return this->call(
            operation,
            [&] {
                if (index >= items_.size()) return ZelInterchangeData::ZelData_InvalidArgument;
                return handOut(out, clone(index));
            },
            notedList(index));
    }
    Code ofLanguage(const std::string& operation, const Text& id) const
    {
        return this->call(
            operation, [] { return ZelInterchangeData::ZelData_NotImplemented; }, notedList(id));
    }
    Code all(const std::string& operation, Items& out) const
    {
        return this->call(operation, this->doing([&] { handOut(out, items_.size()); }), {},
                          [&] { handOut(out, (items_.size() + 1) / 2); });
    }
    Code clear(const std::string& operation)
    {
        return this->call(operation, this->doing([&] {
            items_.clear();
            forgetLanguages();
        }));
    }
    virtual void forgetLanguages() {}

private:
    static Code handOut(ItemInterface** out, std::unique_ptr<Item> item)
    {
        if (!out || *out) return ZelInterchangeData::ZelData_InvalidArgument;
        *out = item.release();
        return ZelInterchangeData::ZelData_Ok;
    }
    void handOut(Items& out, std::size_t count) const
    {
        out.clear();
        for (std::size_t index = 0; index < count; ++index)
            out.push_back(clone(index).release());
    }
    std::unique_ptr<Item> clone(std::size_t index) const
    {
        return cloned(*items_[index], this->name() + "." + std::to_string(index), this->notes());
    }
    Code erase(unsigned long index)
    {
        if (index >= items_.size()) return ZelInterchangeData::ZelData_InvalidArgument;
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
        return ZelInterchangeData::ZelData_Ok;
    }

    Number rate_ = 1000;
    std::vector<std::unique_ptr<Item>> items_;
};

/// What captions and tables of contents have in common.
template <class Interface, class ItemInterface, class Item>
class FakeTranslatedCollection
    : public FakeCollection<Interface, FakeLanguageOperations<Interface>, ItemInterface, Item> {
    void forgetLanguages() override { this->languages_.clear(); }
};

/// Captions that check nothing.
class FakeCaptions
    : public FakeTranslatedCollection<ZelInterchangeData::i_ZelDataCaptions,
                                      ZelInterchangeData::i_ZelDataCaptionItem, FakeCaptionItem> {
public:
    using CaptionItem = ZelInterchangeData::i_ZelDataCaptionItem;

    Code makeCaptionsConsistent() override { return done("makeCaptionsConsistent"); }
    Code setFontFamily(const Text& v) override { return put("setFontFamily", font_, v); }
    Code getFontFamily(Text& v) const override { return fetch("getFontFamily", font_, v); }
    Code setFontSize(Number v) override { return put("setFontSize", size_, v); }
    Code getFontSize(Number& v) const override { return fetch("getFontSize", size_, v); }
    Code setForegroundColor(float r, float g, float b) override
    {
        return putColor("setForegroundColor", foreground_, {r, g, b});
    }
    Code getForegroundColor(float& r, float& g, float& b) const override
    {
        return fetchColor("getForegroundColor", foreground_, {&r, &g, &b});
    }
    Code setBackgroundColor(float r, float g, float b) override
    {
        return putColor("setBackgroundColor", background_, {r, g, b});
    }
    Code getBackgroundColor(float& r, float& g, float& b) const override
    {
        return fetchColor("getBackgroundColor", background_, {&r, &g, &b});
    }
    Code setBackgroundOpacity(float v) override { return put("setBackgroundOpacity", opacity_, v); }
    Code getBackgroundOpacity(float& v) const override
    {
        return fetch("getBackgroundOpacity", opacity_, v);
    }
    Code clearCaptionItems() override { return clear("clearCaptionItems"); }
    Code addCaptionItem(const CaptionItem& item) override { return add("addCaptionItem", item); }
    Code createCaptionItem(CaptionItem** out) const override
    {
        return create("createCaptionItem", out);
    }
    Code removeCaptionItemAt(Number index) override
    {
        return removeAt("removeCaptionItemAt", index);
    }
    Code removeCaptionItemsForLanguage(const Text& id) override
    {
        return done("removeCaptionItemsForLanguage", notedList(id));
    }
    Code getCaptionItemCount(Number& n) override { return count("getCaptionItemCount", n); }
    Code getCaptionItemAt(CaptionItem** out, Number index) const override
    {
        return at("getCaptionItemAt", out, index);
    }
    Code getCaptionItems(Items& out) const override { return all("getCaptionItems", out); }
    Code getCaptionItemsForLanguage(Items&, const Text& id) const override
    {
        return ofLanguage("getCaptionItemsForLanguage", id);
    }

private:
    using Color = std::array<float, 3>;

    Code putColor(const std::string& operation, Color& field, const Color& color)
    {
        return call(operation, doing([&] { field = color; }),
                    notedList(color[0], color[1], color[2]));
    }
    Code fetchColor(const std::string& operation, const Color& field,
                    const std::array<float*, 3>& out) const
    {
        return call(operation, doing([&] {
                        for (std::size_t i = 0; i < out.size(); ++i)
                            *out[i] = field[i];
                    }));
    }

    Text font_ = "Font";
    Number size_ = 20;
    Color foreground_{1, 1, 1};
    Color background_{0, 0, 0};
    float opacity_ = 0.6F;
};

/// A table of contents that checks nothing.
class FakeToc : public FakeTranslatedCollection<ZelInterchangeData::i_ZelDataToc,
                                                ZelInterchangeData::i_ZelDataTocItem, FakeTocItem> {
public:
    using TocItem = ZelInterchangeData::i_ZelDataTocItem;

    Code makeTocConsistent() override { return done("makeTocConsistent"); }
    Code setImageFile(const Text& v) override { return put("setImageFile", file_, v); }
    Code getImageFile(Text& v) const override { return fetch("getImageFile", file_, v); }
    Code clearTocItems() override { return clear("clearTocItems"); }
    Code addTocItem(const TocItem& item) override { return add("addTocItem", item); }
    Code createTocItem(TocItem** out) const override { return create("createTocItem", out); }
    Code removeTocItemAt(Number index) override { return removeAt("removeTocItemAt", index); }
    Code removeTocItemsForLanguage(const Text& id) override
    {
        return done("removeTocItemsForLanguage", notedList(id));
    }
    Code getTocItemCount(Number& n) override { return count("getTocItemCount", n); }
    Code getTocItemAt(TocItem** out, Number index) const override
    {
        return at("getTocItemAt", out, index);
    }
    Code getTocItems(Items& out) const override { return all("getTocItems", out); }
    Code getTocItemsForLanguage(Items&, const Text& id) const override
    {
        return ofLanguage("getTocItemsForLanguage", id);
    }

private:
    Text file_;
};

/// A screen text collection that checks nothing.
class FakeScreenText
    : public FakeCollection<ZelInterchangeData::i_ZelDataScreenText,
                            Fake<ZelInterchangeData::i_ZelDataScreenText>,
                            ZelInterchangeData::i_ZelDataScreenTextItem, FakeScreenTextItem> {
public:
    using TextItem = ZelInterchangeData::i_ZelDataScreenTextItem;

    Code makeScreenTextConsistent() override { return done("makeScreenTextConsistent"); }
    Code clearScreenTextItems() override { return clear("clearScreenTextItems"); }
    Code addScreenTextItem(const TextItem& item) override { return add("addScreenTextItem", item); }
    Code createScreenTextItem(TextItem** out) const override
    {
        return create("createScreenTextItem", out);
    }
    Code removeScreenTextItemAt(Number index) override
    {
        return removeAt("removeScreenTextItemAt", index);
    }
    Code getScreenTextItemCount(Number& n) override { return count("getScreenTextItemCount", n); }
    Code getScreenTextItemAt(TextItem** out, Number index) const override
    {
        return at("getScreenTextItemAt", out, index);
    }
    Code getScreenTextItems(Items& out) const override { return all("getScreenTextItems", out); }
};

} // namespace model

#endif
