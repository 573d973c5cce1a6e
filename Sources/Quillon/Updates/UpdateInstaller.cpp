// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/UpdateInstaller.h"

#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Files/Descriptor.h"
#include "Quillon/Updates/UpdateDownload.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QUrl>
#include <QUuid>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <exception>
#include <utility>

namespace quillon {

namespace {

using Kind = UpdateInstaller::Phase::Kind;
using Outcome = InstallPlatform::Outcome;

/// What a step says that nobody waits for any more.
InstallError givenUp() {
    return {QStringLiteral("Die Installation wurde abgebrochen.")};
}

Outcome checkSum(const QString& dmg, const QString& expectedSHA256, const InstallWork& work) {
    if (expectedSHA256.isEmpty()) {
        return InstallError::noChecksum();
    }
    const Descriptor file(::open(QFile::encodeName(dmg).constData(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen()) {
        return InstallError::ofSystem(errno);
    }
    constexpr qsizetype blockBytes = 4'194'304;
    QByteArray block(blockBytes, Qt::Uninitialized);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    while (!work.isCancelled()) {
        const ssize_t count = ::read(file.number(), block.data(), static_cast<std::size_t>(block.size()));
        if (count < 0 && errno != EINTR) {
            return InstallError::ofSystem(errno);
        }
        if (count == 0) {
            const QString found = QString::fromLatin1(hash.result().toHex());
            return found == expectedSHA256 ? std::nullopt : Outcome(InstallError::checksumMismatch());
        }
        hash.addData(QByteArrayView(block.constData(), std::max<ssize_t>(count, 0)));
    }
    return givenUp();
}

/// The paths that an installation in place of one bundle deals with.
struct Places {
    QString directory;  ///< Ends without a slash, unless it is the root.
    QString bundle;
    QString staged;  ///< Where the new bundle is made, beside the old one.
    QString backup;  ///< Where the old bundle waits.

    explicit Places(const QString& bundlePath) : bundle(bundlePath) {
        const qsizetype slash = bundle.lastIndexOf(QLatin1Char('/'));
        directory = slash > 0 ? bundle.left(slash) : QStringLiteral("/");
        const QString name = bundle.mid(slash + 1);
        hidden = bundle.left(slash + 1) + QLatin1Char('.') + name;
        const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
        staged = hidden + QStringLiteral(".new-") + id;
        backup = hidden + QStringLiteral(".old-") + id;
    }

    /// Removes what installations that were interrupted left beside the bundle.
    void tidy(InstallPlatform& platform) const {
        const qsizetype start = bundle.lastIndexOf(QLatin1Char('/')) + 1;
        const QRegularExpression ours(QRegularExpression::anchoredPattern(
            QRegularExpression::escape(hidden.mid(start)) +
            QStringLiteral("\\.(old|new)-[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}")));
        for (const QString& name : platform.list(directory)) {
            if (ours.match(name).hasMatch()) {
                static_cast<void>(platform.remove(bundle.left(start) + name));
            }
        }
    }

  private:
    QString hidden;
};

/// Puts the bundle at `newApp` in the place of the running one.
///
/// It is copied before the old one is moved, so that between the two there is but the time of a renaming: a
/// program that dies, or a machine, in all the time that the copying takes leaves the old bundle in its
/// place.
Outcome replaceBundle(InstallPlatform& platform, const QString& newApp, const Places& places,
                      const InstallWork& work) {
    if (auto error = platform.ditto(newApp, places.staged)) {
        static_cast<void>(platform.remove(places.staged));
        return error;
    }
    if (work.isCancelled()) {
        static_cast<void>(platform.remove(places.staged));
        return givenUp();
    }
    if (auto error = platform.move(places.bundle, places.backup)) {
        static_cast<void>(platform.remove(places.staged));
        return error;
    }
    if (auto error = platform.move(places.staged, places.bundle)) {
        static_cast<void>(platform.remove(places.bundle));
        if (platform.move(places.backup, places.bundle)) {
            error->text += QStringLiteral("\nDas bisherige Programm liegt in %1.").arg(places.backup);
        } else {
            static_cast<void>(platform.remove(places.staged));
        }
        return error;
    }
    static_cast<void>(platform.remove(places.backup));
    places.tidy(platform);
    return std::nullopt;
}

Outcome install(InstallPlatform& platform, const QString& dmg, const QString& bundle,
                const InstallWork& work) {
    if (extensionOf(bundle) != QLatin1String("app")) {
        return InstallError::notAnAppBundle(bundle);
    }
    const Places places(bundle);
    if (!platform.isWritable(places.directory)) {
        return InstallError::targetNotWritable(places.directory);
    }
    const auto attached = platform.attach(dmg, work);
    if (const auto* const error = std::get_if<InstallError>(&attached)) {
        return *error;
    }
    const QString& mountPoint = std::get<QString>(attached);
    const auto detach = qScopeGuard([&] { platform.detach(mountPoint); });
    const QStringList names = platform.list(mountPoint);
    const auto app = std::find_if(names.begin(), names.end(),
                                  [](const QString& name) { return name.endsWith(QLatin1String(".app")); });
    if (app == names.end() || !platform.isApplication(mountPoint + QLatin1Char('/') + *app)) {
        return InstallError::appNotFoundInDMG();
    }
    return replaceBundle(platform, mountPoint + QLatin1Char('/') + *app, places, work);
}

/// As one word for a shell, whatever is in it.
QString quotedForShell(QString text) {
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

}  // namespace

UpdateInstaller::UpdateInstaller(HTTPClient& httpClient, InstallPlatform& installPlatform, QObject* parent)
    : QObject(parent), http(httpClient), platform(installPlatform) {}

UpdateInstaller::~UpdateInstaller() = default;

void UpdateInstaller::downloadAndInstall(const QString& dmgURL, const std::optional<QString>& sha256) {
    if (currentPhase.kind != Kind::idle && currentPhase.kind != Kind::failed) {
        return;
    }
    const QUrl address(dmgURL);
    if (!isOnTheWeb(address)) {
        fail(InstallError::badURL());
        return;
    }
    const auto temporary = platform.tempDirectory();
    if (const auto* const error = std::get_if<InstallError>(&temporary)) {
        fail(*error);
        return;
    }
    // Taken first of all, for another program's download lies where this one's will.
    auto locked = platform.lockInstallation(std::get<QString>(temporary));
    if (const auto* const error = std::get_if<InstallError>(&locked)) {
        fail(*error);
        return;
    }
    lock = std::get<InstallLock>(std::move(locked));
    setPhase({Kind::downloading, 0, {}});
    const auto ended = [this, sha256](const UpdateDownload::Result& result) {
        const UpdateDownload::Result file = result;
        download.reset();
        if (const auto* const error = std::get_if<InstallError>(&file)) {
            fail(*error);
        } else {
            verify(std::get<QString>(file), sha256);
        }
    };
    download = std::make_unique<UpdateDownload>(
        http, platform, address,
        UpdateDownload::Callbacks{[this](double progress) {
                                      setPhase({Kind::downloading, progress, {}});
                                  },
                                  ended});
    download->start(std::get<QString>(temporary) + QStringLiteral("/QuillonUpdate"));
}

void UpdateInstaller::verify(const QString& dmg, const std::optional<QString>& sha256) {
    setPhase({Kind::verifying, 0, {}});
    const QString expected = sha256.value_or(QString()).toLower().trimmed();
    run([dmg, expected](const InstallWork& running) { return checkSum(dmg, expected, running); },
        [this, dmg] { performInstall(dmg); });
}

void UpdateInstaller::performInstall(const QString& dmg) {
    setPhase({Kind::installing, 0, {}});
    const QString bundle = platform.bundleLocation();
    run([this, dmg, bundle](const InstallWork& running) { return install(platform, dmg, bundle, running); },
        [this, bundle] { relaunch(bundle); });
}

void UpdateInstaller::relaunch(const QString& bundle) {
    setPhase({Kind::relaunching, 0, {}});
    // By their names alone: where they lie differs from one system to the next.
    const QString line =
        QStringLiteral("while kill -0 %1 2>/dev/null; do sleep 0.2; done; exec %2")
            .arg(QString::number(platform.processID()), quotedForShell(platform.program(bundle)));
    if (const auto error = platform.spawnDetached(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), line})) {
        fail(*error);
        return;
    }
    constexpr std::chrono::milliseconds patience(1500);
    // In case anything refuses. On the way out the window of this object may be closed, and the object with
    // it.
    platform.callLater(patience, platform.lifetime(), [&system = platform] { system.exitApplication(); });
    platform.terminateApplication();
}

void UpdateInstaller::run(std::function<Outcome(const InstallWork&)> step, std::function<void()> next) {
    work.start<InstallWork>([this, step = std::move(step),
                             next = std::move(next)](InstallWork& running) -> BackgroundWork::TakeOver {
        Outcome error;
        try {
            error = step(running);
        } catch (const std::exception&) {
            error = InstallError{QStringLiteral("Der Arbeitsspeicher reicht dafür nicht.")};
        }
        return [this, error, next] {
            if (error) {
                fail(*error);
            } else {
                next();
            }
        };
    });
}

void UpdateInstaller::setPhase(Phase phase) {
    if (phase != currentPhase) {
        currentPhase = std::move(phase);
        emit phaseChanged();
    }
}

void UpdateInstaller::fail(const InstallError& error) {
    lock.reset();
    setPhase({Kind::failed, 0, error.text});
}

}  // namespace quillon
