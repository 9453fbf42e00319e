#include "robustness/FormatterBaseOperations.h"

namespace ZelInterchangeData {

namespace {

using Core = i_ZelInterchangeDataCore;
using Of = OperationsOf<Core>;

/// The operations that copy sets. @p full has all four sets already, @p empty has none.
void addCopying(const Of& full, const Of& empty)
{
    full.add("getDataHeader", &Core::getDataHeader, &Outs::headerTarget);
    full.add("getDataCaptions", &Core::getDataCaptions, &Outs::captionsTarget);
    full.add("getDataToc", &Core::getDataToc, &Outs::tocTarget);
    full.add("getDataScreenText", &Core::getDataScreenText, &Outs::screenTextTarget);
    full.add("setDataCaptions", &Core::setDataCaptions, given<filledCaptions>);
    full.add("setDataToc", &Core::setDataToc, given<filledToc>);
    full.add("setDataScreenText", &Core::setDataScreenText, given<filledScreenText>);
    // When a header cannot be set, the document stores the captions' last error. Here it has none.
    empty.add("setDataHeader", &Core::setDataHeader, given<filledHeader>);
    // For the first set of its kind, the document makes an object.
    empty.add("setDataCaptions|the first", &Core::setDataCaptions, given<filledCaptions>);
    empty.add("setDataToc|the first", &Core::setDataToc, given<filledToc>);
    empty.add("setDataScreenText|the first", &Core::setDataScreenText, given<filledScreenText>);
}

void addCreators(const Of& of)
{
    of.add("createDataHeader", &Core::createDataHeader, &Outs::header);
    of.add("createDataCaptions", &Core::createDataCaptions, &Outs::captions);
    of.add("createDataToc", &Core::createDataToc, &Outs::toc);
    of.add("createDataScreenText", &Core::createDataScreenText, &Outs::screenText);
}

} // namespace

void addDocumentOperations(OperationList& list)
{
    const Of plain(list, "ZelDataCore", filledDocument<ZelDataCore>);
    addFormatterBaseOperations(plain.storingNothing(), plain);
    addCopying(plain.stepwise(), plain.stepwise().on(newDocument<ZelDataCore>));
    addCreators(plain);

    const Of xmp(list, "ZelDataCoreXmp", filledDocument<ZelDataCoreXmp>);
    addFormatterBaseOperations(xmp, xmp);
    addCopying(xmp.stepwise(), xmp.stepwise().on(newDocument<ZelDataCoreXmp>));
    addCreators(xmp);
}

} // namespace ZelInterchangeData
