/// @file
/// The operations of every formatter and of the document.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_FORMATTERBASEOPERATIONS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_FORMATTERBASEOPERATIONS_H

#include "robustness/Operation.h"
#include "robustness/Subjects.h"

namespace ZelInterchangeData {

/// @p writers takes the operations that write, @p readers those that read.
template <class Object>
void addFormatterBaseOperations(const OperationsOf<Object>& writers,
                                const OperationsOf<Object>& readers)
{
    constexpr auto xmp = ZelDataFormat_Xmp;
    writers.add("writeString", &Object::writeString, &Outs::text, xmp, false);
    writers.add("writeString|after what is there", &Object::writeString, &Outs::text, xmp, true);
    writers.add("writeFile", &Object::writeFile, &Outs::file, xmp, false);
    readers.add("readString", &Object::readString, longText, xmp, false);
    readers.add("readFile", &Object::readFile, &Outs::file, xmp);
}

} // namespace ZelInterchangeData

#endif
