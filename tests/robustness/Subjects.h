/// @file
/// Objects with a value in every field. Their texts are too long for a string to hold without an
/// allocation.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_SUBJECTS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_SUBJECTS_H

#include "ZelInterchangeData/ZelInterchangeData.h"
#include "core/ZelDataCore.h"
#include "core/ZelDataCoreXmp.h"
#include "support/Checks.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// Expects all @p codes to be success.
void expectOk(std::initializer_list<ZelDataResult_tags> codes);

extern const std::string longText;
extern const std::string otherText;
/// Two languages of the objects below, in ascending order, and one that they do not have.
extern const std::string firstID;
extern const std::string secondID;
extern const std::string otherID;
/// One of the header's content names.
extern const std::string contentName;
extern const std::vector<std::string> otherList;
/// The languages of the objects, in reverse order.
extern const std::vector<std::string> reversedIDs;

std::unique_ptr<i_ZelDataHeader> filledHeader();
std::unique_ptr<i_ZelDataCaptionItem> filledCaption();
/// A caption in two languages that filledCaptions() does not list.
std::unique_ptr<i_ZelDataCaptionItem> captionWithOtherLanguages();
/// Two captions, the later one first. Each lacks the other's language.
std::unique_ptr<i_ZelDataCaptions> filledCaptions();
/// Three captions in the same two languages.
std::unique_ptr<i_ZelDataCaptions> captionsInBothLanguages();
/// Two captions in the same two languages, with texts of many kilobytes.
std::unique_ptr<i_ZelDataCaptions> captionsWithLongTexts();
std::unique_ptr<i_ZelDataTocItem> filledEntry();
/// An entry in two languages that filledToc() does not list.
std::unique_ptr<i_ZelDataTocItem> entryWithOtherLanguages();
/// Two entries, the later one first. Each lacks the other's language.
std::unique_ptr<i_ZelDataToc> filledToc();
/// Three entries in the same two languages.
std::unique_ptr<i_ZelDataToc> tocInBothLanguages();
std::unique_ptr<i_ZelDataScreenTextItem> filledScreenTextItem();
/// Two texts, the later one first.
std::unique_ptr<i_ZelDataScreenText> filledScreenText();

constexpr auto filledHeaderFormatter =
    filledFormatter<&ZelDataUtilities::createHeaderFormatter, &i_ZelDataHeaderFormatter::setHeader,
                    filledHeader>;
constexpr auto filledCaptionFormatter =
    filledFormatter<&ZelDataUtilities::createCaptionFormatter,
                    &i_ZelDataCaptionFormatter::setCaptions, filledCaptions>;
constexpr auto filledTocFormatter = filledFormatter<&ZelDataUtilities::createTocFormatter,
                                                    &i_ZelDataTocFormatter::setToc, filledToc>;
constexpr auto filledScreenTextFormatter =
    filledFormatter<&ZelDataUtilities::createScreenTextFormatter,
                    &i_ZelDataScreenTextFormatter::setScreenText, filledScreenText>;

/// A document of the class @p Document with all four sets.
template <class Document>
std::unique_ptr<i_ZelInterchangeDataCore> filledDocument()
{
    auto document = std::make_unique<Document>();
    expectOk({document->setDataHeader(*filledHeader()),
              document->setDataCaptions(*filledCaptions()), document->setDataToc(*filledToc()),
              document->setDataScreenText(*filledScreenText())});
    return document;
}

/// A document of the class @p Document without any set.
template <class Document>
std::unique_ptr<i_ZelInterchangeDataCore> newDocument()
{
    return std::make_unique<Document>();
}

} // namespace ZelInterchangeData

#endif
