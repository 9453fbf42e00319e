#include "ZelInterchangeData/zeldata.h"

#include "ZelInterchangeData/ZelDataCall.h"
#include "ZelInterchangeData/ZelDataError.h"
#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/ZelDataReplaceFile.h"
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
#include <system_error>
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
    const char* shown = "";
    std::string message;
};

template <class Object>
struct Of : Handle {
    Of() { object = &own; }

    Object own;
};

/// The object for what is none in C++.
template <class Type>
struct Value;

/// Keeps the message of a call that failed, and returns its code.
[[gnu::noinline]] std::uint32_t keep(Handle* handle, const char* name, Code code,
                                     std::initializer_list<ZelDataArgument> arguments,
                                     std::string_view reason = {}) noexcept
{
    if (handle == nullptr) return code;
    handle->message = ZelDataMessages::orNothing([&]() -> std::string {
        if (code == ZelData_OutOfMemory) return {};
        const ZelDataCall call = {name, code, arguments};
        return ZelDataError(code, name, call.shownArguments(), reason).what();
    });
    handle->shown = handle->message.empty() ? describe(code) : handle->message.c_str();
    return code;
}
/// @}

/// @name Arguments
/// An operation gets passed() for what C passes, and a message shows shown(). If the operation
/// succeeded, store() stores its result.
/// @{

/// No operation can take the argument.
struct Unusable : std::exception {};

[[noreturn]] void refuse()
{
    throw Unusable();
}

/// All other exceptions mean that memory ran out.
[[gnu::noinline]] Code caughtCode(const std::exception& exception) noexcept
{
    const bool isUnusable = dynamic_cast<const Unusable*>(&exception) != nullptr;
    return isUnusable ? ZelData_InvalidArgument : ZelData_OutOfMemory;
}

struct HiddenArgument {
    /// The format that messages do not show.
    ZelDataArgument shown() const { return ZelDataArgument(ZelDataFormat_Xmp); }
    void store() const {}
};

template <class Parameter, class Given>
struct Argument : HiddenArgument {
    explicit Argument(Given given) : value(static_cast<Parameter>(given))
    {
        if constexpr (sizeof(Parameter) < sizeof(Given) && !std::is_same_v<Parameter, bool>)
            if (static_cast<Given>(value) != given) refuse();
    }
    Parameter passed() const { return value; }
    auto shown() const
    {
        constexpr bool isShown = std::is_constructible_v<ZelDataArgument, Parameter>;
        if constexpr (isShown && !std::is_pointer_v<Parameter>)
            return ZelDataArgument(value);
        else
            return HiddenArgument::shown();
    }

    Parameter value;
};

struct Text {
    const char* begin;
    std::size_t length;
};

std::string_view viewOf(Text text)
{
    if (text.begin == nullptr) refuse();
    const bool isTerminated = text.length == ZELDATA_TERMINATED;
    const std::size_t length = isTerminated ? std::strlen(text.begin) : text.length;
    if (length > INT32_MAX) refuse();
    return {text.begin, length};
}

template <class Parameter>
struct Argument<Parameter, Text> : HiddenArgument {
    explicit Argument(Text given) : value(viewOf(given)) {}
    Parameter passed() { return value; }
    ZelDataArgument shown() const { return ZelDataArgument(value); }

    std::string value;
};

/// A text of which the operation needs no string.
template <>
struct Argument<std::string_view, Text> : HiddenArgument {
    explicit Argument(Text given) : value(viewOf(given)) {}
    std::string_view passed() const { return value; }
    ZelDataArgument shown()
    {
        copy = ZelDataMessages::orNothing([&] { return std::string(value); });
        return ZelDataArgument(copy);
    }

    std::string_view value;
    std::string copy;
};

/// A number that the operation stores.
template <class Result, class Given>
struct Argument<Result&, Given*> : HiddenArgument {
    explicit Argument(Given* given) : target(given)
    {
        if (given == nullptr) refuse();
    }
    Result& passed() { return value; }
    void store() const { *target = static_cast<Given>(value); }

    Given* target;
    Result value{};
};

template <class Target>
struct Argument<Target&, Handle*> : HiddenArgument {
    explicit Argument(Handle* given) : handle(given)
    {
        if (given == nullptr) refuse();
    }
    Target& passed() const
    {
        if constexpr (std::is_base_of_v<i_ZelDataResult, Target>)
            return static_cast<Target&>(*handle->object);
        else
            return static_cast<Value<std::remove_const_t<Target>>&>(*handle->object).value;
    }

    Handle* handle;
};
/// @}

/// @name Calls
/// @{

template <class... Types>
struct List {
};
template <class... Parameters>
List<Parameters...> parametersOf(Code (*operation)(Parameters...));
template <class Object, class... Parameters>
List<Parameters...> parametersOf(Code (Object::*operation)(Parameters...));
template <class Object, class... Parameters>
List<Parameters...> parametersOf(Code (Object::*operation)(Parameters...) const);

/// Calls @p operation, a function or a member function of the object, with what C passes for its
/// parameters. Operations with the same parameters share an instance.
template <class Operation, class... Parameters, class... Given>
[[gnu::noinline]] std::uint32_t perform(Handle* handle, const char* name, Operation operation,
                                        List<Parameters...> /*types*/, Given... given)
{
    if (handle != nullptr) handle->shown = "";
    const auto invoke = [&](auto&&... argument) -> std::uint32_t {
        Code code;
        if constexpr (std::is_member_pointer_v<Operation>) {
            if (handle == nullptr) refuse();
            code = (handle->object->*operation)(argument.passed()...);
        } else {
            code = operation(argument.passed()...);
        }
        if (failed(code)) return keep(handle, name, code, {argument.shown()...});
        (argument.store(), ...);
        return code;
    };
    try {
        return invoke(Argument<Parameters, Given>(given)...);
    } catch (const std::exception& exception) {
        return keep(handle, name, caughtCode(exception), {});
    }
}

/// What is passed on for an argument: the type is the same for all handles, and for the operations
/// of all objects.
template <class Given>
auto erased(Given given)
{
    if constexpr (std::is_convertible_v<Given, const Handle*>)
        return const_cast<Handle*>(static_cast<const Handle*>(given));
    else
        return given;
}
template <class Object, class Function>
auto erased(Function Object::*operation)
{
    return static_cast<Function i_ZelDataResult::*>(operation);
}

template <class Operation, class... Given>
std::uint32_t call(const Handle* handle, const char* name, Operation operation, Given... given)
{
    return perform(erased(handle), name, erased(operation), decltype(parametersOf(operation))(),
                   erased(given)...);
}

/// The same without a handle and a message.
template <class Operation, class... Given>
std::uint32_t run(Operation operation, Given... given)
{
    return call(nullptr, "", operation, given...);
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
    return call(handle, name, createFor<Made>, handle, static_cast<void*>(out));
}

/// Stores a handle of a copy of the item that @p getter returns.
template <auto getter, class Collection, class Item, class Made>
Code copied(unsigned long index, i_ZelDataResult& collection, void* place)
{
    const auto out = static_cast<Made**>(place);
    if (!isEmptyOutPointer(out)) return ZelData_InvalidArgument;
    Item* item = nullptr;
    Code code = (static_cast<Collection&>(collection).*getter)(&item, index);
    const std::unique_ptr<Item> owner(item);
    if (failed(code)) return code;
    code = createObject<Made>(out);
    if (!failed(code)) code = (*out)->own.copyFrom(*item);
    if (failed(code)) delete std::exchange(*out, nullptr);
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

/// The first argument that a message shows is the language.
template <class Item>
Code textFor(const i_ZelDataResult& item, const std::string& languageID, std::string& text)
{
    return static_cast<const Item&>(item).getTextForLanguage(text, languageID);
}

Code storeLastError(const i_ZelDataResult& object, ZelDataResult_tags code)
{
    object.setLastError(code);
    return ZelData_Ok;
}
std::uint32_t setLastError(const Handle* handle, std::uint32_t code)
{
    return call(handle, "setLastError", storeLastError, handle, code);
}
std::uint32_t lastError(const Handle* handle)
{
    return handle == nullptr ? ZelData_InvalidArgument : handle->object->getLastError();
}
/// @}

} // namespace

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
    Code set(const std::string& text)
    {
        value = text;
        return ZelData_Ok;
    }
    Code copy(char* buffer, std::size_t capacity, std::size_t* needed) const
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
    return call(string, "set", &String::set, Text{text, text_length});
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
    return call(string, "copy", &String::copy, buffer, capacity, needed);
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
    Code add(const Element& element)
    {
        value.push_back(element);
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
        const Element& element = value[index];
        if constexpr (std::is_class_v<Out>)
            out = std::invoke(part, element);
        else
            out = static_cast<Out>(std::invoke(part, element));
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
    return call(strings, "clear", &Strings::clear);
}

std::uint32_t zeldata_strings_add(zeldata_strings* strings, const char* text,
                                  std::size_t text_length)
{
    return call(strings, "add", &Strings::add, Text{text, text_length});
}

std::uint32_t zeldata_strings_get_count(const zeldata_strings* strings, std::uint64_t* count)
{
    return call(strings, "getCount", &Strings::getCount, count);
}

std::uint32_t zeldata_strings_get(const zeldata_strings* strings, std::uint64_t index,
                                  zeldata_string* text)
{
    return call(strings, "get", &Strings::get<itself, std::string>, index, text);
}

// Documents.

namespace {

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

Code replaceFileWith(const i_ZelInterchangeDataCore& document, const std::string& path,
                     ZelDataFormatType_tags format, std::int32_t* systemError)
{
    if (systemError == nullptr) return ZelData_InvalidArgument;
    return replaceFile(document, path, *systemError, format);
}

/// Keeps the system's reason instead of the meaning of @p code.
void keepSystemError(const Handle* document, std::uint32_t code, Text path, int systemError)
{
    Argument<std::string_view, Text> shown(path);
    const std::string reason =
        ZelDataMessages::orNothing([&] { return std::system_category().message(systemError); });
    keep(erased(document), "replaceFile", static_cast<Code>(code), {shown.shown()}, reason);
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
    return call(document, "writeString", writeString, document, out, format, flag);
}

std::uint32_t zeldata_document_write_file(const zeldata_document* document, const char* path,
                                          std::size_t path_length, std::uint32_t format,
                                          std::int32_t flag)
{
    return call(document, "writeFile", writeFile, document, Text{path, path_length}, format, flag);
}

std::uint32_t zeldata_document_get_header(const zeldata_document* document, zeldata_header* target)
{
    return call(document, "getDataHeader", &i_ZelInterchangeDataCore::getDataHeader, target);
}

std::uint32_t zeldata_document_set_header(zeldata_document* document, const zeldata_header* source)
{
    return call(document, "setDataHeader", &i_ZelInterchangeDataCore::setDataHeader, source);
}

std::uint32_t zeldata_document_get_captions(const zeldata_document* document,
                                            zeldata_captions* target)
{
    return call(document, "getDataCaptions", &i_ZelInterchangeDataCore::getDataCaptions, target);
}

std::uint32_t zeldata_document_set_captions(zeldata_document* document,
                                            const zeldata_captions* source)
{
    return call(document, "setDataCaptions", &i_ZelInterchangeDataCore::setDataCaptions, source);
}

std::uint32_t zeldata_document_get_toc(const zeldata_document* document, zeldata_toc* target)
{
    return call(document, "getDataToc", &i_ZelInterchangeDataCore::getDataToc, target);
}

std::uint32_t zeldata_document_set_toc(zeldata_document* document, const zeldata_toc* source)
{
    return call(document, "setDataToc", &i_ZelInterchangeDataCore::setDataToc, source);
}

std::uint32_t zeldata_document_get_screen_text(const zeldata_document* document,
                                               zeldata_screen_text* target)
{
    return call(document, "getDataScreenText", &i_ZelInterchangeDataCore::getDataScreenText,
                target);
}

std::uint32_t zeldata_document_set_screen_text(zeldata_document* document,
                                               const zeldata_screen_text* source)
{
    return call(document, "setDataScreenText", &i_ZelInterchangeDataCore::setDataScreenText,
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
    return call(document, "findProblems", findProblemsOf<i_ZelInterchangeDataCore>, document,
                findings);
}

std::uint32_t zeldata_document_replace_file(const zeldata_document* document, const char* path,
                                            std::size_t path_length, std::int32_t* system_error,
                                            std::uint32_t format)
{
    if (system_error != nullptr) *system_error = 0;
    const std::uint32_t code = call(document, "replaceFile", replaceFileWith, document,
                                    Text{path, path_length}, format, system_error);
    if (failed(static_cast<Code>(code)) && system_error != nullptr && *system_error != 0)
        keepSystemError(document, code, Text{path, path_length}, *system_error);
    return code;
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
    return call(header, "clearLanguages", &i_ZelDataLanguage::clearLanguages);
}

std::uint32_t zeldata_header_add_language(zeldata_header* header, const char* id,
                                          std::size_t id_length)
{
    return call(header, "addLanguage", &i_ZelDataLanguage::addLanguage, Text{id, id_length});
}

std::uint32_t zeldata_header_remove_language(zeldata_header* header, const char* id,
                                             std::size_t id_length)
{
    return call(header, "removeLanguage", &i_ZelDataLanguage::removeLanguage, Text{id, id_length});
}

std::uint32_t zeldata_header_set_ordered_language_ids(zeldata_header* header,
                                                      const zeldata_strings* ids)
{
    return call(header, "setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs, ids);
}

std::uint32_t zeldata_header_get_ordered_language_ids(const zeldata_header* header,
                                                      zeldata_strings* ids)
{
    return call(header, "getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs, ids);
}

std::uint32_t zeldata_header_get_language_count(const zeldata_header* header, std::uint64_t* count)
{
    return call(header, "getLanguageCount", &i_ZelDataLanguage::getLanguageCount, count);
}

std::uint32_t zeldata_header_get_language_display_names(const zeldata_header* header,
                                                        zeldata_strings* names)
{
    return call(header, "getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames,
                names);
}

std::uint32_t zeldata_header_get_language_native_display_names(const zeldata_header* header,
                                                               zeldata_strings* names)
{
    return call(header, "getLanguageNativeDisplayNames",
                &i_ZelDataLanguage::getLanguageNativeDisplayNames, names);
}

std::uint32_t zeldata_header_does_language_exist(const zeldata_header* header, const char* id,
                                                 std::size_t id_length, std::int32_t* exists)
{
    return call(header, "doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist,
                Text{id, id_length}, exists);
}

std::uint32_t zeldata_header_copy_languages_from_header(zeldata_header* header,
                                                        const zeldata_header* source)
{
    return call(header, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_header_copy_languages_from_captions(zeldata_header* header,
                                                          const zeldata_captions* source)
{
    return call(header, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_header_copy_languages_from_toc(zeldata_header* header,
                                                     const zeldata_toc* source)
{
    return call(header, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_header_is_valid(const zeldata_header* header)
{
    return call(header, "isValid", &i_ZelDataHeader::isValid);
}

std::uint32_t zeldata_header_clear(zeldata_header* header)
{
    return call(header, "clearHeader", &i_ZelDataHeader::clearHeader);
}

std::uint32_t zeldata_header_set_app_name(zeldata_header* header, const char* name,
                                          std::size_t name_length)
{
    return call(header, "setAppName", &i_ZelDataHeader::setAppName, Text{name, name_length});
}

std::uint32_t zeldata_header_set_app_version(zeldata_header* header, const char* version,
                                             std::size_t version_length)
{
    return call(header, "setAppVersion", &i_ZelDataHeader::setAppVersion,
                Text{version, version_length});
}

std::uint32_t zeldata_header_set_title(zeldata_header* header, const char* title,
                                       std::size_t title_length)
{
    return call(header, "setTitle", &i_ZelDataHeader::setTitle, Text{title, title_length});
}

std::uint32_t zeldata_header_set_creator(zeldata_header* header, const char* creator,
                                         std::size_t creator_length)
{
    return call(header, "setCreator", &i_ZelDataHeader::setCreator, Text{creator, creator_length});
}

std::uint32_t zeldata_header_set_description(zeldata_header* header, const char* description,
                                             std::size_t description_length)
{
    return call(header, "setDescription", &i_ZelDataHeader::setDescription,
                Text{description, description_length});
}

std::uint32_t zeldata_header_set_keywords(zeldata_header* header, const zeldata_strings* keywords)
{
    return call(header, "setKeywords", &i_ZelDataHeader::setKeywords, keywords);
}

std::uint32_t zeldata_header_set_ipod_explicit(zeldata_header* header, std::int32_t is_explicit)
{
    return call(header, "setIPodExplicit", &i_ZelDataHeader::setIPodExplicit, is_explicit);
}

std::uint32_t zeldata_header_set_video_length(zeldata_header* header, std::uint64_t milliseconds)
{
    return call(header, "setVideoLength", &i_ZelDataHeader::setVideoLength, milliseconds);
}

std::uint32_t zeldata_header_set_video_width(zeldata_header* header, std::uint64_t pixels)
{
    return call(header, "setVideoWidth", &i_ZelDataHeader::setVideoWidth, pixels);
}

std::uint32_t zeldata_header_set_video_height(zeldata_header* header, std::uint64_t pixels)
{
    return call(header, "setVideoHeight", &i_ZelDataHeader::setVideoHeight, pixels);
}

std::uint32_t zeldata_header_get_app_name(const zeldata_header* header, zeldata_string* name)
{
    return call(header, "getAppName", &i_ZelDataHeader::getAppName, name);
}

std::uint32_t zeldata_header_get_app_version(const zeldata_header* header, zeldata_string* version)
{
    return call(header, "getAppVersion", &i_ZelDataHeader::getAppVersion, version);
}

std::uint32_t zeldata_header_get_title(const zeldata_header* header, zeldata_string* title)
{
    return call(header, "getTitle", &i_ZelDataHeader::getTitle, title);
}

std::uint32_t zeldata_header_get_creator(const zeldata_header* header, zeldata_string* creator)
{
    return call(header, "getCreator", &i_ZelDataHeader::getCreator, creator);
}

std::uint32_t zeldata_header_get_description(const zeldata_header* header,
                                             zeldata_string* description)
{
    return call(header, "getDescription", &i_ZelDataHeader::getDescription, description);
}

std::uint32_t zeldata_header_get_keywords(const zeldata_header* header, zeldata_strings* keywords)
{
    return call(header, "getKeywords", &i_ZelDataHeader::getKeywords, keywords);
}

std::uint32_t zeldata_header_get_ipod_explicit(const zeldata_header* header,
                                               std::int32_t* is_explicit)
{
    return call(header, "getIPodExplicit", &i_ZelDataHeader::getIPodExplicit, is_explicit);
}

std::uint32_t zeldata_header_get_video_length(const zeldata_header* header,
                                              std::uint64_t* milliseconds)
{
    return call(header, "getVideoLength", &i_ZelDataHeader::getVideoLength, milliseconds);
}

std::uint32_t zeldata_header_get_video_width(const zeldata_header* header, std::uint64_t* pixels)
{
    return call(header, "getVideoWidth", &i_ZelDataHeader::getVideoWidth, pixels);
}

std::uint32_t zeldata_header_get_video_height(const zeldata_header* header, std::uint64_t* pixels)
{
    return call(header, "getVideoHeight", &i_ZelDataHeader::getVideoHeight, pixels);
}

std::uint32_t zeldata_header_clear_content_names(zeldata_header* header)
{
    return call(header, "clearContentNames", &i_ZelDataHeader::clearContentNames);
}

std::uint32_t zeldata_header_add_content_name(zeldata_header* header, const char* name,
                                              std::size_t name_length)
{
    return call(header, "addContentName", &i_ZelDataHeader::addContentName,
                Text{name, name_length});
}

std::uint32_t zeldata_header_remove_content_name(zeldata_header* header, const char* name,
                                                 std::size_t name_length)
{
    return call(header, "removeContentName", &i_ZelDataHeader::removeContentName,
                Text{name, name_length});
}

std::uint32_t zeldata_header_get_content_name_count(const zeldata_header* header,
                                                    std::uint64_t* count)
{
    return call(header, "getContentNameCount", &i_ZelDataHeader::getContentNameCount, count);
}

std::uint32_t zeldata_header_get_content_names(const zeldata_header* header, zeldata_strings* names)
{
    return call(header, "getContentNames", &i_ZelDataHeader::getContentNames, names);
}

std::uint32_t zeldata_header_does_content_name_exist(const zeldata_header* header, const char* name,
                                                     std::size_t name_length, std::int32_t* exists)
{
    return call(header, "doesContentNameExist", &i_ZelDataHeader::doesContentNameExist,
                Text{name, name_length}, exists);
}

std::uint32_t zeldata_header_set_show_search_bar(zeldata_header* header, std::int32_t show)
{
    return call(header, "setShowSearchBar", &i_ZelDataHeader::setShowSearchBar, show);
}

std::uint32_t zeldata_header_get_show_search_bar(const zeldata_header* header, std::int32_t* show)
{
    return call(header, "getShowSearchBar", &i_ZelDataHeader::getShowSearchBar, show);
}

std::uint32_t zeldata_header_copy_from(zeldata_header* header, const zeldata_header* other)
{
    return call(header, "copyFrom", copyFrom<i_ZelDataHeader>, other);
}

std::uint32_t zeldata_header_find_problems(const zeldata_header* header, zeldata_findings* findings)
{
    return call(header, "findProblems", findProblemsOf<i_ZelDataHeader>, header, findings);
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
    return call(captions, "clearLanguages", &i_ZelDataLanguage::clearLanguages);
}

std::uint32_t zeldata_captions_add_language(zeldata_captions* captions, const char* id,
                                            std::size_t id_length)
{
    return call(captions, "addLanguage", &i_ZelDataLanguage::addLanguage, Text{id, id_length});
}

std::uint32_t zeldata_captions_remove_language(zeldata_captions* captions, const char* id,
                                               std::size_t id_length)
{
    return call(captions, "removeLanguage", &i_ZelDataLanguage::removeLanguage,
                Text{id, id_length});
}

std::uint32_t zeldata_captions_set_ordered_language_ids(zeldata_captions* captions,
                                                        const zeldata_strings* ids)
{
    return call(captions, "setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs, ids);
}

std::uint32_t zeldata_captions_get_ordered_language_ids(const zeldata_captions* captions,
                                                        zeldata_strings* ids)
{
    return call(captions, "getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs, ids);
}

std::uint32_t zeldata_captions_get_language_count(const zeldata_captions* captions,
                                                  std::uint64_t* count)
{
    return call(captions, "getLanguageCount", &i_ZelDataLanguage::getLanguageCount, count);
}

std::uint32_t zeldata_captions_get_language_display_names(const zeldata_captions* captions,
                                                          zeldata_strings* names)
{
    return call(captions, "getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames,
                names);
}

std::uint32_t zeldata_captions_get_language_native_display_names(const zeldata_captions* captions,
                                                                 zeldata_strings* names)
{
    return call(captions, "getLanguageNativeDisplayNames",
                &i_ZelDataLanguage::getLanguageNativeDisplayNames, names);
}

std::uint32_t zeldata_captions_does_language_exist(const zeldata_captions* captions, const char* id,
                                                   std::size_t id_length, std::int32_t* exists)
{
    return call(captions, "doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist,
                Text{id, id_length}, exists);
}

std::uint32_t zeldata_captions_copy_languages_from_header(zeldata_captions* captions,
                                                          const zeldata_header* source)
{
    return call(captions, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_captions_copy_languages_from_captions(zeldata_captions* captions,
                                                            const zeldata_captions* source)
{
    return call(captions, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_captions_copy_languages_from_toc(zeldata_captions* captions,
                                                       const zeldata_toc* source)
{
    return call(captions, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_captions_is_valid(const zeldata_captions* captions, std::int32_t strict)
{
    return call(captions, "isValid", &i_ZelDataCaptions::isValid, strict);
}

std::uint32_t zeldata_captions_make_consistent(zeldata_captions* captions)
{
    return call(captions, "makeCaptionsConsistent", &i_ZelDataCaptions::makeCaptionsConsistent);
}

std::uint32_t zeldata_captions_set_frame_rate(zeldata_captions* captions, std::uint64_t rate)
{
    return call(captions, "setFrameRate", &i_ZelDataCaptions::setFrameRate, rate);
}

std::uint32_t zeldata_captions_get_frame_rate(const zeldata_captions* captions, std::uint64_t* rate)
{
    return call(captions, "getFrameRate", &i_ZelDataCaptions::getFrameRate, rate);
}

std::uint32_t zeldata_captions_set_font_family(zeldata_captions* captions, const char* family,
                                               std::size_t family_length)
{
    return call(captions, "setFontFamily", &i_ZelDataCaptions::setFontFamily,
                Text{family, family_length});
}

std::uint32_t zeldata_captions_get_font_family(const zeldata_captions* captions,
                                               zeldata_string* family)
{
    return call(captions, "getFontFamily", &i_ZelDataCaptions::getFontFamily, family);
}

std::uint32_t zeldata_captions_set_font_size(zeldata_captions* captions, std::uint64_t size)
{
    return call(captions, "setFontSize", &i_ZelDataCaptions::setFontSize, size);
}

std::uint32_t zeldata_captions_get_font_size(const zeldata_captions* captions, std::uint64_t* size)
{
    return call(captions, "getFontSize", &i_ZelDataCaptions::getFontSize, size);
}

std::uint32_t zeldata_captions_set_foreground_color(zeldata_captions* captions, float red,
                                                    float green, float blue)
{
    return call(captions, "setForegroundColor", &i_ZelDataCaptions::setForegroundColor, red, green,
                blue);
}

std::uint32_t zeldata_captions_get_foreground_color(const zeldata_captions* captions, float* red,
                                                    float* green, float* blue)
{
    return call(captions, "getForegroundColor", &i_ZelDataCaptions::getForegroundColor, red, green,
                blue);
}

std::uint32_t zeldata_captions_set_background_color(zeldata_captions* captions, float red,
                                                    float green, float blue)
{
    return call(captions, "setBackgroundColor", &i_ZelDataCaptions::setBackgroundColor, red, green,
                blue);
}

std::uint32_t zeldata_captions_get_background_color(const zeldata_captions* captions, float* red,
                                                    float* green, float* blue)
{
    return call(captions, "getBackgroundColor", &i_ZelDataCaptions::getBackgroundColor, red, green,
                blue);
}

std::uint32_t zeldata_captions_set_background_opacity(zeldata_captions* captions, float opacity)
{
    return call(captions, "setBackgroundOpacity", &i_ZelDataCaptions::setBackgroundOpacity,
                opacity);
}

std::uint32_t zeldata_captions_get_background_opacity(const zeldata_captions* captions,
                                                      float* opacity)
{
    return call(captions, "getBackgroundOpacity", &i_ZelDataCaptions::getBackgroundOpacity,
                opacity);
}

std::uint32_t zeldata_captions_clear_items(zeldata_captions* captions)
{
    return call(captions, "clearCaptionItems", &i_ZelDataCaptions::clearCaptionItems);
}

std::uint32_t zeldata_captions_add_item(zeldata_captions* captions,
                                        const zeldata_caption_item* item)
{
    return call(captions, "addCaptionItem", &i_ZelDataCaptions::addCaptionItem, item);
}

std::uint32_t zeldata_captions_create_item(const zeldata_captions* captions,
                                           zeldata_caption_item** out)
{
    return make(captions, "createCaptionItem", out);
}

std::uint32_t zeldata_captions_remove_item(zeldata_captions* captions, std::uint64_t index)
{
    return call(captions, "removeCaptionItemAt", &i_ZelDataCaptions::removeCaptionItemAt, index);
}

std::uint32_t zeldata_captions_remove_items_for_language(zeldata_captions* captions,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call(captions, "removeCaptionItemsForLanguage",
                &i_ZelDataCaptions::removeCaptionItemsForLanguage,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_captions_get_item_count(const zeldata_captions* captions,
                                              std::uint64_t* count)
{
    return call(captions, "getCaptionItemCount", &i_ZelDataCaptions::getCaptionItemCount, count);
}

std::uint32_t zeldata_captions_get_item(const zeldata_captions* captions,
                                        zeldata_caption_item** out, std::uint64_t index)
{
    return call(captions, "getCaptionItemAt",
                copied<&i_ZelDataCaptions::getCaptionItemAt, i_ZelDataCaptions,
                       i_ZelDataCaptionItem, zeldata_caption_item>,
                index, captions, static_cast<void*>(out));
}

std::uint32_t zeldata_captions_copy_from(zeldata_captions* captions, const zeldata_captions* other)
{
    return call(captions, "copyFrom", copyFrom<i_ZelDataCaptions>, other);
}

std::uint32_t zeldata_captions_find_problems(const zeldata_captions* captions,
                                             zeldata_findings* findings)
{
    return call(captions, "findProblems", findProblemsOf<i_ZelDataCaptions>, captions, findings);
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
    return call(caption_item, "isValid", &i_ZelDataCaptionItem::isValid, strict);
}

std::uint32_t zeldata_caption_item_clear_text(zeldata_caption_item* caption_item)
{
    return call(caption_item, "clearText", &i_ZelDataCaptionItem::clearText);
}

std::uint32_t zeldata_caption_item_set_text_for_language(zeldata_caption_item* caption_item,
                                                         const char* text, std::size_t text_length,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call(caption_item, "setTextForLanguage", &ZelDataCaptionItem::setCharacters,
                Text{text, text_length}, Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_set_start(zeldata_caption_item* caption_item, std::int64_t start)
{
    return call(caption_item, "setStart", &i_ZelDataCaptionItem::setStart, start);
}

std::uint32_t zeldata_caption_item_set_end(zeldata_caption_item* caption_item, std::int64_t end)
{
    return call(caption_item, "setEnd", &i_ZelDataCaptionItem::setEnd, end);
}

std::uint32_t zeldata_caption_item_set_duration(zeldata_caption_item* caption_item,
                                                std::int64_t duration)
{
    return call(caption_item, "setDuration", &i_ZelDataCaptionItem::setDuration, duration);
}

std::uint32_t zeldata_caption_item_set_alignment(zeldata_caption_item* caption_item,
                                                 std::uint32_t alignment)
{
    return call(caption_item, "setAlignment", &i_ZelDataCaptionItem::setAlignment, alignment);
}

std::uint32_t zeldata_caption_item_remove_text_for_language(zeldata_caption_item* caption_item,
                                                            const char* language_id,
                                                            std::size_t language_id_length)
{
    return call(caption_item, "removeTextForLanguage", &i_ZelDataCaptionItem::removeTextForLanguage,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_get_language_ids(const zeldata_caption_item* caption_item,
                                                    zeldata_strings* ids)
{
    return call(caption_item, "getLanguageIDs", &i_ZelDataCaptionItem::getLanguageIDs, ids);
}

std::uint32_t zeldata_caption_item_get_text_for_language(const zeldata_caption_item* caption_item,
                                                         zeldata_string* text,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call(caption_item, "getTextForLanguage", textFor<i_ZelDataCaptionItem>, caption_item,
                Text{language_id, language_id_length}, text);
}

std::uint32_t zeldata_caption_item_get_start(const zeldata_caption_item* caption_item,
                                             std::int64_t* start)
{
    return call(caption_item, "getStart", &i_ZelDataCaptionItem::getStart, start);
}

std::uint32_t zeldata_caption_item_get_end(const zeldata_caption_item* caption_item,
                                           std::int64_t* end)
{
    return call(caption_item, "getEnd", &i_ZelDataCaptionItem::getEnd, end);
}

std::uint32_t zeldata_caption_item_get_duration(const zeldata_caption_item* caption_item,
                                                std::int64_t* duration)
{
    return call(caption_item, "getDuration", &i_ZelDataCaptionItem::getDuration, duration);
}

std::uint32_t zeldata_caption_item_get_alignment(const zeldata_caption_item* caption_item,
                                                 std::uint32_t* alignment)
{
    return call(caption_item, "getAlignment", &i_ZelDataCaptionItem::getAlignment, alignment);
}

std::uint32_t zeldata_caption_item_copy_from(zeldata_caption_item* caption_item,
                                             const zeldata_caption_item* other)
{
    return call(caption_item, "copyFrom", copyFrom<i_ZelDataCaptionItem>, other);
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
    return call(toc, "clearLanguages", &i_ZelDataLanguage::clearLanguages);
}

std::uint32_t zeldata_toc_add_language(zeldata_toc* toc, const char* id, std::size_t id_length)
{
    return call(toc, "addLanguage", &i_ZelDataLanguage::addLanguage, Text{id, id_length});
}

std::uint32_t zeldata_toc_remove_language(zeldata_toc* toc, const char* id, std::size_t id_length)
{
    return call(toc, "removeLanguage", &i_ZelDataLanguage::removeLanguage, Text{id, id_length});
}

std::uint32_t zeldata_toc_set_ordered_language_ids(zeldata_toc* toc, const zeldata_strings* ids)
{
    return call(toc, "setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs, ids);
}

std::uint32_t zeldata_toc_get_ordered_language_ids(const zeldata_toc* toc, zeldata_strings* ids)
{
    return call(toc, "getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs, ids);
}

std::uint32_t zeldata_toc_get_language_count(const zeldata_toc* toc, std::uint64_t* count)
{
    return call(toc, "getLanguageCount", &i_ZelDataLanguage::getLanguageCount, count);
}

std::uint32_t zeldata_toc_get_language_display_names(const zeldata_toc* toc, zeldata_strings* names)
{
    return call(toc, "getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames, names);
}

std::uint32_t zeldata_toc_get_language_native_display_names(const zeldata_toc* toc,
                                                            zeldata_strings* names)
{
    return call(toc, "getLanguageNativeDisplayNames",
                &i_ZelDataLanguage::getLanguageNativeDisplayNames, names);
}

std::uint32_t zeldata_toc_does_language_exist(const zeldata_toc* toc, const char* id,
                                              std::size_t id_length, std::int32_t* exists)
{
    return call(toc, "doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist,
                Text{id, id_length}, exists);
}

std::uint32_t zeldata_toc_copy_languages_from_header(zeldata_toc* toc, const zeldata_header* source)
{
    return call(toc, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_toc_copy_languages_from_captions(zeldata_toc* toc,
                                                       const zeldata_captions* source)
{
    return call(toc, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_toc_copy_languages_from_toc(zeldata_toc* toc, const zeldata_toc* source)
{
    return call(toc, "copyFrom", copyFrom<i_ZelDataLanguage>, source);
}

std::uint32_t zeldata_toc_is_valid(const zeldata_toc* toc, std::int32_t deep)
{
    return call(toc, "isValid", &i_ZelDataToc::isValid, deep);
}

std::uint32_t zeldata_toc_make_consistent(zeldata_toc* toc)
{
    return call(toc, "makeTocConsistent", &i_ZelDataToc::makeTocConsistent);
}

std::uint32_t zeldata_toc_set_frame_rate(zeldata_toc* toc, std::uint64_t rate)
{
    return call(toc, "setFrameRate", &i_ZelDataToc::setFrameRate, rate);
}

std::uint32_t zeldata_toc_get_frame_rate(const zeldata_toc* toc, std::uint64_t* rate)
{
    return call(toc, "getFrameRate", &i_ZelDataToc::getFrameRate, rate);
}

std::uint32_t zeldata_toc_set_image_file(zeldata_toc* toc, const char* name,
                                         std::size_t name_length)
{
    return call(toc, "setImageFile", &i_ZelDataToc::setImageFile, Text{name, name_length});
}

std::uint32_t zeldata_toc_get_image_file(const zeldata_toc* toc, zeldata_string* name)
{
    return call(toc, "getImageFile", &i_ZelDataToc::getImageFile, name);
}

std::uint32_t zeldata_toc_clear_items(zeldata_toc* toc)
{
    return call(toc, "clearTocItems", &i_ZelDataToc::clearTocItems);
}

std::uint32_t zeldata_toc_add_item(zeldata_toc* toc, const zeldata_toc_item* item)
{
    return call(toc, "addTocItem", &i_ZelDataToc::addTocItem, item);
}

std::uint32_t zeldata_toc_create_item(const zeldata_toc* toc, zeldata_toc_item** out)
{
    return make(toc, "createTocItem", out);
}

std::uint32_t zeldata_toc_remove_item(zeldata_toc* toc, std::uint64_t index)
{
    return call(toc, "removeTocItemAt", &i_ZelDataToc::removeTocItemAt, index);
}

std::uint32_t zeldata_toc_remove_items_for_language(zeldata_toc* toc, const char* language_id,
                                                    std::size_t language_id_length)
{
    return call(toc, "removeTocItemsForLanguage", &i_ZelDataToc::removeTocItemsForLanguage,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_get_item_count(const zeldata_toc* toc, std::uint64_t* count)
{
    return call(toc, "getTocItemCount", &i_ZelDataToc::getTocItemCount, count);
}

std::uint32_t zeldata_toc_get_item(const zeldata_toc* toc, zeldata_toc_item** out,
                                   std::uint64_t index)
{
    return call(
        toc, "getTocItemAt",
        copied<&i_ZelDataToc::getTocItemAt, i_ZelDataToc, i_ZelDataTocItem, zeldata_toc_item>,
        index, toc, static_cast<void*>(out));
}

std::uint32_t zeldata_toc_copy_from(zeldata_toc* toc, const zeldata_toc* source)
{
    return call(toc, "copyFrom", copyFrom<i_ZelDataToc>, source);
}

std::uint32_t zeldata_toc_find_problems(const zeldata_toc* toc, zeldata_findings* findings)
{
    return call(toc, "findProblems", findProblemsOf<i_ZelDataToc>, toc, findings);
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
    return call(toc_item, "isValid", &i_ZelDataTocItem::isValid, deep);
}

std::uint32_t zeldata_toc_item_clear_text(zeldata_toc_item* toc_item)
{
    return call(toc_item, "clearText", &i_ZelDataTocItem::clearText);
}

std::uint32_t zeldata_toc_item_set_text_for_language(zeldata_toc_item* toc_item, const char* text,
                                                     std::size_t text_length,
                                                     const char* language_id,
                                                     std::size_t language_id_length)
{
    return call(toc_item, "setTextForLanguage", &ZelDataTocItem::setCharacters,
                Text{text, text_length}, Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_item_set_start(zeldata_toc_item* toc_item, std::int64_t start)
{
    return call(toc_item, "setStart", &i_ZelDataTocItem::setStart, start);
}

std::uint32_t zeldata_toc_item_set_image_file(zeldata_toc_item* toc_item, const char* name,
                                              std::size_t name_length)
{
    return call(toc_item, "setImageFile", &i_ZelDataTocItem::setImageFile, Text{name, name_length});
}

std::uint32_t zeldata_toc_item_set_image_index(zeldata_toc_item* toc_item, std::uint64_t index)
{
    return call(toc_item, "setImageIndex", &i_ZelDataTocItem::setImageIndex, index);
}

std::uint32_t zeldata_toc_item_set_image_offset(zeldata_toc_item* toc_item, std::uint64_t offset)
{
    return call(toc_item, "setImageOffset", &i_ZelDataTocItem::setImageOffset, offset);
}

std::uint32_t zeldata_toc_item_remove_text_for_language(zeldata_toc_item* toc_item,
                                                        const char* language_id,
                                                        std::size_t language_id_length)
{
    return call(toc_item, "removeTextForLanguage", &i_ZelDataTocItem::removeTextForLanguage,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_item_get_language_ids(const zeldata_toc_item* toc_item,
                                                zeldata_strings* ids)
{
    return call(toc_item, "getLanguageIDs", &i_ZelDataTocItem::getLanguageIDs, ids);
}

std::uint32_t zeldata_toc_item_get_text_for_language(const zeldata_toc_item* toc_item,
                                                     zeldata_string* text, const char* language_id,
                                                     std::size_t language_id_length)
{
    return call(toc_item, "getTextForLanguage", textFor<i_ZelDataTocItem>, toc_item,
                Text{language_id, language_id_length}, text);
}

std::uint32_t zeldata_toc_item_get_start(const zeldata_toc_item* toc_item, std::int64_t* start)
{
    return call(toc_item, "getStart", &i_ZelDataTocItem::getStart, start);
}

std::uint32_t zeldata_toc_item_get_image_file(const zeldata_toc_item* toc_item,
                                              zeldata_string* name)
{
    return call(toc_item, "getImageFile", &i_ZelDataTocItem::getImageFile, name);
}

std::uint32_t zeldata_toc_item_get_image_index(const zeldata_toc_item* toc_item,
                                               std::uint64_t* index)
{
    return call(toc_item, "getImageIndex", &i_ZelDataTocItem::getImageIndex, index);
}

std::uint32_t zeldata_toc_item_get_image_offset(const zeldata_toc_item* toc_item,
                                                std::uint64_t* offset)
{
    return call(toc_item, "getImageOffset", &i_ZelDataTocItem::getImageOffset, offset);
}

std::uint32_t zeldata_toc_item_copy_from(zeldata_toc_item* toc_item, const zeldata_toc_item* source)
{
    return call(toc_item, "copyFrom", copyFrom<i_ZelDataTocItem>, source);
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
    return call(screen_text, "isValid", &i_ZelDataScreenText::isValid, deep);
}

std::uint32_t zeldata_screen_text_make_consistent(zeldata_screen_text* screen_text)
{
    return call(screen_text, "makeScreenTextConsistent",
                &i_ZelDataScreenText::makeScreenTextConsistent);
}

std::uint32_t zeldata_screen_text_set_frame_rate(zeldata_screen_text* screen_text,
                                                 std::uint64_t rate)
{
    return call(screen_text, "setFrameRate", &i_ZelDataScreenText::setFrameRate, rate);
}

std::uint32_t zeldata_screen_text_get_frame_rate(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* rate)
{
    return call(screen_text, "getFrameRate", &i_ZelDataScreenText::getFrameRate, rate);
}

std::uint32_t zeldata_screen_text_clear_items(zeldata_screen_text* screen_text)
{
    return call(screen_text, "clearScreenTextItems", &i_ZelDataScreenText::clearScreenTextItems);
}

std::uint32_t zeldata_screen_text_add_item(zeldata_screen_text* screen_text,
                                           const zeldata_screen_text_item* item)
{
    return call(screen_text, "addScreenTextItem", &i_ZelDataScreenText::addScreenTextItem, item);
}

std::uint32_t zeldata_screen_text_create_item(const zeldata_screen_text* screen_text,
                                              zeldata_screen_text_item** out)
{
    return make(screen_text, "createScreenTextItem", out);
}

std::uint32_t zeldata_screen_text_remove_item(zeldata_screen_text* screen_text, std::uint64_t index)
{
    return call(screen_text, "removeScreenTextItemAt", &i_ZelDataScreenText::removeScreenTextItemAt,
                index);
}

std::uint32_t zeldata_screen_text_get_item_count(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* count)
{
    return call(screen_text, "getScreenTextItemCount", &i_ZelDataScreenText::getScreenTextItemCount,
                count);
}

std::uint32_t zeldata_screen_text_get_item(const zeldata_screen_text* screen_text,
                                           zeldata_screen_text_item** out, std::uint64_t index)
{
    return call(screen_text, "getScreenTextItemAt",
                copied<&i_ZelDataScreenText::getScreenTextItemAt, i_ZelDataScreenText,
                       i_ZelDataScreenTextItem, zeldata_screen_text_item>,
                index, screen_text, static_cast<void*>(out));
}

std::uint32_t zeldata_screen_text_copy_from(zeldata_screen_text* screen_text,
                                            const zeldata_screen_text* source)
{
    return call(screen_text, "copyFrom", copyFrom<i_ZelDataScreenText>, source);
}

std::uint32_t zeldata_screen_text_find_problems(const zeldata_screen_text* screen_text,
                                                zeldata_findings* findings)
{
    return call(screen_text, "findProblems", findProblemsOf<i_ZelDataScreenText>, screen_text,
                findings);
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
    return call(screen_text_item, "isValid", &i_ZelDataScreenTextItem::isValid, deep);
}

std::uint32_t zeldata_screen_text_item_clear_text(zeldata_screen_text_item* screen_text_item)
{
    return call(screen_text_item, "clearText", &i_ZelDataScreenTextItem::clearText);
}

std::uint32_t zeldata_screen_text_item_set_text(zeldata_screen_text_item* screen_text_item,
                                                const char* text, std::size_t text_length)
{
    return call(screen_text_item, "setText", &ZelDataScreenTextItem::setCharacters,
                Text{text, text_length});
}

std::uint32_t zeldata_screen_text_item_set_start(zeldata_screen_text_item* screen_text_item,
                                                 std::int64_t start)
{
    return call(screen_text_item, "setStart", &i_ZelDataScreenTextItem::setStart, start);
}

std::uint32_t zeldata_screen_text_item_set_end(zeldata_screen_text_item* screen_text_item,
                                               std::int64_t end)
{
    return call(screen_text_item, "setEnd", &i_ZelDataScreenTextItem::setEnd, end);
}

std::uint32_t zeldata_screen_text_item_set_duration(zeldata_screen_text_item* screen_text_item,
                                                    std::int64_t duration)
{
    return call(screen_text_item, "setDuration", &i_ZelDataScreenTextItem::setDuration, duration);
}

std::uint32_t zeldata_screen_text_item_set_image_file(zeldata_screen_text_item* screen_text_item,
                                                      const char* name, std::size_t name_length)
{
    return call(screen_text_item, "setImageFile", &i_ZelDataScreenTextItem::setImageFile,
                Text{name, name_length});
}

std::uint32_t zeldata_screen_text_item_set_image_index(zeldata_screen_text_item* screen_text_item,
                                                       std::uint64_t index)
{
    return call(screen_text_item, "setImageIndex", &i_ZelDataScreenTextItem::setImageIndex, index);
}

std::uint32_t zeldata_screen_text_item_set_image_offset(zeldata_screen_text_item* screen_text_item,
                                                        std::uint64_t offset)
{
    return call(screen_text_item, "setImageOffset", &i_ZelDataScreenTextItem::setImageOffset,
                offset);
}

std::uint32_t zeldata_screen_text_item_set_group_id(zeldata_screen_text_item* screen_text_item,
                                                    std::uint64_t id)
{
    return call(screen_text_item, "setGroupId", &i_ZelDataScreenTextItem::setGroupId, id);
}

std::uint32_t zeldata_screen_text_item_get_text(const zeldata_screen_text_item* screen_text_item,
                                                zeldata_string* text)
{
    return call(screen_text_item, "getText", &i_ZelDataScreenTextItem::getText, text);
}

std::uint32_t zeldata_screen_text_item_get_start(const zeldata_screen_text_item* screen_text_item,
                                                 std::int64_t* start)
{
    return call(screen_text_item, "getStart", &i_ZelDataScreenTextItem::getStart, start);
}

std::uint32_t zeldata_screen_text_item_get_end(const zeldata_screen_text_item* screen_text_item,
                                               std::int64_t* end)
{
    return call(screen_text_item, "getEnd", &i_ZelDataScreenTextItem::getEnd, end);
}

std::uint32_t
zeldata_screen_text_item_get_duration(const zeldata_screen_text_item* screen_text_item,
                                      std::int64_t* duration)
{
    return call(screen_text_item, "getDuration", &i_ZelDataScreenTextItem::getDuration, duration);
}

std::uint32_t
zeldata_screen_text_item_get_image_file(const zeldata_screen_text_item* screen_text_item,
                                        zeldata_string* name)
{
    return call(screen_text_item, "getImageFile", &i_ZelDataScreenTextItem::getImageFile, name);
}

std::uint32_t
zeldata_screen_text_item_get_image_index(const zeldata_screen_text_item* screen_text_item,
                                         std::uint64_t* index)
{
    return call(screen_text_item, "getImageIndex", &i_ZelDataScreenTextItem::getImageIndex, index);
}

std::uint32_t
zeldata_screen_text_item_get_image_offset(const zeldata_screen_text_item* screen_text_item,
                                          std::uint64_t* offset)
{
    return call(screen_text_item, "getImageOffset", &i_ZelDataScreenTextItem::getImageOffset,
                offset);
}

std::uint32_t
zeldata_screen_text_item_get_group_id(const zeldata_screen_text_item* screen_text_item,
                                      std::uint64_t* id)
{
    return call(screen_text_item, "getGroupId", &i_ZelDataScreenTextItem::getGroupId, id);
}

std::uint32_t zeldata_screen_text_item_copy_from(zeldata_screen_text_item* screen_text_item,
                                                 const zeldata_screen_text_item* source)
{
    return call(screen_text_item, "copyFrom", copyFrom<i_ZelDataScreenTextItem>, source);
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
    return call(header_formatter, "writeString", writeString, header_formatter, out, format, flag);
}

std::uint32_t zeldata_header_formatter_set_header(zeldata_header_formatter* header_formatter,
                                                  const zeldata_header* header)
{
    return call(header_formatter, "setHeader", &i_ZelDataHeaderFormatter::setHeader, header);
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
    return call(caption_formatter, "writeString", writeString, caption_formatter, out, format,
                flag);
}

std::uint32_t zeldata_caption_formatter_set_captions(zeldata_caption_formatter* caption_formatter,
                                                     const zeldata_captions* captions)
{
    return call(caption_formatter, "setCaptions", &i_ZelDataCaptionFormatter::setCaptions,
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
    return call(toc_formatter, "writeString", writeString, toc_formatter, out, format, flag);
}

std::uint32_t zeldata_toc_formatter_set_toc(zeldata_toc_formatter* toc_formatter,
                                            const zeldata_toc* toc)
{
    return call(toc_formatter, "setToc", &i_ZelDataTocFormatter::setToc, toc);
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
    return call(screen_text_formatter, "writeString", writeString, screen_text_formatter, out,
                format, flag);
}

std::uint32_t
zeldata_screen_text_formatter_set_screen_text(zeldata_screen_text_formatter* screen_text_formatter,
                                              const zeldata_screen_text* screen_text)
{
    return call(screen_text_formatter, "setScreenText",
                &i_ZelDataScreenTextFormatter::setScreenText, screen_text);
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
    return call(findings, "getCount", &FindingList::getCount, count);
}

std::uint32_t zeldata_findings_get_kind(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* kind)
{
    return call(findings, "getKind", &FindingList::get<&ZelDataFinding::kind, std::uint32_t>, index,
                kind);
}

std::uint32_t zeldata_findings_get_subject(const zeldata_findings* findings, std::uint64_t index,
                                           std::uint32_t* subject)
{
    return call(findings, "getSubject", &FindingList::get<&ZelDataFinding::subject, std::uint32_t>,
                index, subject);
}

std::uint32_t zeldata_findings_get_item_index(const zeldata_findings* findings, std::uint64_t index,
                                              std::uint64_t* item)
{
    return call(findings, "getItemIndex",
                &FindingList::get<indexOf<&ZelDataFinding::item>, std::uint64_t>, index, item);
}

std::uint32_t zeldata_findings_get_start(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* start)
{
    return call(findings, "getStart", &FindingList::get<&ZelDataFinding::start, std::int64_t>,
                index, start);
}

std::uint32_t zeldata_findings_get_language(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* language)
{
    return call(findings, "getLanguage", &FindingList::get<&ZelDataFinding::language, std::string>,
                index, language);
}

std::uint32_t zeldata_findings_get_property(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* property)
{
    return call(findings, "getProperty", &FindingList::get<&ZelDataFinding::property, std::string>,
                index, property);
}

std::uint32_t zeldata_findings_get_component(const zeldata_findings* findings, std::uint64_t index,
                                             float* component)
{
    return call(findings, "getComponent", &FindingList::get<&ZelDataFinding::component, float>,
                index, component);
}

std::uint32_t zeldata_findings_get_value(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* value)
{
    return call(findings, "getValue", &FindingList::get<&ZelDataFinding::value, std::int64_t>,
                index, value);
}

std::uint32_t zeldata_findings_get_limit(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* limit)
{
    return call(findings, "getLimit", &FindingList::get<&ZelDataFinding::limit, std::int64_t>,
                index, limit);
}

std::uint32_t zeldata_findings_get_later_item_index(const zeldata_findings* findings,
                                                    std::uint64_t index, std::uint64_t* later_item)
{
    return call(findings, "getLaterItemIndex",
                &FindingList::get<indexOf<&ZelDataFinding::laterItem>, std::uint64_t>, index,
                later_item);
}

std::uint32_t zeldata_findings_get_later_start(const zeldata_findings* findings,
                                               std::uint64_t index, std::int64_t* later_start)
{
    return call(findings, "getLaterStart",
                &FindingList::get<&ZelDataFinding::laterStart, std::int64_t>, index, later_start);
}

std::uint32_t zeldata_findings_get_severity(const zeldata_findings* findings, std::uint64_t index,
                                            std::uint32_t* severity)
{
    return call(findings, "getSeverity", &FindingList::get<severityOf, std::uint32_t>, index,
                severity);
}

std::uint32_t zeldata_findings_get_code(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* code)
{
    return call(findings, "getCode", &FindingList::get<codeOf, std::uint32_t>, index, code);
}

std::uint32_t zeldata_findings_describe(const zeldata_findings* findings, std::uint64_t index,
                                        zeldata_string* text)
{
    return call(findings, "describe", &FindingList::get<description, std::string>, index, text);
}

const char* zeldata_finding_to_string(std::uint32_t kind)
{
    return toString(static_cast<ZelDataFinding_tags>(kind));
}

// Language catalogue.

std::uint32_t zeldata_english_name_for_language(const char* id, std::size_t id_length,
                                                zeldata_string* name)
{
    return run(&ZelDataUtilities::englishNameForLanguage, Text{id, id_length}, name);
}

std::uint32_t zeldata_native_name_for_language(const char* id, std::size_t id_length,
                                               zeldata_string* name)
{
    return run(&ZelDataUtilities::nativeNameForLanguage, Text{id, id_length}, name);
}

std::uint32_t zeldata_is_valid_language(const char* id, std::size_t id_length)
{
    return run(&ZelDataUtilities::isValidLanguage, Text{id, id_length});
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
    return run(&ZelDataUtilities::verifyUtf8Format, Text{text, text_length}, bmp_only);
}

std::uint32_t zeldata_count_lines_in_utf8(const char* text, std::size_t text_length,
                                          std::uint64_t* count)
{
    return run(linesOf, Text{text, text_length}, count);
}

std::uint32_t zeldata_strip_unsupported_characters(const char* text, std::size_t text_length,
                                                   zeldata_string* result)
{
    return run(made<const std::string&, &ZelDataUtilities::stripUnsupportedCharacters>,
               Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_to_text(const char* text, std::size_t text_length,
                                        zeldata_string* result)
{
    return run(made<const std::string&, &ZelDataUtilities::htmlTagsToText>, Text{text, text_length},
               result);
}

std::uint32_t zeldata_html_tags_from_text(const char* text, std::size_t text_length,
                                          zeldata_string* result)
{
    return run(made<const std::string&, &ZelDataUtilities::htmlTagsFromText>,
               Text{text, text_length}, result);
}

std::uint32_t zeldata_get_vertical_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return run(made<ZelAlignment_tags, &ZelDataUtilities::getVerticalAlignment>, alignment, result);
}

std::uint32_t zeldata_get_horizontal_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return run(made<ZelAlignment_tags, &ZelDataUtilities::getHorizontalAlignment>, alignment,
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
    return run(made<float, &ZelDataUtilities::getValueString>, value, result);
}

std::uint32_t zeldata_get_value_string_uint64(std::uint64_t value, zeldata_string* result)
{
    return run(made<unsigned long long, &ZelDataUtilities::getValueString>, value, result);
}

std::uint32_t zeldata_get_rate_string(std::uint64_t rate, zeldata_string* result)
{
    return run(made<unsigned long, &ZelDataUtilities::getRateString>, rate, result);
}

std::uint32_t zeldata_get_version_string(std::uint64_t version, zeldata_string* result)
{
    return run(made<unsigned long, &ZelDataUtilities::getVersionString>, version, result);
}

std::uint32_t zeldata_get_date_string(std::int64_t seconds, zeldata_string* date)
{
    return run(made<long, dateOf>, seconds, date);
}

std::uint32_t zeldata_get_date_string_now(zeldata_string* date)
{
    return run(dateOfNow, date);
}

std::uint32_t zeldata_get_value_string_int64(std::int64_t value, zeldata_string* result)
{
    return run(made<long, &getValueString>, value, result);
}
