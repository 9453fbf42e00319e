#include "header/ZelDataHeader.h"
#include "robustness/LanguageOperations.h"

namespace ZelInterchangeData {

namespace {

using Header = i_ZelDataHeader;
using Of = OperationsOf<Header>;

void addSetters(const Of& of)
{
    of.add("setAppName", &Header::setAppName, otherText);
    of.add("setAppVersion", &Header::setAppVersion, otherText);
    of.add("setTitle", &Header::setTitle, otherText);
    of.add("setCreator", &Header::setCreator, otherText);
    of.add("setDescription", &Header::setDescription, otherText);
    of.add("setKeywords", &Header::setKeywords, otherList);
    of.add("setIPodExplicit", &Header::setIPodExplicit, false);
    of.add("setVideoLength", &Header::setVideoLength, 5);
    of.add("setVideoWidth", &Header::setVideoWidth, 6);
    of.add("setVideoHeight", &Header::setVideoHeight, 7);
    of.add("setShowSearchBar", &Header::setShowSearchBar, true);
}

void addGetters(const Of& of)
{
    of.add("getAppName", &Header::getAppName, &Outs::text);
    of.add("getAppVersion", &Header::getAppVersion, &Outs::text);
    of.add("getTitle", &Header::getTitle, &Outs::text);
    of.add("getCreator", &Header::getCreator, &Outs::text);
    of.add("getDescription", &Header::getDescription, &Outs::text);
    of.add("getKeywords", &Header::getKeywords, &Outs::list);
    of.add("getIPodExplicit", &Header::getIPodExplicit, &Outs::flag);
    of.add("getVideoLength", &Header::getVideoLength, &Outs::number);
    of.add("getVideoWidth", &Header::getVideoWidth, &Outs::number);
    of.add("getVideoHeight", &Header::getVideoHeight, &Outs::number);
    of.add("getShowSearchBar", &Header::getShowSearchBar, &Outs::flag);
}

void addContentNames(const Of& of)
{
    of.add("clearContentNames", &Header::clearContentNames);
    of.add("addContentName", &Header::addContentName, otherText);
    of.add("removeContentName", &Header::removeContentName, contentName);
    of.add("getContentNameCount", &Header::getContentNameCount, &Outs::number);
    of.add("getContentNames", &Header::getContentNames, &Outs::list);
    of.add("doesContentNameExist", &Header::doesContentNameExist, &Outs::text, &Outs::flag);
}

} // namespace

void addHeaderOperations(OperationList& list)
{
    const Of of(list, "ZelDataHeader", filledHeader);
    addLanguageOperations(of);
    of.add("isValid", &Header::isValid);
    of.add("clearHeader", &Header::clearHeader);
    addSetters(of);
    addGetters(of);
    addContentNames(of);
    addCopies<ZelDataHeader, filledHeader>(of, "copyFrom(const i_ZelDataHeader&)");
}

} // namespace ZelInterchangeData
