// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/UpdateDownload.h"

#include "Quillon/Platform/AppInfo.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

constexpr int mostAttempts = 3;
constexpr std::chrono::milliseconds pauseBeforeRetry(1500);
constexpr std::chrono::milliseconds pauseBetweenProgress(100);

}  // namespace

UpdateDownload::UpdateDownload(HTTPClient& httpClient, InstallPlatform& installPlatform, QUrl archiveAddress,
                               Callbacks callbacks, qint64 mostBytesOfFile)
    : http(httpClient),
      platform(installPlatform),
      address(std::move(archiveAddress)),
      told(std::move(callbacks)),
      mostBytes(mostBytesOfFile) {}

QString UpdateDownload::fileName(const QUrl& address) {
    // What stands behind the last slash once all is decoded; that may still be "..", or hold a zero.
    const QString name = address.fileName(QUrl::FullyDecoded);
    constexpr qsizetype mostBytesOfName = 200;
    const bool isForFile = !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
                           !name.contains(QChar(u'\0')) && name.toUtf8().size() <= mostBytesOfName;
    return isForFile ? name : QStringLiteral("update.tar.xz");
}

void UpdateDownload::start(const QString& folder) {
    if (const auto error = createFile(folder)) {
        end(*error);
        return;
    }
    attempt();
}

std::optional<InstallError> UpdateDownload::createFile(const QString& folder) {
    static_cast<void>(platform.remove(folder));
    if (::mkdir(QFile::encodeName(folder).constData(), S_IRWXU) != 0) {
        return InstallError::ofSystem(errno);
    }
    path = folder + QLatin1Char('/') + fileName(address);
    file = Descriptor(::open(QFile::encodeName(path).constData(),
                             O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    return file.isOpen() ? std::nullopt : std::optional(InstallError::ofSystem(errno));
}

void UpdateDownload::attempt() {
    ++attempts;
    HTTPRequest request;
    request.address = address;
    request.headers = {{"User-Agent", "Quillon/" + appVersion().toUtf8()}};
    if (received > 0) {
        request.headers += {"Range", "bytes=" + QByteArray::number(received) + '-'};
    }
    transfer = http.streamGet(request);
    connect(transfer.get(), &HTTPTransfer::responded, this, &UpdateDownload::takeResponse);
    connect(transfer.get(), &HTTPTransfer::received, this, &UpdateDownload::takeBlock);
    connect(transfer.get(), &HTTPTransfer::ended, this, &UpdateDownload::takeEnd);
    connect(transfer.get(), &HTTPTransfer::failed, this, &UpdateDownload::takeFailure);
}

void UpdateDownload::takeResponse(const HTTPResponse& response) {
    constexpr int whole = 200;
    constexpr int part = 206;
    if (response.status != whole && response.status != part) {
        end(InstallError::httpStatus(response.status));
        return;
    }
    if (response.status == whole) {
        // Whoever ignores the range begins anew.
        if (received > 0 &&
            (::ftruncate(file.number(), 0) != 0 || ::lseek(file.number(), 0, SEEK_SET) != 0)) {
            end(InstallError::ofSystem(errno));
            return;
        }
        received = 0;
        total = response.expectedLength;
    }
    refuseBeyond(response.expectedLength);
}

bool UpdateDownload::refuseBeyond(qint64 more) {
    const bool isTooMuch = more > mostBytes - received;
    if (isTooMuch) {
        end(InstallError{QStringLiteral("Der Download ist größer, als eine Version sein kann.")});
    }
    return isTooMuch;
}

void UpdateDownload::takeBlock(const QByteArray& block) {
    if (refuseBeyond(block.size())) {
        return;
    }
    if (const int error =
            writeAll(file.number(), {block.constData(), static_cast<std::size_t>(block.size())});
        error != 0) {
        end(InstallError::ofSystem(error));
        return;
    }
    received += block.size();
    const auto now = platform.now();
    if (!lastProgress || now - *lastProgress >= pauseBetweenProgress) {
        lastProgress = now;
        told.progressed(total > 0 ? static_cast<double>(received) / static_cast<double>(total) : -1);
    }
}

void UpdateDownload::takeFailure(const HTTPFailure& failure) {
    if (failure.kind != HTTPFailure::Kind::network || attempts == mostAttempts) {
        end(InstallError{failure.description});
        return;
    }
    transfer.reset();
    platform.callLater(pauseBeforeRetry, this, [this] { attempt(); });
}

void UpdateDownload::takeEnd() {
    if (total > 0 && received < total) {
        end(InstallError::truncated());
        return;
    }
    end(path);
}

void UpdateDownload::end(const Result& result) {
    transfer.reset();
    file.close();
    // Who is told may destroy this object, and the function with it.
    const auto ended = std::exchange(told, {}).ended;
    ended(result);
}

}  // namespace quillon
