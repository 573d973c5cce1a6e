#include "Quillon/Platform/Files/Files.h"

#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <string>

namespace quillon {
namespace {

class FilesTest : public ::testing::Test {
  protected:
    std::string path(const char* name) const { return folder.path(QString::fromUtf8(name)).toStdString(); }
    std::string read(const char* name) const {
        const auto result = readFile(path(name));
        const auto* error = std::get_if<FileError>(&result);
        return error != nullptr ? "Fehler: " + error->message : std::get<std::string>(result);
    }
    std::string replace(const std::string& name, std::string_view content) const {
        const auto error = replaceFile(path(name.c_str()), content);
        return error ? error->message : "";
    }
    unsigned mode(const char* name) const {
        struct stat status = {};
        ::lstat(path(name).c_str(), &status);
        return status.st_mode & 07777U;
    }
    bool isLink(const char* name) const {
        struct stat status = {};
        return ::lstat(path(name).c_str(), &status) == 0 && S_ISLNK(status.st_mode);
    }
    void link(const std::string& target, const char* name) const {
        ASSERT_EQ(::symlink(target.c_str(), path(name).c_str()), 0);
    }

    testing::TemporaryFolder folder;
};

using ReadingFile = FilesTest;
using ReplacingFile = FilesTest;

TEST_F(ReadingFile, GivesEveryByte) {
    const std::string every("a\0b\r\n\xFF", 6);
    folder.write("all.bin", every);
    folder.write("leer.adi", "");
    folder.write(QString::fromUtf8("Übung & Größe.adi"), "ü");
    const std::string large(3'000'001, 'x');
    folder.write("large.adi", large);
    EXPECT_EQ(read("all.bin"), every);
    EXPECT_EQ(read("leer.adi"), "");
    EXPECT_EQ(read("Übung & Größe.adi"), "ü");
    EXPECT_EQ(read("large.adi"), large);
}

TEST_F(ReadingFile, DoesNotTrustTheSizeThatTheSystemTells) {
    struct stat status = {};
    ASSERT_EQ(::stat("/proc/self/status", &status), 0);
    ASSERT_EQ(status.st_size, 0);
    const auto content = readFile("/proc/self/status");
    ASSERT_TRUE(std::holds_alternative<std::string>(content));
    EXPECT_NE(std::get<std::string>(content).find("VmRSS"), std::string::npos);
}

TEST_F(ReadingFile, SaysInGermanWhyItFails) {
    ASSERT_EQ(::mkdir(path("folder").c_str(), 0777), 0);
    folder.write("file", "");
    link("loop", "loop");
    const struct {
        std::string name;
        const char* message;
    } cases[] = {
        {"missing.adi", "Fehler: Die Datei existiert nicht."},
        {"folder", "Fehler: Das ist ein Ordner und keine Datei."},
        {"file/log.adi", "Fehler: Ein Teil des Pfads ist kein Ordner."},
        {"loop", "Fehler: Der Pfad führt über zu viele symbolische Verknüpfungen."},
        {std::string(300, 'n'), "Fehler: Der Dateiname ist zu lang."},
    };
    for (const auto& [name, message] : cases) {
        EXPECT_EQ(read(name.c_str()), message) << name;
    }
}

TEST_F(ReplacingFile, LeavesThatFileAndNothingElse) {
    EXPECT_EQ(replace("Grüße.adi", "first, and longer"), "");
    EXPECT_EQ(replace("Grüße.adi", "second"), "");
    EXPECT_EQ(read("Grüße.adi"), "second");
    EXPECT_EQ(folder.names(), "Grüße.adi");
}

TEST_F(ReplacingFile, KeepsPermissionsAndGivesNewFilesTheUsualOnes) {
    const mode_t old = ::umask(027);
    EXPECT_EQ(replace("new", "x"), "");
    ::umask(old);
    EXPECT_EQ(mode("new"), 0640U);
    for (const unsigned wanted : {0600U, 0666U, 0755U}) {
        ASSERT_EQ(::chmod(path("new").c_str(), wanted), 0);
        EXPECT_EQ(replace("new", "y"), "");
        EXPECT_EQ(mode("new"), wanted);
    }
}

TEST_F(ReplacingFile, WritesBehindLinks) {
    ASSERT_EQ(::mkdir(path("logs").c_str(), 0777), 0);
    link("logs/real.adi", "relative");
    link(path("relative"), "absolute");
    for (const char* name : {"relative", "absolute"}) {  // The first of them finds nothing there yet.
        EXPECT_EQ(replace(name, name), "");
        EXPECT_TRUE(isLink(name));
        EXPECT_EQ(read("logs/real.adi"), name);
    }
    link("round", "about");
    link("about", "round");
    EXPECT_EQ(replace("round", "x"), "Der Pfad führt über zu viele symbolische Verknüpfungen.");
}

TEST_F(ReplacingFile, LeavesAllAsItWasWhereItFails) {
    ASSERT_EQ(::mkdir(path("folder").c_str(), 0777), 0);
    EXPECT_EQ(replace("folder", "x"), "Das ist ein Ordner und keine Datei.");
    EXPECT_EQ(replace("missing/log.adi", "x"), "Der Ordner existiert nicht.");
    EXPECT_EQ(replace(std::string(300, 'n'), "x"), "Der Dateiname ist zu lang.");
    EXPECT_EQ(folder.names(), "folder");
}

TEST_F(ReplacingFile, SurvivesADiskThatFillsUp) {
    folder.write("log.adi", "old");
    struct rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit low = {1000, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    const std::string message = replace("log.adi", std::string(5000, 'x'));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(message, "Die Datei ist zu groß.");
    EXPECT_EQ(read("log.adi"), "old");
    EXPECT_EQ(folder.names(), "log.adi");
}

TEST_F(ReplacingFile, WritesIntoPipesInsteadOfReplacingThem) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    const int pipe = ::open(path("pipe").c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(replace("pipe", "abc"), "");
    char received[8] = {};
    EXPECT_EQ(::read(pipe, received, sizeof received), 3);
    EXPECT_STREQ(received, "abc");
    ::close(pipe);
}

}  // namespace
}  // namespace quillon
