/// @file
/// Runs the built program in a temporary folder.

#ifndef ZELINTERCHANGEDATA_TESTS_EXAMPLES_PROGRAMRUNNER_H
#define ZELINTERCHANGEDATA_TESTS_EXAMPLES_PROGRAMRUNNER_H

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// The result of a run of the program.
struct RunResult {
    /// The exit status; negative when a signal ended the run.
    int status = -1;
    std::string out;
    std::string err;
};

std::string contentsOf(const std::filesystem::path& file);

/// Runs the shell script @p script, in which "$@" stands for @p words.
RunResult runShell(const std::string& script, const std::vector<std::string>& words);

/// A test with a temporary folder and the program.
class ProgramRunner : public testing::Test {
protected:
    ProgramRunner();
    ~ProgramRunner() override;
    ProgramRunner(const ProgramRunner&) = delete;
    ProgramRunner& operator=(const ProgramRunner&) = delete;

    /// The path of a file in the folder.
    std::string pathOf(const std::string& name) const { return (folder_ / name).string(); }
    /// Makes a file in the folder; returns its path.
    std::string write(const std::string& name, const std::string& bytes) const;
    /// The names of the folder's files, in order.
    std::vector<std::string> names() const;

    /// Runs the program with @p words only, and calls @p meanwhile with its process.
    static RunResult runAlone(const std::vector<std::string>& words,
                              const std::function<void(int)>& meanwhile = {});
    /// Runs the program with an output in the folder, a size, and @p words.
    RunResult run(const std::vector<std::string>& words) const;
    /// As run(), with a length, and expects success.
    RunResult publish(const std::vector<std::string>& words) const;

    /// The written packet's file, with the date of writing replaced by "DATE".
    std::string packet() const;
    /// The text between the tags of the packet's tracks.
    std::string tracks() const;

    /// Expects that @p run failed with one line that names @p named, and one with the way to the
    /// help, and that no file but @p left is in the folder.
    void expectFailure(const RunResult& run, const std::string& named,
                       const std::vector<std::string>& left) const;

private:
    std::filesystem::path folder_;
};

/// @name The packet's tracks, as text
/// @{
std::string captionText(const std::string& language, const std::string& text);
std::string captionMarker(const std::string& start, const std::string& duration,
                          const std::string& texts);
std::string captionTrack(const std::string& markers, const std::string& font = "Helvetica",
                         const std::string& size = "20");
std::string tocMarker(const std::string& title, const std::string& start);
std::string tocTrack(const std::string& markers);
std::string screenMarker(const std::string& text, const std::string& start,
                         const std::string& duration, const std::string& entry);
std::string screenTrack(const std::string& markers);
/// @}

#endif
