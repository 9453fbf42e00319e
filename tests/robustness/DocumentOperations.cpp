#include "robustness/FormatterBaseOperations.h"

namespace ZelInterchangeData {

namespace {

using Core = i_ZelInterchangeDataCore;
using Of = OperationsOf<Core>;

void addGetters(Of& of)
{
    of.add("getDataHeader", [](Core& d, Outs& o) {
          return d.getDataHeader(*o.headerTarget);
      }).inSteps();
    of.add("getDataCaptions", [](Core& d, Outs& o) {
          return d.getDataCaptions(*o.captionsTarget);
      }).inSteps();
    of.add("getDataToc", [](Core& d, Outs& o) { return d.getDataToc(*o.tocTarget); }).inSteps();
    of.add("getDataScreenText", [](Core& d, Outs& o) {
          return d.getDataScreenText(*o.screenTextTarget);
      }).inSteps();
}

/// A header that cannot be set gives the captions' last error, so here there are none.
void addSetters(Of& of, std::unique_ptr<Core> (*makeEmpty)())
{
    of.addOn(makeEmpty, "setDataHeader", [](Core& d, Outs&) {
          thread_local const auto source = filledHeader();
          return d.setDataHeader(*source);
      }).inSteps();
    of.add("setDataCaptions", [](Core& d, Outs&) {
          thread_local const auto source = filledCaptions();
          return d.setDataCaptions(*source);
      }).inSteps();
    of.add("setDataToc", [](Core& d, Outs&) {
          thread_local const auto source = filledToc();
          return d.setDataToc(*source);
      }).inSteps();
    of.add("setDataScreenText", [](Core& d, Outs&) {
          thread_local const auto source = filledScreenText();
          return d.setDataScreenText(*source);
      }).inSteps();
}

/// The first set of its kind: the document makes an object for it.
void addFirstSets(Of& of, std::unique_ptr<Core> (*makeEmpty)())
{
    of.addOn(makeEmpty, "setDataCaptions|the first", [](Core& d, Outs&) {
          thread_local const auto source = filledCaptions();
          return d.setDataCaptions(*source);
      }).inSteps();
    of.addOn(makeEmpty, "setDataToc|the first", [](Core& d, Outs&) {
          thread_local const auto source = filledToc();
          return d.setDataToc(*source);
      }).inSteps();
    of.addOn(makeEmpty, "setDataScreenText|the first", [](Core& d, Outs&) {
          thread_local const auto source = filledScreenText();
          return d.setDataScreenText(*source);
      }).inSteps();
}

void addCreators(Of& of)
{
    of.add("createDataHeader",
           [](Core& d, Outs& o) { return d.createDataHeader(&o.header.object); });
    of.add("createDataCaptions",
           [](Core& d, Outs& o) { return d.createDataCaptions(&o.captions.object); });
    of.add("createDataToc", [](Core& d, Outs& o) { return d.createDataToc(&o.toc.object); });
    of.add("createDataScreenText",
           [](Core& d, Outs& o) { return d.createDataScreenText(&o.screenText.object); });
}

template <class Document>
void addOperationsOf(OperationList& list, const char* className, bool storesNothing)
{
    Of of(list, className, filledDocument<Document>);
    addFormatterBaseOperations(of, storesNothing);
    addGetters(of);
    addSetters(of, newDocument<Document>);
    addFirstSets(of, newDocument<Document>);
    addCreators(of);
}

} // namespace

void addDocumentOperations(OperationList& list)
{
    addOperationsOf<ZelDataCore>(list, "ZelDataCore", true);
    addOperationsOf<ZelDataCoreXmp>(list, "ZelDataCoreXmp", false);
}

} // namespace ZelInterchangeData
