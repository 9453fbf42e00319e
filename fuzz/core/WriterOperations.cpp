/// @file
/// The operations of formatters and documents.

#include "core/Operations.h"
#include "core/OutputPath.h"

namespace fuzz {

using namespace ZelInterchangeData;

namespace {

/// Setting or getting a whole set, which is cleared first: the rest may be missing.
Traits inSteps()
{
    Traits traits;
    traits.mayBePartial = true;
    return traits;
}

/// A document that holds captions returns their last error when it refuses a header.
Traits hidden()
{
    Traits traits = inSteps();
    traits.mayHideIt = true;
    return traits;
}

/// Neither writer of a document stores its final code.
Traits notStored()
{
    Traits traits;
    traits.mayKeepLastError = true;
    return traits;
}

/// One call of a file writer, as an operation on the formatter.
Code writeTo(i_ZelDataFormatterBase& formatter, const OutputPath& path,
             ZelDataFormatType_tags format)
{
    return formatter.writeFile(path.text(), format, false);
}

void writeFile(Session& session)
{
    const FailurePlan plan = session.nextPlan();
    const std::size_t number = session.input().byte();
    const auto format = readValue<ZelDataFormatType_tags>(session.input());
    const std::size_t kind = session.input().byte();
    auto& tested = session.tested().object<i_ZelDataFormatterBase>(number);
    auto& twin = session.twin().object<i_ZelDataFormatterBase>(number);
    const OutputPath path(kind);
    const Code before = tested.getLastError();
    const Outcome outcome = perform(plan, [&] { return writeTo(tested, path, format); });
    Code code = outcome.code;
    if (outcome.ranShort) {
        require(outcome.code == ZelData_OutOfMemory, "a failed allocation of a writer is ignored");
        require(path.isUntouched(), "a file is touched by a writer without memory");
        // A document does not store its final code, so the code of the failure would stay.
        tested.setLastError(before);
        code = writeTo(tested, path, format);
    }
    const std::string written = withoutDates(path.contents());
    const OutputPath twinPath(kind);
    const Code twinCode = writeTo(twin, twinPath, format);
    require(code == twinCode, "a writer returns another code");
    requireEqual(withoutDates(twinPath.contents()), written, "another file is written");
    require(tested.getLastError() == twin.getLastError(), "a writer leaves another last error");
}

} // namespace

void addWriterOperations(std::vector<Operation>& operations)
{
    using Base = i_ZelDataFormatterBase;
    using Document = i_ZelInterchangeDataCore;
    operations.insert(operations.end(),
                      {member(&Base::writeString, notStored()),
                       member(&Base::readString),
                       member(&Base::readFile),
                       member(&i_ZelDataHeaderFormatter::setHeader, inSteps()),
                       member(&i_ZelDataHeaderFormatter::getHeader),
                       member(&i_ZelDataCaptionFormatter::setCaptions, inSteps()),
                       member(&i_ZelDataCaptionFormatter::getCaptions),
                       member(&i_ZelDataTocFormatter::setToc, inSteps()),
                       member(&i_ZelDataTocFormatter::getToc),
                       member(&i_ZelDataScreenTextFormatter::setScreenText, inSteps()),
                       member(&i_ZelDataScreenTextFormatter::getScreenText),
                       writeFile,
                       writeFile,
                       member(&Document::writeString, notStored()),
                       member(&Document::writeString, notStored()),
                       member(&Document::getDataHeader),
                       member(&Document::setDataHeader, hidden()),
                       member(&Document::setDataHeader, hidden()),
                       member(&Document::getDataCaptions),
                       member(&Document::setDataCaptions, inSteps()),
                       member(&Document::getDataToc),
                       member(&Document::setDataToc, inSteps()),
                       member(&Document::getDataScreenText),
                       member(&Document::setDataScreenText, inSteps()),
                       member(&Document::createDataHeader),
                       member(&Document::createDataCaptions),
                       member(&Document::createDataToc),
                       member(&Document::createDataScreenText)});
}

} // namespace fuzz
