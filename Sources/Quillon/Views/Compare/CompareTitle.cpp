// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/CompareTitle.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QHBoxLayout>

#include <algorithm>

namespace quillon {

CompareTitle::CompareTitle(const LogStore& logStore, const CompareStore& compareStore,
                           const ComparisonModel& comparisonModel, QWidget* parent)
    : QWidget(parent), log(logStore), store(compareStore), model(comparisonModel) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 8, 12, 8);
    row->setSpacing(8);
    left = addSide();
    auto* arrow = new QLabel(QStringLiteral("↔"), this);
    arrow->setAccessibleName(QStringLiteral("verglichen mit"));
    row->addWidget(arrow);
    right = addSide();
    row->addStretch(1);
    connect(&log, &LogStore::isDirtyChanged, this, &CompareTitle::refresh);
    for (const auto signal : {&CompareStore::leftFileChanged, &CompareStore::leftFileNameChanged,
                              &CompareStore::leftFileDirtyChanged, &CompareStore::rightNameChanged,
                              &CompareStore::rightURLChanged, &CompareStore::rightDirtyChanged}) {
        connect(&store, signal, this, &CompareTitle::refresh);
    }
    refresh();
}

CompareTitle::SideLabels CompareTitle::addSide() {
    auto* name = new ElidedLabel(Qt::ElideMiddle, this);
    name->setTextFormat(Qt::PlainText);
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    SideLabels labels{name, noteLabel(QStringLiteral("editierbar"), this),
                      noteLabel(QStringLiteral("geändert"), this)};
    for (QLabel* label : {labels.name, labels.editable, labels.changed}) {
        label->setWordWrap(false);
        layout()->addWidget(label);
    }
    return labels;
}

void CompareTitle::refresh() {
    using Side = ComparisonModel::Side;
    const auto show = [this](const SideLabels& labels, Side side, bool isEditable, bool isDirty) {
        const QString name = toQString(tallyrig::text::visibleText(model.sideName(side).toStdString()));
        labels.name->setText(name);
        labels.name->setToolTip(plainToolTip(name));
        labels.editable->setVisible(isEditable);
        labels.changed->setVisible(isDirty);
    };
    show(left, Side::left, true, store.leftFile() != nullptr ? store.leftFile()->isDirty : log.isDirty());
    show(right, Side::right, store.hasRightFile(), store.rightDirty());
    shareRoom();
}

/// A layout takes the same from each name where there is not room for both: of a short one nothing would be
/// left.
void CompareTitle::shareRoom() {
    int named = 0;
    for (const QLabel* name : {left.name, right.name}) {
        named += name->sizeHint().width();
    }
    for (QLabel* name : {left.name, right.name}) {
        name->setMaximumWidth(QWIDGETSIZE_MAX);
    }
    const int room = width() - (layout()->sizeHint().width() - named);
    const auto share = [room](const QLabel& name, const QLabel& other) {
        return std::max({name.minimumSizeHint().width(), room / 2, room - other.sizeHint().width()});
    };
    left.name->setMaximumWidth(share(*left.name, *right.name));
    right.name->setMaximumWidth(share(*right.name, *left.name));
}

void CompareTitle::resizeEvent(QResizeEvent* event) {
    shareRoom();
    QWidget::resizeEvent(event);
}

}  // namespace quillon
