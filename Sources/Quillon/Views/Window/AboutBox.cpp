// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/AboutBox.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/Libraries.h"
#include "Quillon/Views/Controls/ChartPainter.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

namespace {

constexpr int marginPx = 18;
/// What the frame of a window wants of a small screen.
constexpr QSize windowFrame(16, 48);

QString licenceText() {
    QFile file(QStringLiteral(":/LICENSE"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QDialogButtonBox* buttonsOf(QDialog& dialog) {
    auto* buttons = new QDialogButtonBox(&dialog);
    buttons->addButton(QStringLiteral("&Schließen"), QDialogButtonBox::RejectRole)->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

QList<Library> allLibraries() {
    QList<Library> all = linkedLibraries();
    if (const ChartPainter* const charts = chartPainter()) {
        all.append(charts->library());
    }
    // Drawings, which tell no version.
    all.append({QStringLiteral("Breeze Icons"), QString(), QStringLiteral("LGPL-3.0-or-later")});
    return all;
}

}  // namespace

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("Über ") + appName());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(marginPx, marginPx, marginPx, marginPx);
    layout->setSpacing(12);
    layout->addWidget(head());
    auto* caption = headingLabel(QStringLiteral("Verwendete Bibliotheken"), this);
    QWidget* const list = libraries();
    nameBy(*caption, *list);
    layout->addWidget(caption);
    layout->addWidget(list, 1);
    QDialogButtonBox* const buttons = buttonsOf(*this);
    QPushButton* const handbook =
        buttons->addButton(QStringLiteral("&Handbuch"), QDialogButtonBox::ActionRole);
    QPushButton* const licence =
        buttons->addButton(QStringLiteral("&Lizenz …"), QDialogButtonBox::ActionRole);
    connect(handbook, &QPushButton::clicked, this, [this] {
        reject();
        emit handbookWanted();
    });
    connect(licence, &QPushButton::clicked, this, &AboutBox::showLicence);
    layout->addWidget(buttons);
    // By itself a dialog takes no more than two thirds of the screen, and cuts lines that wrap.
    const int width = std::max(layout->sizeHint().width(), 72 * fontMetrics().averageCharWidth());
    resize(
        QSize(width, layout->totalHeightForWidth(width)).boundedTo(screen()->availableSize() - windowFrame));
}

QWidget* AboutBox::head() {
    constexpr int iconPx = 64;
    auto* area = new QWidget(this);
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(marginPx);
    row->addWidget(pictureWidget(applicationIcon(), iconPx, area), 0, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    row->addLayout(column, 1);
    QLabel* const name = titleLabel(appName() + QLatin1Char(' ') + appVersion(), area);
    makeCopyable(*name);
    column->addWidget(name);
    for (const QString& text :
         {QStringLiteral("Logbücher des Amateurfunks ansehen, bearbeiten, prüfen und auswerten."),
          QStringLiteral("Copyright © 2026 Quillon"),
          QStringLiteral(
              "Freie Software unter der GNU General Public License, Version 3 oder neuer: Du darfst "
              "sie weitergeben und ändern. Ohne jede Gewähr, soweit das Gesetz es zulässt.")}) {
        auto* line = new QLabel(text, area);
        line->setTextFormat(Qt::PlainText);
        line->setWordWrap(true);
        column->addWidget(line);
    }
    return area;
}

QWidget* AboutBox::libraries() {
    auto* list = new QTreeWidget(this);
    list->setColumnCount(3);
    list->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Version"), QStringLiteral("Lizenz")});
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->header()->setSectionsMovable(false);
    for (const Library& library : allLibraries()) {
        list->addTopLevelItem(
            new QTreeWidgetItem(QStringList{library.name, library.version, library.licence}));
    }
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->setCurrentItem(list->topLevelItem(0));
    // All of it is seen where the screen allows.
    constexpr int fewestRows = 3;
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    list->setMinimumHeight(fewestRows * list->sizeHintForRow(0) + list->header()->sizeHint().height());
    return list;
}

void AboutBox::showLicence() {
    auto* dialog = new QDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QStringLiteral("Lizenz"));
    auto* text = new QPlainTextEdit(dialog);
    text->setPlainText(licenceText());
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QFont letters = text->font();
    letters.setPointSizeF(font().pointSizeF());
    text->setFont(letters);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setAccessibleName(QStringLiteral("Wortlaut der Lizenz"));
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(text, 1);
    layout->addWidget(buttonsOf(*dialog));
    constexpr int letterColumns = 84;
    constexpr int lines = 32;
    const QFontMetrics metrics(letters);
    dialog->resize(QSize(letterColumns * metrics.averageCharWidth(), lines * metrics.height())
                       .boundedTo(screen()->availableSize() - windowFrame));
    text->setFocus();
    dialog->open();
}

}  // namespace quillon
