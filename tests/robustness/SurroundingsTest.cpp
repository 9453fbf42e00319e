/// @file
/// The library in processes with unusual settings, and what it leaves there.

#include "robustness/ChildProcess.h"
#include "robustness/Contents.h"
#include "robustness/Operation.h"
#include "robustness/ProcessState.h"
#include "robustness/Setting.h"
#include "robustness/Subjects.h"
#include "support/TimeZone.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <iostream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace ZelInterchangeData {
namespace {

constexpr auto xmp = ZelDataFormat_Xmp;

/// The outcome of each operation when nothing is unusual.
const std::vector<std::string>& plainOutcomes()
{
    static const std::vector<std::string> outcomes = [] {
        std::vector<std::string> all;
        for (const Operation& operation : allOperations())
            all.push_back(outcomeOf(operation));
        return all;
    }();
    return outcomes;
}

/// The operations whose outcome differs when @p around calls them; "fine" when there is none.
std::string differing(const Around& around)
{
    const auto& plain = plainOutcomes();
    std::string names;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const Operation& operation = allOperations()[i];
        if (outcomeOf(operation, around) != plain[i]) names += operation.name + '\n';
    }
    return names.empty() ? fine : names;
}

class Surroundings : public ::testing::Test {
protected:
    /// A test may empty the environment, which must not change the zone.
    Surroundings()
    {
        unsetenv("TZ");
        tzset();
    }
};

TEST_F(Surroundings, EverySettingTakesEffect)
{
    const std::string before = sampleText();
    EXPECT_EQ("1234567.5 |1234567.5|ANSI_X3.4-1968|I|3 -3|ax", before);
    for (const Setting& setting : allSettings()) {
        const auto place = setting.enter();
        EXPECT_EQ(setting.sample, sampleText()) << setting.name;
    }
    EXPECT_EQ(before, sampleText());
    EXPECT_GE(allSettings().size(), 8U);
}

TEST_F(Surroundings, EveryOperationGivesTheSameUnderEverySetting)
{
    for (const Setting& setting : allSettings()) {
        EXPECT_EQ(fine, differing([&](const std::function<void()>& call) {
                      const auto place = setting.enter();
                      call();
                  }))
            << setting.name;
    }
}

/// What @p document writes as a string and as a file.
std::string written(const i_ZelInterchangeDataCore& document)
{
    std::string packet;
    const TempFile file;
    EXPECT_EQ(ZelData_Ok, document.writeString(packet, xmp, false));
    EXPECT_EQ(ZelData_Ok, document.writeFile(file.path(), xmp, false));
    return dateMasked(packet) + '\n' + dateMasked(file.bytes());
}

TEST_F(Surroundings, ASettingMayChangeBetweenFillingAndWriting)
{
    const auto expected = written(*filledDocument<ZelDataCore>());
    for (const Setting& first : allSettings()) {
        std::unique_ptr<i_ZelInterchangeDataCore> document;
        {
            const auto place = first.enter();
            document = filledDocument<ZelDataCore>();
        }
        for (const Setting& second : allSettings()) {
            const auto place = second.enter();
            EXPECT_EQ(expected, written(*document)) << first.name << "; " << second.name;
        }
    }
}

// Environment

TEST_F(Surroundings, AnEmptyEnvironmentChangesNothing)
{
    plainOutcomes();
    expectFine(inChild([] {
        clearenv();
        return differing(callPlainly);
    }));
    expectFine(inChild([] {
        environ = nullptr;
        return differing(callPlainly);
    }));
}

TEST_F(Surroundings, ALocaleInTheEnvironmentChangesNothing)
{
    plainOutcomes();
    expectFine(inChild([] {
        setenv("LOCPATH", ZELINTERCHANGEDATA_TEST_LOCALES, 1);
        for (const char* name : {"LC_ALL", "LC_NUMERIC", "LC_CTYPE", "LC_TIME", "LANG", "LANGUAGE"})
            setenv(name, "de_DE.ISO-8859-1", 1);
        return differing(callPlainly);
    }));
}

// Zones

struct ZoneDate {
    const char* zone;
    long instant;
    const char* date;
};

constexpr ZoneDate zoneDates[] = {
#include "robustness/zone_dates.inc"
};

TEST_F(Surroundings, DatesFollowTheZone)
{
    static_assert(std::size(zoneDates) >= 40);
    for (const ZoneDate& expected : zoneDates) {
        const TimeZone zone(expected.zone);
        long instant = expected.instant;
        EXPECT_EQ(expected.date, ZelDataUtilities::getDateString(&instant)) << expected.zone;
    }
}

TEST_F(Surroundings, APacketHasTheDateOfTheZone)
{
    const auto document = filledDocument<ZelDataCore>();
    const auto masked = written(*document);
    for (const ZoneDate& other : zoneDates) {
        const TimeZone zone(other.zone);
        std::string packet;
        std::string before;
        std::string after;
        do { // until the second does not change in between
            before = ZelDataUtilities::getDateString(nullptr);
            EXPECT_EQ(ZelData_Ok, document->writeString(packet, xmp, false));
            after = ZelDataUtilities::getDateString(nullptr);
        } while (before != after);
        EXPECT_NE(std::string::npos, packet.find(" dc:date=\"" + before + "\" ")) << other.zone;
        EXPECT_EQ(masked, written(*document)) << other.zone;
    }
}

// Files and streams

template <class Document>
void expectFileUnder(mode_t mask, const std::string& bytes)
{
    const auto document = filledDocument<Document>();
    const TempFile file;
    const mode_t before = umask(mask);
    const auto code = document->writeFile(file.path(), xmp, false);
    EXPECT_EQ(mask, umask(before));
    EXPECT_EQ(ZelData_Ok, code);
    struct stat status {};
    ASSERT_EQ(0, stat(file.path().c_str(), &status));
    EXPECT_EQ(0666 & ~mask, status.st_mode & 0777U);
    ASSERT_EQ(0, chmod(file.path().c_str(), 0600));
    EXPECT_EQ(bytes, dateMasked(file.bytes()));
}

TEST_F(Surroundings, AFileIsWrittenUnderEveryUmask)
{
    const TempFile file;
    EXPECT_EQ(ZelData_Ok, filledDocument<ZelDataCore>()->writeFile(file.path(), xmp, false));
    const auto bytes = dateMasked(file.bytes());
    for (mode_t mask = 0; mask <= 0777; ++mask) {
        SCOPED_TRACE(mask);
        expectFileUnder<ZelDataCore>(mask, bytes);
        expectFileUnder<ZelDataCoreXmp>(mask, bytes);
    }
}

TEST_F(Surroundings, ClosedStandardStreamsChangeNothing)
{
    plainOutcomes();
    for (const auto& closed : {std::vector<int>{0}, {1}, {2}, {1, 2}, {0, 1, 2}}) {
        expectFine(inChild([&]() -> std::string {
            for (const int descriptor : closed)
                close(descriptor);
            auto said = differing(callPlainly);
            for (const int descriptor : closed) {
                if (fcntl(descriptor, F_GETFD) != -1) said += " left open";
            }
            return said;
        }));
    }
}

/// Puts the file at @p path in the place of a standard stream.
void putInPlaceOf(int stream, const std::string& path)
{
    const int descriptor = open(path.c_str(), O_RDWR | O_APPEND);
    EXPECT_EQ(stream, dup2(descriptor, stream));
    close(descriptor);
}

/// Writes one mark in each way to the standard streams.
void mark()
{
    std::cout << "1" << std::flush;
    std::fputs("2", stderr);
    std::cerr << "3" << std::flush;
    std::clog << "4" << std::flush;
    std::fputs("5", stdout);
    std::fflush(nullptr);
    EXPECT_EQ(1, write(STDOUT_FILENO, "6", 1));
    EXPECT_EQ(1, write(STDERR_FILENO, "7", 1));
}

TEST_F(Surroundings, NothingIsPrintedAndNothingRead)
{
    const TempFile input;
    const TempFile output;
    input.fill("input");
    output.fill("");
    expectFine(inChild([&]() -> std::string {
        putInPlaceOf(STDIN_FILENO, input.path());
        putInPlaceOf(STDOUT_FILENO, output.path());
        putInPlaceOf(STDERR_FILENO, output.path());
        mark();
        const auto said = differing(callPlainly);
        mark();
        return lseek(STDIN_FILENO, 0, SEEK_CUR) == 0 ? said : "input was read";
    }));
    EXPECT_EQ(2U * 7U, output.bytes().size()) << "only mark() writes";
    EXPECT_EQ("input", input.bytes());
}

// The process

void handler(int /*signal*/) {}

/// Makes the state of the process unusual, so that a library that corrects it is noticed.
void makeUnusual(const std::string& folder)
{
    std::filesystem::current_path(folder);
    umask(0137);
    setenv("TZ", "Asia/Kathmandu", 1);
    setenv("LANG", "de_DE.ISO-8859-1", 1);
    std::signal(SIGPIPE, handler);
    std::signal(SIGXFSZ, SIG_IGN);
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    sigprocmask(SIG_BLOCK, &blocked, nullptr);
    std::cout << std::hex << std::showbase;
    std::fesetround(FE_UPWARD);
}

/// The operations that change the state of the process, and what they change; "fine" when none does.
std::string changes()
{
    std::string all;
    for (const Operation& operation : allOperations()) {
        const Subject subject = operation.make();
        Outs outs;
        std::feclearexcept(FE_ALL_EXCEPT);
        const auto before = processState();
        mayRefuse(subject.call(outs));
        const auto found = difference(before, processState());
        if (!found.empty()) all += operation.name + ": " + found;
    }
    return all.empty() ? fine : all;
}

TEST_F(Surroundings, NoOperationChangesTheProcess)
{
    const std::string folder = ::testing::TempDir();
    expectFine(inChild([] { return changes(); }));
    expectFine(inChild([&] {
        makeUnusual(folder);
        const auto place = allSettings().front().enter();
        return changes();
    }));
}

} // namespace
} // namespace ZelInterchangeData
