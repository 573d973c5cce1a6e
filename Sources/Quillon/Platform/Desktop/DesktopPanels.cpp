// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/DesktopPanels.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Platform/Desktop/LossDialog.h"
#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Settings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHash>
#include <QHeaderView>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTreeView>

#include <algorithm>
#include <string>

namespace quillon {

namespace {

/// Such as "*.adi": desktops differ in whether a pattern minds the case, so that both cases are named.
QStringList patterns(const FileType& type) {
    QStringList result;
    for (const QString& extension : type.extensions) {
        result.append(QStringLiteral("*.") + extension);
        result.append(QStringLiteral("*.") + extension.toUpper());
    }
    return result;
}

QString filter(const QString& label, const QStringList& patterns) {
    return label + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
}

/// What the panel shows at first are all files of `types`; then each kind by itself, and at last any file.
QStringList nameFilters(const QList<FileType>& types) {
    QStringList labels;
    QHash<QString, QStringList> byLabel;
    QStringList all;
    for (const FileType& type : types) {
        if (type.extensions.isEmpty()) {
            continue;
        }
        if (!labels.contains(type.label)) {
            labels.append(type.label);
        }
        byLabel[type.label] += patterns(type);
        all += patterns(type);
    }
    QStringList result;
    if (labels.size() > 1) {
        result.append(filter(QStringLiteral("Logdateien"), all));
    }
    for (const QString& label : labels) {
        result.append(filter(label, byLabel[label]));
    }
    result.append(QStringLiteral("Alle Dateien (*)"));
    return result;
}

QString firstExtension(const QList<FileType>& types) {
    for (const FileType& type : types) {
        if (!type.extensions.isEmpty()) {
            return type.extensions.first();
        }
    }
    return {};
}

/// Tells files by their names. Qt's own provider reads in every file that a panel lists, which takes long on
/// a slow disk and for ever where a file of the kernel has nothing to say.
class IconsByName : public QFileIconProvider {
  public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& file) const override {
        return QFileIconProvider::icon(file.isDir() ? QFileIconProvider::Folder : QFileIconProvider::File);
    }
    QString type(const QFileInfo& file) const override {
        if (file.isDir()) {
            return QStringLiteral("Ordner");
        }
        const QString extension = extensionOf(file.fileName());
        return extension.isEmpty() ? QStringLiteral("Datei") : extension.toUpper() + QStringLiteral("-Datei");
    }
};

/// Room for sizes and dates as they are written here: Qt reckons with those of another country.
void widenColumns(const QFileDialog& dialog) {
    const auto* const files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr) {
        return;  // The desktop has a dialog of its own.
    }
    constexpr int sizeColumn = 1;
    constexpr int dateColumn = 3;
    constexpr int margins = 20;
    const QDateTime longDate(QDate(2028, 8, 28), QTime(20, 48, 48));
    const auto widen = [files](int column, const QString& longest) {
        const int width = files->fontMetrics().horizontalAdvance(longest) + margins;
        files->header()->resizeSection(column, std::max(width, files->header()->sectionSize(column)));
    };
    widen(sizeColumn, QLocale::system().formattedDataSize(1'000'000));
    widen(dateColumn, QLocale::system().toString(longDate, QLocale::ShortFormat));
}

void setUp(QFileDialog& dialog) {
    static IconsByName icons;
    dialog.setIconProvider(&icons);
    dialog.resize(dialog.size().expandedTo(QSize(860, 520)));
    widenColumns(dialog);
}

void setUp(QFileDialog& dialog, const QList<FileType>& types) {
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(nameFilters(types));
    setUp(dialog);
}

/// A panel for files that takes folders as well. Dialogs of the desktop take either.
class FilesAndFoldersDialog : public QFileDialog {
  public:
    FilesAndFoldersDialog(QWidget* parent, const QString& title, const QString& folder)
        : QFileDialog(parent, title, folder) {
        setOption(DontUseNativeDialog);
        setFileMode(ExistingFiles);
    }

    void accept() override {
        // Qt's own would open a folder in the panel, which a double click does still.
        const QStringList chosen = selectedFiles();
        const bool hasFolder = std::any_of(chosen.begin(), chosen.end(),
                                           [](const QString& path) { return QFileInfo(path).isDir(); });
        if (hasFolder) {
            QDialog::accept();
        } else {
            QFileDialog::accept();
        }
    }
};

bool mayReplace(const QString& path) {
    const std::string name = tallyrig::text::visibleText(QFileInfo(path).fileName().toStdString());
    QMessageBox question(QMessageBox::Warning, QStringLiteral("Speichern unter"),
                         QStringLiteral("„%1“ ist schon vorhanden.\nSoll die Datei ersetzt werden?")
                             .arg(QString::fromStdString(name)),
                         QMessageBox::NoButton, QApplication::activeWindow());
    question.setTextFormat(Qt::PlainText);
    const QPushButton* const replace =
        question.addButton(QStringLiteral("Ersetzen"), QMessageBox::DestructiveRole);
    question.setDefaultButton(question.addButton(QStringLiteral("Abbrechen"), QMessageBox::RejectRole));
    question.exec();
    return question.clickedButton() == replace;
}

/// Where a path is typed Qt marks the folders on the way to it, and tells them as if they were chosen, too.
QStringList withoutParents(const QStringList& paths) {
    QStringList chosen;
    for (const QString& path : paths) {
        const bool isOnTheWay = std::any_of(paths.begin(), paths.end(), [&path](const QString& other) {
            return other.startsWith(path + QLatin1Char('/'));
        });
        if (!isOnTheWay) {
            chosen.append(path);
        }
    }
    return chosen;
}

bool isForTheLog(PanelUse use) {
    return use == PanelUse::openLog || use == PanelUse::saveLog;
}

QString settingOf(PanelUse use) {
    switch (use) {
        case PanelUse::openLog:
            return QStringLiteral("folder.open");
        case PanelUse::saveLog:
            return QStringLiteral("folder.save");
        case PanelUse::exportLog:
            return QStringLiteral("folder.export");
        case PanelUse::outdoorFiles:
            return QStringLiteral("folder.outdoor");
        case PanelUse::comparedSide:
            return QStringLiteral("folder.compare");
        case PanelUse::crossCheckLogs:
            return QStringLiteral("folder.crossCheck");
        case PanelUse::reports:
            return QStringLiteral("folder.reports");
    }
    return {};
}

}  // namespace

QString DesktopPanels::folderFor(PanelUse use) const {
    const QString kept = settings.string(settingOf(use));
    const QString opened = settings.string(settingOf(PanelUse::openLog));
    const QStringList wanted =
        isForTheLog(use) ? QStringList{logFolder, kept, opened} : QStringList{kept, logFolder, opened};
    for (const QString& folder : wanted) {
        // One on a stick may be gone.
        if (folder.startsWith(QLatin1Char('/')) && QFileInfo(folder).isDir()) {
            return folder;
        }
    }
    return {};
}

QStringList DesktopPanels::choices(QFileDialog& dialog, PanelUse use) {
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    const QStringList paths = withoutParents(dialog.selectedFiles());
    if (paths.isEmpty()) {
        return {};
    }
    // What is written to a folder is likely to go there the next time, too.
    const bool isFolder = dialog.fileMode() == QFileDialog::Directory;
    const QString folder = isFolder ? paths.constFirst() : folderOf(paths.constFirst());
    settings.setValue(settingOf(use), folder);
    if (isForTheLog(use)) {
        logFolder = folder;
    }
    // The store now reads or writes the file; it returns to the event loop when it is done.
    showBusyCursorUntilIdle();
    return paths;
}

std::optional<QString> DesktopPanels::choice(QFileDialog& dialog, PanelUse use) {
    const QStringList paths = choices(dialog, use);
    return paths.isEmpty() ? std::nullopt : std::optional(paths.constFirst());
}

std::optional<QString> DesktopPanels::fileToOpen(PanelUse use, const QList<FileType>& types) {
    QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Öffnen"), folderFor(use));
    dialog.setFileMode(QFileDialog::ExistingFile);
    setUp(dialog, types);
    return choice(dialog, use);
}

std::optional<QString> DesktopPanels::fileToSave(PanelUse use, const QString& proposedName,
                                                 const QList<FileType>& types) {
    QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Speichern unter"), folderFor(use));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    setUp(dialog, types);
    // The dialog would ask in other words, and some desktops' would not ask about a name that gets its
    // extension here.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectFile(proposedName);
    while (auto path = choice(dialog, use)) {
        if (extensionOf(*path).isEmpty() && !QFileInfo::exists(*path)) {
            *path += QLatin1Char('.') + firstExtension(types);
        }
        if (!QFileInfo::exists(*path) || mayReplace(*path)) {
            return path;
        }
    }
    return std::nullopt;
}

QStringList DesktopPanels::filesAndFoldersToOpen(PanelUse use, const QString& message) {
    FilesAndFoldersDialog dialog(QApplication::activeWindow(), message, folderFor(use));
    setUp(dialog);
    return choices(dialog, use);
}

std::optional<QString> DesktopPanels::folderToWriteTo(PanelUse use, const QString& message,
                                                      const QString& button) {
    QFileDialog dialog(QApplication::activeWindow(), message, folderFor(use));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setLabelText(QFileDialog::Accept, button);
    setUp(dialog);
    return choice(dialog, use);
}

LossAnswer DesktopPanels::answerTo(const LossQuestion& question) {
    LossDialog dialog(question, QApplication::activeWindow());
    dialog.exec();
    if (dialog.answer() != LossAnswer::cancel) {
        showBusyCursorUntilIdle();
    }
    return dialog.answer();
}

}  // namespace quillon
