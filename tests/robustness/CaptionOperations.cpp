#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "robustness/LanguageOperations.h"

namespace ZelInterchangeData {

namespace {

using Item = i_ZelDataCaptionItem;
using Captions = i_ZelDataCaptions;

void addValues(OperationsOf<Item>& of)
{
    of.add("setStart", [](Item& i, Outs&) { return i.setStart(77); });
    of.add("setEnd", [](Item& i, Outs&) { return i.setEnd(7777); });
    of.add("setDuration", [](Item& i, Outs&) { return i.setDuration(78); });
    of.add("setAlignment", [](Item& i, Outs&) { return i.setAlignment(ZelAlignBottom); });
    of.add("getStart", [](Item& i, Outs& o) { return i.getStart(o.time); });
    of.add("getEnd", [](Item& i, Outs& o) { return i.getEnd(o.time); });
    of.add("getDuration", [](Item& i, Outs& o) { return i.getDuration(o.time); });
    of.add("getAlignment", [](Item& i, Outs& o) { return i.getAlignment(o.alignment); });
}

void addItemOperations(OperationList& list)
{
    OperationsOf<Item> of(list, "ZelDataCaptionItem", filledCaption);
    const auto add = [&of](const char* name, OperationsOf<Item>::Act act) -> Operation& {
        return of.add(name, act).letsThrough();
    };
    addValues(of);
    add("isValid", [](Item& i, Outs&) { return i.isValid(true); });
    add("clearText", [](Item& i, Outs&) { return i.clearText(); });
    add("setTextForLanguage",
        [](Item& i, Outs&) { return i.setTextForLanguage(otherText, otherID); });
    add("setTextForLanguage|for a language that has one",
        [](Item& i, Outs&) { return i.setTextForLanguage(otherText, firstID); });
    add("removeTextForLanguage", [](Item& i, Outs&) { return i.removeTextForLanguage(firstID); });
    add("getLanguageIDs", [](Item& i, Outs& o) { return i.getLanguageIDs(o.list); });
    add("getTextForLanguage",
        [](Item& i, Outs& o) { return i.getTextForLanguage(o.text, firstID); });
    add("copyFrom", [](Item& i, Outs&) {
        thread_local const auto source = filledCaption();
        return i.copyFrom(*source);
    }).inSteps();
    add("copyFrom|of a caller's class", [](Item& i, Outs&) {
        thread_local const auto source = callersCopyOf<ZelDataCaptionItem>(*filledCaption());
        return i.copyFrom(*source);
    }).inSteps();
}

void addStyle(OperationsOf<Captions>& of)
{
    of.add("setFrameRate", [](Captions& c, Outs&) { return c.setFrameRate(77); });
    of.add("getFrameRate", [](Captions& c, Outs& o) { return c.getFrameRate(o.number); });
    of.add("setFontFamily", [](Captions& c, Outs&) { return c.setFontFamily(otherText); });
    of.add("getFontFamily", [](Captions& c, Outs& o) { return c.getFontFamily(o.text); });
    of.add("setFontSize", [](Captions& c, Outs&) { return c.setFontSize(33); });
    of.add("getFontSize", [](Captions& c, Outs& o) { return c.getFontSize(o.number); });
    of.add("setForegroundColor", [](Captions& c, Outs&) { return c.setForegroundColor(0, 0, 1); });
    of.add("getForegroundColor",
           [](Captions& c, Outs& o) { return c.getForegroundColor(o.red, o.green, o.blue); });
    of.add("setBackgroundColor", [](Captions& c, Outs&) { return c.setBackgroundColor(1, 1, 1); });
    of.add("getBackgroundColor",
           [](Captions& c, Outs& o) { return c.getBackgroundColor(o.red, o.green, o.blue); });
    of.add("setBackgroundOpacity", [](Captions& c, Outs&) { return c.setBackgroundOpacity(1); });
    of.add("getBackgroundOpacity",
           [](Captions& c, Outs& o) { return c.getBackgroundOpacity(o.red); });
}

void addItems(OperationsOf<Captions>& of)
{
    of.add("clearCaptionItems", [](Captions& c, Outs&) { return c.clearCaptionItems(); });
    of.add("addCaptionItem", [](Captions& c, Outs&) {
        thread_local const auto item = filledCaption();
        return c.addCaptionItem(*item);
    });
    of.add("addCaptionItem|of a caller's class", [](Captions& c, Outs&) {
        thread_local const auto item = callersCopyOf<ZelDataCaptionItem>(*filledCaption());
        return c.addCaptionItem(*item);
    });
    of.add("addCaptionItem|with two languages that are not listed", [](Captions& c, Outs&) {
        thread_local const auto item = captionWithOtherLanguages();
        return c.addCaptionItem(*item);
    });
    of.add("createCaptionItem",
           [](Captions& c, Outs& o) { return c.createCaptionItem(&o.caption.object); });
    of.add("removeCaptionItemAt", [](Captions& c, Outs&) { return c.removeCaptionItemAt(0); });
    of.add("removeCaptionItemsForLanguage",
           [](Captions& c, Outs&) { return c.removeCaptionItemsForLanguage(firstID); });
    of.addOn(captionsInBothLanguages, "removeCaptionItemsForLanguage|that all have",
             [](Captions& c, Outs&) { return c.removeCaptionItemsForLanguage(firstID); });
    of.addOn(captionsWithLongTexts, "removeCaptionItemsForLanguage|with long texts",
             [](Captions& c, Outs&) { return c.removeCaptionItemsForLanguage(firstID); });
    of.add("getCaptionItemCount",
           [](Captions& c, Outs& o) { return c.getCaptionItemCount(o.number); });
    of.add("getCaptionItemAt",
           [](Captions& c, Outs& o) { return c.getCaptionItemAt(&o.caption.object, 1); });
    of.add("getCaptionItems",
           [](Captions& c, Outs& o) { return c.getCaptionItems(o.captionItems.objects); });
    of.add("getCaptionItemsForLanguage", [](Captions& c, Outs& o) {
        return c.getCaptionItemsForLanguage(o.captionItems.objects, firstID);
    });
}

} // namespace

void addCaptionOperations(OperationList& list)
{
    addItemOperations(list);
    OperationsOf<Captions> of(list, "ZelDataCaptions", filledCaptions);
    addLanguageOperations(of);
    of.add("isValid", [](Captions& c, Outs&) { return c.isValid(true); });
    of.add("makeCaptionsConsistent", [](Captions& c, Outs&) { return c.makeCaptionsConsistent(); });
    addStyle(of);
    addItems(of);
    of.add("copyFrom(const i_ZelDataCaptions&)", [](Captions& c, Outs&) {
          thread_local const auto source = filledCaptions();
          return c.copyFrom(*source);
      }).inSteps();
    of.add("copyFrom(const i_ZelDataCaptions&)|of a caller's class", [](Captions& c, Outs&) {
          thread_local const auto source = callersCopyOf<ZelDataCaptions>(*filledCaptions());
          return c.copyFrom(*source);
      }).inSteps();
}

} // namespace ZelInterchangeData
