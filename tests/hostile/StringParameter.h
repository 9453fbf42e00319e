/// @file
/// The list of all arguments that are texts, each with what it does with a hostile one.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_STRINGPARAMETER_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_STRINGPARAMETER_H

#include "hostile/Packets.h"
#include "hostile/Rules.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// One argument of one operation.
struct StringParameter {
    /// Class, operation and the place of the argument, counted from 1.
    std::string name;
    /// Calls the operation with a text and looks at all that shows of it.
    std::function<void(const std::string&)> tryWith;
};

inline void PrintTo(const StringParameter& parameter, std::ostream* out)
{
    *out << parameter.name;
}

using StringParameters = std::vector<StringParameter>;
using Texts = std::vector<std::string>;

/// A text that an object keeps.
template <class Object>
struct Field {
    std::string name;
    std::unique_ptr<Object> (*make)();
    ZelDataResult_tags (*set)(Object&, const std::string&);
    /// All texts that the operation has left in the object.
    Texts (*get)(const Object&);
    Rule rule = Rule::Anything;
    Treatment treatment = Treatment::NotWritten;
    /// Whether what was there before stays beside what is new.
    bool adds = false;
    /// The code of success where there was a text before.
    ZelDataResult_tags code = ZelData_Ok;
};

/// An object of @p field that holds the texts.
template <class Object>
std::unique_ptr<Object> holding(const Field<Object>& field, const Texts& texts)
{
    auto object = field.make();
    for (const std::string& text : texts)
        EXPECT_FALSE(isError(field.set(*object, text)));
    return object;
}

/// Expects of @p object that its texts are @p before and then @p text.
template <class Object>
void expectAccepted(const Field<Object>& field, const Object& object, const Texts& before,
                    const std::string& text)
{
    Texts expected = field.adds ? before : Texts();
    expected.push_back(text);
    EXPECT_TRUE(expected == field.get(object)) << "what was accepted does not come back";

    const std::string mark = "en-mark";
    Texts marked = before;
    marked.push_back(mark);
    const std::string pattern = packetOf(*holding(field, marked));
    const bool isWritten = field.treatment != Treatment::NotWritten;
    EXPECT_EQ(isWritten, pattern.find(mark) != std::string::npos);
    EXPECT_TRUE(same(replaced(pattern, mark, written(field.treatment, text)), packetOf(object)));
}

template <class Object>
void tryField(const Field<Object>& field, const Texts& before, const std::string& text)
{
    const auto object = holding(field, before);
    const Texts kept = field.get(*object);
    const std::string packet = packetOf(*object);
    const auto code = codeFor(field.rule, text);
    const auto success = before.empty() ? ZelData_Ok : field.code;
    EXPECT_CODE(*object, code == ZelData_Ok ? success : code, field.set(*object, text));
    if (code == ZelData_Ok) {
        expectAccepted(field, *object, before, text);
    } else {
        EXPECT_TRUE(kept == field.get(*object)) << "what was refused has left a trace";
        EXPECT_TRUE(same(packet, packetOf(*object)));
    }
}

/// Adds an argument that is kept. It is tried on a new object and on one that holds @p before.
template <class Object>
void addField(StringParameters& list, const Field<Object>& field, const Texts& before = {"fr"})
{
    list.push_back({field.name, [field, before](const std::string& text) {
                        for (const std::string& variant : variants(field.rule, text)) {
                            tryField(field, {}, variant);
                            if (!before.empty()) tryField(field, before, variant);
                        }
                    }});
}

/// What a lookup gives.
struct Answer {
    ZelDataResult_tags code;
    std::string found;
};

/// A text that an operation looks for.
template <class Object>
struct Lookup {
    std::string name;
    /// Gives an object that holds other texts.
    std::unique_ptr<Object> (*make)();
    /// Makes the object hold the text, in the place of the others or beside them.
    ZelDataResult_tags (*put)(Object&, const std::string&);
    ZelDataResult_tags (*look)(Object&, const std::string&, std::string&);
    Texts (*get)(const Object&);
    /// What put() accepts.
    Rule rule = Rule::Anything;
    Answer absent;
    Answer present;
    /// What is left of the texts when the one looked for was there; by default all.
    Texts (*left)(const Texts& texts) = nullptr;
};

template <class Object>
void tryLookup(const Lookup<Object>& lookup, Object& object, const Answer& answer,
               const Texts& left, const std::string& text)
{
    std::string found = "before";
    EXPECT_CODE(object, answer.code, lookup.look(object, text, found));
    EXPECT_EQ(answer.found, found);
    EXPECT_TRUE(left == lookup.get(object)) << "another text was touched";
}

template <class Object>
void tryLookup(const Lookup<Object>& lookup, const std::string& text)
{
    const auto object = lookup.make();
    tryLookup(lookup, *object, lookup.absent, lookup.get(*object), text);
    if (codeFor(lookup.rule, text) != ZelData_Ok) return;
    EXPECT_EQ(ZelData_Ok, lookup.put(*object, text));
    const Texts texts = lookup.get(*object);
    tryLookup(lookup, *object, lookup.present, lookup.left ? lookup.left(texts) : texts, text);
}

/// Adds an argument that is looked for.
template <class Object>
void addLookup(StringParameters& list, const Lookup<Object>& lookup)
{
    list.push_back({lookup.name, [lookup](const std::string& text) {
                        for (const std::string& variant : variants(lookup.rule, text))
                            tryLookup(lookup, variant);
                    }});
}

/// The answer of an operation that says whether there is such a text.
inline ZelDataResult_tags answered(ZelDataResult_tags code, bool exists, std::string& found)
{
    found = exists ? "yes" : "no";
    return code;
}

/// All texts but the last.
inline Texts withoutLast(const Texts& texts)
{
    return {texts.begin(), texts.end() - 1};
}

inline Texts none(const Texts& /*texts*/)
{
    return {};
}

/// Adds an argument that is delivered in: @p expected takes the place of whatever was there.
template <class Object>
void addOut(StringParameters& list, const std::string& name, std::unique_ptr<Object> (*make)(),
            ZelDataResult_tags (*get)(Object&, std::string&), const std::string& expected)
{
    list.push_back({name, [make, get, expected](const std::string& text) {
                        const auto object = make();
                        std::string out = text;
                        EXPECT_CODE(*object, ZelData_Ok, get(*object, out));
                        EXPECT_TRUE(same(expected, out));
                    }});
}

template <class Object>
void addListOut(StringParameters& list, const std::string& name, std::unique_ptr<Object> (*make)(),
                ZelDataResult_tags (*get)(Object&, Texts&), const Texts& expected)
{
    list.push_back({name, [make, get, expected](const std::string& text) {
                        const auto object = make();
                        Texts out = {text, text, text};
                        EXPECT_CODE(*object, ZelData_Ok, get(*object, out));
                        EXPECT_TRUE(expected == out);
                    }});
}

/// All arguments.
const StringParameters& allStringParameters();

void addHeaderStrings(StringParameters& list);
void addCaptionStrings(StringParameters& list);
void addTocStrings(StringParameters& list);
void addScreenTextStrings(StringParameters& list);
void addFormatterStrings(StringParameters& list);
void addUtilityStrings(StringParameters& list);

} // namespace ZelInterchangeData

#endif
