// The program of every consumer project: makes, fills and writes a document, and catches the library's
// exception outside the library.

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <cstdlib>
#include <iostream>
#include <memory>
#include <new>
#include <string>

using namespace ZelInterchangeData;

namespace {

bool memoryIsExhausted = false;

void check(ZelDataResult_tags code)
{
    if (failed(code)) {
        std::cerr << "failed with code 0x" << std::hex << code << '\n';
        std::exit(1);
    }
}

std::string writtenPacket()
{
    i_ZelDataHeader* made = nullptr;
    check(ZelDataUtilities::createHeaderData(&made));
    const std::unique_ptr<i_ZelDataHeader> header(made);
    check(header->setTitle("Intro & Setup"));
    check(header->setCreator("Ann"));
    check(header->setAppName("Recorder"));
    check(header->setAppVersion("2.0"));
    check(header->setVideoLength(90500));
    check(header->setVideoWidth(640));
    check(header->setVideoHeight(480));

    const std::unique_ptr<i_ZelInterchangeDataCore> document(
        ZELDataCreator::createInterchangeData());
    check(document->setDataHeader(*header));
    std::string packet;
    check(document->writeString(packet, ZelDataFormat_Xmp, false));
    return packet;
}

std::string titleIn(const std::string& packet)
{
    const std::string before = "dc:title=\"";
    const auto start = packet.find(before);
    if (start == std::string::npos) return "none";
    const auto first = start + before.size();
    return packet.substr(first, packet.find('"', first) - first);
}

// Returns the message of the exception that the creator throws when memory runs out.
std::string messageWithoutMemory()
{
    memoryIsExhausted = true;
    std::string message = "no exception";
    try {
        delete ZELDataCreator::createInterchangeData();
    } catch (const ZelDataException& exception) {
        message = exception.what();
    } catch (...) {
        message = "an exception of an unknown type";
    }
    memoryIsExhausted = false;
    return message;
}

} // namespace

// The library allocates documents with this operator, so the program can make the allocation fail.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return memoryIsExhausted ? nullptr : std::malloc(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void* operator new(std::size_t size)
{
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

int main()
{
    std::cout << "title " << titleIn(writtenPacket()) << '\n'
              << "without memory " << messageWithoutMemory() << '\n'
              << "version " << ZELINTERCHANGEDATA_VERSION << ", running " << libraryVersion()
              << '\n';
}
