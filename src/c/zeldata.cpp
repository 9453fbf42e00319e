#include "ZelInterchangeData/zeldata.h"

#include "ZelInterchangeData/ZelDataFace.h"
#include "ZelInterchangeData/ZelInterchangeData.h"
#include "core/ZelDataCore.h"
#include "sets/Factory.h"
#include "util/Guard.h"
#include "util/TextUtilities.h"

#include <cstring>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <system_error>
#include <tuple>
#include <type_traits>
#include <vector>

using namespace ZelInterchangeData;

namespace {

using Texts = std::vector<std::string>;
using Findings = std::vector<ZelDataFinding>;

/// @name What a handle points to
/// In each kind of handle, the message comes first, so that a handle of any type leads to it.
/// @{

struct Message {
    const char* shown = "";
    std::string text;
};

template <class Type>
struct Value {
    mutable Message message;
    Type value;
};

/// Returns what the view of @p object knows about the failure of @p call.
using Reason = std::string (*)(i_ZelDataResult& object, const ZelDataCall& call);

/// Deliberate: no std::unique_ptr; with it, the type would not have standard layout for every
/// compiler, and the message could be elsewhere.
struct Object {
    Object(i_ZelDataResult* made, Reason of) noexcept : object(made), reason(of) {}

    mutable Message message;
    i_ZelDataResult* object;
    Reason reason;
};
/// @}

/// The object of a handle; only zeldata.h tells these types apart.
template <class Handle>
Object* objectOf(const Handle* handle)
{
    return const_cast<Object*>(reinterpret_cast<const Object*>(handle));
}

template <class Handle>
void destroy(Handle* handle)
{
    const std::unique_ptr<Object> object(objectOf(handle));
    if (object != nullptr) delete object->object;
}

/// @name What a call keeps if it fails
/// Each function returns the code.
/// @{

/// Keeps what @p makeMessage returns or, if memory runs out, what @p code means.
std::uint32_t keep(Message& message, ZelDataResult_tags code,
                   const ZelDataMessages::TextMaker& makeMessage)
{
    message.text = ZelDataMessages::orNothing(makeMessage);
    message.shown = message.text.empty() ? describe(code) : message.text.c_str();
    return code;
}

/// For a @p code of the C function itself.
[[gnu::noinline]] std::uint32_t keep(Message& message, const char* operation,
                                     ZelDataResult_tags code)
{
    return keep(message, code,
                [&] { return ZelDataMessages::messageFor(code, operation, {}, {}); });
}

/// For a @p code of the object's operation.
[[gnu::noinline]] std::uint32_t keep(const Object& handle, const char* operation,
                                     ZelDataResult_tags code,
                                     std::initializer_list<ZelDataArgument> arguments)
{
    using namespace ZelDataMessages;
    const ZelDataCall call{operation, code, arguments};
    return keep(handle.message, code, [&] {
        return messageFor(code, operation, orNothing([&] { return call.shownArguments(); }),
                          orNothing([&] { return handle.reason(*handle.object, call); }));
    });
}

/// The code of the exception that was caught.
[[gnu::noinline]] ZelDataResult_tags caught()
{
    return guarded([]() -> ZelDataResult_tags { throw; });
}
/// @}

/// @name From the arguments of a C function to the parameters of an operation
/// An argument that is usable is passed; if the operation succeeds, it delivers. A message shows what
/// shown() returns, if anything.
/// @{

struct Text {
    const char* text;
    std::size_t length;
};

/// A pointer to a handle of any type.
struct Place {
    void* out;
};

/// How a message refers to @p object.
ZelDataArgument argumentOf(const i_ZelDataResult& object)
{
    if (const auto* header = dynamic_cast<const i_ZelDataHeader*>(&object))
        return ZelDataArgument(*header);
    if (const auto* caption = dynamic_cast<const i_ZelDataCaptionItem*>(&object))
        return ZelDataArgument(*caption);
    return ZelDataArgument(object);
}

/// A truth value that messages do not show.
struct Flag {
    std::int32_t value;
    operator bool() const { return value != 0; }
};

/// A value.
template <class Parameter, class Given, class = void>
struct Passed {
    explicit Passed(Given argument) : given(argument), value(static_cast<Parameter>(argument)) {}
    bool isUsable() const
    {
        if constexpr (sizeof(Parameter) < sizeof(Given) && !std::is_same_v<Parameter, bool>)
            return static_cast<Given>(value) == given;
        return true;
    }
    Parameter passed() const { return value; }
    void deliver() const {}
    auto shown() const
    {
        if constexpr (std::is_constructible_v<ZelDataArgument, Parameter> &&
                      std::is_scalar_v<Given>)
            return std::make_tuple(value);
        else
            return std::make_tuple();
    }

    Given given;
    Parameter value;
};

/// A text.
template <class String>
struct Passed<String&, Text> {
    [[gnu::always_inline]] explicit Passed(Text given)
        : value(textOf(given.text, given.length, isGiven))
    {
    }
    bool isUsable() const { return isGiven; }
    std::string& passed() { return value; }
    void deliver() const {}
    auto shown() const { return std::tie(value); }

    bool isGiven;
    std::string value;
};

/// A text or a list; a message shows it only if the operation reads it.
template <class Type, class Handle>
struct Passed<Type&, Handle*, std::enable_if_t<std::is_class_v<Handle>>> {
    explicit Passed(Handle* argument) : handle(argument) {}
    bool isUsable() const { return handle != nullptr; }
    Type& passed() const { return handle->value; }
    void deliver() const {}
    auto shown() const
    {
        if constexpr (std::is_const_v<Type>)
            return std::tie(handle->value);
        else
            return std::make_tuple();
    }

    Handle* handle;
};

/// Another object.
template <>
struct Passed<i_ZelDataResult&, const Object*> {
    explicit Passed(const Object* argument) : handle(argument) {}
    bool isUsable() const { return handle != nullptr; }
    i_ZelDataResult& passed() const { return *handle->object; }
    void deliver() const {}
    auto shown() const { return std::make_tuple(argumentOf(*handle->object)); }

    const Object* handle;
};

/// Where a number goes. If the types are the same, the operation itself stores it.
template <class Type, class To>
struct Passed<Type&, To*, std::enable_if_t<std::is_arithmetic_v<To>>> {
    explicit Passed(To* argument) : out(argument) {}
    bool isUsable() const { return out != nullptr; }
    Type& passed()
    {
        if constexpr (std::is_same_v<Type, To>)
            return *out;
        else
            return value;
    }
    void deliver() const
    {
        if constexpr (!std::is_same_v<Type, To>) *out = static_cast<To>(value);
    }
    auto shown() const { return std::make_tuple(); }

    To* out;
    Type value{};
};

/// Where the handle of a new object goes.
template <>
struct Passed<Object*&, Place> {
    explicit Passed(Place argument) : out(argument.out) {}
    [[gnu::always_inline]] bool isUsable()
    {
        if (out != nullptr) std::memcpy(&made, out, sizeof made);
        return out != nullptr && made == nullptr;
    }
    Object*& passed() { return made; }
    [[gnu::always_inline]] void deliver() const { std::memcpy(out, &made, sizeof made); }
    auto shown() const { return std::make_tuple(); }

    void* out;
    Object* made = nullptr;
};
/// @}

/// @name Calls
/// @{

/// Calls @p operation, which messages call @p name, for the object of @p handle. The order of the
/// parameters is that of the C functions, so these need not move their arguments.
template <class... Parameters>
struct With {
    template <class Operation, class... Arguments>
    [[gnu::noinline]] static std::uint32_t call(const Object* handle, Arguments... arguments,
                                                const char* name, Operation operation)
    {
        if (handle == nullptr) return ZelData_InvalidArgument;
        handle->message.shown = "";
        const auto perform = [&](auto&&... argument) -> std::uint32_t {
            if (!(argument.isUsable() && ...))
                return keep(handle->message, name, ZelData_InvalidArgument);
            const ZelDataResult_tags code =
                std::invoke(operation, *handle->object, argument.passed()...);
            if (failed(code))
                return std::apply(
                    [&](const auto&... shown) {
                        return keep(*handle, name, code, {ZelDataArgument(shown)...});
                    },
                    std::tuple_cat(argument.shown()...));
            (argument.deliver(), ...);
            return code;
        };
        try {
            return perform(Passed<Parameters, Arguments>(arguments)...);
        } catch (...) {
            return keep(handle->message, name, caught());
        }
    }

    /// Calls @p operation, which has no object.
    template <class Operation, class... Arguments>
    [[gnu::noinline]] static std::uint32_t run(Operation operation, Arguments... arguments)
    {
        const auto perform = [&](auto&&... argument) {
            if (!(argument.isUsable() && ...)) return ZelData_InvalidArgument;
            const ZelDataResult_tags code = operation(argument.passed()...);
            if (!failed(code)) (argument.deliver(), ...);
            return code;
        };
        try {
            return perform(Passed<Parameters, Arguments>(arguments)...);
        } catch (...) {
            return caught();
        }
    }
};

/// Calls an operation of any interface as one of the root of all, so that operations with the same
/// parameters share their code.
template <class Handle, class Interface, class... Parameters, class... Arguments>
std::uint32_t call(const Handle* handle, const char* name,
                   ZelDataResult_tags (Interface::*operation)(Parameters...),
                   Arguments... arguments)
{
    using OfRoot = ZelDataResult_tags (i_ZelDataResult::*)(Parameters...);
    return With<Parameters...>::template call<OfRoot, Arguments...>(
        objectOf(handle), arguments..., name, static_cast<OfRoot>(operation));
}
template <class Handle, class Interface, class... Parameters, class... Arguments>
std::uint32_t call(const Handle* handle, const char* name,
                   ZelDataResult_tags (Interface::*operation)(Parameters...) const,
                   Arguments... arguments)
{
    using OfRoot = ZelDataResult_tags (i_ZelDataResult::*)(Parameters...) const;
    return With<Parameters...>::template call<OfRoot, Arguments...>(
        objectOf(handle), arguments..., name, static_cast<OfRoot>(operation));
}
template <class Handle, class... Parameters, class... Arguments>
std::uint32_t call(const Handle* handle, const char* name,
                   ZelDataResult_tags (*operation)(i_ZelDataResult&, Parameters...),
                   Arguments... arguments)
{
    return With<Parameters...>::template call<decltype(operation), Arguments...>(
        objectOf(handle), arguments..., name, operation);
}
template <class... Parameters, class... Arguments>
std::uint32_t run(ZelDataResult_tags (*operation)(Parameters...), Arguments... arguments)
{
    return With<Parameters...>::run(operation, arguments...);
}

/// As run(), but @p operation returns what goes to the last argument.
template <class Result, class... Parameters, class... Arguments>
std::uint32_t store(Result (*operation)(Parameters...), Arguments... arguments)
{
    const auto stored = [operation](Parameters... parameters, Result& result) {
        result = operation(parameters...);
        return ZelData_Ok;
    };
    return With<Parameters..., Result&>::run(stored, arguments...);
}

template <class Interface>
std::string reasonOf(i_ZelDataResult& object, const ZelDataCall& call)
{
    return checked(static_cast<Interface&>(object)).reasonOf(call);
}

/// Stores a handle of @p made, which an operation made that returned @p code.
[[gnu::noinline]] ZelDataResult_tags own(ZelDataResult_tags code, i_ZelDataResult* made,
                                         Reason reason, Object*& out)
{
    std::unique_ptr<i_ZelDataResult> owner(made);
    if (!failed(code)) out = new Object(made, reason);
    static_cast<void>(owner.release());
    return code;
}

/// @name Operations with other objects, for objects of any type
/// They share the code of their calls.
/// @{

template <auto operation, class Interface, class Other>
constexpr auto erased(ZelDataResult_tags (Interface::*)(Other&))
{
    return +[](i_ZelDataResult& object, i_ZelDataResult& other) {
        return (static_cast<Interface&>(object).*operation)(static_cast<Other&>(other));
    };
}
template <auto operation, class Interface, class Other>
constexpr auto erased(ZelDataResult_tags (Interface::*)(Other&) const)
{
    return +[](i_ZelDataResult& object, i_ZelDataResult& other) {
        return (static_cast<Interface&>(object).*operation)(static_cast<Other&>(other));
    };
}
template <auto operation, class Interface, class Made, class... Parameters>
constexpr auto erased(ZelDataResult_tags (Interface::*)(Made**, Parameters...) const)
{
    return +[](i_ZelDataResult& object, Object*& out, Parameters... parameters) {
        Made* made = nullptr;
        const auto code = (static_cast<Interface&>(object).*operation)(&made, parameters...);
        return own(code, made, reasonOf<Made>, out);
    };
}
template <auto operation, class Made, class... Parameters>
constexpr auto erased(ZelDataResult_tags (*)(Made**, Parameters...))
{
    return +[](Object*& out, Parameters... parameters) {
        Made* made = nullptr;
        const auto code = operation(&made, parameters...);
        return own(code, made, reasonOf<Made>, out);
    };
}

template <auto operation, class Handle, class Other>
std::uint32_t callWith(const Handle* handle, const char* name, const Other* other)
{
    return call(handle, name, erased<operation>(operation),
                static_cast<const Object*>(objectOf(other)));
}
template <auto operation, class Handle, class Made, class... Arguments>
std::uint32_t make(const Handle* handle, const char* name, Made** out, Arguments... arguments)
{
    return call(handle, name, erased<operation>(operation), Place{out}, arguments...);
}
template <auto operation, class Made, class... Arguments>
std::uint32_t create(Made** out, Arguments... arguments)
{
    return run(erased<operation>(operation), Place{out}, arguments...);
}
/// @}

/// Calls @p body for the text or the list of @p handle.
template <class Type, class Body>
std::uint32_t callValue(Type* handle, const char* name, Body body)
{
    if (handle == nullptr) return ZelData_InvalidArgument;
    handle->message.shown = "";
    ZelDataResult_tags code = ZelData_Ok;
    try {
        code = body(handle->value);
    } catch (...) {
        code = caught();
    }
    return failed(code) ? keep(handle->message, name, code) : code;
}

/// Calls @p read, which stores something of the element at @p index, such as a finding's kind.
template <class Element, class Out>
[[gnu::noinline]] std::uint32_t element(const Value<std::vector<Element>>* list,
                                        std::uint64_t index, Out* out, const char* name,
                                        std::common_type_t<void (*)(const Element&, Out&)> read)
{
    return callValue(list, name, [&](const auto& elements) {
        if (index >= elements.size() || out == nullptr) return ZelData_InvalidArgument;
        read(elements[static_cast<std::size_t>(index)], *out);
        return ZelData_Ok;
    });
}

/// Stores how many elements @p list has.
template <class Element>
[[gnu::noinline]] std::uint32_t elementCount(const Value<std::vector<Element>>* list,
                                             std::uint64_t* out)
{
    return callValue(list, "getCount", [out](const auto& elements) {
        if (out == nullptr) return ZelData_InvalidArgument;
        *out = elements.size();
        return ZelData_Ok;
    });
}
/// @}

/// @name Operations that are no function of the library
/// @{

template <class Interface>
constexpr ZelDataResult_tags (Interface::*copyFrom)(const Interface&) = &Interface::copyFrom;

template <class Interface>
ZelDataResult_tags findProblemsOf(i_ZelDataResult& object, Findings& findings)
{
    return findProblems(static_cast<const Interface&>(object), findings);
}

ZelDataResult_tags replaceFileWith(i_ZelDataResult& document, const std::string& path,
                                   std::int32_t& systemError, ZelDataFormatType_tags format)
{
    return replaceFile(static_cast<const i_ZelInterchangeDataCore&>(document), path, systemError,
                       format);
}

template <class Handle>
std::uint32_t lastError(const Handle* handle)
{
    return handle == nullptr ? ZelData_InvalidArgument : objectOf(handle)->object->getLastError();
}

ZelDataResult_tags storeLastError(i_ZelDataResult& object, ZelDataResult_tags code)
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
/// @}

} // namespace

struct zeldata_string : Value<std::string> {};
struct zeldata_strings : Value<Texts> {};
struct zeldata_findings : Value<Findings> {};

// zeldata_last_message() takes a handle of any type for its message.
static_assert(std::is_standard_layout_v<zeldata_string> && std::is_standard_layout_v<Object>);

// Results.

const char* zeldata_last_message(const void* handle)
{
    if (handle == nullptr) return describe(ZelData_InvalidArgument);
    return static_cast<const Message*>(handle)->shown;
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
    return callValue(string, "set", [=](std::string& target) {
        Passed<const std::string&, Text> replacement({text, text_length});
        if (!replacement.isUsable()) return ZelData_InvalidArgument;
        target.swap(replacement.value);
        return ZelData_Ok;
    });
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
    return callValue(strings, "clear", [](Texts& texts) {
        texts.clear();
        return ZelData_Ok;
    });
}

std::uint32_t zeldata_strings_add(zeldata_strings* strings, const char* text,
                                  std::size_t text_length)
{
    return callValue(strings, "add", [=](Texts& texts) {
        const Passed<const std::string&, Text> added({text, text_length});
        if (!added.isUsable()) return ZelData_InvalidArgument;
        texts.push_back(added.value);
        return ZelData_Ok;
    });
}

std::uint32_t zeldata_strings_get_count(const zeldata_strings* strings, std::uint64_t* count)
{
    return elementCount(strings, count);
}

std::uint32_t zeldata_strings_get(const zeldata_strings* strings, std::uint64_t index,
                                  zeldata_string* text)
{
    return element(strings, index, text, "get",
                   [](const std::string& stored, zeldata_string& out) { out.value = stored; });
}

// Documents.

std::uint32_t zeldata_document_create(zeldata_document** out)
{
    return create<&createObject<ZelDataCore, i_ZelInterchangeDataCore>>(out);
}

void zeldata_document_destroy(zeldata_document* document)
{
    destroy(document);
}

std::uint32_t zeldata_document_get_last_error(const zeldata_document* document)
{
    return lastError(document);
}

std::uint32_t zeldata_document_set_last_error(const zeldata_document* document, std::uint32_t code)
{
    return call(document, "setLastError", storeLastError, code);
}

std::uint32_t zeldata_document_write_string(const zeldata_document* document, zeldata_string* out,
                                            std::uint32_t format, std::int32_t flag)
{
    return call(document, "writeString", &i_ZelDataFormatterBase::writeString, out, format,
                Flag{flag});
}

std::uint32_t zeldata_document_write_file(const zeldata_document* document, const char* path,
                                          std::size_t path_length, std::uint32_t format,
                                          std::int32_t flag)
{
    return call(document, "writeFile", &i_ZelDataFormatterBase::writeFile, Text{path, path_length},
                format, Flag{flag});
}

std::uint32_t zeldata_document_get_header(const zeldata_document* document, zeldata_header* target)
{
    return callWith<&i_ZelInterchangeDataCore::getDataHeader>(document, "getDataHeader", target);
}

std::uint32_t zeldata_document_set_header(zeldata_document* document, const zeldata_header* source)
{
    return callWith<&i_ZelInterchangeDataCore::setDataHeader>(document, "setDataHeader", source);
}

std::uint32_t zeldata_document_get_captions(const zeldata_document* document,
                                            zeldata_captions* target)
{
    return callWith<&i_ZelInterchangeDataCore::getDataCaptions>(document, "getDataCaptions",
                                                                target);
}

std::uint32_t zeldata_document_set_captions(zeldata_document* document,
                                            const zeldata_captions* source)
{
    return callWith<&i_ZelInterchangeDataCore::setDataCaptions>(document, "setDataCaptions",
                                                                source);
}

std::uint32_t zeldata_document_get_toc(const zeldata_document* document, zeldata_toc* target)
{
    return callWith<&i_ZelInterchangeDataCore::getDataToc>(document, "getDataToc", target);
}

std::uint32_t zeldata_document_set_toc(zeldata_document* document, const zeldata_toc* source)
{
    return callWith<&i_ZelInterchangeDataCore::setDataToc>(document, "setDataToc", source);
}

std::uint32_t zeldata_document_get_screen_text(const zeldata_document* document,
                                               zeldata_screen_text* target)
{
    return callWith<&i_ZelInterchangeDataCore::getDataScreenText>(document, "getDataScreenText",
                                                                  target);
}

std::uint32_t zeldata_document_set_screen_text(zeldata_document* document,
                                               const zeldata_screen_text* source)
{
    return callWith<&i_ZelInterchangeDataCore::setDataScreenText>(document, "setDataScreenText",
                                                                  source);
}

std::uint32_t zeldata_document_create_header(const zeldata_document* document, zeldata_header** out)
{
    return make<&i_ZelInterchangeDataCore::createDataHeader>(document, "createDataHeader", out);
}

std::uint32_t zeldata_document_create_captions(const zeldata_document* document,
                                               zeldata_captions** out)
{
    return make<&i_ZelInterchangeDataCore::createDataCaptions>(document, "createDataCaptions", out);
}

std::uint32_t zeldata_document_create_toc(const zeldata_document* document, zeldata_toc** out)
{
    return make<&i_ZelInterchangeDataCore::createDataToc>(document, "createDataToc", out);
}

std::uint32_t zeldata_document_create_screen_text(const zeldata_document* document,
                                                  zeldata_screen_text** out)
{
    return make<&i_ZelInterchangeDataCore::createDataScreenText>(document, "createDataScreenText",
                                                                 out);
}

std::uint32_t zeldata_document_find_problems(const zeldata_document* document,
                                             zeldata_findings* findings)
{
    return call(document, "findProblems", findProblemsOf<i_ZelInterchangeDataCore>, findings);
}

std::uint32_t zeldata_document_replace_file(const zeldata_document* document, const char* path,
                                            std::size_t path_length, std::int32_t* system_error,
                                            std::uint32_t format)
{
    if (system_error != nullptr) *system_error = 0;
    const Text given{path, path_length};
    const std::uint32_t code =
        call(document, "replaceFile", replaceFileWith, given, system_error, format);
    if (document == nullptr || system_error == nullptr || *system_error == 0) return code;
    return keep(objectOf(document)->message, static_cast<ZelDataResult_tags>(code), [&] {
        return ZelDataMessages::replacing(Passed<const std::string&, Text>(given).value) + ": " +
               std::system_category().message(*system_error);
    });
}

// Headers.

std::uint32_t zeldata_header_create(zeldata_header** out)
{
    return create<&ZelDataUtilities::createHeaderData>(out);
}

void zeldata_header_destroy(zeldata_header* header)
{
    destroy(header);
}

std::uint32_t zeldata_header_get_last_error(const zeldata_header* header)
{
    return lastError(header);
}

std::uint32_t zeldata_header_set_last_error(const zeldata_header* header, std::uint32_t code)
{
    return call(header, "setLastError", storeLastError, code);
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
    return callWith<copyFrom<i_ZelDataLanguage>>(header, "copyFrom", source);
}

std::uint32_t zeldata_header_copy_languages_from_captions(zeldata_header* header,
                                                          const zeldata_captions* source)
{
    return callWith<copyFrom<i_ZelDataLanguage>>(header, "copyFrom", source);
}

std::uint32_t zeldata_header_copy_languages_from_toc(zeldata_header* header,
                                                     const zeldata_toc* source)
{
    return callWith<copyFrom<i_ZelDataLanguage>>(header, "copyFrom", source);
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
    return callWith<copyFrom<i_ZelDataHeader>>(header, "copyFrom", other);
}

std::uint32_t zeldata_header_find_problems(const zeldata_header* header, zeldata_findings* findings)
{
    return call(header, "findProblems", findProblemsOf<i_ZelDataHeader>, findings);
}

// Captions.

std::uint32_t zeldata_captions_create(zeldata_captions** out)
{
    return create<&ZelDataUtilities::createCaptionData>(out);
}

void zeldata_captions_destroy(zeldata_captions* captions)
{
    destroy(captions);
}

std::uint32_t zeldata_captions_get_last_error(const zeldata_captions* captions)
{
    return lastError(captions);
}

std::uint32_t zeldata_captions_set_last_error(const zeldata_captions* captions, std::uint32_t code)
{
    return call(captions, "setLastError", storeLastError, code);
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
    return callWith<copyFrom<i_ZelDataLanguage>>(captions, "copyFrom", source);
}

std::uint32_t zeldata_captions_copy_languages_from_captions(zeldata_captions* captions,
                                                            const zeldata_captions* source)
{
    return callWith<copyFrom<i_ZelDataLanguage>>(captions, "copyFrom", source);
}

std::uint32_t zeldata_captions_copy_languages_from_toc(zeldata_captions* captions,
                                                       const zeldata_toc* source)
{
    return callWith<copyFrom<i_ZelDataLanguage>>(captions, "copyFrom", source);
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
    return callWith<&i_ZelDataCaptions::addCaptionItem>(captions, "addCaptionItem", item);
}

std::uint32_t zeldata_captions_create_item(const zeldata_captions* captions,
                                           zeldata_caption_item** out)
{
    return make<&i_ZelDataCaptions::createCaptionItem>(captions, "createCaptionItem", out);
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
    return make<&i_ZelDataCaptions::getCaptionItemAt>(captions, "getCaptionItemAt", out, index);
}

std::uint32_t zeldata_captions_copy_from(zeldata_captions* captions, const zeldata_captions* other)
{
    return callWith<copyFrom<i_ZelDataCaptions>>(captions, "copyFrom", other);
}

std::uint32_t zeldata_captions_find_problems(const zeldata_captions* captions,
                                             zeldata_findings* findings)
{
    return call(captions, "findProblems", findProblemsOf<i_ZelDataCaptions>, findings);
}

// Caption items.

std::uint32_t zeldata_caption_item_create(zeldata_caption_item** out)
{
    return create<&ZelDataUtilities::createCaptionItemData>(out);
}

void zeldata_caption_item_destroy(zeldata_caption_item* caption_item)
{
    destroy(caption_item);
}

std::uint32_t zeldata_caption_item_get_last_error(const zeldata_caption_item* caption_item)
{
    return lastError(caption_item);
}

std::uint32_t zeldata_caption_item_set_last_error(const zeldata_caption_item* caption_item,
                                                  std::uint32_t code)
{
    return call(caption_item, "setLastError", storeLastError, code);
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
    return call(caption_item, "setTextForLanguage", &i_ZelDataCaptionItem::setTextForLanguage,
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
    return call(caption_item, "getTextForLanguage", &i_ZelDataCaptionItem::getTextForLanguage, text,
                Text{language_id, language_id_length});
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
    return callWith<copyFrom<i_ZelDataCaptionItem>>(caption_item, "copyFrom", other);
}

// Tables of contents.

std::uint32_t zeldata_toc_create(zeldata_toc** out)
{
    return create<&ZelDataUtilities::createTocData>(out);
}

void zeldata_toc_destroy(zeldata_toc* toc)
{
    destroy(toc);
}

std::uint32_t zeldata_toc_get_last_error(const zeldata_toc* toc)
{
    return lastError(toc);
}

std::uint32_t zeldata_toc_set_last_error(const zeldata_toc* toc, std::uint32_t code)
{
    return call(toc, "setLastError", storeLastError, code);
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
    return callWith<copyFrom<i_ZelDataLanguage>>(toc, "copyFrom", source);
}

std::uint32_t zeldata_toc_copy_languages_from_captions(zeldata_toc* toc,
                                                       const zeldata_captions* source)
{
    return callWith<copyFrom<i_ZelDataLanguage>>(toc, "copyFrom", source);
}

std::uint32_t zeldata_toc_copy_languages_from_toc(zeldata_toc* toc, const zeldata_toc* source)
{
    return callWith<copyFrom<i_ZelDataLanguage>>(toc, "copyFrom", source);
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
    return callWith<&i_ZelDataToc::addTocItem>(toc, "addTocItem", item);
}

std::uint32_t zeldata_toc_create_item(const zeldata_toc* toc, zeldata_toc_item** out)
{
    return make<&i_ZelDataToc::createTocItem>(toc, "createTocItem", out);
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
    return make<&i_ZelDataToc::getTocItemAt>(toc, "getTocItemAt", out, index);
}

std::uint32_t zeldata_toc_copy_from(zeldata_toc* toc, const zeldata_toc* source)
{
    return callWith<copyFrom<i_ZelDataToc>>(toc, "copyFrom", source);
}

std::uint32_t zeldata_toc_find_problems(const zeldata_toc* toc, zeldata_findings* findings)
{
    return call(toc, "findProblems", findProblemsOf<i_ZelDataToc>, findings);
}

// Entries of a table of contents.

std::uint32_t zeldata_toc_item_create(zeldata_toc_item** out)
{
    return create<&ZelDataUtilities::createTocItemData>(out);
}

void zeldata_toc_item_destroy(zeldata_toc_item* toc_item)
{
    destroy(toc_item);
}

std::uint32_t zeldata_toc_item_get_last_error(const zeldata_toc_item* toc_item)
{
    return lastError(toc_item);
}

std::uint32_t zeldata_toc_item_set_last_error(const zeldata_toc_item* toc_item, std::uint32_t code)
{
    return call(toc_item, "setLastError", storeLastError, code);
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
    return call(toc_item, "setTextForLanguage", &i_ZelDataTocItem::setTextForLanguage,
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
    return call(toc_item, "getTextForLanguage", &i_ZelDataTocItem::getTextForLanguage, text,
                Text{language_id, language_id_length});
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
    return callWith<copyFrom<i_ZelDataTocItem>>(toc_item, "copyFrom", source);
}

// Screen text.

std::uint32_t zeldata_screen_text_create(zeldata_screen_text** out)
{
    return create<&ZelDataUtilities::createScreenTextData>(out);
}

void zeldata_screen_text_destroy(zeldata_screen_text* screen_text)
{
    destroy(screen_text);
}

std::uint32_t zeldata_screen_text_get_last_error(const zeldata_screen_text* screen_text)
{
    return lastError(screen_text);
}

std::uint32_t zeldata_screen_text_set_last_error(const zeldata_screen_text* screen_text,
                                                 std::uint32_t code)
{
    return call(screen_text, "setLastError", storeLastError, code);
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
    return callWith<&i_ZelDataScreenText::addScreenTextItem>(screen_text, "addScreenTextItem",
                                                             item);
}

std::uint32_t zeldata_screen_text_create_item(const zeldata_screen_text* screen_text,
                                              zeldata_screen_text_item** out)
{
    return make<&i_ZelDataScreenText::createScreenTextItem>(screen_text, "createScreenTextItem",
                                                            out);
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
    return make<&i_ZelDataScreenText::getScreenTextItemAt>(screen_text, "getScreenTextItemAt", out,
                                                           index);
}

std::uint32_t zeldata_screen_text_copy_from(zeldata_screen_text* screen_text,
                                            const zeldata_screen_text* source)
{
    return callWith<copyFrom<i_ZelDataScreenText>>(screen_text, "copyFrom", source);
}

std::uint32_t zeldata_screen_text_find_problems(const zeldata_screen_text* screen_text,
                                                zeldata_findings* findings)
{
    return call(screen_text, "findProblems", findProblemsOf<i_ZelDataScreenText>, findings);
}

// Screen text items.

std::uint32_t zeldata_screen_text_item_create(zeldata_screen_text_item** out)
{
    return create<&ZelDataUtilities::createScreenTextItemData>(out);
}

void zeldata_screen_text_item_destroy(zeldata_screen_text_item* screen_text_item)
{
    destroy(screen_text_item);
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
    return call(screen_text_item, "setLastError", storeLastError, code);
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
    return call(screen_text_item, "setText", &i_ZelDataScreenTextItem::setText,
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
    return callWith<copyFrom<i_ZelDataScreenTextItem>>(screen_text_item, "copyFrom", source);
}

// Header formatters.

std::uint32_t zeldata_header_formatter_create(zeldata_header_formatter** out, std::uint32_t format)
{
    return create<&ZelDataUtilities::createHeaderFormatter>(out, format);
}

void zeldata_header_formatter_destroy(zeldata_header_formatter* header_formatter)
{
    destroy(header_formatter);
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
    return call(header_formatter, "setLastError", storeLastError, code);
}

std::uint32_t
zeldata_header_formatter_write_string(const zeldata_header_formatter* header_formatter,
                                      zeldata_string* out, std::uint32_t format, std::int32_t flag)
{
    return call(header_formatter, "writeString", &i_ZelDataFormatterBase::writeString, out, format,
                Flag{flag});
}

std::uint32_t zeldata_header_formatter_set_header(zeldata_header_formatter* header_formatter,
                                                  const zeldata_header* header)
{
    return callWith<&i_ZelDataHeaderFormatter::setHeader>(header_formatter, "setHeader", header);
}

// Caption formatters.

std::uint32_t zeldata_caption_formatter_create(zeldata_caption_formatter** out,
                                               std::uint32_t format)
{
    return create<&ZelDataUtilities::createCaptionFormatter>(out, format);
}

void zeldata_caption_formatter_destroy(zeldata_caption_formatter* caption_formatter)
{
    destroy(caption_formatter);
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
    return call(caption_formatter, "setLastError", storeLastError, code);
}

std::uint32_t
zeldata_caption_formatter_write_string(const zeldata_caption_formatter* caption_formatter,
                                       zeldata_string* out, std::uint32_t format, std::int32_t flag)
{
    return call(caption_formatter, "writeString", &i_ZelDataFormatterBase::writeString, out, format,
                Flag{flag});
}

std::uint32_t zeldata_caption_formatter_set_captions(zeldata_caption_formatter* caption_formatter,
                                                     const zeldata_captions* captions)
{
    return callWith<&i_ZelDataCaptionFormatter::setCaptions>(caption_formatter, "setCaptions",
                                                             captions);
}

// Formatters of tables of contents.

std::uint32_t zeldata_toc_formatter_create(zeldata_toc_formatter** out, std::uint32_t format)
{
    return create<&ZelDataUtilities::createTocFormatter>(out, format);
}

void zeldata_toc_formatter_destroy(zeldata_toc_formatter* toc_formatter)
{
    destroy(toc_formatter);
}

std::uint32_t zeldata_toc_formatter_get_last_error(const zeldata_toc_formatter* toc_formatter)
{
    return lastError(toc_formatter);
}

std::uint32_t zeldata_toc_formatter_set_last_error(const zeldata_toc_formatter* toc_formatter,
                                                   std::uint32_t code)
{
    return call(toc_formatter, "setLastError", storeLastError, code);
}

std::uint32_t zeldata_toc_formatter_write_string(const zeldata_toc_formatter* toc_formatter,
                                                 zeldata_string* out, std::uint32_t format,
                                                 std::int32_t flag)
{
    return call(toc_formatter, "writeString", &i_ZelDataFormatterBase::writeString, out, format,
                Flag{flag});
}

std::uint32_t zeldata_toc_formatter_set_toc(zeldata_toc_formatter* toc_formatter,
                                            const zeldata_toc* toc)
{
    return callWith<&i_ZelDataTocFormatter::setToc>(toc_formatter, "setToc", toc);
}

// Screen text formatters.

std::uint32_t zeldata_screen_text_formatter_create(zeldata_screen_text_formatter** out,
                                                   std::uint32_t format)
{
    return create<&ZelDataUtilities::createScreenTextFormatter>(out, format);
}

void zeldata_screen_text_formatter_destroy(zeldata_screen_text_formatter* screen_text_formatter)
{
    destroy(screen_text_formatter);
}

std::uint32_t zeldata_screen_text_formatter_get_last_error(
    const zeldata_screen_text_formatter* screen_text_formatter)
{
    return lastError(screen_text_formatter);
}

std::uint32_t zeldata_screen_text_formatter_set_last_error(
    const zeldata_screen_text_formatter* screen_text_formatter, std::uint32_t code)
{
    return call(screen_text_formatter, "setLastError", storeLastError, code);
}

std::uint32_t zeldata_screen_text_formatter_write_string(
    const zeldata_screen_text_formatter* screen_text_formatter, zeldata_string* out,
    std::uint32_t format, std::int32_t flag)
{
    return call(screen_text_formatter, "writeString", &i_ZelDataFormatterBase::writeString, out,
                format, Flag{flag});
}

std::uint32_t
zeldata_screen_text_formatter_set_screen_text(zeldata_screen_text_formatter* screen_text_formatter,
                                              const zeldata_screen_text* screen_text)
{
    return callWith<&i_ZelDataScreenTextFormatter::setScreenText>(screen_text_formatter,
                                                                  "setScreenText", screen_text);
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
    return elementCount(findings, count);
}

std::uint32_t zeldata_findings_get_kind(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* kind)
{
    return element(findings, index, kind, "kind",
                   [](const ZelDataFinding& finding, std::uint32_t& out) { out = finding.kind; });
}

std::uint32_t zeldata_findings_get_subject(const zeldata_findings* findings, std::uint64_t index,
                                           std::uint32_t* subject)
{
    return element(
        findings, index, subject, "subject",
        [](const ZelDataFinding& finding, std::uint32_t& out) { out = finding.subject; });
}

std::uint32_t zeldata_findings_get_item_index(const zeldata_findings* findings, std::uint64_t index,
                                              std::uint64_t* item)
{
    return element(
        findings, index, item, "item",
        [](const ZelDataFinding& finding, std::uint64_t& out) { out = indexOf(finding.item); });
}

std::uint32_t zeldata_findings_get_start(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* start)
{
    return element(findings, index, start, "start",
                   [](const ZelDataFinding& finding, std::int64_t& out) { out = finding.start; });
}

std::uint32_t zeldata_findings_get_language(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* language)
{
    return element(
        findings, index, language, "language",
        [](const ZelDataFinding& finding, zeldata_string& out) { out.value = finding.language; });
}

std::uint32_t zeldata_findings_get_property(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* property)
{
    return element(
        findings, index, property, "property",
        [](const ZelDataFinding& finding, zeldata_string& out) { out.value = finding.property; });
}

std::uint32_t zeldata_findings_get_component(const zeldata_findings* findings, std::uint64_t index,
                                             float* component)
{
    return element(findings, index, component, "component",
                   [](const ZelDataFinding& finding, float& out) { out = finding.component; });
}

std::uint32_t zeldata_findings_get_value(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* value)
{
    return element(findings, index, value, "value",
                   [](const ZelDataFinding& finding, std::int64_t& out) { out = finding.value; });
}

std::uint32_t zeldata_findings_get_limit(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* limit)
{
    return element(findings, index, limit, "limit",
                   [](const ZelDataFinding& finding, std::int64_t& out) { out = finding.limit; });
}

std::uint32_t zeldata_findings_get_later_item_index(const zeldata_findings* findings,
                                                    std::uint64_t index, std::uint64_t* later_item)
{
    return element(findings, index, later_item, "laterItem",
                   [](const ZelDataFinding& finding, std::uint64_t& out) {
                       out = indexOf(finding.laterItem);
                   });
}

std::uint32_t zeldata_findings_get_later_start(const zeldata_findings* findings,
                                               std::uint64_t index, std::int64_t* later_start)
{
    return element(
        findings, index, later_start, "laterStart",
        [](const ZelDataFinding& finding, std::int64_t& out) { out = finding.laterStart; });
}

std::uint32_t zeldata_findings_get_severity(const zeldata_findings* findings, std::uint64_t index,
                                            std::uint32_t* severity)
{
    return element(
        findings, index, severity, "severityOf",
        [](const ZelDataFinding& finding, std::uint32_t& out) { out = severityOf(finding); });
}

std::uint32_t zeldata_findings_get_code(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* code)
{
    return element(
        findings, index, code, "codeOf",
        [](const ZelDataFinding& finding, std::uint32_t& out) { out = codeOf(finding); });
}

std::uint32_t zeldata_findings_describe(const zeldata_findings* findings, std::uint64_t index,
                                        zeldata_string* text)
{
    return element(
        findings, index, text, "describe",
        [](const ZelDataFinding& finding, zeldata_string& out) { out.value = describe(finding); });
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

std::uint32_t zeldata_verify_utf8_format(const char* text, std::size_t text_length,
                                         std::int32_t bmp_only)
{
    return run(&ZelDataUtilities::verifyUtf8Format, Text{text, text_length}, bmp_only);
}

std::uint32_t zeldata_count_lines_in_utf8(const char* text, std::size_t text_length,
                                          std::uint64_t* count)
{
    return store(&ZelDataUtilities::countLinesInUTF8, Text{text, text_length}, count);
}

std::uint32_t zeldata_strip_unsupported_characters(const char* text, std::size_t text_length,
                                                   zeldata_string* result)
{
    return store(&ZelDataUtilities::stripUnsupportedCharacters, Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_to_text(const char* text, std::size_t text_length,
                                        zeldata_string* result)
{
    return store(&ZelDataUtilities::htmlTagsToText, Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_from_text(const char* text, std::size_t text_length,
                                          zeldata_string* result)
{
    return store(&ZelDataUtilities::htmlTagsFromText, Text{text, text_length}, result);
}

std::uint32_t zeldata_get_vertical_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return store(&ZelDataUtilities::getVerticalAlignment, alignment, result);
}

std::uint32_t zeldata_get_horizontal_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return store(&ZelDataUtilities::getHorizontalAlignment, alignment, result);
}

// Texts of values.

std::uint32_t zeldata_get_value_string_float(float value, zeldata_string* result)
{
    return store(static_cast<std::string (*)(float)>(&ZelDataUtilities::getValueString), value,
                 result);
}

std::uint32_t zeldata_get_value_string_uint64(std::uint64_t value, zeldata_string* result)
{
    return store(
        static_cast<std::string (*)(unsigned long long)>(&ZelDataUtilities::getValueString), value,
        result);
}

std::uint32_t zeldata_get_rate_string(std::uint64_t rate, zeldata_string* result)
{
    return store(&ZelDataUtilities::getRateString, rate, result);
}

std::uint32_t zeldata_get_version_string(std::uint64_t version, zeldata_string* result)
{
    return store(&ZelDataUtilities::getVersionString, version, result);
}

std::uint32_t zeldata_get_date_string(std::int64_t seconds, zeldata_string* date)
{
    return store(&dateOf, seconds, date);
}

std::uint32_t zeldata_get_date_string_now(zeldata_string* date)
{
    return store(&dateOfNow, date);
}

std::uint32_t zeldata_get_value_string_int64(std::int64_t value, zeldata_string* result)
{
    return store(static_cast<std::string (*)(long)>(&getValueString), value, result);
}
