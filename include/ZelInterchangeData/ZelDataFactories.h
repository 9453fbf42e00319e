/// @file
/// Factories that return the new object.

#ifndef ZELINTERCHANGEDATA_ZELDATAFACTORIES_H
#define ZELINTERCHANGEDATA_ZELDATAFACTORIES_H

#include "ZelInterchangeData/ZELDataCreator.h"
#include "ZelInterchangeData/ZelDataCall.h"
#include "ZelInterchangeData/ZelDataCheckedCaptionItem.h"
#include "ZelInterchangeData/ZelDataCheckedScreenTextItem.h"
#include "ZelInterchangeData/ZelDataCheckedTocItem.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocFormatter.h"
#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// Returns the object that the factory @p create makes from @p arguments, never null. If the
/// factory fails, throws a ZelDataError that names @p operation.
template <class Interface, class... Parameters>
std::unique_ptr<Interface> makeObject(const char* operation,
                                      ZelDataResult_tags (*create)(Interface**, Parameters...),
                                      Parameters... arguments)
{
    Interface* made = nullptr;
    if (const auto code = create(&made, arguments...); failed(code))
        throwZelDataError({operation, code, {ZelDataArgument(arguments)...}}, [] { return ""; });
    return std::unique_ptr<Interface>(made);
}

/// @name Documents and data sets
/// Each returns a new object with default values, never null. If that fails, createDocument()
/// throws ZelDataException, the others ZelDataError.
/// @{

/// A document without data sets. See ZELDataCreator::createInterchangeData().
inline std::unique_ptr<i_ZelInterchangeDataCore> createDocument()
{
    return std::unique_ptr<i_ZelInterchangeDataCore>(ZELDataCreator::createInterchangeData());
}
/// See ZelDataUtilities::createHeaderData().
inline std::unique_ptr<i_ZelDataHeader> createHeader()
{
    return makeObject("createHeader", ZelDataUtilities::createHeaderData);
}
/// See ZelDataUtilities::createCaptionData().
inline std::unique_ptr<i_ZelDataCaptions> createCaptions()
{
    return makeObject("createCaptions", ZelDataUtilities::createCaptionData);
}
/// See ZelDataUtilities::createTocData().
inline std::unique_ptr<i_ZelDataToc> createToc()
{
    return makeObject("createToc", ZelDataUtilities::createTocData);
}
/// See ZelDataUtilities::createScreenTextData().
inline std::unique_ptr<i_ZelDataScreenText> createScreenText()
{
    return makeObject("createScreenText", ZelDataUtilities::createScreenTextData);
}
/// @}

/// @name Items
/// Each returns a new item with default values or with the given ones, never null. If the factory
/// or an operation that stores a value fails, throws ZelDataError. A caption item may also throw
/// `std::bad_alloc`.
/// @{

/// See ZelDataUtilities::createCaptionItemData().
inline std::unique_ptr<i_ZelDataCaptionItem> createCaptionItem()
{
    return makeObject("createCaptionItem", ZelDataUtilities::createCaptionItemData);
}
/// See ZelDataUtilities::createTocItemData().
inline std::unique_ptr<i_ZelDataTocItem> createTocItem()
{
    return makeObject("createTocItem", ZelDataUtilities::createTocItemData);
}
/// See ZelDataUtilities::createScreenTextItemData().
inline std::unique_ptr<i_ZelDataScreenTextItem> createScreenTextItem()
{
    return makeObject("createScreenTextItem", ZelDataUtilities::createScreenTextItemData);
}

/// The texts of an item, each with its language ID first: `{{"en", "Hello"}, {"de", "Hallo"}}`. An
/// ID is written as given: if it comes from a user, pass `escaped(id)`.
using ZelDataTexts = std::initializer_list<std::pair<std::string, std::string>>;

/// Sets @p texts, pairs of a language ID and its text, in the @p item of a view.
template <class View, class Texts>
void zelDataSetTexts(const View& item, const Texts& texts)
{
    if constexpr (std::is_convertible_v<const Texts&, std::string_view>) {
        static_assert(!std::is_same_v<Texts, Texts>,
                      "A text needs its language: write {{\"en\", \"Intro\"}}.");
    } else {
        for (const auto& [languageID, text] : texts)
            item.setTextForLanguage(text, languageID);
    }
}

/// A caption from @p start to @p end, in milliseconds. @p texts holds pairs of a language ID and
/// its text: written in braces, or in any container of such pairs, such as a `std::map`.
template <class Texts = ZelDataTexts>
std::unique_ptr<i_ZelDataCaptionItem> createCaptionItem(long long start, long long end,
                                                        const Texts& texts)
{
    auto item = createCaptionItem();
    zelDataSetTexts(checked(item).setStart(start).setEnd(end), texts);
    return item;
}

/// An entry that starts at @p start ticks. @p texts has the same form as for a caption.
template <class Texts = ZelDataTexts>
std::unique_ptr<i_ZelDataTocItem> createTocItem(long long start, const Texts& texts)
{
    auto item = createTocItem();
    zelDataSetTexts(checked(item).setStart(start), texts);
    return item;
}

/// A screen text from @p start to @p end, in ticks; the two may be equal. It belongs to the entry of
/// the table of contents with the number @p groupId. Entries count from 0 in the order of their
/// starts: by default, it belongs to the first.
inline std::unique_ptr<i_ZelDataScreenTextItem> createScreenTextItem(long long start, long long end,
                                                                     const std::string& text,
                                                                     unsigned long groupId = 0)
{
    auto item = createScreenTextItem();
    const auto view = checked(item).setStart(start);
    if (end != start) view.setEnd(end); // the duration of a new item is 0
    view.setText(text).setGroupId(groupId);
    return item;
}
/// @}

/// @name Formatters
/// Each returns a new formatter without data, never null. If the factory fails, for example because
/// the library does not write the format, throws ZelDataError.
/// @{

/// See ZelDataUtilities::createHeaderFormatter().
inline std::unique_ptr<i_ZelDataHeaderFormatter>
createHeaderFormatter(ZelDataFormatType_tags format = ZelDataFormat_Xmp)
{
    return makeObject("createHeaderFormatter", ZelDataUtilities::createHeaderFormatter, format);
}
/// See ZelDataUtilities::createCaptionFormatter().
inline std::unique_ptr<i_ZelDataCaptionFormatter>
createCaptionFormatter(ZelDataFormatType_tags format = ZelDataFormat_Xmp)
{
    return makeObject("createCaptionFormatter", ZelDataUtilities::createCaptionFormatter, format);
}
/// See ZelDataUtilities::createTocFormatter().
inline std::unique_ptr<i_ZelDataTocFormatter>
createTocFormatter(ZelDataFormatType_tags format = ZelDataFormat_Xmp)
{
    return makeObject("createTocFormatter", ZelDataUtilities::createTocFormatter, format);
}
/// See ZelDataUtilities::createScreenTextFormatter().
inline std::unique_ptr<i_ZelDataScreenTextFormatter>
createScreenTextFormatter(ZelDataFormatType_tags format = ZelDataFormat_Xmp)
{
    return makeObject("createScreenTextFormatter", ZelDataUtilities::createScreenTextFormatter,
                      format);
}
/// @}

} // namespace ZelInterchangeData

#endif
