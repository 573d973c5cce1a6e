// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/InlineEditor.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/UnseenCharacters.h"

#include <QApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QPainter>

#include <limits>

namespace quillon {
namespace {

constexpr int borderPx = 2;
/// What QLineEdit itself keeps free in front of its text.
constexpr int builtInMarginPx = 2;

}  // namespace

InlineEditor::InlineEditor(Escape escapeKey, QWidget* parent) : QLineEdit(parent), escape(escapeKey) {
    setFrame(false);
    setMetrics({});
    // A value must come out as long as it went in.
    setMaxLength(std::numeric_limits<int>::max());
    // A log file that is dropped here is to be opened.
    setAcceptDrops(false);
    markUnseenCharacters(*this);
    hide();
}

void InlineEditor::setMetrics(const TableMetrics& metrics) {
    const int margin = static_cast<int>(metrics.cellMargins / 2) - builtInMarginPx;
    setTextMargins(margin, 0, margin, 0);
}

void InlineEditor::begin(const QString& draft) {
    commit();
    open = true;
    setText(draft);
    selectAll();
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
    qApp->installEventFilter(this);
}

void InlineEditor::commit(Leave leave) {
    if (!open) {
        return;
    }
    if (hasFocus()) {
        QGuiApplication::inputMethod()->commit();
    }
    const QString draft = text();
    dismiss();
    emit committed(draft, leave);
}

void InlineEditor::dismiss() {
    if (!open) {
        return;
    }
    open = false;
    qApp->removeEventFilter(this);
    if (window()->focusWidget() == this) {
        parentWidget()->setFocus(Qt::OtherFocusReason);
    }
    hide();
}

bool InlineEditor::event(QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride || !open) {
        return QLineEdit::event(event);
    }
    const bool handled = QLineEdit::event(event);
    if (event->isAccepted()) {
        return handled;
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            event->accept();
            break;
        default:
            break;
    }
    return handled;
}

bool InlineEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
        const auto* pressed = static_cast<QWidget*>(watched);
        const bool commitsItself = pressed == parentWidget() || pressed == informedWidget;
        if (pressed != this && !commitsItself && !isAncestorOf(pressed) && !ownsPopup()) {
            commit();
        }
    }
    return false;
}

bool InlineEditor::focusNextPrevChild(bool next) {
    commit(next ? Leave::forward : Leave::backward);
    return true;
}

void InlineEditor::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            commit(Leave::stay);
            event->accept();
            break;
        case Qt::Key_Escape:
            if (escape == Escape::commits) {
                commit(Leave::stay);
            } else {
                dismiss();
            }
            event->accept();
            break;
        default:
            QLineEdit::keyPressEvent(event);
    }
}

void InlineEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (!(event->reason() == Qt::PopupFocusReason && ownsPopup())) {
        commit();
    }
}

void InlineEditor::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    const QColor accent =
        standingOut(palette().color(QPalette::Highlight), {palette().color(QPalette::Base)}, shapeContrast);
    painter.fillRect(0, 0, width(), borderPx, accent);
    painter.fillRect(0, height() - borderPx, width(), borderPx, accent);
    painter.fillRect(0, 0, borderPx, height(), accent);
    painter.fillRect(width() - borderPx, 0, borderPx, height(), accent);
}

bool InlineEditor::ownsPopup() const {
    const QObject* popup = QApplication::activePopupWidget();
    while (popup != nullptr && popup != this) {
        popup = popup->parent();
    }
    return popup == this;
}

}  // namespace quillon
