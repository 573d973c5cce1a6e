#include "Quillon/Platform/Desktop/DesktopPanels.h"

#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace quillon {
namespace {

const QList<FileType> types = {{QStringLiteral("EDI-Dateien"), {QStringLiteral("edi")}}};

/// Calls `act` with the panel as soon as it is open.
template <typename Act>
void whenOpen(Act act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* const panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(panel, nullptr);
        act(*panel);
    });
}

void choose(QFileDialog& panel, const QString& name) {
    panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
    static_cast<QDialog&>(panel).accept();
}

TEST(FilePanel, TellsFilesByTheirNames) {
    const testing::TemporaryFolder folder;
    DesktopPanels panels;
    panels.setFolder(folder.path(QStringLiteral(".")));
    QString told;
    whenOpen([&](QFileDialog& panel) {
        const auto typeOf = [&](const QString& path) { return panel.iconProvider()->type(QFileInfo(path)); };
        told = typeOf(folder.path(QStringLiteral("."))) + u' ' + typeOf(QStringLiteral("/none/a.adi")) +
               u' ' + typeOf(QStringLiteral("/none/a"));
        panel.reject();
    });
    EXPECT_EQ(panels.fileToOpen(types), std::nullopt);
    EXPECT_EQ(told.toStdString(), "Ordner ADI-Datei Datei");
}

TEST(SavePanel, AddsTheExtensionThatIsMissing) {
    const testing::TemporaryFolder folder;
    DesktopPanels panels;
    panels.setFolder(folder.path(QStringLiteral(".")));
    for (const auto& [name, saved] : {std::pair("new", "new.edi"), std::pair("new.txt", "new.txt")}) {
        whenOpen([name = name](QFileDialog& panel) { choose(panel, QString::fromUtf8(name)); });
        const auto path = panels.fileToSave(QStringLiteral("log.edi"), types);
        ASSERT_TRUE(path.has_value());
        EXPECT_EQ(QFileInfo(*path).fileName().toStdString(), saved);
    }
}

}  // namespace
}  // namespace quillon
