#include "robustness/LanguageOperations.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

namespace ZelInterchangeData {

namespace {

using Item = i_ZelDataTocItem;
using Toc = i_ZelDataToc;

void addValues(OperationsOf<Item>& of)
{
    of.add("setStart", [](Item& i, Outs&) { return i.setStart(77); });
    of.add("setImageFile", [](Item& i, Outs&) { return i.setImageFile(longText); });
    of.add("setImageIndex", [](Item& i, Outs&) { return i.setImageIndex(78); });
    of.add("setImageOffset", [](Item& i, Outs&) { return i.setImageOffset(79); });
    of.add("getStart", [](Item& i, Outs& o) { return i.getStart(o.time); });
    of.add("getImageFile", [](Item& i, Outs& o) { return i.getImageFile(o.text); });
    of.add("getImageIndex", [](Item& i, Outs& o) { return i.getImageIndex(o.number); });
    of.add("getImageOffset", [](Item& i, Outs& o) { return i.getImageOffset(o.offset); });
}

void addItemOperations(OperationList& list)
{
    OperationsOf<Item> of(list, "ZelDataTocItem", filledEntry);
    addValues(of);
    of.add("isValid", [](Item& i, Outs&) { return i.isValid(true); });
    of.add("clearText", [](Item& i, Outs&) { return i.clearText(); });
    of.add("setTextForLanguage",
           [](Item& i, Outs&) { return i.setTextForLanguage(otherText, otherID); });
    of.add("setTextForLanguage|for a language that has one",
           [](Item& i, Outs&) { return i.setTextForLanguage(otherText, firstID); });
    of.add("removeTextForLanguage",
           [](Item& i, Outs&) { return i.removeTextForLanguage(firstID); });
    of.add("getLanguageIDs", [](Item& i, Outs& o) { return i.getLanguageIDs(o.list); });
    of.add("getTextForLanguage",
           [](Item& i, Outs& o) { return i.getTextForLanguage(o.text, firstID); });
    of.add("copyFrom", [](Item& i, Outs&) {
          thread_local const auto source = filledEntry();
          return i.copyFrom(*source);
      }).inSteps();
    of.add("copyFrom|of a caller's class", [](Item& i, Outs&) {
          thread_local const auto source = callersCopyOf<ZelDataTocItem>(*filledEntry());
          return i.copyFrom(*source);
      }).inSteps();
}

void addItems(OperationsOf<Toc>& of)
{
    of.add("clearTocItems", [](Toc& t, Outs&) { return t.clearTocItems(); });
    of.add("addTocItem", [](Toc& t, Outs&) {
        thread_local const auto item = filledEntry();
        return t.addTocItem(*item);
    });
    of.add("addTocItem|of a caller's class", [](Toc& t, Outs&) {
        thread_local const auto item = callersCopyOf<ZelDataTocItem>(*filledEntry());
        return t.addTocItem(*item);
    });
    of.add("addTocItem|with two languages that are not listed", [](Toc& t, Outs&) {
        thread_local const auto entry = entryWithOtherLanguages();
        return t.addTocItem(*entry);
    });
    of.add("createTocItem", [](Toc& t, Outs& o) { return t.createTocItem(&o.entry.object); });
    of.add("removeTocItemAt", [](Toc& t, Outs&) { return t.removeTocItemAt(0); });
    of.add("removeTocItemsForLanguage",
           [](Toc& t, Outs&) { return t.removeTocItemsForLanguage(firstID); });
    of.addOn(tocInBothLanguages, "removeTocItemsForLanguage|that all have",
             [](Toc& t, Outs&) { return t.removeTocItemsForLanguage(firstID); });
    of.add("getTocItemCount", [](Toc& t, Outs& o) { return t.getTocItemCount(o.number); });
    of.add("getTocItemAt", [](Toc& t, Outs& o) { return t.getTocItemAt(&o.entry.object, 1); });
    of.add("getTocItems", [](Toc& t, Outs& o) { return t.getTocItems(o.entries.objects); });
    of.add("getTocItemsForLanguage",
           [](Toc& t, Outs& o) { return t.getTocItemsForLanguage(o.entries.objects, firstID); });
}

} // namespace

void addTocOperations(OperationList& list)
{
    addItemOperations(list);
    OperationsOf<Toc> of(list, "ZelDataToc", filledToc);
    addLanguageOperations(of);
    of.add("isValid", [](Toc& t, Outs&) { return t.isValid(true); });
    of.add("makeTocConsistent", [](Toc& t, Outs&) { return t.makeTocConsistent(); });
    of.add("setFrameRate", [](Toc& t, Outs&) { return t.setFrameRate(77); });
    of.add("getFrameRate", [](Toc& t, Outs& o) { return t.getFrameRate(o.number); });
    of.add("setImageFile", [](Toc& t, Outs&) { return t.setImageFile(otherText); });
    of.add("getImageFile", [](Toc& t, Outs& o) { return t.getImageFile(o.text); });
    addItems(of);
    of.add("copyFrom(const i_ZelDataToc&)", [](Toc& t, Outs&) {
          thread_local const auto source = filledToc();
          return t.copyFrom(*source);
      }).inSteps();
    of.add("copyFrom(const i_ZelDataToc&)|of a caller's class", [](Toc& t, Outs&) {
          thread_local const auto source = callersCopyOf<ZelDataToc>(*filledToc());
          return t.copyFrom(*source);
      }).inSteps();
}

} // namespace ZelInterchangeData
