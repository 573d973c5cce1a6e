// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/DesktopPanels.h"

#include "Quillon/Platform/Desktop/LossDialog.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/TemporaryFolder.h"
#include "Quillon/Support/WidgetSearch.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

namespace quillon {
namespace {

const QList<FileType> types = {{QStringLiteral("EDI-Dateien"), {QStringLiteral("edi")}}};

/// Calls `act` with the dialog of this kind as soon as it is open.
template <typename Dialog, typename Act>
void whenShown(Act act) {
    QTimer::singleShot(0, qApp, [act] {
        if (auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            act(*dialog);
        } else {
            whenShown<Dialog>(act);
        }
    });
}

void choose(QFileDialog& panel, const QString& name) {
    panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
    static_cast<QDialog&>(panel).accept();
}

TEST(FilePanel, TellsFilesByTheirNames) {
    const testing::TemporaryFolder folder;
    testing::MemorySettings settings;
    DesktopPanels panels(settings);
    panels.setLogFolder(folder.path(QStringLiteral(".")));
    QString told;
    whenShown<QFileDialog>([&](QFileDialog& panel) {
        const auto typeOf = [&](const QString& path) { return panel.iconProvider()->type(QFileInfo(path)); };
        told = typeOf(folder.path(QStringLiteral("."))) + u' ' + typeOf(QStringLiteral("/none/a.adi")) +
               u' ' + typeOf(QStringLiteral("/none/a"));
        panel.reject();
    });
    EXPECT_EQ(panels.fileToOpen(PanelUse::openLog, types), std::nullopt);
    EXPECT_EQ(told.toStdString(), "Ordner ADI-Datei Datei");
}

TEST(LossPanel, GivesTheAnswerThatTheUserPresses) {
    testing::MemorySettings settings;
    DesktopPanels panels(settings);
    LossQuestion question{QStringLiteral("Frage"), {QStringLiteral("eins"), QStringLiteral("zwei")}, {}};
    const auto answerBy = [&](const char* button) {
        whenShown<LossDialog>([button](LossDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QPlainTextEdit*>()->toPlainText(), QStringLiteral("eins\nzwei"));
            QAbstractButton* const wanted = testing::shownButton(dialog, QString::fromUtf8(button));
            wanted != nullptr ? wanted->click() : dialog.reject();
        });
        return panels.answerTo(question);
    };
    EXPECT_EQ(answerBy("Als ADX &speichern…"), LossAnswer::cancel) << "not offered";
    question.otherFormat = QStringLiteral("ADX");
    EXPECT_EQ(answerBy("Als ADX &speichern…"), LossAnswer::otherFormat);
    EXPECT_EQ(answerBy("&Trotzdem speichern"), LossAnswer::saveAnyway);
    EXPECT_EQ(answerBy("&Abbrechen"), LossAnswer::cancel);
}

TEST(Panels, BeginWhereThePanelForThisEndedInTheLastRun) {
    const testing::TemporaryFolder folder;
    const QDir root(QFileInfo(folder.path(QStringLiteral("."))).canonicalFilePath());
    for (const char* const name : {"log", "exports", "logs"}) {
        ASSERT_TRUE(root.mkdir(QString::fromUtf8(name)));
    }
    testing::MemorySettings settings;
    const auto choosesIn = [&](const char* begin, const char* name) {
        whenShown<QFileDialog>([=, &root](QFileDialog& panel) {
            EXPECT_EQ(root.relativeFilePath(panel.directory().absolutePath()).toStdString(), begin);
            choose(panel, root.filePath(QString::fromUtf8(name)));
        });
    };
    const auto run = [&](const char* exports, const char* reports, const char* saves) {
        DesktopPanels panels(settings);
        panels.setLogFolder(root.filePath(QStringLiteral("log")));
        choosesIn(exports, "exports/new.edi");
        EXPECT_TRUE(panels.fileToSave(PanelUse::exportLog, QStringLiteral("log.edi"), types));
        choosesIn(reports, "logs");
        EXPECT_TRUE(panels.folderToWriteTo(PanelUse::reports, QString(), QString()));
        choosesIn(saves, "new.edi");
        EXPECT_TRUE(panels.fileToSave(PanelUse::saveLog, QStringLiteral("log.edi"), types));
    };
    run("log", "log", "log");
    run("exports", "logs", "log");
    // A folder that is gone, and a setting that is none.
    ASSERT_TRUE(root.rmdir(QStringLiteral("logs")));
    settings.setValue(QStringLiteral("folder.export"), 17);
    DesktopPanels panels(settings);
    panels.setLogFolder(root.filePath(QStringLiteral("log")));
    choosesIn("log", "exports/new.edi");
    EXPECT_TRUE(panels.fileToSave(PanelUse::exportLog, QStringLiteral("log.edi"), types));
    choosesIn("log", "exports");
    EXPECT_TRUE(panels.folderToWriteTo(PanelUse::reports, QString(), QString()));
}

TEST(FolderPanel, TakesFilesAndFoldersTogetherAndAFolderAlone) {
    const testing::TemporaryFolder folder;
    testing::MemorySettings settings;
    DesktopPanels panels(settings);
    panels.setLogFolder(folder.path(QStringLiteral(".")));
    QDir(folder.path(QStringLiteral("."))).mkdir(QStringLiteral("logs"));
    folder.write(QStringLiteral("a.adi"), "");
    const auto choosesIn = [](const QString& title, const QString& names) {
        whenShown<QFileDialog>([=](QFileDialog& panel) {
            EXPECT_EQ(panel.windowTitle(), title);
            choose(panel, names);
        });
    };
    choosesIn(QStringLiteral("Logs"), QStringLiteral("\"logs\" \"a.adi\""));
    QString chosen;
    for (const QString& path :
         panels.filesAndFoldersToOpen(PanelUse::crossCheckLogs, QStringLiteral("Logs"))) {
        chosen += QFileInfo(path).fileName() + u' ';
    }
    EXPECT_EQ(chosen.toStdString(), "logs a.adi ");
    choosesIn(QStringLiteral("Reports"), QStringLiteral("logs"));
    const auto path =
        panels.folderToWriteTo(PanelUse::reports, QStringLiteral("Reports"), QStringLiteral("Write"));
    EXPECT_EQ(QFileInfo(path.value_or(QString())).fileName().toStdString(), "logs");
}

TEST(SavePanel, AddsTheExtensionThatIsMissing) {
    const testing::TemporaryFolder folder;
    testing::MemorySettings settings;
    DesktopPanels panels(settings);
    panels.setLogFolder(folder.path(QStringLiteral(".")));
    for (const auto& [name, saved] : {std::pair("new", "new.edi"), std::pair("new.txt", "new.txt")}) {
        whenShown<QFileDialog>([name = name](QFileDialog& panel) { choose(panel, QString::fromUtf8(name)); });
        const auto path = panels.fileToSave(PanelUse::exportLog, QStringLiteral("log.edi"), types);
        ASSERT_TRUE(path.has_value());
        EXPECT_EQ(QFileInfo(*path).fileName().toStdString(), saved);
    }
}

TEST(SavePanel, AsksInItsOwnWordsBeforeAFileIsReplacedAndGoesOnIfItIsNot) {
    const testing::TemporaryFolder folder;
    testing::MemorySettings settings;
    DesktopPanels panels(settings);
    panels.setLogFolder(folder.path(QStringLiteral(".")));
    const QString old = folder.write(QStringLiteral("old.edi"), "");
    QString asked;
    const auto choosesAndAnswers = [&asked](const char* name, const char* button, const auto& then) {
        whenShown<QFileDialog>([=, &asked](QFileDialog& panel) {
            choose(panel, QString::fromUtf8(name));
            whenShown<QMessageBox>([=, &asked](QMessageBox& question) {
                asked += question.text().section(u'\n', 0, 0);
                testing::shownButton(question, QString::fromUtf8(button))->click();
                then();
            });
        });
    };
    choosesAndAnswers("old", "Abbrechen", [&] { choosesAndAnswers("old.edi", "Ersetzen", [] {}); });
    const auto path = panels.fileToSave(PanelUse::exportLog, QStringLiteral("log.edi"), types);
    EXPECT_EQ(QFileInfo(path.value_or(QString())).canonicalFilePath(), QFileInfo(old).canonicalFilePath());
    EXPECT_EQ(asked.toStdString(), "„old.edi“ ist schon vorhanden.„old.edi“ ist schon vorhanden.");
}

}  // namespace
}  // namespace quillon
