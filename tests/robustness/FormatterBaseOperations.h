/// @file
/// The operations of every formatter and of the document.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_FORMATTERBASEOPERATIONS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_FORMATTERBASEOPERATIONS_H

#include "robustness/Operation.h"
#include "robustness/Subjects.h"

namespace ZelInterchangeData {

/// @p storesNothing says whether the writing operations keep their final code to themselves.
template <class Object>
void addFormatterBaseOperations(OperationsOf<Object>& of, bool storesNothing = false)
{
    static constexpr auto xmp = ZelDataFormat_Xmp;
    of.add("writeString", [](Object& f, Outs& o) {
          return f.writeString(o.text, xmp, false);
      }).storesNothing = storesNothing;
    of.add("writeString|behind what is there", [](Object& f, Outs& o) {
          return f.writeString(o.text, xmp, true);
      }).storesNothing = storesNothing;
    of.add("writeFile", [](Object& f, Outs& o) {
          return f.writeFile(o.file.path(), xmp, false);
      }).storesNothing = storesNothing;
    of.add("readString", [](Object& f, Outs&) { return f.readString(longText, xmp, false); });
    of.add("readFile", [](Object& f, Outs& o) { return f.readFile(o.file.path(), xmp); });
}

} // namespace ZelInterchangeData

#endif
