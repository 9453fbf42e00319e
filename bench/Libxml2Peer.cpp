/// @file
/// libxml2: its text writer on a buffer in memory.

#include "bench/Description.h"
#include "bench/Peers.h"

#include <libxml/xmlwriter.h>

#include <memory>
#include <new>
#include <type_traits>

namespace ZelInterchangeData::bench {

namespace {

const xmlChar* bytes(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

class TextWriter {
public:
    explicit TextWriter(std::size_t room)
        : buffer_(xmlBufferCreateSize(room), &xmlBufferFree),
          writer_(xmlNewTextWriterMemory(buffer_.get(), 0), &xmlFreeTextWriter)
    {
        if (!buffer_ || !writer_) throw std::bad_alloc();
        // If the buffer is too small, doubling is faster than growing in small steps.
        xmlBufferSetAllocationScheme(buffer_.get(), XML_BUFFER_ALLOC_DOUBLEIT);
    }

    void open(const char* name) { xmlTextWriterStartElement(writer_.get(), bytes(name)); }
    void close() { xmlTextWriterEndElement(writer_.get()); }
    void text(const char* value) { xmlTextWriterWriteString(writer_.get(), bytes(value)); }

    void attribute(const char* name, const char* value)
    {
        xmlTextWriterWriteAttribute(writer_.get(), bytes(name), bytes(value));
    }

    template <class Number, std::enable_if_t<std::is_integral_v<Number>, int> = 0>
    void attribute(const char* name, Number value)
    {
        attribute(name, Digits(value).text());
    }

    const xmlBuffer& finish()
    {
        xmlTextWriterFlush(writer_.get());
        return *buffer_;
    }

private:
    std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer_;
    std::unique_ptr<xmlTextWriter, decltype(&xmlFreeTextWriter)> writer_;
};

} // namespace

std::size_t writeWithLibxml2(const Document& document, std::string* copy)
{
    TextWriter writer(roomFor(document));
    Description(document, writer).describe();
    const xmlBuffer& buffer = writer.finish();
    const auto size = static_cast<std::size_t>(xmlBufferLength(&buffer));
    if (copy != nullptr)
        copy->assign(reinterpret_cast<const char*>(xmlBufferContent(&buffer)), size);
    return size;
}

} // namespace ZelInterchangeData::bench
