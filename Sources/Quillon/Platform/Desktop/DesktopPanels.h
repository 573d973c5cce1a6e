// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Panels.h"

namespace quillon {

/// The file dialogs of the desktop, modal over the active window. They begin in the folder where the user was
/// last.
class DesktopPanels : public Panels {
  public:
    std::optional<QString> fileToOpen(const QList<FileType>& types) override;
    /// A name without extension gets the first one of `types`.
    std::optional<QString> fileToSave(const QString& proposedName, const QList<FileType>& types) override;
    QStringList filesAndFoldersToOpen(const QString& message) override;
    std::optional<QString> folderToWriteTo(const QString& message, const QString& button) override;
    LossAnswer answerTo(const LossQuestion& question) override;

    /// The folder in which the next panel begins.
    void setFolder(const QString& path) { folder = path; }

  private:
    QString folder;
};

}  // namespace quillon
