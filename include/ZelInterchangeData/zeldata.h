/// @file
/// The library in C, for programs in C and in every language that can call C.
///
/// The functions are those of the C++ interfaces. A name is `zeldata_`, the interface and the
/// operation: `i_ZelDataHeader::setTitle` is zeldata_header_set_title(). The reference of the C++
/// operation that a comment names says what it does, which codes it returns and what a failure
/// leaves behind; every code of C++ has the same number here.
///
/// - **Ownership**: a function with `_create` in its name or `_get_item` at its end stores a handle
///   in `*out`, which must be null before; the handle is yours until you pass it to the `_destroy`
///   of its type. Nothing else is yours to destroy, and the library keeps none of your pointers.
/// - **Texts** that you pass are a pointer and a number of bytes, at most 2147483647; with
///   #ZELDATA_TERMINATED as the number, the text ends before its first zero byte. Texts that you
///   get are stored in a zeldata_string that you created; zeldata_string_copy() copies one into a
///   buffer of yours.
/// - **Results** are the codes below; zeldata_last_message() says in words what failed. A function
///   that fails changes only the last error and the message, with these exceptions:
///   - `_copy_from`, `_copy_languages_from_header` (`_captions`, `_toc`),
///     `_remove_items_for_language` and the functions that copy a data set into or out of a
///     document or into a formatter keep what they did before the failure.
///   - `_set_text_for_language` stores the text before it returns #ZELDATA_WARN_ALREADY_EXISTS.
///   - The functions for display names of languages store those that they found.
///   - zeldata_string_copy() and zeldata_document_replace_file() store a number.
/// - Every function that returns a code returns #ZELDATA_INVALID_ARGUMENT if a handle or a pointer
///   is null, `*out` is not null, a text is too long, or a number is too large for the C++ type. In
///   that case, and if memory runs out before the operation begins or in an operation of a caption
///   item, the object can keep the last error that it had.
/// - **Numbers**: what is `unsigned long` in C++ is `uint64_t`, what is `long` is `int64_t`. Where
///   `long` has 32 bits, as on Windows and on 32-bit processors, you can pass a `uint64_t` up to
///   4294967295, and to zeldata_get_date_string() and zeldata_get_value_string_int64() -2147483648
///   to 2147483647. What is `long long` or `unsigned long long` in C++ has its whole range
///   everywhere: the times of items, the offsets of images and the number that you pass to
///   zeldata_get_value_string_uint64(). A truth value is an `int32_t`: you get 0 or 1, and
///   everything except 0 that you pass is true.
/// - **Threads**: you can use different objects in different threads. Use one object in one thread
///   at a time, also for reading: most getters change the object's last message.
///
/// No exception leaves these functions. The header is C of 1999 or later, and C++ of 2011 or later.
/// `zeldata.json`, which is installed with the library, lists the functions for programs that
/// generate bindings.

#ifndef ZELINTERCHANGEDATA_ZELDATA_H
#define ZELINTERCHANGEDATA_ZELDATA_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataVersion.h"

// Deliberate: not <cstddef> and <cstdint>, because this is a header of C, too.
// NOLINTBEGIN(modernize-deprecated-headers, modernize-use-using, readability-identifier-naming)
#include <stddef.h>
#include <stdint.h>

/// As the length of a text: the text ends before its first zero byte.
#define ZELDATA_TERMINATED SIZE_MAX
/// In a finding: no item.
#define ZELDATA_NO_ITEM UINT64_MAX

/// @name Result codes
/// See ZelDataResult_tags.
/// @{

/// Success.
#define ZELDATA_OK UINT32_C(0x00000000)
/// The entry already existed: a language is not added twice, an item's text is replaced.
#define ZELDATA_WARN_ALREADY_EXISTS UINT32_C(0x40000001)
/// Valid, but outside the recommended limits for a caption.
#define ZELDATA_WARN_ITEM_GUIDELINES UINT32_C(0x40000002)
/// Valid, but the items overlap or are out of order.
#define ZELDATA_WARN_TIMING UINT32_C(0x40000003)
/// Nothing to do: the entry was absent on removal or present on addition.
#define ZELDATA_WARN_NO_CHANGE UINT32_C(0x40000004)
/// The operation is not supported.
#define ZELDATA_NOT_IMPLEMENTED UINT32_C(0x80000002)
/// An argument is out of range, an out-pointer is null or not empty, or a required set is missing.
#define ZELDATA_INVALID_ARGUMENT UINT32_C(0x80000003)
/// The entry to remove does not exist.
#define ZELDATA_NOT_FOUND UINT32_C(0x80000004)
/// Memory ran out.
#define ZELDATA_OUT_OF_MEMORY UINT32_C(0x80000005)
/// The bytes are not well-formed UTF-8.
#define ZELDATA_INVALID_UTF8 UINT32_C(0x80000006)
/// A character outside the 16-bit range occurs where only characters within it are allowed.
#define ZELDATA_UNSUPPORTED_CHARACTER UINT32_C(0x80000007)
/// The language is not in the catalogue.
#define ZELDATA_UNKNOWN_LANGUAGE UINT32_C(0x80000008)
/// An item's text or language is invalid, or its timing is impossible.
#define ZELDATA_INVALID_ITEM UINT32_C(0x80000009)
/// The output file could not be opened.
#define ZELDATA_FILE_OPEN_FAILED UINT32_C(0x8000000A)
/// The data are inconsistent, an object was copied onto itself, or an internal step failed.
#define ZELDATA_INTERNAL_ERROR UINT32_C(0x8000000B)
/// The data to be written are invalid or were never given.
#define ZELDATA_INVALID_DATA UINT32_C(0x8000000C)
/// The requested data set was never given to the document.
#define ZELDATA_NO_DATA UINT32_C(0x8000000D)
/// The format is not one that the library writes.
#define ZELDATA_UNSUPPORTED_FORMAT UINT32_C(0x8000000E)
/// @}

/// @name Alignments
/// Bits, combined with `|`. See ZelAlignment_tags.
/// @{

/// No flag: centred vertically and horizontally.
#define ZELDATA_ALIGN_CENTER UINT32_C(0x00)
/// Vertical: bottom.
#define ZELDATA_ALIGN_BOTTOM UINT32_C(0x01)
/// Vertical: top.
#define ZELDATA_ALIGN_TOP UINT32_C(0x02)
/// Horizontal: left.
#define ZELDATA_ALIGN_LEFT UINT32_C(0x10)
/// Horizontal: right.
#define ZELDATA_ALIGN_RIGHT UINT32_C(0x20)
/// @}

/// @name Formats
/// See ZelDataFormatType_tags.
/// @{

/// An XMP packet: RDF/XML in UTF-8.
#define ZELDATA_FORMAT_XMP UINT32_C(1)
/// @}

/// @name Kinds of findings
/// See ZelDataFinding_tags.
/// @{

/// ZelDataFinding_FrameRateOutOfRange.
#define ZELDATA_FINDING_FRAME_RATE_OUT_OF_RANGE UINT32_C(1)
/// ZelDataFinding_FontFamilyMissing.
#define ZELDATA_FINDING_FONT_FAMILY_MISSING UINT32_C(2)
/// ZelDataFinding_FontSizeOutOfRange.
#define ZELDATA_FINDING_FONT_SIZE_OUT_OF_RANGE UINT32_C(3)
/// ZelDataFinding_ColorOutOfRange.
#define ZELDATA_FINDING_COLOR_OUT_OF_RANGE UINT32_C(4)
/// ZelDataFinding_NoDuration.
#define ZELDATA_FINDING_NO_DURATION UINT32_C(5)
/// ZelDataFinding_TooShort.
#define ZELDATA_FINDING_TOO_SHORT UINT32_C(6)
/// ZelDataFinding_BadText.
#define ZELDATA_FINDING_BAD_TEXT UINT32_C(7)
/// ZelDataFinding_BadLanguage.
#define ZELDATA_FINDING_BAD_LANGUAGE UINT32_C(8)
/// ZelDataFinding_TooManyLines.
#define ZELDATA_FINDING_TOO_MANY_LINES UINT32_C(9)
/// ZelDataFinding_MissingText.
#define ZELDATA_FINDING_MISSING_TEXT UINT32_C(10)
/// ZelDataFinding_Overlap.
#define ZELDATA_FINDING_OVERLAP UINT32_C(11)
/// ZelDataFinding_OutOfOrder.
#define ZELDATA_FINDING_OUT_OF_ORDER UINT32_C(12)
/// ZelDataFinding_HeaderMissing.
#define ZELDATA_FINDING_HEADER_MISSING UINT32_C(13)
/// ZelDataFinding_SizeMissing.
#define ZELDATA_FINDING_SIZE_MISSING UINT32_C(14)
/// ZelDataFinding_ListedTwice.
#define ZELDATA_FINDING_LISTED_TWICE UINT32_C(15)
/// ZelDataFinding_NotEscaped.
#define ZELDATA_FINDING_NOT_ESCAPED UINT32_C(16)
/// ZelDataFinding_ControlCharacter.
#define ZELDATA_FINDING_CONTROL_CHARACTER UINT32_C(17)
/// ZelDataFinding_NotStrictUtf8.
#define ZELDATA_FINDING_NOT_STRICT_UTF8 UINT32_C(18)
/// ZelDataFinding_ForbiddenCharacter.
#define ZELDATA_FINDING_FORBIDDEN_CHARACTER UINT32_C(19)
/// ZelDataFinding_NoItems.
#define ZELDATA_FINDING_NO_ITEMS UINT32_C(20)
/// ZelDataFinding_NoText.
#define ZELDATA_FINDING_NO_TEXT UINT32_C(21)
/// ZelDataFinding_EmptyText.
#define ZELDATA_FINDING_EMPTY_TEXT UINT32_C(22)
/// ZelDataFinding_EntryMissing.
#define ZELDATA_FINDING_ENTRY_MISSING UINT32_C(23)
/// ZelDataFinding_NotMilliseconds.
#define ZELDATA_FINDING_NOT_MILLISECONDS UINT32_C(24)
/// @}

/// @name Subjects of findings
/// See ZelDataFindingSubject_tags.
/// @{

/// Captions.
#define ZELDATA_FINDING_SUBJECT_CAPTION UINT32_C(1)
/// A table of contents.
#define ZELDATA_FINDING_SUBJECT_TOC_ENTRY UINT32_C(2)
/// Screen texts.
#define ZELDATA_FINDING_SUBJECT_SCREEN_TEXT UINT32_C(3)
/// A header.
#define ZELDATA_FINDING_SUBJECT_HEADER UINT32_C(4)
/// A document.
#define ZELDATA_FINDING_SUBJECT_DOCUMENT UINT32_C(5)
/// @}

/// @name Severities of findings
/// See ZelDataFindingSeverity_tags.
/// @{

/// The packet is written and can be read, but perhaps it is not what you want: for example, it has
/// a placeholder for a text that is empty.
#define ZELDATA_FINDING_SEVERITY_WARNING UINT32_C(1)
/// The document does not accept the data or does not write them, or an XML parser rejects its
/// packet or reads other values from it.
#define ZELDATA_FINDING_SEVERITY_ERROR UINT32_C(2)
/// @}

#ifdef __cplusplus
extern "C" {
#endif

/// @name Handles
/// @{

/// A text.
typedef struct zeldata_string zeldata_string;
/// A list of texts.
typedef struct zeldata_strings zeldata_strings;
/// What is wrong with a data set.
typedef struct zeldata_findings zeldata_findings;
/// See i_ZelInterchangeDataCore.
typedef struct zeldata_document zeldata_document;
/// See i_ZelDataHeader.
typedef struct zeldata_header zeldata_header;
/// See i_ZelDataCaptions.
typedef struct zeldata_captions zeldata_captions;
/// See i_ZelDataCaptionItem.
typedef struct zeldata_caption_item zeldata_caption_item;
/// See i_ZelDataToc.
typedef struct zeldata_toc zeldata_toc;
/// See i_ZelDataTocItem.
typedef struct zeldata_toc_item zeldata_toc_item;
/// See i_ZelDataScreenText.
typedef struct zeldata_screen_text zeldata_screen_text;
/// See i_ZelDataScreenTextItem.
typedef struct zeldata_screen_text_item zeldata_screen_text_item;
/// See i_ZelDataHeaderFormatter.
typedef struct zeldata_header_formatter zeldata_header_formatter;
/// See i_ZelDataCaptionFormatter.
typedef struct zeldata_caption_formatter zeldata_caption_formatter;
/// See i_ZelDataTocFormatter.
typedef struct zeldata_toc_formatter zeldata_toc_formatter;
/// See i_ZelDataScreenTextFormatter.
typedef struct zeldata_screen_text_formatter zeldata_screen_text_formatter;
/// @}

/// @name Results
/// @{

/// What the last call with @p handle, of any type above, as its first argument reported: "" if it
/// succeeded, otherwise the C++ operation, its arguments and what the code means. If the system
/// reports an error to zeldata_document_replace_file(), the message has the system's reason instead
/// of the meaning. An operation that C++ does not have is named after the C function. If memory ran
/// out during the call or for the message, the message is only what zeldata_result_describe()
/// returns for the code. Never null; valid until the next call with the handle.
///
/// zeldata_string_get_data(), zeldata_string_get_size() and each `_get_last_error` leave the
/// message as it is. A function whose first argument is not a handle, such as
/// zeldata_header_create(), keeps no message: pass its code to zeldata_result_describe(). For a
/// null handle, this function returns the meaning of #ZELDATA_INVALID_ARGUMENT.
ZELINTERCHANGEDATA_API const char* zeldata_last_message(const void* handle);
/// The name of @p code ("ZelData_InvalidUtf8"), "ZelData_Unknown" for a value that is not a code.
/// Never null.
ZELINTERCHANGEDATA_API const char* zeldata_result_to_string(uint32_t code);
/// Says in one sentence what @p code means. Never null.
ZELINTERCHANGEDATA_API const char* zeldata_result_describe(uint32_t code);
/// 1 if @p code is a warning or an error, otherwise 0.
ZELINTERCHANGEDATA_API int32_t zeldata_result_failed(uint32_t code);
/// 1 if @p code is an error, otherwise 0.
ZELINTERCHANGEDATA_API int32_t zeldata_result_is_error(uint32_t code);
/// The version of the library that is running, in the form of #ZELINTERCHANGEDATA_VERSION.
ZELINTERCHANGEDATA_API int32_t zeldata_library_version(void);
/// @}

/// @name Texts
/// @{

/// Stores a new, empty text in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_string_create(zeldata_string** out);
/// Destroys the text; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_string_destroy(zeldata_string* string);
/// Replaces the text with a copy of @p text, which may hold any bytes.
ZELINTERCHANGEDATA_API uint32_t zeldata_string_set(zeldata_string* string, const char* text,
                                                   size_t text_length);
/// The bytes of the text and a zero byte. Valid until the text changes or is destroyed; "" for a
/// null handle.
ZELINTERCHANGEDATA_API const char* zeldata_string_get_data(const zeldata_string* string);
/// The number of bytes, without the zero byte; 0 for a null handle.
ZELINTERCHANGEDATA_API size_t zeldata_string_get_size(const zeldata_string* string);
/// Copies the bytes of the text and a zero byte to @p buffer, which has room for @p capacity bytes.
/// `*needed` gets the number of bytes that are needed, even if @p buffer is null or too small.
/// - #ZELDATA_INVALID_ARGUMENT: a pointer is null, or @p capacity is too small; the buffer is
///   unchanged.
ZELINTERCHANGEDATA_API uint32_t zeldata_string_copy(const zeldata_string* string, char* buffer,
                                                    size_t capacity, size_t* needed);
/// @}

/// @name Lists of texts
/// @{

/// Stores a new, empty list in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_strings_create(zeldata_strings** out);
/// Destroys the list; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_strings_destroy(zeldata_strings* strings);
/// Empties the list.
ZELINTERCHANGEDATA_API uint32_t zeldata_strings_clear(zeldata_strings* strings);
/// Appends a copy of @p text.
ZELINTERCHANGEDATA_API uint32_t zeldata_strings_add(zeldata_strings* strings, const char* text,
                                                    size_t text_length);
/// The number of texts.
ZELINTERCHANGEDATA_API uint32_t zeldata_strings_get_count(const zeldata_strings* strings,
                                                          uint64_t* count);
/// Replaces @p text with a copy of the text at @p index.
/// - #ZELDATA_INVALID_ARGUMENT: there is no text at @p index.
ZELINTERCHANGEDATA_API uint32_t zeldata_strings_get(const zeldata_strings* strings, uint64_t index,
                                                    zeldata_string* text);
/// @}

/// @name Documents
/// @{

/// Stores a new document without data sets in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_document_create(zeldata_document** out);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_document_destroy(zeldata_document* document);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t zeldata_document_get_last_error(const zeldata_document* document);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_document_set_last_error(const zeldata_document* document,
                                                                uint32_t code);
/// Stores the packet in @p out or, if @p flag is true, appends it. See i_ZelInterchangeDataCore.
ZELINTERCHANGEDATA_API uint32_t zeldata_document_write_string(const zeldata_document* document,
                                                              zeldata_string* out, uint32_t format,
                                                              int32_t flag);
/// Writes the packet to the file at @p path; @p flag is not used. zeldata_document_replace_file()
/// reports more failures. See i_ZelInterchangeDataCore.
ZELINTERCHANGEDATA_API uint32_t zeldata_document_write_file(const zeldata_document* document,
                                                            const char* path, size_t path_length,
                                                            uint32_t format, int32_t flag);
/// Replaces the contents of @p target with a copy of the document's header. See
/// i_ZelInterchangeDataCore::getDataHeader().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_get_header(const zeldata_document* document,
                                                            zeldata_header* target);
/// Replaces the document's header with a copy of @p source. Call zeldata_header_is_valid() first: a
/// header that is not valid is copied only in part, and if the document has captions, the code is
/// their last error instead. See i_ZelInterchangeDataCore::setDataHeader().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_set_header(zeldata_document* document,
                                                            const zeldata_header* source);
/// Replaces the contents of @p target with a copy of the document's captions. See
/// i_ZelInterchangeDataCore::getDataCaptions().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_get_captions(const zeldata_document* document,
                                                              zeldata_captions* target);
/// Replaces the document's captions with a copy of @p source. See
/// i_ZelInterchangeDataCore::setDataCaptions().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_set_captions(zeldata_document* document,
                                                              const zeldata_captions* source);
/// Replaces the contents of @p target with a copy of the document's table of contents. See
/// i_ZelInterchangeDataCore::getDataToc().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_get_toc(const zeldata_document* document,
                                                         zeldata_toc* target);
/// Replaces the document's table of contents with a copy of @p source. See
/// i_ZelInterchangeDataCore::setDataToc().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_set_toc(zeldata_document* document,
                                                         const zeldata_toc* source);
/// Replaces the contents of @p target with a copy of the document's screen text. See
/// i_ZelInterchangeDataCore::getDataScreenText().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_get_screen_text(const zeldata_document* document,
                                                                 zeldata_screen_text* target);
/// Replaces the document's screen text with a copy of @p source. See
/// i_ZelInterchangeDataCore::setDataScreenText().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_set_screen_text(zeldata_document* document,
                                                                 const zeldata_screen_text* source);
/// Stores a new header in `*out`. See i_ZelInterchangeDataCore::createDataHeader().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_create_header(const zeldata_document* document,
                                                               zeldata_header** out);
/// Stores a new collection of captions in `*out`. See
/// i_ZelInterchangeDataCore::createDataCaptions().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_create_captions(const zeldata_document* document,
                                                                 zeldata_captions** out);
/// Stores a new table of contents in `*out`. See i_ZelInterchangeDataCore::createDataToc().
ZELINTERCHANGEDATA_API uint32_t zeldata_document_create_toc(const zeldata_document* document,
                                                            zeldata_toc** out);
/// Stores a new collection of screen texts in `*out`. See
/// i_ZelInterchangeDataCore::createDataScreenText().
ZELINTERCHANGEDATA_API uint32_t
zeldata_document_create_screen_text(const zeldata_document* document, zeldata_screen_text** out);
/// Replaces @p findings with everything that is wrong. See findProblems() in ZelDataFindings.h.
ZELINTERCHANGEDATA_API uint32_t zeldata_document_find_problems(const zeldata_document* document,
                                                               zeldata_findings* findings);
/// Writes the packet to the file at @p path, completely or not at all. `*system_error` gets the
/// system's error number, 0 if the system reported none. See replaceFile() in ZelDataReplaceFile.h.
ZELINTERCHANGEDATA_API uint32_t zeldata_document_replace_file(const zeldata_document* document,
                                                              const char* path, size_t path_length,
                                                              int32_t* system_error,
                                                              uint32_t format);
/// @}

/// @name Headers
/// @{

/// Stores a new header in `*out`; it is not valid until length, width and height are set.
ZELINTERCHANGEDATA_API uint32_t zeldata_header_create(zeldata_header** out);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_header_destroy(zeldata_header* header);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_last_error(const zeldata_header* header);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_last_error(const zeldata_header* header,
                                                              uint32_t code);
/// Empties the list. See i_ZelDataLanguage::clearLanguages().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_clear_languages(zeldata_header* header);
/// Appends @p id. See i_ZelDataLanguage::addLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_add_language(zeldata_header* header, const char* id,
                                                            size_t id_length);
/// Removes the first entry that is identical to @p id. See i_ZelDataLanguage::removeLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_remove_language(zeldata_header* header,
                                                               const char* id, size_t id_length);
/// Puts the list in the order of @p ids. See i_ZelDataLanguage::setOrderedLanguageIDs().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_ordered_language_ids(zeldata_header* header,
                                                                        const zeldata_strings* ids);
/// Replaces @p ids with the list. See i_ZelDataLanguage::getOrderedLanguageIDs().
ZELINTERCHANGEDATA_API uint32_t
zeldata_header_get_ordered_language_ids(const zeldata_header* header, zeldata_strings* ids);
/// The number of entries. See i_ZelDataLanguage::getLanguageCount().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_language_count(const zeldata_header* header,
                                                                  uint64_t* count);
/// Replaces @p names with the English name of each entry, in order. See
/// i_ZelDataLanguage::getLanguageDisplayNames().
ZELINTERCHANGEDATA_API uint32_t
zeldata_header_get_language_display_names(const zeldata_header* header, zeldata_strings* names);
/// Replaces @p names with each language's own name, in order. See
/// i_ZelDataLanguage::getLanguageNativeDisplayNames().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_language_native_display_names(
    const zeldata_header* header, zeldata_strings* names);
/// Sets @p exists to whether an entry identical to @p id is listed; @p id is unchanged. See
/// i_ZelDataLanguage::doesLanguageExist().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_does_language_exist(const zeldata_header* header,
                                                                   const char* id, size_t id_length,
                                                                   int32_t* exists);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t
zeldata_header_copy_languages_from_header(zeldata_header* header, const zeldata_header* source);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t
zeldata_header_copy_languages_from_captions(zeldata_header* header, const zeldata_captions* source);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_copy_languages_from_toc(zeldata_header* header,
                                                                       const zeldata_toc* source);
/// Checks that video length, width and height are set, nothing else. See
/// i_ZelDataHeader::isValid().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_is_valid(const zeldata_header* header);
/// Resets the languages and all fields except the search-bar flag and the content names. See
/// i_ZelDataHeader::clearHeader().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_clear(zeldata_header* header);
/// The producing application. See i_ZelDataHeader::setAppName().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_app_name(zeldata_header* header,
                                                            const char* name, size_t name_length);
/// The version of the producing application, in any form. See i_ZelDataHeader::setAppVersion().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_app_version(zeldata_header* header,
                                                               const char* version,
                                                               size_t version_length);
/// The title of the whole video. See i_ZelDataHeader::setTitle().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_title(zeldata_header* header, const char* title,
                                                         size_t title_length);
/// The creator, written without escaping: with one of `"&'<>` in it, the packet may not be
/// well-formed XML. See i_ZelDataHeader::setCreator().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_creator(zeldata_header* header,
                                                           const char* creator,
                                                           size_t creator_length);
/// What the video is about. See i_ZelDataHeader::setDescription().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_description(zeldata_header* header,
                                                               const char* description,
                                                               size_t description_length);
/// Replaces all keywords. See i_ZelDataHeader::setKeywords().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_keywords(zeldata_header* header,
                                                            const zeldata_strings* keywords);
/// Marks the video as explicit for portable players. See i_ZelDataHeader::setIPodExplicit().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_ipod_explicit(zeldata_header* header,
                                                                 int32_t is_explicit);
/// Length in milliseconds, at least 1; 0 by default, which is not valid. See
/// i_ZelDataHeader::setVideoLength().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_video_length(zeldata_header* header,
                                                                uint64_t milliseconds);
/// Frame width in pixels, at least 1; 0 by default, which is not valid. See
/// i_ZelDataHeader::setVideoWidth().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_video_width(zeldata_header* header,
                                                               uint64_t pixels);
/// Frame height in pixels, at least 1; 0 by default, which is not valid. See
/// i_ZelDataHeader::setVideoHeight().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_video_height(zeldata_header* header,
                                                                uint64_t pixels);
/// The producing application. See i_ZelDataHeader::getAppName().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_app_name(const zeldata_header* header,
                                                            zeldata_string* name);
/// The version of the producing application. See i_ZelDataHeader::getAppVersion().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_app_version(const zeldata_header* header,
                                                               zeldata_string* version);
/// The title of the whole video. See i_ZelDataHeader::getTitle().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_title(const zeldata_header* header,
                                                         zeldata_string* title);
/// The creator, as it was set. See i_ZelDataHeader::getCreator().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_creator(const zeldata_header* header,
                                                           zeldata_string* creator);
/// What the video is about. See i_ZelDataHeader::getDescription().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_description(const zeldata_header* header,
                                                               zeldata_string* description);
/// Replaces @p keywords with those of the header, in their order. See
/// i_ZelDataHeader::getKeywords().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_keywords(const zeldata_header* header,
                                                            zeldata_strings* keywords);
/// Whether the video is marked as explicit. See i_ZelDataHeader::getIPodExplicit().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_ipod_explicit(const zeldata_header* header,
                                                                 int32_t* is_explicit);
/// The length, in milliseconds. See i_ZelDataHeader::getVideoLength().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_video_length(const zeldata_header* header,
                                                                uint64_t* milliseconds);
/// The width, in pixels. See i_ZelDataHeader::getVideoWidth().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_video_width(const zeldata_header* header,
                                                               uint64_t* pixels);
/// The height, in pixels. See i_ZelDataHeader::getVideoHeight().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_video_height(const zeldata_header* header,
                                                                uint64_t* pixels);
/// Empties the list. See i_ZelDataHeader::clearContentNames().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_clear_content_names(zeldata_header* header);
/// Appends @p name. See i_ZelDataHeader::addContentName().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_add_content_name(zeldata_header* header,
                                                                const char* name,
                                                                size_t name_length);
/// Removes the entry identical to @p name. See i_ZelDataHeader::removeContentName().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_remove_content_name(zeldata_header* header,
                                                                   const char* name,
                                                                   size_t name_length);
/// The number of entries. See i_ZelDataHeader::getContentNameCount().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_content_name_count(const zeldata_header* header,
                                                                      uint64_t* count);
/// Replaces @p names with the list. See i_ZelDataHeader::getContentNames().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_content_names(const zeldata_header* header,
                                                                 zeldata_strings* names);
/// Sets @p exists to whether an entry identical to @p name is listed; @p name is unchanged. See
/// i_ZelDataHeader::doesContentNameExist().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_does_content_name_exist(const zeldata_header* header,
                                                                       const char* name,
                                                                       size_t name_length,
                                                                       int32_t* exists);
/// Whether the player shows its search bar. See i_ZelDataHeader::setShowSearchBar().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_set_show_search_bar(zeldata_header* header,
                                                                   int32_t show);
/// Whether the player shows its search bar. See i_ZelDataHeader::getShowSearchBar().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_get_show_search_bar(const zeldata_header* header,
                                                                   int32_t* show);
/// Replaces everything with a copy of @p other: the languages, then the fields in the order of the
/// setters, then the content names and the search-bar flag. See i_ZelDataHeader::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_copy_from(zeldata_header* header,
                                                         const zeldata_header* other);
/// Replaces @p findings with everything that is wrong. See findProblems() in ZelDataFindings.h.
ZELINTERCHANGEDATA_API uint32_t zeldata_header_find_problems(const zeldata_header* header,
                                                             zeldata_findings* findings);
/// @}

/// @name Captions
/// @{

/// Stores a new collection of captions in `*out`, without items and with the standard styling.
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_create(zeldata_captions** out);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_captions_destroy(zeldata_captions* captions);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_last_error(const zeldata_captions* captions);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_set_last_error(const zeldata_captions* captions,
                                                                uint32_t code);
/// Empties the list. See i_ZelDataLanguage::clearLanguages().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_clear_languages(zeldata_captions* captions);
/// Appends @p id. See i_ZelDataLanguage::addLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_add_language(zeldata_captions* captions,
                                                              const char* id, size_t id_length);
/// Removes the first entry that is identical to @p id. See i_ZelDataLanguage::removeLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_remove_language(zeldata_captions* captions,
                                                                 const char* id, size_t id_length);
/// Puts the list in the order of @p ids. See i_ZelDataLanguage::setOrderedLanguageIDs().
ZELINTERCHANGEDATA_API uint32_t
zeldata_captions_set_ordered_language_ids(zeldata_captions* captions, const zeldata_strings* ids);
/// Replaces @p ids with the list. See i_ZelDataLanguage::getOrderedLanguageIDs().
ZELINTERCHANGEDATA_API uint32_t
zeldata_captions_get_ordered_language_ids(const zeldata_captions* captions, zeldata_strings* ids);
/// The number of entries. See i_ZelDataLanguage::getLanguageCount().
ZELINTERCHANGEDATA_API uint32_t
zeldata_captions_get_language_count(const zeldata_captions* captions, uint64_t* count);
/// Replaces @p names with the English name of each entry, in order. See
/// i_ZelDataLanguage::getLanguageDisplayNames().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_language_display_names(
    const zeldata_captions* captions, zeldata_strings* names);
/// Replaces @p names with each language's own name, in order. See
/// i_ZelDataLanguage::getLanguageNativeDisplayNames().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_language_native_display_names(
    const zeldata_captions* captions, zeldata_strings* names);
/// Sets @p exists to whether an entry identical to @p id is listed; @p id is unchanged. See
/// i_ZelDataLanguage::doesLanguageExist().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_does_language_exist(
    const zeldata_captions* captions, const char* id, size_t id_length, int32_t* exists);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_copy_languages_from_header(
    zeldata_captions* captions, const zeldata_header* source);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_copy_languages_from_captions(
    zeldata_captions* captions, const zeldata_captions* source);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_copy_languages_from_toc(zeldata_captions* captions,
                                                                         const zeldata_toc* source);
/// Checks styling, texts and timing; stops at the first problem. If @p strict is true, also checks
/// each item strictly. See i_ZelDataCaptions::isValid().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_is_valid(const zeldata_captions* captions,
                                                          int32_t strict);
/// Orders the items by start, gives each an empty text for every listed language that it lacks, and
/// corrects styling values that are out of range. See i_ZelDataCaptions::makeCaptionsConsistent().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_make_consistent(zeldata_captions* captions);
/// Ticks per second, 1 to 10000. See i_ZelDataCaptions::setFrameRate().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_set_frame_rate(zeldata_captions* captions,
                                                                uint64_t rate);
/// The frame rate, in ticks per second. See i_ZelDataCaptions::getFrameRate().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_frame_rate(const zeldata_captions* captions,
                                                                uint64_t* rate);
/// Any bytes, but not empty. See i_ZelDataCaptions::setFontFamily().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_set_font_family(zeldata_captions* captions,
                                                                 const char* family,
                                                                 size_t family_length);
/// The font family, as it was set. See i_ZelDataCaptions::getFontFamily().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_font_family(const zeldata_captions* captions,
                                                                 zeldata_string* family);
/// 1 to 500, a plain number: the packet names no unit. See i_ZelDataCaptions::setFontSize().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_set_font_size(zeldata_captions* captions,
                                                               uint64_t size);
/// The font size of all captions. See i_ZelDataCaptions::getFontSize().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_font_size(const zeldata_captions* captions,
                                                               uint64_t* size);
/// Each component 0.0 to 1.0; NaN is accepted. See i_ZelDataCaptions::setForegroundColor().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_set_foreground_color(zeldata_captions* captions,
                                                                      float red, float green,
                                                                      float blue);
/// The components of the text's colour, from 0.0 to 1.0. See
/// i_ZelDataCaptions::getForegroundColor().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_foreground_color(
    const zeldata_captions* captions, float* red, float* green, float* blue);
/// Each component 0.0 to 1.0; NaN is accepted. See i_ZelDataCaptions::setBackgroundColor().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_set_background_color(zeldata_captions* captions,
                                                                      float red, float green,
                                                                      float blue);
/// The components of the background's colour, from 0.0 to 1.0. See
/// i_ZelDataCaptions::getBackgroundColor().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_background_color(
    const zeldata_captions* captions, float* red, float* green, float* blue);
/// 0.0 (clear) to 1.0 (opaque); NaN is accepted. See i_ZelDataCaptions::setBackgroundOpacity().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_set_background_opacity(zeldata_captions* captions,
                                                                        float opacity);
/// The opacity, from 0.0 (clear) to 1.0 (opaque). See i_ZelDataCaptions::getBackgroundOpacity().
ZELINTERCHANGEDATA_API uint32_t
zeldata_captions_get_background_opacity(const zeldata_captions* captions, float* opacity);
/// Removes all items and empties the language list. See i_ZelDataCaptions::clearCaptionItems().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_clear_items(zeldata_captions* captions);
/// Appends a copy of @p item and lists those of its languages that are not listed yet, in ascending
/// byte order. See i_ZelDataCaptions::addCaptionItem().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_add_item(zeldata_captions* captions,
                                                          const zeldata_caption_item* item);
/// Stores a new item with default values in `*out`. See i_ZelDataCaptions::createCaptionItem().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_create_item(const zeldata_captions* captions,
                                                             zeldata_caption_item** out);
/// Removes the item at @p index; later items move up. See i_ZelDataCaptions::removeCaptionItemAt().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_remove_item(zeldata_captions* captions,
                                                             uint64_t index);
/// Removes the text for @p language_id from every item; items and language list stay. See
/// i_ZelDataCaptions::removeCaptionItemsForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_remove_items_for_language(
    zeldata_captions* captions, const char* language_id, size_t language_id_length);
/// The number of items. See i_ZelDataCaptions::getCaptionItemCount().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_item_count(const zeldata_captions* captions,
                                                                uint64_t* count);
/// Stores a copy of the item at @p index in `*out`. See i_ZelDataCaptions::getCaptionItemAt().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_get_item(const zeldata_captions* captions,
                                                          zeldata_caption_item** out,
                                                          uint64_t index);
/// Replaces everything with a copy of @p other: the styling, then the items. See
/// i_ZelDataCaptions::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_copy_from(zeldata_captions* captions,
                                                           const zeldata_captions* other);
/// Replaces @p findings with everything that is wrong. See findProblems() in ZelDataFindings.h.
ZELINTERCHANGEDATA_API uint32_t zeldata_captions_find_problems(const zeldata_captions* captions,
                                                               zeldata_findings* findings);
/// @}

/// @name Caption items
/// @{

/// Stores a new caption in `*out`; it is not valid until it has a duration.
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_create(zeldata_caption_item** out);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_caption_item_destroy(zeldata_caption_item* caption_item);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_get_last_error(const zeldata_caption_item* caption_item);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_set_last_error(const zeldata_caption_item* caption_item, uint32_t code);
/// Checks the item except its start; if @p strict is true, also the recommended limits of captions.
/// See i_ZelDataCaptionItem::isValid().
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_is_valid(const zeldata_caption_item* caption_item, int32_t strict);
/// Removes the texts of all languages. See i_ZelDataCaptionItem::clearText().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_clear_text(zeldata_caption_item* caption_item);
/// Stores @p text, which may be empty, for @p language_id. See
/// i_ZelDataCaptionItem::setTextForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_set_text_for_language(
    zeldata_caption_item* caption_item, const char* text, size_t text_length,
    const char* language_id, size_t language_id_length);
/// Sets the start in milliseconds, at least 0. See i_ZelDataCaptionItem::setStart().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_set_start(zeldata_caption_item* caption_item,
                                                               int64_t start);
/// Sets the duration so that the item ends at @p end milliseconds. See
/// i_ZelDataCaptionItem::setEnd().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_set_end(zeldata_caption_item* caption_item,
                                                             int64_t end);
/// Sets the duration in milliseconds, at least 1. See i_ZelDataCaptionItem::setDuration().
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_set_duration(zeldata_caption_item* caption_item, int64_t duration);
/// Stores any value. See i_ZelDataCaptionItem::setAlignment().
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_set_alignment(zeldata_caption_item* caption_item, uint32_t alignment);
/// Removes the text for @p language_id. See i_ZelDataCaptionItem::removeTextForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_remove_text_for_language(
    zeldata_caption_item* caption_item, const char* language_id, size_t language_id_length);
/// Replaces @p ids with the languages that have a text, in ascending byte order. See
/// i_ZelDataCaptionItem::getLanguageIDs().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_get_language_ids(
    const zeldata_caption_item* caption_item, zeldata_strings* ids);
/// Replaces @p text with the text for @p language_id. See
/// i_ZelDataCaptionItem::getTextForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_get_text_for_language(
    const zeldata_caption_item* caption_item, zeldata_string* text, const char* language_id,
    size_t language_id_length);
/// The start, in milliseconds. See i_ZelDataCaptionItem::getStart().
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_get_start(const zeldata_caption_item* caption_item, int64_t* start);
/// Start plus duration, in milliseconds. See i_ZelDataCaptionItem::getEnd().
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_get_end(const zeldata_caption_item* caption_item, int64_t* end);
/// The duration, in milliseconds. See i_ZelDataCaptionItem::getDuration().
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_get_duration(const zeldata_caption_item* caption_item, int64_t* duration);
/// The alignment as it was set, including bits without a meaning. See
/// i_ZelDataCaptionItem::getAlignment().
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_item_get_alignment(const zeldata_caption_item* caption_item, uint32_t* alignment);
/// Replaces everything with a copy of @p other: the texts, then start, end and alignment. See
/// i_ZelDataCaptionItem::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_item_copy_from(zeldata_caption_item* caption_item,
                                                               const zeldata_caption_item* other);
/// @}

/// @name Tables of contents
/// @{

/// Stores a new table of contents without entries in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_create(zeldata_toc** out);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_toc_destroy(zeldata_toc* toc);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_get_last_error(const zeldata_toc* toc);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_set_last_error(const zeldata_toc* toc, uint32_t code);
/// Empties the list. See i_ZelDataLanguage::clearLanguages().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_clear_languages(zeldata_toc* toc);
/// Appends @p id. See i_ZelDataLanguage::addLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_add_language(zeldata_toc* toc, const char* id,
                                                         size_t id_length);
/// Removes the first entry that is identical to @p id. See i_ZelDataLanguage::removeLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_remove_language(zeldata_toc* toc, const char* id,
                                                            size_t id_length);
/// Puts the list in the order of @p ids. See i_ZelDataLanguage::setOrderedLanguageIDs().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_set_ordered_language_ids(zeldata_toc* toc,
                                                                     const zeldata_strings* ids);
/// Replaces @p ids with the list. See i_ZelDataLanguage::getOrderedLanguageIDs().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_get_ordered_language_ids(const zeldata_toc* toc,
                                                                     zeldata_strings* ids);
/// The number of entries. See i_ZelDataLanguage::getLanguageCount().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_get_language_count(const zeldata_toc* toc,
                                                               uint64_t* count);
/// Replaces @p names with the English name of each entry, in order. See
/// i_ZelDataLanguage::getLanguageDisplayNames().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_get_language_display_names(const zeldata_toc* toc,
                                                                       zeldata_strings* names);
/// Replaces @p names with each language's own name, in order. See
/// i_ZelDataLanguage::getLanguageNativeDisplayNames().
ZELINTERCHANGEDATA_API uint32_t
zeldata_toc_get_language_native_display_names(const zeldata_toc* toc, zeldata_strings* names);
/// Sets @p exists to whether an entry identical to @p id is listed; @p id is unchanged. See
/// i_ZelDataLanguage::doesLanguageExist().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_does_language_exist(const zeldata_toc* toc,
                                                                const char* id, size_t id_length,
                                                                int32_t* exists);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t
zeldata_toc_copy_languages_from_header(zeldata_toc* toc, const zeldata_header* source);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t
zeldata_toc_copy_languages_from_captions(zeldata_toc* toc, const zeldata_captions* source);
/// Replaces the languages with those of @p source. See i_ZelDataLanguage::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_copy_languages_from_toc(zeldata_toc* toc,
                                                                    const zeldata_toc* source);
/// Checks frame rate, texts and order; stops at the first problem. If @p deep is true, also checks
/// each entry deeply. See i_ZelDataToc::isValid().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_is_valid(const zeldata_toc* toc, int32_t deep);
/// Orders the entries by start, gives each an empty text for every listed language that it lacks,
/// and sets a frame rate that is out of range to 1000. See i_ZelDataToc::makeTocConsistent().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_make_consistent(zeldata_toc* toc);
/// Ticks per second of the entries' starts, 1 to 10000. See i_ZelDataToc::setFrameRate().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_set_frame_rate(zeldata_toc* toc, uint64_t rate);
/// The frame rate, in ticks per second. See i_ZelDataToc::getFrameRate().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_get_frame_rate(const zeldata_toc* toc, uint64_t* rate);
/// The file of the thumbnails; stored as given. See i_ZelDataToc::setImageFile().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_set_image_file(zeldata_toc* toc, const char* name,
                                                           size_t name_length);
/// The file of the thumbnails. See i_ZelDataToc::getImageFile().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_get_image_file(const zeldata_toc* toc,
                                                           zeldata_string* name);
/// Removes all entries and empties the language list. See i_ZelDataToc::clearTocItems().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_clear_items(zeldata_toc* toc);
/// Appends a copy of @p item and lists those of its languages that are not listed yet, in ascending
/// byte order. See i_ZelDataToc::addTocItem().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_add_item(zeldata_toc* toc,
                                                     const zeldata_toc_item* item);
/// Stores a new entry with default values in `*out`. See i_ZelDataToc::createTocItem().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_create_item(const zeldata_toc* toc,
                                                        zeldata_toc_item** out);
/// Removes the entry at @p index; later entries move up. See i_ZelDataToc::removeTocItemAt().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_remove_item(zeldata_toc* toc, uint64_t index);
/// Removes the text for @p language_id from every entry; entries and language list stay. See
/// i_ZelDataToc::removeTocItemsForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_remove_items_for_language(zeldata_toc* toc,
                                                                      const char* language_id,
                                                                      size_t language_id_length);
/// The number of entries. See i_ZelDataToc::getTocItemCount().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_get_item_count(const zeldata_toc* toc, uint64_t* count);
/// Stores a copy of the entry at @p index in `*out`. See i_ZelDataToc::getTocItemAt().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_get_item(const zeldata_toc* toc, zeldata_toc_item** out,
                                                     uint64_t index);
/// Replaces image file and entries with copies of those of @p source; the frame rate stays. See
/// i_ZelDataToc::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_copy_from(zeldata_toc* toc, const zeldata_toc* source);
/// Replaces @p findings with everything that is wrong. See findProblems() in ZelDataFindings.h.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_find_problems(const zeldata_toc* toc,
                                                          zeldata_findings* findings);
/// @}

/// @name Entries of a table of contents
/// @{

/// Stores a new entry of a table of contents in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_create(zeldata_toc_item** out);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_toc_item_destroy(zeldata_toc_item* toc_item);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_get_last_error(const zeldata_toc_item* toc_item);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_set_last_error(const zeldata_toc_item* toc_item,
                                                                uint32_t code);
/// Checks texts and languages. See i_ZelDataTocItem::isValid().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_is_valid(const zeldata_toc_item* toc_item,
                                                          int32_t deep);
/// Removes the titles of all languages. See i_ZelDataTocItem::clearText().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_clear_text(zeldata_toc_item* toc_item);
/// Stores @p text, which may be empty, for @p language_id. See
/// i_ZelDataTocItem::setTextForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_set_text_for_language(zeldata_toc_item* toc_item,
                                                                       const char* text,
                                                                       size_t text_length,
                                                                       const char* language_id,
                                                                       size_t language_id_length);
/// Sets the start in ticks, at least 0. See i_ZelDataTocItem::setStart().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_set_start(zeldata_toc_item* toc_item,
                                                           int64_t start);
/// The file that holds the thumbnail; stored as given. See i_ZelDataTocItem::setImageFile().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_set_image_file(zeldata_toc_item* toc_item,
                                                                const char* name,
                                                                size_t name_length);
/// Index of the thumbnail in the file. See i_ZelDataTocItem::setImageIndex().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_set_image_index(zeldata_toc_item* toc_item,
                                                                 uint64_t index);
/// Offset of the thumbnail in the file, in bytes. See i_ZelDataTocItem::setImageOffset().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_set_image_offset(zeldata_toc_item* toc_item,
                                                                  uint64_t offset);
/// Removes the title for @p language_id. See i_ZelDataTocItem::removeTextForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_remove_text_for_language(
    zeldata_toc_item* toc_item, const char* language_id, size_t language_id_length);
/// Replaces @p ids with the languages that have a title, in ascending byte order. See
/// i_ZelDataTocItem::getLanguageIDs().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_get_language_ids(const zeldata_toc_item* toc_item,
                                                                  zeldata_strings* ids);
/// Replaces @p text with the title for @p language_id. See i_ZelDataTocItem::getTextForLanguage().
ZELINTERCHANGEDATA_API uint32_t
zeldata_toc_item_get_text_for_language(const zeldata_toc_item* toc_item, zeldata_string* text,
                                       const char* language_id, size_t language_id_length);
/// The start, in ticks. See i_ZelDataTocItem::getStart().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_get_start(const zeldata_toc_item* toc_item,
                                                           int64_t* start);
/// The file that holds the thumbnail. See i_ZelDataTocItem::getImageFile().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_get_image_file(const zeldata_toc_item* toc_item,
                                                                zeldata_string* name);
/// The index of the thumbnail in the file. See i_ZelDataTocItem::getImageIndex().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_get_image_index(const zeldata_toc_item* toc_item,
                                                                 uint64_t* index);
/// The offset of the thumbnail in the file, in bytes. See i_ZelDataTocItem::getImageOffset().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_get_image_offset(const zeldata_toc_item* toc_item,
                                                                  uint64_t* offset);
/// Replaces everything with a copy of @p source: the titles, then start, image file, index, offset.
/// See i_ZelDataTocItem::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_item_copy_from(zeldata_toc_item* toc_item,
                                                           const zeldata_toc_item* source);
/// @}

/// @name Screen text
/// @{

/// Stores a new collection of screen texts without items in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_create(zeldata_screen_text** out);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_screen_text_destroy(zeldata_screen_text* screen_text);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_get_last_error(const zeldata_screen_text* screen_text);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_set_last_error(const zeldata_screen_text* screen_text, uint32_t code);
/// Checks frame rate and order; stops at the first problem. See i_ZelDataScreenText::isValid().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_is_valid(const zeldata_screen_text* screen_text,
                                                             int32_t deep);
/// Orders the items by start and sets a frame rate that is out of range to 1000. See
/// i_ZelDataScreenText::makeScreenTextConsistent().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_make_consistent(zeldata_screen_text* screen_text);
/// Ticks per second of the items' times, 1 to 10000. See i_ZelDataScreenText::setFrameRate().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_set_frame_rate(zeldata_screen_text* screen_text,
                                                                   uint64_t rate);
/// The frame rate, in ticks per second. See i_ZelDataScreenText::getFrameRate().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_get_frame_rate(const zeldata_screen_text* screen_text, uint64_t* rate);
/// Removes all items. See i_ZelDataScreenText::clearScreenTextItems().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_clear_items(zeldata_screen_text* screen_text);
/// Appends a copy of @p item. See i_ZelDataScreenText::addScreenTextItem().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_add_item(zeldata_screen_text* screen_text,
                                                             const zeldata_screen_text_item* item);
/// Stores a new item with default values in `*out`. See
/// i_ZelDataScreenText::createScreenTextItem().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_create_item(
    const zeldata_screen_text* screen_text, zeldata_screen_text_item** out);
/// Removes the item at @p index; later items move up. See
/// i_ZelDataScreenText::removeScreenTextItemAt().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_remove_item(zeldata_screen_text* screen_text,
                                                                uint64_t index);
/// The number of items. See i_ZelDataScreenText::getScreenTextItemCount().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_get_item_count(const zeldata_screen_text* screen_text, uint64_t* count);
/// Stores a copy of the item at @p index in `*out`. See i_ZelDataScreenText::getScreenTextItemAt().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_get_item(const zeldata_screen_text* screen_text,
                                                             zeldata_screen_text_item** out,
                                                             uint64_t index);
/// Replaces frame rate and items with copies of those of @p source. See
/// i_ZelDataScreenText::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_copy_from(zeldata_screen_text* screen_text,
                                                              const zeldata_screen_text* source);
/// Replaces @p findings with everything that is wrong. See findProblems() in ZelDataFindings.h.
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_find_problems(
    const zeldata_screen_text* screen_text, zeldata_findings* findings);
/// @}

/// @name Screen text items
/// @{

/// Stores a new screen text in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_create(zeldata_screen_text_item** out);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void
zeldata_screen_text_item_destroy(zeldata_screen_text_item* screen_text_item);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_item_get_last_error(const zeldata_screen_text_item* screen_text_item);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_set_last_error(
    const zeldata_screen_text_item* screen_text_item, uint32_t code);
/// Checks only the text. @p deep has no effect. See i_ZelDataScreenTextItem::isValid().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_item_is_valid(const zeldata_screen_text_item* screen_text_item, int32_t deep);
/// Empties the text. See i_ZelDataScreenTextItem::clearText().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_item_clear_text(zeldata_screen_text_item* screen_text_item);
/// Sets the text. See i_ZelDataScreenTextItem::setText().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_set_text(
    zeldata_screen_text_item* screen_text_item, const char* text, size_t text_length);
/// Sets the start in ticks, at least 0. See i_ZelDataScreenTextItem::setStart().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_item_set_start(zeldata_screen_text_item* screen_text_item, int64_t start);
/// Sets the duration so that the item ends at @p end ticks. See i_ZelDataScreenTextItem::setEnd().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_item_set_end(zeldata_screen_text_item* screen_text_item, int64_t end);
/// Sets the duration in ticks, at least 0. See i_ZelDataScreenTextItem::setDuration().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_item_set_duration(zeldata_screen_text_item* screen_text_item, int64_t duration);
/// The file that holds the image; stored as given and written without escaping. See
/// i_ZelDataScreenTextItem::setImageFile().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_set_image_file(
    zeldata_screen_text_item* screen_text_item, const char* name, size_t name_length);
/// Index of the image in the file. See i_ZelDataScreenTextItem::setImageIndex().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_set_image_index(
    zeldata_screen_text_item* screen_text_item, uint64_t index);
/// Offset of the image in the file, in bytes. See i_ZelDataScreenTextItem::setImageOffset().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_set_image_offset(
    zeldata_screen_text_item* screen_text_item, uint64_t offset);
/// Number of the table-of-contents entry that the text belongs to. See
/// i_ZelDataScreenTextItem::setGroupId().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_item_set_group_id(zeldata_screen_text_item* screen_text_item, uint64_t id);
/// The text as it was set; control characters are removed only when it is written. See
/// i_ZelDataScreenTextItem::getText().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_get_text(
    const zeldata_screen_text_item* screen_text_item, zeldata_string* text);
/// The start, in ticks. See i_ZelDataScreenTextItem::getStart().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_get_start(
    const zeldata_screen_text_item* screen_text_item, int64_t* start);
/// Start plus duration, in ticks. See i_ZelDataScreenTextItem::getEnd().
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_item_get_end(const zeldata_screen_text_item* screen_text_item, int64_t* end);
/// The duration, in ticks. See i_ZelDataScreenTextItem::getDuration().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_get_duration(
    const zeldata_screen_text_item* screen_text_item, int64_t* duration);
/// The file that holds the image. See i_ZelDataScreenTextItem::getImageFile().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_get_image_file(
    const zeldata_screen_text_item* screen_text_item, zeldata_string* name);
/// The index of the image in the file. See i_ZelDataScreenTextItem::getImageIndex().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_get_image_index(
    const zeldata_screen_text_item* screen_text_item, uint64_t* index);
/// The offset of the image in the file, in bytes. See i_ZelDataScreenTextItem::getImageOffset().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_get_image_offset(
    const zeldata_screen_text_item* screen_text_item, uint64_t* offset);
/// The number of the table-of-contents entry that the text belongs to. See
/// i_ZelDataScreenTextItem::getGroupId().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_get_group_id(
    const zeldata_screen_text_item* screen_text_item, uint64_t* id);
/// Replaces everything with a copy of @p source: text, start, duration, image file, index, offset,
/// group. See i_ZelDataScreenTextItem::copyFrom().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_item_copy_from(
    zeldata_screen_text_item* screen_text_item, const zeldata_screen_text_item* source);
/// @}

/// @name Header formatters
/// @{

/// Stores a new formatter without a header in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_header_formatter_create(zeldata_header_formatter** out,
                                                                uint32_t format);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void
zeldata_header_formatter_destroy(zeldata_header_formatter* header_formatter);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t
zeldata_header_formatter_get_last_error(const zeldata_header_formatter* header_formatter);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_header_formatter_set_last_error(
    const zeldata_header_formatter* header_formatter, uint32_t code);
/// Replaces @p out with a packet that has the header and no items; @p flag is not used. See
/// i_ZelDataHeaderFormatter.
ZELINTERCHANGEDATA_API uint32_t
zeldata_header_formatter_write_string(const zeldata_header_formatter* header_formatter,
                                      zeldata_string* out, uint32_t format, int32_t flag);
/// Replaces the held copy with a copy of @p header. See i_ZelDataHeaderFormatter::setHeader().
ZELINTERCHANGEDATA_API uint32_t zeldata_header_formatter_set_header(
    zeldata_header_formatter* header_formatter, const zeldata_header* header);
/// @}

/// @name Caption formatters
/// @{

/// Stores a new formatter without captions in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_formatter_create(zeldata_caption_formatter** out,
                                                                 uint32_t format);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void
zeldata_caption_formatter_destroy(zeldata_caption_formatter* caption_formatter);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_formatter_get_last_error(const zeldata_caption_formatter* caption_formatter);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_formatter_set_last_error(
    const zeldata_caption_formatter* caption_formatter, uint32_t code);
/// Replaces @p out with the captions' part of a packet; @p flag is not used. Without items, returns
/// #ZELDATA_OK and leaves @p out unchanged. See i_ZelDataCaptionFormatter.
ZELINTERCHANGEDATA_API uint32_t
zeldata_caption_formatter_write_string(const zeldata_caption_formatter* caption_formatter,
                                       zeldata_string* out, uint32_t format, int32_t flag);
/// Replaces the held copy with a copy of @p captions. See i_ZelDataCaptionFormatter::setCaptions().
ZELINTERCHANGEDATA_API uint32_t zeldata_caption_formatter_set_captions(
    zeldata_caption_formatter* caption_formatter, const zeldata_captions* captions);
/// @}

/// @name Formatters of tables of contents
/// @{

/// Stores a new formatter without a table of contents in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_formatter_create(zeldata_toc_formatter** out,
                                                             uint32_t format);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_toc_formatter_destroy(zeldata_toc_formatter* toc_formatter);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t
zeldata_toc_formatter_get_last_error(const zeldata_toc_formatter* toc_formatter);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t
zeldata_toc_formatter_set_last_error(const zeldata_toc_formatter* toc_formatter, uint32_t code);
/// Replaces @p out with the table's part of a packet; @p flag is not used. Without entries, returns
/// #ZELDATA_OK and leaves @p out unchanged. See i_ZelDataTocFormatter.
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_formatter_write_string(
    const zeldata_toc_formatter* toc_formatter, zeldata_string* out, uint32_t format, int32_t flag);
/// Replaces the held copy with a copy of @p toc. See i_ZelDataTocFormatter::setToc().
ZELINTERCHANGEDATA_API uint32_t zeldata_toc_formatter_set_toc(zeldata_toc_formatter* toc_formatter,
                                                              const zeldata_toc* toc);
/// @}

/// @name Screen text formatters
/// @{

/// Stores a new formatter without screen text in `*out`.
ZELINTERCHANGEDATA_API uint32_t
zeldata_screen_text_formatter_create(zeldata_screen_text_formatter** out, uint32_t format);
/// Destroys the object; null is allowed.
ZELINTERCHANGEDATA_API void
zeldata_screen_text_formatter_destroy(zeldata_screen_text_formatter* screen_text_formatter);
/// The code of the most recent operation that stored one. Leaves the last message as it is.
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_formatter_get_last_error(
    const zeldata_screen_text_formatter* screen_text_formatter);
/// Stores @p code as the last error.
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_formatter_set_last_error(
    const zeldata_screen_text_formatter* screen_text_formatter, uint32_t code);
/// Replaces @p out with the screen text's part of a packet; @p flag is not used. Without items,
/// returns #ZELDATA_OK and leaves @p out unchanged. See i_ZelDataScreenTextFormatter.
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_formatter_write_string(
    const zeldata_screen_text_formatter* screen_text_formatter, zeldata_string* out,
    uint32_t format, int32_t flag);
/// Replaces the held copy with a copy of @p screen_text. See
/// i_ZelDataScreenTextFormatter::setScreenText().
ZELINTERCHANGEDATA_API uint32_t zeldata_screen_text_formatter_set_screen_text(
    zeldata_screen_text_formatter* screen_text_formatter, const zeldata_screen_text* screen_text);
/// @}

/// @name Findings
/// @{

/// Stores a new, empty list in `*out`.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_create(zeldata_findings** out);
/// Destroys the list; null is allowed.
ZELINTERCHANGEDATA_API void zeldata_findings_destroy(zeldata_findings* findings);
/// The number of findings.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_count(const zeldata_findings* findings,
                                                           uint64_t* count);
/// What is wrong: one of the kinds above. See ZelDataFinding::kind.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_kind(const zeldata_findings* findings,
                                                          uint64_t index, uint32_t* kind);
/// What was checked: one of the subjects above. See ZelDataFinding::subject.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_subject(const zeldata_findings* findings,
                                                             uint64_t index, uint32_t* subject);
/// Index of the item, #ZELDATA_NO_ITEM if the finding is about the collection. See
/// ZelDataFinding::item.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_item_index(const zeldata_findings* findings,
                                                                uint64_t index, uint64_t* item);
/// The item's start. See ZelDataFinding::start.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_start(const zeldata_findings* findings,
                                                           uint64_t index, int64_t* start);
/// The language ID concerned. See ZelDataFinding::language.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_language(const zeldata_findings* findings,
                                                              uint64_t index,
                                                              zeldata_string* language);
/// The field or colour component concerned. See ZelDataFinding::property.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_property(const zeldata_findings* findings,
                                                              uint64_t index,
                                                              zeldata_string* property);
/// The value of a colour component. See ZelDataFinding::component.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_component(const zeldata_findings* findings,
                                                               uint64_t index, float* component);
/// Any other value. See ZelDataFinding::value.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_value(const zeldata_findings* findings,
                                                           uint64_t index, int64_t* value);
/// The limit that the value or the component breaks. See ZelDataFinding::limit.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_limit(const zeldata_findings* findings,
                                                           uint64_t index, int64_t* limit);
/// Index of the first later item concerned, #ZELDATA_NO_ITEM if there is none. See
/// ZelDataFinding::laterItem.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_later_item_index(
    const zeldata_findings* findings, uint64_t index, uint64_t* later_item);
/// The start of that item. See ZelDataFinding::laterStart.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_later_start(const zeldata_findings* findings,
                                                                 uint64_t index,
                                                                 int64_t* later_start);
/// How serious the finding is: one of the severities above. See severityOf().
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_severity(const zeldata_findings* findings,
                                                              uint64_t index, uint32_t* severity);
/// The code that the check of the collection gives for the finding. See codeOf().
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_get_code(const zeldata_findings* findings,
                                                          uint64_t index, uint32_t* code);
/// The finding in one line of English. See describe() in ZelDataFindings.h.
ZELINTERCHANGEDATA_API uint32_t zeldata_findings_describe(const zeldata_findings* findings,
                                                          uint64_t index, zeldata_string* text);
/// The name of @p kind ("ZelDataFinding_TooShort"), "ZelDataFinding_Unknown" for a value that is
/// not a kind. Never null; valid until the library is unloaded.
ZELINTERCHANGEDATA_API const char* zeldata_finding_to_string(uint32_t kind);
/// @}

/// @name Language catalogue
/// @{

/// Replaces @p name with the English name of the language of @p id. See
/// ZelDataUtilities::englishNameForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_english_name_for_language(const char* id, size_t id_length,
                                                                  zeldata_string* name);
/// Replaces @p name with the language's own name in UTF-8, which may be empty ("lu"). See
/// ZelDataUtilities::nativeNameForLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_native_name_for_language(const char* id, size_t id_length,
                                                                 zeldata_string* name);
/// #ZELDATA_OK if the language of @p id is in the catalogue, otherwise #ZELDATA_UNKNOWN_LANGUAGE.
/// See ZelDataUtilities::isValidLanguage().
ZELINTERCHANGEDATA_API uint32_t zeldata_is_valid_language(const char* id, size_t id_length);
/// @}

/// @name Text helpers
/// @{

/// Checks the form of the UTF-8 sequences of @p text. See ZelDataUtilities::verifyUtf8Format().
ZELINTERCHANGEDATA_API uint32_t zeldata_verify_utf8_format(const char* text, size_t text_length,
                                                           int32_t bmp_only);
/// Sets @p count to the number of line feeds, plus one if there are any and the text does not end
/// with one. 0 for a text without line feeds, however long, and for one that is not UTF-8. See
/// ZelDataUtilities::countLinesInUTF8().
ZELINTERCHANGEDATA_API uint32_t zeldata_count_lines_in_utf8(const char* text, size_t text_length,
                                                            uint64_t* count);
/// Replaces @p result with @p text without the bytes 0x00 to 0x1F, except the line feed. See
/// ZelDataUtilities::stripUnsupportedCharacters().
ZELINTERCHANGEDATA_API uint32_t zeldata_strip_unsupported_characters(const char* text,
                                                                     size_t text_length,
                                                                     zeldata_string* result);
/// Replaces @p result with @p text with `"`, `&`, `'`, `<` and `>` as XML entities. See
/// ZelDataUtilities::htmlTagsToText().
ZELINTERCHANGEDATA_API uint32_t zeldata_html_tags_to_text(const char* text, size_t text_length,
                                                          zeldata_string* result);
/// Replaces @p result with @p text with the five XML entities decoded, once. See
/// ZelDataUtilities::htmlTagsFromText().
ZELINTERCHANGEDATA_API uint32_t zeldata_html_tags_from_text(const char* text, size_t text_length,
                                                            zeldata_string* result);
/// Replaces @p result with "bottom", "top" or "center"; bottom takes precedence over top. See
/// ZelDataUtilities::getVerticalAlignment().
ZELINTERCHANGEDATA_API uint32_t zeldata_get_vertical_alignment(uint32_t alignment,
                                                               zeldata_string* result);
/// Replaces @p result with "left", "right" or "center"; left takes precedence over right. See
/// ZelDataUtilities::getHorizontalAlignment().
ZELINTERCHANGEDATA_API uint32_t zeldata_get_horizontal_alignment(uint32_t alignment,
                                                                 zeldata_string* result);
/// @}

/// @name Texts of values
/// @{

/// Replaces @p result with six significant digits, shortest general notation ("2", "0.1",
/// "1.23457e+06", "nan"). See ZelDataUtilities::getValueString().
ZELINTERCHANGEDATA_API uint32_t zeldata_get_value_string_float(float value, zeldata_string* result);
/// Replaces @p result with plain decimal. See ZelDataUtilities::getValueString().
ZELINTERCHANGEDATA_API uint32_t zeldata_get_value_string_uint64(uint64_t value,
                                                                zeldata_string* result);
/// Replaces @p result with the letter f and the plain decimal rate ("f1000"). See
/// ZelDataUtilities::getRateString().
ZELINTERCHANGEDATA_API uint32_t zeldata_get_rate_string(uint64_t rate, zeldata_string* result);
/// Replaces @p result with major (all bits from 16 up), minor (bits 8 to 15) and patch (bits 0 to
/// 7), joined by dots: 66048 gives "1.2.0". #ZELINTERCHANGEDATA_VERSION and libraryVersion() are
/// packed differently: there, 10200 is version 1.2.0. See ZelDataUtilities::getVersionString().
ZELINTERCHANGEDATA_API uint32_t zeldata_get_version_string(uint64_t version,
                                                           zeldata_string* result);
/// Replaces @p date with the date and time of @p seconds since the Unix epoch, in UTC. See
/// ZelDataUtilities::getDateString().
ZELINTERCHANGEDATA_API uint32_t zeldata_get_date_string(int64_t seconds, zeldata_string* date);
/// Replaces @p date with the date and time of now, in UTC. See ZelDataUtilities::getDateString().
ZELINTERCHANGEDATA_API uint32_t zeldata_get_date_string_now(zeldata_string* date);
/// Replaces @p result with plain decimal, with a leading "-" if negative. See getValueString() in
/// ZelDataUtilities.h.
ZELINTERCHANGEDATA_API uint32_t zeldata_get_value_string_int64(int64_t value,
                                                               zeldata_string* result);
/// @}

#ifdef __cplusplus
}
#endif
// NOLINTEND(modernize-deprecated-headers, modernize-use-using, readability-identifier-naming)

#endif
