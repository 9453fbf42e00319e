/// @file
/// The operations of the data objects.

#include "core/Operations.h"

namespace fuzz {

using namespace ZelInterchangeData;

namespace {

/// Several steps, some of which may be done when memory runs out.
Traits inSteps()
{
    Traits traits;
    traits.mayBePartial = true;
    return traits;
}

Traits fillingArguments()
{
    Traits traits;
    traits.mayFillArguments = true;
    return traits;
}

template <class Interface>
Operation copying()
{
    return member(static_cast<Code (Interface::*)(const Interface&)>(&Interface::copyFrom),
                  inSteps());
}

} // namespace

void addLanguageOperations(std::vector<Operation>& operations)
{
    using I = i_ZelDataLanguage;
    operations.insert(operations.end(),
                      {member(&I::clearLanguages), member(&I::addLanguage), member(&I::addLanguage),
                       member(&I::removeLanguage), member(&I::setOrderedLanguageIDs),
                       member(&I::getOrderedLanguageIDs), member(&I::getLanguageCount),
                       member(&I::getLanguageDisplayNames, fillingArguments()),
                       member(&I::getLanguageNativeDisplayNames, fillingArguments()),
                       member(&I::doesLanguageExist), copying<I>()});
}

void addHeaderOperations(std::vector<Operation>& operations)
{
    using I = i_ZelDataHeader;
    operations.insert(operations.end(), {member(&I::isValid),
                                         member(&I::clearHeader),
                                         member(&I::setAppName),
                                         member(&I::setAppVersion),
                                         member(&I::setTitle),
                                         member(&I::setCreator),
                                         member(&I::setDescription),
                                         member(&I::setKeywords),
                                         member(&I::setIPodExplicit),
                                         member(&I::setVideoLength),
                                         member(&I::setVideoWidth),
                                         member(&I::setVideoHeight),
                                         member(&I::getAppName),
                                         member(&I::getAppVersion),
                                         member(&I::getTitle),
                                         member(&I::getCreator),
                                         member(&I::getDescription),
                                         member(&I::getKeywords),
                                         member(&I::getIPodExplicit),
                                         member(&I::getVideoLength),
                                         member(&I::getVideoWidth),
                                         member(&I::getVideoHeight),
                                         member(&I::clearContentNames),
                                         member(&I::addContentName),
                                         member(&I::addContentName),
                                         member(&I::removeContentName),
                                         member(&I::getContentNameCount),
                                         member(&I::getContentNames),
                                         member(&I::doesContentNameExist),
                                         member(&I::setShowSearchBar),
                                         member(&I::getShowSearchBar),
                                         copying<I>()});
}

void addCaptionItemOperations(std::vector<Operation>& operations)
{
    using I = i_ZelDataCaptionItem;
    operations.insert(operations.end(),
                      {member(&I::isValid), member(&I::clearText), member(&I::setTextForLanguage),
                       member(&I::setTextForLanguage), member(&I::setStart), member(&I::setEnd),
                       member(&I::setDuration), member(&I::setAlignment),
                       member(&I::removeTextForLanguage), member(&I::getLanguageIDs),
                       member(&I::getTextForLanguage), member(&I::getStart), member(&I::getEnd),
                       member(&I::getDuration), member(&I::getAlignment), copying<I>()});
}

void addCaptionOperations(std::vector<Operation>& operations)
{
    using I = i_ZelDataCaptions;
    operations.insert(operations.end(), {member(&I::isValid),
                                         member(&I::makeCaptionsConsistent, inSteps()),
                                         member(&I::setFrameRate),
                                         member(&I::getFrameRate),
                                         member(&I::setFontFamily),
                                         member(&I::getFontFamily),
                                         member(&I::setFontSize),
                                         member(&I::getFontSize),
                                         member(&I::setForegroundColor),
                                         member(&I::getForegroundColor),
                                         member(&I::setBackgroundColor),
                                         member(&I::getBackgroundColor),
                                         member(&I::setBackgroundOpacity),
                                         member(&I::getBackgroundOpacity),
                                         member(&I::clearCaptionItems),
                                         member(&I::addCaptionItem, inSteps()),
                                         member(&I::addCaptionItem, inSteps()),
                                         member(&I::createCaptionItem),
                                         member(&I::removeCaptionItemAt),
                                         member(&I::removeCaptionItemsForLanguage, inSteps()),
                                         member(&I::getCaptionItemCount),
                                         member(&I::getCaptionItemAt),
                                         member(&I::getCaptionItems),
                                         member(&I::getCaptionItemsForLanguage),
                                         copying<I>()});
}

void addTocItemOperations(std::vector<Operation>& operations)
{
    using I = i_ZelDataTocItem;
    operations.insert(operations.end(),
                      {member(&I::isValid), member(&I::clearText), member(&I::setTextForLanguage),
                       member(&I::setTextForLanguage), member(&I::setStart),
                       member(&I::setImageFile), member(&I::setImageIndex),
                       member(&I::setImageOffset), member(&I::removeTextForLanguage),
                       member(&I::getLanguageIDs), member(&I::getTextForLanguage),
                       member(&I::getStart), member(&I::getImageFile), member(&I::getImageIndex),
                       member(&I::getImageOffset), copying<I>()});
}

void addTocOperations(std::vector<Operation>& operations)
{
    using I = i_ZelDataToc;
    operations.insert(operations.end(),
                      {member(&I::isValid), member(&I::makeTocConsistent, inSteps()),
                       member(&I::setFrameRate), member(&I::getFrameRate), member(&I::setImageFile),
                       member(&I::getImageFile), member(&I::clearTocItems),
                       member(&I::addTocItem, inSteps()), member(&I::addTocItem, inSteps()),
                       member(&I::createTocItem), member(&I::removeTocItemAt),
                       member(&I::removeTocItemsForLanguage, inSteps()),
                       member(&I::getTocItemCount), member(&I::getTocItemAt),
                       member(&I::getTocItems), member(&I::getTocItemsForLanguage), copying<I>()});
}

void addScreenTextItemOperations(std::vector<Operation>& operations)
{
    using I = i_ZelDataScreenTextItem;
    operations.insert(operations.end(), {member(&I::isValid),       member(&I::clearText),
                                         member(&I::setText),       member(&I::setText),
                                         member(&I::setStart),      member(&I::setEnd),
                                         member(&I::setDuration),   member(&I::setImageFile),
                                         member(&I::setImageIndex), member(&I::setImageOffset),
                                         member(&I::setGroupId),    member(&I::getText),
                                         member(&I::getStart),      member(&I::getEnd),
                                         member(&I::getDuration),   member(&I::getImageFile),
                                         member(&I::getImageIndex), member(&I::getImageOffset),
                                         member(&I::getGroupId),    copying<I>()});
}

void addScreenTextOperations(std::vector<Operation>& operations)
{
    using I = i_ZelDataScreenText;
    operations.insert(operations.end(),
                      {member(&I::isValid), member(&I::makeScreenTextConsistent, inSteps()),
                       member(&I::setFrameRate), member(&I::getFrameRate),
                       member(&I::clearScreenTextItems), member(&I::addScreenTextItem, inSteps()),
                       member(&I::addScreenTextItem, inSteps()), member(&I::createScreenTextItem),
                       member(&I::removeScreenTextItemAt), member(&I::getScreenTextItemCount),
                       member(&I::getScreenTextItemAt), member(&I::getScreenTextItems),
                       copying<I>()});
}

} // namespace fuzz
