/// @file
/// Factories of all objects, the language catalogue, and the text and value helpers.

#ifndef ZELINTERCHANGEDATA_ZELDATAUTILITIES_H
#define ZELINTERCHANGEDATA_ZELDATAUTILITIES_H

#include "ZelInterchangeData/ZelAlignment_tags.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFormatType_tags.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"

#include <string>

namespace ZelInterchangeData {

class i_ZelDataCaptionFormatter;
class i_ZelDataCaptionItem;
class i_ZelDataCaptions;
class i_ZelDataHeader;
class i_ZelDataHeaderFormatter;
class i_ZelDataScreenText;
class i_ZelDataScreenTextFormatter;
class i_ZelDataScreenTextItem;
class i_ZelDataToc;
class i_ZelDataTocFormatter;
class i_ZelDataTocItem;

/// Static functions only. They return codes or values and store no last error. You can call them
/// from any thread.
class ZELINTERCHANGEDATA_API ZelDataUtilities {
public:
    ZelDataUtilities() = delete;

    /// @name Data factories
    /// Each stores a new object with default values in `*out`; the caller owns it.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not; `*out` is unchanged.
    /// - #ZelData_OutOfMemory: `*out` stays null.
    /// @{

    /// A header; it is not valid until length, width and height are set.
    static ZelDataResult_tags createHeaderData(i_ZelDataHeader** out);
    /// A caption; it is not valid until it has a duration.
    static ZelDataResult_tags createCaptionItemData(i_ZelDataCaptionItem** out);
    /// Captions without items, in the standard styling.
    static ZelDataResult_tags createCaptionData(i_ZelDataCaptions** out);
    /// An entry of a table of contents.
    static ZelDataResult_tags createTocItemData(i_ZelDataTocItem** out);
    /// A table of contents without entries.
    static ZelDataResult_tags createTocData(i_ZelDataToc** out);
    /// An item of screen text.
    static ZelDataResult_tags createScreenTextItemData(i_ZelDataScreenTextItem** out);
    /// Screen text without items.
    static ZelDataResult_tags createScreenTextData(i_ZelDataScreenText** out);
    /// @}

    /// @name Formatter factories
    /// Each stores a new formatter without data in `*out`; the caller owns it. Checked in this
    /// order:
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not; `*out` is unchanged.
    /// - #ZelData_UnsupportedFormat: @p format is not #ZelDataFormat_Xmp; `*out` stays null.
    /// - #ZelData_OutOfMemory: `*out` stays null.
    /// @{

    /// Writes the frame of a packet.
    static ZelDataResult_tags createHeaderFormatter(i_ZelDataHeaderFormatter** out,
                                                    ZelDataFormatType_tags format);
    /// Writes the track of the captions.
    static ZelDataResult_tags createCaptionFormatter(i_ZelDataCaptionFormatter** out,
                                                     ZelDataFormatType_tags format);
    /// Writes the track of a table of contents.
    static ZelDataResult_tags createTocFormatter(i_ZelDataTocFormatter** out,
                                                 ZelDataFormatType_tags format);
    /// Writes the track of the screen text.
    static ZelDataResult_tags createScreenTextFormatter(i_ZelDataScreenTextFormatter** out,
                                                        ZelDataFormatType_tags format);
    /// @}

    /// @name Language catalogue
    /// The 184 languages of ISO 639-1. An ID is a two-letter code in any letter case, optionally
    /// followed by "-" and anything, which is not examined.
    /// @{

    /// Replaces @p name with the English name of the language of @p id.
    /// - #ZelData_UnknownLanguage: not in the catalogue; @p name is unchanged.
    /// - #ZelData_OutOfMemory: @p name is unchanged.
    static ZelDataResult_tags englishNameForLanguage(const std::string& id, std::string& name);
    /// Replaces @p name with the language's own name in UTF-8, which may be empty ("lu").
    /// - #ZelData_UnknownLanguage: not in the catalogue; @p name is unchanged.
    /// - #ZelData_OutOfMemory: @p name is unchanged.
    static ZelDataResult_tags nativeNameForLanguage(const std::string& id, std::string& name);
    /// #ZelData_Ok if the language of @p id is in the catalogue, otherwise
    /// #ZelData_UnknownLanguage.
    static ZelDataResult_tags isValidLanguage(const std::string& id);
    /// @}

    /// @name Text
    /// The functions that return a string may throw `std::bad_alloc`.
    /// @{

    /// Checks the form of the UTF-8 sequences of @p text. An empty text passes.
    /// - #ZelData_InvalidUtf8: a stray or missing continuation byte, or one of the lead bytes 0xC0,
    ///   0xC1, 0xFE and 0xFF.
    /// - #ZelData_UnsupportedCharacter: @p bmpOnly is true and a byte from 0xF0 up, 0xFE and 0xFF
    ///   included, came first.
    ///
    /// Five- and six-byte forms, overlong forms of three and more bytes, encoded surrogates and
    /// values above U+10FFFF pass.
    static ZelDataResult_tags verifyUtf8Format(const std::string& text, bool bmpOnly);
    /// The number of line feeds, plus one if there are any and the text does not end with one. 0
    /// for a text without line feeds, however long, and for one that is not UTF-8.
    static unsigned long countLinesInUTF8(const std::string& text);
    /// @p text without the bytes 0x00 to 0x1F, except the line feed. Removes tab and carriage
    /// return, too.
    static std::string stripUnsupportedCharacters(const std::string& text);
    /// @p text with `"`, `&`, `'`, `<` and `>` as XML entities.
    static std::string htmlTagsToText(const std::string& text);
    /// @p text with the five XML entities decoded, once.
    ///
    /// An entity that ends at the last byte is not decoded. If a `&` does not begin an entity that
    /// is decoded, the byte after it is dropped, or the byte after `&a` ("&nbsp;" gives "&bsp;", and
    /// "A&amp;" gives "A&ap;").
    static std::string htmlTagsFromText(const std::string& text);
    /// "bottom", "top" or "center"; bottom takes precedence over top.
    static std::string getVerticalAlignment(ZelAlignment_tags alignment);
    /// "left", "right" or "center"; left takes precedence over right.
    static std::string getHorizontalAlignment(ZelAlignment_tags alignment);
    /// @}

    /// @name Values
    /// The text forms that the packet uses; they never depend on a locale. They may throw
    /// `std::bad_alloc`.
    /// @{

    /// Six significant digits, shortest general notation ("2", "0.1", "1.23457e+06", "nan").
    static std::string getValueString(float value);
    /// Plain decimal.
    static std::string getValueString(unsigned long long value);
    /// Plain decimal.
    static std::string getValueString(unsigned long value);
    /// The letter f and the plain decimal rate ("f1000").
    static std::string getRateString(unsigned long rate);
    /// Major (all bits from 16 up), minor (bits 8 to 15) and patch (bits 0 to 7), joined by dots:
    /// 66048 gives "1.2.0". #ZELINTERCHANGEDATA_VERSION and libraryVersion() are packed
    /// differently: there, 10200 is version 1.2.0.
    static std::string getVersionString(unsigned long version);
    /// The date and time of @p seconds since the Unix epoch, or of now if it is null, in UTC,
    /// followed by an offset in hours ("2009-03-05T14:07:09+2:00"). Empty if the calendar cannot
    /// express that moment.
    ///
    /// The offset is the local hour minus the UTC hour, nothing else: no minutes, no day boundary,
    /// no leading zero, and "-0:00" if the hours are equal. The function uses the time zone of the
    /// process without calling `tzset`.
    ///
    /// Where `long` has 32 bits, @p seconds reaches from 1901-12-13 to 2038-01-19. On Windows, the
    /// text is empty for instants before 1970, because the system does not convert them to local time.
    static std::string getDateString(long* seconds);
    /// @}
};

/// Plain decimal, with a leading "-" if negative. May throw `std::bad_alloc`.
ZELINTERCHANGEDATA_API std::string getValueString(long value);

} // namespace ZelInterchangeData

#endif
