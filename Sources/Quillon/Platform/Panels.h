// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quillon {

/// A kind of file that a panel offers.
struct FileType {
    QString label;           ///< In German, such as "ADIF-Dateien".
    QStringList extensions;  ///< Without dot; empty means any file.
};

/// What the user is asked before a log is written that would not come back whole.
struct LossQuestion {
    QString text;        ///< One or two sentences.
    QStringList losses;  ///< A line for each of the first, and one for the number of the rest.
    /// The other format in which all would come back, such as "ADX"; empty if there is none.
    QString otherFormat;
};
enum class LossAnswer { saveAnyway, otherFormat, cancel };

/// What a panel is shown for. Each begins in the folder in which it ended last.
enum class PanelUse { openLog, saveLog, exportLog, outdoorFiles, comparedSide, crossCheckLogs, reports };

/// The questions that the stores ask the user. The real ones are modal dialogs; tests answer by themselves.
class Panels {
  public:
    Panels() = default;
    Panels(const Panels&) = delete;
    Panels& operator=(const Panels&) = delete;
    virtual ~Panels() = default;

    /// One existing file, absent if the user cancels. Every file may be chosen; `types` are what is offered
    /// first.
    virtual std::optional<QString> fileToOpen(PanelUse use, const QList<FileType>& types) = 0;
    /// A place to write to, absent if the user cancels. The panel has asked about replacing a file that is
    /// there.
    virtual std::optional<QString> fileToSave(PanelUse use, const QString& proposedName,
                                              const QList<FileType>& types) = 0;
    /// Existing files and folders, of any kind; none if the user cancels. `message` says what for.
    virtual QStringList filesAndFoldersToOpen(PanelUse use, const QString& message) = 0;
    /// An existing folder, which may have been made just now; absent if the user cancels. `button` is what
    /// the user presses to go on.
    virtual std::optional<QString> folderToWriteTo(PanelUse use, const QString& message,
                                                   const QString& button) = 0;
    /// Whether to write a log of which something would be lost. Only with an `otherFormat` is that an answer.
    virtual LossAnswer answerTo(const LossQuestion& question) = 0;
};

}  // namespace quillon
