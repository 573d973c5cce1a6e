// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

class QWidget;

namespace quillon {

class LogStore;
class NoticeStrip;
class WorkArea;
struct OpenedFile;

/// Tells the user when a log was opened of which not all was read as it was meant, shows the notes, and reads
/// the file again with their repair.
class ReadingNotices : public QObject {
    Q_OBJECT

  public:
    /// All outlive the object, of which `windowOfQuestions` is the parent.
    ReadingNotices(LogStore& logStore, NoticeStrip& noticeStrip, WorkArea& area, QWidget& windowOfQuestions);

    /// Shows the notes under the table and gives them the keyboard.
    void showNotes();

  signals:
    /// Something happened that is told in passing.
    void noticed(const QString& text);

  private:
    void follow();
    void tell();
    void readAgain();
    void readAgainRepaired();

    LogStore& store;
    NoticeStrip& strip;
    WorkArea& workArea;
    QWidget& window;
    std::shared_ptr<const OpenedFile> known;  ///< The file that the latest report was about.
};

}  // namespace quillon
