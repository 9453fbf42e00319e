/// @file
/// See ProgramRunner.h.

#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

fs::path newFolder()
{
    std::string name = testing::TempDir() + "publish_video.XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return name;
}

std::string readAll(int descriptor)
{
    std::string text;
    char block[4096];
    ::lseek(descriptor, 0, SEEK_SET);
    for (ssize_t count = 0; (count = ::read(descriptor, block, sizeof block)) > 0;)
        text.append(block, static_cast<std::size_t>(count));
    return text;
}

/// A file without a name, for a child's output.
class Capture {
public:
    Capture()
    {
        std::string name = testing::TempDir() + "publish_video.XXXXXX";
        descriptor_ = ::mkstemp(name.data());
        ::unlink(name.c_str());
    }
    ~Capture() { ::close(descriptor_); }
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;

    int descriptor() const { return descriptor_; }
    std::string text() const { return readAll(descriptor_); }

private:
    int descriptor_ = -1;
};

int statusOf(pid_t child)
{
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

RunResult runProgram(const std::vector<std::string>& words,
                     const std::function<void(int)>& meanwhile = {})
{
    const Capture out;
    const Capture err;
    std::vector<std::string> copies = words;
    std::vector<char*> arguments;
    for (std::string& word : copies)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(out.descriptor(), STDOUT_FILENO);
        ::dup2(err.descriptor(), STDERR_FILENO);
        ::execv(arguments[0], arguments.data());
        ::_exit(127);
    }
    if (meanwhile) meanwhile(child);
    const int status = statusOf(child);
    return {status, out.text(), err.text()};
}

} // namespace

std::string contentsOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

RunResult runShell(const std::string& script, const std::vector<std::string>& words)
{
    std::vector<std::string> all{"/bin/sh", "-c", script, PUBLISH_VIDEO};
    all.insert(all.end(), words.begin(), words.end());
    return runProgram(all);
}

ProgramRunner::ProgramRunner() : folder_(newFolder()) {}

ProgramRunner::~ProgramRunner()
{
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::string ProgramRunner::write(const std::string& name, const std::string& bytes) const
{
    std::ofstream stream(folder_ / name, std::ios::binary);
    stream << bytes;
    EXPECT_TRUE(stream.flush().good());
    return pathOf(name);
}

std::vector<std::string> ProgramRunner::names() const
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

RunResult ProgramRunner::runAlone(const std::vector<std::string>& words,
                                  const std::function<void(int)>& meanwhile)
{
    std::vector<std::string> all{PUBLISH_VIDEO};
    all.insert(all.end(), words.begin(), words.end());
    return runProgram(all, meanwhile);
}

RunResult ProgramRunner::run(const std::vector<std::string>& words) const
{
    std::vector<std::string> all{"-o", pathOf("out.xmp"), "--size", "640x480"};
    all.insert(all.end(), words.begin(), words.end());
    return runAlone(all);
}

RunResult ProgramRunner::publish(const std::vector<std::string>& words) const
{
    std::vector<std::string> all{"--length", "90500"};
    all.insert(all.end(), words.begin(), words.end());
    RunResult done = run(all);
    EXPECT_EQ(done.status, 0) << done.err;
    return done;
}

std::string ProgramRunner::packet() const
{
    return std::regex_replace(
        contentsOf(folder_ / "out.xmp"),
        std::regex(R"( dc:date="\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[+-]\d{1,2}:00" )"),
        R"( dc:date="DATE" )");
}

std::string ProgramRunner::tracks() const
{
    const std::string before = "<xmpDM:Tracks><rdf:Bag>";
    const std::string whole = packet();
    const std::size_t begin = whole.find(before) + before.size();
    return whole.substr(begin, whole.rfind("</rdf:Bag></xmpDM:Tracks>") - begin);
}

void ProgramRunner::expectFailure(const RunResult& run, const std::string& named,
                                  const std::vector<std::string>& left) const
{
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, testing::StartsWith("publish_video: "));
    EXPECT_THAT(run.err, testing::EndsWith("\nTry 'publish_video --help'.\n"));
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 2) << run.err;
    EXPECT_THAT(run.err, testing::HasSubstr(named));
    EXPECT_EQ(names(), left);
}

std::string captionText(const std::string& language, const std::string& text)
{
    return "<rdf:li xml:lang=\"" + language + "\">" + text + "</rdf:li>";
}

std::string captionMarker(const std::string& start, const std::string& duration,
                          const std::string& texts)
{
    return "<rdf:li><rdf:Description xmpDM:startTime=\"" + start + "\" xmpDM:duration=\"" +
           duration + "\" zelDM:valign=\"bottom\" zelDM:halign=\"center\" ><xmpDM:name><rdf:Alt>" +
           texts + "</rdf:Alt></xmpDM:name></rdf:Description></rdf:li>";
}

std::string captionTrack(const std::string& markers, const std::string& font,
                         const std::string& size)
{
    return "<rdf:li><rdf:Description xmpDM:trackType=\"Caption\" xmpDM:frameRate=\"f1000\" "
           "xmpDM:trackName=\"Captioning\" stFnt:fontFamily=\"" +
           font + "\" zelDM:fontSize=\"" + size +
           "\" zelDM:bgOpacity=\"0.6\" ><xmpDM:markers><rdf:Seq>" + markers +
           "</rdf:Seq></xmpDM:markers>"
           "<zel:fgColor xmpG:red=\"255\" xmpG:green=\"255\" xmpG:blue=\"255\" xmpG:mode=\"RGB\" >"
           "</zel:fgColor>"
           "<zel:bgColor xmpG:red=\"0\" xmpG:green=\"0\" xmpG:blue=\"0\" xmpG:mode=\"RGB\" >"
           "</zel:bgColor></rdf:Description></rdf:li>";
}

std::string tocMarker(const std::string& title, const std::string& start)
{
    return "<rdf:li><rdf:Description xmpDM:name=\"" + title + "\" xmpDM:startTime=\"" + start +
           "\" zelDM:image=\"\" zelDM:imageindex=\"0\" zelDM:imageoffset=\"0\" >"
           "</rdf:Description></rdf:li>";
}

std::string tocTrack(const std::string& markers)
{
    return "<rdf:li><rdf:Description xmpDM:trackType=\"TableOfContents\" "
           "xmpDM:trackName=\"Table of Contents\" xmpDM:frameRate=\"f1000\" zelDM:image=\"\" >"
           "<xmpDM:markers><rdf:Seq>" +
           markers + "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>";
}

std::string screenMarker(const std::string& text, const std::string& start,
                         const std::string& duration, const std::string& entry)
{
    return "<rdf:li><rdf:Description xmpDM:name=\"" + text + "\" xmpDM:startTime=\"" + start +
           "\" xmpDM:duration=\"" + duration +
           "\" xmpDM:image=\"\" zelDM:imageindex=\"0\" zelDM:imageoffset=\"0\" zelDM:tocEntry=\"" +
           entry + "\" ></rdf:Description></rdf:li>";
}

std::string screenTrack(const std::string& markers)
{
    return "<rdf:li><rdf:Description xmpDM:trackType=\"ScreenText\" xmpDM:frameRate=\"f1000\" "
           "xmpDM:trackName=\"Screen Text\" ><xmpDM:markers><rdf:Seq>" +
           markers + "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>";
}
