// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sheets/KeptLogsSheet.h"

#include "Quillon/Keeping/KeptWords.h"
#include "Quillon/Keeping/LogKeeper.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace quillon {

namespace {

enum Column { name, folder, records, time, reason, columnCount };

QTreeWidgetItem* itemFor(const KeptNote& note) {
    auto* item = new QTreeWidgetItem;
    item->setText(Column::name, nameOf(note));
    item->setText(Column::folder, folderOf(note));
    // How many a former file has nobody has counted, unless it was the log in hand.
    const bool isCounted = note.kind == KeptKind::log || note.records > 0;
    item->setText(Column::records, isCounted ? numberText(note.records) : QString());
    item->setTextAlignment(Column::records, Qt::AlignRight | Qt::AlignVCenter);
    item->setText(
        Column::time,
        QDateTime::fromMSecsSinceEpoch(note.timeMs).toString(QStringLiteral("dd.MM.yyyy HH:mm:ss")));
    item->setText(Column::reason, reasonFor(note));
    for (int column = 0; column < Column::columnCount; ++column) {
        item->setToolTip(column, plainToolTip(item->text(column)));
    }
    return item;
}

}  // namespace

KeptLogsSheet::KeptLogsSheet(LogKeeper& logKeeper, QWidget* parent)
    : QDialog(parent), keeper(logKeeper), list(new QTreeWidget(this)) {
    setWindowTitle(QStringLiteral("Aufgehobene Logbücher"));
    list->setAccessibleName(windowTitle());
    list->setWhatsThis(QStringLiteral(
        "Was Quillon aufgehoben hat, das Neueste zuerst. „Warum“ sagt, bei welcher Gelegenheit. Ein Log mit "
        "ungesicherten Änderungen verschwindet von hier, sobald es zurückgeholt und gesichert ist; was in "
        "einer Datei stand, bleibt, bis Neueres es verdrängt."));
    setWindowFlag(Qt::WindowContextHelpButtonHint);
    list->setColumnCount(Column::columnCount);
    list->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Ordner"), QStringLiteral("QSOs"),
                           QStringLiteral("Wann"), QStringLiteral("Warum")});
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setAlternatingRowColors(true);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setTextElideMode(Qt::ElideMiddle);
    list->header()->setSectionsMovable(false);
    list->header()->setStretchLastSection(true);
    nothing = noteLabel(QStringLiteral("Es ist nichts aufgehoben."), this);
    auto* remark = noteLabel(
        QStringLiteral(
            "Logbücher mit Änderungen, die ihre Datei nicht hat, und was vor dem Speichern in einer "
            "Datei stand. Die letzten %1 bleiben, zusammen höchstens 500 MB.")
            .arg(KeptLogs::mostEntries),
        this);
    auto* box = new QDialogButtonBox(this);
    bringBackButton = box->addButton(QStringLiteral("&Zurückholen"), QDialogButtonBox::ActionRole);
    compareButton = box->addButton(QStringLiteral("&Vergleichen"), QDialogButtonBox::ActionRole);
    removeButton = box->addButton(QStringLiteral("&Löschen …"), QDialogButtonBox::ActionRole);
    box->addButton(QStringLiteral("&Schließen"), QDialogButtonBox::RejectRole);
    bringBackButton->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 18);
    layout->setSpacing(12);
    layout->addWidget(titleLabel(windowTitle(), this));
    layout->addWidget(list, 1);
    layout->addWidget(nothing);
    layout->addWidget(remark);
    layout->addWidget(box);

    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const auto bringBack = [this] { closeWith(&KeptLogsSheet::bringBackWanted); };
    connect(bringBackButton, &QPushButton::clicked, this, bringBack);
    connect(list, &QTreeWidget::itemDoubleClicked, this, bringBack);
    connect(compareButton, &QPushButton::clicked, this, [this] { closeWith(&KeptLogsSheet::compareWanted); });
    connect(removeButton, &QPushButton::clicked, this, &KeptLogsSheet::askToRemove);
    connect(list, &QTreeWidget::itemSelectionChanged, this, &KeptLogsSheet::offerActions);
    new QShortcut(Qt::Key_Delete, list, this, &KeptLogsSheet::askToRemove, Qt::WidgetShortcut);
    connect(&keeper, &LogKeeper::entriesChanged, this, &KeptLogsSheet::fill);
    fill();
    resizeToList();
    if (!entries.empty()) {
        list->setCurrentItem(list->topLevelItem(0));
    }
    list->setFocus();
}

void KeptLogsSheet::fill() {
    std::set<std::string> chosenFiles;
    for (const KeptEntry& entry : chosen()) {
        chosenFiles.insert(entry.file);
    }
    entries = keeper.entries();
    list->clear();
    for (const KeptEntry& entry : entries) {
        QTreeWidgetItem* const item = itemFor(entry.note);
        list->addTopLevelItem(item);
        item->setSelected(chosenFiles.contains(entry.file));
    }
    for (int column = 0; column < Column::columnCount; ++column) {
        constexpr int mostLetters = 36;
        list->resizeColumnToContents(column);
        const int widest = mostLetters * fontMetrics().averageCharWidth();
        list->setColumnWidth(column, std::min(list->columnWidth(column), widest));
    }
    nothing->setVisible(entries.empty());
    offerActions();
}

/// The last column takes what is left, and is to be read as well.
void KeptLogsSheet::resizeToList() {
    constexpr int leastLetters = 110;
    const QAbstractItemView* const view = list;
    const int reasons =
        std::max(view->sizeHintForColumn(Column::reason), list->header()->sectionSizeHint(Column::reason));
    const QMargins margins = layout()->contentsMargins();
    const int columns = list->header()->sectionPosition(Column::reason) + reasons;
    const int around = margins.left() + margins.right() + 2 * list->frameWidth() +
                       style()->pixelMetric(QStyle::PM_ScrollBarExtent) + fontMetrics().averageCharWidth();
    const int wanted = std::max(columns + around, leastLetters * fontMetrics().averageCharWidth());
    resize(std::min(wanted, screen()->availableSize().width()), 24 * fontMetrics().height());
}

void KeptLogsSheet::offerActions() {
    const std::size_t count = chosen().size();
    bringBackButton->setEnabled(count == 1);
    compareButton->setEnabled(count == 1);
    removeButton->setEnabled(count > 0);
}

std::vector<KeptEntry> KeptLogsSheet::chosen() const {
    std::vector<KeptEntry> result;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        if (list->topLevelItem(row)->isSelected()) {
            result.push_back(entries[static_cast<std::size_t>(row)]);
        }
    }
    return result;
}

void KeptLogsSheet::closeWith(void (KeptLogsSheet::*wanted)(const KeptEntry& entry)) {
    if (const auto entry = chosen(); entry.size() == 1) {
        accept();
        emit(this->*wanted)(entry.front());
    }
}

void KeptLogsSheet::askToRemove() {
    const auto unwanted = chosen();
    if (unwanted.empty()) {
        return;
    }
    auto* question = new QMessageBox(this);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setWindowTitle(QStringLiteral("Löschen"));
    question->setTextFormat(Qt::PlainText);
    question->setText(unwanted.size() == 1
                          ? QStringLiteral("„%1“ endgültig aus den aufgehobenen Logbüchern löschen?")
                                .arg(nameOf(unwanted.front().note))
                          : QStringLiteral("%1 Einträge endgültig aus den aufgehobenen Logbüchern löschen?")
                                .arg(unwanted.size()));
    QPushButton* const yes = question->addButton(QStringLiteral("&Löschen"), QMessageBox::DestructiveRole);
    question->setDefaultButton(question->addButton(QStringLiteral("&Abbrechen"), QMessageBox::RejectRole));
    connect(yes, &QPushButton::clicked, this, [this, unwanted] { removeAll(unwanted); });
    question->open();
}

void KeptLogsSheet::removeAll(const std::vector<KeptEntry>& unwanted) {
    for (const KeptEntry& entry : unwanted) {
        if (const auto why = keeper.remove(entry)) {
            emit removeFailed(entry, *why);
        } else {
            emit removed(entry);
        }
    }
    list->setFocus();
}

}  // namespace quillon
