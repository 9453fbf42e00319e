#include "Operations.h"

#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "ZelInterchangeData/i_ZelDataLanguage.h"

namespace model {

using namespace ZelInterchangeData;

void addLanguageOperations(Operations& operations)
{
    using I = i_ZelDataLanguage;
    operations.insert({
        {"L.clearLanguages", member(&I::clearLanguages)},
        {"L.addLanguage", member(&I::addLanguage)},
        {"L.removeLanguage", member(&I::removeLanguage)},
        {"L.setOrderedLanguageIDs", member(&I::setOrderedLanguageIDs)},
        {"L.getOrderedLanguageIDs", member(&I::getOrderedLanguageIDs)},
        {"L.getLanguageCount", member(&I::getLanguageCount)},
        {"L.getLanguageDisplayNames", member(&I::getLanguageDisplayNames)},
        {"L.getLanguageNativeDisplayNames", member(&I::getLanguageNativeDisplayNames)},
        {"L.doesLanguageExist", member(&I::doesLanguageExist)},
        {"L.copyFromLanguage", copying<I>()},
    });
}

void addHeaderOperations(Operations& operations)
{
    using I = i_ZelDataHeader;
    operations.insert({
        {"H.isValid", member(&I::isValid)},
        {"H.clearHeader", member(&I::clearHeader)},
        {"H.setAppName", member(&I::setAppName)},
        {"H.setAppVersion", member(&I::setAppVersion)},
        {"H.setTitle", member(&I::setTitle)},
        {"H.setCreator", member(&I::setCreator)},
        {"H.setDescription", member(&I::setDescription)},
        {"H.setKeywords", member(&I::setKeywords)},
        {"H.setIPodExplicit", member(&I::setIPodExplicit)},
        {"H.setVideoLength", member(&I::setVideoLength)},
        {"H.setVideoWidth", member(&I::setVideoWidth)},
        {"H.setVideoHeight", member(&I::setVideoHeight)},
        {"H.getAppName", member(&I::getAppName)},
        {"H.getAppVersion", member(&I::getAppVersion)},
        {"H.getTitle", member(&I::getTitle)},
        {"H.getCreator", member(&I::getCreator)},
        {"H.getDescription", member(&I::getDescription)},
        {"H.getKeywords", member(&I::getKeywords)},
        {"H.getIPodExplicit", member(&I::getIPodExplicit)},
        {"H.getVideoLength", member(&I::getVideoLength)},
        {"H.getVideoWidth", member(&I::getVideoWidth)},
        {"H.getVideoHeight", member(&I::getVideoHeight)},
        {"H.clearContentNames", member(&I::clearContentNames)},
        {"H.addContentName", member(&I::addContentName)},
        {"H.removeContentName", member(&I::removeContentName)},
        {"H.getContentNameCount", member(&I::getContentNameCount)},
        {"H.getContentNames", member(&I::getContentNames)},
        {"H.doesContentNameExist", member(&I::doesContentNameExist)},
        {"H.setShowSearchBar", member(&I::setShowSearchBar)},
        {"H.getShowSearchBar", member(&I::getShowSearchBar)},
        {"H.copyFrom", copying<I>()},
    });
}

} // namespace model
