#include "core/ZelDataCore.h"
#include "core/ZelDataCoreXmp.h"
#include "hostile/NumberParameter.h"
#include "hostile/ScratchFolder.h"
#include "hostile/Writers.h"

namespace ZelInterchangeData {

namespace {

using Format = ZelDataFormatType_tags;

/// Adds the format of an operation, which answers all but one with @p code.
template <class Writer, class Call>
void addFormat(NumberParameters& list, const std::string& name, std::unique_ptr<Writer> (*make)(),
               ZelDataResult_tags code, Call call)
{
    list.push_back({name, [make, code, call] {
                        for (const Format format : extremesOfEnumeration<Format>()) {
                            if (format == ZelDataFormat_Xmp) continue;
                            const auto writer = make();
                            EXPECT_CODE(*writer, code, call(*writer, format));
                        }
                    }});
}

template <class Writer>
void addFormats(NumberParameters& list, const std::string& of, std::unique_ptr<Writer> (*make)(),
                ZelDataResult_tags writeCode, ZelDataResult_tags readCode)
{
    addLastError(list, of, make);
    addFormat(list, of + "writeString 2", make, writeCode, [](Writer& writer, Format format) {
        std::string out = "before";
        const auto code = writer.writeString(out, format, true);
        EXPECT_EQ("before", out);
        return code;
    });
    addFormat(list, of + "readString 2", make, readCode, [](Writer& writer, Format format) {
        return writer.readString("text", format, false);
    });
    addFormat(list, of + "writeFile 2", make, writeCode, [](Writer& writer, Format format) {
        const TempFile file;
        const auto code = writer.writeFile(file.path(), format, false);
        EXPECT_FALSE(file.exists());
        return code;
    });
    addFormat(list, of + "readFile 2", make, readCode,
              [](Writer& writer, Format format) { return writer.readFile("path", format); });
}

/// Adds what a formatter takes: it treats reading and writing alike.
template <class Formatter>
void addFormatter(NumberParameters& list, const std::string& of,
                  std::unique_ptr<Formatter> (*make)())
{
    addFormats(list, of, make, ZelData_InternalError, ZelData_InternalError);
}

void addDocument(NumberParameters& list, const std::string& of,
                 std::unique_ptr<i_ZelInterchangeDataCore> (*make)())
{
    addFormats(list, of, make, ZelData_UnsupportedFormat, ZelData_NotImplemented);
}

} // namespace

void addFormatterNumbers(NumberParameters& list)
{
    addFormatter(list, "ZelDataXmpHeaderFormatter::", headerFormatter);
    addFormatter(list, "ZelDataXmpCaptionFormatter::", captionFormatter);
    addFormatter(list, "ZelDataXmpTocFormatter::", tocFormatter);
    addFormatter(list, "ZelDataXmpScreenTextFormatter::", screenTextFormatter);
    addDocument(list, "ZelDataCore::", documentOf<ZelDataCore>);
    addDocument(list, "ZelDataCoreXmp::", documentOf<ZelDataCoreXmp>);
}

} // namespace ZelInterchangeData
