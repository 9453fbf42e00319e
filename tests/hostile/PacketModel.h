/// @file
/// A document in plain values, what the library makes of it and what a reader must find.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_PACKETMODEL_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_PACKETMODEL_H

#include "ZelInterchangeData/ZelInterchangeData.h"
#include "hostile/PacketReading.h"

#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ZelInterchangeData {

using TextsByLanguage = std::map<std::string, std::string>;

struct CaptionModel {
    long long start = 0;
    long long duration = 1;
    ZelAlignment_tags alignment = ZelAlignBottom;
    TextsByLanguage texts;
};

struct ImageModel {
    std::string file;
    unsigned long index = 0;
    unsigned long long offset = 0;
};

struct EntryModel {
    long long start = 0;
    ImageModel image;
    TextsByLanguage texts;
};

struct ScreenTextModel {
    long long start = 0;
    long long duration = 0;
    ImageModel image;
    unsigned long group = 0;
    std::string text;
};

struct ColorModel {
    float red;
    float green;
    float blue;
};

struct PacketModel {
    bool hasHeader = true;
    bool hasCaptions = true;
    bool hasToc = true;
    bool hasScreenText = true;

    std::string title;
    std::string creator;
    std::string description;
    std::string appName;
    std::string appVersion;
    std::vector<std::string> keywords;
    std::vector<std::string> contentNames;
    bool isExplicit = false;
    bool showsSearch = true;
    unsigned long length = 1;
    unsigned long width = 2;
    unsigned long height = 3;

    std::string fontFamily = "Helvetica";
    unsigned long fontSize = 20;
    unsigned long captionRate = 1000;
    ColorModel foreground = {1.0F, 0.5F, 0.0F};
    ColorModel background = {0.0F, 0.0F, 0.0F};
    float opacity = 0.25F;
    std::vector<CaptionModel> captions;

    std::string tableImage;
    std::vector<EntryModel> entries;

    unsigned long screenTextRate = 1000;
    std::vector<ScreenTextModel> screenTexts;
};

/// What a test does with the codes of its calls.
using Look = void (*)(std::initializer_list<ZelDataResult_tags>);

/// Expects that all calls succeeded.
void expectOk(std::initializer_list<ZelDataResult_tags> codes);

/// The data sets of @p model. They may refuse some of its values.
/// @{
std::unique_ptr<i_ZelDataHeader> headerOf(const PacketModel& model, Look look);
std::unique_ptr<i_ZelDataCaptions> captionsOf(const PacketModel& model, Look look);
std::unique_ptr<i_ZelDataToc> tocOf(const PacketModel& model, Look look);
std::unique_ptr<i_ZelDataScreenText> screenTextOf(const PacketModel& model, Look look);
/// @}

/// A document that holds @p model.
std::unique_ptr<i_ZelInterchangeDataCore> documentOf(const PacketModel& model, Look look);

/// The packet that the library writes for @p model. Each step must succeed.
std::string packetOf(const PacketModel& model);

/// What a reader must find in the packet, items in the order of their addition.
PacketReading expectedOf(const PacketModel& model);

/// The English names of the languages that these documents use, by language code.
const std::map<std::string, std::string>& languageNames();

} // namespace ZelInterchangeData

#endif
