#include "Script.h"

#include <array>
#include <cstdio>

namespace model {

std::string Script::word()
{
    std::string word;
    if (!(words_ >> word)) throw std::runtime_error("a word is missing");
    return word;
}

std::string Script::text()
{
    const std::string digits = word().substr(1);
    std::string text;
    for (std::size_t at = 0; at + 1 < digits.size(); at += 2) {
        text += static_cast<char>(std::stoi(digits.substr(at, 2), nullptr, 16));
    }
    return text;
}

std::vector<std::string> Script::texts()
{
    std::vector<std::string> texts(number<std::size_t>());
    for (std::string& one : texts)
        one = text();
    return texts;
}

std::string shown(const std::string& value)
{
    static constexpr std::array<char, 17> digits{"0123456789abcdef"};
    std::string out = "s";
    for (const char character : value) {
        const auto byte = static_cast<unsigned char>(character);
        out += digits[byte >> 4U];
        out += digits[byte & 0xFU];
    }
    return out;
}

std::string shown(const std::vector<std::string>& values)
{
    std::string out = "[" + std::to_string(values.size());
    for (const std::string& value : values)
        out += " " + shown(value);
    return out + "]";
}

std::string shown(float value)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return "f" + hexadecimal(bits);
}

std::string hexadecimal(unsigned long value)
{
    std::array<char, 20> text{};
    std::snprintf(text.data(), text.size(), "%08lx", value);
    return text.data();
}

} // namespace model
