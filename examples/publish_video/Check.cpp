/// @file
/// See Check.h.

#include "Check.h"

#include "PublishError.h"

#include "ZelInterchangeData/ZelDataResultText.h"

namespace publish {

using namespace ZelInterchangeData;

namespace {

/// Describes the codes that the program can receive.
std::string wordsFor(ZelDataResult_tags code)
{
    switch (code) {
    case ZelData_InvalidArgument:
        return "the value is out of range";
    case ZelData_OutOfMemory:
        return "out of memory";
    case ZelData_InvalidUtf8:
        return "the text is not UTF-8";
    case ZelData_UnknownLanguage:
        return "the language is unknown";
    case ZelData_InvalidItem:
        return "the item is not valid";
    case ZelData_FileOpenFailed:
        return "the file cannot be opened";
    case ZelData_InvalidData:
        return "the data are not valid";
    default:
        return std::string("the library returned ") + toString(code);
    }
}

[[noreturn]] void fail(ZelDataResult_tags code, const std::string& what)
{
    throw PublishError(what + ": " + wordsFor(code));
}

} // namespace

void check(ZelDataResult_tags code, const std::string& what)
{
    if (failed(code)) fail(code, what);
}

void checkError(ZelDataResult_tags code, const std::string& what)
{
    if (isError(code)) fail(code, what);
}

} // namespace publish
