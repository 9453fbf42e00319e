#include "robustness/LanguageOperations.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"

namespace ZelInterchangeData {

namespace {

using Item = i_ZelDataScreenTextItem;
using ScreenText = i_ZelDataScreenText;

void addSetters(OperationsOf<Item>& of)
{
    of.add("clearText", [](Item& i, Outs&) { return i.clearText(); });
    of.add("setText", [](Item& i, Outs&) { return i.setText(otherText); });
    of.add("setStart", [](Item& i, Outs&) { return i.setStart(77); });
    of.add("setEnd", [](Item& i, Outs&) { return i.setEnd(7777); });
    of.add("setDuration", [](Item& i, Outs&) { return i.setDuration(78); });
    of.add("setImageFile", [](Item& i, Outs&) { return i.setImageFile(longText); });
    of.add("setImageIndex", [](Item& i, Outs&) { return i.setImageIndex(79); });
    of.add("setImageOffset", [](Item& i, Outs&) { return i.setImageOffset(80); });
    of.add("setGroupId", [](Item& i, Outs&) { return i.setGroupId(81); });
}

void addGetters(OperationsOf<Item>& of)
{
    of.add("getText", [](Item& i, Outs& o) { return i.getText(o.text); });
    of.add("getStart", [](Item& i, Outs& o) { return i.getStart(o.time); });
    of.add("getEnd", [](Item& i, Outs& o) { return i.getEnd(o.time); });
    of.add("getDuration", [](Item& i, Outs& o) { return i.getDuration(o.time); });
    of.add("getImageFile", [](Item& i, Outs& o) { return i.getImageFile(o.text); });
    of.add("getImageIndex", [](Item& i, Outs& o) { return i.getImageIndex(o.number); });
    of.add("getImageOffset", [](Item& i, Outs& o) { return i.getImageOffset(o.offset); });
    of.add("getGroupId", [](Item& i, Outs& o) { return i.getGroupId(o.number); });
}

void addItemOperations(OperationList& list)
{
    OperationsOf<Item> of(list, "ZelDataScreenTextItem", filledScreenTextItem);
    of.add("isValid", [](Item& i, Outs&) { return i.isValid(true); });
    addSetters(of);
    addGetters(of);
    of.add("copyFrom", [](Item& i, Outs&) {
          thread_local const auto source = filledScreenTextItem();
          return i.copyFrom(*source);
      }).inSteps();
    of.add("copyFrom|of a caller's class", [](Item& i, Outs&) {
          thread_local const auto source =
              callersCopyOf<ZelDataScreenTextItem>(*filledScreenTextItem());
          return i.copyFrom(*source);
      }).inSteps();
}

void addItems(OperationsOf<ScreenText>& of)
{
    of.add("clearScreenTextItems", [](ScreenText& s, Outs&) { return s.clearScreenTextItems(); });
    of.add("addScreenTextItem", [](ScreenText& s, Outs&) {
        thread_local const auto item = filledScreenTextItem();
        return s.addScreenTextItem(*item);
    });
    of.add("addScreenTextItem|of a caller's class", [](ScreenText& s, Outs&) {
        thread_local const auto item =
            callersCopyOf<ZelDataScreenTextItem>(*filledScreenTextItem());
        return s.addScreenTextItem(*item);
    });
    of.add("createScreenTextItem",
           [](ScreenText& s, Outs& o) { return s.createScreenTextItem(&o.screenTextItem.object); });
    of.add("removeScreenTextItemAt",
           [](ScreenText& s, Outs&) { return s.removeScreenTextItemAt(0); });
    of.add("getScreenTextItemCount",
           [](ScreenText& s, Outs& o) { return s.getScreenTextItemCount(o.number); });
    of.add("getScreenTextItemAt", [](ScreenText& s, Outs& o) {
        return s.getScreenTextItemAt(&o.screenTextItem.object, 1);
    });
    of.add("getScreenTextItems",
           [](ScreenText& s, Outs& o) { return s.getScreenTextItems(o.screenTextItems.objects); });
}

} // namespace

void addScreenTextOperations(OperationList& list)
{
    addItemOperations(list);
    OperationsOf<ScreenText> of(list, "ZelDataScreenText", filledScreenText);
    of.add("isValid", [](ScreenText& s, Outs&) { return s.isValid(true); });
    of.add("makeScreenTextConsistent",
           [](ScreenText& s, Outs&) { return s.makeScreenTextConsistent(); });
    of.add("setFrameRate", [](ScreenText& s, Outs&) { return s.setFrameRate(77); });
    of.add("getFrameRate", [](ScreenText& s, Outs& o) { return s.getFrameRate(o.number); });
    addItems(of);
    of.add("copyFrom", [](ScreenText& s, Outs&) {
          thread_local const auto source = filledScreenText();
          return s.copyFrom(*source);
      }).inSteps();
    of.add("copyFrom|of a caller's class", [](ScreenText& s, Outs&) {
          thread_local const auto source = callersCopyOf<ZelDataScreenText>(*filledScreenText());
          return s.copyFrom(*source);
      }).inSteps();
}

} // namespace ZelInterchangeData
