/// @file
/// The operations that several classes of items have.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_ITEMOPERATIONS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_ITEMOPERATIONS_H

#include "robustness/Operation.h"
#include "robustness/Subjects.h"

namespace ZelInterchangeData {

/// The texts by language of captions and of entries.
template <class Item>
void addTextOperations(const OperationsOf<Item>& of)
{
    of.add("clearText", &Item::clearText);
    of.add("setTextForLanguage", &Item::setTextForLanguage, otherText, otherID);
    of.add("setTextForLanguage|for a language that has one", &Item::setTextForLanguage, otherText,
           firstID);
    of.add("removeTextForLanguage", &Item::removeTextForLanguage, firstID);
    of.add("getLanguageIDs", &Item::getLanguageIDs, &Outs::list);
    of.add("getTextForLanguage", &Item::getTextForLanguage, &Outs::text, firstID);
}

/// The image of an entry or of a screen text.
template <class Item>
void addImageOperations(const OperationsOf<Item>& of)
{
    of.add("setImageFile", &Item::setImageFile, longText);
    of.add("setImageIndex", &Item::setImageIndex, 78);
    of.add("setImageOffset", &Item::setImageOffset, 79);
    of.add("getImageFile", &Item::getImageFile, &Outs::text);
    of.add("getImageIndex", &Item::getImageIndex, &Outs::number);
    of.add("getImageOffset", &Item::getImageOffset, &Outs::offset);
}

} // namespace ZelInterchangeData

#endif
