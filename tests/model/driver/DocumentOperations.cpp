#include "Operations.h"

#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocFormatter.h"
#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace model {

using namespace ZelInterchangeData;

namespace {

/// A path of the wanted kind: "file" with a content from before, or one that cannot be opened.
std::string pathOf(const std::string& where, const std::string& folder)
{
    if (where == "empty") return "";
    if (where == "missing") return folder + "/no such folder/packet.xmp";
    if (where == "zero") return folder + "/cut" + '\0' + "tail";
    std::string path = folder + "/p\xC3\xA4" + "cket.xmp";
    std::ofstream(path, std::ios::binary) << "before";
    return path;
}

/// The contents of @p path now; of a path with a zero byte, those of the part before it.
std::string contentOf(const std::string& path)
{
    std::ifstream in(path.c_str(), std::ios::binary);
    if (!in) return "nofile";
    return shown(std::string(std::istreambuf_iterator<char>(in), {}));
}

void writeFile(Session& session)
{
    const auto& object = session.object<i_ZelDataFormatterBase>(session.script().read<int>());
    const std::string path = pathOf(session.script().word(), session.folder());
    const auto format = session.script().read<ZelDataFormatType_tags>();
    const bool flag = session.script().read<bool>();
    session.answer(codeOf([&] { return object.writeFile(path, format, flag); }));
    session.answer(lastError(object));
    session.answer(contentOf(path));
}

void addFormatters(Operations& operations)
{
    operations.insert({
        {"B.writeString", member(&i_ZelDataFormatterBase::writeString)},
        {"B.readString", member(&i_ZelDataFormatterBase::readString)},
        {"B.writeFile", writeFile},
        {"B.readFile", member(&i_ZelDataFormatterBase::readFile)},
        {"HF.setHeader", member(&i_ZelDataHeaderFormatter::setHeader)},
        {"HF.getHeader", member(&i_ZelDataHeaderFormatter::getHeader)},
        {"CF.setCaptions", member(&i_ZelDataCaptionFormatter::setCaptions)},
        {"CF.getCaptions", member(&i_ZelDataCaptionFormatter::getCaptions)},
        {"TF.setToc", member(&i_ZelDataTocFormatter::setToc)},
        {"TF.getToc", member(&i_ZelDataTocFormatter::getToc)},
        {"SF.setScreenText", member(&i_ZelDataScreenTextFormatter::setScreenText)},
        {"SF.getScreenText", member(&i_ZelDataScreenTextFormatter::getScreenText)},
    });
}

} // namespace

void addDocumentOperations(Operations& operations)
{
    using I = i_ZelInterchangeDataCore;
    addFormatters(operations);
    operations.insert({
        {"D.getDataHeader", member(&I::getDataHeader)},
        {"D.setDataHeader", member(&I::setDataHeader)},
        {"D.getDataCaptions", member(&I::getDataCaptions)},
        {"D.setDataCaptions", member(&I::setDataCaptions)},
        {"D.getDataToc", member(&I::getDataToc)},
        {"D.setDataToc", member(&I::setDataToc)},
        {"D.getDataScreenText", member(&I::getDataScreenText)},
        {"D.setDataScreenText", member(&I::setDataScreenText)},
        {"D.createDataHeader", member(&I::createDataHeader)},
        {"D.createDataCaptions", member(&I::createDataCaptions)},
        {"D.createDataToc", member(&I::createDataToc)},
        {"D.createDataScreenText", member(&I::createDataScreenText)},
    });
}

} // namespace model
