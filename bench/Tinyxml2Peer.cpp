/// @file
/// tinyxml2: its printer, compact.

#include "bench/Description.h"
#include "bench/Peers.h"

#include <tinyxml2.h>

#include <type_traits>

namespace ZelInterchangeData::bench {

namespace {

class Printer {
public:
    Printer() : printer_(nullptr, true) {}

    void open(const char* name) { printer_.OpenElement(name, true); }
    void close() { printer_.CloseElement(true); }
    void text(const char* value) { printer_.PushText(value); }
    void attribute(const char* name, const char* value) { printer_.PushAttribute(name, value); }

    /// Bypasses the printer's own function for numbers, which uses printf and takes longer.
    template <class Number, std::enable_if_t<std::is_integral_v<Number>, int> = 0>
    void attribute(const char* name, Number value)
    {
        printer_.PushAttribute(name, Digits(value).text());
    }

    const tinyxml2::XMLPrinter& printed() const { return printer_; }

private:
    tinyxml2::XMLPrinter printer_;
};

} // namespace

std::size_t writeWithTinyxml2(const Document& document, std::string* copy)
{
    Printer printer;
    Description(document, printer).describe();
    if (copy != nullptr) *copy = printer.printed().CStr();
    // The size includes the terminating zero.
    return static_cast<std::size_t>(printer.printed().CStrSize()) - 1;
}

} // namespace ZelInterchangeData::bench
