#include "hostile/StringParameter.h"
#include "support/TextRules.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace ZelInterchangeData {

namespace {

using U = ZelDataUtilities;

const std::string of = "ZelDataUtilities::";

/// One entity with its character, and how many bytes after the ampersand select it.
struct Entity {
    std::string name;
    char character;
    std::size_t selectors;
};

/// The entity that the bytes after the ampersand at @p at select; one without a name if they select
/// none.
Entity chosenAt(const std::string& text, std::size_t at)
{
    for (const Entity& entity :
         {Entity{"&amp;", '&', 2}, Entity{"&apos;", '\'', 2}, Entity{"&gt;", '>', 1},
          Entity{"&lt;", '<', 1}, Entity{"&quot;", '"', 1}}) {
        if (text.compare(at, entity.selectors + 1, entity.name, 0, entity.selectors + 1) == 0)
            return entity;
    }
    return {"", '\0', text.compare(at, 2, "&a") == 0 ? std::size_t{2} : std::size_t{1}};
}

/// The text without its entities, by the documented steps.
std::string unescaped(const std::string& text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] != '&') {
            result += text[at++];
            continue;
        }
        const Entity entity = chosenAt(text, at);
        const bool whole = !entity.name.empty() && at + entity.name.size() < text.size() &&
                           text.compare(at, entity.name.size(), entity.name) == 0;
        result += whole ? std::string(1, entity.character) : text.substr(at, entity.selectors);
        at += whole ? entity.name.size() : entity.selectors + 1;
    }
    return result;
}

unsigned long lines(const std::string& text)
{
    if (utf8Code(text, false) != ZelData_Ok) return 0;
    const auto ends = std::count(text.begin(), text.end(), '\n');
    const bool endsOpen = ends > 0 && text.back() != '\n';
    return static_cast<unsigned long>(ends) + (endsOpen ? 1 : 0);
}

std::string stripped(const std::string& text)
{
    std::string result = text;
    const auto isDropped = [](char c) { return static_cast<unsigned char>(c) < 32 && c != '\n'; };
    result.erase(std::remove_if(result.begin(), result.end(), isDropped), result.end());
    return result;
}

std::string escaped(const std::string& text)
{
    return markupOf(text, false);
}

using Name = ZelDataResult_tags (*)(const std::string&, std::string&);

void tryName(Name nameFor, const std::string& id, const std::string& before)
{
    std::string name = before;
    const bool known = isEnglish(id);
    EXPECT_EQ(known ? ZelData_Ok : ZelData_UnknownLanguage, nameFor(id, name));
    EXPECT_TRUE(same(known ? "English" : before, name));
}

/// A function that gives the name of a language; the catalogue does not look at what follows it.
void addName(StringParameters& list, const std::string& name, Name nameFor)
{
    list.push_back({of + name + " 1", [nameFor](const std::string& text) {
                        for (const std::string& id : variants(Rule::Language, text))
                            tryName(nameFor, id, "before");
                    }});
    list.push_back({of + name + " 2", [nameFor](const std::string& text) {
                        tryName(nameFor, "en", text);
                        tryName(nameFor, "xx", text);
                    }});
}

void addChecks(StringParameters& list)
{
    const auto add = [&list](const char* name, std::function<void(const std::string&)> check) {
        list.push_back({of + name + " 1", std::move(check)});
    };
    add("isValidLanguage", [](const std::string& text) {
        for (const std::string& id : variants(Rule::Language, text)) {
            EXPECT_EQ(isEnglish(id) ? ZelData_Ok : ZelData_UnknownLanguage, U::isValidLanguage(id));
        }
    });
    add("verifyUtf8Format", [](const std::string& text) {
        EXPECT_EQ(utf8Code(text, false), U::verifyUtf8Format(text, false));
        EXPECT_EQ(utf8Code(text, true), U::verifyUtf8Format(text, true));
    });
    add("countLinesInUTF8",
        [](const std::string& text) { EXPECT_EQ(lines(text), U::countLinesInUTF8(text)); });
}

/// A function that makes one text of another.
void addText(StringParameters& list, const std::string& name,
             std::string (*function)(const std::string&),
             std::string (*expected)(const std::string&))
{
    list.push_back({of + name + " 1", [function, expected](const std::string& text) {
                        EXPECT_TRUE(same(expected(text), function(text)));
                    }});
}

} // namespace

void addUtilityStrings(StringParameters& list)
{
    addName(list, "englishNameForLanguage", U::englishNameForLanguage);
    addName(list, "nativeNameForLanguage", U::nativeNameForLanguage);
    addChecks(list);
    addText(list, "stripUnsupportedCharacters", U::stripUnsupportedCharacters, stripped);
    addText(list, "htmlTagsToText", U::htmlTagsToText, escaped);
    addText(list, "htmlTagsFromText", U::htmlTagsFromText, unescaped);
}

} // namespace ZelInterchangeData
