/// @file
/// The operations of the language list, for every class that has one.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_LANGUAGEOPERATIONS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_LANGUAGEOPERATIONS_H

#include "robustness/Operation.h"
#include "robustness/Subjects.h"

namespace ZelInterchangeData {

template <class Object>
void addLanguageOperations(const OperationsOf<Object>& of)
{
    using O = Object;
    of.add("clearLanguages", &O::clearLanguages);
    of.add("addLanguage", &O::addLanguage, otherID);
    of.add("removeLanguage", &O::removeLanguage, firstID);
    of.add("setOrderedLanguageIDs", &O::setOrderedLanguageIDs, reversedIDs);
    of.add("getOrderedLanguageIDs", &O::getOrderedLanguageIDs, &Outs::list);
    of.add("getLanguageCount", &O::getLanguageCount, &Outs::number);
    of.add("doesLanguageExist", &O::doesLanguageExist, &Outs::id, &Outs::flag);
    const auto steps = of.stepwise();
    steps.add("getLanguageDisplayNames", &O::getLanguageDisplayNames, &Outs::list);
    steps.add("getLanguageNativeDisplayNames", &O::getLanguageNativeDisplayNames, &Outs::list);
    ZelDataResult_tags (O::*const copyFrom)(const i_ZelDataLanguage&) = &O::copyFrom;
    steps.add("copyFrom(const i_ZelDataLanguage&)", copyFrom, given<filledHeader>);
}

} // namespace ZelInterchangeData

#endif
