// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/Files.h"

#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <string>
#include <tuple>

namespace quillon {
namespace {

class FilesTest : public ::testing::Test {
  protected:
    std::string path(const std::string& name) const {
        return folder.path(QString::fromStdString(name)).toStdString();
    }
    std::string read(const std::string& name) const {
        const auto result = readFile(path(name));
        const auto* error = std::get_if<FileError>(&result);
        return error != nullptr ? "Fehler: " + error->message : std::get<std::string>(result);
    }
    std::string replace(const std::string& name, std::string_view content) const {
        const auto error = replaceFile(path(name), content);
        return error ? error->message : "";
    }
    /// What `replace` says to another user than root, whom nothing is forbidden.
    std::string replaceAsOtherUser(const std::string& name) const {
        int ends[2];
        if (::geteuid() != 0 || ::pipe(ends) != 0) {
            return "(not root)";
        }
        const pid_t child = ::fork();
        if (child == 0) {
            const std::string message =
                ::setegid(65534) == 0 && ::seteuid(65534) == 0 ? replace(name, "x") : "";
            ::_exit(::write(ends[1], message.data(), message.size()) < 0 ? 1 : 0);
        }
        ::waitpid(child, nullptr, 0);
        std::string message(1000, '\0');
        message.resize(static_cast<std::size_t>(std::max<ssize_t>(::read(ends[0], message.data(), 1000), 0)));
        ::close(ends[0]);
        ::close(ends[1]);
        return message;
    }
    struct stat status(const std::string& name) const {
        struct stat result = {};
        ::lstat(path(name).c_str(), &result);
        return result;
    }
    unsigned mode(const std::string& name) const { return status(name).st_mode & 07777U; }
    std::string attribute(const std::string& name, const char* key) const {
        std::string value(1000, '\0');
        const ssize_t length = ::getxattr(path(name).c_str(), key, value.data(), value.size());
        return length < 0 ? "(none)" : value.substr(0, static_cast<std::size_t>(length));
    }
    bool setAttribute(const std::string& name, const char* key, const std::string& value) const {
        return ::setxattr(path(name).c_str(), key, value.data(), value.size(), 0) == 0;
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
    const std::string large(3'000'001, 'x');
    folder.write(QString::fromUtf8("Übung & Größe.bin"), every);
    folder.write("large.adi", large);
    EXPECT_EQ(read("Übung & Größe.bin"), every);
    EXPECT_EQ(read("large.adi"), large);
    // The system tells a size of 0 for it.
    EXPECT_NE(std::get<std::string>(readFile("/proc/self/status")).find("VmRSS"), std::string::npos);
}

TEST_F(ReadingFile, SaysInGermanWhyItFailsAndWaitsForNothing) {
    ASSERT_EQ(::mkdir(path("folder").c_str(), 0777), 0);
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    folder.write("file", "");
    link("loop", "loop");
    link("/dev/zero", "device");
    const std::tuple<std::string, std::string> cases[] = {
        {"missing.adi", "Die Datei existiert nicht."},
        {"folder", "Das ist ein Ordner und keine Datei."},
        {"file/log.adi", "Ein Teil des Pfads ist kein Ordner."},
        {"loop", "Der Pfad führt über zu viele symbolische Verknüpfungen."},
        {std::string(300, 'n'), "Der Dateiname ist zu lang."},
        {"pipe", "Das ist keine gewöhnliche Datei."},
        {"device", "Das ist keine gewöhnliche Datei."},
    };
    for (const auto& [name, message] : cases) {
        EXPECT_EQ(read(name), "Fehler: " + message) << name;
    }
}

TEST_F(ReplacingFile, KeepsWhoMayDoWhatAndGivesNewFilesTheUsualRights) {
    const mode_t old = ::umask(027);
    EXPECT_EQ(replace("new", "x"), "");
    ::umask(old);
    EXPECT_EQ(mode("new"), 0640U);
    const bool isRoot = ::geteuid() == 0;
    ASSERT_EQ(::chown(path("new").c_str(), isRoot ? 4711 : -1U, isRoot ? 4712 : -1U), 0);
    for (const unsigned wanted : {0600U, 0666U, 04755U}) {
        ASSERT_EQ(::chmod(path("new").c_str(), wanted), 0);
        const struct stat before = status("new");
        EXPECT_EQ(replace("new", "y"), "");
        EXPECT_EQ(mode("new"), wanted);
        EXPECT_EQ(status("new").st_uid, before.st_uid);
        EXPECT_EQ(status("new").st_gid, before.st_gid);
    }
}

/// An access control list as the system stores it: owner and one named user have all rights, group and others
/// none.
std::string accessList(char rightsOfNamedUser) {
    const std::string nobody = "\xFF\xFF\xFF\xFF";
    using namespace std::string_literals;
    return "\x02\0\0\0"s + "\x01\0\7\0"s + nobody + "\x02\0"s + rightsOfNamedUser + "\0\x67\x12\0\0"s +
           "\x04\0\0\0"s + nobody + "\x10\0\7\0"s + nobody + "\x20\0\0\0"s + nobody;
}

TEST_F(ReplacingFile, KeepsExtendedAttributesAndAccessLists) {
    constexpr auto list = "system.posix_acl_access";
    folder.write("listed", "x");
    folder.write("unlisted", "x");
    ASSERT_EQ(::chmod(path("unlisted").c_str(), 0660), 0);
    // From now on the folder gives a list to every file that is made in it.
    if (!setAttribute("listed", "user.note", "kept") || !setAttribute("listed", list, accessList(4)) ||
        !setAttribute(".", "system.posix_acl_default", accessList(7))) {
        GTEST_SKIP() << "this file system knows no extended attributes or no access control lists";
    }
    EXPECT_EQ(replace("listed", "y"), "");
    EXPECT_EQ(attribute("listed", "user.note"), "kept");
    EXPECT_EQ(attribute("listed", list), accessList(4));
    EXPECT_EQ(replace("unlisted", "y"), "");
    EXPECT_EQ(attribute("unlisted", list), "(none)");
    EXPECT_EQ(mode("unlisted"), 0660U);
}

TEST_F(ReplacingFile, NamesTheFolderOrTheOwnerThatStandsInTheWay) {
    for (const char* name : {"closed", "open"}) {
        ASSERT_EQ(::mkdir(path(name).c_str(), 0777), 0);
        folder.write(QString(name) + "/log.adi", "old");
        ASSERT_EQ(::chmod(path(std::string(name) + "/log.adi").c_str(), 0666), 0);
    }
    ASSERT_EQ(::chmod(path(".").c_str(), 0755), 0);
    ASSERT_EQ(::chmod(path("closed").c_str(), 0755), 0);
    ASSERT_EQ(::chmod(path("open").c_str(), 0777), 0);
    if (const std::string first = replaceAsOtherUser("closed/log.adi"); first != "(not root)") {
        EXPECT_EQ(first, "Im Ordner „" + path("closed") + "/“ darf keine Datei angelegt werden.");
        EXPECT_EQ(replaceAsOtherUser("open/log.adi"),
                  "Die Datei gehört einem anderen Benutzer und würde ihm durch das Speichern genommen.");
        EXPECT_EQ(read("open/log.adi"), "old");
    } else {
        GTEST_SKIP() << "only root can become another user";
    }
}

TEST_F(ReplacingFile, WritesBehindLinks) {
    ASSERT_EQ(::mkdir(path("logs").c_str(), 0777), 0);
    link("logs/real.adi", "relative");
    link(path("relative"), "absolute");
    for (const char* name : {"relative", "absolute"}) {  // The first of them finds nothing there yet.
        EXPECT_EQ(replace(name, name), "");
        EXPECT_TRUE(S_ISLNK(status(name).st_mode));
        EXPECT_EQ(read("logs/real.adi"), name);
    }
    link("round", "about");
    link("about", "round");
    EXPECT_EQ(replace("round", "x"), "Der Pfad führt über zu viele symbolische Verknüpfungen.");
}

TEST_F(ReplacingFile, LeavesAllAsItWasWhereItFails) {
    ASSERT_EQ(::mkdir(path("folder").c_str(), 0777), 0);
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(replace("folder", "x"), "Das ist ein Ordner und keine Datei.");
    EXPECT_EQ(replace("pipe", "x"), "Das ist keine gewöhnliche Datei.");
    EXPECT_EQ(replace("missing/log.adi", "x"), "Der Ordner existiert nicht.");
    EXPECT_EQ(replace(std::string(300, 'n'), "x"), "Der Dateiname ist zu lang.");
    EXPECT_EQ(folder.names(), "folder pipe");
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

TEST_F(ReplacingFile, LeavesThatFileAndNothingOfTheDead) {
    for (const char* name : {".quillon-0.tmp", ".quillon-1.tmp", ".quillon-2.tmp"}) {
        folder.write(name, "half a lo");
    }
    const int inUse = ::open(path(".quillon-0.tmp").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(inUse, LOCK_EX), 0);
    EXPECT_EQ(replace("Grüße.adi", "first, and longer"), "");
    EXPECT_EQ(folder.names(), ".quillon-0.tmp Grüße.adi");
    ::close(inUse);
    EXPECT_EQ(replace("Grüße.adi", "second"), "");
    EXPECT_EQ(folder.names(), "Grüße.adi");
    EXPECT_EQ(read("Grüße.adi"), "second");
}

}  // namespace
}  // namespace quillon
