#pragma once

#include <QWidget>

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

/// The line at the foot of the window: how many QSOs there are, are left by the search and are selected, and
/// the file behind the log.
class StatusLine : public QWidget {
    Q_OBJECT

  public:
    explicit StatusLine(const LogStore& logStore, QWidget* parent = nullptr);

  private:
    void refresh();

    const LogStore& store;
    QLabel* records;
    QLabel* filtered;
    QLabel* selected;
    ElidedLabel* path;
};

}  // namespace quillon
