/// @file
/// A call that failed, and the exception that reports it.

#ifndef ZELINTERCHANGEDATA_ZELDATACALL_H
#define ZELINTERCHANGEDATA_ZELDATACALL_H

#include "ZelInterchangeData/ZelAlignment_tags.h"
#include "ZelInterchangeData/ZelDataCheck.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFormatType_tags.h"
#include "ZelInterchangeData/ZelDataOneLine.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"

#include <cstddef>
#include <initializer_list>
#include <new>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

// With libstdc++ on glibc, a thread that ends is unwound as if an exception were thrown.
#ifdef __GLIBCXX__
#include <cxxabi.h>
#endif

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// What the messages of exceptions are made of.
namespace ZelDataMessages {

/// How a message shows an argument of an operation. It does not show an object.
inline std::string shown(const i_ZelDataResult*)
{
    return {};
}
/// "true" or "false".
inline std::string shown(bool value)
{
    return value ? "true" : "false";
}
/// Plain decimal. Deliberate: not std::to_string; with it, a plug-in could not be unloaded.
inline std::string shown(unsigned long long value)
{
    return ZelDataUtilities::getValueString(value);
}
/// Plain decimal.
inline std::string shown(unsigned long value)
{
    return ZelDataUtilities::getValueString(value);
}
/// Plain decimal.
inline std::string shown(long long value)
{
    const auto bits = static_cast<unsigned long long>(value);
    return value < 0 ? "-" + shown(0 - bits) : shown(bits);
}
/// Six significant digits.
inline std::string shown(float value)
{
    return ZelDataUtilities::getValueString(value);
}
/// Plain decimal.
inline std::string shown(ZelAlignment_tags value)
{
    return shown(static_cast<unsigned long long>(value));
}
/// Nothing for the format that the library writes.
inline std::string shown(ZelDataFormatType_tags value)
{
    if (value == ZelDataFormat_Xmp) return {};
    return "format " + shown(static_cast<unsigned long long>(value));
}

/// How many bytes of @p text a message shows. It cuts a long text; if that is UTF-8, between two
/// characters.
inline std::size_t shownLength(std::string_view text, bool utf8)
{
    constexpr std::size_t longest = 40;
    if (text.size() <= longest) return text.size();
    std::size_t length = longest;
    while (utf8 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        --length;
    return length;
}

/// @p text on one line and in quotation marks. A text that was cut ends with three dots.
inline std::string shown(std::string_view text)
{
    const bool utf8 = isUtf8(std::string(text));
    const std::size_t length = shownLength(text, utf8);
    const std::string line = onOneLine(text.substr(0, length), utf8);
    return "\"" + line + (length < text.size() ? "\xE2\x80\xA6\"" : "\"");
}

/// The first few of @p texts, with commas.
inline std::string listed(const std::vector<std::string>& texts)
{
    constexpr std::size_t most = 5;
    std::string result;
    for (std::size_t i = 0; i < texts.size() && i < most; ++i)
        result.append(i == 0 ? "" : ", ").append(shown(texts[i]));
    return result.append(texts.size() > most ? ", \xE2\x80\xA6" : "");
}

/// A list of texts in braces.
inline std::string shown(const std::vector<std::string>* texts)
{
    return "{" + listed(*texts) + "}";
}

/// What @p make returns; empty if it throws, for example because memory ran out.
template <class Make>
std::string orNothing(Make&& make)
{
    try {
        return std::forward<Make>(make)();
#ifdef __GLIBCXX__
    } catch (const abi::__forced_unwind&) {
        throw; // otherwise the C library ends the process
#endif
    } catch (...) {
        return {};
    }
}

/// What @p ask, which calls getters of @p object, returns. The object keeps its last error; if it
/// does not let it be set, returns nothing and calls no getter.
template <class Ask>
std::string asking(const i_ZelDataResult& object, Ask&& ask)
{
    const ZelDataResult_tags kept = object.getLastError();
    const ZelDataResult_tags other = kept == ZelData_Ok ? ZelData_InternalError : ZelData_Ok;
    object.setLastError(other);
    const bool settable = object.getLastError() == other;
    object.setLastError(kept);
    if (!settable || object.getLastError() != kept) return {};
    try {
        std::string answer = std::forward<Ask>(ask)();
        object.setLastError(kept);
        return answer;
    } catch (...) {
        object.setLastError(kept);
        throw;
    }
}

} // namespace ZelDataMessages

/// An argument of a call. Refers to texts and objects of the caller.
class ZelDataArgument {
    using Texts = std::vector<std::string>;

public:
    /// @name Kinds of arguments
    /// @{

    /// A flag.
    explicit ZelDataArgument(bool value) noexcept : value_(value) {}
    /// A time.
    explicit ZelDataArgument(long long value) noexcept : value_(value) {}
    /// A number.
    explicit ZelDataArgument(unsigned long value) noexcept
        : value_(static_cast<unsigned long long>(value))
    {
    }
    /// A number.
    explicit ZelDataArgument(unsigned long long value) noexcept : value_(value) {}
    /// A component of a colour.
    explicit ZelDataArgument(float value) noexcept : value_(value) {}
    /// An alignment.
    explicit ZelDataArgument(ZelAlignment_tags value) noexcept : value_(value) {}
    /// A format.
    explicit ZelDataArgument(ZelDataFormatType_tags value) noexcept : value_(value) {}
    /// A text.
    explicit ZelDataArgument(std::string_view value) noexcept : value_(value) {}
    /// Texts.
    explicit ZelDataArgument(const Texts& value) noexcept : value_(&value) {}
    /// An object.
    explicit ZelDataArgument(const i_ZelDataResult& value) noexcept : value_(&value) {}
    /// A header.
    explicit ZelDataArgument(const i_ZelDataHeader& value) noexcept : value_(&value) {}
    /// A caption.
    explicit ZelDataArgument(const i_ZelDataCaptionItem& value) noexcept : value_(&value) {}
    /// @}

    /// What a message shows; may be empty.
    std::string shown() const
    {
        return std::visit([](auto value) { return ZelDataMessages::shown(value); }, value_);
    }

    /// The argument if it is a @p Value, otherwise null. A text is a `std::string_view`, an object
    /// a pointer.
    template <class Value>
    const Value* as() const noexcept
    {
        return std::get_if<Value>(&value_);
    }

    /// Whether the argument is @p object.
    // NOLINTNEXTLINE(bugprone-exception-escape): there is always a value.
    bool is(const i_ZelDataResult& object) const noexcept
    {
        const auto isObject = [&object](auto value) {
            if constexpr (std::is_convertible_v<decltype(value), const i_ZelDataResult*>)
                return static_cast<const i_ZelDataResult*>(value) == &object;
            else
                return false;
        };
        return std::visit(isObject, value_);
    }

private:
    std::variant<bool, long long, unsigned long long, float, ZelAlignment_tags,
                 ZelDataFormatType_tags, std::string_view, const Texts*, const i_ZelDataResult*,
                 const i_ZelDataHeader*, const i_ZelDataCaptionItem*>
        value_;
};

/// A call that failed.
struct ZelDataCall final {
    /// The name of the operation.
    std::string_view operation;
    /// The code that it returned.
    ZelDataResult_tags code;
    /// The arguments, as far as a message uses them.
    std::initializer_list<ZelDataArgument> arguments;

    /// Whether the operation is @p name and returned @p returned.
    bool is(std::string_view name, ZelDataResult_tags returned) const noexcept
    {
        return operation == name && code == returned;
    }
    /// The argument at @p index. Throws `std::bad_variant_access` if it is not a @p Value.
    template <class Value>
    const Value& get(std::size_t index = 0) const
    {
        const auto* value = arguments.begin()[index].template as<Value>();
        if (value == nullptr) throw std::bad_variant_access();
        return *value;
    }
    /// The text at @p index.
    std::string text(std::size_t index = 0) const
    {
        return std::string(get<std::string_view>(index));
    }

    /// The arguments that can be shown, in parentheses; empty if there are none.
    std::string shownArguments() const
    {
        std::string result;
        for (const ZelDataArgument& argument : arguments) {
            const std::string shown = argument.shown();
            if (!shown.empty()) result.append(result.empty() ? "(" : ", ").append(shown);
        }
        return result.empty() ? result : result.append(")");
    }
};

/// Throws a ZelDataError for @p call. @p reason returns what is known about the failure.
///
/// If memory runs out, the message is shorter; if there is none for the shortest, throws
/// `std::bad_alloc`.
template <class Reason>
[[noreturn]] void throwZelDataError(const ZelDataCall& call, Reason&& reason)
{
    using ZelDataMessages::orNothing;
    const std::string arguments = orNothing([&] { return call.shownArguments(); });
    const std::string known = orNothing(std::forward<Reason>(reason));
    try {
        throw ZelDataError(call.code, call.operation, arguments, known);
    } catch (const std::bad_alloc&) {
        throw ZelDataError(call.code, call.operation);
    }
}

} // namespace ZelInterchangeData

#endif
