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

#include <cstdint>
#include <cstring>
#include <exception>
#include <functional>
#include <initializer_list>
#include <memory>
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

/// @name Handles
/// @{

/// What every handle begins with.
struct Handle {
    i_ZelDataResult* object = nullptr;
    mutable const char* shown = "";
    mutable std::string message;
};

template <class Object>
struct Of : Handle {
    Of() { object = &own; }

    Object own;
};

/// The object of a handle that C++ has as a plain value, such as a std::string.
template <class Type>
struct Value;

/// Shows what @p make returns, or the meaning of @p code if memory runs out.
template <class Make>
void show(const Handle& handle, Code code, Make&& make)
{
    static_assert(!std::is_pointer_v<decltype(make())>, "the text may end with make()");
    handle.message = ZelDataMessages::orNothing(make);
    handle.shown = handle.message.empty() ? describe(code) : handle.message.c_str();
}

/// Keeps the message of a call that failed, unless the operation has kept one, and returns its code.
[[gnu::noinline]] std::uint32_t keep(const Handle* handle, const char* name, Code code,
                                     std::initializer_list<ZelDataArgument> arguments = {}) noexcept
{
    if (handle == nullptr || *handle->shown != '\0') return code;
    show(*handle, code, [&]() -> std::string {
        if (code == ZelData_OutOfMemory) return {};
        const ZelDataCall call = {name, code, arguments};
        return ZelDataError(code, name, call.shownArguments(), {}).what();
    });
    return code;
}
/// @}

/// @name Arguments
/// If all arguments are usable, the operation gets passed() for each; a message shows shown(). If
/// the operation succeeded, store() stores its result.
/// @{

struct AnyArgument {
    explicit AnyArgument(bool isUsable = true) : usable(isUsable) {}
    /// Nothing: this is the format that no message shows.
    ZelDataArgument shown() const { return ZelDataArgument(ZelDataFormat_Xmp); }
    void store() const {}

    bool usable;
};

/// A number, which must fit, or a pointer.
template <class Parameter, class Given>
struct Argument : AnyArgument {
    explicit Argument(Given given) : value(static_cast<Parameter>(given))
    {
        if constexpr (sizeof(Parameter) < sizeof(Given) && !std::is_same_v<Parameter, bool>)
            usable = static_cast<Given>(value) == given;
    }
    Parameter passed() const { return value; }
    ZelDataArgument shown() const
    {
        constexpr bool isShown = std::is_constructible_v<ZelDataArgument, Parameter>;
        if constexpr (isShown && !std::is_pointer_v<Parameter>)
            return ZelDataArgument(value);
        else
            return AnyArgument::shown();
    }

    Parameter value;
};

struct Text {
    const char* begin;
    std::size_t length;
};

/// A text: a string or a view, as the operation takes it.
template <class Parameter>
struct Argument<Parameter, Text> : AnyArgument {
    explicit Argument(Text given) : AnyArgument(given.begin != nullptr)
    {
        if (given.begin == nullptr) return;
        if (given.length == ZELDATA_TERMINATED) given.length = std::strlen(given.begin);
        usable = given.length <= INT32_MAX;
        if (usable) value = std::string_view(given.begin, given.length);
    }
    auto& passed() { return value; }
    ZelDataArgument shown() const { return ZelDataArgument(value); }

    std::decay_t<Parameter> value;
};

/// A number that the operation stores.
template <class Result, class Given>
struct Argument<Result&, Given*> : AnyArgument {
    explicit Argument(Given* given) : AnyArgument(given != nullptr), target(given) {}
    Result& passed() { return value; }
    void store() const { *target = static_cast<Given>(value); }

    Given* target;
    Result value{};
};

/// An object. A message shows a list of texts, and nothing for the others.
template <class Target>
struct Argument<Target&, const Handle*> : AnyArgument {
    explicit Argument(const Handle* given) : AnyArgument(given != nullptr), handle(given) {}
    Target& passed() const
    {
        if constexpr (std::is_base_of_v<i_ZelDataResult, Target>)
            return static_cast<Target&>(*handle->object);
        else
            return static_cast<Value<std::remove_const_t<Target>>&>(*handle->object).value;
    }
    ZelDataArgument shown() const
    {
        if constexpr (std::is_same_v<Target, const Texts>)
            return ZelDataArgument(passed());
        else
            return AnyArgument::shown();
    }

    const Handle* handle;
};
/// @}

/// @name Calls
/// @{

/// Calls @p operation with what C passes for its parameters. If the first is a handle, it keeps the
/// message, which shows the others. Member functions are called through their common base.
template <class Object, class... Parameters, class Operation, class First, class... Given>
[[gnu::noinline]] std::uint32_t perform(const char* name, Operation operation, First first,
                                        Given... given)
{
    const Handle* handle = nullptr;
    if constexpr (std::is_same_v<First, const Handle*>) handle = first;
    if (handle != nullptr) handle->shown = "";
    const auto run = [&](auto&& object, auto&&... argument) -> std::uint32_t {
        if (!(object.usable && ... && argument.usable))
            return keep(handle, name, ZelData_InvalidArgument);
        const Code code = std::invoke(operation, object.passed(), argument.passed()...);
        if (failed(code)) return keep(handle, name, code, {argument.shown()...});
        (argument.store(), ...);
        return code;
    };
    try {
        return run(Argument<Object, First>(first), Argument<Parameters, Given>(given)...);
    } catch (const std::exception&) { // std::length_error, too
        return keep(handle, name, ZelData_OutOfMemory);
    }
}

/// All handles have one type here, so that operations with the same parameters share an instance.
template <class Given>
auto erased(Given given)
{
    if constexpr (std::is_convertible_v<Given, const Handle*>)
        return static_cast<const Handle*>(given);
    else
        return given;
}

template <class Object, class... Parameters, class... Given>
std::uint32_t call(const char* name, Code (Object::*operation)(Parameters...), Given... given)
{
    return perform<i_ZelDataResult&, Parameters...>(
        name, static_cast<Code (i_ZelDataResult::*)(Parameters...)>(operation), erased(given)...);
}
template <class Object, class... Parameters, class... Given>
std::uint32_t call(const char* name, Code (Object::*operation)(Parameters...) const, Given... given)
{
    return perform<i_ZelDataResult&, Parameters...>(
        name, static_cast<Code (i_ZelDataResult::*)(Parameters...) const>(operation),
        erased(given)...);
}
template <class... Parameters, class... Given>
std::uint32_t call(const char* name, Code (*operation)(Parameters...), Given... given)
{
    return perform<Parameters...>(name, operation, erased(given)...);
}
/// @}

/// @name Operations that C++ offers in another form
/// @{

template <class Made>
Code createFor(const i_ZelDataResult& object, void* out)
{
    const Code code = createObject<Made>(static_cast<Made**>(out));
    object.setLastError(code);
    return code;
}
template <class Made>
std::uint32_t make(const Handle* handle, const char* name, Made** out)
{
    return call(name, createFor<Made>, handle, static_cast<void*>(out));
}

/// Stores a handle of a copy of the item that @p getter returns.
template <auto getter, class Collection, class Item, class Made>
Code copied(i_ZelDataResult& collection, unsigned long index, void* place)
{
    const auto out = static_cast<Made**>(place);
    if (!isEmptyOutPointer(out)) return ZelData_InvalidArgument;
    Item* item = nullptr;
    Code code = (static_cast<Collection&>(collection).*getter)(&item, index);
    const std::unique_ptr<Item> owner(item);
    if (failed(code)) return code;
    std::unique_ptr<Made> made(new (std::nothrow) Made);
    code = made == nullptr ? ZelData_OutOfMemory : made->own.copyFrom(*item);
    if (!failed(code)) *out = made.release();
    collection.setLastError(code);
    return code;
}

template <class Interface>
constexpr Code (Interface::*copyFrom)(const Interface&) = &Interface::copyFrom;

template <class Interface>
Code findProblemsOf(const i_ZelDataResult& object, Findings& findings)
{
    return findProblems(static_cast<const Interface&>(object), findings);
}

Code storeLastError(const i_ZelDataResult& object, ZelDataResult_tags code)
{
    object.setLastError(code);
    return ZelData_Ok;
}
std::uint32_t setLastError(const Handle* handle, std::uint32_t code)
{
    return call("setLastError", storeLastError, handle, code);
}
std::uint32_t lastError(const Handle* handle)
{
    return handle == nullptr ? ZelData_InvalidArgument : handle->object->getLastError();
}
/// @}

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
    return static_cast<const Handle*>(handle)->shown;
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

namespace {

template <>
struct Value<std::string> : i_ZelDataResult {
    Code set(std::string& text)
    {
        value.swap(text);
        return ZelData_Ok;
    }
    Code copy(char* buffer, unsigned long long capacity, std::size_t* needed) const
    {
        if (needed == nullptr) return ZelData_InvalidArgument;
        *needed = value.size() + 1;
        if (buffer == nullptr || capacity < *needed) return ZelData_InvalidArgument;
        std::memcpy(buffer, value.c_str(), *needed);
        return ZelData_Ok;
    }

    std::string value;
};
using String = Value<std::string>;

} // namespace

struct zeldata_string : Of<String> {};

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
    return call("set", &String::set, string, Text{text, text_length});
}

const char* zeldata_string_get_data(const zeldata_string* string)
{
    return string == nullptr ? "" : string->own.value.c_str();
}

std::size_t zeldata_string_get_size(const zeldata_string* string)
{
    return string == nullptr ? 0 : string->own.value.size();
}

std::uint32_t zeldata_string_copy(const zeldata_string* string, char* buffer, std::size_t capacity,
                                  std::size_t* needed)
{
    return call("copy", &String::copy, string, buffer, capacity, needed);
}

// Lists of texts.

namespace {

template <class Element>
struct Value<std::vector<Element>> : i_ZelDataResult {
    Code clear()
    {
        value.clear();
        return ZelData_Ok;
    }
    Code add(Element& element)
    {
        value.push_back(std::move(element));
        return ZelData_Ok;
    }
    Code getCount(unsigned long& count) const
    {
        count = static_cast<unsigned long>(value.size());
        return ZelData_Ok;
    }
    /// Stores what @p part, a member or a function, is or returns for the element.
    template <auto part, class Out>
    Code get(unsigned long index, Out& out) const
    {
        if (index >= value.size()) return ZelData_InvalidArgument;
        out = static_cast<Out>(std::invoke(part, value[index]));
        return ZelData_Ok;
    }

    std::vector<Element> value;
};
using Strings = Value<Texts>;

const std::string& itself(const std::string& text)
{
    return text;
}

} // namespace

struct zeldata_strings : Of<Strings> {};

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
    return call("clear", &Strings::clear, strings);
}

std::uint32_t zeldata_strings_add(zeldata_strings* strings, const char* text,
                                  std::size_t text_length)
{
    return call("add", &Strings::add, strings, Text{text, text_length});
}

std::uint32_t zeldata_strings_get_count(const zeldata_strings* strings, std::uint64_t* count)
{
    return call("getCount", &Strings::getCount, strings, count);
}

std::uint32_t zeldata_strings_get(const zeldata_strings* strings, std::uint64_t index,
                                  zeldata_string* text)
{
    return call("get", &Strings::get<itself, std::string>, strings, index, text);
}

// Documents.

namespace {

// With the flag as a number, a message does not show it.
Code writeString(const i_ZelDataFormatterBase& formatter, std::string& out,
                 ZelDataFormatType_tags format, std::int32_t append)
{
    return formatter.writeString(out, format, append != 0);
}

Code writeFile(const i_ZelDataFormatterBase& formatter, const std::string& path,
               ZelDataFormatType_tags format, std::int32_t flag)
{
    return formatter.writeFile(path, format, flag != 0);
}

/// Keeps the system's message, which the C++ function throws, in @p keeper.
Code replacedFile(const i_ZelInterchangeDataCore& document, const std::string& path,
                  ZelDataFormatType_tags format, std::int32_t* systemError, const void* keeper)
{
    if (systemError == nullptr) return ZelData_InvalidArgument;
    const Code code = replaceFile(document, path, *systemError, format);
    if (*systemError != 0)
        show(*static_cast<const Handle*>(keeper), code, [&]() -> std::string {
            return ZelDataMessages::fileError(path, *systemError).what();
        });
    return code;
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
    return call("writeString", writeString, document, out, format, flag);
}

std::uint32_t zeldata_document_write_file(const zeldata_document* document, const char* path,
                                          std::size_t path_length, std::uint32_t format,
                                          std::int32_t flag)
{
    return call("writeFile", writeFile, document, Text{path, path_length}, format, flag);
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
    return make(document, "createDataHeader", out);
}

std::uint32_t zeldata_document_create_captions(const zeldata_document* document,
                                               zeldata_captions** out)
{
    return make(document, "createDataCaptions", out);
}

std::uint32_t zeldata_document_create_toc(const zeldata_document* document, zeldata_toc** out)
{
    return make(document, "createDataToc", out);
}

std::uint32_t zeldata_document_create_screen_text(const zeldata_document* document,
                                                  zeldata_screen_text** out)
{
    return make(document, "createDataScreenText", out);
}

std::uint32_t zeldata_document_find_problems(const zeldata_document* document,
                                             zeldata_findings* findings)
{
    return call("findProblems", findProblemsOf<i_ZelInterchangeDataCore>, document, findings);
}

std::uint32_t zeldata_document_replace_file(const zeldata_document* document, const char* path,
                                            std::size_t path_length, std::int32_t* system_error,
                                            std::uint32_t format)
{
    if (system_error != nullptr) *system_error = 0;
    return call("replaceFile", replacedFile, document, Text{path, path_length}, format,
                system_error, static_cast<const void*>(erased(document)));
}

// Headers.

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
    return call("getLanguageCount", &i_ZelDataLanguage::getLanguageCount, header, count);
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
    return call("doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist, header,
                Text{id, id_length}, exists);
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
    return call("setIPodExplicit", &i_ZelDataHeader::setIPodExplicit, header, is_explicit);
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
    return call("getIPodExplicit", &i_ZelDataHeader::getIPodExplicit, header, is_explicit);
}

std::uint32_t zeldata_header_get_video_length(const zeldata_header* header,
                                              std::uint64_t* milliseconds)
{
    return call("getVideoLength", &i_ZelDataHeader::getVideoLength, header, milliseconds);
}

std::uint32_t zeldata_header_get_video_width(const zeldata_header* header, std::uint64_t* pixels)
{
    return call("getVideoWidth", &i_ZelDataHeader::getVideoWidth, header, pixels);
}

std::uint32_t zeldata_header_get_video_height(const zeldata_header* header, std::uint64_t* pixels)
{
    return call("getVideoHeight", &i_ZelDataHeader::getVideoHeight, header, pixels);
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
    return call("getContentNameCount", &i_ZelDataHeader::getContentNameCount, header, count);
}

std::uint32_t zeldata_header_get_content_names(const zeldata_header* header, zeldata_strings* names)
{
    return call("getContentNames", &i_ZelDataHeader::getContentNames, header, names);
}

std::uint32_t zeldata_header_does_content_name_exist(const zeldata_header* header, const char* name,
                                                     std::size_t name_length, std::int32_t* exists)
{
    return call("doesContentNameExist", &i_ZelDataHeader::doesContentNameExist, header,
                Text{name, name_length}, exists);
}

std::uint32_t zeldata_header_set_show_search_bar(zeldata_header* header, std::int32_t show)
{
    return call("setShowSearchBar", &i_ZelDataHeader::setShowSearchBar, header, show);
}

std::uint32_t zeldata_header_get_show_search_bar(const zeldata_header* header, std::int32_t* show)
{
    return call("getShowSearchBar", &i_ZelDataHeader::getShowSearchBar, header, show);
}

std::uint32_t zeldata_header_copy_from(zeldata_header* header, const zeldata_header* other)
{
    return call("copyFrom", copyFrom<i_ZelDataHeader>, header, other);
}

std::uint32_t zeldata_header_find_problems(const zeldata_header* header, zeldata_findings* findings)
{
    return call("findProblems", findProblemsOf<i_ZelDataHeader>, header, findings);
}

// Captions.

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
    return call("getLanguageCount", &i_ZelDataLanguage::getLanguageCount, captions, count);
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
    return call("doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist, captions,
                Text{id, id_length}, exists);
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
    return call("isValid", &i_ZelDataCaptions::isValid, captions, strict);
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
    return call("getFrameRate", &i_ZelDataCaptions::getFrameRate, captions, rate);
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
    return call("getFontSize", &i_ZelDataCaptions::getFontSize, captions, size);
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
    return make(captions, "createCaptionItem", out);
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
    return call("getCaptionItemCount", &i_ZelDataCaptions::getCaptionItemCount, captions, count);
}

std::uint32_t zeldata_captions_get_item(const zeldata_captions* captions,
                                        zeldata_caption_item** out, std::uint64_t index)
{
    return call("getCaptionItemAt",
                copied<&i_ZelDataCaptions::getCaptionItemAt, i_ZelDataCaptions,
                       i_ZelDataCaptionItem, zeldata_caption_item>,
                captions, index, static_cast<void*>(out));
}

std::uint32_t zeldata_captions_copy_from(zeldata_captions* captions, const zeldata_captions* other)
{
    return call("copyFrom", copyFrom<i_ZelDataCaptions>, captions, other);
}

std::uint32_t zeldata_captions_find_problems(const zeldata_captions* captions,
                                             zeldata_findings* findings)
{
    return call("findProblems", findProblemsOf<i_ZelDataCaptions>, captions, findings);
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
    return call("isValid", &i_ZelDataCaptionItem::isValid, caption_item, strict);
}

std::uint32_t zeldata_caption_item_clear_text(zeldata_caption_item* caption_item)
{
    return call("clearText", &i_ZelDataCaptionItem::clearText, caption_item);
}

std::uint32_t zeldata_caption_item_set_text_for_language(zeldata_caption_item* caption_item,
                                                         const char* text, std::size_t text_length,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call("setTextForLanguage", &ZelDataCaptionItem::setCharacters, caption_item,
                Text{text, text_length}, Text{language_id, language_id_length});
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
    return call("setAlignment", &i_ZelDataCaptionItem::setAlignment, caption_item, alignment);
}

std::uint32_t zeldata_caption_item_remove_text_for_language(zeldata_caption_item* caption_item,
                                                            const char* language_id,
                                                            std::size_t language_id_length)
{
    return call("removeTextForLanguage", &i_ZelDataCaptionItem::removeTextForLanguage, caption_item,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_get_language_ids(const zeldata_caption_item* caption_item,
                                                    zeldata_strings* ids)
{
    return call("getLanguageIDs", &i_ZelDataCaptionItem::getLanguageIDs, caption_item, ids);
}

std::uint32_t zeldata_caption_item_get_text_for_language(const zeldata_caption_item* caption_item,
                                                         zeldata_string* text,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call("getTextForLanguage", &i_ZelDataCaptionItem::getTextForLanguage, caption_item, text,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_get_start(const zeldata_caption_item* caption_item,
                                             std::int64_t* start)
{
    return call("getStart", &i_ZelDataCaptionItem::getStart, caption_item, start);
}

std::uint32_t zeldata_caption_item_get_end(const zeldata_caption_item* caption_item,
                                           std::int64_t* end)
{
    return call("getEnd", &i_ZelDataCaptionItem::getEnd, caption_item, end);
}

std::uint32_t zeldata_caption_item_get_duration(const zeldata_caption_item* caption_item,
                                                std::int64_t* duration)
{
    return call("getDuration", &i_ZelDataCaptionItem::getDuration, caption_item, duration);
}

std::uint32_t zeldata_caption_item_get_alignment(const zeldata_caption_item* caption_item,
                                                 std::uint32_t* alignment)
{
    return call("getAlignment", &i_ZelDataCaptionItem::getAlignment, caption_item, alignment);
}

std::uint32_t zeldata_caption_item_copy_from(zeldata_caption_item* caption_item,
                                             const zeldata_caption_item* other)
{
    return call("copyFrom", copyFrom<i_ZelDataCaptionItem>, caption_item, other);
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
    return call("getLanguageCount", &i_ZelDataLanguage::getLanguageCount, toc, count);
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
    return call("doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist, toc,
                Text{id, id_length}, exists);
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
    return call("isValid", &i_ZelDataToc::isValid, toc, deep);
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
    return call("getFrameRate", &i_ZelDataToc::getFrameRate, toc, rate);
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
    return make(toc, "createTocItem", out);
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
    return call("getTocItemCount", &i_ZelDataToc::getTocItemCount, toc, count);
}

std::uint32_t zeldata_toc_get_item(const zeldata_toc* toc, zeldata_toc_item** out,
                                   std::uint64_t index)
{
    return call(
        "getTocItemAt",
        copied<&i_ZelDataToc::getTocItemAt, i_ZelDataToc, i_ZelDataTocItem, zeldata_toc_item>, toc,
        index, static_cast<void*>(out));
}

std::uint32_t zeldata_toc_copy_from(zeldata_toc* toc, const zeldata_toc* source)
{
    return call("copyFrom", copyFrom<i_ZelDataToc>, toc, source);
}

std::uint32_t zeldata_toc_find_problems(const zeldata_toc* toc, zeldata_findings* findings)
{
    return call("findProblems", findProblemsOf<i_ZelDataToc>, toc, findings);
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
    return call("isValid", &i_ZelDataTocItem::isValid, toc_item, deep);
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
                Text{text, text_length}, Text{language_id, language_id_length});
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
    return call("setImageOffset", &i_ZelDataTocItem::setImageOffset, toc_item, offset);
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
    return call("getStart", &i_ZelDataTocItem::getStart, toc_item, start);
}

std::uint32_t zeldata_toc_item_get_image_file(const zeldata_toc_item* toc_item,
                                              zeldata_string* name)
{
    return call("getImageFile", &i_ZelDataTocItem::getImageFile, toc_item, name);
}

std::uint32_t zeldata_toc_item_get_image_index(const zeldata_toc_item* toc_item,
                                               std::uint64_t* index)
{
    return call("getImageIndex", &i_ZelDataTocItem::getImageIndex, toc_item, index);
}

std::uint32_t zeldata_toc_item_get_image_offset(const zeldata_toc_item* toc_item,
                                                std::uint64_t* offset)
{
    return call("getImageOffset", &i_ZelDataTocItem::getImageOffset, toc_item, offset);
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
    return call("isValid", &i_ZelDataScreenText::isValid, screen_text, deep);
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
    return call("getFrameRate", &i_ZelDataScreenText::getFrameRate, screen_text, rate);
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
    return make(screen_text, "createScreenTextItem", out);
}

std::uint32_t zeldata_screen_text_remove_item(zeldata_screen_text* screen_text, std::uint64_t index)
{
    return call("removeScreenTextItemAt", &i_ZelDataScreenText::removeScreenTextItemAt, screen_text,
                index);
}

std::uint32_t zeldata_screen_text_get_item_count(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* count)
{
    return call("getScreenTextItemCount", &i_ZelDataScreenText::getScreenTextItemCount, screen_text,
                count);
}

std::uint32_t zeldata_screen_text_get_item(const zeldata_screen_text* screen_text,
                                           zeldata_screen_text_item** out, std::uint64_t index)
{
    return call("getScreenTextItemAt",
                copied<&i_ZelDataScreenText::getScreenTextItemAt, i_ZelDataScreenText,
                       i_ZelDataScreenTextItem, zeldata_screen_text_item>,
                screen_text, index, static_cast<void*>(out));
}

std::uint32_t zeldata_screen_text_copy_from(zeldata_screen_text* screen_text,
                                            const zeldata_screen_text* source)
{
    return call("copyFrom", copyFrom<i_ZelDataScreenText>, screen_text, source);
}

std::uint32_t zeldata_screen_text_find_problems(const zeldata_screen_text* screen_text,
                                                zeldata_findings* findings)
{
    return call("findProblems", findProblemsOf<i_ZelDataScreenText>, screen_text, findings);
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
    return call("isValid", &i_ZelDataScreenTextItem::isValid, screen_text_item, deep);
}

std::uint32_t zeldata_screen_text_item_clear_text(zeldata_screen_text_item* screen_text_item)
{
    return call("clearText", &i_ZelDataScreenTextItem::clearText, screen_text_item);
}

std::uint32_t zeldata_screen_text_item_set_text(zeldata_screen_text_item* screen_text_item,
                                                const char* text, std::size_t text_length)
{
    return call("setText", &ZelDataScreenTextItem::setCharacters, screen_text_item,
                Text{text, text_length});
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
    return call("setImageOffset", &i_ZelDataScreenTextItem::setImageOffset, screen_text_item,
                offset);
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
    return call("getStart", &i_ZelDataScreenTextItem::getStart, screen_text_item, start);
}

std::uint32_t zeldata_screen_text_item_get_end(const zeldata_screen_text_item* screen_text_item,
                                               std::int64_t* end)
{
    return call("getEnd", &i_ZelDataScreenTextItem::getEnd, screen_text_item, end);
}

std::uint32_t
zeldata_screen_text_item_get_duration(const zeldata_screen_text_item* screen_text_item,
                                      std::int64_t* duration)
{
    return call("getDuration", &i_ZelDataScreenTextItem::getDuration, screen_text_item, duration);
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
    return call("getImageIndex", &i_ZelDataScreenTextItem::getImageIndex, screen_text_item, index);
}

std::uint32_t
zeldata_screen_text_item_get_image_offset(const zeldata_screen_text_item* screen_text_item,
                                          std::uint64_t* offset)
{
    return call("getImageOffset", &i_ZelDataScreenTextItem::getImageOffset, screen_text_item,
                offset);
}

std::uint32_t
zeldata_screen_text_item_get_group_id(const zeldata_screen_text_item* screen_text_item,
                                      std::uint64_t* id)
{
    return call("getGroupId", &i_ZelDataScreenTextItem::getGroupId, screen_text_item, id);
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
    return call("writeString", writeString, header_formatter, out, format, flag);
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
    return call("writeString", writeString, caption_formatter, out, format, flag);
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
    return call("writeString", writeString, toc_formatter, out, format, flag);
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
    return call("writeString", writeString, screen_text_formatter, out, format, flag);
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

using FindingList = Value<Findings>;

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

struct zeldata_findings : Of<FindingList> {};

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
    return call("getCount", &FindingList::getCount, findings, count);
}

std::uint32_t zeldata_findings_get_kind(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* kind)
{
    return call("getKind", &FindingList::get<&ZelDataFinding::kind, std::uint32_t>, findings, index,
                kind);
}

std::uint32_t zeldata_findings_get_subject(const zeldata_findings* findings, std::uint64_t index,
                                           std::uint32_t* subject)
{
    return call("getSubject", &FindingList::get<&ZelDataFinding::subject, std::uint32_t>, findings,
                index, subject);
}

std::uint32_t zeldata_findings_get_item_index(const zeldata_findings* findings, std::uint64_t index,
                                              std::uint64_t* item)
{
    return call("getItemIndex", &FindingList::get<indexOf<&ZelDataFinding::item>, std::uint64_t>,
                findings, index, item);
}

std::uint32_t zeldata_findings_get_start(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* start)
{
    return call("getStart", &FindingList::get<&ZelDataFinding::start, std::int64_t>, findings,
                index, start);
}

std::uint32_t zeldata_findings_get_language(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* language)
{
    return call("getLanguage", &FindingList::get<&ZelDataFinding::language, std::string>, findings,
                index, language);
}

std::uint32_t zeldata_findings_get_property(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* property)
{
    return call("getProperty", &FindingList::get<&ZelDataFinding::property, std::string>, findings,
                index, property);
}

std::uint32_t zeldata_findings_get_component(const zeldata_findings* findings, std::uint64_t index,
                                             float* component)
{
    return call("getComponent", &FindingList::get<&ZelDataFinding::component, float>, findings,
                index, component);
}

std::uint32_t zeldata_findings_get_value(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* value)
{
    return call("getValue", &FindingList::get<&ZelDataFinding::value, std::int64_t>, findings,
                index, value);
}

std::uint32_t zeldata_findings_get_limit(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* limit)
{
    return call("getLimit", &FindingList::get<&ZelDataFinding::limit, std::int64_t>, findings,
                index, limit);
}

std::uint32_t zeldata_findings_get_later_item_index(const zeldata_findings* findings,
                                                    std::uint64_t index, std::uint64_t* later_item)
{
    return call("getLaterItemIndex",
                &FindingList::get<indexOf<&ZelDataFinding::laterItem>, std::uint64_t>, findings,
                index, later_item);
}

std::uint32_t zeldata_findings_get_later_start(const zeldata_findings* findings,
                                               std::uint64_t index, std::int64_t* later_start)
{
    return call("getLaterStart", &FindingList::get<&ZelDataFinding::laterStart, std::int64_t>,
                findings, index, later_start);
}

std::uint32_t zeldata_findings_get_severity(const zeldata_findings* findings, std::uint64_t index,
                                            std::uint32_t* severity)
{
    return call("getSeverity", &FindingList::get<severityOf, std::uint32_t>, findings, index,
                severity);
}

std::uint32_t zeldata_findings_get_code(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* code)
{
    return call("getCode", &FindingList::get<codeOf, std::uint32_t>, findings, index, code);
}

std::uint32_t zeldata_findings_describe(const zeldata_findings* findings, std::uint64_t index,
                                        zeldata_string* text)
{
    return call("describe", &FindingList::get<description, std::string>, findings, index, text);
}

const char* zeldata_finding_to_string(std::uint32_t kind)
{
    return toString(static_cast<ZelDataFinding_tags>(kind));
}

// Language catalogue.

std::uint32_t zeldata_english_name_for_language(const char* id, std::size_t id_length,
                                                zeldata_string* name)
{
    return call("", &ZelDataUtilities::englishNameForLanguage, Text{id, id_length}, name);
}

std::uint32_t zeldata_native_name_for_language(const char* id, std::size_t id_length,
                                               zeldata_string* name)
{
    return call("", &ZelDataUtilities::nativeNameForLanguage, Text{id, id_length}, name);
}

std::uint32_t zeldata_is_valid_language(const char* id, std::size_t id_length)
{
    return call("", &ZelDataUtilities::isValidLanguage, Text{id, id_length});
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

Code linesOf(const std::string& text, unsigned long& count)
{
    count = ZelDataUtilities::countLinesInUTF8(text);
    return ZelData_Ok;
}

} // namespace

std::uint32_t zeldata_verify_utf8_format(const char* text, std::size_t text_length,
                                         std::int32_t bmp_only)
{
    return call("", &ZelDataUtilities::verifyUtf8Format, Text{text, text_length}, bmp_only);
}

std::uint32_t zeldata_count_lines_in_utf8(const char* text, std::size_t text_length,
                                          std::uint64_t* count)
{
    return call("", linesOf, Text{text, text_length}, count);
}

std::uint32_t zeldata_strip_unsupported_characters(const char* text, std::size_t text_length,
                                                   zeldata_string* result)
{
    return call("", made<const std::string&, &ZelDataUtilities::stripUnsupportedCharacters>,
                Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_to_text(const char* text, std::size_t text_length,
                                        zeldata_string* result)
{
    return call("", made<const std::string&, &ZelDataUtilities::htmlTagsToText>,
                Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_from_text(const char* text, std::size_t text_length,
                                          zeldata_string* result)
{
    return call("", made<const std::string&, &ZelDataUtilities::htmlTagsFromText>,
                Text{text, text_length}, result);
}

std::uint32_t zeldata_get_vertical_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return call("", made<ZelAlignment_tags, &ZelDataUtilities::getVerticalAlignment>, alignment,
                result);
}

std::uint32_t zeldata_get_horizontal_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return call("", made<ZelAlignment_tags, &ZelDataUtilities::getHorizontalAlignment>, alignment,
                result);
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
    return call("", made<float, &ZelDataUtilities::getValueString>, value, result);
}

std::uint32_t zeldata_get_value_string_uint64(std::uint64_t value, zeldata_string* result)
{
    return call("", made<unsigned long long, &ZelDataUtilities::getValueString>, value, result);
}

std::uint32_t zeldata_get_rate_string(std::uint64_t rate, zeldata_string* result)
{
    return call("", made<unsigned long, &ZelDataUtilities::getRateString>, rate, result);
}

std::uint32_t zeldata_get_version_string(std::uint64_t version, zeldata_string* result)
{
    return call("", made<unsigned long, &ZelDataUtilities::getVersionString>, version, result);
}

std::uint32_t zeldata_get_date_string(std::int64_t seconds, zeldata_string* date)
{
    return call("", made<long, dateOf>, seconds, date);
}

std::uint32_t zeldata_get_date_string_now(zeldata_string* date)
{
    return call("", dateOfNow, date);
}

std::uint32_t zeldata_get_value_string_int64(std::int64_t value, zeldata_string* result)
{
    return call("", made<long, &getValueString>, value, result);
}

// NOLINTEND(readability-identifier-naming)
