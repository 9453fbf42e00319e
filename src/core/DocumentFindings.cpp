#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"
#include "captions/CaptionFindings.h"
#include "captions/ZelDataCaptions.h"
#include "header/HeaderFindings.h"
#include "header/ZelDataHeader.h"
#include "screentext/ScreenTextFindings.h"
#include "screentext/ZelDataScreenText.h"
#include "toc/TocFindings.h"
#include "toc/ZelDataToc.h"

namespace ZelInterchangeData {

namespace {

using Document = i_ZelInterchangeDataCore;

/// A header that accepts a size of 0. Deliberate: without it, a document could not return a header
/// that lacks a size.
class HeaderCopy : public ZelDataHeader {
public:
    ZelDataResult_tags setVideoLength(unsigned long milliseconds) override
    {
        return accept(ZelDataHeader::setVideoLength(milliseconds));
    }
    ZelDataResult_tags setVideoWidth(unsigned long pixels) override
    {
        return accept(ZelDataHeader::setVideoWidth(pixels));
    }
    ZelDataResult_tags setVideoHeight(unsigned long pixels) override
    {
        return accept(ZelDataHeader::setVideoHeight(pixels));
    }

private:
    /// The setters refuse nothing else.
    ZelDataResult_tags accept(ZelDataResult_tags /*code*/) const { return store(ZelData_Ok); }
};

/// Copies a set of @p document to @p target through @p get and checks it with @p check, which may
/// end the search. Calls @p checkAbsence instead if the document has no such set.
template <class Data, class Target, class Check, class CheckAbsence>
Ending checkSet(const Document& document, ZelDataResult_tags (Document::*get)(Data&) const,
                Target& target, Check&& check, CheckAbsence&& checkAbsence)
{
    const auto code = (document.*get)(target);
    if (code == ZelData_NoData) {
        checkAbsence();
        return {};
    }
    const Ending ending = endingOf(code);
    return ending ? ending : check(target);
}

Ending checkDocument(const Document& document, FindingList& found)
{
    const auto noCheck = [] {};
    HeaderCopy header;
    ZelDataCaptions captions;
    ZelDataToc toc;
    ZelDataScreenText screenText;
    const auto check = [&](const auto& set) { return findPacketProblems(set, found); };
    Ending ending = checkSet(document, &Document::getDataHeader, header, check,
                             [&] { found.add(ZelDataFinding_HeaderMissing); });
    if (!ending) ending = checkSet(document, &Document::getDataCaptions, captions, check, noCheck);
    if (!ending) ending = checkSet(document, &Document::getDataToc, toc, check, noCheck);
    if (ending) return ending;
    const auto checkText = [&](const ZelDataScreenText& set) {
        return findPacketProblems(set, toc.items().count(), found);
    };
    return checkSet(document, &Document::getDataScreenText, screenText, checkText, noCheck);
}

} // namespace

ZelDataResult_tags findProblems(const i_ZelInterchangeDataCore& document,
                                std::vector<ZelDataFinding>& findings)
{
    return collectFindings(ZelDataFindingSubject_Document, findings,
                           [&](FindingList& found) { return checkDocument(document, found); });
}

} // namespace ZelInterchangeData
