// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Panels.h"

class QFileDialog;

namespace quillon {

class Settings;

/// The file dialogs of the desktop, modal over the active window. The folder in which each ended is kept in
/// the settings.
class DesktopPanels : public Panels {
  public:
    /// The settings outlive the object.
    explicit DesktopPanels(Settings& userSettings) : settings(userSettings) {}

    std::optional<QString> fileToOpen(PanelUse use, const QList<FileType>& types) override;
    /// A name without extension gets the first one of `types`.
    std::optional<QString> fileToSave(PanelUse use, const QString& proposedName,
                                      const QList<FileType>& types) override;
    QStringList filesAndFoldersToOpen(PanelUse use, const QString& message) override;
    std::optional<QString> folderToWriteTo(PanelUse use, const QString& message,
                                           const QString& button) override;
    LossAnswer answerTo(const LossQuestion& question) override;

    /// The folder of the open log: where a panel for logs begins, and one that was never used.
    void setLogFolder(const QString& path) { logFolder = path; }

  private:
    QString folderFor(PanelUse use) const;
    /// What the user chose in the dialog; empty if it was cancelled.
    QStringList choices(QFileDialog& dialog, PanelUse use);
    std::optional<QString> choice(QFileDialog& dialog, PanelUse use);

    Settings& settings;
    QString logFolder;
};

}  // namespace quillon
