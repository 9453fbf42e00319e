#include "core/TempFile.h"
#include "hostile/NumberParameter.h"
#include "hostile/Writers.h"

namespace ZelInterchangeData {

namespace {

using Format = ZelDataFormatType_tags;

/// Adds the argument of every operation of a writer that takes a format. For all formats but one,
/// writing gives @p writeCode and reading @p readCode.
template <class Writer>
void addFormats(NumberParameters& list, const std::string& of, const Make<Writer>& make,
                ZelDataResult_tags writeCode, ZelDataResult_tags readCode)
{
    addLastError(list, of, make);
    const auto add = [&](const char* name, ZelDataResult_tags code, auto call) {
        list.push_back({of + name, [make, code, call] {
                            for (const Format format : extremesOfEnumeration<Format>()) {
                                if (format == ZelDataFormat_Xmp) continue;
                                const auto writer = make();
                                EXPECT_CODE(*writer, code, call(*writer, format));
                            }
                        }});
    };
    add("writeString 2", writeCode, [](Writer& writer, Format format) {
        std::string out = "before";
        const auto code = writer.writeString(out, format, true);
        EXPECT_EQ("before", out);
        return code;
    });
    add("readString 2", readCode,
        [](Writer& writer, Format format) { return writer.readString("text", format, false); });
    add("writeFile 2", writeCode, [](Writer& writer, Format format) {
        const TempFile file;
        const auto code = writer.writeFile(file.path(), format, false);
        EXPECT_FALSE(file.exists());
        return code;
    });
    add("readFile 2", readCode,
        [](Writer& writer, Format format) { return writer.readFile("path", format); });
}

} // namespace

void addFormatterNumbers(NumberParameters& list)
{
    forEachFormatter([&list](const char* of, const auto& make) {
        addFormats(list, of, make, ZelData_InternalError, ZelData_InternalError);
    });
    forEachDocument([&list](const char* of, const auto& make) {
        addFormats(list, of, make, ZelData_UnsupportedFormat, ZelData_NotImplemented);
    });
    list.push_back({"replaceFile 4", [] {
                        for (const Format format : extremesOfEnumeration<Format>()) {
                            if (format == ZelDataFormat_Xmp) continue;
                            const TempFile file;
                            int systemError = -1;
                            EXPECT_EQ(ZelData_UnsupportedFormat,
                                      replaceFile(*documentOf<ZelDataCore>(), file.path(),
                                                  systemError, format));
                            EXPECT_EQ(0, systemError);
                            EXPECT_FALSE(file.exists());
                        }
                    }});
}

} // namespace ZelInterchangeData
