#include "robustness/Operation.h"

namespace ZelInterchangeData {

void forgetLastError(const Subject& subject)
{
    if (subject.object) subject.object->setLastError(untouched);
}

ZelDataResult_tags lastErrorOf(const Subject& subject)
{
    return subject.object ? subject.object->getLastError() : untouched;
}

std::string outcome(ZelDataResult_tags code, const Subject& subject, const Outs& outs)
{
    const auto lastError = lastErrorOf(subject); // the getters of the contents store others
    return std::to_string(code) + ' ' + std::to_string(lastError) + '\n' + subject.contents() +
           '\n' + outs.described();
}

void callPlainly(const std::function<void()>& call)
{
    call();
}

std::string outcomeOf(const Operation& operation, const Around& around)
{
    const Subject subject = operation.make();
    Outs outs;
    forgetLastError(subject);
    ZelDataResult_tags code = untouched;
    around([&] { code = subject.call(outs); });
    return outcome(code, subject, outs);
}

const OperationList& allOperations()
{
    static const OperationList operations = [] {
        OperationList list;
        for (const auto add :
             {addHeaderOperations, addCaptionOperations, addTocOperations, addScreenTextOperations,
              addFormatterOperations, addDocumentOperations, addUtilityOperations}) {
            add(list);
        }
        return list;
    }();
    return operations;
}

} // namespace ZelInterchangeData
