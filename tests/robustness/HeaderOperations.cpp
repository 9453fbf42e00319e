#include "header/ZelDataHeader.h"
#include "robustness/LanguageOperations.h"

namespace ZelInterchangeData {

namespace {

using Header = i_ZelDataHeader;
using Of = OperationsOf<Header>;

void addSetters(Of& of)
{
    of.add("setAppName", [](Header& h, Outs&) { return h.setAppName(otherText); });
    of.add("setAppVersion", [](Header& h, Outs&) { return h.setAppVersion(otherText); });
    of.add("setTitle", [](Header& h, Outs&) { return h.setTitle(otherText); });
    of.add("setCreator", [](Header& h, Outs&) { return h.setCreator(otherText); });
    of.add("setDescription", [](Header& h, Outs&) { return h.setDescription(otherText); });
    of.add("setKeywords", [](Header& h, Outs&) { return h.setKeywords(otherList); });
    of.add("setIPodExplicit", [](Header& h, Outs&) { return h.setIPodExplicit(false); });
    of.add("setVideoLength", [](Header& h, Outs&) { return h.setVideoLength(5); });
    of.add("setVideoWidth", [](Header& h, Outs&) { return h.setVideoWidth(6); });
    of.add("setVideoHeight", [](Header& h, Outs&) { return h.setVideoHeight(7); });
    of.add("setShowSearchBar", [](Header& h, Outs&) { return h.setShowSearchBar(true); });
}

void addGetters(Of& of)
{
    of.add("getAppName", [](Header& h, Outs& o) { return h.getAppName(o.text); });
    of.add("getAppVersion", [](Header& h, Outs& o) { return h.getAppVersion(o.text); });
    of.add("getTitle", [](Header& h, Outs& o) { return h.getTitle(o.text); });
    of.add("getCreator", [](Header& h, Outs& o) { return h.getCreator(o.text); });
    of.add("getDescription", [](Header& h, Outs& o) { return h.getDescription(o.text); });
    of.add("getKeywords", [](Header& h, Outs& o) { return h.getKeywords(o.list); });
    of.add("getIPodExplicit", [](Header& h, Outs& o) { return h.getIPodExplicit(o.flag); });
    of.add("getVideoLength", [](Header& h, Outs& o) { return h.getVideoLength(o.number); });
    of.add("getVideoWidth", [](Header& h, Outs& o) { return h.getVideoWidth(o.number); });
    of.add("getVideoHeight", [](Header& h, Outs& o) { return h.getVideoHeight(o.number); });
    of.add("getShowSearchBar", [](Header& h, Outs& o) { return h.getShowSearchBar(o.flag); });
}

void addContentNames(Of& of)
{
    of.add("clearContentNames", [](Header& h, Outs&) { return h.clearContentNames(); });
    of.add("addContentName", [](Header& h, Outs&) { return h.addContentName(otherText); });
    of.add("removeContentName", [](Header& h, Outs&) { return h.removeContentName(contentName); });
    of.add("getContentNameCount",
           [](Header& h, Outs& o) { return h.getContentNameCount(o.number); });
    of.add("getContentNames", [](Header& h, Outs& o) { return h.getContentNames(o.list); });
    of.add("doesContentNameExist",
           [](Header& h, Outs& o) { return h.doesContentNameExist(o.text, o.flag); });
}

} // namespace

void addHeaderOperations(OperationList& list)
{
    Of of(list, "ZelDataHeader", filledHeader);
    addLanguageOperations(of);
    of.add("isValid", [](Header& h, Outs&) { return h.isValid(); });
    of.add("clearHeader", [](Header& h, Outs&) { return h.clearHeader(); });
    addSetters(of);
    addGetters(of);
    addContentNames(of);
    of.add("copyFrom(const i_ZelDataHeader&)", [](Header& h, Outs&) {
          thread_local const auto source = filledHeader();
          return h.copyFrom(*source);
      }).inSteps();
    of.add("copyFrom(const i_ZelDataHeader&)|of a caller's class", [](Header& h, Outs&) {
          thread_local const auto source = callersCopyOf<ZelDataHeader>(*filledHeader());
          return h.copyFrom(*source);
      }).inSteps();
}

} // namespace ZelInterchangeData
