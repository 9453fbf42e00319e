#include "Operations.h"

#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace model {
namespace {

/// A path of the wanted kind: "file", a file that exists, or a path that cannot be opened.
std::string pathOf(const std::string& where, const std::string& folder)
{
    if (where == "empty") return "";
    if (where == "missing") return folder + "/no such folder/packet.xmp";
    if (where == "zero") return folder + "/cut" + '\0' + "tail";
    std::string path = folder + "/p\xC3\xA4" + "cket.xmp";
    std::ofstream(std::filesystem::u8path(path), std::ios::binary) << "before";
    return path;
}

/// The contents of the file at @p path, which ends at its first zero byte.
std::string contentOf(const std::string& path)
{
    std::ifstream in(std::filesystem::u8path(path.c_str()), std::ios::binary);
    if (!in) return "nofile";
    return shown(std::string(std::istreambuf_iterator<char>(in), {}));
}

} // namespace

void writeFile(Session& session)
{
    using namespace ZelInterchangeData;
    const auto& object = session.object<i_ZelDataFormatterBase>(session.script().read<int>());
    const std::string path = pathOf(session.script().word(), session.folder());
    const auto format = session.script().read<ZelDataFormatType_tags>();
    const bool flag = session.script().read<bool>();
    session.answer(codeOf([&] { return object.writeFile(path, format, flag); }));
    session.answer(lastError(object));
    session.answer(contentOf(path));
}

} // namespace model
