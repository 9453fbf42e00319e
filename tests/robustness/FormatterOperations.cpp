#include "robustness/FormatterBaseOperations.h"

namespace ZelInterchangeData {

namespace {

template <class Formatter>
OperationsOf<Formatter> addFormatter(OperationList& list, const char* className,
                                     std::unique_ptr<Formatter> (*make)())
{
    const OperationsOf<Formatter> of(list, className, make);
    addFormatterBaseOperations(of, of);
    return of;
}

} // namespace

void addFormatterOperations(OperationList& list)
{
    using Header = i_ZelDataHeaderFormatter;
    const auto header = addFormatter(list, "ZelDataXmpHeaderFormatter", filledHeaderFormatter);
    header.stepwise().add("setHeader", &Header::setHeader, given<filledHeader>);
    header.add("getHeader", &Header::getHeader, &Outs::headerTarget);

    using Captions = i_ZelDataCaptionFormatter;
    const auto captions = addFormatter(list, "ZelDataXmpCaptionFormatter", filledCaptionFormatter);
    captions.stepwise().add("setCaptions", &Captions::setCaptions, given<filledCaptions>);
    captions.add("getCaptions", &Captions::getCaptions, &Outs::captionsTarget);

    using Toc = i_ZelDataTocFormatter;
    const auto toc = addFormatter(list, "ZelDataXmpTocFormatter", filledTocFormatter);
    toc.stepwise().add("setToc", &Toc::setToc, given<filledToc>);
    toc.add("getToc", &Toc::getToc, &Outs::tocTarget);

    using Text = i_ZelDataScreenTextFormatter;
    const auto text =
        addFormatter(list, "ZelDataXmpScreenTextFormatter", filledScreenTextFormatter);
    text.stepwise().add("setScreenText", &Text::setScreenText, given<filledScreenText>);
    text.add("getScreenText", &Text::getScreenText, &Outs::screenTextTarget);
}

} // namespace ZelInterchangeData
