// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <cstddef>

class QLabel;

namespace quillon {

class ElidedLabel;
class LogStore;

/// What the status line says, from left to right; a text that does not apply is empty.
struct StatusTexts {
    QString records;
    QString filtered;
    QString selected;
    QString path;

    friend bool operator==(const StatusTexts&, const StatusTexts&) = default;
};

StatusTexts statusTexts(const LogStore& store);

/// Such as "1 QSO" or "100.000 QSOs".
QString qsoCount(std::size_t count);

/// The line at the foot of the window: how many QSOs there are, are left by the search and are selected, and
/// the file behind the log. What was done last can be told there, too, until something changes.
class StatusLine : public QWidget {
    Q_OBJECT

  public:
    explicit StatusLine(const LogStore& logStore, QWidget* parent = nullptr);

    /// Tells `text` until log, file, search or selection change.
    void showNotice(const QString& text);
    /// Shows `pathOfOther` in the place of the log's own path for a while: until it is empty.
    void showPath(const QString& pathOfOther);

  private:
    void refresh();
    void refreshPath();

    const LogStore& store;
    QLabel* records;
    QLabel* filtered;
    QLabel* selected;
    ElidedLabel* notice;
    ElidedLabel* path;
    QString otherPath;
};

}  // namespace quillon
