#include "ZelInterchangeData/zeldata.h"

#include "ZelInterchangeData/ZelDataCall.h"
#include "ZelInterchangeData/ZelDataError.h"
#include "ZelInterchangeData/ZelDataFiles.h"
#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/ZelInterchangeData.h"
#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "captions/ZelDataXmpCaptionFormatter.h"
#include "core/ZelDataCore.h"
#include "header/ZelDataHeader.h"
#include "header/ZelDataXmpHeaderFormatter.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "screentext/ZelDataXmpScreenTextFormatter.h"
#include "sets/Factory.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"
#include "toc/ZelDataXmpTocFormatter.h"
#include "util/Guard.h"
#include "util/GuardedCopy.h"

#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

using namespace ZelInterchangeData;

namespace {

using Code = ZelDataResult_tags;
using Texts = std::vector<std::string>;
using Findings = std::vector<ZelDataFinding>;

/// What every handle begins with: what zeldata_last_message() shows. During a call, a text that C
/// passes uses the memory of the message.
struct Handle {
    mutable Code code = ZelData_Ok;
    mutable std::string message;
};

/// The object is mutable because some getters of C++ are not const.
template <class Object>
struct Of : Handle {
    mutable Object own;
};

/// A text that C passes.
struct Characters {
    /// Finds the length. Returns whether the text is usable.
    bool measure()
    {
        if (begin == nullptr) return false;
        if (length == ZELDATA_TERMINATED) length = std::strlen(begin);
        return length <= INT32_MAX;
    }
    // No operation changes its text and then fails, so a message can show it.
    // NOLINTNEXTLINE(google-explicit-constructor, clang-analyzer-cplusplus.InnerPointer)
    operator std::string_view() const { return {begin, length}; }

    const char* begin;
    std::size_t length;
};

/// A text for an operation that takes a string.
struct Text : Characters {};

/// Whether the operation can get an argument. A `uint64_t` is for an `unsigned long`.
template <class Given>
Code prepare([[maybe_unused]] const Handle& handle, [[maybe_unused]] Given& given)
{
    bool usable = true;
    if constexpr (std::is_pointer_v<Given>) usable = given != nullptr;
    if constexpr (std::is_same_v<Given, std::uint64_t>)
        usable = static_cast<unsigned long>(given) == given;
    if constexpr (std::is_base_of_v<Characters, Given>) usable = given.measure();
    if (!usable) return ZelData_InvalidArgument;
    if constexpr (std::is_same_v<Given, Text>) {
        const Code code = guardedCopy(handle.message, given);
        given.begin = handle.message.data(); // it can have been the last message
        return code;
    }
    return ZelData_Ok;
}

/// What the operation gets for an argument.
template <class Given>
auto& passed([[maybe_unused]] const Handle& handle, Given& given)
{
    if constexpr (std::is_same_v<Given, Text>)
        return handle.message;
    else if constexpr (std::is_base_of_v<Handle, std::remove_pointer_t<Given>>)
        return given->own;
    else if constexpr (std::is_pointer_v<Given>)
        return *given;
    else
        return given;
}

/// What a message shows of an argument: nothing of a pointer, except to a list of texts.
template <class Given>
ZelDataArgument shown(const Given& given)
{
    if constexpr (std::is_same_v<Given, const zeldata_strings*>)
        return ZelDataArgument(given->own);
    else if constexpr (std::is_pointer_v<Given>)
        return ZelDataArgument(ZelDataFormat_Xmp);
    else if constexpr (std::is_same_v<Given, std::int64_t>)
        return ZelDataArgument(static_cast<long long>(given));
    else
        return ZelDataArgument(given);
}

/// Keeps the message of a call that failed, none if memory runs out. Returns the code.
std::uint32_t keep(const Handle& handle, const ZelDataCall& call)
{
    handle.code = call.code;
    handle.message = ZelDataMessages::orNothing([&]() -> std::string {
        if (call.code == ZelData_OutOfMemory) return {};
        return ZelDataError(call.code, call.operation, call.shownArguments(), {}).what();
    });
    return call.code;
}
template <class... Given>
[[gnu::noinline]] std::uint32_t keep(const Handle& handle, const char* name, Code code,
                                     Given... given)
{
    return keep(handle, {name, code, {shown(given)...}});
}

/// Calls @p operation for the object of @p handle, which keeps the message.
template <class Type, class Operation, class... Given>
std::uint32_t call(const char* name, Operation operation, Type* handle, Given... given)
{
    static_assert((std::is_same_v<Given, Text> + ... + 0) <= 1, "the memory is for one text");
    if (handle == nullptr) return ZelData_InvalidArgument;
    handle->code = ZelData_Ok;
    Code code = ZelData_Ok;
    if ((failed(code = prepare(*handle, given)) || ...)) return keep(*handle, name, code);
    code = std::invoke(operation, handle->own, passed(*handle, given)...);
    return failed(code) ? keep(*handle, name, code, given...) : code;
}

/// As call(), for an operation that stores a @p Value in its last parameter.
template <class Value, class Operation, class Type, class Place, class... Given>
std::uint32_t get(const char* name, Operation operation, Type* handle, Place* place, Given... given)
{
    if constexpr (std::is_same_v<Value, Place>)
        return call(name, operation, handle, given..., place);
    Value value{};
    Value* const target = place == nullptr ? nullptr : &value;
    const std::uint32_t code = call(name, operation, handle, given..., target);
    if (code == ZelData_Ok) *place = static_cast<Place>(value);
    return code;
}

} // namespace

// NOLINTBEGIN(readability-identifier-naming): the names are those of the header.

struct zeldata_document : Of<ZelDataCore> {};
struct zeldata_header : Of<ZelDataHeader> {};
struct zeldata_captions : Of<ZelDataCaptions> {};
struct zeldata_caption_item : Of<ZelDataCaptionItem> {};
struct zeldata_toc : Of<ZelDataToc> {};
struct zeldata_toc_item : Of<ZelDataTocItem> {};
struct zeldata_screen_text : Of<ZelDataScreenText> {};
struct zeldata_screen_text_item : Of<ZelDataScreenTextItem> {};
struct zeldata_header_formatter : Of<ZelDataXmpHeaderFormatter> {};
struct zeldata_caption_formatter : Of<ZelDataXmpCaptionFormatter> {};
struct zeldata_toc_formatter : Of<ZelDataXmpTocFormatter> {};
struct zeldata_screen_text_formatter : Of<ZelDataXmpScreenTextFormatter> {};

// Results.

const char* zeldata_last_message(const void* handle)
{
    if (handle == nullptr) return describe(ZelData_InvalidArgument);
    const Handle& kept = *static_cast<const Handle*>(handle);
    if (kept.code == ZelData_Ok) return "";
    return kept.message.empty() ? describe(kept.code) : kept.message.c_str();
}

const char* zeldata_result_to_string(std::uint32_t code)
{
    return toString(static_cast<ZelDataResult_tags>(code));
}

const char* zeldata_result_describe(std::uint32_t code)
{
    return describe(static_cast<ZelDataResult_tags>(code));
}

std::int32_t zeldata_result_failed(std::uint32_t code)
{
    return failed(static_cast<ZelDataResult_tags>(code)) ? 1 : 0;
}

std::int32_t zeldata_result_is_error(std::uint32_t code)
{
    return isError(static_cast<ZelDataResult_tags>(code)) ? 1 : 0;
}

std::int32_t zeldata_library_version()
{
    return libraryVersion();
}

// Texts.

struct zeldata_string : Of<std::string> {};

std::uint32_t zeldata_string_create(zeldata_string** out)
{
    return createObject<zeldata_string>(out);
}

void zeldata_string_destroy(zeldata_string* string)
{
    delete string;
}

std::uint32_t zeldata_string_set(zeldata_string* string, const char* text, std::size_t text_length)
{
    const auto set = [](std::string& target, std::string& given) {
        target.swap(given);
        return ZelData_Ok;
    };
    return call("set", set, string, Text{text, text_length});
}

const char* zeldata_string_get_data(const zeldata_string* string)
{
    return string == nullptr ? "" : string->own.c_str();
}

std::size_t zeldata_string_get_size(const zeldata_string* string)
{
    return string == nullptr ? 0 : string->own.size();
}

std::uint32_t zeldata_string_copy(const zeldata_string* string, char* buffer, std::size_t capacity,
                                  std::size_t* needed)
{
    const auto copy = [=](const std::string& text, std::size_t& size, const ZelDataArgument&) {
        size = text.size() + 1;
        if (buffer == nullptr || capacity < size) return ZelData_InvalidArgument;
        std::memcpy(buffer, text.c_str(), size);
        return ZelData_Ok;
    };
    return call("copy", copy, string, needed,
                ZelDataArgument(static_cast<unsigned long long>(capacity)));
}

// Lists of texts.

namespace {

/// An operation that throws `std::bad_alloc` if memory runs out, with a code for it.
template <class Operation>
auto guardedOperation(Operation operation)
{
    return [operation](auto&... given) {
        return guarded([&] { return std::invoke(operation, given...); });
    };
}

constexpr auto countOf = [](const auto& list, std::uint64_t& count) {
    count = list.size();
    return ZelData_Ok;
};

/// Stores what @p part, a member or a function, is or returns for an element.
template <auto part>
constexpr auto partAt = [](const auto& list, std::uint64_t index, auto& out) {
    if (index >= list.size()) return ZelData_InvalidArgument;
    const auto& element = list[static_cast<std::size_t>(index)];
    out = static_cast<std::remove_reference_t<decltype(out)>>(std::invoke(part, element));
    return ZelData_Ok;
};

const std::string& itself(const std::string& text)
{
    return text;
}

} // namespace

struct zeldata_strings : Of<Texts> {};

std::uint32_t zeldata_strings_create(zeldata_strings** out)
{
    return createObject<zeldata_strings>(out);
}

void zeldata_strings_destroy(zeldata_strings* strings)
{
    delete strings;
}

std::uint32_t zeldata_strings_clear(zeldata_strings* strings)
{
    const auto clear = [](Texts& texts) {
        texts.clear();
        return ZelData_Ok;
    };
    return call("clear", clear, strings);
}

std::uint32_t zeldata_strings_add(zeldata_strings* strings, const char* text,
                                  std::size_t text_length)
{
    const auto add = [](Texts& texts, std::string& given) {
        texts.push_back(std::move(given));
        return ZelData_Ok;
    };
    return call("add", guardedOperation(add), strings, Text{text, text_length});
}

std::uint32_t zeldata_strings_get_count(const zeldata_strings* strings, std::uint64_t* count)
{
    return call("getCount", countOf, strings, count);
}

std::uint32_t zeldata_strings_get(const zeldata_strings* strings, std::uint64_t index,
                                  zeldata_string* text)
{
    return call("get", guardedOperation(partAt<itself>), strings, index, text);
}

// Documents.

namespace {

template <class Type>
std::uint32_t lastError(const Type* handle)
{
    return handle == nullptr ? ZelData_InvalidArgument : handle->own.getLastError();
}

template <class Type>
std::uint32_t setLastError(const Type* handle, std::uint32_t code)
{
    if (handle == nullptr) return ZelData_InvalidArgument;
    handle->code = ZelData_Ok;
    handle->own.setLastError(static_cast<Code>(code));
    return ZelData_Ok;
}

constexpr auto findAll = [](const auto& set, Findings& findings) {
    return findProblems(set, findings);
};

/// Stores a new handle.
constexpr auto create = [](const i_ZelDataResult& object, auto*& out) {
    const Code code = createObject<std::remove_reference_t<decltype(*out)>>(&out);
    object.setLastError(code);
    return code;
};

// The operations capture the flags: no message shows them.

auto writeString(std::int32_t append)
{
    return [append](const i_ZelDataFormatterBase& formatter, std::string& out,
                    ZelDataFormatType_tags format) {
        return formatter.writeString(out, format, append != 0);
    };
}

auto writeFile(std::int32_t flag)
{
    return [flag](const i_ZelDataFormatterBase& formatter, const std::string& path,
                  ZelDataFormatType_tags format) {
        return formatter.writeFile(path, format, flag != 0);
    };
}

} // namespace

std::uint32_t zeldata_document_create(zeldata_document** out)
{
    return createObject<zeldata_document>(out);
}

void zeldata_document_destroy(zeldata_document* document)
{
    delete document;
}

std::uint32_t zeldata_document_get_last_error(const zeldata_document* document)
{
    return lastError(document);
}

std::uint32_t zeldata_document_set_last_error(const zeldata_document* document, std::uint32_t code)
{
    return setLastError(document, code);
}

std::uint32_t zeldata_document_write_string(const zeldata_document* document, zeldata_string* out,
                                            std::uint32_t format, std::int32_t flag)
{
    return call("writeString", writeString(flag), document, out,
                static_cast<ZelDataFormatType_tags>(format));
}

std::uint32_t zeldata_document_write_file(const zeldata_document* document, const char* path,
                                          std::size_t path_length, std::uint32_t format,
                                          std::int32_t flag)
{
    return call("writeFile", writeFile(flag), document, Text{path, path_length},
                static_cast<ZelDataFormatType_tags>(format));
}

std::uint32_t zeldata_document_get_header(const zeldata_document* document, zeldata_header* target)
{
    return call("getDataHeader", &i_ZelInterchangeDataCore::getDataHeader, document, target);
}

std::uint32_t zeldata_document_set_header(zeldata_document* document, const zeldata_header* source)
{
    return call("setDataHeader", &i_ZelInterchangeDataCore::setDataHeader, document, source);
}

std::uint32_t zeldata_document_get_captions(const zeldata_document* document,
                                            zeldata_captions* target)
{
    return call("getDataCaptions", &i_ZelInterchangeDataCore::getDataCaptions, document, target);
}

std::uint32_t zeldata_document_set_captions(zeldata_document* document,
                                            const zeldata_captions* source)
{
    return call("setDataCaptions", &i_ZelInterchangeDataCore::setDataCaptions, document, source);
}

std::uint32_t zeldata_document_get_toc(const zeldata_document* document, zeldata_toc* target)
{
    return call("getDataToc", &i_ZelInterchangeDataCore::getDataToc, document, target);
}

std::uint32_t zeldata_document_set_toc(zeldata_document* document, const zeldata_toc* source)
{
    return call("setDataToc", &i_ZelInterchangeDataCore::setDataToc, document, source);
}

std::uint32_t zeldata_document_get_screen_text(const zeldata_document* document,
                                               zeldata_screen_text* target)
{
    return call("getDataScreenText", &i_ZelInterchangeDataCore::getDataScreenText, document,
                target);
}

std::uint32_t zeldata_document_set_screen_text(zeldata_document* document,
                                               const zeldata_screen_text* source)
{
    return call("setDataScreenText", &i_ZelInterchangeDataCore::setDataScreenText, document,
                source);
}

std::uint32_t zeldata_document_create_header(const zeldata_document* document, zeldata_header** out)
{
    return call("createDataHeader", create, document, out);
}

std::uint32_t zeldata_document_create_captions(const zeldata_document* document,
                                               zeldata_captions** out)
{
    return call("createDataCaptions", create, document, out);
}

std::uint32_t zeldata_document_create_toc(const zeldata_document* document, zeldata_toc** out)
{
    return call("createDataToc", create, document, out);
}

std::uint32_t zeldata_document_create_screen_text(const zeldata_document* document,
                                                  zeldata_screen_text** out)
{
    return call("createDataScreenText", create, document, out);
}

std::uint32_t zeldata_document_find_problems(const zeldata_document* document,
                                             zeldata_findings* findings)
{
    return call("findProblems", findAll, document, findings);
}

std::uint32_t zeldata_document_replace_file(const zeldata_document* document, const char* path,
                                            std::size_t path_length, std::int32_t* system_error,
                                            std::uint32_t format)
{
    if (system_error != nullptr) *system_error = 0;
    std::string reason;
    const auto replace = [&reason](const i_ZelInterchangeDataCore& core, const std::string& name,
                                   ZelDataFormatType_tags kind, std::int32_t& error) {
        const Code code = replaceFile(core, name, error, kind);
        const auto make = [&]() -> std::string {
            return ZelDataMessages::fileError(name, error).what();
        };
        if (error != 0) reason = ZelDataMessages::orNothing(make);
        return code;
    };
    const std::uint32_t code = call("replaceFile", replace, document, Text{path, path_length},
                                    static_cast<ZelDataFormatType_tags>(format), system_error);
    // The C++ function throws the same.
    if (system_error != nullptr && *system_error != 0) document->message.swap(reason);
    return code;
}

// Headers.

namespace {

template <class Interface>
constexpr Code (Interface::*copyFrom)(const Interface&) = &Interface::copyFrom;

} // namespace

std::uint32_t zeldata_header_create(zeldata_header** out)
{
    return createObject<zeldata_header>(out);
}

void zeldata_header_destroy(zeldata_header* header)
{
    delete header;
}

std::uint32_t zeldata_header_get_last_error(const zeldata_header* header)
{
    return lastError(header);
}

std::uint32_t zeldata_header_set_last_error(const zeldata_header* header, std::uint32_t code)
{
    return setLastError(header, code);
}

std::uint32_t zeldata_header_clear_languages(zeldata_header* header)
{
    return call("clearLanguages", &i_ZelDataLanguage::clearLanguages, header);
}

std::uint32_t zeldata_header_add_language(zeldata_header* header, const char* id,
                                          std::size_t id_length)
{
    return call("addLanguage", &i_ZelDataLanguage::addLanguage, header, Text{id, id_length});
}

std::uint32_t zeldata_header_remove_language(zeldata_header* header, const char* id,
                                             std::size_t id_length)
{
    return call("removeLanguage", &i_ZelDataLanguage::removeLanguage, header, Text{id, id_length});
}

std::uint32_t zeldata_header_set_ordered_language_ids(zeldata_header* header,
                                                      const zeldata_strings* ids)
{
    return call("setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs, header, ids);
}

std::uint32_t zeldata_header_get_ordered_language_ids(const zeldata_header* header,
                                                      zeldata_strings* ids)
{
    return call("getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs, header, ids);
}

std::uint32_t zeldata_header_get_language_count(const zeldata_header* header, std::uint64_t* count)
{
    return get<unsigned long>("getLanguageCount", &i_ZelDataLanguage::getLanguageCount, header,
                              count);
}

std::uint32_t zeldata_header_get_language_display_names(const zeldata_header* header,
                                                        zeldata_strings* names)
{
    return call("getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames, header,
                names);
}

std::uint32_t zeldata_header_get_language_native_display_names(const zeldata_header* header,
                                                               zeldata_strings* names)
{
    return call("getLanguageNativeDisplayNames", &i_ZelDataLanguage::getLanguageNativeDisplayNames,
                header, names);
}

std::uint32_t zeldata_header_does_language_exist(const zeldata_header* header, const char* id,
                                                 std::size_t id_length, std::int32_t* exists)
{
    return get<bool>("doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist, header, exists,
                     Text{id, id_length});
}

std::uint32_t zeldata_header_copy_languages_from_header(zeldata_header* header,
                                                        const zeldata_header* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, header, source);
}

std::uint32_t zeldata_header_copy_languages_from_captions(zeldata_header* header,
                                                          const zeldata_captions* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, header, source);
}

std::uint32_t zeldata_header_copy_languages_from_toc(zeldata_header* header,
                                                     const zeldata_toc* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, header, source);
}

std::uint32_t zeldata_header_is_valid(const zeldata_header* header)
{
    return call("isValid", &i_ZelDataHeader::isValid, header);
}

std::uint32_t zeldata_header_clear(zeldata_header* header)
{
    return call("clearHeader", &i_ZelDataHeader::clearHeader, header);
}

std::uint32_t zeldata_header_set_app_name(zeldata_header* header, const char* name,
                                          std::size_t name_length)
{
    return call("setAppName", &i_ZelDataHeader::setAppName, header, Text{name, name_length});
}

std::uint32_t zeldata_header_set_app_version(zeldata_header* header, const char* version,
                                             std::size_t version_length)
{
    return call("setAppVersion", &i_ZelDataHeader::setAppVersion, header,
                Text{version, version_length});
}

std::uint32_t zeldata_header_set_title(zeldata_header* header, const char* title,
                                       std::size_t title_length)
{
    return call("setTitle", &i_ZelDataHeader::setTitle, header, Text{title, title_length});
}

std::uint32_t zeldata_header_set_creator(zeldata_header* header, const char* creator,
                                         std::size_t creator_length)
{
    return call("setCreator", &i_ZelDataHeader::setCreator, header, Text{creator, creator_length});
}

std::uint32_t zeldata_header_set_description(zeldata_header* header, const char* description,
                                             std::size_t description_length)
{
    return call("setDescription", &i_ZelDataHeader::setDescription, header,
                Text{description, description_length});
}

std::uint32_t zeldata_header_set_keywords(zeldata_header* header, const zeldata_strings* keywords)
{
    return call("setKeywords", &i_ZelDataHeader::setKeywords, header, keywords);
}

std::uint32_t zeldata_header_set_ipod_explicit(zeldata_header* header, std::int32_t is_explicit)
{
    return call("setIPodExplicit", &i_ZelDataHeader::setIPodExplicit, header, is_explicit != 0);
}

std::uint32_t zeldata_header_set_video_length(zeldata_header* header, std::uint64_t milliseconds)
{
    return call("setVideoLength", &i_ZelDataHeader::setVideoLength, header, milliseconds);
}

std::uint32_t zeldata_header_set_video_width(zeldata_header* header, std::uint64_t pixels)
{
    return call("setVideoWidth", &i_ZelDataHeader::setVideoWidth, header, pixels);
}

std::uint32_t zeldata_header_set_video_height(zeldata_header* header, std::uint64_t pixels)
{
    return call("setVideoHeight", &i_ZelDataHeader::setVideoHeight, header, pixels);
}

std::uint32_t zeldata_header_get_app_name(const zeldata_header* header, zeldata_string* name)
{
    return call("getAppName", &i_ZelDataHeader::getAppName, header, name);
}

std::uint32_t zeldata_header_get_app_version(const zeldata_header* header, zeldata_string* version)
{
    return call("getAppVersion", &i_ZelDataHeader::getAppVersion, header, version);
}

std::uint32_t zeldata_header_get_title(const zeldata_header* header, zeldata_string* title)
{
    return call("getTitle", &i_ZelDataHeader::getTitle, header, title);
}

std::uint32_t zeldata_header_get_creator(const zeldata_header* header, zeldata_string* creator)
{
    return call("getCreator", &i_ZelDataHeader::getCreator, header, creator);
}

std::uint32_t zeldata_header_get_description(const zeldata_header* header,
                                             zeldata_string* description)
{
    return call("getDescription", &i_ZelDataHeader::getDescription, header, description);
}

std::uint32_t zeldata_header_get_keywords(const zeldata_header* header, zeldata_strings* keywords)
{
    return call("getKeywords", &i_ZelDataHeader::getKeywords, header, keywords);
}

std::uint32_t zeldata_header_get_ipod_explicit(const zeldata_header* header,
                                               std::int32_t* is_explicit)
{
    return get<bool>("getIPodExplicit", &i_ZelDataHeader::getIPodExplicit, header, is_explicit);
}

std::uint32_t zeldata_header_get_video_length(const zeldata_header* header,
                                              std::uint64_t* milliseconds)
{
    return get<unsigned long>("getVideoLength", &i_ZelDataHeader::getVideoLength, header,
                              milliseconds);
}

std::uint32_t zeldata_header_get_video_width(const zeldata_header* header, std::uint64_t* pixels)
{
    return get<unsigned long>("getVideoWidth", &i_ZelDataHeader::getVideoWidth, header, pixels);
}

std::uint32_t zeldata_header_get_video_height(const zeldata_header* header, std::uint64_t* pixels)
{
    return get<unsigned long>("getVideoHeight", &i_ZelDataHeader::getVideoHeight, header, pixels);
}

std::uint32_t zeldata_header_clear_content_names(zeldata_header* header)
{
    return call("clearContentNames", &i_ZelDataHeader::clearContentNames, header);
}

std::uint32_t zeldata_header_add_content_name(zeldata_header* header, const char* name,
                                              std::size_t name_length)
{
    return call("addContentName", &i_ZelDataHeader::addContentName, header,
                Text{name, name_length});
}

std::uint32_t zeldata_header_remove_content_name(zeldata_header* header, const char* name,
                                                 std::size_t name_length)
{
    return call("removeContentName", &i_ZelDataHeader::removeContentName, header,
                Text{name, name_length});
}

std::uint32_t zeldata_header_get_content_name_count(const zeldata_header* header,
                                                    std::uint64_t* count)
{
    return get<unsigned long>("getContentNameCount", &i_ZelDataHeader::getContentNameCount, header,
                              count);
}

std::uint32_t zeldata_header_get_content_names(const zeldata_header* header, zeldata_strings* names)
{
    return call("getContentNames", &i_ZelDataHeader::getContentNames, header, names);
}

std::uint32_t zeldata_header_does_content_name_exist(const zeldata_header* header, const char* name,
                                                     std::size_t name_length, std::int32_t* exists)
{
    return get<bool>("doesContentNameExist", &i_ZelDataHeader::doesContentNameExist, header, exists,
                     Text{name, name_length});
}

std::uint32_t zeldata_header_set_show_search_bar(zeldata_header* header, std::int32_t show)
{
    return call("setShowSearchBar", &i_ZelDataHeader::setShowSearchBar, header, show != 0);
}

std::uint32_t zeldata_header_get_show_search_bar(const zeldata_header* header, std::int32_t* show)
{
    return get<bool>("getShowSearchBar", &i_ZelDataHeader::getShowSearchBar, header, show);
}

std::uint32_t zeldata_header_copy_from(zeldata_header* header, const zeldata_header* other)
{
    return call("copyFrom", copyFrom<i_ZelDataHeader>, header, other);
}

std::uint32_t zeldata_header_find_problems(const zeldata_header* header, zeldata_findings* findings)
{
    return call("findProblems", findAll, header, findings);
}

// Captions.

namespace {

/// Stores a handle of a copy of the item that @p getter returns.
template <class Item, auto getter>
constexpr auto getItem = [](auto& collection, auto*& out, unsigned long index) {
    Code code = create(collection, out);
    if (failed(code)) return code;
    Item* item = nullptr;
    code = (collection.*getter)(&item, index);
    const std::unique_ptr<Item> owner(item);
    if (!failed(code)) code = guardedOperation(copyFrom<Item>)(out->own, *item);
    if (failed(code)) delete std::exchange(out, nullptr);
    collection.setLastError(code);
    return code;
};

} // namespace

std::uint32_t zeldata_captions_create(zeldata_captions** out)
{
    return createObject<zeldata_captions>(out);
}

void zeldata_captions_destroy(zeldata_captions* captions)
{
    delete captions;
}

std::uint32_t zeldata_captions_get_last_error(const zeldata_captions* captions)
{
    return lastError(captions);
}

std::uint32_t zeldata_captions_set_last_error(const zeldata_captions* captions, std::uint32_t code)
{
    return setLastError(captions, code);
}

std::uint32_t zeldata_captions_clear_languages(zeldata_captions* captions)
{
    return call("clearLanguages", &i_ZelDataLanguage::clearLanguages, captions);
}

std::uint32_t zeldata_captions_add_language(zeldata_captions* captions, const char* id,
                                            std::size_t id_length)
{
    return call("addLanguage", &i_ZelDataLanguage::addLanguage, captions, Text{id, id_length});
}

std::uint32_t zeldata_captions_remove_language(zeldata_captions* captions, const char* id,
                                               std::size_t id_length)
{
    return call("removeLanguage", &i_ZelDataLanguage::removeLanguage, captions,
                Text{id, id_length});
}

std::uint32_t zeldata_captions_set_ordered_language_ids(zeldata_captions* captions,
                                                        const zeldata_strings* ids)
{
    return call("setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs, captions, ids);
}

std::uint32_t zeldata_captions_get_ordered_language_ids(const zeldata_captions* captions,
                                                        zeldata_strings* ids)
{
    return call("getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs, captions, ids);
}

std::uint32_t zeldata_captions_get_language_count(const zeldata_captions* captions,
                                                  std::uint64_t* count)
{
    return get<unsigned long>("getLanguageCount", &i_ZelDataLanguage::getLanguageCount, captions,
                              count);
}

std::uint32_t zeldata_captions_get_language_display_names(const zeldata_captions* captions,
                                                          zeldata_strings* names)
{
    return call("getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames, captions,
                names);
}

std::uint32_t zeldata_captions_get_language_native_display_names(const zeldata_captions* captions,
                                                                 zeldata_strings* names)
{
    return call("getLanguageNativeDisplayNames", &i_ZelDataLanguage::getLanguageNativeDisplayNames,
                captions, names);
}

std::uint32_t zeldata_captions_does_language_exist(const zeldata_captions* captions, const char* id,
                                                   std::size_t id_length, std::int32_t* exists)
{
    return get<bool>("doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist, captions, exists,
                     Text{id, id_length});
}

std::uint32_t zeldata_captions_copy_languages_from_header(zeldata_captions* captions,
                                                          const zeldata_header* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, captions, source);
}

std::uint32_t zeldata_captions_copy_languages_from_captions(zeldata_captions* captions,
                                                            const zeldata_captions* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, captions, source);
}

std::uint32_t zeldata_captions_copy_languages_from_toc(zeldata_captions* captions,
                                                       const zeldata_toc* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, captions, source);
}

std::uint32_t zeldata_captions_is_valid(const zeldata_captions* captions, std::int32_t strict)
{
    return call("isValid", &i_ZelDataCaptions::isValid, captions, strict != 0);
}

std::uint32_t zeldata_captions_make_consistent(zeldata_captions* captions)
{
    return call("makeCaptionsConsistent", &i_ZelDataCaptions::makeCaptionsConsistent, captions);
}

std::uint32_t zeldata_captions_set_frame_rate(zeldata_captions* captions, std::uint64_t rate)
{
    return call("setFrameRate", &i_ZelDataCaptions::setFrameRate, captions, rate);
}

std::uint32_t zeldata_captions_get_frame_rate(const zeldata_captions* captions, std::uint64_t* rate)
{
    return get<unsigned long>("getFrameRate", &i_ZelDataCaptions::getFrameRate, captions, rate);
}

std::uint32_t zeldata_captions_set_font_family(zeldata_captions* captions, const char* family,
                                               std::size_t family_length)
{
    return call("setFontFamily", &i_ZelDataCaptions::setFontFamily, captions,
                Text{family, family_length});
}

std::uint32_t zeldata_captions_get_font_family(const zeldata_captions* captions,
                                               zeldata_string* family)
{
    return call("getFontFamily", &i_ZelDataCaptions::getFontFamily, captions, family);
}

std::uint32_t zeldata_captions_set_font_size(zeldata_captions* captions, std::uint64_t size)
{
    return call("setFontSize", &i_ZelDataCaptions::setFontSize, captions, size);
}

std::uint32_t zeldata_captions_get_font_size(const zeldata_captions* captions, std::uint64_t* size)
{
    return get<unsigned long>("getFontSize", &i_ZelDataCaptions::getFontSize, captions, size);
}

std::uint32_t zeldata_captions_set_foreground_color(zeldata_captions* captions, float red,
                                                    float green, float blue)
{
    return call("setForegroundColor", &i_ZelDataCaptions::setForegroundColor, captions, red, green,
                blue);
}

std::uint32_t zeldata_captions_get_foreground_color(const zeldata_captions* captions, float* red,
                                                    float* green, float* blue)
{
    return call("getForegroundColor", &i_ZelDataCaptions::getForegroundColor, captions, red, green,
                blue);
}

std::uint32_t zeldata_captions_set_background_color(zeldata_captions* captions, float red,
                                                    float green, float blue)
{
    return call("setBackgroundColor", &i_ZelDataCaptions::setBackgroundColor, captions, red, green,
                blue);
}

std::uint32_t zeldata_captions_get_background_color(const zeldata_captions* captions, float* red,
                                                    float* green, float* blue)
{
    return call("getBackgroundColor", &i_ZelDataCaptions::getBackgroundColor, captions, red, green,
                blue);
}

std::uint32_t zeldata_captions_set_background_opacity(zeldata_captions* captions, float opacity)
{
    return call("setBackgroundOpacity", &i_ZelDataCaptions::setBackgroundOpacity, captions,
                opacity);
}

std::uint32_t zeldata_captions_get_background_opacity(const zeldata_captions* captions,
                                                      float* opacity)
{
    return call("getBackgroundOpacity", &i_ZelDataCaptions::getBackgroundOpacity, captions,
                opacity);
}

std::uint32_t zeldata_captions_clear_items(zeldata_captions* captions)
{
    return call("clearCaptionItems", &i_ZelDataCaptions::clearCaptionItems, captions);
}

std::uint32_t zeldata_captions_add_item(zeldata_captions* captions,
                                        const zeldata_caption_item* item)
{
    return call("addCaptionItem", &i_ZelDataCaptions::addCaptionItem, captions, item);
}

std::uint32_t zeldata_captions_create_item(const zeldata_captions* captions,
                                           zeldata_caption_item** out)
{
    return call("createCaptionItem", create, captions, out);
}

std::uint32_t zeldata_captions_remove_item(zeldata_captions* captions, std::uint64_t index)
{
    return call("removeCaptionItemAt", &i_ZelDataCaptions::removeCaptionItemAt, captions, index);
}

std::uint32_t zeldata_captions_remove_items_for_language(zeldata_captions* captions,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call("removeCaptionItemsForLanguage", &i_ZelDataCaptions::removeCaptionItemsForLanguage,
                captions, Text{language_id, language_id_length});
}

std::uint32_t zeldata_captions_get_item_count(const zeldata_captions* captions,
                                              std::uint64_t* count)
{
    return get<unsigned long>("getCaptionItemCount", &i_ZelDataCaptions::getCaptionItemCount,
                              captions, count);
}

std::uint32_t zeldata_captions_get_item(const zeldata_captions* captions,
                                        zeldata_caption_item** out, std::uint64_t index)
{
    return call("getCaptionItemAt",
                getItem<i_ZelDataCaptionItem, &i_ZelDataCaptions::getCaptionItemAt>, captions, out,
                index);
}

std::uint32_t zeldata_captions_copy_from(zeldata_captions* captions, const zeldata_captions* other)
{
    return call("copyFrom", copyFrom<i_ZelDataCaptions>, captions, other);
}

std::uint32_t zeldata_captions_find_problems(const zeldata_captions* captions,
                                             zeldata_findings* findings)
{
    return call("findProblems", findAll, captions, findings);
}

// Caption items.

std::uint32_t zeldata_caption_item_create(zeldata_caption_item** out)
{
    return createObject<zeldata_caption_item>(out);
}

void zeldata_caption_item_destroy(zeldata_caption_item* caption_item)
{
    delete caption_item;
}

std::uint32_t zeldata_caption_item_get_last_error(const zeldata_caption_item* caption_item)
{
    return lastError(caption_item);
}

std::uint32_t zeldata_caption_item_set_last_error(const zeldata_caption_item* caption_item,
                                                  std::uint32_t code)
{
    return setLastError(caption_item, code);
}

std::uint32_t zeldata_caption_item_is_valid(const zeldata_caption_item* caption_item,
                                            std::int32_t strict)
{
    return call("isValid", &i_ZelDataCaptionItem::isValid, caption_item, strict != 0);
}

std::uint32_t zeldata_caption_item_clear_text(zeldata_caption_item* caption_item)
{
    return call("clearText", guardedOperation(&i_ZelDataCaptionItem::clearText), caption_item);
}

std::uint32_t zeldata_caption_item_set_text_for_language(zeldata_caption_item* caption_item,
                                                         const char* text, std::size_t text_length,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call("setTextForLanguage", guardedOperation(&ZelDataCaptionItem::setCharacters),
                caption_item, Characters{text, text_length},
                Characters{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_set_start(zeldata_caption_item* caption_item, std::int64_t start)
{
    return call("setStart", &i_ZelDataCaptionItem::setStart, caption_item, start);
}

std::uint32_t zeldata_caption_item_set_end(zeldata_caption_item* caption_item, std::int64_t end)
{
    return call("setEnd", &i_ZelDataCaptionItem::setEnd, caption_item, end);
}

std::uint32_t zeldata_caption_item_set_duration(zeldata_caption_item* caption_item,
                                                std::int64_t duration)
{
    return call("setDuration", &i_ZelDataCaptionItem::setDuration, caption_item, duration);
}

std::uint32_t zeldata_caption_item_set_alignment(zeldata_caption_item* caption_item,
                                                 std::uint32_t alignment)
{
    return call("setAlignment", &i_ZelDataCaptionItem::setAlignment, caption_item,
                static_cast<ZelAlignment_tags>(alignment));
}

std::uint32_t zeldata_caption_item_remove_text_for_language(zeldata_caption_item* caption_item,
                                                            const char* language_id,
                                                            std::size_t language_id_length)
{
    return call("removeTextForLanguage",
                guardedOperation(&i_ZelDataCaptionItem::removeTextForLanguage), caption_item,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_get_language_ids(const zeldata_caption_item* caption_item,
                                                    zeldata_strings* ids)
{
    return call("getLanguageIDs", guardedOperation(&i_ZelDataCaptionItem::getLanguageIDs),
                caption_item, ids);
}

std::uint32_t zeldata_caption_item_get_text_for_language(const zeldata_caption_item* caption_item,
                                                         zeldata_string* text,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call("getTextForLanguage", guardedOperation(&i_ZelDataCaptionItem::getTextForLanguage),
                caption_item, text, Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_get_start(const zeldata_caption_item* caption_item,
                                             std::int64_t* start)
{
    return get<long long>("getStart", &i_ZelDataCaptionItem::getStart, caption_item, start);
}

std::uint32_t zeldata_caption_item_get_end(const zeldata_caption_item* caption_item,
                                           std::int64_t* end)
{
    return get<long long>("getEnd", &i_ZelDataCaptionItem::getEnd, caption_item, end);
}

std::uint32_t zeldata_caption_item_get_duration(const zeldata_caption_item* caption_item,
                                                std::int64_t* duration)
{
    return get<long long>("getDuration", &i_ZelDataCaptionItem::getDuration, caption_item,
                          duration);
}

std::uint32_t zeldata_caption_item_get_alignment(const zeldata_caption_item* caption_item,
                                                 std::uint32_t* alignment)
{
    return get<ZelAlignment_tags>("getAlignment", &i_ZelDataCaptionItem::getAlignment, caption_item,
                                  alignment);
}

std::uint32_t zeldata_caption_item_copy_from(zeldata_caption_item* caption_item,
                                             const zeldata_caption_item* other)
{
    return call("copyFrom", guardedOperation(copyFrom<i_ZelDataCaptionItem>), caption_item, other);
}

// Tables of contents.

std::uint32_t zeldata_toc_create(zeldata_toc** out)
{
    return createObject<zeldata_toc>(out);
}

void zeldata_toc_destroy(zeldata_toc* toc)
{
    delete toc;
}

std::uint32_t zeldata_toc_get_last_error(const zeldata_toc* toc)
{
    return lastError(toc);
}

std::uint32_t zeldata_toc_set_last_error(const zeldata_toc* toc, std::uint32_t code)
{
    return setLastError(toc, code);
}

std::uint32_t zeldata_toc_clear_languages(zeldata_toc* toc)
{
    return call("clearLanguages", &i_ZelDataLanguage::clearLanguages, toc);
}

std::uint32_t zeldata_toc_add_language(zeldata_toc* toc, const char* id, std::size_t id_length)
{
    return call("addLanguage", &i_ZelDataLanguage::addLanguage, toc, Text{id, id_length});
}

std::uint32_t zeldata_toc_remove_language(zeldata_toc* toc, const char* id, std::size_t id_length)
{
    return call("removeLanguage", &i_ZelDataLanguage::removeLanguage, toc, Text{id, id_length});
}

std::uint32_t zeldata_toc_set_ordered_language_ids(zeldata_toc* toc, const zeldata_strings* ids)
{
    return call("setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs, toc, ids);
}

std::uint32_t zeldata_toc_get_ordered_language_ids(const zeldata_toc* toc, zeldata_strings* ids)
{
    return call("getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs, toc, ids);
}

std::uint32_t zeldata_toc_get_language_count(const zeldata_toc* toc, std::uint64_t* count)
{
    return get<unsigned long>("getLanguageCount", &i_ZelDataLanguage::getLanguageCount, toc, count);
}

std::uint32_t zeldata_toc_get_language_display_names(const zeldata_toc* toc, zeldata_strings* names)
{
    return call("getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames, toc, names);
}

std::uint32_t zeldata_toc_get_language_native_display_names(const zeldata_toc* toc,
                                                            zeldata_strings* names)
{
    return call("getLanguageNativeDisplayNames", &i_ZelDataLanguage::getLanguageNativeDisplayNames,
                toc, names);
}

std::uint32_t zeldata_toc_does_language_exist(const zeldata_toc* toc, const char* id,
                                              std::size_t id_length, std::int32_t* exists)
{
    return get<bool>("doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist, toc, exists,
                     Text{id, id_length});
}

std::uint32_t zeldata_toc_copy_languages_from_header(zeldata_toc* toc, const zeldata_header* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, toc, source);
}

std::uint32_t zeldata_toc_copy_languages_from_captions(zeldata_toc* toc,
                                                       const zeldata_captions* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, toc, source);
}

std::uint32_t zeldata_toc_copy_languages_from_toc(zeldata_toc* toc, const zeldata_toc* source)
{
    return call("copyFrom", copyFrom<i_ZelDataLanguage>, toc, source);
}

std::uint32_t zeldata_toc_is_valid(const zeldata_toc* toc, std::int32_t deep)
{
    return call("isValid", &i_ZelDataToc::isValid, toc, deep != 0);
}

std::uint32_t zeldata_toc_make_consistent(zeldata_toc* toc)
{
    return call("makeTocConsistent", &i_ZelDataToc::makeTocConsistent, toc);
}

std::uint32_t zeldata_toc_set_frame_rate(zeldata_toc* toc, std::uint64_t rate)
{
    return call("setFrameRate", &i_ZelDataToc::setFrameRate, toc, rate);
}

std::uint32_t zeldata_toc_get_frame_rate(const zeldata_toc* toc, std::uint64_t* rate)
{
    return get<unsigned long>("getFrameRate", &i_ZelDataToc::getFrameRate, toc, rate);
}

std::uint32_t zeldata_toc_set_image_file(zeldata_toc* toc, const char* name,
                                         std::size_t name_length)
{
    return call("setImageFile", &i_ZelDataToc::setImageFile, toc, Text{name, name_length});
}

std::uint32_t zeldata_toc_get_image_file(const zeldata_toc* toc, zeldata_string* name)
{
    return call("getImageFile", &i_ZelDataToc::getImageFile, toc, name);
}

std::uint32_t zeldata_toc_clear_items(zeldata_toc* toc)
{
    return call("clearTocItems", &i_ZelDataToc::clearTocItems, toc);
}

std::uint32_t zeldata_toc_add_item(zeldata_toc* toc, const zeldata_toc_item* item)
{
    return call("addTocItem", &i_ZelDataToc::addTocItem, toc, item);
}

std::uint32_t zeldata_toc_create_item(const zeldata_toc* toc, zeldata_toc_item** out)
{
    return call("createTocItem", create, toc, out);
}

std::uint32_t zeldata_toc_remove_item(zeldata_toc* toc, std::uint64_t index)
{
    return call("removeTocItemAt", &i_ZelDataToc::removeTocItemAt, toc, index);
}

std::uint32_t zeldata_toc_remove_items_for_language(zeldata_toc* toc, const char* language_id,
                                                    std::size_t language_id_length)
{
    return call("removeTocItemsForLanguage", &i_ZelDataToc::removeTocItemsForLanguage, toc,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_get_item_count(const zeldata_toc* toc, std::uint64_t* count)
{
    return get<unsigned long>("getTocItemCount", &i_ZelDataToc::getTocItemCount, toc, count);
}

std::uint32_t zeldata_toc_get_item(const zeldata_toc* toc, zeldata_toc_item** out,
                                   std::uint64_t index)
{
    return call("getTocItemAt", getItem<i_ZelDataTocItem, &i_ZelDataToc::getTocItemAt>, toc, out,
                index);
}

std::uint32_t zeldata_toc_copy_from(zeldata_toc* toc, const zeldata_toc* source)
{
    return call("copyFrom", copyFrom<i_ZelDataToc>, toc, source);
}

std::uint32_t zeldata_toc_find_problems(const zeldata_toc* toc, zeldata_findings* findings)
{
    return call("findProblems", findAll, toc, findings);
}

// Entries of a table of contents.

std::uint32_t zeldata_toc_item_create(zeldata_toc_item** out)
{
    return createObject<zeldata_toc_item>(out);
}

void zeldata_toc_item_destroy(zeldata_toc_item* toc_item)
{
    delete toc_item;
}

std::uint32_t zeldata_toc_item_get_last_error(const zeldata_toc_item* toc_item)
{
    return lastError(toc_item);
}

std::uint32_t zeldata_toc_item_set_last_error(const zeldata_toc_item* toc_item, std::uint32_t code)
{
    return setLastError(toc_item, code);
}

std::uint32_t zeldata_toc_item_is_valid(const zeldata_toc_item* toc_item, std::int32_t deep)
{
    return call("isValid", &i_ZelDataTocItem::isValid, toc_item, deep != 0);
}

std::uint32_t zeldata_toc_item_clear_text(zeldata_toc_item* toc_item)
{
    return call("clearText", &i_ZelDataTocItem::clearText, toc_item);
}

std::uint32_t zeldata_toc_item_set_text_for_language(zeldata_toc_item* toc_item, const char* text,
                                                     std::size_t text_length,
                                                     const char* language_id,
                                                     std::size_t language_id_length)
{
    return call("setTextForLanguage", &ZelDataTocItem::setCharacters, toc_item,
                Characters{text, text_length}, Characters{language_id, language_id_length});
}

std::uint32_t zeldata_toc_item_set_start(zeldata_toc_item* toc_item, std::int64_t start)
{
    return call("setStart", &i_ZelDataTocItem::setStart, toc_item, start);
}

std::uint32_t zeldata_toc_item_set_image_file(zeldata_toc_item* toc_item, const char* name,
                                              std::size_t name_length)
{
    return call("setImageFile", &i_ZelDataTocItem::setImageFile, toc_item, Text{name, name_length});
}

std::uint32_t zeldata_toc_item_set_image_index(zeldata_toc_item* toc_item, std::uint64_t index)
{
    return call("setImageIndex", &i_ZelDataTocItem::setImageIndex, toc_item, index);
}

std::uint32_t zeldata_toc_item_set_image_offset(zeldata_toc_item* toc_item, std::uint64_t offset)
{
    return call(
        "setImageOffset", [offset](i_ZelDataTocItem& item) { return item.setImageOffset(offset); },
        toc_item);
}

std::uint32_t zeldata_toc_item_remove_text_for_language(zeldata_toc_item* toc_item,
                                                        const char* language_id,
                                                        std::size_t language_id_length)
{
    return call("removeTextForLanguage", &i_ZelDataTocItem::removeTextForLanguage, toc_item,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_item_get_language_ids(const zeldata_toc_item* toc_item,
                                                zeldata_strings* ids)
{
    return call("getLanguageIDs", &i_ZelDataTocItem::getLanguageIDs, toc_item, ids);
}

std::uint32_t zeldata_toc_item_get_text_for_language(const zeldata_toc_item* toc_item,
                                                     zeldata_string* text, const char* language_id,
                                                     std::size_t language_id_length)
{
    return call("getTextForLanguage", &i_ZelDataTocItem::getTextForLanguage, toc_item, text,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_item_get_start(const zeldata_toc_item* toc_item, std::int64_t* start)
{
    return get<long long>("getStart", &i_ZelDataTocItem::getStart, toc_item, start);
}

std::uint32_t zeldata_toc_item_get_image_file(const zeldata_toc_item* toc_item,
                                              zeldata_string* name)
{
    return call("getImageFile", &i_ZelDataTocItem::getImageFile, toc_item, name);
}

std::uint32_t zeldata_toc_item_get_image_index(const zeldata_toc_item* toc_item,
                                               std::uint64_t* index)
{
    return get<unsigned long>("getImageIndex", &i_ZelDataTocItem::getImageIndex, toc_item, index);
}

std::uint32_t zeldata_toc_item_get_image_offset(const zeldata_toc_item* toc_item,
                                                std::uint64_t* offset)
{
    return get<unsigned long long>("getImageOffset", &i_ZelDataTocItem::getImageOffset, toc_item,
                                   offset);
}

std::uint32_t zeldata_toc_item_copy_from(zeldata_toc_item* toc_item, const zeldata_toc_item* source)
{
    return call("copyFrom", copyFrom<i_ZelDataTocItem>, toc_item, source);
}

// Screen text.

std::uint32_t zeldata_screen_text_create(zeldata_screen_text** out)
{
    return createObject<zeldata_screen_text>(out);
}

void zeldata_screen_text_destroy(zeldata_screen_text* screen_text)
{
    delete screen_text;
}

std::uint32_t zeldata_screen_text_get_last_error(const zeldata_screen_text* screen_text)
{
    return lastError(screen_text);
}

std::uint32_t zeldata_screen_text_set_last_error(const zeldata_screen_text* screen_text,
                                                 std::uint32_t code)
{
    return setLastError(screen_text, code);
}

std::uint32_t zeldata_screen_text_is_valid(const zeldata_screen_text* screen_text,
                                           std::int32_t deep)
{
    return call("isValid", &i_ZelDataScreenText::isValid, screen_text, deep != 0);
}

std::uint32_t zeldata_screen_text_make_consistent(zeldata_screen_text* screen_text)
{
    return call("makeScreenTextConsistent", &i_ZelDataScreenText::makeScreenTextConsistent,
                screen_text);
}

std::uint32_t zeldata_screen_text_set_frame_rate(zeldata_screen_text* screen_text,
                                                 std::uint64_t rate)
{
    return call("setFrameRate", &i_ZelDataScreenText::setFrameRate, screen_text, rate);
}

std::uint32_t zeldata_screen_text_get_frame_rate(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* rate)
{
    return get<unsigned long>("getFrameRate", &i_ZelDataScreenText::getFrameRate, screen_text,
                              rate);
}

std::uint32_t zeldata_screen_text_clear_items(zeldata_screen_text* screen_text)
{
    return call("clearScreenTextItems", &i_ZelDataScreenText::clearScreenTextItems, screen_text);
}

std::uint32_t zeldata_screen_text_add_item(zeldata_screen_text* screen_text,
                                           const zeldata_screen_text_item* item)
{
    return call("addScreenTextItem", &i_ZelDataScreenText::addScreenTextItem, screen_text, item);
}

std::uint32_t zeldata_screen_text_create_item(const zeldata_screen_text* screen_text,
                                              zeldata_screen_text_item** out)
{
    return call("createScreenTextItem", create, screen_text, out);
}

std::uint32_t zeldata_screen_text_remove_item(zeldata_screen_text* screen_text, std::uint64_t index)
{
    return call("removeScreenTextItemAt", &i_ZelDataScreenText::removeScreenTextItemAt, screen_text,
                index);
}

std::uint32_t zeldata_screen_text_get_item_count(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* count)
{
    return get<unsigned long>("getScreenTextItemCount",
                              &i_ZelDataScreenText::getScreenTextItemCount, screen_text, count);
}

std::uint32_t zeldata_screen_text_get_item(const zeldata_screen_text* screen_text,
                                           zeldata_screen_text_item** out, std::uint64_t index)
{
    return call("getScreenTextItemAt",
                getItem<i_ZelDataScreenTextItem, &i_ZelDataScreenText::getScreenTextItemAt>,
                screen_text, out, index);
}

std::uint32_t zeldata_screen_text_copy_from(zeldata_screen_text* screen_text,
                                            const zeldata_screen_text* source)
{
    return call("copyFrom", copyFrom<i_ZelDataScreenText>, screen_text, source);
}

std::uint32_t zeldata_screen_text_find_problems(const zeldata_screen_text* screen_text,
                                                zeldata_findings* findings)
{
    return call("findProblems", findAll, screen_text, findings);
}

// Screen text items.

std::uint32_t zeldata_screen_text_item_create(zeldata_screen_text_item** out)
{
    return createObject<zeldata_screen_text_item>(out);
}

void zeldata_screen_text_item_destroy(zeldata_screen_text_item* screen_text_item)
{
    delete screen_text_item;
}

std::uint32_t
zeldata_screen_text_item_get_last_error(const zeldata_screen_text_item* screen_text_item)
{
    return lastError(screen_text_item);
}

std::uint32_t
zeldata_screen_text_item_set_last_error(const zeldata_screen_text_item* screen_text_item,
                                        std::uint32_t code)
{
    return setLastError(screen_text_item, code);
}

std::uint32_t zeldata_screen_text_item_is_valid(const zeldata_screen_text_item* screen_text_item,
                                                std::int32_t deep)
{
    return call("isValid", &i_ZelDataScreenTextItem::isValid, screen_text_item, deep != 0);
}

std::uint32_t zeldata_screen_text_item_clear_text(zeldata_screen_text_item* screen_text_item)
{
    return call("clearText", &i_ZelDataScreenTextItem::clearText, screen_text_item);
}

std::uint32_t zeldata_screen_text_item_set_text(zeldata_screen_text_item* screen_text_item,
                                                const char* text, std::size_t text_length)
{
    return call("setText", &ZelDataScreenTextItem::setCharacters, screen_text_item,
                Characters{text, text_length});
}

std::uint32_t zeldata_screen_text_item_set_start(zeldata_screen_text_item* screen_text_item,
                                                 std::int64_t start)
{
    return call("setStart", &i_ZelDataScreenTextItem::setStart, screen_text_item, start);
}

std::uint32_t zeldata_screen_text_item_set_end(zeldata_screen_text_item* screen_text_item,
                                               std::int64_t end)
{
    return call("setEnd", &i_ZelDataScreenTextItem::setEnd, screen_text_item, end);
}

std::uint32_t zeldata_screen_text_item_set_duration(zeldata_screen_text_item* screen_text_item,
                                                    std::int64_t duration)
{
    return call("setDuration", &i_ZelDataScreenTextItem::setDuration, screen_text_item, duration);
}

std::uint32_t zeldata_screen_text_item_set_image_file(zeldata_screen_text_item* screen_text_item,
                                                      const char* name, std::size_t name_length)
{
    return call("setImageFile", &i_ZelDataScreenTextItem::setImageFile, screen_text_item,
                Text{name, name_length});
}

std::uint32_t zeldata_screen_text_item_set_image_index(zeldata_screen_text_item* screen_text_item,
                                                       std::uint64_t index)
{
    return call("setImageIndex", &i_ZelDataScreenTextItem::setImageIndex, screen_text_item, index);
}

std::uint32_t zeldata_screen_text_item_set_image_offset(zeldata_screen_text_item* screen_text_item,
                                                        std::uint64_t offset)
{
    return call(
        "setImageOffset",
        [offset](i_ZelDataScreenTextItem& item) { return item.setImageOffset(offset); },
        screen_text_item);
}

std::uint32_t zeldata_screen_text_item_set_group_id(zeldata_screen_text_item* screen_text_item,
                                                    std::uint64_t id)
{
    return call("setGroupId", &i_ZelDataScreenTextItem::setGroupId, screen_text_item, id);
}

std::uint32_t zeldata_screen_text_item_get_text(const zeldata_screen_text_item* screen_text_item,
                                                zeldata_string* text)
{
    return call("getText", &i_ZelDataScreenTextItem::getText, screen_text_item, text);
}

std::uint32_t zeldata_screen_text_item_get_start(const zeldata_screen_text_item* screen_text_item,
                                                 std::int64_t* start)
{
    return get<long long>("getStart", &i_ZelDataScreenTextItem::getStart, screen_text_item, start);
}

std::uint32_t zeldata_screen_text_item_get_end(const zeldata_screen_text_item* screen_text_item,
                                               std::int64_t* end)
{
    return get<long long>("getEnd", &i_ZelDataScreenTextItem::getEnd, screen_text_item, end);
}

std::uint32_t
zeldata_screen_text_item_get_duration(const zeldata_screen_text_item* screen_text_item,
                                      std::int64_t* duration)
{
    return get<long long>("getDuration", &i_ZelDataScreenTextItem::getDuration, screen_text_item,
                          duration);
}

std::uint32_t
zeldata_screen_text_item_get_image_file(const zeldata_screen_text_item* screen_text_item,
                                        zeldata_string* name)
{
    return call("getImageFile", &i_ZelDataScreenTextItem::getImageFile, screen_text_item, name);
}

std::uint32_t
zeldata_screen_text_item_get_image_index(const zeldata_screen_text_item* screen_text_item,
                                         std::uint64_t* index)
{
    return get<unsigned long>("getImageIndex", &i_ZelDataScreenTextItem::getImageIndex,
                              screen_text_item, index);
}

std::uint32_t
zeldata_screen_text_item_get_image_offset(const zeldata_screen_text_item* screen_text_item,
                                          std::uint64_t* offset)
{
    return get<unsigned long long>("getImageOffset", &i_ZelDataScreenTextItem::getImageOffset,
                                   screen_text_item, offset);
}

std::uint32_t
zeldata_screen_text_item_get_group_id(const zeldata_screen_text_item* screen_text_item,
                                      std::uint64_t* id)
{
    return get<unsigned long>("getGroupId", &i_ZelDataScreenTextItem::getGroupId, screen_text_item,
                              id);
}

std::uint32_t zeldata_screen_text_item_copy_from(zeldata_screen_text_item* screen_text_item,
                                                 const zeldata_screen_text_item* source)
{
    return call("copyFrom", copyFrom<i_ZelDataScreenTextItem>, screen_text_item, source);
}

// Header formatters.

std::uint32_t zeldata_header_formatter_create(zeldata_header_formatter** out, std::uint32_t format)
{
    return createFormatter<zeldata_header_formatter>(out,
                                                     static_cast<ZelDataFormatType_tags>(format));
}

void zeldata_header_formatter_destroy(zeldata_header_formatter* header_formatter)
{
    delete header_formatter;
}

std::uint32_t
zeldata_header_formatter_get_last_error(const zeldata_header_formatter* header_formatter)
{
    return lastError(header_formatter);
}

std::uint32_t
zeldata_header_formatter_set_last_error(const zeldata_header_formatter* header_formatter,
                                        std::uint32_t code)
{
    return setLastError(header_formatter, code);
}

std::uint32_t
zeldata_header_formatter_write_string(const zeldata_header_formatter* header_formatter,
                                      zeldata_string* out, std::uint32_t format, std::int32_t flag)
{
    return call("writeString", writeString(flag), header_formatter, out,
                static_cast<ZelDataFormatType_tags>(format));
}

std::uint32_t zeldata_header_formatter_set_header(zeldata_header_formatter* header_formatter,
                                                  const zeldata_header* header)
{
    return call("setHeader", &i_ZelDataHeaderFormatter::setHeader, header_formatter, header);
}

// Caption formatters.

std::uint32_t zeldata_caption_formatter_create(zeldata_caption_formatter** out,
                                               std::uint32_t format)
{
    return createFormatter<zeldata_caption_formatter>(out,
                                                      static_cast<ZelDataFormatType_tags>(format));
}

void zeldata_caption_formatter_destroy(zeldata_caption_formatter* caption_formatter)
{
    delete caption_formatter;
}

std::uint32_t
zeldata_caption_formatter_get_last_error(const zeldata_caption_formatter* caption_formatter)
{
    return lastError(caption_formatter);
}

std::uint32_t
zeldata_caption_formatter_set_last_error(const zeldata_caption_formatter* caption_formatter,
                                         std::uint32_t code)
{
    return setLastError(caption_formatter, code);
}

std::uint32_t
zeldata_caption_formatter_write_string(const zeldata_caption_formatter* caption_formatter,
                                       zeldata_string* out, std::uint32_t format, std::int32_t flag)
{
    return call("writeString", writeString(flag), caption_formatter, out,
                static_cast<ZelDataFormatType_tags>(format));
}

std::uint32_t zeldata_caption_formatter_set_captions(zeldata_caption_formatter* caption_formatter,
                                                     const zeldata_captions* captions)
{
    return call("setCaptions", &i_ZelDataCaptionFormatter::setCaptions, caption_formatter,
                captions);
}

// Formatters of tables of contents.

std::uint32_t zeldata_toc_formatter_create(zeldata_toc_formatter** out, std::uint32_t format)
{
    return createFormatter<zeldata_toc_formatter>(out, static_cast<ZelDataFormatType_tags>(format));
}

void zeldata_toc_formatter_destroy(zeldata_toc_formatter* toc_formatter)
{
    delete toc_formatter;
}

std::uint32_t zeldata_toc_formatter_get_last_error(const zeldata_toc_formatter* toc_formatter)
{
    return lastError(toc_formatter);
}

std::uint32_t zeldata_toc_formatter_set_last_error(const zeldata_toc_formatter* toc_formatter,
                                                   std::uint32_t code)
{
    return setLastError(toc_formatter, code);
}

std::uint32_t zeldata_toc_formatter_write_string(const zeldata_toc_formatter* toc_formatter,
                                                 zeldata_string* out, std::uint32_t format,
                                                 std::int32_t flag)
{
    return call("writeString", writeString(flag), toc_formatter, out,
                static_cast<ZelDataFormatType_tags>(format));
}

std::uint32_t zeldata_toc_formatter_set_toc(zeldata_toc_formatter* toc_formatter,
                                            const zeldata_toc* toc)
{
    return call("setToc", &i_ZelDataTocFormatter::setToc, toc_formatter, toc);
}

// Screen text formatters.

std::uint32_t zeldata_screen_text_formatter_create(zeldata_screen_text_formatter** out,
                                                   std::uint32_t format)
{
    return createFormatter<zeldata_screen_text_formatter>(
        out, static_cast<ZelDataFormatType_tags>(format));
}

void zeldata_screen_text_formatter_destroy(zeldata_screen_text_formatter* screen_text_formatter)
{
    delete screen_text_formatter;
}

std::uint32_t zeldata_screen_text_formatter_get_last_error(
    const zeldata_screen_text_formatter* screen_text_formatter)
{
    return lastError(screen_text_formatter);
}

std::uint32_t zeldata_screen_text_formatter_set_last_error(
    const zeldata_screen_text_formatter* screen_text_formatter, std::uint32_t code)
{
    return setLastError(screen_text_formatter, code);
}

std::uint32_t zeldata_screen_text_formatter_write_string(
    const zeldata_screen_text_formatter* screen_text_formatter, zeldata_string* out,
    std::uint32_t format, std::int32_t flag)
{
    return call("writeString", writeString(flag), screen_text_formatter, out,
                static_cast<ZelDataFormatType_tags>(format));
}

std::uint32_t
zeldata_screen_text_formatter_set_screen_text(zeldata_screen_text_formatter* screen_text_formatter,
                                              const zeldata_screen_text* screen_text)
{
    return call("setScreenText", &i_ZelDataScreenTextFormatter::setScreenText,
                screen_text_formatter, screen_text);
}

// Findings.

namespace {

std::string description(const ZelDataFinding& finding)
{
    return describe(finding);
}
template <auto item>
std::uint64_t indexOf(const ZelDataFinding& finding)
{
    return finding.*item == ZelDataFinding::noItem ? ZELDATA_NO_ITEM : finding.*item;
}

} // namespace

struct zeldata_findings : Of<Findings> {};

std::uint32_t zeldata_findings_create(zeldata_findings** out)
{
    return createObject<zeldata_findings>(out);
}

void zeldata_findings_destroy(zeldata_findings* findings)
{
    delete findings;
}

std::uint32_t zeldata_findings_get_count(const zeldata_findings* findings, std::uint64_t* count)
{
    return call("getCount", countOf, findings, count);
}

std::uint32_t zeldata_findings_get_kind(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* kind)
{
    return call("getKind", partAt<&ZelDataFinding::kind>, findings, index, kind);
}

std::uint32_t zeldata_findings_get_subject(const zeldata_findings* findings, std::uint64_t index,
                                           std::uint32_t* subject)
{
    return call("getSubject", partAt<&ZelDataFinding::subject>, findings, index, subject);
}

std::uint32_t zeldata_findings_get_item_index(const zeldata_findings* findings, std::uint64_t index,
                                              std::uint64_t* item)
{
    return call("getItemIndex", partAt<indexOf<&ZelDataFinding::item>>, findings, index, item);
}

std::uint32_t zeldata_findings_get_start(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* start)
{
    return call("getStart", partAt<&ZelDataFinding::start>, findings, index, start);
}

std::uint32_t zeldata_findings_get_language(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* language)
{
    return call("getLanguage", guardedOperation(partAt<&ZelDataFinding::language>), findings, index,
                language);
}

std::uint32_t zeldata_findings_get_property(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* property)
{
    return call("getProperty", guardedOperation(partAt<&ZelDataFinding::property>), findings, index,
                property);
}

std::uint32_t zeldata_findings_get_component(const zeldata_findings* findings, std::uint64_t index,
                                             float* component)
{
    return call("getComponent", partAt<&ZelDataFinding::component>, findings, index, component);
}

std::uint32_t zeldata_findings_get_value(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* value)
{
    return call("getValue", partAt<&ZelDataFinding::value>, findings, index, value);
}

std::uint32_t zeldata_findings_get_limit(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* limit)
{
    return call("getLimit", partAt<&ZelDataFinding::limit>, findings, index, limit);
}

std::uint32_t zeldata_findings_get_later_item_index(const zeldata_findings* findings,
                                                    std::uint64_t index, std::uint64_t* later_item)
{
    return call("getLaterItemIndex", partAt<indexOf<&ZelDataFinding::laterItem>>, findings, index,
                later_item);
}

std::uint32_t zeldata_findings_get_later_start(const zeldata_findings* findings,
                                               std::uint64_t index, std::int64_t* later_start)
{
    return call("getLaterStart", partAt<&ZelDataFinding::laterStart>, findings, index, later_start);
}

std::uint32_t zeldata_findings_get_severity(const zeldata_findings* findings, std::uint64_t index,
                                            std::uint32_t* severity)
{
    return call("getSeverity", partAt<severityOf>, findings, index, severity);
}

std::uint32_t zeldata_findings_get_code(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* code)
{
    return call("getCode", partAt<codeOf>, findings, index, code);
}

std::uint32_t zeldata_findings_describe(const zeldata_findings* findings, std::uint64_t index,
                                        zeldata_string* text)
{
    return call("describe", guardedOperation(partAt<description>), findings, index, text);
}

const char* zeldata_finding_to_string(std::uint32_t kind)
{
    return toString(static_cast<ZelDataFinding_tags>(kind));
}

// Language catalogue.

namespace {

/// Calls an operation that needs no object. No handle keeps a message.
template <class Operation, class... Given>
std::uint32_t callWithoutObject(Operation operation, Given... given)
{
    const Handle memory;
    Code code = ZelData_Ok;
    if ((failed(code = prepare(memory, given)) || ...)) return code;
    return guarded([&] { return std::invoke(operation, passed(memory, given)...); });
}

} // namespace

std::uint32_t zeldata_english_name_for_language(const char* id, std::size_t id_length,
                                                zeldata_string* name)
{
    return callWithoutObject(&ZelDataUtilities::englishNameForLanguage, Text{id, id_length}, name);
}

std::uint32_t zeldata_native_name_for_language(const char* id, std::size_t id_length,
                                               zeldata_string* name)
{
    return callWithoutObject(&ZelDataUtilities::nativeNameForLanguage, Text{id, id_length}, name);
}

std::uint32_t zeldata_is_valid_language(const char* id, std::size_t id_length)
{
    return callWithoutObject(&ZelDataUtilities::isValidLanguage, Text{id, id_length});
}

// Text helpers.

namespace {

/// Stores the text that @p make returns.
template <class Given, std::string (*make)(Given)>
Code made(Given given, std::string& text)
{
    make(given).swap(text);
    return ZelData_Ok;
}

Code linesOf(const std::string& text, std::uint64_t& count)
{
    count = ZelDataUtilities::countLinesInUTF8(text);
    return ZelData_Ok;
}

} // namespace

std::uint32_t zeldata_verify_utf8_format(const char* text, std::size_t text_length,
                                         std::int32_t bmp_only)
{
    return callWithoutObject(&ZelDataUtilities::verifyUtf8Format, Text{text, text_length},
                             bmp_only != 0);
}

std::uint32_t zeldata_count_lines_in_utf8(const char* text, std::size_t text_length,
                                          std::uint64_t* count)
{
    return callWithoutObject(linesOf, Text{text, text_length}, count);
}

std::uint32_t zeldata_strip_unsupported_characters(const char* text, std::size_t text_length,
                                                   zeldata_string* result)
{
    return callWithoutObject(
        made<const std::string&, &ZelDataUtilities::stripUnsupportedCharacters>,
        Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_to_text(const char* text, std::size_t text_length,
                                        zeldata_string* result)
{
    return callWithoutObject(made<const std::string&, &ZelDataUtilities::htmlTagsToText>,
                             Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_from_text(const char* text, std::size_t text_length,
                                          zeldata_string* result)
{
    return callWithoutObject(made<const std::string&, &ZelDataUtilities::htmlTagsFromText>,
                             Text{text, text_length}, result);
}

std::uint32_t zeldata_get_vertical_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return callWithoutObject(made<ZelAlignment_tags, &ZelDataUtilities::getVerticalAlignment>,
                             static_cast<ZelAlignment_tags>(alignment), result);
}

std::uint32_t zeldata_get_horizontal_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return callWithoutObject(made<ZelAlignment_tags, &ZelDataUtilities::getHorizontalAlignment>,
                             static_cast<ZelAlignment_tags>(alignment), result);
}

// Texts of values.

namespace {

std::string dateOf(long seconds)
{
    return ZelDataUtilities::getDateString(&seconds);
}
Code dateOfNow(std::string& date)
{
    ZelDataUtilities::getDateString(nullptr).swap(date);
    return ZelData_Ok;
}

} // namespace

std::uint32_t zeldata_get_value_string_float(float value, zeldata_string* result)
{
    return callWithoutObject(made<float, &ZelDataUtilities::getValueString>, value, result);
}

std::uint32_t zeldata_get_value_string_uint64(std::uint64_t value, zeldata_string* result)
{
    const auto makeString = [value](std::string& text) {
        text = ZelDataUtilities::getValueString(static_cast<unsigned long long>(value));
        return ZelData_Ok;
    };
    return callWithoutObject(makeString, result);
}

std::uint32_t zeldata_get_rate_string(std::uint64_t rate, zeldata_string* result)
{
    return callWithoutObject(made<unsigned long, &ZelDataUtilities::getRateString>, rate, result);
}

std::uint32_t zeldata_get_version_string(std::uint64_t version, zeldata_string* result)
{
    return callWithoutObject(made<unsigned long, &ZelDataUtilities::getVersionString>, version,
                             result);
}

std::uint32_t zeldata_get_date_string(std::int64_t seconds, zeldata_string* date)
{
    if (static_cast<long>(seconds) != seconds) return ZelData_InvalidArgument;
    return callWithoutObject(made<long, dateOf>, seconds, date);
}

std::uint32_t zeldata_get_date_string_now(zeldata_string* date)
{
    return callWithoutObject(dateOfNow, date);
}

std::uint32_t zeldata_get_value_string_int64(std::int64_t value, zeldata_string* result)
{
    if (static_cast<long>(value) != value) return ZelData_InvalidArgument;
    return callWithoutObject(made<long, &getValueString>, value, result);
}

// NOLINTEND(readability-identifier-naming)
