#include "robustness/FormatterBaseOperations.h"

namespace ZelInterchangeData {

namespace {

void addHeaderFormatter(OperationList& list)
{
    OperationsOf<i_ZelDataHeaderFormatter> header(list, "ZelDataXmpHeaderFormatter",
                                                  filledHeaderFormatter);
    addFormatterBaseOperations(header);
    header
        .add("setHeader",
             [](i_ZelDataHeaderFormatter& f, Outs&) {
                 thread_local const auto source = filledHeader();
                 return f.setHeader(*source);
             })
        .inSteps();
    header.add("getHeader",
               [](i_ZelDataHeaderFormatter& f, Outs& o) { return f.getHeader(*o.headerTarget); });
}

void addCaptionFormatter(OperationList& list)
{
    OperationsOf<i_ZelDataCaptionFormatter> captions(list, "ZelDataXmpCaptionFormatter",
                                                     filledCaptionFormatter);
    addFormatterBaseOperations(captions);
    captions
        .add("setCaptions",
             [](i_ZelDataCaptionFormatter& f, Outs&) {
                 thread_local const auto source = filledCaptions();
                 return f.setCaptions(*source);
             })
        .inSteps();
    captions.add("getCaptions", [](i_ZelDataCaptionFormatter& f, Outs& o) {
        return f.getCaptions(*o.captionsTarget);
    });
}

void addTocFormatter(OperationList& list)
{
    OperationsOf<i_ZelDataTocFormatter> toc(list, "ZelDataXmpTocFormatter", filledTocFormatter);
    addFormatterBaseOperations(toc);
    toc.add("setToc",
            [](i_ZelDataTocFormatter& f, Outs&) {
                thread_local const auto source = filledToc();
                return f.setToc(*source);
            })
        .inSteps();
    toc.add("getToc", [](i_ZelDataTocFormatter& f, Outs& o) { return f.getToc(*o.tocTarget); });
}

void addScreenTextFormatter(OperationList& list)
{
    OperationsOf<i_ZelDataScreenTextFormatter> screenText(list, "ZelDataXmpScreenTextFormatter",
                                                          filledScreenTextFormatter);
    addFormatterBaseOperations(screenText);
    screenText
        .add("setScreenText",
             [](i_ZelDataScreenTextFormatter& f, Outs&) {
                 thread_local const auto source = filledScreenText();
                 return f.setScreenText(*source);
             })
        .inSteps();
    screenText.add("getScreenText", [](i_ZelDataScreenTextFormatter& f, Outs& o) {
        return f.getScreenText(*o.screenTextTarget);
    });
}

} // namespace

void addFormatterOperations(OperationList& list)
{
    addHeaderFormatter(list);
    addCaptionFormatter(list);
    addTocFormatter(list);
    addScreenTextFormatter(list);
}

} // namespace ZelInterchangeData
