#include "ZelInterchangeData/zeldata.h"

#include "ZelInterchangeData/ZelDataFace.h"
#include "ZelInterchangeData/ZelInterchangeData.h"
#include "core/ZelDataCore.h"
#include "sets/Factory.h"
#include "util/Guard.h"

#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

using namespace ZelInterchangeData;

namespace {

using Texts = std::vector<std::string>;
using Findings = std::vector<ZelDataFinding>;

/// What zeldata_last_message() returns.
class LastMessage {
public:
    const char* shown() const noexcept { return shown_; }
    bool isEmpty() const noexcept { return *shown_ == '\0'; }
    void clear() noexcept { shown_ = ""; }

    /// Keeps the message of the exception that @p makeError returns or, if memory runs out, what
    /// @p code means.
    template <class MakeError>
    void keep(ZelDataResult_tags code, MakeError&& makeError)
    {
        shown_ = describe(code);
        static_cast<void>(guarded([&] {
            text_ = makeError().what();
            shown_ = text_.c_str();
            return ZelData_Ok;
        }));
    }

private:
    const char* shown_ = "";
    std::string text_;
};

/// What a handle of a text or a list points to. In each kind of handle, the message comes first, so
/// that a handle of any type leads to it.
template <class Type>
struct Value {
    mutable LastMessage message;
    Type value;
};

/// What a handle of an object points to. Deliberate: no std::unique_ptr; with it, the type would not
/// have standard layout for every compiler, and the message could be elsewhere.
struct Object {
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    ~Object() { delete object; }

    mutable LastMessage message;
    i_ZelDataResult* object = nullptr;
};

/// The same for the objects of an interface.
template <class Type>
struct ObjectOf : Object {
    using Interface = Type;
};

template <class Type>
Type& target(Value<Type>& handle)
{
    return handle.value;
}
template <class Type>
const Type& target(const Value<Type>& handle)
{
    return handle.value;
}
template <class Interface>
Interface& target(const ObjectOf<Interface>& handle)
{
    return static_cast<Interface&>(*handle.object);
}

/// What most kinds of arguments share. An argument that is usable is loaded and passed to the
/// operation; if that succeeds, it delivers. A message shows what shown() returns, if anything.
struct Argument {
    static constexpr bool isUsable() { return true; }
    static constexpr void deliver() {}
    static constexpr std::tuple<> shown() { return {}; }
};

/// Loads an argument that needs no memory.
template <class Type>
[[gnu::always_inline]] inline Type& loaded(Type& argument)
{
    return argument;
}

struct Text {
    const char* text;
    std::size_t length;

    /// Refuses a length that no text can have: std::string throws std::length_error for it.
    [[gnu::always_inline]] bool isUsable() const
    {
        return text != nullptr && (isTerminated() || length <= PTRDIFF_MAX / 2);
    }
    bool isTerminated() const { return length == ZELDATA_TERMINATED; }
};

struct LoadedText : Argument {
    std::string value;

    std::string& passed() { return value; }
    auto shown() const { return std::tie(value); }
};

/// Deliberate: always inlined; the file is optimised for size, so each text would cost another call.
[[gnu::always_inline]] inline LoadedText loaded(Text& text)
{
    return {{}, std::string(text.text, text.isTerminated() ? std::strlen(text.text) : text.length)};
}

/// A whole number, as a @p To.
template <class To>
class Number : public Argument {
public:
    template <class From>
    explicit Number(From value)
        : value_(static_cast<To>(value)), fits_(static_cast<From>(value_) == value)
    {
    }

    bool isUsable() const { return fits_; }
    To passed() const { return value_; }
    auto shown() const { return std::make_tuple(value_); }

private:
    To value_;
    bool fits_;
};

/// Any other value, as a @p To.
template <class To>
class Plain : public Argument {
public:
    template <class From>
    explicit Plain(From value) : value_(static_cast<To>(value))
    {
    }

    To passed() const { return value_; }
    auto shown() const
    {
        if constexpr (std::is_constructible_v<ZelDataArgument, To>)
            return std::make_tuple(value_);
        else
            return std::make_tuple();
    }

private:
    To value_;
};

/// A truth value that messages do not show.
struct Flag : Argument {
    explicit Flag(std::int32_t given) : value(given != 0) {}
    bool passed() const { return value; }

    bool value;
};

/// Another handle; a message shows only one that the operation reads.
template <class Type>
class Other : public Argument {
public:
    explicit Other(Type* handle) : handle_(handle) {}

    bool isUsable() const { return handle_ != nullptr; }
    auto& passed() const { return target(*handle_); }
    auto shown() const
    {
        if constexpr (std::is_const_v<Type>)
            return std::tie(target(*handle_));
        else
            return std::make_tuple();
    }

private:
    Type* handle_;
};

/// Where the operation stores a value of the same type.
template <class Type>
class Ref : public Argument {
public:
    explicit Ref(Type* out) : out_(out) {}

    bool isUsable() const { return out_ != nullptr; }
    Type& passed() const { return *out_; }

private:
    Type* out_;
};

/// Where a value goes that the operation stores as a @p From.
template <class From, class To>
class Out : public Argument {
public:
    explicit Out(To* out) : out_(out) {}

    bool isUsable() const { return out_ != nullptr; }
    From& passed() { return value_; }
    void deliver() const { *out_ = static_cast<To>(value_); }

private:
    To* out_;
    From value_{};
};

/// Where the handle of a new object goes.
template <class Type>
struct Made {
    Type** out;

    explicit Made(Type** place) : out(place) {}
    bool isUsable() const { return isEmptyOutPointer(out); }
};

template <class Type>
struct LoadedMade : Argument {
    Type** out;
    std::unique_ptr<Type> handle;
    typename Type::Interface* made;

    auto** passed() { return &made; }
    void deliver()
    {
        handle->object = made;
        *out = handle.release();
    }
};

template <class Type>
[[gnu::always_inline]] inline LoadedMade<Type> loaded(Made<Type>& made)
{
    return {{}, made.out, std::make_unique<Type>(), nullptr};
}

/// Calls @p operation if all arguments are usable. If it fails, calls @p explain with its code and
/// what a message shows.
template <class Operation, class Explain, class... Arguments>
[[gnu::always_inline]] inline ZelDataResult_tags perform(Operation& operation, Explain& explain,
                                                         Arguments&... arguments)
{
    if (!(arguments.isUsable() && ...)) return ZelData_InvalidArgument;
    const auto call = [&](auto&&... argument) {
        const ZelDataResult_tags code = operation(argument.passed()...);
        if (failed(code))
            std::apply([&](const auto&... shown) { explain(code, shown...); },
                       std::tuple_cat(argument.shown()...));
        else
            (argument.deliver(), ...);
        return code;
    };
    return call(loaded(arguments)...);
}

/// The end of a failed call: keeps a message that names @p operation unless there is one.
void complete(LastMessage& message, const char* operation, ZelDataResult_tags code)
{
    if (message.isEmpty()) message.keep(code, [&] { return ZelDataError(code, operation); });
}

/// Calls @p body under the guard.
template <class Body>
[[gnu::always_inline]] inline std::uint32_t guardedCall(LastMessage& message, const char* operation,
                                                        Body&& body)
{
    message.clear();
    const ZelDataResult_tags code = guarded(body);
    if (failed(code)) complete(message, operation, code);
    return code;
}

/// Calls @p operation, which has no object.
template <class Operation, class... Arguments>
std::uint32_t run(Operation operation, Arguments... arguments)
{
    return guarded([&] {
        const auto explainNothing = [](auto&&...) {};
        return perform(operation, explainNothing, arguments...);
    });
}

/// Keeps the message for a call through @p handle, about which a view knows more than its code says.
using Explain = void (*)(const Object& handle, const ZelDataCall& call);

template <class Interface>
void explain(const Object& handle, const ZelDataCall& call)
{
    const auto view = checked(static_cast<Interface&>(*handle.object));
    handle.message.keep(call.code, [&] { return view.errorOf(call); });
}

/// @name The operation of an interface, as one of the root of all interfaces
/// Because of it, operations of different interfaces with the same arguments share their code.
/// @{

template <class Interface, class... Parameters>
auto ofRoot(ZelDataResult_tags (Interface::*operation)(Parameters...))
{
    return static_cast<ZelDataResult_tags (i_ZelDataResult::*)(Parameters...)>(operation);
}
template <class Interface, class... Parameters>
auto ofRoot(ZelDataResult_tags (Interface::*operation)(Parameters...) const)
{
    return static_cast<ZelDataResult_tags (i_ZelDataResult::*)(Parameters...) const>(operation);
}
template <class... Parameters>
auto ofRoot(ZelDataResult_tags (*operation)(const i_ZelDataResult&, Parameters...))
{
    return operation;
}
/// @}

/// Deliberate: not inlined; otherwise, each function would have the whole of it.
template <class Operation, class... Arguments>
[[gnu::noinline]] std::uint32_t callObject(const Object* handle, Explain explainCall,
                                           const char* name, Operation operation,
                                           Arguments... arguments)
{
    if (handle == nullptr) return ZelData_InvalidArgument;
    return guardedCall(handle->message, name, [&] {
        const auto bound = [&](auto&&... passed) -> ZelDataResult_tags {
            return std::invoke(operation, *handle->object, passed...);
        };
        const auto explained = [&](ZelDataResult_tags code, const auto&... shown) {
            explainCall(*handle, {name, code, {ZelDataArgument(shown)...}});
        };
        return perform(bound, explained, arguments...);
    });
}

/// Calls @p operation, which messages call @p name, for the object of @p handle.
template <class Type, class Operation, class... Arguments>
std::uint32_t call(Type* handle, const char* name, Operation operation, Arguments... arguments)
{
    return callObject(handle, &explain<typename Type::Interface>, name, ofRoot(operation),
                      arguments...);
}

/// Calls @p operation for the text or the list of @p handle.
template <class Type, class Operation, class... Arguments>
std::uint32_t callValue(Type* handle, const char* name, Operation operation, Arguments... arguments)
{
    if (handle == nullptr) return ZelData_InvalidArgument;
    return guardedCall(handle->message, name, [&] {
        const auto bound = [&](auto&&... passed) -> ZelDataResult_tags {
            return operation(target(*handle), passed...);
        };
        const auto explainNothing = [](auto&&...) {};
        return perform(bound, explainNothing, arguments...);
    });
}

/// Stores what @p getter returns for the element of a list at @p index.
template <class Type, class Getter, class Destination>
std::uint32_t element(const Type* handle, std::uint64_t index, const char* name, Getter getter,
                      Destination destination)
{
    const auto read = [getter](const auto& list, std::size_t place, auto& value) {
        using Stored = std::remove_reference_t<decltype(value)>;
        if (place >= list.size()) return ZelData_InvalidArgument;
        value = static_cast<Stored>(std::invoke(getter, list[place]));
        return ZelData_Ok;
    };
    return callValue(handle, name, read, Number<std::size_t>(index), destination);
}

/// @name Operations that are no function of the library
/// @{

template <class Interface>
constexpr ZelDataResult_tags (Interface::*copyFrom)(const Interface&) = &Interface::copyFrom;

template <class Interface>
ZelDataResult_tags findProblemsOf(const i_ZelDataResult& object, Findings& findings)
{
    return findProblems(static_cast<const Interface&>(object), findings);
}

/// @p function, but it stores what it returns.
template <class Result, class... Parameters>
auto stored(Result (*function)(Parameters...))
{
    return [function](Parameters... parameters, Result& result) {
        result = function(parameters...);
        return ZelData_Ok;
    };
}

template <class Type>
std::uint32_t lastError(const Type* handle)
{
    return handle == nullptr ? ZelData_InvalidArgument : target(*handle).getLastError();
}

ZelDataResult_tags storeLastError(const i_ZelDataResult& object, ZelDataResult_tags code)
{
    object.setLastError(code);
    return ZelData_Ok;
}

std::string dateOf(long seconds)
{
    return ZelDataUtilities::getDateString(&seconds);
}

std::string dateOfNow()
{
    return ZelDataUtilities::getDateString(nullptr);
}

std::uint64_t indexOf(unsigned long item)
{
    return item == ZelDataFinding::noItem ? ZELDATA_NO_ITEM : item;
}
std::uint64_t itemOf(const ZelDataFinding& finding)
{
    return indexOf(finding.item);
}
std::uint64_t laterItemOf(const ZelDataFinding& finding)
{
    return indexOf(finding.laterItem);
}

ZelDataResult_tags replaceText(std::string& text, const std::string& replacement)
{
    text = replacement;
    return ZelData_Ok;
}

ZelDataResult_tags clearTexts(Texts& texts)
{
    texts.clear();
    return ZelData_Ok;
}

ZelDataResult_tags addText(Texts& texts, const std::string& text)
{
    texts.push_back(text);
    return ZelData_Ok;
}

template <class List>
ZelDataResult_tags countOf(const List& list, unsigned long& count)
{
    count = static_cast<unsigned long>(list.size());
    return ZelData_Ok;
}

const std::string& identical(const std::string& text)
{
    return text;
}
/// @}

} // namespace

struct zeldata_string : Value<std::string> {};
struct zeldata_strings : Value<Texts> {};
struct zeldata_findings : Value<Findings> {};
struct zeldata_document : ObjectOf<i_ZelInterchangeDataCore> {};
struct zeldata_header : ObjectOf<i_ZelDataHeader> {};
struct zeldata_captions : ObjectOf<i_ZelDataCaptions> {};
struct zeldata_caption_item : ObjectOf<i_ZelDataCaptionItem> {};
struct zeldata_toc : ObjectOf<i_ZelDataToc> {};
struct zeldata_toc_item : ObjectOf<i_ZelDataTocItem> {};
struct zeldata_screen_text : ObjectOf<i_ZelDataScreenText> {};
struct zeldata_screen_text_item : ObjectOf<i_ZelDataScreenTextItem> {};
struct zeldata_header_formatter : ObjectOf<i_ZelDataHeaderFormatter> {};
struct zeldata_caption_formatter : ObjectOf<i_ZelDataCaptionFormatter> {};
struct zeldata_toc_formatter : ObjectOf<i_ZelDataTocFormatter> {};
struct zeldata_screen_text_formatter : ObjectOf<i_ZelDataScreenTextFormatter> {};

// zeldata_last_message() takes a handle of any type for its message.
static_assert(std::is_standard_layout_v<zeldata_string> &&
              std::is_standard_layout_v<zeldata_header>);

// Results.

const char* zeldata_last_message(const void* handle)
{
    if (handle == nullptr) return describe(ZelData_InvalidArgument);
    return static_cast<const LastMessage*>(handle)->shown();
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
    return callValue(string, "set", replaceText, Text{text, text_length});
}

const char* zeldata_string_get_data(const zeldata_string* string)
{
    return string == nullptr ? "" : string->value.c_str();
}

std::size_t zeldata_string_get_size(const zeldata_string* string)
{
    return string == nullptr ? 0 : string->value.size();
}

std::uint32_t zeldata_string_copy(const zeldata_string* string, char* buffer, std::size_t capacity,
                                  std::size_t* needed)
{
    return callValue(string, "copy", [&](const std::string& text) {
        if (needed == nullptr) return ZelData_InvalidArgument;
        *needed = text.size() + 1;
        if (buffer == nullptr || capacity < *needed) return ZelData_InvalidArgument;
        std::memcpy(buffer, text.c_str(), *needed);
        return ZelData_Ok;
    });
}

// Lists of texts.

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
    return callValue(strings, "clear", clearTexts);
}

std::uint32_t zeldata_strings_add(zeldata_strings* strings, const char* text,
                                  std::size_t text_length)
{
    return callValue(strings, "add", addText, Text{text, text_length});
}

std::uint32_t zeldata_strings_get_count(const zeldata_strings* strings, std::uint64_t* count)
{
    return callValue(strings, "getCount", countOf<Texts>, Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_strings_get(const zeldata_strings* strings, std::uint64_t index,
                                  zeldata_string* text)
{
    return element(strings, index, "get", identical, Other(text));
}

// Documents.

std::uint32_t zeldata_document_create(zeldata_document** out)
{
    return run(createObject<ZelDataCore, i_ZelInterchangeDataCore>, Made(out));
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
    return call(document, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
}

std::uint32_t zeldata_document_write_string(const zeldata_document* document, zeldata_string* out,
                                            std::uint32_t format, std::int32_t flag)
{
    return call(document, "writeString", &i_ZelDataFormatterBase::writeString, Other(out),
                Plain<ZelDataFormatType_tags>(format), Flag(flag));
}

std::uint32_t zeldata_document_write_file(const zeldata_document* document, const char* path,
                                          std::size_t path_length, std::uint32_t format,
                                          std::int32_t flag)
{
    return call(document, "writeFile", &i_ZelDataFormatterBase::writeFile, Text{path, path_length},
                Plain<ZelDataFormatType_tags>(format), Flag(flag));
}

std::uint32_t zeldata_document_get_header(const zeldata_document* document, zeldata_header* target)
{
    return call(document, "getDataHeader", &i_ZelInterchangeDataCore::getDataHeader, Other(target));
}

std::uint32_t zeldata_document_set_header(zeldata_document* document, const zeldata_header* source)
{
    return call(document, "setDataHeader", &i_ZelInterchangeDataCore::setDataHeader, Other(source));
}

std::uint32_t zeldata_document_get_captions(const zeldata_document* document,
                                            zeldata_captions* target)
{
    return call(document, "getDataCaptions", &i_ZelInterchangeDataCore::getDataCaptions,
                Other(target));
}

std::uint32_t zeldata_document_set_captions(zeldata_document* document,
                                            const zeldata_captions* source)
{
    return call(document, "setDataCaptions", &i_ZelInterchangeDataCore::setDataCaptions,
                Other(source));
}

std::uint32_t zeldata_document_get_toc(const zeldata_document* document, zeldata_toc* target)
{
    return call(document, "getDataToc", &i_ZelInterchangeDataCore::getDataToc, Other(target));
}

std::uint32_t zeldata_document_set_toc(zeldata_document* document, const zeldata_toc* source)
{
    return call(document, "setDataToc", &i_ZelInterchangeDataCore::setDataToc, Other(source));
}

std::uint32_t zeldata_document_get_screen_text(const zeldata_document* document,
                                               zeldata_screen_text* target)
{
    return call(document, "getDataScreenText", &i_ZelInterchangeDataCore::getDataScreenText,
                Other(target));
}

std::uint32_t zeldata_document_set_screen_text(zeldata_document* document,
                                               const zeldata_screen_text* source)
{
    return call(document, "setDataScreenText", &i_ZelInterchangeDataCore::setDataScreenText,
                Other(source));
}

std::uint32_t zeldata_document_create_header(const zeldata_document* document, zeldata_header** out)
{
    return call(document, "createDataHeader", &i_ZelInterchangeDataCore::createDataHeader,
                Made(out));
}

std::uint32_t zeldata_document_create_captions(const zeldata_document* document,
                                               zeldata_captions** out)
{
    return call(document, "createDataCaptions", &i_ZelInterchangeDataCore::createDataCaptions,
                Made(out));
}

std::uint32_t zeldata_document_create_toc(const zeldata_document* document, zeldata_toc** out)
{
    return call(document, "createDataToc", &i_ZelInterchangeDataCore::createDataToc, Made(out));
}

std::uint32_t zeldata_document_create_screen_text(const zeldata_document* document,
                                                  zeldata_screen_text** out)
{
    return call(document, "createDataScreenText", &i_ZelInterchangeDataCore::createDataScreenText,
                Made(out));
}

std::uint32_t zeldata_document_find_problems(const zeldata_document* document,
                                             zeldata_findings* findings)
{
    return call(document, "findProblems", findProblemsOf<i_ZelInterchangeDataCore>,
                Other(findings));
}

std::uint32_t zeldata_document_replace_file(const zeldata_document* document, const char* path,
                                            std::size_t path_length, std::int32_t* system_error,
                                            std::uint32_t format)
{
    if (document == nullptr) return ZelData_InvalidArgument;
    return guardedCall(document->message, "replaceFile", [&] {
        Text text{path, path_length};
        if (!text.isUsable() || system_error == nullptr) return ZelData_InvalidArgument;
        *system_error = 0;
        const std::string name = loaded(text).value;
        const auto type = static_cast<ZelDataFormatType_tags>(format);
        const auto code = replaceFile(target(*document), name, *system_error, type);
        if (*system_error != 0)
            document->message.keep(code, [&] { return zelDataFileError(name, *system_error); });
        else if (failed(code))
            document->message.keep(
                code, [&] { return zelDataPacketError(target(*document), name, type, code); });
        return code;
    });
}

// Headers.

std::uint32_t zeldata_header_create(zeldata_header** out)
{
    return run(&ZelDataUtilities::createHeaderData, Made(out));
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
    return call(header, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
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
    return call(header, "setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs,
                Other(ids));
}

std::uint32_t zeldata_header_get_ordered_language_ids(const zeldata_header* header,
                                                      zeldata_strings* ids)
{
    return call(header, "getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs,
                Other(ids));
}

std::uint32_t zeldata_header_get_language_count(const zeldata_header* header, std::uint64_t* count)
{
    return call(header, "getLanguageCount", &i_ZelDataLanguage::getLanguageCount,
                Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_header_get_language_display_names(const zeldata_header* header,
                                                        zeldata_strings* names)
{
    return call(header, "getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames,
                Other(names));
}

std::uint32_t zeldata_header_get_language_native_display_names(const zeldata_header* header,
                                                               zeldata_strings* names)
{
    return call(header, "getLanguageNativeDisplayNames",
                &i_ZelDataLanguage::getLanguageNativeDisplayNames, Other(names));
}

std::uint32_t zeldata_header_does_language_exist(const zeldata_header* header, const char* id,
                                                 std::size_t id_length, std::int32_t* exists)
{
    return call(header, "doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist,
                Text{id, id_length}, Out<bool, std::int32_t>(exists));
}

std::uint32_t zeldata_header_copy_languages_from_header(zeldata_header* header,
                                                        const zeldata_header* source)
{
    return call(header, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
}

std::uint32_t zeldata_header_copy_languages_from_captions(zeldata_header* header,
                                                          const zeldata_captions* source)
{
    return call(header, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
}

std::uint32_t zeldata_header_copy_languages_from_toc(zeldata_header* header,
                                                     const zeldata_toc* source)
{
    return call(header, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
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
    return call(header, "setKeywords", &i_ZelDataHeader::setKeywords, Other(keywords));
}

std::uint32_t zeldata_header_set_ipod_explicit(zeldata_header* header, std::int32_t is_explicit)
{
    return call(header, "setIPodExplicit", &i_ZelDataHeader::setIPodExplicit,
                Plain<bool>(is_explicit));
}

std::uint32_t zeldata_header_set_video_length(zeldata_header* header, std::uint64_t milliseconds)
{
    return call(header, "setVideoLength", &i_ZelDataHeader::setVideoLength,
                Number<unsigned long>(milliseconds));
}

std::uint32_t zeldata_header_set_video_width(zeldata_header* header, std::uint64_t pixels)
{
    return call(header, "setVideoWidth", &i_ZelDataHeader::setVideoWidth,
                Number<unsigned long>(pixels));
}

std::uint32_t zeldata_header_set_video_height(zeldata_header* header, std::uint64_t pixels)
{
    return call(header, "setVideoHeight", &i_ZelDataHeader::setVideoHeight,
                Number<unsigned long>(pixels));
}

std::uint32_t zeldata_header_get_app_name(const zeldata_header* header, zeldata_string* name)
{
    return call(header, "getAppName", &i_ZelDataHeader::getAppName, Other(name));
}

std::uint32_t zeldata_header_get_app_version(const zeldata_header* header, zeldata_string* version)
{
    return call(header, "getAppVersion", &i_ZelDataHeader::getAppVersion, Other(version));
}

std::uint32_t zeldata_header_get_title(const zeldata_header* header, zeldata_string* title)
{
    return call(header, "getTitle", &i_ZelDataHeader::getTitle, Other(title));
}

std::uint32_t zeldata_header_get_creator(const zeldata_header* header, zeldata_string* creator)
{
    return call(header, "getCreator", &i_ZelDataHeader::getCreator, Other(creator));
}

std::uint32_t zeldata_header_get_description(const zeldata_header* header,
                                             zeldata_string* description)
{
    return call(header, "getDescription", &i_ZelDataHeader::getDescription, Other(description));
}

std::uint32_t zeldata_header_get_keywords(const zeldata_header* header, zeldata_strings* keywords)
{
    return call(header, "getKeywords", &i_ZelDataHeader::getKeywords, Other(keywords));
}

std::uint32_t zeldata_header_get_ipod_explicit(const zeldata_header* header,
                                               std::int32_t* is_explicit)
{
    return call(header, "getIPodExplicit", &i_ZelDataHeader::getIPodExplicit,
                Out<bool, std::int32_t>(is_explicit));
}

std::uint32_t zeldata_header_get_video_length(const zeldata_header* header,
                                              std::uint64_t* milliseconds)
{
    return call(header, "getVideoLength", &i_ZelDataHeader::getVideoLength,
                Out<unsigned long, std::uint64_t>(milliseconds));
}

std::uint32_t zeldata_header_get_video_width(const zeldata_header* header, std::uint64_t* pixels)
{
    return call(header, "getVideoWidth", &i_ZelDataHeader::getVideoWidth,
                Out<unsigned long, std::uint64_t>(pixels));
}

std::uint32_t zeldata_header_get_video_height(const zeldata_header* header, std::uint64_t* pixels)
{
    return call(header, "getVideoHeight", &i_ZelDataHeader::getVideoHeight,
                Out<unsigned long, std::uint64_t>(pixels));
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
    return call(header, "getContentNameCount", &i_ZelDataHeader::getContentNameCount,
                Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_header_get_content_names(const zeldata_header* header, zeldata_strings* names)
{
    return call(header, "getContentNames", &i_ZelDataHeader::getContentNames, Other(names));
}

std::uint32_t zeldata_header_does_content_name_exist(const zeldata_header* header, const char* name,
                                                     std::size_t name_length, std::int32_t* exists)
{
    return call(header, "doesContentNameExist", &i_ZelDataHeader::doesContentNameExist,
                Text{name, name_length}, Out<bool, std::int32_t>(exists));
}

std::uint32_t zeldata_header_set_show_search_bar(zeldata_header* header, std::int32_t show)
{
    return call(header, "setShowSearchBar", &i_ZelDataHeader::setShowSearchBar, Plain<bool>(show));
}

std::uint32_t zeldata_header_get_show_search_bar(const zeldata_header* header, std::int32_t* show)
{
    return call(header, "getShowSearchBar", &i_ZelDataHeader::getShowSearchBar,
                Out<bool, std::int32_t>(show));
}

std::uint32_t zeldata_header_copy_from(zeldata_header* header, const zeldata_header* other)
{
    return call(header, "copyFrom", copyFrom<i_ZelDataHeader>, Other(other));
}

std::uint32_t zeldata_header_find_problems(const zeldata_header* header, zeldata_findings* findings)
{
    return call(header, "findProblems", findProblemsOf<i_ZelDataHeader>, Other(findings));
}

// Captions.

std::uint32_t zeldata_captions_create(zeldata_captions** out)
{
    return run(&ZelDataUtilities::createCaptionData, Made(out));
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
    return call(captions, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
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
    return call(captions, "setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs,
                Other(ids));
}

std::uint32_t zeldata_captions_get_ordered_language_ids(const zeldata_captions* captions,
                                                        zeldata_strings* ids)
{
    return call(captions, "getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs,
                Other(ids));
}

std::uint32_t zeldata_captions_get_language_count(const zeldata_captions* captions,
                                                  std::uint64_t* count)
{
    return call(captions, "getLanguageCount", &i_ZelDataLanguage::getLanguageCount,
                Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_captions_get_language_display_names(const zeldata_captions* captions,
                                                          zeldata_strings* names)
{
    return call(captions, "getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames,
                Other(names));
}

std::uint32_t zeldata_captions_get_language_native_display_names(const zeldata_captions* captions,
                                                                 zeldata_strings* names)
{
    return call(captions, "getLanguageNativeDisplayNames",
                &i_ZelDataLanguage::getLanguageNativeDisplayNames, Other(names));
}

std::uint32_t zeldata_captions_does_language_exist(const zeldata_captions* captions, const char* id,
                                                   std::size_t id_length, std::int32_t* exists)
{
    return call(captions, "doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist,
                Text{id, id_length}, Out<bool, std::int32_t>(exists));
}

std::uint32_t zeldata_captions_copy_languages_from_header(zeldata_captions* captions,
                                                          const zeldata_header* source)
{
    return call(captions, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
}

std::uint32_t zeldata_captions_copy_languages_from_captions(zeldata_captions* captions,
                                                            const zeldata_captions* source)
{
    return call(captions, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
}

std::uint32_t zeldata_captions_copy_languages_from_toc(zeldata_captions* captions,
                                                       const zeldata_toc* source)
{
    return call(captions, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
}

std::uint32_t zeldata_captions_is_valid(const zeldata_captions* captions, std::int32_t strict)
{
    return call(captions, "isValid", &i_ZelDataCaptions::isValid, Plain<bool>(strict));
}

std::uint32_t zeldata_captions_make_consistent(zeldata_captions* captions)
{
    return call(captions, "makeCaptionsConsistent", &i_ZelDataCaptions::makeCaptionsConsistent);
}

std::uint32_t zeldata_captions_set_frame_rate(zeldata_captions* captions, std::uint64_t rate)
{
    return call(captions, "setFrameRate", &i_ZelDataCaptions::setFrameRate,
                Number<unsigned long>(rate));
}

std::uint32_t zeldata_captions_get_frame_rate(const zeldata_captions* captions, std::uint64_t* rate)
{
    return call(captions, "getFrameRate", &i_ZelDataCaptions::getFrameRate,
                Out<unsigned long, std::uint64_t>(rate));
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
    return call(captions, "getFontFamily", &i_ZelDataCaptions::getFontFamily, Other(family));
}

std::uint32_t zeldata_captions_set_font_size(zeldata_captions* captions, std::uint64_t size)
{
    return call(captions, "setFontSize", &i_ZelDataCaptions::setFontSize,
                Number<unsigned long>(size));
}

std::uint32_t zeldata_captions_get_font_size(const zeldata_captions* captions, std::uint64_t* size)
{
    return call(captions, "getFontSize", &i_ZelDataCaptions::getFontSize,
                Out<unsigned long, std::uint64_t>(size));
}

std::uint32_t zeldata_captions_set_foreground_color(zeldata_captions* captions, float red,
                                                    float green, float blue)
{
    return call(captions, "setForegroundColor", &i_ZelDataCaptions::setForegroundColor,
                Plain<float>(red), Plain<float>(green), Plain<float>(blue));
}

std::uint32_t zeldata_captions_get_foreground_color(const zeldata_captions* captions, float* red,
                                                    float* green, float* blue)
{
    return call(captions, "getForegroundColor", &i_ZelDataCaptions::getForegroundColor, Ref(red),
                Ref(green), Ref(blue));
}

std::uint32_t zeldata_captions_set_background_color(zeldata_captions* captions, float red,
                                                    float green, float blue)
{
    return call(captions, "setBackgroundColor", &i_ZelDataCaptions::setBackgroundColor,
                Plain<float>(red), Plain<float>(green), Plain<float>(blue));
}

std::uint32_t zeldata_captions_get_background_color(const zeldata_captions* captions, float* red,
                                                    float* green, float* blue)
{
    return call(captions, "getBackgroundColor", &i_ZelDataCaptions::getBackgroundColor, Ref(red),
                Ref(green), Ref(blue));
}

std::uint32_t zeldata_captions_set_background_opacity(zeldata_captions* captions, float opacity)
{
    return call(captions, "setBackgroundOpacity", &i_ZelDataCaptions::setBackgroundOpacity,
                Plain<float>(opacity));
}

std::uint32_t zeldata_captions_get_background_opacity(const zeldata_captions* captions,
                                                      float* opacity)
{
    return call(captions, "getBackgroundOpacity", &i_ZelDataCaptions::getBackgroundOpacity,
                Ref(opacity));
}

std::uint32_t zeldata_captions_clear_items(zeldata_captions* captions)
{
    return call(captions, "clearCaptionItems", &i_ZelDataCaptions::clearCaptionItems);
}

std::uint32_t zeldata_captions_add_item(zeldata_captions* captions,
                                        const zeldata_caption_item* item)
{
    return call(captions, "addCaptionItem", &i_ZelDataCaptions::addCaptionItem, Other(item));
}

std::uint32_t zeldata_captions_create_item(const zeldata_captions* captions,
                                           zeldata_caption_item** out)
{
    return call(captions, "createCaptionItem", &i_ZelDataCaptions::createCaptionItem, Made(out));
}

std::uint32_t zeldata_captions_remove_item(zeldata_captions* captions, std::uint64_t index)
{
    return call(captions, "removeCaptionItemAt", &i_ZelDataCaptions::removeCaptionItemAt,
                Number<unsigned long>(index));
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
    return call(captions, "getCaptionItemCount", &i_ZelDataCaptions::getCaptionItemCount,
                Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_captions_get_item(const zeldata_captions* captions,
                                        zeldata_caption_item** out, std::uint64_t index)
{
    return call(captions, "getCaptionItemAt", &i_ZelDataCaptions::getCaptionItemAt, Made(out),
                Number<unsigned long>(index));
}

std::uint32_t zeldata_captions_copy_from(zeldata_captions* captions, const zeldata_captions* other)
{
    return call(captions, "copyFrom", copyFrom<i_ZelDataCaptions>, Other(other));
}

std::uint32_t zeldata_captions_find_problems(const zeldata_captions* captions,
                                             zeldata_findings* findings)
{
    return call(captions, "findProblems", findProblemsOf<i_ZelDataCaptions>, Other(findings));
}

// Caption items.

std::uint32_t zeldata_caption_item_create(zeldata_caption_item** out)
{
    return run(&ZelDataUtilities::createCaptionItemData, Made(out));
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
    return call(caption_item, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
}

std::uint32_t zeldata_caption_item_is_valid(const zeldata_caption_item* caption_item,
                                            std::int32_t strict)
{
    return call(caption_item, "isValid", &i_ZelDataCaptionItem::isValid, Plain<bool>(strict));
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
    return call(caption_item, "setTextForLanguage", &i_ZelDataCaptionItem::setTextForLanguage,
                Text{text, text_length}, Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_set_start(zeldata_caption_item* caption_item, std::int64_t start)
{
    return call(caption_item, "setStart", &i_ZelDataCaptionItem::setStart,
                Number<long long>(start));
}

std::uint32_t zeldata_caption_item_set_end(zeldata_caption_item* caption_item, std::int64_t end)
{
    return call(caption_item, "setEnd", &i_ZelDataCaptionItem::setEnd, Number<long long>(end));
}

std::uint32_t zeldata_caption_item_set_duration(zeldata_caption_item* caption_item,
                                                std::int64_t duration)
{
    return call(caption_item, "setDuration", &i_ZelDataCaptionItem::setDuration,
                Number<long long>(duration));
}

std::uint32_t zeldata_caption_item_set_alignment(zeldata_caption_item* caption_item,
                                                 std::uint32_t alignment)
{
    return call(caption_item, "setAlignment", &i_ZelDataCaptionItem::setAlignment,
                Plain<ZelAlignment_tags>(alignment));
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
    return call(caption_item, "getLanguageIDs", &i_ZelDataCaptionItem::getLanguageIDs, Other(ids));
}

std::uint32_t zeldata_caption_item_get_text_for_language(const zeldata_caption_item* caption_item,
                                                         zeldata_string* text,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call(caption_item, "getTextForLanguage", &i_ZelDataCaptionItem::getTextForLanguage,
                Other(text), Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_get_start(const zeldata_caption_item* caption_item,
                                             std::int64_t* start)
{
    return call(caption_item, "getStart", &i_ZelDataCaptionItem::getStart,
                Out<long long, std::int64_t>(start));
}

std::uint32_t zeldata_caption_item_get_end(const zeldata_caption_item* caption_item,
                                           std::int64_t* end)
{
    return call(caption_item, "getEnd", &i_ZelDataCaptionItem::getEnd,
                Out<long long, std::int64_t>(end));
}

std::uint32_t zeldata_caption_item_get_duration(const zeldata_caption_item* caption_item,
                                                std::int64_t* duration)
{
    return call(caption_item, "getDuration", &i_ZelDataCaptionItem::getDuration,
                Out<long long, std::int64_t>(duration));
}

std::uint32_t zeldata_caption_item_get_alignment(const zeldata_caption_item* caption_item,
                                                 std::uint32_t* alignment)
{
    return call(caption_item, "getAlignment", &i_ZelDataCaptionItem::getAlignment,
                Out<ZelAlignment_tags, std::uint32_t>(alignment));
}

std::uint32_t zeldata_caption_item_copy_from(zeldata_caption_item* caption_item,
                                             const zeldata_caption_item* other)
{
    return call(caption_item, "copyFrom", copyFrom<i_ZelDataCaptionItem>, Other(other));
}

// Tables of contents.

std::uint32_t zeldata_toc_create(zeldata_toc** out)
{
    return run(&ZelDataUtilities::createTocData, Made(out));
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
    return call(toc, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
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
    return call(toc, "setOrderedLanguageIDs", &i_ZelDataLanguage::setOrderedLanguageIDs,
                Other(ids));
}

std::uint32_t zeldata_toc_get_ordered_language_ids(const zeldata_toc* toc, zeldata_strings* ids)
{
    return call(toc, "getOrderedLanguageIDs", &i_ZelDataLanguage::getOrderedLanguageIDs,
                Other(ids));
}

std::uint32_t zeldata_toc_get_language_count(const zeldata_toc* toc, std::uint64_t* count)
{
    return call(toc, "getLanguageCount", &i_ZelDataLanguage::getLanguageCount,
                Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_toc_get_language_display_names(const zeldata_toc* toc, zeldata_strings* names)
{
    return call(toc, "getLanguageDisplayNames", &i_ZelDataLanguage::getLanguageDisplayNames,
                Other(names));
}

std::uint32_t zeldata_toc_get_language_native_display_names(const zeldata_toc* toc,
                                                            zeldata_strings* names)
{
    return call(toc, "getLanguageNativeDisplayNames",
                &i_ZelDataLanguage::getLanguageNativeDisplayNames, Other(names));
}

std::uint32_t zeldata_toc_does_language_exist(const zeldata_toc* toc, const char* id,
                                              std::size_t id_length, std::int32_t* exists)
{
    return call(toc, "doesLanguageExist", &i_ZelDataLanguage::doesLanguageExist,
                Text{id, id_length}, Out<bool, std::int32_t>(exists));
}

std::uint32_t zeldata_toc_copy_languages_from_header(zeldata_toc* toc, const zeldata_header* source)
{
    return call(toc, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
}

std::uint32_t zeldata_toc_copy_languages_from_captions(zeldata_toc* toc,
                                                       const zeldata_captions* source)
{
    return call(toc, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
}

std::uint32_t zeldata_toc_copy_languages_from_toc(zeldata_toc* toc, const zeldata_toc* source)
{
    return call(toc, "copyFrom", copyFrom<i_ZelDataLanguage>, Other(source));
}

std::uint32_t zeldata_toc_is_valid(const zeldata_toc* toc, std::int32_t deep)
{
    return call(toc, "isValid", &i_ZelDataToc::isValid, Plain<bool>(deep));
}

std::uint32_t zeldata_toc_make_consistent(zeldata_toc* toc)
{
    return call(toc, "makeTocConsistent", &i_ZelDataToc::makeTocConsistent);
}

std::uint32_t zeldata_toc_set_frame_rate(zeldata_toc* toc, std::uint64_t rate)
{
    return call(toc, "setFrameRate", &i_ZelDataToc::setFrameRate, Number<unsigned long>(rate));
}

std::uint32_t zeldata_toc_get_frame_rate(const zeldata_toc* toc, std::uint64_t* rate)
{
    return call(toc, "getFrameRate", &i_ZelDataToc::getFrameRate,
                Out<unsigned long, std::uint64_t>(rate));
}

std::uint32_t zeldata_toc_set_image_file(zeldata_toc* toc, const char* name,
                                         std::size_t name_length)
{
    return call(toc, "setImageFile", &i_ZelDataToc::setImageFile, Text{name, name_length});
}

std::uint32_t zeldata_toc_get_image_file(const zeldata_toc* toc, zeldata_string* name)
{
    return call(toc, "getImageFile", &i_ZelDataToc::getImageFile, Other(name));
}

std::uint32_t zeldata_toc_clear_items(zeldata_toc* toc)
{
    return call(toc, "clearTocItems", &i_ZelDataToc::clearTocItems);
}

std::uint32_t zeldata_toc_add_item(zeldata_toc* toc, const zeldata_toc_item* item)
{
    return call(toc, "addTocItem", &i_ZelDataToc::addTocItem, Other(item));
}

std::uint32_t zeldata_toc_create_item(const zeldata_toc* toc, zeldata_toc_item** out)
{
    return call(toc, "createTocItem", &i_ZelDataToc::createTocItem, Made(out));
}

std::uint32_t zeldata_toc_remove_item(zeldata_toc* toc, std::uint64_t index)
{
    return call(toc, "removeTocItemAt", &i_ZelDataToc::removeTocItemAt,
                Number<unsigned long>(index));
}

std::uint32_t zeldata_toc_remove_items_for_language(zeldata_toc* toc, const char* language_id,
                                                    std::size_t language_id_length)
{
    return call(toc, "removeTocItemsForLanguage", &i_ZelDataToc::removeTocItemsForLanguage,
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_get_item_count(const zeldata_toc* toc, std::uint64_t* count)
{
    return call(toc, "getTocItemCount", &i_ZelDataToc::getTocItemCount,
                Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_toc_get_item(const zeldata_toc* toc, zeldata_toc_item** out,
                                   std::uint64_t index)
{
    return call(toc, "getTocItemAt", &i_ZelDataToc::getTocItemAt, Made(out),
                Number<unsigned long>(index));
}

std::uint32_t zeldata_toc_copy_from(zeldata_toc* toc, const zeldata_toc* source)
{
    return call(toc, "copyFrom", copyFrom<i_ZelDataToc>, Other(source));
}

std::uint32_t zeldata_toc_find_problems(const zeldata_toc* toc, zeldata_findings* findings)
{
    return call(toc, "findProblems", findProblemsOf<i_ZelDataToc>, Other(findings));
}

// Entries of a table of contents.

std::uint32_t zeldata_toc_item_create(zeldata_toc_item** out)
{
    return run(&ZelDataUtilities::createTocItemData, Made(out));
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
    return call(toc_item, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
}

std::uint32_t zeldata_toc_item_is_valid(const zeldata_toc_item* toc_item, std::int32_t deep)
{
    return call(toc_item, "isValid", &i_ZelDataTocItem::isValid, Plain<bool>(deep));
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
    return call(toc_item, "setTextForLanguage", &i_ZelDataTocItem::setTextForLanguage,
                Text{text, text_length}, Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_item_set_start(zeldata_toc_item* toc_item, std::int64_t start)
{
    return call(toc_item, "setStart", &i_ZelDataTocItem::setStart, Number<long long>(start));
}

std::uint32_t zeldata_toc_item_set_image_file(zeldata_toc_item* toc_item, const char* name,
                                              std::size_t name_length)
{
    return call(toc_item, "setImageFile", &i_ZelDataTocItem::setImageFile, Text{name, name_length});
}

std::uint32_t zeldata_toc_item_set_image_index(zeldata_toc_item* toc_item, std::uint64_t index)
{
    return call(toc_item, "setImageIndex", &i_ZelDataTocItem::setImageIndex,
                Number<unsigned long>(index));
}

std::uint32_t zeldata_toc_item_set_image_offset(zeldata_toc_item* toc_item, std::uint64_t offset)
{
    return call(toc_item, "setImageOffset", &i_ZelDataTocItem::setImageOffset,
                Number<unsigned long long>(offset));
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
    return call(toc_item, "getLanguageIDs", &i_ZelDataTocItem::getLanguageIDs, Other(ids));
}

std::uint32_t zeldata_toc_item_get_text_for_language(const zeldata_toc_item* toc_item,
                                                     zeldata_string* text, const char* language_id,
                                                     std::size_t language_id_length)
{
    return call(toc_item, "getTextForLanguage", &i_ZelDataTocItem::getTextForLanguage, Other(text),
                Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_item_get_start(const zeldata_toc_item* toc_item, std::int64_t* start)
{
    return call(toc_item, "getStart", &i_ZelDataTocItem::getStart,
                Out<long long, std::int64_t>(start));
}

std::uint32_t zeldata_toc_item_get_image_file(const zeldata_toc_item* toc_item,
                                              zeldata_string* name)
{
    return call(toc_item, "getImageFile", &i_ZelDataTocItem::getImageFile, Other(name));
}

std::uint32_t zeldata_toc_item_get_image_index(const zeldata_toc_item* toc_item,
                                               std::uint64_t* index)
{
    return call(toc_item, "getImageIndex", &i_ZelDataTocItem::getImageIndex,
                Out<unsigned long, std::uint64_t>(index));
}

std::uint32_t zeldata_toc_item_get_image_offset(const zeldata_toc_item* toc_item,
                                                std::uint64_t* offset)
{
    return call(toc_item, "getImageOffset", &i_ZelDataTocItem::getImageOffset,
                Out<unsigned long long, std::uint64_t>(offset));
}

std::uint32_t zeldata_toc_item_copy_from(zeldata_toc_item* toc_item, const zeldata_toc_item* source)
{
    return call(toc_item, "copyFrom", copyFrom<i_ZelDataTocItem>, Other(source));
}

// Screen text.

std::uint32_t zeldata_screen_text_create(zeldata_screen_text** out)
{
    return run(&ZelDataUtilities::createScreenTextData, Made(out));
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
    return call(screen_text, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
}

std::uint32_t zeldata_screen_text_is_valid(const zeldata_screen_text* screen_text,
                                           std::int32_t deep)
{
    return call(screen_text, "isValid", &i_ZelDataScreenText::isValid, Plain<bool>(deep));
}

std::uint32_t zeldata_screen_text_make_consistent(zeldata_screen_text* screen_text)
{
    return call(screen_text, "makeScreenTextConsistent",
                &i_ZelDataScreenText::makeScreenTextConsistent);
}

std::uint32_t zeldata_screen_text_set_frame_rate(zeldata_screen_text* screen_text,
                                                 std::uint64_t rate)
{
    return call(screen_text, "setFrameRate", &i_ZelDataScreenText::setFrameRate,
                Number<unsigned long>(rate));
}

std::uint32_t zeldata_screen_text_get_frame_rate(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* rate)
{
    return call(screen_text, "getFrameRate", &i_ZelDataScreenText::getFrameRate,
                Out<unsigned long, std::uint64_t>(rate));
}

std::uint32_t zeldata_screen_text_clear_items(zeldata_screen_text* screen_text)
{
    return call(screen_text, "clearScreenTextItems", &i_ZelDataScreenText::clearScreenTextItems);
}

std::uint32_t zeldata_screen_text_add_item(zeldata_screen_text* screen_text,
                                           const zeldata_screen_text_item* item)
{
    return call(screen_text, "addScreenTextItem", &i_ZelDataScreenText::addScreenTextItem,
                Other(item));
}

std::uint32_t zeldata_screen_text_create_item(const zeldata_screen_text* screen_text,
                                              zeldata_screen_text_item** out)
{
    return call(screen_text, "createScreenTextItem", &i_ZelDataScreenText::createScreenTextItem,
                Made(out));
}

std::uint32_t zeldata_screen_text_remove_item(zeldata_screen_text* screen_text, std::uint64_t index)
{
    return call(screen_text, "removeScreenTextItemAt", &i_ZelDataScreenText::removeScreenTextItemAt,
                Number<unsigned long>(index));
}

std::uint32_t zeldata_screen_text_get_item_count(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* count)
{
    return call(screen_text, "getScreenTextItemCount", &i_ZelDataScreenText::getScreenTextItemCount,
                Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_screen_text_get_item(const zeldata_screen_text* screen_text,
                                           zeldata_screen_text_item** out, std::uint64_t index)
{
    return call(screen_text, "getScreenTextItemAt", &i_ZelDataScreenText::getScreenTextItemAt,
                Made(out), Number<unsigned long>(index));
}

std::uint32_t zeldata_screen_text_copy_from(zeldata_screen_text* screen_text,
                                            const zeldata_screen_text* source)
{
    return call(screen_text, "copyFrom", copyFrom<i_ZelDataScreenText>, Other(source));
}

std::uint32_t zeldata_screen_text_find_problems(const zeldata_screen_text* screen_text,
                                                zeldata_findings* findings)
{
    return call(screen_text, "findProblems", findProblemsOf<i_ZelDataScreenText>, Other(findings));
}

// Screen text items.

std::uint32_t zeldata_screen_text_item_create(zeldata_screen_text_item** out)
{
    return run(&ZelDataUtilities::createScreenTextItemData, Made(out));
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
    return call(screen_text_item, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
}

std::uint32_t zeldata_screen_text_item_is_valid(const zeldata_screen_text_item* screen_text_item,
                                                std::int32_t deep)
{
    return call(screen_text_item, "isValid", &i_ZelDataScreenTextItem::isValid, Plain<bool>(deep));
}

std::uint32_t zeldata_screen_text_item_clear_text(zeldata_screen_text_item* screen_text_item)
{
    return call(screen_text_item, "clearText", &i_ZelDataScreenTextItem::clearText);
}

std::uint32_t zeldata_screen_text_item_set_text(zeldata_screen_text_item* screen_text_item,
                                                const char* text, std::size_t text_length)
{
    return call(screen_text_item, "setText", &i_ZelDataScreenTextItem::setText,
                Text{text, text_length});
}

std::uint32_t zeldata_screen_text_item_set_start(zeldata_screen_text_item* screen_text_item,
                                                 std::int64_t start)
{
    return call(screen_text_item, "setStart", &i_ZelDataScreenTextItem::setStart,
                Number<long long>(start));
}

std::uint32_t zeldata_screen_text_item_set_end(zeldata_screen_text_item* screen_text_item,
                                               std::int64_t end)
{
    return call(screen_text_item, "setEnd", &i_ZelDataScreenTextItem::setEnd,
                Number<long long>(end));
}

std::uint32_t zeldata_screen_text_item_set_duration(zeldata_screen_text_item* screen_text_item,
                                                    std::int64_t duration)
{
    return call(screen_text_item, "setDuration", &i_ZelDataScreenTextItem::setDuration,
                Number<long long>(duration));
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
    return call(screen_text_item, "setImageIndex", &i_ZelDataScreenTextItem::setImageIndex,
                Number<unsigned long>(index));
}

std::uint32_t zeldata_screen_text_item_set_image_offset(zeldata_screen_text_item* screen_text_item,
                                                        std::uint64_t offset)
{
    return call(screen_text_item, "setImageOffset", &i_ZelDataScreenTextItem::setImageOffset,
                Number<unsigned long long>(offset));
}

std::uint32_t zeldata_screen_text_item_set_group_id(zeldata_screen_text_item* screen_text_item,
                                                    std::uint64_t id)
{
    return call(screen_text_item, "setGroupId", &i_ZelDataScreenTextItem::setGroupId,
                Number<unsigned long>(id));
}

std::uint32_t zeldata_screen_text_item_get_text(const zeldata_screen_text_item* screen_text_item,
                                                zeldata_string* text)
{
    return call(screen_text_item, "getText", &i_ZelDataScreenTextItem::getText, Other(text));
}

std::uint32_t zeldata_screen_text_item_get_start(const zeldata_screen_text_item* screen_text_item,
                                                 std::int64_t* start)
{
    return call(screen_text_item, "getStart", &i_ZelDataScreenTextItem::getStart,
                Out<long long, std::int64_t>(start));
}

std::uint32_t zeldata_screen_text_item_get_end(const zeldata_screen_text_item* screen_text_item,
                                               std::int64_t* end)
{
    return call(screen_text_item, "getEnd", &i_ZelDataScreenTextItem::getEnd,
                Out<long long, std::int64_t>(end));
}

std::uint32_t
zeldata_screen_text_item_get_duration(const zeldata_screen_text_item* screen_text_item,
                                      std::int64_t* duration)
{
    return call(screen_text_item, "getDuration", &i_ZelDataScreenTextItem::getDuration,
                Out<long long, std::int64_t>(duration));
}

std::uint32_t
zeldata_screen_text_item_get_image_file(const zeldata_screen_text_item* screen_text_item,
                                        zeldata_string* name)
{
    return call(screen_text_item, "getImageFile", &i_ZelDataScreenTextItem::getImageFile,
                Other(name));
}

std::uint32_t
zeldata_screen_text_item_get_image_index(const zeldata_screen_text_item* screen_text_item,
                                         std::uint64_t* index)
{
    return call(screen_text_item, "getImageIndex", &i_ZelDataScreenTextItem::getImageIndex,
                Out<unsigned long, std::uint64_t>(index));
}

std::uint32_t
zeldata_screen_text_item_get_image_offset(const zeldata_screen_text_item* screen_text_item,
                                          std::uint64_t* offset)
{
    return call(screen_text_item, "getImageOffset", &i_ZelDataScreenTextItem::getImageOffset,
                Out<unsigned long long, std::uint64_t>(offset));
}

std::uint32_t
zeldata_screen_text_item_get_group_id(const zeldata_screen_text_item* screen_text_item,
                                      std::uint64_t* id)
{
    return call(screen_text_item, "getGroupId", &i_ZelDataScreenTextItem::getGroupId,
                Out<unsigned long, std::uint64_t>(id));
}

std::uint32_t zeldata_screen_text_item_copy_from(zeldata_screen_text_item* screen_text_item,
                                                 const zeldata_screen_text_item* source)
{
    return call(screen_text_item, "copyFrom", copyFrom<i_ZelDataScreenTextItem>, Other(source));
}

// Header formatters.

std::uint32_t zeldata_header_formatter_create(zeldata_header_formatter** out, std::uint32_t format)
{
    return run(&ZelDataUtilities::createHeaderFormatter, Made(out),
               Plain<ZelDataFormatType_tags>(format));
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
    return call(header_formatter, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
}

std::uint32_t
zeldata_header_formatter_write_string(const zeldata_header_formatter* header_formatter,
                                      zeldata_string* out, std::uint32_t format, std::int32_t flag)
{
    return call(header_formatter, "writeString", &i_ZelDataFormatterBase::writeString, Other(out),
                Plain<ZelDataFormatType_tags>(format), Flag(flag));
}

std::uint32_t zeldata_header_formatter_set_header(zeldata_header_formatter* header_formatter,
                                                  const zeldata_header* header)
{
    return call(header_formatter, "setHeader", &i_ZelDataHeaderFormatter::setHeader, Other(header));
}

// Caption formatters.

std::uint32_t zeldata_caption_formatter_create(zeldata_caption_formatter** out,
                                               std::uint32_t format)
{
    return run(&ZelDataUtilities::createCaptionFormatter, Made(out),
               Plain<ZelDataFormatType_tags>(format));
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
    return call(caption_formatter, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
}

std::uint32_t
zeldata_caption_formatter_write_string(const zeldata_caption_formatter* caption_formatter,
                                       zeldata_string* out, std::uint32_t format, std::int32_t flag)
{
    return call(caption_formatter, "writeString", &i_ZelDataFormatterBase::writeString, Other(out),
                Plain<ZelDataFormatType_tags>(format), Flag(flag));
}

std::uint32_t zeldata_caption_formatter_set_captions(zeldata_caption_formatter* caption_formatter,
                                                     const zeldata_captions* captions)
{
    return call(caption_formatter, "setCaptions", &i_ZelDataCaptionFormatter::setCaptions,
                Other(captions));
}

// Formatters of tables of contents.

std::uint32_t zeldata_toc_formatter_create(zeldata_toc_formatter** out, std::uint32_t format)
{
    return run(&ZelDataUtilities::createTocFormatter, Made(out),
               Plain<ZelDataFormatType_tags>(format));
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
    return call(toc_formatter, "setLastError", storeLastError, Plain<ZelDataResult_tags>(code));
}

std::uint32_t zeldata_toc_formatter_write_string(const zeldata_toc_formatter* toc_formatter,
                                                 zeldata_string* out, std::uint32_t format,
                                                 std::int32_t flag)
{
    return call(toc_formatter, "writeString", &i_ZelDataFormatterBase::writeString, Other(out),
                Plain<ZelDataFormatType_tags>(format), Flag(flag));
}

std::uint32_t zeldata_toc_formatter_set_toc(zeldata_toc_formatter* toc_formatter,
                                            const zeldata_toc* toc)
{
    return call(toc_formatter, "setToc", &i_ZelDataTocFormatter::setToc, Other(toc));
}

// Screen text formatters.

std::uint32_t zeldata_screen_text_formatter_create(zeldata_screen_text_formatter** out,
                                                   std::uint32_t format)
{
    return run(&ZelDataUtilities::createScreenTextFormatter, Made(out),
               Plain<ZelDataFormatType_tags>(format));
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
    return call(screen_text_formatter, "setLastError", storeLastError,
                Plain<ZelDataResult_tags>(code));
}

std::uint32_t zeldata_screen_text_formatter_write_string(
    const zeldata_screen_text_formatter* screen_text_formatter, zeldata_string* out,
    std::uint32_t format, std::int32_t flag)
{
    return call(screen_text_formatter, "writeString", &i_ZelDataFormatterBase::writeString,
                Other(out), Plain<ZelDataFormatType_tags>(format), Flag(flag));
}

std::uint32_t
zeldata_screen_text_formatter_set_screen_text(zeldata_screen_text_formatter* screen_text_formatter,
                                              const zeldata_screen_text* screen_text)
{
    return call(screen_text_formatter, "setScreenText",
                &i_ZelDataScreenTextFormatter::setScreenText, Other(screen_text));
}

// Findings.

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
    return callValue(findings, "getCount", countOf<Findings>,
                     Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_findings_get_kind(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* kind)
{
    return element(findings, index, "kind", &ZelDataFinding::kind, Ref(kind));
}

std::uint32_t zeldata_findings_get_subject(const zeldata_findings* findings, std::uint64_t index,
                                           std::uint32_t* subject)
{
    return element(findings, index, "subject", &ZelDataFinding::subject, Ref(subject));
}

std::uint32_t zeldata_findings_get_item_index(const zeldata_findings* findings, std::uint64_t index,
                                              std::uint64_t* item)
{
    return element(findings, index, "item", itemOf, Ref(item));
}

std::uint32_t zeldata_findings_get_start(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* start)
{
    return element(findings, index, "start", &ZelDataFinding::start, Ref(start));
}

std::uint32_t zeldata_findings_get_language(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* language)
{
    return element(findings, index, "language", &ZelDataFinding::language, Other(language));
}

std::uint32_t zeldata_findings_get_property(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* property)
{
    return element(findings, index, "property", &ZelDataFinding::property, Other(property));
}

std::uint32_t zeldata_findings_get_component(const zeldata_findings* findings, std::uint64_t index,
                                             float* component)
{
    return element(findings, index, "component", &ZelDataFinding::component, Ref(component));
}

std::uint32_t zeldata_findings_get_value(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* value)
{
    return element(findings, index, "value", &ZelDataFinding::value, Ref(value));
}

std::uint32_t zeldata_findings_get_limit(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* limit)
{
    return element(findings, index, "limit", &ZelDataFinding::limit, Ref(limit));
}

std::uint32_t zeldata_findings_get_later_item_index(const zeldata_findings* findings,
                                                    std::uint64_t index, std::uint64_t* later_item)
{
    return element(findings, index, "laterItem", laterItemOf, Ref(later_item));
}

std::uint32_t zeldata_findings_get_later_start(const zeldata_findings* findings,
                                               std::uint64_t index, std::int64_t* later_start)
{
    return element(findings, index, "laterStart", &ZelDataFinding::laterStart, Ref(later_start));
}

std::uint32_t zeldata_findings_get_severity(const zeldata_findings* findings, std::uint64_t index,
                                            std::uint32_t* severity)
{
    return element(findings, index, "severityOf", &severityOf, Ref(severity));
}

std::uint32_t zeldata_findings_get_code(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* code)
{
    return element(findings, index, "codeOf", &codeOf, Ref(code));
}

std::uint32_t zeldata_findings_describe(const zeldata_findings* findings, std::uint64_t index,
                                        zeldata_string* text)
{
    return element(findings, index, "describe",
                   static_cast<std::string (*)(const ZelDataFinding&)>(&describe), Other(text));
}

const char* zeldata_finding_to_string(std::uint32_t kind)
{
    return toString(static_cast<ZelDataFinding_tags>(kind));
}

// Language catalogue.

std::uint32_t zeldata_english_name_for_language(const char* id, std::size_t id_length,
                                                zeldata_string* name)
{
    return run(&ZelDataUtilities::englishNameForLanguage, Text{id, id_length}, Other(name));
}

std::uint32_t zeldata_native_name_for_language(const char* id, std::size_t id_length,
                                               zeldata_string* name)
{
    return run(&ZelDataUtilities::nativeNameForLanguage, Text{id, id_length}, Other(name));
}

std::uint32_t zeldata_is_valid_language(const char* id, std::size_t id_length)
{
    return run(&ZelDataUtilities::isValidLanguage, Text{id, id_length});
}

// Text helpers.

std::uint32_t zeldata_verify_utf8_format(const char* text, std::size_t text_length,
                                         std::int32_t bmp_only)
{
    return run(&ZelDataUtilities::verifyUtf8Format, Text{text, text_length}, Plain<bool>(bmp_only));
}

std::uint32_t zeldata_count_lines_in_utf8(const char* text, std::size_t text_length,
                                          std::uint64_t* count)
{
    return run(stored(&ZelDataUtilities::countLinesInUTF8), Text{text, text_length},
               Out<unsigned long, std::uint64_t>(count));
}

std::uint32_t zeldata_strip_unsupported_characters(const char* text, std::size_t text_length,
                                                   zeldata_string* result)
{
    return run(stored(&ZelDataUtilities::stripUnsupportedCharacters), Text{text, text_length},
               Other(result));
}

std::uint32_t zeldata_html_tags_to_text(const char* text, std::size_t text_length,
                                        zeldata_string* result)
{
    return run(stored(&ZelDataUtilities::htmlTagsToText), Text{text, text_length}, Other(result));
}

std::uint32_t zeldata_html_tags_from_text(const char* text, std::size_t text_length,
                                          zeldata_string* result)
{
    return run(stored(&ZelDataUtilities::htmlTagsFromText), Text{text, text_length}, Other(result));
}

std::uint32_t zeldata_get_vertical_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return run(stored(&ZelDataUtilities::getVerticalAlignment), Plain<ZelAlignment_tags>(alignment),
               Other(result));
}

std::uint32_t zeldata_get_horizontal_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return run(stored(&ZelDataUtilities::getHorizontalAlignment),
               Plain<ZelAlignment_tags>(alignment), Other(result));
}

// Texts of values.

std::uint32_t zeldata_get_value_string_float(float value, zeldata_string* result)
{
    return run(stored(static_cast<std::string (*)(float)>(&ZelDataUtilities::getValueString)),
               Plain<float>(value), Other(result));
}

std::uint32_t zeldata_get_value_string_uint64(std::uint64_t value, zeldata_string* result)
{
    return run(
        stored(static_cast<std::string (*)(unsigned long long)>(&ZelDataUtilities::getValueString)),
        Number<unsigned long long>(value), Other(result));
}

std::uint32_t zeldata_get_rate_string(std::uint64_t rate, zeldata_string* result)
{
    return run(stored(&ZelDataUtilities::getRateString), Number<unsigned long>(rate),
               Other(result));
}

std::uint32_t zeldata_get_version_string(std::uint64_t version, zeldata_string* result)
{
    return run(stored(&ZelDataUtilities::getVersionString), Number<unsigned long>(version),
               Other(result));
}

std::uint32_t zeldata_get_date_string(std::int64_t seconds, zeldata_string* date)
{
    return run(stored(&dateOf), Number<long>(seconds), Other(date));
}

std::uint32_t zeldata_get_date_string_now(zeldata_string* date)
{
    return run(stored(&dateOfNow), Other(date));
}

std::uint32_t zeldata_get_value_string_int64(std::int64_t value, zeldata_string* result)
{
    return run(stored(static_cast<std::string (*)(long)>(&getValueString)), Number<long>(value),
               Other(result));
}
