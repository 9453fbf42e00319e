#include "ZelInterchangeData/zeldata.h"

#include "ZelInterchangeData/ZelDataFace.h"
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

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <vector>

using namespace ZelInterchangeData;

namespace {

using Texts = std::vector<std::string>;
using Findings = std::vector<ZelDataFinding>;

/// Every handle begins with what its last call reported and what its object knows about a failure.
struct Handle {
    const char* shown = "";
    std::string text;
    std::string (*reasonOf)(Handle&, const ZelDataCall&);
};

template <class Type>
struct Of : Handle {
    template <class... State>
    explicit Of(const State&... state) : Handle{"", {}, reason}, object(state...)
    {
    }

    Type object;

private:
    static std::string reason(Handle& handle, const ZelDataCall& call)
    {
        if constexpr (std::is_base_of_v<i_ZelDataResult, Type>)
            return checked(static_cast<Of&>(handle).object).reasonOf(call);
        else
            return {};
    }
};

/// @name What a call keeps if it fails
/// Each function returns the code.
/// @{

[[gnu::noinline]] std::uint32_t keep(Handle& handle, ZelDataResult_tags code,
                                     const ZelDataMessages::TextMaker& makeText)
{
    handle.text = ZelDataMessages::orNothing(makeText);
    handle.shown = handle.text.empty() ? describe(code) : handle.text.c_str();
    return code;
}

/// For a code of the C function itself.
[[gnu::noinline]] std::uint32_t keep(Handle& handle, const char* name, ZelDataResult_tags code)
{
    return keep(handle, code, [&] { return ZelDataMessages::messageFor(code, name, {}, {}); });
}

/// For a code of the object's operation.
[[gnu::noinline]] std::uint32_t keep(Handle& handle, const ZelDataCall& call)
{
    using namespace ZelDataMessages;
    return keep(handle, call.code, [&] {
        return messageFor(call.code, call.operation,
                          orNothing([&] { return call.shownArguments(); }),
                          orNothing([&] { return handle.reasonOf(handle, call); }));
    });
}

/// The code of the exception that was caught.
[[gnu::noinline]] ZelDataResult_tags caught()
{
    return guarded([]() -> ZelDataResult_tags { throw; });
}
/// @}

/// @name Calls
/// @{

/// The characters of a text.
struct Text {
    const char* begin;
    std::size_t length;
};

/// As Text, for an operation that needs no string.
struct View : Text {};

/// A number that may be narrower in C++.
template <class Type, class Given>
struct Number {
    Given value;
};
using Long = Number<unsigned long, std::uint64_t>;

/// How a message shows what a C function passes.
enum class Kind {
    hidden,
    flag,
    time,
    number,
    component,
    alignment,
    format,
    pointer,
    object,
    header,
    caption,
    texts,
    text,
    view
};

/// An object that an operation reads.
struct Place {
    const void* place;
    Kind kind;
};

/// What a C function passes to an operation: it becomes the operation's parameter. A message does not
/// show what is hidden.
struct Argument {
    Argument(bool value) : kind(Kind::flag), integer(value ? 1 : 0) {}
    Argument(std::int32_t value) : kind(Kind::hidden), integer(value) {}
    Argument(std::int64_t value) : kind(Kind::time), integer(value) {}
    Argument(std::uint64_t value) : kind(Kind::number), integer(static_cast<long long>(value)) {}
    template <class Type, class Given>
    Argument(Number<Type, Given> value) : Argument(value.value)
    {
    }
    Argument(float value) : kind(Kind::component), real(value) {}
    Argument(ZelAlignment_tags value) : kind(Kind::alignment), integer(value) {}
    Argument(ZelDataFormatType_tags value) : kind(Kind::format), integer(value) {}
    Argument(ZelDataResult_tags value) : kind(Kind::hidden), integer(value) {}
    [[gnu::always_inline]] Argument(Text value)
        : kind(Kind::text), place(value.begin),
          length(value.length == ZELDATA_TERMINATED ? std::strlen(value.begin) : value.length)
    {
    }
    Argument(View value) : Argument(static_cast<Text>(value)) { kind = Kind::view; }
    Argument(const void* value) : kind(Kind::pointer), place(value) {}
    Argument(Place value) : kind(value.kind), place(value.place) {}

    operator bool() const { return integer != 0; }
    operator long() const { return static_cast<long>(integer); }
    operator long long() const { return integer; }
    operator unsigned long() const { return static_cast<unsigned long>(integer); }
    operator unsigned long long() const { return static_cast<unsigned long long>(integer); }
    operator float() const { return real; }
    operator ZelAlignment_tags() const { return static_cast<ZelAlignment_tags>(integer); }
    operator ZelDataFormatType_tags() const { return static_cast<ZelDataFormatType_tags>(integer); }
    operator ZelDataResult_tags() const { return static_cast<ZelDataResult_tags>(integer); }
    operator std::string_view() const { return {static_cast<const char*>(place), length}; }
    operator const std::string&() const { return *static_cast<const std::string*>(place); }
    template <class Type>
    operator Type**() const
    {
        return static_cast<Type**>(const_cast<void*>(place));
    }
    template <class Type>
    operator Type&() const
    {
        void* const target = const_cast<void*>(place);
        if constexpr (std::is_base_of_v<i_ZelDataResult, Type>)
            return static_cast<Type&>(*static_cast<i_ZelDataResult*>(target));
        else
            return *static_cast<Type*>(target);
    }

    ZelDataArgument shown() const
    {
        const auto* const result = static_cast<const i_ZelDataResult*>(place);
        switch (kind) {
        case Kind::flag:
            return ZelDataArgument(integer != 0);
        case Kind::time:
            return ZelDataArgument(integer);
        case Kind::number:
            return ZelDataArgument(static_cast<unsigned long long>(integer));
        case Kind::component:
            return ZelDataArgument(real);
        case Kind::alignment:
            return ZelDataArgument(static_cast<ZelAlignment_tags>(integer));
        case Kind::format:
            return ZelDataArgument(static_cast<ZelDataFormatType_tags>(integer));
        case Kind::object:
            return ZelDataArgument(*result);
        case Kind::header:
            return ZelDataArgument(static_cast<const i_ZelDataHeader&>(*result));
        case Kind::caption:
            return ZelDataArgument(static_cast<const i_ZelDataCaptionItem&>(*result));
        case Kind::texts:
            return ZelDataArgument(*static_cast<const Texts*>(place));
        case Kind::text:
            return ZelDataArgument(*static_cast<const std::string*>(place));
        default:
            return ZelDataArgument(ZelDataFormat_Xmp); // the format that is not shown
        }
    }

    /// Makes a string of the text. It remains in @p string.
    void store(std::string& string)
    {
        string.assign(static_cast<const char*>(place), length);
        place = &string;
        kind = Kind::text;
    }

    Kind kind;
    union {
        long long integer;
        float real;
        const void* place;
    };
    std::size_t length;
};

using Operation = ZelDataResult_tags (*)(Handle&, const Argument*);

/// Makes a string of each text of the kind @p kind.
void makeStrings(Kind kind, Argument* arguments, std::size_t count, std::string* strings)
{
    for (std::size_t i = 0; i < count; ++i)
        if (arguments[i].kind == kind) arguments[i].store(*strings++);
}

/// Reports the failure of a call with @p count arguments, at most 3.
[[gnu::noinline]] std::uint32_t report(Handle& handle, const char* name, ZelDataResult_tags code,
                                       Argument* arguments, std::size_t count)
{
    std::string strings[2];
    try {
        makeStrings(Kind::view, arguments, count, strings);
    } catch (const std::bad_alloc&) {
        handle.shown = describe(code);
        return code;
    }
    const auto shown = [&](std::size_t i) {
        return i < count ? arguments[i].shown() : ZelDataArgument(ZelDataFormat_Xmp);
    };
    return keep(handle, {name, code, {shown(0), shown(1), shown(2)}});
}

/// Calls @p operation, which messages call @p name, for @p handle. @p isWhole: no thread ends in it.
template <bool isWhole, bool hasText>
[[gnu::noinline]] std::uint32_t perform(Handle* handle, const char* name, Operation operation,
                                        Argument* arguments, std::size_t count) noexcept(isWhole)
{
    if (handle == nullptr) return ZelData_InvalidArgument;
    handle->shown = "";
    try {
        [[maybe_unused]] std::conditional_t<hasText, std::string[2], std::nullptr_t> strings;
        if constexpr (hasText) makeStrings(Kind::text, arguments, count, strings);
        const ZelDataResult_tags code = operation(*handle, arguments);
        return failed(code) ? report(*handle, name, code, arguments, count)
                            : static_cast<std::uint32_t>(code);
    } catch (...) {
        return keep(*handle, name, caught());
    }
}

/// For an argument that is not usable.
[[gnu::noinline]] std::uint32_t refuse(Handle* handle, const char* name) noexcept
{
    return handle == nullptr ? static_cast<std::uint32_t>(ZelData_InvalidArgument)
                             : keep(*handle, name, ZelData_InvalidArgument);
}

/// Calls @p operation, a member function or one that takes the object first.
template <auto operation, class Type, std::size_t count>
ZelDataResult_tags invoked(Handle& handle, const Argument* with)
{
    auto& object = static_cast<Type&>(handle).object;
    if constexpr (std::is_member_pointer_v<decltype(operation)>) {
        if constexpr (count == 0) return (object.*operation)();
        if constexpr (count == 1) return (object.*operation)(with[0]);
        if constexpr (count == 2) return (object.*operation)(with[0], with[1]);
        if constexpr (count == 3) return (object.*operation)(with[0], with[1], with[2]);
    } else {
        if constexpr (count == 0) return operation(object);
        if constexpr (count == 1) return operation(object, with[0]);
        if constexpr (count == 2) return operation(object, with[0], with[1]);
        if constexpr (count == 3) return operation(object, with[0], with[1], with[2]);
    }
}

template <class Type>
const void* addressOf(const Type& value)
{
    using Root =
        std::conditional_t<std::is_base_of_v<i_ZelDataResult, Type>, i_ZelDataResult, Type>;
    return static_cast<const Root*>(&value);
}
template <class Type>
constexpr Kind kindOf()
{
    if constexpr (std::is_base_of_v<i_ZelDataHeader, Type>)
        return Kind::header;
    else if constexpr (std::is_base_of_v<i_ZelDataCaptionItem, Type>)
        return Kind::caption;
    else
        return std::is_same_v<Type, Texts> ? Kind::texts : Kind::object;
}

/// What a C function passes, without the types of its handles.
template <class Given>
auto erased(Given given)
{
    using Type = std::remove_pointer_t<Given>;
    if constexpr (!std::is_pointer_v<Given>) {
        return given;
    } else if constexpr (!std::is_base_of_v<Handle, Type>) {
        return static_cast<const void*>(given);
    } else {
        const void* const place = given == nullptr ? nullptr : addressOf(given->object);
        if constexpr (std::is_const_v<Type>)
            return Place{place, kindOf<decltype(Type::object)>()};
        else
            return place;
    }
}

[[gnu::always_inline]] inline bool isUsable(Text text)
{
    return text.begin != nullptr &&
           (text.length <= PTRDIFF_MAX / 2 || text.length == ZELDATA_TERMINATED);
}
bool isUsable(Place object)
{
    return object.place != nullptr;
}
template <class Type, class Given>
bool isUsable(Number<Type, Given> number)
{
    return static_cast<Given>(static_cast<Type>(number.value)) == number.value;
}
template <class Given>
bool isUsable(Given given)
{
    if constexpr (std::is_pointer_v<Given>)
        return given != nullptr;
    else if constexpr (std::is_base_of_v<Text, Given>)
        return isUsable(static_cast<Text>(given));
    else
        return true;
}

/// Passes on the arguments; all operations with the same ones share it.
template <bool isWhole, class... Given>
[[gnu::noinline]] std::uint32_t passOn(Handle* handle, const char* name, Operation operation,
                                       Given... given) noexcept(isWhole)
{
    if (!(isUsable(given) && ...)) return refuse(handle, name);
    Argument arguments[] = {Argument(given)...};
    constexpr bool hasText = (std::is_same_v<Given, Text> || ...);
    return perform<isWhole, hasText>(handle, name, operation, arguments, sizeof...(given));
}

template <auto operation, bool isWhole = true, class Type, class... Given>
std::uint32_t call(const Type* handle, const char* name, Given... given)
{
    auto* const changed = const_cast<Type*>(handle);
    constexpr Operation made = invoked<operation, Type, sizeof...(given)>;
    if constexpr (sizeof...(given) == 0)
        return perform<isWhole, false>(changed, name, made, nullptr, 0);
    else
        return passOn<isWhole>(changed, name, made, erased(given)...);
}

/// As passOn(), without a handle.
template <class... Given>
[[gnu::noinline]] std::uint32_t passOnAlone(Operation operation, Given... given) noexcept
{
    Of<std::nullptr_t> none;
    return passOn<true>(&none, "", operation, given...);
}
template <auto operation, class... Given>
std::uint32_t run(Given... given)
{
    return passOnAlone(invoked<operation, Of<std::nullptr_t>, sizeof...(given)>, erased(given)...);
}
/// @}

/// @name Operations that are no function of the library, or that have other parameters
/// @{

/// Stores the value of the getter @p getter, which is a @p Value in C++.
template <class Value, auto getter, class Type, class To>
ZelDataResult_tags got(const Type& object, To& out)
{
    Value value{};
    const ZelDataResult_tags code = (const_cast<Type&>(object).*getter)(value);
    if (!failed(code)) out = static_cast<To>(value);
    return code;
}
template <class Value, auto getter, class Type, class To>
std::uint32_t get(const Type* handle, const char* name, To* out)
{
    if constexpr (std::is_same_v<Value, To>)
        return call<getter>(handle, name, out);
    else
        return call<got<Value, getter, decltype(Type::object), To>>(handle, name, out);
}
template <auto getter, class Type>
ZelDataResult_tags listed(const Type& object, std::string& name, std::int32_t& out)
{
    bool exists = false;
    const ZelDataResult_tags code = (object.*getter)(name, exists);
    if (!failed(code)) out = exists ? 1 : 0;
    return code;
}
template <auto getter, class Type>
std::uint32_t isListed(const Type* handle, const char* name, Text text, std::int32_t* out)
{
    return call<listed<getter, decltype(Type::object)>>(handle, name, text, out);
}

template <class Item>
ZelDataResult_tags textFor(const Item& item, const std::string& id, std::string& text)
{
    return item.getTextForLanguage(text, id);
}

/// Stores a handle of a new object.
template <class Made>
ZelDataResult_tags created(std::nullptr_t&, Made** out)
{
    if (*out != nullptr) return ZelData_InvalidArgument;
    *out = new Made;
    return ZelData_Ok;
}
template <class Made>
ZelDataResult_tags createdFormatter(std::nullptr_t& none, Made** out, ZelDataFormatType_tags format)
{
    const bool isUnknown = *out == nullptr && format != ZelDataFormat_Xmp;
    return isUnknown ? ZelData_UnsupportedFormat : created(none, out);
}
template <class Made>
ZelDataResult_tags made(const i_ZelDataResult& object, Made** out)
{
    std::nullptr_t none{};
    const ZelDataResult_tags code = created(none, out);
    if (!failed(code)) object.setLastError(code);
    return code;
}
template <class Type, class Made>
std::uint32_t make(const Type* handle, const char* name, Made** out)
{
    return call<made<Made>>(handle, name, out);
}

/// Stores a handle of a copy of an item.
template <class Item, auto getter, class Type, class Made>
ZelDataResult_tags copied(const Type& object, unsigned long index, Made** out)
{
    if (!isEmptyOutPointer(out)) return ZelData_InvalidArgument;
    Item* copy = nullptr;
    const ZelDataResult_tags code = (object.*getter)(&copy, index);
    const std::unique_ptr<Item> item(copy);
    if (!failed(code)) *out = new Made(static_cast<const decltype(Made::object)&>(*item).state());
    return code;
}
template <class Item, auto getter, class Type, class Made>
std::uint32_t getItem(const Type* handle, const char* name, Made** out, std::uint64_t index)
{
    return call<copied<Item, getter, decltype(Type::object), Made>>(handle, name, Long{index}, out);
}

template <class Interface>
constexpr ZelDataResult_tags (Interface::*copyFrom)(const Interface&) = &Interface::copyFrom;

template <class Interface>
ZelDataResult_tags findProblemsOf(const Interface& object, Findings& findings)
{
    return findProblems(object, findings);
}

template <class Type>
std::uint32_t lastError(const Type* handle)
{
    return handle == nullptr ? ZelData_InvalidArgument : handle->object.getLastError();
}

ZelDataResult_tags storeLastError(const i_ZelDataResult& object, ZelDataResult_tags code)
{
    object.setLastError(code);
    return ZelData_Ok;
}
template <class Type>
std::uint32_t setLastError(const Type* handle, std::uint32_t code)
{
    return call<storeLastError>(handle, "setLastError", static_cast<ZelDataResult_tags>(code));
}

ZelDataResult_tags replaceFileWith(const i_ZelInterchangeDataCore& document,
                                   const std::string& path, ZelDataFormatType_tags format,
                                   std::int32_t& systemError)
{
    return replaceFile(document, path, systemError, format);
}

/// Stores what the function @p make returns.
template <auto make, class Given, class Out = std::string>
ZelDataResult_tags stored(std::nullptr_t&, Given given, Out& out)
{
    out = make(given);
    return ZelData_Ok;
}
template <auto getName>
ZelDataResult_tags nameOf(std::nullptr_t&, const std::string& id, std::string& name)
{
    return getName(id, name);
}
ZelDataResult_tags checkLanguage(std::nullptr_t&, const std::string& id)
{
    return ZelDataUtilities::isValidLanguage(id);
}
ZelDataResult_tags checkUtf8(std::nullptr_t&, const std::string& text, bool bmpOnly)
{
    return ZelDataUtilities::verifyUtf8Format(text, bmpOnly);
}
std::string dateOf(long seconds)
{
    return ZelDataUtilities::getDateString(&seconds);
}
ZelDataResult_tags dateOfNow(std::nullptr_t&, std::string& date)
{
    date = ZelDataUtilities::getDateString(nullptr);
    return ZelData_Ok;
}

/// What an operation stores for a pointer of the C function.
template <class Type, class = void>
struct TargetOf {
    using Target = Type;
};
template <class Type>
struct TargetOf<Type, std::enable_if_t<std::is_class_v<Type>>> {
    using Target = decltype(Type::object);
};

/// Stores @p value of an element, such as the kind of a finding. Messages do not show the index.
template <auto value, class List, class Out>
ZelDataResult_tags elementOf(const List& list, const std::uint64_t& index, Out& out)
{
    if (index >= list.size()) return ZelData_InvalidArgument;
    const auto& stored = std::invoke(value, list[static_cast<std::size_t>(index)]);
    if constexpr (std::is_class_v<Out>)
        out = stored;
    else
        out = static_cast<Out>(stored);
    return ZelData_Ok;
}
template <auto value, class Type, class Out>
std::uint32_t getElement(const Type* handle, const char* name, std::uint64_t index, Out* out)
{
    return call<elementOf<value, decltype(Type::object), typename TargetOf<Out>::Target>>(
        handle, name, &index, out);
}
template <class List>
ZelDataResult_tags countOf(const List& list, std::uint64_t& count)
{
    count = list.size();
    return ZelData_Ok;
}

const std::string& itself(const std::string& text)
{
    return text;
}
std::string description(const ZelDataFinding& finding)
{
    return describe(finding);
}
template <auto item>
std::uint64_t indexOf(const ZelDataFinding& finding)
{
    return finding.*item == ZelDataFinding::noItem ? ZELDATA_NO_ITEM : finding.*item;
}

ZelDataResult_tags assign(std::string& target, std::string& text)
{
    target.swap(text);
    return ZelData_Ok;
}
ZelDataResult_tags add(Texts& texts, const std::string& text)
{
    texts.push_back(text);
    return ZelData_Ok;
}
ZelDataResult_tags clear(Texts& texts)
{
    texts.clear();
    return ZelData_Ok;
}

struct Buffer {
    char* bytes;
    std::size_t capacity;
};
ZelDataResult_tags copy(const std::string& text, Buffer& buffer, std::size_t& needed)
{
    needed = text.size() + 1;
    if (buffer.bytes == nullptr || buffer.capacity < needed) return ZelData_InvalidArgument;
    std::memcpy(buffer.bytes, text.c_str(), needed);
    return ZelData_Ok;
}
/// @}

} // namespace

struct zeldata_string : Of<std::string> {};
struct zeldata_strings : Of<Texts> {};
struct zeldata_findings : Of<Findings> {};
struct zeldata_document : Of<ZelDataCore> {};
struct zeldata_header : Of<ZelDataHeader> {};
struct zeldata_captions : Of<ZelDataCaptions> {};
struct zeldata_caption_item : Of<ZelDataCaptionItem> {
    using Of::Of;
};
struct zeldata_toc : Of<ZelDataToc> {};
struct zeldata_toc_item : Of<ZelDataTocItem> {
    using Of::Of;
};
struct zeldata_screen_text : Of<ZelDataScreenText> {};
struct zeldata_screen_text_item : Of<ZelDataScreenTextItem> {
    using Of::Of;
};
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

std::uint32_t zeldata_string_create(zeldata_string** out)
{
    return run<created<zeldata_string>>(out);
}

void zeldata_string_destroy(zeldata_string* string)
{
    delete string;
}

std::uint32_t zeldata_string_set(zeldata_string* string, const char* text, std::size_t text_length)
{
    return call<assign>(string, "set", Text{text, text_length});
}

const char* zeldata_string_get_data(const zeldata_string* string)
{
    return string == nullptr ? "" : string->object.c_str();
}

std::size_t zeldata_string_get_size(const zeldata_string* string)
{
    return string == nullptr ? 0 : string->object.size();
}

std::uint32_t zeldata_string_copy(const zeldata_string* string, char* buffer, std::size_t capacity,
                                  std::size_t* needed)
{
    Buffer target{buffer, capacity};
    return call<copy>(string, "copy", &target, needed);
}

// Lists of texts.

std::uint32_t zeldata_strings_create(zeldata_strings** out)
{
    return run<created<zeldata_strings>>(out);
}

void zeldata_strings_destroy(zeldata_strings* strings)
{
    delete strings;
}

std::uint32_t zeldata_strings_clear(zeldata_strings* strings)
{
    return call<clear>(strings, "clear");
}

std::uint32_t zeldata_strings_add(zeldata_strings* strings, const char* text,
                                  std::size_t text_length)
{
    return call<add>(strings, "add", Text{text, text_length});
}

std::uint32_t zeldata_strings_get_count(const zeldata_strings* strings, std::uint64_t* count)
{
    return call<countOf<Texts>>(strings, "getCount", count);
}

std::uint32_t zeldata_strings_get(const zeldata_strings* strings, std::uint64_t index,
                                  zeldata_string* text)
{
    return getElement<itself>(strings, "get", index, text);
}

// Documents.

std::uint32_t zeldata_document_create(zeldata_document** out)
{
    return run<created<zeldata_document>>(out);
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
    return call<&i_ZelDataFormatterBase::writeString>(
        document, "writeString", out, static_cast<ZelDataFormatType_tags>(format), flag);
}

std::uint32_t zeldata_document_write_file(const zeldata_document* document, const char* path,
                                          std::size_t path_length, std::uint32_t format,
                                          std::int32_t flag)
{
    return call<&i_ZelDataFormatterBase::writeFile, false>(
        document, "writeFile", Text{path, path_length}, static_cast<ZelDataFormatType_tags>(format),
        flag);
}

std::uint32_t zeldata_document_get_header(const zeldata_document* document, zeldata_header* target)
{
    return call<&i_ZelInterchangeDataCore::getDataHeader>(document, "getDataHeader", target);
}

std::uint32_t zeldata_document_set_header(zeldata_document* document, const zeldata_header* source)
{
    return call<&i_ZelInterchangeDataCore::setDataHeader>(document, "setDataHeader", source);
}

std::uint32_t zeldata_document_get_captions(const zeldata_document* document,
                                            zeldata_captions* target)
{
    return call<&i_ZelInterchangeDataCore::getDataCaptions>(document, "getDataCaptions", target);
}

std::uint32_t zeldata_document_set_captions(zeldata_document* document,
                                            const zeldata_captions* source)
{
    return call<&i_ZelInterchangeDataCore::setDataCaptions>(document, "setDataCaptions", source);
}

std::uint32_t zeldata_document_get_toc(const zeldata_document* document, zeldata_toc* target)
{
    return call<&i_ZelInterchangeDataCore::getDataToc>(document, "getDataToc", target);
}

std::uint32_t zeldata_document_set_toc(zeldata_document* document, const zeldata_toc* source)
{
    return call<&i_ZelInterchangeDataCore::setDataToc>(document, "setDataToc", source);
}

std::uint32_t zeldata_document_get_screen_text(const zeldata_document* document,
                                               zeldata_screen_text* target)
{
    return call<&i_ZelInterchangeDataCore::getDataScreenText>(document, "getDataScreenText",
                                                              target);
}

std::uint32_t zeldata_document_set_screen_text(zeldata_document* document,
                                               const zeldata_screen_text* source)
{
    return call<&i_ZelInterchangeDataCore::setDataScreenText>(document, "setDataScreenText",
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
    return call<findProblemsOf<i_ZelInterchangeDataCore>>(document, "findProblems", findings);
}

std::uint32_t zeldata_document_replace_file(const zeldata_document* document, const char* path,
                                            std::size_t path_length, std::int32_t* system_error,
                                            std::uint32_t format)
{
    if (system_error != nullptr) *system_error = 0;
    const std::uint32_t code =
        call<replaceFileWith, false>(document, "replaceFile", Text{path, path_length},
                                     static_cast<ZelDataFormatType_tags>(format), system_error);
    if (document == nullptr || system_error == nullptr || *system_error == 0) return code;
    return keep(
        const_cast<zeldata_document&>(*document), static_cast<ZelDataResult_tags>(code), [&] {
            return ZelDataMessages::replacing(std::string(
                       path, path_length == ZELDATA_TERMINATED ? std::strlen(path) : path_length)) +
                   ": " + std::system_category().message(*system_error);
        });
}

// Headers.

std::uint32_t zeldata_header_create(zeldata_header** out)
{
    return run<created<zeldata_header>>(out);
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
    return call<&i_ZelDataLanguage::clearLanguages>(header, "clearLanguages");
}

std::uint32_t zeldata_header_add_language(zeldata_header* header, const char* id,
                                          std::size_t id_length)
{
    return call<&i_ZelDataLanguage::addLanguage>(header, "addLanguage", Text{id, id_length});
}

std::uint32_t zeldata_header_remove_language(zeldata_header* header, const char* id,
                                             std::size_t id_length)
{
    return call<&i_ZelDataLanguage::removeLanguage>(header, "removeLanguage", Text{id, id_length});
}

std::uint32_t zeldata_header_set_ordered_language_ids(zeldata_header* header,
                                                      const zeldata_strings* ids)
{
    return call<&i_ZelDataLanguage::setOrderedLanguageIDs>(header, "setOrderedLanguageIDs", ids);
}

std::uint32_t zeldata_header_get_ordered_language_ids(const zeldata_header* header,
                                                      zeldata_strings* ids)
{
    return call<&i_ZelDataLanguage::getOrderedLanguageIDs>(header, "getOrderedLanguageIDs", ids);
}

std::uint32_t zeldata_header_get_language_count(const zeldata_header* header, std::uint64_t* count)
{
    return get<unsigned long, &i_ZelDataLanguage::getLanguageCount>(header, "getLanguageCount",
                                                                    count);
}

std::uint32_t zeldata_header_get_language_display_names(const zeldata_header* header,
                                                        zeldata_strings* names)
{
    return call<&i_ZelDataLanguage::getLanguageDisplayNames>(header, "getLanguageDisplayNames",
                                                             names);
}

std::uint32_t zeldata_header_get_language_native_display_names(const zeldata_header* header,
                                                               zeldata_strings* names)
{
    return call<&i_ZelDataLanguage::getLanguageNativeDisplayNames>(
        header, "getLanguageNativeDisplayNames", names);
}

std::uint32_t zeldata_header_does_language_exist(const zeldata_header* header, const char* id,
                                                 std::size_t id_length, std::int32_t* exists)
{
    return isListed<&i_ZelDataLanguage::doesLanguageExist>(header, "doesLanguageExist",
                                                           Text{id, id_length}, exists);
}

std::uint32_t zeldata_header_copy_languages_from_header(zeldata_header* header,
                                                        const zeldata_header* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(header, "copyFrom", source);
}

std::uint32_t zeldata_header_copy_languages_from_captions(zeldata_header* header,
                                                          const zeldata_captions* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(header, "copyFrom", source);
}

std::uint32_t zeldata_header_copy_languages_from_toc(zeldata_header* header,
                                                     const zeldata_toc* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(header, "copyFrom", source);
}

std::uint32_t zeldata_header_is_valid(const zeldata_header* header)
{
    return call<&i_ZelDataHeader::isValid>(header, "isValid");
}

std::uint32_t zeldata_header_clear(zeldata_header* header)
{
    return call<&i_ZelDataHeader::clearHeader>(header, "clearHeader");
}

std::uint32_t zeldata_header_set_app_name(zeldata_header* header, const char* name,
                                          std::size_t name_length)
{
    return call<&i_ZelDataHeader::setAppName>(header, "setAppName", Text{name, name_length});
}

std::uint32_t zeldata_header_set_app_version(zeldata_header* header, const char* version,
                                             std::size_t version_length)
{
    return call<&i_ZelDataHeader::setAppVersion>(header, "setAppVersion",
                                                 Text{version, version_length});
}

std::uint32_t zeldata_header_set_title(zeldata_header* header, const char* title,
                                       std::size_t title_length)
{
    return call<&i_ZelDataHeader::setTitle>(header, "setTitle", Text{title, title_length});
}

std::uint32_t zeldata_header_set_creator(zeldata_header* header, const char* creator,
                                         std::size_t creator_length)
{
    return call<&i_ZelDataHeader::setCreator>(header, "setCreator", Text{creator, creator_length});
}

std::uint32_t zeldata_header_set_description(zeldata_header* header, const char* description,
                                             std::size_t description_length)
{
    return call<&i_ZelDataHeader::setDescription>(header, "setDescription",
                                                  Text{description, description_length});
}

std::uint32_t zeldata_header_set_keywords(zeldata_header* header, const zeldata_strings* keywords)
{
    return call<&i_ZelDataHeader::setKeywords>(header, "setKeywords", keywords);
}

std::uint32_t zeldata_header_set_ipod_explicit(zeldata_header* header, std::int32_t is_explicit)
{
    return call<&i_ZelDataHeader::setIPodExplicit>(header, "setIPodExplicit", is_explicit != 0);
}

std::uint32_t zeldata_header_set_video_length(zeldata_header* header, std::uint64_t milliseconds)
{
    return call<&i_ZelDataHeader::setVideoLength>(header, "setVideoLength", Long{milliseconds});
}

std::uint32_t zeldata_header_set_video_width(zeldata_header* header, std::uint64_t pixels)
{
    return call<&i_ZelDataHeader::setVideoWidth>(header, "setVideoWidth", Long{pixels});
}

std::uint32_t zeldata_header_set_video_height(zeldata_header* header, std::uint64_t pixels)
{
    return call<&i_ZelDataHeader::setVideoHeight>(header, "setVideoHeight", Long{pixels});
}

std::uint32_t zeldata_header_get_app_name(const zeldata_header* header, zeldata_string* name)
{
    return call<&i_ZelDataHeader::getAppName>(header, "getAppName", name);
}

std::uint32_t zeldata_header_get_app_version(const zeldata_header* header, zeldata_string* version)
{
    return call<&i_ZelDataHeader::getAppVersion>(header, "getAppVersion", version);
}

std::uint32_t zeldata_header_get_title(const zeldata_header* header, zeldata_string* title)
{
    return call<&i_ZelDataHeader::getTitle>(header, "getTitle", title);
}

std::uint32_t zeldata_header_get_creator(const zeldata_header* header, zeldata_string* creator)
{
    return call<&i_ZelDataHeader::getCreator>(header, "getCreator", creator);
}

std::uint32_t zeldata_header_get_description(const zeldata_header* header,
                                             zeldata_string* description)
{
    return call<&i_ZelDataHeader::getDescription>(header, "getDescription", description);
}

std::uint32_t zeldata_header_get_keywords(const zeldata_header* header, zeldata_strings* keywords)
{
    return call<&i_ZelDataHeader::getKeywords>(header, "getKeywords", keywords);
}

std::uint32_t zeldata_header_get_ipod_explicit(const zeldata_header* header,
                                               std::int32_t* is_explicit)
{
    return get<bool, &i_ZelDataHeader::getIPodExplicit>(header, "getIPodExplicit", is_explicit);
}

std::uint32_t zeldata_header_get_video_length(const zeldata_header* header,
                                              std::uint64_t* milliseconds)
{
    return get<unsigned long, &i_ZelDataHeader::getVideoLength>(header, "getVideoLength",
                                                                milliseconds);
}

std::uint32_t zeldata_header_get_video_width(const zeldata_header* header, std::uint64_t* pixels)
{
    return get<unsigned long, &i_ZelDataHeader::getVideoWidth>(header, "getVideoWidth", pixels);
}

std::uint32_t zeldata_header_get_video_height(const zeldata_header* header, std::uint64_t* pixels)
{
    return get<unsigned long, &i_ZelDataHeader::getVideoHeight>(header, "getVideoHeight", pixels);
}

std::uint32_t zeldata_header_clear_content_names(zeldata_header* header)
{
    return call<&i_ZelDataHeader::clearContentNames>(header, "clearContentNames");
}

std::uint32_t zeldata_header_add_content_name(zeldata_header* header, const char* name,
                                              std::size_t name_length)
{
    return call<&i_ZelDataHeader::addContentName>(header, "addContentName",
                                                  Text{name, name_length});
}

std::uint32_t zeldata_header_remove_content_name(zeldata_header* header, const char* name,
                                                 std::size_t name_length)
{
    return call<&i_ZelDataHeader::removeContentName>(header, "removeContentName",
                                                     Text{name, name_length});
}

std::uint32_t zeldata_header_get_content_name_count(const zeldata_header* header,
                                                    std::uint64_t* count)
{
    return get<unsigned long, &i_ZelDataHeader::getContentNameCount>(header, "getContentNameCount",
                                                                     count);
}

std::uint32_t zeldata_header_get_content_names(const zeldata_header* header, zeldata_strings* names)
{
    return call<&i_ZelDataHeader::getContentNames>(header, "getContentNames", names);
}

std::uint32_t zeldata_header_does_content_name_exist(const zeldata_header* header, const char* name,
                                                     std::size_t name_length, std::int32_t* exists)
{
    return isListed<&i_ZelDataHeader::doesContentNameExist>(header, "doesContentNameExist",
                                                            Text{name, name_length}, exists);
}

std::uint32_t zeldata_header_set_show_search_bar(zeldata_header* header, std::int32_t show)
{
    return call<&i_ZelDataHeader::setShowSearchBar>(header, "setShowSearchBar", show != 0);
}

std::uint32_t zeldata_header_get_show_search_bar(const zeldata_header* header, std::int32_t* show)
{
    return get<bool, &i_ZelDataHeader::getShowSearchBar>(header, "getShowSearchBar", show);
}

std::uint32_t zeldata_header_copy_from(zeldata_header* header, const zeldata_header* other)
{
    return call<copyFrom<i_ZelDataHeader>>(header, "copyFrom", other);
}

std::uint32_t zeldata_header_find_problems(const zeldata_header* header, zeldata_findings* findings)
{
    return call<findProblemsOf<i_ZelDataHeader>>(header, "findProblems", findings);
}

// Captions.

std::uint32_t zeldata_captions_create(zeldata_captions** out)
{
    return run<created<zeldata_captions>>(out);
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
    return call<&i_ZelDataLanguage::clearLanguages>(captions, "clearLanguages");
}

std::uint32_t zeldata_captions_add_language(zeldata_captions* captions, const char* id,
                                            std::size_t id_length)
{
    return call<&i_ZelDataLanguage::addLanguage>(captions, "addLanguage", Text{id, id_length});
}

std::uint32_t zeldata_captions_remove_language(zeldata_captions* captions, const char* id,
                                               std::size_t id_length)
{
    return call<&i_ZelDataLanguage::removeLanguage>(captions, "removeLanguage",
                                                    Text{id, id_length});
}

std::uint32_t zeldata_captions_set_ordered_language_ids(zeldata_captions* captions,
                                                        const zeldata_strings* ids)
{
    return call<&i_ZelDataLanguage::setOrderedLanguageIDs>(captions, "setOrderedLanguageIDs", ids);
}

std::uint32_t zeldata_captions_get_ordered_language_ids(const zeldata_captions* captions,
                                                        zeldata_strings* ids)
{
    return call<&i_ZelDataLanguage::getOrderedLanguageIDs>(captions, "getOrderedLanguageIDs", ids);
}

std::uint32_t zeldata_captions_get_language_count(const zeldata_captions* captions,
                                                  std::uint64_t* count)
{
    return get<unsigned long, &i_ZelDataLanguage::getLanguageCount>(captions, "getLanguageCount",
                                                                    count);
}

std::uint32_t zeldata_captions_get_language_display_names(const zeldata_captions* captions,
                                                          zeldata_strings* names)
{
    return call<&i_ZelDataLanguage::getLanguageDisplayNames>(captions, "getLanguageDisplayNames",
                                                             names);
}

std::uint32_t zeldata_captions_get_language_native_display_names(const zeldata_captions* captions,
                                                                 zeldata_strings* names)
{
    return call<&i_ZelDataLanguage::getLanguageNativeDisplayNames>(
        captions, "getLanguageNativeDisplayNames", names);
}

std::uint32_t zeldata_captions_does_language_exist(const zeldata_captions* captions, const char* id,
                                                   std::size_t id_length, std::int32_t* exists)
{
    return isListed<&i_ZelDataLanguage::doesLanguageExist>(captions, "doesLanguageExist",
                                                           Text{id, id_length}, exists);
}

std::uint32_t zeldata_captions_copy_languages_from_header(zeldata_captions* captions,
                                                          const zeldata_header* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(captions, "copyFrom", source);
}

std::uint32_t zeldata_captions_copy_languages_from_captions(zeldata_captions* captions,
                                                            const zeldata_captions* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(captions, "copyFrom", source);
}

std::uint32_t zeldata_captions_copy_languages_from_toc(zeldata_captions* captions,
                                                       const zeldata_toc* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(captions, "copyFrom", source);
}

std::uint32_t zeldata_captions_is_valid(const zeldata_captions* captions, std::int32_t strict)
{
    return call<&i_ZelDataCaptions::isValid>(captions, "isValid", strict != 0);
}

std::uint32_t zeldata_captions_make_consistent(zeldata_captions* captions)
{
    return call<&i_ZelDataCaptions::makeCaptionsConsistent>(captions, "makeCaptionsConsistent");
}

std::uint32_t zeldata_captions_set_frame_rate(zeldata_captions* captions, std::uint64_t rate)
{
    return call<&i_ZelDataCaptions::setFrameRate>(captions, "setFrameRate", Long{rate});
}

std::uint32_t zeldata_captions_get_frame_rate(const zeldata_captions* captions, std::uint64_t* rate)
{
    return get<unsigned long, &i_ZelDataCaptions::getFrameRate>(captions, "getFrameRate", rate);
}

std::uint32_t zeldata_captions_set_font_family(zeldata_captions* captions, const char* family,
                                               std::size_t family_length)
{
    return call<&i_ZelDataCaptions::setFontFamily>(captions, "setFontFamily",
                                                   Text{family, family_length});
}

std::uint32_t zeldata_captions_get_font_family(const zeldata_captions* captions,
                                               zeldata_string* family)
{
    return call<&i_ZelDataCaptions::getFontFamily>(captions, "getFontFamily", family);
}

std::uint32_t zeldata_captions_set_font_size(zeldata_captions* captions, std::uint64_t size)
{
    return call<&i_ZelDataCaptions::setFontSize>(captions, "setFontSize", Long{size});
}

std::uint32_t zeldata_captions_get_font_size(const zeldata_captions* captions, std::uint64_t* size)
{
    return get<unsigned long, &i_ZelDataCaptions::getFontSize>(captions, "getFontSize", size);
}

std::uint32_t zeldata_captions_set_foreground_color(zeldata_captions* captions, float red,
                                                    float green, float blue)
{
    return call<&i_ZelDataCaptions::setForegroundColor>(captions, "setForegroundColor", red, green,
                                                        blue);
}

std::uint32_t zeldata_captions_get_foreground_color(const zeldata_captions* captions, float* red,
                                                    float* green, float* blue)
{
    return call<&i_ZelDataCaptions::getForegroundColor>(captions, "getForegroundColor", red, green,
                                                        blue);
}

std::uint32_t zeldata_captions_set_background_color(zeldata_captions* captions, float red,
                                                    float green, float blue)
{
    return call<&i_ZelDataCaptions::setBackgroundColor>(captions, "setBackgroundColor", red, green,
                                                        blue);
}

std::uint32_t zeldata_captions_get_background_color(const zeldata_captions* captions, float* red,
                                                    float* green, float* blue)
{
    return call<&i_ZelDataCaptions::getBackgroundColor>(captions, "getBackgroundColor", red, green,
                                                        blue);
}

std::uint32_t zeldata_captions_set_background_opacity(zeldata_captions* captions, float opacity)
{
    return call<&i_ZelDataCaptions::setBackgroundOpacity>(captions, "setBackgroundOpacity",
                                                          opacity);
}

std::uint32_t zeldata_captions_get_background_opacity(const zeldata_captions* captions,
                                                      float* opacity)
{
    return call<&i_ZelDataCaptions::getBackgroundOpacity>(captions, "getBackgroundOpacity",
                                                          opacity);
}

std::uint32_t zeldata_captions_clear_items(zeldata_captions* captions)
{
    return call<&i_ZelDataCaptions::clearCaptionItems>(captions, "clearCaptionItems");
}

std::uint32_t zeldata_captions_add_item(zeldata_captions* captions,
                                        const zeldata_caption_item* item)
{
    return call<&i_ZelDataCaptions::addCaptionItem>(captions, "addCaptionItem", item);
}

std::uint32_t zeldata_captions_create_item(const zeldata_captions* captions,
                                           zeldata_caption_item** out)
{
    return make(captions, "createCaptionItem", out);
}

std::uint32_t zeldata_captions_remove_item(zeldata_captions* captions, std::uint64_t index)
{
    return call<&i_ZelDataCaptions::removeCaptionItemAt>(captions, "removeCaptionItemAt",
                                                         Long{index});
}

std::uint32_t zeldata_captions_remove_items_for_language(zeldata_captions* captions,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call<&i_ZelDataCaptions::removeCaptionItemsForLanguage>(
        captions, "removeCaptionItemsForLanguage", Text{language_id, language_id_length});
}

std::uint32_t zeldata_captions_get_item_count(const zeldata_captions* captions,
                                              std::uint64_t* count)
{
    return get<unsigned long, &i_ZelDataCaptions::getCaptionItemCount>(
        captions, "getCaptionItemCount", count);
}

std::uint32_t zeldata_captions_get_item(const zeldata_captions* captions,
                                        zeldata_caption_item** out, std::uint64_t index)
{
    return getItem<i_ZelDataCaptionItem, &i_ZelDataCaptions::getCaptionItemAt>(
        captions, "getCaptionItemAt", out, index);
}

std::uint32_t zeldata_captions_copy_from(zeldata_captions* captions, const zeldata_captions* other)
{
    return call<copyFrom<i_ZelDataCaptions>>(captions, "copyFrom", other);
}

std::uint32_t zeldata_captions_find_problems(const zeldata_captions* captions,
                                             zeldata_findings* findings)
{
    return call<findProblemsOf<i_ZelDataCaptions>>(captions, "findProblems", findings);
}

// Caption items.

std::uint32_t zeldata_caption_item_create(zeldata_caption_item** out)
{
    return run<created<zeldata_caption_item>>(out);
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
    return call<&i_ZelDataCaptionItem::isValid>(caption_item, "isValid", strict != 0);
}

std::uint32_t zeldata_caption_item_clear_text(zeldata_caption_item* caption_item)
{
    return call<&i_ZelDataCaptionItem::clearText>(caption_item, "clearText");
}

std::uint32_t zeldata_caption_item_set_text_for_language(zeldata_caption_item* caption_item,
                                                         const char* text, std::size_t text_length,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call<&ZelDataCaptionItem::setCharacters>(caption_item, "setTextForLanguage",
                                                    View{{text, text_length}},
                                                    View{{language_id, language_id_length}});
}

std::uint32_t zeldata_caption_item_set_start(zeldata_caption_item* caption_item, std::int64_t start)
{
    return call<&i_ZelDataCaptionItem::setStart>(caption_item, "setStart", start);
}

std::uint32_t zeldata_caption_item_set_end(zeldata_caption_item* caption_item, std::int64_t end)
{
    return call<&i_ZelDataCaptionItem::setEnd>(caption_item, "setEnd", end);
}

std::uint32_t zeldata_caption_item_set_duration(zeldata_caption_item* caption_item,
                                                std::int64_t duration)
{
    return call<&i_ZelDataCaptionItem::setDuration>(caption_item, "setDuration", duration);
}

std::uint32_t zeldata_caption_item_set_alignment(zeldata_caption_item* caption_item,
                                                 std::uint32_t alignment)
{
    return call<&i_ZelDataCaptionItem::setAlignment>(caption_item, "setAlignment",
                                                     static_cast<ZelAlignment_tags>(alignment));
}

std::uint32_t zeldata_caption_item_remove_text_for_language(zeldata_caption_item* caption_item,
                                                            const char* language_id,
                                                            std::size_t language_id_length)
{
    return call<&i_ZelDataCaptionItem::removeTextForLanguage>(
        caption_item, "removeTextForLanguage", Text{language_id, language_id_length});
}

std::uint32_t zeldata_caption_item_get_language_ids(const zeldata_caption_item* caption_item,
                                                    zeldata_strings* ids)
{
    return call<&i_ZelDataCaptionItem::getLanguageIDs>(caption_item, "getLanguageIDs", ids);
}

std::uint32_t zeldata_caption_item_get_text_for_language(const zeldata_caption_item* caption_item,
                                                         zeldata_string* text,
                                                         const char* language_id,
                                                         std::size_t language_id_length)
{
    return call<textFor<i_ZelDataCaptionItem>>(caption_item, "getTextForLanguage",
                                               Text{language_id, language_id_length}, text);
}

std::uint32_t zeldata_caption_item_get_start(const zeldata_caption_item* caption_item,
                                             std::int64_t* start)
{
    return get<long long, &i_ZelDataCaptionItem::getStart>(caption_item, "getStart", start);
}

std::uint32_t zeldata_caption_item_get_end(const zeldata_caption_item* caption_item,
                                           std::int64_t* end)
{
    return get<long long, &i_ZelDataCaptionItem::getEnd>(caption_item, "getEnd", end);
}

std::uint32_t zeldata_caption_item_get_duration(const zeldata_caption_item* caption_item,
                                                std::int64_t* duration)
{
    return get<long long, &i_ZelDataCaptionItem::getDuration>(caption_item, "getDuration",
                                                              duration);
}

std::uint32_t zeldata_caption_item_get_alignment(const zeldata_caption_item* caption_item,
                                                 std::uint32_t* alignment)
{
    return get<ZelAlignment_tags, &i_ZelDataCaptionItem::getAlignment>(caption_item, "getAlignment",
                                                                       alignment);
}

std::uint32_t zeldata_caption_item_copy_from(zeldata_caption_item* caption_item,
                                             const zeldata_caption_item* other)
{
    return call<copyFrom<i_ZelDataCaptionItem>>(caption_item, "copyFrom", other);
}

// Tables of contents.

std::uint32_t zeldata_toc_create(zeldata_toc** out)
{
    return run<created<zeldata_toc>>(out);
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
    return call<&i_ZelDataLanguage::clearLanguages>(toc, "clearLanguages");
}

std::uint32_t zeldata_toc_add_language(zeldata_toc* toc, const char* id, std::size_t id_length)
{
    return call<&i_ZelDataLanguage::addLanguage>(toc, "addLanguage", Text{id, id_length});
}

std::uint32_t zeldata_toc_remove_language(zeldata_toc* toc, const char* id, std::size_t id_length)
{
    return call<&i_ZelDataLanguage::removeLanguage>(toc, "removeLanguage", Text{id, id_length});
}

std::uint32_t zeldata_toc_set_ordered_language_ids(zeldata_toc* toc, const zeldata_strings* ids)
{
    return call<&i_ZelDataLanguage::setOrderedLanguageIDs>(toc, "setOrderedLanguageIDs", ids);
}

std::uint32_t zeldata_toc_get_ordered_language_ids(const zeldata_toc* toc, zeldata_strings* ids)
{
    return call<&i_ZelDataLanguage::getOrderedLanguageIDs>(toc, "getOrderedLanguageIDs", ids);
}

std::uint32_t zeldata_toc_get_language_count(const zeldata_toc* toc, std::uint64_t* count)
{
    return get<unsigned long, &i_ZelDataLanguage::getLanguageCount>(toc, "getLanguageCount", count);
}

std::uint32_t zeldata_toc_get_language_display_names(const zeldata_toc* toc, zeldata_strings* names)
{
    return call<&i_ZelDataLanguage::getLanguageDisplayNames>(toc, "getLanguageDisplayNames", names);
}

std::uint32_t zeldata_toc_get_language_native_display_names(const zeldata_toc* toc,
                                                            zeldata_strings* names)
{
    return call<&i_ZelDataLanguage::getLanguageNativeDisplayNames>(
        toc, "getLanguageNativeDisplayNames", names);
}

std::uint32_t zeldata_toc_does_language_exist(const zeldata_toc* toc, const char* id,
                                              std::size_t id_length, std::int32_t* exists)
{
    return isListed<&i_ZelDataLanguage::doesLanguageExist>(toc, "doesLanguageExist",
                                                           Text{id, id_length}, exists);
}

std::uint32_t zeldata_toc_copy_languages_from_header(zeldata_toc* toc, const zeldata_header* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(toc, "copyFrom", source);
}

std::uint32_t zeldata_toc_copy_languages_from_captions(zeldata_toc* toc,
                                                       const zeldata_captions* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(toc, "copyFrom", source);
}

std::uint32_t zeldata_toc_copy_languages_from_toc(zeldata_toc* toc, const zeldata_toc* source)
{
    return call<copyFrom<i_ZelDataLanguage>>(toc, "copyFrom", source);
}

std::uint32_t zeldata_toc_is_valid(const zeldata_toc* toc, std::int32_t deep)
{
    return call<&i_ZelDataToc::isValid>(toc, "isValid", deep != 0);
}

std::uint32_t zeldata_toc_make_consistent(zeldata_toc* toc)
{
    return call<&i_ZelDataToc::makeTocConsistent>(toc, "makeTocConsistent");
}

std::uint32_t zeldata_toc_set_frame_rate(zeldata_toc* toc, std::uint64_t rate)
{
    return call<&i_ZelDataToc::setFrameRate>(toc, "setFrameRate", Long{rate});
}

std::uint32_t zeldata_toc_get_frame_rate(const zeldata_toc* toc, std::uint64_t* rate)
{
    return get<unsigned long, &i_ZelDataToc::getFrameRate>(toc, "getFrameRate", rate);
}

std::uint32_t zeldata_toc_set_image_file(zeldata_toc* toc, const char* name,
                                         std::size_t name_length)
{
    return call<&i_ZelDataToc::setImageFile>(toc, "setImageFile", Text{name, name_length});
}

std::uint32_t zeldata_toc_get_image_file(const zeldata_toc* toc, zeldata_string* name)
{
    return call<&i_ZelDataToc::getImageFile>(toc, "getImageFile", name);
}

std::uint32_t zeldata_toc_clear_items(zeldata_toc* toc)
{
    return call<&i_ZelDataToc::clearTocItems>(toc, "clearTocItems");
}

std::uint32_t zeldata_toc_add_item(zeldata_toc* toc, const zeldata_toc_item* item)
{
    return call<&i_ZelDataToc::addTocItem>(toc, "addTocItem", item);
}

std::uint32_t zeldata_toc_create_item(const zeldata_toc* toc, zeldata_toc_item** out)
{
    return make(toc, "createTocItem", out);
}

std::uint32_t zeldata_toc_remove_item(zeldata_toc* toc, std::uint64_t index)
{
    return call<&i_ZelDataToc::removeTocItemAt>(toc, "removeTocItemAt", Long{index});
}

std::uint32_t zeldata_toc_remove_items_for_language(zeldata_toc* toc, const char* language_id,
                                                    std::size_t language_id_length)
{
    return call<&i_ZelDataToc::removeTocItemsForLanguage>(toc, "removeTocItemsForLanguage",
                                                          Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_get_item_count(const zeldata_toc* toc, std::uint64_t* count)
{
    return get<unsigned long, &i_ZelDataToc::getTocItemCount>(toc, "getTocItemCount", count);
}

std::uint32_t zeldata_toc_get_item(const zeldata_toc* toc, zeldata_toc_item** out,
                                   std::uint64_t index)
{
    return getItem<i_ZelDataTocItem, &i_ZelDataToc::getTocItemAt>(toc, "getTocItemAt", out, index);
}

std::uint32_t zeldata_toc_copy_from(zeldata_toc* toc, const zeldata_toc* source)
{
    return call<copyFrom<i_ZelDataToc>>(toc, "copyFrom", source);
}

std::uint32_t zeldata_toc_find_problems(const zeldata_toc* toc, zeldata_findings* findings)
{
    return call<findProblemsOf<i_ZelDataToc>>(toc, "findProblems", findings);
}

// Entries of a table of contents.

std::uint32_t zeldata_toc_item_create(zeldata_toc_item** out)
{
    return run<created<zeldata_toc_item>>(out);
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
    return call<&i_ZelDataTocItem::isValid>(toc_item, "isValid", deep != 0);
}

std::uint32_t zeldata_toc_item_clear_text(zeldata_toc_item* toc_item)
{
    return call<&i_ZelDataTocItem::clearText>(toc_item, "clearText");
}

std::uint32_t zeldata_toc_item_set_text_for_language(zeldata_toc_item* toc_item, const char* text,
                                                     std::size_t text_length,
                                                     const char* language_id,
                                                     std::size_t language_id_length)
{
    return call<&ZelDataTocItem::setCharacters>(toc_item, "setTextForLanguage",
                                                View{{text, text_length}},
                                                View{{language_id, language_id_length}});
}

std::uint32_t zeldata_toc_item_set_start(zeldata_toc_item* toc_item, std::int64_t start)
{
    return call<&i_ZelDataTocItem::setStart>(toc_item, "setStart", start);
}

std::uint32_t zeldata_toc_item_set_image_file(zeldata_toc_item* toc_item, const char* name,
                                              std::size_t name_length)
{
    return call<&i_ZelDataTocItem::setImageFile>(toc_item, "setImageFile", Text{name, name_length});
}

std::uint32_t zeldata_toc_item_set_image_index(zeldata_toc_item* toc_item, std::uint64_t index)
{
    return call<&i_ZelDataTocItem::setImageIndex>(toc_item, "setImageIndex", Long{index});
}

std::uint32_t zeldata_toc_item_set_image_offset(zeldata_toc_item* toc_item, std::uint64_t offset)
{
    return call<&i_ZelDataTocItem::setImageOffset>(toc_item, "setImageOffset", offset);
}

std::uint32_t zeldata_toc_item_remove_text_for_language(zeldata_toc_item* toc_item,
                                                        const char* language_id,
                                                        std::size_t language_id_length)
{
    return call<&i_ZelDataTocItem::removeTextForLanguage>(toc_item, "removeTextForLanguage",
                                                          Text{language_id, language_id_length});
}

std::uint32_t zeldata_toc_item_get_language_ids(const zeldata_toc_item* toc_item,
                                                zeldata_strings* ids)
{
    return call<&i_ZelDataTocItem::getLanguageIDs>(toc_item, "getLanguageIDs", ids);
}

std::uint32_t zeldata_toc_item_get_text_for_language(const zeldata_toc_item* toc_item,
                                                     zeldata_string* text, const char* language_id,
                                                     std::size_t language_id_length)
{
    return call<textFor<i_ZelDataTocItem>>(toc_item, "getTextForLanguage",
                                           Text{language_id, language_id_length}, text);
}

std::uint32_t zeldata_toc_item_get_start(const zeldata_toc_item* toc_item, std::int64_t* start)
{
    return get<long long, &i_ZelDataTocItem::getStart>(toc_item, "getStart", start);
}

std::uint32_t zeldata_toc_item_get_image_file(const zeldata_toc_item* toc_item,
                                              zeldata_string* name)
{
    return call<&i_ZelDataTocItem::getImageFile>(toc_item, "getImageFile", name);
}

std::uint32_t zeldata_toc_item_get_image_index(const zeldata_toc_item* toc_item,
                                               std::uint64_t* index)
{
    return get<unsigned long, &i_ZelDataTocItem::getImageIndex>(toc_item, "getImageIndex", index);
}

std::uint32_t zeldata_toc_item_get_image_offset(const zeldata_toc_item* toc_item,
                                                std::uint64_t* offset)
{
    return get<unsigned long long, &i_ZelDataTocItem::getImageOffset>(toc_item, "getImageOffset",
                                                                      offset);
}

std::uint32_t zeldata_toc_item_copy_from(zeldata_toc_item* toc_item, const zeldata_toc_item* source)
{
    return call<copyFrom<i_ZelDataTocItem>>(toc_item, "copyFrom", source);
}

// Screen text.

std::uint32_t zeldata_screen_text_create(zeldata_screen_text** out)
{
    return run<created<zeldata_screen_text>>(out);
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
    return call<&i_ZelDataScreenText::isValid>(screen_text, "isValid", deep != 0);
}

std::uint32_t zeldata_screen_text_make_consistent(zeldata_screen_text* screen_text)
{
    return call<&i_ZelDataScreenText::makeScreenTextConsistent>(screen_text,
                                                                "makeScreenTextConsistent");
}

std::uint32_t zeldata_screen_text_set_frame_rate(zeldata_screen_text* screen_text,
                                                 std::uint64_t rate)
{
    return call<&i_ZelDataScreenText::setFrameRate>(screen_text, "setFrameRate", Long{rate});
}

std::uint32_t zeldata_screen_text_get_frame_rate(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* rate)
{
    return get<unsigned long, &i_ZelDataScreenText::getFrameRate>(screen_text, "getFrameRate",
                                                                  rate);
}

std::uint32_t zeldata_screen_text_clear_items(zeldata_screen_text* screen_text)
{
    return call<&i_ZelDataScreenText::clearScreenTextItems>(screen_text, "clearScreenTextItems");
}

std::uint32_t zeldata_screen_text_add_item(zeldata_screen_text* screen_text,
                                           const zeldata_screen_text_item* item)
{
    return call<&i_ZelDataScreenText::addScreenTextItem>(screen_text, "addScreenTextItem", item);
}

std::uint32_t zeldata_screen_text_create_item(const zeldata_screen_text* screen_text,
                                              zeldata_screen_text_item** out)
{
    return make(screen_text, "createScreenTextItem", out);
}

std::uint32_t zeldata_screen_text_remove_item(zeldata_screen_text* screen_text, std::uint64_t index)
{
    return call<&i_ZelDataScreenText::removeScreenTextItemAt>(screen_text, "removeScreenTextItemAt",
                                                              Long{index});
}

std::uint32_t zeldata_screen_text_get_item_count(const zeldata_screen_text* screen_text,
                                                 std::uint64_t* count)
{
    return get<unsigned long, &i_ZelDataScreenText::getScreenTextItemCount>(
        screen_text, "getScreenTextItemCount", count);
}

std::uint32_t zeldata_screen_text_get_item(const zeldata_screen_text* screen_text,
                                           zeldata_screen_text_item** out, std::uint64_t index)
{
    return getItem<i_ZelDataScreenTextItem, &i_ZelDataScreenText::getScreenTextItemAt>(
        screen_text, "getScreenTextItemAt", out, index);
}

std::uint32_t zeldata_screen_text_copy_from(zeldata_screen_text* screen_text,
                                            const zeldata_screen_text* source)
{
    return call<copyFrom<i_ZelDataScreenText>>(screen_text, "copyFrom", source);
}

std::uint32_t zeldata_screen_text_find_problems(const zeldata_screen_text* screen_text,
                                                zeldata_findings* findings)
{
    return call<findProblemsOf<i_ZelDataScreenText>>(screen_text, "findProblems", findings);
}

// Screen text items.

std::uint32_t zeldata_screen_text_item_create(zeldata_screen_text_item** out)
{
    return run<created<zeldata_screen_text_item>>(out);
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
    return call<&i_ZelDataScreenTextItem::isValid>(screen_text_item, "isValid", deep != 0);
}

std::uint32_t zeldata_screen_text_item_clear_text(zeldata_screen_text_item* screen_text_item)
{
    return call<&i_ZelDataScreenTextItem::clearText>(screen_text_item, "clearText");
}

std::uint32_t zeldata_screen_text_item_set_text(zeldata_screen_text_item* screen_text_item,
                                                const char* text, std::size_t text_length)
{
    return call<&ZelDataScreenTextItem::setCharacters>(screen_text_item, "setText",
                                                       View{{text, text_length}});
}

std::uint32_t zeldata_screen_text_item_set_start(zeldata_screen_text_item* screen_text_item,
                                                 std::int64_t start)
{
    return call<&i_ZelDataScreenTextItem::setStart>(screen_text_item, "setStart", start);
}

std::uint32_t zeldata_screen_text_item_set_end(zeldata_screen_text_item* screen_text_item,
                                               std::int64_t end)
{
    return call<&i_ZelDataScreenTextItem::setEnd>(screen_text_item, "setEnd", end);
}

std::uint32_t zeldata_screen_text_item_set_duration(zeldata_screen_text_item* screen_text_item,
                                                    std::int64_t duration)
{
    return call<&i_ZelDataScreenTextItem::setDuration>(screen_text_item, "setDuration", duration);
}

std::uint32_t zeldata_screen_text_item_set_image_file(zeldata_screen_text_item* screen_text_item,
                                                      const char* name, std::size_t name_length)
{
    return call<&i_ZelDataScreenTextItem::setImageFile>(screen_text_item, "setImageFile",
                                                        Text{name, name_length});
}

std::uint32_t zeldata_screen_text_item_set_image_index(zeldata_screen_text_item* screen_text_item,
                                                       std::uint64_t index)
{
    return call<&i_ZelDataScreenTextItem::setImageIndex>(screen_text_item, "setImageIndex",
                                                         Long{index});
}

std::uint32_t zeldata_screen_text_item_set_image_offset(zeldata_screen_text_item* screen_text_item,
                                                        std::uint64_t offset)
{
    return call<&i_ZelDataScreenTextItem::setImageOffset>(screen_text_item, "setImageOffset",
                                                          offset);
}

std::uint32_t zeldata_screen_text_item_set_group_id(zeldata_screen_text_item* screen_text_item,
                                                    std::uint64_t id)
{
    return call<&i_ZelDataScreenTextItem::setGroupId>(screen_text_item, "setGroupId", Long{id});
}

std::uint32_t zeldata_screen_text_item_get_text(const zeldata_screen_text_item* screen_text_item,
                                                zeldata_string* text)
{
    return call<&i_ZelDataScreenTextItem::getText>(screen_text_item, "getText", text);
}

std::uint32_t zeldata_screen_text_item_get_start(const zeldata_screen_text_item* screen_text_item,
                                                 std::int64_t* start)
{
    return get<long long, &i_ZelDataScreenTextItem::getStart>(screen_text_item, "getStart", start);
}

std::uint32_t zeldata_screen_text_item_get_end(const zeldata_screen_text_item* screen_text_item,
                                               std::int64_t* end)
{
    return get<long long, &i_ZelDataScreenTextItem::getEnd>(screen_text_item, "getEnd", end);
}

std::uint32_t
zeldata_screen_text_item_get_duration(const zeldata_screen_text_item* screen_text_item,
                                      std::int64_t* duration)
{
    return get<long long, &i_ZelDataScreenTextItem::getDuration>(screen_text_item, "getDuration",
                                                                 duration);
}

std::uint32_t
zeldata_screen_text_item_get_image_file(const zeldata_screen_text_item* screen_text_item,
                                        zeldata_string* name)
{
    return call<&i_ZelDataScreenTextItem::getImageFile>(screen_text_item, "getImageFile", name);
}

std::uint32_t
zeldata_screen_text_item_get_image_index(const zeldata_screen_text_item* screen_text_item,
                                         std::uint64_t* index)
{
    return get<unsigned long, &i_ZelDataScreenTextItem::getImageIndex>(screen_text_item,
                                                                       "getImageIndex", index);
}

std::uint32_t
zeldata_screen_text_item_get_image_offset(const zeldata_screen_text_item* screen_text_item,
                                          std::uint64_t* offset)
{
    return get<unsigned long long, &i_ZelDataScreenTextItem::getImageOffset>(
        screen_text_item, "getImageOffset", offset);
}

std::uint32_t
zeldata_screen_text_item_get_group_id(const zeldata_screen_text_item* screen_text_item,
                                      std::uint64_t* id)
{
    return get<unsigned long, &i_ZelDataScreenTextItem::getGroupId>(screen_text_item, "getGroupId",
                                                                    id);
}

std::uint32_t zeldata_screen_text_item_copy_from(zeldata_screen_text_item* screen_text_item,
                                                 const zeldata_screen_text_item* source)
{
    return call<copyFrom<i_ZelDataScreenTextItem>>(screen_text_item, "copyFrom", source);
}

// Header formatters.

std::uint32_t zeldata_header_formatter_create(zeldata_header_formatter** out, std::uint32_t format)
{
    return run<createdFormatter<zeldata_header_formatter>>(
        out, static_cast<ZelDataFormatType_tags>(format));
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
    return call<&i_ZelDataFormatterBase::writeString>(
        header_formatter, "writeString", out, static_cast<ZelDataFormatType_tags>(format), flag);
}

std::uint32_t zeldata_header_formatter_set_header(zeldata_header_formatter* header_formatter,
                                                  const zeldata_header* header)
{
    return call<&i_ZelDataHeaderFormatter::setHeader>(header_formatter, "setHeader", header);
}

// Caption formatters.

std::uint32_t zeldata_caption_formatter_create(zeldata_caption_formatter** out,
                                               std::uint32_t format)
{
    return run<createdFormatter<zeldata_caption_formatter>>(
        out, static_cast<ZelDataFormatType_tags>(format));
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
    return call<&i_ZelDataFormatterBase::writeString>(
        caption_formatter, "writeString", out, static_cast<ZelDataFormatType_tags>(format), flag);
}

std::uint32_t zeldata_caption_formatter_set_captions(zeldata_caption_formatter* caption_formatter,
                                                     const zeldata_captions* captions)
{
    return call<&i_ZelDataCaptionFormatter::setCaptions>(caption_formatter, "setCaptions",
                                                         captions);
}

// Formatters of tables of contents.

std::uint32_t zeldata_toc_formatter_create(zeldata_toc_formatter** out, std::uint32_t format)
{
    return run<createdFormatter<zeldata_toc_formatter>>(
        out, static_cast<ZelDataFormatType_tags>(format));
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
    return call<&i_ZelDataFormatterBase::writeString>(
        toc_formatter, "writeString", out, static_cast<ZelDataFormatType_tags>(format), flag);
}

std::uint32_t zeldata_toc_formatter_set_toc(zeldata_toc_formatter* toc_formatter,
                                            const zeldata_toc* toc)
{
    return call<&i_ZelDataTocFormatter::setToc>(toc_formatter, "setToc", toc);
}

// Screen text formatters.

std::uint32_t zeldata_screen_text_formatter_create(zeldata_screen_text_formatter** out,
                                                   std::uint32_t format)
{
    return run<createdFormatter<zeldata_screen_text_formatter>>(
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
    return call<&i_ZelDataFormatterBase::writeString>(screen_text_formatter, "writeString", out,
                                                      static_cast<ZelDataFormatType_tags>(format),
                                                      flag);
}

std::uint32_t
zeldata_screen_text_formatter_set_screen_text(zeldata_screen_text_formatter* screen_text_formatter,
                                              const zeldata_screen_text* screen_text)
{
    return call<&i_ZelDataScreenTextFormatter::setScreenText>(screen_text_formatter,
                                                              "setScreenText", screen_text);
}

// Findings.

std::uint32_t zeldata_findings_create(zeldata_findings** out)
{
    return run<created<zeldata_findings>>(out);
}

void zeldata_findings_destroy(zeldata_findings* findings)
{
    delete findings;
}

std::uint32_t zeldata_findings_get_count(const zeldata_findings* findings, std::uint64_t* count)
{
    return call<countOf<Findings>>(findings, "getCount", count);
}

std::uint32_t zeldata_findings_get_kind(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* kind)
{
    return getElement<&ZelDataFinding::kind>(findings, "kind", index, kind);
}

std::uint32_t zeldata_findings_get_subject(const zeldata_findings* findings, std::uint64_t index,
                                           std::uint32_t* subject)
{
    return getElement<&ZelDataFinding::subject>(findings, "subject", index, subject);
}

std::uint32_t zeldata_findings_get_item_index(const zeldata_findings* findings, std::uint64_t index,
                                              std::uint64_t* item)
{
    return getElement<indexOf<&ZelDataFinding::item>>(findings, "item", index, item);
}

std::uint32_t zeldata_findings_get_start(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* start)
{
    return getElement<&ZelDataFinding::start>(findings, "start", index, start);
}

std::uint32_t zeldata_findings_get_language(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* language)
{
    return getElement<&ZelDataFinding::language>(findings, "language", index, language);
}

std::uint32_t zeldata_findings_get_property(const zeldata_findings* findings, std::uint64_t index,
                                            zeldata_string* property)
{
    return getElement<&ZelDataFinding::property>(findings, "property", index, property);
}

std::uint32_t zeldata_findings_get_component(const zeldata_findings* findings, std::uint64_t index,
                                             float* component)
{
    return getElement<&ZelDataFinding::component>(findings, "component", index, component);
}

std::uint32_t zeldata_findings_get_value(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* value)
{
    return getElement<&ZelDataFinding::value>(findings, "value", index, value);
}

std::uint32_t zeldata_findings_get_limit(const zeldata_findings* findings, std::uint64_t index,
                                         std::int64_t* limit)
{
    return getElement<&ZelDataFinding::limit>(findings, "limit", index, limit);
}

std::uint32_t zeldata_findings_get_later_item_index(const zeldata_findings* findings,
                                                    std::uint64_t index, std::uint64_t* later_item)
{
    return getElement<indexOf<&ZelDataFinding::laterItem>>(findings, "laterItem", index,
                                                           later_item);
}

std::uint32_t zeldata_findings_get_later_start(const zeldata_findings* findings,
                                               std::uint64_t index, std::int64_t* later_start)
{
    return getElement<&ZelDataFinding::laterStart>(findings, "laterStart", index, later_start);
}

std::uint32_t zeldata_findings_get_severity(const zeldata_findings* findings, std::uint64_t index,
                                            std::uint32_t* severity)
{
    return getElement<severityOf>(findings, "severityOf", index, severity);
}

std::uint32_t zeldata_findings_get_code(const zeldata_findings* findings, std::uint64_t index,
                                        std::uint32_t* code)
{
    return getElement<codeOf>(findings, "codeOf", index, code);
}

std::uint32_t zeldata_findings_describe(const zeldata_findings* findings, std::uint64_t index,
                                        zeldata_string* text)
{
    return getElement<description>(findings, "describe", index, text);
}

const char* zeldata_finding_to_string(std::uint32_t kind)
{
    return toString(static_cast<ZelDataFinding_tags>(kind));
}

// Language catalogue.

std::uint32_t zeldata_english_name_for_language(const char* id, std::size_t id_length,
                                                zeldata_string* name)
{
    return run<nameOf<&ZelDataUtilities::englishNameForLanguage>>(Text{id, id_length}, name);
}

std::uint32_t zeldata_native_name_for_language(const char* id, std::size_t id_length,
                                               zeldata_string* name)
{
    return run<nameOf<&ZelDataUtilities::nativeNameForLanguage>>(Text{id, id_length}, name);
}

std::uint32_t zeldata_is_valid_language(const char* id, std::size_t id_length)
{
    return run<checkLanguage>(Text{id, id_length});
}

// Text helpers.

std::uint32_t zeldata_verify_utf8_format(const char* text, std::size_t text_length,
                                         std::int32_t bmp_only)
{
    return run<checkUtf8>(Text{text, text_length}, bmp_only != 0);
}

std::uint32_t zeldata_count_lines_in_utf8(const char* text, std::size_t text_length,
                                          std::uint64_t* count)
{
    return run<stored<&ZelDataUtilities::countLinesInUTF8, const std::string&, std::uint64_t>>(
        Text{text, text_length}, count);
}

std::uint32_t zeldata_strip_unsupported_characters(const char* text, std::size_t text_length,
                                                   zeldata_string* result)
{
    return run<stored<&ZelDataUtilities::stripUnsupportedCharacters, const std::string&>>(
        Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_to_text(const char* text, std::size_t text_length,
                                        zeldata_string* result)
{
    return run<stored<&ZelDataUtilities::htmlTagsToText, const std::string&>>(
        Text{text, text_length}, result);
}

std::uint32_t zeldata_html_tags_from_text(const char* text, std::size_t text_length,
                                          zeldata_string* result)
{
    return run<stored<&ZelDataUtilities::htmlTagsFromText, const std::string&>>(
        Text{text, text_length}, result);
}

std::uint32_t zeldata_get_vertical_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return run<stored<&ZelDataUtilities::getVerticalAlignment, ZelAlignment_tags>>(
        static_cast<ZelAlignment_tags>(alignment), result);
}

std::uint32_t zeldata_get_horizontal_alignment(std::uint32_t alignment, zeldata_string* result)
{
    return run<stored<&ZelDataUtilities::getHorizontalAlignment, ZelAlignment_tags>>(
        static_cast<ZelAlignment_tags>(alignment), result);
}

// Texts of values.

std::uint32_t zeldata_get_value_string_float(float value, zeldata_string* result)
{
    return run<
        stored<static_cast<std::string (*)(float)>(&ZelDataUtilities::getValueString), float>>(
        value, result);
}

std::uint32_t zeldata_get_value_string_uint64(std::uint64_t value, zeldata_string* result)
{
    return run<
        stored<static_cast<std::string (*)(unsigned long long)>(&ZelDataUtilities::getValueString),
               unsigned long long>>(value, result);
}

std::uint32_t zeldata_get_rate_string(std::uint64_t rate, zeldata_string* result)
{
    return run<stored<&ZelDataUtilities::getRateString, unsigned long>>(Long{rate}, result);
}

std::uint32_t zeldata_get_version_string(std::uint64_t version, zeldata_string* result)
{
    return run<stored<&ZelDataUtilities::getVersionString, unsigned long>>(Long{version}, result);
}

std::uint32_t zeldata_get_date_string(std::int64_t seconds, zeldata_string* date)
{
    return run<stored<dateOf, long>>(Number<long, std::int64_t>{seconds}, date);
}

std::uint32_t zeldata_get_date_string_now(zeldata_string* date)
{
    return run<dateOfNow>(date);
}

std::uint32_t zeldata_get_value_string_int64(std::int64_t value, zeldata_string* result)
{
    return run<stored<static_cast<std::string (*)(long)>(&getValueString), long>>(
        Number<long, std::int64_t>{value}, result);
}
