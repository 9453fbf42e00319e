/// @file
/// See SubtitleReader.h.

#include "SubtitleReader.h"

#include "PlainText.h"
#include "Text.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace publish {

namespace {

constexpr std::string_view arrow = "-->";
constexpr unsigned long long latest =
    static_cast<unsigned long long>(std::numeric_limits<long long>::max());
constexpr unsigned long long hour = 3'600'000;
constexpr unsigned long long minute = 60'000;
constexpr unsigned long long second = 1'000;

struct Timing {
    long long start = 0;
    long long end = 0;
};

/// Takes tokens from the front of a timing line, if they are there.
class LineScanner {
public:
    explicit LineScanner(std::string_view line) : rest_(line) {}

    std::string_view rest() const { return rest_; }

    bool take(std::string_view token)
    {
        if (rest_.substr(0, token.size()) != token) return false;
        rest_.remove_prefix(token.size());
        return true;
    }

    /// Takes all digits at the front.
    std::string_view takeDigits()
    {
        std::size_t count = 0;
        while (count < rest_.size() && isDigit(rest_[count]))
            ++count;
        const std::string_view digits = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return digits;
    }

    void skipBlanks()
    {
        while (take(" ") || take("\t")) {
        }
    }

private:
    std::string_view rest_;
};

/// The value of any number of digits; `std::nullopt` without a digit and beyond 64 bits.
std::optional<unsigned long long> numberOf(std::string_view digits)
{
    unsigned long long value = 0;
    const char* const end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return value;
}

/// Minutes or seconds: one or two digits below 60.
std::optional<unsigned long long> sixtieths(std::string_view digits)
{
    const std::optional<unsigned long long> value = numberOf(digits);
    if (digits.size() > 2 || !value || *value >= 60) return std::nullopt;
    return value;
}

/// One to three digits after the point, as milliseconds: ".5" is half a second.
std::optional<unsigned long long> milliseconds(std::string_view digits)
{
    if (digits.empty() || digits.size() > 3) return std::nullopt;
    std::string filled(digits);
    filled.resize(3, '0');
    return numberOf(filled);
}

/// @p hours and @p below, which is less than an hour, in milliseconds; `std::nullopt` if the sum is
/// too large for a time.
std::optional<long long> timeOf(unsigned long long hours, unsigned long long below)
{
    if (hours > (latest - below) / hour) return std::nullopt;
    return static_cast<long long>(hours * hour + below);
}

/// `[hours:]minutes:seconds.fraction`; a comma may replace the point.
std::optional<long long> takeTime(LineScanner& scanner)
{
    std::string_view hours = "0";
    std::string_view minutes = scanner.takeDigits();
    if (!scanner.take(":")) return std::nullopt;
    std::string_view seconds = scanner.takeDigits();
    if (scanner.take(":")) {
        hours = minutes;
        minutes = seconds;
        seconds = scanner.takeDigits();
    }
    if (!scanner.take(".") && !scanner.take(",")) return std::nullopt;
    const auto h = numberOf(hours);
    const auto m = sixtieths(minutes);
    const auto s = sixtieths(seconds);
    const auto ms = milliseconds(scanner.takeDigits());
    if (!h || !m || !s || !ms) return std::nullopt;
    return timeOf(*h, *m * minute + *s * second + *ms);
}

/// Two times around an arrow. Settings may follow after a blank or tab.
std::optional<Timing> timingOf(std::string_view line)
{
    LineScanner scanner(line);
    scanner.skipBlanks();
    const std::optional<long long> start = takeTime(scanner);
    scanner.skipBlanks();
    if (!start || !scanner.take(arrow)) return std::nullopt;
    scanner.skipBlanks();
    const std::optional<long long> end = takeTime(scanner);
    if (!end || !(scanner.rest().empty() || isBlank(scanner.rest().front()))) return std::nullopt;
    return Timing{*start, *end};
}

/// Whether @p line begins with a time and has an arrow of whatever form.
bool looksLikeTiming(std::string_view line)
{
    LineScanner scanner(line);
    scanner.skipBlanks();
    return takeTime(scanner) && scanner.rest().find('>') != std::string_view::npos;
}

bool isNumber(std::string_view line)
{
    return std::all_of(line.begin(), line.end(), isDigit);
}

/// Whether @p line begins a block of WebVTT that is no cue.
bool beginsOtherBlock(std::string_view line)
{
    const std::string_view word = line.substr(0, line.find_first_of(" \t"));
    return word == "NOTE" || word == "STYLE" || word == "REGION";
}

/// Makes cues from lines, one line at a time.
class CueCollector {
public:
    explicit CueCollector(Subtitles& subtitles)
        : subtitles_(subtitles), block_(subtitles.isWebVtt ? Block::Ignored : Block::None)
    {
    }
    CueCollector(const CueCollector&) = delete;
    CueCollector& operator=(const CueCollector&) = delete;

    void takeLine(std::string_view line)
    {
        ++line_;
        const std::string_view text = withoutBlanksAtEnd(line);
        if (line.find(arrow) != std::string_view::npos)
            open(line);
        else if (text.empty())
            endBlock();
        else if (block_ == Block::Cue)
            append(text);
        else if (block_ != Block::Ignored)
            takeOutside(text);
    }

    /// At the end of the file, and where a blank line ends a block.
    void endBlock()
    {
        const bool isLoneNumber = outsideLines_ == 1 && isNumber(outside_.words);
        if (block_ == Block::Outside && !isLoneNumber) noteOutside();
        block_ = Block::None;
    }

private:
    /// What the lines since the last blank line are.
    enum class Block { None, Cue, Outside, Ignored };

    void open(std::string_view line)
    {
        if (block_ == Block::Cue && endsWithNumber_)
            subtitles_.cues.back().swallowedNumber = line_ - 1;
        if (block_ == Block::Outside && outsideLines_ > 1) noteOutside();
        endsWithNumber_ = false;
        const std::optional<Timing> timing = timingOf(line);
        const bool isCue = timing && timing->end > timing->start;
        block_ = isCue ? Block::Cue : Block::Ignored;
        if (isCue)
            subtitles_.cues.push_back({timing->start, timing->end, {}, line_, 0, 0});
        else
            (timing ? subtitles_.withoutLength : subtitles_.malformed)
                .push_back({line_, firstWords(line)});
    }

    void append(std::string_view line)
    {
        Cue& cue = subtitles_.cues.back();
        if (!cue.text.empty()) cue.text += '\n';
        cue.text += line;
        endsWithNumber_ = isNumber(line);
        if (cue.swallowedTiming == 0 && looksLikeTiming(line)) cue.swallowedTiming = line_;
    }

    void takeOutside(std::string_view line)
    {
        if (looksLikeTiming(line)) {
            open(line);
        } else if (block_ == Block::Outside) {
            ++outsideLines_;
        } else if (subtitles_.isWebVtt && beginsOtherBlock(line)) {
            block_ = Block::Ignored;
        } else {
            block_ = Block::Outside;
            outside_ = {line_, firstWords(line)};
            outsideLines_ = 1;
        }
    }

    void noteOutside() { subtitles_.outside.push_back(outside_); }

    Subtitles& subtitles_;
    std::size_t line_ = 0;
    Block block_;
    bool endsWithNumber_ = false;
    SkippedLines outside_;
    std::size_t outsideLines_ = 0;
};

std::string_view withoutByteOrderMark(std::string_view bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return bytes.substr(0, mark.size()) == mark ? bytes.substr(mark.size()) : bytes;
}

/// Replaces each CR LF and each CR with a line feed.
std::string withLineFeeds(std::string_view text)
{
    std::string unified;
    unified.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isPair = text[at] == '\r' && text.substr(at + 1, 1) == "\n";
        if (!isPair) unified += text[at] == '\r' ? '\n' : text[at];
    }
    return unified;
}

bool isWebVttSignature(std::string_view line)
{
    constexpr std::string_view signature = "WEBVTT";
    if (line.substr(0, signature.size()) != signature) return false;
    return line.size() == signature.size() || isBlank(line[signature.size()]);
}

std::string padded(long long value, std::size_t digits)
{
    const std::string text = std::to_string(value);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

} // namespace

std::string timeText(long long time)
{
    constexpr long long msPerSecond = 1'000;
    const long long seconds = time / msPerSecond;
    return padded(seconds / 3'600, 2) + ":" + padded(seconds / 60 % 60, 2) + ":" +
           padded(seconds % 60, 2) + "." + padded(time % msPerSecond, 3);
}

std::size_t countOfLines(std::string_view text)
{
    const std::string unified = withLineFeeds(text);
    return 1 + static_cast<std::size_t>(std::count(unified.begin(), unified.end(), '\n'));
}

std::optional<Subtitles> readSubtitles(std::string_view bytes)
{
    if (!isStrictUtf8(bytes)) return std::nullopt;
    const std::string text = withLineFeeds(withoutNoncharacters(withoutByteOrderMark(bytes)));
    Subtitles subtitles;
    subtitles.isWebVtt = isWebVttSignature(std::string_view(text).substr(0, text.find('\n')));
    CueCollector collector(subtitles);
    forEachLine(text, [&collector](std::string_view line) { collector.takeLine(line); });
    collector.endBlock();
    return subtitles;
}

} // namespace publish
