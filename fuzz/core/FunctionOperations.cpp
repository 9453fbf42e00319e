/// @file
/// Factories, the creator, and the functions on texts and values.

#include "core/Operations.h"

#include <memory>

namespace fuzz {

using namespace ZelInterchangeData;

namespace {

using Utilities = ZelDataUtilities;

/// Functions that return a text throw.
Traits throwing()
{
    Traits traits;
    traits.throwsIt = true;
    return traits;
}

/// Turns a function that returns a text into one that stores it in its first argument.
template <class Value>
Operation textFunction(std::string (*body)(Value))
{
    return function(std::function<Code(std::string&, Value)>([body](std::string& out, Value value) {
                        out = body(value);
                        return ZelData_Ok;
                    }),
                    throwing());
}

/// The line count returns no code; its result is an output.
Code countLines(unsigned long& count, const std::string& text)
{
    count = Utilities::countLinesInUTF8(text);
    return ZelData_Ok;
}

Code writeDate(std::string& out, long long seconds)
{
    long value = static_cast<long>(seconds);
    out = Utilities::getDateString(&value);
    return ZelData_Ok;
}

Code createDocument()
{
    const std::unique_ptr<i_ZelInterchangeDataCore> document(
        ZELDataCreator::createInterchangeData());
    return document ? ZelData_Ok : ZelData_InternalError;
}

/// All that the library tells about a finding.
Code tellFinding(std::string& out, const ZelDataFinding& finding)
{
    const std::string line = describe(finding);
    out = line + ' ' + toString(finding.kind) + ' ' + std::to_string(severityOf(finding));
    return codeOf(finding);
}

void addFindings(std::vector<Operation>& operations)
{
    using Findings = std::vector<ZelDataFinding>;
    operations.insert(operations.end(),
                      {function(&tellFinding, throwing()),
                       function<const i_ZelDataHeader&, Findings&>(&findProblems),
                       function<const i_ZelDataCaptions&, Findings&>(&findProblems),
                       function<const i_ZelDataToc&, Findings&>(&findProblems),
                       function<const i_ZelDataScreenText&, Findings&>(&findProblems),
                       function<const i_ZelInterchangeDataCore&, Findings&>(&findProblems)});
}

void addFactories(std::vector<Operation>& operations)
{
    operations.insert(
        operations.end(),
        {function(&Utilities::createHeaderData), function(&Utilities::createCaptionItemData),
         function(&Utilities::createCaptionData), function(&Utilities::createTocItemData),
         function(&Utilities::createTocData), function(&Utilities::createScreenTextItemData),
         function(&Utilities::createScreenTextData), function(&Utilities::createHeaderFormatter),
         function(&Utilities::createCaptionFormatter), function(&Utilities::createTocFormatter),
         function(&Utilities::createScreenTextFormatter), function(&createDocument, throwing())});
}

} // namespace

void addFunctionOperations(std::vector<Operation>& operations)
{
    addFactories(operations);
    addFindings(operations);
    operations.insert(
        operations.end(),
        {function(&Utilities::englishNameForLanguage), function(&Utilities::nativeNameForLanguage),
         function(&Utilities::isValidLanguage), function(&Utilities::verifyUtf8Format),
         function(&countLines), textFunction(&Utilities::stripUnsupportedCharacters),
         textFunction(&Utilities::htmlTagsToText), textFunction(&Utilities::htmlTagsFromText),
         textFunction(&Utilities::getVerticalAlignment),
         textFunction(&Utilities::getHorizontalAlignment),
         textFunction<float>(&Utilities::getValueString),
         textFunction<unsigned long long>(&Utilities::getValueString),
         textFunction<unsigned long>(&Utilities::getValueString),
         textFunction(&Utilities::getRateString), textFunction(&Utilities::getVersionString),
         textFunction<long>(&getValueString), function(&writeDate, throwing())});
}

} // namespace fuzz
