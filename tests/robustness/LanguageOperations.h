/// @file
/// The operations of the language list, for every class that has one.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_LANGUAGEOPERATIONS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_LANGUAGEOPERATIONS_H

#include "robustness/Operation.h"
#include "robustness/Subjects.h"

namespace ZelInterchangeData {

/// A copy of @p source of a class that is not exactly ours.
template <class Own, class Interface>
std::unique_ptr<Interface> callersCopyOf(const Interface& source)
{
    class Callers : public Own {};
    auto copy = std::make_unique<Callers>();
    EXPECT_EQ(ZelData_Ok, copy->copyFrom(source));
    return copy;
}

template <class Object>
void addLanguageOperations(OperationsOf<Object>& of)
{
    of.add("clearLanguages", [](Object& o, Outs&) { return o.clearLanguages(); });
    of.add("addLanguage", [](Object& o, Outs&) { return o.addLanguage(otherID); });
    of.add("removeLanguage", [](Object& o, Outs&) { return o.removeLanguage(firstID); });
    of.add("setOrderedLanguageIDs",
           [](Object& o, Outs&) { return o.setOrderedLanguageIDs(reversedIDs); });
    of.add("getOrderedLanguageIDs",
           [](Object& o, Outs& outs) { return o.getOrderedLanguageIDs(outs.list); });
    of.add("getLanguageCount",
           [](Object& o, Outs& outs) { return o.getLanguageCount(outs.number); });
    of.add("getLanguageDisplayNames", [](Object& o, Outs& outs) {
          return o.getLanguageDisplayNames(outs.list);
      }).inSteps();
    of.add("getLanguageNativeDisplayNames", [](Object& o, Outs& outs) {
          return o.getLanguageNativeDisplayNames(outs.list);
      }).inSteps();
    of.add("doesLanguageExist",
           [](Object& o, Outs& outs) { return o.doesLanguageExist(outs.id, outs.flag); });
    of.add("copyFrom(const i_ZelDataLanguage&)", [](Object& o, Outs&) {
          thread_local const auto source = filledHeader();
          return o.copyFrom(static_cast<const i_ZelDataLanguage&>(*source));
      }).inSteps();
}

} // namespace ZelInterchangeData

#endif
