/// @file
/// The lists of operations, one for each interface.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_OPERATIONS_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_OPERATIONS_H

#include "core/Calls.h"

#include <vector>

namespace fuzz {

void addLanguageOperations(std::vector<Operation>& operations);
void addHeaderOperations(std::vector<Operation>& operations);
void addCaptionItemOperations(std::vector<Operation>& operations);
void addCaptionOperations(std::vector<Operation>& operations);
void addTocItemOperations(std::vector<Operation>& operations);
void addTocOperations(std::vector<Operation>& operations);
void addScreenTextItemOperations(std::vector<Operation>& operations);
void addScreenTextOperations(std::vector<Operation>& operations);
/// Formatters and documents, the file writer included.
void addWriterOperations(std::vector<Operation>& operations);
/// Factories, the creator, and the functions on texts and values.
void addFunctionOperations(std::vector<Operation>& operations);

} // namespace fuzz

#endif
