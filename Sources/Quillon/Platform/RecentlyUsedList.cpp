// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/RecentlyUsedList.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/Bookmarks.h"
#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Files/Descriptor.h"
#include "Quillon/Platform/Files/Files.h"

#include <QDir>
#include <QLockFile>
#include <QSettings>
#include <QUrl>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <variant>

namespace quillon {

namespace {

constexpr mode_t ownerOnly = 0600;
constexpr off_t largestList = 64 << 20;

std::string mediaType(const QString& path) {
    const QString extension = extensionOf(path).toLower();
    if (extension == QLatin1String("adi") || extension == QLatin1String("adif")) {
        return "application/x-adif";
    }
    if (extension == QLatin1String("adx")) {
        return "application/x-adx+xml";
    }
    if (extension == QLatin1String("cbr") || extension == QLatin1String("cabrillo")) {
        return "text/x-cabrillo";
    }
    return extension == QLatin1String("edi") ? "text/x-reg1test" : "text/plain";
}

Bookmark bookmarkOf(const QString& path, const QDateTime& time) {
    const std::string program = appName().toStdString();
    return {.address = QUrl::fromLocalFile(path).toEncoded().toStdString(),
            .type = mediaType(path),
            .program = program,
            .command = program + " %f",
            .time = time.toUTC().toString(Qt::ISODateWithMs).toStdString()};
}

/// Whether there is a file that only its owner may look into, made just now if there was none.
bool isPrivateFile(const std::string& path) {
    const Descriptor made(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ownerOnly));
    struct stat status = {};
    return (made.isOpen() || errno == EEXIST) && ::stat(path.c_str(), &status) == 0 &&
           S_ISREG(status.st_mode) && status.st_size <= largestList &&
           ((status.st_mode & ALLPERMS) == ownerOnly || ::chmod(path.c_str(), ownerOnly) == 0);
}

bool isSwitchedOff(const QString& file, const QString& key) {
    const QString value = QSettings(file, QSettings::IniFormat).value(key).toString().toLower();
    return value == QLatin1String("false") || value == QLatin1String("0");
}

}  // namespace

void RecentlyUsedList::note(const QString& path, const QDateTime& time) const {
    constexpr int waitMs = 100;
    const QString listPath = folder + QStringLiteral("/recently-used.xbel");
    const std::string list = listPath.toStdString();
    if (!QDir().mkpath(folder)) {
        return;
    }
    QLockFile lock(listPath + QStringLiteral(".lock"));
    if (!lock.tryLock(waitMs) || !isPrivateFile(list)) {
        return;
    }
    const auto content = readFile(list);
    if (const auto* const text = std::get_if<std::string>(&content)) {
        if (const auto changed = withBookmark(*text, bookmarkOf(path, time))) {
            static_cast<void>(replaceFile(list, *changed, Lasting::later));
        }
    }
}

bool desktopRemembersFiles(const QString& configFolder) {
    const QString gtkKey = QStringLiteral("Settings/gtk-recent-files-enabled");
    return !isSwitchedOff(configFolder + QStringLiteral("/kdeglobals"),
                          QStringLiteral("RecentDocuments/UseRecent")) &&
           !isSwitchedOff(configFolder + QStringLiteral("/gtk-3.0/settings.ini"), gtkKey) &&
           !isSwitchedOff(configFolder + QStringLiteral("/gtk-4.0/settings.ini"), gtkKey);
}

}  // namespace quillon
