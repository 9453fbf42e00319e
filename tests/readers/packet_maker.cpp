/// @file
/// Writes a packet from a description, for the tests with third-party readers.
///
///     packet_maker DESCRIPTION PACKET
///
/// Each line of a description is a key and its words, separated by spaces. A text is "=" followed by
/// its characters, those other than letters and digits as %XX. A caption and an entry end with any
/// number of pairs of a language and a text.
///
///     title =A%20title                     captions
///     creator =Ann                         caption START DURATION ALIGNMENT en =Hello de =Hallo
///     description =None                    toc
///     app =Name =Version                   entry START INDEX OFFSET =image.png en =Intro
///     keyword =one                         screentext FRAMERATE
///     content =a.mp4                       item START DURATION INDEX OFFSET GROUP =image.png =Text
///     video LENGTH WIDTH HEIGHT
///     explicit

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ZelInterchangeData;

/// Throws if the library returned a failure.
void check(ZelDataResult_tags code)
{
    if (failed(code)) {
        std::ostringstream message;
        message << "code 0x" << std::hex << code;
        throw std::runtime_error(message.str());
    }
}

/// Makes an object with one of the library's factories.
template <class Interface>
std::unique_ptr<Interface> make(ZelDataResult_tags (*factory)(Interface**))
{
    Interface* object = nullptr;
    check(factory(&object));
    return std::unique_ptr<Interface>(object);
}

/// The words of one line.
class Words {
public:
    explicit Words(const std::string& line) : stream_(line) {}

    bool atEnd() { return (stream_ >> std::ws).eof(); }

    std::string word()
    {
        std::string word;
        if (!(stream_ >> word)) throw std::runtime_error("a word is missing");
        return word;
    }

    std::string text()
    {
        const std::string quoted = word();
        std::string text;
        for (std::size_t i = 1; i < quoted.size(); ++i) {
            if (quoted[i] == '%') {
                text += static_cast<char>(std::stoi(quoted.substr(i + 1, 2), nullptr, 16));
                i += 2;
            } else {
                text += quoted[i];
            }
        }
        return text;
    }

    long long time() { return std::stoll(word()); }
    unsigned long number() { return std::stoul(word()); }
    unsigned long long offset() { return std::stoull(word()); }

    /// Sets the pairs of language and text at the end of the line in the item.
    template <class Item>
    void textsInto(Item& item)
    {
        while (!atEnd()) {
            const std::string language = word();
            check(item.setTextForLanguage(text(), language));
        }
    }

private:
    std::istringstream stream_;
};

/// The data sets of one description.
class Description {
public:
    void read(std::istream& lines)
    {
        std::string line;
        while (std::getline(lines, line)) {
            Words words(line);
            readers_.at(words.word())(words);
        }
        check(header_->setKeywords(keywords_));
    }

    void write(const std::string& path) const
    {
        const std::unique_ptr<i_ZelInterchangeDataCore> document(
            ZELDataCreator::createInterchangeData());
        check(document->setDataHeader(*header_));
        if (captions_) check(document->setDataCaptions(*captions_));
        if (toc_) check(document->setDataToc(*toc_));
        if (screenText_) check(document->setDataScreenText(*screenText_));
        check(document->writeFile(path, ZelDataFormat_Xmp, false));
    }

private:
    void readApp(Words& words)
    {
        check(header_->setAppName(words.text()));
        check(header_->setAppVersion(words.text()));
    }

    void readVideo(Words& words)
    {
        check(header_->setVideoLength(words.number()));
        check(header_->setVideoWidth(words.number()));
        check(header_->setVideoHeight(words.number()));
    }

    void readCaption(Words& words)
    {
        const auto item = make(ZelDataUtilities::createCaptionItemData);
        check(item->setStart(words.time()));
        check(item->setDuration(words.time()));
        check(item->setAlignment(static_cast<ZelAlignment_tags>(words.number())));
        words.textsInto(*item);
        check(captions_->addCaptionItem(*item));
    }

    void readEntry(Words& words)
    {
        const auto item = make(ZelDataUtilities::createTocItemData);
        check(item->setStart(words.time()));
        check(item->setImageIndex(words.number()));
        check(item->setImageOffset(words.offset()));
        check(item->setImageFile(words.text()));
        words.textsInto(*item);
        check(toc_->addTocItem(*item));
    }

    void readScreenText(Words& words)
    {
        screenText_ = make(ZelDataUtilities::createScreenTextData);
        check(screenText_->setFrameRate(words.number()));
    }

    void readItem(Words& words)
    {
        const auto item = make(ZelDataUtilities::createScreenTextItemData);
        check(item->setStart(words.time()));
        check(item->setDuration(words.time()));
        check(item->setImageIndex(words.number()));
        check(item->setImageOffset(words.offset()));
        check(item->setGroupId(words.number()));
        check(item->setImageFile(words.text()));
        check(item->setText(words.text()));
        check(screenText_->addScreenTextItem(*item));
    }

    std::unique_ptr<i_ZelDataHeader> header_ = make(ZelDataUtilities::createHeaderData);
    std::unique_ptr<i_ZelDataCaptions> captions_;
    std::unique_ptr<i_ZelDataToc> toc_;
    std::unique_ptr<i_ZelDataScreenText> screenText_;
    std::vector<std::string> keywords_;

    const std::map<std::string, std::function<void(Words&)>> readers_ = {
        {"title", [this](Words& words) { check(header_->setTitle(words.text())); }},
        {"creator", [this](Words& words) { check(header_->setCreator(words.text())); }},
        {"description", [this](Words& words) { check(header_->setDescription(words.text())); }},
        {"app", [this](Words& words) { readApp(words); }},
        {"keyword", [this](Words& words) { keywords_.push_back(words.text()); }},
        {"content", [this](Words& words) { check(header_->addContentName(words.text())); }},
        {"video", [this](Words& words) { readVideo(words); }},
        {"explicit", [this](Words&) { check(header_->setIPodExplicit(true)); }},
        {"captions", [this](Words&) { captions_ = make(ZelDataUtilities::createCaptionData); }},
        {"caption", [this](Words& words) { readCaption(words); }},
        {"toc", [this](Words&) { toc_ = make(ZelDataUtilities::createTocData); }},
        {"entry", [this](Words& words) { readEntry(words); }},
        {"screentext", [this](Words& words) { readScreenText(words); }},
        {"item", [this](Words& words) { readItem(words); }},
    };
};

} // namespace

int main(int count, char** arguments)
{
    try {
        if (count != 3) throw std::runtime_error("usage: packet_maker DESCRIPTION PACKET");
        std::ifstream lines(arguments[1], std::ios::binary);
        if (!lines) throw std::runtime_error("the description cannot be read");
        Description description;
        description.read(lines);
        description.write(arguments[2]);
        return 0;
    } catch (const std::exception& problem) {
        std::cerr << "packet_maker: " << problem.what() << '\n';
        return 1;
    }
}
