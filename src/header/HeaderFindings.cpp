#include "header/HeaderFindings.h"

#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"

#include <set>

namespace ZelInterchangeData {

namespace {

using Texts = std::vector<std::string>;
using Header = i_ZelDataHeader;

template <class Value>
using Getter = ZelDataResult_tags (Header::*)(Value&) const;

/// Checks the fields of one header, step by step. A step that cannot get a value ends with the
/// getter's code.
class HeaderCheck {
public:
    HeaderCheck(const i_ZelDataHeader& header, FindingList& found) : header_(header), found_(found)
    {
    }

    HeaderCheck& size(Getter<unsigned long> get, const char* property)
    {
        unsigned long value = 0;
        if (reads(get, value) && value == 0) found_.addAbout(ZelDataFinding_SizeMissing, property);
        return *this;
    }

    HeaderCheck& text(Getter<std::string> get, Treatment treatment, const char* property)
    {
        std::string value;
        if (reads(get, value)) found_.checkWritten(value, treatment, property);
        return *this;
    }

    HeaderCheck& texts(Getter<Texts> get, const char* property)
    {
        Texts values;
        if (reads(get, values)) checkEach(values, property);
        return *this;
    }

    /// Checks that the header lists each content name once.
    HeaderCheck& contentNamesOnce()
    {
        Texts names;
        if (reads(&Header::getContentNames, names)) checkOnce(names);
        return *this;
    }

    /// The result so far.
    [[nodiscard]] Ending ending() const { return ending_; }

private:
    template <class Value>
    bool reads(Getter<Value> get, Value& value)
    {
        if (!ending_) ending_ = endingOf((header_.*get)(value));
        return !ending_;
    }

    void checkEach(const Texts& values, const char* property)
    {
        for (std::size_t i = 0; i < values.size(); ++i) {
            found_.setItem(i, 0);
            found_.checkWritten(values[i], Treatment::Escaped, property);
        }
        found_.setSubject(ZelDataFindingSubject_Header);
    }

    void checkOnce(const Texts& names)
    {
        std::set<std::string> seen;
        for (std::size_t i = 0; i < names.size(); ++i) {
            found_.setItem(i, 0);
            if (!seen.insert(names[i]).second)
                found_.addAbout(ZelDataFinding_ListedTwice, "content name");
        }
        found_.setSubject(ZelDataFindingSubject_Header);
    }

    const i_ZelDataHeader& header_;
    FindingList& found_;
    Ending ending_;
};

Ending checkHeader(const i_ZelDataHeader& header, FindingList& found)
{
    Texts languages;
    if (const Ending ending = findPacketProblems(header, found)) return ending;
    if (const Ending ending = endingOf(header.getOrderedLanguageIDs(languages))) return ending;
    found.checkLanguages(languages);
    return {};
}

} // namespace

Ending findPacketProblems(const i_ZelDataHeader& header, FindingList& found)
{
    found.setSubject(ZelDataFindingSubject_Header);
    return HeaderCheck(header, found)
        .size(&Header::getVideoLength, "video length")
        .size(&Header::getVideoWidth, "video width")
        .size(&Header::getVideoHeight, "video height")
        .text(&Header::getAppName, Treatment::Escaped, "application name")
        .text(&Header::getAppVersion, Treatment::Escaped, "application version")
        .text(&Header::getTitle, Treatment::Escaped, "title")
        .text(&Header::getCreator, Treatment::AsGiven, "creator")
        .text(&Header::getDescription, Treatment::Escaped, "description")
        .texts(&Header::getKeywords, "keyword")
        .texts(&Header::getContentNames, "content name")
        .contentNamesOnce()
        .ending();
}

ZelDataResult_tags findProblems(const i_ZelDataHeader& header,
                                std::vector<ZelDataFinding>& findings)
{
    return collectFindings(ZelDataFindingSubject_Header, findings,
                           [&](FindingList& found) { return checkHeader(header, found); });
}

} // namespace ZelInterchangeData
