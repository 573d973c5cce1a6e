// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/InlineEditor.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/UnseenCharacters.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <limits>

namespace quillon {
namespace {

constexpr int borderPx = 2;
/// What QLineEdit itself keeps free in front of its text.
constexpr int builtInMarginPx = 2;

/// Cells of a spreadsheet come with tabs between them and line breaks behind them.
QString onOneLine(QString text) {
    const auto isBreak = [](QChar letter) {
        return letter == u'\n' || letter == u'\r' || letter == QChar::LineSeparator ||
               letter == QChar::ParagraphSeparator;
    };
    while (!text.isEmpty() && (isBreak(text.back()) || text.back() == u'\t')) {
        text.chop(1);
    }
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar& letter : text) {
        if (isBreak(letter) || letter == u'\t') {
            letter = u' ';
        }
    }
    return text;
}

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

void InlineEditor::pasteOnOneLine(QClipboard::Mode from) {
    if (const QString text = QGuiApplication::clipboard()->text(from); !text.isEmpty()) {
        insert(onOneLine(text));
    }
}

void InlineEditor::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
        setCursorPosition(cursorPositionAt(event->pos()));
        pasteOnOneLine(QClipboard::Selection);
        event->accept();
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void InlineEditor::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* const action : menu->actions()) {
        // Qt gives it no name.
        if (action->text().startsWith(QLineEdit::tr("&Paste"))) {
            disconnect(action, &QAction::triggered, nullptr, nullptr);
            connect(action, &QAction::triggered, this, [this] { pasteOnOneLine(QClipboard::Clipboard); });
        }
    }
    menu->popup(event->globalPos());
}

void InlineEditor::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        pasteOnOneLine(QClipboard::Clipboard);
        event->accept();
        return;
    }
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
