// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/NoHits.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/EmptyState.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

NoHits::NoHits(LogStore& logStore, QWidget& rows)
    : QWidget(&rows),
      store(logStore),
      message(new EmptyState(QStringLiteral("search"), QString(), QString(), this)) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    auto* button = new QPushButton(QStringLiteral("Suche aufheben"), this);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->addWidget(message, 2);
    layout->addWidget(button, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    rows.installEventFilter(this);

    connect(button, &QPushButton::clicked, this, [this] {
        store.setSearchText(QString());
        emit searchEnded();
    });
    connect(&store, &LogStore::displayedRecordsChanged, this, &NoHits::refresh);
    connect(&store, &LogStore::searchTextChanged, this, &NoHits::refresh);
    refresh();
}

bool NoHits::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        resize(parentWidget()->size());
    }
    return QWidget::eventFilter(watched, event);
}

void NoHits::refresh() {
    constexpr qsizetype longestShown = 100;
    const QString text = store.searchText();
    const bool isNeeded =
        !text.isEmpty() && !store.document().records().empty() && store.displayedCount() == 0;
    if (isNeeded) {
        const QString shown = text.size() <= longestShown ? text : text.left(longestShown) + QChar(u'…');
        const std::string visible = tallyrig::text::visibleText(shown.toStdString());
        message->setTexts(QStringLiteral("Keine Treffer für „%1“").arg(toQString(visible)), QString());
        resize(parentWidget()->size());
        raise();
    }
    setVisible(isNeeded);
}

}  // namespace quillon
