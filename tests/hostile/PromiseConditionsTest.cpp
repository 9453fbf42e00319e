/// @file
/// Each condition of the promise of well-formedness, broken in each field that it is about.

#include "hostile/PacketModel.h"
#include "support/TextRules.h"

#include <gtest/gtest.h>

#include <functional>

namespace ZelInterchangeData {
namespace {

/// A field and what happens to it on its way into the packet.
struct Field {
    const char* name;
    std::function<void(PacketModel&, const std::string&)> put;
    bool isEscaped;
    bool isStripped;
    /// Whether its setter refuses what does not have the form of UTF-8.
    bool isChecked;
};

const std::vector<Field>& headerFields()
{
    using Model = PacketModel;
    using Text = std::string;
    static const std::vector<Field> fields = {
        {"title", [](Model& m, const Text& t) { m.title = t; }, true, false, false},
        {"description", [](Model& m, const Text& t) { m.description = t; }, true, false, false},
        {"application", [](Model& m, const Text& t) { m.appName = t; }, true, false, false},
        {"version", [](Model& m, const Text& t) { m.appVersion = t; }, true, false, false},
        {"keyword", [](Model& m, const Text& t) { m.keywords = {t}; }, true, false, false},
        {"creator", [](Model& m, const Text& t) { m.creator = t; }, false, false, false},
        {"content name", [](Model& m, const Text& t) { m.contentNames = {t}; }, true, false, true}};
    return fields;
}

const std::vector<Field>& trackFields()
{
    using Model = PacketModel;
    using Text = std::string;
    static const std::vector<Field> fields = {
        {"language ID",
         [](Model& m, const Text& t) {
             m.captions = {{0, 1, ZelAlignBottom, {{"en-" + t, "text"}}}};
         },
         false, false, true},
        {"font family", [](Model& m, const Text& t) { m.fontFamily = t; }, false, false, false},
        {"caption", [](Model& m, const Text& t) { m.captions.front().texts["en"] = t; }, true, true,
         true},
        {"title of an entry", [](Model& m, const Text& t) { m.entries.front().texts["en"] = t; },
         true, true, true},
        {"image of the table", [](Model& m, const Text& t) { m.tableImage = t; }, true, false,
         false},
        {"image of an entry", [](Model& m, const Text& t) { m.entries.front().image.file = t; },
         true, false, false},
        {"screen text", [](Model& m, const Text& t) { m.screenTexts.front().text = t; }, true, true,
         true},
        {"image of a screen text",
         [](Model& m, const Text& t) { m.screenTexts.front().image.file = t; }, false, false,
         false}};
    return fields;
}

std::vector<Field> allFields()
{
    std::vector<Field> fields = headerFields();
    fields.insert(fields.end(), trackFields().begin(), trackFields().end());
    return fields;
}

/// A packet with one item in each track and @p text between letters in @p field.
std::string packetWith(const Field& field, const std::string& text)
{
    PacketModel model;
    model.captions.emplace_back();
    model.entries.emplace_back();
    model.screenTexts.emplace_back();
    field.put(model, "x" + text + "y");
    return packetOf(model);
}

void expectWellFormed(bool expected, const Field& field, const std::string& text)
{
    SCOPED_TRACE(field.name + std::string(" with ") + ::testing::PrintToString(text));
    const std::string packet = packetWith(field, text);
    EXPECT_EQ(expected, faultOf(packet).empty()) << packet;
    if (expected) {
        EXPECT_EQ("", readPacket(packet).complaint);
    }
}

/// Expects a packet with one of @p texts in a field to be well-formed where @p expected says so.
void expectWellFormed(bool (*expected)(const Field&), const std::vector<std::string>& texts)
{
    for (const Field& field : allFields()) {
        for (const std::string& text : texts)
            expectWellFormed(expected(field), field, text);
    }
}

bool always(const Field& /*field*/)
{
    return true;
}

bool never(const Field& /*field*/)
{
    return false;
}

TEST(PromiseConditions, WhatIsWrittenAsGivenMustHoldNoMarkup)
{
    expectWellFormed([](const Field& field) { return field.isEscaped; }, {"\"", "&", "<"});
}

/// The condition forbids these two as well, so that callers can escape all five characters.
TEST(PromiseConditions, ApostropheAndGreaterThanSignDoNoHarmInAnAttribute)
{
    expectWellFormed(always, {"'", ">"});
}

/// The setters accept these forms.
TEST(PromiseConditions, EveryStringMustBeStrictUtf8)
{
    for (const char* text :
         {"\xE0\x80\xBC", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xED\xA0\xBD\xED\xB8\x80", "\xF0\x80\x80\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
          "\xF7\xBF\xBF\xBF", "\xF8\x88\x80\x80\x80", "\xFC\x84\x80\x80\x80\x80"}) {
        ASSERT_EQ(ZelData_Ok, utf8Code(text, false));
        expectWellFormed(never, {text});
    }
}

/// Only fields without a check accept these forms.
TEST(PromiseConditions, UncheckedStringsMustHaveTheFormOfUtf8)
{
    for (const char* text : {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC3", "\xE2\x82",
                             "\xF0\x9F\x98", "\xFE", "\xFF"}) {
        ASSERT_EQ(ZelData_InvalidUtf8, utf8Code(text + std::string("y"), false));
        for (const Field& field : allFields()) {
            if (!field.isChecked) expectWellFormed(false, field, text);
        }
    }
}

TEST(PromiseConditions, NoStringMayHoldTheLastTwoCharactersOfTheFirstPlane)
{
    expectWellFormed(never, {"\xEF\xBF\xBE", "\xEF\xBF\xBF"});
    // U+FDD0 is no character either.
    expectWellFormed(always, {"\xEF\xBF\xBD", "\xEF\xB7\x90", "\xF0\x9F\xBF\xBE"});
}

TEST(PromiseConditions, WhatIsNotStrippedMustHoldNoControlCharacterButWhiteSpace)
{
    expectWellFormed(always, {"\t", "\n", "\r", "\x7F"});
    for (const Field& field : allFields()) {
        for (char c = 0; c < 0x20; ++c) {
            const bool isSpace = c == '\t' || c == '\n' || c == '\r';
            if (!isSpace) expectWellFormed(field.isStripped, field, std::string(1, c));
        }
    }
}

TEST(PromiseConditions, AreWhatTheFormatSays)
{
    std::string asGiven;
    std::string stripped;
    for (const Field& field : allFields()) {
        if (!field.isEscaped) asGiven += field.name + std::string("; ");
        if (field.isStripped) stripped += field.name + std::string("; ");
    }
    EXPECT_EQ("creator; language ID; font family; image of a screen text; ", asGiven);
    EXPECT_EQ("caption; title of an entry; screen text; ", stripped);
}

} // namespace
} // namespace ZelInterchangeData
