/// @file
/// The list of all arguments that are texts, each with what it does with a hostile one.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_STRINGPARAMETER_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_STRINGPARAMETER_H

#include "hostile/Packets.h"
#include "hostile/Parameter.h"
#include "hostile/Rules.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An argument that is tried with a text.
using StringParameter = Parameter<const std::string&>;
using StringParameters = std::vector<StringParameter>;
using Texts = std::vector<std::string>;

/// Texts that an object keeps.
template <class Object>
struct Kept {
    Make<Object> make;
    /// Makes the object hold a text, instead of the others or in addition to them.
    std::function<ZelDataResult_tags(Object&, const std::string&)> put;
    /// All texts that it holds.
    std::function<Texts(const Object&)> get;
    /// What put() accepts.
    Rule rule = Rule::Anything;
};

/// A function that gives the text that @p get delivers.
template <class Object>
auto deliveringOne(ZelDataResult_tags (Object::*get)(std::string&) const)
{
    return [get](const Object& object) { return Texts{delivered(object, get)}; };
}

/// What becomes of a text that an object already holds when it takes another.
enum class Former { IsReplaced, IsReplacedWithWarning, Stays };

/// How texts that are kept show.
struct Showing {
    Treatment treatment = Treatment::NotWritten;
    Former former = Former::IsReplaced;
};

/// An object of @p kept that holds the texts.
template <class Object>
std::unique_ptr<Object> holding(const Kept<Object>& kept, const Texts& texts)
{
    auto object = kept.make();
    for (const std::string& text : texts)
        EXPECT_FALSE(isError(kept.put(*object, text)));
    return object;
}

/// Expects @p object, which held @p before, to have taken @p text.
template <class Object>
void expectAccepted(const Kept<Object>& kept, const Showing& showing, const Object& object,
                    const Texts& before, const std::string& text)
{
    Texts expected = showing.former == Former::Stays ? before : Texts();
    expected.push_back(text);
    EXPECT_TRUE(expected == kept.get(object)) << "what was accepted does not come back";

    const std::string mark = "en-mark";
    Texts marked = before;
    marked.push_back(mark);
    const std::string pattern = packetOf(*holding(kept, marked));
    const bool isWritten = showing.treatment != Treatment::NotWritten;
    EXPECT_EQ(isWritten, pattern.find(mark) != std::string::npos);
    EXPECT_TRUE(same(replaced(pattern, mark, written(showing.treatment, text)), packetOf(object)));
}

template <class Object>
void tryField(const Kept<Object>& kept, const Showing& showing, const Texts& before,
              const std::string& text)
{
    const auto object = holding(kept, before);
    const Texts texts = kept.get(*object);
    const std::string packet = packetOf(*object);
    const auto code = codeFor(kept.rule, text);
    const bool warns = !before.empty() && showing.former == Former::IsReplacedWithWarning;
    const auto success = warns ? ZelData_WarnAlreadyExists : ZelData_Ok;
    EXPECT_CODE(*object, code == ZelData_Ok ? success : code, kept.put(*object, text));
    if (code == ZelData_Ok) {
        expectAccepted(kept, showing, *object, before, text);
    } else {
        EXPECT_TRUE(texts == kept.get(*object)) << "what was refused has left a trace";
        EXPECT_TRUE(same(packet, packetOf(*object)));
    }
}

/// Adds an argument that is kept. It is tried on a new object and on one that holds @p before.
template <class Object>
void addField(StringParameters& list, const std::string& name, const Kept<Object>& kept,
              const Showing& showing, const Texts& before = {"fr"})
{
    list.push_back({name, [kept, showing, before](const std::string& text) {
                        for (const std::string& variant : variants(kept.rule, text)) {
                            tryField(kept, showing, {}, variant);
                            if (!before.empty()) tryField(kept, showing, before, variant);
                        }
                    }});
}

/// What a lookup gives.
struct Answer {
    ZelDataResult_tags code;
    std::string found = "before";
};

inline Texts all(const Texts& texts)
{
    return texts;
}

inline Texts none(const Texts& /*texts*/)
{
    return {};
}

/// All texts but the last.
inline Texts withoutLast(const Texts& texts)
{
    return {texts.begin(), texts.end() - 1};
}

/// An operation that looks for a text.
template <class Object>
struct Lookup {
    std::function<ZelDataResult_tags(Object&, const std::string&, std::string&)> look;
    Answer absent;
    Answer present;
    /// The texts that remain if the one looked for was there.
    Texts (*left)(const Texts& texts) = all;
};

/// The look of an operation that delivers nothing.
template <class Operation>
auto doing(Operation operation)
{
    return [operation](auto& object, const std::string& text, std::string& /*found*/) {
        return (object.*operation)(text);
    };
}

/// The look of an operation that says whether there is such a text.
template <class Operation>
auto asking(Operation operation)
{
    return [operation](auto& object, const std::string& text, std::string& found) {
        std::string asked = text;
        bool exists = false;
        const auto code = (object.*operation)(asked, exists);
        EXPECT_EQ(text, asked);
        found = exists ? "yes" : "no";
        return code;
    };
}

template <class Object>
void tryLookup(const Kept<Object>& kept, const Lookup<Object>& lookup, Object& object,
               const Answer& answer, const Texts& left, const std::string& text)
{
    std::string found = "before";
    EXPECT_CODE(object, answer.code, lookup.look(object, text, found));
    EXPECT_EQ(answer.found, found);
    EXPECT_TRUE(left == kept.get(object)) << "another text was touched";
}

template <class Object>
void tryLookup(const Kept<Object>& kept, const Lookup<Object>& lookup, const std::string& text)
{
    const auto object = kept.make();
    tryLookup(kept, lookup, *object, lookup.absent, kept.get(*object), text);
    if (codeFor(kept.rule, text) != ZelData_Ok) return;
    EXPECT_EQ(ZelData_Ok, kept.put(*object, text));
    tryLookup(kept, lookup, *object, lookup.present, lookup.left(kept.get(*object)), text);
}

/// Adds an argument that is looked for. It is tried on an object that holds other texts, and on one
/// that holds the text as well.
template <class Object>
void addLookup(StringParameters& list, const std::string& name, const Kept<Object>& kept,
               const Lookup<Object>& lookup)
{
    list.push_back({name, [kept, lookup](const std::string& text) {
                        for (const std::string& variant : variants(kept.rule, text))
                            tryLookup(kept, lookup, variant);
                    }});
}

inline void fill(std::string& out, const std::string& text)
{
    out = text;
}

inline void fill(Texts& out, const std::string& text)
{
    out = {text, text, text};
}

/// Adds an argument that @p get delivers to, a text or a list of texts. @p expected replaces what was
/// there.
template <class Object, class Get, class Value>
void addOut(StringParameters& list, const std::string& name, const Make<Object>& make, Get get,
            const Value& expected)
{
    list.push_back({name, [make, get, expected](const std::string& text) {
                        const auto object = make();
                        Value out;
                        fill(out, text);
                        EXPECT_CODE(*object, ZelData_Ok, std::invoke(get, *object, out));
                        EXPECT_TRUE(expected == out);
                    }});
}

/// Adds a property, which may be any bytes, and its delivery.
template <class Object, class Set, class Class>
void addProperty(StringParameters& list, const std::string& of, const std::string& name,
                 const Make<Object>& make, Set set,
                 ZelDataResult_tags (Class::*get)(std::string&) const, Treatment treatment)
{
    const Kept<Object> property = {make, set, deliveringOne(get)};
    addField(list, of + "set" + name + " 1", property, {treatment});
    const auto filled = [property] { return holding(property, {"value"}); };
    addOut<Object>(list, of + "get" + name + " 1", filled, get, std::string("value"));
}

/// Adds the name of an image and its delivery.
template <class Object>
void addImageStrings(StringParameters& list, const std::string& of, const Make<Object>& make,
                     Treatment treatment)
{
    addProperty(list, of, "ImageFile", make, &Object::setImageFile, &Object::getImageFile,
                treatment);
}

void addHeaderStrings(StringParameters& list);
void addCaptionStrings(StringParameters& list);
void addTocStrings(StringParameters& list);
void addScreenTextStrings(StringParameters& list);
void addFormatterStrings(StringParameters& list);
void addUtilityStrings(StringParameters& list);

} // namespace ZelInterchangeData

#endif
