#include "robustness/Operation.h"

namespace ZelInterchangeData {

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
