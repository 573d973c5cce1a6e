// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

#include <memory>

namespace quillon {

/// Looks whether files are there without waiting for them: on a server that has gone, a look takes minutes.
class PresenceCheck : public QObject {
    Q_OBJECT

  public:
    explicit PresenceCheck(QObject* parent = nullptr);
    /// Waits for nothing; what is still looked for is dropped.
    ~PresenceCheck() override;

    /// Asks for the file at `path`. Nothing happens while an earlier look at it lasts.
    void look(const QString& path);

  signals:
    /// Whether there is such a file, as far as the system tells. From the event loop.
    void looked(const QString& path, bool isThere);

  private:
    struct Channel;

    void take(const QString& path, bool isThere);

    std::shared_ptr<Channel> channel;  ///< Shared with the threads that look.
    QSet<QString> underWay;
};

}  // namespace quillon
