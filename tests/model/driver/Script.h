/// @file
/// The words of one line of a script, and the words of the answer.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_SCRIPT_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_SCRIPT_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <cstdint>
#include <cstring>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace model {

/// The script names an object that does not exist or is of another kind.
class MissingObject : public std::exception {};

/// The words of a line, read one after the other. Throws if the line lacks one.
class Script {
public:
    explicit Script(const std::string& line) : words_(line) {}

    std::string word();

    /// A value of type @p T. Texts are "s" and two digits a byte, lists a count and the texts,
    /// floats their bits; everything else is a decimal number.
    template <class T>
    T read()
    {
        if constexpr (std::is_same_v<T, std::string>) {
            return text();
        } else if constexpr (std::is_same_v<T, std::vector<std::string>>) {
            return texts();
        } else if constexpr (std::is_floating_point_v<T>) {
            return real<T>();
        } else if constexpr (std::is_enum_v<T>) {
            return static_cast<T>(number<std::underlying_type_t<T>>());
        } else {
            return number<T>();
        }
    }

private:
    template <class T>
    T number()
    {
        T value{};
        if (!(words_ >> value)) throw std::runtime_error("a number is missing");
        return value;
    }

    template <class T>
    T real()
    {
        using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
        const auto bits = number<Bits>();
        T value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

    std::string text();
    std::vector<std::string> texts();

    std::istringstream words_;
};

/// How values appear in an answer.
std::string shown(const std::string& value);
std::string shown(const std::vector<std::string>& values);
std::string shown(float value);
inline std::string shown(bool value)
{
    return value ? "1" : "0";
}
template <class T>
std::string shown(T value)
{
    if constexpr (std::is_enum_v<T>) {
        return std::to_string(static_cast<std::underlying_type_t<T>>(value));
    } else {
        return std::to_string(value);
    }
}

/// Eight hexadecimal digits.
std::string hexadecimal(unsigned long value);

} // namespace model

#endif
