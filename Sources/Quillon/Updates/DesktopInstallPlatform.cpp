// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/DesktopInstallPlatform.h"

#include "Quillon/Platform/Archive/Unpacker.h"
#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Files/Descriptor.h"
#include "Quillon/Platform/Files/FolderCopy.h"
#include "Quillon/Platform/Modules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

namespace quillon {

namespace {

std::string onDisk(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

InstallPlatform::Outcome outcome(const std::error_code& error) {
    return error ? InstallPlatform::Outcome(InstallError::ofSystem(error.value())) : std::nullopt;
}

}  // namespace

DesktopInstallPlatform::DesktopInstallPlatform(QString programFolder) : folder(std::move(programFolder)) {}

std::variant<QString, InstallError> DesktopInstallPlatform::tempDirectory() {
    // Not in the folder for temporary files of all: that is often in memory, and anybody may lay traps there.
    const QString caches = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    const QString path = caches + QStringLiteral("/quillon");
    QDir().mkpath(caches);
    if (::mkdir(onDisk(path).c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        return InstallError::ofSystem(errno);
    }
    const Descriptor opened(::open(onDisk(path).c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status = {};
    if (!opened.isOpen() || ::fstat(opened.number(), &status) != 0 || status.st_uid != ::geteuid() ||
        ::fchmod(opened.number(), S_IRWXU) != 0) {
        return InstallError{QStringLiteral("Der Ordner „%1“ gehört nicht dir allein.").arg(path)};
    }
    return path;
}

std::variant<InstallLock, InstallError> DesktopInstallPlatform::lockInstallation(
    const QString& tempDirectory) {
    // Modules are loaded on the main thread, and before anything is done in vain.
    unpacker = qobject_cast<Unpacker*>(moduleRoot(QStringLiteral("QuillonArchive")));
    if (unpacker == nullptr) {
        return InstallError{QStringLiteral("Das Modul für Archive fehlt oder passt nicht zum Programm.")};
    }
    const std::string path = onDisk(tempDirectory + QStringLiteral("/QuillonUpdate.lock"));
    auto file = std::make_shared<Descriptor>(
        ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file->isOpen()) {
        return InstallError::ofSystem(errno);
    }
    // Where the file system has no locks it has to go without.
    if (::flock(file->number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return InstallError{QStringLiteral("Ein anderes Fenster von Quillon installiert gerade.")};
    }
    return InstallLock(std::move(file));
}

QString DesktopInstallPlatform::bundleLocation() {
    const QString around = QFileInfo(folder).path();
    const bool isInBundle =
        QFileInfo(folder).fileName() == QLatin1String("bin") && extensionOf(around) == QLatin1String("app");
    return isInBundle ? around : folder;
}

qint64 DesktopInstallPlatform::processID() {
    return QCoreApplication::applicationPid();
}

InstallPlatform::Outcome DesktopInstallPlatform::spawnDetached(const QString& executable,
                                                               const QStringList& arguments) {
    return QProcess::startDetached(executable, arguments)
               ? std::nullopt
               : Outcome(InstallError{QStringLiteral("„%1“ lässt sich nicht starten.").arg(executable)});
}

void DesktopInstallPlatform::terminateApplication() {
    QCoreApplication::quit();
}

void DesktopInstallPlatform::exitApplication() {
    // Through the end of the event loop, and not of the process: this way what is not saved is kept as at
    // any other end, however long that takes.
    QCoreApplication::exit(0);
}

std::chrono::milliseconds DesktopInstallPlatform::now() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void DesktopInstallPlatform::callLater(std::chrono::milliseconds delay, QObject* context,
                                       std::function<void()> call) {
    QTimer::singleShot(delay, context, std::move(call));
}

bool DesktopInstallPlatform::isWritable(const QString& directory) {
    return ::access(onDisk(directory).c_str(), W_OK | X_OK) == 0;
}

std::variant<QString, InstallError> DesktopInstallPlatform::attach(const QString& image,
                                                                   const InstallWork& work) {
    const auto unpacked = unpacker->unpack(onDisk(image), onDisk(QFileInfo(image).path()),
                                           [&work] { return !work.isCancelled(); });
    if (const auto* const error = std::get_if<UnpackError>(&unpacked)) {
        // No tool runs: the name is that of what is done, the code that of the system's error.
        return error->kind == UnpackError::Kind::notAnArchive
                   ? InstallError::mountFailed()
                   : InstallError::processFailed(QStringLiteral("Entpacken"), error->code,
                                                 QString::fromStdString(error->message));
    }
    return QFile::decodeName(QByteArray::fromStdString(std::get<std::string>(unpacked)));
}

void DesktopInstallPlatform::detach(const QString& mountPoint) {
    static_cast<void>(remove(mountPoint));
}

QStringList DesktopInstallPlatform::list(const QString& directory) {
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                     QDir::Name);
}

bool DesktopInstallPlatform::isApplication(const QString& bundle) {
    const QFileInfo app(bundle);
    const QFileInfo started(program(bundle));
    return app.isDir() && !app.isSymLink() && started.isFile() && started.isExecutable();
}

QString DesktopInstallPlatform::program(const QString& bundle) {
    return bundle + QStringLiteral("/bin/Quillon");
}

InstallPlatform::Outcome DesktopInstallPlatform::move(const QString& from, const QString& to) {
    return std::rename(onDisk(from).c_str(), onDisk(to).c_str()) == 0
               ? std::nullopt
               : Outcome(InstallError::ofSystem(errno));
}

InstallPlatform::Outcome DesktopInstallPlatform::ditto(const QString& from, const QString& to) {
    const int error = copyFolder(onDisk(from), onDisk(to));
    return error == 0 ? std::nullopt
                      : Outcome(InstallError::processFailed(QStringLiteral("Kopieren"), error,
                                                            InstallError::ofSystem(error).text));
}

InstallPlatform::Outcome DesktopInstallPlatform::remove(const QString& path) {
    std::error_code error;
    std::filesystem::remove_all(onDisk(path), error);
    return outcome(error);
}

}  // namespace quillon
