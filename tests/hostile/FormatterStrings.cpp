#include "hostile/StringParameter.h"
#include "hostile/Writers.h"
#include "support/ScratchFolder.h"

namespace ZelInterchangeData {

namespace {

constexpr auto xmp = ZelDataFormat_Xmp;

/// Adds the arguments of reading, which is not supported.
template <class Writer>
void addReads(StringParameters& list, const std::string& of, const Make<Writer>& make)
{
    list.push_back(
        {of + "readString 1", [make](const std::string& text) {
             const auto writer = make();
             EXPECT_CODE(*writer, ZelData_NotImplemented, writer->readString(text, xmp, false));
             EXPECT_CODE(*writer, ZelData_NotImplemented, writer->readString(text, xmp, true));
         }});
    list.push_back({of + "readFile 1", [make](const std::string& text) {
                        const auto writer = make();
                        EXPECT_CODE(*writer, ZelData_NotImplemented, writer->readFile(text, xmp));
                    }});
}

template <class Formatter>
std::string writtenBy(const Formatter& formatter)
{
    std::string text;
    EXPECT_EQ(ZelData_Ok, formatter.writeString(text, xmp, false));
    return text;
}

/// Adds the arguments of a formatter, which replaces a text and writes no file.
template <class Formatter>
void addFormatter(StringParameters& list, const std::string& of, const Make<Formatter>& make)
{
    addReads(list, of, make);
    list.push_back({of + "writeString 1", [make](const std::string& text) {
                        const auto formatter = make();
                        std::string out = text;
                        EXPECT_CODE(*formatter, ZelData_Ok, formatter->writeString(out, xmp, true));
                        EXPECT_TRUE(same(dateMasked(writtenBy(*make())), dateMasked(out)));
                    }});
    list.push_back({of + "writeFile 1", [make](const std::string& text) {
                        const ScratchFolder folder;
                        const auto formatter = make();
                        EXPECT_CODE(*formatter, ZelData_NotImplemented,
                                    formatter->writeFile(folder.pathOf(text), xmp, false));
                        EXPECT_EQ(Texts(), folder.names());
                    }});
}

void tryAppending(const Document& document, const std::string& text)
{
    std::string out = text;
    EXPECT_EQ(ZelData_Ok, document.writeString(out, xmp, true));
    ASSERT_GE(out.size(), text.size());
    EXPECT_TRUE(same(text, out.substr(0, text.size())));
    EXPECT_EQ(dateMasked(writtenBy(document)), dateMasked(out.substr(text.size())));
}

void tryReplacing(const Document& document, const std::string& text)
{
    std::string out = text;
    EXPECT_EQ(ZelData_UnsupportedFormat,
              document.writeString(out, static_cast<ZelDataFormatType_tags>(2), true));
    EXPECT_TRUE(same(text, out));
    EXPECT_EQ(ZelData_Ok, document.writeString(out, xmp, false));
    EXPECT_EQ(dateMasked(writtenBy(document)), dateMasked(out));
}

/// Whether a file system takes a file of this name in a folder.
bool isFileName(const std::string& name)
{
    const std::string forbidden("/\0", 2);
    return !name.empty() && name.size() <= 255 &&
           name.find_first_of(forbidden) == std::string::npos;
}

/// Tries @p write, a function that writes the document to a path.
template <class Write>
void tryFile(const Document& document, const std::string& name, const Write& write)
{
    const ScratchFolder folder;
    const bool opens = isFileName(name);
    EXPECT_EQ(opens ? ZelData_Ok : ZelData_FileOpenFailed, write(document, folder.pathOf(name)));
    ASSERT_EQ(opens ? Texts{name} : Texts(), folder.names());
    if (!opens) return;
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\" ?>" + dateMasked(writtenBy(document)),
              dateMasked(bytesOf(folder.pathOf(name))));
}

void addDocument(StringParameters& list, const std::string& of, const Make<Document>& make)
{
    addReads(list, of, make);
    list.push_back({of + "writeString 1", [make](const std::string& text) {
                        tryAppending(*make(), text);
                        tryReplacing(*make(), text);
                    }});
    list.push_back({of + "writeFile 1", [make](const std::string& text) {
                        tryFile(*make(), text,
                                [](const Document& document, const std::string& path) {
                                    return document.writeFile(path, xmp, false);
                                });
                    }});
}

} // namespace

void addFormatterStrings(StringParameters& list)
{
    forEachFormatter([&list](const char* of, const auto& make) { addFormatter(list, of, make); });
    forEachDocument([&list](const char* of, const auto& make) { addDocument(list, of, make); });
    list.push_back({"replaceFile 2", [](const std::string& text) {
                        tryFile(*documentOf<ZelDataCore>(), text,
                                [](const Document& document, const std::string& path) {
                                    int systemError = -1;
                                    const auto code = replaceFile(document, path, systemError);
                                    EXPECT_EQ(code == ZelData_Ok, systemError == 0);
                                    return code;
                                });
                    }});
}

} // namespace ZelInterchangeData
